#include "services/platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QThread>
#include <QTime>

#include "services/music.h"
#include "services/network.h"
#include "services/xrandr.h"

namespace {
Platform* current = nullptr;
}

Platform& Sys() {
  if (!current) {
    static RealPlatform fallback;
    current = &fallback;
  }
  return *current;
}

void SetPlatform(Platform* platform) { current = platform; }

RealPlatform::RealPlatform() : rng_(std::random_device{}()) {}
RealPlatform::~RealPlatform() = default;

void RealPlatform::DoEvents() { QCoreApplication::processEvents(QEventLoop::AllEvents); }

void RealPlatform::Sleep(int ms) {
  if (ms > 0) QThread::msleep(static_cast<unsigned long>(ms));
}

double RealPlatform::Timer() { return QTime::currentTime().msecsSinceStartOfDay() / 1000.0; }

void RealPlatform::Randomize(double seed) {
  // The seed is mixed into the running state, so two seedings within the same clock tick
  // still give different numbers.
  std::seed_seq seq{static_cast<unsigned>(rng_()), static_cast<unsigned>(seed * 1000.0)};
  rng_.seed(seq);
}

int RealPlatform::RandomInt(int n) {
  if (n <= 0) return 0;
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  const int v = static_cast<int>(unit(rng_) * n);
  return v < n ? v : n - 1;
}

bool RealPlatform::DeleteFile(const QString& path) {
  QFileInfo info(path);
  if (!info.exists() || info.isDir()) return false;
  return QFile::remove(path);
}

bool RealPlatform::ChangeDirectory(const QString& path) { return QDir::setCurrent(path); }

bool RealPlatform::ReadRecordByte(const QString& path, std::optional<std::uint8_t>& byte) {
  byte.reset();
  QFile f(path);
  // A file of records is opened for reading and writing; a missing one is created empty.
  if (!f.open(QIODevice::ReadWrite)) {
    if (!f.open(QIODevice::ReadOnly)) return false;
  }
  char c = 0;
  if (f.read(&c, 1) == 1) byte = static_cast<std::uint8_t>(c);
  return true;
}

bool RealPlatform::WriteRecordByte(const QString& path, std::uint8_t byte) {
  QFile f(path);
  if (!f.open(QIODevice::ReadWrite)) return false;
  const char c = static_cast<char>(byte);
  if (!f.seek(0) || f.write(&c, 1) != 1) return false;
  return f.flush();
}

QString RealPlatform::SendMciCommand(const QString& command) {
  if (!midi_) midi_ = std::make_unique<MidiPlayer>();
  return midi_->Send(command);
}

DisplayMode RealPlatform::CurrentDisplayMode() {
  DisplayMode m;
  if (xrandr::Current(m)) return m;
  // Without RandR, what Qt knows of the screen (32 bits at 60 Hz until it says more).
  m = {0, 0, 32, 60};
  if (auto* s = QGuiApplication::primaryScreen()) {
    m.width = s->size().width();
    m.height = s->size().height();
    m.bitsPerPixel = s->depth();
    m.frequency = static_cast<int>(s->refreshRate());
  }
  return m;
}

std::vector<DisplayMode> RealPlatform::DisplayModes() {
  std::vector<DisplayMode> out = xrandr::Modes();
  if (out.empty()) out.push_back(CurrentDisplayMode());
  return out;
}

bool RealPlatform::ChangeDisplayMode(const DisplayMode& mode) {
  // Without RandR (Wayland, a server without the extension) the mode stays as it is.
  return xrandr::Change(mode);
}

bool RealPlatform::Connected() {
  NetworkAccess* network = Network();
  return network == nullptr || network->Connected();
}
