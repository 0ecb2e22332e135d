// The hint line SSMessages: every control says what it does when the mouse passes over it,
// in the language of the hint table (LangueVar), and the pay table shows example hands.
#include "core/colours.h"
#include "core/table_facts.h"
#include "interface/JeuPoker.h"

namespace {
constexpr int kAucune = 50;  // no example hand shown
constexpr int kNonDisponibleAuto = 50;

// A number with the place of its sign: a leading blank when it is not negative.
QString Str(long long v) { return v < 0 ? QString::number(v) : QStringLiteral(" ") + QString::number(v); }

// The example hand of each row of the pay table, as card codes.
constexpr int kExemples[11][5] = {
    {2, 11, 17, 25, 52},  {10, 23, 9, 22, 14},  {10, 23, 36, 12, 13}, {7, 21, 22, 36, 50},
    {13, 16, 17, 20, 21}, {10, 23, 11, 24, 50}, {12, 25, 38, 51, 4},  {25, 13, 14, 15, 16},
    {8, 9, 10, 11, 12},   {12, 25, 38, 51, 52}, {2, 3, 17, 18, 28},
};
}  // namespace

void JeuPoker::AfficheMessage() {
  // Only a new text is drawn: a move over the same control redraws nothing.
  if (Messages(0) == Messages(201)) return;
  Messages(201) = Messages(0);
  SSMessages->SetCaption(Messages(0));
}

void JeuPoker::Aide(int clé) {
  TexteAide = vb::CByte(clé);
  Messages(0) = Messages(LangueVar + TexteAide);
}

void JeuPoker::MontreAide(int clé, bool videEnAuto, bool cléAuto) {
  if (cléAuto && AutoEnCours()) clé = kNonDisponibleAuto;
  Aide(clé);
  if (videEnAuto && AutoEnCours()) Messages(0).clear();
  AfficheMessage();
}

void JeuPoker::MontreTexte(const QString& texte) {
  Messages(0) = texte;
  AfficheMessage();
}

void JeuPoker::CacheExemple() {
  MainExemple = kAucune;
  for (int i = 0; i <= 4; ++i) CartesMains(i).SetVisible(false);
}

void JeuPoker::Deal2_MouseMove(int index) {
  if (NbTirées != 25) {
    if (Jouez5->Visible() && DitMot(Jouez5->Caption(), kMotJouez))
      TexteAide = 1;
    else if (!(!Doubler5->Visible() && DoubleEnCours))
      TexteAide = Doubler5->Visible() ? 5 : 24;
  }
  if (NbTirées == 25) TexteAide = FaceCachée(index) ? 2 : 3;
  if (NbTirées == 50 && DoubleEnCours) {
    if (index == 0) {
      Aide(99);
      AfficheMessage();
      return;
    }
    TexteAide = 4;
  }
  MontreAide(TexteAide, true, false);
}

void JeuPoker::Deal_MouseMove(int index) {
  // As on the grid: kept or rejected between the drawings, the pick during a double-up,
  // otherwise what the table waits for.
  int clé = TexteAide;
  if (DoubleEnCours)
    clé = index == 0 ? 99 : 4;
  else if (NbTirées == 5)
    clé = Jouez(index).Caption() == MotCarteGardée() ? 3 : 2;
  else if (Jouez(0).Visible() && DitMot(Jouez(0).Caption(), kMotJouez))
    clé = 1;
  else
    clé = Doubler->Visible() ? 5 : 6;
  MontreAide(clé, true, false);
}

void JeuPoker::Jouez_MouseMove(int index) {
  CacheExemple();
  const QString c = Jouez(index).Caption();
  int clé = TexteAide;
  if (DitMot(c, kMotJouez))
    clé = 1;
  else if (DitMot(c, kMotJeter))
    clé = 11;
  else if (DitMot(c, kMotGarder))
    clé = 12;
  MontreAide(clé, true, false);
}

void JeuPoker::SSAireJeu_MouseMove() {
  CacheExemple();
  int clé = Doubler->Visible() ? 5 : 6;
  if (Jouez(0).Visible() && DitMot(Jouez(0).Caption(), kMotJouez)) clé = 1;
  MontreAide(clé, true, false);
}

void JeuPoker::SSAireJeu5_MouseMove() {
  int clé = Doubler5->Visible() ? 5 : 24;
  if (Jouez5->Visible() && DitMot(Jouez5->Caption(), kMotJouez)) clé = 1;
  MontreAide(clé, true, false);
}

