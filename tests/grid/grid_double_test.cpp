// The grid's double-up: the house's card face up at position 0 (drawn from twelve ranks, two
// to king), the player's pick among the 24 masked cards (thirteen ranks); a higher rank
// doubles, an equal one keeps, a lower one loses all on one of three paths set by the credit.
// QUITTE and PLAY collect.
#include <gtest/gtest.h>

#include "tests/grid/grid_helpers.h"

using namespace grid;

namespace {

constexpr int kHouse = Card(Seven, Clubs);  // the house's card of options::Doubling2

// Four kings wait; the house shows `rank` of `suit`.
void StartDouble(Harness& h, int rank, int suit) {
  h.platform.QueueDraws({rank, suit});
  Click(h, "Double5X5");
  ASSERT_TRUE(h.form->DoubleEnCours);
  ASSERT_TRUE(Shows(*h.form, 0, Card(rank, suit)));
}

// The player picks position `p` and gets `rank` of `suit`.
void Pick(Harness& h, int p, int rank, int suit) {
  h.platform.QueueDraws({rank, suit});
  ClickCard(h, p);
  ASSERT_FALSE(h.form->DoubleEnCours);
  ASSERT_TRUE(Shows(*h.form, p, Card(rank, suit)));
  ASSERT_TRUE(h.platform.queuedDraws.empty());
}

QString Win(const JeuPoker& f, int player, int house) {
  return English(f) ? "YOU WIN ! " + CardName(f, player) + " is stronger then " + CardName(f, house) +
                          ". QUIT, DOUBLE or PLAY ?"
                    : "GAGNE ! " + CardName(f, player) + " est plus fort que " + CardName(f, house) +
                          ". QUITTE, DOUBLE ou JOUER ?";
}
QString Equal(const JeuPoker& f, int player, int house) {
  return English(f)
             ? "EQUAL ! " + CardName(f, player) + " is equal " + CardName(f, house) + ". QUIT, DOUBLE or PLAY ?"
             : "QUITTE ! " + CardName(f, player) + " est égal " + CardName(f, house) + ". QUITTE, DOUBLE ou JOUER ?";
}
QString Lost(const JeuPoker& f, int player, int house) {
  return English(f)
             ? "YOU LOST ! " + CardName(f, player) + " is beaten by " + CardName(f, house) + ". NEW DRAWING."
             : "PERDU ! " + CardName(f, player) + " est moins fort que " + CardName(f, house) + ". NOUVEAU TIRAGE.";
}

// What every lost double-up leaves: the line labels and the winnings emptied, the PLAY panel
// still hidden, the cards covered, the counter at 50.
void ExpectLostLeftovers(const JeuPoker& f) {
  for (int i = 0; i <= 11; ++i) {
    EXPECT_EQ(f.Mains5(i).Caption(), "") << i;
    EXPECT_EQ(f.Gains5(i).Caption(), "") << i;
  }
  EXPECT_EQ(f.Gains5(12).Caption(), "");
  EXPECT_EQ(f.Gains->Caption(), "");
  EXPECT_EQ(Digits(f, f.GainImage), "");
  EXPECT_EQ(f.GainTirage, 0);
  EXPECT_FALSE(f.Jouez5->Visible());
  EXPECT_FALSE(f.Doubler5->Visible());
  EXPECT_EQ(f.NbTirées, 50);
  EXPECT_FALSE(f.DoubleEnCours);
  for (int p = 0; p <= 24; ++p) EXPECT_EQ(f.Deal2(p).MousePointer(), 12) << p;
}

TEST(GridDouble, DoubleShowsTheHouseCardAndCoversTheOtherTwentyFour) {
  for (int slow : {0, 1}) {
    SCOPED_TRACE(slow ? "slow" : "instant");
    Harness h;
    JeuPoker& f = *h.form;
    options::ToGrid(h);
    if (slow) Click(h, "SSVitesse(0)");
    options::WinWaiting2(h);
    h.platform.QueueDraws({Seven, Clubs});
    const Watch w(h);
    Click(h, "Double5X5");
    // One yield a covered card, never an animation.
    EXPECT_EQ(w.Yields(), 24);
    EXPECT_TRUE(f.DoubleEnCours);
    EXPECT_EQ(f.DoubleCarte1, Seven);
    EXPECT_EQ(f.DoubleCarte2, Clubs);
    EXPECT_TRUE(Shows(f, 0, kHouse));
    EXPECT_EQ(f.CartesTirage(0), kHouse);
    for (int p = 1; p <= 24; ++p) EXPECT_TRUE(FaceDown(f, f.Deal2(p))) << p;
    for (int p = 0; p <= 24; ++p) EXPECT_EQ(f.Deal2(p).MousePointer(), 99) << p;
    EXPECT_FALSE(f.Doubler5->Visible());
    EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kChooseCard));
    EXPECT_EQ(f.AutoPlay->MousePointer(), 12);
    EXPECT_EQ(f.AutoPlayStop->MousePointer(), 12);
    EXPECT_EQ(f.Jouer->MousePointer(), 12);
    // The lines keep their captions while the cards are covered.
    EXPECT_EQ(f.Mains5(0).Caption(), "4 of KIND");
    EXPECT_EQ(f.Gains5(0).Caption(), "40");
    EXPECT_EQ(f.Gains5(12).Caption(), "40");
  }
}

