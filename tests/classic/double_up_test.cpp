// The double-up of the classic game: the house card, the player's pick, the three outcomes
// and their messages in both languages, the three losing branches, and banking by QUITTE.
#include <gtest/gtest.h>

#include "tests/classic/holds_helpers.h"

namespace {

constexpr long long kBlinkMs = 7 * (40 + 150);

// The end of a paying round: a pair of kings worth `gain`, DOUBLE offered.
void Offered(Harness& h, Long gain = 5) {
  JeuPoker& f = *h.form;
  holds::FirstDrawing(f, "KC 3H 7S 9C KH");
  f.NbTirées = 10;
  f.GainMain = gain;
  f.Gains->SetCaption(QString::number(gain));
  f.MainLabel(0).SetForeColor(255);
  f.MainLabel(0).SetBackColor(49344);
  f.Maintitre(0).SetForeColor(255);
  f.Maintitre(0).SetBackColor(49344);
  for (int i = 0; i < 5; ++i) {
    f.Jouez(i).SetVisible(false);
    f.Deal(i).SetMousePointer(12);
  }
  f.Doubler->SetVisible(true);
}

// DOUBLE clicked with the house card of rank r (0 = two .. 11 = king) and suit s.
void House(Harness& h, int r, int s) {
  h.platform.QueueDraws({r, s});
  ASSERT_EQ(h.Drive({"click Double1X5"}), QStringList{});
}

TEST(HoldsDouble, DoubleShowsTheHouseCardAndFourBacks) {
  Harness h;
  Offered(h);
  JeuPoker& f = *h.form;
  const size_t seeds = h.platform.seeds.size();
  House(h, 5, 2);                                 // seven of hearts
  EXPECT_EQ(h.platform.seeds.size(), seeds + 1);  // one clock reading for both draws
  EXPECT_TRUE(f.DoubleEnCours);
  EXPECT_EQ(f.DoubleCarte1, 5);
  EXPECT_EQ(f.DoubleCarte2, 2);
  EXPECT_EQ(f.CartesTirage(0), Code("7H"));
  EXPECT_EQ(f.Deal(0).GetPicture(), f.Cartes(Code("7H")).GetPicture());
  for (int i = 1; i < 5; ++i) EXPECT_EQ(f.Deal(i).GetPicture(), f.Cartes(54).GetPicture());
  EXPECT_FALSE(f.Doubler->Visible());
  EXPECT_EQ(f.SSAlertes->Caption(), "Choose a masked card and click on its back.");
  EXPECT_EQ(f.AutoPlay->MousePointer(), 12);
  EXPECT_EQ(f.AutoPlayStop->MousePointer(), 12);
  EXPECT_EQ(f.Jouer->MousePointer(), 12);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(f.Deal(i).MousePointer(), 99);
  EXPECT_EQ(f.GainMain, 5);
  EXPECT_EQ(f.NbTirées, 10);
}

TEST(HoldsDouble, HouseCardIsNeverAnAce) {
  Harness h;
  Offered(h);
  // A rank draw of 12 is outside Int(Rnd x 12), and a suit draw of 4 outside Int(Rnd x 4).
  h.platform.QueueDraws({12, 4});
  h.Drive({"click Double1X5"});
  ASSERT_EQ(h.output.size(), 2);
  EXPECT_EQ(h.output[0], "error: draw 12 is not below 12; drawn at random");
  EXPECT_EQ(h.output[1], "error: draw 4 is not below 4; drawn at random");
  EXPECT_LE(h.form->DoubleCarte1, 11);
  EXPECT_LE(h.form->DoubleCarte2, 3);
  // The top of the range is the king.
  Harness k;
  Offered(k);
  House(k, 11, 3);
  EXPECT_EQ(k.form->CartesTirage(0), Code("KS"));
}

TEST(HoldsDouble, FrenchChoiceLine) {
  Harness h;
  h.form->Langue = 3;
  Offered(h);
  House(h, 0, 0);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "Cliquez sur une carte face cachée de votre choix");
}

TEST(HoldsDouble, DoubleIsIgnoredWhileAutomaticModeRuns) {
  Harness h;
  Offered(h);
  h.form->AutoPlay->SetBevelWidth(0);
  h.form->Double1X5_Click();
  EXPECT_FALSE(h.form->DoubleEnCours);
  EXPECT_TRUE(h.form->Doubler->Visible());
}

