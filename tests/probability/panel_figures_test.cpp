// The figures of the probability panel: tables of the driver, totals, the counts quoted for
// particular tables, the departures kept on purpose, and the captions of the panel.
#include <gtest/gtest.h>

#include "tests/probability/probability_support.h"

using probtest::Cards;
using probtest::Lay;

namespace {

constexpr int C(int rank, int suit) { return 13 * suit + rank; }  // card code
constexpr int kClubs = 0, kDiamonds = 1, kHearts = 2, kSpades = 3;
constexpr int kJ1 = 52, kJ2 = 53;

class ProbFigures : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { h = new Harness(); }
  static void TearDownTestSuite() { delete h; }
  void SetUp() override {
    JeuPoker& f = *h->form;
    f.Langue = 2;
    f.NbTirées = 5;
  }
  static JeuPoker& F() { return *h->form; }
  static Long R(int i) { return F().Réalisations(i); }
  static Harness* h;
};
Harness* ProbFigures::h = nullptr;

// ---- Driver tables --------------------------------------------------------------------------

TEST_F(ProbFigures, TotalDrawsByHeldCardsAndDeckSize) {
  const long long expected[3][6] = {
      {1533939, 178365, 16215, 1081, 47, 1},
      {1712304, 194580, 17296, 1128, 48, 1},
      {1906884, 211876, 18424, 1176, 49, 1},
  };
  const Cards table = {C(0, kClubs), C(5, kDiamonds), C(8, kHearts), C(10, kSpades), C(3, kHearts)};
  for (int jokers = 0; jokers <= 2; ++jokers)
    for (int held = 0; held <= 5; ++held) {
      Lay(F(), table, jokers, (1 << held) - 1);
      EXPECT_EQ(F().TotalTirages, expected[jokers][held]) << jokers << " jokers, " << held << " held";
      EXPECT_EQ(F().UnSur->Caption(), QString("?/%1").arg(expected[jokers][held]));
    }
}

TEST_F(ProbFigures, HeldRejectedAndRemainingTables) {
  // Held: the king of hearts and the joker 53; rejected: 52, the two of clubs, the king of spades.
  const Cards table = {kJ1, C(11, kHearts), C(0, kClubs), kJ2, C(11, kSpades)};
  Lay(F(), table, 2, 0b01010);
  JeuPoker& f = F();
  EXPECT_EQ(f.NbGardées, 2);
  EXPECT_EQ(f.NbRejetées, 3);
  EXPECT_EQ(f.NbJokersGardés, 1);
  EXPECT_EQ(f.JokersRestants, 0);  // a rejected joker does not go back into the deck
  EXPECT_EQ(f.Gardées(0), 11);
  EXPECT_EQ(f.Gardées(1), 53);
  EXPECT_EQ(f.CouleursGardées(0), kHearts);
  EXPECT_EQ(f.CouleursGardées(1), 4);
  EXPECT_EQ(f.RejetéesCodes(0), 0);
  EXPECT_EQ(f.RejetéesCodes(1), 11);
  EXPECT_EQ(f.RejetéesCodes(2), 52);
  EXPECT_EQ(f.GardéesValeur(11), 1);
  // The rejected joker 52 lands under rank 0, beside the rejected two.
  EXPECT_EQ(f.RejetéesValeur(0), 2);
  EXPECT_EQ(f.RejetéesValeur(1), 0);
  EXPECT_EQ(f.RejetéesValeur(11), 1);
  EXPECT_EQ(f.RestantsValeur(11), 2);
  EXPECT_EQ(f.RestantsValeur(0), 3);
  EXPECT_EQ(f.RestantsValeur(5), 4);
  EXPECT_EQ(f.RestantsParValeur(11), 2);
  EXPECT_EQ(f.RestantsGrille(11, kHearts), 0);
  EXPECT_EQ(f.RestantsGrille(11, kClubs), 1);
  EXPECT_EQ(f.RestantsCouleurValeur(11, kHearts), 2);
  EXPECT_EQ(f.RestantsCouleurValeur(11, kSpades), 0);
  EXPECT_EQ(f.RestantsCouleurValeur(0, kClubs), 0);
  EXPECT_EQ(f.RestantsCouleurValeur(0, kDiamonds), 1);
}

TEST_F(ProbFigures, RejectedJoker53CountsUnderRankOne) {
  Lay(F(), {kJ2, C(4, kClubs), C(6, kClubs), C(8, kDiamonds), C(9, kHearts)}, 2, 0b11110);
  EXPECT_EQ(F().RejetéesValeur(1), 1);
  EXPECT_EQ(F().RejetéesCodes(0), 53);
  EXPECT_EQ(F().JokersRestants, 1);
}

