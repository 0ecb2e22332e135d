// Every count of the panel against the enumeration of all draws: for many tables, with 0, 1
// and 2 jokers in the game, for all 32 hold sets, the exact counts equal the number of draws
// whose final hand Résultat puts in the class, and the deliberate departures differ from it
// by exactly their own amount.
#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <set>
#include <sstream>

#include "tests/probability/probability_support.h"

using probtest::Cards;

namespace {

struct Shape {
  // What the test knows of the table and the holds, worked out apart from the program.
  int H = 0, K = 0, J = 0, T = 52, jokers = 0;
  std::array<int, 13> P{};  // natural cards of each rank in the deck
  std::array<int, 13> G{};  // held natural cards of each rank
  std::array<std::array<bool, 4>, 13> inDeck{};
  int heldMask = 0;  // natural ranks held
  int suit = -1;     // the suit of the held natural cards when they share one
  bool oneSuit = true;
  int R(int v) const { return P[static_cast<std::size_t>(v)] + J; }
  long long E(int v) const { return T - 5 - R(v); }
};

Shape Describe(const Cards& cards, int jokers, int holds) {
  Shape s;
  s.jokers = jokers;
  s.T = 52 + jokers;
  s.J = jokers;
  for (auto& r : s.P) r = 4;
  for (auto& r : s.inDeck) r.fill(true);
  for (int i = 0; i < 5; ++i) {
    const int c = cards[static_cast<std::size_t>(i)];
    const bool held = holds >> i & 1;
    if (held) ++s.H;
    if (c > 51) {
      --s.J;
      if (held) ++s.K;
      continue;
    }
    --s.P[static_cast<std::size_t>(c % 13)];
    s.inDeck[static_cast<std::size_t>(c % 13)][static_cast<std::size_t>(c / 13)] = false;
    if (held) {
      ++s.G[static_cast<std::size_t>(c % 13)];
      s.heldMask |= 1 << (c % 13);
      if (s.suit < 0) s.suit = c / 13;
      if (s.suit != c / 13) s.oneSuit = false;
    }
  }
  return s;
}

long long C2(long long n) { return n * (n - 1) / 2; }
long long C3(long long n) { return n * (n - 1) * (n - 2) / 6; }

// What the straight count leaves out or adds, against the exact number.
long long StraightDeparture(const Shape& s, const probtest::Enumeration& e) {
  const int nat = s.H - s.K;
  long long d = 0;
  if (s.H == 1 && nat == 1 && s.G[12] == 1) d -= 1LL * s.P[0] * s.P[1] * s.P[2] * s.P[3];
  if (s.H == 1 && nat == 1 && s.J == 2) {
    const int r = __builtin_ctz(static_cast<unsigned>(s.heldMask));
    if (r >= 2) d += 1LL * s.P[static_cast<std::size_t>(r - 1)] * s.P[static_cast<std::size_t>(r - 2)];
  }
  if (s.H == 2 && s.K == 1 && s.J == 1) d -= e.withDrawnJoker[3] + e.withDrawnJoker[7] + e.withDrawnJoker[8];
  if (s.H == 2 && s.K == 0 && s.heldMask == 0x6 && s.J >= 1) d -= 1LL * s.J * s.P[12] * s.P[0];
  return d;
}

// What the straight flush and royal flush counts leave out or add.
std::pair<long long, long long> StraightFlushDeparture(const Shape& s) {
  long long d7 = 0, d8 = 0;
  if (s.K != 0 || !s.oneSuit || s.suit < 0) return {0, 0};
  auto in = [&](int r) -> long long { return s.inDeck[static_cast<std::size_t>(r)][static_cast<std::size_t>(s.suit)]; };
  if (s.H == 2 && s.heldMask == 0x6 && s.J >= 1) d7 -= s.J * in(12) * in(0);
  if (s.H == 2 && s.heldMask == 0x500 && s.J == 2) {
    d8 -= in(11);
    d7 += in(11);
  }
  if (s.H == 2 && s.heldMask == 0x1400 && s.J == 2) d8 += in(0);
  if (s.H == 3 && s.J >= 1)
    for (int a = 0; a <= 9; ++a)
      if (s.heldMask == ((1 << a) | (1 << (a + 1)) | (1 << (a + 3)))) (a >= 8 ? d8 : d7) += s.J * in(a + 2);
  return {d7, d8};
}

// The weights of the four of a kind table that are knowingly not the exact ones.
long long FourDeparture(const Shape& s) {
  long long d = 0;
  const int nat = s.H - s.K;
  int a = -1, b = -1;
  for (int v = 0; v <= 12; ++v)
    if (s.G[static_cast<std::size_t>(v)] > 0) (a < 0 ? a : b) = v;
  if (s.H == 1 && s.K == 0 && s.R(a) == 4) d += 2 * s.E(a);
  if (s.H == 1 && s.K == 1)
    for (int v = 0; v <= 12; ++v)
      if (s.R(v) == 4) d += s.E(v);
  if (s.H == 2 && s.K == 1)
    for (int v = 0; v <= 12; ++v) {
      if (v == a) continue;
      const int n = s.R(v) - s.J;
      d += (n >= 2 && n <= 4 ? C3(n + 1) : 0) - C3(s.R(v));
    }
  if (s.H == 3 && s.K == 2)
    for (int v = 0; v <= 12; ++v)
      if (v != a && s.R(v) == 2) d += 1;
  if (s.H == 4 && s.K == 2 && nat == 2 && b >= 0) {
    if (s.R(a) == 1) d -= 1;
    if (s.R(b) == 1) d -= 1;
  }
  return d;
}

// The three places of the full house table that are knowingly not the exact count.
long long FullDeparture(const Shape& s) {
  long long pairs = 0;
  for (int v = 0; v <= 12; ++v)
    for (int w = v + 1; w <= 12; ++w)
      pairs += C2(s.P[static_cast<std::size_t>(v)]) * C2(s.P[static_cast<std::size_t>(w)]);
  if (s.H == 0) return s.J * pairs;
  if (s.H == 1 && s.K == 1) return pairs;
  if (s.H == 3 && s.K == 0) {
    int pair = -1, single = -1;
    for (int v = 0; v <= 12; ++v) {
      if (s.G[static_cast<std::size_t>(v)] == 2) pair = v;
      if (s.G[static_cast<std::size_t>(v)] == 1) single = v;
    }
    if (pair >= 0 && single >= 0) return -1LL * s.J * s.P[static_cast<std::size_t>(single)];
  }
  return 0;
}

class ProbEnumeration : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    h = new Harness();
    table = new probtest::ClassTable(*h->form);
  }
  static void TearDownTestSuite() {
    delete table;
    delete h;
  }
  static Harness* h;
  static probtest::ClassTable* table;

  // Checks every hold set of one table; returns how many hold sets were checked.
  static void CheckTable(const Cards& cards, int jokers) {
    JeuPoker& f = *h->form;
    for (int holds = 0; holds < 32; ++holds) {
      std::ostringstream where;
      where << "table " << cards[0] << " " << cards[1] << " " << cards[2] << " " << cards[3] << " " << cards[4]
            << ", jokers " << jokers << ", holds " << holds;
      SCOPED_TRACE(where.str());
      probtest::Lay(f, cards, jokers, holds);
      const auto e = probtest::Enumerate(*table, cards, jokers, holds);
      const Shape s = Describe(cards, jokers, holds);
      auto R = [&](int i) -> long long { return f.Réalisations(i); };
      ASSERT_EQ(f.TotalTirages, e.total);

      if (s.H == 5) {
        for (int c = 0; c <= 9; ++c) EXPECT_EQ(R(c), e.byClass[static_cast<std::size_t>(c)]) << "class " << c;
        EXPECT_EQ(R(10), s.K == 2 ? 0 : e.byClass[10]);
        continue;
      }

      // Exact in every shape: flushes (straight flushes included), five of a kind, two pairs.
      EXPECT_EQ(R(4) + R(7) + R(8), e.byClass[4] + e.byClass[7] + e.byClass[8]) << "flushes";
      EXPECT_EQ(R(9), e.byClass[9]) << "five of a kind";
      EXPECT_EQ(R(1), e.byClass[1]) << "two pairs";

      // Straights and straight flushes, exact but in their listed shapes.
      const long long dq = StraightDeparture(s, e);
      const auto [d7, d8] = StraightFlushDeparture(s);
      EXPECT_EQ(R(3) + R(7) + R(8), e.byClass[3] + e.byClass[7] + e.byClass[8] + dq) << "straights";
      EXPECT_EQ(R(7), e.byClass[7] + d7) << "straight flushes";
      EXPECT_EQ(R(8), e.byClass[8] + d8) << "royal flushes";

      // Four of a kind and full house.
      const long long d6 = FourDeparture(s), d5 = FullDeparture(s);
      EXPECT_EQ(R(6), e.byClass[6] + d6) << "four of a kind";
      EXPECT_EQ(R(5), e.byClass[5] + d5) << "full house";
      const long long dq3 = dq - d7 - d8;  // what row 3 shows beyond the exact straights
      const long long dq4 = -d7 - d8;
      const long long above2 = dq3 + dq4 + d5 + d6 + d7 + d8;

      // Three of a kind: the complement where the hand holds it already, exact otherwise
      // unless two jokers can stand beside three different natural cards.
      bool tripsHeld = false;
      if (s.H == 3 || s.H == 4)
        for (int v = 0; v <= 12; ++v)
          if (s.G[static_cast<std::size_t>(v)] + s.K == 3) tripsHeld = true;
      const bool complement2 = tripsHeld || (s.H == 2 && s.K == 2);
      bool heldPair = false;
      for (int v = 0; v <= 12; ++v)
        if (s.G[static_cast<std::size_t>(v)] == 2) heldPair = true;
      if (complement2) {
        EXPECT_EQ(e.byClass[0] + e.byClass[1] + e.byClass[10], 0);
        EXPECT_EQ(R(2), e.byClass[2] - above2) << "three of a kind as complement";
      } else if (s.K + s.J < 2 || heldPair) {
        EXPECT_EQ(R(2), e.byClass[2]) << "three of a kind";
      }

      // A pair of kings or aces: the complement where the pair is held.
      const bool kingsOrAcesHeld = s.H >= 2 && s.H <= 4 && s.K < 2 && (s.G[12] + s.K == 2 || s.G[11] + s.K == 2);
      bool lowPair = false;
      for (int v = 0; v <= 10; ++v)
        if (s.G[static_cast<std::size_t>(v)] >= 2) lowPair = true;
      if (kingsOrAcesHeld) {
        EXPECT_EQ(e.byClass[10], 0);
        EXPECT_EQ(R(0), e.byClass[0] - (R(2) - e.byClass[2]) - above2) << "pair of kings or aces as complement";
      } else if (s.K == 2 || lowPair) {
        EXPECT_EQ(R(0), 0);
        EXPECT_EQ(e.byClass[0], 0);
        if (s.K != 2 && !tripsHeld) {
          EXPECT_EQ(R(10), e.byClass[10] - (R(2) - e.byClass[2]) - above2) << "nothing";
        }
      }
      if (s.K == 2 || tripsHeld || kingsOrAcesHeld) {
        EXPECT_EQ(R(10), 0);
        EXPECT_EQ(e.byClass[10], 0);
      }
      if (::testing::Test::HasFailure()) return;
    }
  }
};
Harness* ProbEnumeration::h = nullptr;
probtest::ClassTable* ProbEnumeration::table = nullptr;

