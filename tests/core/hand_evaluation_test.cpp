// Hand evaluation: the class, the multiplier and everything left behind for the automatic
// selection, checked through the real form.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "tests/support/helpers.h"

namespace {

std::array<Byte, 5> Hand(const std::string& text) {
  std::array<Byte, 5> h{};
  size_t start = 0;
  for (int i = 0; i < 5; ++i) {
    const size_t end = text.find(' ', start);
    h[i] = static_cast<Byte>(Code(text.substr(start, end - start)));
    start = end + 1;
  }
  return h;
}

class ResultatTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { h = new Harness(); }
  static void TearDownTestSuite() {
    delete h;
    h = nullptr;
  }
  JeuPoker& F() { return *h->form; }
  // Loads the hand in position order and evaluates it, at the given stage.
  void Evaluate(const std::array<Byte, 5>& cards, Byte stage = 0) {
    F().NbTirées = stage;
    for (int i = 0; i < 5; ++i) F().MainTriée(i) = cards[i];
    F().Résultat();
  }
  void Evaluate(const std::string& text, Byte stage = 0) { Evaluate(Hand(text), stage); }
  static Harness* h;
};
Harness* ResultatTest::h = nullptr;

struct Case {
  const char* hand;
  int rang;
  int paires;  // -1: not checked
};

// Multiplier of each class for one unit of bet, the same for every number of jokers.
Long Multiplier(int rang) {
  static const Long m[11] = {1, 2, 3, 5, 7, 10, 40, 100, 500, 1000, 0};
  return m[rang];
}

const Case kCases[] = {
    // Nothing and pairs.
    {"2C 5D 7H 9S JC", 10, 0},
    {"KC KD 7H 5S 3C", 0, 1},
    {"AC 7D AH 5S 3C", 0, 1},
    {"QC QD 7H 5S 3C", 10, 1},
    {"2C 2D 7H 9S JC", 10, 1},
    {"KC AD 7H 5S 3C", 10, 0},  // one king and one ace make no pair
    {"KC KD AH AS 3C", 1, 2},
    {"5C 5D 9H 9S KC", 1, 2},
    // Three of a kind: three kings or aces are caught by the three-of-a-kind test only.
    {"5C 5D 5H 9S KC", 2, 3},
    {"KC KD KH 9S 2C", 2, 3},
    {"AC AD AH 9S 2C", 2, 3},
    // Straights.
    {"5C 6D 7H 8S 9C", 3, 0},
    {"9C 5D 8H 6S 7C", 3, 0},
    {"AC 2D 3H 4S 5C", 3, 0},
    {"TC JD QH KS AC", 3, 0},
    {"JC QD KH AS 2C", 10, 0},  // no wrap round the ace
    {"2C 3D 4H 5S 7C", 10, 0},
    // Flushes.
    {"2C 5C 9C JC KC", 4, 0},
    {"2S 5S 9S JS AS", 4, 0},
    {"3D 8D TD QD KD", 4, 0},
    // Full house, four of a kind.
    {"3C 3D 3H 9S 9C", 5, 4},
    {"KC KD AH AS AC", 5, 4},
    {"7C 7D 7H 7S 2C", 6, 6},
    {"KC KD KH KS AC", 6, 6},
    // Straight flushes and royals.
    {"AH 2H 3H 4H 5H", 7, 0},
    {"9S TS JS QS KS", 7, 0},
    {"TH JH QH KH AH", 8, 0},
    {"AC KC QC JC TC", 8, 0},
    // One joker.
    {"2C 5D 7H 9S X1", 10, 0},
    {"KC 2D 5H 9S X1", 0, 0},
    {"AC 2D 7H 9S X1", 0, 0},
    {"KC AD 3H 7S X1", 0, 0},
    {"QC 2D 5H 9S X1", 10, 0},
    {"5C 5D 9H JS X1", 2, 1},
    {"KC KD 9H 2S X1", 2, 1},
    {"5C 5D 9H 9S X1", 5, 2},
    {"5C 5D 5H 9S X1", 6, 3},
    {"5C 5D 5H 5S X1", 9, 6},
    {"5C 6D 7H 8S X1", 3, 0},
    {"5C 6D 8H 9S X1", 3, 0},
    {"5C 6D 7H TS X1", 10, 0},
    {"AC 2D 3H 4S X1", 3, 0},
    {"AC 2D 3H 5S X1", 3, 0},
    {"AC 3D 4H 5S X1", 3, 0},
    {"AC 2D 3H 6S X1", 0, 0},
    {"JC QD KH AS X1", 3, 0},
    {"2C 5C 9C JC X1", 4, 0},
    {"JS QS KS AS X1", 8, 0},
    {"TS QS KS AS X1", 8, 0},
    {"TS JS QS KS X1", 8, 0},
    {"9D TD JD QD X1", 7, 0},
    {"AH 2H 3H 5H X1", 7, 0},
    {"4C 5C 6C 8C X1", 7, 0},
    // The second joker alone counts as one joker.
    {"2C 5D 7H 9S X2", 10, 0},
    {"KC 2D 5H 9S X2", 0, 0},
    {"5C 5D 9H JS X2", 2, 1},
    {"5C 5D 9H 9S X2", 5, 2},
    {"5C 5D 5H 9S X2", 6, 3},
    {"5C 5D 5H 5S X2", 9, 6},
    {"5C 6D 7H 8S X2", 3, 0},
    {"JS QS KS AS X2", 8, 0},
    {"2C 5C 9C JC X2", 4, 0},
    // Two jokers.
    {"2C 7D JH X1 X2", 2, 0},
    {"KC 2D 8H X1 X2", 2, 0},  // not a pair of kings: three of a kind follows
    {"AC 3D 9H X1 X2", 2, 0},
    {"5C 5D 9H X1 X2", 6, 1},
    {"5C 5D 5H X1 X2", 9, 3},
    {"5C 6D 9H X1 X2", 3, 0},
    {"2C 3D AH X1 X2", 3, 0},
    {"4C 5D AH X1 X2", 3, 0},
    {"5C 6D AH X1 X2", 2, 0},
    {"2C 5C 9C X1 X2", 4, 0},
    {"5C 6C 8C X1 X2", 7, 0},
    {"2H 3H AH X1 X2", 7, 0},
    {"QC KC AC X1 X2", 8, 0},
    {"JC QC AC X1 X2", 8, 0},
    {"TC QC AC X1 X2", 8, 0},
    {"9C JC KC X1 X2", 7, 0},
    // Jokers in any position of the row.
    {"X2 5C X1 6C 8C", 7, 0},
    {"X1 KD KH KS 2C", 6, 3},
};

