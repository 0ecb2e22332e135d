// The digit rows of the credit, the winnings, the bet and the level.
#include <gtest/gtest.h>

#include "tests/support/harness.h"

namespace {

Picture Modèle(Harness& h, int i) { return h.form->ChiffresModèle(i).GetPicture(); }

// The cases visible in a row, in order.
int Visibles(const ControlArray<Control>& cases) {
  int n = 0;
  for (int i = cases.Low(); i <= cases.High(); ++i) n += cases(i).Visible() ? 1 : 0;
  return n;
}

}  // namespace

TEST(DigitsDisplay, DigitPicturesAreDistinct) {
  Harness h;
  for (int i = 0; i <= 29; ++i)
    for (int j = i + 1; j <= 29; ++j) ASSERT_NE(Modèle(h, i), Modèle(h, j)) << i << " " << j;
}

TEST(DigitsDisplay, Capital200ShowsThreeBlueDigitsFrom720) {
  Harness h;
  auto& f = *h.form;
  h.Drive({"set Capital 200"});
  f.AfficheCapital();
  EXPECT_EQ(Visibles(f.CapImage), 3);
  EXPECT_TRUE(f.CapImage(0).Visible() && f.CapImage(1).Visible() && f.CapImage(2).Visible());
  EXPECT_EQ(h.Drive1("get CapImage(0).Left"), "CapImage(0).Left=720");
  EXPECT_EQ(f.CapImage(1).Left(), 960);
  EXPECT_EQ(f.CapImage(2).Left(), 1200);
  EXPECT_EQ(f.CapImage(0).GetPicture(), Modèle(h, 12));
  EXPECT_EQ(f.CapImage(1).GetPicture(), Modèle(h, 10));
  EXPECT_EQ(f.CapImage(2).GetPicture(), Modèle(h, 10));
}

TEST(DigitsDisplay, CapitalOneDigitStandsAt960AndTwoDigitsAt840) {
  Harness h;
  auto& f = *h.form;
  f.Capital = 9;
  f.AfficheCapital();
  EXPECT_EQ(Visibles(f.CapImage), 1);
  EXPECT_EQ(f.CapImage(0).Left(), 960);
  EXPECT_EQ(f.CapImage(0).GetPicture(), Modèle(h, 19));
  f.Capital = 10;
  f.AfficheCapital();
  EXPECT_EQ(Visibles(f.CapImage), 2);
  EXPECT_EQ(f.CapImage(0).Left(), 840);
  EXPECT_EQ(f.CapImage(1).Left(), 1080);
  EXPECT_EQ(f.CapImage(0).GetPicture(), Modèle(h, 11));
  EXPECT_EQ(f.CapImage(1).GetPicture(), Modèle(h, 10));
}

TEST(DigitsDisplay, CapitalZeroShowsOneDigitZero) {
  Harness h;
  auto& f = *h.form;
  f.Capital = 0;
  f.AfficheCapital();
  EXPECT_EQ(Visibles(f.CapImage), 1);
  EXPECT_EQ(f.CapImage(0).Left(), 960);
  EXPECT_EQ(f.CapImage(0).GetPicture(), Modèle(h, 10));
}

TEST(DigitsDisplay, EveryLengthIsCentredAndSlotsFollowEvery240) {
  Harness h;
  auto& f = *h.form;
  Long v = 0;
  for (int n = 1; n <= 8; ++n) {
    v = v * 10 + n;  // 1, 12, 123, ... 12345678
    f.Capital = v;
    f.AfficheCapital();
    EXPECT_EQ(f.CapImage(0).Left(), 960 - 120 * (n - 1)) << n;
    for (int i = 0; i <= 7; ++i) {
      EXPECT_EQ(f.CapImage(i).Left(), f.CapImage(0).Left() + 240 * i) << n << " slot " << i;
      EXPECT_EQ(f.CapImage(i).Visible(), i < n) << n << " slot " << i;
    }
    for (int i = 0; i < n; ++i) EXPECT_EQ(f.CapImage(i).GetPicture(), Modèle(h, 10 + (i + 1))) << n;
    // The middle of the row stays on 1080 twips.
    EXPECT_EQ(f.CapImage(0).Left() + (240 * n) / 2, 1080) << n;
  }
}

TEST(DigitsDisplay, ShorterNumberHidesTheSlotsOfALongerOne) {
  Harness h;
  auto& f = *h.form;
  f.Capital = 98765432;
  f.AfficheCapital();
  EXPECT_EQ(Visibles(f.CapImage), 8);
  EXPECT_EQ(f.CapImage(0).Left(), 120);
  f.Capital = 47;
  f.AfficheCapital();
  EXPECT_EQ(Visibles(f.CapImage), 2);
  for (int i = 2; i <= 7; ++i) EXPECT_FALSE(f.CapImage(i).Visible());
  EXPECT_EQ(f.CapImage(0).GetPicture(), Modèle(h, 14));
  EXPECT_EQ(f.CapImage(1).GetPicture(), Modèle(h, 17));
}

