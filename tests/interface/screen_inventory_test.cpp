// The screen inventory: every control by name, index range, parent, place, size, caption,
// colours and visibility, in the JEU 1 arrangement.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/harness.h"

namespace {
struct Range {
  const char* name;
  int low;
  int high;  // -1, -1 for a single control
};

const Range kNames[] = {
    {"AidesOk", -1, -1},
    {"Aides", 0, 5},
    {"AnnuleConseils5", -1, -1},
    {"AutoPlay", -1, -1},
    {"AutoPlayStop", -1, -1},
    {"AutoPlayTimer", -1, -1},
    {"CapImage", 0, 7},
    {"Cartes", 0, 54},
    {"Cartes2", 0, 53},
    {"CartesMains", 0, 4},
    {"ChiffresModèle", 0, 29},
    {"Conseils5", -1, -1},
    {"CréditImage", -1, -1},
    {"Deal", 0, 4},
    {"Deal2", 0, 24},
    {"Double1X5", -1, -1},
    {"Double5X5", -1, -1},
    {"Doubler", -1, -1},
    {"Doubler5", -1, -1},
    {"FileMid", -1, -1},
    {"Fin", -1, -1},
    {"Fractions", 0, 11},
    {"Fréquence", 0, 9},
    {"FréquenceTitre", -1, -1},
    {"GainImage", 0, 7},
    {"Gains", -1, -1},
    {"Gains5", 0, 12},
    {"GainsImage", 0, 2},
    {"Image6", -1, -1},
    {"ImageConseils", 0, 4},
    {"ImageCrédit", -1, -1},
    {"ImageGains", -1, -1},
    {"ImageMises", -1, -1},
    {"ImageUnàDouze", -1, -1},
    {"Jeu", -1, -1},
    {"Jeu3D", -1, -1},
    {"Jeu3DLabel", -1, -1},
    {"JeuSimple", -1, -1},
    {"JeuSimpleLabel", -1, -1},
    {"JeuTitre", -1, -1},
    {"Jouer", -1, -1},
    {"JouerImage", 0, 4},
    {"Jouez", 0, 4},
    {"Jouez5", -1, -1},
    {"LogoFondPic", -1, -1},
    {"LogoWeb", -1, -1},
    {"MainLabel", 0, 9},
    {"Mains5", 0, 12},
    {"MainsPayantes", -1, -1},
    {"Maintitre", 0, 11},
    {"MiseImage", 0, 2},
    {"Mises", -1, -1},
    {"MisesImage", 0, 2},
    {"Moins", -1, -1},
    {"Moins5", -1, -1},
    {"MusicTimer", -1, -1},
    {"NJokerSélection", 0, 2},
    {"NonConnectéCmd", -1, -1},
    {"NonConnectéLbl", -1, -1},
    {"NonConnectéPic", -1, -1},
    {"NonConnectéTimer", -1, -1},
    {"PParesseNon", -1, -1},
    {"PParesseOui", -1, -1},
    {"PSSVitesse", 0, 1},
    {"PSSlangue", 0, 1},
    {"ParesseNon", -1, -1},
    {"ParesseOui", -1, -1},
    {"Plus", -1, -1},
    {"Plus5", -1, -1},
    {"PourCentLabel", -1, -1},
    {"PourcDéc", 0, 11},
    {"Pourcentages", 0, 11},
    {"Pub0Pic", -1, -1},
    {"Pub0Web", -1, -1},
    {"Pub1Pic", -1, -1},
    {"Pub1Web", -1, -1},
    {"Quitte1X5", -1, -1},
    {"Quitte5X5", -1, -1},
    {"Rapport", -1, -1},
    {"SSAides", -1, -1},
    {"SSAireJeu", -1, -1},
    {"SSAireJeu5", -1, -1},
    {"SSAlertes", -1, -1},
    {"SSCartes", -1, -1},
    {"SSCartes2", -1, -1},
    {"SSConseils5", -1, -1},
    {"SSGains", -1, -1},
    {"SSJeu3D", -1, -1},
    {"SSJeuSimple", -1, -1},
    {"SSLangue", 0, 1},
    {"SSMenu", -1, -1},
    {"SSMenuJeux", -1, -1},
    {"SSMessages", -1, -1},
    {"SSMises", -1, -1},
    {"SSMusic", 0, 2},
    {"SSNJokerSélection", -1, -1},
    {"SSRecommence", -1, -1},
    {"SSRègles", -1, -1},
    {"SSTirage", -1, -1},
    {"SSVitesse", 0, 1},
    {"Tirage", -1, -1},
    {"TitreImage", 0, 2},
    {"TitreTimer", -1, -1},
    {"UnADouze", -1, -1},
    {"UnADouzeLine", 0, 11},
    {"UnADouzeTémoin", 0, 11},
    {"UnSur", -1, -1},
    {"UnàDouze", -1, -1},
    {"UnàDouzeImage", 0, 1},
};

// A place given in twips is kept in whole pixels: it reads back rounded to 15.
int Kept(int twips) { return static_cast<int>(std::lround(twips / 15.0)) * 15; }

struct Place {
  const char* name;
  int index;
  const char* parent;
  int left, top, width, height;
};

const Place kPlaces[] = {
    {"Jeu", -1, "JeuPoker", 0, 0, 12000, 8700},
    {"SSCartes", -1, "JeuPoker", 0, -9000, 6015, 5295},
    {"SSCartes2", -1, "JeuPoker", 0, -9000, 5535, 6015},
    {"JeuTitre", -1, "Jeu", 0, 0, 3765, 645},
    {"TitreImage", 0, "JeuTitre", 645, 165, 2475, 360},
    {"SSNJokerSélection", -1, "Jeu", 3765, 0, 1665, 630},
    {"NJokerSélection", 0, "SSNJokerSélection", 30, 30, 540, 570},
    {"NJokerSélection", 1, "SSNJokerSélection", 555, 30, 540, 570},
    {"NJokerSélection", 2, "SSNJokerSélection", 1080, 30, 540, 570},
    {"SSMenu", -1, "Jeu", 5430, 0, 6585, 630},
    {"SSMusic", 0, "SSMenu", 15, 30, 540, 570},
    {"SSRègles", -1, "SSMenu", 525, 30, 540, 570},
    {"SSLangue", 0, "SSMenu", 1050, 30, 540, 570},
    {"SSLangue", 1, "SSMenu", 1560, 30, 540, 570},
    {"ParesseNon", -1, "SSMenu", 2100, 30, 540, 570},
    {"ParesseOui", -1, "SSMenu", 2625, 30, 540, 570},
    {"SSVitesse", 0, "SSMenu", 3150, 30, 540, 570},
    {"SSVitesse", 1, "SSMenu", 3675, 30, 540, 570},
    {"AutoPlay", -1, "SSMenu", 4200, 30, 660, 570},
    {"AutoPlayStop", -1, "SSMenu", 4845, 30, 660, 570},
    {"Fin", -1, "SSMenu", 5490, 30, 540, 570},
    {"SSRecommence", -1, "SSMenu", 6015, 30, 540, 570},
    {"PSSlangue", 0, "SSMenu", 1065, 45, 90, 90},
    {"PSSlangue", 1, "SSMenu", 1590, 45, 90, 90},
    {"PParesseNon", -1, "SSMenu", 2115, 45, 90, 90},
    {"PParesseOui", -1, "SSMenu", 2640, 45, 90, 90},
    {"PSSVitesse", 0, "SSMenu", 3165, 45, 90, 90},
    {"PSSVitesse", 1, "SSMenu", 3690, 45, 90, 90},
    {"SSGains", -1, "Jeu", 0, 630, 6480, 3465},
    {"SSMises", -1, "Jeu", 6465, 630, 2190, 3465},
    {"SSTirage", -1, "Jeu", 6525, 3000, 2085, 1050},
    {"SSMenuJeux", -1, "Jeu", 8655, 630, 3360, 2280},
    {"SSMessages", -1, "Jeu", 8655, 2910, 3345, 1170},
    {"SSAireJeu", -1, "Jeu", 0, 4080, 12000, 3795},
    {"SSAireJeu5", -1, "Jeu", 0, 630, 6465, 8100},
    {"SSAlertes", -1, "Jeu", 6465, 7890, 5535, 825},
    {"SSJeuSimple", -1, "SSMenuJeux", 135, 135, 1500, 1500},
    {"SSJeu3D", -1, "SSMenuJeux", 1725, 135, 1500, 1500},
    {"JeuSimple", -1, "SSJeuSimple", 90, 90, 1305, 1305},
    {"Jeu3D", -1, "SSJeu3D", 90, 90, 1305, 1305},
    {"JeuSimpleLabel", -1, "SSMenuJeux", 270, 1810, 1185, 345},
    {"Jeu3DLabel", -1, "SSMenuJeux", 1890, 1810, 1185, 345},
    {"CartesMains", 0, "SSMessages", 105, 90, 600, 975},
    {"CartesMains", 4, "SSMessages", 2625, 90, 600, 975},
    {"Jouer", -1, "SSTirage", 45, 45, 1980, 960},
    {"JouerImage", 0, "Jouer", 0, 0, 1980, 960},
    {"Tirage", -1, "SSTirage", 45, 45, 570, 360},
    {"ImageCrédit", -1, "SSMises", 60, 60, 2070, 780},
    {"ImageGains", -1, "SSMises", 60, 825, 2070, 780},
    {"ImageMises", -1, "SSMises", 60, 1590, 2070, 780},
    {"ImageUnàDouze", -1, "SSMises", 60, 2355, 2070, 780},
    {"Gains", -1, "SSMises", 135, 960, 1920, 480},
    {"Mises", -1, "SSMises", 735, 1680, 705, 480},
    {"UnADouze", -1, "SSMises", 735, 2385, 705, 480},
    {"Moins", -1, "SSMises", 135, 1905, 405, 375},
    {"Plus", -1, "SSMises", 1635, 1905, 405, 375},
    {"Moins5", -1, "SSMises", 135, 2670, 405, 375},
    {"Plus5", -1, "SSMises", 1635, 2670, 405, 375},
    {"Deal", 0, "SSAireJeu", 645, 1065, 1395, 2070},
    {"Deal", 1, "SSAireJeu", 2975, 1065, 1395, 2070},
    {"Deal", 2, "SSAireJeu", 5295, 1065, 1395, 2070},
    {"Deal", 3, "SSAireJeu", 7620, 1065, 1395, 2070},
    {"Deal", 4, "SSAireJeu", 9945, 1065, 1395, 2070},
    {"Jouez", 0, "SSAireJeu", 195, 45, 2325, 510},
    {"Jouez", 4, "SSAireJeu", 9495, 45, 2325, 510},
    {"ImageConseils", 2, "Jouez", 1800, -15, 480, 480},
    {"Doubler", -1, "SSAireJeu", 3690, 45, 4650, 510},
    {"Quitte1X5", -1, "Doubler", 300, 90, 1800, 330},
    {"Double1X5", -1, "Doubler", 2580, 90, 1800, 330},
    {"Deal2", 0, "SSAireJeu5", 335, 750, 975, 1305},
    {"Deal2", 1, "SSAireJeu5", 1320, 750, 975, 1305},
    {"Deal2", 24, "SSAireJeu5", 4335, 6090, 975, 1305},
    {"Jouez5", -1, "SSAireJeu5", 315, 90, 3300, 420},
    {"SSConseils5", -1, "SSAireJeu5", 315, 90, 3300, 420},
    {"Doubler5", -1, "SSAireJeu5", 315, 90, 3300, 420},
    {"Conseils5", -1, "SSConseils5", 45, 45, 1590, 330},
    {"AnnuleConseils5", -1, "SSConseils5", 1905, 45, 1350, 330},
    {"Quitte5X5", -1, "Doubler5", 45, 45, 1800, 330},
    {"Double5X5", -1, "Doubler5", 1845, 45, 1410, 330},
    {"Mains5", 12, "SSAireJeu5", 3645, 90, 900, 405},
    {"Gains5", 12, "SSAireJeu5", 4545, 90, 825, 405},
    {"Mains5", 0, "SSAireJeu5", 5400, 1155, 960, 255},
    {"Gains5", 0, "SSAireJeu5", 5400, 1410, 960, 255},
    {"Mains5", 5, "SSAireJeu5", 315, 7475, 960, 255},
    {"Gains5", 11, "SSAireJeu5", 5400, 390, 960, 255},
    {"UnADouzeTémoin", 0, "SSAireJeu5", 105, 1275, 195, 240},
    {"UnADouzeTémoin", 10, "SSAireJeu5", 0, 510, 360, 240},
    {"UnADouzeTémoin", 11, "SSAireJeu5", 0, 7380, 360, 240},
    {"Maintitre", 0, "SSGains", 60, 2610, 2400, 255},
    {"Maintitre", 9, "SSGains", 60, 315, 2400, 255},
    {"Maintitre", 11, "SSGains", 60, 3135, 2400, 255},
    {"MainLabel", 6, "SSGains", 2460, 1085, 615, 255},
    {"Pourcentages", 10, "SSGains", 3075, 2885, 1080, 255},
    {"PourcDéc", 3, "SSGains", 3105, 1845, 300, 195},
    {"Fractions", 7, "SSGains", 4155, 825, 1515, 255},
    {"Fréquence", 2, "SSGains", 5670, 2100, 735, 255},
    {"AidesOk", -1, "SSAides", 10680, 7800, 975, 615},
    {"Aides", 0, "SSAides", 150, 360, 11605, 300},
    {"Aides", 5, "SSAides", 150, 6780, 11605, 795},
};
}  // namespace

