// Automatic mode in both games: its looks running and at rest, the options it forces, the
// loop's drawings and the turning down of the grid between them, the stop, every refusal,
// the end by the credit, and the end of the program from inside the loop.
#include <QProcess>

#include "tests/interface/speech_helpers.h"

using namespace speech;
using options::Click;

namespace {

constexpr int kArrow = 10, kNoEntry = 12;
// Replacement cards that make nothing with any part of options::kHandNothing.
const std::vector<int> kNothingReplacements{14, 36, 41, 19, 34};

// Stops the mode at the first yield from now, inside the drawing then running.
void StopAtFirstYield(Harness& h) {
  AtYieldWhen(
      h, [] { return true; }, [&h] { h.Drive({"click AutoPlayStop"}); });
}

TEST(AutomaticMode, RunningLooks) {
  Harness h;
  JeuPoker& f = *h.form;
  EXPECT_EQ(f.AutoPlay->BackColor(), 0x7A7A7A);
  EXPECT_EQ(f.AutoPlay->ForeColor(), 192);
  bool checked = false;
  AtYieldWhen(
      h, [] { return true; },
      [&] {
        checked = true;
        EXPECT_EQ(f.AutoPlay->BevelWidth(), 0);
        EXPECT_EQ(f.AutoPlay->BackColor(), 0x656565);
        EXPECT_EQ(f.AutoPlay->MousePointer(), kNoEntry);
        EXPECT_EQ(f.AutoPlayStop->BevelWidth(), 3);
        EXPECT_EQ(f.AutoPlayStop->ForeColor(), 192);
        EXPECT_EQ(f.AutoPlayStop->MousePointer(), kArrow);
        EXPECT_TRUE(f.AutoPlayTimer->Enabled());
        for (Control* c : {f.Jouer, f.SSRecommence, f.Double1X5, f.Quitte1X5, f.Double5X5, f.Quitte5X5, f.Conseils5,
                           f.AnnuleConseils5, f.ParesseNon, f.ParesseOui, &f.SSVitesse(0), &f.SSVitesse(1)})
          EXPECT_EQ(c->MousePointer(), kNoEntry) << c->FullName().toStdString();
        for (int p = 0; p <= 24; ++p) EXPECT_EQ(f.Deal2(p).MousePointer(), kNoEntry) << p;
        // The caption blinks by the timer.
        h.Drive({"tick AutoPlayTimer"});
        EXPECT_EQ(f.AutoPlay->ForeColor(), 255);
        h.Drive({"tick AutoPlayTimer"});
        EXPECT_EQ(f.AutoPlay->ForeColor(), 192);
        h.Drive({"tick AutoPlayTimer"});
        h.Drive({"click AutoPlayStop"});
        // At rest at once: a stop writes 501671 (0x07A7A7), not the first grey.
        EXPECT_EQ(f.AutoPlay->BevelWidth(), 3);
        EXPECT_EQ(f.AutoPlay->ForeColor(), 192);
        EXPECT_EQ(f.AutoPlay->BackColor(), 501671);
        EXPECT_EQ(f.AutoPlay->BackColor(), 0x07A7A7);
        EXPECT_EQ(f.AutoPlay->MousePointer(), kArrow);
        EXPECT_EQ(f.AutoPlayStop->BevelWidth(), 0);
        EXPECT_EQ(f.AutoPlayStop->ForeColor(), 0);
        EXPECT_EQ(f.AutoPlayStop->MousePointer(), kNoEntry);
        EXPECT_FALSE(f.AutoPlayTimer->Enabled());
        for (Control* c : {f.Jouer, f.SSRecommence, f.Double1X5, f.Quitte1X5, f.Double5X5, f.Quitte5X5, f.Conseils5,
                           f.AnnuleConseils5, f.ParesseNon, &f.SSVitesse(0)})
          EXPECT_EQ(c->MousePointer(), kArrow) << c->FullName().toStdString();
        EXPECT_EQ(f.ParesseOui->MousePointer(), kNoEntry);
        EXPECT_EQ(f.SSVitesse(1).MousePointer(), kNoEntry);
        for (int i = 0; i <= 4; ++i) EXPECT_EQ(f.Deal(i).MousePointer(), 99);
        for (int p = 0; p <= 24; ++p) EXPECT_EQ(f.Deal2(p).MousePointer(), 99);
        EXPECT_EQ(f.focusWidget(), f.Tirage);
      });
  Click(h, "AutoPlay");
  ASSERT_TRUE(checked);
  // The drawing then ran to its end, and the looks of the button stayed.
  EXPECT_EQ(f.NbTirées, 5);
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 3);
  EXPECT_EQ(f.AutoPlay->BackColor(), 501671);
  EXPECT_EQ(f.AutoPlay->ForeColor(), 192);
  EXPECT_EQ(f.AutoPlayStop->BevelWidth(), 0);
  EXPECT_FALSE(f.AutoPlayTimer->Enabled());
}

