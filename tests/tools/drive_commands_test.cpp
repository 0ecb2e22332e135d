// talvero-drive's commands and output format, in process and as the real tool.
#include <gtest/gtest.h>

#include "tests/support/helpers.h"

TEST(Drive, GetPrintsNameIndexPropertyAndValue) {
  Harness h;
  EXPECT_EQ(h.Drive1("get Jouez(2).Caption"), "Jouez(2).Caption=JOUEZ");
  EXPECT_EQ(h.Drive1("get SSAlertes.ForeColor"), "SSAlertes.ForeColor=65535");
  EXPECT_EQ(h.Drive1("get SSAireJeu5.Visible"), "SSAireJeu5.Visible=0");
  EXPECT_EQ(h.Drive1("get SSAireJeu.Visible"), "SSAireJeu.Visible=-1");
  EXPECT_EQ(h.Drive1("get Deal(4).Left"), "Deal(4).Left=9945");
  EXPECT_EQ(h.Drive1("get AutoPlay.BevelWidth"), "AutoPlay.BevelWidth=3");
  // The music sets the title's beat from the piece's tempo: 54000 / 120.
  EXPECT_EQ(h.Drive1("get TitreTimer.Interval"), "TitreTimer.Interval=450");
  EXPECT_EQ(h.Drive1("get AutoPlayTimer.Enabled"), "AutoPlayTimer.Enabled=0");
  EXPECT_EQ(h.Drive1("get Jouer.Enabled"), "Jouer.Enabled=-1");
  EXPECT_EQ(h.Drive1("get Deal(0).Picture"), "Deal(0).Picture=Cartes(54)");
  EXPECT_EQ(h.Drive1("get Deal(9).Caption"), "error: no control Deal(9)");
  EXPECT_EQ(h.Drive1("get Deal(0).Colour"), "error: unknown property Colour");
  EXPECT_EQ(h.Drive1("get Deal(0)"), "error: get takes NAME.PROP or NAME(i).PROP");
}

TEST(Drive, TextsEscapeCarriageReturnLineFeedAndBackslash) {
  Harness h;
  h.form->SSAlertes->SetCaption("a\r\nb\\c");
  EXPECT_EQ(h.Drive1("get SSAlertes.Caption"), "SSAlertes.Caption=a\\r\\nb\\\\c");
  h.Drive({"set Messages(3) x\\ny\\\\z"});
  EXPECT_EQ(h.form->Messages(3), "x\ny\\z");
  EXPECT_EQ(h.Drive1("var Messages(3)"), "Messages(3)=x\\ny\\\\z");
}

TEST(Drive, VarAndSetReachFormVariables) {
  Harness h;
  EXPECT_EQ(h.Drive1("var NbTirées"), "NbTirées=0");
  h.Drive({"set Capital 1234"});
  EXPECT_EQ(h.form->Capital, 1234);
  EXPECT_EQ(h.Drive1("var Capital"), "Capital=1234");
  h.Drive({"set CartesTirage(3) 51"});
  EXPECT_EQ(h.form->CartesTirage(3), 51);
  EXPECT_EQ(h.Drive1("var CartesTirage(3)"), "CartesTirage(3)=51");
  // Booleans print as -1 and 0.
  h.Drive({"set DoubleEnCours -1"});
  EXPECT_TRUE(h.form->DoubleEnCours);
  EXPECT_EQ(h.Drive1("var DoubleEnCours"), "DoubleEnCours=-1");
  EXPECT_EQ(h.Drive1("var AffichageImmédiat"), "AffichageImmédiat=-1");
  // Values that do not fit, unknown names and bad indexes are errors and change nothing.
  EXPECT_EQ(h.Drive1("set NbTirées 256"), "error: 256 does not fit NbTirées");
  EXPECT_EQ(h.form->NbTirées, 0);
  EXPECT_EQ(h.Drive1("var Nothing"), "error: no variable Nothing");
  EXPECT_EQ(h.Drive1("var CartesTirage(51)"), "error: index 51 is outside CartesTirage(0 to 50)");
  EXPECT_EQ(h.Drive1("var CartesTirage"), "error: CartesTirage is an array: give an index");
  EXPECT_EQ(h.Drive1("var Capital(1)"), "error: Capital is not an array");
}

TEST(Drive, DrawQueuesWholeNumbersForTheRandomDraws) {
  Harness h;
  h.Drive({"draw 5 7 53"});
  EXPECT_EQ(Sys().RandomInt(54), 5);
  EXPECT_EQ(Sys().RandomInt(54), 7);
  EXPECT_EQ(Sys().RandomInt(54), 53);
  // A draw not below n is an error, and that draw is random.
  h.Drive({"draw 60"});
  const int v = Sys().RandomInt(54);
  EXPECT_GE(v, 0);
  EXPECT_LT(v, 54);
  ASSERT_EQ(h.platform.drawErrors.size(), 1u);
  EXPECT_EQ(h.Drive1("draw x"), "error: draw takes whole numbers, not x");
}

TEST(Drive, DrawErrorsArePrintedAfterTheCommandThatMetThem) {
  Harness h;
  h.form->Jouer->Click = [] { Sys().RandomInt(10); };
  EXPECT_EQ(h.Drive({"draw 12", "click Jouer"}), QStringList{"error: draw 12 is not below 10; drawn at random"});
}

