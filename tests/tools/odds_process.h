// talvero-odds run as a process by the tests: its exit status and what it wrote, and the check
// of a refusal (one line on standard error naming the fault, exit status 2, nothing written).
#pragma once

#include <gtest/gtest.h>

#include <QProcess>

#include "tests/support/harness.h"

namespace oddstest {

struct Run {
  int status;
  QString out;
  QString err;
};

inline Run Odds(const QStringList& args, const QByteArray& input = {}) {
  TestApp();
  QProcess p;
  p.start(QStringLiteral(TALVERO_ODDS), args);
  p.waitForStarted();
  p.write(input);
  p.closeWriteChannel();
  p.waitForFinished(300000);
  return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1, QString::fromUtf8(p.readAllStandardOutput()),
          QString::fromUtf8(p.readAllStandardError())};
}

inline void ExpectRefused(const QStringList& args, const QString& fault, const QByteArray& input = {}) {
  SCOPED_TRACE(args.join(' ').toStdString());
  const Run r = Odds(args, input);
  EXPECT_EQ(r.status, 2);
  EXPECT_TRUE(r.out.isEmpty()) << r.out.toStdString();
  EXPECT_EQ(r.err.count('\n'), 1) << r.err.toStdString();
  EXPECT_TRUE(r.err.contains(fault)) << r.err.toStdString();
}

}  // namespace oddstest
