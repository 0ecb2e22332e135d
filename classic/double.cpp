// Double-up of the classic game: a high-card duel for the pending win. The house shows a
// card at position 0 (never an ace, so the player can always still win); the player turns
// one of the four masked cards. The win stays in GainMain throughout and reaches Capital only
// through InitPremierTirage.
#include "core/colours.h"
#include "core/table_facts.h"
#include "interface/JeuPoker.h"
#include "services/platform.h"

void JeuPoker::Double1X5_Click() {
  Tirage->SetFocus();
  if (AutoPlay->BevelWidth() == 0) return;
  AutoPlay->SetMousePointer(kInterdit);
  AutoPlayStop->SetMousePointer(kInterdit);
  Jouer->SetMousePointer(kInterdit);
  for (int i = 0; i <= 4; ++i) Deal(i).SetMousePointer(kCarte);
  DoubleEnCours = true;
  // The house card: one clock reading, rank two to king, any suit, drawn apart from the deck.
  Sys().Randomize(Sys().Timer());
  DoubleCarte1 = vb::CByte(Sys().RandomInt(12));
  DoubleCarte2 = vb::CByte(Sys().RandomInt(4));
  const Byte maison = vb::CByte(DoubleCarte2 * 13 + DoubleCarte1);
  Deal(0).SetPicture(Cartes(maison).GetPicture());
  CartesTirage(0) = maison;
  for (int i = 1; i <= 4; ++i) Deal(i).SetPicture(Cartes(kDos).GetPicture());
  Doubler->SetVisible(false);
  SSAlertes->SetCaption(TexteAlerte(Alerte::ChoixCarte));
  AvertitCoach(MomentCoach::Suivi);
}

void JeuPoker::ChoixCarteQouD() {
  AutoPlay->SetMousePointer(kFlèche);
  Jouer->SetMousePointer(kFlèche);
  AutoPlayStop->SetMousePointer(kInterdit);
  for (int i = 0; i <= 4; ++i) Deal(i).SetMousePointer(kInterdit);
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

  if (!AffichageImmédiat) AnimeCarte(Deal(CarteChoisie), false);
  Deal(CarteChoisie).SetPicture(Cartes(DoubleCarte3).GetPicture());
  CartesTirage(CarteChoisie) = vb::CByte(r + 13 * s);
  if (!AffichageImmédiat) AnimeCarte(Deal(CarteChoisie), true);

  // The names follow the language in force at the moment of the duel.
  RemplitNomsValeurs();
  const QString p = NomsValeurs(DoubleCarte3);
  const QString b = NomsValeurs(DoubleCarte2 * 13 + DoubleCarte1);

  if (r > DoubleCarte1) {
    SSAlertes->SetCaption(TexteDuel(1, p, b));
    Doubler->SetVisible(true);
    GainMain = vb::CLng(static_cast<long long>(GainMain) * 2);
    Gains->SetCaption(QString::number(GainMain));
    AfficheGain();
  } else if (r == DoubleCarte1) {
    SSAlertes->SetCaption(TexteDuel(0, p, b));
    Doubler->SetVisible(true);
  } else {
    for (IndiceDouble = 0; IndiceDouble <= 9; ++IndiceDouble) {
      if (MainLabel(IndiceDouble).ForeColor() == couleur::kRouge) {
        Maintitre(IndiceDouble).SetForeColor(couleur::kBlanc);
        MainLabel(IndiceDouble).SetForeColor(couleur::kBlanc);
        Maintitre(IndiceDouble).SetBackColor(couleur::kNoir);
        MainLabel(IndiceDouble).SetBackColor(couleur::kNoir);
      }
    }
    const Long mise = vb::CLng(static_cast<long long>(Niveau) * Mise);
    if (Capital != 0 && mise <= Capital) {
      Pointeur10();
      SSAlertes->SetCaption(TexteDuel(-1, p, b));
    } else if (Capital != 0) {
      // Unlike the same case at the end of a drawing, the pointers are left as they are.
      SSAlertes->SetCaption(TexteAlerte(Alerte::PerduMiseRamenée));
      RemetMiseÀUn();
    } else {
      Pointeur12();
      SSAlertes->SetCaption(TexteAlerte(Alerte::PerduCréditÉpuisé));
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
  for (int i = 0; i <= 4; ++i) Deal(i).SetMousePointer(kInterdit);
  Doubler->SetVisible(false);
  // The statistics panel goes back to its figures at rest.
  AfficheStatistiquesRepos();
  for (int i = 0; i <= 4; ++i) Jouez(i).SetVisible(true);
  InitPremierTirage();
  for (int i = 0; i <= 4; ++i) Deal(i).SetPicture(Cartes(kDos).GetPicture());
  SSAlertes->SetCaption(TexteAlerte(Alerte::NouveauTirage));
  AvertitCoach(MomentCoach::Suivi);
}
