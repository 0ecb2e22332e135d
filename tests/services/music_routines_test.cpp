// The form's music: a piece drawn at random from the program directory, the command texts in
// their order, the title's beat from the tempo, the end of a piece told by polling, and the
// switch.
#include <QDir>

#include "tests/services/services_helpers.h"
#include "tests/support/harness.h"

namespace {

int Pieces(const Harness& h) { return static_cast<int>(h.form->FileMidItems.size()); }

TEST(MusicRoutines, StartPlaysAPieceWithTheCommandsInOrder) {
  Harness h;
  JeuPoker& f = *h.form;
  ASSERT_GE(Pieces(h), 3);
  const auto& c = h.platform.mciCommands;
  ASSERT_EQ(c.size(), 5u);
  EXPECT_EQ(c[0], "close sequence");
  EXPECT_EQ(c[1], "open " + f.MorceauCourant + " alias sequence");
  EXPECT_EQ(c[2], "play sequence");
  EXPECT_EQ(c[3], "status sequence length");
  EXPECT_EQ(c[4], "status sequence tempo");
  EXPECT_EQ(f.LongueurMorceau, "60000");
  EXPECT_EQ(f.TempoMorceau, "120");
  EXPECT_EQ(f.SSMusic(0).Caption(), QString::number(f.FileMidItems.indexOf(f.MorceauCourant) + 1));
  EXPECT_EQ(f.SSMusic(0).GetPicture(), f.SSMusic(1).GetPicture());
  EXPECT_TRUE(f.MusicTimer->Enabled());
  EXPECT_TRUE(f.TitreTimer->Enabled());
  EXPECT_EQ(f.TitreTimer->Interval(), 450);  // 54000 / 120
}

TEST(MusicRoutines, APieceWhosePositionNeverReachesItsLengthKeepsPlaying) {
  Harness h;
  JeuPoker& f = *h.form;
  const QString piece = f.MorceauCourant;
  const std::size_t sent = h.platform.mciCommands.size();
  h.Drive({"mcianswer position 59999", "tick MusicTimer", "tick MusicTimer"});
  EXPECT_EQ(f.MorceauCourant, piece);
  EXPECT_EQ(h.platform.mciCommands.size(), sent + 2);
  EXPECT_EQ(h.platform.mciCommands.back(), "status sequence position");
  EXPECT_TRUE(f.MusicTimer->Enabled());
}

TEST(MusicRoutines, TheEndOfAPieceStartsTheNextAndTwoInARowCanBeTheSame) {
  Harness h;
  JeuPoker& f = *h.form;
  // The position equals the length as text: the piece is over; the draw knows no history.
  const int i = f.FileMidItems.indexOf(f.MorceauCourant);
  h.Drive({QStringLiteral("draw %1").arg(i), "mcianswer position 60000", "tick MusicTimer"});
  EXPECT_EQ(f.MorceauCourant, f.FileMidItems.at(i));
  EXPECT_EQ(h.platform.mciCommands[h.platform.mciCommands.size() - 5], "close sequence");
  EXPECT_EQ(f.TitreImage(0).GetPicture(), f.TitreImage(1).GetPicture());
  EXPECT_TRUE(f.MusicTimer->Enabled());
  // Another draw, another piece.
  const int j = (i + 1) % Pieces(h);
  h.Drive({QStringLiteral("draw %1").arg(j), "tick MusicTimer"});
  EXPECT_EQ(f.MorceauCourant, f.FileMidItems.at(j));
  EXPECT_EQ(f.SSMusic(0).Caption(), QString::number(j + 1));
}

TEST(MusicRoutines, ALengthOfAnotherTextIsNotTheEnd) {
  Harness h;
  // "60000.0" is the same number but not the same text.
  const QString piece = h.form->MorceauCourant;
  h.Drive({"mcianswer position 60000.0", "tick MusicTimer"});
  EXPECT_EQ(h.platform.mciCommands.back(), "status sequence position");
  EXPECT_EQ(h.form->MorceauCourant, piece);
}

TEST(MusicRoutines, ATempoOfZeroOrNoNumberLeavesTheBeatAsItWas) {
  Harness h;
  JeuPoker& f = *h.form;
  h.Drive({"mcianswer tempo 90", "mcianswer position 60000", "tick MusicTimer"});
  EXPECT_EQ(f.TitreTimer->Interval(), 600);
  h.Drive({"mcianswer tempo 0", "tick MusicTimer"});
  EXPECT_EQ(f.TitreTimer->Interval(), 600);
  h.Drive({"mcianswer tempo fast", "tick MusicTimer"});
  EXPECT_EQ(f.TitreTimer->Interval(), 600);
  EXPECT_TRUE(f.MusicTimer->Enabled());
}

TEST(MusicRoutines, TheSwitchTurnsTheMusicOffAndOn) {
  Harness h;
  JeuPoker& f = *h.form;
  h.Drive({"click SSMusic(0)"});
  EXPECT_EQ(f.SSMusic(0).Caption(), "");
  EXPECT_EQ(f.SSMusic(0).GetPicture(), f.SSMusic(2).GetPicture());
  EXPECT_FALSE(f.MusicTimer->Enabled());
  EXPECT_FALSE(f.TitreTimer->Enabled());
  EXPECT_EQ(f.TitreImage(0).GetPicture(), f.TitreImage(1).GetPicture());
  EXPECT_EQ(h.platform.mciCommands.back(), "close sequence");
  EXPECT_EQ(h.Drive1("get Tirage.Focus"), "Tirage.Focus=-1");
  h.Drive({"draw 1", "click SSMusic(0)"});
  EXPECT_EQ(f.SSMusic(0).GetPicture(), f.SSMusic(1).GetPicture());
  EXPECT_EQ(f.SSMusic(0).Caption(), "2");
  EXPECT_EQ(f.MorceauCourant, f.FileMidItems.at(1));
  EXPECT_TRUE(f.MusicTimer->Enabled());
  EXPECT_EQ(h.platform.mciCommands.back(), "status sequence tempo");
}

TEST(MusicRoutines, FinClosesTheMusic) {
  Harness h;
  h.Drive({"click Fin"});
  EXPECT_TRUE(h.ended);
  EXPECT_EQ(h.platform.mciCommands.back(), "close sequence");
}

TEST(MusicRoutines, WithoutPiecesTheGameIsSilentAndGoesOn) {
  Harness h(false);
  for (const QString& name : QDir(h.dir.path()).entryList({"*.mid"})) QFile::remove(h.dir.filePath(name));
  h.form->Form_Load();
  EXPECT_TRUE(h.platform.mciCommands.empty());
  EXPECT_EQ(h.form->SSMusic(0).Caption(), "");
  EXPECT_TRUE(h.Drive({"draw 0 1 2 3 4", "click Jouer"}).isEmpty());
  EXPECT_EQ(h.form->NbTirées, 5);
}

TEST(MusicRoutines, TheToolPrintsTheCommandsSentSinceTheLastAsking) {
  const services::ToolResult r =
      services::RunDrive({"mci", "mci", "mcianswer position 60000", "mcianswer length 60000", "draw 0",
                          "tick MusicTimer", "mci", "var MorceauCourant", "click Fin"});
  ASSERT_EQ(r.exitCode, 0);
  ASSERT_GE(r.lines.size(), 13);
  EXPECT_EQ(r.lines[0], "mci=close sequence");
  EXPECT_TRUE(r.lines[1].startsWith("mci=open ")) << r.lines[1].toStdString();
  EXPECT_EQ(r.lines[4], "mci=status sequence tempo");
  // The second `mci` printed nothing; the tick polled, found the end and started piece 1.
  EXPECT_EQ(r.lines[5], "mci=status sequence position");
  EXPECT_EQ(r.lines[6], "mci=close sequence");
  EXPECT_EQ(r.lines[10], "mci=status sequence tempo");
  EXPECT_TRUE(r.lines[11].startsWith("MorceauCourant=")) << r.lines[11].toStdString();
  EXPECT_EQ(r.lines[12], "ended");
}

}  // namespace
