// The coach's values of the 32 holds equal a plain enumeration of the draws classified by the
// game's evaluation, for every deck and at any bet; equal holds are equally right.
#include <gtest/gtest.h>

#include <bit>
#include <random>
#include <thread>

#include "coach/coach.h"
#include "tests/tools/odds_support.h"

namespace {

std::array<std::uint8_t, 5> Codes(const odds::Hand& h) {
  std::array<std::uint8_t, 5> c{};
  for (int i = 0; i < 5; ++i) c[static_cast<std::size_t>(i)] = h[static_cast<std::size_t>(i)];
  return c;
}

// The payout of a hold from its plain counts, and the number of its paying draws.
struct Plain {
  std::int64_t payout = 0;
  std::uint64_t paying = 0;
  std::uint64_t total = 0;
};

Plain FromCounts(const odds::Counts& counts, const odds::PayTable& pay) {
  Plain p;
  for (int c = 0; c < odds::kClasses; ++c) {
    p.payout += std::int64_t{counts[static_cast<std::size_t>(c)]} * pay[static_cast<std::size_t>(c)];
    if (pay[static_cast<std::size_t>(c)] > 0) p.paying += counts[static_cast<std::size_t>(c)];
    p.total += counts[static_cast<std::size_t>(c)];
  }
  return p;
}

class CoachValues : public ::testing::TestWithParam<int> {};

TEST_P(CoachValues, MatchAPlainEnumerationOfTheDraws) {
  const int jokers = GetParam();
  const int count = oddstest::kSanitized ? 100 : 1000;
  std::mt19937 rng(4242u + static_cast<unsigned>(jokers));
  std::vector<odds::Hand> deals;
  for (int i = 0; i < count; ++i) deals.push_back(oddstest::RandomDeal(rng, jokers));
  const auto plain = oddstest::PlainAll(jokers, deals);

  const odds::PayTable pay = odds::PayTableClassic(jokers);
  for (std::size_t k = 0; k < deals.size(); ++k) {
    const int mise = 1 + static_cast<int>(k % 40);
    const coach::Judgement j = coach::Judge(Codes(deals[k]), jokers, mise, mise);
    ASSERT_TRUE(j.valid);
    unsigned seen = 0;
    double bestPlain = -1;
    for (unsigned held = 0; held < 32; ++held) {
      const Plain p = FromCounts(plain[k][held], pay);
      bestPlain = std::max(bestPlain, static_cast<double>(p.payout) * mise / static_cast<double>(p.total));
    }
    for (std::size_t r = 0; r < j.holds.size(); ++r) {
      const coach::HoldValue& h = j.holds[r];
      seen |= 1u << h.held;
      const Plain p = FromCounts(plain[k][h.held], pay);
      ASSERT_EQ(p.total, odds::Binomial(47 + jokers, 5 - std::popcount(h.held)));
      const double ev = static_cast<double>(p.payout) * mise / static_cast<double>(p.total);
      EXPECT_NEAR(h.ev, ev, 1e-9 * std::max(1.0, ev)) << "deal " << k << " hold " << h.held;
      EXPECT_NEAR(h.pays, static_cast<double>(p.paying) / static_cast<double>(p.total), 1e-12);
      if (r > 0) {
        EXPECT_GE(j.holds[r - 1].ev + 1e-9, h.ev);
      }
    }
    EXPECT_EQ(seen, 0xFFFFFFFFu);
    EXPECT_NEAR(j.Best().ev, bestPlain, 1e-9 * std::max(1.0, bestPlain));
  }
}

INSTANTIATE_TEST_SUITE_P(Decks, CoachValues, ::testing::Values(0, 1, 2),
                         [](const ::testing::TestParamInfo<int>& i) { return std::to_string(i.param) + "Jokers"; });

// Clubs and diamonds play the same part in this deal, so holding the two of clubs alone is worth
// exactly as much as holding the two of diamonds alone.
TEST(CoachTies, HoldsOfEqualValueAreEquallyRight) {
  // 2C 2D 5S 9S JS: codes 0, 13, 42, 46, 48.
  const coach::Judgement j = coach::Judge({0, 13, 42, 46, 48}, 0, 1, 1);
  EXPECT_EQ(j.Of(0b00001).ev, j.Of(0b00010).ev);
  EXPECT_EQ(j.Cost(0b00001), j.Cost(0b00010));
  // A deal whose two best holds are equal: either one costs nothing.
  std::mt19937 rng(99);
  for (int tries = 0; tries < 20000; ++tries) {
    const odds::Hand deal = oddstest::RandomDeal(rng, 0);
    const coach::Judgement t = coach::Judge(Codes(deal), 0, 1, 1);
    if (t.holds[0].ev != t.holds[1].ev) continue;
    EXPECT_LT(t.holds[0].held, t.holds[1].held);  // the order of the masks among equals
    EXPECT_EQ(t.Cost(t.holds[1].held), 0);
    coach::Coach c;
    coach::Table table;
    table.between = true;
    table.hand = Codes(deal);
    table.held = t.holds[1].held;
    c.Decide(table);
    EXPECT_EQ(c.record().player.decisions, 1);
    EXPECT_EQ(c.record().player.mistakes, 0);
    EXPECT_EQ(c.record().player.lost, 0);
    return;
  }
  FAIL() << "no deal with two equal best holds found";
}

TEST(CoachTies, ValuesWithinOneBillionthAreEqual) {
  EXPECT_TRUE(coach::EquallyRight(1.0, 1.0 + 0.5e-9));
  EXPECT_FALSE(coach::EquallyRight(1.0, 1.0 + 2e-9));
  coach::Judgement j;
  j.valid = true;
  j.holds[0] = {3, 2.0, 1};
  j.holds[1] = {5, 2.0 - 0.5e-9, 1};
  j.holds[2] = {7, 2.0 - 1e-6, 1};
  EXPECT_EQ(j.Cost(5), 0);
  EXPECT_NEAR(j.Cost(7), 1e-6, 1e-12);
}

TEST(CoachLines, HoldTextReadsFromPositionZero) {
  EXPECT_EQ(coach::HoldText(0b00011), "11000");
  EXPECT_EQ(coach::HoldText(0b10000), "00001");
  EXPECT_EQ(coach::HoldText(0), "00000");
}

}  // namespace
