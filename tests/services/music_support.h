// Small MIDI files written by the music tests.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <utility>
#include <vector>

namespace music_test {

inline void Put(QByteArray& out, unsigned v, int bytes) {
  for (int s = 8 * (bytes - 1); s >= 0; s -= 8) out.append(static_cast<char>((v >> s) & 0xff));
}

inline void PutVarLen(QByteArray& out, unsigned v) {
  QByteArray rev;
  rev.append(static_cast<char>(v & 0x7f));
  while (v >>= 7) rev.append(static_cast<char>(0x80 | (v & 0x7f)));
  for (auto i = rev.size(); i > 0; --i) out.append(rev[i - 1]);
}

// A one-track file at 480 ticks a quarter: a tempo (microseconds a quarter) at each given
// tick, and one middle C from tick 0 to `endTick`, where the track ends.
inline QByteArray OneNoteFile(const std::vector<std::pair<unsigned, unsigned>>& tempos, unsigned endTick) {
  QByteArray track;
  unsigned at = 0;
  PutVarLen(track, 0);
  track.append("\x90\x3c\x64", 3);
  for (const auto& [tick, usPerQuarter] : tempos) {
    PutVarLen(track, tick - at);
    at = tick;
    track.append("\xff\x51\x03", 3);
    Put(track, usPerQuarter, 3);
  }
  PutVarLen(track, endTick - at);
  track.append("\x80\x3c\x40", 3);
  PutVarLen(track, 0);
  track.append("\xff\x2f\x00", 3);
  QByteArray file("MThd");
  Put(file, 6, 4);
  Put(file, 0, 2);
  Put(file, 1, 2);
  Put(file, 480, 2);
  file.append("MTrk");
  Put(file, static_cast<unsigned>(track.size()), 4);
  file.append(track);
  return file;
}

inline bool WriteFile(const QString& path, const QByteArray& bytes) {
  QFile f(path);
  return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(bytes) == bytes.size();
}

}  // namespace music_test
