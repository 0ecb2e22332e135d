#include "odds/engine.h"

#include <algorithm>
#include <bit>
#include <chrono>
#include <numeric>
#include <stdexcept>
#include <thread>

#include "core/evaluation.h"
#include "core/pay_tables.h"

namespace odds {

namespace {

struct BinomialTable {
  std::uint32_t c[55][6]{};
  constexpr BinomialTable() {
    for (int n = 0; n <= 54; ++n) {
      c[n][0] = 1;
      for (int k = 1; k <= 5; ++k) c[n][k] = n == 0 ? 0 : c[n - 1][k - 1] + c[n - 1][k];
    }
  }
};
constexpr BinomialTable kBinomial;

inline std::uint32_t C(int n, int k) { return kBinomial.c[n][k]; }

// Runs body(worker) on `threads` threads and waits for them.
void Parallel(int threads, const std::function<void(int)>& body) {
  threads = std::max(1, threads);
  std::vector<std::thread> pool;
  for (int t = 1; t < threads; ++t) pool.emplace_back(body, t);
  body(0);
  for (auto& th : pool) th.join();
}

Int128 Gcd(Int128 a, Int128 b) {
  if (a < 0) a = -a;
  if (b < 0) b = -b;
  while (b != 0) {
    const Int128 t = a % b;
    a = b;
    b = t;
  }
  return a;
}

// a/b with a and b above the range of a double's exact integers.
double Ratio(Int128 a, Int128 b) {
  return static_cast<double>(static_cast<long double>(a) / static_cast<long double>(b));
}

}  // namespace

std::uint32_t Binomial(int n, int k) { return n < 0 || n > 54 || k < 0 || k > 5 ? 0 : C(n, k); }

std::uint32_t ColexIndex(const Byte* ascending, int size) {
  std::uint32_t idx = 0;
  for (int i = 0; i < size; ++i) idx += C(ascending[i], i + 1);
  return idx;
}

PayTable PayTableClassic(int jokers) {
  PayTable t{};
  for (int c = 0; c < 10; ++c) t[c] = GainClassique(jokers, c);
  return t;
}

// ---------------------------------------------------------------------------------------------
// GameClassifier

const GameClassifier& GameClassifier::Get() {
  static const GameClassifier instance;
  return instance;
}

void GameClassifier::Insert(std::uint64_t key, Byte cls) {
  std::size_t h = static_cast<std::size_t>((key * 0x9E3779B97F4A7C15ull) >> (64 - kBits));
  while (keys_[h] != 0 && keys_[h] != key) h = (h + 1) & (kSize - 1);
  keys_[h] = key;
  classes_[h] = cls;
}

GameClassifier::GameClassifier() : keys_(kSize, 0), classes_(kSize, 0) {
  // Every multiset of three to five ranks (at most four of a rank), completed by jokers to
  // five cards; one hand of each pattern is evaluated, with its cards in two suits at least,
  // and, when the ranks differ, with them all in one suit.
  std::array<int, 13> count{};
  std::function<void(int, int)> walk = [&](int rank, int cards) {
    if (rank == 13) {
      if (cards < 3) return;
      const int jokers = 5 - cards;
      Hand hand{};
      int k = 0;
      std::uint64_t terms = 0;
      bool distinct = true;
      for (int r = 0; r < 13; ++r) {
        for (int s = 0; s < count[r]; ++s) {
          hand[k++] = static_cast<Byte>(13 * s + r);
          terms += Term(r);
        }
        if (count[r] > 1) distinct = false;
      }
      for (int j = 0; j < jokers; ++j) {
        hand[k++] = static_cast<Byte>(52 + j);
        terms += kJokerTerm;
      }
      if (distinct) {
        Insert(terms | kFlush, ClasseMain(hand));                   // all in clubs
        hand[cards - 1] = static_cast<Byte>(hand[cards - 1] + 13);  // the last one in diamonds
      }
      Insert(terms, ClasseMain(hand));
      return;
    }
    for (int c = 0; c <= 4 && cards + c <= 5; ++c) {
      count[rank] = c;
      walk(rank + 1, cards + c);
    }
    count[rank] = 0;
  };
  walk(0, 0);
}

Byte GameClassifier::Classify(const Hand& hand) const {
  std::uint64_t terms = 0;
  unsigned suits = 0;
  for (Byte c : hand) {
    terms += Term(c);
    suits |= SuitBit(c);
  }
  return Classify(terms, suits);
}

// ---------------------------------------------------------------------------------------------
// Classes of every hand

std::vector<Byte> GameHandClasses(int deckSize) {
  const GameClassifier& g = GameClassifier::Get();
  std::vector<Byte> out(C(deckSize, 5));
  const int threads = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  // Hands in colex order: the highest card outermost, the index then runs on by one.
  Parallel(threads, [&](int worker) {
    for (int c4 = 4 + worker; c4 < deckSize; c4 += threads) {
      std::uint32_t idx = C(c4, 5);
      const std::uint64_t t4 = GameClassifier::Term(c4);
      const unsigned s4 = GameClassifier::SuitBit(c4);
      for (int c3 = 3; c3 < c4; ++c3) {
        const std::uint64_t t3 = t4 + GameClassifier::Term(c3);
        const unsigned s3 = s4 | GameClassifier::SuitBit(c3);
        for (int c2 = 2; c2 < c3; ++c2) {
          const std::uint64_t t2 = t3 + GameClassifier::Term(c2);
          const unsigned s2 = s3 | GameClassifier::SuitBit(c2);
          for (int c1 = 1; c1 < c2; ++c1) {
            const std::uint64_t t1 = t2 + GameClassifier::Term(c1);
            const unsigned s1 = s2 | GameClassifier::SuitBit(c1);
            for (int c0 = 0; c0 < c1; ++c0)
              out[idx++] = g.Classify(t1 + GameClassifier::Term(c0), s1 | GameClassifier::SuitBit(c0));
          }
        }
      }
    }
  });
  return out;
}

// Calls visit(hand) for every five-card set of a deck of n cards, in colex order (the order of
// the hands' ranks in the tables).
template <class Visit>
void ForEachHand(int n, Visit&& visit) {
  for (int c4 = 4; c4 < n; ++c4)
    for (int c3 = 3; c3 < c4; ++c3)
      for (int c2 = 2; c2 < c3; ++c2)
        for (int c1 = 1; c1 < c2; ++c1)
          for (int c0 = 0; c0 < c1; ++c0)
            visit(Hand{static_cast<Byte>(c0), static_cast<Byte>(c1), static_cast<Byte>(c2), static_cast<Byte>(c3),
                       static_cast<Byte>(c4)});
}

std::vector<Byte> HandClasses(int deckSize, const std::function<int(const Hand&)>& classify) {
  std::vector<Byte> out(C(deckSize, 5));
  std::uint32_t idx = 0;
  ForEachHand(deckSize, [&](const Hand& h) { out[idx++] = static_cast<Byte>(classify(h)); });
  return out;
}

// ---------------------------------------------------------------------------------------------
// Tables

namespace {

// For the k-set X (ascending) the index of X + c for every card c not in X, through `visit`.
template <class Visit>
void ForEachSuperset(const int* x, int k, int n, Visit&& visit) {
  // prefix[t] = sum of C(x_i, i+1) for i < t; suffix[t] = sum of C(x_i, i+2) for i >= t.
  std::uint32_t prefix[6] = {0}, suffix[6] = {0};
  for (int t = 0; t < k; ++t) prefix[t + 1] = prefix[t] + C(x[t], t + 1);
  for (int t = k - 1; t >= 0; --t) suffix[t] = suffix[t + 1] + C(x[t], t + 2);
  int lo = 0;
  for (int t = 0; t <= k; ++t) {
    const int hi = t < k ? x[t] : n;
    const std::uint32_t base = prefix[t] + suffix[t];
    for (int c = lo; c < hi; ++c) visit(base + C(c, t + 1));
    lo = hi + 1;
  }
}

// T_k from T_k+1: every hand containing X contains 5 - k sets X + c.
template <class Upper>
std::vector<Counts> Reduce(int n, int k, const std::vector<Upper>& upper) {
  std::vector<Counts> out(C(n, k));
  int x[5];
  for (int i = 0; i < k; ++i) x[i] = i;
  for (std::uint32_t idx = 0; idx < out.size(); ++idx) {
    Counts sum{};
    ForEachSuperset(x, k, n, [&](std::uint32_t up) {
      for (int c = 0; c < kClasses; ++c) sum[c] += upper[up][c];
    });
    for (int c = 0; c < kClasses; ++c) out[idx][c] = sum[c] / static_cast<std::uint32_t>(5 - k);
    // The next set in colex order.
    int i = 0;
    while (i < k && x[i] + 1 == (i + 1 < k ? x[i + 1] : n)) ++i;
    if (i == k) break;
    ++x[i];
    for (int j = 0; j < i; ++j) x[j] = j;
  }
  return out;
}

}  // namespace

Tables::Tables(int deckSize, std::vector<Byte> handClasses) : n_(deckSize), classes5_(std::move(handClasses)) {
  if (classes5_.size() != C(n_, 5)) throw std::invalid_argument("hand classes of the wrong size");
  t4_.assign(C(n_, 4), {});
  const int threads = static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  Parallel(threads, [&](int worker) {
    for (int x3 = 3 + worker; x3 < n_; x3 += threads) {
      std::uint32_t idx = C(x3, 4);
      for (int x2 = 2; x2 < x3; ++x2)
        for (int x1 = 1; x1 < x2; ++x1)
          for (int x0 = 0; x0 < x1; ++x0) {
            const int x[4] = {x0, x1, x2, x3};
            auto& row = t4_[idx++];
            ForEachSuperset(x, 4, n_, [&](std::uint32_t up) { ++row[classes5_[up]]; });
          }
    }
  });
  t3_ = Reduce(n_, 3, t4_);
  t2_ = Reduce(n_, 2, t3_);
  t1_ = Reduce(n_, 1, t2_);
  t0_ = Reduce(n_, 0, t1_);
}

Tables Tables::ForGame(int jokers) { return Tables(52 + jokers, GameHandClasses(52 + jokers)); }

void Tables::Holds(const Hand& d, std::array<Counts, kHolds>& out) const {
  std::array<std::array<std::int32_t, kClasses>, kHolds> f;
  for (unsigned mask = 0; mask < kHolds; ++mask) {
    std::uint32_t idx = 0;
    int size = 0;
    for (int i = 0; i < 5; ++i)
      if (mask & (1u << i)) idx += C(d[i], ++size);
    auto& row = f[mask];
    switch (size) {
      case 0:
        for (int c = 0; c < kClasses; ++c) row[c] = static_cast<std::int32_t>(t0_[idx][c]);
        break;
      case 1:
        for (int c = 0; c < kClasses; ++c) row[c] = static_cast<std::int32_t>(t1_[idx][c]);
        break;
      case 2:
        for (int c = 0; c < kClasses; ++c) row[c] = static_cast<std::int32_t>(t2_[idx][c]);
        break;
      case 3:
        for (int c = 0; c < kClasses; ++c) row[c] = static_cast<std::int32_t>(t3_[idx][c]);
        break;
      case 4:
        for (int c = 0; c < kClasses; ++c) row[c] = t4_[idx][c];
        break;
      default: row.fill(0); row[classes5_[idx]] = 1;
    }
  }
  // Keep only the hands that contain no other dealt card.
  for (int b = 0; b < 5; ++b) {
    const unsigned bit = 1u << b;
    for (unsigned mask = 0; mask < kHolds; ++mask)
      if (!(mask & bit))
        for (int c = 0; c < kClasses; ++c) f[mask][c] -= f[mask | bit][c];
  }
  for (unsigned mask = 0; mask < kHolds; ++mask)
    for (int c = 0; c < kClasses; ++c) out[mask][c] = static_cast<std::uint32_t>(f[mask][c]);
}

// ---------------------------------------------------------------------------------------------
// Holds of one hand

namespace {

// True when hold a is better than hold b: a higher expected value, compared exactly.
bool Better(const Hold& a, const Hold& b) {
  const Int128 l = static_cast<Int128>(a.payout) * b.total;
  const Int128 r = static_cast<Int128>(b.payout) * a.total;
  return l != r ? l > r : a.held < b.held;
}

void Finish(std::vector<Hold>& holds, const PayTable& pay) {
  for (Hold& h : holds) {
    h.total = 0;
    h.payout = 0;
    for (int c = 0; c < kClasses; ++c) {
      h.total += h.counts[c];
      h.payout += static_cast<std::int64_t>(h.counts[c]) * pay[c];
    }
    h.ev = h.total ? static_cast<double>(h.payout) / h.total : 0;
  }
  std::sort(holds.begin(), holds.end(), Better);
}

}  // namespace

std::vector<Hold> AnalyseHand(const Tables& tables, const PayTable& pay, const Hand& hand) {
  // Sort the cards, remembering where each one lies.
  std::array<int, 5> order = {0, 1, 2, 3, 4};
  std::sort(order.begin(), order.end(), [&](int a, int b) { return hand[a] < hand[b]; });
  Hand sorted;
  for (int i = 0; i < 5; ++i) sorted[i] = hand[order[i]];
  std::array<Counts, kHolds> counts;
  tables.Holds(sorted, counts);
  std::vector<Hold> holds(kHolds);
  for (unsigned mask = 0; mask < kHolds; ++mask) {
    unsigned held = 0;
    for (int i = 0; i < 5; ++i)
      if (mask & (1u << i)) held |= 1u << order[i];
    holds[mask].held = held;
    holds[mask].counts = counts[mask];
  }
  Finish(holds, pay);
  return holds;
}

namespace {

struct Walk {
  const GameClassifier* g;
  const std::uint64_t* terms;  // of the cards left in the deck
  const unsigned* suits;
  int left;

