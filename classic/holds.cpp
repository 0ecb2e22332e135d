// Holding and rejecting cards between the two drawings, by click or by the numeric keypad.
// The hold state is the caption of Jouez(i); Tirage1 and the probability panel read it.
#include "core/colours.h"
#include "core/table_facts.h"
#include "interface/JeuPoker.h"

namespace {
constexpr int kKeypad1 = 97;
constexpr int kKeypad5 = 101;
constexpr int kF2 = 113;
}  // namespace

QString JeuPoker::MotCarteGardée() const { return Mot(kMotGarder, Anglais(Langue)); }

QString JeuPoker::MotCarteJetée() const { return Mot(kMotJeter, Anglais(Langue)); }

void JeuPoker::InverseJouez(int index) {
  Control& jouez = Jouez(index);
  if (jouez.Caption() == MotCarteGardée()) {
    jouez.SetCaption(MotCarteJetée());
    jouez.SetBackColor(couleur::kJetée);
  } else {
    // "JOUEZ"/"PLAY", or a word of the other language, counts as not held.
    jouez.SetCaption(MotCarteGardée());
    jouez.SetBackColor(couleur::kGardée);
  }
  AvertitCoach(MomentCoach::Suivi);
}

void JeuPoker::Deal_Click(int index) {
  Tirage->SetFocus();
  if (AutoPlay->BevelWidth() == 0) return;
  if (NbTirées != 5) {
    // Outside the stage between the drawings only a double-up choice is taken, and never
    // position 0, which shows the house card.
    if (!DoubleEnCours || index == 0) {
      ClignoteAlertes();
      return;
    }
  }
  if (DoubleEnCours) {
    CarteChoisie = vb::CByte(index);
    ChoixCarteQouD();
    AvertitCoach(MomentCoach::Suivi);
    return;
  }
  InverseJouez(index);
  Probabilités();
}

// The keypad path differs from the click on purpose: it ignores automatic mode, leaves the
// panel as it is, and drops a key that is not allowed without blinking.
void JeuPoker::Form_KeyDown(int keyCode, int /*shift*/) {
  if (keyCode == kF2) BasculeCoach();
  if (SSAides->Visible()) return;
  Tirage->SetFocus();
  // Only keypad 1..5 act here; Space belongs to Tirage's own key handlers.
  if (keyCode < kKeypad1 || keyCode > kKeypad5) return;
  CarteClavier = vb::CByte(keyCode - kKeypad1);
  if (!DoubleEnCours && NbTirées == 5) InverseJouez(CarteClavier);
  if (DoubleEnCours && keyCode != kKeypad1) {
    CarteChoisie = CarteClavier;
    ChoixCarteQouD();
    AvertitCoach(MomentCoach::Suivi);
  }
}

void JeuPoker::Form_Click() {
  if (!SSAides->Visible()) Tirage->SetFocus();
}
