// Three of a kind and two pairs. A kicker is always a natural card; a three of a kind of
// two jokers and three different natural cards can also be a straight or a flush, which
// the three of a kind count then gives back.
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <vector>

#include "interface/JeuPoker.h"
#include "probability/spans.h"

namespace {
long long C2(long long n) { return n * (n - 1) / 2; }

// The straights of one held natural rank a with two jokers: the rank pairs x-y that
// complete it, with how many times each is taken off.
struct Entrée {
  int x, y, fois;
};

const std::vector<Entrée>& ListeUnRang(int a) {
  static const std::vector<std::vector<Entrée>> listes = [] {
    static const char* const texte[13] = {
        "1-2x2 1-3x3 1-4 1-12 2-3 2-4 2-12 3-4 3-12",
        "0-2x3 0-3x3 0-4x2 0-12 2-3x3 2-4x2 2-5 2-12 3-4x2 3-5 3-12 4-5",
        "0-1x3 0-3x3 0-4x2 0-12 1-3x4 1-4x3 1-5x2 1-12 3-4x3 3-5x2 3-6 3-12 4-5x2 4-6 5-6",
        "0-1x3 0-2x3 0-4x2 0-12 1-2x4 1-4x3 1-5x2 1-12 2-4x4 2-5x3 2-6x2 2-12 4-5x3 4-6x2 4-7 5-6x2 5-7 6-7",
        "0-1 0-2 0-3 1-2x2 1-3x2 1-5x2 2-3x3 2-5x3 2-6x2 3-5x4 3-6x3 3-7x2 5-6x3 5-7x2 5-8 6-7x2 6-8 7-8",
        "1-2 1-3 1-4 2-3x2 2-4x2 2-6x2 3-4x3 3-6x3 3-7x2 4-6x4 4-7x3 4-8x2 6-7x3 6-8x2 6-9 7-8x2 7-9 8-9",
        "2-3 2-4 2-5 3-4x2 3-5x2 3-7x2 4-5x3 4-7x3 4-8x2 5-7x4 5-8x3 5-9x2 7-8x3 7-9x2 7-10 8-9x2 8-10 9-10",
        "3-4 3-5 3-6 4-5x2 4-6x2 4-8x2 5-6x3 5-8x3 5-9x2 6-8x4 6-9x3 6-10x2 8-9x3 8-10x2 8-11 9-10x2 9-11 10-11",
        "4-5 4-6 4-7 5-6x2 5-7x2 5-9x2 6-7x3 6-9x3 6-10x2 7-9x4 7-10x3 7-11x2 9-10x3 9-11x2 9-12 10-11x2 10-12 11-12",
        "6-7 6-8 6-10 7-8x2 7-10x2 7-11 8-10x3 8-11x2 8-12 10-11x2 10-12 11-12",
        "7-8 7-9 7-11 8-9x2 8-11x2 8-12 9-11x2 9-12 11-12",
        "8-9 8-10 8-12 9-10 9-12 10-12",
        "0-1 0-2 0-3 1-2 1-3 2-3 8-9 8-10 8-11 9-10 9-11 10-11",
    };
    std::vector<std::vector<Entrée>> l(13);
    for (int a = 0; a < 13; ++a) {
      const QStringList items = QString::fromLatin1(texte[a]).split(' ');
      for (const QString& it : items) {
        const QStringList fois = it.split('x');
        const QStringList xy = fois[0].split('-');
        l[static_cast<std::size_t>(a)].push_back({xy[0].toInt(), xy[1].toInt(), fois.size() > 1 ? fois[1].toInt() : 1});
      }
    }
    return l;
  }();
  return listes[static_cast<std::size_t>(a)];
}

// The ten runs of five ranks: ace to five, then two to six .. ten to ace.
constexpr prob::RankSet kRuns[10] = {0x100F, 0x001F, 0x003E, 0x007C, 0x00F8, 0x01F0, 0x03E0, 0x07C0, 0x0F80, 0x1F00};
}  // namespace

