// JEU 2's double-up: the whole win of the deal against one card. The house's card lies face
// up at position 0 (ranks two to king only, so it can always be beaten), the other 24 are
// covered, and the player picks one. Higher doubles, equal keeps, lower loses all.
#include "core/table_facts.h"
#include "interface/JeuPoker.h"
#include "services/platform.h"

void JeuPoker::Double5X5_Click() {
  Tirage->SetFocus();
  if (AutoPlay->BevelWidth() == 0) return;
  AutoPlay->SetMousePointer(kInterdit);
  AutoPlayStop->SetMousePointer(kInterdit);
  Jouer->SetMousePointer(kInterdit);
  for (int p = 0; p <= 24; ++p) Deal2(p).SetMousePointer(kCarte);
  // Set before the covering loop yields: a card clicked meanwhile is already the pick.
  DoubleEnCours = true;
  Sys().Randomize(Sys().Timer());
  DoubleCarte1 = vb::CByte(Sys().RandomInt(12));
  DoubleCarte2 = vb::CByte(Sys().RandomInt(4));
  const Byte maison = vb::CByte(DoubleCarte2 * 13 + DoubleCarte1);
  Deal2(0).SetPicture(Cartes2(maison).GetPicture());
  CartesTirage(0) = maison;
  for (int p = 1; p <= 24; ++p) {
    if (FaceCachée(p)) continue;
    Deal2(p).SetPicture(Cartes(kDos).GetPicture());
    Sys().DoEvents();
  }
  Doubler5->SetVisible(false);
  SSAlertes->SetCaption(TexteAlerte(Alerte::ChoixCarte));
  AvertitCoach(MomentCoach::Suivi);
}

void JeuPoker::ChoixCarteQouD5() {
  AutoPlay->SetMousePointer(kFlèche);
  Jouer->SetMousePointer(kFlèche);
  AutoPlayStop->SetMousePointer(kInterdit);
  for (int p = 0; p <= 24; ++p) Deal2(p).SetMousePointer(kInterdit);
  DoubleEnCours = false;
  if (!SSAlertes->Caption().isEmpty()) SSAlertes->SetCaption(QString());

  // The player's card: any of the 52 but the house's own, each try on a fresh clock reading.
  // The cards of the deal play no part.
  Byte rang = 0;
  Byte couleur = 0;
  do {
    Sys().Randomize(Sys().Timer());
    rang = vb::CByte(Sys().RandomInt(13));
    couleur = vb::CByte(Sys().RandomInt(4));
    DoubleCarte3 = vb::CByte(rang + 13 * couleur);
  } while (rang == DoubleCarte1 && couleur == DoubleCarte2);

  MontreCarte2(CarteChoisie, Cartes2(DoubleCarte3).GetPicture());
  CartesTirage(CarteChoisie) = DoubleCarte3;

  // The names follow the language in force at the moment of the duel.
  RemplitNomsValeurs();
  const QString joueur = NomsValeurs(DoubleCarte3);
  const QString maison = NomsValeurs(DoubleCarte2 * 13 + DoubleCarte1);

  if (rang > DoubleCarte1) {
    SSAlertes->SetCaption(TexteDuel(1, joueur, maison));
    Doubler5->SetVisible(true);
    GainTirage = vb::CLng(static_cast<long long>(GainTirage) * 2);
    Gains->SetCaption(QString::number(GainTirage));
    AfficheGain5();
    return;
  }
  if (rang == DoubleCarte1) {
    SSAlertes->SetCaption(TexteDuel(0, joueur, maison));
    Doubler5->SetVisible(true);
    return;
  }

  // Lost. Jouez5 stays hidden on every path, though the next PLAY opens a new deal.
  for (int i = 0; i <= 11; ++i) {
    Mains5(i).SetCaption(QString());
    Gains5(i).SetCaption(QString());
  }
  Gains5(12).SetCaption(QString());
  const long long mise = static_cast<long long>(Niveau) * Mise;
  if (Capital != 0 && mise <= Capital) {
    Pointeur10();
    SSAlertes->SetCaption(TexteDuel(-1, joueur, maison));
  } else if (Capital != 0) {
    // No Pointeur10 here: the pointers stay at 12 until the next second drawing.
    SSAlertes->SetCaption(TexteAlerte(Alerte::PerduMiseRamenée));
    RemetNiveauÀUn();
  } else {
    Pointeur12();
    SSAlertes->SetCaption(TexteAlerte(Alerte::PerduCréditÉpuisé));
  }
  Gains->SetCaption(QString());
  AfficheGain();
  GainTirage = 0;
}

void JeuPoker::Quitte5X5_Click() {
  Tirage->SetFocus();
  Pointeur10();
  if (AutoPlay->BevelWidth() == 0) return;
  for (int p = 0; p <= 24; ++p) Deal2(p).SetMousePointer(kInterdit);
  Doubler5->SetVisible(false);
  Jouez5->SetVisible(true);
  const bool couvert = static_cast<long long>(Niveau) * Mise <= static_cast<long long>(Capital) + GainTirage;
  SSAlertes->SetCaption(TexteAlerte(couvert ? Alerte::NouveauTirage : Alerte::MiseRamenée));
  InitPremierTirage5();
  AvertitCoach(MomentCoach::Suivi);
}
