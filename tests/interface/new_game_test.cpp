// A new game at any moment: in the middle of a deal, with winnings pending, during a
// double-up, in both games; the game in force and the deck stay; the grid is covered only
// when its first card is not face down.
#include <gtest/gtest.h>

#include "tests/interface/options_helpers.h"

using namespace options;

namespace {

// What every new game leaves, in either game.
void ExpectNewGame(const JeuPoker& f) {
  EXPECT_EQ(f.Capital, 200);
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(f.Mises->Caption(), "1");
  EXPECT_EQ(f.Niveau, 1);
  EXPECT_EQ(f.UnADouze->Caption(), "1");
  EXPECT_FALSE(f.DoubleEnCours);
  EXPECT_EQ(f.NbTirées, 0);
  for (int k = 1; k <= 50; ++k) EXPECT_EQ(f.CartesSorties(k), -1) << k;
  EXPECT_EQ(f.SSAlertes->Caption(), kFirstDrawingEn);
  EXPECT_EQ(f.Gains->Caption(), "");
  for (int i = 0; i <= 7; ++i) EXPECT_FALSE(f.GainImage(i).Visible()) << i;
  for (int i = 0; i <= 9; ++i) EXPECT_EQ(f.MainLabel(i).Caption(), QString::number(f.TableGains(i))) << i;
  for (int i = 0; i <= 4; ++i) {
    EXPECT_EQ(f.Jouez(i).Caption(), "PLAY") << i;
    EXPECT_EQ(f.Jouez(i).BackColor(), 0x808000) << i;
  }
  EXPECT_EQ(f.AutoPlay->MousePointer(), 10);
  EXPECT_EQ(f.AutoPlayStop->MousePointer(), 12);
  EXPECT_FALSE(f.Doubler->Visible());
  EXPECT_FALSE(f.Doubler5->Visible());
  EXPECT_TRUE(f.Jouez5->Visible());
  EXPECT_FALSE(f.SSConseils5->Visible());
  for (int i = 0; i <= 11; ++i) EXPECT_EQ(f.Mains5(i).Caption(), "") << i;
  for (int i = 0; i <= 12; ++i) EXPECT_EQ(f.Gains5(i).Caption(), "") << i;
  for (int i = 1; i <= 11; ++i) {
    EXPECT_FALSE(f.Mains5(i).Visible()) << i;
    EXPECT_FALSE(f.UnADouzeLine(i).Visible()) << i;
    EXPECT_EQ(f.UnADouzeTémoin(i).BackColor(), 0x808080) << i;
  }
  EXPECT_EQ(f.focusWidget(), f.Tirage);
}

// Clicks SSRecommence with the focus elsewhere; returns the yields it took.
long long NewGame(Harness& h) {
  h.form->SSLangue(0).SetFocus();
  const Watch w(h);
  Click(h, "SSRecommence");
  return w.Yields();
}

TEST(NewGame, MidClassicDealTurnsTheCardsDownAndRestoresThePanel) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "Plus");  // Mise 2
  FirstDrawing1(h, kHandNothing);
  ASSERT_EQ(f.Capital, 198);
  ASSERT_NE(f.Jouez(0).Caption(), "PLAY");
  EXPECT_EQ(NewGame(h), 0);
  ExpectNewGame(f);
  for (int i = 0; i <= 4; ++i) EXPECT_TRUE(FaceDown(f, f.Deal(i))) << i;
  ExpectPanelAtRest(f, 2);
  EXPECT_EQ(f.JeuSimple->BevelWidth(), 1);
  EXPECT_TRUE(f.SSAireJeu->Visible());
  // And the next deal starts from the new credit.
  FirstDrawing1(h, kHandKings);
  EXPECT_EQ(f.Capital, 199);
}

TEST(NewGame, PendingClassicWinIsLost) {
  Harness h;
  JeuPoker& f = *h.form;
  WinWaiting1(h);
  ASSERT_EQ(f.Gains->Caption(), "1");
  NewGame(h);
  ExpectNewGame(f);
  for (int i = 0; i <= 4; ++i) EXPECT_TRUE(FaceDown(f, f.Deal(i))) << i;
}

TEST(NewGame, DuringTheClassicDoubleUpTheNextCardClickIsNoChoice) {
  Harness h;
  JeuPoker& f = *h.form;
  Doubling1(h);
  NewGame(h);
  ExpectNewGame(f);
  for (int i = 0; i <= 4; ++i) EXPECT_TRUE(FaceDown(f, f.Deal(i))) << i;
  const Watch w(h);
  Click(h, "Deal(2)");
  EXPECT_EQ(w.Slept(), kBlinkMs);
  EXPECT_TRUE(FaceDown(f, f.Deal(2)));
  EXPECT_FALSE(f.Doubler->Visible());
}

