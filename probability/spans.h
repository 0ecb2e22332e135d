// The ten straight spans as sets of natural ranks, for the straight and straight flush counts.
//
// A rank set is a 13-bit mask, bit r for rank r (0 the two .. 12 the ace). Span 1 is the ace
// with the two to the five; span i (2..10) is the ranks i - 2 .. i + 2, so span 10 is ten to ace.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <vector>

namespace prob {

using RankSet = std::uint16_t;

constexpr RankSet SpanMask(int i) {
  return i == 1 ? static_cast<RankSet>(0x100F) : static_cast<RankSet>(0x1F << (i - 2));
}
constexpr RankSet kTopSpan = 0x1F00;  // ten, jack, queen, king, ace

// Every rank set that fits within at least one span, grouped by its number of ranks (0..5).
struct SpanSets {
  std::array<std::vector<RankSet>, 6> bySize;
  SpanSets() {
    std::array<bool, 8192> seen{};
    for (int i = 1; i <= 10; ++i) {
      const RankSet m = SpanMask(i);
      for (RankSet sub = m;; sub = static_cast<RankSet>((sub - 1) & m)) {
        if (!seen[sub]) {
          seen[sub] = true;
          bySize[static_cast<std::size_t>(std::popcount(sub))].push_back(sub);
        }
        if (sub == 0) break;
      }
    }
  }
};

inline const SpanSets& Sets() {
  static const SpanSets sets;
  return sets;
}

// Calls f(u, k) once for every term of a straight draw: u the set of natural ranks of the
// final hand (held ranks `held` and the ranks drawn), fitting one span, with k = 0, 1 or 2
// jokers drawn, so that the ranks drawn plus k make the `draw` cards, k at most `jokers`.
template <class F>
inline void ForEachStraightTerm(RankSet held, int draw, int jokers, F&& f) {
  const int h = std::popcount(held);
  const int kMax = jokers < 2 ? jokers : 2;
  for (int k = 0; k <= kMax && k <= draw; ++k) {
    const int size = h + draw - k;
    if (size > 5) continue;
    for (RankSet u : Sets().bySize[static_cast<std::size_t>(size)])
      if ((u & held) == held) f(u, k);
  }
}

}  // namespace prob
