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
#include "services/program_dir.h"
#include "services/startup_stages.h"

namespace {
// With TALVERO_FIRST_FRAME_REPORT set, the game prints the wall-clock time of its first
// painted frame and its resident memory, then ends (used by scripts/measure-startup). Set to
// "settled", it also waits until the work that follows the first frame is done and prints
// the resident memory then.
class FirstFrameReport : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && !done_) {
      done_ = true;
      // Report once the paint has finished and the frame has been flushed.
      QTimer::singleShot(0, [] {
        timespec ts{};
        clock_gettime(CLOCK_REALTIME, &ts);
        const long rssKb = ResidentKb();
        std::printf("first-frame-ns=%lld rss-kb=%ld stages-ms=%s\n",
                    static_cast<long long>(ts.tv_sec) * 1000000000LL + ts.tv_nsec, rssKb,
                    StartupStages().toLatin1().constData());
        std::fflush(stdout);
        if (qEnvironmentVariable("TALVERO_FIRST_FRAME_REPORT") != QLatin1String("settled")) std::_Exit(0);
        QTimer::singleShot(kSettleMs, [] {
          std::printf("settled-rss-kb=%ld stages-ms=%s\n", ResidentKb(), StartupStages().toLatin1().constData());
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
  StartupStage("main");
  QApplication app(argc, argv);
  StartupStage("app");
  QApplication::setApplicationName(QStringLiteral("TALVERO"));
  RealPlatform platform;
  SetPlatform(&platform);
  // Installed, the data is read where it was installed and Ini.dat is the player's own.
  const ProgramDirectories dirs = LocateProgramDirectories(QCoreApplication::applicationDirPath());
  if (!dirs.problem.isEmpty()) std::fprintf(stderr, "talvero: %s\n", qPrintable(dirs.problem));
  JeuPoker form(dirs.program, dirs.data);
  StartupStage("form");
  FirstFrameReport report;
  if (qEnvironmentVariableIsSet("TALVERO_FIRST_FRAME_REPORT")) form.installEventFilter(&report);
  // The end of the program is immediate: no save, no confirmation.
  form.EndProgram = [] { std::_Exit(0); };
  form.Form_Load();
  StartupStage("load");
  if (QCoreApplication::arguments().contains(QStringLiteral("--coach"))) form.OuvreCoach(true);
  if (qEnvironmentVariableIsSet("TALVERO_AUTOPLAY_REPORT"))
    AutoPlayReport(form, qEnvironmentVariable("TALVERO_AUTOPLAY_REPORT").toDouble());
  return QApplication::exec();
}