TEST_F(ProbFigures, RejectedJokerLeavesTheDeckButNotTheNumberOfCardsDrawnFrom) {
  Lay(F(), {kJ1, C(4, kClubs), C(6, kClubs), C(8, kDiamonds), C(9, kHearts)}, 2, 0);
  EXPECT_EQ(F().JokersRestants, 1);
  EXPECT_EQ(F().TotalTirages, 1906884);  // still five among TailleJeu - 5 = 49
  EXPECT_EQ(F().RestantsValeur(3), 5);   // four fives and the one joker left
  EXPECT_EQ(F().RestantsGrille(3, kClubs), 2);
}

TEST_F(ProbFigures, FiveHeldAreTheRawCodesInTableOrder) {
  const Cards table = {C(9, kSpades), C(2, kClubs), kJ1, C(7, kHearts), C(0, kDiamonds)};
  Lay(F(), table, 1, 0b11111);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(F().Gardées(i), table[static_cast<std::size_t>(i)]);
}

TEST_F(ProbFigures, HoldWordFollowsTheLanguage) {
  JeuPoker& f = F();
  const Cards table = {C(2, kClubs), C(5, kDiamonds), C(7, kHearts), C(9, kSpades), C(12, kHearts)};
  Lay(f, table, 0, 0, false);
  f.Jouez(0).SetCaption("GARDER");
  f.Jouez(1).SetCaption("HOLD");
  f.Jouez(2).SetCaption("JETER");
  f.Jouez(3).SetCaption("JOUEZ");
  f.Jouez(4).SetCaption("REJECT");
  for (int langue : {0, 2}) {
    f.Langue = static_cast<Byte>(langue);
    f.Probabilités();
    EXPECT_EQ(f.NbGardées, 1);
    EXPECT_EQ(f.Gardées(0), 5);
  }
  for (int langue : {1, 3}) {
    f.Langue = static_cast<Byte>(langue);
    f.Probabilités();
    EXPECT_EQ(f.NbGardées, 1);
    EXPECT_EQ(f.Gardées(0), 2);
  }
}

// ---- Panel captions -----------------------------------------------------------------------

TEST_F(ProbFigures, AllFiveHeldShowOneDrawInTheHandsClass) {
  // A straight: 5 6 7 8 9 of mixed suits.
  Lay(F(), {C(3, kClubs), C(4, kHearts), C(5, kDiamonds), C(6, kClubs), C(7, kSpades)}, 2, 0b11111);
  JeuPoker& f = F();
  ASSERT_EQ(f.RangMain, 3);
  EXPECT_EQ(f.TotalTirages, 1);
  EXPECT_EQ(f.UnSur->Caption(), "?/1");
  for (int i = 0; i <= 11; ++i) {
    const bool own = i == 3;
    EXPECT_EQ(R(i), own ? 1 : 0) << i;
    EXPECT_EQ(f.Fractions(i).Caption(), own ? "1" : "0") << i;
    EXPECT_EQ(f.PourcDéc(i).Caption(), own ? "100" : "0") << i;
    EXPECT_EQ(f.Pourcentages(i).Caption(), "") << i;
    EXPECT_EQ(f.Fractions(i).BackColor(), own ? 0x404000 : 0) << i;
    EXPECT_EQ(f.Pourcentages(i).BackColor(), own ? 0x404000 : 0) << i;
  }
}

TEST_F(ProbFigures, FiveHeldThatPayNothingShowOneDrawUnderNothing) {
  Lay(F(), {C(0, kClubs), C(4, kHearts), C(7, kDiamonds), C(9, kClubs), C(11, kSpades)}, 0, 0b11111);
  ASSERT_EQ(F().RangMain, 10);
  EXPECT_EQ(F().Fractions(10).Caption(), "1");
  EXPECT_EQ(F().PourcDéc(10).Caption(), "100");
  EXPECT_EQ(F().Fractions(11).Caption(), "0");
  EXPECT_EQ(F().PourcDéc(11).Caption(), "0");
}

TEST_F(ProbFigures, NothingHeldTotalsFor52And54Cards) {
  const Cards table = {C(0, kClubs), C(5, kDiamonds), C(8, kHearts), C(10, kSpades), C(3, kHearts)};
  Lay(F(), table, 0, 0);
  EXPECT_EQ(F().UnSur->Caption(), "?/1533939");
  Lay(F(), table, 2, 0);
  EXPECT_EQ(F().UnSur->Caption(), "?/1906884");
}

