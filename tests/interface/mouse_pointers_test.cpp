// The mouse pointers: over the bet buttons, and at the end of a drawing or of a deal.
#include <gtest/gtest.h>

#include "tests/support/harness.h"

namespace {

struct Pointers : ::testing::Test {
  Harness h;
  JeuPoker& f = *h.form;
  void SetUp() override {
    f.Capital = 200;
    f.Mise = 1;
    f.Niveau = 1;
  }
  std::vector<Control*> Listés() {
    return {&f.NJokerSélection(0),
            &f.NJokerSélection(1),
            &f.NJokerSélection(2),
            f.Jeu3D,
            f.JeuSimple,
            f.Moins,
            f.Moins5,
            f.ParesseNon,
            f.ParesseOui,
            f.Plus,
            f.Plus5};
  }
  void ToutÀ(int p) {
    for (Control* c : Listés()) c->SetMousePointer(p);
    for (Control* c :
         {f.Jouer, f.Double1X5, f.Double5X5, f.Quitte1X5, f.Quitte5X5, f.AutoPlay, f.AutoPlayStop, f.SSRecommence})
      c->SetMousePointer(p);
  }
};

}  // namespace

// ---- Over the bet buttons -------------------------------------------------------------------

TEST_F(Pointers, PlusTurnsToNoEntryWhenTheNextBetIsNotCovered) {
  f.Capital = 1;
  f.Plus->SetMousePointer(10);
  h.Drive({"move Plus"});
  EXPECT_EQ(h.Drive1("get Plus.MousePointer"), "Plus.MousePointer=12");
  f.Capital = 2;
  h.Drive({"move Plus"});
  EXPECT_EQ(f.Plus->MousePointer(), 10);
}

TEST_F(Pointers, PlusCountsTheLevel) {
  f.Capital = 6;
  f.Niveau = 3;
  f.Mise = 2;
  f.Plus->SetMousePointer(10);
  h.Drive({"move Plus"});
  EXPECT_EQ(f.Plus->MousePointer(), 12);
  f.Mise = 1;
  h.Drive({"move Plus"});
  EXPECT_EQ(f.Plus->MousePointer(), 10);
}

TEST_F(Pointers, PlusAtFortyKeepsItsPointer) {
  f.Mise = 40;
  f.Capital = 1;
  f.Plus->SetMousePointer(12);
  h.Drive({"move Plus"});
  EXPECT_EQ(f.Plus->MousePointer(), 12);
  f.Plus->SetMousePointer(10);
  h.Drive({"move Plus"});
  EXPECT_EQ(f.Plus->MousePointer(), 10);
}

TEST_F(Pointers, OnlyTheArrowAndTheNoEntryAreSwapped) {
  f.Capital = 1;
  f.Plus->SetMousePointer(0);
  h.Drive({"move Plus"});
  EXPECT_EQ(f.Plus->MousePointer(), 0);
  f.Moins->SetMousePointer(99);
  h.Drive({"move Moins"});
  EXPECT_EQ(f.Moins->MousePointer(), 99);
}

TEST_F(Pointers, MoinsAtOneLooksAtFortyTimesTheLevel) {
  f.Niveau = 12;
  f.Capital = 479;
  f.Moins->SetMousePointer(10);
  h.Drive({"move Moins"});
  EXPECT_EQ(h.Drive1("get Moins.MousePointer"), "Moins.MousePointer=12");
  f.Capital = 480;
  h.Drive({"move Moins"});
  EXPECT_EQ(f.Moins->MousePointer(), 10);
}

TEST_F(Pointers, MoinsAboveOneKeepsItsPointer) {
  f.Mise = 2;
  f.Capital = 1;
  f.Moins->SetMousePointer(10);
  h.Drive({"move Moins"});
  EXPECT_EQ(f.Moins->MousePointer(), 10);
  f.Capital = 500;
  f.Moins->SetMousePointer(12);
  h.Drive({"move Moins"});
  EXPECT_EQ(f.Moins->MousePointer(), 12);
}

