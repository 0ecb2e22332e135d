// The scripted machine of tests, benchmarks and talvero-drive: it queues random draws,
// returns from Sleep at once while adding up what was asked, can run an action at the n-th
// yield, and reports a 1024x768 display and a live connection. The game itself never links it.
#pragma once

#include <QString>
#include <deque>
#include <functional>
#include <map>
#include <vector>

#include "services/platform.h"

// Files are real (in the directory the test gives); time, randomness, sound, display and
// network are scripted.
class ScriptedPlatform : public RealPlatform {
 public:
  void DoEvents() override;
  void Sleep(int ms) override;
  double Timer() override { return clock; }
  void Randomize(double seed) override;
  // The next queued draw, or UnqueuedDraw(n) once the queue is empty.
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

 protected:
  // A draw the queue does not give: at random, as the real machine draws.
  virtual int UnqueuedDraw(int n) { return RealPlatform::RandomInt(n); }

 private:
  std::multimap<long long, std::function<void()>> yieldActions_;
};