TEST_F(ProbFigures, PercentageIsCutAfterSixDecimalsAndSplitByPosition) {
  JeuPoker& f = F();
  Lay(f, {C(0, kClubs), C(5, kDiamonds), C(8, kHearts), C(10, kSpades), C(3, kHearts)}, 2, 0);
  f.TotalTirages = 100000000;
  f.Réalisations(1) = 12500000;
  f.Réalisations(2) = 3141592;   // 3.141592
  f.Réalisations(3) = 31415926;  // 31.415926
  f.Réalisations(4) = 2;         // 0.000002
  f.Réalisations(5) = 100000000;
  f.Réalisations(6) = 0;
  f.Réalisations(7) = 50000000;  // 50
  f.AfficheProbabilités();
  EXPECT_EQ(f.UnSur->Caption(), "?/100000000");
  EXPECT_EQ(f.PourcDéc(1).Caption(), "12");
  EXPECT_EQ(f.Pourcentages(1).Caption(), ".500000");
  EXPECT_EQ(f.PourcDéc(2).Caption(), "3");
  EXPECT_EQ(f.Pourcentages(2).Caption(), ".141592");
  EXPECT_EQ(f.PourcDéc(3).Caption(), "31");
  EXPECT_EQ(f.Pourcentages(3).Caption(), ".415926");
  EXPECT_EQ(f.PourcDéc(4).Caption(), "0");
  EXPECT_EQ(f.Pourcentages(4).Caption(), ".000002");
  EXPECT_EQ(f.PourcDéc(5).Caption(), "100");
  EXPECT_EQ(f.Pourcentages(5).Caption(), "");
  EXPECT_EQ(f.PourcDéc(6).Caption(), "0");
  EXPECT_EQ(f.Pourcentages(6).Caption(), "");
  EXPECT_EQ(f.Fractions(6).BackColor(), 0);
  EXPECT_EQ(f.PourcDéc(7).Caption(), "50");
  EXPECT_EQ(f.Pourcentages(7).Caption(), ".000000");
  EXPECT_EQ(f.Fractions(7).Caption(), "50000000");
  EXPECT_EQ(f.Fractions(7).BackColor(), 0x404000);
  // Cut, never rounded: 2/3 of a percent.
  f.TotalTirages = 300;
  f.Réalisations(1) = 2;
  f.AfficheProbabilités();
  EXPECT_EQ(f.PourcDéc(1).Caption(), "0");
  EXPECT_EQ(f.Pourcentages(1).Caption(), ".666666");
}

TEST_F(ProbFigures, OneDrawAmongAMillionAndAHalfReadsSixtyFiveMillionths) {
  JeuPoker& f = F();
  Lay(f, {C(0, kClubs), C(5, kDiamonds), C(8, kHearts), C(10, kSpades), C(3, kHearts)}, 0, 0);
  ASSERT_EQ(f.TotalTirages, 1533939);
  f.Réalisations(8) = 1;
  f.AfficheProbabilités();
  EXPECT_EQ(f.PourcDéc(8).Caption(), "0");
  EXPECT_EQ(f.Pourcentages(8).Caption(), ".000065");
  EXPECT_EQ(f.Fractions(8).Caption(), "1");
}

TEST_F(ProbFigures, SecondDrawingBlanksEveryRowAndBlackensThem) {
  JeuPoker& f = F();
  Lay(f, {C(0, kClubs), C(5, kDiamonds), C(8, kHearts), C(10, kSpades), C(3, kHearts)}, 2, 0);
  ASSERT_EQ(f.Fractions(10).BackColor(), 0x404000);
  f.NbTirées = 10;
  f.Probabilités();
  EXPECT_EQ(f.UnSur->Caption(), "");
  for (int i = 0; i <= 11; ++i) {
    EXPECT_EQ(f.PourcDéc(i).Caption(), "") << i;
    EXPECT_EQ(f.Pourcentages(i).Caption(), "") << i;
    EXPECT_EQ(f.Fractions(i).Caption(), "") << i;
    EXPECT_EQ(f.Pourcentages(i).BackColor(), 0) << i;
    EXPECT_EQ(f.Fractions(i).BackColor(), 0) << i;
  }
}

TEST_F(ProbFigures, WithoutJokersRowNineIsNeverTouched) {
  JeuPoker& f = F();
  f.PourcDéc(9).SetCaption("p");
  f.Pourcentages(9).SetCaption("q");
  f.Fractions(9).SetCaption("r");
  f.Pourcentages(9).SetBackColor(0x123456);
  f.Fractions(9).SetBackColor(0x123456);
  Lay(f, {C(0, kClubs), C(5, kDiamonds), C(8, kHearts), C(10, kSpades), C(3, kHearts)}, 0, 0b00011);
  auto untouched = [&] {
    EXPECT_EQ(f.PourcDéc(9).Caption(), "p");
    EXPECT_EQ(f.Pourcentages(9).Caption(), "q");
    EXPECT_EQ(f.Fractions(9).Caption(), "r");
    EXPECT_EQ(f.Pourcentages(9).BackColor(), 0x123456);
    EXPECT_EQ(f.Fractions(9).BackColor(), 0x123456);
  };
  untouched();
  EXPECT_EQ(R(9), 0);
  f.NbTirées = 10;
  f.Probabilités();
  untouched();
  // With a joker the row is written.
  Lay(f, {C(0, kClubs), C(5, kDiamonds), C(8, kHearts), C(10, kSpades), C(3, kHearts)}, 1, 0b00011);
  EXPECT_NE(f.Fractions(9).Caption(), "r");
}

