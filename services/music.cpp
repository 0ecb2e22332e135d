#include "services/music.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <limits>

#ifdef TALVERO_HAVE_FLUIDSYNTH
#include "services/first_frame.h"
#include "services/fluidsynth_library.h"
#endif

// --- Timing of a MIDI file ----------------------------------------------------------------

namespace {

// Longer than this, a file is taken as broken rather than as music.
constexpr double kLongestMs = 24.0 * 3600 * 1000;

class Reader {
 public:
  Reader(const QByteArray& data, qsizetype from, qsizetype to) : d_(data), pos_(from), end_(to) {}
  bool AtEnd() const { return pos_ >= end_; }
  bool Byte(int& b) {
    if (pos_ >= end_) return false;
    b = static_cast<std::uint8_t>(d_[pos_++]);
    return true;
  }
  bool VarLen(qint64& v) {
    v = 0;
    for (int i = 0; i < 4; ++i) {
      int b = 0;
      if (!Byte(b)) return false;
      v = (v << 7) | (b & 0x7f);
      if (!(b & 0x80)) return true;
    }
    return false;
  }
  bool Skip(qint64 n) {
    if (n < 0 || n > end_ - pos_) return false;
    pos_ += n;
    return true;
  }

 private:
  const QByteArray& d_;
  qsizetype pos_;
  qsizetype end_;
};

quint32 Big(const QByteArray& d, qsizetype at, int bytes) {
  quint32 v = 0;
  for (int i = 0; i < bytes; ++i) v = (v << 8) | static_cast<std::uint8_t>(d[at + i]);
  return v;
}

// Reads one track chunk's events: tempo changes into `timing`, its last tick into `endTick`.
bool ReadTrack(Reader r, MidiTiming& timing, qint64& endTick) {
  qint64 tick = 0;
  int running = 0;
  while (!r.AtEnd()) {
    qint64 delta = 0;
    if (!r.VarLen(delta)) return false;
    tick += delta;
    int status = 0;
    if (!r.Byte(status)) return false;
    if (status < 0x80) {
      if (!running) return false;
      // The byte read is the first data byte of a message that repeats the status.
      const int dataBytes = (running >> 4) == 0xc || (running >> 4) == 0xd ? 1 : 2;
      if (!r.Skip(dataBytes - 1)) return false;
      continue;
    }
    if (status == 0xff) {
      running = 0;
      int type = 0;
      qint64 length = 0;
      if (!r.Byte(type) || !r.VarLen(length)) return false;
      if (type == 0x2f) break;
      if (type == 0x51 && length >= 3) {
        int a = 0, b = 0, c = 0;
        if (!r.Byte(a) || !r.Byte(b) || !r.Byte(c)) return false;
        timing.tempoChanges.push_back({tick, (a << 16) | (b << 8) | c});
        length -= 3;
      }
      if (!r.Skip(length)) return false;
      continue;
    }
    if (status == 0xf0 || status == 0xf7) {
      running = 0;
      qint64 length = 0;
      if (!r.VarLen(length) || !r.Skip(length)) return false;
      continue;
    }
    if (status >= 0xf0) return false;
    running = status;
    const int dataBytes = (status >> 4) == 0xc || (status >> 4) == 0xd ? 1 : 2;
    if (!r.Skip(dataBytes)) return false;
  }
  endTick = tick;
  return true;
}

double MicrosecondsAt(const MidiTiming& t, qint64 tick) {
  if (t.msPerTickSmpte > 0) return static_cast<double>(tick) * t.msPerTickSmpte * 1000.0;
  double us = 0;
  qint64 lastTick = 0;
  double tempo = 500000;
  for (const auto& [at, usPerQuarter] : t.tempoChanges) {
    if (at >= tick) break;
    us += static_cast<double>(at - lastTick) * tempo / t.division;
    lastTick = at;
    tempo = static_cast<double>(usPerQuarter);
  }
  return us + static_cast<double>(tick - lastTick) * tempo / t.division;
}
}  // namespace

qint64 MidiTiming::MsAt(qint64 tick) const {
  return static_cast<qint64>(std::floor(MicrosecondsAt(*this, tick) / 1000.0));
}

