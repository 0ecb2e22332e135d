// The method of the return (suit classes of deals, inclusion and exclusion over a table of
// every hand, best hold per deal) reproduces the known return of 9/6 Jacks or Better.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "odds/engine.h"

namespace {

// Standard Jacks or Better on a 52-card deck, in the classes of the odds core:
// 0 jacks or better, 1 two pairs, 2 three of a kind, 3 straight, 4 flush, 5 full house,
// 6 four of a kind, 7 straight flush, 8 royal flush, 10 nothing.
int JacksOrBetter(const odds::Hand& h) {
  int count[13] = {0};
  bool flush = true;
  unsigned ranks = 0;
  for (Byte c : h) {
    ++count[c % 13];
    ranks |= 1u << (c % 13);
    if (c / 13 != h[0] / 13) flush = false;
  }
  int pairs = 0, three = 0, four = 0, highPair = 0;
  for (int r = 0; r < 13; ++r) {
    if (count[r] == 2) {
      ++pairs;
      if (r >= 9) highPair = 1;  // jacks (rank 9) or better
    }
    three += count[r] == 3;
    four += count[r] == 4;
  }
  bool straight = false;
  if (pairs == 0 && three == 0 && four == 0) {
    for (int low = 0; low <= 8; ++low)
      if (ranks == (0x1Fu << low)) straight = true;
    if (ranks == 0x100Fu) straight = true;  // ace, two, three, four, five
  }
  if (straight && flush) return ranks == (0x1Fu << 8) ? 8 : 7;
  if (four) return 6;
  if (three && pairs) return 5;
  if (flush) return 4;
  if (straight) return 3;
  if (three) return 2;
  if (pairs == 2) return 1;
  if (highPair) return 0;
  return 10;
}

TEST(OddsJacksOrBetterReturn, NineSixPayTableReturnsItsPublishedFigure) {
  const odds::Tables tables(52, odds::HandClasses(52, JacksOrBetter));
  const odds::PayTable pay = {1, 2, 3, 4, 6, 9, 25, 50, 800, 0, 0};
  const odds::ReturnResult r = odds::ComputeReturn(tables, pay, {}, 2);
  EXPECT_EQ(r.deals, 2598960);
  EXPECT_EQ(r.canonicalDeals, 134459);  // deals of 52 cards up to an exchange of suits
  EXPECT_NEAR(100 * r.perfect.ret, 99.5439, 0.00005);
  // The return is exact: the fraction gives the same figure.
  EXPECT_NEAR(static_cast<double>(static_cast<long double>(r.perfect.numerator) /
                                  static_cast<long double>(r.perfect.denominator)),
              r.perfect.ret, 1e-15);
  double total = 0;
  for (double p : r.perfect.classes) total += p;
  EXPECT_NEAR(total, 1.0, 1e-12);
  // A royal flush about once in 40 000 hands.
  EXPECT_NEAR(1 / r.perfect.classes[8], 40391, 5);
}

}  // namespace
