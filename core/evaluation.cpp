// Hand evaluation: classifies five cards into a hand class.
//
// The tests run in a fixed order and later ones overwrite earlier ones: that overwriting is
// what ranks the classes, so there is no early exit. A joker (52, 53) keeps its code wherever
// ranks are compared, so it always sorts last; two jokers are recognised by the code 52 in
// index 3 of the sorted hand, which makes the second joker alone count as one joker.
#include "core/evaluation.h"

namespace {
bool IsKing(int code) { return code == 11 || code == 24 || code == 37 || code == 50; }
bool IsAce(int code) { return code == 12 || code == 25 || code == 38 || code == 51; }
bool IsTen(int code) { return code == 8 || code == 21 || code == 34 || code == 47; }
bool IsJack(int code) { return code == 9 || code == 22 || code == 35 || code == 48; }
bool IsQueen(int code) { return code == 10 || code == 23 || code == 36 || code == 49; }
}  // namespace

void ÉvalueMain(MainÉvaluée& m) {
  auto& M = m.triée;
  auto& V = m.valeurs;

  // Sort the hand ascending by code, by repeated adjacent exchange.
  bool exchanged = true;
  while (exchanged) {
    exchanged = false;
    for (int i = 0; i <= 3; ++i) {
      if (M[i + 1] < M[i]) {
        const Byte t = M[i];
        M[i] = M[i + 1];
        M[i + 1] = t;
        exchanged = true;
      }
    }
  }

  // Nothing until proved otherwise.
  m.rang = 10;
  m.gain = 0;
  m.appariée = {};

  const bool unJoker = M[4] > 51;  // at least one joker
  const bool deuxJokers = M[3] == 52;

  // A pair of kings or aces: two of them, or one with a joker.
  m.nbRois = 0;
  for (int i = 0; i <= 4; ++i)
    if (IsKing(M[i])) ++m.nbRois;
  if (m.nbRois == 2 || (m.nbRois == 1 && unJoker)) {
    m.rang = 0;
    m.gain = 1;
  }
  m.nbAs = 0;
  for (int i = 0; i <= 4; ++i)
    if (IsAce(M[i])) ++m.nbAs;
  if (m.nbAs == 2 || (m.nbAs == 1 && unJoker)) {
    m.rang = 0;
    m.gain = 1;
  }

  // Every two ordinary cards of the same rank count once, and are marked as worth keeping.
  m.nbPaires = 0;
  for (int d = 13; d <= 39; d += 13) {
    for (int i = 0; i <= 3; ++i) {
      for (int j = i + 1; j <= 4; ++j) {
        if (M[i] == M[j] - d && M[j] < 52) {
          ++m.nbPaires;
          m.appariée[i] = true;
          m.appariée[j] = true;
        }
      }
    }
  }
  const int nbPaires = m.nbPaires;

  // Two pairs.
  if (nbPaires == 2) {
    m.rang = 1;
    m.gain = 2;
  }

  // Three of a kind: two jokers alone, a joker with a pair, or natural.
  if ((deuxJokers && nbPaires == 0) || (M[3] <= 51 && M[4] > 51 && nbPaires == 1) || (M[3] <= 51 && nbPaires == 3)) {
    m.rang = 2;
    m.gain = 3;
  }

  // Ranks and suit blocks. A joker keeps its code as its rank and its block is not written.
  for (int i = 0; i <= 4; ++i) {
    const Byte c = M[i];
    V[i] = c;
    if (c < 13) {
      m.blocs[i] = 0;
    } else if (c <= 25) {
      V[i] = static_cast<Byte>(c - 13);
      m.blocs[i] = 13;
    } else if (c <= 38) {
      V[i] = static_cast<Byte>(c - 26);
      m.blocs[i] = 26;
    } else if (c <= 51) {
      V[i] = static_cast<Byte>(c - 39);
      m.blocs[i] = 39;
    }
  }

  // Sort the ranks, the blocks following them.
  exchanged = true;
  while (exchanged) {
    exchanged = false;
    for (int i = 0; i <= 3; ++i) {
      if (V[i + 1] < V[i]) {
        Byte t = V[i];
        V[i] = V[i + 1];
        V[i + 1] = t;
        t = m.blocs[i];
        m.blocs[i] = m.blocs[i + 1];
        m.blocs[i + 1] = t;
        exchanged = true;
      }
    }
  }

  // Straights, with the ace low and with jokers filling the gaps. The ranks are sorted, so
  // the differences are never negative.
  auto quinte = [&m] {
    m.rang = 3;
    m.gain = 5;
  };
  if (V[4] - V[0] == 4 && nbPaires == 0) quinte();
  if (V[0] == 0 && V[1] == 1 && V[2] == 2 && V[3] == 3 && V[4] == 12) quinte();
  if (V[4] > 51 && nbPaires == 0 && V[3] - V[0] <= 4) quinte();
  if (V[4] > 51 && nbPaires == 0 && V[3] == 12 && V[2] <= 3) quinte();
  if (V[3] == 52 && nbPaires == 0 && V[2] - V[0] <= 4) quinte();
  if (V[3] == 52 && nbPaires == 0 && V[2] == 12 && V[1] < 4) quinte();

  // Flushes, and straight flushes when a straight was found. The lowest card alone tells
  // whether the straight can end on the ace.
  for (int d = 0; d <= 39; d += 13) {
    const bool tests[3] = {
        M[0] >= d && M[4] < d + 13,                // no joker
        M[0] >= d && M[3] < d + 13 && M[4] > 51,   // one joker
        M[0] >= d && M[2] < d + 13 && M[3] == 52,  // two jokers
    };
    const bool royal[3] = {
        IsTen(M[0]),
        IsTen(M[0]) || IsJack(M[0]),
        IsTen(M[0]) || IsJack(M[0]) || IsQueen(M[0]),
    };
    for (int t = 0; t < 3; ++t) {
      if (!tests[t]) continue;
      if (m.rang != 3) {
        m.rang = 4;
        m.gain = 7;
      } else if (royal[t]) {
        m.rang = 8;
        m.gain = 500;
      } else {
        m.rang = 7;
        m.gain = 100;
      }
    }
  }

  // Full house: natural, or two pairs with a joker.
  if (nbPaires == 4 || (nbPaires == 2 && unJoker)) {
    m.rang = 5;
    m.gain = 10;
  }

  // Four of a kind.
  if ((deuxJokers && nbPaires == 1) || (M[3] < 52 && M[4] >= 52 && nbPaires == 3) || (M[4] < 52 && nbPaires == 6)) {
    m.rang = 6;
    m.gain = 40;
  }

  // Five of a kind.
  if ((nbPaires == 6 && unJoker) || (deuxJokers && nbPaires == 3)) {
    m.rang = 9;
    m.gain = 1000;
  }
}

Byte ClasseMain(const std::array<Byte, 5>& cartes) {
  MainÉvaluée m;
  m.triée = cartes;
  ÉvalueMain(m);
  return m.rang;
}
