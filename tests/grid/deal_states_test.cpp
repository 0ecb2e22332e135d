// The four states of a grid deal (ready, between the drawings, won, doubling): what each
// allows and what each refuses with the alert, and the alert line's message at each moment.
#include <gtest/gtest.h>

#include "tests/grid/grid_helpers.h"

using namespace grid;
using options::ExpectRefused;

namespace {

// The bet, level and settings buttons that the rules of play refuse outside the ready state.
const char* const kBetAndSettings[] = {"Plus", "Moins", "Plus5", "Moins5", "NJokerSélection(1)", "JeuSimple"};

TEST(GridStates, ReadyAllowsPlayBetLevelAndSettingsButNoCardClick) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ExpectRefused(h, "Deal2(4)");
  Click(h, "Plus");
  Click(h, "Plus5");
  EXPECT_EQ(f.Mise, 2);
  EXPECT_EQ(f.Niveau, 2);
  Click(h, "Moins");
  Click(h, "NJokerSélection(1)");
  EXPECT_EQ(f.NbJokers, 1);
  options::FirstDrawing2(h, kGridNothing);
  EXPECT_EQ(f.Capital, 198);
}

TEST(GridStates, ReadyAgainAfterALosingDeal) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::Round2(h, kGridNothing);
  ASSERT_EQ(f.NbTirées, 50);
  ExpectRefused(h, "Deal2(4)");
  Click(h, "Plus");
  Click(h, "Moins5");
  EXPECT_EQ(f.Mise, 2);
  EXPECT_EQ(f.Niveau, 12);
  Click(h, "NJokerSélection(0)");
  EXPECT_EQ(f.NbJokers, 0);
  options::FirstDrawing2(h, kGridNothing);
  EXPECT_EQ(f.Capital, 199 - 24);
}

TEST(GridStates, BetweenTheDrawingsCardsTurnAndTheAdviceWorksButBetsAndSettingsBlink) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::FirstDrawing2(h, kGridNothing);
  for (const char* name : kBetAndSettings) ExpectRefused(h, name);
  ClickCard(h, 24);
  EXPECT_TRUE(FaceDown(f, f.Deal2(24)));
  Click(h, "Conseils5");
  EXPECT_EQ(FaceDownPositions(f).size(), 25u);
  Click(h, "AnnuleConseils5");
  EXPECT_TRUE(FaceDownPositions(f).empty());
  SecondDrawing(h, {});
}

TEST(GridStates, WonAllowsDoubleQuitAndPlayOnlyAndACardClickBlinks) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::WinWaiting2(h);
  for (const char* name : kBetAndSettings) ExpectRefused(h, name);
  ExpectRefused(h, "Deal2(3)");
  EXPECT_FALSE(f.Jouez5->Visible());
  // PLAY collects and deals again.
  options::FirstDrawing2(h, kGridNothing);
  EXPECT_EQ(f.Capital, 199 + 40 - 1);
  EXPECT_FALSE(f.Doubler5->Visible());
}

TEST(GridStates, DoublingTakesOnlyAPickAmongTheTwentyFourMaskedCards) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::Doubling2(h);
  for (const char* name : kBetAndSettings) ExpectRefused(h, name);
  ExpectRefused(h, "Deal2(0)");
  {
    const Watch w(h);
    Click(h, "Jouer");
    EXPECT_EQ(w.Slept(), kBlinkMs);
    EXPECT_EQ(f.NbTirées, 50);
    ASSERT_TRUE(f.DoubleEnCours);
  }
  h.platform.QueueDraws({Nine, Spades});
  ClickCard(h, 17);
  EXPECT_FALSE(f.DoubleEnCours);
  EXPECT_TRUE(Shows(f, 17, Card(Nine, Spades)));
  EXPECT_TRUE(f.Doubler5->Visible());
}

TEST(GridStates, MessagesAlongTheDealsInEnglish) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageC));
  options::FirstDrawing2(h, kGridFourKings);
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kSecondDrawing));
  SecondDrawing(h, {});
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageA));
  Click(h, "Quitte5X5");
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageC));
  options::Round2(h, kGridNothing);
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageC));
  EXPECT_TRUE(f.Jouez5->Visible());
}

// A: a win that covers the bet; B: a win that does not; C: nothing won, the bet covered;
// D: nothing won, the bet not covered; E: nothing won and no credit.
TEST(GridStates, MessagesAToEInFrench) {
  struct Case {
    const char* name;
    int mise;
    int level;
    int capital;  // before the deal
    Grid grid;
    const Text* message;
  };
  const Case cases[] = {
      {"A", 2, 1, 10, kGridFourKings, &kMessageA}, {"B", 1, 10, 10, kGridWheel, &kMessageB},
      {"C", 2, 1, 10, kGridNothing, &kMessageC},   {"D", 2, 1, 3, kGridNothing, &kMessageD},
      {"E", 2, 1, 2, kGridNothing, &kMessageE},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    Harness h;
    JeuPoker& f = *h.form;
    Click(h, "SSLangue(1)");
    options::ToGrid(h);
    ChooseMise(h, c.mise);
    ChooseLevel(h, c.level);
    h.Drive({"set Capital " + QString::number(c.capital)});
    options::Round2(h, c.grid);
    EXPECT_EQ(f.SSAlertes->Caption(), QString::fromUtf8(c.message->fr));
    const bool won = c.message == &kMessageA || c.message == &kMessageB;
    EXPECT_EQ(f.Doubler5->Visible(), won);
    EXPECT_EQ(f.Jouez5->Visible(), c.message == &kMessageC);
  }
}

}  // namespace
