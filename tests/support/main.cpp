// The test binary's entry point.
#include <gtest/gtest.h>

#include "interface/card_faces.h"

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // Death tests re-run the binary for their one test instead of forking this process: a fork
  // would inherit Qt's worker threads (painting, picture rendering) without their threads.
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const int status = RUN_ALL_TESTS();
  pics::CardFaces::StopAll();
  return status;
}
