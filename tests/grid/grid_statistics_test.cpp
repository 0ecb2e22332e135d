// The running tally of hands: every line in play of every second grid drawing counts, the
// first drawing never does, a line worth nothing has no row, and the classic game adds to the
// same tally.
#include <gtest/gtest.h>

#include "tests/grid/grid_helpers.h"

using namespace grid;

namespace {

TEST(GridStatistics, EveryLineOfEverySecondDrawingCountsAndTheClassicGameAddsToTheSameTally) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 12);
  options::FirstDrawing2(h, kGridCrossing);
  ExpectTally(f, {});
  // Twelve lines: three of a kind, a flush, two pairs of aces, a straight and seven nothings.
  SecondDrawing(h, {});
  ExpectTally(f, {2, 0, 1, 1, 1, 0, 0, 0, 0, 0});
  // The same grid again, dealt after PLAY has collected.
  options::Round2(h, kGridCrossing);
  ExpectTally(f, {4, 0, 2, 2, 2, 0, 0, 0, 0, 0});
  // A first drawing adds nothing.
  options::FirstDrawing2(h, kGridFourKings);
  ExpectTally(f, {4, 0, 2, 2, 2, 0, 0, 0, 0, 0});
  ClickCard(h, 0);
  SecondDrawing(h, {Card(Ace, Spades)});
  Click(h, "Quitte5X5");
  // The classic game's pair of kings lands in the same row.
  Click(h, "JeuSimple");
  ASSERT_TRUE(f.SSAireJeu->Visible());
  std::array<int, 10> tally{};
  for (int line = 0; line < 12; ++line) {
    const int cls = ClassifyLine(With(kGridFourKings, {{0, Card(Ace, Spades)}}), line);
    if (cls != Nothing) ++tally[cls];
  }
  for (int i = 0; i <= 9; ++i) tally[i] += (std::array<int, 10>{4, 0, 2, 2, 2, 0, 0, 0, 0, 0})[i];
  ExpectTally(f, tally);
  options::Round1(h, options::kHandKings);
  ++tally[PairKA];
  ExpectTally(f, tally);
}

TEST(GridStatistics, OnlyTheLinesInPlayCount) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 2);
  // Line 1 four of a kind, line 2 a straight flush; the other ten lines are out of play.
  options::Round2(h, kGridFourKings);
  ExpectTally(f, {0, 0, 0, 0, 0, 0, 1, 1, 0, 0});
}

}  // namespace