// In JEU 1 the mode selects automatic selection and fast dealing, and both stay after the stop.
TEST(AutomaticMode, ClassicForcesSelectionAndSpeedWhichStay) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "ParesseNon");
  Click(h, "SSVitesse(0)");
  ASSERT_EQ(f.ParesseNon->BevelWidth(), 0);
  ASSERT_FALSE(f.AffichageImmédiat);
  StopAtFirstYield(h);
  h.platform.QueueDraws(options::kHandNothing);
  Click(h, "AutoPlay");
  EXPECT_EQ(f.ParesseOui->BevelWidth(), 0);
  EXPECT_EQ(f.ParesseNon->BevelWidth(), 3);
  EXPECT_TRUE(f.PParesseOui->Visible());
  EXPECT_FALSE(f.PParesseNon->Visible());
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(f.ImageConseils(i).GetPicture(), f.ParesseOui->GetPicture()) << i;
  EXPECT_EQ(f.SSVitesse(0).BevelWidth(), 3);
  EXPECT_EQ(f.SSVitesse(1).BevelWidth(), 0);
  EXPECT_FALSE(f.PSSVitesse(0).Visible());
  EXPECT_TRUE(f.PSSVitesse(1).Visible());
  EXPECT_TRUE(f.AffichageImmédiat);
}

// In JEU 2 the selection option, which the grid leaves unselected, is not touched; the speed
// is forced all the same.
TEST(AutomaticMode, GridLeavesTheSelectionAlone) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "SSVitesse(0)");
  options::ToGrid(h);
  ASSERT_EQ(f.ParesseNon->BevelWidth(), 3);
  ASSERT_EQ(f.ParesseOui->BevelWidth(), 3);
  int paresseNonPointer = -1;
  AtYieldWhen(
      h, [] { return true; },
      [&] {
        h.Drive({"click AutoPlayStop"});
        paresseNonPointer = f.ParesseNon->MousePointer();
      });
  h.platform.QueueDraws(options::kGridNothing);
  Click(h, "AutoPlay");
  EXPECT_EQ(f.ParesseNon->BevelWidth(), 3);
  EXPECT_EQ(f.ParesseOui->BevelWidth(), 3);
  EXPECT_FALSE(f.PParesseNon->Visible());
  EXPECT_FALSE(f.PParesseOui->Visible());
  EXPECT_EQ(f.SSVitesse(1).BevelWidth(), 0);
  EXPECT_TRUE(f.PSSVitesse(1).Visible());
  EXPECT_TRUE(f.AffichageImmédiat);
  // Outside the classic game the stop leaves ParesseNon forbidden.
  EXPECT_EQ(paresseNonPointer, kNoEntry);
}