// ---- Complements and better hands -------------------------------------------------------

TEST_F(ProbFigures, HeldJokerAndKingMakeThePairAComplementAndNothingStaysZero) {
  const Cards table = {kJ1, C(11, kDiamonds), C(2, kClubs), C(6, kHearts), C(9, kSpades)};
  Lay(F(), table, 2, 0b00011);
  long long better = 0;
  for (int i = 1; i <= 9; ++i) better += R(i);
  EXPECT_EQ(R(0), F().TotalTirages - better);
  EXPECT_EQ(R(10), 0);
  EXPECT_TRUE(F().ComplémentFait);
}

TEST_F(ProbFigures, BothJokersHeldMakeThreeOfAKindAComplementAndNothingStaysZero) {
  const Cards table = {kJ1, kJ2, C(2, kClubs), C(6, kHearts), C(9, kSpades)};
  Lay(F(), table, 2, 0b00011);
  long long better = 0;
  for (int i = 3; i <= 9; ++i) better += R(i);
  EXPECT_EQ(R(2), F().TotalTirages - better);
  EXPECT_EQ(R(0), 0);
  EXPECT_EQ(R(10), 0);
  EXPECT_FALSE(F().ComplémentFait);
}

TEST_F(ProbFigures, BetterHandsAreTheClassesAboveTheTable) {
  // Two pairs on the table, nothing held.
  Lay(F(), {C(4, kClubs), C(4, kHearts), C(9, kDiamonds), C(9, kClubs), C(1, kSpades)}, 1, 0);
  ASSERT_EQ(F().RangMain, 1);
  long long above = 0;
  for (int i = 2; i <= 9; ++i) above += R(i);
  EXPECT_EQ(R(11), above);
  // Nothing on the table: every paying class.
  Lay(F(), {C(0, kClubs), C(5, kDiamonds), C(8, kHearts), C(10, kSpades), C(3, kHearts)}, 1, 0);
  ASSERT_EQ(F().RangMain, 10);
  long long all = 0;
  for (int i = 0; i <= 9; ++i) all += R(i);
  EXPECT_EQ(R(11), all);
  EXPECT_EQ(R(10) + R(11), F().TotalTirages);
  // Five of a kind on the table: nothing is better.
  Lay(F(), {kJ1, C(4, kClubs), C(4, kHearts), C(4, kDiamonds), C(4, kSpades)}, 2, 0);
  ASSERT_EQ(F().RangMain, 9);
  EXPECT_EQ(R(11), 0);
}

// ---- Flushes and five of a kind -----------------------------------------------------------

TEST_F(ProbFigures, TwoHeldSuitsRuleOutFlushesAndStraightFlushes) {
  Lay(F(), {C(3, kClubs), C(4, kHearts), C(9, kDiamonds), C(10, kSpades), C(1, kSpades)}, 2, 0b00011);
  EXPECT_FALSE(F().CouleurPossible);
  EXPECT_TRUE(F().QuintePossible);
  EXPECT_EQ(R(4), 0);
  EXPECT_EQ(R(7), 0);
  EXPECT_EQ(R(8), 0);
}

TEST_F(ProbFigures, HeldJokerWithANaturalCountsAsACardOfItsSuit) {
  // Held: the joker and the six of hearts; the eight of hearts is rejected.
  Lay(F(), {kJ1, C(4, kHearts), C(6, kHearts), C(10, kSpades), C(1, kSpades)}, 2, 0b00011);
  EXPECT_TRUE(F().CouleurPossible);
  // 13 + 2 jokers less the joker, the six and the eight: the 11 other hearts and the joker.
  EXPECT_EQ(F().NbMêmeCouleur, 12);
  EXPECT_EQ(R(4) + R(7) + R(8), 12 * 11 * 10 / 6);
}

TEST_F(ProbFigures, RejectedJokerLowersTheCardsOfTheSuit) {
  // One joker in the game, rejected: only the natural cards of the suit remain.
  Lay(F(), {kJ1, C(4, kHearts), C(6, kHearts), C(10, kSpades), C(1, kSpades)}, 1, 0b00110);
  EXPECT_EQ(F().NbMêmeCouleur, 11);
  EXPECT_EQ(R(4) + R(7) + R(8), 11 * 10 * 9 / 6);
}

TEST_F(ProbFigures, FiveRejectedOfOneSuitLeaveEightOfIt) {
  Lay(F(), {C(0, kHearts), C(3, kHearts), C(6, kHearts), C(9, kHearts), C(11, kHearts)}, 0, 0);
  EXPECT_EQ(R(4) + R(7) + R(8), 56 + 3 * 1287);
}

