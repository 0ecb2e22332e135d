// The choice between JEU 1 and JEU 2: what each button sets on the frame, what passes from
// one game to the other, the level's return to 1, and the refusals.
#include <gtest/gtest.h>

#include "tests/interface/options_helpers.h"

using namespace options;

namespace {

constexpr Long kSelectedLabel = 0xFFFFFF;
constexpr Long kOtherLabel = 0x808080;

// The frame as JEU 2 lays it.
void ExpectGridFrame(const JeuPoker& f) {
  EXPECT_EQ(f.JeuSimple->BevelWidth(), 7);
  EXPECT_EQ(f.JeuSimple->MousePointer(), 10);
  EXPECT_EQ(f.Jeu3D->BevelWidth(), 1);
  EXPECT_EQ(f.Jeu3D->MousePointer(), 12);
  EXPECT_EQ(f.SSJeuSimple->BackColor(), 0);
  EXPECT_EQ(f.SSJeu3D->BackColor(), 255);
  EXPECT_EQ(f.Jeu3DLabel->ForeColor(), kSelectedLabel);
  EXPECT_EQ(f.JeuSimpleLabel->ForeColor(), kOtherLabel);
  EXPECT_EQ(f.Jeu3DLabel->BackColor(), 0x404080);
  EXPECT_EQ(f.JeuSimpleLabel->BackColor(), 0x404080);
  for (const Control* c : {f.ParesseNon, f.ParesseOui}) {
    EXPECT_EQ(c->MousePointer(), 12) << c->Name().toStdString();
    EXPECT_EQ(c->BevelWidth(), 3) << c->Name().toStdString();
  }
  EXPECT_FALSE(f.PParesseNon->Visible());
  EXPECT_FALSE(f.PParesseOui->Visible());
  EXPECT_FALSE(f.SSAireJeu->Visible());
  EXPECT_TRUE(f.SSAireJeu5->Visible());
  EXPECT_EQ(f.SSTirage->Top(), 3765);
  EXPECT_EQ(f.SSMises->Height(), 4245);
  EXPECT_TRUE(f.SSGains->Visible());
  EXPECT_EQ(f.SSGains->Left(), 7275);
  EXPECT_EQ(f.SSGains->Top(), 4935);
  EXPECT_EQ(f.SSGains->Width(), 3870);
  EXPECT_EQ(f.SSGains->Height(), 2880);
  EXPECT_FALSE(f.PourCentLabel->Visible());
  for (int i = 0; i <= 9; ++i) {
    EXPECT_FALSE(f.PourcDéc(i).Visible()) << i;
    EXPECT_FALSE(f.Pourcentages(i).Visible()) << i;
    EXPECT_EQ(f.Fréquence(i).Left(), 3075) << i;
  }
  EXPECT_EQ(f.FréquenceTitre->Left(), 3075);
}

// The frame as JEU 1 lays it.
void ExpectClassicFrame(const JeuPoker& f) {
  EXPECT_EQ(f.JeuSimple->BevelWidth(), 1);
  EXPECT_EQ(f.JeuSimple->MousePointer(), 12);
  EXPECT_EQ(f.Jeu3D->BevelWidth(), 7);
  EXPECT_EQ(f.Jeu3D->MousePointer(), 10);
  EXPECT_EQ(f.SSJeuSimple->BackColor(), 255);
  EXPECT_EQ(f.SSJeu3D->BackColor(), 0);
  EXPECT_EQ(f.JeuSimpleLabel->ForeColor(), kSelectedLabel);
  EXPECT_EQ(f.Jeu3DLabel->ForeColor(), kOtherLabel);
  EXPECT_EQ(f.Jeu3DLabel->BackColor(), 0x404080);
  EXPECT_EQ(f.JeuSimpleLabel->BackColor(), 0x404080);
  EXPECT_TRUE(f.SSAireJeu->Visible());
  EXPECT_FALSE(f.SSAireJeu5->Visible());
  EXPECT_EQ(f.SSTirage->Top(), 3000);
  EXPECT_EQ(f.SSMises->Height(), 3465);
  EXPECT_TRUE(f.SSGains->Visible());
  EXPECT_EQ(f.SSGains->Left(), 0);
  EXPECT_EQ(f.SSGains->Top(), 630);
  EXPECT_EQ(f.SSGains->Width(), 6465);
  EXPECT_EQ(f.SSGains->Height(), 3465);
  EXPECT_TRUE(f.PourCentLabel->Visible());
  for (int i = 0; i <= 9; ++i) {
    EXPECT_TRUE(f.PourcDéc(i).Visible()) << i;
    EXPECT_TRUE(f.Pourcentages(i).Visible()) << i;
    EXPECT_EQ(f.Fréquence(i).Left(), 5670) << i;
  }
  EXPECT_EQ(f.FréquenceTitre->Left(), 5670);
}

TEST(GameSwitch, ToTheGridLaysItsFrameAfterAClassicRound) {
  Harness h;
  JeuPoker& f = *h.form;
  Round1(h, kHandNothing);
  ASSERT_NE(f.CartesSorties(1), -1);
  ASSERT_EQ(f.Jouez(0).Caption(), f.MotCarteGardée());
  f.Jouer->SetFocus();
  const Watch w(h);
  Click(h, "Jeu3D");
  ExpectGridFrame(f);
  EXPECT_EQ(w.Yields(), 1);
  EXPECT_EQ(w.Slept(), 0);
  EXPECT_EQ(f.NbTirées, 0);
  for (int k = 1; k <= 50; ++k) EXPECT_EQ(f.CartesSorties(k), -1) << k;
  EXPECT_EQ(f.Gains->Caption(), "");
  for (int i = 0; i <= 7; ++i) EXPECT_FALSE(f.GainImage(i).Visible()) << i;
  EXPECT_EQ(f.RangMain, 10);
  ExpectPanelAtRest(f, 2);
  for (int i = 0; i <= 4; ++i) {
    EXPECT_EQ(f.Jouez(i).BackColor(), 0x808000) << i;
    EXPECT_EQ(f.Jouez(i).Caption(), "PLAY") << i;
  }
  EXPECT_EQ(f.GainTirage, 0);
  EXPECT_EQ(f.SSAlertes->Caption(), kNewDrawingEn);
  EXPECT_EQ(f.focusWidget(), f.Tirage);
  EXPECT_TRUE(GridCovered(f));
}

TEST(GameSwitch, FrenchPlayWordOnTheHoldPanels) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "SSLangue(1)");
  Round1(h, kHandNothing);
  Click(h, "Jeu3D");
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(f.Jouez(i).Caption(), "JOUEZ") << i;
  EXPECT_EQ(f.SSAlertes->Caption(), kNewDrawingFr);
}

