// The straight and straight flush counts for every shape of the held cards: every set of
// held natural ranks of up to four, held in one suit or in several, with 0, 1 or 2 held
// jokers, 0, 1 or 2 jokers in the game and rejected jokers or not, the rejected natural
// cards picked at random. Each count is checked against a sum over the drawn ranks worked
// out here apart from the program, plus the few departures that the panel keeps on purpose.
#include <gtest/gtest.h>

#include <bit>
#include <random>
#include <sstream>

#include "tests/probability/probability_support.h"

namespace {

// The ten runs of five ranks, the ace low in the first.
bool InOneRun(int ranks) {
  if ((ranks & ~0x100F) == 0) return true;  // ace, two, three, four, five
  for (int low = 0; low <= 8; ++low)
    if ((ranks & ~(0x1F << low)) == 0) return true;
  return false;
}

struct Reference {
  long long straights = 0;  // straight flushes included
  long long straightFlushes = 0;
  long long royals = 0;
};

// Sums over the sets of drawn ranks: `count(r)` cards can come for rank r, `jokers` jokers
// are in the deck; `held` ranks are in hand, `draw` cards are drawn. Calls add(ranks, ways).
template <class Count, class Add>
void EachStraightDraw(int held, int draw, int jokers, Count&& count, Add&& add) {
  for (int drawn = 0; drawn < (1 << 13); ++drawn) {
    if (drawn & held) continue;
    const int k = draw - std::popcount(static_cast<unsigned>(drawn));
    if (k < 0 || k > jokers) continue;
    if (!InOneRun(held | drawn)) continue;
    long long ways = probtest::Choose(jokers, k);
    for (int r = 0; r <= 12; ++r)
      if (drawn >> r & 1) ways *= count(r);
    if (ways != 0) add(held | drawn, ways, k);
  }
}

class ProbStraightShapes : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { h = new Harness(); }
  static void TearDownTestSuite() { delete h; }
  static Harness* h;
};
Harness* ProbStraightShapes::h = nullptr;

TEST_F(ProbStraightShapes, EveryHeldShapeGivesTheExactSumWithItsListedDepartures) {
  JeuPoker& f = *h->form;
  std::mt19937 gen(4242);
  int checked = 0;
  for (int held = 0; held < (1 << 13); ++held) {
    const int hn = std::popcount(static_cast<unsigned>(held));
    if (hn > 4) continue;
    for (int K = 0; K <= 2 && hn + K <= 4; ++K)
      for (int jokers = K; jokers <= 2; ++jokers)
        for (int rejectedJokers = 0; rejectedJokers <= jokers - K && hn + K + rejectedJokers <= 5; ++rejectedJokers)
          for (int variant = 0; variant < 4; ++variant) {
            const bool oneSuit = variant < 2;
            // The table: held natural cards, held jokers, rejected jokers, rejected naturals.
            std::vector<int> cards;
            std::array<bool, 54> used{};
            const int firstSuit = static_cast<int>(gen() % 4);
            for (int r = 0; r <= 12; ++r) {
              if (!(held >> r & 1)) continue;
              const int s = oneSuit ? firstSuit : static_cast<int>(gen() % 4);
              cards.push_back(13 * s + r);
            }
            int joker = 52;
            for (int i = 0; i < K + rejectedJokers; ++i) cards.push_back(joker++);
            while (cards.size() < 5) {
              const int c = static_cast<int>(gen() % 52);
              bool taken = false;
              for (int x : cards) taken = taken || x == c;
              if (!taken) cards.push_back(c);
            }
            for (int c : cards) used[static_cast<std::size_t>(c)] = true;
            const int H = hn + K;
            const probtest::Cards table = {cards[0], cards[1], cards[2], cards[3], cards[4]};
            probtest::Lay(f, table, jokers, (1 << H) - 1, false);
            f.CompteProbabilités();

            const int J = jokers - K - rejectedJokers;
            const int d = 5 - H;
            std::array<int, 13> P{};
            for (int r = 0; r <= 12; ++r)
              for (int s = 0; s <= 3; ++s)
                P[static_cast<std::size_t>(r)] += !used[static_cast<std::size_t>(13 * s + r)];
            int heldSuits = 0;
            for (int i = 0; i < hn; ++i) heldSuits |= 1 << (cards[static_cast<std::size_t>(i)] / 13);

            Reference e;
            long long jokerDrawn = 0;
            EachStraightDraw(
                held, d, J, [&](int r) { return P[static_cast<std::size_t>(r)]; },
                [&](int, long long ways, int k) {
                  e.straights += ways;
                  if (k == 1) jokerDrawn += ways;
                });
            for (int s = 0; s <= 3; ++s) {
              if (heldSuits != 0 && heldSuits != (1 << s)) continue;
              EachStraightDraw(
                  held, d, J, [&](int r) -> long long { return !used[static_cast<std::size_t>(13 * s + r)]; },
                  [&](int ranks, long long ways, int) {
                    ((ranks & ~0x1F00) == 0 ? e.royals : e.straightFlushes) += ways;
                  });
            }

            // The departures, shape by shape.
            long long straights = e.straights, flushes = e.straightFlushes, royals = e.royals;
            const int low = hn > 0 ? std::countr_zero(static_cast<unsigned>(held)) : -1;
            const int s = hn > 0 ? cards[0] / 13 : -1;
            auto in = [&](int r) -> long long { return !used[static_cast<std::size_t>(13 * s + r)]; };
            if (H == 1 && hn == 1 && low == 12) straights -= 1LL * P[0] * P[1] * P[2] * P[3];
            if (H == 1 && hn == 1 && J == 2 && low >= 2)
              straights += 1LL * P[static_cast<std::size_t>(low - 1)] * P[static_cast<std::size_t>(low - 2)];
            if (H == 2 && K == 1 && J == 1) straights -= jokerDrawn;
            if (H == 2 && K == 0 && held == 0x6 && J >= 1) straights -= 1LL * J * P[12] * P[0];
            const bool suited = hn > 0 && std::popcount(static_cast<unsigned>(heldSuits)) == 1;
            if (suited && H == 2 && K == 0) {
              if (held == 0x6 && J >= 1) flushes -= J * in(12) * in(0);
              if (held == 0x500 && J == 2) {
                royals -= in(11);
                flushes += in(11);
              }
              if (held == 0x1400 && J == 2) royals += in(0);
            }
            if (suited && H == 3 && K == 0 && J >= 1)
              for (int a = 0; a <= 9; ++a)
                if (held == ((1 << a) | (1 << (a + 1)) | (1 << (a + 3)))) (a >= 8 ? royals : flushes) += J * in(a + 2);

            const long long shownStraights =
                static_cast<long long>(f.Réalisations(3)) + f.Réalisations(7) + f.Réalisations(8);
            if (shownStraights != straights || f.Réalisations(7) != flushes || f.Réalisations(8) != royals) {
              std::ostringstream where;
              where << "table " << table[0] << " " << table[1] << " " << table[2] << " " << table[3] << " " << table[4]
                    << ", " << H << " held, jokers " << jokers << ", J " << J << ", exact " << e.straights;
              ADD_FAILURE() << where.str() << ": straights " << shownStraights << " for " << straights
                            << ", straight flushes " << f.Réalisations(7) << " for " << flushes << ", royals "
                            << f.Réalisations(8) << " for " << royals;
              return;
            }
            ++checked;
          }
  }
  EXPECT_GT(checked, 20000);
}

}  // namespace