  template <int Depth>
  void Run(int start, std::uint64_t t, unsigned s, Counts& out) const {
    if constexpr (Depth == 0) {
      ++out[g->Classify(t, s)];
    } else {
      for (int i = start; i <= left - Depth; ++i) Run<Depth - 1>(i + 1, t + terms[i], s | suits[i], out);
    }
  }
};

}  // namespace

std::vector<Hold> AnalyseHandDirect(int jokers, const PayTable& pay, const Hand& hand, int threads) {
  const int n = 52 + jokers;
  std::uint64_t terms[54];
  unsigned suits[54];
  int left = 0;
  for (int c = 0; c < n; ++c) {
    if (std::find(hand.begin(), hand.end(), c) != hand.end()) continue;
    terms[left] = GameClassifier::Term(c);
    suits[left] = GameClassifier::SuitBit(c);
    ++left;
  }
  const Walk walk{&GameClassifier::Get(), terms, suits, left};

  // One piece of work: a hold and the first card drawn (or the hold alone when it keeps all).
  struct Item {
    unsigned held;
    int first;
  };
  std::vector<Item> items;
  for (unsigned held = 0; held < kHolds; ++held) {
    const int draw = 5 - std::popcount(held);
    if (draw == 0) {
      items.push_back({held, -1});
    } else {
      for (int i = 0; i <= left - draw; ++i) items.push_back({held, i});
    }
  }
  // The biggest pieces first, so that the threads finish together.
  std::stable_sort(items.begin(), items.end(), [&](const Item& a, const Item& b) {
    const auto size = [&](const Item& it) {
      const int draw = 5 - std::popcount(it.held);
      return draw == 0 ? 1u : C(left - it.first - 1, draw - 1);
    };
    return size(a) > size(b);
  });

  threads = std::max(1, threads);
  std::vector<std::array<Counts, kHolds>> partial(static_cast<std::size_t>(threads));
  std::atomic<std::size_t> next{0};
  Parallel(threads, [&](int worker) {
    auto& mine = partial[static_cast<std::size_t>(worker)];
    for (auto& c : mine) c.fill(0);
    for (std::size_t k; (k = next.fetch_add(1)) < items.size();) {
      const Item& it = items[k];
      std::uint64_t t = 0;
      unsigned s = 0;
      for (int p = 0; p < 5; ++p) {
        if (it.held & (1u << p)) {
          t += GameClassifier::Term(hand[p]);
          s |= GameClassifier::SuitBit(hand[p]);
        }
      }
      Counts& out = mine[it.held];
      if (it.first >= 0) {
        t += terms[it.first];
        s |= suits[it.first];
      }
      switch (5 - std::popcount(it.held)) {
        case 0: walk.Run<0>(0, t, s, out); break;
        case 1: walk.Run<0>(0, t, s, out); break;
        case 2: walk.Run<1>(it.first + 1, t, s, out); break;
        case 3: walk.Run<2>(it.first + 1, t, s, out); break;
        case 4: walk.Run<3>(it.first + 1, t, s, out); break;
        default: walk.Run<4>(it.first + 1, t, s, out);
      }
    }
  });
  std::vector<Hold> holds(kHolds);
  for (unsigned held = 0; held < kHolds; ++held) {
    holds[held].held = held;
    for (const auto& p : partial)
      for (int c = 0; c < kClasses; ++c) holds[held].counts[c] += p[held][c];
  }
  Finish(holds, pay);
  return holds;
}

// ---------------------------------------------------------------------------------------------
// Return

namespace {

// The ranks of each suit of a set of ordinary cards, from its bits (bit c = card c).
inline std::array<unsigned, 4> SuitMasks(std::uint64_t bits) {
  return {static_cast<unsigned>(bits & 0x1FFF), static_cast<unsigned>((bits >> 13) & 0x1FFF),
          static_cast<unsigned>((bits >> 26) & 0x1FFF), static_cast<unsigned>((bits >> 39) & 0x1FFF)};
}

struct Canonical {
  Hand deal;
  std::uint32_t weight;  // the number of deals it stands for
};

// One deal for each class of deals under the exchange of suits: the deal whose suits have
// decreasing sets of ranks. Its class has 24 / (product of k! over k equal sets) deals.
std::vector<Canonical> CanonicalDeals(int n) {
  std::vector<Canonical> out;
  ForEachHand(n, [&](const Hand& h) {
    std::uint64_t bits = 0;
    for (Byte c : h)
      if (c < 52) bits |= std::uint64_t{1} << c;
    const auto m = SuitMasks(bits);
    if (m[0] < m[1] || m[1] < m[2] || m[2] < m[3]) return;
    std::uint32_t stabiliser = 1;
    for (int i = 0, run = 1; i < 4; ++i) {
      run = i > 0 && m[i] == m[i - 1] ? run + 1 : 1;
      stabiliser *= static_cast<std::uint32_t>(run);
    }
    out.push_back({h, 24 / stabiliser});
  });
  return out;
}

struct Accumulator {
  Int128 payout = 0;  // sum of weight * payout * (lcm / total)
  std::array<Int128, kClasses> classes{};

