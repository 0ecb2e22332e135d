// The advice between the grid's drawings: CONSEILS turns down every card that no line in play
// keeps (pairs of any rank, jokers, the high pair's aces or kings, all five of a straight, a
// flush or better), never chasing a draw; ANNULE turns every card up again.
#include <gtest/gtest.h>

#include "tests/grid/grid_helpers.h"

using namespace grid;

namespace {

// Five rows, one kind of hand each (level 5):
//   2H 6H 9H QH 4S   four hearts: nothing kept
//   5C 5D 8S JD 3C   a pair of fives: the pair
//   KC AD J1 7D 3H   king, ace and joker: the ace and the joker
//   8C 8H TC TS 2C   two pairs: the four paired cards
//   9C TD JS QC KH   a straight: all five
const Grid kGridRows{Card(Two, Hearts),
                     Card(Six, Hearts),
                     Card(Nine, Hearts),
                     Card(Queen, Hearts),
                     Card(Four, Spades),
                     Card(Five, Clubs),
                     Card(Five, Diamonds),
                     Card(Eight, Spades),
                     Card(Jack, Diamonds),
                     Card(Three, Clubs),
                     Card(King, Clubs),
                     Card(Ace, Diamonds),
                     kJoker1,
                     Card(Seven, Diamonds),
                     Card(Three, Hearts),
                     Card(Eight, Clubs),
                     Card(Eight, Hearts),
                     Card(Ten, Clubs),
                     Card(Ten, Spades),
                     Card(Two, Clubs),
                     Card(Nine, Clubs),
                     Card(Ten, Diamonds),
                     Card(Jack, Spades),
                     Card(Queen, Clubs),
                     Card(King, Hearts)};
const std::set<int> kRowsKept{5, 6, 11, 12, 15, 16, 17, 18, 20, 21, 22, 23, 24};

TEST(GridAdvice, EachKindOfHandKeepsItsOwnCards) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 5);
  options::FirstDrawing2(h, kGridRows);
  ASSERT_EQ(AdviceKept(kGridRows, 5), kRowsKept);
  const Watch w(h);
  Click(h, "Conseils5");
  EXPECT_EQ(FaceDownPositions(f), AllBut(kRowsKept));
  // One yield a card turned, no animation.
  EXPECT_EQ(w.Yields(), 12);
  for (int p : kRowsKept) EXPECT_TRUE(Shows(f, p, kGridRows[p])) << p;
  // The advice only proposes: the counter and the deal stay as they are.
  EXPECT_EQ(f.NbTirées, 25);
  EXPECT_EQ(Table(f), kGridRows);
}

TEST(GridAdvice, AllLinesDeadTurnsTheWholeGridDown) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 12);
  options::FirstDrawing2(h, kGridNothing);
  Click(h, "Conseils5");
  EXPECT_EQ(FaceDownPositions(f).size(), 25u);
}

TEST(GridAdvice, AtLevelTwelveAPairInAColumnStaysThoughItsRowIsDead) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 12);
  // Threes at positions 5 and 10, both in the first column; every line still pays nothing.
  const Grid g = With(kGridNothing, {{10, Card(Three, Diamonds)}});
  ASSERT_EQ(g[5], Card(Three, Spades));
  for (int line = 0; line < 12; ++line) ASSERT_EQ(ClassifyLine(g, line), Nothing) << line;
  options::FirstDrawing2(h, g);
  Click(h, "Conseils5");
  EXPECT_EQ(FaceDownPositions(f), AllBut({5, 10}));
}

TEST(GridAdvice, AMadeStraightInLineOneAtLevelOneKeepsItsFiveAndTurnsDownTheOtherTwenty) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::FirstDrawing2(h, kGridWheel);
  ASSERT_EQ(f.Mains5(0).Caption(), "Straight");
  Click(h, "Conseils5");
  EXPECT_EQ(FaceDownPositions(f), AllBut({0, 1, 2, 3, 4}));
}

TEST(GridAdvice, AtLevelOneEverythingBelowTheTopRowGoesDownWhateverItHolds) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  // The four kings of line 1 stay with the straight flush of line 2 out of play.
  options::FirstDrawing2(h, kGridFourKings);
  Click(h, "Conseils5");
  EXPECT_EQ(FaceDownPositions(f), AllBut({0, 1, 2, 3}));
}

