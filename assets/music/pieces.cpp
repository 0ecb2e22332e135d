// Note data of the pieces: public-domain tunes, arranged for this game.
#include <sstream>
#include <stdexcept>

#include "assets/music/score.h"

namespace music {
namespace {

// --- Arranging helpers: accompaniments built from a chord chart ------------------------

// A chart is chord symbols with bar lines, e.g. "C G7 | Am | F E". The chords of a bar share
// it evenly. A symbol is a root (letter and optional # or b), then "m" for minor and "7" for
// a dominant seventh.
struct Chord {
  int root = 0;  // pitch class, C = 0
  std::vector<int> intervals;
  int length = 0;  // sixteenths
  bool lastInBar = false;
};

int PitchClass(const std::string& s, size_t& i) {
  static const int kLetters[7] = {9, 11, 0, 2, 4, 5, 7};  // A..G
  if (i >= s.size() || s[i] < 'A' || s[i] > 'G') throw std::runtime_error("bad chord " + s);
  int pc = kLetters[s[i++] - 'A'];
  if (i < s.size() && s[i] == '#') ++pc, ++i;
  if (i < s.size() && s[i] == 'b') --pc, ++i;
  return (pc + 12) % 12;
}

std::vector<Chord> ReadChart(const std::string& chart, int sixteenthsPerBar) {
  std::vector<Chord> chords;
  std::istringstream bars(chart);
  std::string bar;
  while (std::getline(bars, bar, '|')) {
    std::istringstream symbols(bar);
    std::vector<std::string> inBar;
    for (std::string s; symbols >> s;) inBar.push_back(s);
    if (inBar.empty()) continue;
    if (sixteenthsPerBar % static_cast<int>(inBar.size()) != 0) throw std::runtime_error("uneven bar " + bar);
    for (const auto& s : inBar) {
      Chord c;
      size_t i = 0;
      c.root = PitchClass(s, i);
      const bool minor = i < s.size() && s[i] == 'm';
      if (minor) ++i;
      c.intervals = {0, minor ? 3 : 4, 7};
      if (i < s.size() && s[i] == '7') c.intervals.push_back(10), ++i;
      if (i != s.size()) throw std::runtime_error("bad chord " + s);
      c.length = sixteenthsPerBar / static_cast<int>(inBar.size());
      chords.push_back(c);
    }
    chords.back().lastInBar = true;
  }
  return chords;
}

std::string Name(int midi) {
  static const char* kNames[12] = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};
  return std::string(kNames[midi % 12]) + std::to_string(midi / 12 - 1);
}

// The lowest MIDI note of pitch class pc at or above `floor`.
int AtOrAbove(int pc, int floor) { return floor + ((pc - floor) % 12 + 12) % 12; }

std::string Len(int sixteenths) { return ":" + std::to_string(sixteenths); }

// Sustained chords in close position, every tone between `floor` and an octave above.
std::string Pad(const std::string& chart, int sixteenthsPerBar, int floor) {
  std::string out;
  for (const auto& c : ReadChart(chart, sixteenthsPerBar)) {
    std::string chord;
    for (int iv : c.intervals) chord += (chord.empty() ? "" : "+") + Name(AtOrAbove((c.root + iv) % 12, floor));
    out += chord + Len(c.length) + (c.lastInBar ? " | " : " ");
  }
  return out;
}

// Root and fifth in quarter notes, the root placed at or above `floor`.
std::string RootFifth(const std::string& chart, int sixteenthsPerBar, int floor) {
  std::string out;
  for (const auto& c : ReadChart(chart, sixteenthsPerBar)) {
    const int root = AtOrAbove(c.root, floor);
    for (int t = 0; t < c.length / 4; ++t)
      out += Name(t % 2 == 0 ? root : root + 7 - (root + 7 >= floor + 12 ? 12 : 0)) + ":4 ";
    if (c.lastInBar) out += "| ";
  }
  return out;
}

// A broken chord in eighths across each chord: root, fifth, octave, tenth, octave, fifth...
std::string Arpeggio(const std::string& chart, int sixteenthsPerBar, int floor) {
  std::string out;
  for (const auto& c : ReadChart(chart, sixteenthsPerBar)) {
    const int root = AtOrAbove(c.root, floor);
    const int pattern[6] = {root, root + 7, root + 12, root + 12 + c.intervals[1], root + 12, root + 7};
    for (int t = 0; t < c.length / 2; ++t) out += Name(pattern[t % 6]) + ":2 ";
    if (c.lastInBar) out += "| ";
  }
  return out;
}

std::string Repeat(const std::string& s, int n) {
  std::string out;
  for (int i = 0; i < n; ++i) out += s + " | ";
  return out;
}

// Bars of rest.
std::string Rests(int bars, int sixteenthsPerBar) { return Repeat("r" + Len(sixteenthsPerBar), bars); }

// --- Minuet in G major (BWV Anh. 114, from the notebook for Anna Magdalena Bach) --------

Piece Minuet() {
  Piece p;
  p.file = "minuet-in-g.mid";
  p.title = "Minuet in G major";
  p.bpm = 120;
  p.beatsPerBar = 3;
  const std::string a1 =
      "D5:4 G4:2 A4 B4 C5 | D5:4 G4 G4 | E5:4 C5:2 D5 E5 F#5 | G5:4 G4 G4 | "
      "C5:4 D5:2 C5 B4 A4 | B4:4 C5:2 B4 A4 G4 | F#4:4 G4:2 A4 B4 G4 | A4:12 | ";
  const std::string a2 =
      "D5:4 G4:2 A4 B4 C5 | D5:4 G4 G4 | E5:4 C5:2 D5 E5 F#5 | G5:4 G4 G4 | "
      "C5:4 D5:2 C5 B4 A4 | B4:4 C5:2 B4 A4 G4 | A4:4 B4:2 A4 G4 F#4 | G4:12 | ";
  const std::string b1 =
      "B5:4 G5:2 A5 B5 G5 | A5:4 D5:2 E5 F#5 D5 | G5:4 E5:2 F#5 G5 D5 | C#5:4 B4:2 C#5 A4:4 | "
      "A4:2 B4 C#5 D5 E5 F#5 | G5:4 F#5 E5 | F#5:4 A4 C#5 | D5:12 | ";
  const std::string b2 =
      "D5:4 G4:2 F#4 G4:4 | E5:4 G4:2 F#4 G4:4 | D5:4 C5 B4 | A4:2 G4 F#4 G4 A4:4 | "
      "D4:2 E4 F#4 G4 A4 B4 | C5:4 B4 A4 | B4:2 D5 G4:4 F#4 | G4:12 | ";
  const std::string bassA1 = "G3+B3+D4:8 A3:4 | B3:12 | C4:12 | B3:12 | A3:12 | G3:12 | D4:4 B3 G3 | D4:4 D3 C4 | ";
  const std::string bassA2 = "G3+B3+D4:8 A3:4 | B3:12 | C4:12 | B3:12 | A3:12 | G3:12 | C4:4 D4 D3 | G3:8 G2:4 | ";
  const std::string bassB1 =
      "G3:12 | F#3:12 | E3:8 G3:4 | A3:8 A2:4 | A3:8 G3:4 | B3:4 A3 G3 | D4:4 A3 A2 | D3:4 D4 C4 | ";
  const std::string bassB2 = "B3:12 | C4:12 | B3:4 A3 G3 | C4:8 D4:4 | B3:12 | A3:4 G3 F#3 | G3:4 C4 D4 | G3:8 G2:4 | ";
  const std::string melody = a1 + a2 + a1 + a2 + b1 + b2 + b1 + b2;
  const std::string bass = bassA1 + bassA2 + bassA1 + bassA2 + bassB1 + bassB2 + bassB1 + bassB2;
  p.voices.push_back({"Harpsichord", 6, 110, 50, 92, 0.92, melody});
  p.voices.push_back({"Cello", 42, 92, 80, 84, 0.95, bass});
  return p;
}

// --- Ode to Joy (Beethoven, Ninth Symphony, finale) -------------------------------------

Piece Ode() {
  Piece p;
  p.file = "ode-to-joy.mid";
  p.title = "Ode to Joy";
  p.bpm = 120;
  p.beatsPerBar = 4;
  const int bar = p.sixteenthsPerBar();
  const std::string line1 = "E5:4 E5 F5 G5 | G5 F5 E5 D5 | C5 C5 D5 E5 | E5:6 D5:2 D5:8 | ";
  const std::string line2 = "E5:4 E5 F5 G5 | G5 F5 E5 D5 | C5 C5 D5 E5 | D5:6 C5:2 C5:8 | ";
  const std::string line3 = "D5:4 D5 E5 C5 | D5:4 E5:2 F5 E5:4 C5 | D5:4 E5:2 F5 E5:4 D5 | C5:4 D5 G4:8 | ";
  const std::string theme = line1 + line2 + line3 + line2;
  const std::string chart1 = "C | G7 | C | C G | C | G7 | C | G C | ";
  const std::string chart2 = "G C | G7 C | G7 | D7 G | C | G7 | C | G C | ";
  const std::string chart = chart1 + chart2;
  // Three times through: clarinet alone, then violins, then both with the violins an octave up.
  // The octave digits (after a letter or an accidental) go up by one; lengths stay.
  std::string violinsUp;
  for (size_t i = 0; i < theme.size(); ++i) {
    const char ch = theme[i];
    const char before = i > 0 ? theme[i - 1] : ' ';
    const bool octave =
        (ch >= '0' && ch <= '9') && ((before >= 'A' && before <= 'G') || before == '#' || before == 'b');
    violinsUp += octave ? static_cast<char>(ch + 1) : ch;
  }
  const std::string clarinet = theme + Rests(16, bar) + theme;
  const std::string violins = Rests(16, bar) + theme + violinsUp;
  const std::string pad = Pad(chart + chart + chart, bar, 55);
  const std::string bass = RootFifth(chart + chart + chart, bar, 36);
  p.voices.push_back({"Clarinet", 71, 108, 44, 96, 0.9, clarinet});
  p.voices.push_back({"Violins", 40, 100, 84, 92, 0.95, violins});
  p.voices.push_back({"Strings", 48, 72, 64, 70, 1.0, pad});
  p.voices.push_back({"Pizzicato bass", 45, 110, 64, 96, 0.8, bass});
  return p;
}

// --- Greensleeves (English traditional) -------------------------------------------------

Piece Greensleeves() {
  Piece p;
  p.file = "greensleeves.mid";
  p.title = "Greensleeves";
  p.bpm = 92;
  p.beatsPerBar = 3;
  const int bar = p.sixteenthsPerBar();
  const std::string verse =
      "r:8 A4:4 | "
      "C5:8 D5:4 | E5:6 F5:2 E5:4 | D5:8 B4:4 | G4:6 A4:2 B4:4 | "
      "C5:8 A4:4 | A4:6 G#4:2 A4:4 | B4:8 G#4:4 | E4:8 A4:4 | "
      "C5:8 D5:4 | E5:6 F5:2 E5:4 | D5:8 B4:4 | G4:6 A4:2 B4:4 | "
      "C5:6 B4:2 A4:4 | G#4:6 F#4:2 G#4:4 | A4:12 | A4:8 r:4 | ";
  const std::string chorus =
      "G5:12 | G5:6 F#5:2 E5:4 | D5:8 B4:4 | G4:6 A4:2 B4:4 | "
      "C5:8 A4:4 | A4:6 G#4:2 A4:4 | B4:8 G#4:4 | E4:12 | "
      "G5:12 | G5:6 F#5:2 E5:4 | D5:8 B4:4 | G4:6 A4:2 B4:4 | "
      "C5:6 B4:2 A4:4 | G#4:6 F#4:2 G#4:4 | A4:12 | A4:12 | ";
  const std::string chart =
      "Am | Am | C | G | Em | Am | F | E | E | Am | C | G | Em | Am | E | Am | Am | "
      "C | Em | G | Em | Am | F | E | E | C | Em | G | Em | Am | E | Am | Am | ";
  p.voices.push_back({"Flute", 73, 104, 54, 92, 0.95, verse + chorus});
  p.voices.push_back({"Nylon guitar", 24, 112, 76, 84, 1.0, Arpeggio(chart, bar, 45)});
  p.voices.push_back({"Strings", 48, 60, 64, 60, 1.0, Pad(chart, bar, 57)});
  return p;
}

}  // namespace

std::vector<Piece> Pieces() { return {Minuet(), Ode(), Greensleeves()}; }

}  // namespace music
