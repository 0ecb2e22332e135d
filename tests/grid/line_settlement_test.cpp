// The settlement of a grid drawing: which lines are read, how each is named and priced on the
// grid's own fixed scale, the total and the digits, the first drawing's preview, jokers inside
// and across lines, the bet falling back after a losing deal, the warning of a win that no
// longer covers the bet, and the line names following the language.
#include <gtest/gtest.h>

#include "tests/grid/grid_helpers.h"

using namespace grid;

namespace {

TEST(GridSettlement, LevelOneReadsLineOneAloneAndAPayingColumnPaysNothing) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  // Four aces down the first column; line 1 keeps a low pair, which pays nothing.
  const Grid g =
      With(kGridNothing,
           {{5, Card(Ace, Hearts)}, {10, Card(Ace, Clubs)}, {15, Card(Ace, Diamonds)}, {20, Card(Ace, Spades)}});
  ASSERT_EQ(ClassifyLine(g, 5), Quads);
  options::FirstDrawing2(h, g);
  EXPECT_EQ(f.Mains5(0).Caption(), "NOTHING");
  EXPECT_EQ(f.Gains5(0).Caption(), "0");
  EXPECT_EQ(f.Gains5(12).Caption(), "0");
  EXPECT_EQ(f.GainTirage, 0);
  for (int i = 1; i <= 11; ++i) {
    EXPECT_EQ(f.Mains5(i).Caption(), "") << i;
    EXPECT_EQ(f.Gains5(i).Caption(), "") << i;
    EXPECT_FALSE(f.Mains5(i).Visible()) << i;
    EXPECT_FALSE(f.Gains5(i).Visible()) << i;
  }
  // The second drawing reads the same line alone and pays nothing.
  SecondDrawing(h, {});
  EXPECT_EQ(f.Gains5(5).Caption(), "");
  EXPECT_EQ(f.Gains5(12).Caption(), "0");
  EXPECT_FALSE(f.Doubler5->Visible());
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageC));
  EXPECT_EQ(f.Capital, 199);
}

TEST(GridSettlement, FirstDrawingShowsWhatItWouldPayAndASecondDrawingOfNothingReadsZero) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::FirstDrawing2(h, kGridFourKings);
  EXPECT_EQ(f.Mains5(0).Caption(), "4 of KIND");
  EXPECT_EQ(f.Gains5(0).Caption(), "40");
  EXPECT_EQ(f.Gains5(12).Caption(), "40");
  EXPECT_EQ(f.Gains->Caption(), "40");
  EXPECT_EQ(Digits(f, f.GainImage), "40");
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kSecondDrawing));
  // Only a preview: nothing is credited, and no double-up is offered.
  EXPECT_EQ(f.Capital, 199);
  EXPECT_EQ(Digits(f, f.CapImage), "199");
  EXPECT_FALSE(f.Doubler5->Visible());

  for (int p = 0; p <= 3; ++p) ClickCard(h, p);
  SecondDrawing(h, kQuietForFourKings);
  EXPECT_EQ(f.Mains5(0).Caption(), "NOTHING");
  EXPECT_EQ(f.Gains5(0).Caption(), "0");
  EXPECT_EQ(f.Gains5(12).Caption(), "0");
  EXPECT_EQ(f.GainTirage, 0);
  // The credit covers the bet: the winnings display is cleared with the new-drawing message.
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageC));
  EXPECT_EQ(f.Gains->Caption(), "");
  EXPECT_EQ(Digits(f, f.GainImage), "");
  EXPECT_EQ(f.Capital, 199);
}

TEST(GridSettlement, FourKingsInLineOneAtABetOfTwoPayEightyAtAnyJokerCount) {
  for (int jokers : {0, 1, 2}) {
    SCOPED_TRACE("jokers " + std::to_string(jokers));
    Harness h;
    JeuPoker& f = *h.form;
    ChooseJokers(h, jokers);
    options::ToGrid(h);
    ChooseMise(h, 2);
    options::Round2(h, kGridFourKings);
    EXPECT_EQ(f.Mains5(0).Caption(), "4 of KIND");
    EXPECT_EQ(f.Gains5(0).Caption(), "80");
    EXPECT_EQ(f.Gains5(12).Caption(), "80");
    EXPECT_EQ(Digits(f, f.GainImage), "80");
    // The classic pay table beside the grid says something else for the same hand.
    EXPECT_EQ(f.MainLabel(6).Caption(), QString::number(2 * options::kTableGains[jokers][6]));
  }
}

