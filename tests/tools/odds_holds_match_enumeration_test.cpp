// The counts of every hold given by the odds core, through its tables (batch) and through its
// direct walk (one hand), equal a plain enumeration of the draws classified by ClasseMain.
#include <gtest/gtest.h>

#include <bit>
#include <thread>

#include "tests/tools/odds_support.h"

namespace {

using odds::Hand;

// Deals every deck should be tried on, besides the random ones.
std::vector<Hand> EdgeDeals(int jokers) {
  std::vector<Hand> d = {
      {51, 50, 49, 48, 47},  // royal flush in spades
      {12, 25, 38, 51, 0},   // four aces
      {0, 1, 2, 3, 12},      // ace-low straight flush
      {8, 9, 10, 11, 30},    // four to a royal
      {11, 24, 5, 18, 31},   // kings and fives
  };
  if (jokers >= 1) {
    d.push_back({52, 51, 50, 49, 48});
    d.push_back({0, 13, 26, 52, 7});
    d.push_back({2, 17, 52, 33, 45});
  }
  if (jokers == 2) {
    d.push_back({52, 53, 12, 0, 1});
    d.push_back({53, 11, 24, 37, 3});
    d.push_back({53, 4, 20, 36, 44});
  }
  return d;
}

std::vector<Hand> Deals(int jokers, int random, unsigned seed) {
  std::vector<Hand> d = EdgeDeals(jokers);
  std::mt19937 rng(seed);
  for (int i = 0; i < random; ++i) d.push_back(oddstest::RandomDeal(rng, jokers));
  return d;
}

void ExpectSame(const Hand& deal, int jokers, const std::vector<odds::Hold>& holds,
                const std::array<odds::Counts, odds::kHolds>& plain) {
  const odds::PayTable pay = odds::PayTableClassic(jokers);
  ASSERT_EQ(holds.size(), 32u);
  unsigned seen = 0;
  for (std::size_t k = 0; k < holds.size(); ++k) {
    const odds::Hold& h = holds[k];
    seen |= 1u << h.held;
    EXPECT_EQ(h.counts, plain[h.held]) << "deal " << int(deal[0]) << " " << int(deal[1]) << " " << int(deal[2]) << " "
                                       << int(deal[3]) << " " << int(deal[4]) << ", hold " << h.held;
    std::int64_t payout = 0;
    for (int c = 0; c < odds::kClasses; ++c) payout += std::int64_t{plain[h.held][c]} * pay[c];
    EXPECT_EQ(h.payout, payout);
    EXPECT_EQ(h.total, odds::Binomial(47 + jokers, 5 - std::popcount(h.held)));
    if (k > 0) {
      EXPECT_GE(holds[k - 1].ev, h.ev);
    }
  }
  EXPECT_EQ(seen, 0xFFFFFFFFu);
}

void ThroughTheTables(int jokers) {
  const std::vector<Hand> deals = Deals(jokers, oddstest::kSanitized ? 100 : 1000, 1234u + jokers);
  const auto plain = oddstest::PlainAll(jokers, deals);
  const odds::Tables tables = odds::Tables::ForGame(jokers);
  for (std::size_t k = 0; k < deals.size(); ++k)
    ExpectSame(deals[k], jokers, odds::AnalyseHand(tables, odds::PayTableClassic(jokers), deals[k]), plain[k]);
}

void ThroughTheDirectWalk(int jokers) {
  const std::vector<Hand> deals = Deals(jokers, oddstest::kSanitized ? 2 : 30, 99u + jokers);
  const auto plain = oddstest::PlainAll(jokers, deals);
  for (std::size_t k = 0; k < deals.size(); ++k)
    ExpectSame(deals[k], jokers, odds::AnalyseHandDirect(jokers, odds::PayTableClassic(jokers), deals[k], 2), plain[k]);
}

}  // namespace

// A thousand random hands and the edge deals per deck, as --batch computes them.
TEST(OddsHoldsMatchEnumeration, TablesWithNoJoker) { ThroughTheTables(0); }
TEST(OddsHoldsMatchEnumeration, TablesWithOneJoker) { ThroughTheTables(1); }
TEST(OddsHoldsMatchEnumeration, TablesWithTwoJokers) { ThroughTheTables(2); }

// Fewer hands as one hand on the command line computes them.
TEST(OddsHoldsMatchEnumeration, DirectWalkWithNoJoker) { ThroughTheDirectWalk(0); }
TEST(OddsHoldsMatchEnumeration, DirectWalkWithOneJoker) { ThroughTheDirectWalk(1); }
TEST(OddsHoldsMatchEnumeration, DirectWalkWithTwoJokers) { ThroughTheDirectWalk(2); }
