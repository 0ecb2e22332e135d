#include "odds/json.h"

#include <charconv>

namespace odds {

std::string Number(double v) {
  char buf[32];
  const auto r = std::to_chars(buf, buf + sizeof buf, v);
  return std::string(buf, r.ptr);
}

std::string HandJson(int jokers, const Hand& hand, const std::vector<Hold>& holds) {
  std::string s;
  s.reserve(4096);
  s += "{\"jokers\":" + std::to_string(jokers) + ",\"hand\":[";
  for (int i = 0; i < 5; ++i) {
    if (i) s += ',';
    s += std::to_string(hand[i]);
  }
  s += "],\"holds\":[";
  for (std::size_t k = 0; k < holds.size(); ++k) {
    const Hold& h = holds[k];
    s += k ? ",{\"held\":[" : "{\"held\":[";
    bool first = true;
    for (int i = 0; i < 5; ++i) {
      if (!(h.held & (1u << i))) continue;
      if (!first) s += ',';
      s += std::to_string(hand[i]);
      first = false;
    }
    s += "],\"counts\":[";
    for (int c = 0; c < kClasses; ++c) {
      if (c) s += ',';
      s += std::to_string(h.counts[c]);
    }
    s += "],\"total\":";
    s += std::to_string(h.total);
    s += ",\"ev\":";
    s += Number(h.ev);
    s += '}';
  }
  s += "]}";
  return s;
}

std::string FiguresJson(const Figures& f) {
  std::string s = "{\"return\":" + Number(f.ret) + ",\"fraction\":\"" + ToString(f.numerator) + "/" +
                  ToString(f.denominator) + "\",\"classes\":[";
  for (int c = 0; c < kClasses; ++c) s += (c ? "," : "") + Number(f.classes[c]);
  return s + "]}";
}

namespace {

std::string ChoiceJson(const GridChoice& c) {
  std::string s = "{\"down\":[";
  bool first = true;
  for (int p = 0; p < kGridPositions; ++p) {
    if (!(c.down & (1u << p))) continue;
    s += (first ? "" : ",") + std::to_string(p);
    first = false;
  }
  s += "],\"ev\":" + Number(c.ev) + ",\"lines\":[";
  for (std::size_t i = 0; i < c.lines.size(); ++i) s += (i ? "," : "") + Number(c.lines[i]);
  return s + "]}";
}

}  // namespace

std::string GridJson(const GridOdds& odds, const GridChoice& advice, const GridChoice& best) {
  std::string s =
      "{\"jokers\":" + std::to_string(odds.jokers) + ",\"level\":" + std::to_string(odds.level) + ",\"grid\":[";
  for (int p = 0; p < kGridPositions; ++p) s += (p ? "," : "") + std::to_string(odds.grid[p]);
  return s + "],\"advice\":" + ChoiceJson(advice) + ",\"best\":" + ChoiceJson(best) + "}";
}

}  // namespace odds
