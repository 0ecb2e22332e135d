// talvero-drive: runs the real form offscreen on the scripted platform and reads one
// command a line from standard input (see README).
#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <cstdio>
#include <iostream>
#include <string>

#include "interface/JeuPoker.h"
#include "services/platform.h"
#include "tools/driver.h"

namespace {
void Print(const QString& line) {
  const QByteArray bytes = line.toUtf8();
  std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

bool CopyDirectory(const QString& from, const QString& to) {
  QDir src(from);
  if (!src.exists()) return false;
  QDirIterator it(from, QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot);
  while (it.hasNext()) {
    const QString path = it.next();
    // The settings a player left there stay out: every run starts as a first start.
    if (QFileInfo(path).fileName() == QStringLiteral("Ini.dat")) continue;
    QFile::copy(path, QDir(to).filePath(QFileInfo(path).fileName()));
  }
  return true;
}
}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  TimerControl::SetAutomatic(false);

  QString dir;
  const QStringList args = QCoreApplication::arguments();
  for (int i = 1; i < args.size(); ++i) {
    if (args[i] == "--dir" && i + 1 < args.size()) {
      dir = args[++i];
    } else {
      std::fprintf(stderr, "usage: talvero-drive [--dir DIR] < commands\n");
      return 2;
    }
  }
  const QString startDirectory = QDir::currentPath();
  QTemporaryDir temp;
  if (dir.isEmpty()) {
    if (!temp.isValid()) {
      std::fprintf(stderr, "talvero-drive: cannot make a temporary directory\n");
      return 2;
    }
    dir = temp.path();
    // The program directory built beside this tool.
    CopyDirectory(QDir(QCoreApplication::applicationDirPath()).filePath("talvero"), dir);
  }

  ScriptedPlatform platform;
  SetPlatform(&platform);
  vb::SetRuntimeErrorHandler([](int n) {
    Print(QStringLiteral("runtime-error %1").arg(n));
    std::_Exit(3);
  });

  JeuPoker form(QDir(dir).absolutePath());
  form.EndProgram = [] {
    Print(QStringLiteral("ended"));
    std::_Exit(0);
  };
  form.Form_Load();
  QCoreApplication::processEvents();

  Driver driver(form, platform, Print);
  driver.startDirectory = startDirectory;
  std::string line;
  while (std::getline(std::cin, line)) {
    driver.Execute(QString::fromStdString(line));
    QCoreApplication::processEvents();
  }
  return 0;
}
