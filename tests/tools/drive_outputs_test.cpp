// talvero-drive's answer to each command, its refusals included, and when the draw errors met
// before a command are printed: after the command's own lines, except after the refusals that
// leave them to a later command.
#include <gtest/gtest.h>

#include "tests/support/harness.h"

namespace {

// Runs one command with a draw error already waiting and returns what it printed.
QStringList WithWaitingDrawError(Harness& h, const QString& command) {
  h.platform.drawErrors = {QStringLiteral("waiting")};
  const QStringList out = h.Drive({command});
  h.platform.drawErrors.clear();
  return out;
}

const QString kWaiting = QStringLiteral("error: waiting");

TEST(DriveOutputs, CommandsThatPrintTheWaitingDrawErrorsAfterThem) {
  Harness h;
  h.Drive({"mci"});
  const auto run = [&h](const QString& command) { return WithWaitingDrawError(h, command); };
  EXPECT_EQ(run("click Nope"), (QStringList{"error: no control Nope", kWaiting}));
  EXPECT_EQ(run("click Doubler"), (QStringList{"error: Doubler cannot be reached", kWaiting}));
  EXPECT_EQ(run("click Deal(99999999999)"), (QStringList{"error: index 99999999999 does not fit a number", kWaiting}));
  EXPECT_EQ(run("click Deal(2).Left"), (QStringList{"error: no control Deal(2).Left", kWaiting}));
  EXPECT_EQ(run("move Nope"), (QStringList{"error: no control Nope", kWaiting}));
  EXPECT_EQ(run("move Doubler"), (QStringList{"error: Doubler cannot be reached", kWaiting}));
  EXPECT_EQ(run("move Deal2(3)"), (QStringList{"error: Deal2(3) cannot be reached", kWaiting}));
  EXPECT_EQ(run("move Deal(2)"), QStringList{kWaiting});
  EXPECT_EQ(run("key 300"), (QStringList{"error: key takes a key code from 0 to 255", kWaiting}));
  EXPECT_EQ(run("key x"), (QStringList{"error: key takes a key code from 0 to 255", kWaiting}));
  EXPECT_EQ(run("tick Nope"), (QStringList{"error: no timer Nope", kWaiting}));
  EXPECT_EQ(run("draw"), QStringList{kWaiting});
  EXPECT_EQ(run("get Deal(0)"), (QStringList{"error: get takes NAME.PROP or NAME(i).PROP", kWaiting}));
  EXPECT_EQ(run("get JeuPoker.Width"),
            (QStringList{"JeuPoker.Width=" + QString::number(h.form->width() * 15), kWaiting}));
  EXPECT_EQ(run("get JeuPoker.Height"),
            (QStringList{"JeuPoker.Height=" + QString::number(h.form->height() * 15), kWaiting}));
  EXPECT_EQ(run("get JeuPoker.Visible"),
            (QStringList{QStringLiteral("JeuPoker.Visible=") + (h.form->isVisible() ? "-1" : "0"), kWaiting}));
  EXPECT_EQ(run("get JeuPoker.Left"), (QStringList{"error: JeuPoker has no property Left", kWaiting}));
  EXPECT_EQ(run("get TitreTimer.Left"), (QStringList{"error: TitreTimer has no property Left", kWaiting}));
  EXPECT_EQ(run("get Tirage.Focus"),
            (QStringList{QStringLiteral("Tirage.Focus=") + (h.form->focusWidget() == h.form->Tirage ? "-1" : "0"),
                         kWaiting}));
  EXPECT_EQ(run("get Deal(0).MousePointer"),
            (QStringList{"Deal(0).MousePointer=" + QString::number(h.form->Deal(0).MousePointer()), kWaiting}));
  EXPECT_EQ(run("get Deal(0).Text"), (QStringList{"error: unknown property Text", kWaiting}));
  EXPECT_EQ(run("get Pub0Web.Address"), (QStringList{"Pub0Web.Address=" + h.dir.filePath("pub0.htm"), kWaiting}));
  EXPECT_EQ(run("var Nothing"), (QStringList{"error: no variable Nothing", kWaiting}));
  EXPECT_EQ(run("var Capital(99999999999)"), (QStringList{"error: index 99999999999 does not fit a number", kWaiting}));
  EXPECT_EQ(run("set Capital x"), (QStringList{"error: x does not fit Capital", kWaiting}));
  EXPECT_EQ(run("set Capital 12"), QStringList{kWaiting});
  EXPECT_EQ(run("atyield 5 var Capital"), QStringList{kWaiting});
  EXPECT_EQ(run("unyield"), QStringList{kWaiting});
  EXPECT_EQ(run("slept"), (QStringList{"slept=" + QString::number(h.platform.sleptMs), kWaiting}));
  EXPECT_EQ(run("file"), (QStringList{"error: file takes a name", kWaiting}));
  EXPECT_EQ(run("file Nothing.dat"), (QStringList{"Nothing.dat absent", kWaiting}));
  EXPECT_EQ(run("shot " + h.dir.filePath("none/shot.png")),
            (QStringList{"error: " + h.dir.filePath("none/shot.png") + " cannot be written", kWaiting}));
  EXPECT_EQ(run("mci"), QStringList{kWaiting});
  EXPECT_EQ(run("mcianswer tempo 100"), QStringList{kWaiting});
  EXPECT_EQ(run("display"), (QStringList{"display=1024x768", kWaiting}));
  EXPECT_EQ(run("net off"), QStringList{kWaiting});
  EXPECT_EQ(run("net on"), QStringList{kWaiting});
  EXPECT_EQ(run("wait 0"), QStringList{kWaiting});
  EXPECT_EQ(run("jump"), (QStringList{"error: unknown command jump", kWaiting}));
  EXPECT_EQ(run("Click Jouer"), (QStringList{"error: unknown command Click", kWaiting}));
}

TEST(DriveOutputs, RefusalsThatLeaveTheWaitingDrawErrorsToALaterCommand) {
  Harness h;
  const auto run = [&h](const QString& command) { return WithWaitingDrawError(h, command); };
  EXPECT_EQ(run(""), QStringList{});
  EXPECT_EQ(run("# a note"), QStringList{});
  EXPECT_EQ(run("draw 1 x"), QStringList{"error: draw takes whole numbers, not x"});
  EXPECT_EQ(run("set"), QStringList{"error: set takes a name and a value"});
  EXPECT_EQ(run("set Capital"), QStringList{"error: set takes a name and a value"});
  EXPECT_EQ(run("atyield"), QStringList{"error: atyield takes a count from 1 and a command"});
  EXPECT_EQ(run("atyield x var Capital"), QStringList{"error: atyield takes a count from 1 and a command"});
  EXPECT_EQ(run("atyield 0 var Capital"), QStringList{"error: atyield takes a count from 1 and a command"});
  EXPECT_EQ(run("unyield x"), QStringList{"error: unyield takes nothing"});
  EXPECT_EQ(run("seed x"), QStringList{"error: seed takes a whole number from 0 to 4294967295"});
  EXPECT_EQ(run("seed 3"), QStringList{"error: seed needs the platform of talvero-drive"});
  EXPECT_EQ(run("shot"), QStringList{"error: shot takes a file name"});
  EXPECT_EQ(run("mcianswer"), QStringList{"error: mcianswer takes a key and a value"});
  EXPECT_EQ(run("net"), QStringList{"error: net takes on or off"});
  EXPECT_EQ(run("net maybe"), QStringList{"error: net takes on or off"});
  EXPECT_EQ(run("wait"), QStringList{"error: wait takes milliseconds"});
  EXPECT_EQ(run("wait -1"), QStringList{"error: wait takes milliseconds"});
  // The error left waiting comes out after the next command that prints them.
  h.platform.drawErrors = {QStringLiteral("waiting")};
  EXPECT_EQ(h.Drive({"net maybe", "display"}),
            (QStringList{"error: net takes on or off", "display=1024x768", kWaiting}));
}

TEST(DriveOutputs, ACommandRunAtAYieldPrintsTheDrawErrorsMetBeforeIt) {
  Harness h;
  h.form->Jouer->Click = [] {
    Sys().RandomInt(10);
    Sys().DoEvents();
    Sys().RandomInt(10);
  };
  EXPECT_EQ(h.Drive({"draw 12 13", "atyield 1 var NbTirées", "click Jouer"}),
            (QStringList{"NbTirées=0", "error: draw 12 is not below 10; drawn at random",
                         "error: draw 13 is not below 10; drawn at random"}));
  // A refusal at the first yield leaves the first draw error to the command of the second.
  h.form->Jouer->Click = [] {
    Sys().RandomInt(10);
    Sys().DoEvents();
    Sys().DoEvents();
    Sys().RandomInt(10);
  };
  EXPECT_EQ(h.Drive({"draw 14 15", "atyield 1 set NbTirées", "atyield 2 var NbTirées", "click Jouer"}),
            (QStringList{"error: set takes a name and a value", "NbTirées=0",
                         "error: draw 14 is not below 10; drawn at random",
                         "error: draw 15 is not below 10; drawn at random"}));
}

}  // namespace
