// The two drawings of a grid deal: the first fills all 25 positions, the second replaces
// exactly the positions face down, from the same deck, never a card twice; the counter
// reaches 50 whatever was kept; the stake is paid once a deal; the deck size bounds the draws.
#include <gtest/gtest.h>

#include "tests/grid/grid_helpers.h"

using namespace grid;

namespace {

// A sentinel draw that no drawing should take.
constexpr int kUntaken = 51;

TEST(GridDrawing, FirstDrawingFillsTheGridInPositionOrder) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ASSERT_TRUE(options::GridCovered(f));
  EXPECT_TRUE(f.Jouez5->Visible());
  options::FirstDrawing2(h, kGridCrossing);
  for (int p = 0; p < 25; ++p) {
    EXPECT_TRUE(Shows(f, p, kGridCrossing[p])) << p;
    EXPECT_EQ(f.CartesTirage(p), kGridCrossing[p]) << p;
    EXPECT_EQ(f.CartesSorties(p + 1), kGridCrossing[p]) << p;
    EXPECT_EQ(f.Deal2(p).MousePointer(), 99) << p;
  }
  for (int k = 26; k <= 50; ++k) EXPECT_EQ(f.CartesSorties(k), -1) << k;
  EXPECT_EQ(f.Capital, 199);
  EXPECT_FALSE(f.Jouez5->Visible());
  EXPECT_TRUE(f.SSConseils5->Visible());
  EXPECT_EQ(f.Plus5->MousePointer(), 12);
  EXPECT_EQ(f.Moins5->MousePointer(), 12);
}

TEST(GridDrawing, SecondDrawingWithNoCardDownChangesNoCardAndStillReachesFifty) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 12);
  options::FirstDrawing2(h, kGridCrossing);
  ASSERT_EQ(f.Capital, 188);
  h.platform.QueueDraws({kUntaken});
  Click(h, "Jouer");
  EXPECT_EQ(f.NbTirées, 50);
  EXPECT_EQ(h.platform.queuedDraws.size(), 1u);
  h.platform.queuedDraws.clear();
  EXPECT_EQ(Table(f), kGridCrossing);
  for (int p = 0; p < 25; ++p) EXPECT_TRUE(Shows(f, p, kGridCrossing[p])) << p;
  // Kept positions leave their slots free.
  for (int k = 26; k <= 50; ++k) EXPECT_EQ(f.CartesSorties(k), -1) << k;
  // The lines are read again on the same cards, and this time they count and pay.
  ExpectSettlement(f, kGridCrossing, 12, 1);
  EXPECT_EQ(f.Fréquences(Trips), 1);
  EXPECT_TRUE(f.Doubler5->Visible());
  // The stake was paid once.
  EXPECT_EQ(f.Capital, 188);
  for (int p = 0; p < 25; ++p) EXPECT_EQ(f.Deal2(p).MousePointer(), 12) << p;
  EXPECT_FALSE(f.SSConseils5->Visible());
}

TEST(GridDrawing, AllTwentyFiveDownGetTwentyFiveNewCardsAndTwoStayInTheDeck) {
  Harness h;
  JeuPoker& f = *h.form;
  ChooseJokers(h, 0);
  options::ToGrid(h);
  options::FirstDrawing2(h, kGridNothing);
  for (int p = 0; p < 25; ++p) ClickCard(h, p);
  ASSERT_EQ(FaceDownPositions(f).size(), 25u);
  const std::vector<int> fresh = Unused(kGridNothing, 52);
  ASSERT_EQ(fresh.size(), 27u);
  // Before each new card, a card of the first drawing and, from the second on, the card just
  // dealt: the drawing must pass over both.
  std::vector<int> queue;
  for (int p = 0; p < 25; ++p) {
    queue.push_back(kGridNothing[(p * 7) % 25]);
    if (p > 0) queue.push_back(fresh[p - 1]);
    queue.push_back(fresh[p]);
  }
  const size_t seedsBefore = h.platform.seeds.size();
  SecondDrawing(h, queue);
  EXPECT_TRUE(h.platform.queuedDraws.empty());
  EXPECT_TRUE(h.platform.drawErrors.empty());
  // Every try reads the clock anew.
  EXPECT_EQ(h.platform.seeds.size() - seedsBefore, queue.size());
  std::set<int> all;
  for (int p = 0; p < 25; ++p) {
    EXPECT_EQ(f.CartesTirage(p), fresh[p]) << p;
    EXPECT_TRUE(Shows(f, p, fresh[p])) << p;
    EXPECT_EQ(f.CartesSorties(26 + p), fresh[p]) << p;
  }
  for (int k = 1; k <= 50; ++k) all.insert(f.CartesSorties(k));
  EXPECT_EQ(all.size(), 50u);
  // The two cards left in the deck are the two not queued.
  EXPECT_EQ(Unused(std::vector<int>(all.begin(), all.end()), 52), (std::vector<int>{fresh[25], fresh[26]}));
}