TEST(Inventory, EveryNameExistsWithItsIndexRange) {
  Harness h;
  int count = 0;
  for (const auto& r : kNames) {
    ++count;
    if (QString(r.name).endsWith("Timer")) {
      EXPECT_NE(h.form->FindTimer(r.name), nullptr) << r.name;
      continue;
    }
    if (r.low < 0) {
      EXPECT_NE(h.form->FindControl(r.name, -1), nullptr) << r.name;
      continue;
    }
    for (int i = r.low; i <= r.high; ++i) EXPECT_NE(h.form->FindControl(r.name, i), nullptr) << r.name << i;
    EXPECT_EQ(h.form->FindControl(r.name, r.low - 1), nullptr) << r.name;
    EXPECT_EQ(h.form->FindControl(r.name, r.high + 1), nullptr) << r.name;
  }
  EXPECT_EQ(count, 109);
  // And nothing else: the form's list of names is exactly this one.
  const auto names = h.form->ControlNames();
  EXPECT_EQ(names.size(), std::size(kNames));
  for (const auto& n : names) {
    const auto it =
        std::find_if(std::begin(kNames), std::end(kNames), [&](const Range& r) { return n.name == r.name; });
    ASSERT_NE(it, std::end(kNames)) << n.name.toStdString();
    EXPECT_EQ(n.low, it->low) << it->name;
    EXPECT_EQ(n.high, it->high) << it->name;
  }
}

