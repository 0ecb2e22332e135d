// The classic pay table (JEU 1), plain data read by the form and by the odds engine.
#pragma once

#include <algorithm>

// One multiplier of the bet per hand class 0..9 (pair of kings or aces .. five of a kind) for
// 0, 1 and 2 jokers. Nothing (class 10) has no entry.
inline constexpr int kTablesGains[3][10] = {
    {1, 2, 5, 7, 10, 30, 100, 250, 750, 1000},
    {1, 2, 4, 5, 7, 12, 40, 100, 500, 1000},
    {1, 2, 3, 4, 5, 7, 25, 70, 300, 750},
};

// The multiplier of hand class `classe` (0..9) with `jokers` jokers; more than two pay as two.
constexpr int GainClassique(int jokers, int classe) { return kTablesGains[std::clamp(jokers, 0, 2)][classe]; }
