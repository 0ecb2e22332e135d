// Automatic card selection: which cards a sensible player keeps after the first drawing, by
// the rule table of AppliqueRèglesSélection over what Résultat left. On the 2D grid the same
// routine only fills CartesGardées with the made hands.
#include "classic/selection_rules.h"
#include "core/colours.h"
#include "core/table_facts.h"
#include "interface/JeuPoker.h"

void JeuPoker::MarqueCarte(int i) { CartesGardées(PositionsMain(i)) = true; }

void JeuPoker::GardeCartes() {
  if (NbTirées == 10 || NbTirées == 50) return;

  SSAlertes->SetCaption(TexteAlerte(Alerte::SecondTirage));

  // With the option off all five cards start as rejected.
  if (ParesseNon->BevelWidth() == 0) {
    for (int i = 0; i <= 4; ++i) {
      Jouez(i).SetBackColor(couleur::kJetée);
      Jouez(i).SetCaption(MotCarteJetée());
    }
  }

  const bool automatique = ParesseOui->BevelWidth() == 0;
  if (automatique || Jeu3D->BevelWidth() == 1) {
    // The rule table runs on what Résultat left; the rules for hands of class 10 only with
    // the option on.
    MainÉvaluée m;
    ÉtatSélection s;
    for (int i = 0; i <= 4; ++i) {
      m.triée[i] = MainTriée(i);
      m.valeurs[i] = ValeursMain(i);
      m.blocs[i] = BlocsCouleur(i);
      s.tirage[i] = CartesTirage(i);
      s.positions[i] = PositionsMain(i);
      s.gardées[i] = CartesGardées(i);
    }
    m.rang = RangMain;
    m.nbRois = NbRois;
    m.nbAs = NbAs;
    m.nbPaires = NbPaires;
    AppliqueRèglesSélection(m, s, automatique);
    for (int i = 0; i <= 4; ++i) {
      PositionsMain(i) = s.positions[i];
      CartesGardées(i) = s.gardées[i];
    }

    if (automatique) {
      for (int i = 0; i <= 4; ++i) {
        if (CartesGardées(i)) {
          Jouez(i).SetCaption(MotCarteGardée());
          Jouez(i).SetBackColor(couleur::kGardée);
        } else {
          Jouez(i).SetCaption(MotCarteJetée());
          Jouez(i).SetBackColor(couleur::kJetée);
        }
      }
    }
  }

  for (int i = 0; i <= 4; ++i)
    if (!Jouez(i).Visible()) Jouez(i).SetVisible(true);
}

namespace {
// Selects one button of the pair: the chosen one flat with the no-entry pointer and its
// lamp lit, the other raised, and the advice images showing the chosen button.
void SelectionneParesse(JeuPoker& f, Control& choisi, Control& autre, Control& lampeChoisie, Control& autreLampe) {
  f.Tirage->SetFocus();
  if (f.AutoPlay->BevelWidth() == 0) return;
  if (f.DoubleEnCours || f.NbTirées == 5 || f.NbTirées == 25 || f.Doubler->Visible() || f.Doubler5->Visible() ||
      f.Capital == 0) {
    f.ClignoteAlertes();
    return;
  }
  if (choisi.BevelWidth() == 0 || f.Jeu3D->BevelWidth() == 1) return;
  choisi.SetMousePointer(kInterdit);
  choisi.SetBevelWidth(0);
  autre.SetMousePointer(kFlèche);
  autre.SetBevelWidth(3);
  lampeChoisie.SetVisible(true);
  autreLampe.SetVisible(false);
  for (int i = 0; i <= 4; ++i) f.ImageConseils(i).SetPicture(choisi.GetPicture());
}
}  // namespace

void JeuPoker::ParesseOui_Click() { SelectionneParesse(*this, *ParesseOui, *ParesseNon, *PParesseOui, *PParesseNon); }

void JeuPoker::ParesseNon_Click() { SelectionneParesse(*this, *ParesseNon, *ParesseOui, *PParesseNon, *PParesseOui); }