TEST(HoldsDouble, HigherRankWinsAndDoublesTheGain) {
  Harness h;
  Offered(h, 5);
  JeuPoker& f = *h.form;
  House(h, 5, 0);                 // seven of clubs
  h.platform.QueueDraws({9, 1});  // jack of diamonds
  h.Drive({"click Deal(2)"});
  EXPECT_EQ(f.CarteChoisie, 2);
  EXPECT_FALSE(f.DoubleEnCours);
  EXPECT_EQ(f.DoubleCarte3, Code("JD"));
  EXPECT_EQ(f.CartesTirage(2), Code("JD"));
  EXPECT_EQ(f.Deal(2).GetPicture(), f.Cartes(Code("JD")).GetPicture());
  for (int i : {1, 3, 4}) EXPECT_EQ(f.Deal(i).GetPicture(), f.Cartes(54).GetPicture());
  EXPECT_EQ(f.SSAlertes->Caption(), "YOU WIN ! JACK of Diamonds is stronger then 7 of Clubs. QUIT, DOUBLE or PLAY ?");
  EXPECT_EQ(f.GainMain, 10);
  EXPECT_EQ(f.Gains->Caption(), "10");
  EXPECT_TRUE(f.Doubler->Visible());
  EXPECT_EQ(f.Capital, 200);  // nothing is banked by a win
  EXPECT_EQ(f.AutoPlay->MousePointer(), 10);
  EXPECT_EQ(f.Jouer->MousePointer(), 10);
  EXPECT_EQ(f.AutoPlayStop->MousePointer(), 12);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(f.Deal(i).MousePointer(), 12);
}

TEST(HoldsDouble, EqualRankInAnotherSuitKeepsTheGainAndOffersTheNextDuel) {
  Harness h;
  Offered(h, 5);
  JeuPoker& f = *h.form;
  House(h, 5, 0);
  h.platform.QueueDraws({5, 3});
  h.Drive({"click Deal(4)"});
  EXPECT_EQ(f.SSAlertes->Caption(), "EQUAL ! 7 of Spades is equal 7 of Clubs. QUIT, DOUBLE or PLAY ?");
  EXPECT_EQ(f.GainMain, 5);
  EXPECT_EQ(f.Gains->Caption(), "5");
  EXPECT_TRUE(f.Doubler->Visible());
  EXPECT_EQ(f.Capital, 200);
  // And the next duel can follow at once.
  House(h, 1, 1);
  EXPECT_TRUE(f.DoubleEnCours);
  EXPECT_EQ(f.Deal(4).GetPicture(), f.Cartes(54).GetPicture());
}

TEST(HoldsDouble, FrenchMessagesOfTheThreeOutcomes) {
  struct Case {
    int r, s;
    const char* line;
  };
  const Case cases[] = {
      {12, 3, "GAGNE ! AS de Pique est plus fort que 7 de Trèfle. QUITTE, DOUBLE ou JOUER ?"},
      {5, 2, "QUITTE ! 7 de Coeur est égal 7 de Trèfle. QUITTE, DOUBLE ou JOUER ?"},
      {10, 1, "GAGNE ! DAME de Carreau est plus fort que 7 de Trèfle. QUITTE, DOUBLE ou JOUER ?"},
      {0, 1, "PERDU ! 2 de Carreau est moins fort que 7 de Trèfle. NOUVEAU TIRAGE."},
  };
  for (const auto& c : cases) {
    Harness h;
    h.form->Langue = 3;
    Offered(h);
    House(h, 5, 0);
    h.platform.QueueDraws({c.r, c.s});
    h.Drive({"click Deal(1)"});
    EXPECT_EQ(h.form->SSAlertes->Caption(), c.line);
  }
}

TEST(HoldsDouble, LossWithEnoughCreditStartsANewDrawing) {
  Harness h;
  Offered(h, 5);
  JeuPoker& f = *h.form;
  House(h, 5, 0);
  f.Plus->SetMousePointer(12);
  h.platform.QueueDraws({2, 3});  // four of spades
  h.Drive({"click Deal(3)"});
  EXPECT_EQ(f.Plus->MousePointer(), 10);  // the bet can change again
  EXPECT_EQ(f.SSAlertes->Caption(), "YOU LOST ! 4 of Spades is beaten by 7 of Clubs. NEW DRAWING.");
  EXPECT_EQ(f.GainMain, 0);
  EXPECT_EQ(f.Gains->Caption(), "");
  EXPECT_FALSE(f.Doubler->Visible());
  for (int i = 0; i < 5; ++i) EXPECT_FALSE(f.Jouez(i).Visible());
  EXPECT_EQ(f.NbTirées, 10);
  EXPECT_EQ(f.Capital, 200);
  EXPECT_EQ(f.Mise, 1);
  // The highlighted row of the pay table is cleared, the loop leaving its index past the end.
  EXPECT_EQ(f.MainLabel(0).ForeColor(), 0xFFFFFF);
  EXPECT_EQ(f.MainLabel(0).BackColor(), 0);
  EXPECT_EQ(f.Maintitre(0).ForeColor(), 0xFFFFFF);
  EXPECT_EQ(f.Maintitre(0).BackColor(), 0);
  EXPECT_EQ(f.IndiceDouble, 10);
}