void JeuPoker::ImageConseils_MouseMove() {
  CacheExemple();
  MontreAide(ParesseOui->BevelWidth() == 0 ? 9 : 10, true, false);
}

void JeuPoker::Mises_MouseMove() {
  Aide(15);
  if (JeuSimple->BevelWidth() == 1)
    Messages(0) += Str(Mise) + "\r" + Messages(LangueVar + 16);
  else
    Messages(0) += Str(static_cast<long long>(Niveau) * Mise) + " (" + Str(Mise) + " X " + Str(Niveau) + ")" + "\r" +
                   Messages(LangueVar + 18);
  AfficheMessage();
}

void JeuPoker::UnADouzeTémoin_MouseMove(int index) {
  Aide(27);
  const bool anglais = Anglais(Langue);
  const bool enJeu = UnADouzeTémoin(index).BackColor() == couleur::kJaune;
  Messages(0) += Str(index + 1) + "\r" +
                 (enJeu ? (anglais ? QStringLiteral(" Selected") : QStringLiteral(" Sélectionné"))
                        : (anglais ? QStringLiteral(" No selected") : QStringLiteral(" Non sélectionné")));
  AfficheMessage();
}

void JeuPoker::Ligne_MouseMove(int clé, int index, const Control& étiquette) {
  Aide(clé);
  if (index < 12) Messages(0) += Str(index + 1);
  if (!étiquette.Caption().isEmpty()) Messages(0) += "\r" + étiquette.Caption();
  AfficheMessage();
}

void JeuPoker::ChoixJeu_MouseMove(int clé, const Control& bouton) {
  Aide(clé);
  Messages(0) += "\r" + Messages(LangueVar + (bouton.BevelWidth() == 1 ? 44 : 45));
  AfficheMessage();
}

void JeuPoker::Paresse_MouseMove(int clé) {
  if (Jeu3D->BevelWidth() == 1) clé = 48;
  MontreAide(clé, false, true);
}

void JeuPoker::AutoPlay_MouseMove() {
  int clé = 52;
  if (AutoPlay->BevelWidth() == 3) clé = !DoubleEnCours && Capital != 0 ? 51 : 53;
  MontreAide(clé, false, false);
}

void JeuPoker::AutoPlayStop_MouseMove() {
  int clé = 55;
  if (AutoPlay->BevelWidth() == 3) clé = !DoubleEnCours && Capital != 0 ? 54 : 56;
  MontreAide(clé, false, false);
}

void JeuPoker::Statistiques_MouseMove(int clé) {
  CacheExemple();
  MontreAide(clé, false, false);
}

void JeuPoker::SSLangue_MouseMove(int index) {
  MontreTexte(index == 0 ? QStringLiteral("English language") : QStringLiteral("Langue Française"));
}

void JeuPoker::Maintitre_MouseMove(int index) {
  MontreTexte(QString());
  if (index == 11) {
    CacheExemple();
    return;
  }
  if (index == MainExemple) return;
  MainExemple = vb::CByte(index);
  for (int i = 0; i <= 4; ++i) {
    CartesMains(i).SetPicture(Cartes(kExemples[index][i]).GetPicture());
    CartesMains(i).SetVisible(true);
  }
}

void JeuPoker::Maintitre_MouseDown(int) {
  for (int i = 0; i <= 4; ++i) CartesMains(i).SetVisible(false);
}

void JeuPoker::MainLabel_MouseMove(int index) {
  CacheExemple();
  MontreTexte(QString::number(static_cast<long long>(TableGains(index)) * Mise));
}

