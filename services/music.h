// MIDI playback by command text, for the multimedia command interface of the platform seam.
//
// The player answers the texts the game sends: "open FILE alias NAME", "play NAME",
// "status NAME length", "status NAME position", "status NAME tempo", "close NAME".
// Length and position are in milliseconds; once a piece has ended its position is its
// length, as the same text. The tempo is the first tempo of the file in beats a minute.
// Anything else, or anything about an alias that is not open, answers an empty text.
//
// Sound goes through FluidSynth with the distribution's General MIDI SoundFont. With no
// sound device (or TALVERO_NO_AUDIO=1) the player is silent: position then follows the clock
// from "play", so pieces still end after their duration and the next one comes.
#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>
#include <future>
#include <memory>
#include <optional>
#include <vector>

// What a Standard MIDI File says of its timing.
struct MidiTiming {
  qint64 lengthMs = 0;  // from the start to the last event of any track
  int bpm = 120;        // the first tempo, rounded; 120 when the file sets none
  // Milliseconds at a tick, through the file's tempo changes.
  qint64 MsAt(qint64 tick) const;

  int division = 480;                                   // ticks a quarter note (a positive division)
  double msPerTickSmpte = 0;                            // for SMPTE time, ms a tick; 0 otherwise
  std::vector<std::pair<qint64, qint64>> tempoChanges;  // tick, microseconds a quarter note
};

// Reads the timing of a MIDI file; nothing when the data is not a well-formed file.
std::optional<MidiTiming> ReadMidiTiming(const QByteArray& data);

// The General MIDI SoundFont of the system, or an empty text when none is installed.
QString GeneralMidiSoundFont();

// How the synthesizer takes the SoundFont's samples: when an instrument is first chosen (what
// the game does: its pieces use a few of the 128 instruments), or all when the SoundFont loads.
enum class SampleLoading { WhenUsed, AllAtLoad };

// Renders a MIDI file through FluidSynth into a 16-bit stereo WAV file at 44100 Hz, as fast as
// it can, up to the end of the piece. False when FluidSynth, the SoundFont or a file fails.
bool RenderMidiToWav(const QString& midiPath, const QString& wavPath, SampleLoading loading = SampleLoading::WhenUsed);

class MidiPlayer {
 public:
  enum class Output { Automatic, Silent };
  // Automatic: sound when a device answers and TALVERO_NO_AUDIO is not 1.
  explicit MidiPlayer(Output output = Output::Automatic);
  ~MidiPlayer();
  MidiPlayer(const MidiPlayer&) = delete;
  MidiPlayer& operator=(const MidiPlayer&) = delete;

  QString Send(const QString& command);

  // Whether sound goes to a device (known once the device has answered, some time after the
  // first "open").
  bool Audible() const { return audio_ != nullptr; }

 private:
  struct Audio;

  void Close();
  bool Open(const QString& path);
  void Play();
  qint64 PositionMs();
  void StartAudio();
  void JoinAudio();                // takes the device once the worker has opened it
  void StartSynth(qint64 fromMs);  // the open piece through the synthesizer, from a time

  Output output_;
  bool audioTried_ = false;
  std::unique_ptr<Audio> audio_;
  std::future<std::unique_ptr<Audio>> audioStarting_;
  bool joinedLate_ = false;  // the sound joined a piece under way: its position is the clock's

  QString alias_;  // the alias of the open piece; empty when none is open
  QByteArray data_;
  MidiTiming timing_;
  bool playing_ = false;
  QElapsedTimer clock_;
};
