// The reference of scripts/measure-startup: a bare Qt window of the game's size (at the
// table's scale, --scale S), reporting
// its first painted frame and resident memory the way the game does, and with
// TALVERO_FIRST_FRAME_REPORT=settled its resident memory three seconds later.
#include <QApplication>
#include <QWidget>

#include "services/startup_stages.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  const qsizetype at = QCoreApplication::arguments().indexOf(QStringLiteral("--scale"));
  const double scale =
      at > 0 && at + 1 < QCoreApplication::arguments().size() ? QCoreApplication::arguments()[at + 1].toDouble() : 1.0;
  QWidget window;
  window.setFixedSize(qRound(1024 * scale), qRound(768 * scale));
  ReportFirstFrame(window);
  window.show();
  return QApplication::exec();
}
