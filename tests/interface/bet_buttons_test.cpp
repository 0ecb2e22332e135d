// The bet buttons: the ring of 1..40, the gate of the credit, the refusals that blink, and
// the pay table that follows the bet.
#include <gtest/gtest.h>

#include "tests/support/harness.h"

namespace {

// A table with something in every row, so that the amounts of the pay table can be told.
void Remplit(JeuPoker& f) {
  const Long table[10] = {1, 2, 3, 4, 5, 7, 25, 70, 300, 750};
  for (int i = 0; i <= 9; ++i) {
    f.TableGains(i) = table[i];
    f.MainLabel(i).SetCaption(QString::number(table[i]));
  }
}

struct Bet : ::testing::Test {
  Harness h;
  JeuPoker& f = *h.form;
  void SetUp() override {
    Remplit(f);
    f.Capital = 200;
    f.Mise = 1;
    f.Niveau = 1;
    f.Mises->SetCaption("1");
    f.AfficheMise();
    f.SSAlertes->SetForeColor(0x00FFFF);
    h.platform.sleptMs = 0;
  }
  // The click went through without a blink.
  void PasDeClignotement() {
    EXPECT_EQ(h.platform.sleptMs, 0);
    EXPECT_EQ(f.SSAlertes->ForeColor(), 0x00FFFF);
  }
  void Clignoté() {
    EXPECT_EQ(h.platform.sleptMs, 7 * (40 + 150));
    EXPECT_EQ(f.SSAlertes->ForeColor(), 0x00C0C0);
  }
  void TableÀ(int mise) {
    for (int i = 0; i <= 9; ++i)
      EXPECT_EQ(f.MainLabel(i).Caption(), QString::number(f.TableGains(i) * mise)) << "row " << i;
  }
};

}  // namespace

TEST_F(Bet, PlusRaisesTheBetAndRedrawsIt) {
  EXPECT_TRUE(h.Drive({"click Plus"}).isEmpty());
  EXPECT_EQ(h.Drive1("var Mise"), "Mise=2");
  EXPECT_EQ(f.Mises->Caption(), "2");
  EXPECT_EQ(f.MiseImage(0).GetPicture(), f.ChiffresModèle(22).GetPicture());
  EXPECT_EQ(f.MiseImage(0).Left(), 960);
  TableÀ(2);
  PasDeClignotement();
}

TEST_F(Bet, BothButtonsGiveTheFocusToTirage) {
  f.Jouer->SetFocus();
  h.Drive({"click Plus"});
  EXPECT_EQ(h.Drive1("get Tirage.Focus"), "Tirage.Focus=-1");
  f.Jouer->SetFocus();
  h.Drive({"click Moins"});
  EXPECT_EQ(h.Drive1("get Tirage.Focus"), "Tirage.Focus=-1");
}

TEST_F(Bet, FocusMovesEvenWhenTheClickIsRefused) {
  f.DoubleEnCours = true;
  f.Jouer->SetFocus();
  h.Drive({"click Plus"});
  EXPECT_EQ(h.Drive1("get Tirage.Focus"), "Tirage.Focus=-1");
}

TEST_F(Bet, MoinsLowersTheBet) {
  f.Mise = 12;
  h.Drive({"click Moins"});
  EXPECT_EQ(f.Mise, 11);
  EXPECT_EQ(f.Mises->Caption(), "11");
  EXPECT_EQ(f.MiseImage(0).Left(), 840);
  EXPECT_EQ(f.MiseImage(1).GetPicture(), f.ChiffresModèle(21).GetPicture());
  TableÀ(11);
}

TEST_F(Bet, MoinsLowersTheBetWhateverTheCredit) {
  f.Mise = 5;
  f.Capital = 1;
  h.Drive({"click Moins"});
  EXPECT_EQ(f.Mise, 4);
  PasDeClignotement();
}

TEST_F(Bet, PlusIsARingOfOneToForty) {
  f.Capital = 1000;
  for (int m = 2; m <= 40; ++m) {
    h.Drive({"click Plus"});
    ASSERT_EQ(f.Mise, m);
  }
  EXPECT_EQ(f.Mises->Caption(), "40");
  TableÀ(40);
  EXPECT_EQ(f.MainLabel(9).Caption(), "30000");
  h.Drive({"click Plus"});
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(f.Mises->Caption(), "1");
  TableÀ(1);
  PasDeClignotement();
}

TEST_F(Bet, MoinsIsTheSameRingTheOtherWay) {
  f.Capital = 1000;
  h.Drive({"click Moins"});
  EXPECT_EQ(f.Mise, 40);
  for (int m = 39; m >= 1; --m) {
    h.Drive({"click Moins"});
    ASSERT_EQ(f.Mise, m);
  }
  TableÀ(1);
}

