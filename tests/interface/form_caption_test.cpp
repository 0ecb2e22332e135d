#include <gtest/gtest.h>

#include "tests/support/harness.h"

TEST(Form, CaptionIsMontalbergues) {
  Harness h;
  EXPECT_EQ(h.form->windowTitle(), "MONTALBERGUES");
}
