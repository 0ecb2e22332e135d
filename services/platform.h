// The platform seam: every call that leaves the program goes through here.
//
// The game runs on RealPlatform. Tests, benchmarks and talvero-drive run on ScriptedPlatform
// (tools/scripted_platform.h), which is not part of the game.
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>
#include <random>
#include <vector>

#include "services/display_mode.h"

// The seam itself. Terms: a yield (DoEvents) lets pending clicks, keys, timers and paints run
// inside the routine that yields, as the game's loops expect; the random draw RandomInt(n)
// is the game's Int(Rnd x n); Timer is the game's clock, seconds since midnight; a record
// file (Ini.dat) holds one byte, read and written as record 1; an MCI command is the text
// of a multimedia command ("open", "play", "status sequence position"...), answered in text.
// Cache: the real platform makes its MIDI player at the first MCI command, and the network
// library is loaded when first needed (services/network.h); nothing else is kept.
// Threads: the form calls Sys() on the GUI thread only; Sleep blocks that thread, and a
// yield runs the GUI's own events there. The worker that opens the sound device stays
// behind SendMciCommand (services/music.*).
class Platform {
 public:
  virtual ~Platform() = default;

  // Yield to the event loop: pending events (clicks, keys, paints) run now.
  virtual void DoEvents() = 0;
  virtual void Sleep(int ms) = 0;

  // Seconds since midnight, with fractions, as the game's clock.
  virtual double Timer() = 0;
  // Seeds the random generator from a number (the game passes the clock).
  virtual void Randomize(double seed) = 0;
  // Int(Rnd x n): a whole number in 0..n-1.
  virtual int RandomInt(int n) = 0;

  // Files. Paths are absolute or relative to the current directory.
  virtual bool DeleteFile(const QString& path) = 0;
  virtual bool ChangeDirectory(const QString& path) = 0;
  // Opens the file of records (creating it empty when missing) and reads record 1.
  // Returns false when the file cannot be opened; `byte` is empty when there is none.
  virtual bool ReadRecordByte(const QString& path, std::optional<std::uint8_t>& byte) = 0;
  // Opens the file of records and writes record 1. False when it cannot be written.
  virtual bool WriteRecordByte(const QString& path, std::uint8_t byte) = 0;

  // The multimedia command interface (MIDI playback by command text).
  virtual QString SendMciCommand(const QString& command) = 0;

  // Display mode.
  virtual DisplayMode CurrentDisplayMode() = 0;
  virtual std::vector<DisplayMode> DisplayModes() = 0;
  // A change for this run only. False when the display has no such mode or refuses.
  virtual bool ChangeDisplayMode(const DisplayMode& mode) = 0;

  // Whether the machine has a connection to the internet (unknown counts as connected).
  virtual bool Connected() = 0;
};

class MidiPlayer;

// The real machine: Qt's event loop, the system clock, the file system, FluidSynth, XRandR.
class RealPlatform : public Platform {
 public:
  RealPlatform();
  ~RealPlatform() override;
  void DoEvents() override;
  void Sleep(int ms) override;
  double Timer() override;
  void Randomize(double seed) override;
  int RandomInt(int n) override;
  bool DeleteFile(const QString& path) override;
  bool ChangeDirectory(const QString& path) override;
  bool ReadRecordByte(const QString& path, std::optional<std::uint8_t>& byte) override;
  bool WriteRecordByte(const QString& path, std::uint8_t byte) override;
  QString SendMciCommand(const QString& command) override;
  DisplayMode CurrentDisplayMode() override;
  std::vector<DisplayMode> DisplayModes() override;
  bool ChangeDisplayMode(const DisplayMode& mode) override;
  bool Connected() override;

 private:
  std::mt19937 rng_;
  std::unique_ptr<MidiPlayer> midi_;  // made at the first multimedia command
};

// The platform in force for the whole program.
Platform& Sys();
void SetPlatform(Platform* platform);
