// The command texts of the MIDI player on its silent path, where the clock stands in for the
// synthesizer: open, play, status length/position/tempo, close, and files that are not there.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>

#include "services/music.h"
#include "tests/services/music_support.h"

namespace {

using music_test::OneNoteFile;
using music_test::WriteFile;

// A piece of 960 ticks at 100 beats a minute: 1200 ms.
struct ShortPiece {
  ShortPiece() {
    path = dir.filePath("short piece.mid");
    EXPECT_TRUE(WriteFile(path, OneNoteFile({{0, 600000}}, 960)));
  }
  QTemporaryDir dir;
  QString path;
};

void WaitMs(int ms) { QThread::msleep(static_cast<unsigned long>(ms)); }

}  // namespace

TEST(MusicCommands, OpenReportsLengthAndTempoAndPositionZeroBeforePlay) {
  ShortPiece piece;
  MidiPlayer player(MidiPlayer::Output::Silent);
  EXPECT_EQ(player.Send("close sequence"), "");
  EXPECT_EQ(player.Send("open " + piece.path + " alias sequence"), "");
  EXPECT_EQ(player.Send("status sequence length"), "1200");
  EXPECT_EQ(player.Send("status sequence tempo"), "100");
  EXPECT_EQ(player.Send("status sequence position"), "0");
  EXPECT_FALSE(player.Audible());
}

TEST(MusicCommands, PositionAdvancesAndEqualsTheLengthTextAtTheEndAndStaysThere) {
  ShortPiece piece;
  MidiPlayer player(MidiPlayer::Output::Silent);
  player.Send("open " + piece.path + " alias sequence");
  EXPECT_EQ(player.Send("play sequence"), "");
  const QString length = player.Send("status sequence length");
  WaitMs(150);
  const int early = player.Send("status sequence position").toInt();
  EXPECT_GT(early, 0);
  EXPECT_LT(early, 1200);
  WaitMs(150);
  EXPECT_GT(player.Send("status sequence position").toInt(), early);

  QElapsedTimer clock;
  clock.start();
  while (player.Send("status sequence position") != length && clock.elapsed() < 5000) WaitMs(10);
  EXPECT_EQ(player.Send("status sequence position"), length);
  // The piece ends after its duration, not long after.
  EXPECT_LT(clock.elapsed(), 3000);
  WaitMs(200);
  EXPECT_EQ(player.Send("status sequence position"), length);
  // Playing on does not start it again until it is played anew after its end.
  EXPECT_EQ(player.Send("status sequence length"), length);
}

TEST(MusicCommands, PlayAfterTheEndStartsThePieceAgain) {
  QTemporaryDir dir;
  const QString path = dir.filePath("tiny.mid");
  ASSERT_TRUE(WriteFile(path, OneNoteFile({{0, 500000}}, 96)));  // 100 ms
  MidiPlayer player(MidiPlayer::Output::Silent);
  player.Send("open " + path + " alias sequence");
  player.Send("play sequence");
  WaitMs(200);
  EXPECT_EQ(player.Send("status sequence position"), "100");
  player.Send("play sequence");
  EXPECT_LT(player.Send("status sequence position").toInt(), 100);
}

TEST(MusicCommands, CloseThenStatusAnswersEmpty) {
  ShortPiece piece;
  MidiPlayer player(MidiPlayer::Output::Silent);
  player.Send("open " + piece.path + " alias sequence");
  player.Send("play sequence");
  EXPECT_EQ(player.Send("close sequence"), "");
  EXPECT_EQ(player.Send("status sequence length"), "");
  EXPECT_EQ(player.Send("status sequence position"), "");
  EXPECT_EQ(player.Send("status sequence tempo"), "");
  EXPECT_EQ(player.Send("play sequence"), "");
  EXPECT_EQ(player.Send("close sequence"), "");
}

TEST(MusicCommands, MissingFileGivesEmptyAnswers) {
  QTemporaryDir dir;
  MidiPlayer player(MidiPlayer::Output::Silent);
  EXPECT_EQ(player.Send("open " + dir.filePath("absent.mid") + " alias sequence"), "");
  EXPECT_EQ(player.Send("play sequence"), "");
  EXPECT_EQ(player.Send("status sequence length"), "");
  EXPECT_EQ(player.Send("status sequence position"), "");
  EXPECT_EQ(player.Send("status sequence tempo"), "");
  EXPECT_EQ(player.Send("close sequence"), "");
}