void JeuPoker::ProbPaires2() {
  const int H = NbGardées;
  if (H == 5) {
    // Five held: the hand itself, when it is two pairs.
    if (RangMain == 1) Réalisations(1) = 1;
    return;
  }
  // No two pairs with a joker held (it makes a full house), three of a rank or four ranks held.
  if (NbJokersGardés != 0) return;
  int distincts = 0;
  for (int v = 0; v <= 12; ++v) {
    if (GardéesValeur(v) > 2) return;
    if (GardéesValeur(v) > 0) ++distincts;
  }
  if (H == 4 && distincts == 4) return;

  static const vb::Array<Integer, 0, 4> c2 = [] {
    vb::Array<Integer, 0, 4> t;
    t(2) = 1;
    t(3) = 3;
    t(4) = 6;
    return t;
  }();
  auto P = [this](int v) -> long long { return RestantsParValeur(v); };
  auto C = [&](int v) -> long long { return c2(RestantsParValeur(v)); };
  const long long N = TailleJeu - 5 - JokersRestants;
  std::vector<int> simples, paires;
  for (int v = 0; v <= 12; ++v) {
    if (GardéesValeur(v) == 1) simples.push_back(v);
    if (GardéesValeur(v) == 2) paires.push_back(v);
  }
  auto libre = [&](int v) { return GardéesValeur(v) == 0; };
  long long total = 0;

  if (H == 0) {
    // Nothing held: pairs of two ranks and a fifth card of a third.
    for (int v = 0; v <= 12; ++v)
      for (int w = v + 1; w <= 12; ++w) total += C(v) * C(w) * (N - P(v) - P(w));
  } else if (H == 1) {
    // One card: one more of it with a pair and a fifth card, or two pairs of other ranks.
    const int a = simples[0];
    for (int v = 0; v <= 12; ++v)
      if (libre(v)) total += P(a) * C(v) * (N - P(a) - P(v));
    for (int v = 0; v <= 12; ++v)
      for (int w = v + 1; w <= 12; ++w)
        if (libre(v) && libre(w)) total += C(v) * C(w);
  } else if (H == 2 && simples.size() == 2) {
    // Two ranks: one more of each and a fifth card, or one more of either and a pair.
    const int a = simples[0], b = simples[1];
    total += P(a) * P(b) * (N - P(a) - P(b));
    for (int v = 0; v <= 12; ++v) {
      if (!libre(v)) continue;
      total += P(a) * C(v);
      total += P(b) * C(v);
    }
  } else if (H == 2) {
    // A pair: a pair of another rank and a fifth card.
    const int a = paires[0];
    for (int v = 0; v <= 12; ++v)
      if (libre(v)) total += C(v) * (N - P(a) - P(v));
  } else if (H == 3 && simples.size() == 3) {
    // Three ranks: one more of two of them.
    const int a = simples[0], b = simples[1], c = simples[2];
    total += P(a) * P(b) + P(a) * P(c) + P(b) * P(c);
  } else if (H == 3) {
    // A pair and a single: one more of the single and a fifth card, or a pair of another rank.
    const int a = paires[0], b = simples[0];
    total += P(b) * (N - P(a) - P(b));
    for (int v = 0; v <= 12; ++v)
      if (libre(v)) total += C(v);
  } else if (H == 4 && paires.size() == 1) {
    // A pair and two singles: one more of either single.
    total += P(simples[0]) + P(simples[1]);
  } else if (H == 4) {
    // Two pairs: any natural card of a third rank.
    Réalisations(1) = vb::CLng(N - P(paires[0]) - P(paires[1]));
    return;
  }
  Réalisations(1) = vb::CLng(total);
}

