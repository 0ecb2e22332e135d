// One pair of kings or aces: ways of making the pair times ways of filling the hand, less
// the flushes and the straights that a joker makes of such a hand.
#include <bit>
#include <cmath>

#include "interface/JeuPoker.h"

namespace {
constexpr int kRoi = 11;
constexpr int kAs = 12;

long long C2(long long n) { return n * (n - 1) / 2; }
long long C3(long long n) { return n * (n - 1) * (n - 2) / 6; }

// The twelve rank sets of four within a run of five that hold a king or an ace.
constexpr int kEnsembles[12][4] = {
    {12, 1, 2, 3},  {12, 0, 2, 3}, {12, 0, 1, 3},   {12, 0, 1, 2},   {8, 9, 10, 11}, {7, 9, 10, 11},
    {7, 8, 10, 11}, {7, 8, 9, 11}, {9, 10, 11, 12}, {8, 10, 11, 12}, {8, 9, 11, 12}, {8, 9, 10, 12},
};

int Masque(const int (&e)[4]) { return (1 << e[0]) | (1 << e[1]) | (1 << e[2]) | (1 << e[3]); }
}  // namespace

void JeuPoker::ProbRoiOuAs() {
  const int H = NbGardées;
  if (H == 5) {
    // Five held: the hand itself, when it is a pair of kings or aces.
    if (RangMain == 0) Réalisations(0) = 1;
    return;
  }
  const int D = NbRejetées;
  const int K = NbJokersGardés;
  const long long J = JokersRestants;
  const long long T = TailleJeu;
  auto G = [this](int v) -> int { return GardéesValeur(v); };
  auto R = [this](int v) -> long long { return RestantsValeur(v); };
  auto P = [this](int v) -> long long { return RestantsParValeur(v); };

  // The pair already in hand, with jokers in the game: the driver gives the class what the
  // better classes leave.
  if (NbJokers != 0 && (G(kRoi) + K == 2 || G(kAs) + K == 2)) return;
  // Three kings or aces (jokers among them), both jokers, or a lower pair held: the hand can no
  // longer end in a lone pair of kings or aces.
  if (G(kRoi) + K >= 3) return;
  if (G(kAs) + K >= 3) return;
  if (K == 2) return;
  for (int v = 0; v <= 10; ++v)
    if (G(v) >= 2) return;

  // Ways of making the pair out of the draw.
  auto façons = [&](int q) -> long long {
    const int g = G(q);
    if (K == 0) {
      // A king and an ace held: a drawn joker counts under the king only.
      if (q == kAs && G(kRoi) == 1 && G(kAs) == 1) return P(kAs);
      // None of the rank held: two drawn, or one and a joker.
      if (g == 0 && D >= 2) return C2(P(q)) + J * P(q);
      // One held: one more, or a joker.
      if (g == 1 && D >= 1) return P(q) + J;
      // The pair held.
      if (g == 2) return 1;
    } else {
      // A joker held: one of the rank drawn, or one held.
      if (g == 0 && D >= 1) return P(q);
      if (g == 1) return 1;
    }
    return 0;
  };
  // Ways of filling the rest of the hand.
  auto autres = [&](int q, int o) -> long long {
    long long m = T - 5 - R(q);
    if (D == 4 && K == 1) m -= P(o);
    Byte sousPaires = 0, sousTriples = 0;
    for (int v = 0; v <= 12; ++v) {
      if (v == q) continue;
      if (G(v) == 0) {
        const long long r = R(v);
        if (r >= 2) {
          sousPaires = vb::CByte(sousPaires + C2(r));
          sousTriples = vb::CByte(sousTriples + C3(r));
        }
      } else if (G(v) == 1) {
        m -= P(v);
      }
    }
    // By the cards to draw and x, the cards of the pair in hand: the free cards to choose, less
    // the pairs and threes of the ranks not held.
    const int x = K + G(q);
    switch (D) {
      case 1: return x == 0 ? 0 : x == 1 ? 1 : m;
      case 2: return x == 0 ? 1 : x == 1 ? m : C2(m) - sousPaires;
      case 3: return x == 0 ? m : x == 1 ? C2(m) - sousPaires : C3(m) - sousPaires - sousTriples;
      case 4: return x == 0 ? C2(m) - sousPaires - sousTriples : x == 1 ? C3(m) - sousPaires - sousTriples : m;
      default: return x == 0 ? C3(m) - sousPaires - sousTriples : m;
    }
  };
  const long long façonsRoi = façons(kRoi);
  const long long façonsAs = façons(kAs);
  const long long autresRoi = autres(kRoi, kAs);
  const long long autresAs = autres(kAs, kRoi);
  long long total = 0;
  // Each of the two pairs, unless the other rank is already paired.
  if (G(kAs) + K < 2 && G(kAs) < 2) total += façonsRoi * autresRoi;
  if (G(kRoi) + K < 2 && G(kRoi) < 2) total += façonsAs * autresAs;
  Réalisations(0) = vb::CLng(total);

  // Without a joker a pair is never a straight or a flush.
  if (Réalisations(0) == 0 || J + K == 0) return;
  TotalRoiOuAs = Réalisations(0);

  if (CouleurPossible) {
    auto enCouleur = [this](int s) {
      int n = 13;
      for (int i = 0; i <= 4; ++i)
        if (CartesTirage(i) / 13 == s && CartesTirage(i) <= 51) --n;
      return n;
    };
    if (H == 0 || (H == 1 && K == 1)) {
      // Nothing natural held: the king and the ace of every suit, with the flush a joker makes of them.
      for (int s = 0; s <= 3; ++s) {
        const int n = enCouleur(s);
        for (int q : {kRoi, kAs}) {
          const int c = RestantsCouleurValeur(q, s);
          if (c == 0) continue;
          const long long m = c == 1 ? n - 1 : n;
          if (H == 0)
            TotalRoiOuAs -= static_cast<double>(J * C3(m));
          else if (c == 1)
            TotalRoiOuAs -= static_cast<double>(C3(m));
        }
      }
    } else {
      // Natural cards held: their suit alone, the flushes by what is held.
      const int s = CouleursGardées(0);
      const int n = enCouleur(s);
      for (int q : {kRoi, kAs}) {
        const int c = RestantsCouleurValeur(q, s);
        // A king of the suit rejected ends the correction: the ace is not looked at.
        if (c == 0) break;
        const long long m = c == 1 ? n - 1 : n;
        long long retire = 0;
        if (H == 1 && K == 0) retire = c == 1 ? J * C2(m) : J * C3(m);
        if (H == 2 && K == 0) retire = c == 1 ? J * m : J * C2(m);
        if (H == 2 && K == 1) retire = c == 1 ? C2(m) : C3(m);
        if (H == 3 && K == 0) retire = c == 1 ? J : J * m;
        if (H == 3 && K == 1) retire = c == 1 ? m : C2(m);
        if (H == 4 && K == 0) retire = c == 1 ? 0 : J;
        if (H == 4 && K == 1) retire = c == 1 ? 1 : m;
        TotalRoiOuAs -= static_cast<double>(retire);
      }
    }
    Réalisations(0) = vb::CLng(std::llround(std::nearbyint(TotalRoiOuAs)));
  }

  if (QuintePossible) {
    PairesQuintes0à2();
    PairesQuintes3à4();
    Réalisations(0) = vb::CLng(std::llround(std::nearbyint(TotalRoiOuAs)));
  }
}

