// Slow and instant dealing: the two buttons and their lamps, and the grid's card animation
// (30 shrinking and 30 growing steps per card, each a yield, then the card's exact size).
#include <gtest/gtest.h>

#include "tests/interface/options_helpers.h"

using namespace options;

namespace {

constexpr int kCardHeight = 1305;
constexpr int kCardWidth = 975;

void ExpectSpeed(const JeuPoker& f, int index) {
  const int other = 1 - index;
  EXPECT_EQ(f.SSVitesse(index).BevelWidth(), 0);
  EXPECT_EQ(f.SSVitesse(index).MousePointer(), 12);
  EXPECT_EQ(f.SSVitesse(other).BevelWidth(), 3);
  EXPECT_EQ(f.SSVitesse(other).MousePointer(), 10);
  EXPECT_TRUE(f.PSSVitesse(index).Visible());
  EXPECT_FALSE(f.PSSVitesse(other).Visible());
  EXPECT_EQ(f.AffichageImmédiat, index == 1);
}

void ExpectGridAtRestSize(const JeuPoker& f) {
  for (int p = 0; p <= 24; ++p) {
    EXPECT_EQ(f.Deal2(p).Height(), kCardHeight) << p;
    EXPECT_EQ(f.Deal2(p).Width(), kCardWidth) << p;
  }
}

TEST(DisplaySpeed, InstantAtStart) {
  Harness h;
  ExpectSpeed(*h.form, 1);
}

TEST(DisplaySpeed, ButtonsSwitchBetweenSlowAndInstant) {
  Harness h;
  JeuPoker& f = *h.form;
  for (int index : {0, 1, 0}) {
    SCOPED_TRACE(index);
    f.Jouer->SetFocus();
    const Watch w(h);
    Click(h, QStringLiteral("SSVitesse(%1)").arg(index));
    ExpectSpeed(f, index);
    EXPECT_EQ(f.focusWidget(), f.Tirage);
    EXPECT_EQ(w.Slept(), 0);
  }
}

TEST(DisplaySpeed, BothButtonsWorkBetweenDrawings) {
  Harness h;
  ToGrid(h);
  FirstDrawing2(h, kGridNothing);
  Click(h, "SSVitesse(0)");
  ExpectSpeed(*h.form, 0);
  Click(h, "SSVitesse(1)");
  ExpectSpeed(*h.form, 1);
}

TEST(DisplaySpeed, InstantGridIsDealtWithoutAnimation) {
  Harness h;
  JeuPoker& f = *h.form;
  ToGrid(h);
  Watch w(h);
  FirstDrawing2(h, kGridNothing);
  EXPECT_EQ(w.Yields(), 1);  // the one of Jouer_Click
  EXPECT_TRUE(GridShows(f, kGridNothing));
  ExpectGridAtRestSize(f);
  // A new deal turns the face-up grid down with one yield a card.
  Click(h, "Jouer");
  w = Watch(h);
  FirstDrawing2(h, kGridFourKings);
  EXPECT_EQ(w.Yields(), 1 + 25);
  EXPECT_TRUE(GridShows(f, kGridFourKings));
}

struct Step {
  int height, width, left, top;
  Picture picture;
};

TEST(DisplaySpeed, SlowGridShrinksAndGrowsEveryCard) {
  Harness h;
  JeuPoker& f = *h.form;
  ToGrid(h);
  Click(h, "SSVitesse(0)");
  const Control& card = f.Deal2(0);
  const int left = card.Left(), top = card.Top();
  // The state of the first card at each yield: Jouer_Click's, 30 shrinking steps, 30
  // growing steps, and the first step of the second card.
  std::vector<Step> steps;
  for (int n = 1; n <= 62; ++n)
    h.platform.AtYield(n, [&] {
      steps.push_back({card.Height(), card.Width(), card.Left(), card.Top(), card.GetPicture()});
    });
  const Watch w(h);
  FirstDrawing2(h, kGridNothing);
  EXPECT_EQ(w.Yields(), 1 + 25 * 60);
  ASSERT_EQ(steps.size(), 62u);
  const Picture back = f.Cartes(54).GetPicture();
  const Picture face = f.Cartes2(kGridNothing[0]).GetPicture();
  for (size_t k = 0; k < steps.size(); ++k) {
    SCOPED_TRACE("yield " + std::to_string(k + 1));
    EXPECT_EQ(steps[k].left, left);
    EXPECT_EQ(steps[k].top, top);
  }
  // Before the first step the card has its size at rest.
  EXPECT_EQ(steps[1].height, kCardHeight);
  EXPECT_EQ(steps[1].width, kCardWidth);
  for (size_t k = 1; k <= 30; ++k) EXPECT_EQ(steps[k].picture, back) << k;
  for (size_t k = 2; k <= 31; ++k) {
    EXPECT_LE(steps[k].height, steps[k - 1].height) << k;
    EXPECT_LE(steps[k].width, steps[k - 1].width) << k;
  }
  EXPECT_LT(steps[2].height, kCardHeight);
  EXPECT_LT(steps[2].width, kCardWidth);
  // Shrunk by 0.94 thirty times, the card is far below half its size.
  EXPECT_LT(steps[31].height, kCardHeight / 2);
  EXPECT_LT(steps[31].width, kCardWidth / 2);
  for (size_t k = 31; k <= 61; ++k) EXPECT_EQ(steps[k].picture, face) << k;
  for (size_t k = 32; k <= 60; ++k) {
    EXPECT_GE(steps[k].height, steps[k - 1].height) << k;
    EXPECT_GE(steps[k].width, steps[k - 1].width) << k;
  }
  // Grown back, it is set to its exact size before the next card.
  EXPECT_EQ(steps[61].height, kCardHeight);
  EXPECT_EQ(steps[61].width, kCardWidth);
  EXPECT_TRUE(GridShows(f, kGridNothing));
  ExpectGridAtRestSize(f);
}

TEST(DisplaySpeed, SlowNewDealAnimatesTheTurningDownToo) {
  Harness h;
  JeuPoker& f = *h.form;
  ToGrid(h);
  Round2(h, kGridNothing);
  Click(h, "SSVitesse(0)");
  const Watch w(h);
  FirstDrawing2(h, kGridFourKings);
  // Each face-up card shrinks, turns, yields once and grows; then each is dealt.
  EXPECT_EQ(w.Yields(), 1 + 25 * 61 + 25 * 60);
  EXPECT_TRUE(GridShows(f, kGridFourKings));
  ExpectGridAtRestSize(f);
}

TEST(DisplaySpeed, SlowTurnOfAGridCardAnimates) {
  Harness h;
  JeuPoker& f = *h.form;
  ToGrid(h);
  FirstDrawing2(h, kGridNothing);
  Click(h, "SSVitesse(0)");
  Watch w(h);
  Click(h, "Deal2(7)");
  EXPECT_EQ(w.Yields(), 60);
  EXPECT_TRUE(FaceDown(f, f.Deal2(7)));
  EXPECT_EQ(f.Deal2(7).Height(), kCardHeight);
  EXPECT_EQ(f.Deal2(7).Width(), kCardWidth);
  // And the second drawing deals that one card, animated.
  h.platform.QueueDraws({51});
  w = Watch(h);
  Click(h, "Jouer");
  EXPECT_EQ(w.Yields(), 1 + 60);
  EXPECT_EQ(f.Deal2(7).GetPicture(), f.Cartes2(51).GetPicture());
  ExpectGridAtRestSize(f);
}

}  // namespace
