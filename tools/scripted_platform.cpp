#include "tools/scripted_platform.h"

#include <QCoreApplication>

void ScriptedPlatform::DoEvents() {
  ++yields;
  if (processQtEvents) QCoreApplication::processEvents(QEventLoop::AllEvents);
  if (onYield) onYield();
  auto range = yieldActions_.equal_range(yields);
  std::vector<std::function<void()>> due;
  for (auto it = range.first; it != range.second; ++it) due.push_back(it->second);
  yieldActions_.erase(range.first, range.second);
  for (auto& action : due) action();
}

void ScriptedPlatform::Sleep(int ms) {
  if (ms > 0) sleptMs += ms;
}

void ScriptedPlatform::Randomize(double seed) {
  seeds.push_back(seed);
  RealPlatform::Randomize(seed);
}

int ScriptedPlatform::RandomInt(int n) {
  if (!queuedDraws.empty()) {
    const int v = queuedDraws.front();
    queuedDraws.pop_front();
    if (v >= 0 && v < n) return v;
    drawErrors.push_back(QStringLiteral("draw %1 is not below %2; drawn at random").arg(v).arg(n));
  }
  return UnqueuedDraw(n);
}

QString ScriptedPlatform::SendMciCommand(const QString& command) {
  mciCommands.push_back(command);
  for (const auto& [prefix, answer] : mciAnswers)
    if (command.startsWith(prefix)) return answer;
  return {};
}

bool ScriptedPlatform::ChangeDisplayMode(const DisplayMode& mode) {
  displayChanges.push_back(mode);
  for (const auto& m : modes)
    if (m.width == mode.width && m.height == mode.height) {
      display = mode;
      return true;
    }
  return false;
}

void ScriptedPlatform::QueueDraws(const std::vector<int>& draws) {
  queuedDraws.insert(queuedDraws.end(), draws.begin(), draws.end());
}

void ScriptedPlatform::AtYield(int n, std::function<void()> action) {
  yieldActions_.emplace(yields + n, std::move(action));
}