TEST_F(ResultatTest, ClassifiesEveryListedHand) {
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.hand);
    Evaluate(c.hand);
    EXPECT_EQ(F().RangMain, c.rang);
    EXPECT_EQ(F().GainMain, Multiplier(c.rang));
    if (c.paires >= 0) {
      EXPECT_EQ(F().NbPaires, c.paires);
    }
  }
}

TEST_F(ResultatTest, ClassDoesNotDependOnTheOrderOfTheRow) {
  for (const Case& c : kCases) {
    std::array<Byte, 5> cards = Hand(c.hand);
    std::sort(cards.begin(), cards.end());
    int n = 0;
    do {
      if (++n % 7 != 0) continue;  // a spread of the 120 orders
      Evaluate(cards);
      ASSERT_EQ(F().RangMain, c.rang) << c.hand;
    } while (std::next_permutation(cards.begin(), cards.end()));
  }
}

TEST_F(ResultatTest, SortsTheHandAndCountsKingsAndAces) {
  Evaluate("X1 AS KD 2C KH");
  const int sorted[5] = {0, 24, 37, 51, 52};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(F().MainTriée(i), sorted[i]) << i;
  EXPECT_EQ(F().NbRois, 2);
  EXPECT_EQ(F().NbAs, 1);
  EXPECT_EQ(F().RangMain, 2);  // a pair of kings and a joker

  Evaluate("X1 AS QD 2C KH");
  EXPECT_EQ(F().NbRois, 1);
  EXPECT_EQ(F().NbAs, 1);
  EXPECT_EQ(F().RangMain, 0);

  Evaluate("X2 X1 AS AD AH");
  const int sorted2[5] = {25, 38, 51, 52, 53};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(F().MainTriée(i), sorted2[i]) << i;
  EXPECT_EQ(F().NbAs, 3);
  EXPECT_EQ(F().RangMain, 9);
}