void JeuPoker::ProbBrelan() {
  TotalRoiOuAs = 0;
  const int H = NbGardées;
  if (H == 5) {
    // Five held: the hand itself, when it is three of a kind.
    if (RangMain == 2) Réalisations(2) = 1;
    return;
  }
  const int K = NbJokersGardés;
  const long long J = JokersRestants;
  const long long T = TailleJeu;
  static const vb::Array<Integer, 0, 6> combinaisons2 = [] {
    vb::Array<Integer, 0, 6> t;
    const int v[7] = {0, 0, 1, 3, 6, 10, 15};
    for (int i = 0; i <= 6; ++i) t(i) = static_cast<Integer>(v[i]);
    return t;
  }();
  static const vb::Array<Integer, 0, 6> combinaisons3 = [] {
    vb::Array<Integer, 0, 6> t;
    const int v[7] = {0, 0, 0, 1, 4, 10, 20};
    for (int i = 0; i <= 6; ++i) t(i) = static_cast<Integer>(v[i]);
    return t;
  }();
  auto R = [this](int v) -> long long { return RestantsValeur(v); };
  auto P = [this](int v) -> long long { return RestantsParValeur(v); };
  auto C2R = [&](int v) -> long long { return combinaisons2(RestantsValeur(v)); };
  auto C3R = [&](int v) -> long long { return combinaisons3(RestantsValeur(v)); };
  const long long N = T - 5 - J;
  long long sommePaires = 0;
  for (int v = 0; v <= 12; ++v) sommePaires += combinaisons2(RestantsParValeur(v));
  // Two natural cards, neither of rank v, that do not pair each other.
  auto kickers = [&](int v) -> long long { return C2(N - P(v)) - (sommePaires - combinaisons2(RestantsParValeur(v))); };

  std::vector<int> rangs, nombres;
  for (int v = 0; v <= 12; ++v) {
    if (GardéesValeur(v) > 0) {
      rangs.push_back(v);
      nombres.push_back(GardéesValeur(v));
    }
  }
  const std::size_t n = rangs.size();
  auto seul = [&](int nb) {  // the held rank held nb times, when there is one
    for (std::size_t i = 0; i < n; ++i)
      if (nombres[i] == nb) return rangs[i];
    return -1;
  };
  long long total = 0;

  if (H == 0) {
    // Nothing held: three of a rank, jokers among them, and two kickers.
    for (int v = 0; v <= 12; ++v) total += kickers(v) * C3R(v);
  } else if (H == 1 && K == 0) {
    // A natural: two more of its rank and two kickers, or three of another rank and a kicker.
    const int a = rangs[0];
    total += kickers(a) * C2R(a);
    for (int v = 0; v <= 12; ++v)
      if (v != a) total += C3R(v) * (N - P(v) - P(a));
  } else if (H == 1 && K == 1) {
    // A joker: two of a rank and two kickers.
    for (int v = 0; v <= 12; ++v) total += kickers(v) * C2R(v);
  } else if (H == 2 && K == 0 && n == 2) {
    // Two ranks: two more of either and a kicker, or three of another rank.
    const int a = rangs[0], b = rangs[1];
    const long long F = N - P(a) - P(b);
    total += C2R(a) * F;
    total += C2R(b) * F;
    for (int v = 0; v <= 12; ++v)
      if (v != a && v != b) total += C3R(v);
  } else if (H == 2 && K == 0) {
    // A pair: one more of its rank and two kickers.
    const int a = rangs[0];
    total += kickers(a) * R(a);
  } else if (H == 2 && K == 1) {
    // A natural and a joker: one more of its rank and two kickers, or a pair of another and a kicker.
    const int a = rangs[0];
    total += kickers(a) * R(a);
    for (int v = 0; v <= 12; ++v)
      if (v != a) total += C2R(v) * (N - P(v) - P(a));
  } else if (H == 2 && K == 2) {
    // Both jokers: two kickers (the driver gives the class what the better ones leave).
    for (int v = 0; v <= 12; ++v) total += kickers(v);
  } else if (H == 3 && K == 0) {
    if (n == 3) {
      // Three ranks: two more of one of them.
      total += C2R(rangs[0]) + C2R(rangs[1]) + C2R(rangs[2]);
    } else if (n == 2) {
      // A pair and a single: one more of the pair's rank and a kicker.
      const int a = seul(2), b = seul(1);
      total += R(a) * (N - P(a) - P(b));
    } else {
      // Three of a rank: two kickers.
      total += kickers(rangs[0]);
    }
  } else if (H == 3 && K == 1) {
    if (n == 2) {
      // Two ranks and a joker: a pair of another rank, or one more of either and a kicker.
      const int a = rangs[0], b = rangs[1];
      // The jokers stay among the kickers here.
      const long long F = T - 5 - P(a) - P(b);
      for (int v = 0; v <= 12; ++v)
        if (v != a && v != b) total += C2R(v);
      total += R(a) * F;
      total += R(b) * F;
    } else {
      // A pair and a joker: two kickers.
      total += kickers(rangs[0]);
    }
  } else if (H == 3 && K == 2) {
    // A natural and both jokers: two kickers.
    total += kickers(rangs[0]);
  } else if (H == 4 && K == 0) {
    if (n == 2 && seul(3) >= 0) {
      // Three of a rank and a single: a kicker.
      total += N - P(seul(3)) - P(seul(1));
    } else if (n == 3) {
      // A pair and two singles: one more of the pair's rank.
      total += R(seul(2));
    }
  } else if (H == 4 && K == 1) {
    if (n == 3) {
      // Three ranks and a joker: one more of any of them, or the other joker.
      total += P(rangs[0]) + P(rangs[1]) + P(rangs[2]) + J;
    } else if (n == 2 && seul(2) >= 0) {
      // A pair, a single and a joker: a kicker.
      total += N - P(seul(2)) - P(seul(1));
    }
  } else if (H == 4 && K == 2) {
    // Two naturals and both jokers: a kicker.
    if (n == 2) total += N - P(rangs[0]) - P(rangs[1]);
  }
  TotalRoiOuAs = static_cast<double>(total);

  Réalisations(2) = vb::CLng(std::llround(TotalRoiOuAs));
  // Only two jokers beside three different natural cards make a straight or a flush of it.
  if (Réalisations(2) == 0 || K + J < 2) return;
  for (int v = 0; v <= 12; ++v)
    if (GardéesValeur(v) == 2) return;

  // Two jokers beside three different natural cards: the flushes come off.
  if (CouleurPossible) {
    if (H > 0 && Gardées(0) < 52) {
      // A natural card held: its suit, by what is held.
      const int s = CouleursGardées(0);
      long long nc = 13;
      for (int i = 0; i <= 4; ++i)
        if (CartesTirage(i) <= 51 && CartesTirage(i) / 13 == s) --nc;
      long long retire = 0;
      if (H == 1 && K == 0) retire = C2(nc);
      if (H == 2 && K == 0) retire = nc;
      if (H == 2 && K == 1) retire = C2(nc);
      if (H == 3 && K == 0) retire = 1;
      if (H == 3 && K == 1) retire = nc;
      if (H == 3 && K == 2) retire = C2(nc);
      if (H == 4 && K == 1) retire = 1;
      if (H == 4 && K == 2) retire = nc;
      TotalRoiOuAs -= static_cast<double>(retire);
    } else {
      // Nothing natural held: C(13, 3) for each of the four suits.
      TotalRoiOuAs -= 4 * 286.0;
    }
  }
  // The flushes reach the count only through the straights.
  if (!QuintePossible) return;

  prob::RankSet tenues = 0;
  for (int r : rangs) tenues = static_cast<prob::RankSet>(tenues | (1u << r));
  // Cards of each suit in the deck and held, as rank sets, for the straight flush test.
  std::array<prob::RankSet, 4> dansLeJeu{}, enMain{};
  for (int c = 0; c <= 3; ++c)
    for (int r = 0; r <= 12; ++r) {
      if (RestantsCouleurValeur(r, c) == 1)
        dansLeJeu[static_cast<std::size_t>(c)] |= static_cast<prob::RankSet>(1u << r);
      if (RestantsCouleurValeur(r, c) == 2) enMain[static_cast<std::size_t>(c)] |= static_cast<prob::RankSet>(1u << r);
    }
  std::array<long long, 13> p{};
  for (int r = 0; r <= 12; ++r) p[static_cast<std::size_t>(r)] = P(r);
  auto retire = [&](prob::RankSet s, long long fois) {
    const prob::RankSet tirées = static_cast<prob::RankSet>(s & ~tenues);
    long long produit = fois;
    for (prob::RankSet m = tirées; m != 0; m = static_cast<prob::RankSet>(m & (m - 1)))
      produit *= p[static_cast<std::size_t>(std::countr_zero(m))];
    TotalRoiOuAs -= static_cast<double>(produit);
    for (std::size_t c = 0; c <= 3; ++c)
      if ((tirées & ~dansLeJeu[c]) == 0 && (tenues & ~enMain[c]) == 0) TotalRoiOuAs += static_cast<double>(fois);
  };
  if (n == 0) {
    // Every three ranks of every run, once for each run that holds them.
    static const std::vector<std::pair<prob::RankSet, int>> trios = [] {
      std::vector<std::pair<prob::RankSet, int>> t;
      for (prob::RankSet run : kRuns)
        for (prob::RankSet s = run; s != 0; s = static_cast<prob::RankSet>((s - 1) & run)) {
          if (std::popcount(s) != 3) continue;
          auto it = std::find_if(t.begin(), t.end(), [s](const auto& e) { return e.first == s; });
          if (it == t.end())
            t.push_back({s, 1});
          else
            ++it->second;
        }
      return t;
    }();
    for (const auto& [s, fois] : trios) retire(s, fois);
  } else if (n == 1) {
    // One natural rank: its own listing of the ranks that complete it.
    const int a = rangs[0];
    for (const Entrée& e : ListeUnRang(a))
      retire(static_cast<prob::RankSet>((1u << a) | (1u << e.x) | (1u << e.y)), e.fois);
  } else if (n <= 3) {
    // Two or three natural ranks: every set of three in a run that holds them, once.
    for (prob::RankSet s : prob::Sets().bySize[3])
      if ((s & tenues) == tenues) retire(s, 1);
  }
  Réalisations(2) = vb::CLng(std::llround(TotalRoiOuAs));
}
