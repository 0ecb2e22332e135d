// TALVERO: the game's entry point.
#include <QApplication>
#include <QDir>
#include <cstdlib>

#include "interface/JeuPoker.h"
#include "services/platform.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("TALVERO"));
  RealPlatform platform;
  SetPlatform(&platform);
  JeuPoker form(QCoreApplication::applicationDirPath());
  // The end of the program is immediate: no save, no confirmation.
  form.EndProgram = [] { std::_Exit(0); };
  form.Form_Load();
  return QApplication::exec();
}
