#include "odds/grid.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <cmath>
#include <numeric>

#include "grid/line_rules.h"

namespace odds {

namespace {

constexpr unsigned kNoFlush = 3;  // a suit set that is never a flush
constexpr int kRanks = 14;        // the thirteen ranks and the jokers as a fourteenth

std::uint64_t RankTerm(int rank) { return GameClassifier::Term(rank < 13 ? rank : 52); }

// The undealt cards of a grid, as the counting reads them.
struct Undealt {
  int size = 0;
  std::array<int, kRanks> perRank{};  // the cards of each rank, jokers last
  // byRanks[k]: every multiset of k undealt cards by rank, as the sum of its terms and the
  // number of k-sets of undealt cards that have it.
  std::array<std::vector<std::pair<std::uint64_t, std::uint32_t>>, 6> byRanks;
  // suited[s][m]: the sum of the terms of every m-set of undealt ordinary cards of suit s.
  std::array<std::array<std::vector<std::uint64_t>, 6>, 4> suited;

  void Multisets(int rank, int left, std::uint64_t terms, std::uint32_t weight, int k) {
    if (left == 0) {
      byRanks[k].push_back({terms, weight});
      return;
    }
    if (rank == kRanks) return;
    for (int c = 0; c <= std::min(left, perRank[rank]); ++c)
      Multisets(rank + 1, left - c, terms + c * RankTerm(rank), weight * Binomial(perRank[rank], c), k);
  }

  void Subsets(const std::vector<int>& cards, std::size_t from, int m, std::uint64_t terms,
               std::array<std::vector<std::uint64_t>, 6>& out) {
    out[m].push_back(terms);
    if (m == 5) return;
    for (std::size_t i = from; i < cards.size(); ++i) Subsets(cards, i + 1, m + 1, terms + RankTerm(cards[i]), out);
  }

