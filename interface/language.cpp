// Language tables and the switch between French and English.
#include <QStringList>
#include <span>

#include "core/table_facts.h"
#include "interface/JeuPoker.h"

void JeuPoker::RemplitNomsValeurs() {
  static const char* const kRangsFr[13] = {"2", "3", "4", "5", "6", "7", "8", "9", "10", "VALET", "DAME", "ROI", "AS"};
  static const char* const kRangsEn[13] = {"2", "3",  "4",    "5",     "6",    "7",  "8",
                                           "9", "10", "JACK", "QUEEN", "KING", "ACE"};
  static const char* const kCouleursFr[4] = {" de Trèfle", " de Carreau", " de Coeur", " de Pique"};
  static const char* const kCouleursEn[4] = {" of Clubs", " of Diamonds", " of Hearts", " of Spades"};
  const bool english = Anglais(Langue);
  for (int s = 0; s <= 3; ++s) NomsCouleurs(s) = QString::fromUtf8(english ? kCouleursEn[s] : kCouleursFr[s]);
  for (int s = 0; s <= 3; ++s)
    for (int r = 0; r <= 12; ++r)
      NomsValeurs(s * 13 + r) = QString::fromUtf8(english ? kRangsEn[r] : kRangsFr[r]) + NomsCouleurs(s);
}

void JeuPoker::RemplitNomsMains() {
  static const char* const kFr[11] = {"1 PAIRE", "2 PAIRES", "BRELAN", "QUINTE", "COULEUR", "FULL",
                                      "CARRE",   "Q.F.",     "Q.F.R.", "POKER",  "RIEN"};
  static const char* const kEn[11] = {"1 PAIR",    "2 PAIRS", "3 of KIND", "Straight",  "FLUSH",  "FULL",
                                      "4 of KIND", "S.FLUSH", "R.FLUSH",   "5 of KIND", "NOTHING"};
  const bool english = Anglais(Langue);
  for (int i = 0; i <= 10; ++i) NomsMains(i) = QString::fromUtf8(english ? kEn[i] : kFr[i]);
}

// The rules page, each label joined from its pieces; CR is one line break.
void JeuPoker::ConstruitAides(bool anglais) {
  const QString cr = QStringLiteral("\r");
  QStringList t(6);
  if (anglais) {
    t[0] = "TALVERO : 2 differents games :";
    t[1] = "GAME 1 :" + cr + "The traditionnal Video Poker game is well known by everyone. " +
           "The reflex runs faster than thoughts " + "but is it always the right one ? " +
           "A probability section is permanently shown on " + "the screen to give you some possibilities " +
           "to play a better game, whatever the card you " + "kept are, and while using 0,1 or 2 Wilds." + cr +
           "An optional Automatic Card Selection is available." + cr + cr;
    t[2] = "GAME 2 :" + cr + "Here is the mind that leads the game, due to the fact you are able to play " +
           "horizontally, vertically and diagonally ; depending on the level of your bets. (1 to 12)." + cr +
           "Wich card to keep or reject after first drawing ?" + cr +
           "An option ('HELP') on request, will help you find a logical solution. " +
           "It will be also cancellable ('CANCEL')." + cr + cr;
    t[3] = "CAUTION !" + cr +
           "To skip from a game to another, you must end the current one and collect your eventual winnings.";
    t[4] = "Timely information is provided down, on the right handside of the screen, " +
           QStringLiteral("to help you find a better way of playing.") + cr + cr + cr +
           "Other messages concerning different options and functions are also shown " +
           "to be clicking on. They are located in the middle, on the right handside of the screen." + cr + cr;
    t[5] = "CAUTION !" + cr + "The 2 final options about messages are displayed on the screen in order " +
           "to lighten some too often overload data.";
  } else {
    t[0] = QStringLiteral("TALVERO vous propose 2 jeux bien distincts :");
    t[1] = "JEU 1 :" + cr + QStringLiteral("Le jeu traditonnel de Vidéo Poker connu de tous. ") +
           QStringLiteral("Le réflexe prend très vite le dessus sur la réflexion, ") +
           QStringLiteral("mais ce réflexe est-il toujours le bon ? ") +
           QStringLiteral("Une section Probabilité est visible en permanence à ") +
           QStringLiteral("l 'écran, et vous indique, quelque soit la qualité et la ") +
           QStringLiteral("quantité des cartes gardées, les chances de réalisation ") +
           QStringLiteral("des différentes mains possibles avec 0,1 ou 2 Jokers.") + cr +
           QStringLiteral("Une option ('Sélection Automatique') des cartes est à votre disposition.") + cr + cr;
    t[2] = "JEU 2 :" + cr +
           QStringLiteral("Pour ce jeu, c'est la réflexion qui prend le pas sur le réflexe car vous pouvez jouer ") +
           QStringLiteral("horizontalement, verticalement et diagonalement en fonction du niveau de mise (1 à 12).") +
           cr + QStringLiteral("Quelles cartes garder ou jeter après le premier tirage ?") + cr +
           QStringLiteral("Une option ('CONSEILS') sur demande, vous proposera une solution ") +
           QStringLiteral("logique qui pourra être annulée ('ANNULE').") + cr + cr;
    t[3] = "REMARQUE :" + cr +
           QStringLiteral(
               "Pour passer d'un jeu à l'autre, il vous faut terminer le tirage en cours, et encaisser vos "
               "gains éventuels.");
    t[4] = QStringLiteral("Laissez-vous guider par les différents messages, en bas et à ") +
           QStringLiteral(
               "droite de l'écran, ils vous indiqueront en temps réel la marche à suivre pour le bon "
               "déroulement du jeu.") +
           cr + cr +
           QStringLiteral(
               "Au milieu et à droite de l'écran, vous pourrez lire des messages concernant les "
               "différentes fonctions et options du jeu, pour cela ") +
           QStringLiteral("il vous suffit de positionner le curseur de la souris sur ces dernières.") + cr + cr;
    t[5] = "REMARQUE :" + cr + QStringLiteral("Les 2 dernières options, concernant l'affichage de messages, ont été ") +
           QStringLiteral("intégrées afin d'allèger un fichier d'aide souvent surchargé.");
  }
  for (int i = 0; i <= 5; ++i) Aides(i).SetCaption(t[i]);
}

