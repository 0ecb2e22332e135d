// Helpers of the tests of the frame's buttons (game switch, jokers, new game, speed, rules,
// title): dealt cards, the situations of a deal reached as a player reaches them, the odds
// at rest, and a record of the screen and the table to tell that a click changed nothing.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/helpers.h"

namespace options {

// ClignoteAlertes: seven times 40 ms and 150 ms.
constexpr long long kBlinkMs = 7 * (40 + 150);

// Five cards of the classic game, by code (13 x suit + rank, two .. ace = 0..12).
inline const std::vector<int> kHandNothing{0, 16, 31, 46, 9};  // 2C 5D 7H 9S JC
inline const std::vector<int> kHandKings{11, 24, 26, 42, 7};   // KC KD 2H 5S 9C: pays 1 x Mise

// Twenty-five grid cards in position order. No row, column or diagonal holds a pair, a
// straight or a flush, so every line is worth nothing at any level.
inline const std::vector<int> kGridNothing{13, 38, 14, 49, 5, 40, 29, 6,  15, 37, 50, 10, 33,
                                           0,  32, 7,  43, 9, 31, 8,  47, 45, 26, 11, 41};
// Four kings and the two of clubs in the top row, low cards elsewhere.
inline const std::vector<int> kGridFourKings{11, 24, 37, 50, 0,  1,  2,  3,  4,  5,  6,  7, 8,
                                             9,  10, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22};

inline const QString kFirstDrawingEn = "FIRST DRAWING : Click on PLAY or press the 'Space' key.";
inline const QString kNewDrawingEn = "NEW DRAWING : Click on PLAY or press the 'Space' key.";
inline const QString kNewDrawingFr = "NOUVEAU TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.";

// Pay multipliers of the classic game by jokers (0..2) and class (0..9).
inline const Long kTableGains[3][10] = {
    {1, 2, 5, 7, 10, 30, 100, 250, 750, 1000},
    {1, 2, 4, 5, 7, 12, 40, 100, 500, 1000},
    {1, 2, 3, 4, 5, 7, 25, 70, 300, 750},
};

// The odds at rest by row (0..11) and jokers (0..2).
inline const char* const kCounts[12][3] = {
    {"206112", "337536", "467160"},
    {"123552", "123552", "123552"},
    {"54912", "137280", "267416"},
    {"10200", "20532", "34704"},
    {"5108", "7804", "11388"},
    {"3744", "9360", "14976"},
    {"624", "3120", "9360"},
    {"36", "180", "540"},
    {"4", "24", "84"},
    {"0", "13", "78"},
    {"2194668", "2230284", "2233252"},
    {"404292", "639401", "929258"},
};
inline const int kWhole[12][3] = {{7, 11, 14}, {4, 4, 3}, {2, 4, 8}, {0, 0, 1}, {0, 0, 0},    {0, 0, 0},
                                  {0, 0, 0},   {0, 0, 0}, {0, 0, 0}, {0, 0, 0}, {84, 77, 70}, {15, 22, 29}};
inline const char* const kDecimals[12][3] = {
    {".930556", ".762126", ".771811"}, {".753901", ".305420", ".906770"}, {".112845", ".783800", ".455815"},
    {".392464", ".715479", ".097356"}, {".196540", ".271946", ".360094"}, {".144057", ".326168", ".473548"},
    {".024009", ".108722", ".299967"}, {".001385", ".006272", ".017075"}, {".000153", ".000836", ".002656"},
    {".000000", ".000453", ".002467"}, {".444085", ".718774", ".616441"}, {".555915", ".281226", ".383559"},
};
inline const char* const kHeads[3] = {"?/2598960", "?/2869685", "?/3162510"};

// The head of the count column and the twelve rows at rest for `jokers`; without a joker
// the five-of-a-kind row stays empty.
inline void ExpectPanelAtRest(const JeuPoker& f, int jokers) {
  EXPECT_EQ(f.UnSur->Caption(), kHeads[jokers]);
  for (int i = 0; i <= 11; ++i) {
    SCOPED_TRACE("row " + std::to_string(i));
    if (jokers == 0 && i == 9) {
      EXPECT_EQ(f.PourcDéc(9).Caption(), "");
      EXPECT_EQ(f.Pourcentages(9).Caption(), "");
      EXPECT_EQ(f.Fractions(9).Caption(), "");
      continue;
    }
    EXPECT_EQ(f.PourcDéc(i).Caption(), QString::number(kWhole[i][jokers]));
    EXPECT_EQ(f.Pourcentages(i).Caption(), kDecimals[i][jokers]);
    EXPECT_EQ(f.Fractions(i).Caption(), kCounts[i][jokers]);
  }
}

inline bool GridCovered(const JeuPoker& f) {
  for (int p = 0; p <= 24; ++p)
    if (!FaceDown(f, f.Deal2(p))) return false;
  return true;
}

inline bool GridShows(const JeuPoker& f, const std::vector<int>& grid) {
  for (int p = 0; p <= 24; ++p)
    if (f.Deal2(p).GetPicture() != f.Cartes2(grid[p]).GetPicture()) return false;
  return true;
}

// ---- Situations of a deal, reached by the player's clicks ------------------------------

inline void Click(Harness& h, const QString& name) {
  const QStringList out = h.Drive({"click " + name});
  EXPECT_TRUE(out.isEmpty()) << out.join('\n').toStdString();
}

inline void ToGrid(Harness& h) {
  Click(h, "Jeu3D");
  ASSERT_TRUE(h.form->SSAireJeu5->Visible());
}

// The classic game's first drawing of `hand`.
inline void FirstDrawing1(Harness& h, const std::vector<int>& hand) {
  h.platform.QueueDraws(hand);
  Click(h, "Jouer");
  ASSERT_EQ(h.form->NbTirées, 5);
}

// Between the classic drawings: every card held, by clicks on the rejected ones.
inline void HoldAll(Harness& h) {
  JeuPoker& f = *h.form;
  for (int i = 0; i <= 4; ++i)
    if (f.Jouez(i).Caption() != f.MotCarteGardée()) Click(h, QStringLiteral("Deal(%1)").arg(i));
  for (int i = 0; i <= 4; ++i) ASSERT_EQ(f.Jouez(i).Caption(), f.MotCarteGardée());
}

// A classic round played to its end with all five cards held.
inline void Round1(Harness& h, const std::vector<int>& hand) {
  FirstDrawing1(h, hand);
  HoldAll(h);
  Click(h, "Jouer");
  ASSERT_EQ(h.form->NbTirées, 10);
}

// A pair of kings waits to be collected or risked.
inline void WinWaiting1(Harness& h) {
  Round1(h, kHandKings);
  ASSERT_TRUE(h.form->Doubler->Visible());
}

// The classic double-up waits for the player's card; the house shows the seven of clubs.
inline void Doubling1(Harness& h) {
  WinWaiting1(h);
  h.platform.QueueDraws({5, 0});
  Click(h, "Double1X5");
  ASSERT_TRUE(h.form->DoubleEnCours);
}

// A classic round lost with the last credit.
inline void NoCredit1(Harness& h) {
  h.Drive({"set Capital 1"});
  Round1(h, kHandNothing);
  ASSERT_EQ(h.form->Capital, 0);
}

// The grid's first drawing of `grid`.
inline void FirstDrawing2(Harness& h, const std::vector<int>& grid) {
  h.platform.QueueDraws(grid);
  Click(h, "Jouer");
  ASSERT_EQ(h.form->NbTirées, 25);
}

// A grid deal played to its end with no card turned down.
inline void Round2(Harness& h, const std::vector<int>& grid) {
  FirstDrawing2(h, grid);
  Click(h, "Jouer");
  ASSERT_EQ(h.form->NbTirées, 50);
}

// Four kings in line 1 wait to be collected or risked.
inline void WinWaiting2(Harness& h) {
  Round2(h, kGridFourKings);
  ASSERT_TRUE(h.form->Doubler5->Visible());
}

// The grid's double-up waits for the player's card; the house shows the seven of clubs.
inline void Doubling2(Harness& h) {
  WinWaiting2(h);
  h.platform.QueueDraws({5, 0});
  Click(h, "Double5X5");
  ASSERT_TRUE(h.form->DoubleEnCours);
}

// A grid deal lost with the last credit.
inline void NoCredit2(Harness& h) {
  h.Drive({"set Capital 1"});
  Round2(h, kGridNothing);
  ASSERT_EQ(h.form->Capital, 0);
}

// A situation in which the game and deck switches refuse.
struct Refusing {
  const char* name;
  bool grid;  // reached in JEU 2
  std::function<void(Harness&)> reach;
};

inline const std::vector<Refusing>& RefusingSituations() {
  static const std::vector<Refusing> all = {
      {"ClassicBetweenDrawings", false, [](Harness& h) { FirstDrawing1(h, kHandNothing); }},
      {"GridBetweenDrawings", true,
       [](Harness& h) {
         ToGrid(h);
         FirstDrawing2(h, kGridNothing);
       }},
      {"ClassicWinWaiting", false, WinWaiting1},
      {"GridWinWaiting", true,
       [](Harness& h) {
         ToGrid(h);
         WinWaiting2(h);
       }},
      {"ClassicDoubleUp", false, Doubling1},
      {"GridDoubleUp", true,
       [](Harness& h) {
         ToGrid(h);
         Doubling2(h);
       }},
      {"ClassicNoCredit", false, NoCredit1},
      {"GridNoCredit", true,
       [](Harness& h) {
         ToGrid(h);
         NoCredit2(h);
       }},
  };
  return all;
}

inline std::string RefusingName(const ::testing::TestParamInfo<size_t>& info) {
  return RefusingSituations()[info.param].name;
}

// ---- A record of the screen and the table ------------------------------------------------

// Everything that a game or deck switch, a new game or a refusal may touch, as "name=value"
// lines. The alert line's colour is left out: every blink changes it for good.
inline std::vector<std::string> Record(const JeuPoker& f) {
  std::vector<std::string> r;
  auto put = [&](const QString& key, const QString& value) { r.push_back((key + "=" + value).toStdString()); };
  auto pic = [](Picture p) { return p ? p->name : QStringLiteral("none"); };
  auto num = [](long long v) { return QString::number(v); };
  auto control = [&](const Control& c) {
    const QString n = c.FullName();
    put(n + ".Caption", c.Caption());
    put(n + ".Visible", num(c.Visible()));
    put(n + ".Geometry", QStringLiteral("%1,%2,%3,%4").arg(c.Left()).arg(c.Top()).arg(c.Width()).arg(c.Height()));
    put(n + ".ForeColor", num(c.ForeColor()));
    put(n + ".BackColor", num(c.BackColor()));
    put(n + ".MousePointer", num(c.MousePointer()));
    put(n + ".BevelWidth", num(c.BevelWidth()));
    put(n + ".Picture", pic(c.GetPicture()));
  };
  for (const Control* c :
       {f.Jeu,          f.SSAides,    f.JeuSimple,  f.Jeu3D,         f.SSJeuSimple, f.SSJeu3D,        f.JeuSimpleLabel,
        f.Jeu3DLabel,   f.ParesseNon, f.ParesseOui, f.PParesseNon,   f.PParesseOui, f.SSAireJeu,      f.SSAireJeu5,
        f.SSTirage,     f.SSMises,    f.SSGains,    f.PourCentLabel, f.UnSur,       f.FréquenceTitre, f.Gains,
        f.Mises,        f.UnADouze,   f.Doubler,    f.Doubler5,      f.Jouez5,      f.SSConseils5,    f.AutoPlay,
        f.AutoPlayStop, f.Jouer})
    control(*c);
  put("SSAlertes.Caption", f.SSAlertes->Caption());
  auto array = [&](const ControlArray<Control>& a) {
    for (int i = a.Low(); i <= a.High(); ++i) control(a(i));
  };
  for (const auto* a :
       {&f.NJokerSélection, &f.SSVitesse, &f.PSSVitesse,   &f.Maintitre,      &f.MainLabel,     &f.PourcDéc,
        &f.Pourcentages,    &f.Fractions, &f.Fréquence,    &f.Jouez,          &f.ImageConseils, &f.Deal,
        &f.Deal2,           &f.Mains5,    &f.Gains5,       &f.UnADouzeTémoin, &f.UnADouzeLine,  &f.CapImage,
        &f.GainImage,       &f.MiseImage, &f.UnàDouzeImage})
    array(*a);
  put("NbTirées", num(f.NbTirées));
  put("Capital", num(f.Capital));
  put("Mise", num(f.Mise));
  put("Niveau", num(f.Niveau));
  put("GainMain", num(f.GainMain));
  put("GainTirage", num(f.GainTirage));
  put("RangMain", num(f.RangMain));
  put("DoubleEnCours", num(f.DoubleEnCours));
  put("NbJokers", num(f.NbJokers));
  put("TailleJeu", num(f.TailleJeu));
  put("AffichageImmédiat", num(f.AffichageImmédiat));
  for (int k = 1; k <= 50; ++k) put(QStringLiteral("CartesSorties(%1)").arg(k), num(f.CartesSorties(k)));
  for (int p = 0; p <= 24; ++p) put(QStringLiteral("CartesTirage(%1)").arg(p), num(f.CartesTirage(p)));
  for (int i = 0; i <= 9; ++i) put(QStringLiteral("TableGains(%1)").arg(i), num(f.TableGains(i)));
  for (int i = 0; i <= 9; ++i) put(QStringLiteral("Fréquences(%1)").arg(i), num(f.Fréquences(i)));
  return r;
}

// The lines of the record that differ, "before -> after", one a line; empty when none.
inline std::string Changes(const std::vector<std::string>& before, const std::vector<std::string>& after) {
  std::string out;
  for (size_t i = 0; i < before.size() && i < after.size(); ++i)
    if (before[i] != after[i]) out += before[i] + " -> " + after[i] + "\n";
  if (before.size() != after.size()) out += "record sizes differ\n";
  return out;
}

// What a click cost in sleeps and yields.
struct Watch {
  explicit Watch(const Harness& h) : h(&h), slept(h.platform.sleptMs), yields(h.platform.yields) {}
  long long Slept() const { return h->platform.sleptMs - slept; }
  long long Yields() const { return h->platform.yields - yields; }
  const Harness* h;
  long long slept;
  long long yields;
};

// Clicks `name` with the focus elsewhere, and checks that the click blinked the alert line,
// changed nothing else and gave the focus to Tirage.
inline void ExpectRefused(Harness& h, const QString& name) {
  SCOPED_TRACE("click " + name.toStdString());
  JeuPoker& f = *h.form;
  f.SSLangue(0).SetFocus();
  const auto before = Record(f);
  const Watch w(h);
  Click(h, name);
  EXPECT_EQ(w.Slept(), kBlinkMs);
  EXPECT_EQ(Changes(before, Record(f)), "");
  EXPECT_EQ(f.focusWidget(), f.Tirage);
}

// Clicks `name` with the focus elsewhere, and checks that nothing changed, without a blink,
// and that the focus went to Tirage.
inline void ExpectIgnored(Harness& h, const QString& name) {
  SCOPED_TRACE("click " + name.toStdString());
  JeuPoker& f = *h.form;
  f.SSLangue(0).SetFocus();
  const auto before = Record(f);
  const Watch w(h);
  Click(h, name);
  EXPECT_EQ(w.Slept(), 0);
  EXPECT_EQ(w.Yields(), 0);
  EXPECT_EQ(Changes(before, Record(f)), "");
  EXPECT_EQ(f.focusWidget(), f.Tirage);
}

}  // namespace options