TEST(Inventory, PlacesAndParentsInTwips) {
  Harness h;
  for (const auto& p : kPlaces) {
    Control* c = h.form->FindControl(p.name, p.index);
    ASSERT_NE(c, nullptr) << p.name;
    auto* pc = dynamic_cast<Control*>(c->parentWidget());
    // The controls placed on the form stand on its table, the surface shown at the table's scale.
    const bool onForm = c->parentWidget() && c->parentWidget()->parentWidget() == h.form.get() &&
                        c->parentWidget()->objectName() == QStringLiteral("Table");
    const QString parent = pc ? pc->Name() : onForm ? QStringLiteral("JeuPoker") : c->parentWidget()->objectName();
    EXPECT_EQ(parent, QString(p.parent)) << p.name << " " << p.index;
    EXPECT_EQ(c->Left(), Kept(p.left)) << p.name << " " << p.index;
    EXPECT_EQ(c->Top(), Kept(p.top)) << p.name << " " << p.index;
    EXPECT_EQ(c->Width(), Kept(p.width)) << p.name << " " << p.index;
    EXPECT_EQ(c->Height(), Kept(p.height)) << p.name << " " << p.index;
  }
}

TEST(Inventory, WindowIs1024By768AtScaleOneAndCaptioned) {
  Harness h;
  EXPECT_EQ(h.form->windowTitle(), "MONTALBERGUES");
  EXPECT_EQ(h.form->TableScale(), 1.0);
  EXPECT_EQ(h.form->width(), 1024);
  EXPECT_EQ(h.form->height(), 768);
  // The player may enlarge the window, never shrink it below the table.
  EXPECT_EQ(h.form->minimumSize(), QSize(1024, 768));
  EXPECT_GT(h.form->maximumWidth(), 1024);
  EXPECT_EQ(h.Drive1("get JeuPoker.Width"), "JeuPoker.Width=15360");
  EXPECT_EQ(h.Drive1("get JeuPoker.Height"), "JeuPoker.Height=11520");
  EXPECT_EQ(h.Drive1("get JeuPoker.Caption"), "JeuPoker.Caption=MONTALBERGUES");
  EXPECT_EQ(h.Drive1("get Pub0Pic.Top"), "Pub0Pic.Top=8700");
  EXPECT_EQ(h.Drive1("get Pub1Pic.Left"), "Pub1Pic.Left=11940");
}

