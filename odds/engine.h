// Exact odds of the holds of a five-card hand and the return of the classic game.
//
// A deck has 52 cards and 0, 1 or 2 jokers (codes 52, 53). A hand of the deck is five
// distinct codes; a hold keeps some of them and replaces the others by cards of the rest of
// the deck. For a hold H of the deal D the final hands are F = H + S with S taken from the
// deck without D, so the number of final hands of each class is, by inclusion and exclusion
// over the other dealt cards,
//
//     count(H) = sum over X with H <= X <= D of (-1)^|X - H| * T(X),
//
// where T(X) counts the hands of the whole deck that contain X, class by class. T is a table
// of every subset of up to five cards of the deck, built once from the class of every hand
// of the deck; one deal then costs 32 look-ups and a Möbius transform over five bits.
//
// Terms: cards, ranks and classes are those of core/evaluation.h; a set of cards is indexed by
// its colexicographic rank among the sets of its size (ColexIndex); a hold is a 5-bit mask of
// the positions (or, for a deal given ascending, the cards) kept; EV is the pay of a hold's
// draws for one unit of bet, averaged over its draws.
// Cache: GameClassifier is built once per process, on first use (a static, thread-safe
// initialisation), and then only read. Tables are built by the caller (Tables::ForGame) and
// are read-only afterwards, so any number of threads may share them.
// Threads: building the classes and the tables, AnalyseHandDirect and ComputeReturn split
// their work over plain std::threads (the machine's cores, or the count given) and join them
// before returning; ComputeReturn's `progress` runs on the calling thread.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/vb.h"

namespace odds {

inline constexpr int kClasses = 11;  // the hand classes 0..10, 10 being nothing
inline constexpr int kHolds = 32;

using Hand = std::array<Byte, 5>;
using Counts = std::array<std::uint32_t, kClasses>;
using PayTable = std::array<std::int64_t, kClasses>;
using Int128 = __int128;

// Binomial coefficient C(n, k) for n up to 54 and k up to 5 (0 outside).
std::uint32_t Binomial(int n, int k);

// Index of a set of cards given ascending, in the colexicographic order of the sets of its size.
std::uint32_t ColexIndex(const Byte* ascending, int size);

// The pay table of the classic game (JEU 1) for a deck with `jokers` jokers, per unit of bet.
PayTable PayTableClassic(int jokers);

// The class of any hand of the game's decks by the game's evaluation, fast. The evaluation
// depends on the multiset of ranks, the number of jokers and whether the ordinary cards share
// one suit; each such pattern is evaluated once by ÉvalueMain, and a hand is looked up by a
// key that adds one term per card.
class GameClassifier {
 public:
  static const GameClassifier& Get();

  static std::uint64_t Term(int card) { return card < 52 ? std::uint64_t{1} << (3 * (card % 13)) : kJokerTerm; }
  static unsigned SuitBit(int card) { return card < 52 ? 1u << (card / 13) : 0u; }
  // The class from the sum of the five terms and the OR of the five suit bits.
  Byte Classify(std::uint64_t terms, unsigned suits) const {
    const std::uint64_t key = terms | ((suits & (suits - 1)) == 0 ? kFlush : 0);
    std::size_t h = static_cast<std::size_t>((key * 0x9E3779B97F4A7C15ull) >> (64 - kBits));
    while (keys_[h] != key) h = (h + 1) & (kSize - 1);
    return classes_[h];
  }
  Byte Classify(const Hand& hand) const;

 private:
  GameClassifier();
  void Insert(std::uint64_t key, Byte cls);
  static constexpr std::uint64_t kJokerTerm = std::uint64_t{1} << 39;
  static constexpr std::uint64_t kFlush = std::uint64_t{1} << 42;
  static constexpr int kBits = 15;
  static constexpr std::size_t kSize = std::size_t{1} << kBits;
  std::vector<std::uint64_t> keys_;
  std::vector<Byte> classes_;
};

// The class of every hand of a deck of `deckSize` cards, by colex index: the game's
// evaluation for the game's decks, or any evaluation with classes 0..10.
std::vector<Byte> GameHandClasses(int deckSize);
std::vector<Byte> HandClasses(int deckSize, const std::function<int(const Hand&)>& classify);

// T(X) for every set X of up to four cards of the deck, and the class of every hand.
class Tables {
 public:
  Tables(int deckSize, std::vector<Byte> handClasses);
  static Tables ForGame(int jokers);

  int DeckSize() const { return n_; }
  // The counts of the 32 holds of a deal given ascending; bit i of the index holds card i.
  void Holds(const Hand& ascending, std::array<Counts, kHolds>& out) const;

 private:
  int n_;
  std::vector<Byte> classes5_;
  std::vector<std::array<std::uint8_t, kClasses>> t4_;  // at most 50 hands each
  std::vector<Counts> t3_, t2_, t1_, t0_;
};

// One hold of a hand: the positions kept (bit i = position i), the number of draws ending in
// each class, the number of draws, and what they pay for one unit of bet.
struct Hold {
  unsigned held = 0;
  Counts counts{};
  std::uint32_t total = 0;
  std::int64_t payout = 0;  // the sum over the draws of the pay
  double ev = 0;            // payout / total
};

// The 32 holds of a hand in position order, best first (ties: the order of the masks).
std::vector<Hold> AnalyseHand(const Tables& tables, const PayTable& pay, const Hand& hand);
// The same without tables: every draw of every hold, classified by GameClassifier, on
// `threads` threads. For one hand this is cheaper than building the tables.
std::vector<Hold> AnalyseHandDirect(int jokers, const PayTable& pay, const Hand& hand, int threads);

// The canonical form of a deal under the exchange of suits, ascending: the suits are
// renamed so that their sets of ranks decrease from clubs to spades.
Hand CanonicalDeal(const Hand& deal);

// Return figures of one way of playing over every deal of a deck.
struct Figures {
  Int128 numerator = 0;  // return = numerator / denominator, in lowest terms
  Int128 denominator = 1;
  double ret = 0;
  std::array<double, kClasses> classes{};  // probability of each final class
};

struct ReturnResult {
  int deckSize = 0;
  std::int64_t deals = 0;
  std::int64_t canonicalDeals = 0;
  Figures perfect;
  bool hasAutomatic = false;
  Figures automatic;
};

// The holds a way of playing keeps from a deal given ascending (bit i = card i).
using Selection = std::function<unsigned(const Hand&)>;

// The average over every deal of the best hold's expected value, and of the hold `automatic`
// chooses when given. Deals that differ by an exchange of suits are counted once, with their
// number. `progress`, when given, is called on the calling thread with the fraction done.
ReturnResult ComputeReturn(const Tables& tables, const PayTable& pay, const Selection& automatic, int threads,
                           const std::function<void(double)>& progress = {});

std::string ToString(Int128 v);

// Runs work(worker) on `threads` threads and joins them. Meanwhile, when `progress` is given,
// it is called on the calling thread with done / total every 50 ms, and with 1 at the end.
void RunReporting(int threads, const std::function<void(int)>& work, const std::atomic<std::size_t>& done,
                  std::size_t total, const std::function<void(double)>& progress);

}  // namespace odds
