// The reference of scripts/measure-startup: a bare Qt window of the game's size, reporting
// its first painted frame and resident memory the way the game does, and with
// TALVERO_FIRST_FRAME_REPORT=settled its resident memory three seconds later.
#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "services/startup_stages.h"

namespace {
class BareWindow : public QWidget {
 protected:
  void paintEvent(QPaintEvent*) override {
    if (painted_) return;
    painted_ = true;
    QTimer::singleShot(0, [] {
      timespec ts{};
      clock_gettime(CLOCK_REALTIME, &ts);
      std::printf("first-frame-ns=%lld rss-kb=%ld\n", static_cast<long long>(ts.tv_sec) * 1000000000LL + ts.tv_nsec,
                  ResidentKb());
      std::fflush(stdout);
      if (qEnvironmentVariable("TALVERO_FIRST_FRAME_REPORT") != QLatin1String("settled")) std::_Exit(0);
      QTimer::singleShot(3000, [] {
        std::printf("settled-rss-kb=%ld\n", ResidentKb());
        std::fflush(stdout);
        std::_Exit(0);
      });
    });
  }

 private:
  bool painted_ = false;
};
}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  BareWindow window;
  window.setFixedSize(1024, 768);
  window.show();
  return QApplication::exec();
}
