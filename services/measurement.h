// Measuring the game from outside its routines: the time BuildPictures takes (read by the
// benchmarks) and the automatic-play report of scripts/measure-autoplay. The start-up marks
// and the first-frame report are in services/startup_stages.h. All of it runs on the GUI
// thread.
#pragma once

#include <QElapsedTimer>

class JeuPoker;

// How long the last BuildPictures took, in seconds of the clock and of the thread's
// processor time.
struct BuildTime {
  double wall = 0;
  double cpu = 0;
};
BuildTime LastPicturesBuildTime();

// Times the scope it is made in and records it as the last BuildPictures' time at its end.
class PicturesBuildTimer {
 public:
  PicturesBuildTimer();
  ~PicturesBuildTimer();
  PicturesBuildTimer(const PicturesBuildTimer&) = delete;
  PicturesBuildTimer& operator=(const PicturesBuildTimer&) = delete;

 private:
  QElapsedTimer clock_;
  double cpuStart_ = 0;
};

// With TALVERO_AUTOPLAY_REPORT=SECONDS, clicks AUTO once the form is shown, counts the
// drawings of the automatic mode for that many seconds, prints them and ends the program.
// Without the variable it does nothing.
void ReportAutoPlay(JeuPoker& form);
