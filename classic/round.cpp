// The draw cycle of the classic game: JOUER and the Space key, the two drawings of a round
// and the turning down of the cards to be replaced.
//
// Everything yields to the event loop at each card and at each animation step, so any
// handler can run inside a drawing, a JOUER click included: that runs a nested Tirage1.
// There is deliberately no guard; the tests of NbTirées in the handlers are the only
// protection.
#include <cmath>

#include "core/colours.h"
#include "core/table_facts.h"
#include "interface/JeuPoker.h"
#include "services/platform.h"

void JeuPoker::RegisterClassicVariables() {
  // The round has no variables of its own beyond the table state bound with the core.
}

// ---- The JOUER button and the Space key ------------------------------------------------

// The pictures of JOUER ask only whether Langue is 2; every text asks whether it is 0 or 2.
void JeuPoker::Jouer_MouseDown(int, int, int, int) {
  JouerImage(0).SetPicture(JouerImage(Langue == 2 ? 4 : 3).GetPicture());
}

void JeuPoker::Jouer_MouseUp(int, int, int, int) {
  JouerImage(0).SetPicture(JouerImage(Langue == 2 ? 2 : 1).GetPicture());
}

void JeuPoker::Tirage_KeyDown(int keyCode, int) {
  if (keyCode != 32) return;
  JouerImage(0).SetPicture(JouerImage(Langue == 2 ? 4 : 3).GetPicture());
}

void JeuPoker::Tirage_KeyUp(int keyCode, int) {
  if (keyCode != 32) return;
  JouerImage(0).SetPicture(JouerImage(Langue == 2 ? 2 : 1).GetPicture());
  Jouer_Click();
}

void JeuPoker::Jouer_Click() {
  if (AutoPlay->BevelWidth() == 0) return;
  if (DoubleEnCours) {
    ClignoteAlertes();
    return;
  }
  // Lost: no credit and nothing pending. Only a new game helps.
  if ((NbTirées == 10 || NbTirées == 50) && Capital == 0 && Gains->Caption().isEmpty()) {
    ClignoteAlertes();
    return;
  }
  if (!SSAlertes->Caption().isEmpty()) SSAlertes->SetCaption(QString());
  Sys().DoEvents();
  if (SSAireJeu->Visible()) Tirage1();
  if (SSAireJeu5->Visible()) Tirage5();
}

void JeuPoker::Jouez_Click(int) { Tirage->SetFocus(); }

void JeuPoker::SSTirage_Click() { Tirage->SetFocus(); }

void JeuPoker::Doubler_Click() { Tirage->SetFocus(); }

// ---- One drawing -----------------------------------------------------------------------

void JeuPoker::AnimeCarte(Control& carte, bool grow) {
  for (int step = 0; step < 30; ++step) {
    Sys().DoEvents();
    const double f = grow ? 1.0 / 0.94 : 0.94;
    carte.SetHeight(static_cast<int>(std::lround(carte.Height() * f)));
    carte.SetWidth(static_cast<int>(std::lround(carte.Width() * f)));
  }
}