TEST(MusicCommands, BrokenFilesGiveEmptyAnswers) {
  QTemporaryDir dir;
  const QByteArray good = OneNoteFile({{0, 600000}}, 480);
  const std::vector<QByteArray> broken = {
      QByteArray(), QByteArray("not a MIDI file at all"), good.left(20), good.left(good.size() - 5),
      QByteArray("MThd\x00\x00\x00\x06\x00\x01\x00\x01\x00\x00", 14)};  // a division of zero
  MidiPlayer player(MidiPlayer::Output::Silent);
  for (size_t i = 0; i < broken.size(); ++i) {
    const QString path = dir.filePath(QString("broken%1.mid").arg(i));
    ASSERT_TRUE(WriteFile(path, broken[i]));
    EXPECT_EQ(player.Send("open " + path + " alias sequence"), "") << i;
    player.Send("play sequence");
    EXPECT_EQ(player.Send("status sequence length"), "") << i;
    EXPECT_EQ(player.Send("status sequence position"), "") << i;
    EXPECT_EQ(player.Send("status sequence tempo"), "") << i;
  }
}

TEST(MusicCommands, OpeningAMissingFileClosesThePieceBefore) {
  ShortPiece piece;
  MidiPlayer player(MidiPlayer::Output::Silent);
  player.Send("open " + piece.path + " alias sequence");
  player.Send("open " + piece.dir.filePath("absent.mid") + " alias sequence");
  EXPECT_EQ(player.Send("status sequence length"), "");
}

TEST(MusicCommands, UnknownCommandsAndOtherAliasesAnswerEmpty) {
  ShortPiece piece;
  MidiPlayer player(MidiPlayer::Output::Silent);
  player.Send("open " + piece.path + " alias sequence");
  EXPECT_EQ(player.Send(""), "");
  EXPECT_EQ(player.Send("bogus"), "");
  EXPECT_EQ(player.Send("pause sequence"), "");
  EXPECT_EQ(player.Send("status sequence volume"), "");
  EXPECT_EQ(player.Send("status other length"), "");
  EXPECT_EQ(player.Send("status sequence"), "");
  EXPECT_EQ(player.Send("close other"), "");
  EXPECT_EQ(player.Send("status sequence length"), "1200");
}

TEST(MusicCommands, FileNameWithSpacesAndCaseOfTheWords) {
  ShortPiece piece;  // its name holds a space
  MidiPlayer player(MidiPlayer::Output::Silent);
  player.Send("OPEN \"" + piece.path + "\" ALIAS Sequence");
  EXPECT_EQ(player.Send("Status sequence Length"), "1200");
}

TEST(MusicCommands, NoAudioVariableKeepsTheAutomaticPlayerSilent) {
  ShortPiece piece;
  const QByteArray before = qgetenv("TALVERO_NO_AUDIO");
  qputenv("TALVERO_NO_AUDIO", "1");
  MidiPlayer player;
  player.Send("open " + piece.path + " alias sequence");
  if (before.isNull())
    qunsetenv("TALVERO_NO_AUDIO");
  else
    qputenv("TALVERO_NO_AUDIO", before);
  EXPECT_FALSE(player.Audible());
  player.Send("play sequence");
  WaitMs(100);
  EXPECT_GT(player.Send("status sequence position").toInt(), 0);
}

// With no sound device the synthesizer cannot start, and the player goes on silently; with
// one, the piece plays. Either way the command texts answer alike.
TEST(MusicCommands, AutomaticPlayerAnswersWithOrWithoutASoundDevice) {
  ShortPiece piece;
  MidiPlayer player;
  player.Send("open " + piece.path + " alias sequence");
  EXPECT_EQ(player.Send("status sequence length"), "1200");
  player.Send("play sequence");
  QElapsedTimer clock;
  clock.start();
  while (player.Send("status sequence position") != "1200" && clock.elapsed() < 5000) WaitMs(10);
  EXPECT_EQ(player.Send("status sequence position"), "1200");
  player.Send("close sequence");
  EXPECT_EQ(player.Send("status sequence position"), "");
}
