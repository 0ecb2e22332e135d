// A display mode: the screen's size, colour depth and refresh rate. The same record serves
// the form (ModeÉcran, what a change asks for), the platform seam (the modes it reports and
// the change it is given) and the RandR code (what the X server has and is set to).
#pragma once

struct DisplayMode {
  int width = 0;
  int height = 0;
  int bitsPerPixel = 0;
  int frequency = 0;
  // Which of the four fields a change sets (0x5C0000: all four); 0 in a mode read from the
  // display.
  unsigned fields = 0;
};