TEST(DigitsDisplay, WinningsUseTheRedSetAndGainMain) {
  Harness h;
  auto& f = *h.form;
  f.GainMain = 350;
  f.Gains->SetCaption("350");
  f.AfficheGain();
  EXPECT_EQ(Visibles(f.GainImage), 3);
  EXPECT_EQ(f.GainImage(0).Left(), 720);
  EXPECT_EQ(f.GainImage(0).GetPicture(), Modèle(h, 3));
  EXPECT_EQ(f.GainImage(1).GetPicture(), Modèle(h, 5));
  EXPECT_EQ(f.GainImage(2).GetPicture(), Modèle(h, 0));
}

TEST(DigitsDisplay, WinningsOfTheGridReadGainTirage) {
  Harness h;
  auto& f = *h.form;
  f.GainMain = 7;
  f.GainTirage = 1234;
  f.Gains->SetCaption("1234");
  f.AfficheGain5();
  EXPECT_EQ(Visibles(f.GainImage), 4);
  EXPECT_EQ(f.GainImage(0).Left(), 600);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(f.GainImage(i).GetPicture(), Modèle(h, i + 1));
}

TEST(DigitsDisplay, WinningsDigitsFollowTheVariableNotTheCaption) {
  Harness h;
  auto& f = *h.form;
  f.GainMain = 25;
  f.Gains->SetCaption("9");
  f.AfficheGain();
  EXPECT_EQ(Visibles(f.GainImage), 2);
  EXPECT_EQ(f.GainImage(0).GetPicture(), Modèle(h, 2));
  EXPECT_EQ(f.GainImage(1).GetPicture(), Modèle(h, 5));
}

TEST(DigitsDisplay, EmptyWinningsCaptionHidesEveryDigitWhateverTheAmount) {
  Harness h;
  auto& f = *h.form;
  f.GainMain = 40;
  f.Gains->SetCaption("40");
  f.AfficheGain();
  ASSERT_EQ(Visibles(f.GainImage), 2);
  f.Gains->SetCaption("");
  f.GainTirage = 123456;
  f.AfficheGain5();
  EXPECT_EQ(Visibles(f.GainImage), 0);
  f.GainMain = 99;
  f.AfficheGain();
  EXPECT_EQ(Visibles(f.GainImage), 0);
}

TEST(DigitsDisplay, EmptyWinningsCaptionEvenWithHugeOrNegativeAmountIsNoError) {
  Harness h;
  auto& f = *h.form;
  f.Gains->SetCaption("");
  f.GainTirage = -5;
  f.AfficheGain5();
  f.GainMain = 999999999;
  f.AfficheGain();
  EXPECT_EQ(Visibles(f.GainImage), 0);
}

TEST(DigitsDisplay, BetBelowTenIsOneGreyDigitAt960) {
  Harness h;
  auto& f = *h.form;
  f.Mises->SetCaption("12");
  f.AfficheMise();
  f.Mises->SetCaption("7");
  f.AfficheMise();
  EXPECT_TRUE(f.MiseImage(0).Visible());
  EXPECT_FALSE(f.MiseImage(1).Visible());
  EXPECT_FALSE(f.MiseImage(2).Visible());
  EXPECT_EQ(h.Drive1("get MiseImage(0).Left"), "MiseImage(0).Left=960");
  EXPECT_EQ(f.MiseImage(0).GetPicture(), Modèle(h, 27));
}

TEST(DigitsDisplay, BetOfTwoDigitsStandsAt840And1080) {
  Harness h;
  auto& f = *h.form;
  f.Mises->SetCaption("40");
  f.AfficheMise();
  EXPECT_TRUE(f.MiseImage(0).Visible());
  EXPECT_TRUE(f.MiseImage(1).Visible());
  EXPECT_FALSE(f.MiseImage(2).Visible());
  EXPECT_EQ(f.MiseImage(0).Left(), 840);
  EXPECT_EQ(f.MiseImage(1).Left(), 1080);
  EXPECT_EQ(f.MiseImage(0).GetPicture(), Modèle(h, 24));
  EXPECT_EQ(f.MiseImage(1).GetPicture(), Modèle(h, 20));
}

