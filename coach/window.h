// The coach's window. It lives in a library of the game's own (with Qt Charts, which draws the
// session's chart), loaded the first time the coach opens, so that the game's start never pays
// for it. The window only reads the record it is given; Refresh asks it to catch up later, in
// the event loop, so that a hold click does not wait for the window's painting.
#pragma once

#include <QRect>

class QWidget;

namespace coach {
struct Record;
}

class CoachWindow {
 public:
  virtual ~CoachWindow() = default;
  virtual void Refresh() = 0;
  virtual void SetShown(bool shown) = 0;
  virtual bool Shown() const = 0;
  // Puts the window beside `table`, the game's window in global coordinates.
  virtual void PlaceBeside(const QRect& table) = 0;
  virtual QWidget* Widget() = 0;
  // The table's scale: the window's text, rows and pictures are that many times larger.
  virtual void SetScale(double s) = 0;
};

// The library's file name and the function it exports to make the window.
inline constexpr char kCoachLibrary[] = "libtalvero-coach.so";
inline constexpr char kCoachEntry[] = "TalveroCoachWindow";
using CoachWindowEntry = CoachWindow* (*)(const coach::Record*);

// Loads the library at the first call (in ../lib/games/talvero from the executable when
// installed, then beside it and in its parent) and makes a window over `record`. Null when the
// library cannot be loaded; that is said once on the standard error.
CoachWindow* MakeCoachWindow(const coach::Record* record);
