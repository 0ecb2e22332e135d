// JEU 2 between its drawings: the exact expected pay of every line in play for each choice of
// its cards to turn down, the advice's choice (CONSEILS), the best choice, and JEU 2's return
// over random grids.
//
// The second drawing replaces the face-down positions by cards drawn without replacement from
// the cards not dealt (the deck less the 25 on the grid). What one line ends with depends only
// on which of its own five positions are down: its replacements are a uniform set of that many
// undealt cards, whatever is drawn elsewhere. So a line has 32 patterns (bit j set: the j-th
// card it reads is down), each with one expectation, and by linearity the expected pay of a
// choice is the sum over the lines in play of their patterns' expectations.
//
// Terms: a position is 0..24, 5 x row + column; a choice is a 25-bit mask of the positions
// turned down; lines are numbered 1..12 as the game numbers them, and level n plays lines
// 1..n. Pay is per unit of Mise on the grid's fixed scale by class, the same for every deck.
// Expectations are integers over one common denominator, so that choices compare exactly.
// Cache and threads: the functions are pure (GameClassifier is built on first use); GridReturn
// splits its grids over plain std::threads and joins them before returning.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <random>
#include <vector>

#include "odds/engine.h"

namespace odds {

inline constexpr int kGridPositions = 25;
inline constexpr int kGridLines = 12;
inline constexpr int kLinePatterns = 32;

using Grid = std::array<Byte, kGridPositions>;

// What a line pays per unit of Mise, by class: the multiplier the evaluation leaves in gain.
PayTable PayTableGrid();

struct GridOdds {
  int jokers = 0;
  int level = 1;
  Grid grid{};
  int undealt = 0;               // the cards left to draw from
  std::int64_t denominator = 1;  // every expectation is a value over it
  // value[line - 1][pattern]: the line's expected pay times `denominator` (0 out of play).
  std::array<std::array<std::int64_t, kLinePatterns>, kGridLines> value{};
};

// The 32 expectations of each line in play of a grid of 25 distinct codes of the deck.
GridOdds AnalyseGrid(const Grid& grid, int jokers, int level);

// The pattern of line `line` (1..12) under the choice `down`.
unsigned LinePattern(int line, std::uint32_t down);

// A choice of positions to turn down and what it is worth.
struct GridChoice {
  std::uint32_t down = 0;
  std::int64_t value = 0;     // the total expectation times the denominator
  double ev = 0;              // the total expected pay per unit of Mise
  std::vector<double> lines;  // the expected pay of each line in play, line 1 first
};

GridChoice EvaluateChoice(const GridOdds& odds, std::uint32_t down);

// The positions CONSEILS turns down: those no line in play keeps.
GridChoice AdviceChoice(const GridOdds& odds);

// The choice of the highest total. Positions on no line in play stay face up. Among choices of
// equal total, the one that compares first position by position from 0, face up before face
// down (the smallest mask read with position 0 as its highest bit).
GridChoice BestChoice(const GridOdds& odds);

// 25 distinct cards of the deck, uniformly.
Grid RandomGrid(std::mt19937_64& rng, int jokers);

// A mean over random grids and its standard error.
struct Estimate {
  double mean = 0;
  double error = 0;
};

// JEU 2's return (expected pay over the stake, level x Mise) over `deals` random grids drawn
// from `seed`, with the advice's choice and with the best one, and their difference (paired
// grid by grid). The same seed gives the same figures on any number of threads.
struct GridReturnResult {
  Estimate advice, best, difference;
};
GridReturnResult GridReturn(int jokers, int level, std::int64_t deals, std::uint64_t seed, int threads,
                            const std::function<void(double)>& progress = {});

}  // namespace odds
