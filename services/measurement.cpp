#include "services/measurement.h"

#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "interface/JeuPoker.h"
#include "services/platform.h"
#include "services/startup_stages.h"

namespace {
BuildTime lastPicturesBuildTime;
}  // namespace

BuildTime LastPicturesBuildTime() { return lastPicturesBuildTime; }

PicturesBuildTimer::PicturesBuildTimer() : cpuStart_(ThreadCpuSeconds()) { clock_.start(); }

PicturesBuildTimer::~PicturesBuildTimer() {
  lastPicturesBuildTime = {static_cast<double>(clock_.nsecsElapsed()) / 1e9, ThreadCpuSeconds() - cpuStart_};
}

void ReportAutoPlay(JeuPoker& form) {
  if (!qEnvironmentVariableIsSet("TALVERO_AUTOPLAY_REPORT")) return;
  const double seconds = qEnvironmentVariable("TALVERO_AUTOPLAY_REPORT").toDouble();
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