  Undealt(const Grid& grid, int jokers) {
    const int n = 52 + jokers;
    std::array<std::vector<int>, 4> bySuit;
    for (int c = 0; c < n; ++c) {
      if (std::find(grid.begin(), grid.end(), c) != grid.end()) continue;
      ++size;
      ++perRank[c < 52 ? c % 13 : 13];
      if (c < 52) bySuit[c / 13].push_back(c % 13);
    }
    for (int k = 0; k <= 5; ++k) Multisets(0, k, 0, 1, k);
    for (int s = 0; s < 4; ++s) Subsets(bySuit[s], 0, 0, 0, suited[s]);
  }
};

// The sum of the pay of K + S over the k-sets S of undealt cards, for the kept cards K given
// by their terms and suits. The class of a hand that is no flush depends only on its ranks;
// the sets whose ordinary cards all share one suit with K are then paid as flushes.
std::int64_t PatternPayout(const Undealt& u, const PayTable& pay, std::uint64_t keptTerms, unsigned keptSuits, int k) {
  const GameClassifier& g = GameClassifier::Get();
  std::int64_t sum = 0;
  for (const auto& [terms, weight] : u.byRanks[k])
    sum += static_cast<std::int64_t>(weight) * pay[g.Classify(keptTerms + terms, kNoFlush)];
  for (int s = 0; s < 4; ++s) {
    if (keptSuits != 0 && keptSuits != (1u << s)) continue;
    // j jokers and k - j ordinary cards of suit s; with no ordinary card kept, each set is
    // counted for the one suit of its ordinary cards (a hand has three at least).
    for (int j = 0; j <= std::min(k, u.perRank[13]); ++j) {
      const std::int64_t ways = Binomial(u.perRank[13], j);
      const std::uint64_t jokerTerms = keptTerms + j * RankTerm(13);
      for (std::uint64_t terms : u.suited[s][k - j]) {
        if (keptSuits == 0 && k == j) continue;
        sum += ways * (pay[g.Classify(jokerTerms + terms, 1u << s)] - pay[g.Classify(jokerTerms + terms, kNoFlush)]);
      }
    }
  }
  return sum;
}

}  // namespace

PayTable PayTableGrid() { return {1, 2, 3, 5, 7, 10, 40, 100, 500, 1000, 0}; }

GridOdds AnalyseGrid(const Grid& grid, int jokers, int level) {
  GridOdds o;
  o.jokers = jokers;
  o.level = level;
  o.grid = grid;
  const Undealt u(grid, jokers);
  o.undealt = u.size;
  for (int k = 0; k <= 5; ++k) o.denominator = std::lcm(o.denominator, static_cast<std::int64_t>(Binomial(u.size, k)));
  const PayTable pay = PayTableGrid();
  // Every line turned down draws the same five cards.
  const std::int64_t allDown = PatternPayout(u, pay, 0, 0, 5) * (o.denominator / Binomial(u.size, 5));
  for (int line = 1; line <= level; ++line) {
    auto& value = o.value[line - 1];
    for (unsigned pattern = 0; pattern + 1 < kLinePatterns; ++pattern) {
      std::uint64_t terms = 0;
      unsigned suits = 0;
      for (int j = 0; j < 5; ++j) {
        if (pattern & (1u << j)) continue;
        const Byte card = grid[PositionSurLigne(line, j)];
        terms += GameClassifier::Term(card);
        suits |= GameClassifier::SuitBit(card);
      }
      const int k = std::popcount(pattern);
      value[pattern] = PatternPayout(u, pay, terms, suits, k) * (o.denominator / Binomial(u.size, k));
    }
    value[kLinePatterns - 1] = allDown;
  }
  return o;
}

unsigned LinePattern(int line, std::uint32_t down) {
  unsigned pattern = 0;
  for (int j = 0; j < 5; ++j)
    if (down & (std::uint32_t{1} << PositionSurLigne(line, j))) pattern |= 1u << j;
  return pattern;
}

GridChoice EvaluateChoice(const GridOdds& odds, std::uint32_t down) {
  GridChoice c;
  c.down = down;
  for (int line = 1; line <= odds.level; ++line) {
    const std::int64_t v = odds.value[line - 1][LinePattern(line, down)];
    c.value += v;
    c.lines.push_back(static_cast<double>(v) / static_cast<double>(odds.denominator));
  }
  c.ev = static_cast<double>(c.value) / static_cast<double>(odds.denominator);
  return c;
}

GridChoice AdviceChoice(const GridOdds& odds) {
  return EvaluateChoice(odds, ~PositionsGardéesGrille(odds.grid, odds.level) & ((1u << kGridPositions) - 1));
}

namespace {

// The best choice over the positions of a set of lines that share positions only among
// themselves: a depth-first walk over the positions in ascending order, face up first, cut
// where even each unfinished line's best pattern consistent with what is fixed cannot beat
// the best found. Before the walk, value is moved between the lines that meet at a position
// (what one line gains for a card down another loses, so every choice keeps its total) until
// the lines' own best patterns nearly agree: that tightens the bounds of the walk.
class Search {
 public:
  Search(const GridOdds& odds, const std::vector<int>& lines) {
    std::uint32_t positions = 0;
    for (int line : lines)
      for (int j = 0; j < 5; ++j) positions |= std::uint32_t{1} << PositionSurLigne(line, j);
    for (int p = 0; p < kGridPositions; ++p)
      if (positions & (std::uint32_t{1} << p)) vars_.push_back({p, {}});
    lines_.resize(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) {
      lines_[i].number = lines[i];
      lines_[i].value = odds.value[lines[i] - 1];
      for (int j = 0; j < 5; ++j) {
        const int p = PositionSurLigne(lines[i], j);
        for (Var& v : vars_)
          if (v.position == p) v.places.push_back({static_cast<int>(i), j});
      }
    }
  }

  // The value of a choice on these lines.
  std::int64_t Value(std::uint32_t down) const {
    std::int64_t v = 0;
    for (const Line& l : lines_) v += l.value[LinePattern(l.number, down)];
    return v;
  }

  // Flips single positions while one gains: a good choice to start from.
  std::uint32_t Improve(std::uint32_t down) const {
    for (bool again = true; again;) {
      again = false;
      for (const Var& v : vars_) {
        const std::uint32_t flipped = down ^ (std::uint32_t{1} << v.position);
        if (Value(flipped) > Value(down)) {
          down = flipped;
          again = true;
        }
      }
    }
    return down;
  }

