// Hand evaluation on plain values: the classification of five cards into the eleven hand
// classes, with everything the automatic selection reads afterwards. The form's Résultat and
// the command-line tools both call it, so the game has one evaluation.
//
// Terms: a card is a code 0..53. Codes 0..51 are the natural cards, rank code % 13 (0 the
// two .. 12 the ace) in the suit block 13 x (code / 13) (0 clubs, 13 diamonds, 26 hearts,
// 39 spades); 52 and 53 are the jokers. A class ("rang") is 0 pair of kings or aces, 1 two
// pairs, 2 three of a kind, 3 straight, 4 flush, 5 full house, 6 four of a kind, 7 straight
// flush, 8 royal flush, 9 five of a kind, 10 nothing.
// Cache and threads: none. These are pure functions of their arguments, safe on any thread
// (the odds engine calls ClasseMain from its workers).
#pragma once

#include <array>

#include "core/vb.h"

struct MainÉvaluée {
  // In: the five codes in position order. Out: sorted ascending by code (MainTriée).
  std::array<Byte, 5> triée{};
  // Ranks sorted ascending (ValeursMain); a joker keeps its code as its rank.
  std::array<Byte, 5> valeurs{};
  // Suit blocks 0, 13, 26, 39 following the ranks (BlocsCouleur). A joker's entry is not
  // written: it keeps what the caller left there.
  std::array<Byte, 5> blocs{};
  Byte rang = 10;  // RangMain: 0 pair of kings or aces .. 9 five of a kind, 10 nothing
  Long gain = 0;   // GainMain: the multiplier for one unit of bet, the same for every deck
  Byte nbRois = 0;
  Byte nbAs = 0;
  Byte nbPaires = 0;  // every two ordinary cards of the same rank, counted once
  // By index of the sorted hand: the card is one of a same-rank pair, worth keeping.
  std::array<bool, 5> appariée{};
};

// Classifies m.triée. The tests run in a fixed order and later ones overwrite earlier ones.
void ÉvalueMain(MainÉvaluée& m);

// The class alone of five cards, in any order.
Byte ClasseMain(const std::array<Byte, 5>& cartes);
