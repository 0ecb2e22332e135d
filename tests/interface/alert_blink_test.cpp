// The blinking of the alert line.
#include <gtest/gtest.h>

#include "tests/support/harness.h"

TEST(Alerts, SevenBlinksOf40And150MillisecondsEndingDarkYellow) {
  Harness h;
  auto& f = *h.form;
  ASSERT_EQ(f.SSAlertes->ForeColor(), 0x00FFFF);
  h.platform.sleptMs = 0;
  const long long before = h.platform.yields;
  f.ClignoteAlertes();
  EXPECT_EQ(h.platform.sleptMs, 7 * (40 + 150));
  EXPECT_EQ(h.platform.yields - before, 14);
  EXPECT_EQ(h.Drive1("get SSAlertes.ForeColor"), "SSAlertes.ForeColor=49344");
}

TEST(Alerts, EachYieldFollowsItsWaitAndTheColourAlternates) {
  Harness h;
  auto& f = *h.form;
  h.platform.sleptMs = 0;
  std::vector<Long> colours;
  std::vector<long long> slept;
  for (int n = 1; n <= 14; ++n)
    h.platform.AtYield(n, [&] {
      colours.push_back(f.SSAlertes->ForeColor());
      slept.push_back(h.platform.sleptMs);
    });
  f.ClignoteAlertes();
  ASSERT_EQ(colours.size(), 14u);
  for (int k = 0; k < 14; ++k) {
    EXPECT_EQ(colours[k], k % 2 == 0 ? 0 : 0x00C0C0) << k;
    EXPECT_EQ(slept[k], (k / 2) * 190 + (k % 2 == 0 ? 40 : 190)) << k;
  }
}

TEST(Alerts, NothingWhileAutomaticModeRuns) {
  Harness h;
  auto& f = *h.form;
  f.AutoPlay->SetBevelWidth(0);
  h.platform.sleptMs = 0;
  const long long before = h.platform.yields;
  f.ClignoteAlertes();
  EXPECT_EQ(h.platform.sleptMs, 0);
  EXPECT_EQ(h.platform.yields, before);
  EXPECT_EQ(f.SSAlertes->ForeColor(), 0x00FFFF);
}

TEST(Alerts, AnEmptyLineStillTakesTheWholeTime) {
  Harness h;
  auto& f = *h.form;
  f.SSAlertes->SetCaption("");
  h.platform.sleptMs = 0;
  f.ClignoteAlertes();
  EXPECT_EQ(h.platform.sleptMs, 1330);
  EXPECT_EQ(f.SSAlertes->Caption(), "");
  EXPECT_EQ(f.SSAlertes->ForeColor(), 0x00C0C0);
}

TEST(Alerts, TheFirstYellowIsNeverRestored) {
  Harness h;
  auto& f = *h.form;
  f.ClignoteAlertes();
  f.ClignoteAlertes();
  EXPECT_EQ(f.SSAlertes->ForeColor(), 0x00C0C0);
}

TEST(Alerts, ARefusedClickDuringTheBlinkNestsASecondBlink) {
  Harness h;
  auto& f = *h.form;
  f.DoubleEnCours = true;
  h.platform.sleptMs = 0;
  const QStringList out = h.Drive({"atyield 3 click Plus", "click Moins"});
  EXPECT_TRUE(out.isEmpty()) << out.join('\n').toStdString();
  EXPECT_EQ(h.platform.sleptMs, 2 * 1330);
  EXPECT_EQ(f.SSAlertes->ForeColor(), 0x00C0C0);
  EXPECT_EQ(f.Mise, 1);
}

TEST(Alerts, AutomaticModeStartingDuringTheBlinkDoesNotStopIt) {
  Harness h;
  auto& f = *h.form;
  h.platform.AtYield(4, [&] { f.AutoPlay->SetBevelWidth(0); });
  h.platform.sleptMs = 0;
  f.ClignoteAlertes();
  EXPECT_EQ(h.platform.sleptMs, 1330);
}