TEST(GridAdvice, TheJokerOfAWorthlessLineStaysUp) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  const Grid g = With(kGridNothing, {{1, kJoker1}});  // 2D J1 3D QS 7C
  ASSERT_EQ(ClassifyLine(g, 0), Nothing);
  options::FirstDrawing2(h, g);
  ASSERT_EQ(f.Mains5(0).Caption(), "NOTHING");
  Click(h, "Conseils5");
  EXPECT_EQ(FaceDownPositions(f), AllBut({1}));
}

TEST(GridAdvice, KingAceAndJokerKeepTheAceAndTheJoker) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  const Grid g = With(kGridNothing, {{0, Card(King, Clubs)}, {3, kJoker2}});  // KC AH 3D J2 7C
  options::FirstDrawing2(h, g);
  ASSERT_EQ(f.Mains5(0).Caption(), "1 PAIR");
  Click(h, "Conseils5");
  EXPECT_EQ(FaceDownPositions(f), AllBut({1, 3}));
}

TEST(GridAdvice, LinesCrossingAtACardBothKeepIt) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 12);
  options::FirstDrawing2(h, kGridCrossing);
  // The joker lines: the row of both jokers keeps them (not its king: three of a kind), the
  // flush column and the straight diagonal keep all five, the two pairs of aces their ace and
  // joker.
  const std::set<int> kept{12, 13, 2, 7, 17, 22, 0, 6, 18, 24, 3, 20};
  ASSERT_EQ(AdviceKept(kGridCrossing, 12), kept);
  Click(h, "Conseils5");
  EXPECT_EQ(FaceDownPositions(f), AllBut(kept));
}

TEST(GridAdvice, CancelTurnsEveryCardUpIncludingThePlayersOwn) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 5);
  options::FirstDrawing2(h, kGridRows);
  ClickCard(h, 20);  // a card of the straight, by hand
  Click(h, "Conseils5");
  ASSERT_EQ(FaceDownPositions(f).size(), 13u);
  const Watch w(h);
  Click(h, "AnnuleConseils5");
  EXPECT_TRUE(FaceDownPositions(f).empty());
  EXPECT_EQ(w.Yields(), 13);
  for (int p = 0; p < 25; ++p) EXPECT_TRUE(Shows(f, p, kGridRows[p])) << p;
  // The second drawing then replaces nothing.
  SecondDrawing(h, {});
  EXPECT_EQ(Table(f), kGridRows);
}

TEST(GridAdvice, CancelWithNoCardDownChangesNothing) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::FirstDrawing2(h, kGridRows);
  const auto before = options::Record(f);
  const Watch w(h);
  Click(h, "AnnuleConseils5");
  EXPECT_EQ(w.Yields(), 0);
  EXPECT_EQ(options::Changes(before, options::Record(f)), "");
}

TEST(GridAdvice, ACardOfAPairTurnedDownByHandStaysDown) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 5);
  options::FirstDrawing2(h, kGridRows);
  ClickCard(h, 6);  // one of the fives
  Click(h, "Conseils5");
  std::set<int> down = AllBut(kRowsKept);
  down.insert(6);
  EXPECT_EQ(FaceDownPositions(f), down);
}

TEST(GridAdvice, AdviceTwiceIsAdviceOnceAndThePlayerMayChangeItBeforePlaying) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 5);
  options::FirstDrawing2(h, kGridRows);
  Click(h, "Conseils5");
  const Watch w(h);
  Click(h, "Conseils5");
  EXPECT_EQ(w.Yields(), 0);
  EXPECT_EQ(FaceDownPositions(f), AllBut(kRowsKept));
  // The player turns one card of the four hearts up again, then plays: exactly the cards
  // down are replaced.
  ClickCard(h, 0);
  std::set<int> down = AllBut(kRowsKept);
  down.erase(0);
  ASSERT_EQ(FaceDownPositions(f), down);
  const std::vector<int> fresh = Unused(kGridRows, 54);
  SecondDrawing(h, std::vector<int>(fresh.begin(), fresh.begin() + static_cast<long>(down.size())));
  Grid expected = kGridRows;
  size_t k = 0;
  for (int p : down) expected[p] = fresh[k++];
  EXPECT_EQ(Table(f), expected);
}

TEST(GridAdvice, TheAdviceIsGatheredAnewAtEachFirstDrawing) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 5);
  options::Round2(h, kGridRows);
  options::FirstDrawing2(h, kGridNothing);
  Click(h, "Conseils5");
  EXPECT_EQ(FaceDownPositions(f).size(), 25u);
}

}  // namespace
