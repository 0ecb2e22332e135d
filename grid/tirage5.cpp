// JEU 2: the 5 by 5 grid. One drawing (Tirage5) deals every face-down position from the deck
// of the deal, then prices each line in play as a hand of its own; the first drawing's total
// is only shown, the second one's is the win. Between the drawings the player turns cards
// face down, and exactly those are replaced.
//
// A position is face down exactly when its button shows the picture of Cartes(kDos): there is
// no other record of it. The animation yields at every step, so other handlers (a second
// PLAY included) can run inside a drawing; nothing guards against it, as in the classic game.
#include "core/table_facts.h"
#include "grid/line_rules.h"
#include "interface/JeuPoker.h"
#include "services/platform.h"

Byte JeuPoker::PositionLigne(int ligne, int j) { return PositionSurLigne(ligne, j); }

bool JeuPoker::FaceCachée(int p) const { return Deal2(p).GetPicture() == Cartes(kDos).GetPicture(); }

void JeuPoker::AnimeCarte2(int p, bool grow) {
  AnimeCarte(Deal2(p), grow);
  // The exact size at rest, so that the rounding of sixty steps never accumulates.
  if (grow) {
    Deal2(p).SetHeight(1305);
    Deal2(p).SetWidth(975);
  }
}

void JeuPoker::MontreCarte2(int p, Picture image) {
  if (!AffichageImmédiat) AnimeCarte2(p, false);
  Deal2(p).SetPicture(image);
  if (!AffichageImmédiat) AnimeCarte2(p, true);
}

void JeuPoker::Tirage5() {
  AvertitCoach(MomentCoach::Décision);
  // A new deal: close the last one, turn the grid down and give the cards the card pointer.
  if (NbTirées != 25) {
    InitPremierTirage5();
    for (int p = 0; p <= 24; ++p) Deal2(p).SetMousePointer(kCarte);
  }
  // The double-up offer of the last deal goes, and the PLAY invitation.
  if (Doubler5->Visible()) Doubler5->SetVisible(false);
  if (NbTirées == 0 || NbTirées == 25) Jouez5->SetVisible(false);
  // The stake, at the start of a deal only (the credit is checked by the callers and by
  // InitPremierTirage5, not here).
  if (NbTirées == 0) PrélèveMise();

  // Every position counts; only the face-down ones get a card, never one already out in
  // this deal. Each try reads the clock anew.
  for (int p = 0; p <= 24; ++p) {
    NbTirées = vb::CByte(NbTirées + 1);
    if (!FaceCachée(p)) continue;
    const int tirée = TireCarteNonSortie(50);
    MontreCarte2(p, Cartes2(tirée).GetPicture());
    CartesTirage(p) = vb::CByte(tirée);
    CartesSorties(NbTirées) = vb::CInt(tirée);
  }

  // Between the drawings: the advice panel, and the advice gathered anew.
  if (NbTirées == 25) {
    Pointeur12();
    SSConseils5->SetVisible(true);
    for (int p = 0; p <= 24; ++p) LignesJouées(p) = false;
  }

  RègleLignes();
  AvertitCoach(MomentCoach::FinTirage);
}

void JeuPoker::RègleLignes() {
  // Every line in play is read as a hand and priced on the fixed scale of Résultat.
  GainTirage = 0;
  const int fin = Niveau;
  for (int ligne = 1; ligne <= fin; ++ligne) {
    for (int j = 0; j <= 4; ++j) {
      IndexLigne(j) = PositionLigne(ligne, j);
      MainTriée(j) = CartesTirage(IndexLigne(j));
    }
    Résultat();
    if (NbTirées == 50) AfficheFréquence();
    GardeCartes();
    MainsLignes(ligne - 1) = RangMain;
    Mains5(ligne - 1).SetCaption(NomsMains(RangMain));
    const Long prix = vb::CLng(static_cast<long long>(Mise) * GainMain);
    Gains5(ligne - 1).SetCaption(QString::number(prix));
    GainTirage = vb::CLng(static_cast<long long>(GainTirage) + prix);
    if (NbTirées == 25) {
      for (int j = 0; j <= 4; ++j)
        if (CartesGardées(j)) LignesJouées(IndexLigne(j)) = true;
    }
  }
  Gains5(12).SetCaption(QString::number(GainTirage));
  // A total of 0 leaves the Gains caption as it was (the first drawing's, possibly).
  if (GainTirage > 0) {
    Gains->SetCaption(QString::number(GainTirage));
    AfficheGain5();
  }

  if (NbTirées == 25) {
    SSAlertes->SetCaption(TexteAlerte(Alerte::SecondTirage));
    return;
  }
  if (NbTirées == 50) ConclutTirage5();
}