TEST(GridDouble, AWinDoublesTheAmountAndDoublingGoesOnUntilQuit) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::Doubling2(h);
  Pick(h, 3, Ten, Hearts);
  EXPECT_EQ(f.SSAlertes->Caption(), Win(f, Card(Ten, Hearts), kHouse));
  EXPECT_EQ(f.SSAlertes->Caption(), "YOU WIN ! 10 of Hearts is stronger then 7 of Clubs. QUIT, DOUBLE or PLAY ?");
  EXPECT_TRUE(f.Doubler5->Visible());
  EXPECT_EQ(f.GainTirage, 80);
  EXPECT_EQ(f.Gains->Caption(), "80");
  EXPECT_EQ(Digits(f, f.GainImage), "80");
  EXPECT_EQ(f.CartesTirage(3), Card(Ten, Hearts));
  EXPECT_EQ(f.AutoPlay->MousePointer(), 10);
  EXPECT_EQ(f.Jouer->MousePointer(), 10);
  EXPECT_EQ(f.AutoPlayStop->MousePointer(), 12);
  for (int p = 0; p <= 24; ++p) EXPECT_EQ(f.Deal2(p).MousePointer(), 12) << p;
  EXPECT_EQ(f.Capital, 199);

  // Again: the card turned last time is covered anew; an ace beats the king.
  StartDouble(h, King, Spades);
  EXPECT_TRUE(FaceDown(f, f.Deal2(3)));
  Pick(h, 3, Ace, Clubs);
  EXPECT_EQ(f.SSAlertes->Caption(), Win(f, Card(Ace, Clubs), Card(King, Spades)));
  EXPECT_EQ(f.GainTirage, 160);
  EXPECT_EQ(Digits(f, f.GainImage), "160");

  Click(h, "Quitte5X5");
  EXPECT_EQ(f.Capital, 199 + 160);
  EXPECT_EQ(Digits(f, f.CapImage), "359");
  EXPECT_EQ(f.GainTirage, 0);
  EXPECT_EQ(f.NbTirées, 0);
  EXPECT_FALSE(f.Doubler5->Visible());
  EXPECT_TRUE(f.Jouez5->Visible());
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageC));
  EXPECT_TRUE(options::GridCovered(f));
  EXPECT_EQ(f.Gains->Caption(), "");
  EXPECT_EQ(Digits(f, f.GainImage), "");
  for (int i = 0; i <= 12; ++i) EXPECT_EQ(f.Gains5(i).Caption(), "") << i;
}

TEST(GridDouble, EqualRanksOfDifferentSuitsKeepTheAmountAndSayQuitteInFrench) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "SSLangue(1)");
  options::ToGrid(h);
  options::Doubling2(h);
  Pick(h, 9, Seven, Diamonds);
  EXPECT_EQ(f.SSAlertes->Caption(), "QUITTE ! 7 de Carreau est égal 7 de Trèfle. QUITTE, DOUBLE ou JOUER ?");
  EXPECT_EQ(f.GainTirage, 40);
  EXPECT_EQ(f.Gains->Caption(), "40");
  EXPECT_TRUE(f.Doubler5->Visible());
  // PLAY collects the amount that stood and deals again.
  options::FirstDrawing2(h, kGridNothing);
  EXPECT_EQ(f.Capital, 199 + 40 - 1);
}

TEST(GridDouble, EqualRanksInEnglish) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::Doubling2(h);
  Pick(h, 9, Seven, Spades);
  EXPECT_EQ(f.SSAlertes->Caption(), "EQUAL ! 7 of Spades is equal 7 of Clubs. QUIT, DOUBLE or PLAY ?");
  EXPECT_EQ(f.GainTirage, 40);
}

TEST(GridDouble, ThePlayerNeverGetsTheHouseCardItself) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::Doubling2(h);
  const size_t seeds = h.platform.seeds.size();
  h.platform.QueueDraws({Seven, Clubs, Seven, Clubs, Seven, Hearts});
  ClickCard(h, 12);
  EXPECT_TRUE(h.platform.queuedDraws.empty());
  // A fresh clock reading for each of the three tries.
  EXPECT_EQ(h.platform.seeds.size() - seeds, 3u);
  EXPECT_EQ(f.DoubleCarte3, Card(Seven, Hearts));
  EXPECT_TRUE(Shows(f, 12, Card(Seven, Hearts)));
  EXPECT_EQ(f.SSAlertes->Caption(), Equal(f, Card(Seven, Hearts), kHouse));
}

