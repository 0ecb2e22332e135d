// The program directory and the data directory of an installed game and of the build tree.
#include "services/program_dir.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>

QString InstalledDataDirectory(const QString& executableDir) {
  return QDir::cleanPath(executableDir + QStringLiteral("/../share/games/talvero"));
}

QString PlayerProgramDirectory() {
  QString base = qEnvironmentVariable("XDG_DATA_HOME");
  // A relative XDG_DATA_HOME is invalid and ignored, as the base directory rules say.
  if (base.isEmpty() || QDir::isRelativePath(base)) base = QDir::homePath() + QStringLiteral("/.local/share");
  return QDir::cleanPath(base + QStringLiteral("/talvero"));
}

ProgramDirectories LocateProgramDirectories(const QString& executableDir) {
  ProgramDirectories dirs;
  const QString installedData = InstalledDataDirectory(executableDir);
  if (!QFileInfo(installedData).isDir()) {
    dirs.program = dirs.data = QDir::cleanPath(executableDir);
    return dirs;
  }
  dirs.installed = true;
  dirs.data = installedData;
  dirs.program = PlayerProgramDirectory();
  if (!QDir().mkpath(dirs.program))
    dirs.problem = QStringLiteral("cannot create %1: the language chosen cannot be kept").arg(dirs.program);
  return dirs;
}

QFunctionPointer ResolveOwnLibrary(const char* file, const char* entry, QString& problem) {
  const QDir here(QCoreApplication::applicationDirPath());
  problem = QStringLiteral("not found");
  for (const QString& dir : {QStringLiteral("../lib/games/talvero"), QStringLiteral("."), QStringLiteral("..")}) {
    const QString path = QDir::cleanPath(here.filePath(dir + '/' + QLatin1String(file)));
    if (!QFileInfo::exists(path)) continue;
    QLibrary library(path);
    if (QFunctionPointer f = library.resolve(entry)) return f;
    problem = library.errorString();
  }
  return nullptr;
}
