#include "tests/support/helpers.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <stdexcept>

int Code(const std::string& card) {
  if (card == "X1") return 52;
  if (card == "X2") return 53;
  const std::string ranks = "23456789TJQKA";
  const std::string suits = "CDHS";
  const auto r = ranks.find(card.at(0));
  const auto s = suits.find(card.at(1));
  if (card.size() != 2 || r == std::string::npos || s == std::string::npos) throw std::invalid_argument(card);
  return static_cast<int>(13 * s + r);
}

bool English(const JeuPoker& f) { return f.Langue == 0 || f.Langue == 2; }

bool FaceDown(const JeuPoker& f, const Control& card) { return card.GetPicture() == f.Cartes(54).GetPicture(); }

void WriteIni(Harness& h, char byte) {
  QFile f(h.dir.filePath("Ini.dat"));
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write(&byte, 1);
}

ToolRun RunTool(const QStringList& commands, const QStringList& args, const QProcessEnvironment& env) {
  QProcess p;
  if (!env.isEmpty()) p.setProcessEnvironment(env);
  p.start(QStringLiteral(TALVERO_DRIVE), args);
  EXPECT_TRUE(p.waitForStarted(10000));
  p.write((commands.join('\n') + '\n').toUtf8());
  p.closeWriteChannel();
  EXPECT_TRUE(p.waitForFinished(60000));
  ToolRun r;
  r.exitCode = p.exitCode();
  r.lines = QString::fromUtf8(p.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
  return r;
}

QStringList RunToolLines(const QStringList& commands) {
  const ToolRun r = RunTool(commands);
  EXPECT_EQ(r.exitCode, 0);
  return r.lines;
}
