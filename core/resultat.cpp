// Hand evaluation: classifies the five cards of MainTriée into RangMain.
//
// The tests run in a fixed order and later ones overwrite earlier ones: that overwriting is
// what ranks the classes, so there is no early exit. A joker (52, 53) keeps its code wherever
// ranks are compared, so it always sorts last; two jokers are recognised by the code 52 in
// index 3 of the sorted hand, which makes the second joker alone count as one joker.
#include "interface/JeuPoker.h"

namespace {
bool IsKing(int code) { return code == 11 || code == 24 || code == 37 || code == 50; }
bool IsAce(int code) { return code == 12 || code == 25 || code == 38 || code == 51; }
bool IsTen(int code) { return code == 8 || code == 21 || code == 34 || code == 47; }
bool IsJack(int code) { return code == 9 || code == 22 || code == 35 || code == 48; }
bool IsQueen(int code) { return code == 10 || code == 23 || code == 36 || code == 49; }
}  // namespace

void JeuPoker::Résultat() {
  // 1. Sort the hand ascending by code, by repeated adjacent exchange.
  bool exchanged = true;
  while (exchanged) {
    exchanged = false;
    for (int i = 0; i <= 3; ++i) {
      if (MainTriée(i + 1) < MainTriée(i)) {
        const Byte t = MainTriée(i);
        MainTriée(i) = MainTriée(i + 1);
        MainTriée(i + 1) = t;
        exchanged = true;
      }
    }
  }

  // 2. Advice set-up: where each sorted card lies, and no card kept yet. Only after a first
  // classic drawing with automatic selection on, or for a grid line; otherwise the marks of
  // the pair count fall on whatever positions were left from before.
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

  // 3. Nothing until proved otherwise.
  RangMain = 10;
  GainMain = 0;

  const bool unJoker = MainTriée(4) > 51;  // at least one joker
  const bool deuxJokers = MainTriée(3) == 52;

  // 4. A pair of kings or aces: two of them, or one with a joker.
  NbRois = 0;
  for (int i = 0; i <= 4; ++i)
    if (IsKing(MainTriée(i))) NbRois = vb::CByte(NbRois + 1);
  if (NbRois == 2 || (NbRois == 1 && unJoker)) {
    RangMain = 0;
    GainMain = 1;
  }
  NbAs = 0;
  for (int i = 0; i <= 4; ++i)
    if (IsAce(MainTriée(i))) NbAs = vb::CByte(NbAs + 1);
  if (NbAs == 2 || (NbAs == 1 && unJoker)) {
    RangMain = 0;
    GainMain = 1;
  }

  // 5. Every two ordinary cards of the same rank count once, and are marked as worth keeping.
  NbPaires = 0;
  for (int d = 13; d <= 39; d += 13) {
    for (int i = 0; i <= 3; ++i) {
      for (int j = i + 1; j <= 4; ++j) {
        if (MainTriée(i) == MainTriée(j) - d && MainTriée(j) < 52) {
          NbPaires = vb::CByte(NbPaires + 1);
          CartesGardées(PositionsMain(i)) = true;
          CartesGardées(PositionsMain(j)) = true;
        }
      }
    }
  }

  // 6. Two pairs.
  if (NbPaires == 2) {
    RangMain = 1;
    GainMain = 2;
  }

  // 7. Three of a kind: two jokers alone, a joker with a pair, or natural.
  if ((deuxJokers && NbPaires == 0) || (MainTriée(3) <= 51 && MainTriée(4) > 51 && NbPaires == 1) ||
      (MainTriée(3) <= 51 && NbPaires == 3)) {
    RangMain = 2;
    GainMain = 3;
  }

  // 8. Ranks and suit blocks. A joker keeps its code as its rank and its block is not written.
  for (int i = 0; i <= 4; ++i) {
    const Byte m = MainTriée(i);
    ValeursMain(i) = m;
    if (m < 13) {
      BlocsCouleur(i) = 0;
    } else if (m <= 25) {
      ValeursMain(i) = vb::CByte(m - 13);
      BlocsCouleur(i) = 13;
    } else if (m <= 38) {
      ValeursMain(i) = vb::CByte(m - 26);
      BlocsCouleur(i) = 26;
    } else if (m <= 51) {
      ValeursMain(i) = vb::CByte(m - 39);
      BlocsCouleur(i) = 39;
    }
  }

  // 9. Sort the ranks, the blocks following them.
  exchanged = true;
  while (exchanged) {
    exchanged = false;
    for (int i = 0; i <= 3; ++i) {
      if (ValeursMain(i + 1) < ValeursMain(i)) {
        Byte t = ValeursMain(i);
        ValeursMain(i) = ValeursMain(i + 1);
        ValeursMain(i + 1) = t;
        t = BlocsCouleur(i);
        BlocsCouleur(i) = BlocsCouleur(i + 1);
        BlocsCouleur(i + 1) = t;
        exchanged = true;
      }
    }
  }

  // 10. Straights, with the ace low and with jokers filling the gaps.
  const auto& V = ValeursMain;
  auto quinte = [this] {
    RangMain = 3;
    GainMain = 5;
  };
  if (vb::CByte(V(4) - V(0)) == 4 && NbPaires == 0) quinte();
  if (V(0) == 0 && V(1) == 1 && V(2) == 2 && V(3) == 3 && V(4) == 12) quinte();
  if (V(4) > 51 && NbPaires == 0 && vb::CByte(V(3) - V(0)) <= 4) quinte();
  if (V(4) > 51 && NbPaires == 0 && V(3) == 12 && V(2) <= 3) quinte();
  if (V(3) == 52 && NbPaires == 0 && vb::CByte(V(2) - V(0)) <= 4) quinte();
  if (V(3) == 52 && NbPaires == 0 && V(2) == 12 && V(1) < 4) quinte();

  // 11. Flushes, and straight flushes when a straight was found. The lowest card alone tells
  // whether the straight can end on the ace.
  const auto& M = MainTriée;
  for (int d = 0; d <= 39; d += 13) {
    const bool testA = M(0) >= d && M(4) < d + 13;
    const bool testB = M(0) >= d && M(3) < d + 13 && M(4) > 51;
    const bool testC = M(0) >= d && M(2) < d + 13 && M(3) == 52;
    const bool royalA = IsTen(M(0));
    const bool royalB = IsTen(M(0)) || IsJack(M(0));
    const bool royalC = IsTen(M(0)) || IsJack(M(0)) || IsQueen(M(0));
    const bool tests[3] = {testA, testB, testC};
    const bool royal[3] = {royalA, royalB, royalC};
    for (int t = 0; t < 3; ++t) {
      if (!tests[t]) continue;
      if (RangMain != 3) {
        RangMain = 4;
        GainMain = 7;
      } else if (royal[t]) {
        RangMain = 8;
        GainMain = 500;
      } else {
        RangMain = 7;
        GainMain = 100;
      }
    }
  }

  // 12. Full house: natural, or two pairs with a joker.
  if (NbPaires == 4 || (NbPaires == 2 && unJoker)) {
    RangMain = 5;
    GainMain = 10;
  }

  // 13. Four of a kind.
  if ((deuxJokers && NbPaires == 1) || (M(3) < 52 && M(4) >= 52 && NbPaires == 3) || (M(4) < 52 && NbPaires == 6)) {
    RangMain = 6;
    GainMain = 40;
  }

  // 14. Five of a kind.
  if ((NbPaires == 6 && unJoker) || (deuxJokers && NbPaires == 3)) {
    RangMain = 9;
    GainMain = 1000;
  }
}