TEST(GridDouble, AgainstAKingOnlyAnAceWinsAKingTiesAndEveryOtherRankLoses) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  const int house = Card(King, Hearts);
  for (int rank = Two; rank <= Ace; ++rank) {
    SCOPED_TRACE("player's rank " + std::to_string(rank));
    options::WinWaiting2(h);
    StartDouble(h, King, Hearts);
    Pick(h, 1 + rank, rank, Spades);
    const int player = Card(rank, Spades);
    if (rank == Ace) {
      EXPECT_EQ(f.SSAlertes->Caption(), Win(f, player, house));
      EXPECT_EQ(f.GainTirage, 80);
    } else if (rank == King) {
      EXPECT_EQ(f.SSAlertes->Caption(), Equal(f, player, house));
      EXPECT_EQ(f.GainTirage, 40);
    } else {
      EXPECT_EQ(f.SSAlertes->Caption(), Lost(f, player, house));
      EXPECT_EQ(f.GainTirage, 0);
    }
    EXPECT_EQ(f.Doubler5->Visible(), rank >= King);
  }
}

TEST(GridDouble, ThePlayersCardMayBeOneDealtInTheDeal) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::WinWaiting2(h);
  // The house's card is the king of diamonds, which lies on the grid at position 1 ...
  StartDouble(h, King, Diamonds);
  // ... and the player's the king of clubs, dealt at position 0: both come at the first try.
  const size_t seeds = h.platform.seeds.size();
  Pick(h, 5, King, Clubs);
  EXPECT_EQ(h.platform.seeds.size() - seeds, 1u);
  EXPECT_EQ(f.CartesTirage(5), Card(King, Clubs));
  EXPECT_EQ(f.CartesSorties(1), Card(King, Clubs));
  EXPECT_EQ(f.SSAlertes->Caption(), Equal(f, Card(King, Clubs), Card(King, Diamonds)));
}

TEST(GridDouble, TheHouseDrawsFromTwelveRanksAndThePlayerFromThirteen) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::WinWaiting2(h);
  // An ace cannot be drawn for the house: the queued 12 is refused as out of range.
  h.platform.QueueDraws({Ace, Clubs});
  EXPECT_EQ(h.Drive({"click Double5X5"}), QStringList{"error: draw 12 is not below 12; drawn at random"});
  EXPECT_LT(f.DoubleCarte1, Ace);
  EXPECT_EQ(f.DoubleCarte2, Clubs);
  // For the player a rank of 13 is out of range, and the ace is there.
  h.platform.QueueDraws({13, Spades});
  EXPECT_EQ(h.Drive({"click Deal2(4)"}), QStringList{"error: draw 13 is not below 13; drawn at random"});
  options::WinWaiting2(h);
  StartDouble(h, Queen, Hearts);
  Pick(h, 4, Ace, Spades);
  EXPECT_EQ(f.DoubleCarte3, Card(Ace, Spades));
  EXPECT_EQ(f.GainTirage, 80);
  // The suits are drawn from four.
  options::WinWaiting2(h);
  h.platform.QueueDraws({Two, 4});
  EXPECT_EQ(h.Drive({"click Double5X5"}), QStringList{"error: draw 4 is not below 4; drawn at random"});
}

TEST(GridDouble, ALossWithTheBetCoveredEmptiesTheLinesAndLeavesThePlayPanelHidden) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::Doubling2(h);
  f.Plus5->SetMousePointer(12);
  Pick(h, 8, Two, Hearts);
  EXPECT_EQ(f.SSAlertes->Caption(), Lost(f, Card(Two, Hearts), kHouse));
  EXPECT_EQ(f.SSAlertes->Caption(), "YOU LOST ! 2 of Hearts is beaten by 7 of Clubs. NEW DRAWING.");
  ExpectLostLeftovers(f);
  // The pointers say that the bet buttons work again.
  EXPECT_EQ(f.Plus5->MousePointer(), 10);
  EXPECT_EQ(f.Capital, 199);
  EXPECT_EQ(f.Niveau, 1);
  // The cards stay covered apart from the house's and the pick.
  EXPECT_EQ(FaceDownPositions(f).size(), 23u);
  // The next PLAY opens a new deal.
  options::FirstDrawing2(h, kGridNothing);
  EXPECT_EQ(f.Capital, 198);
}

