// The display mode: checked at start, changed to 1024 x 768 with the player's consent when the
// screen has fewer lines, and given back at the end. The consent is asked by AfficheForm, a
// small window of its own.
#include <QDir>

#include "core/colours.h"
#include "interface/JeuPoker.h"
#include "services/platform.h"
#include "services/web.h"

namespace {
// Bits per pixel, width, height and frequency.
constexpr unsigned kChamps = 0x5C0000;
}  // namespace

void JeuPoker::BuildAfficheForm() {
  using K = ControlKind;
  AfficheForm = new Control(K::Panel, QStringLiteral("AfficheForm"), -1, this);
  AfficheForm->setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::CustomizeWindowHint);
  AfficheForm->setWindowTitle(QStringLiteral("TALVERO"));
  AfficheForm->Move(0, 0, 7200, 4200);
  AfficheForm->SetBackColor(couleur::kAnthracite);
  AfficheForm->SetBevelWidth(0);
  AfficheForm->SetVisible(false);
  Register(AfficheForm);
  Control* logo = Make(K::PictureBox, QStringLiteral("AfficheLogo"), AfficheForm, 120, 120, 3000, 3000);
  logo->SetBackColor(couleur::kNoir);
  AfficheLogoWeb = Make(K::PictureBox, QStringLiteral("AfficheLogoWeb"), logo, 0, 0, 3000, 3000);
  new WebPanel(AfficheLogoWeb);
  AfficheLabel = ControlArray<Control>(0, 1);
  const char* const textes[2] = {"La résolution doit être changée en 1024 X 768",
                                 "Elle sera restituée en sortant du programme"};
  for (int i = 0; i <= 1; ++i) {
    Control* l = Make(K::Label, QStringLiteral("AfficheLabel"), AfficheForm, 3300, 360 + 1080 * i, 3720, 960, i);
    l->SetCaption(QString::fromUtf8(textes[i]));
    l->SetBackColor(couleur::kAnthracite);
    l->SetForeColor(couleur::kBlanc);
    l->SetFontSpec(QStringLiteral("Liberation Sans"), 11, true);
    AfficheLabel.Set(i, l);
  }
  OkOuiCmd = Make(K::Button, QStringLiteral("OkOuiCmd"), AfficheForm, 3300, 2640, 1800, 600);
  OkOuiCmd->SetCaption(QString::fromUtf8("Je suis d'accord"));
  OkNonCmd = Make(K::Button, QStringLiteral("OkNonCmd"), AfficheForm, 5220, 2640, 1800, 600);
  OkNonCmd->SetCaption(QString::fromUtf8("Je ne suis pas d'accord"));
  for (Control* b : {OkOuiCmd, OkNonCmd}) {
    b->SetBackColor(couleur::kGrisClair);
    b->SetBevelWidth(3);
  }
  OkOuiCmd->Click = [this] { OkOuiCmd_Click(); };
  OkNonCmd->Click = [this] { OkNonCmd_Click(); };
}

void JeuPoker::VérifieRésolution() {
  const DisplayMode actuel = Sys().CurrentDisplayMode();
  ModeÉcran = actuel;
  LargeurÉcran = vb::CInt(actuel.width);
  HauteurÉcran = vb::CInt(actuel.height);
  CouleursÉcran = vb::CInt(actuel.bitsPerPixel);
  FréquenceÉcran = vb::CInt(actuel.frequency);
  if (HauteurÉcran >= 768) return;

  // The question, in the middle of the screen, until one of its buttons is pressed.
  if (auto* web = AfficheLogoWeb->findChild<WebPanel*>()) web->Navigate(QDir(dataDir_).filePath("logoalb200.htm"));
  AfficheForm->SetLeft(std::max(0, (actuel.width - AfficheForm->LogicalSize().width()) / 2) * kTwipsPerPixel);
  AfficheForm->SetTop(std::max(0, (actuel.height - AfficheForm->LogicalSize().height()) / 2) * kTwipsPerPixel);
  AfficheForm->SetVisible(true);
  while (AfficheForm->Visible() && !FinDemandée) Sys().DoEvents();
  if (FinDemandée) return;

  Integer largeur = 1024;
  Integer hauteur = 768;
  Integer couleurs = CouleursÉcran;
  Integer fréquence = FréquenceÉcran;
  ChangeAffichage(largeur, hauteur, couleurs, fréquence);
}

void JeuPoker::RestaureRésolution() { ChangeAffichage(LargeurÉcran, HauteurÉcran, CouleursÉcran, FréquenceÉcran); }

void JeuPoker::ChangeAffichage(Integer& largeur, Integer& hauteur, Integer& couleurs, Integer& fréquence) {
  QString nom;
  if (largeur != 0 && hauteur != 0 && couleurs != 0 && fréquence != 0)
    nom = QStringLiteral("ChangeAll");
  else if (largeur != 0 && hauteur != 0 && couleurs == 0 && fréquence == 0)
    nom = QStringLiteral("ChangeResol");
  else if (largeur == 0 && hauteur == 0 && couleurs != 0 && fréquence == 0)
    nom = QStringLiteral("ChangeColor");
  else if (largeur == 0 && hauteur == 0 && couleurs == 0 && fréquence != 0)
    nom = QStringLiteral("ChangeFreq");
  else if (largeur == 0 && hauteur == 0 && couleurs == 0 && fréquence == 0)
    return;
  NoteChangement(largeur, hauteur, couleurs, fréquence, nom);
  ModeÉcran.fields = kChamps;
  // A change for this run only; the platform's answer is not looked at.
  Sys().ChangeDisplayMode(ModeÉcran);
}

void JeuPoker::NoteChangement(Integer largeur, Integer hauteur, Integer couleurs, Integer fréquence,
                              const QString& nom) {
  if (nom == QLatin1String("ChangeResol") || nom == QLatin1String("ChangeAll")) {
    ModeÉcran.width = largeur;
    ModeÉcran.height = hauteur;
  }
  if (nom == QLatin1String("ChangeColor") || nom == QLatin1String("ChangeAll")) ModeÉcran.bitsPerPixel = couleurs;
  if (nom == QLatin1String("ChangeFreq") || nom == QLatin1String("ChangeAll")) ModeÉcran.frequency = fréquence;
}

void JeuPoker::OkOuiCmd_Click() { AfficheForm->SetVisible(false); }

void JeuPoker::OkNonCmd_Click() {
  // Nothing is changed: the program ends before the main form is shown.
  FinDemandée = true;
  AfficheForm->SetVisible(false);
  if (EndProgram) EndProgram();
}
