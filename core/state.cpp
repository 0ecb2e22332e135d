// The table: a new game (Initialise), the reset at the start of each classic round
// (InitPremierTirage), the classic pay tables, and the stake and the card draw of both games.
#include "core/colours.h"
#include "core/pay_tables.h"
#include "core/table_facts.h"
#include "interface/JeuPoker.h"
#include "services/platform.h"

// The classic pay table for the number of jokers in force: one multiplier per hand class
// 0..9 (pair of kings or aces .. five of a kind). Nothing (class 10) has no entry.
void JeuPoker::RemplitTableGains() {
  for (int i = 0; i <= 9; ++i) TableGains(i) = GainClassique(NbJokers, i);
}

// Row i of the pay table back to white on black, when it is the highlighted one.
void JeuPoker::EffaceLigneGagnante() {
  for (int i = 0; i <= 9; ++i) {
    if (MainLabel(i).ForeColor() == couleur::kRouge) {
      Maintitre(i).SetForeColor(couleur::kBlanc);
      MainLabel(i).SetForeColor(couleur::kBlanc);
      Maintitre(i).SetBackColor(couleur::kNoir);
      MainLabel(i).SetBackColor(couleur::kNoir);
    }
  }
}

void JeuPoker::Initialise() {
  Niveau = 1;
  UnADouze->SetCaption(QString::number(Niveau));
  AfficheUnàDouze();

  Capital = 200;
  AfficheCapital();

  Mise = 1;
  Mises->SetCaption(QString::number(Mise));
  AfficheMise();

  Gains->SetCaption(QString());
  AfficheGain();

  RemplitTableGains();
  // The bet is 1, so the multiplier is the amount.
  for (int i = 0; i <= 9; ++i) MainLabel(i).SetCaption(QString::number(TableGains(i)));

  // The lines of the grid: only the first one stays in view.
  for (int i = 0; i <= 11; ++i) {
    Mains5(i).SetCaption(QString());
    Gains5(i).SetCaption(QString());
    if (i > 0) {
      Mains5(i).SetVisible(false);
      Gains5(i).SetVisible(false);
      UnADouzeLine(i).SetVisible(false);
      UnADouzeTémoin(i).SetBackColor(couleur::kGris);
    }
  }
  Gains5(12).SetCaption(QString());

  if (Anglais(Langue))
    SSAlertes->SetCaption(QStringLiteral("FIRST DRAWING : Click on PLAY or press the 'Space' key."));
  else
    SSAlertes->SetCaption(QStringLiteral("PREMIER TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'."));

  DoubleEnCours = false;
  for (int i = 0; i <= 4; ++i) CartesGardées(i) = false;
  for (int i = 0; i <= 24; ++i) LignesJouées(i) = false;

  SSConseils5->SetVisible(false);
}

void JeuPoker::InitPremierTirage() {
  // The one place where a classic win reaches the credit: a winning hand left by pressing
  // JOUER is paid here, before the new stake is taken.
  if (GainMain != 0) {
    Capital = vb::CLng(static_cast<long long>(Capital) + GainMain);
    AfficheCapital();
    GainMain = 0;
  }
  NbTirées = 0;
  EffaceLigneGagnante();
  Gains->SetCaption(QString());
  AfficheGain();
  for (int i = 1; i <= 10; ++i) CartesSorties(i) = -1;
}

void JeuPoker::PrélèveMise() {
  Capital = vb::CLng(static_cast<long long>(Capital) - static_cast<long long>(Niveau) * Mise);
  AfficheCapital();
}

int JeuPoker::TireCarteNonSortie(int sorties, const std::function<bool()>& avantEssai) {
  for (;;) {
    if (avantEssai && !avantEssai()) return -1;
    Sys().Randomize(Sys().Timer());
    const int tirée = Sys().RandomInt(static_cast<int>(TailleJeu));
    bool sortie = false;
    for (int k = 1; k <= sorties; ++k)
      if (CartesSorties(k) == tirée) sortie = true;
    if (!sortie) return tirée;
  }
}