std::vector<Cards> RandomTables(int jokers, int count, unsigned seed) {
#if defined(__SANITIZE_ADDRESS__)
  count = 2;  // the sanitizer build runs the same checks on fewer random tables
#endif
  std::mt19937 gen(seed);
  std::vector<Cards> out;
  while (static_cast<int>(out.size()) < count) {
    std::vector<int> deck;
    for (int c = 0; c < 52 + jokers; ++c) deck.push_back(c);
    std::shuffle(deck.begin(), deck.end(), gen);
    out.push_back({deck[0], deck[1], deck[2], deck[3], deck[4]});
  }
  return out;
}

// Tables that hold the shapes where counts depart from the exact ones, and the
// figures quoted for the panel.
const std::vector<Cards> kNaturalShapes = {
    {12, 14, 30, 45, 20},  // a lone ace, the three and four of clubs, nothing of the top cards
    {1, 2, 12, 47, 33},    // three and four with the ace of the same suit
    {8, 10, 25, 39, 5},    // ten and queen of clubs
    {10, 12, 26, 41, 19},  // queen and ace of clubs
    {0, 1, 3, 30, 44},     // two, three, five of clubs
    {8, 9, 11, 40, 17},    // ten, jack, king of clubs
    {9, 10, 12, 27, 18},   // jack, queen, ace of clubs
    {11, 9, 34, 20, 3},    // a king with a jack, a ten with a king
    {11, 8, 9, 10, 48},    // the king with ten, jack and queen
    {10, 11, 44, 50, 36},  // quoted: nothing held, 52 cards
    {40, 13, 11, 44, 12},  // quoted: card 44 held alone
    {22, 13, 11, 48, 18},  // quoted: one joker, card 13 held
    {20, 16, 3, 39, 33},   // quoted: one joker, nothing held
    {22, 48, 35, 44, 19},  // quoted: one joker, three cards held
    {16, 17, 41, 15, 29},  // quoted: one joker, nothing held
    {11, 24, 12, 25, 5},   // kings and aces
    {6, 19, 32, 45, 7},    // four of a kind
    {39, 40, 41, 42, 43},  // a straight flush of spades
};
const std::vector<Cards> kJokerShapes = {
    {52, 37, 0, 25, 11},   // quoted: the joker held
    {44, 30, 17, 29, 52},  // quoted: cards 30 and 52 held
    {52, 6, 19, 20, 40},   // a joker with a pair
    {52, 12, 1, 2, 30},    // a joker with an ace, the three and four
    {52, 8, 10, 11, 9},    // a joker with ten to king of clubs
    {52, 6, 45, 32, 7},    // a joker with three sevens
};
const std::vector<Cards> kTwoJokerShapes = {
    {52, 53, 6, 19, 30},  // both jokers with a pair
    {52, 53, 12, 10, 0},  // both jokers with queen, ace and two of clubs
    {53, 8, 10, 26, 40},  // the second joker alone, ten and queen of clubs
};

