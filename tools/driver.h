// talvero-drive's command interpreter: runs the real form offscreen on the scripted
// platform and answers one command a line.
#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <random>

#include "tools/scripted_platform.h"

class Control;
class JeuPoker;
class QWidget;

// The scripted platform of talvero-drive. Once seeded (the `seed` command), the draws that the
// queue does not give come from a generator of that seed, so a command file replays exactly;
// unseeded it draws as the scripted platform does.
class SeededPlatform : public ScriptedPlatform {
 public:
  void Seed(std::uint32_t seed);

 protected:
  int UnqueuedDraw(int n) override;

 private:
  bool seeded_ = false;
  std::mt19937 generator_;
};

class Driver {
 public:
  // `out` receives every line the tool prints (without the newline).
  Driver(JeuPoker& form, ScriptedPlatform& platform, std::function<void(const QString&)> out);
  // Runs one command line.
  void Execute(const QString& line);
  // Relative file names of `shot` are taken from this directory (where the tool started).
  QString startDirectory;

 private:
  QWidget* Reached(Control* c) const;
  void Click(const QString& target);
  void Move(const QString& target);
  void Key(const QString& code);
  void Get(const QString& target);
  void Var(const QString& target, bool set, const QString& value);
  void File(const QString& name);
  void Error(const QString& reason);
  void FlushDrawErrors();

  JeuPoker& form_;
  ScriptedPlatform& platform_;
  std::function<void(const QString&)> out_;
  std::size_t mciShown_ = 0;
  // Commands waiting for a yield run only if no `unyield` came since they were given.
  unsigned yieldGeneration_ = 0;
};
