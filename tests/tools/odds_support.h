// Helpers of the odds tests: the class of every hand of a deck by the game's evaluation,
// called once per hand, and a plain enumeration of the draws of every hold of a deal.
#pragma once

#include <algorithm>
#include <array>
#include <cstring>
#include <random>
#include <thread>
#include <vector>

#include "core/evaluation.h"
#include "odds/engine.h"

namespace oddstest {

// Fewer hands under the sanitizers, where every step is many times slower.
#ifdef TALVERO_SANITIZE
inline constexpr bool kSanitized = true;
#else
inline constexpr bool kSanitized = false;
#endif

// ClasseMain of every hand of the deck of 54 cards, by colex index, built once. The hands of
// the decks of 52 and 53 cards are its first C(52, 5) and C(53, 5) entries.
inline const std::vector<Byte>& PlainClasses() {
  static const std::vector<Byte> classes = [] {
    std::vector<Byte> v;
    v.reserve(odds::Binomial(54, 5));
    for (int c4 = 4; c4 < 54; ++c4)
      for (int c3 = 3; c3 < c4; ++c3)
        for (int c2 = 2; c2 < c3; ++c2)
          for (int c1 = 1; c1 < c2; ++c1)
            for (int c0 = 0; c0 < c1; ++c0)
              v.push_back(ClasseMain({static_cast<Byte>(c0), static_cast<Byte>(c1), static_cast<Byte>(c2),
                                      static_cast<Byte>(c3), static_cast<Byte>(c4)}));
    return v;
  }();
  return classes;
}

// The counts of the 32 holds of a deal (bit i of the index holds position i) by going through
// every hand of the deck once: a hand is a draw of exactly one hold, the one made of the dealt
// cards it contains. The hands that differ only in their lowest card are counted as a run,
// into four interleaved tallies, and the few runs' hands that hold a dealt lowest card are
// then moved to their hold.
inline std::array<odds::Counts, odds::kHolds> PlainHolds(int jokers, const odds::Hand& deal) {
  const int n = 52 + jokers;
  const Byte* cls = PlainClasses().data();
  unsigned pos[54] = {0};
  for (int i = 0; i < 5; ++i) pos[deal[i]] = 1u << i;
  odds::Hand dealt = deal;
  std::sort(dealt.begin(), dealt.end());
  static thread_local std::uint32_t tally[odds::kHolds][4][odds::kClasses];
  std::memset(tally, 0, sizeof tally);
  std::size_t idx = 0;
  for (int c4 = 4; c4 < n; ++c4)
    for (int c3 = 3; c3 < c4; ++c3) {
      const unsigned m3 = pos[c4] | pos[c3];
      for (int c2 = 2; c2 < c3; ++c2) {
        const unsigned m2 = m3 | pos[c2];
        for (int c1 = 1; c1 < c2; ++c1) {
          const unsigned m1 = m2 | pos[c1];
          const Byte* run = cls + idx;  // the hands c0 c1 c2 c3 c4 for c0 = 0 .. c1 - 1
          auto& t = tally[m1];
          int c0 = 0;
          for (; c0 + 4 <= c1; c0 += 4) {
            ++t[0][run[c0]];
            ++t[1][run[c0 + 1]];
            ++t[2][run[c0 + 2]];
            ++t[3][run[c0 + 3]];
          }
          for (; c0 < c1; ++c0) ++t[0][run[c0]];
          for (Byte d : dealt) {
            if (d >= c1) break;
            --t[0][run[d]];
            ++tally[m1 | pos[d]][0][run[d]];
          }
          idx += static_cast<std::size_t>(c1);
        }
      }
    }
  std::array<odds::Counts, odds::kHolds> out{};
  for (int m = 0; m < odds::kHolds; ++m)
    for (int k = 0; k < 4; ++k)
      for (int c = 0; c < odds::kClasses; ++c) out[m][c] += tally[m][k][c];
  return out;
}

// A random deal of the deck, in position order.
inline odds::Hand RandomDeal(std::mt19937& rng, int jokers) {
  std::vector<Byte> deck;
  for (int c = 0; c < 52 + jokers; ++c) deck.push_back(static_cast<Byte>(c));
  std::shuffle(deck.begin(), deck.end(), rng);
  return {deck[0], deck[1], deck[2], deck[3], deck[4]};
}

// The plain counts of every deal, on every core.
inline std::vector<std::array<odds::Counts, odds::kHolds>> PlainAll(int jokers, const std::vector<odds::Hand>& deals) {
  std::vector<std::array<odds::Counts, odds::kHolds>> out(deals.size());
  PlainClasses();  // built before the threads start
  const unsigned threads = std::max(1u, std::thread::hardware_concurrency());
  std::vector<std::thread> pool;
  for (unsigned t = 0; t < threads; ++t)
    pool.emplace_back([&, t] {
      for (std::size_t k = t; k < deals.size(); k += threads) out[k] = PlainHolds(jokers, deals[k]);
    });
  for (auto& th : pool) th.join();
  return out;
}

}  // namespace oddstest
