// TALVERO: the game's entry point.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "interface/JeuPoker.h"
#include "services/platform.h"

namespace {
QString& Stages() {
  static QString s;
  return s;
}
// Wall-clock milliseconds since the epoch, for the start-up report's stages.
void Stage(const char* name) {
  timespec ts{};
  clock_gettime(CLOCK_REALTIME, &ts);
  Stages() += QStringLiteral("%1:%2,").arg(name).arg((ts.tv_sec % 1000) * 1000.0 + ts.tv_nsec / 1e6, 0, 'f', 1);
}

// With TALVERO_FIRST_FRAME_REPORT set, the game prints the wall-clock time of its first
// painted frame and its resident memory, then ends (used by scripts/measure-startup).
class FirstFrameReport : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && !done_) {
      done_ = true;
      // Report once the paint has finished and the frame has been flushed.
      QTimer::singleShot(0, [] {
        timespec ts{};
        clock_gettime(CLOCK_REALTIME, &ts);
        long rssKb = 0;
        QFile status(QStringLiteral("/proc/self/status"));
        if (status.open(QIODevice::ReadOnly)) {
          for (const QByteArray& line : status.readAll().split('\n'))
            if (line.startsWith("VmRSS:")) rssKb = line.mid(6).trimmed().split(' ').front().toLong();
        }
        std::printf("first-frame-ns=%lld rss-kb=%ld stages-ms=%s\n",
                    static_cast<long long>(ts.tv_sec) * 1000000000LL + ts.tv_nsec, rssKb,
                    Stages().toLatin1().constData());
        std::fflush(stdout);
        std::_Exit(0);
      });
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  bool done_ = false;
};

// With TALVERO_AUTOPLAY_REPORT=SECONDS the game clicks AUTO once shown, counts the drawings
// of the automatic mode for that many seconds, prints them and ends (scripts/measure-autoplay).
void AutoPlayReport(JeuPoker& form, double seconds) {
  static long count = 0;
  static int last = 0;
  auto* sampler = new QTimer(&form);
  sampler->setInterval(2);
  QObject::connect(sampler, &QTimer::timeout, [&form] {
    // A drawing begins when the count of drawn cards enters 1..5 or 6..10 from elsewhere.
    const int part = (form.NbTirées + 4) / 5;
    if (part != last && part != 0) ++count;
    last = part;
  });
  QTimer::singleShot(500, &form, [&form, sampler, seconds] {
    const double start = Sys().Timer();
    sampler->start();
    QTimer::singleShot(static_cast<int>(seconds * 1000), &form, [start] {
      const double elapsed = Sys().Timer() - start;
      std::printf("drawings=%ld seconds=%.3f per-second=%.3f\n", count, elapsed, count / elapsed);
      std::fflush(stdout);
      std::_Exit(0);
    });
    form.AutoPlay->Click();
  });
}
}  // namespace

int main(int argc, char** argv) {
  Stage("main");
  QApplication app(argc, argv);
  Stage("app");
  QApplication::setApplicationName(QStringLiteral("TALVERO"));
  RealPlatform platform;
  SetPlatform(&platform);
  JeuPoker form(QCoreApplication::applicationDirPath());
  Stage("form");
  FirstFrameReport report;
  if (qEnvironmentVariableIsSet("TALVERO_FIRST_FRAME_REPORT")) form.installEventFilter(&report);
  // The end of the program is immediate: no save, no confirmation.
  form.EndProgram = [] { std::_Exit(0); };
  form.Form_Load();
  Stage("load");
  if (qEnvironmentVariableIsSet("TALVERO_AUTOPLAY_REPORT"))
    AutoPlayReport(form, qEnvironmentVariable("TALVERO_AUTOPLAY_REPORT").toDouble());
  return QApplication::exec();
}