TEST(GridSettlement, LinesArePricedOnTheGridScaleNotOnThePayTable) {
  Harness h;
  JeuPoker& f = *h.form;
  ChooseJokers(h, 0);
  options::ToGrid(h);
  // Line 1 a full house (aces over sevens), line 2 a flush in clubs.
  const Grid g = With(kGridNothing, {{0, Card(Ace, Clubs)},
                                     {1, Card(Ace, Hearts)},
                                     {2, Card(Ace, Diamonds)},
                                     {3, Card(Seven, Spades)},
                                     {4, Card(Seven, Clubs)},
                                     {5, Card(Two, Clubs)},
                                     {6, Card(Four, Clubs)},
                                     {7, Card(Eight, Clubs)},
                                     {8, Card(Jack, Clubs)},
                                     {9, Card(King, Clubs)}});
  ASSERT_EQ(ClassifyLine(g, 0), FullHouse);
  ASSERT_EQ(ClassifyLine(g, 1), Flush);
  ChooseLevel(h, 2);
  options::Round2(h, g);
  EXPECT_EQ(f.Mains5(0).Caption(), "FULL");
  EXPECT_EQ(f.Gains5(0).Caption(), "10");
  EXPECT_EQ(f.MainLabel(5).Caption(), "30");
  EXPECT_EQ(f.Mains5(1).Caption(), "FLUSH");
  EXPECT_EQ(f.Gains5(1).Caption(), "7");
  EXPECT_EQ(f.MainLabel(4).Caption(), "10");
  EXPECT_EQ(f.Gains5(12).Caption(), "17");
  EXPECT_EQ(f.GainTirage, 17);
}

TEST(GridSettlement, JokersAreWildInsideEachLineAndOneAtACrossingServesEveryLineThroughIt) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 12);
  options::FirstDrawing2(h, kGridCrossing);
  const char* const names[12] = {"NOTHING", "NOTHING", "3 of KIND", "NOTHING", "NOTHING",  "NOTHING",
                                 "NOTHING", "FLUSH",   "1 PAIR",    "NOTHING", "Straight", "1 PAIR"};
  const char* const prices[12] = {"0", "0", "3", "0", "0", "0", "0", "7", "1", "0", "5", "1"};
  for (int i = 0; i < 12; ++i) {
    EXPECT_EQ(f.Mains5(i).Caption(), names[i]) << "line " << i + 1;
    EXPECT_EQ(f.Gains5(i).Caption(), prices[i]) << "line " << i + 1;
  }
  EXPECT_EQ(f.Gains5(12).Caption(), "17");
  // Our own evaluator agrees line by line.
  ExpectSettlement(f, kGridCrossing, 12, 1);
  SecondDrawing(h, {});
  EXPECT_EQ(f.Gains5(12).Caption(), "17");
  EXPECT_EQ(f.GainTirage, 17);
}

TEST(GridSettlement, ALosingDealThatLeavesTooLittleCreditPutsTheBetBackToOneAndLeavesLineTwoOn) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  h.Drive({"set Capital 7"});
  ChooseMise(h, 2);
  ChooseLevel(h, 2);
  ASSERT_EQ(f.Mises->Caption(), "4");
  options::FirstDrawing2(h, kGridNothing);
  ASSERT_EQ(f.Capital, 3);
  SecondDrawing(h, {});
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageD));
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(f.Niveau, 1);
  EXPECT_EQ(f.UnADouze->Caption(), "1");
  EXPECT_EQ(f.Mises->Caption(), "1");
  EXPECT_EQ(Digits(f, f.UnàDouzeImage), "1");
  EXPECT_EQ(Digits(f, f.MiseImage), "1");
  for (int i = 0; i <= 9; ++i) EXPECT_EQ(f.MainLabel(i).Caption(), QString::number(f.TableGains(i))) << i;
  // Line 2 keeps its labels, drawn line and yellow tag although only line 1 plays now, and
  // the PLAY panel stays hidden.
  EXPECT_TRUE(f.Mains5(1).Visible());
  EXPECT_TRUE(f.Gains5(1).Visible());
  EXPECT_TRUE(f.UnADouzeLine(1).Visible());
  EXPECT_EQ(f.UnADouzeTémoin(1).BackColor(), 0x00FFFF);
  EXPECT_EQ(f.Mains5(1).Caption(), "NOTHING");
  EXPECT_FALSE(f.Jouez5->Visible());
  EXPECT_EQ(f.Capital, 3);

  // The next deal stakes 1 and reads line 1 alone; line 2 still shows.
  options::Round2(h, kGridNothing);
  EXPECT_EQ(f.Capital, 2);
  EXPECT_TRUE(f.Mains5(1).Visible());
  EXPECT_EQ(f.Mains5(1).Caption(), "");
  EXPECT_EQ(f.Gains5(1).Caption(), "");
  EXPECT_EQ(f.UnADouzeTémoin(1).BackColor(), 0x00FFFF);
  // It goes out when the level buttons pass over it.
  Click(h, "Plus5");
  Click(h, "Moins5");
  EXPECT_EQ(f.Niveau, 1);
  ExpectLinesInPlay(f, 1);
}

