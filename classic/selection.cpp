// Automatic card selection: which cards a sensible player keeps after the first drawing,
// as a fixed rule table over what Résultat left (sorted hand, ranks, suit blocks, pairs).
// On the 2D grid the same routine only fills CartesGardées with the made hands.
#include "interface/JeuPoker.h"

namespace {
constexpr Long kHeldColour = 0xC0C000;
constexpr Long kRejectedColour = 0x607000;

bool IsAce(Byte code) { return code == 12 || code == 25 || code == 38 || code == 51; }
bool IsKing(Byte code) { return code == 11 || code == 24 || code == 37 || code == 50; }
}  // namespace

void JeuPoker::MarqueCarte(int i) { CartesGardées(PositionsMain(i)) = true; }

void JeuPoker::GardeCartes() {
  if (NbTirées == 10 || NbTirées == 50) return;

  SSAlertes->SetCaption(TexteAlerte(Alerte::SecondTirage));

  // With the option off all five cards start as rejected.
  if (ParesseNon->BevelWidth() == 0) {
    for (int i = 0; i <= 4; ++i) {
      Jouez(i).SetBackColor(kRejectedColour);
      Jouez(i).SetCaption(MotCarteJetée());
    }
  }

  const bool automatique = ParesseOui->BevelWidth() == 0;
  if (automatique || Jeu3D->BevelWidth() == 1) {
    const bool joker = MainTriée(4) > 51;

    // Jokers are always kept.
    if (MainTriée(3) == 52) {
      MarqueCarte(3);
      MarqueCarte(4);
    }
    if (joker) MarqueCarte(4);

    // Pair of kings or aces: the aces win over the kings, so king, ace and joker keep the
    // ace and the joker. The last card need not be looked at: it is the joker, or the pair
    // is already marked by Résultat.
    if (RangMain == 0) {
      bool asGardé = false;
      if (NbAs == 2 || (NbAs == 1 && joker)) {
        for (int i = 0; i <= 3; ++i) {
          if (IsAce(MainTriée(i))) {
            MarqueCarte(i);
            asGardé = true;
          }
        }
      }
      if (!asGardé && (NbRois == 2 || (NbRois == 1 && joker))) {
        for (int i = 0; i <= 3; ++i)
          if (IsKing(MainTriée(i))) MarqueCarte(i);
      }
    }

    // A made straight, flush or better keeps all five.
    if (RangMain == 3 || RangMain == 4 || RangMain == 7 || RangMain == 8 || RangMain == 9) {
      for (int i = 0; i <= 4; ++i) CartesGardées(i) = true;
    } else if (RangMain == 10 && automatique) {
      bool tirage = false;  // a draw to a flush or a straight was found

      // Four to a flush, or three and a joker; it breaks up a low pair.
      for (int d = 0; d <= 39; d += 13) {
        int compte = 0;
        for (int i = 0; i <= 4; ++i)
          if (MainTriée(i) >= d && MainTriée(i) <= d + 12) ++compte;
        if ((compte == 3 && joker) || compte == 4) {
          tirage = true;
          for (int i = 0; i <= 4; ++i) {
            if (MainTriée(i) >= d && MainTriée(i) <= d + 12)
              MarqueCarte(i);
            else if (MainTriée(i) <= 51)
              CartesGardées(PositionsMain(i)) = false;
          }
          break;
        }
      }

      // Four to a straight, or three and a joker, when there is no pair. The last test that
      // holds gives the case; the indexes are those of the sorted ranks.
      if (!tirage && NbPaires == 0) {
        int q = 0;
        if (ValeursMain(4) < 52) {
          if (vb::CByte(ValeursMain(3) - ValeursMain(0)) < 5) q = 1;
          if (vb::CByte(ValeursMain(4) - ValeursMain(1)) < 5) q = 2;
          if (ValeursMain(4) == 12 && ValeursMain(2) < 4) q = 3;  // the ace below three low cards
        } else {
          if (vb::CByte(ValeursMain(2) - ValeursMain(0)) < 5) q = 5;
          if (vb::CByte(ValeursMain(3) - ValeursMain(1)) < 5) q = 4;
        }
        if (q != 0) {
          tirage = true;
          // PositionsMain follows the order of the ranks from here on. A joker's block is
          // stale, so its sum matches nothing and it keeps the position Résultat found.
          for (int i = 0; i <= 4; ++i)
            for (int j = 0; j <= 4; ++j)
              if (CartesTirage(j) == vb::CByte(ValeursMain(i) + BlocsCouleur(i))) PositionsMain(i) = vb::CByte(j);
          struct Cas {
            int rejetée;
            int gardées[4];
            int nbGardées;
          };
          static constexpr Cas kCas[6] = {
              {0, {0, 0, 0, 0}, 0},  // unused
              {4, {0, 1, 2, 3}, 4},  // four in a row, the top card goes
              {0, {1, 2, 3, 4}, 4},  // four in a row, the bottom card goes
              {3, {0, 1, 2, 4}, 4},  // ace with three low cards
              {0, {1, 2, 3, 0}, 3},  // joker with three: the bottom card goes
              {3, {0, 1, 2, 0}, 3},  // joker with three: the fourth card goes
          };
          const Cas& c = kCas[q];
          CartesGardées(PositionsMain(c.rejetée)) = false;
          for (int k = 0; k < c.nbGardées; ++k) MarqueCarte(c.gardées[k]);
        }
      }

      // Nothing to draw to: every king and ace stays.
      if (!tirage && NbPaires == 0) {
        for (int i = 0; i <= 4; ++i)
          if (IsAce(MainTriée(i)) || IsKing(MainTriée(i))) MarqueCarte(i);
      }
    }

    if (automatique) {
      for (int i = 0; i <= 4; ++i) {
        if (CartesGardées(i)) {
          Jouez(i).SetCaption(MotCarteGardée());
          Jouez(i).SetBackColor(kHeldColour);
        } else {
          Jouez(i).SetCaption(MotCarteJetée());
          Jouez(i).SetBackColor(kRejectedColour);
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
  choisi.SetMousePointer(12);
  choisi.SetBevelWidth(0);
  autre.SetMousePointer(10);
  autre.SetBevelWidth(3);
  lampeChoisie.SetVisible(true);
  autreLampe.SetVisible(false);
  for (int i = 0; i <= 4; ++i) f.ImageConseils(i).SetPicture(choisi.GetPicture());
}
}  // namespace

void JeuPoker::ParesseOui_Click() { SelectionneParesse(*this, *ParesseOui, *ParesseNon, *PParesseOui, *PParesseNon); }

void JeuPoker::ParesseNon_Click() { SelectionneParesse(*this, *ParesseNon, *ParesseOui, *PParesseNon, *PParesseOui); }
