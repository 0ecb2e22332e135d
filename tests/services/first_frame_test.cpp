// Work that waits for the window's first frame (the sound device, the card faces): the
// form's first paint lets it go on, and a program that never paints holds it only briefly.
#include "services/first_frame.h"

#include <gtest/gtest.h>

#include <QTest>
#include <chrono>
#include <future>

#include "tests/support/harness.h"

using namespace std::chrono_literals;

TEST(FirstFrame, WithoutAFrameAWaitEndsAtItsLimit) {
  // Each test runs in a process of its own under ctest; run with others, a form may already
  // have painted.
  if (WaitForFirstFrame(0ms)) GTEST_SKIP() << "a form of this process has already painted";
  EXPECT_FALSE(WaitForFirstFrame(30ms));
}

TEST(FirstFrame, TheFormsFirstPaintLetsTheWaitingWorkGoOn) {
  auto waiting = std::async(std::launch::async, [] { return WaitForFirstFrame(60s); });
  Harness h;  // starts the game, which shows the form
  EXPECT_TRUE(QTest::qWaitFor([&] { return waiting.wait_for(0ms) == std::future_status::ready; }, 10000));
  EXPECT_TRUE(waiting.get());
  EXPECT_TRUE(WaitForFirstFrame(0ms));
}

TEST(FirstFrame, LaterFramesAndLaterCallsChangeNothing) {
  FirstFrameShown();
  FirstFrameShown();
  EXPECT_TRUE(WaitForFirstFrame(0ms));
  auto late = std::async(std::launch::async, [] { return WaitForFirstFrame(60s); });
  EXPECT_EQ(late.wait_for(10s), std::future_status::ready);
  EXPECT_TRUE(late.get());
}
