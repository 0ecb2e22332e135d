// Hand evaluation of the form: classifies the five cards of MainTriée into RangMain through
// ÉvalueMain and leaves behind what the automatic selection reads.
#include "core/evaluation.h"
#include "interface/JeuPoker.h"

void JeuPoker::Résultat() {
  MainÉvaluée m;
  for (int i = 0; i <= 4; ++i) {
    m.triée[static_cast<std::size_t>(i)] = MainTriée(i);
    m.blocs[static_cast<std::size_t>(i)] = BlocsCouleur(i);  // a joker's block stays as it was
  }
  ÉvalueMain(m);
  for (int i = 0; i <= 4; ++i) MainTriée(i) = m.triée[static_cast<std::size_t>(i)];

  // Advice set-up: where each sorted card lies, and no card kept yet. Only after a first
  // classic drawing with automatic selection on, or for a grid line; otherwise the marks of
  // the same-rank cards fall on whatever positions were left from before.
  if ((NbTirées == 5 && ParesseOui->BevelWidth() == 0) || NbTirées == 25) {
    for (int i = 0; i <= 4; ++i) {
      CartesGardées(i) = false;
      for (int j = 0; j <= 4; ++j) {
        if (NbTirées == 5) {
          if (CartesTirage(j) == MainTriée(i)) PositionsMain(i) = static_cast<Byte>(j);
        } else {
          if (CartesTirage(IndexLigne(j)) == MainTriée(i)) PositionsMain(i) = static_cast<Byte>(j);
        }
      }
    }
  }

  RangMain = m.rang;
  GainMain = m.gain;
  NbRois = m.nbRois;
  NbAs = m.nbAs;
  NbPaires = m.nbPaires;
  for (int i = 0; i <= 4; ++i) {
    const auto k = static_cast<std::size_t>(i);
    ValeursMain(i) = m.valeurs[k];
    BlocsCouleur(i) = m.blocs[k];
    if (m.appariée[k]) CartesGardées(PositionsMain(i)) = true;
  }
}
