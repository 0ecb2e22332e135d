// The form's controls, each in its place: names, array bounds, parents, positions and
// sizes in twips, first captions, colours and fonts. The JEU 1 arrangement is in force.
#include <QCloseEvent>
#include <QMouseEvent>

#include "core/colours.h"
#include "core/table_facts.h"
#include "interface/JeuPoker.h"
#include "services/web.h"

namespace {
const QString kSans = QStringLiteral("Liberation Sans");
const QString kSerif = QStringLiteral("Liberation Serif");  // Times New Roman's metric twin
const QString kMono = QStringLiteral("Liberation Mono");    // Courier's metric twin
}  // namespace

Control* JeuPoker::Make(ControlKind kind, const QString& name, Control* parent, int left, int top, int width,
                        int height, int index) {
  QWidget* p = parent ? static_cast<QWidget*>(parent) : table_;
  auto* c = new Control(kind, name, index, p);
  c->Move(left, top, width, height);
  if (kind == ControlKind::Button) {
    c->SetFontSpec(kSans, 9, true);
  } else if (kind == ControlKind::Panel) {
    c->SetFontSpec(kSans, 10, true);
  } else {
    c->SetFontSpec(kSans, 9, true);
  }
  Register(c);
  return c;
}

void JeuPoker::Register(Control* c) {
  auto& list = controlsByName_[c->Name()];
  if (c->Index() < 0) {
    list = {c};
    return;
  }
  const int low = arrayLow_.value(c->Name(), c->Index());
  const int newLow = std::min(low, c->Index());
  if (newLow < low) {
    // Grow at the front.
    list.insert(list.begin(), static_cast<std::size_t>(low - newLow), nullptr);
  }
  arrayLow_[c->Name()] = newLow;
  const auto slot = static_cast<std::size_t>(c->Index() - newLow);
  if (list.size() <= slot) list.resize(slot + 1, nullptr);
  list[slot] = c;
}

TimerControl* JeuPoker::MakeTimer(const QString& name, int interval, bool enabled) {
  auto* t = new TimerControl(name, interval, enabled, this);
  timers_[name] = t;
  return t;
}

Control* JeuPoker::FindControl(const QString& name, int index) const {
  auto it = controlsByName_.find(name);
  if (it == controlsByName_.end()) return nullptr;
  const auto& list = it.value();
  if (!arrayLow_.contains(name)) return index < 0 ? list.front() : nullptr;
  if (index < 0) return nullptr;
  const int slot = index - arrayLow_.value(name);
  if (slot < 0 || slot >= static_cast<int>(list.size())) return nullptr;
  return list[static_cast<std::size_t>(slot)];
}

TimerControl* JeuPoker::FindTimer(const QString& name) const { return timers_.value(name, nullptr); }

std::vector<JeuPoker::NameEntry> JeuPoker::ControlNames() const {
  std::vector<NameEntry> out;
  for (auto it = controlsByName_.begin(); it != controlsByName_.end(); ++it) {
    // The display question is a window of its own: its controls are not the main form's.
    if (it.value().front() == AfficheForm || AfficheForm->isAncestorOf(it.value().front())) continue;
    if (arrayLow_.contains(it.key())) {
      const int low = arrayLow_.value(it.key());
      out.push_back({it.key(), low, low + static_cast<int>(it.value().size()) - 1});
    } else {
      out.push_back({it.key(), -1, -1});
    }
  }
  for (auto it = timers_.begin(); it != timers_.end(); ++it) out.push_back({it.key(), -1, -1});
  std::sort(out.begin(), out.end(), [](const NameEntry& a, const NameEntry& b) { return a.name < b.name; });
  return out;
}

namespace {
// Fills a ControlArray from the form's registry once all its members exist.
template <class Fn>
ControlArray<Control> MakeArray(int low, int high, Fn make) {
  ControlArray<Control> a(low, high);
  for (int i = low; i <= high; ++i) a.Set(i, make(i));
  return a;
}
}  // namespace

