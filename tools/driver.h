// talvero-drive's command interpreter: runs the real form offscreen on the scripted
// platform and answers one command a line.
#pragma once

#include <QString>
#include <cstddef>
#include <functional>

class Control;
class JeuPoker;
class QWidget;
class ScriptedPlatform;

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
};
