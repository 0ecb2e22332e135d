// The automatic selection as the odds tool plays it: the same cards as the form's GardeCartes
// keeps, whatever the order of the cards, and the expected value that the return adds up for
// a deal equals a direct enumeration of the draws of the hold the selection makes.
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>

#include "classic/selection_rules.h"
#include "tests/support/harness.h"
#include "tests/tools/odds_support.h"

namespace {

using odds::Hand;

// The positions the form keeps after a first drawing of `deal` with automatic selection on.
unsigned FormSelection(JeuPoker& f, const Hand& deal) {
  f.NbTirées = 5;
  for (int i = 0; i < 5; ++i) {
    f.CartesTirage(i) = deal[i];
    f.MainTriée(i) = deal[i];
  }
  f.Résultat();
  f.GardeCartes();
  unsigned held = 0;
  for (int i = 0; i < 5; ++i)
    if (f.CartesGardées(i)) held |= 1u << i;
  return held;
}

TEST(OddsAutomaticSelection, KeepsWhatTheFormKeeps) {
  Harness h;
  JeuPoker& f = *h.form;
  ASSERT_EQ(f.ParesseOui->BevelWidth(), 0);  // the option is on at start
  std::mt19937 rng(2024);
  const int count = oddstest::kSanitized ? 300 : 3000;
  for (int jokers = 0; jokers <= 2; ++jokers) {
    for (int k = 0; k < count; ++k) {
      const Hand deal = oddstest::RandomDeal(rng, jokers);
      ASSERT_EQ(SélectionAutomatique(deal), FormSelection(f, deal))
          << int(deal[0]) << " " << int(deal[1]) << " " << int(deal[2]) << " " << int(deal[3]) << " " << int(deal[4]);
    }
  }
}

// The cards kept, as a set of codes.
std::vector<Byte> KeptCards(const Hand& deal, unsigned held) {
  std::vector<Byte> v;
  for (int i = 0; i < 5; ++i)
    if (held & (1u << i)) v.push_back(deal[i]);
  std::sort(v.begin(), v.end());
  return v;
}

TEST(OddsAutomaticSelection, KeepsTheSameCardsInAnyOrder) {
  std::mt19937 rng(31);
  for (int k = 0; k < (oddstest::kSanitized ? 50 : 500); ++k) {
    Hand deal = oddstest::RandomDeal(rng, 2);
    std::sort(deal.begin(), deal.end());
    const std::vector<Byte> kept = KeptCards(deal, SélectionAutomatique(deal));
    Hand p = deal;
    do {
      ASSERT_EQ(KeptCards(p, SélectionAutomatique(p)), kept);
    } while (std::next_permutation(p.begin(), p.end()));
  }
}

// The return's view of a deal: its suit class, the hold the selection makes there, and the
// counts of that hold from the tables, against the deal itself enumerated draw by draw.
TEST(OddsAutomaticSelection, ValueOfASampleOfDealsEqualsADirectComputation) {
  for (int jokers = 0; jokers <= 2; ++jokers) {
    const odds::Tables tables = odds::Tables::ForGame(jokers);
    const odds::PayTable pay = odds::PayTableClassic(jokers);
    std::mt19937 rng(77u + jokers);
    for (int k = 0; k < (oddstest::kSanitized ? 4 : 40); ++k) {
      const Hand deal = oddstest::RandomDeal(rng, jokers);
      const unsigned held = SélectionAutomatique(deal);
      const odds::Counts direct = oddstest::PlainHolds(jokers, deal)[held];

      const Hand canonical = odds::CanonicalDeal(deal);
      std::array<odds::Counts, odds::kHolds> counts;
      tables.Holds(canonical, counts);
      const unsigned canonicalHeld = SélectionAutomatique(canonical);
      EXPECT_EQ(std::popcount(held), std::popcount(canonicalHeld));
      std::int64_t a = 0, b = 0;
      for (int c = 0; c < odds::kClasses; ++c) {
        a += std::int64_t{direct[c]} * pay[c];
        b += std::int64_t{counts[canonicalHeld][c]} * pay[c];
      }
      EXPECT_EQ(counts[canonicalHeld], direct);
      EXPECT_EQ(a, b);
    }
  }
}

// The return plays one deal of each suit class for all of them: every exchange of the suits
// of a deal has the same canonical form.
TEST(OddsAutomaticSelection, SuitClassesStandForTheirDeals) {
  std::mt19937 rng(5);
  std::array<Byte, 5> base{};
  for (int k = 0; k < 200; ++k) {
    base = oddstest::RandomDeal(rng, 1);
    // Every exchange of suits of a deal has the same canonical form.
    std::array<int, 4> perm = {0, 1, 2, 3};
    const Hand canonical = odds::CanonicalDeal(base);
    do {
      Hand moved = base;
      for (Byte& c : moved)
        if (c < 52) c = static_cast<Byte>(13 * perm[c / 13] + c % 13);
      ASSERT_EQ(odds::CanonicalDeal(moved), canonical);
    } while (std::next_permutation(perm.begin(), perm.end()));
  }
}

}  // namespace