void JeuPoker::Tirage1() {
  AvertitCoach(MomentCoach::Décision);
  // A new round: settle what the last one left, forget the cards gone and give the cards
  // the card pointer.
  if (NbTirées != 5) {
    InitPremierTirage();
    for (int i = 0; i <= 4; ++i) Deal(i).SetMousePointer(kCarte);
  }
  // The double-up offer of the last round goes.
  if (Doubler->Visible()) Doubler->SetVisible(false);
  // The stake, at the start of a round only (the credit is not checked here).
  if (NbTirées == 0) PrélèveMise();
  // The cards to be replaced are turned down.
  InitTirage();

  // Every position counts, dealt or kept. Each try yields first and deals only to a card
  // that shows its back or is rejected; a card already out in this round, rejected ones
  // included, is drawn anew.
  for (int i = 0; i <= 4; ++i) {
    NbTirées = vb::CByte(NbTirées + 1);
    const int tirée = TireCarteNonSortie(10, [this, i] {
      Sys().DoEvents();
      return Deal(i).GetPicture() == Cartes(kDos).GetPicture() || Jouez(i).Caption() == MotCarteJetée();
    });
    if (tirée < 0) continue;
    if (!AffichageImmédiat) AnimeCarte(Deal(i), false);
    Deal(i).SetPicture(Cartes(tirée).GetPicture());
    if (!AffichageImmédiat) AnimeCarte(Deal(i), true);
    CartesTirage(i) = vb::CByte(tirée);
    CartesSorties(NbTirées) = vb::CInt(tirée);
  }

  // The hand is read, counted at the end of a round, advised on and priced in the odds
  // panel; between the drawings the controls that no longer work say so by their pointer.
  for (int i = 0; i <= 4; ++i) MainTriée(i) = CartesTirage(i);
  Résultat();
  if (NbTirées == 10) AfficheFréquence();
  GardeCartes();
  Probabilités();
  if (NbTirées == 5) Pointeur12();

  // The end of a round: a win waits to be collected; without one, a new round is offered,
  // at a bet of 1 when the credit no longer covers the bet, or the credit is gone.
  if (NbTirées == 10) {
    if (RangMain != 10) {
      SSAlertes->SetCaption(TexteAlerte(Alerte::Encaisser));
    } else {
      EffaceLigneGagnante();
      Gains->SetCaption(QString());
      AfficheGain();
      const long long mise = static_cast<long long>(Niveau) * Mise;
      if (Capital != 0 && mise <= Capital) {
        Pointeur10();
        SSAlertes->SetCaption(TexteAlerte(Alerte::NouveauTirage));
      } else if (Capital != 0) {
        Pointeur10();
        SSAlertes->SetCaption(TexteAlerte(Alerte::MiseRamenée));
        RemetMiseÀUn();
      } else {
        for (int i = 0; i <= 4; ++i) Jouez(i).SetVisible(false);
        Pointeur12();
        SSAlertes->SetCaption(TexteAlerte(Alerte::CréditÉpuisé));
      }
    }
  }

  // A paying hand shows its value at either drawing; it is owed only after the second.
  if (RangMain != 10) {
    EffaceLigneGagnante();
    GainMain = vb::CLng(static_cast<long long>(TableGains(RangMain)) * Mise);
    Gains->SetCaption(QString::number(GainMain));
    AfficheGain();
    if (SSGains->Top() == 630) {
      Maintitre(RangMain).SetForeColor(couleur::kRouge);
      MainLabel(RangMain).SetForeColor(couleur::kRouge);
      Maintitre(RangMain).SetBackColor(couleur::kOcre);
      MainLabel(RangMain).SetBackColor(couleur::kOcre);
    }
  }

  // The round is over: the cards can no longer be acted on; a win offers the double-up.
  if (NbTirées == 10) {
    for (int i = 0; i <= 4; ++i) Deal(i).SetMousePointer(kInterdit);
    if (RangMain != 10) {
      for (int i = 0; i <= 4; ++i) Jouez(i).SetVisible(false);
      Doubler->SetVisible(true);
    }
  }
  AvertitCoach(MomentCoach::FinTirage);
}

// Turns down the cards to be replaced: the rejected ones, and at the start of a round every
// card still face up.
void JeuPoker::InitTirage() {
  const QString jeter = MotCarteJetée();
  bool retournée = false;
  for (int i = 0; i <= 4; ++i) {
    if (Jouez(i).Caption() == jeter || (NbTirées == 0 && Deal(i).GetPicture() != Cartes(kDos).GetPicture())) {
      retournée = true;
      if (!AffichageImmédiat) AnimeCarte(Deal(i), false);
      Deal(i).SetPicture(Cartes(kDos).GetPicture());
      if (!AffichageImmédiat) AnimeCarte(Deal(i), true);
    }
  }
  Sys().DoEvents();
  // Without the animation the backs would not be seen at all.
  if (AffichageImmédiat && retournée) Sys().Sleep(250);
}

// The bet and the level back to 1, with their displays and the pay table.
void JeuPoker::RemetMiseÀUn() {
  Mise = 1;
  Niveau = 1;
  UnADouze->SetCaption(QStringLiteral("1"));
  AfficheUnàDouze();
  Mises->SetCaption(QStringLiteral("1"));
  AfficheMise();
  for (int i = 0; i <= 9; ++i) MainLabel(i).SetCaption(QString::number(TableGains(i)));
}
