// The reference of scripts/measure-startup: a bare Qt window of the game's size, reporting
// its first painted frame and resident memory the way the game does, and with
// TALVERO_FIRST_FRAME_REPORT=settled its resident memory three seconds later.
#include <QApplication>
#include <QWidget>

#include "services/startup_stages.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QWidget window;
  window.setFixedSize(1024, 768);
  ReportFirstFrame(window);
  window.show();
  return QApplication::exec();
}
