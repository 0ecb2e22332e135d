// talvero-odds: exact counts and expected values of the 32 holds of a hand of the classic
// game, and the return of the classic game under perfect play and under the automatic
// selection; for a grid of JEU 2, the expected pay of the advice's choice of cards to turn
// down and of the best choice, and JEU 2's return under both over random grids. Hands are
// classified by the game's own evaluation, paid by its pay tables.
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
#include "odds/grid.h"
#include "odds/json.h"

namespace {

using odds::Hand;
using odds::Hold;

constexpr const char* kUsage =
    "usage: talvero-odds [--jokers N] [--json] C1 C2 C3 C4 C5\n"
    "       talvero-odds [--jokers N] --batch      (one hand a line on standard input)\n"
    "       talvero-odds [--jokers N] [--json] --return\n"
    "       talvero-odds --grid [--level L] [--jokers N] [--json] C1 ... C25\n"
    "       talvero-odds --grid --batch [--level L] [--jokers N]   (one grid a line on standard input)\n"
    "       talvero-odds --grid --return [--level L] [--jokers N] [--deals D] [--seed S] [--json]\n"
    "N is 0, 1 or 2 (2 by default). A card is a code 0..53, a rank 2-9 T J Q K A and a suit\n"
    "c d h s (As, Td, 7c), or JK for a joker. The expected values are per unit of bet, by the\n"
    "pay table of JEU 1 for the deck.\n"
    "With --grid: the 25 cards of a grid of JEU 2 row by row, L lines in play (1..12, 12 by\n"
    "default); the expected pay per unit of Mise of the advice's choice (CONSEILS) and of the\n"
    "best choice of cards to turn down. --return estimates JEU 2's return over D random grids\n"
    "(10000 by default) drawn from the seed S (1 by default).\n";

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

// JEU 2: the two choices of a grid side by side.
std::string Positions(std::uint32_t down) {
  std::string s;
  for (int p = 0; p < odds::kGridPositions; ++p)
    if (down & (1u << p)) s += " " + std::to_string(p);
  return s.empty() ? " none" : s;
}

std::string Row(const odds::Grid& grid, std::uint32_t down, int row) {
  std::string s;
  for (int p = 5 * row; p < 5 * row + 5; ++p)
    s += (p % 5 ? " " : "") + (down & (1u << p) ? "--" : odds::CardName(grid[p]));
  return s;
}

void PrintGrid(const odds::GridOdds& o, const odds::GridChoice& advice, const odds::GridChoice& best) {
  std::printf("JEU 2 at level %d (lines 1 to %d), deck of %d cards (%d joker%s), %d cards not dealt\n", o.level,
              o.level, 52 + o.jokers, o.jokers, o.jokers == 1 ? "" : "s", o.undealt);
  std::printf("Expected pay per unit of Mise; -- is a card turned down.\n\n");
  // A card's name takes two columns on a terminal, whatever its bytes.
  std::printf("%-8s %-20s %s\n", "", "advice (CONSEILS)", "best choice");
  for (int row = 0; row < 5; ++row)
    std::printf("row %-4d %s%6s %s\n", row + 1, Row(o.grid, advice.down, row).c_str(), "",
                Row(o.grid, best.down, row).c_str());
  std::printf("\nturned down by the advice:%s\n", Positions(advice.down).c_str());
  std::printf("turned down by the best choice:%s\n\n", Positions(best.down).c_str());
  std::printf("%-8s %20s %20s\n", "", "advice (CONSEILS)", "best choice");
  for (int line = 1; line <= o.level; ++line)
    std::printf("line %-3d %20.6f %20.6f\n", line, advice.lines[line - 1], best.lines[line - 1]);
  std::printf("%-8s %20.6f %20.6f\n", "total", advice.ev, best.ev);
  std::printf("\nThe best choice is worth %.6f more than the advice per unit of Mise (%.6f %% of the stake).\n",
              best.ev - advice.ev, 100 * (best.ev - advice.ev) / o.level);
}

int Grid(const std::vector<std::string>& cards, int jokers, int level, bool json) {
  odds::Grid grid{};
  std::string error;
  if (!odds::ParseGrid(cards, jokers, grid, error)) Fail(error);
  const odds::GridOdds o = odds::AnalyseGrid(grid, jokers, level);
  const odds::GridChoice advice = odds::AdviceChoice(o), best = odds::BestChoice(o);
  if (json)
    std::printf("%s\n", odds::GridJson(o, advice, best).c_str());
  else
    PrintGrid(o, advice, best);
  return 0;
}

int GridBatch(int jokers, int level) {
  // Every line is read and checked before anything is written.
  std::vector<odds::Grid> grids;
  std::string line;
  for (int number = 1; std::getline(std::cin, line); ++number) {
    const auto words = Words(line);
    if (words.empty()) continue;
    odds::Grid g{};
    std::string error;
    if (!odds::ParseGrid(words, jokers, g, error)) Fail("line " + std::to_string(number) + ": " + error);
    grids.push_back(g);
  }
  for (const odds::Grid& g : grids) {
    const odds::GridOdds o = odds::AnalyseGrid(g, jokers, level);
    std::printf("%s\n", odds::GridJson(o, odds::AdviceChoice(o), odds::BestChoice(o)).c_str());
  }
  return 0;
}

int GridReturn(int jokers, int level, long long deals, unsigned long long seed, bool json) {
  const bool bar = isatty(STDERR_FILENO);
  const odds::GridReturnResult r =
      odds::GridReturn(jokers, level, deals, seed, Threads(),
                       bar ? std::function<void(double)>(Progress) : std::function<void(double)>());
  if (bar) std::fprintf(stderr, "\r\033[K");
  const auto figures = [](const odds::Estimate& e) {
    return "{\"return\":" + odds::Number(e.mean) + ",\"error\":" + odds::Number(e.error) + "}";
  };
  if (json) {
    std::printf(
        "{\"jokers\":%d,\"level\":%d,\"deals\":%lld,\"seed\":%llu,\"advice\":%s,\"best\":%s,\"difference\":%s}\n",
        jokers, level, deals, seed, figures(r.advice).c_str(), figures(r.best).c_str(), figures(r.difference).c_str());
    return 0;
  }
  std::printf("JEU 2 at level %d with %d joker%s: %lld random grids of %d cards (seed %llu)\n", level, jokers,
              jokers == 1 ? "" : "s", deals, 52 + jokers, seed);
  std::printf("return: the expected pay over the stake (level x Mise)\n\n");
  std::printf("%-20s %14s %16s\n", "", "return", "standard error");
  std::printf("%-20s %12.6f %% %14.6f %%\n", "advice (CONSEILS)", 100 * r.advice.mean, 100 * r.advice.error);
  std::printf("%-20s %12.6f %% %14.6f %%\n", "best choice", 100 * r.best.mean, 100 * r.best.error);
  std::printf("%-20s %12.6f %% %14.6f %%\n", "difference", 100 * r.difference.mean, 100 * r.difference.error);
  return 0;
}

// The value of an option written "--name V" or "--name=V"; `needs` says what V is.
std::string OptionValue(int argc, char** argv, int& i, const std::string& name, const std::string& needs) {
  const std::string a = argv[i];
  if (a != name) return a.substr(name.size() + 1);
  if (i + 1 >= argc) Fail(name + " needs " + needs);
  return argv[++i];
}

bool IsOption(const std::string& a, const std::string& name) { return a == name || a.rfind(name + "=", 0) == 0; }

// A whole number of at most `digits` digits in [low, high], or -1.
long long WholeNumber(const std::string& v, std::size_t digits, long long low, long long high) {
  if (v.empty() || v.size() > digits ||
      !std::all_of(v.begin(), v.end(), [](unsigned char c) { return std::isdigit(c); }))
    return -1;
  const long long n = std::stoll(v);
  return n >= low && n <= high ? n : -1;
}

}  // namespace