TEST(Inventory, FirstCaptions) {
  Harness h;
  const char* rows[] = {
      " 1 PAIRE ROI OU AS",   " 2 PAIRES", " BRELAN", " QUINTE", " COULEUR", " FULL", " CARRE", " QUINTE FLUSH",
      " QUINTE FLUSH ROYALE", " POKER"};
  for (int i = 0; i <= 9; ++i) EXPECT_EQ(h.form->Maintitre(i).Caption(), QString::fromUtf8(rows[i]));
  EXPECT_EQ(h.form->NJokerSélection(0).Caption(), "52");
  EXPECT_EQ(h.form->NJokerSélection(1).Caption(), "53");
  EXPECT_EQ(h.form->NJokerSélection(2).Caption(), "54");
  EXPECT_EQ(h.form->MainsPayantes->Caption(), "MAINS PAYANTES");
  EXPECT_EQ(h.form->Rapport->Caption(), "$$$");
  EXPECT_EQ(h.form->PourCentLabel->Caption(), "%");
  EXPECT_EQ(h.form->UnSur->Caption(), "?/3162510");
  EXPECT_EQ(h.form->FréquenceTitre->Caption(), "STATS");
  EXPECT_EQ(h.form->AutoPlay->Caption(), "AUTO");
  EXPECT_EQ(h.form->AutoPlayStop->Caption(), "STOP");
  EXPECT_EQ(h.form->JeuSimpleLabel->Caption(), "JEU 1");
  EXPECT_EQ(h.form->Jeu3DLabel->Caption(), "JEU 2");
  EXPECT_EQ(h.form->Jouez5->Caption(), "JOUEZ");
  EXPECT_EQ(h.form->Conseils5->Caption(), "CONSEILS");
  EXPECT_EQ(h.form->AnnuleConseils5->Caption(), "ANNULE");
  EXPECT_EQ(h.form->Quitte5X5->Caption(), "QUITTE");
  EXPECT_EQ(h.form->Double5X5->Caption(), "DOUBLE");
  EXPECT_EQ(h.form->Mains5(12).Caption(), "GAINS");
  EXPECT_EQ(h.form->Mises->Caption(), "1");
  EXPECT_EQ(h.form->UnADouze->Caption(), "1");
  EXPECT_EQ(h.form->NonConnectéCmd->Caption(), "OK");
  EXPECT_EQ(h.form->AidesOk->Caption(), "OK");
  EXPECT_EQ(h.form->NonConnectéLbl->Caption(),
            QString::fromUtf8("Vous devez être connecté à internet pour utiliser ce logiciel"));
  for (int i = 0; i <= 11; ++i) EXPECT_EQ(h.form->UnADouzeTémoin(i).Caption(), QString::number(i + 1));
}

