// Shared helpers of the tests of the two languages, the hint line, the alert line and the
// automatic mode: the hint and alert texts as the player must read them, the card names,
// the language switch, hovering over a control, and actions run from inside a yield.
#pragma once

#include <gtest/gtest.h>

#include <QMouseEvent>
#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "tests/interface/options_helpers.h"

// Texts print as text in failure messages, with the line break shown as \r.
inline void PrintTo(const QString& s, std::ostream* os) {
  *os << '"' << QString(s).replace("\r", "\\r").toStdString() << '"';
}

namespace speech {

// ---- The two languages -------------------------------------------------------------------

enum class Lang { English, French };

inline Lang Other(Lang l) { return l == Lang::English ? Lang::French : Lang::English; }
inline bool IsEnglish(Lang l) { return l == Lang::English; }
inline std::string LangName(const ::testing::TestParamInfo<Lang>& info) {
  return info.param == Lang::English ? "English" : "French";
}
// A language prints by its name in test listings and failure messages.
inline void PrintTo(Lang l, std::ostream* os) { *os << (l == Lang::English ? "English" : "French"); }

// The language button of `l`, clicked as the player does.
inline void Choose(Harness& h, Lang l) { options::Click(h, IsEnglish(l) ? "SSLangue(0)" : "SSLangue(1)"); }

// ---- The hint table ----------------------------------------------------------------------

struct HintKey {
  int key;
  const char* fr;
  const char* en;  // nullptr: the key has no English text
};

// Every key with a text; all the others of 0..201 are empty.
inline const std::vector<HintKey>& HintKeys() {
  static const std::vector<HintKey> keys = {
      {1, "Cliquez sur JOUER ou pressez la touche 'Space'", "Click on PLAY or press 'Space' key"},
      {2, "Carte rejetée\rCliquez pour la garder", "Card rejected\rClick on to keep it"},
      {3, "Carte gardée\rCliquez pour la rejeter", "Card kept\rClick to reject it"},
      {4, "Cliquez pour choisir cette carte", "Click on to choose this card"},
      {5, "QUITTE, DOUBLE ou JOUER ?", "QUIT, DOUBLE or PLAY ?"},
      {6, "Aire de jeu à 5 cartes", "5 Card game section"},
      {7, "Cliquez pour encaisser", "Click on to collect"},
      {8, "Cliquez pour risquer", "Click on to risk"},
      {9, "Sélection Automatique des cartes après le premier tirage", "Automatic cards selection after first drawing"},
      {10, "Sélection Manuelle des cartes après le premier tirage", "Manual cards selection after first drawing"},
      {11, "Carte rejetée au second tirage", "Card rejected at the second drawing"},
      {12, "Carte gardée au second tirage", "Card kept at the second drawing"},
      {13, "Votre crédit : ", "Your credit : "},
      {14, "Vos gains : ", "Your winnings : "},
      {15, "Votre mise : ", "Your bet : "},
      {16, "Mise maximum : 40", "Maximum bet : 40"},
      {17, "Niveau de mise :", "Bet level :"},
      {18, "Mise maximum : 480 (40 X 12)", "Maximum bet : 480 (40 X 12)"},
      {19, "Diminuer votre mise", "To decrease your bet"},
      {20, "Augmenter votre mise", "To Increase your bet"},
      {21, "Diminuer votre niveau de mise", "To decrease the level of your bet"},
      {22, "Augmenter votre niveau de mise", "To Increase the level of your bet"},
      {23, "Tirer les cartes\r(Touche 'Space')", "To display cards\r('Space' key)"},
      {24, "Aire de jeu à 25 cartes", "25 Card game section"},
      {25, "Cliquez pour une sélection automatisée du tirage en cours",
       "Click on for an automatic selection of the current drawing"},
      {26, "Cliquez pour annuler la sélection automatisée du tirage en cours",
       "Click on to cancel the automatic selection of the current drawing"},
      {27, "Niveau de mise N°", "Bet level NO"},
      {28, "Total des gains du tirage en cours", "Winning amount of the current drawing"},
      {29, "Main du niveau de mise N°", "Deal on the bet level NO"},
      {30, "Gains du niveau de mise N°", "Winnings of the bet level NO"},
      {31, "Aides contextuelles", "Help in dealing"},
      {32, "Affichage Lent", "Slow display"},
      {33, "Affichage Immédiat", "Instant display"},
      {37, "Cliquez pour recommencer une partie", "Click on to start a new game"},
      {38, "Cartes traditionnelles", nullptr},
      {39, "Cartes érotiques", nullptr},
      {40, "Sélectionnées", nullptr},
      {41, "Cliquez pour les sélectionner", nullptr},
      {42, "Jeu traditionnel", "Classic Game"},
      {43, "Jeu 2D", "2D Game"},
      {44, "Sélectionné", "Selected"},
      {45, "Cliquez pour le sélectionner", "Click on to select it"},
      {46, "Sélection Automatique des cartes", "Cards Automatic Selection"},
      {47, "Sélection Manuelle des cartes", "Cards Manual Selection"},
      {48, "Non disponible en Jeu 2D", "Not available in 2D Game"},
      {49, "Réduire", "Iconify"},
      {50, "Non disponible en mode Automatique", "Not available in Automatic mode"},
      {51, "Mode Automatique\rCliquez pour l'activer", "Automatic mode\rClick on to activate it"},
      {52, "Mode Automatique activé\rCliquez sur STOP pour le désactiver",
       "Automatic mode actived\rClick on STOP to desactivate it"},
      {53, "Mode Automatique\rNon disponible", "Automatic mode\rNot available"},
      {54, "Pour activer le mode Automatique\rCliquez sur AUTO", "To activate the automatic mode\rClick on AUTO"},
      {55, "Cliquez pour désactiver le mode Automatique", "Click on to desactivate the automatic mode"},
      {56, "Le mode Automatique n'est pas disponible", "The automatic mode is not available"},
      {57, "Cliquez pour quitter TALVERO", "Click on to leave TALVERO"},
      {58, "Pourcentages de réalisations pour le second tirage", "Average of winnings rates at second drawing"},
      {59, "Nombre de mains possibles", "Number of winnings leads"},
      {60, "Nombre de mains déjà tirées", "Number of already displayed leads"},
      {61, "Pourcentages de réalisations pour le premier tirage", "Average of winnings rates at first drawing"},
      {62, "52 Cartes (Sans Joker)", "52 Cards (No Wild)"},
      {63, "52 Cartes + 1 Joker", "52 Cards + 1 Wild"},
      {64, "52 Cartes + 2 Jokers", "52 Cards + 2 Wilds"},
      {69, "Cartes X\rCliquez pour les sélectionner", "X Cards\rClick on to select them"},
      {70, "Musique. Cliquez pour stopper la musique", "Music. Click on to play off the music"},
      {71, "Pas de musique. Cliquez pour activer la musique", "No music. Click on to play on the music"},
  };
  return keys;
}

// The text of hint `key` in `l`; empty for a key without one.
inline QString Hint(int key, Lang l) {
  for (const HintKey& k : HintKeys())
    if (k.key == key) {
      const char* t = IsEnglish(l) ? k.en : k.fr;
      return t ? QString::fromUtf8(t) : QString();
    }
  return {};
}

// A number as the hints write it: a leading blank in place of the sign.
inline QString Str(long long v) { return v < 0 ? QString::number(v) : " " + QString::number(v); }

// ---- Names of hands and cards --------------------------------------------------------------

inline QString SuitName(int suit, Lang l) {
  static const char* const fr[4] = {" de Trèfle", " de Carreau", " de Coeur", " de Pique"};
  static const char* const en[4] = {" of Clubs", " of Diamonds", " of Hearts", " of Spades"};
  return QString::fromUtf8(IsEnglish(l) ? en[suit] : fr[suit]);
}

inline QString CardName(int code, Lang l) {
  static const char* const fr[13] = {"2", "3", "4", "5", "6", "7", "8", "9", "10", "VALET", "DAME", "ROI", "AS"};
  static const char* const en[13] = {"2", "3", "4", "5", "6", "7", "8", "9", "10", "JACK", "QUEEN", "KING", "ACE"};
  return QString::fromUtf8(IsEnglish(l) ? en[code % 13] : fr[code % 13]) + SuitName(code / 13, l);
}

inline QString HandName(int rang, Lang l) {
  static const char* const fr[11] = {"1 PAIRE", "2 PAIRES", "BRELAN", "QUINTE", "COULEUR", "FULL",
                                     "CARRE",   "Q.F.",     "Q.F.R.", "POKER",  "RIEN"};
  static const char* const en[11] = {"1 PAIR",    "2 PAIRS", "3 of KIND", "Straight",  "FLUSH",  "FULL",
                                     "4 of KIND", "S.FLUSH", "R.FLUSH",   "5 of KIND", "NOTHING"};
  return QString::fromUtf8(IsEnglish(l) ? en[rang] : fr[rang]);
}

// ---- The alert line ------------------------------------------------------------------------

struct AlertPair {
  const char* en;
  const char* fr;
};
// The alerts translated both ways by their whole text.
inline const std::vector<AlertPair>& AlertPairs() {
  static const std::vector<AlertPair> pairs = {
      {"SECOND DRAWING : Click on PLAY or press the 'Space' key.",
       "SECOND TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'."},
      {"FIRST DRAWING : Click on PLAY or press the 'Space' key.",
       "PREMIER TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'."},
      {"NEW DRAWING : Click on PLAY or press the 'Space' key.",
       "NOUVEAU TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'."},
      {"QUIT to collect credits, DOUBLE to risk, PLAY to collect credits and play again.",
       "QUITTE pour encaisser, DOUBLE pour risquer, JOUER pour encaisser et rejouer."},
      {"No more credit ! Click on the icon up on the right handside of the screen for a new game.",
       "Crédit épuisé ! Cliquez sur l'icône situé en haut à droite de l'écran pour une nouvelle partie."},
      {"YOU LOST ! WARNING ! No more credit ! Click on the icon up on the right handside of the screen for a new game.",
       "PERDU ! Crédit épuisé ! Cliquez sur l'icône situé en haut à droite de l'écran pour une nouvelle partie."},
      {"YOU LOST ! WARNING ! No more credit ! Bet back to 1.",
       "PERDU ! ATTENTION ! Pas assez de crédit. Mises ramenées à 1."},
      {"Choose a masked card and click on its back.", "Cliquez sur une carte face cachée de votre choix"},
  };
  return pairs;
}

// The alerts that do not come back as they left.
inline const QString kLowEn = "WARNING ! No more credit ! Bet back to 1.";
inline const QString kLowFr = QString::fromUtf8("ATTENTION ! Vous n'avez plus assez de crédit. Mises ramenées à 1.");
inline const QString kLowMixed = QString::fromUtf8("WARNING ! Vous n'avez plus assez de crédit. Mises ramenées à 1.");
inline const QString kWinLowEn = "QUIT, DOUBLE or PLAY ? ATTENTION : Bet back to 1.";
inline const QString kWinLowFr = QString::fromUtf8("QUITTE, DOUBLE ou JOUER ? ATTENTION : Mises ramenées à 1.");
inline const QString kWinLowBack = "QUIT, DOUBLE or PLAY ? WARNING : Bet back to 1.";
inline const QString kGridOverFr =
    QString::fromUtf8("Crédit épuisé ! Cliquez sur l'icône situé en haut à droite pour une nouvelle partie.");

// The result of a double-up duel: won (> 0), equal (0) or lost (< 0).
inline QString DuelText(int outcome, int player, int house, Lang l) {
  const QString p = CardName(player, l), b = CardName(house, l);
  if (IsEnglish(l)) {
    if (outcome > 0) return "YOU WIN ! " + p + " is stronger then " + b + ". QUIT, DOUBLE or PLAY ?";
    if (outcome == 0) return "EQUAL ! " + p + " is equal " + b + ". QUIT, DOUBLE or PLAY ?";
    return "YOU LOST ! " + p + " is beaten by " + b + ". NEW DRAWING.";
  }
  if (outcome > 0) return "GAGNE ! " + p + QString::fromUtf8(" est plus fort que ") + b + ". QUITTE, DOUBLE ou JOUER ?";
  if (outcome == 0) return "QUITTE ! " + p + QString::fromUtf8(" est égal ") + b + ". QUITTE, DOUBLE ou JOUER ?";
  return "PERDU ! " + p + " est moins fort que " + b + ". NOUVEAU TIRAGE.";
}

// What the alert line must read after a switch to `to`, for the duel of `player` against
// `house` when one is on the table. Unknown texts stay as they are.
inline QString Translated(const QString& text, Lang to, int player, int house) {
  for (const AlertPair& p : AlertPairs()) {
    const QString from = QString::fromUtf8(IsEnglish(to) ? p.fr : p.en);
    if (text == from) return QString::fromUtf8(IsEnglish(to) ? p.en : p.fr);
  }
  if (IsEnglish(to)) {
    if (text == kLowFr) return kLowEn;
    if (text == kWinLowFr) return kWinLowBack;
    if (text.startsWith("GAGNE")) return DuelText(1, player, house, to);
    if (text.startsWith("QUITTE !")) return DuelText(0, player, house, to);
    if (text.startsWith("PERDU")) return DuelText(-1, player, house, to);
  } else {
    if (text == kLowEn) return kLowMixed;
    if (text == kWinLowEn) return kWinLowFr;
    if (text.startsWith("YOU WIN")) return DuelText(1, player, house, to);
    if (text.startsWith("EQUAL !")) return DuelText(0, player, house, to);
    if (text.startsWith("YOU LOST")) return DuelText(-1, player, house, to);
  }
  return text;
}

// ---- The mouse -----------------------------------------------------------------------------

// Moves the mouse over `name` as talvero-drive does, when the control itself lies under its
// centre. A control that is hidden, or covered there by another one (a digit over its row's
// background, a card over its table), gets the move event itself. Returns the hint line.
inline QString HoverOver(Harness& h, const QString& name) {
  JeuPoker& f = *h.form;
  const int open = name.indexOf('(');
  Control* c = f.FindControl(open < 0 ? name : name.left(open), open < 0 ? -1 : name.mid(open + 1).chopped(1).toInt());
  EXPECT_NE(c, nullptr) << name.toStdString();
  if (!c) return {};
  Control* under = nullptr;
  if (f.isVisible() && c->isVisibleTo(&f))
    for (QWidget* w = f.childAt(c->mapTo(&f, c->rect().center())); w && !under; w = w->parentWidget())
      under = dynamic_cast<Control*>(w);
  if (under == c) {
    // Inside a click still running, the click's own output must not see this move's.
    const QStringList outer = h.output;
    const QStringList out = h.Drive({"move " + name});
    h.output = outer;
    EXPECT_TRUE(out.isEmpty()) << out.join('\n').toStdString();
  } else {
    const QPointF local(c->width() / 4.0, c->height() / 4.0);
    QMouseEvent move(QEvent::MouseMove, local, c->mapToGlobal(local), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(c, &move);
  }
  return f.SSMessages->Caption();
}

// ---- Actions inside a running handler ------------------------------------------------------

// Runs `action` at the first yield at which `ready` holds, looking at every yield from now.
// Everything the game does while a long handler (a drawing, the automatic loop) is on the
// stack happens at such yields, as the player's clicks do.
inline void AtYieldWhen(Harness& h, std::function<bool()> ready, std::function<void()> action) {
  auto step = std::make_shared<std::function<void()>>();
  ScriptedPlatform* platform = &h.platform;
  *step = [platform, ready, action, step] {
    if (ready()) {
      action();
      *step = nullptr;  // breaks the cycle
      return;
    }
    platform->AtYield(1, *step);
  };
  platform->AtYield(1, *step);
}

}  // namespace speech
