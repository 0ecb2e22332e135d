// Writes the game's pieces as Standard MIDI Files (format 1) into the directory given as the
// one argument. Run by the build; the files are not kept in the source tree.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "assets/music/score.h"

namespace {

constexpr int kTicksPerQuarter = 480;
constexpr int kTicksPerSixteenth = kTicksPerQuarter / 4;

struct Event {
  long tick = 0;
  int order = 0;  // at one tick: 0 meta and controllers, 1 note off, 2 note on
  std::vector<std::uint8_t> bytes;
};

int ParseNote(const std::string& token) {
  static const int kLetters[7] = {9, 11, 0, 2, 4, 5, 7};  // A..G
  size_t i = 0;
  if (token.empty() || token[0] < 'A' || token[0] > 'G') throw std::runtime_error("bad note '" + token + "'");
  int pc = kLetters[token[i++] - 'A'];
  if (i < token.size() && token[i] == '#') ++pc, ++i;
  if (i < token.size() && token[i] == 'b') --pc, ++i;
  if (i + 1 != token.size() || token[i] < '0' || token[i] > '9') throw std::runtime_error("bad note '" + token + "'");
  const int midi = (token[i] - '0' + 1) * 12 + pc;
  if (midi < 0 || midi > 127) throw std::runtime_error("note out of range '" + token + "'");
  return midi;
}

// The events of one voice on `channel`; returns its length in ticks.
long Notes(const music::Piece& piece, const music::Voice& voice, int channel, std::vector<Event>& events) {
  std::istringstream in(voice.notes);
  long tick = 0;
  long barStart = 0;
  int bar = 1;
  int length = 4;
  const long barTicks = static_cast<long>(piece.sixteenthsPerBar()) * kTicksPerSixteenth;
  for (std::string token; in >> token;) {
    if (token == "|") {
      if (tick - barStart != barTicks)
        throw std::runtime_error(piece.title + ", " + voice.name + ": bar " + std::to_string(bar) + " holds " +
                                 std::to_string((tick - barStart) / kTicksPerSixteenth) + " sixteenths");
      barStart = tick;
      ++bar;
      continue;
    }
    std::string pitches = token;
    if (const auto colon = token.find(':'); colon != std::string::npos) {
      pitches = token.substr(0, colon);
      length = std::stoi(token.substr(colon + 1));
      if (length <= 0) throw std::runtime_error("bad length '" + token + "'");
    }
    const long ticks = static_cast<long>(length) * kTicksPerSixteenth;
    if (pitches != "r") {
      // A light accent on the first beat of the bar keeps the pulse.
      const bool downbeat = tick == barStart;
      const int velocity = std::min(127, voice.velocity + (downbeat ? 10 : 0));
      const long sounding = std::max<long>(1, static_cast<long>(ticks * voice.legato));
      std::istringstream chord(pitches);
      for (std::string one; std::getline(chord, one, '+');) {
        const auto note = static_cast<std::uint8_t>(ParseNote(one));
        const auto status = static_cast<std::uint8_t>(channel);
        events.push_back(
            {tick, 2, {static_cast<std::uint8_t>(0x90 | status), note, static_cast<std::uint8_t>(velocity)}});
        events.push_back({tick + sounding, 1, {static_cast<std::uint8_t>(0x80 | status), note, 64}});
      }
    }
    tick += ticks;
  }
  if (tick != barStart)
    throw std::runtime_error(piece.title + ", " + voice.name + ": the last bar is not closed with '|'");
  return tick;
}

void PutVarLen(std::vector<std::uint8_t>& out, unsigned long v) {
  std::uint8_t buf[5];
  int n = 0;
  buf[n++] = v & 0x7f;
  while (v >>= 7) buf[n++] = static_cast<std::uint8_t>(0x80 | (v & 0x7f));
  while (n) out.push_back(buf[--n]);
}

void Put32(std::vector<std::uint8_t>& out, unsigned long v) {
  for (int s = 24; s >= 0; s -= 8) out.push_back(static_cast<std::uint8_t>(v >> s));
}

Event Meta(long tick, std::uint8_t type, const std::string& data) {
  Event e{tick, 0, {0xff, type}};
  PutVarLen(e.bytes, data.size());
  e.bytes.insert(e.bytes.end(), data.begin(), data.end());
  return e;
}

// A track chunk from events, ending at `end`.
std::vector<std::uint8_t> Track(std::vector<Event> events, long end) {
  std::stable_sort(events.begin(), events.end(), [](const Event& a, const Event& b) {
    return a.tick != b.tick ? a.tick < b.tick : a.order < b.order;
  });
  std::vector<std::uint8_t> body;
  long at = 0;
  for (const auto& e : events) {
    PutVarLen(body, static_cast<unsigned long>(e.tick - at));
    body.insert(body.end(), e.bytes.begin(), e.bytes.end());
    at = e.tick;
  }
  PutVarLen(body, static_cast<unsigned long>(end - at));
  body.insert(body.end(), {0xff, 0x2f, 0x00});
  std::vector<std::uint8_t> chunk{'M', 'T', 'r', 'k'};
  Put32(chunk, body.size());
  chunk.insert(chunk.end(), body.begin(), body.end());
  return chunk;
}

std::vector<std::uint8_t> Write(const music::Piece& piece) {
  std::vector<std::vector<Event>> voices;
  long end = -1;
  int channel = 0;
  for (const auto& voice : piece.voices) {
    if (channel == 9) ++channel;  // the percussion channel
    std::vector<Event> ev;
    const auto ch = static_cast<std::uint8_t>(channel);
    ev.push_back(Meta(0, 0x03, voice.name));
    ev.push_back({0, 0, {static_cast<std::uint8_t>(0xc0 | ch), static_cast<std::uint8_t>(voice.program)}});
    ev.push_back({0, 0, {static_cast<std::uint8_t>(0xb0 | ch), 7, static_cast<std::uint8_t>(voice.volume)}});
    ev.push_back({0, 0, {static_cast<std::uint8_t>(0xb0 | ch), 10, static_cast<std::uint8_t>(voice.pan)}});
    ev.push_back({0, 0, {static_cast<std::uint8_t>(0xb0 | ch), 91, 40}});
    const long length = Notes(piece, voice, channel, ev);
    if (end >= 0 && length != end)
      throw std::runtime_error(piece.title + ": " + voice.name + " is not as long as the other voices");
    end = length;
    voices.push_back(std::move(ev));
    ++channel;
  }
  // The conductor track: title, tempo and time signature.
  const unsigned long usPerQuarter = 60000000UL / static_cast<unsigned long>(piece.bpm);
  std::string tempo{static_cast<char>(usPerQuarter >> 16), static_cast<char>(usPerQuarter >> 8),
                    static_cast<char>(usPerQuarter)};
  int log2Unit = 0;
  while ((1 << log2Unit) < piece.beatUnit) ++log2Unit;
  std::string signature{static_cast<char>(piece.beatsPerBar), static_cast<char>(log2Unit), 24, 8};
  std::vector<Event> conductor{Meta(0, 0x03, piece.title), Meta(0, 0x58, signature), Meta(0, 0x51, tempo)};

  std::vector<std::uint8_t> file{'M', 'T', 'h', 'd', 0, 0, 0, 6, 0, 1};
  const auto tracks = voices.size() + 1;
  file.push_back(static_cast<std::uint8_t>(tracks >> 8));
  file.push_back(static_cast<std::uint8_t>(tracks));
  file.push_back(kTicksPerQuarter >> 8);
  file.push_back(kTicksPerQuarter & 0xff);
  const auto c = Track(conductor, end);
  file.insert(file.end(), c.begin(), c.end());
  for (auto& v : voices) {
    const auto t = Track(std::move(v), end);
    file.insert(file.end(), t.begin(), t.end());
  }
  return file;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s OUTPUT_DIRECTORY\n", argv[0]);
    return 2;
  }
  try {
    for (const auto& piece : music::Pieces()) {
      const auto bytes = Write(piece);
      const std::string path = std::string(argv[1]) + "/" + piece.file;
      std::ofstream out(path, std::ios::binary | std::ios::trunc);
      out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
      if (!out) throw std::runtime_error("cannot write " + path);
    }
  } catch (const std::exception& e) {
    std::fprintf(stderr, "talvero-pieces: %s\n", e.what());
    return 1;
  }
  return 0;
}