  // Moves value between the lines at each shared position, toward the smallest sum of the
  // lines' maxima (a subgradient descent with Polyak's step toward `known`, a total reached).
  void Balance(std::int64_t known) {
    constexpr int kRounds = 200;
    std::vector<Line> kept = lines_;
    std::int64_t lowest = INT64_MAX;
    double scale = 1;
    int sinceLower = 0;
    std::vector<unsigned> wanted(lines_.size());
    for (int round = 0; round < kRounds; ++round) {
      std::int64_t bound = 0;
      for (std::size_t i = 0; i < lines_.size(); ++i) {
        const auto& v = lines_[i].value;
        wanted[i] = static_cast<unsigned>(std::max_element(v.begin(), v.end()) - v.begin());
        bound += v[wanted[i]];
      }
      if (bound < lowest) {
        lowest = bound;
        kept = lines_;
        sinceLower = 0;
      } else if (++sinceLower >= 5) {
        scale /= 2;
        sinceLower = 0;
      }
      if (bound <= known) break;
      // Where the lines disagree, the ones that want the card down give some of its value to
      // the ones that want it up.
      double norm = 0;
      for (const Var& v : vars_) {
        const int k = static_cast<int>(v.places.size());
        int sum = 0;
        for (const Place& pl : v.places) sum += (wanted[pl.line] >> pl.j) & 1;
        if (sum != 0 && sum != k) norm += static_cast<double>(sum) * (k - sum) * k;
      }
      if (norm == 0) break;
      const double step = scale * static_cast<double>(bound - known) / norm;
      for (const Var& v : vars_) {
        const int k = static_cast<int>(v.places.size());
        int sum = 0;
        for (const Place& pl : v.places) sum += (wanted[pl.line] >> pl.j) & 1;
        if (sum == 0 || sum == k) continue;
        std::int64_t given = 0;
        for (std::size_t i = 0; i < v.places.size(); ++i) {
          const Place& pl = v.places[i];
          const int g = k * static_cast<int>((wanted[pl.line] >> pl.j) & 1) - sum;
          const std::int64_t d = i + 1 < v.places.size() ? std::llround(step * g) : -given;
          given += d;
          for (unsigned q = 0; q < kLinePatterns; ++q)
            if (q & (1u << pl.j)) lines_[pl.line].value[q] -= d;
        }
      }
    }
    lines_ = kept;
  }

  // The best choice, given a total that one choice reaches.
  std::uint32_t Run(std::int64_t known) {
    std::int64_t bound = 0;
    for (Line& l : lines_) {
      // best[fixed][bits]: the best pattern that has `bits` on the places `fixed`.
      for (auto& row : l.best) row.fill(INT64_MIN);
      for (unsigned q = 0; q < kLinePatterns; ++q)
        for (unsigned fixed = 0; fixed < kLinePatterns; ++fixed)
          l.best[fixed][q & fixed] = std::max(l.best[fixed][q & fixed], l.value[q]);
      l.fixed = l.bits = 0;
      bound += l.best[0][0];
    }
    best_ = known - 1;
    bestDown_ = 0;
    Walk(0, bound, 0);
    return bestDown_;
  }

 private:
  struct Line {
    int number;
    std::array<std::int64_t, kLinePatterns> value;
    std::array<std::array<std::int64_t, kLinePatterns>, kLinePatterns> best;
    unsigned fixed, bits;
  };
  struct Place {
    int line, j;
  };
  struct Var {
    int position;
    std::vector<Place> places;
  };

  void Walk(std::size_t i, std::int64_t bound, std::uint32_t down) {
    if (bound <= best_) return;
    if (i == vars_.size()) {
      best_ = bound;
      bestDown_ = down;
      return;
    }
    const Var& v = vars_[i];
    for (unsigned faceDown = 0; faceDown <= 1; ++faceDown) {
      std::int64_t b = bound;
      for (const Place& pl : v.places) {
        Line& l = lines_[static_cast<std::size_t>(pl.line)];
        b -= l.best[l.fixed][l.bits];
        l.fixed |= 1u << pl.j;
        l.bits |= faceDown << pl.j;
        b += l.best[l.fixed][l.bits];
      }
      Walk(i + 1, b, down | (faceDown << v.position));
      for (const Place& pl : v.places) {
        Line& l = lines_[static_cast<std::size_t>(pl.line)];
        l.fixed &= ~(1u << pl.j);
        l.bits &= ~(1u << pl.j);
      }
    }
  }

