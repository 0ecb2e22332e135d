#include "services/network.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <cstdio>

NetworkAccess* Network() {
  static NetworkAccess* const access = []() -> NetworkAccess* {
    const QDir here(QCoreApplication::applicationDirPath());
    QString problem = QStringLiteral("not found");
    for (const QString& dir : {QStringLiteral("../lib/games/talvero"), QStringLiteral("."), QStringLiteral("..")}) {
      const QString path = QDir::cleanPath(here.filePath(dir + '/' + QLatin1String(kNetworkLibrary)));
      if (!QFileInfo::exists(path)) continue;
      // Never unloaded: the objects it makes live as long as the process.
      QLibrary library(path);
      using Entry = NetworkAccess* (*)();
      if (auto entry = reinterpret_cast<Entry>(library.resolve(kNetworkEntry))) return entry();
      problem = library.errorString();
    }
    std::fprintf(stderr,
                 "talvero: the network library %s cannot be loaded (%s): the publisher's pages show their "
                 "notice and the connection is taken as up\n",
                 kNetworkLibrary, qPrintable(problem));
    return nullptr;
  }();
  return access;
}
