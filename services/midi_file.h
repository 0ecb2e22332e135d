// Reading a Standard MIDI File: how long it plays and its tempo, through its tempo changes.
// A plain function over the file's bytes, safe on any thread (the player calls it on the GUI
// thread, the synthesizer's rendering on the caller's).
#pragma once

#include <QByteArray>
#include <optional>
#include <utility>
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
