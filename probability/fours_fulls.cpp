// Four of a kind and full house: one closed product of remaining-card counts per shape of
// the held cards.
#include <vector>

#include "interface/JeuPoker.h"

namespace {
// The held natural ranks, each once, in ascending order, with how many of each are held.
struct Tenues {
  int rangs[5] = {};
  int nombres[5] = {};
  int n = 0;
};

Tenues RangsDistincts(JeuPoker& f) {
  Tenues t;
  for (int r = 0; r <= 12; ++r) {
    if (f.GardéesValeur(r) > 0) {
      t.rangs[t.n] = r;
      t.nombres[t.n] = f.GardéesValeur(r);
      ++t.n;
    }
  }
  return t;
}

// w(x) from three weights for x = hi, hi - 1, hi - 2; zero for any other value.
long long Poids(int x, int hi, long long w0, long long w1, long long w2) {
  if (x == hi) return w0;
  if (x == hi - 1) return w1;
  if (x == hi - 2) return w2;
  return 0;
}
}  // namespace

void JeuPoker::ProbCarré() {
  if (NbGardées == 5) {
    // Five held: the hand itself, when it is four of a kind.
    if (RangMain == 6) Réalisations(6) = 1;
    return;
  }
  const int H = NbGardées;
  const int K = NbJokersGardés;
  const int J = JokersRestants;
  const long long T = TailleJeu;
  auto R = [this](int v) -> int { return RestantsValeur(v); };
  auto E = [&](int v) -> long long { return T - 5 - R(v); };
  const Tenues t = RangsDistincts(*this);
  long long total = 0;

  if (H == 4) {
    for (int v = 0; v <= 12; ++v) {
      if (GardéesValeur(v) + K == 4) {
        // Four of a rank held, jokers among them: every draw but five of a kind.
        // Every draw but one that makes five of a kind.
        const int r = R(v);
        Réalisations(6) = vb::CLng(r == 2 ? T - 7 : r == 1 ? T - 6 : r == 0 ? T - 5 : 0);
        return;
      }
    }
  }

  if (H == 0) {
    // Nothing held: four of a rank, jokers among them, and a card of another rank.
    for (int v = 0; v <= 12; ++v) total += E(v) * Poids(R(v), 6, 15, 5, 1);
  } else if (H == 1 && K == 0) {
    // A natural: three more of its rank and another card, or four of another rank.
    const int a = t.rangs[0];
    total += E(a) * Poids(R(a), 5, 10, 6, 1);
    for (int v = 0; v <= 12; ++v)
      if (v != a) total += Poids(R(v), 6, 15, 5, 1);
  } else if (H == 1 && K == 1) {
    // A joker: three more of a rank and a card of another.
    for (int v = 0; v <= 12; ++v) total += E(v) * Poids(R(v), 5, 10, 5, 1);
  } else if (H == 2 && K == 0) {
    // Two ranks: three more of either; a pair: two more of it and another card.
    if (t.n == 2) {
      for (int i = 0; i < 2; ++i) total += Poids(R(t.rangs[i]), 5, 10, 4, 1);
    } else {
      const int a = t.rangs[0];
      total += E(a) * Poids(R(a), 4, 6, 3, 1);
    }
  } else if (H == 2 && K == 1) {
    // A natural and a joker: two more of its rank and another card, or three of another rank.
    const int a = t.rangs[0];
    total += E(a) * Poids(R(a), 4, 6, 3, 1);
    for (int v = 0; v <= 12; ++v)
      if (v != a) total += Poids(R(v) - J, 4, 10, 4, 1);
  } else if (H == 2 && K == 2) {
    // Both jokers: two of a rank and a card of another.
    for (int v = 0; v <= 12; ++v) total += E(v) * Poids(R(v), 4, 6, 3, 1);
  } else if (H == 3 && K == 0) {
    // Three naturals: a pair grows by two, three of a rank by one and another card; three
    // ranks make nothing.
    if (t.n == 2) {
      // A pair and another card: the pair can grow to four.
      const int a = t.nombres[0] == 2 ? t.rangs[0] : t.rangs[1];
      total += Poids(R(a), 4, 6, 3, 1);
    } else if (t.n == 1) {
      const int a = t.rangs[0];
      total += E(a) * Poids(R(a), 3, 3, 2, 1);
    }
  } else if (H == 3 && K == 1) {
    // Two ranks and a joker: two more of either; a pair and a joker: one more and another card.
    if (t.n == 2) {
      for (int i = 0; i < 2; ++i) total += Poids(R(t.rangs[i]), 4, 6, 3, 1);
    } else {
      const int a = t.rangs[0];
      total += E(a) * Poids(R(a), 3, 3, 2, 1);
    }
  } else if (H == 3 && K == 2) {
    // A natural and both jokers: one more of its rank and another card, or two of another rank.
    const int a = t.rangs[0];
    total += E(a) * Poids(R(a), 3, 3, 2, 1);
    for (int v = 0; v <= 12; ++v)
      if (v != a) total += Poids(R(v), 4, 6, 3, 2);
  } else if (H == 4 && K == 0) {
    // Three of a rank and another card: the fourth of the rank.
    if (t.n == 2 && (t.nombres[0] == 3 || t.nombres[1] == 3)) {
      const int a = t.nombres[0] == 3 ? t.rangs[0] : t.rangs[1];
      total += Poids(R(a), 3, 3, 2, 1);
    }
  } else if (H == 4 && K == 1) {
    // A pair, a joker and another card: one more of the pair's rank.
    if (t.n == 2 && (t.nombres[0] == 2 || t.nombres[1] == 2)) {
      const int a = t.nombres[0] == 2 ? t.rangs[0] : t.rangs[1];
      total += Poids(R(a), 3, 3, 2, 1);
    }
  } else if (H == 4 && K == 2) {
    // Two naturals and both jokers: one more of either rank.
    if (t.n == 2)
      for (int i = 0; i < 2; ++i) total += Poids(R(t.rangs[i]), 3, 3, 2, 0);
  }
  Réalisations(6) = vb::CLng(total);
}

