// Helpers of the tests of the music routines, the display question and the web panels: the
// real talvero-drive run with arguments and an environment.
#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

namespace services {

struct ToolResult {
  QStringList lines;
  int exitCode = -1;
};

inline ToolResult RunDrive(const QStringList& commands, const QStringList& args = {},
                           const QProcessEnvironment& env = QProcessEnvironment::systemEnvironment()) {
  QProcess p;
  p.setProcessEnvironment(env);
  p.start(QStringLiteral(TALVERO_DRIVE), args);
  EXPECT_TRUE(p.waitForStarted(10000));
  p.write((commands.join('\n') + '\n').toUtf8());
  p.closeWriteChannel();
  EXPECT_TRUE(p.waitForFinished(60000));
  return {QString::fromUtf8(p.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts), p.exitCode()};
}

}  // namespace services
