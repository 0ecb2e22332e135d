// The buttons of the game's frame: the choice between JEU 1 and JEU 2, the number of jokers,
// a new game, the dealing speed, the rules page, and the blinking title.
#include "core/colours.h"
#include "core/table_facts.h"
#include "interface/JeuPoker.h"
#include "services/platform.h"

bool JeuPoker::ChangementRefusé() {
  // The deal must be over and its winnings collected or risked; a lost game stays as it is.
  if (DoubleEnCours || NbTirées == 5 || NbTirées == 25 || Doubler5->Visible() || Doubler->Visible() || Capital == 0) {
    ClignoteAlertes();
    return true;
  }
  return false;
}

void JeuPoker::JouezÀJouer() {
  for (int i = 0; i <= 4; ++i) {
    Jouez(i).SetBackColor(couleur::kJouezFond);
    Jouez(i).SetCaption(Mot(kMotJouez, Anglais(Langue)));
  }
}

void JeuPoker::StatistiquesAuRepos() {
  // A highlighted pay-table row reads 255 on its back.
  for (int i = 0; i <= 9; ++i) {
    if (MainLabel(i).BackColor() == couleur::kRouge) {
      Maintitre(i).SetForeColor(couleur::kBlanc);
      MainLabel(i).SetForeColor(couleur::kBlanc);
      Maintitre(i).SetBackColor(couleur::kNoir);
      MainLabel(i).SetBackColor(couleur::kNoir);
    }
  }
  AfficheStatistiquesRepos();
}

void JeuPoker::PlaceJeux(bool grille) {
  Control& choisi = grille ? *Jeu3D : *JeuSimple;
  Control& autre = grille ? *JeuSimple : *Jeu3D;
  choisi.SetBevelWidth(1);
  choisi.SetMousePointer(kInterdit);
  autre.SetBevelWidth(7);
  autre.SetMousePointer(kFlèche);
  (grille ? SSJeu3D : SSJeuSimple)->SetBackColor(couleur::kRouge);
  (grille ? SSJeuSimple : SSJeu3D)->SetBackColor(couleur::kNoir);
  (grille ? Jeu3DLabel : JeuSimpleLabel)->SetForeColor(couleur::kBlanc);
  (grille ? JeuSimpleLabel : Jeu3DLabel)->SetForeColor(couleur::kGris);

  // The panels of the pay table and the odds: beside the grid only the tally stays in view.
  SSGains->SetVisible(false);
  PourCentLabel->SetVisible(!grille);
  for (int i = 0; i <= 9; ++i) {
    PourcDéc(i).SetVisible(!grille);
    Pourcentages(i).SetVisible(!grille);
  }
  const int fréquenceLeft = grille ? 3075 : 5670;
  for (int i = 0; i <= 9; ++i) Fréquence(i).SetLeft(fréquenceLeft);
  FréquenceTitre->SetLeft(fréquenceLeft);
  if (grille)
    SSGains->Move(7275, 4935, 3870, 2880);
  else
    SSGains->Move(0, 630, 6465, 3465);
  SSGains->SetVisible(true);
  Sys().DoEvents();
}

void JeuPoker::Jeu3D_Click() {
  Tirage->SetFocus();
  if (ChangementRefusé() || Jeu3D->BevelWidth() == 1) return;
  // The automatic selection of JEU 1 is released: the advice of the grid is the plain one.
  ParesseNon->SetMousePointer(kInterdit);
  ParesseOui->SetMousePointer(kInterdit);
  ParesseNon->SetBevelWidth(3);
  ParesseOui->SetBevelWidth(3);
  PParesseNon->SetVisible(false);
  PParesseOui->SetVisible(false);
  SSAireJeu->SetVisible(false);
  SSTirage->SetTop(3765);
  SSMises->SetHeight(4245);
  PlaceJeux(true);
  SSAireJeu5->SetVisible(true);

  NbTirées = 0;
  for (int k = 1; k <= 50; ++k) CartesSorties(k) = -1;
  Gains->SetCaption(QString());
  AfficheGain();
  RangMain = 10;
  StatistiquesAuRepos();
  JouezÀJouer();
  GainTirage = 0;
  SSAlertes->SetCaption(TexteAlerte(Alerte::NouveauTirage));
  Tirage->SetFocus();
}