TEST(DigitsDisplay, BetOfThreeDigitsKeepsItsOddLayout) {
  Harness h;
  auto& f = *h.form;
  f.Mises->SetCaption("100");
  f.AfficheMise();
  EXPECT_TRUE(f.MiseImage(0).Visible());
  EXPECT_TRUE(f.MiseImage(1).Visible());
  EXPECT_TRUE(f.MiseImage(2).Visible());
  // 760 twips is asked for; the widget keeps whole pixels, and 760 lies nearest 765.
  EXPECT_EQ(f.MiseImage(0).Left(), 765);
  EXPECT_EQ(f.MiseImage(1).Left(), 960);
  EXPECT_EQ(f.MiseImage(2).Left(), 1200);
  EXPECT_EQ(f.MiseImage(0).GetPicture(), Modèle(h, 21));
  EXPECT_EQ(f.MiseImage(1).GetPicture(), Modèle(h, 20));
  EXPECT_EQ(f.MiseImage(2).GetPicture(), Modèle(h, 20));
  f.Mises->SetCaption("480");
  f.AfficheMise();
  EXPECT_EQ(f.MiseImage(0).GetPicture(), Modèle(h, 24));
  EXPECT_EQ(f.MiseImage(1).GetPicture(), Modèle(h, 28));
  EXPECT_EQ(f.MiseImage(2).GetPicture(), Modèle(h, 20));
}

TEST(DigitsDisplay, BetBackToOneDigitHidesTheOthers) {
  Harness h;
  auto& f = *h.form;
  f.Mises->SetCaption("360");
  f.AfficheMise();
  f.Mises->SetCaption("1");
  f.AfficheMise();
  EXPECT_EQ(f.MiseImage(0).Left(), 960);
  EXPECT_FALSE(f.MiseImage(1).Visible());
  EXPECT_FALSE(f.MiseImage(2).Visible());
  EXPECT_EQ(f.MiseImage(0).GetPicture(), Modèle(h, 21));
}

TEST(DigitsDisplay, LevelOfOneAndTwoDigits) {
  Harness h;
  auto& f = *h.form;
  f.UnADouze->SetCaption("12");
  f.AfficheUnàDouze();
  EXPECT_TRUE(f.UnàDouzeImage(0).Visible());
  EXPECT_TRUE(f.UnàDouzeImage(1).Visible());
  EXPECT_EQ(f.UnàDouzeImage(0).Left(), 840);
  EXPECT_EQ(f.UnàDouzeImage(1).Left(), 1080);
  EXPECT_EQ(f.UnàDouzeImage(0).GetPicture(), Modèle(h, 21));
  EXPECT_EQ(f.UnàDouzeImage(1).GetPicture(), Modèle(h, 22));
  f.UnADouze->SetCaption("3");
  f.AfficheUnàDouze();
  EXPECT_TRUE(f.UnàDouzeImage(0).Visible());
  EXPECT_FALSE(f.UnàDouzeImage(1).Visible());
  EXPECT_EQ(h.Drive1("get UnàDouzeImage(0).Left"), "UnàDouzeImage(0).Left=960");
  EXPECT_EQ(f.UnàDouzeImage(0).GetPicture(), Modèle(h, 23));
}

// ---- An amount that cannot be shown ends the program ----------------------------------------

using DigitsDisplayDeathTest = ::testing::Test;

TEST_F(DigitsDisplayDeathTest, NineDigitCreditEndsWithError9) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        Harness h;
        h.form->Capital = 123456789;
        h.form->AfficheCapital();
      },
      ::testing::ExitedWithCode(3), "run-time error 9");
}

TEST_F(DigitsDisplayDeathTest, NineDigitWinningsEndWithError9) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        Harness h;
        h.form->Gains->SetCaption("100000000");
        h.form->GainMain = 100000000;
        h.form->AfficheGain();
      },
      ::testing::ExitedWithCode(3), "run-time error 9");
  EXPECT_EXIT(
      {
        Harness h;
        h.form->Gains->SetCaption("x");
        h.form->GainTirage = 999999999;
        h.form->AfficheGain5();
      },
      ::testing::ExitedWithCode(3), "run-time error 9");
}

TEST_F(DigitsDisplayDeathTest, NegativeCreditEndsWithTypeMismatchAtItsSign) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(
      {
        Harness h;
        h.form->Capital = -1;
        h.form->AfficheCapital();
      },
      ::testing::ExitedWithCode(3), "run-time error 13");
}

TEST(DigitsDisplay, EightDigitsIsTheLongestNumberShown) {
  Harness h;
  auto& f = *h.form;
  f.Capital = 99999999;
  f.AfficheCapital();
  EXPECT_EQ(Visibles(f.CapImage), 8);
  EXPECT_EQ(f.CapImage(0).Left(), 120);
  EXPECT_EQ(f.CapImage(7).Left(), 1800);
  for (int i = 0; i <= 7; ++i) EXPECT_EQ(f.CapImage(i).GetPicture(), Modèle(h, 19));
}