TEST(Drive, ClickReachesTheControlUnderTheCentre) {
  Harness h;
  int clicks = 0, downs = 0, ups = 0;
  h.form->Jouer->Click = [&] { ++clicks; };
  h.form->Jouer->MouseDown = [&](int b, int, int, int) { downs += b; };
  h.form->Jouer->MouseUp = [&](int b, int, int, int) { ups += b; };
  EXPECT_TRUE(h.Drive({"click Jouer"}).isEmpty());
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(downs, 1);
  EXPECT_EQ(ups, 1);
  // A hidden control cannot be clicked, nor one inside a hidden panel.
  EXPECT_EQ(h.Drive1("click Doubler"), "error: Doubler cannot be reached");
  EXPECT_EQ(h.Drive1("click Double1X5"), "error: Double1X5 cannot be reached");
  EXPECT_EQ(h.Drive1("click Deal2(3)"), "error: Deal2(3) cannot be reached");
  EXPECT_EQ(h.Drive1("click Nope"), "error: no control Nope");
}

TEST(Drive, MoveSendsAMouseMoveToTheControl) {
  Harness h;
  int moves = 0;
  h.form->Deal(2).MouseMove = [&](int, int, int x, int y) {
    ++moves;
    EXPECT_GT(x, 0);
    EXPECT_GT(y, 0);
  };
  h.Drive({"move Deal(2)"});
  EXPECT_EQ(moves, 1);
}

TEST(Drive, KeyGoesToTheFormFirstThenToTheFocusedControl) {
  Harness h;
  QStringList order;
  h.form->Tirage->KeyDown = [&](int k, int) { order << QStringLiteral("Tirage down %1").arg(k); };
  h.form->Tirage->KeyUp = [&](int k, int) { order << QStringLiteral("Tirage up %1").arg(k); };
  h.Drive({"key 32", "key 97", "key 101"});
  EXPECT_EQ(order, (QStringList{"Tirage down 32", "Tirage up 32", "Tirage down 97", "Tirage up 97", "Tirage down 101",
                                "Tirage up 101"}));
  EXPECT_EQ(h.Drive1("key 300"), "error: key takes a key code from 0 to 255");
}

TEST(Drive, TickFiresATimerOnce) {
  Harness h;
  int ticks = 0;
  h.form->TitreTimer->Tick = [&] { ++ticks; };
  h.Drive({"tick TitreTimer", "tick TitreTimer"});
  EXPECT_EQ(ticks, 2);
  EXPECT_EQ(h.Drive1("tick Nope"), "error: no timer Nope");
}

TEST(Drive, AtYieldRunsACommandAtTheNthYield) {
  Harness h;
  h.Drive({"atyield 2 set Capital 7"});
  Sys().DoEvents();
  EXPECT_EQ(h.form->Capital, 200);
  Sys().DoEvents();
  EXPECT_EQ(h.form->Capital, 7);
  Sys().DoEvents();
  EXPECT_EQ(h.Drive1("atyield 0 close"), "error: atyield takes a count from 1 and a command");
}

TEST(Drive, SleptAddsUpTheSleepsAsked) {
  Harness h;
  EXPECT_EQ(h.Drive1("slept"), "slept=0");
  Sys().Sleep(250);
  Sys().Sleep(40);
  EXPECT_EQ(h.Drive1("slept"), "slept=290");
}

TEST(Drive, FilePrintsBytesInHexOrAbsent) {
  Harness h;
  EXPECT_EQ(h.Drive1("file Ini.dat"), "Ini.dat=");
  EXPECT_EQ(h.Drive1("file Nothing.dat"), "Nothing.dat absent");
}

TEST(Drive, UnknownCommandsAreErrorsAndTheToolGoesOn) {
  Harness h;
  EXPECT_EQ(h.Drive1("jump"), "error: unknown command jump");
  EXPECT_EQ(h.Drive1("var Capital"), "Capital=200");
}

TEST(DriveTool, AnswersOneLineACommandAndEndsOnFin) {
  const ToolRun r =
      RunTool({"get JeuPoker.Caption", "var NbJokers", "get Deal(1).Picture", "bogus", "click Fin", "var Capital"});
  EXPECT_EQ(r.lines, (QStringList{"JeuPoker.Caption=MONTALBERGUES", "NbJokers=2", "Deal(1).Picture=Cartes(54)",
                                  "error: unknown command bogus", "ended"}));
  EXPECT_EQ(r.exitCode, 0);
}

TEST(DriveTool, CloseEndsAsFinDoes) {
  const ToolRun r = RunTool({"close"});
  EXPECT_EQ(r.lines, QStringList{"ended"});
}

TEST(DriveTool, RuntimeErrorIsPrintedAndEndsTheTool) {
  QTemporaryDir dir;
  QDir(dir.path()).mkdir("Ini.dat");
  const ToolRun r = RunTool({"var Langue", "click SSLangue(0)", "var Langue"}, {"--dir", dir.path()});
  EXPECT_EQ(r.lines, (QStringList{"Langue=0", "runtime-error 75"}));
  EXPECT_EQ(r.exitCode, 3);
}

TEST(DriveTool, WorksOnAGivenDirectory) {
  QTemporaryDir dir;
  const ToolRun r = RunTool({"click SSLangue(1)", "file Ini.dat"}, {"--dir", dir.path()});
  EXPECT_EQ(r.lines, QStringList{"Ini.dat=03"});
  QFile f(dir.filePath("Ini.dat"));
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  EXPECT_EQ(f.readAll(), QByteArray("\x03", 1));
}

TEST(DriveTool, StartsOnAFreshCopyOfTheProgramDirectory) {
  const ToolRun a = RunTool({"click SSLangue(0)", "file Ini.dat"});
  EXPECT_EQ(a.lines, QStringList{"Ini.dat=02"});
  const ToolRun b = RunTool({"var Langue", "file Ini.dat"});
  EXPECT_EQ(b.lines, (QStringList{"Langue=0", "Ini.dat="}));
}