TEST(Inventory, ColoursThatCarryMeaning) {
  Harness h;
  auto& f = *h.form;
  EXPECT_EQ(f.Jeu->BackColor(), 0);
  EXPECT_EQ(f.SSNJokerSélection->BackColor(), 0x404040);
  EXPECT_EQ(f.SSMenu->BackColor(), 0x808080);
  EXPECT_EQ(f.SSTirage->BackColor(), 0x707070);
  EXPECT_EQ(f.SSMenuJeux->BackColor(), 0x404080);
  EXPECT_EQ(f.SSAlertes->ForeColor(), 0x00FFFF);
  EXPECT_EQ(f.SSAlertes->BackColor(), 0);
  EXPECT_EQ(f.NJokerSélection(0).ForeColor(), 0xFFFFFF);
  EXPECT_EQ(f.NJokerSélection(1).ForeColor(), 0xFFFFFF);
  EXPECT_EQ(f.NJokerSélection(2).ForeColor(), 0x00FFFF);
  EXPECT_EQ(f.AutoPlay->ForeColor(), 0x0000C0);
  EXPECT_EQ(f.AutoPlay->BackColor(), 0x7A7A7A);
  EXPECT_EQ(f.SSJeuSimple->BackColor(), 0x0000FF);
  EXPECT_EQ(f.SSJeu3D->BackColor(), 0);
  EXPECT_EQ(f.JeuSimpleLabel->BackColor(), 0x404080);
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(f.Jouez(i).BackColor(), 0x808000);
  EXPECT_EQ(f.Jouez5->BackColor(), 0x808000);
  EXPECT_EQ(f.Conseils5->ForeColor(), 0x0000FF);
  EXPECT_EQ(f.Double5X5->ForeColor(), 0x0000FF);
  EXPECT_EQ(f.Mains5(12).BackColor(), 0x605000);
  EXPECT_EQ(f.Mains5(12).ForeColor(), 0x80FFFF);
  EXPECT_EQ(f.Gains5(12).ForeColor(), 0xFFFFFF);
  EXPECT_EQ(f.Gains5(12).BackColor(), 0);
  for (int i = 0; i <= 11; ++i) {
    EXPECT_EQ(f.Mains5(i).ForeColor(), 0xFFFFFF);
    EXPECT_EQ(f.Mains5(i).BackColor(), 0xFF0000);
    EXPECT_EQ(f.Gains5(i).ForeColor(), 0x00FFFF);
    EXPECT_EQ(f.Gains5(i).BackColor(), 0x605000);
    EXPECT_EQ(f.UnADouzeLine(i).ForeColor(), 0x00FFFF);
    EXPECT_EQ(f.UnADouzeTémoin(i).BackColor(), i == 0 ? 0x00FFFF : 0x808080);
    EXPECT_EQ(f.Pourcentages(i).BackColor(), 0x404000);
    EXPECT_EQ(f.Fractions(i).BackColor(), 0x404000);
    EXPECT_EQ(f.Maintitre(i).BackColor(), 0);
  }
  EXPECT_EQ(f.Pourcentages(11).ForeColor(), 0x0000FF);
  for (auto* t : {f.MainsPayantes, f.Rapport, f.PourCentLabel, f.UnSur, f.FréquenceTitre})
    EXPECT_EQ(t->ForeColor(), 0x00C0C0);
}

