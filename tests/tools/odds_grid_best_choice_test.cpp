// The best choice of cards to turn down on a grid equals a brute force over every choice of
// the positions on the lines in play, ties included; it is never worse than the advice's, and
// the totals are the sums of the lines.
#include <gtest/gtest.h>

#include <bit>

#include "grid/line_rules.h"
#include "odds/grid.h"
#include "tests/tools/odds_grid_support.h"
#include "tests/tools/odds_support.h"

namespace {

// The choice read with position 0 as its highest bit: the smaller comes first among equals.
std::uint32_t TieOrder(std::uint32_t down) {
  std::uint32_t r = 0;
  for (int p = 0; p < odds::kGridPositions; ++p)
    if (down & (1u << p)) r |= 1u << (odds::kGridPositions - 1 - p);
  return r;
}

// Every choice of the positions on the lines in play, in Gray code order (one position turned
// at each step), each line's pattern followed along.
odds::GridChoice BruteForce(const odds::GridOdds& o) {
  std::vector<int> positions;
  std::vector<std::vector<std::pair<int, int>>> places(odds::kGridPositions);
  for (int line = 1; line <= o.level; ++line)
    for (int j = 0; j < 5; ++j) places[PositionSurLigne(line, j)].push_back({line - 1, j});
  for (int p = 0; p < odds::kGridPositions; ++p)
    if (!places[p].empty()) positions.push_back(p);
  std::array<unsigned, odds::kGridLines> pattern{};
  std::int64_t value = 0;
  for (int line = 0; line < o.level; ++line) value += o.value[line][0];
  std::uint32_t down = 0, bestDown = 0;
  std::int64_t best = value;
  for (std::uint64_t step = 1; step < (std::uint64_t{1} << positions.size()); ++step) {
    const int p = positions[std::countr_zero(step)];
    down ^= 1u << p;
    for (const auto& [line, j] : places[p]) {
      value -= o.value[line][pattern[line]];
      pattern[line] ^= 1u << j;
      value += o.value[line][pattern[line]];
    }
    if (value > best || (value == best && TieOrder(down) < TieOrder(bestDown))) {
      best = value;
      bestDown = down;
    }
  }
  return odds::EvaluateChoice(o, bestDown);
}

class OddsGridBestChoice : public ::testing::TestWithParam<int> {};

TEST_P(OddsGridBestChoice, EqualsABruteForceAtEveryLevel) {
  const int jokers = GetParam();
  std::mt19937_64 rng(700u + static_cast<unsigned>(jokers));
  // From level 5 on every position is on a line: 2^25 choices, fewer levels under the sanitizers.
  for (int level = 1; level <= 12; ++level) {
    if (oddstest::kSanitized && level > 4 && level != 12 - jokers) continue;
    for (int kind = 0; kind < 3; ++kind) {
      if (level >= 5 && kind != level % 3) continue;
      SCOPED_TRACE("level " + std::to_string(level) + ", kind " + std::to_string(kind));
      const odds::GridOdds o = odds::AnalyseGrid(oddstest::GridOfKind(rng, jokers, kind), jokers, level);
      const odds::GridChoice best = odds::BestChoice(o);
      const odds::GridChoice brute = BruteForce(o);
      EXPECT_EQ(best.value, brute.value);
      EXPECT_EQ(best.down, brute.down);
      EXPECT_EQ(best.lines, brute.lines);
      EXPECT_GE(best.value, odds::AdviceChoice(o).value);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EachDeck, OddsGridBestChoice, ::testing::Values(0, 1, 2),
                         [](const ::testing::TestParamInfo<int>& info) {
                           return std::to_string(info.param) + "Jokers";
                         });

TEST(OddsGridChoices, TheTotalIsTheSumOfTheLinesInPlay) {
  std::mt19937_64 rng(9);
  for (int level : {1, 6, 12}) {
    const odds::GridOdds o = odds::AnalyseGrid(odds::RandomGrid(rng, 2), 2, level);
    for (const odds::GridChoice& c : {odds::AdviceChoice(o), odds::BestChoice(o)}) {
      ASSERT_EQ(c.lines.size(), static_cast<std::size_t>(level));
      std::int64_t value = 0;
      for (int line = 1; line <= level; ++line) {
        const std::int64_t v = o.value[line - 1][odds::LinePattern(line, c.down)];
        EXPECT_EQ(c.lines[line - 1], static_cast<double>(v) / static_cast<double>(o.denominator));
        value += v;
      }
      EXPECT_EQ(c.value, value);
      EXPECT_DOUBLE_EQ(c.ev, static_cast<double>(value) / static_cast<double>(o.denominator));
    }
  }
}

TEST(OddsGridChoices, PositionsOnNoLineInPlayStayUp) {
  std::mt19937_64 rng(10);
  for (int level = 1; level <= 4; ++level) {
    const odds::GridOdds o = odds::AnalyseGrid(odds::RandomGrid(rng, 0), 0, level);
    EXPECT_EQ(odds::BestChoice(o).down >> (5 * level), 0u) << level;
  }
}

TEST(OddsGridChoices, AmongEqualTotalsTheFirstPositionsStayUp) {
  // Four aces and a king in the top row, four sevens and a queen in the second, no joker: a
  // kicker turned down changes nothing, so four choices pay 40 a line; all up comes first.
  odds::Grid g{};
  const Byte first[10] = {12, 25, 38, 51, 11, 5, 18, 31, 44, 10};
  Byte next = 0;
  for (int p = 0; p < odds::kGridPositions; ++p) {
    if (p < 10) {
      g[p] = first[p];
      continue;
    }
    while (std::find(first, first + 10, next) != first + 10) ++next;
    g[p] = next++;
  }
  const odds::GridOdds o = odds::AnalyseGrid(g, 0, 2);
  const odds::GridChoice best = odds::BestChoice(o);
  EXPECT_EQ(best.down, 0u);
  EXPECT_DOUBLE_EQ(best.ev, 80);
  for (std::uint32_t down : {1u << 4, 1u << 9, (1u << 4) | (1u << 9)})
    EXPECT_EQ(odds::EvaluateChoice(o, down).value, best.value) << down;
}

}  // namespace