TEST_F(ResultatTest, RanksAndSuitBlocksSortedByRank) {
  // Codes 48 (jack of spades), 2 (four of clubs), 27 (three of hearts), 25 (ace of diamonds),
  // 21 (ten of diamonds).
  Evaluate("JS 4C 3H AD TD");
  const int ranks[5] = {1, 2, 8, 9, 12};
  const int blocks[5] = {26, 0, 13, 39, 13};
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(F().ValeursMain(i), ranks[i]) << i;
    EXPECT_EQ(F().BlocsCouleur(i), blocks[i]) << i;
  }
}

TEST_F(ResultatTest, JokerKeepsItsCodeAsRankAndAStaleSuitBlock) {
  for (int i = 0; i < 5; ++i) F().BlocsCouleur(i) = static_cast<Byte>(100 + i);
  Evaluate("9S 2H X1 KC 5D");
  const int ranks[5] = {0, 3, 7, 11, 52};
  const int blocks[5] = {26, 13, 39, 0, 104};  // the joker's entry is never written
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(F().ValeursMain(i), ranks[i]) << i;
    EXPECT_EQ(F().BlocsCouleur(i), blocks[i]) << i;
  }

  // The stale entries are those the last hand left: a natural hand writes all five.
  Evaluate("2C 3D 4H 5S 7C");
  EXPECT_EQ(F().BlocsCouleur(4), 0);
  Evaluate("2C 3D X2 5S X1");
  EXPECT_EQ(F().ValeursMain(3), 52);
  EXPECT_EQ(F().ValeursMain(4), 53);
  EXPECT_EQ(F().BlocsCouleur(3), 39);  // left from the five of spades of the hand before
  EXPECT_EQ(F().BlocsCouleur(4), 0);
}

TEST_F(ResultatTest, StaleJokerBlockIsMovedAlongByTheRankSort) {
  // Ranks in code order are not in rank order here, so the sort moves the entries around;
  // the joker stays last with whatever its slot held.
  for (int i = 0; i < 5; ++i) F().BlocsCouleur(i) = static_cast<Byte>(200 + i);
  Evaluate("AC 2D 3H 4S X1");  // codes 12, 14, 28, 42, 52
  const int ranks[5] = {0, 1, 2, 12, 52};
  const int blocks[5] = {13, 26, 39, 0, 204};
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(F().ValeursMain(i), ranks[i]) << i;
    EXPECT_EQ(F().BlocsCouleur(i), blocks[i]) << i;
  }
}

TEST_F(ResultatTest, AdviceMarksThePairAtItsPositionsAfterAFirstDrawing) {
  F().ParesseOui->SetBevelWidth(0);
  const auto cards = Hand("7H QC 3C QD 5S");
  for (int i = 0; i < 5; ++i) F().CartesTirage(i) = cards[i];
  for (int i = 0; i < 5; ++i) F().CartesGardées(i) = true;
  Evaluate(cards, 5);
  EXPECT_EQ(F().RangMain, 10);
  EXPECT_EQ(F().NbPaires, 1);
  // Sorted: 3C(1) QC(10) QD(23) 5S(42) 7H(31) -> by code 1, 10, 23, 31, 42.
  const int positions[5] = {2, 1, 3, 0, 4};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(F().PositionsMain(i), positions[i]) << i;
  const bool kept[5] = {false, true, false, true, false};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(F().CartesGardées(i), kept[i]) << i;
}

TEST_F(ResultatTest, AdviceMarksEveryCardOfAFourOfAKind) {
  F().ParesseOui->SetBevelWidth(0);
  const auto cards = Hand("7H 7C 2D 7D 7S");
  for (int i = 0; i < 5; ++i) F().CartesTirage(i) = cards[i];
  Evaluate(cards, 5);
  EXPECT_EQ(F().RangMain, 6);
  const bool kept[5] = {true, true, false, true, true};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(F().CartesGardées(i), kept[i]) << i;
}

