// The real form, offscreen, on the scripted platform, in a fresh program directory.
#pragma once

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <memory>

#include "interface/JeuPoker.h"
#include "tools/driver.h"
#include "tools/scripted_platform.h"

// One QApplication for the whole test binary.
QApplication& TestApp();

struct Harness {
  // Starts the game (Form_Load) unless `load` is false.
  explicit Harness(bool load = true);
  ~Harness();

  // Runs talvero-drive commands in process and returns what they printed, one line each.
  QStringList Drive(const QStringList& commands);
  QString Drive1(const QString& command);  // one command, its one line of output

  QTemporaryDir dir;
  ScriptedPlatform platform;
  std::unique_ptr<JeuPoker> form;
  bool ended = false;
  QStringList output;
  std::unique_ptr<Driver> driver;
};
