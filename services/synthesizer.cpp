#include "services/synthesizer.h"

#include <QFile>
#include <QFileInfo>
#include <chrono>
#include <cstdint>
#include <limits>
#include <vector>

#ifdef TALVERO_HAVE_FLUIDSYNTH
#include "services/first_frame.h"
#include "services/fluidsynth_library.h"
#endif

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

struct SoundDevice::Audio {
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

SoundDevice::SoundDevice() : audio_(std::make_unique<Audio>()) {}

SoundDevice::~SoundDevice() = default;

std::future<std::unique_ptr<SoundDevice>> SoundDevice::OpenAfterFirstFrame() {
  return std::async(std::launch::async, []() -> std::unique_ptr<SoundDevice> {
    // The window's first frame goes first: the device and the synthesizer would compete
    // with it for the processor and the memory.
    WaitForFirstFrame(std::chrono::milliseconds(500));
    std::unique_ptr<SoundDevice> device(new SoundDevice);
    Audio& audio = *device->audio_;
    if (!audio.synth.synth) return nullptr;
    audio.driver = Fs().new_fluid_audio_driver(audio.synth.settings, audio.synth.synth);
    if (!audio.driver || !audio.synth.LoadSoundFont()) return nullptr;
    return device;
  });
}

void SoundDevice::Play(const QByteArray& data, const MidiTiming& timing, qint64 fromMs) {
  Audio& audio = *audio_;
  audio.DropPlayer();
  audio.player = Fs().new_fluid_player(audio.synth.synth);
  if (!audio.player) return;
  if (Fs().fluid_player_add_mem(audio.player, data.constData(), static_cast<size_t>(data.size())) != FLUID_OK ||
      Fs().fluid_player_play(audio.player) != FLUID_OK) {
    audio.DropPlayer();
    return;
  }
  if (fromMs > 0) {
    // The first tick at or after that time (MsAt only grows).
    qint64 low = 0, high = std::numeric_limits<int>::max();
    while (low < high) {
      const qint64 mid = low + (high - low) / 2;
      if (timing.MsAt(mid) < fromMs)
        low = mid + 1;
      else
        high = mid;
    }
    Fs().fluid_player_seek(audio.player, static_cast<int>(low));
  }
}

void SoundDevice::Stop() { audio_->DropPlayer(); }

std::optional<qint64> SoundDevice::PositionMs(const MidiTiming& timing) const {
  if (!audio_->player) return std::nullopt;
  return Fs().fluid_player_get_status(audio_->player) == FLUID_PLAYER_DONE
             ? timing.lengthMs
             : timing.MsAt(Fs().fluid_player_get_current_tick(audio_->player));
}
#else
bool RenderMidiToWav(const QString&, const QString&, SampleLoading) { return false; }

struct SoundDevice::Audio {};
SoundDevice::SoundDevice() = default;
SoundDevice::~SoundDevice() = default;
std::future<std::unique_ptr<SoundDevice>> SoundDevice::OpenAfterFirstFrame() { return {}; }
void SoundDevice::Play(const QByteArray&, const MidiTiming&, qint64) {}
void SoundDevice::Stop() {}
std::optional<qint64> SoundDevice::PositionMs(const MidiTiming&) const { return std::nullopt; }
#endif