TEST_F(ProbFigures, FiveHeldStraightFlushIsNoFlushAndLosesNothing) {
  Lay(F(), {C(3, kSpades), C(4, kSpades), C(5, kSpades), C(6, kSpades), C(7, kSpades)}, 0, 0b11111);
  ASSERT_EQ(F().RangMain, 7);
  EXPECT_EQ(R(4), 0);
  EXPECT_EQ(R(3), 0);
  EXPECT_EQ(R(7), 1);
  EXPECT_EQ(R(8), 0);
  Lay(F(), {C(8, kSpades), C(9, kSpades), C(10, kSpades), C(11, kSpades), C(12, kSpades)}, 0, 0b11111);
  ASSERT_EQ(F().RangMain, 8);
  EXPECT_EQ(R(8), 1);
  EXPECT_EQ(R(7), 0);
  EXPECT_EQ(R(4), 0);
}

TEST_F(ProbFigures, TwoSevensAndTwoJokersHeldMakeFiveOfAKindTwice) {
  Lay(F(), {C(5, kClubs), C(5, kHearts), kJ1, kJ2, C(9, kSpades)}, 2, 0b01111);
  EXPECT_EQ(R(9), 2);
}

// ---- Straights ----------------------------------------------------------------------------

TEST_F(ProbFigures, HeldPairRulesOutStraights) {
  for (int jokers : {0, 2}) {
    if (jokers == 0)
      Lay(F(), {C(5, kClubs), C(5, kHearts), C(2, kClubs), C(9, kSpades), C(3, kSpades)}, 0, 0b00011);
    else
      Lay(F(), {C(5, kClubs), C(5, kHearts), kJ1, C(2, kClubs), C(9, kSpades)}, 2, 0b00111);
    EXPECT_FALSE(F().QuintePossible);
    EXPECT_EQ(R(3), 0);
    EXPECT_EQ(R(7), 0);
    EXPECT_EQ(R(8), 0);
  }
}

TEST_F(ProbFigures, HeldAceAndTwoPassTheGateWithTheAceLow) {
  Lay(F(), {C(12, kClubs), C(0, kHearts), C(7, kDiamonds), C(9, kClubs), C(5, kSpades)}, 0, 0b00011);
  EXPECT_EQ(F().Gardées(0), 0);
  EXPECT_EQ(F().Gardées(1), 12);
  EXPECT_TRUE(F().QuintePossible);
  // The three to the five, any suits: 4 x 4 x 4 less the straight flushes (none, two suits held).
  EXPECT_EQ(R(3), 64);
}

TEST_F(ProbFigures, HeldKingAndTwoCloseTheGate) {
  Lay(F(), {C(11, kClubs), C(0, kHearts), C(7, kDiamonds), C(9, kClubs), C(5, kSpades)}, 2, 0b00011);
  EXPECT_FALSE(F().QuintePossible);
  EXPECT_EQ(R(3), 0);
}

TEST_F(ProbFigures, NothingHeldCountsTheAceAtBothEnds) {
  // The four sevens and the eight of clubs on the table.
  Lay(F(), {C(5, kClubs), C(5, kDiamonds), C(5, kHearts), C(5, kSpades), C(6, kClubs)}, 0, 0);
  EXPECT_EQ(R(3) + R(7) + R(8), 4 * 1024 + 768);
  // An ace on the table lowers both spans that hold the ace.
  Lay(F(), {C(12, kClubs), C(5, kDiamonds), C(5, kHearts), C(5, kSpades), C(5, kClubs)}, 0, 0);
  EXPECT_EQ(R(3) + R(7) + R(8), 768 + 1024 + 1024 + 1024 + 768);
}

TEST_F(ProbFigures, LoneAceCountsOnlyTheTopSpan) {
  Lay(F(), {C(12, kClubs), C(5, kDiamonds), C(6, kHearts), C(7, kSpades), C(6, kClubs)}, 0, 0b00001);
  EXPECT_EQ(F().TotalTirages, 178365);
  EXPECT_EQ(R(3) + R(7) + R(8), 256);
  EXPECT_EQ(R(7), 1);
  EXPECT_EQ(R(8), 1);
  EXPECT_EQ(R(3), 254);
  EXPECT_EQ(F().PourcDéc(3).Caption(), "0");
  EXPECT_EQ(F().Pourcentages(3).Caption(), ".142404");
}