void JeuPoker::RemplitMessages() {
  struct Clé {
    int clé;
    const char* fr;
    const char* en;  // nullptr: no English text
  };
  // Keys 34 to 36 and 65 to 68 have no text; key 99 stays empty on purpose.
  static const Clé kMessages[] = {
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
  for (const Clé& m : kMessages) {
    Messages(m.clé) = QString::fromUtf8(m.fr);
    if (m.en) Messages(100 + m.clé) = QString::fromUtf8(m.en);
  }
}

namespace {
struct Traduction {
  const char* de;
  const char* vers;
};
// Alerts recognised by their whole text. The two directions are not mirrors: a few texts stay
// in the old language, or come back changed.
constexpr Traduction kVersFrançais[] = {
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
    {"WARNING ! No more credit ! Bet back to 1.", "WARNING ! Vous n'avez plus assez de crédit. Mises ramenées à 1."},
    {"QUIT, DOUBLE or PLAY ? ATTENTION : Bet back to 1.", "QUITTE, DOUBLE ou JOUER ? ATTENTION : Mises ramenées à 1."},
};
constexpr Traduction kVersAnglais[] = {
    {"SECOND TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.",
     "SECOND DRAWING : Click on PLAY or press the 'Space' key."},
    {"PREMIER TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.",
     "FIRST DRAWING : Click on PLAY or press the 'Space' key."},
    {"NOUVEAU TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.",
     "NEW DRAWING : Click on PLAY or press the 'Space' key."},
    {"QUITTE pour encaisser, DOUBLE pour risquer, JOUER pour encaisser et rejouer.",
     "QUIT to collect credits, DOUBLE to risk, PLAY to collect credits and play again."},
    {"Crédit épuisé ! Cliquez sur l'icône situé en haut à droite de l'écran pour une nouvelle partie.",
     "No more credit ! Click on the icon up on the right handside of the screen for a new game."},
    {"PERDU ! Crédit épuisé ! Cliquez sur l'icône situé en haut à droite de l'écran pour une nouvelle partie.",
     "YOU LOST ! WARNING ! No more credit ! Click on the icon up on the right handside of the screen for a new game."},
    {"PERDU ! ATTENTION ! Pas assez de crédit. Mises ramenées à 1.",
     "YOU LOST ! WARNING ! No more credit ! Bet back to 1."},
    {"Cliquez sur une carte face cachée de votre choix", "Choose a masked card and click on its back."},
    {"ATTENTION ! Vous n'avez plus assez de crédit. Mises ramenées à 1.", "WARNING ! No more credit ! Bet back to 1."},
    {"QUITTE, DOUBLE ou JOUER ? ATTENTION : Mises ramenées à 1.", "QUIT, DOUBLE or PLAY ? WARNING : Bet back to 1."},
};
}  // namespace

void JeuPoker::TraduitAlerte(bool versAnglais) {
  const QString texte = SSAlertes->Caption();
  for (const Traduction& t : versAnglais ? std::span(kVersAnglais) : std::span(kVersFrançais)) {
    if (texte == QString::fromUtf8(t.de)) {
      SSAlertes->SetCaption(QString::fromUtf8(t.vers));
      return;
    }
  }
  // A duel's result is written anew with the names of the same two cards.
  static const char* const kDébutsAnglais[3] = {"YOU WIN", "EQUAL !", "YOU LOST"};
  static const char* const kDébutsFrançais[3] = {"GAGNE", "QUITTE !", "PERDU"};
  const char* const* débuts = versAnglais ? kDébutsFrançais : kDébutsAnglais;
  static const int kIssues[3] = {1, 0, -1};
  for (int i = 0; i < 3; ++i) {
    if (texte.startsWith(QString::fromUtf8(débuts[i]))) {
      SSAlertes->SetCaption(
          TexteDuel(kIssues[i], NomsValeurs(DoubleCarte3), NomsValeurs(DoubleCarte2 * 13 + DoubleCarte1)));
      return;
    }
  }
}

void JeuPoker::ModifieLangue() {
  const bool anglais = Anglais(Langue);
  // The flag of the language in force is pressed, refuses the pointer and has its lamp lit;
  // the other is raised, works and is unlit.
  const int choisi = anglais ? 0 : 1;
  SSLangue(choisi).SetMousePointer(kInterdit);
  SSLangue(choisi).SetBevelWidth(0);
  SSLangue(1 - choisi).SetMousePointer(kFlèche);
  SSLangue(1 - choisi).SetBevelWidth(3);
  PSSlangue(choisi).SetVisible(true);
  PSSlangue(1 - choisi).SetVisible(false);
  // The GAINS and MISE titles and the PLAY face, drawn once for each language.
  const int image = anglais ? 2 : 1;
  GainsImage(0).SetPicture(GainsImage(image).GetPicture());
  MisesImage(0).SetPicture(MisesImage(image).GetPicture());
  JouerImage(0).SetPicture(JouerImage(image).GetPicture());
  // PLAY, and each word on the hold panels turned into its twin in the new language.
  Jouer->SetCaption(anglais ? QStringLiteral("PLAY") : QStringLiteral("JOUER"));
  for (int i = 0; i <= 4; ++i) {
    for (const MotJouez& mot : {kMotJouez, kMotGarder, kMotJeter}) {
      if (Jouez(i).Caption() == Mot(mot, !anglais)) {
        Jouez(i).SetCaption(Mot(mot, anglais));
        break;
      }
    }
  }
  // The fixed captions of both games' buttons.
  Quitte1X5->SetCaption(anglais ? QStringLiteral("QUIT") : QStringLiteral("QUITTE"));
  Double1X5->SetCaption(QStringLiteral("DOUBLE"));
  Jouez5->SetCaption(Mot(kMotJouez, anglais));
  Quitte5X5->SetCaption(anglais ? QStringLiteral("QUIT") : QStringLiteral("QUITTE"));
  Double5X5->SetCaption(QStringLiteral("DOUBLE"));
  Conseils5->SetCaption(anglais ? QStringLiteral("HELP") : QStringLiteral("CONSEILS"));
  AnnuleConseils5->SetCaption(anglais ? QStringLiteral("CANCEL") : QStringLiteral("ANNULE"));
  Mains5(12).SetCaption(QStringLiteral("GAINS"));
  // The hand and card names, and the names shown on the grid's lines in play.
  RemplitNomsMains();
  for (int ligne = 1; ligne <= Niveau; ++ligne)
    if (!Mains5(ligne - 1).Caption().isEmpty()) Mains5(ligne - 1).SetCaption(NomsMains(MainsLignes(ligne - 1)));
  RemplitNomsValeurs();
  // The pay table's titles.
  static const char* const kTitresFr[12] = {
      " 1 PAIRE ROI OU AS",   " 2 PAIRES", " BRELAN", " QUINTE", " COULEUR", " FULL", " CARRE", " QUINTE FLUSH",
      " QUINTE FLUSH ROYALE", " POKER",    " RIEN",   " MIEUX"};
  static const char* const kTitresEn[12] = {
      " 1 PAIR of KINGS or ACES", " 2 PAIRS",     " 3 OF KIND", " STRAIGHT", " FLUSH",      " FULL HOUSE", " 4 OF KIND",
      " STRAIGHT FLUSH",          " ROYAL FLUSH", " 5 OF KIND", " NOTHING",  " BETTER HAND"};
  MainsPayantes->SetCaption(anglais ? QStringLiteral("WINNER HANDS") : QStringLiteral("MAINS PAYANTES"));
  for (int i = 0; i <= 11; ++i) Maintitre(i).SetCaption(QString::fromUtf8(anglais ? kTitresEn[i] : kTitresFr[i]));
  // The half of the hint table in use, the alert line and the rules page follow.
  LangueVar = anglais ? 100 : 0;
  TraduitAlerte(anglais);
  ConstruitAides(anglais);
  AvertitCoach(MomentCoach::Suivi);
}