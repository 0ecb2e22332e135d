// A new game and the reset at the start of each classic round.
#include <gtest/gtest.h>

#include "tests/support/helpers.h"

namespace {

const Long kTable0[10] = {1, 2, 5, 7, 10, 30, 100, 250, 750, 1000};
const Long kTable1[10] = {1, 2, 4, 5, 7, 12, 40, 100, 500, 1000};
const Long kTable2[10] = {1, 2, 3, 4, 5, 7, 25, 70, 300, 750};

TEST(RoundState, NewGameAtFirstStart) {
  Harness h;
  JeuPoker& f = *h.form;
  EXPECT_EQ(f.Niveau, 1);
  EXPECT_EQ(f.UnADouze->Caption(), "1");
  EXPECT_EQ(f.Capital, 200);
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(f.Mises->Caption(), "1");
  EXPECT_EQ(f.Gains->Caption(), "");
  EXPECT_EQ(f.NbJokers, 2);
  EXPECT_EQ(f.TailleJeu, 54);
  for (int i = 0; i <= 9; ++i) {
    EXPECT_EQ(f.TableGains(i), kTable2[i]) << i;
    EXPECT_EQ(f.MainLabel(i).Caption(), QString::number(kTable2[i])) << i;
  }
  // No Ini.dat: the language byte is 0, which is English.
  EXPECT_EQ(f.Langue, 0);
  EXPECT_EQ(f.SSAlertes->Caption(), "FIRST DRAWING : Click on PLAY or press the 'Space' key.");
  EXPECT_FALSE(f.DoubleEnCours);
  for (int i = 0; i <= 4; ++i) EXPECT_FALSE(f.CartesGardées(i));
  for (int i = 0; i <= 24; ++i) EXPECT_FALSE(f.LignesJouées(i));
  EXPECT_FALSE(f.SSConseils5->Visible());
  EXPECT_EQ(f.NbTirées, 0);
  EXPECT_EQ(f.GainMain, 0);
}

TEST(RoundState, NewGameEmptiesTheGridLinesAndKeepsTheFirstInView) {
  Harness h;
  JeuPoker& f = *h.form;
  for (int i = 0; i <= 12; ++i) {
    f.Mains5(i).SetCaption("x");
    f.Gains5(i).SetCaption("y");
  }
  for (int i = 0; i <= 11; ++i) {
    f.Mains5(i).SetVisible(true);
    f.Gains5(i).SetVisible(true);
    f.UnADouzeLine(i).SetVisible(true);
    f.UnADouzeTémoin(i).SetBackColor(0x00FF00);
  }
  f.Initialise();
  for (int i = 0; i <= 11; ++i) {
    EXPECT_EQ(f.Mains5(i).Caption(), "") << i;
    EXPECT_EQ(f.Gains5(i).Caption(), "") << i;
    EXPECT_EQ(f.Mains5(i).Visible(), i == 0) << i;
    EXPECT_EQ(f.Gains5(i).Visible(), i == 0) << i;
    EXPECT_EQ(f.UnADouzeLine(i).Visible(), i == 0) << i;
    EXPECT_EQ(f.UnADouzeTémoin(i).BackColor(), i == 0 ? 0x00FF00 : 0x808080) << i;
  }
  EXPECT_EQ(f.Gains5(12).Caption(), "");
  EXPECT_EQ(f.Mains5(12).Caption(), "x");  // the total's title is not a line
}

TEST(RoundState, NewGameInFrenchWithTheLanguageByte) {
  Harness h(false);
  WriteIni(h, 3);
  h.form->Form_Load();
  EXPECT_EQ(h.form->Langue, 3);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "PREMIER TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.");
}

TEST(RoundState, FirstDrawingLineFollowsTheLanguageTest) {
  Harness h;
  const struct {
    Byte langue;
    bool english;
  } cases[] = {{0, true}, {1, false}, {2, true}, {3, false}, {7, false}};
  for (const auto& c : cases) {
    h.form->Langue = c.langue;
    h.form->Initialise();
    EXPECT_EQ(h.form->SSAlertes->Caption(), c.english
                                                ? "FIRST DRAWING : Click on PLAY or press the 'Space' key."
                                                : "PREMIER TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.")
        << int(c.langue);
  }
}

