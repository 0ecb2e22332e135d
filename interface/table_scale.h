// The table's size on screen. The table is always 1024 x 768 logical pixels (15360 x 11520
// twips): every position the game reads or writes is logical. On screen it is shown at a scale
// s, the same across and down, from 1 to 4: at start the largest that fits the screen, or the
// one asked for, then whatever fits the window as the player resizes it, centred on black.
#pragma once

#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>

namespace table {

inline constexpr QSize kLogicalSize(1024, 768);
inline constexpr double kMinScale = 1;
inline constexpr double kMaxScale = 4;
// A resize waits this long without another before its pictures are drawn again; then the
// form looks for them every kRenderPollMs.
inline constexpr int kRenderDelayMs = 120;
inline constexpr int kRenderPollMs = 15;

// The largest scale at which the table fits `area`, never below 1.
double FitScale(QSize area);
// A scale written as a number from 1 to 4, fractions allowed ("1.5"); nothing otherwise.
std::optional<double> ParseScale(const QString& text);
// The scale asked for by `--scale S` among the arguments, or else by TALVERO_SCALE; 0 when
// none is. A value that is not a scale is said on the standard error and ignored.
double RequestedScale(const QStringList& arguments);
// The table's size in pixels at scale `s`, rounded.
QSize TableSize(double s);
// The table's rectangle in a window of `window` pixels at scale `s`: centred, its edges
// rounded.
QRect TableRect(QSize window, double s);
// The scale as talvero-drive prints it: up to four decimals, no trailing zeros ("2", "1.5").
QString ScaleText(double s);

}  // namespace table
