// The digit displays of the credit, the winnings, the bet and the level; the bet buttons;
// the mouse pointers that tell which controls will work.
#include "core/colours.h"
#include "core/table_facts.h"
#include "interface/JeuPoker.h"
#include "services/platform.h"

namespace {

// First index of each digit set in ChiffresModèle.
constexpr int kRouge = 0;  // winnings
constexpr int kBleu = 10;  // credit
constexpr int kGris = 20;  // bet and level

// A number written with its sign place: a leading blank when it is not negative.
QString AvecSigne(Long v) { return v < 0 ? QString::number(v) : QStringLiteral(" ") + QString::number(v); }

// The digit at position i (from 0) of a text. A missing character or any other character is
// a type mismatch, as converting it to a number would be.
int ChiffreÀ(const QString& text, int i) {
  if (i < 0 || i >= text.size()) vb::RuntimeError(vb::TypeMismatch);
  const QChar c = text.at(i);
  if (c < QChar('0') || c > QChar('9')) vb::RuntimeError(vb::TypeMismatch);
  return c.digitValue();
}

// The numeric value of a caption: leading blanks skipped, then the digits up to the first
// other character; 0 when there are none.
long long Valeur(const QString& text) {
  long long v = 0;
  int i = 0;
  while (i < text.size() && text.at(i) == QChar(' ')) ++i;
  for (; i < text.size() && text.at(i).isDigit() && v < 1000000000LL; ++i) v = v * 10 + text.at(i).digitValue();
  return v;
}

// Draws `montant` centred on 1080 twips over the eight slots, with the digit set starting at
// `jeu`. Nine digits reach the missing slot 8 (error 9); the sign of a negative amount is read
// as a digit (error 13).
void NombreCentré(const ControlArray<Control>& cases, const ControlArray<Control>& modèles, Long montant, int jeu) {
  const QString texte = AvecSigne(montant);
  const int n = static_cast<int>(texte.size()) - 1;
  cases(0).SetLeft(960 - 120 * (n - 1));
  for (int i = 1; i <= 7; ++i) cases(i).SetLeft(cases(0).Left() + i * 240);
  for (int i = 0; i <= n - 1; ++i) cases(i).SetVisible(true);
  for (int i = n; i <= 7; ++i) cases(i).SetVisible(false);
  const QString chiffres = texte.trimmed();
  for (int i = 1; i <= n; ++i) cases(i - 1).SetPicture(modèles(jeu + ChiffreÀ(chiffres, i - 1)).GetPicture());
}

}  // namespace

void JeuPoker::AfficheCapital() { NombreCentré(CapImage, ChiffresModèle, Capital, kBleu); }

void JeuPoker::AfficheGain() {
  if (Gains->Caption().isEmpty()) {
    for (int i = 0; i <= 7; ++i) GainImage(i).SetVisible(false);
    return;
  }
  NombreCentré(GainImage, ChiffresModèle, GainMain, kRouge);
}

void JeuPoker::AfficheGain5() {
  if (Gains->Caption().isEmpty()) {
    for (int i = 0; i <= 7; ++i) GainImage(i).SetVisible(false);
    return;
  }
  NombreCentré(GainImage, ChiffresModèle, GainTirage, kRouge);
}

void JeuPoker::AfficheMise() {
  const QString texte = Mises->Caption();
  const long long v = Valeur(texte);
  if (v < 10) {
    MiseImage(0).SetLeft(960);
    MiseImage(1).SetVisible(false);
    MiseImage(2).SetVisible(false);
  }
  // The slots start hidden on the form; the first one always carries a digit.
  MiseImage(0).SetVisible(true);
  MiseImage(0).SetPicture(ChiffresModèle(kGris + ChiffreÀ(texte, 0)).GetPicture());
  if (v > 9 && v < 100) {
    MiseImage(0).SetLeft(840);
    MiseImage(1).SetLeft(1080);
    MiseImage(1).SetVisible(true);
    MiseImage(2).SetVisible(false);
    MiseImage(1).SetPicture(ChiffresModèle(kGris + ChiffreÀ(texte, 1)).GetPicture());
  }
  if (v > 99) {
    // Three digits stand 200 then 240 apart; 760 is kept as the start.
    MiseImage(0).SetLeft(760);
    MiseImage(1).SetLeft(960);
    MiseImage(2).SetLeft(1200);
    MiseImage(1).SetVisible(true);
    MiseImage(2).SetVisible(true);
    MiseImage(1).SetPicture(ChiffresModèle(kGris + ChiffreÀ(texte, 1)).GetPicture());
    MiseImage(2).SetPicture(ChiffresModèle(kGris + ChiffreÀ(texte, 2)).GetPicture());
  }
}

void JeuPoker::AfficheUnàDouze() {
  const QString texte = UnADouze->Caption();
  const long long v = Valeur(texte);
  if (v < 10) {
    UnàDouzeImage(0).SetLeft(960);
    UnàDouzeImage(1).SetVisible(false);
  }
  UnàDouzeImage(0).SetVisible(true);
  UnàDouzeImage(0).SetPicture(ChiffresModèle(kGris + ChiffreÀ(texte, 0)).GetPicture());
  if (v > 9) {
    UnàDouzeImage(0).SetLeft(840);
    UnàDouzeImage(1).SetLeft(1080);
    UnàDouzeImage(1).SetVisible(true);
    UnàDouzeImage(1).SetPicture(ChiffresModèle(kGris + ChiffreÀ(texte, 1)).GetPicture());
  }
}