TEST(GameSwitch, CountHeadFollowsTheJokersInTheGrid) {
  for (int jokers : {0, 1}) {
    SCOPED_TRACE(jokers);
    Harness h;
    Click(h, QStringLiteral("NJokerSélection(%1)").arg(jokers));
    Round1(h, kHandNothing);
    Click(h, "Jeu3D");
    ExpectPanelAtRest(*h.form, jokers);
  }
}

TEST(GameSwitch, HighlightedPayRowIsPutBack) {
  Harness h;
  JeuPoker& f = *h.form;
  f.MainLabel(4).SetForeColor(255);
  f.MainLabel(4).SetBackColor(255);
  f.Maintitre(4).SetForeColor(255);
  f.Maintitre(4).SetBackColor(255);
  Click(h, "Jeu3D");
  for (int i = 0; i <= 9; ++i) {
    EXPECT_EQ(f.MainLabel(i).ForeColor(), 0xFFFFFF) << i;
    EXPECT_EQ(f.MainLabel(i).BackColor(), 0) << i;
    EXPECT_EQ(f.Maintitre(i).ForeColor(), 0xFFFFFF) << i;
    EXPECT_EQ(f.Maintitre(i).BackColor(), 0) << i;
  }
}

TEST(GameSwitch, BackToTheClassicGameLaysItsFrameAndPutsTheLevelBackToOne) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "SSLangue(0)");
  Click(h, "ParesseNon");  // manual selection before the visit to JEU 2
  ASSERT_EQ(f.ParesseNon->BevelWidth(), 0);
  ToGrid(h);
  Click(h, "Plus");
  Click(h, "Plus");    // Mise 3
  Click(h, "Moins5");  // Niveau 1 wraps to 12
  ASSERT_EQ(f.Niveau, 12);
  Round2(h, kGridNothing);
  ASSERT_EQ(f.Mains5(11).Caption(), "NOTHING");
  ASSERT_FALSE(f.Doubler5->Visible());
  f.Jouer->SetFocus();
  const Watch w(h);
  Click(h, "JeuSimple");
  ExpectClassicFrame(f);
  // One yield after each of the 25 grid cards, and at most one more where SSGains is shown
  // again, as JEU 2's side does.
  EXPECT_GE(w.Yields(), 25);
  EXPECT_LE(w.Yields(), 26);
  EXPECT_EQ(w.Slept(), 0);
  EXPECT_EQ(f.ParesseOui->BevelWidth(), 0);
  EXPECT_EQ(f.ParesseOui->MousePointer(), 12);
  EXPECT_EQ(f.ParesseNon->BevelWidth(), 3);
  EXPECT_EQ(f.ParesseNon->MousePointer(), 10);
  EXPECT_TRUE(f.PParesseOui->Visible());
  EXPECT_FALSE(f.PParesseNon->Visible());
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(f.ImageConseils(i).GetPicture(), f.ParesseOui->GetPicture()) << i;
  EXPECT_TRUE(GridCovered(f));
  EXPECT_EQ(f.NbTirées, 0);
  for (int k = 1; k <= 50; ++k) EXPECT_EQ(f.CartesSorties(k), -1) << k;
  ExpectPanelAtRest(f, 2);
  EXPECT_EQ(f.Mains5(0).Caption(), "");
  EXPECT_EQ(f.Gains5(0).Caption(), "");
  EXPECT_TRUE(f.Mains5(0).Visible());
  for (int i = 1; i <= 11; ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(f.Mains5(i).Caption(), "");
    EXPECT_EQ(f.Gains5(i).Caption(), "");
    EXPECT_FALSE(f.Mains5(i).Visible());
    EXPECT_FALSE(f.Gains5(i).Visible());
    EXPECT_FALSE(f.UnADouzeLine(i).Visible());
    EXPECT_EQ(f.UnADouzeTémoin(i).BackColor(), 0x808080);
  }
  EXPECT_EQ(f.Gains5(12).Caption(), "");
  EXPECT_TRUE(f.Jouez5->Visible());
  EXPECT_EQ(f.Niveau, 1);
  EXPECT_EQ(f.UnADouze->Caption(), "1");
  EXPECT_EQ(f.UnàDouzeImage(0).GetPicture(), f.ChiffresModèle(21).GetPicture());
  EXPECT_FALSE(f.UnàDouzeImage(1).Visible());
  EXPECT_EQ(f.Mise, 3);
  EXPECT_EQ(f.Mises->Caption(), "3");
  EXPECT_EQ(f.MiseImage(0).GetPicture(), f.ChiffresModèle(23).GetPicture());
  EXPECT_FALSE(f.MiseImage(1).Visible());
  EXPECT_EQ(f.Gains->Caption(), "");
  EXPECT_EQ(f.RangMain, 10);
  EXPECT_EQ(f.GainTirage, 0);
  EXPECT_EQ(f.SSAlertes->Caption(), kNewDrawingEn);
  EXPECT_FALSE(f.SSConseils5->Visible());
  EXPECT_EQ(f.focusWidget(), f.Tirage);
}