TEST(Inventory, FontsOfTheAlertLineAndTheGridLabels) {
  Harness h;
  EXPECT_EQ(h.form->SSAlertes->font().family(), "Liberation Serif");
  EXPECT_EQ(h.form->Mains5(12).font().family(), "Liberation Serif");
  EXPECT_EQ(h.form->Mains5(12).font().pointSizeF(), 15);
  EXPECT_EQ(h.form->UnADouzeTémoin(3).font().family(), "Liberation Mono");
  EXPECT_EQ(h.form->UnADouzeTémoin(3).font().pointSizeF(), 12);
}

TEST(Inventory, HiddenAtStartAndJeu1ArrangementInForce) {
  Harness h;
  auto& f = *h.form;
  for (auto* c : {f.SSAireJeu5, f.SSAides, f.Doubler, f.Doubler5, f.SSConseils5, f.NonConnectéPic, f.Gains, f.Mises,
                  f.PParesseNon})
    EXPECT_FALSE(c->Visible()) << c->FullName().toStdString();
  for (int i = 0; i <= 4; ++i) EXPECT_FALSE(f.CartesMains(i).Visible());
  for (int i = 1; i <= 11; ++i) {
    EXPECT_FALSE(f.Mains5(i).Visible());
    EXPECT_FALSE(f.Gains5(i).Visible());
    EXPECT_FALSE(f.UnADouzeLine(i).Visible());
  }
  EXPECT_TRUE(f.Mains5(0).Visible());
  EXPECT_TRUE(f.Gains5(0).Visible());
  EXPECT_TRUE(f.UnADouzeLine(0).Visible());
  EXPECT_TRUE(f.PParesseOui->Visible());
  EXPECT_TRUE(f.PSSVitesse(1).Visible());
  EXPECT_FALSE(f.PSSVitesse(0).Visible());
  EXPECT_FALSE(f.PSSlangue(0).Visible());
  EXPECT_FALSE(f.PSSlangue(1).Visible());
  EXPECT_TRUE(f.SSAireJeu->Visible());
  EXPECT_TRUE(f.SSAlertes->Visible());
  EXPECT_TRUE(f.UnADouze->Visible());
  for (auto* c : {f.PourCentLabel, f.UnSur}) EXPECT_TRUE(c->Visible());
  for (int i = 0; i <= 11; ++i) {
    EXPECT_TRUE(f.Pourcentages(i).Visible());
    EXPECT_TRUE(f.PourcDéc(i).Visible());
    EXPECT_TRUE(f.Fractions(i).Visible());
  }
  EXPECT_EQ(f.FréquenceTitre->Left(), 5670);
  EXPECT_EQ(f.SSTirage->Top(), 3000);
  EXPECT_EQ(f.SSMises->Height(), 3465);
  // The state kept on controls, at start.
  EXPECT_EQ(f.JeuSimple->BevelWidth(), 1);
  EXPECT_EQ(f.Jeu3D->BevelWidth(), 7);
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 3);
  EXPECT_EQ(f.ParesseOui->BevelWidth(), 0);
  EXPECT_EQ(f.ParesseNon->BevelWidth(), 3);
  // The music has set the title's beat from the piece's tempo, 120 by the scripted player.
  EXPECT_EQ(f.TitreTimer->Interval(), 54000 / 120);
  EXPECT_TRUE(f.TitreTimer->Enabled());
  EXPECT_EQ(f.AutoPlayTimer->Interval(), 400);
  EXPECT_FALSE(f.AutoPlayTimer->Enabled());
  EXPECT_EQ(f.MusicTimer->Interval(), 1000);
  EXPECT_EQ(f.NonConnectéTimer->Interval(), 20000);
}

