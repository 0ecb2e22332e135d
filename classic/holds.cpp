// Holding and rejecting cards between the two drawings, by click or by the numeric keypad.
// The hold state is the caption of Jouez(i); Tirage1 and the probability panel read it.
#include "interface/JeuPoker.h"

namespace {
constexpr Long kHeldColour = 0xC0C000;
constexpr Long kRejectedColour = 0x607000;
constexpr int kKeypad1 = 97;
constexpr int kKeypad5 = 101;
constexpr int kF2 = 113;

// Langue 0 or 2 is English, anything else French.
bool English(Byte langue) { return langue == 0 || langue == 2; }
}  // namespace

QString JeuPoker::MotCarteGardée() const { return English(Langue) ? QStringLiteral("HOLD") : QStringLiteral("GARDER"); }

QString JeuPoker::MotCarteJetée() const { return English(Langue) ? QStringLiteral("REJECT") : QStringLiteral("JETER"); }

void JeuPoker::InverseJouez(int index) {
  Control& jouez = Jouez(index);
  if (jouez.Caption() == MotCarteGardée()) {
    jouez.SetCaption(MotCarteJetée());
    jouez.SetBackColor(kRejectedColour);
  } else {
    // "JOUEZ"/"PLAY", or a word of the other language, counts as not held.
    jouez.SetCaption(MotCarteGardée());
    jouez.SetBackColor(kHeldColour);
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
  }
}

void JeuPoker::Form_Click() {
  if (!SSAides->Visible()) Tirage->SetFocus();
}