void JeuPoker::WireHints() {
  auto clé = [this](Control& c, int k, bool videEnAuto, bool cléAuto) {
    c.MouseMove = [this, k, videEnAuto, cléAuto](int, int, int, int) { MontreAide(k, videEnAuto, cléAuto); };
  };
  auto sur = [](Control& c, std::function<void()> f) { c.MouseMove = [f = std::move(f)](int, int, int, int) { f(); }; };
  clé(*Jouer, 23, false, true);
  for (int p = 0; p <= 24; ++p) sur(Deal2(p), [this, p] { Deal2_MouseMove(p); });
  for (int i = 0; i <= 4; ++i) {
    sur(Deal(i), [this, i] { Deal_MouseMove(i); });
    sur(Jouez(i), [this, i] { Jouez_MouseMove(i); });
    sur(ImageConseils(i), [this] { ImageConseils_MouseMove(); });
  }
  sur(*SSAireJeu, [this] { SSAireJeu_MouseMove(); });
  sur(*SSAireJeu5, [this] { SSAireJeu5_MouseMove(); });
  for (Control* c : {Double1X5, Double5X5}) clé(*c, 8, false, true);
  for (Control* c : {Quitte1X5, Quitte5X5}) clé(*c, 7, false, true);
  clé(*Conseils5, 25, false, true);
  clé(*AnnuleConseils5, 26, false, true);
  sur(*ImageCrédit, [this] {
    Aide(13);
    Messages(0) += Str(Capital);
    AfficheMessage();
  });
  for (Control* c : {ImageGains, Gains})
    sur(*c, [this] {
      Aide(14);
      Messages(0) += Gains->Caption();
      AfficheMessage();
    });
  for (Control* c : {ImageMises, Mises}) sur(*c, [this] { Mises_MouseMove(); });
  sur(*UnADouze, [this] {
    Aide(17);
    Messages(0) += Str(Niveau);
    AfficheMessage();
  });
  for (int i = 0; i <= 11; ++i) {
    sur(UnADouzeTémoin(i), [this, i] { UnADouzeTémoin_MouseMove(i); });
    sur(Mains5(i), [this, i] { Ligne_MouseMove(29, i, Mains5(i)); });
    sur(Gains5(i), [this, i] { Ligne_MouseMove(30, i, Gains5(i)); });
  }
  // The total's title asks about the total itself.
  for (int i : {12}) {
    sur(Mains5(i), [this] { Ligne_MouseMove(28, 12, Gains5(12)); });
    sur(Gains5(i), [this] { Ligne_MouseMove(28, 12, Gains5(12)); });
  }
  sur(*JeuSimple, [this] { ChoixJeu_MouseMove(42, *JeuSimple); });
  sur(*Jeu3D, [this] { ChoixJeu_MouseMove(43, *Jeu3D); });
  sur(*ParesseNon, [this] { Paresse_MouseMove(47); });
  sur(*ParesseOui, [this] { Paresse_MouseMove(46); });
  sur(*AutoPlay, [this] { AutoPlay_MouseMove(); });
  sur(*AutoPlayStop, [this] { AutoPlayStop_MouseMove(); });
  for (int i = 0; i <= 2; ++i) clé(NJokerSélection(i), 62 + i, false, false);
  for (int i = 0; i <= 1; ++i) {
    clé(SSVitesse(i), 32 + i, false, true);
    sur(SSLangue(i), [this, i] { SSLangue_MouseMove(i); });
  }
  clé(*SSRègles, 31, false, false);
  clé(*SSRecommence, 37, false, true);
  clé(*Fin, 57, false, false);
  sur(SSMusic(0), [this] { MontreAide(SSMusic(0).GetPicture() == SSMusic(1).GetPicture() ? 70 : 71, false, false); });
  // The odds and the tally: live odds are those of the second drawing, odds at rest those
  // of a first one.
  for (int i = 0; i <= 11; ++i) {
    sur(Fractions(i), [this] { Statistiques_MouseMove(59); });
    sur(Pourcentages(i), [this] { Statistiques_MouseMove(NbTirées == 5 ? 58 : 61); });
    sur(PourcDéc(i), [this] { Statistiques_MouseMove(NbTirées == 5 ? 58 : 61); });
  }
  for (int i = 0; i <= 9; ++i) sur(Fréquence(i), [this] { Statistiques_MouseMove(60); });
  for (int i = 0; i <= 11; ++i) {
    Maintitre(i).MouseMove = [this, i](int, int, int, int) { Maintitre_MouseMove(i); };
    Maintitre(i).MouseDown = [this, i](int, int, int, int) { Maintitre_MouseDown(i); };
  }
  for (int i = 0; i <= 9; ++i) sur(MainLabel(i), [this, i] { MainLabel_MouseMove(i); });
  sur(*Jeu, [this] { MontreTexte(QString()); });
  for (Control* c : {SSGains, MainsPayantes, Rapport, PourCentLabel})
    sur(*c, [this] {
      CacheExemple();
      MontreTexte(QString());
    });
}
