// The statistics panel: the odds at rest for 0, 1 and 2 jokers (five-card sets of a full
// deck of 52, 53 or 54 cards) and the tally of hands played.
#include "core/colours.h"
#include "interface/JeuPoker.h"

namespace {
struct Repos {
  int entier;
  const char* décimales;
  const char* compte;
};
// By index 0..11, then by jokers 0..2.
constexpr Repos kRepos[12][3] = {
    {{7, ".930556", "206112"}, {11, ".762126", "337536"}, {14, ".771811", "467160"}},
    {{4, ".753901", "123552"}, {4, ".305420", "123552"}, {3, ".906770", "123552"}},
    {{2, ".112845", "54912"}, {4, ".783800", "137280"}, {8, ".455815", "267416"}},
    {{0, ".392464", "10200"}, {0, ".715479", "20532"}, {1, ".097356", "34704"}},
    {{0, ".196540", "5108"}, {0, ".271946", "7804"}, {0, ".360094", "11388"}},
    {{0, ".144057", "3744"}, {0, ".326168", "9360"}, {0, ".473548", "14976"}},
    {{0, ".024009", "624"}, {0, ".108722", "3120"}, {0, ".299967", "9360"}},
    {{0, ".001385", "36"}, {0, ".006272", "180"}, {0, ".017075", "540"}},
    {{0, ".000153", "4"}, {0, ".000836", "24"}, {0, ".002656", "84"}},
    {{0, ".000000", "0"}, {0, ".000453", "13"}, {0, ".002467", "78"}},
    {{84, ".444085", "2194668"}, {77, ".718774", "2230284"}, {70, ".616441", "2233252"}},
    {{15, ".555915", "404292"}, {22, ".281226", "639401"}, {29, ".383559", "929258"}},
};
constexpr const char* kTêtes[3] = {"?/2598960", "?/2869685", "?/3162510"};
}  // namespace

void JeuPoker::RemplitStatistiques() {
  for (int i = 0; i <= 11; ++i) {
    for (int j = 0; j <= 2; ++j) {
      MainsPossibles(i, j) = vb::CByte(kRepos[i][j].entier);
      TextePourcentages(i, j) = QString::fromLatin1(kRepos[i][j].décimales);
      TexteMainsPossibles(i, j) = QString::fromLatin1(kRepos[i][j].compte);
    }
  }
  for (int i = 0; i <= 11; ++i) {
    PourcDéc(i).SetCaption(QString::number(MainsPossibles(i, NbJokers)));
    Pourcentages(i).SetCaption(TextePourcentages(i, NbJokers));
    Fractions(i).SetCaption(TexteMainsPossibles(i, NbJokers));
  }
}

void JeuPoker::AfficheStatistiquesRepos() {
  if (NbJokers > 2) vb::RuntimeError(vb::SubscriptOutOfRange);
  UnSur->SetCaption(QString::fromLatin1(kTêtes[NbJokers]));
  for (int i = 0; i <= 11; ++i) {
    // No five of a kind without a joker: its row stays as it is.
    if (i == 9 && NbJokers == 0) continue;
    PourcDéc(i).SetCaption(QString::number(MainsPossibles(i, NbJokers)));
    Pourcentages(i).SetCaption(TextePourcentages(i, NbJokers));
    Fractions(i).SetCaption(TexteMainsPossibles(i, NbJokers));
    Pourcentages(i).SetBackColor(couleur::kSarcelle);
    Fractions(i).SetBackColor(couleur::kSarcelle);
  }
}

void JeuPoker::AfficheFréquence() {
  // A hand of nothing has no row in the tally.
  if (RangMain == 10) return;
  Fréquences(RangMain) = vb::CLng(static_cast<long long>(Fréquences(RangMain)) + 1);
  Fréquence(RangMain).SetCaption(QString::number(Fréquences(RangMain)));
}
