// What the coach knows, as plain data: the judgement of the hand between the drawings of JEU 1,
// the verdict on the last hold played, and the session's record. The game fills it (coach/coach.h)
// and the coach's window (a library loaded when the coach first opens) only reads it, so the
// header holds nothing but data and inline arithmetic.
//
// Values are expected payouts in credits at the bet of the deal: the pay table of the deck in
// force times `Mise`. Two holds whose values differ by at most kTie are equally right.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <deque>
#include <vector>

namespace coach {

inline constexpr int kHolds = 32;
inline constexpr double kTie = 1e-9;
inline constexpr std::size_t kMistakesKept = 50;

inline bool EquallyRight(double a, double b) { return std::abs(a - b) <= kTie; }

// One hold: bit i keeps the card at position i.
struct HoldValue {
  unsigned held = 0;
  double ev = 0;    // expected payout, credits
  double pays = 0;  // probability that the final hand pays
};

// The 32 holds of one deal, best first; equal values keep the order of their masks.
struct Judgement {
  bool valid = false;
  std::array<std::uint8_t, 5> hand{};  // card codes by position
  int jokers = 0;
  int mise = 1;
  long long stake = 1;  // what the deal cost: Niveau x Mise
  std::array<HoldValue, kHolds> holds{};

  const HoldValue& Best() const { return holds[0]; }
  const HoldValue& Of(unsigned held) const {
    for (const HoldValue& h : holds)
      if (h.held == held) return h;
    return holds[0];
  }
  // How far below the best a hold is; 0 for any hold equal to it.
  double Cost(unsigned held) const {
    const double d = Best().ev - Of(held).ev;
    return EquallyRight(d, 0) ? 0 : d;
  }
};

// The holds played in one way (by the player, or by the automatic mode).
struct Tally {
  long long decisions = 0;
  long long mistakes = 0;
  double lost = 0;    // credits lost to mistakes, in expectation
  double played = 0;  // sum of the expected payouts of the holds played
  double best = 0;    // the same for the best holds of the same deals
  double stakes = 0;  // sum of the stakes of those deals

  double Accuracy() const { return decisions ? 100.0 * (decisions - mistakes) / decisions : 0; }
  double PlayedReturn() const { return stakes > 0 ? 100.0 * played / stakes : 0; }
  double BestReturn() const { return stakes > 0 ? 100.0 * best / stakes : 0; }
};

// One hold played: the deal's judgement, the hold, what it cost.
struct Decision {
  Judgement judgement;
  unsigned played = 0;
  double cost = 0;
  bool automatic = false;
};

// One drawing of the session: the credit after it and the expected loss to mistakes so far.
struct ChartPoint {
  double credit = 0;
  double lost = 0;
};

// One deal of JEU 2 between its drawings: the expected pay in credits of the cards turned down
// now, of the advice's choice and of the best choice (bit p: position p turned down).
struct GridJudgement {
  bool valid = false;
  std::array<std::uint8_t, 25> grid{};
  int jokers = 0;
  int level = 1;
  int mise = 1;
  std::uint32_t inPlay = 0;  // the positions on a line in play
  std::uint32_t down = 0;
  double ev = 0;
  std::uint32_t adviceDown = 0;
  double adviceEv = 0;
  std::uint32_t bestDown = 0;
  double bestEv = 0;
  double Cost() const {
    const double d = bestEv - ev;
    return EquallyRight(d, 0) ? 0 : d;
  }
};

// The double-up while a win waits: the chances of winning, tying and losing the duel and what
// doubling is worth as a multiple of the win. Before the house's card is drawn they average over
// its draw; once it is up they are those against it.
struct DuelFigures {
  bool shown = false;       // a win waits, or a duel awaits the player's card
  bool houseKnown = false;  // the house's card is up
  int houseRank = 0;        // 0 the two .. 11 the king
  double win = 0, tie = 0, lose = 0;
  double ev = 0;  // 2 x win + 1 x tie
};

enum class Phase {
  Idle,         // no decision to judge
  Between,      // JEU 1 between its drawings: `current` and `held`
  Verdict,      // after a second drawing: `last`
  GridBetween,  // JEU 2 between its drawings: `grid`
  GridVerdict,  // after a second drawing of JEU 2: `grid` as played
};

struct Record {
  bool english = false;
  Phase phase = Phase::Idle;
  Judgement current;
  unsigned held = 0;
  Decision last;
  bool recording = false;  // the session counts from the first opening on
  Tally player;
  Tally automatic;
  std::deque<Decision> mistakes;  // newest first, at most kMistakesKept
  std::vector<ChartPoint> chart;
  DuelFigures duel;
  // JEU 2: the deal between the drawings, or the last one played, and its tallies.
  GridJudgement grid;
  Tally gridPlayer;
  Tally gridAutomatic;
  long long changes = 0;  // counts every change, so that a window can tell it is behind
};

}  // namespace coach
