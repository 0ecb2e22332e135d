// Helpers of the tests of JEU 2, the 5 x 5 grid: card codes, the twelve lines, an evaluator of
// a line written here (independent of the game's own), the advice a line should keep, the
// screen texts, and the player's moves on the grid.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "tests/interface/options_helpers.h"

namespace grid {

using options::Click;
using options::kBlinkMs;
using options::Watch;

// ---- Cards ---------------------------------------------------------------------------------

enum Rank { Two, Three, Four, Five, Six, Seven, Eight, Nine, Ten, Jack, Queen, King, Ace };
enum Suit { Clubs, Diamonds, Hearts, Spades };
constexpr int Card(int rank, int suit) { return 13 * suit + rank; }
constexpr int kJoker1 = 52;
constexpr int kJoker2 = 53;
constexpr bool IsJoker(int code) { return code >= 52; }
constexpr int RankOf(int code) { return code % 13; }
constexpr int SuitOf(int code) { return code / 13; }

using Grid = std::vector<int>;  // 25 codes in position order (5 x row + column)

// A short name for messages of failed checks: "KH", "TC", "J1".
inline std::string Short(int code) {
  if (IsJoker(code)) return code == kJoker1 ? "J1" : "J2";
  return std::string(1, "23456789TJQKA"[RankOf(code)]) + "CDHS"[SuitOf(code)];
}

inline std::string Show(const Grid& g) {
  std::string s;
  for (int p = 0; p < 25; ++p) s += Short(g[p]) + (p % 5 == 4 ? (p == 24 ? "" : " / ") : " ");
  return s;
}

// `base` with each (position, code) placed; a code already elsewhere in the grid swaps
// places with the one it replaces, so that the 25 codes stay distinct.
inline Grid With(Grid base, const std::vector<std::pair<int, int>>& placed) {
  for (const auto& [pos, code] : placed) {
    const auto it = std::find(base.begin(), base.end(), code);
    if (it != base.end()) *it = base[pos];
    base[pos] = code;
  }
  return base;
}

// Codes of the deck of `size` cards that are not in `used`, in ascending order.
inline std::vector<int> Unused(const std::vector<int>& used, int size) {
  std::vector<int> out;
  for (int c = 0; c < size; ++c)
    if (std::find(used.begin(), used.end(), c) == used.end()) out.push_back(c);
  return out;
}

// ---- The twelve lines ----------------------------------------------------------------------

// The positions of each line in the order it reads them: five rows, five columns, the
// descending diagonal and the rising one.
inline constexpr std::array<std::array<int, 5>, 12> kLines = {{
    {0, 1, 2, 3, 4},
    {5, 6, 7, 8, 9},
    {10, 11, 12, 13, 14},
    {15, 16, 17, 18, 19},
    {20, 21, 22, 23, 24},
    {0, 5, 10, 15, 20},
    {1, 6, 11, 16, 21},
    {2, 7, 12, 17, 22},
    {3, 8, 13, 18, 23},
    {4, 9, 14, 19, 24},
    {0, 6, 12, 18, 24},
    {20, 16, 12, 8, 4},
}};

inline std::array<int, 5> LineCards(const Grid& g, int line) {
  std::array<int, 5> out{};
  for (int j = 0; j < 5; ++j) out[j] = g[kLines[line][j]];
  return out;
}

// ---- Grids used by several files -----------------------------------------------------------

using options::kGridFourKings;  // four kings and the two of clubs in line 1, a straight flush in line 2
using options::kGridNothing;    // no line pays, no line holds a pair, at any level

// Four cards that turn line 1 of kGridFourKings into nothing with the two of clubs left there:
// 3H 6H TH QS.
inline const std::vector<int> kQuietForFourKings{Card(Three, Hearts), Card(Six, Hearts), Card(Ten, Hearts),
                                                 Card(Queen, Spades)};

// kGridNothing with the ace-low straight 2D AH 3D 4C 5S in line 1; no other line pays.
inline const Grid kGridWheel = With(kGridNothing, {{3, Card(Four, Clubs)}, {4, Card(Five, Spades)}});

// Both jokers on the middle row. Joker 1 at the centre serves lines 3, 8, 11 and 12; joker 2
// beside it serves lines 3 and 9:
//   7S KC 2H AD 8S
//   2D 5D QH 3S TC
//   4C 9D J1 J2 KS     line 3: three of a kind
//   9S TD JH 6C QD
//   AC 3H 9H 8D 4H
// Line 8 (2H QH J1 JH 9H) a flush, line 9 (AD 3S J2 6C 8D) and line 12 (AC TD J1 3S 8S) a pair
// of aces, line 11 (7S 5D J1 6C 4H) a straight, every other line nothing: 17 for a bet of 1.
inline const Grid kGridCrossing{44, 11, 26, 25, 45, 13, 16, 36, 40, 8,  2,  20, 52,
                                53, 50, 46, 21, 35, 4,  23, 12, 27, 33, 19, 28};

// ---- Hand classes and an evaluator of our own ----------------------------------------------

enum Class { PairKA, TwoPairs, Trips, Straight, Flush, FullHouse, Quads, StraightFlush, Royal, FiveKind, Nothing };

// What one line pays for a bet of 1, whatever the number of jokers.
inline constexpr int kScale[11] = {1, 2, 3, 5, 7, 10, 40, 100, 500, 1000, 0};
inline const char* const kNamesEn[11] = {"1 PAIR",    "2 PAIRS", "3 of KIND", "Straight",  "FLUSH",  "FULL",
                                         "4 of KIND", "S.FLUSH", "R.FLUSH",   "5 of KIND", "NOTHING"};
inline const char* const kNamesFr[11] = {"1 PAIRE", "2 PAIRES", "BRELAN", "QUINTE", "COULEUR", "FULL",
                                         "CARRE",   "Q.F.",     "Q.F.R.", "POKER",  "RIEN"};

// Five real cards, given as ranks and suits; the same card may come twice (a joker standing
// for a card already in the hand).
inline int NaturalClass(const std::array<int, 5>& ranks, const std::array<int, 5>& suits) {
  std::array<int, 13> count{};
  for (int r : ranks) ++count[r];
  std::vector<int> groups;
  for (int c : count)
    if (c > 0) groups.push_back(c);
  std::sort(groups.rbegin(), groups.rend());
  const bool flush = std::all_of(suits.begin(), suits.end(), [&](int s) { return s == suits[0]; });
  bool straight = false;
  bool toAce = false;
  if (groups.size() == 5) {
    const int lo = *std::min_element(ranks.begin(), ranks.end());
    const int hi = *std::max_element(ranks.begin(), ranks.end());
    const bool wheel = count[Ace] && count[Two] && count[Three] && count[Four] && count[Five];
    straight = hi - lo == 4 || wheel;
    toAce = hi - lo == 4 && hi == Ace;
  }
  if (groups[0] == 5) return FiveKind;
  if (straight && flush) return toAce ? Royal : StraightFlush;
  if (groups[0] == 4) return Quads;
  if (groups[0] == 3 && groups[1] == 2) return FullHouse;
  if (flush) return Flush;
  if (straight) return Straight;
  if (groups[0] == 3) return Trips;
  if (groups[0] == 2 && groups[1] == 2) return TwoPairs;
  if (groups[0] == 2 && (count[King] == 2 || count[Ace] == 2)) return PairKA;
  return Nothing;
}

// The best that the five codes make, each joker standing for whichever card pays most.
inline int Classify(const std::array<int, 5>& codes) {
  std::array<int, 5> ranks{}, suits{};
  std::vector<int> wild;
  for (int i = 0; i < 5; ++i) {
    if (IsJoker(codes[i])) {
      wild.push_back(i);
    } else {
      ranks[i] = RankOf(codes[i]);
      suits[i] = SuitOf(codes[i]);
    }
  }
  int best = Nothing;
  auto better = [](int a, int b) { return kScale[a] > kScale[b]; };
  const int tries = wild.empty() ? 1 : wild.size() == 1 ? 52 : 52 * 52;
  for (int t = 0; t < tries; ++t) {
    int rest = t;
    for (int i : wild) {
      ranks[i] = RankOf(rest % 52);
      suits[i] = SuitOf(rest % 52);
      rest /= 52;
    }
    const int c = NaturalClass(ranks, suits);
    if (better(c, best)) best = c;
  }
  return best;
}

inline int ClassifyLine(const Grid& g, int line) { return Classify(LineCards(g, line)); }

// The places of a line that the advice keeps: every card that pairs with another real card
// of the line, every joker, the aces (else the kings) of a pair of aces or kings, and all
// five of a straight, a flush or better, or five of a kind.
inline std::array<bool, 5> AdviceKeeps(const std::array<int, 5>& codes) {
  std::array<bool, 5> keep{};
  const int cls = Classify(codes);
  int jokers = 0, aces = 0, kings = 0;
  for (int c : codes) {
    jokers += IsJoker(c);
    aces += !IsJoker(c) && RankOf(c) == Ace;
    kings += !IsJoker(c) && RankOf(c) == King;
  }
  for (int i = 0; i < 5; ++i) {
    if (IsJoker(codes[i])) {
      keep[i] = true;
      continue;
    }
    for (int j = 0; j < 5; ++j)
      if (j != i && !IsJoker(codes[j]) && RankOf(codes[j]) == RankOf(codes[i])) keep[i] = true;
  }
  if (cls == PairKA) {
    int high = -1;
    if (aces == 2 || (aces == 1 && jokers > 0))
      high = Ace;
    else if (kings == 2 || (kings == 1 && jokers > 0))
      high = King;
    for (int i = 0; i < 5; ++i)
      if (!IsJoker(codes[i]) && RankOf(codes[i]) == high) keep[i] = true;
  }
  if (cls == Straight || cls == Flush || cls == StraightFlush || cls == Royal || cls == FiveKind) keep.fill(true);
  return keep;
}

// The positions that the advice keeps at `level`: the union over the lines in play.
inline std::set<int> AdviceKept(const Grid& g, int level) {
  std::set<int> kept;
  for (int line = 0; line < level; ++line) {
    const auto keep = AdviceKeeps(LineCards(g, line));
    for (int j = 0; j < 5; ++j)
      if (keep[j]) kept.insert(kLines[line][j]);
  }
  return kept;
}

// ---- What the screen says ------------------------------------------------------------------

struct Text {
  const char* en;
  const char* fr;
};
inline const Text kSecondDrawing{"SECOND DRAWING : Click on PLAY or press the 'Space' key.",
                                 "SECOND TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'."};
inline const Text kMessageA{"QUIT to collect credits, DOUBLE to risk, PLAY to collect credits and play again.",
                            "QUITTE pour encaisser, DOUBLE pour risquer, JOUER pour encaisser et rejouer."};
inline const Text kMessageB{"QUIT, DOUBLE or PLAY ? ATTENTION : Bet back to 1.",
                            "QUITTE, DOUBLE ou JOUER ? ATTENTION : Mises ramenées à 1."};
inline const Text kMessageC{"NEW DRAWING : Click on PLAY or press the 'Space' key.",
                            "NOUVEAU TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'."};
inline const Text kMessageD{"WARNING ! No more credit ! Bet back to 1.",
                            "ATTENTION ! Vous n'avez plus assez de crédit. Mises ramenées à 1."};
inline const Text kMessageE{"No more credit ! Click on the icon up on the right handside of the screen for a new game.",
                            "Crédit épuisé ! Cliquez sur l'icône situé en haut à droite pour une nouvelle partie."};
inline const Text kChooseCard{"Choose a masked card and click on its back.",
                              "Cliquez sur une carte face cachée de votre choix"};
inline const Text kLostBetBack{"YOU LOST ! WARNING ! No more credit ! Bet back to 1.",
                               "PERDU ! ATTENTION ! Pas assez de crédit. Mises ramenées à 1."};
inline const Text kLostNoCredit{
    "YOU LOST ! WARNING ! No more credit ! Click on the icon up on the right handside of the screen for a new game.",
    "PERDU ! Crédit épuisé ! Cliquez sur l'icône situé en haut à droite de l'écran pour une nouvelle partie."};

inline QString Say(const JeuPoker& f, const Text& t) { return QString::fromUtf8(English(f) ? t.en : t.fr); }
inline QString ClassName(const JeuPoker& f, int cls) {
  return QString::fromUtf8(English(f) ? kNamesEn[cls] : kNamesFr[cls]);
}

// The card's name in the double-up's messages.
inline QString CardName(const JeuPoker& f, int code) {
  static const char* const ranksEn[13] = {"2", "3", "4", "5", "6", "7", "8", "9", "10", "JACK", "QUEEN", "KING", "ACE"};
  static const char* const ranksFr[13] = {"2", "3", "4", "5", "6", "7", "8", "9", "10", "VALET", "DAME", "ROI", "AS"};
  static const char* const suitsEn[4] = {" of Clubs", " of Diamonds", " of Hearts", " of Spades"};
  static const char* const suitsFr[4] = {" de Trèfle", " de Carreau", " de Coeur", " de Pique"};
  const bool en = English(f);
  return QString::fromUtf8(en ? ranksEn[RankOf(code)] : ranksFr[RankOf(code)]) +
         QString::fromUtf8(en ? suitsEn[SuitOf(code)] : suitsFr[SuitOf(code)]);
}

// ---- The player's moves ------------------------------------------------------------------

inline void ClickCard(Harness& h, int p) { Click(h, QStringLiteral("Deal2(%1)").arg(p)); }

// Clicks NJokerSélection(n) as a player would, unless that deck is already chosen.
inline void ChooseJokers(Harness& h, int n) {
  if (h.form->NbJokers != n) Click(h, QStringLiteral("NJokerSélection(%1)").arg(n));
  ASSERT_EQ(h.form->NbJokers, n);
  ASSERT_EQ(h.form->TailleJeu, 52 + n);
}

// Steps the level up with Plus5 (wrapping from 12 to 1) until it is `level`.
inline void ChooseLevel(Harness& h, int level) {
  for (int i = 0; i < 12 && h.form->Niveau != level; ++i) Click(h, "Plus5");
  ASSERT_EQ(h.form->Niveau, level);
}

// Plus (the bet per line) up to `mise`.
inline void ChooseMise(Harness& h, int mise) {
  for (int i = 0; i < 40 && h.form->Mise != mise; ++i) Click(h, "Plus");
  ASSERT_EQ(h.form->Mise, mise);
}

// The grid's second drawing with `codes` queued for the face-down positions.
inline void SecondDrawing(Harness& h, const std::vector<int>& codes) {
  h.platform.QueueDraws(codes);
  Click(h, "Jouer");
  ASSERT_EQ(h.form->NbTirées, 50);
}

inline std::set<int> FaceDownPositions(const JeuPoker& f) {
  std::set<int> out;
  for (int p = 0; p <= 24; ++p)
    if (FaceDown(f, f.Deal2(p))) out.insert(p);
  return out;
}

inline bool Shows(const JeuPoker& f, int p, int code) {
  return f.Deal2(p).GetPicture() == f.Cartes2(code).GetPicture();
}

// The cards on the table, read from the variable that holds them.
inline Grid Table(const JeuPoker& f) {
  Grid g(25);
  for (int p = 0; p < 25; ++p) g[p] = f.CartesTirage(p);
  return g;
}

// Every position but those of `kept`.
inline std::set<int> AllBut(const std::set<int>& kept) {
  std::set<int> out;
  for (int p = 0; p < 25; ++p)
    if (!kept.count(p)) out.insert(p);
  return out;
}

// The running tally of hands by class, in the variable and in the column.
inline void ExpectTally(const JeuPoker& f, const std::array<int, 10>& tally) {
  for (int i = 0; i <= 9; ++i) {
    EXPECT_EQ(f.Fréquences(i), tally[i]) << "class " << i;
    if (tally[i] > 0) {
      EXPECT_EQ(f.Fréquence(i).Caption(), QString::number(tally[i])) << "class " << i;
    }
  }
}

// Checks every line's name and price against our evaluator, the lines out of play empty,
// and the total; returns the total.
inline long long ExpectSettlement(const JeuPoker& f, const Grid& g, int level, int mise) {
  long long total = 0;
  for (int line = 0; line < 12; ++line) {
    SCOPED_TRACE("line " + std::to_string(line + 1) + " of " + Show(g));
    if (line < level) {
      const int cls = ClassifyLine(g, line);
      const long long price = static_cast<long long>(kScale[cls]) * mise;
      EXPECT_EQ(f.Mains5(line).Caption(), ClassName(f, cls));
      EXPECT_EQ(f.Gains5(line).Caption(), QString::number(price));
      EXPECT_EQ(f.MainsLignes(line), cls);
      total += price;
    } else {
      EXPECT_EQ(f.Mains5(line).Caption(), "");
      EXPECT_EQ(f.Gains5(line).Caption(), "");
    }
  }
  EXPECT_EQ(f.Gains5(12).Caption(), QString::number(total));
  EXPECT_EQ(f.GainTirage, total);
  return total;
}

// A line in play shows its labels and drawn line on a yellow tag; one out of play hides them
// on a grey tag.
inline void ExpectLinesInPlay(const JeuPoker& f, int level) {
  for (int i = 0; i < 12; ++i) {
    SCOPED_TRACE("line " + std::to_string(i + 1));
    const bool on = i < level;
    EXPECT_EQ(f.Mains5(i).Visible(), on);
    EXPECT_EQ(f.Gains5(i).Visible(), on);
    EXPECT_EQ(f.UnADouzeLine(i).Visible(), on);
    EXPECT_EQ(f.UnADouzeTémoin(i).BackColor(), on ? 0x00FFFF : 0x808080);
  }
}

// The number that a row of digit slots shows, read off the digit pictures left to right;
// empty when every slot is hidden.
inline QString Digits(const JeuPoker& f, const ControlArray<Control>& digits) {
  QString s;
  for (int i = digits.Low(); i <= digits.High(); ++i) {
    if (!digits.Has(i)) continue;
    const Control& d = digits(i);
    if (!d.Visible()) continue;
    for (int k = 0; k <= 29; ++k)
      if (d.GetPicture() == f.ChiffresModèle(k).GetPicture()) {
        s += QString::number(k % 10);
        break;
      }
  }
  return s;
}

}  // namespace grid
