// The pieces the game plays, as note data, and the program that writes them as MIDI files.
//
// A voice is a text of tokens separated by spaces:
//   C5:4      a note (letter, optional # or b, octave; C4 is middle C) and its length in
//             sixteenths; the length carries over to the following notes when left out
//   C4+E4+G4  a chord: the notes sound together
//   r:8       a rest
//   |         a bar line: the notes since the last one must fill exactly one bar
#pragma once

#include <string>
#include <vector>

namespace music {

struct Voice {
  std::string name;
  int program = 0;      // General MIDI instrument, 0-based
  int volume = 100;     // controller 7
  int pan = 64;         // controller 10
  int velocity = 90;    // loudness of a note off the beat
  double legato = 0.9;  // part of its length that a note sounds
  std::string notes;
};

struct Piece {
  std::string file;  // file name in the program directory
  std::string title;
  int bpm = 120;        // quarter notes a minute
  int beatsPerBar = 4;  // time signature numerator
  int beatUnit = 4;     // time signature denominator
  int sixteenthsPerBar() const { return 16 * beatsPerBar / beatUnit; }
  std::vector<Voice> voices;
};

std::vector<Piece> Pieces();

}  // namespace music
