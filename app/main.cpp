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
  return QApplication::exec();
}