  void Add(std::uint32_t weight, const Counts& counts, std::int64_t payout_, std::int64_t scale) {
    payout += static_cast<Int128>(weight) * payout_ * scale;
    for (int c = 0; c < kClasses; ++c) classes[c] += static_cast<Int128>(weight) * counts[c] * scale;
  }
  void Merge(const Accumulator& o) {
    payout += o.payout;
    for (int c = 0; c < kClasses; ++c) classes[c] += o.classes[c];
  }
};

Figures MakeFigures(const Accumulator& a, Int128 denominator) {
  Figures f;
  const Int128 g = Gcd(a.payout, denominator);
  f.numerator = a.payout / g;
  f.denominator = denominator / g;
  f.ret = Ratio(a.payout, denominator);
  for (int c = 0; c < kClasses; ++c) f.classes[c] = Ratio(a.classes[c], denominator);
  return f;
}

}  // namespace

Hand CanonicalDeal(const Hand& deal) {
  std::uint64_t bits = 0;
  for (Byte c : deal)
    if (c < 52) bits |= std::uint64_t{1} << c;
  auto m = SuitMasks(bits);
  std::sort(m.begin(), m.end(), std::greater<>());
  Hand out{};
  int k = 0;
  for (int s = 0; s < 4; ++s)
    for (int r = 0; r < 13; ++r)
      if (m[s] & (1u << r)) out[k++] = static_cast<Byte>(13 * s + r);
  for (Byte c : deal)
    if (c >= 52) out[k++] = c;
  std::sort(out.begin(), out.end());
  return out;
}

ReturnResult ComputeReturn(const Tables& tables, const PayTable& pay, const Selection& automatic, int threads,
                           const std::function<void(double)>& progress) {
  const int n = tables.DeckSize();
  const int left = n - 5;
  ReturnResult result;
  result.deckSize = n;
  result.deals = C(n, 5);
  result.hasAutomatic = static_cast<bool>(automatic);

  // Expected values are compared and added over one common denominator: the least common
  // multiple of the numbers of draws of the holds.
  std::int64_t lcm = 1;
  for (int k = 0; k <= 5; ++k) lcm = std::lcm(lcm, static_cast<std::int64_t>(C(left, k)));
  std::int64_t scale[6];  // by number of cards drawn
  for (int k = 0; k <= 5; ++k) scale[k] = lcm / C(left, k);

  const std::vector<Canonical> deals = CanonicalDeals(n);
  result.canonicalDeals = static_cast<std::int64_t>(deals.size());

  threads = std::max(1, threads);
  std::vector<Accumulator> perfect(static_cast<std::size_t>(threads)), chosen(static_cast<std::size_t>(threads));
  std::atomic<std::size_t> next{0};
  std::atomic<std::size_t> done{0};
  constexpr std::size_t kChunk = 256;
  auto work = [&](int worker) {
    std::array<Counts, kHolds> counts;
    std::int64_t payout[kHolds];
    for (std::size_t start; (start = next.fetch_add(kChunk)) < deals.size();) {
      const std::size_t end = std::min(deals.size(), start + kChunk);
      for (std::size_t k = start; k < end; ++k) {
        const Canonical& d = deals[k];
        tables.Holds(d.deal, counts);
        unsigned best = 0;
        std::int64_t bestValue = -1;
        for (unsigned mask = 0; mask < kHolds; ++mask) {
          std::int64_t p = 0;
          for (int c = 0; c < kClasses; ++c) p += static_cast<std::int64_t>(counts[mask][c]) * pay[c];
          payout[mask] = p;
          const std::int64_t value = p * scale[5 - std::popcount(mask)];
          if (value > bestValue) {
            bestValue = value;
            best = mask;
          }
        }
        perfect[static_cast<std::size_t>(worker)].Add(d.weight, counts[best], payout[best],
                                                      scale[5 - std::popcount(best)]);
        if (automatic) {
          const unsigned a = automatic(d.deal) & (kHolds - 1);
          chosen[static_cast<std::size_t>(worker)].Add(d.weight, counts[a], payout[a], scale[5 - std::popcount(a)]);
        }
      }
      done.fetch_add(end - start);
    }
  };
  RunReporting(threads, work, done, deals.size(), progress);

  for (int t = 1; t < threads; ++t) {
    perfect[0].Merge(perfect[static_cast<std::size_t>(t)]);
    chosen[0].Merge(chosen[static_cast<std::size_t>(t)]);
  }
  const Int128 denominator = static_cast<Int128>(lcm) * result.deals;
  result.perfect = MakeFigures(perfect[0], denominator);
  if (automatic) result.automatic = MakeFigures(chosen[0], denominator);
  return result;
}

void RunReporting(int threads, const std::function<void(int)>& work, const std::atomic<std::size_t>& done,
                  std::size_t total, const std::function<void(double)>& progress) {
  threads = std::max(1, threads);
  std::atomic<int> running{threads};
  std::vector<std::thread> pool;
  for (int t = 0; t < threads; ++t)
    pool.emplace_back([&, t] {
      work(t);
      running.fetch_sub(1);
    });
  if (progress) {
    while (running.load() > 0) {
      progress(static_cast<double>(done.load()) / static_cast<double>(total));
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    progress(1.0);
  }
  for (auto& th : pool) th.join();
}

std::string ToString(Int128 v) {
  if (v == 0) return "0";
  const bool negative = v < 0;
  if (negative) v = -v;
  std::string s;
  while (v > 0) {
    s += static_cast<char>('0' + static_cast<int>(v % 10));
    v /= 10;
  }
  if (negative) s += '-';
  std::reverse(s.begin(), s.end());
  return s;
}

}  // namespace odds
