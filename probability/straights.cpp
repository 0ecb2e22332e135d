// Straights, straight flushes included (the driver takes them out), and the gate that tells
// whether the held cards can still end in a straight.
#include <cmath>

#include "interface/JeuPoker.h"
#include "probability/spans.h"

void JeuPoker::ProbQuinte() {
  if (NbGardées == 5) {
    // Five held: the hand itself, when it is a straight.
    if (RangMain == 3) {
      QuintePossible = true;
      Réalisations(3) = 1;
    }
    return;
  }

  // The gate: held ranks all different and within one span.
  QuintePossible = NbGardées < 2;
  if (NbGardées >= 2) {
    const int h = NbGardées;
    bool montant = true;
    for (int i = 0; i + 1 < h; ++i)
      if (Gardées(i + 1) <= Gardées(i)) montant = false;
    if (montant) {
      const int g0 = Gardées(0);
      // All natural and within one span.
      if (Gardées(h - 1) - g0 < 5) QuintePossible = true;
      bool basses = true;  // every natural entry below the five or the ace
      for (int i = 0; i < h; ++i) {
        const int g = Gardées(i);
        if (g < 52 && g >= 4 && g <= 11) basses = false;
      }
      if (basses) QuintePossible = true;
      // A natural and a joker.
      if (h == 2 && Gardées(1) > 51) QuintePossible = true;
      if (h == 3) {
        // A natural and both jokers, or two naturals within a span and a joker.
        if (Gardées(1) == 52) QuintePossible = true;
        if (Gardées(1) - g0 < 5 && Gardées(2) > 51) QuintePossible = true;
      }
      if (h == 4) {
        // Two naturals within a span and both jokers, or three within a span and a joker.
        if (Gardées(1) - g0 < 5 && Gardées(2) == 52) QuintePossible = true;
        if (Gardées(2) - g0 < 5 && Gardées(3) > 51) QuintePossible = true;
      }
    }
  }
  if (!QuintePossible) return;

  // Natural cards in the deck by face position: two at 2 .. ace at 14, the ace again at 1,
  // the two to the five again at 15..18.
  std::array<Integer, 19> restantsQuinte{};
  for (int p = 2; p <= 14; ++p) restantsQuinte[static_cast<std::size_t>(p)] = RestantsParValeur(p - 2);
  restantsQuinte[1] = restantsQuinte[14];
  for (int p = 15; p <= 18; ++p)
    restantsQuinte[static_cast<std::size_t>(p)] = restantsQuinte[static_cast<std::size_t>(p - 13)];
  auto P = [&](int r) -> long long { return restantsQuinte[static_cast<std::size_t>(r + 2)]; };

  prob::RankSet tenues = 0;
  for (int i = 0; i < NbGardées; ++i)
    if (Gardées(i) < 52) tenues = static_cast<prob::RankSet>(tenues | (1u << Gardées(i)));
  const int d = 5 - NbGardées;
  const int J = JokersRestants;
  const bool seulNaturel = NbGardées == 1 && Gardées(0) < 52;
  const bool naturelEtJoker = NbGardées == 2 && NbJokersGardés == 1;
  const bool troisQuatre = NbGardées == 2 && NbJokersGardés == 0 && Gardées(0) == 1 && Gardées(1) == 2;

  // Every term once: the held ranks and the drawn ones within one span, with 0 to 2 drawn jokers.
  TotalRoiOuAs = 0;
  long long somme = 0;
  prob::ForEachStraightTerm(tenues, d, J, [&](prob::RankSet u, int k) {
    const prob::RankSet tirées = static_cast<prob::RankSet>(u & ~tenues);
    // A held ace alone: the plain draw of the two to the five is not counted.
    if (seulNaturel && Gardées(0) == 12 && k == 0 && tirées == 0x000F) return;
    // A natural and a joker held with the other joker in the deck: no draw of it counts.
    if (naturelEtJoker && J == 1 && k == 1) return;
    // The three and the four held: ace and two with a drawn joker is not counted.
    if (troisQuatre && k == 1 && tirées == 0x1001) return;
    long long produit = k == 1 ? J : 1;
    for (prob::RankSet m = tirées; m != 0; m = static_cast<prob::RankSet>(m & (m - 1)))
      produit *= P(std::countr_zero(m));
    somme += produit;
  });
  // One natural card held, both jokers in the deck: the two ranks just below it with both
  // jokers are counted twice.
  if (seulNaturel && J == 2 && Gardées(0) >= 2) somme += P(Gardées(0) - 1) * P(Gardées(0) - 2);
  TotalRoiOuAs = static_cast<double>(somme);
  Réalisations(3) = vb::CLng(std::llround(TotalRoiOuAs));
}
