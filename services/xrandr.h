// The display mode on X11, through the RandR extension. Kept apart because the X headers
// define macros that clash with Qt's and ours.
#pragma once

#include <vector>

#include "services/display_mode.h"

namespace xrandr {

// True when the game runs on an X server that has RandR.
bool Available();
bool Current(DisplayMode& mode);
std::vector<DisplayMode> Modes();
// Sets the screen size of `mode` (and its rate when the server has it). False when the
// server has no such size or refuses.
bool Change(const DisplayMode& mode);

}  // namespace xrandr
