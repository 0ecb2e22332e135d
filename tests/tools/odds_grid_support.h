// Helpers of the tests of JEU 2's odds: grids with many made hands, and the cards not dealt.
#pragma once

#include <algorithm>
#include <random>
#include <vector>

#include "odds/grid.h"

namespace oddstest {

// 25 distinct cards of the deck. Kind 0 from the whole deck; kind 1 from two suits and the
// jokers, so that flushes and straight flushes come often; kind 2 from seven ranks and the
// jokers, so that pairs, fulls, fours and fives come often.
inline odds::Grid GridOfKind(std::mt19937_64& rng, int jokers, int kind) {
  if (kind == 0) return odds::RandomGrid(rng, jokers);
  std::vector<Byte> pool;
  std::vector<int> picks(kind == 1 ? 4 : 13);
  for (std::size_t i = 0; i < picks.size(); ++i) picks[i] = static_cast<int>(i);
  std::shuffle(picks.begin(), picks.end(), rng);
  for (int c = 0; c < 52; ++c) {
    const int pick = kind == 1 ? c / 13 : c % 13;
    if (std::find(picks.begin(), picks.begin() + (kind == 1 ? 2 : 7), pick) != picks.begin() + (kind == 1 ? 2 : 7))
      pool.push_back(static_cast<Byte>(c));
  }
  for (int c = 52; c < 52 + jokers; ++c) pool.push_back(static_cast<Byte>(c));
  std::shuffle(pool.begin(), pool.end(), rng);
  odds::Grid g{};
  std::copy(pool.begin(), pool.begin() + odds::kGridPositions, g.begin());
  return g;
}

// The cards of the deck that are not on the grid, ascending.
inline std::vector<Byte> Undealt(const odds::Grid& grid, int jokers) {
  std::vector<Byte> out;
  for (int c = 0; c < 52 + jokers; ++c)
    if (std::find(grid.begin(), grid.end(), c) == grid.end()) out.push_back(static_cast<Byte>(c));
  return out;
}

}  // namespace oddstest