void JeuPoker::ConclutTirage5() {
  for (int p = 0; p <= 24; ++p) Deal2(p).SetMousePointer(kInterdit);
  SSConseils5->SetVisible(false);
  const long long mise = static_cast<long long>(Niveau) * Mise;
  if (GainTirage > 0) {
    Doubler5->SetVisible(true);
    // Message B only warns: the bet falls back at the next deal or by the double-up.
    SSAlertes->SetCaption(TexteAlerte(mise <= static_cast<long long>(Capital) + GainTirage ? Alerte::Encaisser
                                                                                           : Alerte::EncaisserMiseUn));
  } else if (Capital != 0) {
    Pointeur10();
    if (mise <= Capital) {
      SSAlertes->SetCaption(TexteAlerte(Alerte::NouveauTirage));
      Jouez5->SetVisible(true);
      Gains->SetCaption(QString());
      AfficheGain();
    } else {
      // The bet falls back to 1, but the lines 2..12 keep their labels, drawn lines and tags,
      // Gains keeps its caption and Jouez5 stays hidden until the next deal.
      SSAlertes->SetCaption(TexteAlerte(Alerte::MiseRamenée));
      RemetMiseÀUn();
    }
  } else {
    // The end of the game, unless a stale Gains caption from the first drawing keeps PLAY
    // open: then the next stake takes the credit below 0 and its display stops the program.
    Pointeur12();
    SSAlertes->SetCaption(TexteAlerte(Alerte::CréditÉpuiséGrille));
  }
}

void JeuPoker::InitPremierTirage5() {
  // Winnings are collected here, on PLAY as well as on QUITTE.
  if (GainTirage != 0) {
    Capital = vb::CLng(static_cast<long long>(Capital) + GainTirage);
    AfficheCapital();
    GainTirage = 0;
  }
  // A bet the credit no longer covers falls back to 1 after a finished deal.
  if (NbTirées == 50 && static_cast<long long>(Niveau) * Mise > Capital) {
    RemetNiveauÀUn();
  }
  // A fresh deal: no card drawn or out yet, the win and the line captions blank.
  NbTirées = 0;
  Gains->SetCaption(QString());
  AfficheGain();
  GainTirage = 0;
  for (int i = 0; i <= 11; ++i) {
    Mains5(i).SetCaption(QString());
    Gains5(i).SetCaption(QString());
  }
  Gains5(12).SetCaption(QString());
  for (int k = 1; k <= 50; ++k) CartesSorties(k) = -1;
  // The grid goes face down, yielding once a card even without the animation.
  for (int p = 0; p <= 24; ++p) {
    if (FaceCachée(p)) continue;
    if (!AffichageImmédiat) AnimeCarte2(p, false);
    Deal2(p).SetPicture(Cartes(kDos).GetPicture());
    Sys().DoEvents();
    if (!AffichageImmédiat) AnimeCarte2(p, true);
  }
}

void JeuPoker::Affichecarte5() {
  const int p = CarteClavier;
  MontreCarte2(p, FaceCachée(p) ? Cartes2(CartesTirage(p)).GetPicture() : Cartes(kDos).GetPicture());
  AvertitCoach(MomentCoach::Suivi);
}

void JeuPoker::Deal2_Click(int index) {
  Tirage->SetFocus();
  Messages(0) = Messages(LangueVar + TexteAide);
  AfficheMessage();
  // Between the drawings any card turns; during a double-up any card but the house's is the
  // pick; otherwise the click is refused.
  if (NbTirées != 25) {
    if (!DoubleEnCours || index == 0) {
      ClignoteAlertes();
      return;
    }
  }
  if (!DoubleEnCours) {
    CarteClavier = vb::CByte(index);
    Affichecarte5();
  } else {
    CarteChoisie = vb::CByte(index);
    ChoixCarteQouD5();
    AvertitCoach(MomentCoach::Suivi);
  }
}
