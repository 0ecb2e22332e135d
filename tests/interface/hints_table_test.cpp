// The hint line: every control of the screen in both languages, at the moments that change
// what it says, and in automatic mode, where some go blank and some say "not available".
#include "tests/interface/speech_helpers.h"

using namespace speech;
using options::Click;

namespace {

class HintsTable : public ::testing::TestWithParam<Lang> {
 protected:
  void SetUp() override {
    Choose(h, GetParam());
    // A hint already on the line would hide a handler that writes nothing.
    h.form->SSMessages->SetCaption("?");
    h.form->Messages(201) = "?";
  }
  QString H(int key) const { return Hint(key, GetParam()); }
  bool En() const { return IsEnglish(GetParam()); }
  void Expect(const QString& control, const QString& text) {
    EXPECT_EQ(HoverOver(h, control), text) << "over " << control.toStdString();
  }
  Harness h;
};

TEST_P(HintsTable, ClassicTableAtRest) {
  JeuPoker& f = *h.form;
  Expect("Jouer", H(23));
  Expect("Jouez(0)", H(1));
  Expect("Jouez(4)", H(1));
  Expect("SSAireJeu", H(1));
  Expect("ImageConseils(2)", H(9));
  Expect("Double1X5", H(8));
  Expect("Quitte1X5", H(7));
  Expect("Moins", H(19));
  Expect("Plus", H(20));
  Expect("ImageCrédit", H(13) + " 200");
  Expect("ImageGains", H(14));
  Expect("Gains", H(14));
  Expect("ImageMises", H(15) + " 1\r" + H(16));
  Expect("Mises", H(15) + " 1\r" + H(16));
  Expect("UnADouze", H(17) + " 1");
  Expect("JeuSimple", H(42) + "\r" + H(44));
  Expect("Jeu3D", H(43) + "\r" + H(45));
  Expect("ParesseNon", H(47));
  Expect("ParesseOui", H(46));
  Expect("AutoPlay", H(51));
  Expect("AutoPlayStop", H(54));
  Expect("NJokerSélection(0)", H(62));
  Expect("NJokerSélection(1)", H(63));
  Expect("NJokerSélection(2)", H(64));
  Expect("SSVitesse(0)", H(32));
  Expect("SSVitesse(1)", H(33));
  Expect("SSLangue(0)", "English language");
  Expect("SSLangue(1)", "Langue Française");
  Expect("SSRègles", H(31));
  Expect("SSRecommence", H(37));
  Expect("Fin", H(57));
  Expect("SSMusic(0)", H(70));
  f.SSMusic(0).SetPicture(f.SSMusic(2).GetPicture());
  Expect("SSMusic(0)", H(71));
  // The odds at rest are those of a first drawing.
  for (int i : {0, 11}) {
    Expect(QStringLiteral("Fractions(%1)").arg(i), H(59));
    Expect(QStringLiteral("Pourcentages(%1)").arg(i), H(61));
    Expect(QStringLiteral("PourcDéc(%1)").arg(i), H(61));
  }
  Expect("Fréquence(0)", H(60));
  Expect("Fréquence(9)", H(60));
  for (const char* silent : {"Jeu", "SSGains", "MainsPayantes", "Rapport", "PourCentLabel"}) {
    Expect("Fin", H(57));
    Expect(silent, "");
  }
  Expect("Maintitre(2)", "");
  Expect("MainLabel(6)", QString::number(f.TableGains(6)));
}

TEST_P(HintsTable, CompletionsFollowTheState) {
  JeuPoker& f = *h.form;
  Click(h, "ParesseNon");
  Expect("ImageConseils(0)", H(10));
  Click(h, "Plus");
  Click(h, "Plus");
  ASSERT_EQ(f.Mise, 3);
  Expect("ImageMises", H(15) + " 3\r" + H(16));
  Expect("MainLabel(1)", QString::number(f.TableGains(1) * 3));
  options::WinWaiting1(h);
  Expect("ImageCrédit", H(13) + " 197");
  Expect("ImageGains", H(14) + "3");
  Expect("Gains", H(14) + "3");
}

TEST_P(HintsTable, ClassicBetweenDrawings) {
  JeuPoker& f = *h.form;
  options::FirstDrawing1(h, options::kHandKings);
  // The kings are kept by the automatic selection, the others thrown.
  ASSERT_EQ(f.Jouez(0).Caption(), f.MotCarteGardée());
  ASSERT_EQ(f.Jouez(2).Caption(), f.MotCarteJetée());
  Expect("Jouez(0)", H(12));
  Expect("Jouez(2)", H(11));
  Expect("Deal(0)", H(3));
  Expect("Deal(2)", H(2));
  Click(h, "Deal(2)");
  Expect("Deal(2)", H(3));
  // Live odds are those of the second drawing.
  Expect("Pourcentages(3)", H(58));
  Expect("PourcDéc(3)", H(58));
  Expect("Fractions(3)", H(59));
  Expect("Fréquence(3)", H(60));
  Expect("AutoPlay", H(51));
}

TEST_P(HintsTable, ClassicWinDoubleAndLoss) {
  options::WinWaiting1(h);
  Expect("SSAireJeu", H(5));
  Expect("Double1X5", H(8));
  Expect("Quitte1X5", H(7));
  h.platform.QueueDraws({5, 0});
  Click(h, "Double1X5");
  ASSERT_TRUE(h.form->DoubleEnCours);
  Expect("Deal(2)", H(4));
  Expect("Deal(0)", "");
  Expect("Deal(4)", H(4));
  Expect("AutoPlay", H(53));
  Expect("AutoPlayStop", H(56));
  // A lost duel leaves neither the hold panels nor the double-up offer.
  h.platform.QueueDraws({0, 1});
  Click(h, "Deal(3)");
  ASSERT_FALSE(h.form->Doubler->Visible());
  Expect("SSAireJeu", H(6));
  Expect("AutoPlay", H(51));
}

TEST_P(HintsTable, NoCreditSilencesTheAutomaticButtons) {
  options::NoCredit1(h);
  Expect("AutoPlay", H(53));
  Expect("AutoPlayStop", H(56));
  Expect("ImageCrédit", H(13) + " 0");
}

TEST_P(HintsTable, GridControls) {
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  Expect("SSAireJeu5", H(1));
  Expect("Deal2(7)", H(1));
  Expect("ParesseNon", H(48));
  Expect("ParesseOui", H(48));
  Expect("JeuSimple", H(42) + "\r" + H(45));
  Expect("Jeu3D", H(43) + "\r" + H(44));
  Expect("Moins5", H(21));
  Expect("Plus5", H(22));
  Expect("Conseils5", H(25));
  Expect("AnnuleConseils5", H(26));
  Expect("Double5X5", H(8));
  Expect("Quitte5X5", H(7));
  Click(h, "Plus5");
  Click(h, "Plus5");
  ASSERT_EQ(f.Niveau, 3);
  Expect("ImageMises", H(15) + " 3 ( 1 X  3)\r" + H(18));
  Expect("UnADouze", H(17) + " 3");
  const QString yes = En() ? " Selected" : " Sélectionné";
  const QString no = En() ? " No selected" : " Non sélectionné";
  Expect("UnADouzeTémoin(0)", H(27) + " 1\r" + yes);
  Expect("UnADouzeTémoin(2)", H(27) + " 3\r" + yes);
  Expect("UnADouzeTémoin(3)", H(27) + " 4\r" + no);
  Expect("UnADouzeTémoin(11)", H(27) + " 12\r" + no);
  // Line labels before any drawing have no caption.
  Expect("Mains5(0)", H(29) + " 1");
  Expect("Gains5(1)", H(30) + " 2");
  Expect("Mains5(12)", H(28));
  Expect("Gains5(12)", H(28));
  options::FirstDrawing2(h, options::kGridFourKings);
  Expect("Mains5(0)", H(29) + " 1\r" + HandName(6, GetParam()));
  Expect("Gains5(0)", H(30) + " 1\r40");
  // Rows 2 and 3 hold straight flushes of clubs.
  Expect("Gains5(1)", H(30) + " 2\r100");
  Expect("Mains5(12)", H(28) + "\r240");
  Expect("Gains5(12)", H(28) + "\r240");
  // Between the drawings a grid card tells whether it is turned down.
  ASSERT_FALSE(FaceDown(f, f.Deal2(0)));
  Expect("Deal2(0)", H(3));
  Click(h, "Deal2(0)");
  ASSERT_TRUE(FaceDown(f, f.Deal2(0)));
  Expect("Deal2(0)", H(2));
  Click(h, "Deal2(0)");
  Expect("SSAireJeu5", H(24));
}

TEST_P(HintsTable, GridWinDoubleAndLoss) {
  options::ToGrid(h);
  options::WinWaiting2(h);
  Expect("SSAireJeu5", H(5));
  Expect("Deal2(9)", H(5));
  h.platform.QueueDraws({5, 0});
  Click(h, "Double5X5");
  ASSERT_TRUE(h.form->DoubleEnCours);
  Expect("Deal2(0)", "");
  Expect("Deal2(13)", H(4));
  Expect("SSAireJeu5", H(24));
  h.platform.QueueDraws({0, 1});
  Click(h, "Deal2(13)");
  ASSERT_FALSE(h.form->DoubleEnCours);
  ASSERT_FALSE(h.form->Doubler5->Visible());
  Expect("Deal2(9)", H(24));
  Expect("SSAireJeu5", H(24));
}

// The same control twice: the second move finds the text already shown and draws nothing.
TEST_P(HintsTable, SameControlTwiceRedrawsNothing) {
  JeuPoker& f = *h.form;
  Expect("Fin", H(57));
  f.SSMessages->SetCaption("drawn by hand");
  EXPECT_EQ(HoverOver(h, "Fin"), "drawn by hand");
  EXPECT_EQ(HoverOver(h, "SSRègles"), H(31));
  EXPECT_EQ(f.Messages(201), H(31));
  EXPECT_EQ(f.Messages(0), H(31));
}

// In automatic mode the hints marked blank go out; AutoPlay, AutoPlayStop and the buttons
// that say "not available" still speak.
TEST_P(HintsTable, ClassicInAutomaticMode) {
  std::vector<std::pair<QString, QString>> seen;
  const std::vector<std::pair<QString, QString>> expected = {
      {"Jouer", H(50)},
      {"Jouez(1)", ""},
      {"SSAireJeu", ""},
      {"ImageConseils(1)", ""},
      {"Double1X5", H(50)},
      {"Quitte1X5", H(50)},
      {"ParesseNon", H(50)},
      {"ParesseOui", H(50)},
      {"AutoPlay", H(52)},
      {"AutoPlayStop", H(55)},
      {"SSVitesse(0)", H(50)},
      {"SSVitesse(1)", H(50)},
      {"SSRecommence", H(50)},
      {"Fin", H(57)},
      {"SSRègles", H(31)},
      {"NJokerSélection(1)", H(63)},
      {"Moins", H(19)},
      {"Fréquence(2)", H(60)},
      {"JeuSimple", H(42) + "\r" + H(44)},
      {"SSLangue(0)", "English language"},
  };
  AtYieldWhen(
      h, [] { return true; },
      [&] {
        for (const auto& [control, text] : expected) seen.push_back({control, HoverOver(h, control)});
        h.Drive({"click AutoPlayStop"});
      });
  Click(h, "AutoPlay");
  EXPECT_EQ(seen, expected);
  // Idle again, they speak as before; the round waits between its drawings.
  Expect("Jouez(1)", h.form->Jouez(1).Caption() == h.form->MotCarteGardée() ? H(12) : H(11));
  Expect("Jouer", H(23));
  Expect("AutoPlay", H(51));
}

TEST_P(HintsTable, GridInAutomaticMode) {
  options::ToGrid(h);
  std::vector<std::pair<QString, QString>> seen;
  const std::vector<std::pair<QString, QString>> expected = {
      {"SSAireJeu5", ""},         {"Deal2(3)", ""},     {"Deal2(0)", ""},           {"Double5X5", H(50)},
      {"Quitte5X5", H(50)},       {"Conseils5", H(50)}, {"AnnuleConseils5", H(50)}, {"Jouer", H(50)},
      {"ParesseOui", H(50)},      {"AutoPlay", H(52)},  {"AutoPlayStop", H(55)},    {"Plus5", H(22)},
      {"UnADouze", H(17) + " 1"},
  };
  AtYieldWhen(
      h, [] { return true; },
      [&] {
        for (const auto& [control, text] : expected) seen.push_back({control, HoverOver(h, control)});
        h.Drive({"click AutoPlayStop"});
      });
  Click(h, "AutoPlay");
  EXPECT_EQ(seen, expected);
}

INSTANTIATE_TEST_SUITE_P(Languages, HintsTable, ::testing::Values(Lang::English, Lang::French), LangName);

// A refused click blinks the alert line even when it is empty, for the whole time, and the
// line keeps the darker yellow of the blink's end for good.
TEST(AlertBlink, EmptyLineStillBlinksAndStaysDarker) {
  Harness h;
  JeuPoker& f = *h.form;
  EXPECT_EQ(f.SSAlertes->ForeColor(), 0x00FFFF);
  options::Doubling1(h);
  f.SSAlertes->SetCaption("");
  const options::Watch w(h);
  Click(h, "Jouer");
  EXPECT_EQ(w.Slept(), options::kBlinkMs);
  EXPECT_EQ(w.Yields(), 14);
  EXPECT_EQ(f.SSAlertes->Caption(), "");
  EXPECT_EQ(f.SSAlertes->ForeColor(), 0x00C0C0);
  h.platform.QueueDraws({12, 2});
  Click(h, "Deal(1)");
  h.platform.QueueDraws({11, 24, 26, 42, 7});
  Click(h, "Quitte1X5");
  Click(h, "Jouer");
  EXPECT_EQ(f.SSAlertes->ForeColor(), 0x00C0C0);
}

}  // namespace
