#include "bench/bench_form.h"

#include <QTemporaryDir>
#include <memory>

#include "interface/controls.h"

ScriptedPlatform& BenchPlatform() {
  static ScriptedPlatform platform;
  return platform;
}

namespace {
std::unique_ptr<QTemporaryDir> dir;
std::unique_ptr<JeuPoker> form;
}  // namespace

JeuPoker& BenchForm() {
  if (!form) {
    TimerControl::SetAutomatic(false);
    dir = std::make_unique<QTemporaryDir>();
    SetPlatform(&BenchPlatform());
    form = std::make_unique<JeuPoker>(dir->path());
  }
  return *form;
}

void ReleaseBenchForm() {
  form.reset();
  dir.reset();
  SetPlatform(nullptr);
}
