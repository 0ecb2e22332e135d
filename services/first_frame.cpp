#include "services/first_frame.h"

#include <condition_variable>
#include <mutex>

namespace {
std::mutex frameMutex;
std::condition_variable frameShown;
bool shown = false;
}  // namespace

void FirstFrameShown() {
  const std::lock_guard lock(frameMutex);
  shown = true;
  frameShown.notify_all();
}

bool WaitForFirstFrame(std::chrono::milliseconds limit) {
  std::unique_lock lock(frameMutex);
  return frameShown.wait_for(lock, limit, [] { return shown; });
}
