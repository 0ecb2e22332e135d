#include "services/startup_stages.h"

#include <QFile>
#include <ctime>
#include <mutex>

namespace {
std::mutex stagesMutex;
QString& Stages() {
  static QString s;
  return s;
}
}  // namespace

long ResidentKb() {
  long rssKb = 0;
  QFile status(QStringLiteral("/proc/self/status"));
  if (status.open(QIODevice::ReadOnly)) {
    for (const QByteArray& line : status.readAll().split('\n'))
      if (line.startsWith("VmRSS:")) rssKb = line.mid(6).trimmed().split(' ').front().toLong();
  }
  return rssKb;
}

void StartupStage(const char* name) {
  timespec ts{}, cpu{};
  clock_gettime(CLOCK_REALTIME, &ts);
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &cpu);
  const long kb = ResidentKb();
  // Marks come from the card worker too.
  const std::lock_guard lock(stagesMutex);
  Stages() +=
      QStringLiteral("%1:%2/%3/%4,")
          .arg(QLatin1String(name))
          .arg(static_cast<double>(ts.tv_sec % 1000) * 1000.0 + static_cast<double>(ts.tv_nsec) / 1e6, 0, 'f', 1)
          .arg(static_cast<double>(cpu.tv_sec) * 1000.0 + static_cast<double>(cpu.tv_nsec) / 1e6, 0, 'f', 1)
          .arg(kb);
}

QString StartupStages() {
  const std::lock_guard lock(stagesMutex);
  return Stages();
}
