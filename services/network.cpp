#include "services/network.h"

#include <cstdio>

#include "services/program_dir.h"

NetworkAccess* Network() {
  static NetworkAccess* const access = []() -> NetworkAccess* {
    QString problem;
    using Entry = NetworkAccess* (*)();
    if (auto entry = reinterpret_cast<Entry>(ResolveOwnLibrary(kNetworkLibrary, kNetworkEntry, problem)))
      return entry();
    std::fprintf(stderr,
                 "talvero: the network library %s cannot be loaded (%s): the publisher's pages show their "
                 "notice and the connection is taken as up\n",
                 kNetworkLibrary, qPrintable(problem));
    return nullptr;
  }();
  return access;
}
