// Straight flushes and royal flushes: the natural cards of each suit by face position, and
// the spans of five that the held cards and the draw can fill, suit by suit.
#include <array>

#include "interface/JeuPoker.h"
#include "probability/spans.h"

namespace {
// Adds the terms of the given suits: the drawn ranks of a term are natural cards of the
// suit, each in the deck (1) or not (0), and k jokers drawn weigh 1, J, 1 for k = 0, 1, 2.
template <class Skip>
void TermesCouleurs(JeuPoker& f, int premier, int dernier, prob::RankSet tenues, int d, Skip&& saute, long long& qf,
                    long long& qfr) {
  const int J = f.JokersRestants;
  std::array<prob::RankSet, 4> dansLeJeu{};
  for (int s = premier; s <= dernier; ++s)
    for (int p = 2; p <= 14; ++p)
      if (f.RestantsQF(p, s) > 0)
        dansLeJeu[static_cast<std::size_t>(s)] =
            static_cast<prob::RankSet>(dansLeJeu[static_cast<std::size_t>(s)] | (1u << (p - 2)));
  prob::ForEachStraightTerm(tenues, d, J, [&](prob::RankSet u, int k) {
    const prob::RankSet tirées = static_cast<prob::RankSet>(u & ~tenues);
    if (saute(tirées, k)) return;
    const long long poids = k == 1 ? J : 1;
    long long produit = 0;
    for (int s = premier; s <= dernier; ++s)
      if ((tirées & ~dansLeJeu[static_cast<std::size_t>(s)]) == 0) produit += poids;
    if ((u & prob::kTopSpan) == u)
      qfr += produit;
    else
      qf += produit;
  });
}

prob::RankSet RangsTenus(JeuPoker& f) {
  prob::RankSet tenues = 0;
  for (int i = 0; i < f.NbGardées; ++i)
    if (f.Gardées(i) < 52) tenues = static_cast<prob::RankSet>(tenues | (1u << f.Gardées(i)));
  return tenues;
}
}  // namespace

void JeuPoker::ProbQF() {
  if (NbGardées == 5) {
    // Five held: the hand itself, when it is a straight flush or a royal.
    if (RangMain == 7) Réalisations(7) = 1;
    if (RangMain == 8) Réalisations(8) = 1;
    return;
  }
  // A straight flush needs both a straight and a flush to be possible.
  if (!QuintePossible || !CouleurPossible) return;
  NbQF = 0;
  NbQFR = 0;
  // Each natural card by face position and suit: 1 in the deck, 0 not (RestantsGrille counts the jokers too).
  for (int p = 2; p <= 14; ++p)
    for (int s = 0; s <= 3; ++s) RestantsQF(p, s) = vb::CInt(RestantsGrille(p - 2, s) - JokersRestants);
  for (int s = 0; s <= 3; ++s) {
    RestantsQF(1, s) = RestantsQF(14, s);
    for (int p = 15; p <= 18; ++p) RestantsQF(p, s) = RestantsQF(p - 13, s);
  }
  QF0à2();
  QF3à4();
  Réalisations(7) = NbQF;
  Réalisations(8) = NbQFR;
}

void JeuPoker::QF0à2() {
  if (NbGardées > 2) return;
  const prob::RankSet tenues = RangsTenus(*this);
  const int d = 5 - NbGardées;
  const int J = JokersRestants;
  long long qf = NbQF, qfr = NbQFR;
  if (tenues == 0) {
    // Nothing natural held: the four suits.
    TermesCouleurs(
        *this, 0, 3, 0, d, [](prob::RankSet, int) { return false; }, qf, qfr);
  } else {
    // Natural cards held: their one suit.
    const int s = CouleursGardées(0);
    const bool deux = NbGardées == 2 && NbJokersGardés == 0;
    // The three and the four held: ace and two with a drawn joker is not counted.
    const bool troisQuatre = deux && tenues == 0x0006;
    TermesCouleurs(
        *this, s, s, tenues, d, [&](prob::RankSet tirées, int k) { return troisQuatre && k == 1 && tirées == 0x1001; },
        qf, qfr);
    // Two naturals held, both jokers in the deck: two shapes counted otherwise than the spans say.
    if (deux && J == 2) {
      // Ten and queen held: the king with both jokers shows as a straight flush.
      if (tenues == 0x0500) {
        qfr -= RestantsQF(13, s);
        qf += RestantsQF(13, s);
      }
      // Queen and ace held: the two read above the ace, with both jokers, counts as royal.
      if (tenues == 0x1400) qfr += RestantsQF(15, s);
    }
  }
  NbQF = vb::CInt(qf);
  NbQFR = vb::CInt(qfr);
}

void JeuPoker::QF3à4() {
  if (NbGardées < 3 || NbGardées > 4) return;
  const prob::RankSet tenues = RangsTenus(*this);
  const int d = 5 - NbGardées;
  const int J = JokersRestants;
  const int s = CouleursGardées(0);
  long long qf = NbQF, qfr = NbQFR;
  // Three or four held: the suit of the natural ones.
  TermesCouleurs(
      *this, s, s, tenues, d, [](prob::RankSet, int) { return false; }, qf, qfr);
  // Three natural cards a, a + 1, a + 3: the missing a + 2 with a drawn joker counts twice.
  if (NbGardées == 3 && NbJokersGardés == 0 && J >= 1) {
    for (int a = 0; a <= 9; ++a) {
      if (tenues == static_cast<prob::RankSet>((1u << a) | (1u << (a + 1)) | (1u << (a + 3)))) {
        const long long terme = static_cast<long long>(J) * RestantsQF(a + 4, s);
        if (a >= 8)
          qfr += terme;
        else
          qf += terme;
      }
    }
  }
  NbQF = vb::CInt(qf);
  NbQFR = vb::CInt(qfr);
}
