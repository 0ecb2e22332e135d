// talvero-drive's `seed` makes the random draws repeatable, and `unyield` drops the commands
// that atyield left waiting.
#include <gtest/gtest.h>

#include "tests/support/helpers.h"

namespace {

QStringList Round(const QString& seed) {
  QStringList cmds{"seed " + seed, "click Jouer", "click Jouer", "click Double1X5", "click Deal(2)"};
  for (int i = 0; i <= 4; ++i) cmds << QStringLiteral("var CartesTirage(%1)").arg(i);
  cmds << "var Capital"
       << "var GainMain"
       << "close";
  return RunToolLines(cmds);
}

TEST(DriveSeed, TheSameSeedDealsTheSameCards) {
  EXPECT_EQ(Round("12345"), Round("12345"));
  EXPECT_NE(Round("12345"), Round("54321"));
}

TEST(DriveSeed, QueuedDrawsStillComeFirst) {
  const QStringList out = RunToolLines(
      {"seed 7", "draw 12 25 38 51 0", "click Jouer", "var CartesTirage(0)", "var CartesTirage(3)", "close"});
  EXPECT_EQ(out, (QStringList{"CartesTirage(0)=12", "CartesTirage(3)=51", "ended"}));
}

TEST(DriveSeed, ABadSeedIsAnError) {
  EXPECT_EQ(RunToolLines({"seed x", "seed 4294967296", "close"}),
            (QStringList{"error: seed takes a whole number from 0 to 4294967295",
                         "error: seed takes a whole number from 0 to 4294967295", "ended"}));
}

TEST(DriveSeed, InProcessTheScriptedPlatformHasNoSeed) {
  Harness h;
  EXPECT_EQ(h.Drive1("seed 3"), "error: seed needs the platform of talvero-drive");
}

TEST(DriveUnyield, CommandsLeftWaitingAreDropped) {
  Harness h;
  const QStringList out = h.Drive(
      {"atyield 1 var Capital", "unyield", "click Jouer", "atyield 1 var NbTirées", "click Jouer", "unyield x"});
  // The first read is dropped; the second runs at the first yield of the second drawing.
  EXPECT_EQ(out, (QStringList{"NbTirées=5", "error: unyield takes nothing"}));
}

}  // namespace