TEST(HoldsDouble, LossWithCreditBelowTheStakePutsTheBetBackToOne) {
  Harness h;
  Offered(h, 15);
  JeuPoker& f = *h.form;
  f.Capital = 3;
  f.Mise = 5;
  f.Mises->SetCaption("5");
  for (int i = 0; i < 10; ++i) f.TableGains(i) = (i + 1) * 3;
  for (int i = 0; i < 10; ++i) f.MainLabel(i).SetCaption(QString::number(f.TableGains(i) * 5));
  House(h, 5, 0);
  f.Plus->SetMousePointer(12);
  h.platform.QueueDraws({4, 0});
  h.Drive({"click Deal(1)"});
  EXPECT_EQ(f.SSAlertes->Caption(), "YOU LOST ! WARNING ! No more credit ! Bet back to 1.");
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(f.Niveau, 1);
  EXPECT_EQ(f.Mises->Caption(), "1");
  EXPECT_EQ(f.UnADouze->Caption(), "1");
  for (int i = 0; i < 10; ++i) EXPECT_EQ(f.MainLabel(i).Caption(), QString::number(f.TableGains(i)));
  EXPECT_EQ(f.GainMain, 0);
  EXPECT_EQ(f.Gains->Caption(), "");
  EXPECT_EQ(f.Capital, 3);
  // The pointers are those the pick left; the bet buttons are not told.
  EXPECT_EQ(f.Plus->MousePointer(), 12);
  EXPECT_EQ(f.Jouer->MousePointer(), 10);
  EXPECT_EQ(f.AutoPlay->MousePointer(), 10);
}

TEST(HoldsDouble, FrenchLossWithCreditBelowTheStake) {
  Harness h;
  h.form->Langue = 3;
  Offered(h, 15);
  h.form->Capital = 2;
  h.form->Mise = 3;
  House(h, 5, 0);
  h.platform.QueueDraws({4, 0});
  h.Drive({"click Deal(1)"});
  EXPECT_EQ(h.form->SSAlertes->Caption(), "PERDU ! ATTENTION ! Pas assez de crédit. Mises ramenées à 1.");
}

TEST(HoldsDouble, LossWithNoCreditLeftPointsToANewGame) {
  Harness h;
  Offered(h, 5);
  JeuPoker& f = *h.form;
  f.Capital = 0;
  House(h, 5, 0);
  f.Plus->SetMousePointer(10);
  h.platform.QueueDraws({4, 0});
  h.Drive({"click Deal(1)"});
  EXPECT_EQ(f.Plus->MousePointer(), 12);
  EXPECT_EQ(f.SSAlertes->Caption(),
            "YOU LOST ! WARNING ! No more credit ! Click on the icon up on the right handside of the screen for a new "
            "game.");
  EXPECT_EQ(f.GainMain, 0);
  EXPECT_EQ(f.Gains->Caption(), "");
  EXPECT_EQ(f.Mise, 1);
  Harness fr;
  fr.form->Langue = 3;
  Offered(fr, 5);
  fr.form->Capital = 0;
  House(fr, 5, 0);
  fr.platform.QueueDraws({4, 0});
  fr.Drive({"click Deal(1)"});
  EXPECT_EQ(fr.form->SSAlertes->Caption(),
            "PERDU ! Crédit épuisé ! Cliquez sur l'icône situé en haut à droite de l'écran pour une nouvelle partie.");
}

TEST(HoldsDouble, AgainstAKingOnlyAnAceWins) {
  for (int r = 0; r <= 12; ++r) {
    Harness h;
    Offered(h, 4);
    House(h, 11, 2);
    h.platform.QueueDraws({r, 0});
    h.Drive({"click Deal(2)"});
    const Long expected = r == 12 ? 8 : r == 11 ? 4 : 0;
    EXPECT_EQ(h.form->GainMain, expected) << r;
  }
}