// The stop is seen only when the drawing running returns: after a first drawing the round
// waits at 5 with the holds of the automatic selection, for the player's hand.
TEST(AutomaticMode, StopDuringFirstDrawingLeavesTheHoldsToThePlayer) {
  Harness h;
  JeuPoker& f = *h.form;
  int bevelAtStop = -1;
  AtYieldWhen(
      h, [] { return true; },
      [&] {
        h.Drive({"click AutoPlayStop"});
        bevelAtStop = f.AutoPlay->BevelWidth();
      });
  h.platform.QueueDraws(options::kHandKings);
  Click(h, "AutoPlay");
  EXPECT_EQ(bevelAtStop, 3);
  EXPECT_EQ(f.NbTirées, 5);
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(f.CartesTirage(i), options::kHandKings[static_cast<size_t>(i)]);
  const QStringList holds{"HOLD", "HOLD", "REJECT", "REJECT", "REJECT"};
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(f.Jouez(i).Caption(), holds[i]) << i;
  EXPECT_EQ(f.SSAlertes->Caption(), "SECOND DRAWING : Click on PLAY or press the 'Space' key.");
  // The player goes on by hand.
  Click(h, "Deal(2)");
  EXPECT_EQ(f.Jouez(2).Caption(), "HOLD");
  h.platform.QueueDraws({41, 32});
  Click(h, "Jouer");
  EXPECT_EQ(f.NbTirées, 10);
  EXPECT_EQ(f.CartesTirage(2), 26);
}

// Drawing after drawing: a paying hand shows its double-up offer only between two passes, is
// never doubled, and is credited at the start of the next pass.
TEST(AutomaticMode, LoopCreditsAWinAtTheNextPass) {
  Harness h;
  JeuPoker& f = *h.form;
  bool offerSeen = false, roundOver = false;
  AtYieldWhen(
      h, [&] { return f.NbTirées == 10 && f.Fréquences(0) == 1; },
      [&] {
        roundOver = true;
        offerSeen = f.Doubler->Visible();
        EXPECT_EQ(f.GainMain, 1);
        EXPECT_EQ(f.Capital, 199);
        AtYieldWhen(
            h, [&] { return f.NbTirées < 10; }, [&] { h.Drive({"click AutoPlayStop"}); });
      });
  h.platform.QueueDraws(options::kHandKings);
  h.platform.QueueDraws({14, 41, 32});
  h.platform.QueueDraws(options::kHandNothing);
  Click(h, "AutoPlay");
  EXPECT_TRUE(roundOver);
  EXPECT_TRUE(offerSeen);
  EXPECT_EQ(f.NbTirées, 5);
  EXPECT_EQ(f.Capital, 199);  // 200 - 1 + 1 - 1
  EXPECT_FALSE(f.Doubler->Visible());
  EXPECT_FALSE(f.DoubleEnCours);
  EXPECT_EQ(f.Fréquences(0), 1);
}

// Between the grid's drawings, the positions that no line in play keeps go face down.
TEST(AutomaticMode, GridTurnsDownPositionsOutOfPlay) {
  Harness h;
  JeuPoker& f = *h.form;
  options::ToGrid(h);
  StopAtFirstYield(h);
  h.platform.QueueDraws(options::kGridFourKings);
  Click(h, "AutoPlay");
  ASSERT_EQ(f.NbTirées, 25);
  int down = 0;
  for (int p = 0; p <= 24; ++p) {
    EXPECT_EQ(FaceDown(f, f.Deal2(p)), !f.LignesJouées(p)) << p;
    down += FaceDown(f, f.Deal2(p));
  }
  EXPECT_GE(down, 20);
  for (int p = 0; p <= 3; ++p) EXPECT_TRUE(f.LignesJouées(p)) << p;
}

// The keypad is not blocked between the loop's drawings.
TEST(AutomaticMode, KeypadFlipsBetweenDrawings) {
  Harness h;
  JeuPoker& f = *h.form;
  QString before, after;
  AtYieldWhen(
      h, [&] { return f.NbTirées == 5 && f.Jouez(0).Caption() != "PLAY" && f.Jouez(0).Caption() != "JOUEZ"; },
      [&] {
        before = f.Jouez(2).Caption();
        h.Drive({"key 99"});
        after = f.Jouez(2).Caption();
        h.Drive({"click AutoPlayStop"});
      });
  h.platform.QueueDraws(options::kHandKings);
  Click(h, "AutoPlay");
  EXPECT_EQ(before, "REJECT");
  EXPECT_EQ(after, "HOLD");
  EXPECT_EQ(f.NbTirées, 10);
  EXPECT_EQ(f.CartesTirage(2), 26);
}

// ---- Refusals ----------------------------------------------------------------------------

TEST(AutomaticModeRefusals, StartDuringDoubleUpBlinks) {
  Harness h;
  options::Doubling1(h);
  options::ExpectRefused(h, "AutoPlay");
  EXPECT_FALSE(h.form->AutoPlayTimer->Enabled());
}

