// The language switch at any moment: the first start without a stored byte, a hint already
// on the line, the language in force chosen again, and switches from inside a drawing and
// from inside the automatic loop.
#include "tests/interface/speech_helpers.h"

using namespace speech;
using options::Click;

namespace {

class LanguageSwitch : public ::testing::TestWithParam<Lang> {};

// The hint on the line is not translated: only the next move of the mouse writes the new one.
TEST_P(LanguageSwitch, HintStaysUntilTheMouseMoves) {
  Harness h;
  const Lang l = GetParam();
  Choose(h, l);
  JeuPoker& f = *h.form;
  EXPECT_EQ(HoverOver(h, "Fin"), Hint(57, l));
  Choose(h, Other(l));
  EXPECT_EQ(f.SSMessages->Caption(), Hint(57, l));
  EXPECT_EQ(f.Messages(201), Hint(57, l));
  EXPECT_EQ(HoverOver(h, "Fin"), Hint(57, Other(l)));
  // A completed hint too.
  EXPECT_EQ(HoverOver(h, "ImageCrédit"), Hint(13, Other(l)) + " 200");
  Choose(h, l);
  EXPECT_EQ(f.SSMessages->Caption(), Hint(13, Other(l)) + " 200");
  EXPECT_EQ(HoverOver(h, "ImageCrédit"), Hint(13, l) + " 200");
}

// Choosing the language in force runs every step again and changes nothing on the screen.
TEST_P(LanguageSwitch, SameLanguageAgainChangesNothing) {
  Harness h;
  const Lang l = GetParam();
  Choose(h, l);
  JeuPoker& f = *h.form;
  for (int step = 0; step < 4; ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    if (step == 1) options::FirstDrawing1(h, options::kHandKings);
    if (step == 2) {
      options::HoldAll(h);
      Click(h, "Jouer");
    }
    if (step == 3) {
      h.platform.QueueDraws({5, 0, 12, 2});
      Click(h, "Double1X5");
      Click(h, "Deal(2)");
    }
    const auto before = options::Record(f);
    const QString hint = f.SSMessages->Caption();
    Choose(h, l);
    EXPECT_EQ(options::Changes(before, options::Record(f)), "");
    EXPECT_EQ(f.SSMessages->Caption(), hint);
    EXPECT_EQ(h.Drive1("file Ini.dat"), IsEnglish(l) ? "Ini.dat=02" : "Ini.dat=03");
  }
}

// Between the grid's drawings the line names change at once; the amounts and digits stay.
TEST_P(LanguageSwitch, GridBetweenDrawingsRenamesLinesNotAmounts) {
  Harness h;
  const Lang l = GetParam();
  Choose(h, Other(l));
  options::ToGrid(h);
  Click(h, "Plus5");
  options::FirstDrawing2(h, options::kGridFourKings);
  JeuPoker& f = *h.form;
  EXPECT_EQ(f.Mains5(0).Caption(), HandName(6, Other(l)));
  EXPECT_EQ(f.Mains5(1).Caption(), HandName(f.MainsLignes(1), Other(l)));
  std::vector<Picture> digits;
  for (const auto* a : {&f.GainImage, &f.CapImage, &f.MiseImage})
    for (int i = a->Low(); i <= a->High(); ++i) digits.push_back((*a)(i).GetPicture());
  QStringList amounts;
  for (int i = 0; i <= 12; ++i) amounts << f.Gains5(i).Caption();
  const Long gain = f.GainTirage, capital = f.Capital;
  Choose(h, l);
  EXPECT_EQ(f.Mains5(0).Caption(), HandName(6, l));
  EXPECT_EQ(f.Mains5(1).Caption(), HandName(f.MainsLignes(1), l));
  std::vector<Picture> after;
  for (const auto* a : {&f.GainImage, &f.CapImage, &f.MiseImage})
    for (int i = a->Low(); i <= a->High(); ++i) after.push_back((*a)(i).GetPicture());
  EXPECT_EQ(after, digits);
  QStringList amountsAfter;
  for (int i = 0; i <= 12; ++i) amountsAfter << f.Gains5(i).Caption();
  EXPECT_EQ(amountsAfter, amounts);
  EXPECT_EQ(f.GainTirage, gain);
  EXPECT_EQ(f.Capital, capital);
  EXPECT_EQ(f.SSAlertes->Caption(), IsEnglish(l) ? "SECOND DRAWING : Click on PLAY or press the 'Space' key."
                                                 : "SECOND TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.");
}

// A duel's result is written anew with the same two cards, which stay on the table.
TEST_P(LanguageSwitch, DuelResultRebuiltWithTheSameCards) {
  Harness h;
  const Lang l = GetParam();
  Choose(h, Other(l));
  options::Doubling1(h);
  h.platform.QueueDraws({11, 3});  // king of spades against the seven of clubs
  Click(h, "Deal(3)");
  JeuPoker& f = *h.form;
  EXPECT_EQ(f.SSAlertes->Caption(), DuelText(1, 50, 5, Other(l)));
  const Picture house = f.Deal(0).GetPicture(), player = f.Deal(3).GetPicture();
  const Long gain = f.GainMain;
  Choose(h, l);
  EXPECT_EQ(f.SSAlertes->Caption(), DuelText(1, 50, 5, l));
  EXPECT_EQ(f.Deal(0).GetPicture(), house);
  EXPECT_EQ(f.Deal(3).GetPicture(), player);
  EXPECT_EQ(f.GainMain, gain);
}

// The hold words are turned word by word, even in the middle of a drawing; the second drawing
// then replaces exactly the cards that were thrown, and speaks the new language.
TEST_P(LanguageSwitch, DuringTheSecondDrawing) {
  Harness h;
  const Lang l = GetParam();
  Choose(h, Other(l));
  options::FirstDrawing1(h, options::kHandKings);
  JeuPoker& f = *h.form;
  ASSERT_EQ(f.Jouez(0).Caption(), f.MotCarteGardée());
  ASSERT_EQ(f.Jouez(4).Caption(), f.MotCarteJetée());
  const QString held = IsEnglish(l) ? "HOLD" : "GARDER";
  const QString thrown = IsEnglish(l) ? "REJECT" : "JETER";
  QStringList during;
  h.platform.AtYield(2, [&] {
    h.Drive({IsEnglish(l) ? "click SSLangue(0)" : "click SSLangue(1)"});
    for (int i = 0; i <= 4; ++i) during << f.Jouez(i).Caption();
  });
  h.platform.QueueDraws({14, 41, 32});
  Click(h, "Jouer");
  EXPECT_EQ(during, (QStringList{held, held, thrown, thrown, thrown}));
  EXPECT_EQ(f.NbTirées, 10);
  EXPECT_EQ(f.CartesTirage(0), 11);
  EXPECT_EQ(f.CartesTirage(1), 24);
  EXPECT_EQ(f.CartesTirage(2), 14);
  EXPECT_EQ(f.CartesTirage(3), 41);
  EXPECT_EQ(f.CartesTirage(4), 32);
  EXPECT_EQ(f.SSAlertes->Caption(),
            IsEnglish(l) ? "QUIT to collect credits, DOUBLE to risk, PLAY to collect credits and play again."
                         : "QUITTE pour encaisser, DOUBLE pour risquer, JOUER pour encaisser et rejouer.");
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageSwitch, ::testing::Values(Lang::English, Lang::French), LangName);

// A first start with no stored byte: captions and hints French, alerts and hold words
// English, the French face of PLAY; a click on a language button repairs it.
TEST(FirstStart, FrenchScreenEnglishAlerts) {
  Harness h;
  JeuPoker& f = *h.form;
  EXPECT_EQ(h.Drive1("file Ini.dat"), "Ini.dat=");
  EXPECT_EQ(f.Langue, 0);
  EXPECT_EQ(f.LangueVar, 0);
  EXPECT_EQ(f.Jouez(0).Caption(), "JOUEZ");
  EXPECT_EQ(f.Quitte1X5->Caption(), "QUITTE");
  EXPECT_EQ(f.Maintitre(0).Caption(), " 1 PAIRE ROI OU AS");
  EXPECT_EQ(f.MainsPayantes->Caption(), "MAINS PAYANTES");
  EXPECT_EQ(f.JouerImage(0).GetPicture(), f.JouerImage(1).GetPicture());
  EXPECT_EQ(HoverOver(h, "Jouer"), Hint(23, Lang::French));
  EXPECT_EQ(HoverOver(h, "Jouez(1)"), Hint(1, Lang::French));
  EXPECT_EQ(f.SSAlertes->Caption(), "FIRST DRAWING : Click on PLAY or press the 'Space' key.");
  options::FirstDrawing1(h, options::kHandKings);
  EXPECT_EQ(f.SSAlertes->Caption(), "SECOND DRAWING : Click on PLAY or press the 'Space' key.");
  EXPECT_EQ(f.Jouez(0).Caption(), "HOLD");
  EXPECT_EQ(f.Jouez(4).Caption(), "REJECT");
  // The hold hint reads the English word, the text is the French one.
  EXPECT_EQ(HoverOver(h, "Jouez(0)"), Hint(12, Lang::French));
  Choose(h, Lang::French);
  EXPECT_EQ(f.Jouez(0).Caption(), "GARDER");
  EXPECT_EQ(f.SSAlertes->Caption(), "SECOND TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.");
  EXPECT_EQ(h.Drive1("file Ini.dat"), "Ini.dat=03");
}

// A switch from inside the automatic loop: the loop goes on in the new language.
TEST(LanguageInAutomaticMode, SwitchInsideTheLoop) {
  Harness h;
  JeuPoker& f = *h.form;
  Choose(h, Lang::English);
  AtYieldWhen(
      h, [] { return true; }, [&] { h.Drive({"click SSLangue(1)"}); });
  AtYieldWhen(
      h, [&] { return f.NbTirées == 5 && f.Jouez(0).Caption() != "JOUEZ"; }, [&] { h.Drive({"click AutoPlayStop"}); });
  h.platform.QueueDraws(options::kHandKings);
  Click(h, "AutoPlay");
  EXPECT_EQ(f.Langue, 3);
  EXPECT_EQ(f.NbTirées, 10);
  EXPECT_EQ(f.Jouer->Caption(), "JOUER");
  EXPECT_EQ(f.Jouez(0).Caption(), "GARDER");
  EXPECT_EQ(f.SSAlertes->Caption(), "QUITTE pour encaisser, DOUBLE pour risquer, JOUER pour encaisser et rejouer.");
}

}  // namespace