TEST_F(ProbFigures, LoneEightWithBothJokersDoublesTheSixAndSeven) {
  // No six or seven on the table: exact count plus 4 x 4.
  const Cards table = {C(6, kClubs), C(0, kDiamonds), C(1, kHearts), C(10, kSpades), C(11, kClubs)};
  Lay(F(), table, 2, 0b00001);
  const long long withDouble = R(3) + R(7) + R(8);
  // The same count term by term: sets of ranks within a span with the eight, and the jokers.
  JeuPoker& f = F();
  long long exact = 0;
  const int P[13] = {3, 3, 4, 4, 4, 4, 3, 4, 4, 4, 3, 3, 4};
  // Enumerate the terms directly: ranks r1<r2<...; each term is counted once.
  for (int mask = 0; mask < (1 << 13); ++mask) {
    if (mask & (1 << 6)) continue;
    const int u = mask | (1 << 6);
    const int n = __builtin_popcount(static_cast<unsigned>(mask));
    if (n > 4 || n < 2) continue;
    bool fits = false;
    for (int i = 1; i <= 10; ++i) {
      const int span = i == 1 ? 0x100F : 0x1F << (i - 2);
      if ((u & span) == u) fits = true;
    }
    if (!fits) continue;
    long long prod = 1;
    for (int r = 0; r < 13; ++r)
      if (mask >> r & 1) prod *= P[r];
    const int k = 4 - n;
    exact += prod * (k == 1 ? 2 : 1);
  }
  EXPECT_EQ(f.JokersRestants, 2);
  EXPECT_EQ(withDouble, exact + 16);
}

TEST_F(ProbFigures, HeldSevenAndJokerIgnoreTheOtherJoker) {
  const Cards table = {C(5, kClubs), kJ1, C(0, kHearts), C(1, kSpades), C(12, kClubs)};
  Lay(F(), table, 2, 0b00011);
  // Only three natural cards complete: ranks within a span with the seven.
  const int P[13] = {3, 3, 4, 4, 4, 3, 4, 4, 4, 4, 4, 4, 3};
  long long natural = 0;
  for (int mask = 0; mask < (1 << 13); ++mask) {
    if (mask & (1 << 5) || __builtin_popcount(static_cast<unsigned>(mask)) != 3) continue;
    const int u = mask | (1 << 5);
    bool fits = false;
    for (int i = 1; i <= 10; ++i)
      if ((u & (i == 1 ? 0x100F : 0x1F << (i - 2))) == u) fits = true;
    if (!fits) continue;
    long long prod = 1;
    for (int r = 0; r < 13; ++r)
      if (mask >> r & 1) prod *= P[r];
    natural += prod;
  }
  EXPECT_EQ(R(3) + R(7) + R(8), natural);
}

TEST_F(ProbFigures, RejectedJokerTakesTheJokerTermsAway) {
  // Both jokers in the game, one rejected, the other on the table too: no joker can come.
  const Cards table = {C(5, kClubs), kJ1, kJ2, C(1, kSpades), C(12, kClubs)};
  Lay(F(), table, 2, 0b00001);
  EXPECT_EQ(F().JokersRestants, 0);
  const int P[13] = {4, 3, 4, 4, 4, 3, 4, 4, 4, 4, 4, 4, 3};
  long long natural = 0;
  for (int mask = 0; mask < (1 << 13); ++mask) {
    if (mask & (1 << 5) || __builtin_popcount(static_cast<unsigned>(mask)) != 4) continue;
    const int u = mask | (1 << 5);
    bool fits = false;
    for (int i = 1; i <= 10; ++i)
      if ((u & (i == 1 ? 0x100F : 0x1F << (i - 2))) == u) fits = true;
    if (!fits) continue;
    long long prod = 1;
    for (int r = 0; r < 13; ++r)
      if (mask >> r & 1) prod *= P[r];
    natural += prod;
  }
  EXPECT_EQ(R(3) + R(7) + R(8), natural);
}

// ---- Straight flushes ---------------------------------------------------------------------

TEST_F(ProbFigures, TenToKingOfOneSuitHeldWaitsForTheNineOrTheAce) {
  Lay(F(), {C(8, kHearts), C(9, kHearts), C(10, kHearts), C(11, kHearts), C(2, kClubs)}, 0, 0b01111);
  EXPECT_EQ(F().NbQF, 1);
  EXPECT_EQ(F().NbQFR, 1);
  EXPECT_EQ(R(7), 1);
  EXPECT_EQ(R(8), 1);
}

TEST_F(ProbFigures, FourToARoyalWithTheAceRejectedHasNoRoyal) {
  Lay(F(), {C(8, kHearts), C(9, kHearts), C(10, kHearts), C(11, kHearts), C(12, kHearts)}, 0, 0b01111);
  EXPECT_EQ(R(8), 0);
  EXPECT_EQ(R(7), 1);
}

TEST_F(ProbFigures, NothingHeldRoyalsAreTheSuitsWithNoTopCardRejected) {
  Lay(F(), {C(8, kHearts), C(12, kSpades), C(3, kHearts), C(0, kClubs), C(5, kDiamonds)}, 0, 0);
  EXPECT_EQ(R(8), 2);
  Lay(F(), {C(1, kHearts), C(2, kSpades), C(3, kHearts), C(0, kClubs), C(5, kDiamonds)}, 0, 0);
  EXPECT_EQ(R(8), 4);
}

TEST_F(ProbFigures, FiveHeldRoyalShowsInItsRowOnly) {
  Lay(F(), {C(8, kClubs), C(9, kClubs), C(10, kClubs), C(11, kClubs), C(12, kClubs)}, 2, 0b11111);
  EXPECT_EQ(R(8), 1);
  EXPECT_EQ(R(4), 0);
  EXPECT_EQ(R(3), 0);
  EXPECT_EQ(F().Fractions(8).Caption(), "1");
}

