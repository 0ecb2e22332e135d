// The rule table of the automatic card selection, over what the evaluation left (sorted hand,
// ranks, suit blocks, pairs). No use of the probabilities.
#include "classic/selection_rules.h"

namespace {
bool IsAce(Byte code) { return code == 12 || code == 25 || code == 38 || code == 51; }
bool IsKing(Byte code) { return code == 11 || code == 24 || code == 37 || code == 50; }
}  // namespace

void AppliqueRèglesSélection(const MainÉvaluée& m, ÉtatSélection& s, bool classeRien) {
  const auto& M = m.triée;
  const auto& V = m.valeurs;
  auto marque = [&s](int i) { s.gardées[s.positions[i]] = true; };
  const bool joker = M[4] > 51;

  // Jokers are always kept.
  if (M[3] == 52) {
    marque(3);
    marque(4);
  }
  if (joker) marque(4);

  // Pair of kings or aces: the aces win over the kings, so king, ace and joker keep the ace
  // and the joker. The last card need not be looked at: it is the joker, or the pair is
  // already marked by the evaluation.
  if (m.rang == 0) {
    bool asGardé = false;
    if (m.nbAs == 2 || (m.nbAs == 1 && joker)) {
      for (int i = 0; i <= 3; ++i) {
        if (IsAce(M[i])) {
          marque(i);
          asGardé = true;
        }
      }
    }
    if (!asGardé && (m.nbRois == 2 || (m.nbRois == 1 && joker))) {
      for (int i = 0; i <= 3; ++i)
        if (IsKing(M[i])) marque(i);
    }
  }

  // A made straight, flush or better keeps all five.
  if (m.rang == 3 || m.rang == 4 || m.rang == 7 || m.rang == 8 || m.rang == 9) {
    s.gardées.fill(true);
    return;
  }
  if (m.rang != 10 || !classeRien) return;

  bool tirage = false;  // a draw to a flush or a straight was found

  // Four to a flush, or three and a joker; it breaks up a low pair.
  for (int d = 0; d <= 39; d += 13) {
    int compte = 0;
    for (int i = 0; i <= 4; ++i)
      if (M[i] >= d && M[i] <= d + 12) ++compte;
    if ((compte == 3 && joker) || compte == 4) {
      tirage = true;
      for (int i = 0; i <= 4; ++i) {
        if (M[i] >= d && M[i] <= d + 12)
          marque(i);
        else if (M[i] <= 51)
          s.gardées[s.positions[i]] = false;
      }
      break;
    }
  }

  // Four to a straight, or three and a joker, when there is no pair. The last test that holds
  // gives the case; the indexes are those of the sorted ranks.
  if (!tirage && m.nbPaires == 0) {
    int q = 0;
    if (V[4] < 52) {
      if (V[3] - V[0] < 5) q = 1;
      if (V[4] - V[1] < 5) q = 2;
      if (V[4] == 12 && V[2] < 4) q = 3;  // the ace below three low cards
    } else {
      if (V[2] - V[0] < 5) q = 5;
      if (V[3] - V[1] < 5) q = 4;
    }
    if (q != 0) {
      tirage = true;
      // The positions follow the order of the ranks from here on. A joker's block is stale,
      // so its sum matches nothing and it keeps the position found before, or it matches the
      // joker itself.
      for (int i = 0; i <= 4; ++i)
        for (int j = 0; j <= 4; ++j)
          if (s.tirage[j] == V[i] + m.blocs[i]) s.positions[i] = static_cast<Byte>(j);
      struct Cas {
        int rejetée;
        int gardées[4];
        int nbGardées;
      };
      static constexpr Cas kCas[6] = {
          {0, {0, 0, 0, 0}, 0},  // unused
          {4, {0, 1, 2, 3}, 4},  // four in a row, the top card goes
          {0, {1, 2, 3, 4}, 4},  // four in a row, the bottom card goes
          {3, {0, 1, 2, 4}, 4},  // ace with three low cards
          {0, {1, 2, 3, 0}, 3},  // joker with three: the bottom card goes
          {3, {0, 1, 2, 0}, 3},  // joker with three: the fourth card goes
      };
      const Cas& c = kCas[q];
      s.gardées[s.positions[c.rejetée]] = false;
      for (int k = 0; k < c.nbGardées; ++k) marque(c.gardées[k]);
    }
  }

  // Nothing to draw to: every king and ace stays.
  if (!tirage && m.nbPaires == 0) {
    for (int i = 0; i <= 4; ++i)
      if (IsAce(M[i]) || IsKing(M[i])) marque(i);
  }
}

unsigned GardesMain(const std::array<Byte, 5>& cartes, bool classeRien) {
  MainÉvaluée m;
  m.triée = cartes;
  ÉvalueMain(m);
  ÉtatSélection s;
  s.tirage = cartes;
  // Where each sorted card lies, and the same-rank cards already kept.
  for (int i = 0; i <= 4; ++i)
    for (int j = 0; j <= 4; ++j)
      if (cartes[j] == m.triée[i]) s.positions[i] = static_cast<Byte>(j);
  for (int i = 0; i <= 4; ++i)
    if (m.appariée[i]) s.gardées[s.positions[i]] = true;
  AppliqueRèglesSélection(m, s, classeRien);
  unsigned held = 0;
  for (int i = 0; i <= 4; ++i)
    if (s.gardées[i]) held |= 1u << i;
  return held;
}

unsigned SélectionAutomatique(const std::array<Byte, 5>& cartes) { return GardesMain(cartes, true); }
