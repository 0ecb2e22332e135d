// Cards as a player writes them on the command line, and as the odds tool prints them.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "odds/engine.h"

namespace odds {

// Five card words for a deck with `jokers` jokers. A word is a code 0..53, a rank 2-9 T J Q K A
// followed by a suit c d h s, or JK for a joker (the first JK is 52, the second 53). On a bad
// hand returns false and names the fault in `error`.
bool ParseHand(const std::vector<std::string>& words, int jokers, Hand& hand, std::string& error);

// The same for the 25 cards of a grid of JEU 2, in position order.
bool ParseGrid(const std::vector<std::string>& words, int jokers, std::array<Byte, 25>& grid, std::string& error);

// "A♠", "T♦", "JK".
std::string CardName(Byte code);

}  // namespace odds
