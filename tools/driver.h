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
class QPointF;
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
  // The widget that a player's pointer reaches at the centre of the control `target` names,
  // and that centre in the widget's coordinates; null, with the error printed, when none.
  QWidget* PointerAt(const QString& target, QPointF& centre);
  // The handlers of the commands, each given the rest of its line.
  void Click(const QString& target);
  void Move(const QString& target);
  void Key(const QString& code);
  void Tick(const QString& timer);
  void Draw(const QString& numbers);
  void Get(const QString& target);
  // The table and the coach's window side by side, as PNG.
  void Coach(const QString& what);
  void CoachShot(const QString& file);
  void Var(const QString& target);
  void Set(const QString& targetAndValue);
  void AtYield(const QString& countAndCommand);
  void Unyield(const QString& nothing);
  void Seed(const QString& seed);
  void Slept(const QString& nothing);
  void File(const QString& name);
  void Shot(const QString& name);
  void Close(const QString& nothing);
  void Mci(const QString& nothing);
  void MciAnswer(const QString& keyAndValue);
  void Display(const QString& nothing);
  void Net(const QString& state);
  void Wait(const QString& milliseconds);
  // The table on screen: its scale, the window and the table's place in it, the rectangles
  // of the controls shown, a resize of the window, and the pixels of a control's picture.
  void Scale(const QString& nothing);
  void Window(const QString& nothing);
  void Rects(const QString& nothing);
  void Resize(const QString& widthAndHeight);
  void Pixels(const QString& target);
  void At(const QString& point);
  // Reads a variable, or sets it from `value`.
  void VarOrSet(const QString& target, bool set, const QString& value);
  // Prints the error of a command that refuses its words (see Execute).
  void Refuse(const QString& reason);
  void Error(const QString& reason);
  void FlushDrawErrors();

  JeuPoker& form_;
  ScriptedPlatform& platform_;
  std::function<void(const QString&)> out_;
  std::size_t mciShown_ = 0;
  // Commands waiting for a yield run only if no `unyield` came since they were given.
  unsigned yieldGeneration_ = 0;
  // Set by Refuse during the command being run.
  bool refused_ = false;
};
