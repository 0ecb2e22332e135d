// The pieces shipped in the program directory: there are at least three, each plays at least
// 45 seconds, and one rendered through FluidSynth is sound all along, as long as the piece.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cmath>

#include "services/music.h"
#include "services/synthesizer.h"

namespace {

QStringList ShippedPieces() { return QDir(TALVERO_PROGRAM_DIR).entryList({"*.mid"}, QDir::Files, QDir::Name); }

QString PiecePath(const QString& name) { return QDir(TALVERO_PROGRAM_DIR).filePath(name); }

qint64 LengthMs(const QString& name) {
  MidiPlayer player(MidiPlayer::Output::Silent);
  player.Send("open " + PiecePath(name) + " alias sequence");
  return player.Send("status sequence length").toLongLong();
}

}  // namespace

TEST(MusicPieces, AtLeastThreePiecesAreInTheProgramDirectory) {
  const QStringList pieces = ShippedPieces();
  EXPECT_GE(pieces.size(), 3) << pieces.join(", ").toStdString();
}

TEST(MusicPieces, EachPieceLastsAtLeastFortyFiveSecondsAndHasATempo) {
  for (const QString& name : ShippedPieces()) {
    MidiPlayer player(MidiPlayer::Output::Silent);
    player.Send("open " + PiecePath(name) + " alias sequence");
    EXPECT_GE(player.Send("status sequence length").toLongLong(), 45000) << name.toStdString();
    EXPECT_GT(player.Send("status sequence tempo").toInt(), 0) << name.toStdString();
  }
}

TEST(MusicPieces, EachPieceHasSeveralVoicesWithTheirInstruments) {
  for (const QString& name : ShippedPieces()) {
    QFile f(PiecePath(name));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray data = f.readAll();
    EXPECT_GE(data.count("MTrk"), 3) << name.toStdString();  // the tempo track and two voices or more
    int programs = 0;
    for (qsizetype i = 0; i + 2 < data.size(); ++i)
      if (static_cast<unsigned char>(data[i]) == 0x00 && (static_cast<unsigned char>(data[i + 1]) & 0xf0) == 0xc0)
        ++programs;  // a program change at the start of a voice
    EXPECT_GE(programs, 2) << name.toStdString();
  }
}

#ifdef TALVERO_HAVE_FLUIDSYNTH
TEST(MusicPieces, ARenderedPieceIsAudibleAllAlongAndAsLongAsThePiece) {
  ASSERT_FALSE(GeneralMidiSoundFont().isEmpty());
  // The shortest piece keeps the test quick.
  QString shortest;
  qint64 lengthMs = 0;
  for (const QString& name : ShippedPieces()) {
    const qint64 ms = LengthMs(name);
    if (shortest.isEmpty() || ms < lengthMs) shortest = name, lengthMs = ms;
  }
  ASSERT_FALSE(shortest.isEmpty());

  QTemporaryDir dir;
  const QString wavPath = dir.filePath("piece.wav");
  ASSERT_TRUE(RenderMidiToWav(PiecePath(shortest), wavPath));
  QFile f(wavPath);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  const QByteArray wav = f.readAll();
  ASSERT_GT(wav.size(), 44);
  ASSERT_TRUE(wav.startsWith("RIFF"));
  ASSERT_EQ(wav.mid(36, 4), "data");
  const auto* samples = reinterpret_cast<const qint16*>(wav.constData() + 44);
  const qsizetype frames = (wav.size() - 44) / 4;
  const double seconds = static_cast<double>(frames) / 44100.0;
  EXPECT_NEAR(seconds * 1000.0, static_cast<double>(lengthMs), 1000.0) << shortest.toStdString();

  // Loudness of each second: the piece sounds (well above silence) in nearly every one.
  int loud = 0;
  int windows = 0;
  for (qsizetype start = 0; start + 44100 <= frames; start += 44100) {
    double sum = 0;
    for (qsizetype i = start * 2; i < (start + 44100) * 2; ++i) sum += static_cast<double>(samples[i]) * samples[i];
    const double rms = std::sqrt(sum / (2.0 * 44100)) / 32768.0;
    ++windows;
    if (rms > 0.01) ++loud;  // -40 dB of full scale
  }
  ASSERT_GT(windows, 0);
  EXPECT_GE(loud, windows * 9 / 10) << loud << " of " << windows << " seconds sound";
}

TEST(MusicPieces, SamplesReadWhenFirstUsedSoundExactlyAsSamplesReadAtLoad) {
  // The synthesizer reads an instrument's samples when a piece first chooses it; every piece
  // must sound the same, sample for sample, as with the whole SoundFont read at once.
  QTemporaryDir dir;
  for (const QString& name : ShippedPieces()) {
    const QString whenUsed = dir.filePath(name + "-when-used.wav");
    const QString atLoad = dir.filePath(name + "-at-load.wav");
    ASSERT_TRUE(RenderMidiToWav(PiecePath(name), whenUsed, SampleLoading::WhenUsed)) << name.toStdString();
    ASSERT_TRUE(RenderMidiToWav(PiecePath(name), atLoad, SampleLoading::AllAtLoad)) << name.toStdString();
    QFile a(whenUsed), b(atLoad);
    ASSERT_TRUE(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
    const QByteArray left = a.readAll(), right = b.readAll();
    EXPECT_GT(left.size(), 44 + 44100 * 4) << name.toStdString();
    EXPECT_TRUE(left == right) << name.toStdString();
  }
}
#endif
