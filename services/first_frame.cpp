#include "services/first_frame.h"

#include <condition_variable>
#include <mutex>

namespace {
struct Gate {
  std::mutex mutex;
  std::condition_variable shown;
  bool open = false;
};
// Never destroyed: a worker may still be waiting when a program ends through exit().
Gate& TheGate() {
  static Gate* const gate = new Gate;
  return *gate;
}
}  // namespace

void FirstFrameShown() {
  Gate& gate = TheGate();
  const std::lock_guard lock(gate.mutex);
  gate.open = true;
  gate.shown.notify_all();
}

bool WaitForFirstFrame(std::chrono::milliseconds limit) {
  Gate& gate = TheGate();
  std::unique_lock lock(gate.mutex);
  return gate.shown.wait_for(lock, limit, [&] { return gate.open; });
}