TEST(NewGame, MidGridDealCoversTheGrid) {
  Harness h;
  JeuPoker& f = *h.form;
  ToGrid(h);
  Click(h, "Plus5");  // Niveau 2
  FirstDrawing2(h, kGridNothing);
  ASSERT_TRUE(f.SSConseils5->Visible());
  ASSERT_TRUE(f.Mains5(1).Visible());
  EXPECT_EQ(NewGame(h), 25);
  ExpectNewGame(f);
  EXPECT_TRUE(GridCovered(f));
  ExpectPanelAtRest(f, 2);
  EXPECT_EQ(f.Jeu3D->BevelWidth(), 1);
  EXPECT_TRUE(f.SSAireJeu5->Visible());
  EXPECT_FALSE(f.SSAireJeu->Visible());
}

TEST(NewGame, GridWithItsFirstCardDownKeepsTheOthersUpUntilTheNextDeal) {
  Harness h;
  JeuPoker& f = *h.form;
  ToGrid(h);
  FirstDrawing2(h, kGridNothing);
  Click(h, "Deal2(0)");
  ASSERT_TRUE(FaceDown(f, f.Deal2(0)));
  EXPECT_EQ(NewGame(h), 0);
  ExpectNewGame(f);
  EXPECT_TRUE(FaceDown(f, f.Deal2(0)));
  for (int p = 1; p <= 24; ++p) EXPECT_EQ(f.Deal2(p).GetPicture(), f.Cartes2(kGridNothing[p]).GetPicture()) << p;
  // The next deal turns them down before it deals, so every position gets a new card.
  FirstDrawing2(h, kGridFourKings);
  EXPECT_TRUE(GridShows(f, kGridFourKings));
  EXPECT_EQ(f.Capital, 199);
}

TEST(NewGame, PendingGridWinIsLost) {
  Harness h;
  JeuPoker& f = *h.form;
  ToGrid(h);
  WinWaiting2(h);
  ASSERT_EQ(f.GainTirage, 40);
  NewGame(h);
  ExpectNewGame(f);
  EXPECT_TRUE(GridCovered(f));
}

TEST(NewGame, DuringTheGridDoubleUpCoversTheHouseCardToo) {
  Harness h;
  JeuPoker& f = *h.form;
  ToGrid(h);
  Doubling2(h);
  ASSERT_EQ(f.Deal2(0).GetPicture(), f.Cartes2(5).GetPicture());
  EXPECT_EQ(NewGame(h), 25);
  ExpectNewGame(f);
  EXPECT_TRUE(GridCovered(f));
  // A card click is no longer taken for the pick.
  const Watch w(h);
  Click(h, "Deal2(5)");
  EXPECT_EQ(w.Slept(), kBlinkMs);
  EXPECT_TRUE(FaceDown(f, f.Deal2(5)));
  EXPECT_FALSE(f.Doubler5->Visible());
}

TEST(NewGame, KeepsTheGameAndTheDeck) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "NJokerSélection(1)");
  ToGrid(h);
  FirstDrawing2(h, kGridNothing);
  NewGame(h);
  EXPECT_EQ(f.Jeu3D->BevelWidth(), 1);
  EXPECT_EQ(f.JeuSimple->BevelWidth(), 7);
  EXPECT_TRUE(f.SSAireJeu5->Visible());
  EXPECT_EQ(f.NbJokers, 1);
  EXPECT_EQ(f.TailleJeu, 53);
  EXPECT_EQ(f.NJokerSélection(1).BevelWidth(), 0);
  for (int i = 0; i <= 9; ++i) EXPECT_EQ(f.TableGains(i), kTableGains[1][i]) << i;
  ExpectNewGame(f);
  ExpectPanelAtRest(f, 1);
}

TEST(NewGame, AfterALostGameThePointersSayWhatWorks) {
  Harness h;
  JeuPoker& f = *h.form;
  NoCredit1(h);
  ASSERT_EQ(f.Jeu3D->MousePointer(), 12);
  NewGame(h);
  ExpectNewGame(f);
  EXPECT_EQ(f.Jouer->MousePointer(), 10);
  EXPECT_EQ(f.Jeu3D->MousePointer(), 10);
  EXPECT_EQ(f.JeuSimple->MousePointer(), 12);
  EXPECT_EQ(f.ParesseOui->MousePointer(), 12);
  EXPECT_EQ(f.ParesseNon->MousePointer(), 10);
  for (int i = 0; i <= 2; ++i) EXPECT_EQ(f.NJokerSélection(i).MousePointer(), i == 2 ? 12 : 10) << i;
  // Play goes on.
  FirstDrawing1(h, kHandNothing);
  EXPECT_EQ(f.Capital, 199);
}

TEST(NewGame, IgnoredWhileTheAutomaticModeRuns) {
  Harness h;
  JeuPoker& f = *h.form;
  FirstDrawing1(h, kHandNothing);
  f.AutoPlay->SetBevelWidth(0);
  Click(h, "SSRecommence");
  EXPECT_EQ(f.Capital, 199);
  EXPECT_EQ(f.NbTirées, 5);
  EXPECT_FALSE(FaceDown(f, f.Deal(0)));
}

}  // namespace