TEST(GameSwitch, FromLevelTwelveTheClassicGameStakesTheBetAloneAndTheGridComesBackWithOneLine) {
  Harness h;
  JeuPoker& f = *h.form;
  ToGrid(h);
  Click(h, "Plus");  // Mise 2
  Click(h, "Moins5");
  ASSERT_EQ(f.Niveau, 12);
  ASSERT_EQ(f.Mises->Caption(), "24");
  Click(h, "JeuSimple");
  EXPECT_EQ(f.Niveau, 1);
  EXPECT_EQ(f.Mises->Caption(), "2");
  FirstDrawing1(h, kHandNothing);
  EXPECT_EQ(f.Capital, 198);
  HoldAll(h);
  Click(h, "Jouer");
  Click(h, "Jeu3D");
  EXPECT_EQ(f.Niveau, 1);
  EXPECT_EQ(f.UnADouze->Caption(), "1");
  EXPECT_EQ(f.Mises->Caption(), "2");
  EXPECT_TRUE(f.UnADouzeLine(0).Visible());
  EXPECT_EQ(f.UnADouzeTémoin(0).BackColor(), 0x00FFFF);
  for (int i = 1; i <= 11; ++i) {
    EXPECT_FALSE(f.Mains5(i).Visible()) << i;
    EXPECT_FALSE(f.UnADouzeLine(i).Visible()) << i;
    EXPECT_EQ(f.UnADouzeTémoin(i).BackColor(), 0x808080) << i;
  }
  FirstDrawing2(h, kGridNothing);
  EXPECT_EQ(f.Capital, 196);
  EXPECT_NE(f.Gains5(0).Caption(), "");
  for (int i = 1; i <= 11; ++i) EXPECT_EQ(f.Gains5(i).Caption(), "") << i;
}

