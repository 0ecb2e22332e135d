// The coach: it judges every hold of JEU 1 by exact expected value, gives the verdict on each
// hold played, and keeps the session's record (coach/record.h).
//
// The game tells it what the table shows at three moments (after each change between the
// drawings, when the second drawing starts, when a drawing is over) through a snapshot it only
// reads; nothing in the game depends on it. The judging uses the odds engine: the engine's tables
// of the deck are built on a worker the first time a deck is judged, and until they are ready a
// deal is judged by walking its draws directly, which gives the same values.
#pragma once

#include <QString>
#include <array>
#include <cstdint>

#include "coach/record.h"
#include "odds/grid.h"

namespace coach {

// What the coach reads of the table.
struct Table {
  bool between = false;  // JEU 1 between its two drawings, no duel running
  bool roundOver = false;
  std::array<std::uint8_t, 5> hand{};  // card codes by position
  unsigned held = 0;                   // bit i: the card at position i stays
  int jokers = 0;
  int mise = 1;
  long long stake = 1;
  long long credit = 0;
  bool automatic = false;  // the automatic mode plays
  bool english = false;
  // JEU 2 between its drawings, no duel running: the grid, the positions turned down, the level.
  bool gridBetween = false;
  bool gridRoundOver = false;
  std::array<std::uint8_t, 25> grid{};
  std::uint32_t down = 0;
  int level = 1;
  // The double-up of either game: a win waits (the offer shown), or the house's card is up.
  bool winWaits = false;
  bool duel = false;
  int houseRank = 0;
};

// Whether `n` card codes make a deal the coach can judge: distinct codes of the deck of
// `jokers` jokers. Drawings entered again from their own yields can deal a card twice; such a
// table is not judged.
bool Judgeable(const std::uint8_t* codes, int n, int jokers);

// The 32 holds of a deal, best first, valued at `mise`.
Judgement Judge(const std::array<std::uint8_t, 5>& hand, int jokers, int mise, long long stake);

// The expected pay of a grid's choices, valued at `mise` with the lines of `level` in play.
GridJudgement JudgeGrid(const Table& t);

// The duel's figures, counted over the house's draw as both games make it: the house's rank
// uniform among the two to the king with any suit, the player's card any of the 52 other than
// the house's; the ranks alone compare.
DuelFigures Duel(bool houseKnown, int houseRank);

// Starts building the tables of a deck in the background, so that the first deal is judged fast.
void Prepare(int jokers);
// Waits until those tables are built (for the benchmarks).
void WaitUntilPrepared(int jokers);

class Coach {
 public:
  const Record& record() const { return r_; }

  // Between the drawings after any change, and on a change of language.
  void Follow(const Table& t);
  // The second drawing starts: the hold as it stands now is the one played.
  void Decide(const Table& t);
  // A drawing of either game is over.
  void DrawingOver(const Table& t);

 private:
  void Changed() { ++r_.changes; }
  Record r_;
  bool decided_ = false;      // a decision waits for the end of its drawing
  bool gridDecided_ = false;  // the same in JEU 2
  odds::GridOdds gridOdds_;   // the lines' expectations of the deal in r_.grid
};

// talvero-drive's lines: "coach=idle" or "coach=held H ev E best B bestev F", and the session's
// tallies (all zero when the coach never opened).
QString HoldLine(const Table& t);
QString SessionLine(const Record* r);
// "coach-session2=..." with JEU 2's tallies.
QString GridSessionLine(const Record* r);

// "10110": position 0 first, 1 for a card held.
QString HoldText(unsigned held);

}  // namespace coach