TEST(RoundState, PayTableForEachNumberOfJokers) {
  Harness h;
  const Long* tables[3] = {kTable0, kTable1, kTable2};
  for (int n = 0; n <= 2; ++n) {
    h.form->NbJokers = static_cast<Byte>(n);
    h.form->Initialise();
    for (int i = 0; i <= 9; ++i) {
      EXPECT_EQ(h.form->TableGains(i), tables[n][i]) << n << " " << i;
      EXPECT_EQ(h.form->MainLabel(i).Caption(), QString::number(tables[n][i])) << n << " " << i;
    }
  }
}

TEST(RoundState, OneJokerShowsFourForThreeOfAKindAndAThousandForFiveOfAKind) {
  Harness h;
  EXPECT_EQ(h.Drive({"set NbJokers 1", "set TailleJeu 53"}), QStringList());
  h.form->Initialise();
  EXPECT_EQ(h.Drive1("get MainLabel(2).Caption"), "MainLabel(2).Caption=4");
  EXPECT_EQ(h.Drive1("get MainLabel(9).Caption"), "MainLabel(9).Caption=1000");
}

TEST(RoundState, NewGameResetsMoneyBetAndLevel) {
  Harness h;
  JeuPoker& f = *h.form;
  f.Capital = 12345;
  f.Mise = 17;
  f.Mises->SetCaption("17");
  f.Niveau = 9;
  f.UnADouze->SetCaption("9");
  f.Gains->SetCaption("70");
  f.Initialise();
  EXPECT_EQ(f.Capital, 200);
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(f.Mises->Caption(), "1");
  EXPECT_EQ(f.Niveau, 1);
  EXPECT_EQ(f.UnADouze->Caption(), "1");
  EXPECT_EQ(f.Gains->Caption(), "");
}

TEST(RoundState, NewGameLeavesTheCountAndTheCardsAlone) {
  Harness h;
  h.Drive({"draw 0 1 2 3 4", "click Jouer"});
  JeuPoker& f = *h.form;
  ASSERT_EQ(f.NbTirées, 5);
  f.Initialise();
  EXPECT_EQ(f.NbTirées, 5);
  for (int i = 0; i <= 4; ++i) {
    EXPECT_EQ(f.CartesTirage(i), i);
    EXPECT_EQ(f.Deal(i).GetPicture(), f.Cartes(i).GetPicture());
    EXPECT_EQ(f.CartesSorties(i + 1), i);
  }
}

TEST(RoundState, NewGameEndsADoubleUpInProgress) {
  Harness h;
  h.form->DoubleEnCours = true;
  for (int i = 0; i <= 4; ++i) h.form->CartesGardées(i) = true;
  for (int i = 0; i <= 24; ++i) h.form->LignesJouées(i) = true;
  h.form->SSConseils5->SetVisible(true);
  h.form->Initialise();
  EXPECT_EQ(h.Drive1("var DoubleEnCours"), "DoubleEnCours=0");
  for (int i = 0; i <= 4; ++i) EXPECT_FALSE(h.form->CartesGardées(i));
  for (int i = 0; i <= 24; ++i) EXPECT_FALSE(h.form->LignesJouées(i));
  EXPECT_FALSE(h.form->SSConseils5->Visible());
}

TEST(RoundState, AfterANewGameDuringADoubleUpACardClickIsNoLongerAChoice) {
  Harness h;
  JeuPoker& f = *h.form;
  f.NbTirées = 10;
  f.DoubleEnCours = true;
  f.DoubleCarte3 = 7;
  for (int i = 1; i <= 4; ++i) f.Deal(i).SetPicture(f.Cartes(54).GetPicture());
  f.Initialise();
  h.platform.QueueDraws({9, 2});
  const long long slept = h.platform.sleptMs;
  h.Drive({"click Deal(2)"});
  EXPECT_EQ(h.platform.sleptMs - slept, 7 * (40 + 150));  // refused with a blink
  EXPECT_EQ(f.DoubleCarte3, 7);
  EXPECT_EQ(f.CarteChoisie, 0);
  EXPECT_EQ(f.Deal(2).GetPicture(), f.Cartes(54).GetPicture());
  EXPECT_EQ(h.platform.queuedDraws.size(), 2u);
}

