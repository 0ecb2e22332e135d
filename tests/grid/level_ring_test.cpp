// The bet level of the grid, 1 to 12 lines from line 1 upward: the two buttons form a ring,
// the steps that raise the stake are refused silently when the credit does not cover them,
// refusals by the rules of play blink, and the pointers follow the credit.
#include <gtest/gtest.h>

#include "tests/grid/grid_helpers.h"

using namespace grid;

namespace {

TEST(GridLevel, PlusPutsTheLinesInPlayOneByOneFromLineOne) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseMise(h, 3);
  ExpectLinesInPlay(f, 1);
  for (int level = 2; level <= 12; ++level) {
    SCOPED_TRACE("level " + std::to_string(level));
    Click(h, "Plus5");
    EXPECT_EQ(f.Niveau, level);
    EXPECT_EQ(f.UnADouze->Caption(), QString::number(level));
    EXPECT_EQ(Digits(f, f.UnàDouzeImage), QString::number(level));
    EXPECT_EQ(f.Mises->Caption(), QString::number(3 * level));
    EXPECT_EQ(Digits(f, f.MiseImage), QString::number(3 * level));
    ExpectLinesInPlay(f, level);
  }
  for (int level = 11; level >= 1; --level) {
    Click(h, "Moins5");
    EXPECT_EQ(f.Niveau, level);
    EXPECT_EQ(f.Mises->Caption(), QString::number(3 * level));
    ExpectLinesInPlay(f, level);
  }
}

TEST(GridLevel, MinusAtOneWrapsToTwelveOnlyWhenTheCreditCoversTwelveLines) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseMise(h, 10);
  h.Drive({"set Capital 100"});
  options::ExpectIgnored(h, "Moins5");
  EXPECT_EQ(f.Niveau, 1);
  h.Drive({"set Capital 120"});
  Click(h, "Moins5");
  EXPECT_EQ(f.Niveau, 12);
  EXPECT_EQ(f.UnADouze->Caption(), "12");
  EXPECT_EQ(f.Mises->Caption(), "120");
  EXPECT_EQ(Digits(f, f.MiseImage), "120");
  ExpectLinesInPlay(f, 12);
}

TEST(GridLevel, PlusAtTwelveWrapsToOneWhateverTheCredit) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseMise(h, 2);
  Click(h, "Moins5");
  ASSERT_EQ(f.Niveau, 12);
  // A credit far below the stake of twelve lines, even below one line's.
  h.Drive({"set Capital 1"});
  Click(h, "Plus5");
  EXPECT_EQ(f.Niveau, 1);
  EXPECT_EQ(f.UnADouze->Caption(), "1");
  EXPECT_EQ(f.Mises->Caption(), "2");
  ExpectLinesInPlay(f, 1);
}

TEST(GridLevel, PlusBeyondTheCreditChangesNothingSilently) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseMise(h, 5);
  ChooseLevel(h, 3);
  h.Drive({"set Capital 19"});
  options::ExpectIgnored(h, "Plus5");
  EXPECT_EQ(f.Niveau, 3);
  h.Drive({"set Capital 20"});
  Click(h, "Plus5");
  EXPECT_EQ(f.Niveau, 4);
  // Stepping down never needs credit.
  h.Drive({"set Capital 1"});
  Click(h, "Moins5");
  EXPECT_EQ(f.Niveau, 3);
  ExpectLinesInPlay(f, 3);
}

TEST(GridLevel, LevelChangesBetweenTheDrawingsBlinkAndChangeNothing) {
  Harness h;
  options::ToGrid(h);
  ChooseLevel(h, 3);
  options::FirstDrawing2(h, kGridNothing);
  options::ExpectRefused(h, "Plus5");
  options::ExpectRefused(h, "Moins5");
  EXPECT_EQ(h.form->Niveau, 3);
}

TEST(GridLevel, LevelChangesWhileAWinWaitsDuringTheDoubleUpOrWithoutCreditBlink) {
  {
    Harness h;
    options::ToGrid(h);
    options::WinWaiting2(h);
    options::ExpectRefused(h, "Plus5");
    options::ExpectRefused(h, "Moins5");
  }
  {
    Harness h;
    options::ToGrid(h);
    options::Doubling2(h);
    options::ExpectRefused(h, "Plus5");
    options::ExpectRefused(h, "Moins5");
  }
  {
    Harness h;
    options::ToGrid(h);
    options::NoCredit2(h);
    options::ExpectRefused(h, "Plus5");
    options::ExpectRefused(h, "Moins5");
  }
}

TEST(GridLevel, AfterADealTheLevelChangesAgain) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::Round2(h, kGridNothing);
  ASSERT_FALSE(f.Doubler5->Visible());
  Click(h, "Plus5");
  EXPECT_EQ(f.Niveau, 2);
  ExpectLinesInPlay(f, 2);
}

TEST(GridLevel, InTheClassicGameTheLevelButtonsCannotBeReached) {
  Harness h;
  JeuPoker& f = *h.form;
  EXPECT_EQ(h.Drive1("click Plus5"), "error: Plus5 cannot be reached");
  EXPECT_EQ(h.Drive1("click Moins5"), "error: Moins5 cannot be reached");
  options::Round1(h, options::kHandNothing);
  EXPECT_EQ(h.Drive1("click Moins5"), "error: Moins5 cannot be reached");
  EXPECT_EQ(f.Niveau, 1);
  // In the grid they are there.
  options::ToGrid(h);
  Click(h, "Plus5");
  EXPECT_EQ(f.Niveau, 2);
}

TEST(GridLevel, PointersFollowTheCreditOfTheStepThatRaisesTheStake) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseMise(h, 10);
  ChooseLevel(h, 2);
  f.Plus5->SetMousePointer(10);
  h.Drive({"set Capital 29", "move Plus5"});
  EXPECT_EQ(f.Plus5->MousePointer(), 12);
  h.Drive({"set Capital 30", "move Plus5"});
  EXPECT_EQ(f.Plus5->MousePointer(), 10);
  // Moins5 tells only at level 1, where it wraps to twelve lines; above, it is left alone.
  f.Moins5->SetMousePointer(12);
  h.Drive({"set Capital 10", "move Moins5"});
  EXPECT_EQ(f.Moins5->MousePointer(), 12);
  Click(h, "Moins5");
  ASSERT_EQ(f.Niveau, 1);
  f.Moins5->SetMousePointer(10);
  h.Drive({"set Capital 119", "move Moins5"});
  EXPECT_EQ(f.Moins5->MousePointer(), 12);
  h.Drive({"set Capital 120", "move Moins5"});
  EXPECT_EQ(f.Moins5->MousePointer(), 10);
  // Between the drawings the pointer is left as it is.
  options::FirstDrawing2(h, kGridNothing);
  f.Plus5->SetMousePointer(10);
  h.Drive({"set Capital 0", "move Plus5"});
  EXPECT_EQ(f.Plus5->MousePointer(), 10);
}

}  // namespace