  std::vector<Var> vars_;
  std::vector<Line> lines_;
  std::int64_t best_ = 0;
  std::uint32_t bestDown_ = 0;
};

}  // namespace

GridChoice BestChoice(const GridOdds& odds) {
  // Lines fall into groups that share no position; each group is solved by itself.
  std::array<int, kGridLines + 1> group{};
  for (int line = 1; line <= odds.level; ++line) group[line] = line;
  const auto root = [&](int line) {
    while (group[line] != line) line = group[line];
    return line;
  };
  for (int a = 1; a <= odds.level; ++a)
    for (int b = a + 1; b <= odds.level; ++b) {
      bool share = false;
      for (int i = 0; i < 5; ++i)
        for (int j = 0; j < 5; ++j) share |= PositionSurLigne(a, i) == PositionSurLigne(b, j);
      if (share) group[root(b)] = root(a);
    }
  const std::uint32_t advice = AdviceChoice(odds).down;
  std::uint32_t down = 0;
  for (int r = 1; r <= odds.level; ++r) {
    if (root(r) != r) continue;
    std::vector<int> lines;
    for (int line = 1; line <= odds.level; ++line)
      if (root(line) == r) lines.push_back(line);
    Search search(odds, lines);
    const std::int64_t known = search.Value(search.Improve(advice));
    search.Balance(known);
    down |= search.Run(known);
  }
  return EvaluateChoice(odds, down);
}

Grid RandomGrid(std::mt19937_64& rng, int jokers) {
  std::array<Byte, 54> deck;
  const int n = 52 + jokers;
  for (int c = 0; c < n; ++c) deck[c] = static_cast<Byte>(c);
  Grid g;
  for (int i = 0; i < kGridPositions; ++i) {
    std::swap(deck[i], deck[i + static_cast<int>(rng() % static_cast<std::uint64_t>(n - i))]);
    g[i] = deck[i];
  }
  return g;
}

GridReturnResult GridReturn(int jokers, int level, std::int64_t deals, std::uint64_t seed, int threads,
                            const std::function<void(double)>& progress) {
  std::mt19937_64 rng(seed);
  std::vector<Grid> grids;
  for (std::int64_t i = 0; i < deals; ++i) grids.push_back(RandomGrid(rng, jokers));
  std::vector<std::array<double, 2>> returns(grids.size());
  GameClassifier::Get();
  std::atomic<std::size_t> next{0}, done{0};
  const auto work = [&](int) {
    for (std::size_t k; (k = next.fetch_add(1)) < grids.size(); done.fetch_add(1)) {
      const GridOdds o = AnalyseGrid(grids[k], jokers, level);
      returns[k] = {AdviceChoice(o).ev / level, BestChoice(o).ev / level};
    }
  };
  RunReporting(threads, work, done, grids.size(), progress);

  // Summed in the order of the grids, so that the figures do not depend on the threads.
  const auto estimate = [&](auto of) {
    Estimate e;
    if (returns.empty()) return e;
    double sum = 0, squares = 0;
    for (const auto& r : returns) sum += of(r);
    e.mean = sum / static_cast<double>(returns.size());
    for (const auto& r : returns) squares += (of(r) - e.mean) * (of(r) - e.mean);
    if (returns.size() > 1)
      e.error = std::sqrt(squares / static_cast<double>(returns.size() - 1) / static_cast<double>(returns.size()));
    return e;
  };
  GridReturnResult r;
  r.advice = estimate([](const std::array<double, 2>& x) { return x[0]; });
  r.best = estimate([](const std::array<double, 2>& x) { return x[1]; });
  r.difference = estimate([](const std::array<double, 2>& x) { return x[1] - x[0]; });
  return r;
}

}  // namespace odds