int main(int argc, char** argv) {
  int jokers = 2, level = 12;
  long long deals = 10000;
  unsigned long long seed = 1;
  bool json = false, batch = false, ret = false, grid = false;
  std::string levelGiven, returnOptionGiven;
  std::vector<std::string> cards;
  for (int i = 1; i < argc; ++i) {
    const std::string a = argv[i];
    if (a == "--help" || a == "-h") {
      std::fputs(kUsage, stdout);
      return 0;
    } else if (IsOption(a, "--jokers")) {
      const std::string v = OptionValue(argc, argv, i, "--jokers", "a number: 0, 1 or 2");
      if (v != "0" && v != "1" && v != "2") Fail("--jokers must be 0, 1 or 2, not '" + v + "'");
      jokers = v[0] - '0';
    } else if (IsOption(a, "--level")) {
      const std::string v = OptionValue(argc, argv, i, "--level", "a number: 1 to 12");
      level = static_cast<int>(WholeNumber(v, 2, 1, 12));
      if (level < 0) Fail("--level must be 1 to 12, not '" + v + "'");
      levelGiven = "--level";
    } else if (IsOption(a, "--deals")) {
      const std::string v = OptionValue(argc, argv, i, "--deals", "a number of grids");
      deals = WholeNumber(v, 9, 1, 999999999);
      if (deals < 0) Fail("--deals must be a whole number from 1 to 999999999, not '" + v + "'");
      returnOptionGiven = "--deals";
    } else if (IsOption(a, "--seed")) {
      const std::string v = OptionValue(argc, argv, i, "--seed", "a whole number");
      const long long n = WholeNumber(v, 18, 0, 999999999999999999);
      if (n < 0) Fail("--seed must be a whole number of at most 18 digits, not '" + v + "'");
      seed = static_cast<unsigned long long>(n);
      returnOptionGiven = "--seed";
    } else if (a == "--json") {
      json = true;
    } else if (a == "--batch") {
      batch = true;
    } else if (a == "--return") {
      ret = true;
    } else if (a == "--grid") {
      grid = true;
    } else if (a.size() > 1 && a[0] == '-' && !std::isdigit(static_cast<unsigned char>(a[1]))) {
      Fail("unknown option '" + a + "' (see --help)");
    } else {
      cards.push_back(a);
    }
  }
  if (batch && ret) Fail("--batch and --return cannot go together");
  if (!grid && !levelGiven.empty()) Fail(levelGiven + " goes with --grid");
  if (!(grid && ret) && !returnOptionGiven.empty()) Fail(returnOptionGiven + " goes with --grid --return");
  if ((batch || ret) && !cards.empty())
    Fail(std::string(
             batch ? (grid ? "--batch reads its grids on standard input" : "--batch reads its hands on standard input")
                   : "--return takes no cards") +
         ", but cards were given");
  if (grid && ret) return GridReturn(jokers, level, deals, seed, json);
  if (grid && batch) return GridBatch(jokers, level);
  if (ret) return Return(jokers, json);
  if (batch) return Batch(jokers);
  if (cards.empty()) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  if (grid) return Grid(cards, jokers, level, json);
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
