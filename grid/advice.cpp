// JEU 2's advice between the drawings. The rule is gathered during the first drawing's
// settlement into LignesJouées (a position is kept as soon as one line in play keeps it);
// CONSEILS only turns down the others, ANNULE turns every card up again.
#include "core/table_facts.h"
#include "interface/JeuPoker.h"
#include "services/platform.h"

void JeuPoker::Conseils5_Click() {
  Tirage->SetFocus();
  if (AutoPlay->BevelWidth() == 0) return;
  // Cards only go down: one the player turned down stays down.
  for (int p = 0; p <= 24; ++p) {
    if (LignesJouées(p) || FaceCachée(p)) continue;
    Deal2(p).SetPicture(Cartes(kDos).GetPicture());
    Sys().DoEvents();
  }
  AvertitCoach(MomentCoach::Suivi);
}

void JeuPoker::AnnuleConseils5_Click() {
  Tirage->SetFocus();
  if (AutoPlay->BevelWidth() == 0) return;
  for (int p = 0; p <= 24; ++p) {
    if (!FaceCachée(p)) continue;
    Deal2(p).SetPicture(Cartes2(CartesTirage(p)).GetPicture());
    Sys().DoEvents();
  }
  AvertitCoach(MomentCoach::Suivi);
}
