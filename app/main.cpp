// TALVERO: the game's entry point.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <cstdio>
#include <cstdlib>

#include "interface/JeuPoker.h"
#include "interface/table_scale.h"
#include "services/measurement.h"
#include "services/platform.h"
#include "services/program_dir.h"
#include "services/startup_stages.h"

int main(int argc, char** argv) {
  StartupStage("main");
  QApplication app(argc, argv);
  StartupStage("app");
  QApplication::setApplicationName(QStringLiteral("TALVERO"));
  RealPlatform platform;
  SetPlatform(&platform);
  // Installed, the data is read where it was installed and Ini.dat is the player's own.
  const ProgramDirectories dirs = LocateProgramDirectories(QCoreApplication::applicationDirPath());
  if (!dirs.problem.isEmpty()) std::fprintf(stderr, "talvero: %s\n", qPrintable(dirs.problem));
  // The table's scale: --scale S or TALVERO_SCALE, else the largest that fits the screen.
  JeuPoker form(dirs.program, dirs.data, table::RequestedScale(QCoreApplication::arguments()));
  StartupStage("form");
  ReportFirstFrame(form);
  // The end of the program is immediate: no save, no confirmation.
  form.EndProgram = [] { std::_Exit(0); };
  form.Form_Load();
  StartupStage("load");
  if (QCoreApplication::arguments().contains(QStringLiteral("--coach"))) form.OuvreCoach(true);
  ReportAutoPlay(form);
  return QApplication::exec();
}
