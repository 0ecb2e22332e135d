// The end of a grid game at no credit: message E and a PLAY button that refuses; and the end
// that is missed when the first drawing's winnings caption is still standing, which lets PLAY
// take a stake from a credit of 0 and ends the program on the negative credit's display.
#include <gtest/gtest.h>

#include <QProcess>

#include "tests/grid/grid_helpers.h"

using namespace grid;

namespace {

// A deal at a bet of 1 that takes the last credit: four kings at the first drawing, turned
// down and replaced by nothing at the second.
void LoseTheLastCreditAfterAPreview(Harness& h) {
  options::ToGrid(h);
  h.Drive({"set Capital 1"});
  options::FirstDrawing2(h, kGridFourKings);
  ASSERT_EQ(h.form->Gains->Caption(), "40");
  for (int p = 0; p <= 3; ++p) ClickCard(h, p);
  SecondDrawing(h, kQuietForFourKings);
}

TEST(GridGameEnd, NothingWonAtNoCreditEndsTheGameUntilANewOne) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  options::NoCredit2(h);
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageE));
  EXPECT_EQ(f.Gains->Caption(), "");
  // The game is lost: the automatic mode rests and only a new game is offered.
  EXPECT_EQ(f.AutoPlay->MousePointer(), 12);
  EXPECT_EQ(f.AutoPlayStop->BevelWidth(), 0);
  EXPECT_EQ(f.SSRecommence->MousePointer(), 10);
  EXPECT_EQ(f.Plus5->MousePointer(), 12);
  EXPECT_FALSE(f.Jouez5->Visible());
  const auto before = options::Record(f);
  const Watch w(h);
  Click(h, "Jouer");
  EXPECT_EQ(w.Slept(), kBlinkMs);
  EXPECT_EQ(options::Changes(before, options::Record(f)), "");
  EXPECT_EQ(f.NbTirées, 50);
  EXPECT_EQ(f.Capital, 0);
}

TEST(GridGameEnd, EndInFrench) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "SSLangue(1)");
  options::ToGrid(h);
  options::NoCredit2(h);
  EXPECT_EQ(f.SSAlertes->Caption(),
            "Crédit épuisé ! Cliquez sur l'icône situé en haut à droite pour une nouvelle partie.");
}

TEST(GridGameEnd, AStaleWinningsCaptionLeavesPlayOpenAtNoCredit) {
  Harness h;
  JeuPoker& f = *h.form;
  LoseTheLastCreditAfterAPreview(h);
  EXPECT_EQ(f.Capital, 0);
  EXPECT_EQ(f.GainTirage, 0);
  EXPECT_EQ(f.Gains5(12).Caption(), "0");
  EXPECT_EQ(f.SSAlertes->Caption(), Say(f, kMessageE));
  // The first drawing's amount still stands in the caption and the digits.
  EXPECT_EQ(f.Gains->Caption(), "40");
  EXPECT_EQ(Digits(f, f.GainImage), "40");
  // So the pointers do not take the game for lost: the automatic mode is not put at rest.
  EXPECT_EQ(f.AutoPlayStop->BevelWidth(), 3);
  EXPECT_EQ(f.Plus5->MousePointer(), 12);
}

using GridGameEndDeathTest = ::testing::Test;

TEST_F(GridGameEndDeathTest, PlayAfterTheMissedEndStakesFromNothingAndEndsWithTypeMismatch) {
  EXPECT_EXIT(
      {
        Harness h;
        LoseTheLastCreditAfterAPreview(h);
        h.Drive({"click Jouer"});
      },
      ::testing::ExitedWithCode(3), "run-time error 13");
}

TEST(GridGameEnd, TheDriveToolReportsTheRunTimeErrorOfTheMissedEnd) {
  QStringList script{"click Jeu3D", "set Capital 1"};
  QString draws = "draw";
  for (int c : kGridFourKings) draws += " " + QString::number(c);
  script << draws << "click Jouer";
  for (int p = 0; p <= 3; ++p) script << QStringLiteral("click Deal2(%1)").arg(p);
  draws = "draw";
  for (int c : kQuietForFourKings) draws += " " + QString::number(c);
  script << draws << "click Jouer"
         << "var Capital"
         << "get Gains.Caption"
         << "click Jouer"
         << "var Capital";
  QProcess p;
  p.start(QStringLiteral(TALVERO_DRIVE), {});
  ASSERT_TRUE(p.waitForStarted(10000));
  p.write((script.join('\n') + '\n').toUtf8());
  p.closeWriteChannel();
  ASSERT_TRUE(p.waitForFinished(60000));
  const QStringList lines = QString::fromUtf8(p.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
  EXPECT_EQ(lines, (QStringList{"Capital=0", "Gains.Caption=40", "runtime-error 13"}));
  EXPECT_EQ(p.exitCode(), 3);
}

}  // namespace
