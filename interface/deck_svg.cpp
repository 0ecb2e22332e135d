#include "interface/deck_svg.h"

#include <zlib.h>

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <cctype>
#include <utility>
#include <vector>

#ifndef TALVERO_CARD_DECK
#define TALVERO_CARD_DECK "/usr/share/carddecks/svg-nicu-white/white.svgz"
#endif

namespace pics {

// The deck's element ids: ranks two..ace, suits clubs, diamonds, hearts, spades.
QString CardElement(int code) {
  static const char* const ranks[13] = {"2", "3", "4", "5", "6", "7", "8", "9", "10", "jack", "queen", "king", "1"};
  static const char* const suits[4] = {"club", "diamond", "heart", "spade"};
  if (code == 52) return QStringLiteral("black_joker");
  if (code == 53) return QStringLiteral("red_joker");
  if (code == 54) return QStringLiteral("back_c9");
  return QStringLiteral("%1_%2").arg(QLatin1String(ranks[code % 13]), QLatin1String(suits[code / 13]));
}

QString DeckFile() { return QStringLiteral(TALVERO_CARD_DECK); }

namespace {
// The text of a file, inflated when it is gzip-compressed (an .svgz).
QByteArray ReadInflated(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  const QByteArray raw = file.readAll();
  if (raw.size() < 2 || static_cast<unsigned char>(raw[0]) != 0x1f || static_cast<unsigned char>(raw[1]) != 0x8b)
    return raw;
  z_stream z{};
  if (inflateInit2(&z, 16 + MAX_WBITS) != Z_OK) return {};
  QByteArray out;
  z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(raw.constData()));
  z.avail_in = static_cast<uInt>(raw.size());
  int status = Z_OK;
  while (status == Z_OK) {
    const qsizetype done = out.size();
    out.resize(done + std::max<qsizetype>(raw.size() * 4, 1 << 16));
    z.next_out = reinterpret_cast<Bytef*>(out.data() + done);
    z.avail_out = static_cast<uInt>(out.size() - done);
    status = inflate(&z, Z_NO_FLUSH);
    out.resize(out.size() - z.avail_out);
  }
  inflateEnd(&z);
  return status == Z_STREAM_END ? out : QByteArray();
}

// The element whose start tag holds `id="ID"`: its start and end offsets in `text`.
struct Span {
  qsizetype from = -1, to = -1;
};
Span ElementWithId(const QByteArray& text, const QByteArray& id) {
  const qsizetype at = text.indexOf("id=\"" + id + "\"");
  if (at < 0) return {};
  const qsizetype from = text.lastIndexOf('<', at);
  const qsizetype startEnd = text.indexOf('>', at);
  if (from < 0 || startEnd < 0) return {};
  qsizetype nameEnd = from + 1;
  while (nameEnd < text.size() && !std::isspace(static_cast<unsigned char>(text[nameEnd])) && text[nameEnd] != '>' &&
         text[nameEnd] != '/')
    ++nameEnd;
  const QByteArray name = text.mid(from + 1, nameEnd - from - 1);
  if (text[startEnd - 1] == '/') return {from, startEnd + 1};
  // Elements of the same name may nest (groups in groups): count them to the matching end.
  int depth = 0;
  qsizetype pos = startEnd + 1;
  while (pos < text.size()) {
    const qsizetype open = text.indexOf("<" + name, pos), close = text.indexOf("</" + name + ">", pos);
    if (close < 0) return {};
    if (open >= 0 && open < close) {
      const char after = open + 1 + name.size() < text.size() ? text[open + 1 + name.size()] : '>';
      const qsizetype end = text.indexOf('>', open);
      if ((std::isspace(static_cast<unsigned char>(after)) || after == '>') && end > 0 && text[end - 1] != '/') ++depth;
      pos = open + 1;
      continue;
    }
    if (depth == 0) return {from, close + name.size() + 3};
    --depth;
    pos = close + 1;
  }
  return {};
}

// The start tags of the groups that enclose `at`, outermost first.
QByteArray EnclosingGroups(const QByteArray& text, qsizetype bodyFrom, qsizetype at) {
  std::vector<std::pair<qsizetype, qsizetype>> open;  // start tags still open
  qsizetype pos = bodyFrom;
  while (true) {
    const qsizetype lt = text.indexOf('<', pos);
    if (lt < 0 || lt >= at) break;
    const qsizetype gt = text.indexOf('>', lt);
    if (gt < 0) break;
    if (text.mid(lt, 3) == "</g" && !open.empty())
      open.pop_back();
    else if (text.mid(lt, 2) == "<g" &&
             (std::isspace(static_cast<unsigned char>(text[lt + 2])) || text[lt + 2] == '>') && text[gt - 1] != '/')
      open.emplace_back(lt, gt + 1);
    pos = gt + 1;
  }
  QByteArray out;
  for (const auto& [from, to] : open) out += text.mid(from, to - from);
  return out;
}
}  // namespace

QByteArray DeckElementDocument(const QString& deckFile, const QString& id) {
  const QByteArray text = ReadInflated(deckFile);
  const qsizetype root = text.indexOf("<svg");
  const qsizetype rootEnd = root < 0 ? -1 : text.indexOf('>', root);
  const Span element = ElementWithId(text, id.toUtf8());
  if (rootEnd < 0 || element.from < 0) return {};
  QByteArray body = text.mid(element.from, element.to - element.from);
  // What the element refers to (gradients, and what they refer to in turn) goes into defs.
  static const QRegularExpression reference(QStringLiteral("url\\(#([^)]+)\\)|href=\"#([^\"]+)\""));
  QByteArray defs;
  QSet<QByteArray> seen;
  std::vector<QByteArray> pending{body};
  while (!pending.empty()) {
    const QString fragment = QString::fromUtf8(pending.back());
    pending.pop_back();
    for (auto it = reference.globalMatch(fragment); it.hasNext();) {
      const auto match = it.next();
      const QByteArray ref = (match.captured(1).isEmpty() ? match.captured(2) : match.captured(1)).toUtf8();
      if (seen.contains(ref)) continue;
      seen.insert(ref);
      const Span target = ElementWithId(text, ref);
      if (target.from < 0) continue;
      const QByteArray piece = text.mid(target.from, target.to - target.from);
      defs += piece;
      pending.push_back(piece);
    }
  }
  const QByteArray groups = EnclosingGroups(text, rootEnd + 1, element.from);
  const QByteArray closing = QByteArray("</g>").repeated(groups.count("<g"));
  return text.mid(root, rootEnd + 1 - root) + "<defs>" + defs + "</defs>" + groups + body + closing + "</svg>";
}

}  // namespace pics