TEST(Inventory, AllCardsStartFaceDown) {
  Harness h;
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(h.form->Deal(i).GetPicture(), h.form->Cartes(54).GetPicture());
  for (int i = 0; i <= 24; ++i) EXPECT_EQ(h.form->Deal2(i).GetPicture(), h.form->Cartes(54).GetPicture());
  EXPECT_EQ(h.Drive1("get Deal(3).Picture"), "Deal(3).Picture=Cartes(54)");
  EXPECT_EQ(h.Drive1("get Deal2(24).Picture"), "Deal2(24).Picture=Cartes(54)");
}

TEST(Inventory, LevelButtonsCannotBeReachedInJeu1) {
  Harness h;
  EXPECT_TRUE(h.form->Plus5->Visible());
  EXPECT_TRUE(h.form->Moins5->Visible());
  EXPECT_EQ(h.Drive1("click Plus5"), "error: Plus5 cannot be reached");
  EXPECT_EQ(h.Drive1("click Moins5"), "error: Moins5 cannot be reached");
  EXPECT_EQ(h.Drive1("move Plus5"), "error: Plus5 cannot be reached");
  // Tirage lies under Jouer and is never reached either.
  EXPECT_EQ(h.Drive1("click Tirage"), "error: Tirage cannot be reached");
  // The stores lie off the screen.
  EXPECT_EQ(h.Drive1("click Cartes(3)"), "error: Cartes(3) cannot be reached");
}