TEST(HoldsDouble, AgainstATwoNothingLosesAndAnotherTwoTies) {
  for (int r = 0; r <= 12; ++r) {
    Harness h;
    Offered(h, 4);
    House(h, 0, 1);
    h.platform.QueueDraws({r, 0});
    h.Drive({"click Deal(2)"});
    EXPECT_EQ(h.form->GainMain, r == 0 ? 4 : 8) << r;
    EXPECT_TRUE(h.form->Doubler->Visible());
  }
}

TEST(HoldsDouble, PlayersCardIsNeverTheHouseCard) {
  Harness h;
  Offered(h, 5);
  JeuPoker& f = *h.form;
  House(h, 5, 0);
  const size_t seeds = h.platform.seeds.size();
  // The same card comes twice and is drawn again, each time on a fresh clock reading.
  h.platform.QueueDraws({5, 0, 5, 0, 5, 1});
  h.Drive({"click Deal(1)"});
  EXPECT_EQ(h.platform.seeds.size(), seeds + 3);
  EXPECT_EQ(f.DoubleCarte3, Code("7D"));
  EXPECT_EQ(f.SSAlertes->Caption(), "EQUAL ! 7 of Diamonds is equal 7 of Clubs. QUIT, DOUBLE or PLAY ?");
}

TEST(HoldsDouble, PlayersCardMayBeACardOfTheHandJustPlayed) {
  Harness h;
  Offered(h, 5);  // the hand held the king of clubs
  House(h, 5, 0);
  h.platform.QueueDraws({11, 0});
  h.Drive({"click Deal(3)"});
  EXPECT_EQ(h.form->DoubleCarte3, Code("KC"));
  EXPECT_EQ(h.form->GainMain, 10);
}

TEST(HoldsDouble, PositionZeroCannotBeChosen) {
  Harness h;
  Offered(h, 5);
  JeuPoker& f = *h.form;
  House(h, 5, 0);
  h.Drive({"click Deal(0)"});
  EXPECT_EQ(h.platform.sleptMs, kBlinkMs);
  h.Drive({"key 97"});
  EXPECT_EQ(h.platform.sleptMs, kBlinkMs);  // the key is dropped without a blink
  EXPECT_TRUE(f.DoubleEnCours);
  EXPECT_EQ(f.CarteChoisie, 0);
  EXPECT_EQ(f.CarteClavier, 0);
  EXPECT_EQ(f.GainMain, 5);
  EXPECT_EQ(f.Deal(0).GetPicture(), f.Cartes(Code("7C")).GetPicture());
  EXPECT_EQ(f.SSAlertes->Caption(), "Choose a masked card and click on its back.");
}

TEST(HoldsDouble, KeypadPicksAMaskedCard) {
  for (int key : {98, 99, 100, 101}) {
    Harness h;
    Offered(h, 5);
    JeuPoker& f = *h.form;
    House(h, 5, 0);
    h.platform.QueueDraws({9, 2});
    h.Drive({QStringLiteral("key %1").arg(key)});
    const int position = key - 97;
    EXPECT_EQ(f.CarteChoisie, position);
    EXPECT_FALSE(f.DoubleEnCours);
    EXPECT_EQ(f.Deal(position).GetPicture(), f.Cartes(Code("JH")).GetPicture());
    EXPECT_EQ(f.GainMain, 10);
    // The hold words are not touched by a pick.
    for (int i = 0; i < 5; ++i) EXPECT_FALSE(f.Jouez(i).Visible());
  }
}

TEST(HoldsDouble, CardClickAfterTheDuelIsRefused) {
  Harness h;
  Offered(h, 5);
  JeuPoker& f = *h.form;
  House(h, 5, 0);
  h.platform.QueueDraws({9, 2});
  h.Drive({"click Deal(2)"});
  h.platform.QueueDraws({12, 2});
  h.Drive({"click Deal(3)", "key 100"});
  EXPECT_EQ(f.GainMain, 10);
  EXPECT_EQ(f.Deal(3).GetPicture(), f.Cartes(54).GetPicture());
  EXPECT_EQ(h.platform.queuedDraws.size(), 2u);
}