// ---- The reset at the start of a round --------------------------------------------------

TEST(RoundState, RoundResetCreditsAPendingWin) {
  Harness h;
  JeuPoker& f = *h.form;
  f.Capital = 150;
  f.GainMain = 7;
  f.NbTirées = 10;
  f.Gains->SetCaption("7");
  f.InitPremierTirage();
  EXPECT_EQ(f.Capital, 157);
  EXPECT_EQ(f.GainMain, 0);
  EXPECT_EQ(f.NbTirées, 0);
  EXPECT_EQ(f.Gains->Caption(), "");
}

TEST(RoundState, RoundResetWithNothingPendingLeavesTheCreditAndItsDigits) {
  Harness h;
  JeuPoker& f = *h.form;
  f.Capital = 150;
  f.AfficheCapital();
  std::vector<std::pair<Picture, bool>> before;
  for (int i = 0; i <= 7; ++i) before.emplace_back(f.CapImage(i).GetPicture(), f.CapImage(i).Visible());
  f.GainMain = 0;
  f.InitPremierTirage();
  EXPECT_EQ(f.Capital, 150);
  for (int i = 0; i <= 7; ++i) {
    EXPECT_EQ(f.CapImage(i).GetPicture(), before[i].first) << i;
    EXPECT_EQ(f.CapImage(i).Visible(), before[i].second) << i;
  }
}

TEST(RoundState, RoundResetEmptiesTheCardsGoneButNotSlotZero) {
  Harness h;
  JeuPoker& f = *h.form;
  for (int i = 0; i <= 50; ++i) f.CartesSorties(i) = static_cast<Integer>(i);
  f.InitPremierTirage();
  EXPECT_EQ(f.CartesSorties(0), 0);
  for (int i = 1; i <= 10; ++i) EXPECT_EQ(f.CartesSorties(i), -1) << i;
  EXPECT_EQ(f.CartesSorties(11), 11);
  EXPECT_EQ(f.CartesSorties(50), 50);
}

TEST(RoundState, RoundResetRestoresOnlyTheHighlightedRow) {
  Harness h;
  JeuPoker& f = *h.form;
  f.Maintitre(3).SetForeColor(255);
  f.MainLabel(3).SetForeColor(255);
  f.Maintitre(3).SetBackColor(49344);
  f.MainLabel(3).SetBackColor(49344);
  // A row whose amount is not red is not taken for the highlighted one.
  f.Maintitre(6).SetForeColor(255);
  f.Maintitre(6).SetBackColor(49344);
  f.MainLabel(6).SetBackColor(49344);
  f.InitPremierTirage();
  EXPECT_EQ(f.Maintitre(3).ForeColor(), 0xFFFFFF);
  EXPECT_EQ(f.MainLabel(3).ForeColor(), 0xFFFFFF);
  EXPECT_EQ(f.Maintitre(3).BackColor(), 0);
  EXPECT_EQ(f.MainLabel(3).BackColor(), 0);
  EXPECT_EQ(f.Maintitre(6).ForeColor(), 255);
  EXPECT_EQ(f.Maintitre(6).BackColor(), 49344);
  EXPECT_EQ(f.MainLabel(6).BackColor(), 49344);
}

TEST(RoundState, CreditOverflowOnAPendingWinIsRunTimeErrorSix) {
  EXPECT_EXIT(
      {
        Harness h;
        h.form->Capital = 2147483647;
        h.form->GainMain = 1;
        h.form->InitPremierTirage();
      },
      ::testing::ExitedWithCode(3), "run-time error 6");
}

}  // namespace