TEST(AutomaticModeRefusals, StartWithoutCreditBlinks) {
  Harness h;
  options::NoCredit1(h);
  options::ExpectRefused(h, "AutoPlay");
}

TEST(AutomaticModeRefusals, StartWhileRunningDoesNothing) {
  Harness h;
  JeuPoker& f = *h.form;
  bool done = false;
  AtYieldWhen(
      h, [] { return true; },
      [&] {
        options::ExpectIgnored(h, "AutoPlay");
        EXPECT_EQ(f.AutoPlay->BevelWidth(), 0);
        done = true;
        h.Drive({"click AutoPlayStop"});
      });
  h.platform.QueueDraws(options::kHandNothing);
  Click(h, "AutoPlay");
  EXPECT_TRUE(done);
}

TEST(AutomaticModeRefusals, StopWhenIdleDoesNothing) {
  Harness h;
  options::ExpectIgnored(h, "AutoPlayStop");
}

TEST(AutomaticModeRefusals, StopDuringDoubleUpBlinks) {
  Harness h;
  options::Doubling1(h);
  options::ExpectRefused(h, "AutoPlayStop");
}

TEST(AutomaticModeRefusals, StopWithoutCreditBlinks) {
  Harness h;
  options::NoCredit1(h);
  options::ExpectRefused(h, "AutoPlayStop");
}

// While the mode runs, the player's buttons do nothing by their own test.
TEST(AutomaticModeRefusals, ButtonsIgnoredWhileRunning) {
  Harness h;
  JeuPoker& f = *h.form;
  AtYieldWhen(
      h, [] { return true; },
      [&] {
        for (const char* c : {"ParesseNon", "SSVitesse(0)", "Jouer", "Deal(1)"}) h.Drive({QString("click ") + c});
        EXPECT_EQ(f.ParesseNon->BevelWidth(), 3);
        EXPECT_EQ(f.SSVitesse(0).BevelWidth(), 3);
        EXPECT_TRUE(f.AffichageImmédiat);
        h.Drive({"click AutoPlayStop"});
      });
  h.platform.QueueDraws(options::kHandKings);
  Click(h, "AutoPlay");
  // One drawing only: the nested JOUER did not deal.
  EXPECT_EQ(f.NbTirées, 5);
  EXPECT_EQ(f.Jouez(1).Caption(), "HOLD");
}

// ---- The end of the credit ---------------------------------------------------------------

// The last credit staked: the stop is refused (silently, since blinking is off in the mode),
// the losing round puts the mode at rest through the pointers, the loop blinks and leaves.
// The no-credit line stays, the button is dark, and only a new game helps.
TEST(AutomaticModeCredit, ClassicCreditRunsOut) {
  Harness h;
  JeuPoker& f = *h.form;
  h.Drive({"set Capital 1"});
  int bevelAfterStop = -1;
  AtYieldWhen(
      h, [&] { return f.Capital == 0; },
      [&] {
        h.Drive({"click AutoPlayStop"});
        bevelAfterStop = f.AutoPlay->BevelWidth();
      });
  h.platform.QueueDraws(options::kHandNothing);
  h.platform.QueueDraws(kNothingReplacements);
  const options::Watch w(h);
  Click(h, "AutoPlay");
  EXPECT_EQ(bevelAfterStop, 0);
  // The second drawing's pause, then the loop's own blink on leaving.
  EXPECT_EQ(w.Slept(), 250 + options::kBlinkMs);
  EXPECT_EQ(f.Capital, 0);
  EXPECT_EQ(f.NbTirées, 10);
  const QString over = "No more credit ! Click on the icon up on the right handside of the screen for a new game.";
  EXPECT_EQ(f.SSAlertes->Caption(), over);
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 3);
  EXPECT_EQ(f.AutoPlay->MousePointer(), kNoEntry);
  EXPECT_EQ(f.AutoPlay->ForeColor(), 0);
  EXPECT_EQ(f.AutoPlay->BackColor(), 0x656565);
  EXPECT_EQ(f.AutoPlayStop->BevelWidth(), 0);
  EXPECT_EQ(f.AutoPlayStop->MousePointer(), kNoEntry);
  EXPECT_EQ(f.AutoPlayStop->ForeColor(), 192);
  EXPECT_FALSE(f.AutoPlayTimer->Enabled());
  EXPECT_EQ(f.SSRecommence->MousePointer(), kArrow);
  // Only a new game helps.
  options::ExpectRefused(h, "AutoPlay");
  options::ExpectRefused(h, "AutoPlayStop");
  const options::Watch play(h);
  Click(h, "Jouer");
  EXPECT_EQ(play.Slept(), options::kBlinkMs);
  EXPECT_EQ(f.NbTirées, 10);
  EXPECT_EQ(f.SSAlertes->Caption(), over);
  Click(h, "SSRecommence");
  EXPECT_EQ(f.Capital, 200);
  StopAtFirstYield(h);
  Click(h, "AutoPlay");
  EXPECT_EQ(f.NbTirées, 5);
  EXPECT_EQ(f.Capital, 199);
}