std::optional<MidiTiming> ReadMidiTiming(const QByteArray& data) {
  if (data.size() < 14 || !data.startsWith("MThd")) return std::nullopt;
  const quint32 headerLength = Big(data, 4, 4);
  if (headerLength < 6 || headerLength > static_cast<quint32>(data.size() - 8)) return std::nullopt;
  const quint32 division = Big(data, 12, 2);
  MidiTiming t;
  if (division & 0x8000) {
    const int fps = -static_cast<std::int8_t>(division >> 8);
    const int perFrame = static_cast<int>(division & 0xff);
    if (fps <= 0 || perFrame == 0) return std::nullopt;
    t.msPerTickSmpte = 1000.0 / ((fps == 29 ? 29.97 : fps) * perFrame);
  } else {
    if (division == 0) return std::nullopt;
    t.division = static_cast<int>(division);
  }
  qsizetype at = 8 + headerLength;
  int tracks = 0;
  qint64 lastTick = 0;
  while (at + 8 <= data.size()) {
    const quint32 length = Big(data, at + 4, 4);
    if (length > static_cast<quint32>(data.size() - at - 8)) return std::nullopt;
    if (data.mid(at, 4) == "MTrk") {
      qint64 end = 0;
      if (!ReadTrack(Reader(data, at + 8, at + 8 + length), t, end)) return std::nullopt;
      lastTick = std::max(lastTick, end);
      ++tracks;
    }
    at += 8 + static_cast<qsizetype>(length);
  }
  if (tracks == 0) return std::nullopt;
  // A tempo of zero would stop time; such events are dropped.
  std::erase_if(t.tempoChanges, [](const auto& c) { return c.second <= 0; });
  std::stable_sort(t.tempoChanges.begin(), t.tempoChanges.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  if (!t.tempoChanges.empty())
    t.bpm = static_cast<int>(std::lround(60000000.0 / static_cast<double>(t.tempoChanges.front().second)));
  // The length is checked in floating point before it becomes a whole number.
  if (!(MicrosecondsAt(t, lastTick) / 1000.0 <= kLongestMs)) return std::nullopt;
  t.lengthMs = t.MsAt(lastTick);
  return t;
}

// --- FluidSynth ---------------------------------------------------------------------------

QString GeneralMidiSoundFont() {
  for (const char* path : {"/usr/share/sounds/sf2/TimGM6mb.sf2", "/usr/share/sounds/sf2/default-GM.sf2",
                           "/usr/share/sounds/sf2/FluidR3_GM.sf2"})
    if (QFileInfo(QString::fromLatin1(path)).isReadable()) return QString::fromLatin1(path);
  return {};
}

#ifdef TALVERO_HAVE_FLUIDSYNTH
namespace {

const FluidSynthLibrary& Fs() { return *FluidSynth(); }

// FluidSynth reports a missing sound device as an error; for the game that only means silence.
void QuietFluidSynth() {
  for (int level : {FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG}) Fs().fluid_set_log_function(level, nullptr, nullptr);
}

// A synthesizer with the General MIDI SoundFont loaded.
struct Synth {
  fluid_settings_t* settings = nullptr;
  fluid_synth_t* synth = nullptr;

  explicit Synth(bool toFile, SampleLoading loading = SampleLoading::WhenUsed) {
    if (!FluidSynth()) return;
    QuietFluidSynth();
    settings = Fs().new_fluid_settings();
    if (!settings) return;
    Fs().fluid_settings_setnum(settings, "synth.sample-rate", 44100.0);
    Fs().fluid_settings_setnum(settings, "synth.gain", 0.5);
    // Only the instruments a piece chooses have their samples read: with the General MIDI
    // SoundFont that keeps about 5 MB out of memory and shortens the loading.
    Fs().fluid_settings_setint(settings, "synth.dynamic-sample-loading", loading == SampleLoading::WhenUsed ? 1 : 0);
    if (toFile) Fs().fluid_settings_setstr(settings, "player.timing-source", "sample");
    synth = Fs().new_fluid_synth(settings);
  }
  bool LoadSoundFont() {
    const QString font = GeneralMidiSoundFont();
    return synth && !font.isEmpty() &&
           Fs().fluid_synth_sfload(synth, QFile::encodeName(font).constData(), 1) != FLUID_FAILED;
  }
  ~Synth() {
    if (synth) Fs().delete_fluid_synth(synth);
    if (settings) Fs().delete_fluid_settings(settings);
  }
  Synth(const Synth&) = delete;
  Synth& operator=(const Synth&) = delete;
};

void PutLE(QByteArray& out, quint32 v, int bytes) {
  for (int i = 0; i < bytes; ++i) out.append(static_cast<char>((v >> (8 * i)) & 0xff));
}

}  // namespace

bool RenderMidiToWav(const QString& midiPath, const QString& wavPath, SampleLoading loading) {
  QFile in(midiPath);
  if (!in.open(QIODevice::ReadOnly)) return false;
  const QByteArray midi = in.readAll();
  const auto timing = ReadMidiTiming(midi);
  if (!timing) return false;
  Synth s(true, loading);
  if (!s.LoadSoundFont()) return false;
  fluid_player_t* player = Fs().new_fluid_player(s.synth);
  if (!player) return false;
  QByteArray pcm;
  if (Fs().fluid_player_add_mem(player, midi.constData(), static_cast<size_t>(midi.size())) == FLUID_OK &&
      Fs().fluid_player_play(player) == FLUID_OK) {
    constexpr int kFrames = 512;
    std::vector<std::int16_t> block(2 * kFrames);
    // The player lets the last notes ring on for a while; the rendering stops where the piece does.
    while (Fs().fluid_player_get_status(player) == FLUID_PLAYER_PLAYING &&
           timing->MsAt(Fs().fluid_player_get_current_tick(player)) < timing->lengthMs) {
      if (Fs().fluid_synth_write_s16(s.synth, kFrames, block.data(), 0, 2, block.data(), 1, 2) != FLUID_OK) break;
      pcm.append(reinterpret_cast<const char*>(block.data()), static_cast<qsizetype>(block.size() * 2));
    }
  }
  Fs().fluid_player_stop(player);
  Fs().delete_fluid_player(player);
  if (pcm.isEmpty()) return false;

  QByteArray wav("RIFF");
  PutLE(wav, static_cast<quint32>(36 + pcm.size()), 4);
  wav.append("WAVEfmt ");
  PutLE(wav, 16, 4);
  PutLE(wav, 1, 2);  // PCM
  PutLE(wav, 2, 2);  // stereo
  PutLE(wav, 44100, 4);
  PutLE(wav, 44100 * 4, 4);
  PutLE(wav, 4, 2);
  PutLE(wav, 16, 2);
  wav.append("data");
  PutLE(wav, static_cast<quint32>(pcm.size()), 4);
  wav.append(pcm);
  QFile out(wavPath);
  return out.open(QIODevice::WriteOnly | QIODevice::Truncate) && out.write(wav) == wav.size();
}

struct MidiPlayer::Audio {
  Synth synth{false};
  fluid_audio_driver_t* driver = nullptr;
  fluid_player_t* player = nullptr;

  void DropPlayer() {
    if (!player) return;
    Fs().fluid_player_stop(player);
    Fs().delete_fluid_player(player);
    player = nullptr;
    Fs().fluid_synth_all_notes_off(synth.synth, -1);
  }
  ~Audio() {
    DropPlayer();
    if (driver) Fs().delete_fluid_audio_driver(driver);
  }
};

void MidiPlayer::StartAudio() {
  audioTried_ = true;
  if (output_ == Output::Silent || qEnvironmentVariable("TALVERO_NO_AUDIO") == QLatin1String("1")) return;
  // Opening the library and the device and loading the SoundFont take a while: a worker does
  // it so that nobody waits for the sound, and the clock keeps time until the sound joins.
  audioStarting_ = std::async(std::launch::async, []() -> std::unique_ptr<Audio> {
    // The window's first frame goes first: the device and the synthesizer would compete
    // with it for the processor and the memory.
    WaitForFirstFrame(std::chrono::milliseconds(500));
    auto audio = std::make_unique<Audio>();
    if (!audio->synth.synth) return nullptr;
    audio->driver = Fs().new_fluid_audio_driver(audio->synth.settings, audio->synth.synth);
    if (!audio->driver || !audio->synth.LoadSoundFont()) return nullptr;
    return audio;
  });
}

void MidiPlayer::JoinAudio() {
  if (!audioStarting_.valid() || audioStarting_.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return;
  audio_ = audioStarting_.get();
  // A piece under way is picked up where the clock has got to; its position stays the clock's.
  if (audio_ && playing_ && PositionMs() < timing_.lengthMs) {
    StartSynth(clock_.elapsed());
    joinedLate_ = true;
  }
}

void MidiPlayer::StartSynth(qint64 fromMs) {
  audio_->DropPlayer();
  audio_->player = Fs().new_fluid_player(audio_->synth.synth);
  if (!audio_->player) return;
  if (Fs().fluid_player_add_mem(audio_->player, data_.constData(), static_cast<size_t>(data_.size())) != FLUID_OK ||
      Fs().fluid_player_play(audio_->player) != FLUID_OK) {
    audio_->DropPlayer();
    return;
  }
  if (fromMs > 0) {
    // The first tick at or after that time (MsAt only grows).
    qint64 low = 0, high = std::numeric_limits<int>::max();
    while (low < high) {
      const qint64 mid = low + (high - low) / 2;
      if (timing_.MsAt(mid) < fromMs)
        low = mid + 1;
      else
        high = mid;
    }
    Fs().fluid_player_seek(audio_->player, static_cast<int>(low));
  }
}
#else
bool RenderMidiToWav(const QString&, const QString&, SampleLoading) { return false; }
struct MidiPlayer::Audio {};
void MidiPlayer::StartAudio() { audioTried_ = true; }
void MidiPlayer::JoinAudio() {}
#endif

// --- The command texts --------------------------------------------------------------------

MidiPlayer::MidiPlayer(Output output) : output_(output) {}

MidiPlayer::~MidiPlayer() { Close(); }

void MidiPlayer::Close() {
#ifdef TALVERO_HAVE_FLUIDSYNTH
  if (audio_) audio_->DropPlayer();
#endif
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
#ifdef TALVERO_HAVE_FLUIDSYNTH
  if (audio_) StartSynth(0);
#endif
}

qint64 MidiPlayer::PositionMs() {
  if (!playing_) return 0;
  qint64 ms = clock_.elapsed();
#ifdef TALVERO_HAVE_FLUIDSYNTH
  // With sound the synthesizer's own place in the piece counts; the clock stands in when
  // the file could not be handed to it.
  if (audio_ && audio_->player && !joinedLate_) {
    ms = Fs().fluid_player_get_status(audio_->player) == FLUID_PLAYER_DONE
             ? timing_.lengthMs
             : timing_.MsAt(Fs().fluid_player_get_current_tick(audio_->player));
  }
#endif
  return std::clamp<qint64>(ms, 0, timing_.lengthMs);
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
