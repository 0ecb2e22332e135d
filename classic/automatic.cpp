// Automatic mode: drawing after drawing in the game in force, without the player. It is one
// long click handler; the stop, the timers and every other handler run in its yields. The
// mode's only state is AutoPlay's BevelWidth: 0 running, 3 idle.
#include "core/colours.h"
#include "core/table_facts.h"
#include "interface/JeuPoker.h"
#include "services/platform.h"

bool JeuPoker::AutoEnCours() const { return AutoPlay->BevelWidth() == 0; }

void JeuPoker::PointeursAuto(bool enMarche) {
  const int p = enMarche ? kInterdit : kFlèche;
  for (Control* c : {Jouer, SSRecommence, Double1X5, Quitte1X5, Double5X5, Quitte5X5, Conseils5, AnnuleConseils5})
    c->SetMousePointer(p);
  const int carte = enMarche ? kInterdit : kCarte;
  for (int i = 0; i <= 4; ++i) Deal(i).SetMousePointer(carte);
  for (int p2 = 0; p2 <= 24; ++p2) Deal2(p2).SetMousePointer(carte);
}

void JeuPoker::AutoPlay_Click() {
  Tirage->SetFocus();
  if (DoubleEnCours || Capital == 0) {
    ClignoteAlertes();
    return;
  }
  if (AutoEnCours()) return;

  AutoPlayTimer->SetEnabled(true);
  AutoPlay->SetBevelWidth(0);
  AutoPlay->SetBackColor(couleur::kGrisMarche);
  AutoPlay->SetMousePointer(kInterdit);
  AutoPlayStop->SetBevelWidth(3);
  AutoPlayStop->SetForeColor(couleur::kRougeSombre);
  AutoPlayStop->SetMousePointer(kFlèche);
  PointeursAuto(true);
  for (Control* c : {ParesseNon, ParesseOui, &SSVitesse(0), &SSVitesse(1)}) c->SetMousePointer(kInterdit);

  // In JEU 1 the holds are the automatic selection's, and they stay so after the stop.
  if (JeuSimple->BevelWidth() == 1 && ParesseOui->BevelWidth() == 3) {
    ParesseOui->SetBevelWidth(0);
    ParesseNon->SetBevelWidth(3);
    PParesseOui->SetVisible(true);
    PParesseNon->SetVisible(false);
    for (int i = 0; i <= 4; ++i) ImageConseils(i).SetPicture(ParesseOui->GetPicture());
  }
  // Instant dealing, which also stays.
  SSVitesse(0).SetBevelWidth(3);
  SSVitesse(1).SetBevelWidth(0);
  PSSVitesse(0).SetVisible(false);
  PSSVitesse(1).SetVisible(true);
  if (!AffichageImmédiat) AffichageImmédiat = true;

  for (;;) {
    if (SSAireJeu->Visible()) Tirage1();
    if (SSAireJeu5->Visible()) Tirage5();
    // Between the grid's drawings the positions no line in play keeps go down.
    if (SSAireJeu5->Visible() && NbTirées == 25) {
      for (int p = 0; p <= 24; ++p) {
        if (LignesJouées(p) || FaceCachée(p)) continue;
        Deal2(p).SetPicture(Cartes(kDos).GetPicture());
        Sys().DoEvents();
      }
    }
    // Stopped by AutoPlayStop, or put at rest by Pointeur12 when the credit ran out.
    if (AutoPlay->BevelWidth() == 3) {
      ClignoteAlertes();
      return;
    }
    Sys().DoEvents();
  }
}

void JeuPoker::AutoPlayStop_Click() {
  Tirage->SetFocus();
  // With the last credit staked the stop is refused: the round wins or ends the mode itself.
  if (DoubleEnCours || Capital == 0) {
    ClignoteAlertes();
    return;
  }
  if (!AutoEnCours()) return;
  AutoPlay->SetBevelWidth(3);
  AutoPlay->SetForeColor(couleur::kRougeSombre);
  AutoPlay->SetBackColor(couleur::kGrisArrêt);
  AutoPlay->SetMousePointer(kFlèche);
  AutoPlayStop->SetBevelWidth(0);
  AutoPlayStop->SetForeColor(couleur::kNoir);
  AutoPlayStop->SetMousePointer(kInterdit);
  PointeursAuto(false);
  if (JeuSimple->BevelWidth() == 1) ParesseNon->SetMousePointer(kFlèche);
  SSVitesse(0).SetMousePointer(kFlèche);
  AutoPlayTimer->SetEnabled(false);
}

void JeuPoker::AutoPlayTimer_Timer() {
  AutoPlay->SetForeColor(AutoPlay->ForeColor() == couleur::kRougeSombre ? couleur::kRouge : couleur::kRougeSombre);
}