TEST_F(ProbEnumeration, NoJokerTablesMatchTheEnumerationForEveryHoldSet) {
  for (const auto& t : kNaturalShapes) {
    CheckTable(t, 0);
    if (HasFailure()) return;
  }
  for (const auto& t : RandomTables(0, 6, 101)) {
    CheckTable(t, 0);
    if (HasFailure()) return;
  }
}

TEST_F(ProbEnumeration, OneJokerTablesMatchTheEnumerationForEveryHoldSet) {
  for (const auto& t : kNaturalShapes) {
    CheckTable(t, 1);
    if (HasFailure()) return;
  }
  for (const auto& t : kJokerShapes) {
    CheckTable(t, 1);
    if (HasFailure()) return;
  }
  for (const auto& t : RandomTables(1, 6, 202)) {
    CheckTable(t, 1);
    if (HasFailure()) return;
  }
}

TEST_F(ProbEnumeration, TwoJokerTablesMatchTheEnumerationForEveryHoldSet) {
  for (const auto& t : kNaturalShapes) {
    CheckTable(t, 2);
    if (HasFailure()) return;
  }
  for (const auto& t : kJokerShapes) {
    CheckTable(t, 2);
    if (HasFailure()) return;
  }
  for (const auto& t : kTwoJokerShapes) {
    CheckTable(t, 2);
    if (HasFailure()) return;
  }
  for (const auto& t : RandomTables(2, 6, 303)) {
    CheckTable(t, 2);
    if (HasFailure()) return;
  }
}

}  // namespace

