// The table: a new game (Initialise), the reset at the start of each classic round
// (InitPremierTirage), the classic pay tables, and the stake and the card draw of both games.
#include "interface/JeuPoker.h"
#include "services/platform.h"

namespace {
bool Anglais(Byte langue) { return langue == 0 || langue == 2; }
}  // namespace

// The classic pay table for the number of jokers in force: one multiplier per hand class
// 0..9 (pair of kings or aces .. five of a kind). Nothing (class 10) has no entry.
void JeuPoker::RemplitTableGains() {
  if (NbJokers == 0) {
    TableGains(0) = 1;
    TableGains(1) = 2;
    TableGains(2) = 5;
    TableGains(3) = 7;
    TableGains(4) = 10;
    TableGains(5) = 30;
    TableGains(6) = 100;
    TableGains(7) = 250;
    TableGains(8) = 750;
    TableGains(9) = 1000;
  } else if (NbJokers == 1) {
    TableGains(0) = 1;
    TableGains(1) = 2;
    TableGains(2) = 4;
    TableGains(3) = 5;
    TableGains(4) = 7;
    TableGains(5) = 12;
    TableGains(6) = 40;
    TableGains(7) = 100;
    TableGains(8) = 500;
    TableGains(9) = 1000;
  } else {
    TableGains(0) = 1;
    TableGains(1) = 2;
    TableGains(2) = 3;
    TableGains(3) = 4;
    TableGains(4) = 5;
    TableGains(5) = 7;
    TableGains(6) = 25;
    TableGains(7) = 70;
    TableGains(8) = 300;
    TableGains(9) = 750;
  }
}

// Row i of the pay table back to white on black, when it is the highlighted one.
void JeuPoker::EffaceLigneGagnante() {
  for (int i = 0; i <= 9; ++i) {
    if (MainLabel(i).ForeColor() == 255) {
      Maintitre(i).SetForeColor(0xFFFFFF);
      MainLabel(i).SetForeColor(0xFFFFFF);
      Maintitre(i).SetBackColor(0);
      MainLabel(i).SetBackColor(0);
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
      UnADouzeTémoin(i).SetBackColor(0x808080);
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
