// The window's first frame comes before work that can wait for it: the form says when its
// first frame is out, and workers that would compete with it (the sound device, the
// synthesizer) wait for that moment.
#pragma once

#include <chrono>

// Called by the form once its first frame has been painted and flushed. Later calls do nothing.
void FirstFrameShown();
// Blocks until the first frame is out, or for `limit` at most (a program that never paints,
// such as a test or talvero-drive, is not held up for long). True when the frame came.
bool WaitForFirstFrame(std::chrono::milliseconds limit);
