// The platform seam: every call that leaves the program goes through here.
//
// The game runs on RealPlatform. Tests and talvero-drive run on ScriptedPlatform, which
// queues random draws, returns from Sleep at once while adding up what was asked, can run
// an action at the n-th yield, and reports a 1024x768 display and a live connection.
#pragma once

#include <QByteArray>
#include <QString>
#include <deque>
#include <functional>
#include <map>
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

// The scripted machine of tests and talvero-drive. Files are real (in the directory the
// test gives); time, randomness, sound, display and network are scripted.
class ScriptedPlatform : public RealPlatform {
 public:
  void DoEvents() override;
  void Sleep(int ms) override;
  double Timer() override { return clock; }
  void Randomize(double seed) override;
  int RandomInt(int n) override;
  QString SendMciCommand(const QString& command) override;
  DisplayMode CurrentDisplayMode() override { return display; }
  std::vector<DisplayMode> DisplayModes() override { return modes; }
  bool ChangeDisplayMode(const DisplayMode& mode) override;
  bool Connected() override { return connected; }
  // A program directory that cannot be written (root ignores file permissions in tests).
  bool WriteRecordByte(const QString& path, std::uint8_t byte) override {
    return !readOnlyFiles && RealPlatform::WriteRecordByte(path, byte);
  }

  // Queues draws: each later RandomInt(n) takes the next one.
  void QueueDraws(const std::vector<int>& draws);
  // Runs `action` at the n-th yield from now (1 = the next one).
  void AtYield(int n, std::function<void()> action);

  std::deque<int> queuedDraws;
  // Draws that were queued but not below n: reported, and drawn at random instead.
  std::vector<QString> drawErrors;
  long long sleptMs = 0;
  long long yields = 0;
  double clock = 43200.0;
  std::vector<double> seeds;
  std::vector<QString> mciCommands;
  // Command prefix -> answer. By default the player has a piece of a minute at 120 beats a
  // minute that has just begun.
  std::map<QString, QString> mciAnswers{{QStringLiteral("status sequence length"), QStringLiteral("60000")},
                                        {QStringLiteral("status sequence position"), QStringLiteral("0")},
                                        {QStringLiteral("status sequence tempo"), QStringLiteral("120")}};
  // Runs at every yield, after the events (talvero-drive reads its commands there while the
  // display question waits at start).
  std::function<void()> onYield;
  DisplayMode display{1024, 768, 32, 60};
  std::vector<DisplayMode> modes{{800, 600, 32, 60}, {1024, 768, 32, 60}};
  std::vector<DisplayMode> displayChanges;
  bool connected = true;
  bool readOnlyFiles = false;
  bool processQtEvents = true;

 private:
  std::multimap<long long, std::function<void()>> yieldActions_;
};

// The platform in force for the whole program.
Platform& Sys();
void SetPlatform(Platform* platform);