TEST(GridDouble, ALossWithTheBetNoLongerCoveredPutsItBackToOneAndLeavesThePointers) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  ChooseLevel(h, 2);
  h.Drive({"set Capital 3"});
  options::WinWaiting2(h);
  ASSERT_EQ(f.GainTirage, 140);  // line 2 of the grid is a straight flush
  ASSERT_EQ(f.Capital, 1);
  StartDouble(h, Seven, Clubs);
  Pick(h, 8, Six, Hearts);
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kLostBetBack));
  ExpectLostLeftovers(f);
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(f.Niveau, 1);
  EXPECT_EQ(f.UnADouze->Caption(), "1");
  EXPECT_EQ(f.Mises->Caption(), "1");
  EXPECT_EQ(Digits(f, f.UnàDouzeImage), "1");
  ExpectLinesInPlay(f, 1);
  // No pointer is reset on this path: the bet buttons still show no entry, yet they work.
  EXPECT_EQ(f.Plus5->MousePointer(), 12);
  EXPECT_EQ(f.Plus->MousePointer(), 12);
  options::FirstDrawing2(h, kGridNothing);
  EXPECT_EQ(f.Capital, 0);
}

TEST(GridDouble, ALossAtNoCreditEndsTheGameUntilANewOne) {
  for (int french : {0, 1}) {
    SCOPED_TRACE(french ? "French" : "English");
    Harness h;
    JeuPoker& f = *h.form;
    if (french) Click(h, "SSLangue(1)");
    options::ToGrid(h);
    h.Drive({"set Capital 1"});
    options::Doubling2(h);
    ASSERT_EQ(f.Capital, 0);
    Pick(h, 8, Four, Diamonds);
    EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kLostNoCredit));
    EXPECT_TRUE(f.SSAlertes->Caption().contains(french ? "Crédit épuisé" : "No more credit"));
    ExpectLostLeftovers(f);
    // The pointers are set while the winnings caption still stands, so they only forbid the
    // bet buttons; the automatic mode's button keeps the arrow the pick gave it.
    EXPECT_EQ(f.Plus5->MousePointer(), 12);
    EXPECT_EQ(f.Jeu3D->MousePointer(), 12);
    EXPECT_EQ(f.AutoPlay->MousePointer(), 10);
    // PLAY blinks and nothing moves.
    const auto before = options::Record(f);
    const Watch w(h);
    Click(h, "Jouer");
    EXPECT_EQ(w.Slept(), kBlinkMs);
    EXPECT_EQ(options::Changes(before, options::Record(f)), "");
    options::ExpectRefused(h, "Plus5");
    Click(h, "SSRecommence");
    EXPECT_EQ(f.Capital, 200);
    options::FirstDrawing2(h, kGridNothing);
    EXPECT_EQ(f.Capital, 199);
  }
}

TEST(GridDouble, ThePickShowsAtOnceAtInstantSpeedAndAnimatesAtSlowSpeed) {
  for (int slow : {0, 1}) {
    SCOPED_TRACE(slow ? "slow" : "instant");
    Harness h;
    JeuPoker& f = *h.form;
    options::ToGrid(h);
    options::Doubling2(h);
    if (slow) Click(h, "SSVitesse(0)");
    h.platform.QueueDraws({Nine, Hearts});
    const Watch w(h);
    ClickCard(h, 14);
    EXPECT_EQ(w.Yields(), slow ? 60 : 0);
    EXPECT_TRUE(Shows(f, 14, Card(Nine, Hearts)));
    EXPECT_EQ(f.Deal2(14).Width(), 975);
    EXPECT_EQ(f.Deal2(14).Height(), 1305);
  }
}

TEST(GridDouble, QuitWeighsTheCreditTogetherWithTheWinnings) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "SSLangue(1)");
  options::ToGrid(h);
  ChooseLevel(h, 12);
  h.Drive({"set Capital 12"});
  // The stake of twelve lines takes the whole credit; QUITTE counts the winnings in.
  options::WinWaiting2(h);
  ASSERT_EQ(f.Capital, 0);
  const long long won = f.GainTirage;
  ASSERT_GE(won, 12);
  Click(h, "Quitte5X5");
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageC));
  EXPECT_EQ(f.Capital, won);
  EXPECT_EQ(f.Niveau, 12);
}

using GridDoubleDeathTest = ::testing::Test;

TEST_F(GridDoubleDeathTest, DoublingPastTheRangeOfALongEndsWithOverflow) {
  EXPECT_EXIT(
      {
        Harness h;
        options::ToGrid(h);
        options::Doubling2(h);
        h.form->GainTirage = 1500000000;
        h.platform.QueueDraws({Ace, Spades});
        h.Drive({"click Deal2(1)"});
      },
      ::testing::ExitedWithCode(3), "run-time error 6");
}

}  // namespace
