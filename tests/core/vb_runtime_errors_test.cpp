// Value types and their run-time checks.
#include <gtest/gtest.h>

#include "core/vb.h"

TEST(RuntimeErrors, ByteLeavingItsRangeIsOverflow) {
  EXPECT_EQ(vb::CByte(255), 255);
  EXPECT_EQ(vb::CByte(0), 0);
  EXPECT_EXIT(vb::CByte(256), ::testing::ExitedWithCode(3), "run-time error 6");
  EXPECT_EXIT(vb::CByte(-1), ::testing::ExitedWithCode(3), "run-time error 6");
}

TEST(RuntimeErrors, IntegerAndLongLeavingTheirRangeAreOverflow) {
  EXPECT_EQ(vb::CInt(-32768), -32768);
  EXPECT_EXIT(vb::CInt(32768), ::testing::ExitedWithCode(3), "run-time error 6");
  EXPECT_EQ(vb::CLng(2147483647LL), 2147483647);
  EXPECT_EXIT(vb::CLng(2147483648LL), ::testing::ExitedWithCode(3), "run-time error 6");
}

TEST(RuntimeErrors, ArrayIndexOutsideBoundsIsError9) {
  vb::Array<int, 1, 3> a;
  a(1) = 4;
  a(3) = 5;
  EXPECT_EQ(a(1) + a(3), 9);
  EXPECT_EXIT(a(0), ::testing::ExitedWithCode(3), "run-time error 9");
  EXPECT_EXIT(a(4), ::testing::ExitedWithCode(3), "run-time error 9");
}

TEST(RuntimeErrors, AnErrorTrapSkipsTheFailingStatementOnly) {
  int ran = 0;
  vb::SkipOnError([&] {
    vb::CByte(300);
    ran = 1;
  });
  vb::SkipOnError([&] { ran += 10; });
  EXPECT_EQ(ran, 10);
  EXPECT_FALSE(vb::ErrorTrap::Active());
  EXPECT_EXIT(vb::RuntimeError(13), ::testing::ExitedWithCode(3), "run-time error 13");
}