TEST(Inventory, TirageHasTheFocusAtStart) {
  Harness h;
  EXPECT_EQ(h.form->focusWidget(), h.form->Tirage);
  EXPECT_EQ(h.Drive1("get Tirage.Focus"), "Tirage.Focus=-1");
}

TEST(Inventory, IndexOutsideAControlArrayIsRuntimeError9) {
  EXPECT_EXIT(
      {
        Harness h;
        h.form->Deal(5).SetCaption("x");
      },
      ::testing::ExitedWithCode(3), "run-time error 9");
  EXPECT_EXIT(
      {
        Harness h;
        h.form->Cartes(-1).GetPicture();
      },
      ::testing::ExitedWithCode(3), "run-time error 9");
}

TEST(Inventory, ControlPropertiesReadAndWriteInTwips) {
  Harness h;
  Control& c = h.form->Jouez(1);
  c.SetLeft(1000);  // 66.67 px: kept as 67 px
  EXPECT_EQ(c.Left(), 1005);
  c.SetWidth(30);
  EXPECT_EQ(c.Width(), 30);
  c.SetForeColor(0x0000FF);
  EXPECT_EQ(c.palette().color(QPalette::WindowText).isValid(), true);
  EXPECT_EQ(VbColor(0x0000FF), QColor(255, 0, 0));
  EXPECT_EQ(VbColor(0xFF0000), QColor(0, 0, 255));
  c.SetMousePointer(99);
  EXPECT_EQ(c.MousePointer(), 99);
  EXPECT_EQ(c.cursor().shape(), Qt::BitmapCursor);
  c.SetMousePointer(12);
  EXPECT_EQ(c.cursor().shape(), Qt::ForbiddenCursor);
  c.SetMousePointer(10);
  EXPECT_EQ(c.cursor().shape(), Qt::UpArrowCursor);
  // Visible is the control's own flag, not whether an ancestor shows.
  EXPECT_TRUE(h.form->Deal2(3).Visible());
  EXPECT_FALSE(h.form->SSAireJeu5->Visible());
}
