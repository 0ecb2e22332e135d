// The synthesizer: FluidSynth, opened at run time, with the system's General MIDI SoundFont.
// It renders a MIDI file into a WAV file, on the caller's thread, and plays MIDI files to the
// sound device through a SoundDevice. A SoundDevice is opened on a worker thread (the library,
// the device and the SoundFont take a while), then used on the thread that took it from the
// worker (the GUI thread), while FluidSynth's own audio thread makes the sound. Built without
// FluidSynth, nothing here makes a sound.
#pragma once

#include <QByteArray>
#include <QString>
#include <future>
#include <memory>
#include <optional>

#include "services/midi_file.h"

// The General MIDI SoundFont of the system, or an empty text when none is installed.
QString GeneralMidiSoundFont();

// How the synthesizer takes the SoundFont's samples: when an instrument is first chosen (what
// the game does: its pieces use a few of the 128 instruments), or all when the SoundFont loads.
enum class SampleLoading { WhenUsed, AllAtLoad };

// Renders a MIDI file through FluidSynth into a 16-bit stereo WAV file at 44100 Hz, as fast as
// it can, up to the end of the piece. False when FluidSynth, the SoundFont or a file fails.
bool RenderMidiToWav(const QString& midiPath, const QString& wavPath, SampleLoading loading = SampleLoading::WhenUsed);

// The sound device with a synthesizer on it, playing one MIDI file at a time.
class SoundDevice {
 public:
  // Opens the device on a worker once the window's first frame is out (the device and the
  // synthesizer would compete with it for the processor and the memory), or half a second
  // later at most. The future holds nothing when the library, the device or the SoundFont
  // fails, and is not valid when the program is built without FluidSynth.
  static std::future<std::unique_ptr<SoundDevice>> OpenAfterFirstFrame();
  ~SoundDevice();
  SoundDevice(const SoundDevice&) = delete;
  SoundDevice& operator=(const SoundDevice&) = delete;

  // Plays the MIDI file `data`, whose timing is `timing`, from its first tick at or after
  // `fromMs`; a piece already playing stops first.
  void Play(const QByteArray& data, const MidiTiming& timing, qint64 fromMs);
  // Stops the piece and its notes.
  void Stop();
  // Where the piece is, in milliseconds; nothing when no piece is with the synthesizer (it was
  // stopped, or the file could not be handed to it).
  std::optional<qint64> PositionMs(const MidiTiming& timing) const;

 private:
  struct Audio;
  SoundDevice();
  std::unique_ptr<Audio> audio_;
};