TEST(GridDrawing, ACardTurnedDownAndUpAgainStaysAndIsNotReplaced) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::FirstDrawing2(h, kGridNothing);
  ClickCard(h, 7);
  EXPECT_TRUE(FaceDown(f, f.Deal2(7)));
  ClickCard(h, 7);
  EXPECT_TRUE(Shows(f, 7, kGridNothing[7]));
  ClickCard(h, 3);
  ASSERT_EQ(FaceDownPositions(f), std::set<int>{3});
  const int fresh = Unused(kGridNothing, 54).front();
  SecondDrawing(h, {fresh, kUntaken});
  EXPECT_EQ(h.platform.queuedDraws.size(), 1u);
  h.platform.queuedDraws.clear();
  EXPECT_EQ(Table(f), With(kGridNothing, {{3, fresh}}));
  EXPECT_TRUE(Shows(f, 7, kGridNothing[7]));
  EXPECT_TRUE(Shows(f, 3, fresh));
  for (int k = 26; k <= 50; ++k) EXPECT_EQ(f.CartesSorties(k), k == 29 ? fresh : -1) << k;
}

TEST(GridDrawing, AFaceDownPositionOnNoLineInPlayIsReplacedAndChangesNothingInTheResult) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::FirstDrawing2(h, kGridFourKings);
  ClickCard(h, 24);
  const int fresh = Card(Ace, Spades);
  SecondDrawing(h, {fresh});
  EXPECT_TRUE(Shows(f, 24, fresh));
  EXPECT_EQ(f.CartesTirage(24), fresh);
  EXPECT_EQ(f.CartesSorties(50), fresh);
  EXPECT_EQ(f.Mains5(0).Caption(), "4 of KIND");
  EXPECT_EQ(f.Gains5(12).Caption(), "40");
  EXPECT_EQ(f.GainTirage, 40);
}

TEST(GridDrawing, ReplacementsComeFromTheSameDeckAsTheFirstDrawing) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::FirstDrawing2(h, kGridCrossing);
  ClickCard(h, 0);
  ClickCard(h, 1);
  // Both jokers and the cards of the first drawing are out; the queue offers them first.
  SecondDrawing(
      h, {kJoker1, kJoker2, kGridCrossing[0], kGridCrossing[24], Card(Two, Spades), kJoker2, Card(Four, Spades)});
  EXPECT_TRUE(h.platform.queuedDraws.empty());
  EXPECT_EQ(f.CartesTirage(0), Card(Two, Spades));
  EXPECT_EQ(f.CartesTirage(1), Card(Four, Spades));
}

TEST(GridDrawing, TheDeckSizeBoundsEveryDraw) {
  for (int jokers : {0, 1}) {
    SCOPED_TRACE("jokers " + std::to_string(jokers));
    Harness h;
    JeuPoker& f = *h.form;
    ChooseJokers(h, jokers);
    options::ToGrid(h);
    Grid g = kGridNothing;
    g[24] = 52 + jokers;  // one past the deck
    if (jokers == 1) g[23] = kJoker1;
    h.platform.QueueDraws(g);
    h.Drive({"click Jouer"});
    ASSERT_EQ(h.output.size(), 1u);
    EXPECT_EQ(h.output[0], QStringLiteral("error: draw %1 is not below %1; drawn at random").arg(52 + jokers));
    EXPECT_LT(f.CartesTirage(24), 52 + jokers);
    if (jokers == 1) {
      EXPECT_TRUE(Shows(f, 23, kJoker1));
    }
    EXPECT_EQ(f.NbTirées, 25);
  }
}

TEST(GridDrawing, StakeIsPaidOnceADealAtTheFirstDrawing) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseMise(h, 3);
  ChooseLevel(h, 4);
  ASSERT_EQ(f.Mises->Caption(), "12");
  options::FirstDrawing2(h, kGridNothing);
  EXPECT_EQ(f.Capital, 188);
  EXPECT_EQ(Digits(f, f.CapImage), "188");
  SecondDrawing(h, {});
  EXPECT_EQ(f.Capital, 188);
  options::FirstDrawing2(h, kGridNothing);
  EXPECT_EQ(f.Capital, 176);
}

TEST(GridDrawing, SlowSpeedAnimatesEachReplacedCardAndRestoresItsSize) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::FirstDrawing2(h, kGridNothing);
  Click(h, "SSVitesse(0)");
  ASSERT_FALSE(f.AffichageImmédiat);
  // Turning a card over by hand shrinks and grows it too.
  Watch turn(h);
  ClickCard(h, 6);
  EXPECT_EQ(turn.Yields(), 60);
  ClickCard(h, 12);
  Watch w(h);
  SecondDrawing(h, {Card(Two, Spades), Card(Three, Spades)});
  // Thirty steps down and thirty up for each of the two replaced cards, one yield of PLAY.
  EXPECT_EQ(w.Yields(), 1 + 2 * 60);
  for (int p : {6, 12}) {
    EXPECT_EQ(f.Deal2(p).Width(), 975) << p;
    EXPECT_EQ(f.Deal2(p).Height(), 1305) << p;
  }
}

TEST(GridDrawing, InstantSpeedDealsWithoutAYield) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ASSERT_TRUE(f.AffichageImmédiat);
  options::FirstDrawing2(h, kGridNothing);
  ClickCard(h, 6);
  Watch w(h);
  SecondDrawing(h, {Card(Two, Spades)});
  EXPECT_EQ(w.Yields(), 1);  // PLAY's own
  EXPECT_EQ(f.Deal2(6).Width(), 975);
}

}  // namespace
