// Each line's expected pay for each of its 32 patterns of face-down cards equals a plain
// enumeration of the replacements from the cards not dealt, every final hand classified by the
// game's own evaluation and paid on the grid's scale; and that scale is what the evaluation
// pays a line.
#include <gtest/gtest.h>

#include "core/evaluation.h"
#include "grid/line_rules.h"
#include "odds/grid.h"
#include "tests/tools/odds_grid_support.h"
#include "tests/tools/odds_support.h"

namespace {

// The pay of every final hand of one pattern, summed, and the number of those hands.
std::pair<std::int64_t, std::int64_t> Enumerate(const odds::Grid& grid, const std::vector<Byte>& undealt, int line,
                                                unsigned pattern) {
  const odds::PayTable pay = odds::PayTableGrid();
  std::array<Byte, 5> hand{};
  int kept = 0;
  for (int j = 0; j < 5; ++j)
    if (!(pattern & (1u << j))) hand[kept++] = grid[PositionSurLigne(line, j)];
  const int k = 5 - kept, n = static_cast<int>(undealt.size());
  std::array<int, 5> idx{};
  for (int i = 0; i < k; ++i) idx[i] = i;
  std::int64_t sum = 0, count = 0;
  while (true) {
    for (int i = 0; i < k; ++i) hand[kept + i] = undealt[idx[i]];
    sum += pay[ClasseMain(hand)];
    ++count;
    int i = k - 1;
    while (i >= 0 && idx[i] == n - k + i) --i;
    if (i < 0) break;
    ++idx[i];
    for (int j = i + 1; j < k; ++j) idx[j] = idx[j - 1] + 1;
  }
  return {sum, count};
}

class OddsGridLines : public ::testing::TestWithParam<int> {};

TEST_P(OddsGridLines, EveryPatternOfEveryLineMatchesAPlainEnumeration) {
  const int jokers = GetParam();
  std::mt19937_64 rng(500u + static_cast<unsigned>(jokers));
  // Under the sanitizers one grid and three lines: a row, a column and a diagonal.
  const std::vector<int> lines =
      oddstest::kSanitized ? std::vector<int>{2, 8, 12} : std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
  for (int kind = 0; kind < (oddstest::kSanitized ? 1 : 3); ++kind) {
    const odds::Grid grid = oddstest::GridOfKind(rng, jokers, kind);
    const std::vector<Byte> undealt = oddstest::Undealt(grid, jokers);
    const odds::GridOdds o = odds::AnalyseGrid(grid, jokers, 12);
    EXPECT_EQ(o.undealt, 27 + jokers);
    for (int line : lines) {
      for (unsigned pattern = 0; pattern < odds::kLinePatterns; ++pattern) {
        SCOPED_TRACE("kind " + std::to_string(kind) + ", line " + std::to_string(line) + ", pattern " +
                     std::to_string(pattern));
        const auto [sum, count] = Enumerate(grid, undealt, line, pattern);
        // value / denominator == sum / count, compared exactly.
        EXPECT_EQ(static_cast<odds::Int128>(o.value[line - 1][pattern]) * count,
                  static_cast<odds::Int128>(sum) * o.denominator);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EachDeck, OddsGridLines, ::testing::Values(0, 1, 2),
                         [](const ::testing::TestParamInfo<int>& info) {
                           return std::to_string(info.param) + "Jokers";
                         });

TEST(OddsGridScale, IsWhatTheEvaluationPaysEachClass) {
  // Every hand of the deck of 54 cards, and every class met.
  const odds::PayTable pay = odds::PayTableGrid();
  std::array<bool, odds::kClasses> seen{};
  for (int c4 = 4; c4 < 54; ++c4)
    for (int c3 = 3; c3 < c4; ++c3)
      for (int c2 = 2; c2 < c3; ++c2)
        for (int c1 = 1; c1 < c2; ++c1)
          for (int c0 = 0; c0 < c1; ++c0) {
            MainÉvaluée m;
            m.triée = {static_cast<Byte>(c0), static_cast<Byte>(c1), static_cast<Byte>(c2), static_cast<Byte>(c3),
                       static_cast<Byte>(c4)};
            ÉvalueMain(m);
            ASSERT_EQ(m.gain, pay[m.rang]) << "class " << int{m.rang};
            seen[m.rang] = true;
          }
  for (int c = 0; c < odds::kClasses; ++c) EXPECT_TRUE(seen[c]) << "class " << c;
}

TEST(OddsGridScale, LinesOutOfPlayAreLeftAtZero) {
  std::mt19937_64 rng(3);
  const odds::GridOdds o = odds::AnalyseGrid(odds::RandomGrid(rng, 1), 1, 4);
  for (int line = 5; line <= 12; ++line)
    for (std::int64_t v : o.value[line - 1]) EXPECT_EQ(v, 0) << line;
  const odds::GridChoice all = odds::EvaluateChoice(o, (1u << 25) - 1);
  ASSERT_EQ(all.lines.size(), 4u);
  // Every line turned down draws five of the same cards.
  for (double v : all.lines) EXPECT_EQ(v, all.lines[0]);
}

}  // namespace