// ---- Four of a kind and full house --------------------------------------------------------

TEST_F(ProbFigures, OneJokerHeldTwoOfClubsGivesFour311) {
  Lay(F(), {22, 13, 11, 48, 18}, 1, 0b00010);
  EXPECT_EQ(R(6), 311);
}

TEST_F(ProbFigures, OneJokerHeldJokerGivesFour2290AndFull4110) {
  Lay(F(), {52, 37, 0, 25, 11}, 1, 0b00001);
  EXPECT_EQ(R(6), 2290);
  EXPECT_EQ(R(5), 4110);
}

TEST_F(ProbFigures, OneJokerHeldCardAndJokerGivesFour154) {
  Lay(F(), {44, 30, 17, 29, 52}, 1, 0b10010);
  EXPECT_EQ(R(6), 154);
}

TEST_F(ProbFigures, OneJokerNothingHeldGivesFull6276) {
  Lay(F(), {20, 16, 3, 39, 33}, 1, 0);
  EXPECT_EQ(R(5), 6276);
}

TEST_F(ProbFigures, OneJokerPairAndSingleHeldGivesFull6) {
  Lay(F(), {22, 48, 35, 44, 19}, 1, 0b01110);
  EXPECT_EQ(R(5), 6);
}

TEST_F(ProbFigures, HeldThreeOfAKindWithBothJokersInTheDeckWeighsThree) {
  Lay(F(), {C(5, kClubs), C(5, kHearts), C(5, kDiamonds), C(0, kClubs), C(1, kSpades)}, 2, 0b00111);
  // R = 1 seven + 2 jokers; E = 54 - 5 - 3 = 46.
  EXPECT_EQ(F().RestantsValeur(5), 3);
  EXPECT_EQ(R(6), 46 * 3);
}

TEST_F(ProbFigures, FourOfARankHeldCountsEveryDrawButFiveOfAKind) {
  Lay(F(), {C(5, kClubs), C(5, kHearts), C(5, kDiamonds), C(5, kSpades), C(1, kSpades)}, 2, 0b01111);
  EXPECT_EQ(R(6), 47);
  EXPECT_EQ(R(9), 2);
  Lay(F(), {C(5, kClubs), C(5, kHearts), C(5, kDiamonds), kJ1, C(1, kSpades)}, 1, 0b01111);
  EXPECT_EQ(R(6), 47);  // T - 6 with one seven left
  EXPECT_EQ(R(9), 1);
}

TEST_F(ProbFigures, TwoJokersHeldLeaveNoFullHouse) {
  Lay(F(), {kJ1, kJ2, C(5, kDiamonds), C(7, kSpades), C(1, kSpades)}, 2, 0b00011);
  EXPECT_EQ(R(5), 0);
}

// ---- Kings or aces ------------------------------------------------------------------------

TEST_F(ProbFigures, NoJokerNothingHeldKingsOrAces87555) {
  Lay(F(), {10, 11, 44, 50, 36}, 0, 0);
  EXPECT_EQ(R(0), 87555);
}

TEST_F(ProbFigures, NoJokerLoneSixHeldKingsOrAces4368) {
  Lay(F(), {40, 13, 11, 44, 12}, 0, 0b01000);
  EXPECT_EQ(R(0), 4368);
}

TEST_F(ProbFigures, OneJokerNothingHeldKingsOrAces239198) {
  Lay(F(), {16, 17, 41, 15, 29}, 1, 0);
  EXPECT_EQ(R(0), 239198);
}

TEST_F(ProbFigures, TwoKingsHeldWithoutJokersMakeThePairAComplement) {
  for (int holds : {0b00011, 0b00111, 0b01111}) {
    Lay(F(), {C(11, kClubs), C(11, kHearts), C(2, kDiamonds), C(7, kSpades), C(9, kSpades)}, 0, holds);
    long long better = 0;
    for (int i = 1; i <= 9; ++i) better += R(i);
    EXPECT_EQ(R(0), F().TotalTirages - better);
    EXPECT_EQ(R(10), 0);
  }
}

TEST_F(ProbFigures, TwoJokersHeldLeaveNoPairOfKingsOrAces) {
  F().Réalisations(0) = 0;
  Lay(F(), {kJ1, kJ2, C(11, kDiamonds), C(7, kSpades), C(1, kSpades)}, 2, 0b00011);
  F().ProbRoiOuAs();
  EXPECT_EQ(R(0), 0);
}

TEST_F(ProbFigures, HeldLowPairLeavesNoPairOfKingsOrAces) {
  Lay(F(), {C(4, kClubs), C(4, kHearts), C(11, kDiamonds), C(12, kSpades), C(1, kSpades)}, 2, 0b00011);
  EXPECT_EQ(R(0), 0);
}