TEST_F(Bet, PlusAtFortyWrapsToOneAtAnyCredit) {
  f.Mise = 40;
  f.Niveau = 12;
  f.Capital = 1;
  h.Drive({"click Plus"});
  EXPECT_EQ(f.Mise, 1);
  // The caption is the stake of all the lines: level times bet.
  EXPECT_EQ(f.Mises->Caption(), "12");
  TableÀ(1);
  PasDeClignotement();
}

TEST_F(Bet, PlusBeyondTheCreditIsRefusedSilently) {
  f.Capital = 3;
  f.Niveau = 3;
  f.Mises->SetCaption("3");
  h.Drive({"click Plus"});
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(f.Mises->Caption(), "3");
  TableÀ(1);
  PasDeClignotement();
}

TEST_F(Bet, PlusUpToExactlyTheCreditIsAllowed) {
  f.Capital = 6;
  f.Niveau = 3;
  h.Drive({"click Plus"});
  EXPECT_EQ(f.Mise, 2);
  EXPECT_EQ(f.Mises->Caption(), "6");
  h.Drive({"click Plus"});
  EXPECT_EQ(f.Mise, 2);
  PasDeClignotement();
}

TEST_F(Bet, MoinsAtOneWrapsOnlyWhenTheCreditCoversForty) {
  f.Niveau = 12;
  f.Capital = 479;
  f.Mises->SetCaption("12");
  h.Drive({"click Moins"});
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(f.Mises->Caption(), "12");
  TableÀ(1);
  PasDeClignotement();
  f.Capital = 480;
  h.Drive({"click Moins"});
  EXPECT_EQ(f.Mise, 40);
  EXPECT_EQ(f.Mises->Caption(), "480");
  EXPECT_EQ(f.MiseImage(0).Left(), 765);
  EXPECT_EQ(f.MiseImage(2).Left(), 1200);
  // The pay table shows the bet alone, without the level.
  TableÀ(40);
  PasDeClignotement();
}

TEST_F(Bet, MoinsAtOneInTheClassicGameNeedsFortyCredits) {
  f.Capital = 39;
  h.Drive({"click Moins"});
  EXPECT_EQ(f.Mise, 1);
  f.Capital = 40;
  h.Drive({"click Moins"});
  EXPECT_EQ(f.Mise, 40);
}

// ---- Refusals by the rules of play: a blink, and nothing changes ---------------------------

struct BetRefusal : Bet, ::testing::WithParamInterface<int> {
  void Refuse() {
    switch (GetParam()) {
      case 0: f.DoubleEnCours = true; break;
      case 1: f.NbTirées = 5; break;
      case 2: f.NbTirées = 25; break;
      case 3: f.Doubler->SetVisible(true); break;
      case 4: f.Doubler5->SetVisible(true); break;
      case 5: f.Capital = 0; break;
    }
  }
};

TEST_P(BetRefusal, PlusBlinksAndChangesNothing) {
  Refuse();
  f.Mise = 7;
  f.Mises->SetCaption("7");
  h.Drive({"click Plus"});
  EXPECT_EQ(f.Mise, 7);
  EXPECT_EQ(f.Mises->Caption(), "7");
  TableÀ(1);
  Clignoté();
}

TEST_P(BetRefusal, MoinsBlinksAndChangesNothing) {
  Refuse();
  f.Mise = 7;
  f.Mises->SetCaption("7");
  h.Drive({"click Moins"});
  EXPECT_EQ(f.Mise, 7);
  TableÀ(1);
  Clignoté();
}

TEST_P(BetRefusal, WrapsAreRefusedToo) {
  Refuse();
  f.Mise = 40;
  h.Drive({"click Plus"});
  EXPECT_EQ(f.Mise, 40);
  f.Mise = 1;
  h.Drive({"click Moins"});
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(h.platform.sleptMs, 2 * 7 * (40 + 150));
}

std::string NomDuRefus(const ::testing::TestParamInfo<int>& info) {
  static const char* const noms[] = {"DoubleUp",     "BetweenDrawings", "BetweenGridDrawings",
                                     "DoublerShown", "Doubler5Shown",   "NoCredit"};
  return noms[info.param];
}

INSTANTIATE_TEST_SUITE_P(Gates, BetRefusal, ::testing::Range(0, 6), NomDuRefus);

TEST_F(Bet, OtherCountsOfTheDealDoNotRefuse) {
  for (int n : {0, 10, 50}) {
    f.NbTirées = static_cast<Byte>(n);
    f.Mise = 3;
    h.Drive({"click Plus"});
    EXPECT_EQ(f.Mise, 4) << n;
  }
  PasDeClignotement();
}

TEST_F(Bet, RefusalDuringAutomaticModeDoesNotBlink) {
  f.AutoPlay->SetBevelWidth(0);
  f.DoubleEnCours = true;
  h.Drive({"click Plus", "click Moins"});
  EXPECT_EQ(f.Mise, 1);
  PasDeClignotement();
}