TEST_F(ResultatTest, WithoutAdviceMarksFallOnStalePositions) {
  // Automatic selection off: positions and marks are left as they were, and the pair's
  // marks go wherever the old positions point.
  F().ParesseOui->SetBevelWidth(3);
  for (int i = 0; i < 5; ++i) {
    F().PositionsMain(i) = 0;
    F().CartesGardées(i) = false;
  }
  F().CartesGardées(4) = true;
  const auto cards = Hand("7H QC 3C QD 5S");
  for (int i = 0; i < 5; ++i) F().CartesTirage(i) = cards[i];
  Evaluate(cards, 5);
  EXPECT_EQ(F().NbPaires, 1);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(F().PositionsMain(i), 0) << i;
  const bool kept[5] = {true, false, false, false, true};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(F().CartesGardées(i), kept[i]) << i;
  F().ParesseOui->SetBevelWidth(0);
}

TEST_F(ResultatTest, NoAdviceSetUpAtTheSecondDrawing) {
  F().ParesseOui->SetBevelWidth(0);
  for (int i = 0; i < 5; ++i) {
    F().PositionsMain(i) = static_cast<Byte>(4 - i);
    F().CartesGardées(i) = true;
  }
  const auto cards = Hand("2C 5D 7H 9S JC");
  for (int i = 0; i < 5; ++i) F().CartesTirage(i) = cards[i];
  Evaluate(cards, 10);
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(F().PositionsMain(i), 4 - i) << i;
    EXPECT_TRUE(F().CartesGardées(i)) << i;
  }
}

TEST_F(ResultatTest, GridLineFindsPositionsThroughTheLineIndex) {
  // Automatic selection plays no part for a grid line.
  F().ParesseOui->SetBevelWidth(3);
  for (int i = 0; i <= 24; ++i) F().CartesTirage(i) = static_cast<Byte>(i);  // placeholder codes
  // Line: grid positions 20, 16, 12, 8, 4 (a diagonal) holding a pair of nines.
  const int line[5] = {20, 16, 12, 8, 4};
  const auto cards = Hand("9C 2D 9H KS 6C");
  for (int j = 0; j < 5; ++j) {
    F().IndexLigne(j) = static_cast<Byte>(line[j]);
    F().CartesTirage(line[j]) = cards[j];
  }
  for (int i = 0; i < 5; ++i) F().CartesGardées(i) = true;
  Evaluate(cards, 25);
  EXPECT_EQ(F().RangMain, 10);
  // Sorted codes: 9C(7) 6C(4)... by code: 4 (6C), 7 (9C), 14 (2D), 33 (9H), 50 (KS).
  const int positions[5] = {4, 0, 1, 2, 3};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(F().PositionsMain(i), positions[i]) << i;
  const bool kept[5] = {true, false, true, false, false};
  for (int i = 0; i < 5; ++i) EXPECT_EQ(F().CartesGardées(i), kept[i]) << i;
  F().ParesseOui->SetBevelWidth(0);
}

// ---- Every hand of a deck, against the classic counts and an independent evaluator ------

// Class of five ordinary cards, duplicates allowed (a joker standing for a card already
// in the hand), in the program's order of classes.
int PlainClass(const std::array<int, 5>& c) {
  int count[13] = {};
  bool flush = true;
  for (int i = 0; i < 5; ++i) {
    ++count[c[i] % 13];
    if (c[i] / 13 != c[0] / 13) flush = false;
  }
  int pairs = 0, threes = 0, fours = 0, fives = 0, singles = 0;
  for (int r = 0; r < 13; ++r) {
    if (count[r] == 2) ++pairs;
    if (count[r] == 3) ++threes;
    if (count[r] == 4) ++fours;
    if (count[r] == 5) ++fives;
    if (count[r] == 1) ++singles;
  }
  bool straight = false;
  int low = -1;
  if (singles == 5) {
    int lo = 13, hi = -1;
    for (int r = 0; r < 13; ++r)
      if (count[r]) {
        lo = std::min(lo, r);
        hi = std::max(hi, r);
      }
    if (hi - lo == 4) {
      straight = true;
      low = lo;
    }
    if (count[12] && count[0] && count[1] && count[2] && count[3]) {
      straight = true;
      low = -1;
    }
  }
  if (fives) return 9;
  if (straight && flush) return low == 8 ? 8 : 7;
  if (fours) return 6;
  if (threes && pairs) return 5;
  if (flush) return 4;
  if (straight) return 3;
  if (threes) return 2;
  if (pairs == 2) return 1;
  if (pairs == 1 && (count[11] == 2 || count[12] == 2)) return 0;
  return 10;
}