TEST_F(Pointers, RefusalsLeaveTheBetPointersAlone) {
  f.Capital = 1;
  f.Plus->SetMousePointer(10);
  f.Moins->SetMousePointer(10);
  for (int k = 0; k < 5; ++k) {
    f.DoubleEnCours = k == 0;
    f.NbTirées = k == 1 ? 5 : k == 2 ? 25 : 0;
    f.Doubler->SetVisible(k == 3);
    f.Doubler5->SetVisible(k == 4);
    h.Drive({"move Plus", "move Moins"});
    EXPECT_EQ(f.Plus->MousePointer(), 10) << k;
    EXPECT_EQ(f.Moins->MousePointer(), 10) << k;
  }
  f.Doubler5->SetVisible(false);
  f.Capital = 0;
  f.Plus->SetMousePointer(12);
  h.Drive({"move Plus"});
  EXPECT_EQ(f.Plus->MousePointer(), 12);
}

TEST_F(Pointers, MovingDoesNotChangeTheBetNorBlink) {
  f.Capital = 1;
  h.platform.sleptMs = 0;
  f.DoubleEnCours = true;
  h.Drive({"move Plus", "move Moins"});
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(h.platform.sleptMs, 0);
}

// ---- Pointeur12 -----------------------------------------------------------------------------

TEST_F(Pointers, Pointeur12BlocksTheBetAndTheOptions) {
  ToutÀ(10);
  f.NbTirées = 5;
  f.Pointeur12();
  for (Control* c : Listés()) EXPECT_EQ(c->MousePointer(), 12) << c->FullName().toStdString();
  EXPECT_EQ(f.Jouer->MousePointer(), 10);
  EXPECT_EQ(f.SSRecommence->MousePointer(), 10);
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 3);
}

TEST_F(Pointers, Pointeur12LeavesPointersAloneWhileAutomaticModeRuns) {
  ToutÀ(10);
  f.AutoPlay->SetBevelWidth(0);
  f.NbTirées = 5;
  f.Pointeur12();
  for (Control* c : Listés()) EXPECT_EQ(c->MousePointer(), 10);
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 0);
}

namespace {
void EnMarche(JeuPoker& f) {
  f.AutoPlay->SetBevelWidth(0);
  f.AutoPlay->SetForeColor(255);
  f.AutoPlay->SetBackColor(6645093);
  f.AutoPlay->SetMousePointer(12);
  f.AutoPlayStop->SetBevelWidth(3);
  f.AutoPlayStop->SetForeColor(192);
  f.AutoPlayStop->SetMousePointer(10);
  f.AutoPlayTimer->SetEnabled(true);
  f.SSRecommence->SetMousePointer(12);
}
}  // namespace

TEST_F(Pointers, GameOverPutsAutomaticModeAtRest) {
  for (int n : {10, 50}) {
    ToutÀ(10);
    EnMarche(f);
    f.NbTirées = static_cast<Byte>(n);
    f.Capital = 0;
    f.Gains->SetCaption("");
    f.Pointeur12();
    EXPECT_EQ(h.Drive1("get AutoPlay.BevelWidth"), "AutoPlay.BevelWidth=3");
    EXPECT_EQ(f.AutoPlay->MousePointer(), 12);
    EXPECT_EQ(f.AutoPlay->ForeColor(), 0);
    EXPECT_EQ(f.AutoPlay->BackColor(), 0x656565);
    EXPECT_EQ(f.AutoPlayStop->MousePointer(), 12);
    EXPECT_EQ(f.AutoPlayStop->BevelWidth(), 0);
    EXPECT_EQ(f.AutoPlayStop->ForeColor(), 0x0000C0);
    EXPECT_EQ(h.Drive1("get AutoPlayTimer.Enabled"), "AutoPlayTimer.Enabled=0");
    EXPECT_EQ(f.SSRecommence->MousePointer(), 10);
    // The mode is now at rest, so the bet and the options are blocked too.
    for (Control* c : Listés()) EXPECT_EQ(c->MousePointer(), 12) << n;
  }
}

TEST_F(Pointers, GameOverFromIdleAlsoDarkensAutoPlay) {
  ToutÀ(10);
  f.NbTirées = 10;
  f.Capital = 0;
  f.Pointeur12();
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 3);
  EXPECT_EQ(f.AutoPlay->ForeColor(), 0);
  EXPECT_EQ(f.AutoPlay->BackColor(), 0x656565);
  EXPECT_EQ(f.AutoPlayStop->ForeColor(), 192);
}

