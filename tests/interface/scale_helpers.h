// Helpers of the tests of the table's scale: an X server of a test's own (Xvfb) with a screen
// of a given size, talvero-drive run on it, the rectangles talvero-drive prints, and a measure
// of how sharp a region of a shot is.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QHash>
#include <QImage>
#include <QProcess>
#include <QRect>
#include <QRegularExpression>
#include <QSize>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "tests/support/helpers.h"

namespace scale {

inline const QString kNoSessionBus = QStringLiteral("unix:path=/nonexistent/talvero-no-session-bus");

// Xvfb with one screen of `size`, started on a free display; stopped when this goes.
class VirtualScreen {
 public:
  explicit VirtualScreen(QSize size) {
    server_.setProgram(QStringLiteral("Xvfb"));
    // -displayfd 1: the server picks a free display and writes its number on its output once
    // it accepts clients.
    server_.setArguments({QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                          QStringLiteral("0"), QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height()),
                          QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    server_.start();
    if (!server_.waitForStarted(10000)) return;
    QByteArray out;
    while (!out.contains('\n') && server_.waitForReadyRead(10000)) out += server_.readAllStandardOutput();
    if (out.contains('\n')) display_ = QStringLiteral(":") + QString::fromLatin1(out.trimmed());
  }
  ~VirtualScreen() {
    server_.terminate();
    server_.waitForFinished(5000);
  }
  VirtualScreen(const VirtualScreen&) = delete;
  VirtualScreen& operator=(const VirtualScreen&) = delete;

  bool Ok() const { return !display_.isEmpty(); }
  // talvero-drive in a real window on this screen.
  ToolRun Drive(const QStringList& commands, QStringList args = {}) const {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("DISPLAY"), display_);
    env.remove(QStringLiteral("QT_SCALE_FACTOR"));
    // A bus that is not there: without an address, Qt's accessibility bridge has libdbus fork a
    // child to start a session bus, and a child forked from a program under the sanitizers
    // can hang on a lock another thread held, keeping the program waiting.
    env.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), kNoSessionBus);
    args << QStringLiteral("--platform") << QStringLiteral("xcb");
    return RunTool(commands, args, env);
  }

 private:
  QProcess server_;
  QString display_;
};

// The lines "rect NAME=x,y,w,h" of the `rects` command, by name.
inline QHash<QString, QRect> Rects(const QStringList& lines) {
  static const QRegularExpression re(QStringLiteral(R"(^rect (\S+)=(-?\d+),(-?\d+),(\d+),(\d+)$)"));
  QHash<QString, QRect> out;
  for (const QString& line : lines) {
    const auto m = re.match(line);
    if (m.hasMatch())
      out.insert(m.captured(1),
                 QRect(m.captured(2).toInt(), m.captured(3).toInt(), m.captured(4).toInt(), m.captured(5).toInt()));
  }
  return out;
}

// The value after "KEY=" in the first line that starts with it.
inline QString Value(const QStringList& lines, const QString& key) {
  for (const QString& line : lines)
    if (line.startsWith(key + '=')) return line.mid(key.size() + 1);
  return QString();
}

// How sharp the region is: the 99th percentile of the magnitude of the brightness gradient
// (central differences), over the region's pixels. A sharp edge steps within about one pixel
// at any scale; an enlarged bitmap spreads it and about halves the figure.
inline double Sharpness(const QImage& shot, const QRect& region) {
  const QImage img = shot.convertToFormat(QImage::Format_RGB32);
  const QRect r = region.intersected(img.rect().adjusted(1, 1, -1, -1));
  auto lum = [&](int x, int y) {
    const QRgb c = img.pixel(x, y);
    return 0.299 * qRed(c) + 0.587 * qGreen(c) + 0.114 * qBlue(c);
  };
  std::vector<double> g;
  g.reserve(static_cast<std::size_t>(std::max(0, r.width() * r.height())));
  for (int y = r.top(); y <= r.bottom(); ++y)
    for (int x = r.left(); x <= r.right(); ++x) {
      const double gx = (lum(x + 1, y) - lum(x - 1, y)) / 2, gy = (lum(x, y + 1) - lum(x, y - 1)) / 2;
      g.push_back(std::hypot(gx, gy));
    }
  if (g.empty()) return 0;
  const auto at = g.begin() + static_cast<std::ptrdiff_t>(0.99 * static_cast<double>(g.size() - 1));
  std::nth_element(g.begin(), at, g.end());
  return *at;
}

}  // namespace scale