bool JeuPoker::MiseRefusée() const {
  return DoubleEnCours || NbTirées == 5 || NbTirées == 25 || Doubler5->Visible() || Doubler->Visible() || Capital == 0;
}

void JeuPoker::MiseChangée() {
  Mises->SetCaption(QString::number(static_cast<long long>(Niveau) * Mise));
  AfficheMise();
  // The pay table on screen states what the current bet earns.
  for (int i = 0; i <= 9; ++i)
    MainLabel(i).SetCaption(QString::number(vb::CLng(static_cast<long long>(TableGains(i)) * Mise)));
}

void JeuPoker::Plus_Click() {
  Tirage->SetFocus();
  if (MiseRefusée()) {
    ClignoteAlertes();
    return;
  }
  if (Mise == 40) {
    Mise = 1;
  } else {
    // A bet the credit cannot cover is refused without a word.
    if ((static_cast<long long>(Mise) + 1) * Niveau > Capital) return;
    Mise = vb::CInt(Mise + 1);
  }
  MiseChangée();
}

void JeuPoker::Moins_Click() {
  Tirage->SetFocus();
  if (MiseRefusée()) {
    ClignoteAlertes();
    return;
  }
  if (Mise == 1) {
    if (static_cast<long long>(Niveau) * 40 > Capital) return;
    Mise = 40;
  } else {
    Mise = vb::CInt(Mise - 1);
  }
  MiseChangée();
}

void JeuPoker::PointeurMise(Control& bouton, bool hausse, long long enJeu) {
  if (MiseRefusée() || !hausse) return;
  const bool couvert = enJeu <= Capital;
  if (bouton.MousePointer() == kFlèche && !couvert)
    bouton.SetMousePointer(kInterdit);
  else if (bouton.MousePointer() == kInterdit && couvert)
    bouton.SetMousePointer(kFlèche);
}

// The hint, then the pointer; the steps that raise the bet are one up and from 1 to 40.
void JeuPoker::Plus_MouseMove(int, int, int, int) {
  MontreAide(20, false, false);
  PointeurMise(*Plus, Mise < 40, (static_cast<long long>(Mise) + 1) * Niveau);
}

void JeuPoker::Moins_MouseMove(int, int, int, int) {
  MontreAide(19, false, false);
  PointeurMise(*Moins, Mise == 1, static_cast<long long>(Niveau) * 40);
}

void JeuPoker::Pointeur10() {
  if (AutoPlay->BevelWidth() == 3) Jouer->SetMousePointer(kFlèche);
  for (int i = 0; i <= 2; ++i)
    NJokerSélection(i).SetMousePointer(NJokerSélection(i).BevelWidth() == 3 ? kFlèche : kInterdit);
  for (Control* c : {Double1X5, Double5X5, Quitte1X5, Quitte5X5, Moins, Moins5, Plus, Plus5})
    c->SetMousePointer(kFlèche);
  if (AutoPlay->BevelWidth() == 0) {
    // Automatic mode: only the game switch is told.
    if (JeuSimple->BevelWidth() == 1) {
      JeuSimple->SetMousePointer(kInterdit);
      Jeu3D->SetMousePointer(kFlèche);
    } else if (Jeu3D->BevelWidth() == 1) {
      Jeu3D->SetMousePointer(kInterdit);
      JeuSimple->SetMousePointer(kFlèche);
    }
    return;
  }
  if (JeuSimple->BevelWidth() == 1) {
    if (ParesseNon->BevelWidth() == 0) {
      ParesseNon->SetMousePointer(kInterdit);
      ParesseOui->SetMousePointer(kFlèche);
    } else if (ParesseOui->BevelWidth() == 0) {
      ParesseOui->SetMousePointer(kInterdit);
      ParesseNon->SetMousePointer(kFlèche);
    }
    JeuSimple->SetMousePointer(kInterdit);
    Jeu3D->SetMousePointer(kFlèche);
  } else if (Jeu3D->BevelWidth() == 1) {
    Jeu3D->SetMousePointer(kInterdit);
    JeuSimple->SetMousePointer(kFlèche);
    ParesseNon->SetMousePointer(kInterdit);
    ParesseOui->SetMousePointer(kInterdit);
  }
}

void JeuPoker::Pointeur12() {
  if ((NbTirées == 10 || NbTirées == 50) && Gains->Caption().isEmpty() && Capital == 0) {
    // The game is lost: automatic mode is put at rest and only a new game is offered.
    AutoPlay->SetMousePointer(kInterdit);
    AutoPlay->SetBevelWidth(3);
    AutoPlay->SetForeColor(couleur::kNoir);
    AutoPlay->SetBackColor(couleur::kGrisMarche);
    AutoPlayStop->SetMousePointer(kInterdit);
    AutoPlayStop->SetBevelWidth(0);
    AutoPlayStop->SetForeColor(couleur::kRougeSombre);
    AutoPlayTimer->SetEnabled(false);
    SSRecommence->SetMousePointer(kFlèche);
  }
  if (AutoPlay->BevelWidth() > 0) {
    for (int i = 0; i <= 2; ++i) NJokerSélection(i).SetMousePointer(kInterdit);
    for (Control* c : {Jeu3D, JeuSimple, Moins, Moins5, ParesseNon, ParesseOui, Plus, Plus5})
      c->SetMousePointer(kInterdit);
  }
}

// The digit displays keep no variables of their own.
void JeuPoker::RegisterInterfaceVariables() {}
