#include "services/midi_file.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

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
