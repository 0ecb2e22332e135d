// Helpers of the coach's tests: a deal laid and played through the real form with the manual
// selection, and the fields of the session's line.
#pragma once

#include <gtest/gtest.h>

#include <QStringList>

#include "tests/support/harness.h"
#include "tests/support/helpers.h"

namespace coachtest {

// One command through the harness that must print nothing.
inline void Quiet(Harness& h, const QString& command) {
  const QStringList out = h.Drive({command});
  EXPECT_TRUE(out.isEmpty()) << command.toStdString() << ": " << out.join('\n').toStdString();
}

// The first drawing of `codes` with the manual selection: every card rejected.
inline void Deal(Harness& h, const std::vector<int>& codes) {
  if (h.form->ParesseNon->BevelWidth() != 0) Quiet(h, "click ParesseNon");
  QString draw = "draw";
  for (int c : codes) draw += " " + QString::number(c);
  Quiet(h, draw);
  Quiet(h, "click Jouer");
  ASSERT_EQ(h.form->NbTirées, 5);
}

// Holds the positions of `held` ("11000") and plays the second drawing with these draws.
inline void Play(Harness& h, const QString& held, const std::vector<int>& draws) {
  for (int i = 0; i < 5; ++i)
    if (held[i] == '1') Quiet(h, QStringLiteral("click Deal(%1)").arg(i));
  QString draw = "draw";
  for (int c : draws) draw += " " + QString::number(c);
  Quiet(h, draw);
  Quiet(h, "click Jouer");
  ASSERT_EQ(h.form->NbTirées, 10);
}

// A field of the `coach session` line.
inline double Field(const QString& line, const QString& name) {
  const QStringList parts = line.mid(line.indexOf('=') + 1).split(' ');
  for (int i = 0; i + 1 < parts.size(); i += 2)
    if (parts[i] == name) return parts[i + 1].toDouble();
  ADD_FAILURE() << name.toStdString() << " not in " << line.toStdString();
  return -1;
}

}  // namespace coachtest
