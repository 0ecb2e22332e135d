// The network: fetching a page of the publisher's server and asking the system whether it is
// on line. It lives in a library of the game's own, loaded the first time it is needed, so
// that the game starts without the system's network stack (Qt Network and what it pulls in,
// about 1.5 MB of memory), which a game without a publisher's server never uses.
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

class QObject;

class NetworkAccess {
 public:
  virtual ~NetworkAccess() = default;
  // Fetches `url` and calls `done` once, in `context`'s thread and never after `context` has
  // gone, with the body of a 200 reply, or with nothing on any failure, a redirection, or no
  // complete reply within `timeoutMs`. Returns the fetch, for Cancel.
  virtual QObject* Get(const QString& url, int timeoutMs, QObject* context,
                       std::function<void(const QByteArray&)> done) = 0;
  // Abandons a fetch that has not finished: its `done` is called at once with nothing.
  virtual void Cancel(QObject* fetch) = 0;
  // Whether the system says it is on line; true when it cannot tell.
  virtual bool Connected() = 0;
};

// The library's file name, and the function it exports to hand out its NetworkAccess.
inline constexpr char kNetworkLibrary[] = "libtalvero-network.so";
inline constexpr char kNetworkEntry[] = "TalveroNetworkAccess";

// The process's network, loaded at the first call: the library is looked for in
// ../lib/games/talvero from the executable (installed), then beside it and in its parent (the
// build tree). Null when it cannot be loaded; that is said once on the standard error.
NetworkAccess* Network();
