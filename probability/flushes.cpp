// Flushes (straight flushes included, the driver takes them out) and five of a kind.
#include <cmath>

#include "interface/JeuPoker.h"

void JeuPoker::ProbCouleur() {
  CouleurPossible = false;
  const QString garder = MotCarteGardée();

  // n cards of the suit can still come: its natural cards off the table and the jokers
  // off the table (every table joker counts as a table card of the suit).
  auto dansCouleur = [](Byte c, int b) { return (c >= b && c < b + 13) || c > 51; };
  const bool couleurFixée =
      NbGardées != 0 && !(NbGardées == 1 && NbJokersGardés == 1) && !(NbGardées == 2 && NbJokersGardés == 2);

  if (couleurFixée) {
    // A natural card held fixes the suit: the first suit that holds every held card.
    for (int b = 0; b <= 39; b += 13) {
      int gardées = 0;
      for (int i = 0; i <= 4; ++i)
        if (Jouez(i).Caption() == garder && dansCouleur(CartesTirage(i), b)) ++gardées;
      if (gardées == NbGardées) {
        CouleurPossible = true;
        int n = 0;
        for (int i = 0; i <= 4; ++i)
          if (dansCouleur(CartesTirage(i), b)) ++n;
        NbMêmeCouleur = vb::CByte(n);
        break;
      }
    }
    // Natural cards of two suits held: no flush.
    if (!CouleurPossible) return;
    NbMêmeCouleur = vb::CByte(13 + NbJokers - NbMêmeCouleur);
    const double n = NbMêmeCouleur;
    // The cards to draw all come from the n of the suit: C(n, 5 - held).
    switch (NbGardées) {
      case 5:
        // Five held: the hand itself, when it is a flush.
        if (RangMain == 4) Réalisations(4) = 1;
        break;
      case 4: Réalisations(4) = vb::CLng(std::llround(n)); break;
      case 3: Réalisations(4) = vb::CLng(std::llround(n * (n - 1) / 2)); break;
      case 2: Réalisations(4) = vb::CLng(std::llround(n * (n - 1) / 2 * (n - 2) / 3)); break;
      case 1: Réalisations(4) = vb::CLng(std::llround(n * (n - 1) / 2 * (n - 2) / 3 * (n - 3) / 4)); break;
      default: break;
    }
    return;
  }

  // No natural card held: any of the four suits, one after the other.
  CouleurPossible = true;
  double total = Réalisations(4);
  for (int b = 0; b <= 39; b += 13) {
    int compte = 0;
    for (int i = 0; i <= 4; ++i)
      if (dansCouleur(CartesTirage(i), b)) ++compte;
    NbMêmeCouleur = vb::CByte(compte);
    const double n = 13 + NbJokers - NbMêmeCouleur;
    // C(n, 5 - held) again, the held jokers being of every suit.
    if (NbGardées == 2)
      total += n * (n - 1) / 2 * (n - 2) / 3;
    else if (NbGardées == 1)
      total += n * (n - 1) / 2 * (n - 2) / 3 * (n - 3) / 4;
    else
      total += n * (n - 1) / 2 * (n - 2) / 3 * (n - 3) / 4 * (n - 4) / 5;
  }
  Réalisations(4) = vb::CLng(std::llround(total));
}

void JeuPoker::ProbPoker() {
  if (NbGardées == 5) {
    // Five held: the hand itself, when it is five of a kind.
    if (RangMain == 9) Réalisations(9) = 1;
    return;
  }
  // All the cards to draw come from the v cards that can still stand as the rank: the
  // d-subsets of v, which are d + 1 for v = d + 1 and 1 for v = d.
  const int d = 5 - NbGardées;
  long long total = Réalisations(9);
  auto rang = [&](int r) {
    const int v = RestantsValeur(r);
    if (v == d + 1)
      total += d + 1;
    else if (v == d)
      total += 1;
  };
  auto tous = [&] {
    for (int r = 0; r <= 12; ++r) rang(r);
  };
  const int g0 = NbGardées >= 1 ? Gardées(0) : 0;
  const int g1 = NbGardées >= 2 ? Gardées(1) : 0;
  const int g2 = NbGardées >= 3 ? Gardées(2) : 0;
  const int g3 = NbGardées >= 4 ? Gardées(3) : 0;
  switch (NbGardées) {
    // Nothing held: every rank.
    case 0: tous(); break;
    case 1:
      // One card: its rank, or every rank for a joker.
      if (g0 < 52)
        rang(g0);
      else
        tous();
      break;
    case 2:
      // Both jokers: every rank; a pair, or a natural and a joker: that rank.
      if (g0 > 51)
        tous();
      else if (g0 == g1 || (g1 > 51 && g0 < 52))
        rang(g0);
      break;
    case 3:
      // Three of a rank, a pair and a joker, or a natural and both jokers: that rank.
      if (g0 == g2 || (g0 == g1 && g2 > 51) || g1 > 51) rang(g0);
      break;
    case 4:
      // Four of a rank, three and a joker, or a pair and both jokers: that rank.
      if (g0 == g3 || (g0 == g2 && g3 > 51) || (g0 == g1 && g2 > 51)) rang(g0);
      break;
    default: break;
  }
  Réalisations(9) = vb::CLng(total);
}
