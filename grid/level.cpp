// JEU 2's bet level 1..12: the number of lines in play, always from line 1 upward. The two
// buttons are a ring: 12 wraps to 1 at any credit, and the two steps that raise the stake
// are refused silently when the credit does not cover them.
#include "core/colours.h"
#include "core/table_facts.h"
#include "interface/JeuPoker.h"

void JeuPoker::MetLigneEnJeu(int i, bool enJeu) {
  Mains5(i).SetVisible(enJeu);
  Gains5(i).SetVisible(enJeu);
  UnADouzeLine(i).SetVisible(enJeu);
  UnADouzeTémoin(i).SetBackColor(enJeu ? couleur::kJaune : couleur::kGris);
}

void JeuPoker::RemetNiveauÀUn() {
  Mise = 1;
  Niveau = 1;
  UnADouze->SetCaption(QStringLiteral("1"));
  Mises->SetCaption(QStringLiteral("1"));
  AfficheUnàDouze();
  AfficheMise();
  for (int i = 1; i <= 11; ++i)
    if (Mains5(i).Visible()) MetLigneEnJeu(i, false);
}

void JeuPoker::NiveauChangé() {
  UnADouze->SetCaption(QString::number(Niveau));
  AfficheUnàDouze();
  Mises->SetCaption(QString::number(static_cast<long long>(Mise) * Niveau));
  AfficheMise();
}

void JeuPoker::Plus5_Click() {
  Tirage->SetFocus();
  if (MiseRefusée()) {
    ClignoteAlertes();
    return;
  }
  if (Niveau == 12) {
    Niveau = 1;
    for (int i = 1; i <= 11; ++i) MetLigneEnJeu(i, false);
  } else {
    if ((static_cast<long long>(Niveau) + 1) * Mise > Capital) return;
    Niveau = vb::CByte(Niveau + 1);
    MetLigneEnJeu(Niveau - 1, true);
  }
  NiveauChangé();
}

void JeuPoker::Moins5_Click() {
  Tirage->SetFocus();
  if (MiseRefusée()) {
    ClignoteAlertes();
    return;
  }
  if (Niveau == 1) {
    if (static_cast<long long>(Mise) * 12 > Capital) return;
    Niveau = 12;
    for (int i = 1; i <= 11; ++i) MetLigneEnJeu(i, true);
  } else {
    Niveau = vb::CByte(Niveau - 1);
    MetLigneEnJeu(Niveau, false);
  }
  NiveauChangé();
}

// The hint, then the pointer: it follows the credit test of the step that raises the stake;
// elsewhere it is left as it is.
void JeuPoker::Plus5_MouseMove(int, int, int, int) {
  MontreAide(22, false, false);
  PointeurMise(*Plus5, Niveau < 12, (static_cast<long long>(Niveau) + 1) * Mise);
}

void JeuPoker::Moins5_MouseMove(int, int, int, int) {
  MontreAide(21, false, false);
  PointeurMise(*Moins5, Niveau == 1, static_cast<long long>(Mise) * 12);
}
