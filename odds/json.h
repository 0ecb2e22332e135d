// The JSON the odds tool writes: one object for the holds of a hand, one for a return, one for
// the choices of a grid.
#pragma once

#include <string>
#include <vector>

#include "odds/engine.h"
#include "odds/grid.h"

namespace odds {

// {"jokers":N,"hand":[codes],"holds":[{"held":[codes],"counts":[11],"total":T,"ev":X}, ...]}
// with the held cards in the order of the hand.
std::string HandJson(int jokers, const Hand& hand, const std::vector<Hold>& holds);

// {"return":R,"fraction":"p/q","classes":[11]}
std::string FiguresJson(const Figures& f);

// {"jokers":J,"level":L,"grid":[25 codes],"advice":{"down":[positions],"ev":X,"lines":[one a
// line in play]},"best":{...}}
std::string GridJson(const GridOdds& odds, const GridChoice& advice, const GridChoice& best);

// The shortest decimal that reads back as v.
std::string Number(double v);

}  // namespace odds
