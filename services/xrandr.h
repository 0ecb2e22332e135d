// The display mode on X11, through the RandR extension. Kept apart because the X headers
// define macros that clash with Qt's and ours.
#pragma once

#include <vector>

namespace xrandr {

struct Mode {
  int width = 0;
  int height = 0;
  int bitsPerPixel = 0;
  int frequency = 0;
};

// True when the game runs on an X server that has RandR.
bool Available();
bool Current(Mode& mode);
std::vector<Mode> Modes();
// Sets the screen size of `mode` (and its rate when the server has it). False when the
// server has no such size or refuses.
bool Change(const Mode& mode);

}  // namespace xrandr