int Strength(int rang) { return rang == 10 ? -1 : rang; }

// The best class a hand can make when each joker stands for any card.
int BestClass(const std::array<int, 5>& cards) {
  std::array<int, 5> c = cards;
  std::vector<int> jokers;
  for (int i = 0; i < 5; ++i)
    if (c[i] > 51) jokers.push_back(i);
  int best = 10;
  auto consider = [&](int r) {
    if (Strength(r) > Strength(best)) best = r;
  };
  if (jokers.empty()) return PlainClass(c);
  if (jokers.size() == 1) {
    for (int a = 0; a < 52; ++a) {
      c[jokers[0]] = a;
      consider(PlainClass(c));
    }
    return best;
  }
  for (int a = 0; a < 52; ++a)
    for (int b = a; b < 52; ++b) {
      c[jokers[0]] = a;
      c[jokers[1]] = b;
      consider(PlainClass(c));
    }
  return best;
}

TEST_F(ResultatTest, EveryHandOfFiftyTwoCardsGivesTheClassicCounts) {
  long long counts[11] = {};
  std::array<Byte, 5> h5{};
  for (int a = 0; a < 52; ++a)
    for (int b = a + 1; b < 52; ++b)
      for (int c = b + 1; c < 52; ++c)
        for (int d = c + 1; d < 52; ++d)
          for (int e = d + 1; e < 52; ++e) {
            h5 = {Byte(a), Byte(b), Byte(c), Byte(d), Byte(e)};
            Evaluate(h5);
            ++counts[F().RangMain];
          }
  EXPECT_EQ(counts[0], 168960);  // pairs of kings or aces
  EXPECT_EQ(counts[1], 123552);
  EXPECT_EQ(counts[2], 54912);
  EXPECT_EQ(counts[3], 10200);
  EXPECT_EQ(counts[4], 5108);
  EXPECT_EQ(counts[5], 3744);
  EXPECT_EQ(counts[6], 624);
  EXPECT_EQ(counts[7], 36);
  EXPECT_EQ(counts[8], 4);
  EXPECT_EQ(counts[9], 0);  // no five of a kind without a joker
  EXPECT_EQ(counts[10], 1302540 + 1098240 - 168960);
}

TEST_F(ResultatTest, JokerHandsMakeTheBestClassTheyCan) {
  // Every hand with the first joker, a fifth of the hands with the second joker alone, and
  // every hand with both, against substitution of each joker by every card.
  long long mismatches = 0;
  std::array<int, 5> c{};
  auto check = [&](std::array<int, 5> hand) {
    std::array<Byte, 5> b{};
    for (int i = 0; i < 5; ++i) b[i] = static_cast<Byte>(hand[i]);
    Evaluate(b);
    const int expected = BestClass(hand);
    if (F().RangMain != expected && ++mismatches <= 10)
      ADD_FAILURE() << hand[0] << " " << hand[1] << " " << hand[2] << " " << hand[3] << " " << hand[4] << ": RangMain "
                    << int(F().RangMain) << ", best " << expected;
  };
  for (int joker = 52; joker <= 53; ++joker)
    for (int a = 0; a < 52; ++a)
      for (int b = a + 1; b < 52; ++b)
        for (int d = b + 1; d < 52; ++d)
          for (int e = d + 1; e < 52; ++e) {
            if (joker == 53 && (a + b + d + e) % 5 != 0) continue;
            c = {joker, a, b, d, e};
            check(c);
          }
  for (int a = 0; a < 52; ++a)
    for (int b = a + 1; b < 52; ++b)
      for (int d = b + 1; d < 52; ++d) {
        c = {53, a, 52, b, d};
        check(c);
      }
  EXPECT_EQ(mismatches, 0);
}

}  // namespace
