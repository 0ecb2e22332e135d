// Language tables and the switch between French and English.
#include <QStringList>

#include "interface/JeuPoker.h"

namespace {
// Langue 0 or 2 is English, anything else French.
bool English(Byte langue) { return langue == 0 || langue == 2; }
}  // namespace

void JeuPoker::RemplitNomsValeurs() {
  static const char* const kRangsFr[13] = {"2", "3", "4", "5", "6", "7", "8", "9", "10", "VALET", "DAME", "ROI", "AS"};
  static const char* const kRangsEn[13] = {"2", "3",  "4",    "5",     "6",    "7",  "8",
                                           "9", "10", "JACK", "QUEEN", "KING", "ACE"};
  static const char* const kCouleursFr[4] = {" de Trèfle", " de Carreau", " de Coeur", " de Pique"};
  static const char* const kCouleursEn[4] = {" of Clubs", " of Diamonds", " of Hearts", " of Spades"};
  const bool english = English(Langue);
  for (int s = 0; s <= 3; ++s)
    for (int r = 0; r <= 12; ++r)
      NomsValeurs(s * 13 + r) = QString::fromUtf8(english ? kRangsEn[r] : kRangsFr[r]) +
                                QString::fromUtf8(english ? kCouleursEn[s] : kCouleursFr[s]);
}

void JeuPoker::RemplitNomsMains() {
  static const char* const kFr[11] = {"1 PAIRE", "2 PAIRES", "BRELAN", "QUINTE", "COULEUR", "FULL",
                                      "CARRE",   "Q.F.",     "Q.F.R.", "POKER",  "RIEN"};
  static const char* const kEn[11] = {"1 PAIR",    "2 PAIRS", "3 of KIND", "Straight",  "FLUSH",  "FULL",
                                      "4 of KIND", "S.FLUSH", "R.FLUSH",   "5 of KIND", "NOTHING"};
  const bool english = English(Langue);
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

// For now the card and hand names, the line names and the rules page follow the language;
// the other captions and the alerts come with the language switch proper.
void JeuPoker::ModifieLangue() {
  RemplitNomsMains();
  for (int ligne = 1; ligne <= Niveau; ++ligne)
    if (!Mains5(ligne - 1).Caption().isEmpty()) Mains5(ligne - 1).SetCaption(NomsMains(MainsLignes(ligne - 1)));
  RemplitNomsValeurs();
  ConstruitAides(English(Langue));
}
