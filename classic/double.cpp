// Double-up of the classic game: a high-card duel for the pending win. The house shows a
// card at position 0 (never an ace, so the player can always still win); the player turns
// one of the four masked cards. The win stays in GainMain throughout and reaches Capital only
// through InitPremierTirage.
#include "interface/JeuPoker.h"
#include "services/platform.h"

namespace {
bool English(Byte langue) { return langue == 0 || langue == 2; }

}  // namespace

void JeuPoker::Double1X5_Click() {
  Tirage->SetFocus();
  if (AutoPlay->BevelWidth() == 0) return;
  AutoPlay->SetMousePointer(12);
  AutoPlayStop->SetMousePointer(12);
  Jouer->SetMousePointer(12);
  for (int i = 0; i <= 4; ++i) Deal(i).SetMousePointer(99);
  DoubleEnCours = true;
  // The house card: one clock reading, rank two to king, any suit, drawn apart from the deck.
  Sys().Randomize(Sys().Timer());
  DoubleCarte1 = vb::CByte(Sys().RandomInt(12));
  DoubleCarte2 = vb::CByte(Sys().RandomInt(4));
  const Byte maison = vb::CByte(DoubleCarte2 * 13 + DoubleCarte1);
  Deal(0).SetPicture(Cartes(maison).GetPicture());
  CartesTirage(0) = maison;
  for (int i = 1; i <= 4; ++i) Deal(i).SetPicture(Cartes(54).GetPicture());
  Doubler->SetVisible(false);
  SSAlertes->SetCaption(English(Langue) ? QStringLiteral("Choose a masked card and click on its back.")
                                        : QStringLiteral("Cliquez sur une carte face cachée de votre choix"));
}

void JeuPoker::ChoixCarteQouD() {
  AutoPlay->SetMousePointer(10);
  Jouer->SetMousePointer(10);
  AutoPlayStop->SetMousePointer(12);
  for (int i = 0; i <= 4; ++i) Deal(i).SetMousePointer(12);
  DoubleEnCours = false;
  if (!SSAlertes->Caption().isEmpty()) SSAlertes->SetCaption(QString());

  // The player's card: any of the 52, each attempt on a fresh clock reading, never the
  // house card itself.
  Byte r = 0;
  Byte s = 0;
  do {
    Sys().Randomize(Sys().Timer());
    r = vb::CByte(Sys().RandomInt(13));
    s = vb::CByte(Sys().RandomInt(4));
    DoubleCarte3 = vb::CByte(r + 13 * s);
  } while (r == DoubleCarte1 && s == DoubleCarte2);

  if (!AffichageImmédiat) AnimeCarte(CarteChoisie, false);
  Deal(CarteChoisie).SetPicture(Cartes(DoubleCarte3).GetPicture());
  CartesTirage(CarteChoisie) = vb::CByte(r + 13 * s);
  if (!AffichageImmédiat) AnimeCarte(CarteChoisie, true);

  // The names follow the language in force at the moment of the duel.
  RemplitNomsValeurs();
  const bool english = English(Langue);
  const QString p = NomsValeurs(DoubleCarte3);
  const QString b = NomsValeurs(DoubleCarte2 * 13 + DoubleCarte1);

  if (r > DoubleCarte1) {
    SSAlertes->SetCaption(english
                              ? QStringLiteral("YOU WIN ! %1 is stronger then %2. QUIT, DOUBLE or PLAY ?").arg(p, b)
                              : QStringLiteral("GAGNE ! %1 est plus fort que %2. QUITTE, DOUBLE ou JOUER ?").arg(p, b));
    Doubler->SetVisible(true);
    GainMain = vb::CLng(static_cast<long long>(GainMain) * 2);
    Gains->SetCaption(QString::number(GainMain));
    AfficheGain();
  } else if (r == DoubleCarte1) {
    SSAlertes->SetCaption(english ? QStringLiteral("EQUAL ! %1 is equal %2. QUIT, DOUBLE or PLAY ?").arg(p, b)
                                  : QStringLiteral("QUITTE ! %1 est égal %2. QUITTE, DOUBLE ou JOUER ?").arg(p, b));
    Doubler->SetVisible(true);
  } else {
    for (IndiceDouble = 0; IndiceDouble <= 9; ++IndiceDouble) {
      if (MainLabel(IndiceDouble).ForeColor() == 255) {
        Maintitre(IndiceDouble).SetForeColor(0xFFFFFF);
        MainLabel(IndiceDouble).SetForeColor(0xFFFFFF);
        Maintitre(IndiceDouble).SetBackColor(0);
        MainLabel(IndiceDouble).SetBackColor(0);
      }
    }
    const Long mise = vb::CLng(static_cast<long long>(Niveau) * Mise);
    if (Capital != 0 && mise <= Capital) {
      Pointeur10();
      SSAlertes->SetCaption(english ? QStringLiteral("YOU LOST ! %1 is beaten by %2. NEW DRAWING.").arg(p, b)
                                    : QStringLiteral("PERDU ! %1 est moins fort que %2. NOUVEAU TIRAGE.").arg(p, b));
    } else if (Capital != 0) {
      // Unlike the same case at the end of a drawing, the pointers are left as they are.
      SSAlertes->SetCaption(english ? QStringLiteral("YOU LOST ! WARNING ! No more credit ! Bet back to 1.")
                                    : QStringLiteral("PERDU ! ATTENTION ! Pas assez de crédit. Mises ramenées à 1."));
      RemetMiseÀUn();
    } else {
      Pointeur12();
      SSAlertes->SetCaption(
          english
              ? QStringLiteral("YOU LOST ! WARNING ! No more credit ! Click on the icon up on the right handside of "
                               "the screen for a new game.")
              : QStringLiteral("PERDU ! Crédit épuisé ! Cliquez sur l'icône situé en haut à droite de l'écran pour "
                               "une nouvelle partie."));
    }
    Gains->SetCaption(QString());
    AfficheGain();
    GainMain = 0;
  }
}

void JeuPoker::Quitte1X5_Click() {
  Tirage->SetFocus();
  Pointeur10();
  if (AutoPlay->BevelWidth() == 0) return;
  for (int i = 0; i <= 4; ++i) Deal(i).SetMousePointer(12);
  Doubler->SetVisible(false);
  // The statistics panel goes back to its figures at rest.
  AfficheStatistiquesRepos();
  for (int i = 0; i <= 4; ++i) Jouez(i).SetVisible(true);
  InitPremierTirage();
  for (int i = 0; i <= 4; ++i) Deal(i).SetPicture(Cartes(54).GetPicture());
  SSAlertes->SetCaption(English(Langue)
                            ? QStringLiteral("NEW DRAWING : Click on PLAY or press the 'Space' key.")
                            : QStringLiteral("NOUVEAU TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'."));
}