namespace {

TEST_F(ProbEnumeration, QuotedExactFiguresAreTheEnumeration) {
  struct Quoted {
    Cards table;
    int jokers, holds, row;
    long long exact;
  };
  const Quoted quoted[] = {
      {{22, 13, 11, 48, 18}, 1, 0b00010, 6, 223}, {{52, 37, 0, 25, 11}, 1, 0b00001, 6, 1850},
      {{52, 37, 0, 25, 11}, 1, 0b00001, 5, 2055}, {{44, 30, 17, 29, 52}, 1, 0b10010, 6, 88},
      {{20, 16, 3, 39, 33}, 1, 0, 5, 4349},       {{22, 48, 35, 44, 19}, 1, 0b01110, 5, 9},
      {{10, 11, 44, 50, 36}, 0, 0, 0, 71496},     {{40, 13, 11, 44, 12}, 0, 0b01000, 0, 4578},
      {{16, 17, 41, 15, 29}, 1, 0, 0, 185423},
  };
  for (const auto& q : quoted) {
    const auto e = probtest::Enumerate(*table, q.table, q.jokers, q.holds);
    EXPECT_EQ(e.byClass[static_cast<std::size_t>(q.row)], q.exact) << "row " << q.row;
  }
}

// The counts at rest are constants of the panel. Against the classes that Résultat gives
// every five-card set they agree in every row but these: the pair of kings or aces and
// nothing in all decks, the full house with jokers, three of a kind with two jokers.
TEST_F(ProbEnumeration, RestCountsDifferFromTheHandEvaluationOnlyInTheirKnownRows) {
  JeuPoker& f = *h->form;
  f.RemplitStatistiques();
  const std::set<int> differ[3] = {{0, 10}, {0, 5, 10}, {0, 2, 5, 10}};
  for (int jokers = 0; jokers <= 2; ++jokers) {
    std::array<long long, 11> byClass{};
    int c[5];
    for (c[4] = 4; c[4] < 52 + jokers; ++c[4])
      for (c[3] = 3; c[3] < c[4]; ++c[3])
        for (c[2] = 2; c[2] < c[3]; ++c[2])
          for (c[1] = 1; c[1] < c[2]; ++c[1])
            for (c[0] = 0; c[0] < c[1]; ++c[0]) ++byClass[table->Class(c)];
    for (int i = 0; i <= 10; ++i) {
      const bool same = f.TexteMainsPossibles(i, jokers).toLongLong() == byClass[static_cast<std::size_t>(i)];
      EXPECT_EQ(same, !differ[jokers].count(i)) << "class " << i << ", jokers " << jokers;
    }
  }
}

}  // namespace

namespace {

TEST_F(ProbEnumeration, HeldJokerAloneCreditsEveryStraightFlushOnce) {
  const Cards t = {52, 6, 19, 33, 47};
  probtest::Lay(*h->form, t, 2, 0b00001);
  ASSERT_EQ(h->form->JokersRestants, 1);
  const auto e = probtest::Enumerate(*table, t, 2, 0b00001);
  EXPECT_EQ(h->form->Réalisations(7), e.byClass[7]);
  EXPECT_EQ(h->form->Réalisations(8), e.byClass[8]);
}

TEST_F(ProbEnumeration, TwoKingsHeldWithoutJokersGiveTheExactPairCount) {
  const Cards t = {11, 37, 3, 20, 44};
  for (int holds : {0b00011, 0b00111, 0b01011, 0b11111 & ~0b10000}) {
    probtest::Lay(*h->form, t, 0, holds);
    const auto e = probtest::Enumerate(*table, t, 0, holds);
    EXPECT_EQ(h->form->Réalisations(0), e.byClass[0]) << holds;
  }
}

}  // namespace