TEST(GameSwitch, CreditBetJokersAndTallyPassFromOneGameToTheOther) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "NJokerSélection(1)");
  ToGrid(h);
  Click(h, "Plus");  // Mise 2
  WinWaiting2(h);
  ASSERT_EQ(f.GainTirage, 80);
  Click(h, "Quitte5X5");
  ASSERT_EQ(f.Capital, 278);
  ASSERT_EQ(f.Fréquences(6), 1);
  Click(h, "JeuSimple");
  EXPECT_EQ(f.Capital, 278);
  EXPECT_EQ(f.Mise, 2);
  EXPECT_EQ(f.NbJokers, 1);
  EXPECT_EQ(f.TailleJeu, 53);
  EXPECT_EQ(f.Fréquences(6), 1);
  EXPECT_EQ(f.Fréquence(6).Caption(), "1");
  // The classic round adds to the same tally.
  Round1(h, kHandKings);
  EXPECT_EQ(f.Fréquences(0), 1);
  EXPECT_EQ(f.Fréquences(6), 1);
}

TEST(GameSwitch, TheGameInForceStopsSilently) {
  Harness h;
  ExpectIgnored(h, "JeuSimple");
  Round1(h, kHandNothing);
  ExpectIgnored(h, "JeuSimple");
  ToGrid(h);
  ExpectIgnored(h, "Jeu3D");
  Round2(h, kGridNothing);
  ExpectIgnored(h, "Jeu3D");
}

TEST(GameSwitch, AutomaticModeIsNoReasonToRefuse) {
  Harness h;
  JeuPoker& f = *h.form;
  f.AutoPlay->SetBevelWidth(0);
  const Watch w(h);
  Click(h, "Jeu3D");
  EXPECT_EQ(w.Slept(), 0);
  EXPECT_EQ(f.Jeu3D->BevelWidth(), 1);
  EXPECT_TRUE(f.SSAireJeu5->Visible());
}

TEST(GameSwitch, WinWaitingBlocksTheGridUntilQuit) {
  Harness h;
  JeuPoker& f = *h.form;
  WinWaiting1(h);
  ExpectRefused(h, "Jeu3D");
  Click(h, "Quitte1X5");
  EXPECT_EQ(f.Capital, 200);
  Click(h, "Jeu3D");
  EXPECT_EQ(f.Jeu3D->BevelWidth(), 1);
  EXPECT_TRUE(f.SSAireJeu5->Visible());
}

TEST(GameSwitch, GridWinWaitingBlocksTheClassicGameUntilQuit) {
  Harness h;
  JeuPoker& f = *h.form;
  ToGrid(h);
  WinWaiting2(h);
  ExpectRefused(h, "JeuSimple");
  Click(h, "Quitte5X5");
  Click(h, "JeuSimple");
  EXPECT_EQ(f.JeuSimple->BevelWidth(), 1);
  EXPECT_TRUE(f.SSAireJeu->Visible());
}

TEST(GameSwitch, NoCreditKeepsTheGameUntilANewGame) {
  Harness h;
  JeuPoker& f = *h.form;
  NoCredit1(h);
  ExpectRefused(h, "Jeu3D");
  Click(h, "SSRecommence");
  EXPECT_EQ(f.Capital, 200);
  Click(h, "Jeu3D");
  EXPECT_EQ(f.Jeu3D->BevelWidth(), 1);
  EXPECT_TRUE(f.SSAireJeu5->Visible());
}

TEST(GameSwitch, NoCreditKeepsTheGridUntilANewGame) {
  Harness h;
  JeuPoker& f = *h.form;
  ToGrid(h);
  NoCredit2(h);
  ExpectRefused(h, "JeuSimple");
  Click(h, "SSRecommence");
  Click(h, "JeuSimple");
  EXPECT_EQ(f.JeuSimple->BevelWidth(), 1);
  EXPECT_TRUE(f.SSAireJeu->Visible());
}

// Each refusing situation blinks and changes nothing, for the other game's button and for
// the button of the game in force alike: the refusals come before the test of the game.
class GameSwitchRefused : public ::testing::TestWithParam<size_t> {};

TEST_P(GameSwitchRefused, BlinksAndChangesNothing) {
  const Refusing& s = RefusingSituations()[GetParam()];
  Harness h;
  s.reach(h);
  ASSERT_FALSE(HasFatalFailure());
  ExpectRefused(h, s.grid ? "JeuSimple" : "Jeu3D");
  ExpectRefused(h, s.grid ? "Jeu3D" : "JeuSimple");
}

INSTANTIATE_TEST_SUITE_P(Situations, GameSwitchRefused, ::testing::Range<size_t>(0, RefusingSituations().size()),
                         RefusingName);

}  // namespace