TEST_F(Pointers, APendingWinIsNotTheEndOfTheGame) {
  EnMarche(f);
  f.NbTirées = 10;
  f.Capital = 0;
  f.Gains->SetCaption("5");
  f.Pointeur12();
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 0);
  EXPECT_TRUE(f.AutoPlayTimer->Enabled());
  EXPECT_EQ(f.SSRecommence->MousePointer(), 12);
}

TEST_F(Pointers, NoGameOverBetweenDrawingsOrWithCredit) {
  EnMarche(f);
  f.NbTirées = 5;
  f.Capital = 0;
  f.Pointeur12();
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 0);
  f.NbTirées = 25;
  f.Pointeur12();
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 0);
  f.NbTirées = 10;
  f.Capital = 1;
  f.Pointeur12();
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 0);
  EXPECT_TRUE(f.AutoPlayTimer->Enabled());
}

// ---- Pointeur10 -----------------------------------------------------------------------------

TEST_F(Pointers, Pointeur10OpensTheClassicGameWithTheManualOptionOffered) {
  ToutÀ(12);
  f.NJokerSélection(0).SetBevelWidth(3);
  f.NJokerSélection(1).SetBevelWidth(3);
  f.NJokerSélection(2).SetBevelWidth(0);
  f.ParesseOui->SetBevelWidth(0);
  f.ParesseNon->SetBevelWidth(3);
  f.Pointeur10();
  EXPECT_EQ(f.Jouer->MousePointer(), 10);
  EXPECT_EQ(f.NJokerSélection(0).MousePointer(), 10);
  EXPECT_EQ(f.NJokerSélection(1).MousePointer(), 10);
  EXPECT_EQ(f.NJokerSélection(2).MousePointer(), 12);
  for (Control* c : {f.Double1X5, f.Double5X5, f.Quitte1X5, f.Quitte5X5, f.Moins, f.Moins5, f.Plus, f.Plus5})
    EXPECT_EQ(c->MousePointer(), 10) << c->FullName().toStdString();
  EXPECT_EQ(f.ParesseOui->MousePointer(), 12);
  EXPECT_EQ(f.ParesseNon->MousePointer(), 10);
  EXPECT_EQ(f.JeuSimple->MousePointer(), 12);
  EXPECT_EQ(f.Jeu3D->MousePointer(), 10);
}

TEST_F(Pointers, Pointeur10WithManualSelectionOffersTheAutomaticOne) {
  ToutÀ(10);
  f.ParesseOui->SetBevelWidth(3);
  f.ParesseNon->SetBevelWidth(0);
  f.Pointeur10();
  EXPECT_EQ(f.ParesseNon->MousePointer(), 12);
  EXPECT_EQ(f.ParesseOui->MousePointer(), 10);
}

TEST_F(Pointers, Pointeur10InTheGridGameBlocksBothSelectionButtons) {
  ToutÀ(10);
  f.JeuSimple->SetBevelWidth(7);
  f.Jeu3D->SetBevelWidth(1);
  f.Pointeur10();
  EXPECT_EQ(f.Jeu3D->MousePointer(), 12);
  EXPECT_EQ(f.JeuSimple->MousePointer(), 10);
  EXPECT_EQ(f.ParesseNon->MousePointer(), 12);
  EXPECT_EQ(f.ParesseOui->MousePointer(), 12);
}

TEST_F(Pointers, Pointeur10InAutomaticModeTellsOnlyTheGameSwitch) {
  ToutÀ(12);
  f.AutoPlay->SetBevelWidth(0);
  f.Pointeur10();
  EXPECT_EQ(f.Jouer->MousePointer(), 12);
  EXPECT_EQ(f.Plus->MousePointer(), 10);
  EXPECT_EQ(f.Double1X5->MousePointer(), 10);
  EXPECT_EQ(f.JeuSimple->MousePointer(), 12);
  EXPECT_EQ(f.Jeu3D->MousePointer(), 10);
  EXPECT_EQ(f.ParesseOui->MousePointer(), 12);
  EXPECT_EQ(f.ParesseNon->MousePointer(), 12);
  f.JeuSimple->SetBevelWidth(7);
  f.Jeu3D->SetBevelWidth(1);
  f.Pointeur10();
  EXPECT_EQ(f.JeuSimple->MousePointer(), 10);
  EXPECT_EQ(f.Jeu3D->MousePointer(), 12);
}