TEST(HoldsDouble, SlowDisplayTurnsThePickedCardInSixtySteps) {
  Harness h;
  Offered(h, 5);
  JeuPoker& f = *h.form;
  f.AffichageImmédiat = false;
  House(h, 5, 0);
  h.platform.QueueDraws({9, 2});
  const long long yields = h.platform.yields;
  Picture shownAtHalf = nullptr;
  h.platform.AtYield(30, [&] { shownAtHalf = f.Deal(2).GetPicture(); });
  h.platform.AtYield(31, [&] { shownAtHalf = f.Deal(2).GetPicture(); });
  h.Drive({"click Deal(2)"});
  EXPECT_EQ(h.platform.yields - yields, 60);
  // The face is put on between the closing and the opening.
  EXPECT_EQ(shownAtHalf, f.Cartes(Code("JH")).GetPicture());
  EXPECT_EQ(f.Deal(2).GetPicture(), f.Cartes(Code("JH")).GetPicture());
  EXPECT_GT(f.Deal(2).Width(), 0);
  EXPECT_GT(f.Deal(2).Height(), 0);
}

TEST(HoldsDouble, ClickDuringTheTurnOfThePickedCardIsRefused) {
  Harness h;
  Offered(h, 5);
  JeuPoker& f = *h.form;
  f.AffichageImmédiat = false;
  House(h, 5, 0);
  h.platform.QueueDraws({9, 2, 12, 2});
  // DoubleEnCours is already false while the card turns, so a second pick is refused.
  h.platform.AtYield(10, [&] { h.driver->Execute("click Deal(3)"); });
  h.Drive({"click Deal(2)"});
  EXPECT_EQ(f.Deal(2).GetPicture(), f.Cartes(Code("JH")).GetPicture());
  EXPECT_EQ(f.Deal(3).GetPicture(), f.Cartes(54).GetPicture());
  EXPECT_EQ(f.GainMain, 10);
  EXPECT_EQ(h.platform.queuedDraws.size(), 2u);
}

TEST(HoldsDouble, DoublingPastTheLongRangeIsAnOverflow) {
  EXPECT_EXIT(
      {
        Harness h;
        Offered(h, 1 << 30);
        House(h, 0, 0);
        h.platform.QueueDraws({12, 0});
        h.Drive({"click Deal(1)"});
      },
      ::testing::ExitedWithCode(3), "run-time error 6");
}

TEST(HoldsDouble, ALargeWinDoublesExactly) {
  Harness h;
  Offered(h, 12345678);
  House(h, 0, 0);
  h.platform.QueueDraws({12, 0});
  h.Drive({"click Deal(1)"});
  EXPECT_EQ(h.form->GainMain, 24691356);
  EXPECT_EQ(h.form->Gains->Caption(), "24691356");
}

// ---- Banking by QUITTE ------------------------------------------------------------------------

TEST(HoldsQuit, QuitBanksTheWinAndTurnsTheCardsDown) {
  Harness h;
  Offered(h, 5);
  JeuPoker& f = *h.form;
  h.Drive({"click Quitte1X5"});
  EXPECT_EQ(f.Capital, 205);
  EXPECT_EQ(f.GainMain, 0);
  EXPECT_EQ(f.NbTirées, 0);
  EXPECT_EQ(f.Gains->Caption(), "");
  EXPECT_FALSE(f.Doubler->Visible());
  for (int i = 0; i < 5; ++i) {
    EXPECT_TRUE(f.Jouez(i).Visible());
    EXPECT_EQ(f.Deal(i).GetPicture(), f.Cartes(54).GetPicture());
    EXPECT_EQ(f.Deal(i).MousePointer(), 12);
  }
  for (int i = 1; i <= 10; ++i) EXPECT_EQ(f.CartesSorties(i), -1);
  EXPECT_EQ(f.SSAlertes->Caption(), "NEW DRAWING : Click on PLAY or press the 'Space' key.");
  EXPECT_EQ(f.MainLabel(0).ForeColor(), 0xFFFFFF);
  EXPECT_EQ(h.Drive1("get Tirage.Focus"), "Tirage.Focus=-1");
}

TEST(HoldsQuit, QuitAfterAWonDuelBanksTheDoubledWin) {
  Harness h;
  h.form->Langue = 3;
  Offered(h, 5);
  House(h, 5, 0);
  h.platform.QueueDraws({9, 2});
  h.Drive({"click Deal(2)", "click Quitte1X5"});
  EXPECT_EQ(h.form->Capital, 210);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "NOUVEAU TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.");
}

TEST(HoldsQuit, QuitIsIgnoredWhileAutomaticModeRuns) {
  Harness h;
  Offered(h, 5);
  h.form->AutoPlay->SetBevelWidth(0);
  h.form->Quitte1X5_Click();
  EXPECT_EQ(h.form->Capital, 200);
  EXPECT_EQ(h.form->GainMain, 5);
  EXPECT_TRUE(h.form->Doubler->Visible());
}

}  // namespace
