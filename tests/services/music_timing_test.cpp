// The timing read from MIDI files: length through tempo changes, the first tempo, and files
// that are not MIDI.
#include <gtest/gtest.h>

#include "services/midi_file.h"
#include "tests/services/music_support.h"

using music_test::OneNoteFile;

TEST(MusicTiming, LengthWithoutATempoIsAtOneHundredTwentyBeats) {
  const auto t = ReadMidiTiming(OneNoteFile({}, 960));
  ASSERT_TRUE(t);
  EXPECT_EQ(t->lengthMs, 1000);
  EXPECT_EQ(t->bpm, 120);
}

TEST(MusicTiming, LengthFollowsTempoChangesAndTempoIsTheFirst) {
  // 480 ticks at 100 beats a minute (600 ms), then 480 at 50 (1200 ms).
  const auto t = ReadMidiTiming(OneNoteFile({{0, 600000}, {480, 1200000}}, 960));
  ASSERT_TRUE(t);
  EXPECT_EQ(t->lengthMs, 1800);
  EXPECT_EQ(t->bpm, 100);
  EXPECT_EQ(t->MsAt(480), 600);
  EXPECT_EQ(t->MsAt(720), 1200);
}

TEST(MusicTiming, FirstTempoIsRounded) {
  const auto t = ReadMidiTiming(OneNoteFile({{0, 652174}}, 480));  // 92.0 beats a minute
  ASSERT_TRUE(t);
  EXPECT_EQ(t->bpm, 92);
}

TEST(MusicTiming, NotMidiIsRejected) {
  EXPECT_FALSE(ReadMidiTiming(QByteArray()));
  EXPECT_FALSE(ReadMidiTiming(QByteArray("RIFF0000WAVEfmt ")));
  const QByteArray good = OneNoteFile({}, 480);
  EXPECT_TRUE(ReadMidiTiming(good));
  for (qsizetype cut = 1; cut < good.size(); ++cut) {
    // Cut anywhere, the file is broken (a header alone names no track).
    EXPECT_FALSE(ReadMidiTiming(good.left(cut))) << cut;
  }
}
