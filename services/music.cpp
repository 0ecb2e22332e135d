#include "services/music.h"

#include <QFile>
#include <algorithm>
#include <chrono>

#include "services/synthesizer.h"

MidiPlayer::MidiPlayer(Output output) : output_(output) {}

MidiPlayer::~MidiPlayer() { Close(); }

void MidiPlayer::Close() {
  if (audio_) audio_->Stop();
  alias_.clear();
  data_.clear();
  timing_ = {};
  playing_ = false;
}

bool MidiPlayer::Open(const QString& path) {
  Close();
  QFile f(path);
  if (!f.open(QIODevice::ReadOnly)) return false;
  QByteArray data = f.readAll();
  const auto timing = ReadMidiTiming(data);
  if (!timing) return false;
  if (!audioTried_) StartAudio();
  data_ = std::move(data);
  timing_ = *timing;
  return true;
}

void MidiPlayer::Play() {
  if (playing_ && PositionMs() < timing_.lengthMs) return;  // already under way
  playing_ = true;
  joinedLate_ = false;
  clock_.start();
  if (audio_) audio_->Play(data_, timing_, 0);
}

qint64 MidiPlayer::PositionMs() {
  if (!playing_) return 0;
  qint64 ms = clock_.elapsed();
  // With sound the synthesizer's own place in the piece counts; the clock stands in when
  // the file could not be handed to it.
  if (audio_ && !joinedLate_) ms = audio_->PositionMs(timing_).value_or(ms);
  return std::clamp<qint64>(ms, 0, timing_.lengthMs);
}

void MidiPlayer::StartAudio() {
  audioTried_ = true;
  if (output_ == Output::Silent || qEnvironmentVariable("TALVERO_NO_AUDIO") == QLatin1String("1")) return;
  // Opening the library and the device and loading the SoundFont take a while: a worker does
  // it so that nobody waits for the sound, and the clock keeps time until the sound joins.
  audioStarting_ = SoundDevice::OpenAfterFirstFrame();
}

void MidiPlayer::JoinAudio() {
  if (!audioStarting_.valid() || audioStarting_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return;
  audio_ = audioStarting_.get();
  // A piece under way is picked up where the clock has got to; its position stays the clock's.
  if (audio_ && playing_ && PositionMs() < timing_.lengthMs) {
    audio_->Play(data_, timing_, clock_.elapsed());
    joinedLate_ = true;
  }
}

namespace {
QString Unquoted(QString s) {
  s = s.trimmed();
  if (s.size() >= 2 && s.startsWith(QLatin1Char('"')) && s.endsWith(QLatin1Char('"'))) s = s.mid(1, s.size() - 2);
  return s;
}
}  // namespace

QString MidiPlayer::Send(const QString& command) {
  JoinAudio();
  const QString text = command.trimmed();
  const qsizetype space = text.indexOf(QLatin1Char(' '));
  const QString verb = text.left(space < 0 ? text.size() : space).toLower();
  const QString rest = space < 0 ? QString() : text.mid(space + 1).trimmed();

  if (verb == QLatin1String("open")) {
    // open FILE [alias NAME]: the file name may hold spaces, so the last " alias " splits.
    const qsizetype at = rest.lastIndexOf(QLatin1String(" alias "), -1, Qt::CaseInsensitive);
    const QString file = Unquoted(at < 0 ? rest : rest.left(at));
    const QString alias = at < 0 ? file : rest.mid(at + 7).trimmed();
    if (file.isEmpty() || alias.isEmpty() || !Open(file)) return {};
    alias_ = alias;
    return {};
  }

  const QStringList words = rest.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  if (words.isEmpty()) return {};
  const bool all = words[0].compare(QLatin1String("all"), Qt::CaseInsensitive) == 0;
  if (verb == QLatin1String("close") &&
      (all || (!alias_.isEmpty() && words[0].compare(alias_, Qt::CaseInsensitive) == 0))) {
    Close();
    return {};
  }
  if (alias_.isEmpty() || words[0].compare(alias_, Qt::CaseInsensitive) != 0) return {};
  if (verb == QLatin1String("play")) {
    Play();
    return {};
  }
  if (verb == QLatin1String("status") && words.size() == 2) {
    const QString item = words[1].toLower();
    if (item == QLatin1String("length")) return QString::number(timing_.lengthMs);
    if (item == QLatin1String("position")) return QString::number(PositionMs());
    if (item == QLatin1String("tempo")) return QString::number(timing_.bpm);
  }
  return {};
}
