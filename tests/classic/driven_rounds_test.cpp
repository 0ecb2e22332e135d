// Whole rounds played through talvero-drive's commands: holds, duels of every outcome,
// keypad picks, a refused pick of the house card, and banking by QUITTE and by JOUER.
#include <gtest/gtest.h>

#include "tests/support/harness.h"

namespace {

constexpr long long kBlinkMs = 7 * (40 + 150);

// Output lines as one text, so that a difference prints readably.
std::string Lines(const QStringList& lines) { return lines.join('\n').toStdString(); }

// A round that ends on three kings (pays 3 with two jokers and a bet of 1), DOUBLE offered.
//   first drawing: KC KD 4C 5D 6H, the kings held by the automatic selection;
//   second drawing: KH 8S 9C in positions 2..4.
const QStringList kThreeKings = {
    "draw 11 24 2 16 30",
    "click Jouer",
    "draw 37 45 7",
    "click Jouer",
};

TEST(HoldsDrive, AutomaticSelectionHoldsThePairAndTheSecondDrawingReplacesTheRest) {
  Harness h;
  EXPECT_EQ(Lines(h.Drive({"draw 11 24 2 16 30", "click Jouer", "var NbTirées", "get Jouez(0).Caption",
                           "get Jouez(1).Caption", "get Jouez(2).Caption", "get Jouez(2).BackColor",
                           "get SSAlertes.Caption"})),
            Lines(QStringList{"NbTirées=5", "Jouez(0).Caption=HOLD", "Jouez(1).Caption=HOLD", "Jouez(2).Caption=REJECT",
                              "Jouez(2).BackColor=6320128",
                              "SSAlertes.Caption=SECOND DRAWING : Click on PLAY or press the 'Space' key."}));
  EXPECT_EQ(
      Lines(h.Drive({"draw 37 45 7", "click Jouer", "var NbTirées", "var RangMain", "var GainMain",
                     "get Doubler.Visible", "get Deal(0).Picture", "get Deal(2).Picture", "get Jouez(0).Visible"})),
      Lines(QStringList{"NbTirées=10", "RangMain=2", "GainMain=3", "Doubler.Visible=-1", "Deal(0).Picture=Cartes(11)",
                        "Deal(2).Picture=Cartes(37)", "Jouez(0).Visible=0"}));
}

TEST(HoldsDrive, PlayerChangesTheHoldsBeforeTheSecondDrawing) {
  Harness h;
  h.Drive({"draw 11 24 2 16 30", "click Jouer", "click Deal(1)", "key 99", "key 99", "key 101"});
  EXPECT_EQ(
      Lines(h.Drive({"get Jouez(0).Caption", "get Jouez(1).Caption", "get Jouez(2).Caption", "get Jouez(4).Caption"})),
      Lines(QStringList{"Jouez(0).Caption=HOLD", "Jouez(1).Caption=REJECT", "Jouez(2).Caption=REJECT",
                        "Jouez(4).Caption=HOLD"}));
  // Positions 1, 2 and 3 are dealt again; 0 and 4 stay.
  EXPECT_EQ(Lines(h.Drive({"draw 50 51 12", "click Jouer", "get Deal(0).Picture", "get Deal(1).Picture",
                           "get Deal(2).Picture", "get Deal(3).Picture", "get Deal(4).Picture"})),
            Lines(QStringList{"Deal(0).Picture=Cartes(11)", "Deal(1).Picture=Cartes(50)", "Deal(2).Picture=Cartes(51)",
                              "Deal(3).Picture=Cartes(12)", "Deal(4).Picture=Cartes(30)"}));
}

TEST(HoldsDrive, WithTheManualOptionJouerAtOnceReplacesAllFive) {
  Harness h;
  h.Drive({"click ParesseNon", "draw 11 24 37 50 30", "click Jouer"});
  EXPECT_EQ(Lines(h.Drive({"get Jouez(0).Caption", "get Jouez(4).Caption"})),
            Lines(QStringList{"Jouez(0).Caption=REJECT", "Jouez(4).Caption=REJECT"}));
  EXPECT_EQ(Lines(h.Drive({"draw 0 1 2 3 5", "click Jouer", "get Deal(0).Picture", "get Deal(1).Picture",
                           "get Deal(2).Picture", "get Deal(3).Picture", "get Deal(4).Picture"})),
            Lines(QStringList{"Deal(0).Picture=Cartes(0)", "Deal(1).Picture=Cartes(1)", "Deal(2).Picture=Cartes(2)",
                              "Deal(3).Picture=Cartes(3)", "Deal(4).Picture=Cartes(5)"}));
}

TEST(HoldsDrive, RunOfDuelsWinTieAndLoss) {
  Harness h;
  h.Drive(kThreeKings);
  ASSERT_EQ(h.Drive1("var GainMain"), "GainMain=3");
  // Win: seven of clubs against the jack of diamonds.
  EXPECT_EQ(
      Lines(h.Drive({"draw 5 0", "click Double1X5", "var DoubleEnCours", "get Deal(0).Picture", "get Deal(3).Picture",
                     "get SSAlertes.Caption", "draw 9 1", "click Deal(2)", "var GainMain", "get Gains.Caption",
                     "get Deal(2).Picture", "get SSAlertes.Caption", "get Doubler.Visible"})),
      Lines(QStringList{
          "DoubleEnCours=-1", "Deal(0).Picture=Cartes(5)", "Deal(3).Picture=Cartes(54)",
          "SSAlertes.Caption=Choose a masked card and click on its back.", "GainMain=6", "Gains.Caption=6",
          "Deal(2).Picture=Cartes(22)",
          "SSAlertes.Caption=YOU WIN ! JACK of Diamonds is stronger then 7 of Clubs. QUIT, DOUBLE or PLAY ?",
          "Doubler.Visible=-1"}));
  // Tie, picked with keypad 3: five of hearts against five of clubs.
  EXPECT_EQ(Lines(h.Drive({"draw 3 2", "click Double1X5", "draw 3 0", "key 99", "var CarteChoisie", "var GainMain",
                           "get SSAlertes.Caption", "get Doubler.Visible"})),
            Lines(QStringList{"CarteChoisie=2", "GainMain=6",
                              "SSAlertes.Caption=EQUAL ! 5 of Clubs is equal 5 of Hearts. QUIT, DOUBLE or PLAY ?",
                              "Doubler.Visible=-1"}));
  // Loss: ten of spades against the three of diamonds.
  EXPECT_EQ(Lines(h.Drive({"draw 8 3", "click Double1X5", "draw 1 1", "click Deal(4)", "var GainMain",
                           "get Gains.Caption", "get SSAlertes.Caption", "get Doubler.Visible", "get Jouez(0).Visible",
                           "var NbTirées", "var Capital"})),
            Lines(QStringList{"GainMain=0", "Gains.Caption=",
                              "SSAlertes.Caption=YOU LOST ! 3 of Diamonds is beaten by 10 of Spades. NEW DRAWING.",
                              "Doubler.Visible=0", "Jouez(0).Visible=0", "NbTirées=10", "Capital=199"}));
  // JOUER begins the next round, nothing having been banked.
  EXPECT_EQ(Lines(h.Drive({"draw 0 14 28 42 5", "click Jouer", "var Capital", "var NbTirées"})),
            Lines(QStringList{"Capital=198", "NbTirées=5"}));
}

TEST(HoldsDrive, LossWithCreditBelowTheStake) {
  Harness h;
  h.Drive(kThreeKings);
  h.Drive({"set Capital 3", "set Mise 5", "draw 5 0", "click Double1X5", "get Plus.MousePointer"});
  EXPECT_EQ(Lines(h.Drive({"draw 1 1", "click Deal(1)", "get SSAlertes.Caption", "var Mise", "var Niveau",
                           "get Mises.Caption", "get MainLabel(2).Caption", "var GainMain", "var Capital",
                           "get Plus.MousePointer"})),
            Lines(QStringList{"SSAlertes.Caption=YOU LOST ! WARNING ! No more credit ! Bet back to 1.", "Mise=1",
                              "Niveau=1", "Mises.Caption=1", "MainLabel(2).Caption=3", "GainMain=0", "Capital=3",
                              "Plus.MousePointer=12"}));
}

TEST(HoldsDrive, LossWithNoCreditThenJouerIsRefused) {
  Harness h;
  h.Drive(kThreeKings);
  h.Drive({"set Capital 0", "draw 5 0", "click Double1X5", "draw 1 1", "click Deal(1)"});
  EXPECT_EQ(h.Drive1("get SSAlertes.Caption"),
            "SSAlertes.Caption=YOU LOST ! WARNING ! No more credit ! Click on the icon up on the right handside of the "
            "screen for a new game.");
  const long long slept = h.platform.sleptMs;
  EXPECT_EQ(Lines(h.Drive({"draw 0 14 28 42 5", "click Jouer", "var NbTirées", "var Capital"})),
            Lines(QStringList{"NbTirées=10", "Capital=0"}));
  EXPECT_EQ(h.platform.sleptMs - slept, kBlinkMs);
}

TEST(HoldsDrive, WonDuelWithNoCreditThenJouerCollects) {
  Harness h;
  h.Drive(kThreeKings);
  h.Drive({"set Capital 0", "draw 5 0", "click Double1X5", "draw 9 1", "click Deal(1)"});
  // 0 + 6 banked, then a stake of 1.
  EXPECT_EQ(Lines(h.Drive({"draw 0 14 28 42 5", "click Jouer", "var Capital", "var NbTirées"})),
            Lines(QStringList{"Capital=5", "NbTirées=5"}));
}

TEST(HoldsDrive, KeypadPicksEachMaskedCard) {
  for (int key : {98, 99, 100, 101}) {
    Harness h;
    h.Drive(kThreeKings);
    const int position = key - 97;
    EXPECT_EQ(
        Lines(h.Drive({"draw 0 0", "click Double1X5", "draw 12 3", QStringLiteral("key %1").arg(key),
                       "var CarteChoisie", QStringLiteral("get Deal(%1).Picture").arg(position), "var GainMain"})),
        Lines(QStringList{QStringLiteral("CarteChoisie=%1").arg(position),
                          QStringLiteral("Deal(%1).Picture=Cartes(51)").arg(position), "GainMain=6"}));
  }
}

TEST(HoldsDrive, PickOfTheHouseCardIsRefused) {
  Harness h;
  h.Drive(kThreeKings);
  h.Drive({"draw 5 0", "click Double1X5"});
  const long long slept = h.platform.sleptMs;
  EXPECT_EQ(Lines(h.Drive({"click Deal(0)", "var DoubleEnCours", "get Deal(0).Picture", "var GainMain"})),
            Lines(QStringList{"DoubleEnCours=-1", "Deal(0).Picture=Cartes(5)", "GainMain=3"}));
  EXPECT_EQ(h.platform.sleptMs - slept, kBlinkMs);
  EXPECT_EQ(Lines(h.Drive({"key 97", "var DoubleEnCours", "var GainMain"})),
            Lines(QStringList{"DoubleEnCours=-1", "GainMain=3"}));
  EXPECT_EQ(h.platform.sleptMs - slept, kBlinkMs);
  // JOUER, too, waits for the choice.
  EXPECT_EQ(Lines(h.Drive({"click Jouer", "var NbTirées", "var DoubleEnCours"})),
            Lines(QStringList{"NbTirées=10", "DoubleEnCours=-1"}));
  EXPECT_EQ(h.platform.sleptMs - slept, 2 * kBlinkMs);
  // A masked card then settles it.
  EXPECT_EQ(Lines(h.Drive({"draw 9 1", "click Deal(3)", "var DoubleEnCours", "var GainMain"})),
            Lines(QStringList{"DoubleEnCours=0", "GainMain=6"}));
}

TEST(HoldsDrive, BankingByQuitte) {
  Harness h;
  h.Drive(kThreeKings);
  h.Drive({"draw 5 0", "click Double1X5", "draw 9 1", "click Deal(2)"});
  EXPECT_EQ(Lines(h.Drive({"click Quitte1X5", "var Capital", "var GainMain", "var NbTirées", "get Gains.Caption",
                           "get Doubler.Visible", "get Jouez(2).Visible", "get Deal(0).Picture", "get Deal(2).Picture",
                           "get Deal(2).MousePointer", "get SSAlertes.Caption"})),
            Lines(QStringList{"Capital=205", "GainMain=0", "NbTirées=0", "Gains.Caption=", "Doubler.Visible=0",
                              "Jouez(2).Visible=-1", "Deal(0).Picture=Cartes(54)", "Deal(2).Picture=Cartes(54)",
                              "Deal(2).MousePointer=12",
                              "SSAlertes.Caption=NEW DRAWING : Click on PLAY or press the 'Space' key."}));
  // The next round takes its stake from the banked credit.
  EXPECT_EQ(Lines(h.Drive({"draw 0 14 28 42 5", "click Jouer", "var Capital", "var NbTirées"})),
            Lines(QStringList{"Capital=204", "NbTirées=5"}));
}

TEST(HoldsDrive, BankingByJouer) {
  Harness h;
  h.Drive(kThreeKings);
  h.Drive({"draw 5 0", "click Double1X5", "draw 9 1", "click Deal(2)"});
  // 199 + 6 banked, then a stake of 1, and five new cards.
  EXPECT_EQ(
      Lines(h.Drive({"draw 0 14 28 42 5", "click Jouer", "var Capital", "var GainMain", "var NbTirées",
                     "get Deal(0).Picture", "get Doubler.Visible"})),
      Lines(QStringList{"Capital=204", "GainMain=0", "NbTirées=5", "Deal(0).Picture=Cartes(0)", "Doubler.Visible=0"}));
}

TEST(HoldsDrive, BankingByQuitteWithoutDoubling) {
  Harness h;
  h.Drive(kThreeKings);
  EXPECT_EQ(Lines(h.Drive({"click Quitte1X5", "var Capital", "var NbTirées"})),
            Lines(QStringList{"Capital=202", "NbTirées=0"}));
}

TEST(HoldsDrive, FrenchDuelMessages) {
  Harness h;
  h.Drive({"click SSLangue(1)"});
  h.Drive(kThreeKings);
  EXPECT_EQ(
      Lines(h.Drive({"draw 5 0", "click Double1X5", "get SSAlertes.Caption", "draw 5 3", "click Deal(1)",
                     "get SSAlertes.Caption"})),
      Lines(QStringList{"SSAlertes.Caption=Cliquez sur une carte face cachée de votre choix",
                        "SSAlertes.Caption=QUITTE ! 7 de Pique est égal 7 de Trèfle. QUITTE, DOUBLE ou JOUER ?"}));
}

TEST(HoldsDrive, EveryClickFlipRecountsThePanelAndAKeyFlipDoesNot) {
  Harness h;
  // All five rejected: draws of five among the 49 cards left.
  h.Drive({"click ParesseNon", "draw 0 14 28 42 5", "click Jouer"});
  ASSERT_EQ(h.Drive1("get UnSur.Caption"), "UnSur.Caption=?/1906884");
  EXPECT_EQ(h.Drive1("get Jouez(0).Caption"), "Jouez(0).Caption=REJECT");
  // A click holds one card: four among 49.
  EXPECT_EQ(Lines(h.Drive({"click Deal(0)", "get UnSur.Caption"})), "UnSur.Caption=?/211876");
  // A key holds another, and the panel keeps the old figures.
  EXPECT_EQ(Lines(h.Drive({"key 98", "get Jouez(1).Caption", "get UnSur.Caption"})),
            Lines({"Jouez(1).Caption=HOLD", "UnSur.Caption=?/211876"}));
  // The next click counts both: two among 49.
  EXPECT_EQ(Lines(h.Drive({"click Deal(2)", "get UnSur.Caption"})), "UnSur.Caption=?/1176");
  // And a flip back recounts again.
  EXPECT_EQ(Lines(h.Drive({"click Deal(2)", "get UnSur.Caption"})), "UnSur.Caption=?/18424");
}

TEST(HoldsDrive, QuitteRestoresTheStatisticsPanelAtRest) {
  Harness h;
  h.form->RemplitStatistiques();  // the tables at rest, as at start-up
  const QStringList atRest = h.Drive({"get UnSur.Caption", "get Fractions(0).Caption", "get Pourcentages(3).Caption",
                                      "get PourcDéc(5).Caption", "get Fractions(0).BackColor"});
  ASSERT_NE(atRest[1], "Fractions(0).Caption=");
  h.Drive(kThreeKings);
  EXPECT_EQ(Lines(h.Drive({"click Quitte1X5", "get UnSur.Caption", "get Fractions(0).Caption",
                           "get Pourcentages(3).Caption", "get PourcDéc(5).Caption", "get Fractions(0).BackColor"})),
            Lines(atRest));
  EXPECT_EQ(Lines(h.Drive({"get UnSur.Caption", "get Fractions(0).BackColor"})),
            Lines({"UnSur.Caption=?/3162510", "Fractions(0).BackColor=4210688"}));
}

}  // namespace
