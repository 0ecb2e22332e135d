// The choice of 52, 53 or 54 cards: deck size, pay table, odds at rest, the three buttons,
// the grid's fixed line scale, and the refusals.
#include <gtest/gtest.h>

#include "tests/interface/options_helpers.h"

using namespace options;

namespace {

void ExpectJokers(const JeuPoker& f, int jokers) {
  EXPECT_EQ(f.NbJokers, jokers);
  EXPECT_EQ(f.TailleJeu, 52 + jokers);
  for (int i = 0; i <= 2; ++i) {
    EXPECT_EQ(f.NJokerSélection(i).BevelWidth(), i == jokers ? 0 : 3) << i;
    EXPECT_EQ(f.NJokerSélection(i).MousePointer(), i == jokers ? 12 : 10) << i;
  }
}

void ExpectPayTable(const JeuPoker& f, int jokers) {
  for (int i = 0; i <= 9; ++i) {
    EXPECT_EQ(f.TableGains(i), kTableGains[jokers][i]) << i;
    EXPECT_EQ(f.MainLabel(i).Caption(), QString::number(kTableGains[jokers][i] * f.Mise)) << i;
  }
}

TEST(JokerChoice, FiftyFourCardsAreSelectedAtStart) {
  Harness h;
  ExpectJokers(*h.form, 2);
  ExpectPayTable(*h.form, 2);
}

TEST(JokerChoice, DeckPayTableAndButtonsFollowTheChoice) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "Plus");  // Mise 2: the pay table states what the bet earns
  for (int jokers : {0, 1, 2, 0}) {
    SCOPED_TRACE(jokers);
    f.SSLangue(0).SetFocus();
    const Watch w(h);
    Click(h, QStringLiteral("NJokerSélection(%1)").arg(jokers));
    EXPECT_EQ(w.Slept(), 0);
    ExpectJokers(f, jokers);
    ExpectPayTable(f, jokers);
    EXPECT_EQ(f.focusWidget(), f.Tirage);
  }
}

TEST(JokerChoice, OddsAtRestFollowTheChoice) {
  Harness h;
  for (int jokers : {0, 1, 2, 0, 2}) {
    SCOPED_TRACE(jokers);
    Click(h, QStringLiteral("NJokerSélection(%1)").arg(jokers));
    ExpectPanelAtRest(*h.form, jokers);
  }
}

TEST(JokerChoice, TheSelectedButtonChangesNothing) {
  Harness h;
  ExpectIgnored(h, "NJokerSélection(2)");
  Click(h, "NJokerSélection(0)");
  ExpectIgnored(h, "NJokerSélection(0)");
}

TEST(JokerChoice, ChangedBetweenClassicDealsTheNextDealUsesTheNewDeck) {
  Harness h;
  JeuPoker& f = *h.form;
  Round1(h, kHandNothing);
  ASSERT_EQ(f.UnSur->Caption(), "");  // the panel is blank after the second drawing
  Click(h, "NJokerSélection(0)");
  ExpectJokers(f, 0);
  ExpectPayTable(f, 0);
  ExpectPanelAtRest(f, 0);
  // A joker code is no longer in the deck.
  h.platform.QueueDraws({52});
  h.Drive({"click Jouer"});
  ASSERT_EQ(h.platform.drawErrors.size() + h.output.size(), 1u);
  EXPECT_EQ(h.output.value(0), "error: draw 52 is not below 52; drawn at random");
  EXPECT_EQ(f.NbTirées, 5);
}

TEST(JokerChoice, ChangedBetweenGridDealsTheLineScaleStaysWhileThePayTableFollows) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "SSLangue(0)");
  ToGrid(h);
  Click(h, "Plus");  // Mise 2
  Long capital = f.Capital;
  for (int jokers : {2, 0, 1}) {
    SCOPED_TRACE(jokers);
    Click(h, QStringLiteral("NJokerSélection(%1)").arg(jokers));
    ExpectJokers(f, jokers);
    ExpectPayTable(f, jokers);
    WinWaiting2(h);
    EXPECT_EQ(f.Mains5(0).Caption(), "4 of KIND");
    EXPECT_EQ(f.Gains5(0).Caption(), "80");
    EXPECT_EQ(f.GainTirage, 80);
    Click(h, "Quitte5X5");
    capital += 80 - 2;
    EXPECT_EQ(f.Capital, capital);
  }
}

// Each refusing situation blinks and changes nothing.
class JokerChoiceRefused : public ::testing::TestWithParam<size_t> {};

TEST_P(JokerChoiceRefused, BlinksAndChangesNothing) {
  const Refusing& s = RefusingSituations()[GetParam()];
  Harness h;
  s.reach(h);
  ASSERT_FALSE(HasFatalFailure());
  ExpectRefused(h, "NJokerSélection(0)");
  ExpectRefused(h, "NJokerSélection(1)");
  // The refusals come before the test of the button already selected.
  ExpectRefused(h, "NJokerSélection(2)");
}

INSTANTIATE_TEST_SUITE_P(Situations, JokerChoiceRefused, ::testing::Range<size_t>(0, RefusingSituations().size()),
                         RefusingName);

}  // namespace
