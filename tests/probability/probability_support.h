// Helpers of the probability panel tests: laying a table with its holds on the real form,
// and counting every draw by enumeration, each final hand classified by Résultat.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "tests/support/harness.h"

namespace probtest {

using Cards = std::array<int, 5>;

// Lays the five cards with the given jokers in the game, holds the positions whose bit is
// set in `holds` (bit i for position i), classifies the hand and runs the driver.
inline void Lay(JeuPoker& f, const Cards& cards, int jokers, int holds, bool run = true) {
  f.NbJokers = static_cast<Byte>(jokers);
  f.TailleJeu = 52 + jokers;
  f.Langue = 2;
  f.NbTirées = 5;
  for (int i = 0; i < 5; ++i) {
    f.CartesTirage(i) = static_cast<Byte>(cards[static_cast<std::size_t>(i)]);
    f.MainTriée(i) = static_cast<Byte>(cards[static_cast<std::size_t>(i)]);
    f.Jouez(i).SetCaption((holds >> i & 1) ? "HOLD" : "REJECT");
  }
  f.Résultat();
  if (run) f.Probabilités();
}

inline long long Choose(long long n, int k) {
  if (k < 0 || n < k) return 0;
  long long r = 1;
  for (int i = 0; i < k; ++i) r = r * (n - i) / (i + 1);
  return r;
}

// The class of every five-card set of the 54 codes, by its colex index, as Résultat gives it.
class ClassTable {
 public:
  explicit ClassTable(JeuPoker& f) : classes_(static_cast<std::size_t>(Choose(54, 5))) {
    for (int n = 0; n <= 54; ++n)
      for (int k = 0; k <= 5; ++k) binom_[n][k] = static_cast<std::uint32_t>(Choose(n, k));
    const Byte savedTirées = f.NbTirées;
    f.NbTirées = 10;  // no advice set-up while classifying
    int c[5];
    for (c[4] = 4; c[4] < 54; ++c[4])
      for (c[3] = 3; c[3] < c[4]; ++c[3])
        for (c[2] = 2; c[2] < c[3]; ++c[2])
          for (c[1] = 1; c[1] < c[2]; ++c[1])
            for (c[0] = 0; c[0] < c[1]; ++c[0]) {
              for (int i = 0; i < 5; ++i) f.MainTriée(i) = static_cast<Byte>(c[i]);
              f.Résultat();
              classes_[Index(c)] = f.RangMain;
            }
    f.NbTirées = savedTirées;
  }
  // `c` sorted ascending.
  std::size_t Index(const int* c) const {
    return binom_[c[0]][1] + binom_[c[1]][2] + binom_[c[2]][3] + binom_[c[3]][4] + binom_[c[4]][5];
  }
  Byte Class(const int* c) const { return classes_[Index(c)]; }

 private:
  std::vector<Byte> classes_;
  std::uint32_t binom_[55][6] = {};
};

// Draw counts of one table and one hold set, by final class 0..10.
struct Enumeration {
  std::array<long long, 11> byClass{};
  std::array<long long, 11> withDrawnJoker{};   // draws holding at least one joker
  std::array<long long, 11> twoJokersInHand{};  // final hands holding both jokers
  long long total = 0;
};

inline Enumeration Enumerate(const ClassTable& table, const Cards& cards, int jokers, int holds) {
  Enumeration e;
  std::vector<int> held, deck;
  for (int i = 0; i < 5; ++i)
    if (holds >> i & 1) held.push_back(cards[static_cast<std::size_t>(i)]);
  for (int c = 0; c < 52 + jokers; ++c)
    if (std::find(cards.begin(), cards.end(), c) == cards.end()) deck.push_back(c);
  const int d = 5 - static_cast<int>(held.size());
  const int n = static_cast<int>(deck.size());
  std::vector<int> idx(static_cast<std::size_t>(d));
  for (int i = 0; i < d; ++i) idx[static_cast<std::size_t>(i)] = i;
  int hand[5];
  while (true) {
    int k = 0;
    bool drawnJoker = false;
    for (int h : held) hand[k++] = h;
    for (int i = 0; i < d; ++i) {
      const int c = deck[static_cast<std::size_t>(idx[static_cast<std::size_t>(i)])];
      if (c > 51) drawnJoker = true;
      hand[k++] = c;
    }
    std::sort(hand, hand + 5);
    const Byte cls = table.Class(hand);
    ++e.byClass[cls];
    ++e.total;
    if (drawnJoker) ++e.withDrawnJoker[cls];
    if (hand[3] == 52 && hand[4] == 53) ++e.twoJokersInHand[cls];
    // Next combination.
    int i = d - 1;
    while (i >= 0 && idx[static_cast<std::size_t>(i)] == n - d + i) --i;
    if (i < 0) break;
    ++idx[static_cast<std::size_t>(i)];
    for (int j = i + 1; j < d; ++j) idx[static_cast<std::size_t>(j)] = idx[static_cast<std::size_t>(j - 1)] + 1;
  }
  return e;
}

}  // namespace probtest