void JeuPoker::JeuSimple_Click() {
  Tirage->SetFocus();
  if (ChangementRefusé() || JeuSimple->BevelWidth() == 1) return;
  // Back in JEU 1 the automatic selection is on, whatever it was before.
  ParesseOui->SetBevelWidth(0);
  ParesseOui->SetMousePointer(kInterdit);
  ParesseNon->SetBevelWidth(3);
  ParesseNon->SetMousePointer(kFlèche);
  PParesseOui->SetVisible(true);
  PParesseNon->SetVisible(false);
  for (int i = 0; i <= 4; ++i) ImageConseils(i).SetPicture(ParesseOui->GetPicture());
  SSTirage->SetTop(3000);
  SSMises->SetHeight(3465);
  SSAireJeu5->SetVisible(false);
  for (int p = 0; p <= 24; ++p) {
    Deal2(p).SetPicture(Cartes(kDos).GetPicture());
    Sys().DoEvents();
  }
  NbTirées = 0;
  for (int k = 1; k <= 50; ++k) CartesSorties(k) = -1;
  PlaceJeux(false);
  StatistiquesAuRepos();
  SSAireJeu->SetVisible(true);

  Mains5(0).SetCaption(QString());
  Gains5(0).SetCaption(QString());
  for (int i = 1; i <= 11; ++i) {
    Mains5(i).SetCaption(QString());
    Gains5(i).SetCaption(QString());
    MetLigneEnJeu(i, false);
  }
  Gains5(12).SetCaption(QString());
  Jouez5->SetVisible(true);

  // The bet of a line is kept; the level goes back to 1, so the stake is Mise alone.
  Niveau = 1;
  UnADouze->SetCaption(QString::number(Niveau));
  AfficheUnàDouze();
  Mises->SetCaption(QString::number(Mise));
  AfficheMise();

  Gains->SetCaption(QString());
  AfficheGain();
  RangMain = 10;
  GainTirage = 0;
  // The grid's last line leaves its multiplier in GainMain; it is no classic win to pay.
  GainMain = 0;
  SSAlertes->SetCaption(TexteAlerte(Alerte::NouveauTirage));
  SSConseils5->SetVisible(false);
}

void JeuPoker::NJokerSélection_Click(int index) {
  Tirage->SetFocus();
  if (ChangementRefusé() || NJokerSélection(index).BevelWidth() == 0) return;
  NbJokers = vb::CByte(index);
  TailleJeu = 52 + NbJokers;
  RemplitTableGains();
  for (int i = 0; i <= 9; ++i)
    MainLabel(i).SetCaption(QString::number(vb::CLng(static_cast<long long>(TableGains(i)) * Mise)));
  for (int i = 0; i <= 2; ++i) {
    NJokerSélection(i).SetBevelWidth(i == index ? 0 : 3);
    NJokerSélection(i).SetMousePointer(i == index ? kInterdit : kFlèche);
  }
  AfficheStatistiquesRepos();
  // Without a joker there is no five of a kind: its row reads nothing.
  if (NbJokers == 0) {
    PourcDéc(9).SetCaption(QString());
    Pourcentages(9).SetCaption(QString());
    Fractions(9).SetCaption(QString());
  }
}

void JeuPoker::SSRecommence_Click() {
  Tirage->SetFocus();
  Pointeur10();
  if (AutoPlay->BevelWidth() == 0) return;
  AutoPlay->SetMousePointer(kFlèche);
  AutoPlayStop->SetMousePointer(kInterdit);
  JouezÀJouer();
  Initialise();
  StatistiquesAuRepos();
  NbTirées = 0;
  for (int k = 1; k <= 50; ++k) CartesSorties(k) = -1;
  // Winnings still pending belong to the old game and are lost.
  GainMain = 0;
  GainTirage = 0;
  if (SSAireJeu->Visible()) {
    for (int i = 0; i <= 4; ++i) Deal(i).SetPicture(Cartes(kDos).GetPicture());
  } else if (!FaceCachée(0)) {
    // Only position 0 is looked at: a grid whose first card was turned down keeps its other
    // cards face up until the next deal.
    for (int p = 0; p <= 24; ++p) {
      Deal2(p).SetPicture(Cartes(kDos).GetPicture());
      Sys().DoEvents();
    }
  }
  if (Doubler->Visible()) Doubler->SetVisible(false);
  if (Doubler5->Visible()) Doubler5->SetVisible(false);
  Jouez5->SetVisible(true);
}

void JeuPoker::SSVitesse_Click(int index) {
  if (AutoPlay->BevelWidth() == 0) return;
  Tirage->SetFocus();
  const int autre = 1 - index;
  SSVitesse(index).SetMousePointer(kInterdit);
  SSVitesse(index).SetBevelWidth(0);
  SSVitesse(autre).SetMousePointer(kFlèche);
  SSVitesse(autre).SetBevelWidth(3);
  PSSVitesse(index).SetVisible(true);
  PSSVitesse(autre).SetVisible(false);
  AffichageImmédiat = index == 1;
}

// The rules page covers the table; nothing stops meanwhile, timers included.
void JeuPoker::SSRègles_Click() {
  Tirage->SetFocus();
  Jeu->SetVisible(false);
  SSAides->SetVisible(true);
}

void JeuPoker::AidesOk_Click() {
  SSAides->SetVisible(false);
  Jeu->SetVisible(true);
  Tirage->SetFocus();
}

void JeuPoker::TitreTimer_Timer() {
  const bool premier = TitreImage(0).GetPicture() == TitreImage(1).GetPicture();
  TitreImage(0).SetPicture(TitreImage(premier ? 2 : 1).GetPicture());
}