TEST(GridSettlement, AtLevelTwelveTheFallbackLeavesAllElevenUpperLinesOnUntilTheLevelWraps) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  h.Drive({"set Capital 20"});
  Click(h, "Moins5");
  ASSERT_EQ(f.Niveau, 12);
  options::Round2(h, kGridNothing);
  ASSERT_EQ(f.Capital, 8);
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageD));
  EXPECT_EQ(f.Niveau, 1);
  ExpectLinesInPlay(f, 12);
  EXPECT_FALSE(f.Jouez5->Visible());
  // A whole deal later they are still on, with empty labels beyond line 1.
  options::Round2(h, kGridNothing);
  EXPECT_EQ(f.Capital, 7);
  ExpectLinesInPlay(f, 12);
  for (int i = 1; i <= 11; ++i) EXPECT_EQ(f.Gains5(i).Caption(), "") << i;
  // Plus5 walks over them one by one, each step putting its line in play again.
  Click(h, "Plus5");
  EXPECT_EQ(f.Niveau, 2);
  ExpectLinesInPlay(f, 12);
  // Moins5 steps back down and turns line 2 out; the others stay on.
  Click(h, "Moins5");
  EXPECT_EQ(f.Niveau, 1);
  EXPECT_FALSE(f.Mains5(1).Visible());
  EXPECT_TRUE(f.Mains5(2).Visible());
  EXPECT_TRUE(f.Mains5(11).Visible());
}

TEST(GridSettlement, AWinThatNoLongerCoversTheBetOffersTheDoubleUpWithAWarning) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  h.Drive({"set Capital 10"});
  ChooseLevel(h, 10);
  ASSERT_EQ(f.Mises->Caption(), "10");
  options::FirstDrawing2(h, kGridWheel);
  ASSERT_EQ(f.Capital, 0);
  SecondDrawing(h, {});
  EXPECT_EQ(f.Mains5(0).Caption(), "Straight");
  EXPECT_EQ(f.Gains5(12).Caption(), "5");
  EXPECT_TRUE(f.Doubler5->Visible());
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageB));
  // Only a warning: the bet stays until the winnings are collected.
  EXPECT_EQ(f.Niveau, 10);
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(f.Mises->Caption(), "10");
  EXPECT_EQ(f.Gains->Caption(), "5");

  Click(h, "Quitte5X5");
  EXPECT_EQ(f.Capital, 5);
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageD));
  EXPECT_EQ(f.Niveau, 1);
  EXPECT_EQ(f.Mises->Caption(), "1");
  ExpectLinesInPlay(f, 1);
}

TEST(GridSettlement, ALanguageChangeBetweenTheDrawingsRenamesTheLinesAndLeavesTheDigits) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 12);
  options::FirstDrawing2(h, kGridCrossing);
  ASSERT_EQ(f.Mains5(2).Caption(), "3 of KIND");
  const QString digits = Digits(f, f.GainImage);
  ASSERT_EQ(digits, "17");
  Click(h, "SSLangue(1)");
  const char* const names[12] = {"RIEN", "RIEN",    "BRELAN",  "RIEN", "RIEN",   "RIEN",
                                 "RIEN", "COULEUR", "1 PAIRE", "RIEN", "QUINTE", "1 PAIRE"};
  for (int i = 0; i < 12; ++i) EXPECT_EQ(f.Mains5(i).Caption(), names[i]) << "line " << i + 1;
  EXPECT_EQ(f.Gains5(2).Caption(), "3");
  EXPECT_EQ(f.Gains5(12).Caption(), "17");
  EXPECT_EQ(Digits(f, f.GainImage), digits);
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kSecondDrawing));
  // The second drawing names the lines in French.
  SecondDrawing(h, {});
  EXPECT_EQ(f.Mains5(7).Caption(), "COULEUR");
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageA));
}

TEST(GridSettlement, WinningsReachTheCreditOnlyWhenCollected) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::WinWaiting2(h);
  EXPECT_EQ(f.GainTirage, 40);
  EXPECT_EQ(f.Capital, 199);
  EXPECT_EQ(Digits(f, f.CapImage), "199");
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageA));
  // PLAY collects and goes straight on to the next deal's stake.
  options::FirstDrawing2(h, kGridNothing);
  EXPECT_EQ(f.Capital, 199 + 40 - 1);
  EXPECT_EQ(Digits(f, f.CapImage), "238");
  EXPECT_EQ(f.GainTirage, 0);
}

}  // namespace
