#include "services/startup_stages.h"

#include <QEvent>
#include <QFile>
#include <QObject>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
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

double ThreadCpuSeconds() {
  timespec cpu{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &cpu);
  return static_cast<double>(cpu.tv_sec) + static_cast<double>(cpu.tv_nsec) / 1e9;
}

void StartupStage(const char* name) {
  timespec ts{};
  clock_gettime(CLOCK_REALTIME, &ts);
  const double cpuMs = ThreadCpuSeconds() * 1000.0;
  const long kb = ResidentKb();
  // Marks come from the card worker too.
  const std::lock_guard lock(stagesMutex);
  Stages() +=
      QStringLiteral("%1:%2/%3/%4,")
          .arg(QLatin1String(name))
          .arg(static_cast<double>(ts.tv_sec % 1000) * 1000.0 + static_cast<double>(ts.tv_nsec) / 1e6, 0, 'f', 1)
          .arg(cpuMs, 0, 'f', 1)
          .arg(kb);
}

QString StartupStages() {
  const std::lock_guard lock(stagesMutex);
  return Stages();
}

namespace {
// " stages-ms=..." when marks were made, for the end of a report line.
QByteArray StagesField() {
  const QString stages = StartupStages();
  return stages.isEmpty() ? QByteArray() : " stages-ms=" + stages.toLatin1();
}

// Watches the window for its first paint and reports once it is out.
class FirstFrameReport : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && !done_) {
      done_ = true;
      // Report once the paint has finished and the frame has been flushed.
      QTimer::singleShot(0, [] {
        timespec ts{};
        clock_gettime(CLOCK_REALTIME, &ts);
        const long rssKb = ResidentKb();
        std::printf("first-frame-ns=%lld rss-kb=%ld%s\n", static_cast<long long>(ts.tv_sec) * 1000000000LL + ts.tv_nsec,
                    rssKb, StagesField().constData());
        std::fflush(stdout);
        if (qEnvironmentVariable("TALVERO_FIRST_FRAME_REPORT") != QLatin1String("settled")) std::_Exit(0);
        QTimer::singleShot(kSettleMs, [] {
          std::printf("settled-rss-kb=%ld%s\n", ResidentKb(), StagesField().constData());
          std::fflush(stdout);
          std::_Exit(0);
        });
      });
    }
    return QObject::eventFilter(watched, event);
  }

  // Long enough for the card faces and the sound device, which follow the first frame.
  static constexpr int kSettleMs = 3000;

 private:
  bool done_ = false;
};
}  // namespace

void ReportFirstFrame(QObject& window) {
  if (qEnvironmentVariableIsSet("TALVERO_FIRST_FRAME_REPORT")) window.installEventFilter(new FirstFrameReport(&window));
}
