// The display mode on X11 with RandR's screen configurations: one size and rate for the
// whole screen, which is what the game's mode change means.
#include "services/xrandr.h"

#include <QGuiApplication>

#ifdef TALVERO_HAVE_XRANDR
#include <X11/Xlib.h>
#include <X11/extensions/Xrandr.h>
#endif

namespace xrandr {

#ifdef TALVERO_HAVE_XRANDR
namespace {
// The X connection, opened once, or null without X11 or without RandR.
Display* Connection() {
  static Display* display = []() -> Display* {
    if (QGuiApplication::platformName() != QLatin1String("xcb")) return nullptr;
    Display* d = XOpenDisplay(nullptr);
    if (!d) return nullptr;
    int event = 0, error = 0;
    if (!XRRQueryExtension(d, &event, &error)) {
      XCloseDisplay(d);
      return nullptr;
    }
    return d;
  }();
  return display;
}

struct Configuration {
  explicit Configuration(Display* d) : display(d), root(DefaultRootWindow(d)), info(XRRGetScreenInfo(d, root)) {}
  ~Configuration() {
    if (info) XRRFreeScreenConfigInfo(info);
  }
  Configuration(const Configuration&) = delete;
  Configuration& operator=(const Configuration&) = delete;
  Display* display;
  Window root;
  XRRScreenConfiguration* info;
};
}  // namespace

bool Available() { return Connection() != nullptr; }

bool Current(DisplayMode& mode) {
  Display* d = Connection();
  if (!d) return false;
  Configuration c(d);
  if (!c.info) return false;
  Rotation rotation = 0;
  const SizeID id = XRRConfigCurrentConfiguration(c.info, &rotation);
  int count = 0;
  XRRScreenSize* sizes = XRRConfigSizes(c.info, &count);
  if (!sizes || id >= count) return false;
  mode.width = sizes[id].width;
  mode.height = sizes[id].height;
  mode.bitsPerPixel = DefaultDepth(d, DefaultScreen(d));
  mode.frequency = XRRConfigCurrentRate(c.info);
  return true;
}

std::vector<DisplayMode> Modes() {
  std::vector<DisplayMode> out;
  Display* d = Connection();
  if (!d) return out;
  Configuration c(d);
  if (!c.info) return out;
  int count = 0;
  XRRScreenSize* sizes = XRRConfigSizes(c.info, &count);
  const int depth = DefaultDepth(d, DefaultScreen(d));
  for (int i = 0; i < count; ++i) {
    int rates = 0;
    short* rate = XRRConfigRates(c.info, i, &rates);
    if (rates == 0) out.push_back({sizes[i].width, sizes[i].height, depth, 0});
    for (int r = 0; r < rates; ++r) out.push_back({sizes[i].width, sizes[i].height, depth, rate[r]});
  }
  return out;
}

bool Change(const DisplayMode& mode) {
  Display* d = Connection();
  if (!d) return false;
  Configuration c(d);
  if (!c.info) return false;
  int count = 0;
  XRRScreenSize* sizes = XRRConfigSizes(c.info, &count);
  int id = -1;
  for (int i = 0; i < count; ++i)
    if (sizes[i].width == mode.width && sizes[i].height == mode.height) id = i;
  if (id < 0) return false;
  // The asked rate when the size has it, else the size's first.
  int rates = 0;
  short* rate = XRRConfigRates(c.info, id, &rates);
  short chosen = rates > 0 ? rate[0] : 0;
  for (int r = 0; r < rates; ++r)
    if (rate[r] == mode.frequency) chosen = rate[r];
  Rotation rotation = 0;
  XRRConfigCurrentConfiguration(c.info, &rotation);
  const Status status = chosen > 0 ? XRRSetScreenConfigAndRate(d, c.info, c.root, id, rotation, chosen, CurrentTime)
                                   : XRRSetScreenConfig(d, c.info, c.root, id, rotation, CurrentTime);
  XSync(d, False);
  return status == RRSetConfigSuccess;
}

#else
bool Available() { return false; }
bool Current(DisplayMode&) { return false; }
std::vector<DisplayMode> Modes() { return {}; }
bool Change(const DisplayMode&) { return false; }
#endif

}  // namespace xrandr