TEST_F(ProbFigures, HeldCardsOfTwoSuitsSkipTheFlushCorrection) {
  // King of clubs and five of diamonds held, one joker in the game: the product alone.
  Lay(F(), {C(11, kClubs), C(3, kDiamonds), C(0, kClubs), C(1, kDiamonds), C(2, kHearts)}, 1, 0b00011);
  EXPECT_FALSE(F().CouleurPossible);
  EXPECT_FALSE(F().QuintePossible);
  // Kings: (3 + 1) x (C(41,2) - 98); aces: (C(4,2) + 4) x 37.
  EXPECT_EQ(R(0), 4 * 722 + 10 * 37);
}

TEST_F(ProbFigures, RejectedKingOfTheHeldSuitSkipsTheAceCorrection) {
  // Four hearts held with the ace; the king of hearts rejected: nothing comes off.
  Lay(F(), {C(2, kHearts), C(4, kHearts), C(6, kHearts), C(12, kHearts), C(11, kHearts)}, 1, 0b01111);
  EXPECT_TRUE(F().CouleurPossible);
  EXPECT_EQ(R(0), 4);
  // The king of hearts in the deck: the held ace of the suit takes the joker off.
  Lay(F(), {C(2, kHearts), C(4, kHearts), C(6, kHearts), C(12, kHearts), C(0, kClubs)}, 1, 0b01111);
  EXPECT_EQ(R(0), 3);
}

// ---- Three of a kind and two pairs --------------------------------------------------------

TEST_F(ProbFigures, TwoJokersNothingHeldTakeOff1144FlushesWhateverTheTable) {
  JeuPoker& f = F();
  for (const Cards& t : {Cards{C(0, kHearts), C(3, kHearts), C(6, kHearts), C(9, kHearts), C(11, kHearts)},
                         Cards{C(0, kClubs), C(3, kDiamonds), C(6, kHearts), C(9, kSpades), C(11, kHearts)}}) {
    Lay(f, t, 2, 0);
    auto stage = [&](bool couleur, bool quinte) {
      f.CouleurPossible = couleur;
      f.QuintePossible = quinte;
      f.Réalisations(2) = 0;
      f.ProbBrelan();
      return static_cast<long long>(f.Réalisations(2));
    };
    EXPECT_EQ(stage(false, true) - stage(true, true), 1144);
  }
}

TEST_F(ProbFigures, HeldPairWithBothJokersInTheDeckSkipsTheCorrections) {
  JeuPoker& f = F();
  Lay(f, {C(4, kClubs), C(4, kHearts), C(11, kDiamonds), C(12, kSpades), C(1, kSpades)}, 2, 0b00011);
  const Long r2 = R(2);
  f.CouleurPossible = true;
  f.QuintePossible = true;
  f.Réalisations(2) = 0;
  f.ProbBrelan();
  EXPECT_EQ(R(2), r2);
}

TEST_F(ProbFigures, TwoJokersWithoutStraightsKeepTheFlushesInThreeOfAKind) {
  // Two and nine of clubs held: a flush is possible, a straight is not.
  JeuPoker& f = F();
  Lay(f, {C(0, kClubs), C(7, kClubs), C(11, kDiamonds), C(12, kSpades), C(1, kSpades)}, 2, 0b00011);
  ASSERT_TRUE(f.CouleurPossible);
  ASSERT_FALSE(f.QuintePossible);
  const Long r2 = R(2);
  f.CouleurPossible = false;
  f.Réalisations(2) = 0;
  f.ProbBrelan();
  EXPECT_EQ(R(2), r2);
}

TEST_F(ProbFigures, FiveHeldStartThreeOfAKindFromAZeroTotal) {
  JeuPoker& f = F();
  const Cards table = {C(3, kClubs), C(4, kHearts), C(9, kDiamonds), C(6, kClubs), C(0, kSpades)};
  Lay(f, table, 2, 0b00001);
  ASSERT_NE(f.TotalRoiOuAs, 0);
  Lay(f, table, 2, 0b11111);
  EXPECT_EQ(f.TotalRoiOuAs, 0);
}

TEST_F(ProbFigures, TwoPairsNeedNoJokerNoFourRanksNoThreeOfARank) {
  Lay(F(), {kJ1, C(4, kHearts), C(11, kDiamonds), C(12, kSpades), C(1, kSpades)}, 1, 0b00011);
  EXPECT_EQ(R(1), 0);
  Lay(F(), {C(0, kClubs), C(4, kHearts), C(11, kDiamonds), C(12, kSpades), C(1, kSpades)}, 1, 0b01111);
  EXPECT_EQ(R(1), 0);
  Lay(F(), {C(4, kClubs), C(4, kHearts), C(4, kDiamonds), C(12, kSpades), C(1, kSpades)}, 0, 0b00111);
  EXPECT_EQ(R(1), 0);
}

}  // namespace