void JeuPoker::BuildControls() {
  using K = ControlKind;
  // ---- Top level --------------------------------------------------------------------------
  Pub0Pic = Make(K::PictureBox, "Pub0Pic", nullptr, 0, 8700, 15360, 11520 - 8700);
  Pub1Pic = Make(K::PictureBox, "Pub1Pic", nullptr, 11940, 0, 15360 - 11940, 8700);
  Pub0Pic->SetBackColor(couleur::kFondPub);
  Pub1Pic->SetBackColor(couleur::kFondPub);
  Pub0Web = Make(K::PictureBox, "Pub0Web", Pub0Pic, 0, 0, Pub0Pic->Width(), Pub0Pic->Height());
  Pub1Web = Make(K::PictureBox, "Pub1Web", Pub1Pic, 0, 0, Pub1Pic->Width(), Pub1Pic->Height());
  Pub0Web->SetBackColor(couleur::kFondPub);
  Pub1Web->SetBackColor(couleur::kFondPub);
  new WebPanel(Pub0Web);
  new WebPanel(Pub1Web);

  Jeu = Make(K::Panel, "Jeu", nullptr, 0, 0, 12000, 8700);
  Jeu->SetBackColor(couleur::kNoir);
  Jeu->SetBevelWidth(0);

  SSCartes = Make(K::Panel, "SSCartes", nullptr, 0, -9000, 6015, 5295);
  SSCartes2 = Make(K::Panel, "SSCartes2", nullptr, 0, -9000, 5535, 6015);
  SSAides = Make(K::Panel, "SSAides", nullptr, -960, 9000, 12015, 8655);
  SSAides->SetBackColor(couleur::kFondAides);
  SSAides->SetBevelWidth(4);
  SSAides->SetVisible(false);

  TitreTimer = MakeTimer("TitreTimer", 500, true);
  AutoPlayTimer = MakeTimer("AutoPlayTimer", 400, false);

  // ---- Title, deck choice, options ----------------------------------------------------------
  JeuTitre = Make(K::Panel, "JeuTitre", Jeu, 0, 0, 3765, 645);
  JeuTitre->SetBackColor(couleur::kNoir);
  JeuTitre->SetBevelWidth(2);
  NonConnectéTimer = MakeTimer("NonConnectéTimer", 20000, true);

  SSNJokerSélection = Make(K::Panel, "SSNJokerSélection", Jeu, 3765, 0, 1665, 630);
  SSNJokerSélection->SetBackColor(couleur::kGrisFoncé);
  NJokerSélection = MakeArray(0, 2, [&](int i) {
    auto* b = Make(K::Button, "NJokerSélection", SSNJokerSélection, 30 + 525 * i, 30, 540, 570, i);
    b->SetCaption(QString::number(52 + i));
    b->SetBackColor(couleur::kGrisFoncé);
    b->SetForeColor(i < 2 ? couleur::kBlanc : couleur::kJaune);
    b->SetFontSpec(kSans, 12, true);
    // The game starts with two jokers: that button is the selected one.
    b->SetBevelWidth(i == 2 ? 0 : 3);
    b->SetMousePointer(i == 2 ? kInterdit : kFlèche);
    return b;
  });

  SSMenu = Make(K::Panel, "SSMenu", Jeu, 5430, 0, 6585, 630);
  SSMenu->SetBackColor(couleur::kGris);
  auto menuButton = [&](const QString& name, int left, int width, int index = -1) {
    auto* b = Make(K::Button, name, SSMenu, left, 30, width, 570, index);
    b->SetBackColor(couleur::kGris);
    b->SetForeColor(couleur::kBlanc);
    return b;
  };
  SSMusic = ControlArray<Control>(0, 2);
  SSMusic.Set(0, menuButton("SSMusic", 15, 540, 0));
  SSRègles = menuButton("SSRègles", 525, 540);
  SSRègles->SetCaption("?");
  SSRègles->SetFontSpec(kSans, 14, true);
  SSLangue = MakeArray(0, 1, [&](int i) {
    auto* b = menuButton("SSLangue", 1050 + 510 * i, 540, i);
    b->SetCaption(i == 0 ? "EN" : "FR");
    return b;
  });
  ParesseNon = menuButton("ParesseNon", 2100, 540);
  ParesseNon->SetCaption("M");
  ParesseOui = menuButton("ParesseOui", 2625, 540);
  ParesseOui->SetCaption("A");
  ParesseOui->SetBevelWidth(0);
  SSVitesse = MakeArray(0, 1, [&](int i) {
    auto* b = menuButton("SSVitesse", 3150 + 525 * i, 540, i);
    b->SetCaption(i == 0 ? QStringLiteral("\u25B7") : QStringLiteral("\u25B6\u25B6"));
    return b;
  });
  // Instant dealing is in force at start; the pointer of an option tells whether a click on
  // it will work.
  SSVitesse(1).SetBevelWidth(0);
  SSVitesse(1).SetMousePointer(kInterdit);
  SSVitesse(0).SetMousePointer(kFlèche);
  ParesseOui->SetMousePointer(kInterdit);
  ParesseNon->SetMousePointer(kFlèche);
  AutoPlay = Make(K::Panel, "AutoPlay", SSMenu, 4200, 30, 660, 570);
  AutoPlay->SetCaption("AUTO");
  AutoPlay->SetForeColor(couleur::kRougeSombre);
  AutoPlay->SetBackColor(couleur::kGrisRepos);
  AutoPlay->SetBevelWidth(3);
  AutoPlayStop = menuButton("AutoPlayStop", 4845, 660);
  AutoPlayStop->SetCaption("STOP");
  Fin = menuButton("Fin", 5490, 540);
  Fin->SetCaption(QStringLiteral("\u23FB"));
  Fin->SetFontSpec(kSans, 14, true);
  SSRecommence = menuButton("SSRecommence", 6015, 540);
  SSRecommence->SetCaption(QStringLiteral("\u21BB"));
  SSRecommence->SetFontSpec(kSans, 14, true);
  auto lamp = [&](const QString& name, int left, bool visible, int index = -1) {
    auto* l = Make(K::Label, name, SSMenu, left, 45, 90, 90, index);
    l->SetBackColor(couleur::kRouge);
    l->SetVisible(visible);
    return l;
  };
  PSSlangue = MakeArray(0, 1, [&](int i) { return lamp("PSSlangue", 1065 + 525 * i, false, i); });
  PParesseNon = lamp("PParesseNon", 2115, false);
  PParesseOui = lamp("PParesseOui", 2640, true);
  PSSVitesse = MakeArray(0, 1, [&](int i) { return lamp("PSSVitesse", 3165 + 525 * i, i == 1, i); });

  // ---- Pay table, probabilities, statistics ---------------------------------------------------
  SSGains = Make(K::Panel, "SSGains", Jeu, 0, 630, 6480, 3465);
  SSGains->SetBackColor(couleur::kNoir);
  SSGains->SetBevelWidth(2);
  static const int rowTop[12] = {2610, 2355, 2100, 1845, 1590, 1335, 1085, 825, 570, 315, 2885, 3135};
  static const char* titles[12] = {
      " 1 PAIRE ROI OU AS",   " 2 PAIRES", " BRELAN", " QUINTE", " COULEUR", " FULL", " CARRE", " QUINTE FLUSH",
      " QUINTE FLUSH ROYALE", " POKER",    " RIEN",   " MIEUX"};
  auto row = [&](const QString& name, int i, int left, int width, int height, Long back) {
    auto* l = Make(K::Label, name, SSGains, left, rowTop[i], width, height, i);
    l->SetBackColor(back);
    l->SetForeColor(couleur::kBlanc);
    l->SetFontSpec(kSans, 9, true);
    return l;
  };
  Maintitre = MakeArray(0, 11, [&](int i) {
    auto* l = row("Maintitre", i, 60, 2400, 255, couleur::kNoir);
    l->SetCaption(QString::fromUtf8(titles[i]));
    return l;
  });
  MainLabel = MakeArray(0, 9, [&](int i) {
    auto* l = row("MainLabel", i, 2460, 615, 255, couleur::kNoir);
    l->SetAlignment(1);
    return l;
  });
  Pourcentages = MakeArray(0, 11, [&](int i) {
    auto* l = row("Pourcentages", i, 3075, 1080, 255, couleur::kSarcelle);
    l->SetAlignment(1);
    if (i == 11) l->SetForeColor(couleur::kRouge);
    return l;
  });
  PourcDéc = MakeArray(0, 11, [&](int i) {
    auto* l = row("PourcDéc", i, 3105, 300, 195, couleur::kSarcelle);
    l->SetFontSpec(kSans, 7, true);
    // The whole part of the percentage lies over its column, whose colour shows through:
    // teal while the row is counted, black when it is blank.
    l->SetTransparent(true);
    if (i == 11) l->SetForeColor(couleur::kRouge);
    return l;
  });
  Fractions = MakeArray(0, 11, [&](int i) {
    auto* l = row("Fractions", i, 4155, 1515, 255, couleur::kSarcelle);
    l->SetAlignment(1);
    if (i == 11) l->SetForeColor(couleur::kRouge);
    return l;
  });
  Fréquence = MakeArray(0, 9, [&](int i) {
    auto* l = row("Fréquence", i, 5670, 735, 255, couleur::kNoir);
    l->SetAlignment(1);
    return l;
  });
  auto title = [&](const QString& name, const QString& text, int left, int width, Long back) {
    auto* l = Make(K::Label, name, SSGains, left, 60, width, 255);
    l->SetCaption(text);
    l->SetForeColor(couleur::kOcre);
    l->SetBackColor(back);
    l->SetFontSpec(kSans, 9, true);
    return l;
  };
  MainsPayantes = title("MainsPayantes", "MAINS PAYANTES", 60, 2400, couleur::kNoir);
  Rapport = title("Rapport", "$$$", 2460, 615, couleur::kNoir);
  Rapport->SetAlignment(1);
  PourCentLabel = title("PourCentLabel", "%", 3075, 1080, couleur::kSarcelle);
  PourCentLabel->SetAlignment(2);
  UnSur = title("UnSur", "?/3162510", 4155, 1515, couleur::kSarcelle);
  UnSur->SetAlignment(1);
  FréquenceTitre = title("FréquenceTitre", "STATS", 5670, 735, couleur::kNoir);
  FréquenceTitre->SetAlignment(1);

  // ---- Credit, winnings, bet and level ---------------------------------------------------------
  SSMises = Make(K::Panel, "SSMises", Jeu, 6465, 630, 2190, 3465);
  SSMises->SetBackColor(couleur::kAnthracite);
  SSMises->SetBevelWidth(2);
  ImageCrédit = Make(K::Image, "ImageCrédit", SSMises, 60, 60, 2070, 780);
  ImageGains = Make(K::Image, "ImageGains", SSMises, 60, 825, 2070, 780);
  ImageMises = Make(K::Image, "ImageMises", SSMises, 60, 1590, 2070, 780);
  ImageUnàDouze = Make(K::Image, "ImageUnàDouze", SSMises, 60, 2355, 2070, 780);
  CréditImage = Make(K::Image, "CréditImage", SSMises, 510, 105, 1200, 255);
  GainsImage = ControlArray<Control>(0, 2);
  GainsImage.Set(0, Make(K::Image, "GainsImage", SSMises, 315, 870, 1560, 255, 0));
  MisesImage = ControlArray<Control>(0, 2);
  MisesImage.Set(0, Make(K::Image, "MisesImage", SSMises, 660, 1635, 900, 255, 0));
  UnàDouze = Make(K::Image, "UnàDouze", SSMises, 300, 2415, 1590, 255);
  auto digitSlot = [&](const QString& name, int i, int top) {
    auto* img = Make(K::Image, name, SSMises, 960 + 240 * i, top, 240, 330, i);
    img->SetVisible(false);
    return img;
  };
  CapImage = MakeArray(0, 7, [&](int i) { return digitSlot("CapImage", i, 375); });
  GainImage = MakeArray(0, 7, [&](int i) { return digitSlot("GainImage", i, 1140); });
  MiseImage = MakeArray(0, 2, [&](int i) { return digitSlot("MiseImage", i, 1900); });
  UnàDouzeImage = MakeArray(0, 1, [&](int i) { return digitSlot("UnàDouzeImage", i, 2670); });
  Gains = Make(K::Label, "Gains", SSMises, 135, 960, 1920, 480);
  Gains->SetVisible(false);
  Mises = Make(K::Label, "Mises", SSMises, 735, 1680, 705, 480);
  Mises->SetCaption("1");
  Mises->SetVisible(false);
  UnADouze = Make(K::Label, "UnADouze", SSMises, 735, 2385, 705, 480);
  UnADouze->SetCaption("1");
  // The level's text stays visible as a control but lies beneath the row's picture.
  UnADouze->stackUnder(ImageUnàDouze);
  auto betButton = [&](const QString& name, int left, int top, const QString& text) {
    auto* b = Make(K::Button, name, SSMises, left, top, 405, 375);
    b->SetCaption(text);
    b->SetBackColor(couleur::kFondBoutonsMise);
    b->SetForeColor(couleur::kBlanc);
    b->SetFontSpec(kSans, 13, true);
    return b;
  };
  Moins = betButton("Moins", 135, 1905, QStringLiteral("\u2212"));
  Plus = betButton("Plus", 1635, 1905, "+");
  Moins5 = betButton("Moins5", 135, 2670, QStringLiteral("\u2212"));
  Plus5 = betButton("Plus5", 1635, 2670, "+");

  // ---- PLAY ----------------------------------------------------------------------------------
  SSTirage = Make(K::Panel, "SSTirage", Jeu, 6525, 3000, 2085, 1050);
  SSTirage->SetBackColor(couleur::kFondTirage);
  Tirage = Make(K::Button, "Tirage", SSTirage, 45, 45, 570, 360);
  Jouer = Make(K::Panel, "Jouer", SSTirage, 45, 45, 1980, 960);
  Jouer->SetBevelWidth(0);
  JouerImage = ControlArray<Control>(0, 4);
  JouerImage.Set(0, Make(K::Image, "JouerImage", Jouer, 0, 0, 1980, 960, 0));
  // The face is drawn on the panel: the player's click reaches Jouer through it.
  JouerImage(0).setAttribute(Qt::WA_TransparentForMouseEvents);

  // ---- Choice of game ----------------------------------------------------------------------------
  SSMenuJeux = Make(K::Panel, "SSMenuJeux", Jeu, 8655, 630, 3360, 2280);
  SSMenuJeux->SetBackColor(couleur::kFondMenuJeux);
  SSJeuSimple = Make(K::Panel, "SSJeuSimple", SSMenuJeux, 135, 135, 1500, 1500);
  SSJeuSimple->SetBackColor(couleur::kRouge);
  SSJeu3D = Make(K::Panel, "SSJeu3D", SSMenuJeux, 1725, 135, 1500, 1500);
  SSJeu3D->SetBackColor(couleur::kNoir);
  JeuSimple = Make(K::Button, "JeuSimple", SSJeuSimple, 90, 90, 1305, 1305);
  JeuSimple->SetBevelWidth(1);
  Jeu3D = Make(K::Button, "Jeu3D", SSJeu3D, 90, 90, 1305, 1305);
  Jeu3D->SetBevelWidth(7);
  for (auto* b : {JeuSimple, Jeu3D}) {
    b->SetBackColor(couleur::kFondBoutonsJeux);
    b->SetForeColor(couleur::kBlanc);
  }
  JeuSimpleLabel = Make(K::Label, "JeuSimpleLabel", SSMenuJeux, 270, 1810, 1185, 345);
  JeuSimpleLabel->SetCaption("JEU 1");
  Jeu3DLabel = Make(K::Label, "Jeu3DLabel", SSMenuJeux, 1890, 1810, 1185, 345);
  Jeu3DLabel->SetCaption("JEU 2");
  for (auto* l : {JeuSimpleLabel, Jeu3DLabel}) {
    l->SetBackColor(couleur::kFondMenuJeux);
    // The label of the game in force is white, the other grey.
    l->SetForeColor(l == JeuSimpleLabel ? couleur::kBlanc : couleur::kGris);
    l->SetAlignment(2);
    l->SetFontSpec(kSans, 11, true);
  }

  // ---- Hints -----------------------------------------------------------------------------------
  SSMessages = Make(K::Panel, "SSMessages", Jeu, 8655, 2910, 3345, 1170);
  SSMessages->SetBackColor(couleur::kNoir);
  SSMessages->SetForeColor(couleur::kRouge);
  SSMessages->SetFontSpec(kSans, 9, true);
  CartesMains = MakeArray(0, 4, [&](int i) {
    auto* b = Make(K::Button, "CartesMains", SSMessages, 105 + 630 * i, 90, 600, 975, i);
    // The whole card, small, so that the example hand can be read.
    b->SetFitPicture(true);
    b->SetVisible(false);
    b->SetBevelWidth(0);
    return b;
  });

  // ---- Play area of JEU 1 --------------------------------------------------------------------------
  SSAireJeu = Make(K::Panel, "SSAireJeu", Jeu, 0, 4080, 12000, 3795);
  SSAireJeu->SetBackColor(couleur::kTapis);
  SSAireJeu->SetBevelWidth(2);
  static const int dealLeft[5] = {645, 2975, 5295, 7620, 9945};
  static const int jouezLeft[5] = {195, 2520, 4845, 7170, 9495};
  Jouez = MakeArray(0, 4, [&](int i) {
    auto* p = Make(K::Panel, "Jouez", SSAireJeu, jouezLeft[i], 45, 2325, 510, i);
    p->SetCaption("JOUEZ");
    p->SetBackColor(couleur::kJouezFond);
    p->SetForeColor(couleur::kBlanc);
    p->SetBevelWidth(2);
    p->SetFontSpec(kSans, 12, true);
    return p;
  });
  // The selection in force, pictured at the right end of each hold bar.
  ImageConseils =
      MakeArray(0, 4, [&](int i) { return Make(K::Image, "ImageConseils", &Jouez(i), 1800, -15, 480, 480, i); });
  Deal = MakeArray(0, 4, [&](int i) {
    auto* b = Make(K::Button, "Deal", SSAireJeu, dealLeft[i], 1065, 1395, 2070, i);
    b->SetBackColor(couleur::kTapis);
    b->SetBevelWidth(2);
    return b;
  });
  Doubler = Make(K::Panel, "Doubler", SSAireJeu, 3690, 45, 4650, 510);
  Doubler->SetBackColor(couleur::kFondDoubler);
  Doubler->SetVisible(false);
  Quitte1X5 = Make(K::Button, "Quitte1X5", Doubler, 300, 90, 1800, 330);
  Quitte1X5->SetCaption("QUITTE");
  Double1X5 = Make(K::Button, "Double1X5", Doubler, 2580, 90, 1800, 330);
  Double1X5->SetCaption("DOUBLE");
  Double1X5->SetForeColor(couleur::kRouge);
  MusicTimer = MakeTimer("MusicTimer", 1000, true);

  // ---- Play area of JEU 2 --------------------------------------------------------------------------
  SSAireJeu5 = Make(K::Panel, "SSAireJeu5", Jeu, 0, 630, 6465, 8100);
  SSAireJeu5->SetBackColor(couleur::kTapis);
  SSAireJeu5->SetBevelWidth(2);
  SSAireJeu5->SetVisible(false);
  static const int colLeft[5] = {315, 1320, 2325, 3330, 4335};
  static const int rowTop5[5] = {750, 2085, 3420, 4755, 6090};
  Deal2 = MakeArray(0, 24, [&](int i) {
    const int left = i == 0 ? 335 : colLeft[i % 5];
    auto* b = Make(K::Button, "Deal2", SSAireJeu5, left, rowTop5[i / 5], 975, 1305, i);
    b->SetBackColor(couleur::kTapis);
    b->SetBevelWidth(1);
    return b;
  });
  Jouez5 = Make(K::Panel, "Jouez5", SSAireJeu5, 315, 90, 3300, 420);
  Jouez5->SetCaption("JOUEZ");
  Jouez5->SetBackColor(couleur::kJouezFond);
  Jouez5->SetForeColor(couleur::kBlanc);
  SSConseils5 = Make(K::Panel, "SSConseils5", SSAireJeu5, 315, 90, 3300, 420);
  SSConseils5->SetVisible(false);
  Conseils5 = Make(K::Button, "Conseils5", SSConseils5, 45, 45, 1590, 330);
  Conseils5->SetCaption("CONSEILS");
  Conseils5->SetForeColor(couleur::kRouge);
  AnnuleConseils5 = Make(K::Button, "AnnuleConseils5", SSConseils5, 1905, 45, 1350, 330);
  AnnuleConseils5->SetCaption("ANNULE");
  Image6 = Make(K::Image, "Image6", SSConseils5, 1530, -60, 480, 480);
  Doubler5 = Make(K::Panel, "Doubler5", SSAireJeu5, 315, 90, 3300, 420);
  Doubler5->SetVisible(false);
  Quitte5X5 = Make(K::Button, "Quitte5X5", Doubler5, 45, 45, 1800, 330);
  Quitte5X5->SetCaption("QUITTE");
  Double5X5 = Make(K::Button, "Double5X5", Doubler5, 1845, 45, 1410, 330);
  Double5X5->SetCaption("DOUBLE");
  Double5X5->SetForeColor(couleur::kRouge);

  struct LineSpec {
    int mainsLeft, mainsTop, gainsTop, temLeft, temTop, x1, y1, x2, y2;
  };
  static const LineSpec lines[12] = {
      {5400, 1155, 1410, 105, 1275, 330, 1395, 5370, 1395}, {5400, 2490, 2740, 105, 2610, 330, 2730, 5370, 2730},
      {5400, 3825, 4080, 105, 3945, 330, 4065, 5370, 4065}, {5400, 5140, 5400, 105, 5280, 330, 5400, 5370, 5400},
      {5400, 6480, 6735, 105, 6615, 330, 6735, 5370, 6735}, {315, 7475, 7745, 705, 510, 810, 810, 810, 7410},
      {1320, 7475, 7745, 1710, 510, 1785, 810, 1785, 7410}, {2325, 7475, 7745, 2715, 510, 2790, 810, 2790, 7410},
      {3330, 7475, 7745, 3720, 510, 3795, 810, 3795, 7410}, {4335, 7475, 7745, 4635, 510, 4800, 810, 4800, 7410},
      {5400, 7475, 7745, 0, 510, 450, 900, 5460, 7515},     {5400, 135, 390, 0, 7380, 450, 7260, 5430, 600},
  };
  UnADouzeLine = MakeArray(0, 11, [&](int i) {
    auto* l = Make(K::Line, "UnADouzeLine", SSAireJeu5, 0, 0, 0, 0, i);
    l->SetLine(lines[i].x1, lines[i].y1, lines[i].x2, lines[i].y2);
    l->SetForeColor(couleur::kJaune);
    l->SetVisible(i == 0);
    return l;
  });
  Mains5 = ControlArray<Control>(0, 12);
  Gains5 = ControlArray<Control>(0, 12);
  for (int i = 0; i < 12; ++i) {
    auto* m = Make(K::Label, "Mains5", SSAireJeu5, lines[i].mainsLeft, lines[i].mainsTop, 960, 255, i);
    m->SetForeColor(couleur::kBlanc);
    m->SetBackColor(couleur::kBleu);
    m->SetAlignment(2);
    m->SetFontSpec(kSans, 8, true);
    m->SetVisible(i == 0);
    Mains5.Set(i, m);
    auto* g = Make(K::Label, "Gains5", SSAireJeu5, lines[i].mainsLeft, lines[i].gainsTop, 960, 255, i);
    g->SetForeColor(couleur::kJaune);
    g->SetBackColor(couleur::kFondGains5);
    g->SetAlignment(2);
    g->SetFontSpec(kSans, 8, true);
    g->SetVisible(i == 0);
    Gains5.Set(i, g);
  }
  auto* m12 = Make(K::Label, "Mains5", SSAireJeu5, 3645, 90, 900, 405, 12);
  m12->SetCaption("GAINS");
  m12->SetBackColor(couleur::kFondGains5);
  m12->SetForeColor(couleur::kJaunePâle);
  m12->SetAlignment(2);
  m12->SetFontSpec(kSerif, 15, true);
  Mains5.Set(12, m12);
  auto* g12 = Make(K::Label, "Gains5", SSAireJeu5, 4545, 90, 825, 405, 12);
  g12->SetBackColor(couleur::kNoir);
  g12->SetForeColor(couleur::kBlanc);
  g12->SetAlignment(2);
  g12->SetFontSpec(kSerif, 15, true);
  Gains5.Set(12, g12);
  UnADouzeTémoin = MakeArray(0, 11, [&](int i) {
    auto* l =
        Make(K::Label, "UnADouzeTémoin", SSAireJeu5, lines[i].temLeft, lines[i].temTop, i < 9 ? 195 : 360, 240, i);
    l->SetCaption(QString::number(i + 1));
    l->SetFontSpec(kMono, 12, true);
    l->SetBackColor(i == 0 ? couleur::kJaune : couleur::kGris);
    l->SetForeColor(couleur::kNoir);
    return l;
  });

  // ---- Alerts ------------------------------------------------------------------------------------
  SSAlertes = Make(K::Panel, "SSAlertes", Jeu, 6465, 7890, 5535, 825);
  SSAlertes->SetBackColor(couleur::kNoir);
  SSAlertes->SetForeColor(couleur::kJaune);
  SSAlertes->SetFontSpec(kSerif, 12, true);

  // ---- No-connection notice --------------------------------------------------------------------------
  NonConnectéPic = Make(K::PictureBox, "NonConnectéPic", Jeu, 5160, 2280, 7095, 3615);
  NonConnectéPic->SetBackColor(couleur::kAnthracite);
  NonConnectéPic->SetVisible(false);
  LogoFondPic = Make(K::PictureBox, "LogoFondPic", NonConnectéPic, 120, 120, 3000, 3000);
  LogoFondPic->SetBackColor(couleur::kNoir);
  LogoWeb = Make(K::PictureBox, "LogoWeb", LogoFondPic, 0, 0, 3000, 3000);
  LogoWeb->SetBackColor(couleur::kNoir);
  new WebPanel(LogoWeb);
  NonConnectéLbl = Make(K::Label, "NonConnectéLbl", NonConnectéPic, 3300, 600, 3600, 1500);
  NonConnectéLbl->SetCaption(QString::fromUtf8("Vous devez être connecté à internet pour utiliser ce logiciel"));
  NonConnectéLbl->SetBackColor(couleur::kAnthracite);
  NonConnectéLbl->SetForeColor(couleur::kBlanc);
  NonConnectéLbl->SetFontSpec(kSans, 11, true);
  NonConnectéCmd = Make(K::Button, "NonConnectéCmd", NonConnectéPic, 4500, 2600, 1200, 600);
  NonConnectéCmd->SetCaption("OK");

  // ---- Rules page ------------------------------------------------------------------------------------
  static const int aidesTop[6] = {360, 900, 2910, 4440, 5250, 6780};
  static const int aidesHeight[6] = {300, 1755, 1275, 555, 1275, 795};
  Aides = MakeArray(0, 5, [&](int i) {
    auto* l = Make(K::Label, "Aides", SSAides, 150, aidesTop[i], 11605, aidesHeight[i], i);
    l->SetBackColor(couleur::kFondAides);
    l->SetForeColor(i == 0 ? couleur::kJaune : couleur::kBlanc);
    l->SetFontSpec(kSans, i == 0 ? 12 : 9, true);
    return l;
  });
  AidesOk = Make(K::Button, "AidesOk", SSAides, 10680, 7800, 975, 615);
  AidesOk->SetCaption("OK");
  // The page as the form is designed, in French; the language switch rebuilds it.
  ConstruitAides(false);

  // ---- Picture stores, off the screen -----------------------------------------------------------------
  Cartes = MakeArray(0, 54, [&](int i) { return Make(K::Image, "Cartes", SSCartes, 0, 0, 88 * 15, 133 * 15, i); });
  ChiffresModèle =
      MakeArray(0, 29, [&](int i) { return Make(K::Image, "ChiffresModèle", SSCartes, 0, 0, 240, 330, i); });
  FileMid = Make(K::PictureBox, "FileMid", SSCartes, 0, 0, 1500, 1500);
  for (int i = 1; i <= 2; ++i) {
    GainsImage.Set(i, Make(K::Image, "GainsImage", SSCartes, 0, 0, 1560, 255, i));
    MisesImage.Set(i, Make(K::Image, "MisesImage", SSCartes, 0, 0, 900, 255, i));
  }
  for (int i = 1; i <= 4; ++i) JouerImage.Set(i, Make(K::Image, "JouerImage", SSCartes, 0, 0, 1980, 960, i));
  Cartes2 = MakeArray(0, 53, [&](int i) { return Make(K::Button, "Cartes2", SSCartes2, 0, 0, 975, 1305, i); });
  TitreImage = ControlArray<Control>(0, 2);
  TitreImage.Set(0, Make(K::Image, "TitreImage", JeuTitre, 645, 165, 2475, 360, 0));
  for (int i = 1; i <= 2; ++i) {
    TitreImage.Set(i, Make(K::Image, "TitreImage", SSCartes2, 0, 0, 2475, 360, i));
    SSMusic.Set(i, Make(K::Button, "SSMusic", SSCartes2, 0, 0, 540, 570, i));
  }

  // What stands over what.
  SSTirage->raise();
  SSAlertes->raise();
  NonConnectéPic->raise();
  BuildAfficheForm();
  Jouer->raise();
}

void JeuPoker::closeEvent(QCloseEvent* e) {
  e->ignore();
  Form_QueryUnload();
}

void JeuPoker::mouseReleaseEvent(QMouseEvent* e) {
  if (e->button() == Qt::LeftButton) Form_Click();
}
