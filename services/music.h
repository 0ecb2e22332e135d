// MIDI playback by command text, for the multimedia command interface of the platform seam.
//
// The player answers the texts the game sends: "open FILE alias NAME", "play NAME",
// "status NAME length", "status NAME position", "status NAME tempo", "close NAME".
// Length and position are in milliseconds; once a piece has ended its position is its
// length, as the same text. The tempo is the first tempo of the file in beats a minute.
// Anything else, or anything about an alias that is not open, answers an empty text.
//
// Sound goes through the synthesizer (services/synthesizer.h). With no sound device (or
// TALVERO_NO_AUDIO=1) the player is silent: position then follows the clock from "play", so
// pieces still end after their duration and the next one comes.
//
// The player runs on the GUI thread, where the game's routines send their commands; the sound
// device is opened on a worker and joins at a later command once it is ready.
#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>
#include <future>
#include <memory>

#include "services/midi_file.h"

class SoundDevice;

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
  void Close();
  bool Open(const QString& path);
  void Play();
  qint64 PositionMs();
  void StartAudio();
  void JoinAudio();  // takes the device once the worker has opened it

  Output output_;
  bool audioTried_ = false;
  std::unique_ptr<SoundDevice> audio_;
  std::future<std::unique_ptr<SoundDevice>> audioStarting_;
  bool joinedLate_ = false;  // the sound joined a piece under way: its position is the clock's

  QString alias_;  // the alias of the open piece; empty when none is open
  QByteArray data_;
  MidiTiming timing_;
  bool playing_ = false;
  QElapsedTimer clock_;
};
