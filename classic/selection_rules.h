// The rule table of the automatic card selection on plain values: which cards a sensible
// player keeps after the first drawing, from what the evaluation left. The form's
// GardeCartes and the command-line tools both call it.
#pragma once

#include <array>

#include "core/evaluation.h"

// What the rules read and change besides the evaluated hand.
struct ÉtatSélection {
  std::array<Byte, 5> tirage{};     // the cards by position (CartesTirage(0..4))
  std::array<Byte, 5> positions{};  // PositionsMain: the position of each sorted card
  std::array<bool, 5> gardées{};    // CartesGardées, by position
};

// Marks the jokers, a pair of kings or aces, and all five cards of a made straight, flush or
// better. With `classeRien` the hands of class 10 also get the rules for draws and high
// cards (the classic game's automatic selection; the grid does without them).
void AppliqueRèglesSélection(const MainÉvaluée& m, ÉtatSélection& s, bool classeRien);

// The cards kept of five cards in position order, as Résultat and GardeCartes mark them after
// a first drawing: bit i set when position i is kept. `classeRien` as above: the classic
// game's automatic selection, or (false) a line of the grid between its drawings.
unsigned GardesMain(const std::array<Byte, 5>& cartes, bool classeRien);

// The holds the automatic selection gives five cards dealt in position order, as the first
// drawing of the classic game leaves them: bit i set when position i is kept.
unsigned SélectionAutomatique(const std::array<Byte, 5>& cartes);