void JeuPoker::ProbFull() {
  if (NbGardées == 5) {
    // Five held: the hand itself, when it is a full house.
    if (RangMain == 5) Réalisations(5) = 1;
    return;
  }
  const int H = NbGardées;
  const int K = NbJokersGardés;
  const long long J = JokersRestants;
  // No full house with both jokers held (any pair makes four), three ranks held, or four of a
  // rank.
  if (K == 2) return;
  if (H >= 3 && K == 0 && Gardées(0) < Gardées(1) && Gardées(1) < Gardées(2)) return;
  for (int v = 0; v <= 12; ++v)
    if (GardéesValeur(v) > 3 || GardéesValeur(v) + K > 3) return;

  vb::Array<Integer, 0, 12> pairesValeur;
  vb::Array<Integer, 0, 12> triplesValeur;
  long long sommePaires = 0, sommeTriples = 0;
  for (int v = 0; v <= 12; ++v) {
    const int r = RestantsParValeur(v);
    pairesValeur(v) = vb::CInt(r == 2 ? 1 : r == 3 ? 3 : r == 4 ? 6 : 0);
    triplesValeur(v) = vb::CInt(r == 2 ? J : r == 3 ? 3 * J + 1 : r == 4 ? 6 * J + 4 : 0);
    sommePaires += pairesValeur(v);
    sommeTriples += triplesValeur(v);
  }
  auto P = [this](int v) -> long long { return RestantsParValeur(v); };
  const Tenues t = RangsDistincts(*this);
  long long total = 0;

  if (H == 0) {
    // Nothing held: three of a rank, jokers among them, and a pair of another.
    for (int v = 0; v <= 12; ++v) total += (sommePaires - pairesValeur(v)) * triplesValeur(v);
  } else if (H == 1 && K == 0) {
    // A natural: two more of its rank and a pair of another, or one more and three of another.
    const int a = t.rangs[0];
    total += (sommePaires - pairesValeur(a)) * pairesValeur(a);
    total += (sommeTriples - triplesValeur(a)) * P(a);
  } else if (H == 1 && K == 1) {
    // A joker: two pairs, each order of the two ranks counted.
    for (int v = 0; v <= 12; ++v) total += (sommePaires - pairesValeur(v)) * pairesValeur(v);
  } else if (H == 2 && K == 0) {
    if (t.n == 1) {
      // A pair: one more of its rank and a pair of another, or three of another rank.
      const int a = t.rangs[0];
      total += (sommePaires - pairesValeur(a)) * P(a);
      total += sommeTriples - triplesValeur(a);
    } else {
      // Two ranks: two more of one and one of the other, or one of each and a joker.
      const int a = t.rangs[0], b = t.rangs[1];
      total += P(b) * pairesValeur(a);
      total += J * P(a) * P(b);
      total += P(a) * pairesValeur(b);
    }
  } else if (H == 2 && K == 1) {
    // A natural and a joker: one more of its rank and a pair of another.
    const int a = t.rangs[0];
    total += (sommePaires - pairesValeur(a)) * P(a);
  } else if (H == 3 && K == 0) {
    if (t.n == 1) {
      // Three of a rank: a pair of another.
      const int a = t.rangs[0];
      total += sommePaires - pairesValeur(a);
    } else if (t.n == 2) {
      // A pair and a single: one more of each (a joker with the single is left out), or two of
      // the single.
      const int a = t.nombres[0] == 2 ? t.rangs[0] : t.rangs[1];
      const int b = t.nombres[0] == 2 ? t.rangs[1] : t.rangs[0];
      total += P(a) * P(b);
      total += pairesValeur(b);
    }
  } else if (H == 3 && K == 1) {
    // A pair and a joker: a pair of another rank; two ranks and a joker: one more of each.
    if (t.n == 1) {
      const int a = t.rangs[0];
      total += sommePaires - pairesValeur(a);
    } else if (t.n == 2) {
      total += P(t.rangs[0]) * P(t.rangs[1]);
    }
  } else if (H == 4 && K == 0) {
    // Two pairs: either rank or a joker; three of a rank and a single: one more of the single.
    if (t.n == 2 && t.nombres[0] == 2 && t.nombres[1] == 2) {
      total += P(t.rangs[0]) + J + P(t.rangs[1]);
    } else if (t.n == 2) {
      const int b = t.nombres[0] == 3 ? t.rangs[1] : t.rangs[0];
      total += P(b);
    }
  } else if (H == 4 && K == 1) {
    // A pair, a joker and a single: one more of the single's rank.
    if (t.n == 2) {
      const int b = t.nombres[0] == 2 ? t.rangs[1] : t.rangs[0];
      total += P(b);
    }
  }
  Réalisations(5) = vb::CLng(total);
}
