// talvero-drive: runs the real form offscreen on the scripted platform and reads one
// command a line from standard input (see README).
#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <cstdio>
#include <iostream>
#include <string>

#include "interface/JeuPoker.h"
#include "interface/card_faces.h"
#include "interface/table_scale.h"
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
  // Offscreen, unless --platform names another of Qt's platforms (xcb, under Xvfb).
  QByteArray platformName = "offscreen";
  for (int i = 1; i + 1 < argc; ++i)
    if (std::string(argv[i]) == "--platform") platformName = argv[i + 1];
  qputenv("QT_QPA_PLATFORM", platformName);
  QApplication app(argc, argv);
  TimerControl::SetAutomatic(false);

  QString dir;
  QString screen;
  bool coach = false;
  double scale = 0;
  const QStringList args = QCoreApplication::arguments();
  for (int i = 1; i < args.size(); ++i) {
    if (args[i] == "--scale" && i + 1 < args.size()) {
      const auto s = table::ParseScale(args[++i]);
      if (!s) {
        std::fprintf(stderr, "talvero-drive: --scale takes a number from 1 to 4, like 1.5\n");
        return 2;
      }
      scale = *s;
    } else if (args[i] == "--platform" && i + 1 < args.size()) {
      ++i;
    } else if (args[i] == "--dir" && i + 1 < args.size()) {
      dir = args[++i];
    } else if (args[i] == "--screen" && i + 1 < args.size()) {
      screen = args[++i];
    } else if (args[i] == "--coach") {
      coach = true;
    } else {
      std::fprintf(stderr,
                   "usage: talvero-drive [--dir DIR] [--screen WxH] [--coach] [--scale S] [--platform NAME]"
                   " < commands\n");
      return 2;
    }
  }
  static const QRegularExpression size(QStringLiteral("^(\\d{1,5})x(\\d{1,5})$"));
  const QRegularExpressionMatch screenSize = size.match(screen);
  if (!screen.isEmpty() && !screenSize.hasMatch()) {
    std::fprintf(stderr, "talvero-drive: --screen takes WIDTHxHEIGHT, like 800x600\n");
    return 2;
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

  static SeededPlatform platform;
  SetPlatform(&platform);
  static bool screenGiven = false;
  if (screenSize.hasMatch()) {
    // The scripted display starts in that mode; it also has 1024 x 768.
    screenGiven = true;
    platform.display = {screenSize.captured(1).toInt(), screenSize.captured(2).toInt(), 32, 60};
    bool known = false;
    for (const DisplayMode& m : platform.modes)
      known = known || (m.width == platform.display.width && m.height == platform.display.height);
    if (!known) platform.modes.push_back(platform.display);
  }
  vb::SetRuntimeErrorHandler([](int n) {
    Print(QStringLiteral("runtime-error %1").arg(n));
    std::_Exit(3);
  });

  JeuPoker form(QDir(dir).absolutePath(), QString(), scale);
  form.EndProgram = [] {
    if (screenGiven) Print(QStringLiteral("display=%1x%2").arg(platform.display.width).arg(platform.display.height));
    Print(QStringLiteral("ended"));
    std::_Exit(0);
  };
  Driver driver(form, platform, Print);
  driver.startDirectory = startDirectory;

  // While the display question waits at start, the commands read are carried out inside its
  // yields; the end of the input leaves the tool as it does later.
  platform.onYield = [&form, &driver] {
    if (!form.AfficheForm->Visible() || form.isVisible()) return;
    std::string line;
    if (!std::getline(std::cin, line)) std::_Exit(0);
    driver.Execute(QString::fromStdString(line));
  };
  form.Form_Load();
  platform.onYield = nullptr;
  if (coach) form.OuvreCoach(true);
  QCoreApplication::processEvents();
  std::string line;
  while (std::getline(std::cin, line)) {
    driver.Execute(QString::fromStdString(line));
    QCoreApplication::processEvents();
  }
  pics::CardFaces::StopAll();
  return 0;
}