// A win pending at credit 0 does not end the mode: the next pass credits it.
TEST(AutomaticModeCredit, PendingWinAtZeroGoesOn) {
  Harness h;
  JeuPoker& f = *h.form;
  h.Drive({"set Capital 1"});
  h.platform.QueueDraws(options::kHandKings);
  h.platform.QueueDraws({14, 41, 32});
  h.platform.QueueDraws(options::kHandNothing);
  h.platform.QueueDraws(kNothingReplacements);
  Click(h, "AutoPlay");
  EXPECT_EQ(f.Fréquences(0), 1);  // the kings were played and paid
  EXPECT_EQ(f.Capital, 0);
  EXPECT_EQ(f.NbTirées, 10);
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 3);
  EXPECT_EQ(f.AutoPlay->ForeColor(), 0);
}

TEST(AutomaticModeCredit, GridCreditRunsOut) {
  Harness h;
  JeuPoker& f = *h.form;
  Choose(h, Lang::French);
  options::ToGrid(h);
  h.Drive({"set Capital 1"});
  h.platform.QueueDraws(options::kGridNothing);
  h.platform.QueueDraws(options::kGridNothing);
  // The second list is all refused as cards already out: what follows is drawn from a fixed
  // sequence, not from the clock, so that the run is the same every time.
  std::mt19937 fixed(5);
  std::vector<int> more(5000);
  for (int& v : more) v = static_cast<int>(fixed() % 52);
  h.platform.QueueDraws(more);
  Click(h, "AutoPlay");
  EXPECT_FALSE(h.platform.queuedDraws.empty()) << "the run outlasted the fixed draws";
  EXPECT_EQ(f.Capital, 0);
  EXPECT_EQ(f.NbTirées, 50);
  EXPECT_EQ(f.SSAlertes->Caption(),
            "Crédit épuisé ! Cliquez sur l'icône situé en haut à droite pour une nouvelle partie.");
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 3);
  EXPECT_EQ(f.AutoPlay->ForeColor(), 0);
  EXPECT_EQ(f.AutoPlay->BackColor(), 0x656565);
  EXPECT_FALSE(f.AutoPlayTimer->Enabled());
  options::ExpectRefused(h, "AutoPlay");
}

// ---- The end of the program --------------------------------------------------------------

// Fin ends the program from inside the loop: the real tool prints "ended" and exits, and the
// command after the click never runs.
TEST(AutomaticModeEnd, FinEndsTheProgramFromInsideTheLoop) {
  QProcess p;
  p.start(QStringLiteral(TALVERO_DRIVE), QStringList{});
  ASSERT_TRUE(p.waitForStarted(10000));
  const QStringList commands{"atyield 3 get AutoPlay.BevelWidth", "atyield 4 click Fin", "click AutoPlay",
                             "var Capital"};
  p.write((commands.join('\n') + '\n').toUtf8());
  p.closeWriteChannel();
  ASSERT_TRUE(p.waitForFinished(60000));
  EXPECT_EQ(p.exitCode(), 0);
  EXPECT_EQ(QString::fromUtf8(p.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts),
            (QStringList{"AutoPlay.BevelWidth=0", "ended"}));
}

}  // namespace
