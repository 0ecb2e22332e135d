// talvero-odds: exact counts and expected values of the 32 holds of a hand of the classic
// game, and the return of the classic game under perfect play and under the automatic
// selection. Hands are classified by the game's own evaluation, paid by its pay tables.
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "classic/selection_rules.h"
#include "odds/cards.h"
#include "odds/engine.h"
#include "odds/json.h"

namespace {

using odds::Hand;
using odds::Hold;

constexpr const char* kUsage =
    "usage: talvero-odds [--jokers N] [--json] C1 C2 C3 C4 C5\n"
    "       talvero-odds [--jokers N] --batch      (one hand a line on standard input)\n"
    "       talvero-odds [--jokers N] [--json] --return\n"
    "N is 0, 1 or 2 (2 by default). A card is a code 0..53, a rank 2-9 T J Q K A and a suit\n"
    "c d h s (As, Td, 7c), or JK for a joker. The expected values are per unit of bet, by the\n"
    "pay table of JEU 1 for the deck.\n";

const char* const kClassNames[odds::kClasses] = {
    "pair of kings or aces", "two pairs",      "three of a kind", "straight",       "flush",  "full house",
    "four of a kind",        "straight flush", "royal flush",     "five of a kind", "nothing"};
const char* const kClassShort[odds::kClasses] = {"KK/AA",  "2 pairs", "3 kind", "straight", "flush",  "full",
                                                 "4 kind", "str.fl.", "royal",  "5 kind",   "nothing"};

[[noreturn]] void Fail(const std::string& message) {
  std::fprintf(stderr, "talvero-odds: %s\n", message.c_str());
  std::exit(2);
}

int Threads() { return static_cast<int>(std::max(1u, std::thread::hardware_concurrency())); }

std::vector<std::string> Words(const std::string& line) {
  std::istringstream in(line);
  std::vector<std::string> w;
  for (std::string s; in >> s;) w.push_back(s);
  return w;
}

void PrintTable(int jokers, const Hand& hand, const std::vector<Hold>& holds) {
  std::string cards;
  for (Byte c : hand) cards += " " + odds::CardName(c);
  const odds::PayTable pay = odds::PayTableClassic(jokers);
  std::printf("Hand%s, deck of %d cards (%d joker%s), %d left to draw from\n", cards.c_str(), 52 + jokers, jokers,
              jokers == 1 ? "" : "s", 47 + jokers);
  std::printf("Pay table of JEU 1 for this deck:");
  for (int c = 0; c < 10; ++c)
    std::printf(" %s %lld%s", kClassShort[c], static_cast<long long>(pay[c]), c < 9 ? "," : "");
  std::printf("\n\n %-15s", "held");
  for (const char* name : kClassShort) std::printf(" %8s", name);
  std::printf(" %8s %11s\n", "draws", "EV");
  for (const Hold& h : holds) {
    std::string held;
    for (int i = 0; i < 5; ++i) held += (h.held & (1u << i)) ? " " + odds::CardName(hand[i]) : std::string(" --");
    std::printf("%s", held.c_str());
    for (auto n : h.counts) std::printf(" %8u", n);
    std::printf(" %8u %11.6f\n", h.total, h.ev);
  }
}

void Progress(double fraction) {
  constexpr int kWidth = 40;
  const int filled = static_cast<int>(fraction * kWidth);
  std::string bar(static_cast<std::size_t>(filled), '#');
  bar.resize(kWidth, '-');
  std::fprintf(stderr, "\r[%s] %3d%%", bar.c_str(), static_cast<int>(fraction * 100));
  std::fflush(stderr);
}

int Return(int jokers, bool json) {
  const bool bar = isatty(STDERR_FILENO);
  if (bar) std::fprintf(stderr, "Building the tables of the %d-card deck...", 52 + jokers);
  const odds::Tables tables = odds::Tables::ForGame(jokers);
  if (bar) std::fprintf(stderr, "\r\033[K");
  const odds::ReturnResult r =
      odds::ComputeReturn(tables, odds::PayTableClassic(jokers), SélectionAutomatique, Threads(),
                          bar ? std::function<void(double)>(Progress) : std::function<void(double)>());
  if (bar) std::fprintf(stderr, "\r\033[K");
  if (json) {
    std::printf("{\"jokers\":%d,\"deals\":%lld,\"perfect\":%s,\"automatic\":%s}\n", jokers,
                static_cast<long long>(r.deals), odds::FiguresJson(r.perfect).c_str(),
                odds::FiguresJson(r.automatic).c_str());
    return 0;
  }
  std::printf("JEU 1 with %d joker%s: %lld deals of %d cards (%lld up to an exchange of suits)\n\n", jokers,
              jokers == 1 ? "" : "s", static_cast<long long>(r.deals), 52 + jokers,
              static_cast<long long>(r.canonicalDeals));
  std::printf("%-24s %20s %20s\n", "", "perfect play", "automatic selection");
  std::printf("%-24s %18.6f %% %18.6f %%\n", "return", 100 * r.perfect.ret, 100 * r.automatic.ret);
  std::printf("probability of the final class\n");
  for (int c = 0; c < odds::kClasses; ++c)
    std::printf("  %-22s %20.10f %20.10f\n", kClassNames[c], r.perfect.classes[c], r.automatic.classes[c]);
  std::printf("\nperfect play, exactly:        %s/%s\n", odds::ToString(r.perfect.numerator).c_str(),
              odds::ToString(r.perfect.denominator).c_str());
  std::printf("automatic selection, exactly: %s/%s\n", odds::ToString(r.automatic.numerator).c_str(),
              odds::ToString(r.automatic.denominator).c_str());
  std::printf("\nThe automatic selection costs %.6f %% of the bet against perfect play.\n",
              100 * (r.perfect.ret - r.automatic.ret));
  return 0;
}

int Batch(int jokers) {
  // Every line is read and checked before anything is written.
  std::vector<Hand> hands;
  std::string line;
  for (int number = 1; std::getline(std::cin, line); ++number) {
    const auto words = Words(line);
    if (words.empty()) continue;
    Hand h{};
    std::string error;
    if (!odds::ParseHand(words, jokers, h, error)) Fail("line " + std::to_string(number) + ": " + error);
    hands.push_back(h);
  }
  if (hands.empty()) return 0;
  const odds::Tables tables = odds::Tables::ForGame(jokers);
  const odds::PayTable pay = odds::PayTableClassic(jokers);
  std::string out;
  for (const Hand& h : hands) {
    out += odds::HandJson(jokers, h, odds::AnalyseHand(tables, pay, h));
    out += '\n';
    if (out.size() > (1u << 16)) {
      std::fwrite(out.data(), 1, out.size(), stdout);
      out.clear();
    }
  }
  std::fwrite(out.data(), 1, out.size(), stdout);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  int jokers = 2;
  bool json = false, batch = false, ret = false;
  std::vector<std::string> cards;
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    if (a == "--help" || a == "-h") {
      std::fputs(kUsage, stdout);
      return 0;
    } else if (a == "--jokers" || a.rfind("--jokers=", 0) == 0) {
      std::string v;
      if (a == "--jokers") {
        if (i + 1 >= argc) Fail("--jokers needs a number: 0, 1 or 2");
        v = argv[++i];
      } else {
        v = a.substr(9);
      }
      if (v != "0" && v != "1" && v != "2") Fail("--jokers must be 0, 1 or 2, not '" + v + "'");
      jokers = v[0] - '0';
    } else if (a == "--json") {
      json = true;
    } else if (a == "--batch") {
      batch = true;
    } else if (a == "--return") {
      ret = true;
    } else if (a.size() > 1 && a[0] == '-' && !std::isdigit(static_cast<unsigned char>(a[1]))) {
      Fail("unknown option '" + a + "' (see --help)");
    } else {
      cards.push_back(a);
    }
  }
  if (batch && ret) Fail("--batch and --return cannot go together");
  if ((batch || ret) && !cards.empty())
    Fail(std::string(batch ? "--batch reads its hands on standard input" : "--return takes no cards") +
         ", but cards were given");
  if (ret) return Return(jokers, json);
  if (batch) return Batch(jokers);
  if (cards.empty()) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  Hand hand{};
  std::string error;
  if (!odds::ParseHand(cards, jokers, hand, error)) Fail(error);
  const auto holds = odds::AnalyseHandDirect(jokers, odds::PayTableClassic(jokers), hand, Threads());
  if (json)
    std::printf("%s\n", odds::HandJson(jokers, hand, holds).c_str());
  else
    PrintTable(jokers, hand, holds);
  return 0;
}