namespace {
// One rank set of the listing: the product of the cards to draw comes off, and for each
// suit in which the hand would be a straight flush (already taken off with the flushes)
// the weight goes back on. `remet` false skips the putting back.
void Retire(JeuPoker& f, int masque, int tenues, long long poids, bool remet) {
  const int tirées = masque & ~tenues;
  long long produit = poids;
  for (int m = tirées; m != 0; m &= m - 1) produit *= f.RestantsParValeur(std::countr_zero(static_cast<unsigned>(m)));
  f.TotalRoiOuAs -= static_cast<double>(produit);
  if (!remet) return;
  for (int s = 0; s <= 3; ++s) {
    bool quinteFlush = true;
    for (int m = masque; m != 0 && quinteFlush; m &= m - 1) {
      const int r = std::countr_zero(static_cast<unsigned>(m));
      const int voulu = (tenues >> r & 1) ? 2 : 1;
      if (f.RestantsCouleurValeur(r, s) != voulu) quinteFlush = false;
    }
    if (quinteFlush) f.TotalRoiOuAs += static_cast<double>(poids);
  }
}

// The held natural ranks as a mask; -1 when a rank is held twice.
int RangsTenus(JeuPoker& f) {
  int tenues = 0;
  for (int r = 0; r <= 12; ++r) {
    if (f.GardéesValeur(r) >= 2) return -1;
    if (f.GardéesValeur(r) == 1) tenues |= 1 << r;
  }
  return tenues;
}

void QuintesRoiOuAs(JeuPoker& f) {
  const int tenues = RangsTenus(f);
  if (tenues < 0) return;
  const int H = f.NbGardées;
  const int K = f.NbJokersGardés;
  const long long poids = K == 1 ? 1 : f.JokersRestants;
  const int roi = 1 << kRoi;
  const int basse = (1 << 8) | (1 << 9) | (1 << 10);
  const bool roiEtUneBasse = ((H == 2 && K == 0) || (H == 3 && K == 1)) && (tenues & roi) &&
                             std::popcount(static_cast<unsigned>(tenues)) == 2 &&
                             std::popcount(static_cast<unsigned>(tenues & basse)) == 1;
  const bool roiEtDeuxBasses = H == 4 && K == 1 && (tenues & roi) &&
                               std::popcount(static_cast<unsigned>(tenues)) == 3 &&
                               std::popcount(static_cast<unsigned>(tenues & basse)) == 2;
  static constexpr int kSansRemise[] = {(1 << 0) | (1 << 2) | (1 << 12), (1 << 7) | (1 << 8) | (1 << 11),
                                        (1 << 7) | (1 << 9) | (1 << 11), (1 << 7) | (1 << 10) | (1 << 11),
                                        (1 << 8) | (1 << 9) | (1 << 11), (1 << 8) | (1 << 10) | (1 << 11),
                                        (1 << 9) | (1 << 10) | (1 << 11)};
  bool remet = true;
  if (H == 4 && K == 1)
    for (int m : kSansRemise)
      if (tenues == m) remet = false;

  for (const auto& e : kEnsembles) {
    const int masque = Masque(e);
    if ((masque & tenues) != tenues) continue;
    if (roiEtDeuxBasses && (masque >> 7 & 1)) continue;
    Retire(f, masque, tenues, poids, remet);
    // Nine to king lies in two runs and is processed twice for a king held with a ten,
    // a jack or a queen.
    if (roiEtUneBasse && masque == Masque(kEnsembles[4])) Retire(f, masque, tenues, poids, remet);
  }
}
}  // namespace

void JeuPoker::PairesQuintes0à2() {
  if (NbGardées > 2) return;
  QuintesRoiOuAs(*this);
}

void JeuPoker::PairesQuintes3à4() {
  if (NbGardées < 3 || NbGardées > 4) return;
  QuintesRoiOuAs(*this);
}
