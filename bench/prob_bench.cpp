// Speed of the probability panel: the counting alone, the counting with the panel's labels,
// and, for comparison, an enumeration of the same draws classified one by one by Résultat.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <memory>
#include <vector>

#include "bench/bench_form.h"
#include "interface/JeuPoker.h"
#include "interface/controls.h"
#include "services/platform.h"

namespace {

struct Shape {
  const char* name;
  std::array<int, 5> cards;
  int jokers;
  int holds;  // bit i holds position i
};

// Representative hold shapes: nothing, one card, a pair, a suited draw, two jokers, four.
const Shape kShapes[] = {
    {"nothing_held", {0, 16, 31, 46, 9}, 2, 0b00000},    {"lone_ace", {12, 16, 31, 46, 9}, 2, 0b00001},
    {"king_and_joker", {11, 52, 31, 46, 9}, 2, 0b00011}, {"pair", {5, 18, 31, 46, 9}, 2, 0b00011},
    {"three_suited", {0, 1, 3, 46, 22}, 2, 0b00111},     {"two_jokers", {52, 53, 31, 46, 9}, 2, 0b00011},
    {"four_to_royal", {8, 9, 10, 11, 30}, 0, 0b01111},
};

void Lay(JeuPoker& f, const Shape& s) {
  f.NbJokers = static_cast<Byte>(s.jokers);
  f.TailleJeu = 52 + s.jokers;
  f.Langue = 2;
  f.NbTirées = 5;
  for (int i = 0; i < 5; ++i) {
    f.CartesTirage(i) = static_cast<Byte>(s.cards[static_cast<std::size_t>(i)]);
    f.MainTriée(i) = static_cast<Byte>(s.cards[static_cast<std::size_t>(i)]);
    f.Jouez(i).SetCaption((s.holds >> i & 1) ? "HOLD" : "REJECT");
  }
  f.Résultat();
}

void Counting(benchmark::State& state) {
  JeuPoker& f = BenchForm();
  const Shape& s = kShapes[state.range(0)];
  Lay(f, s);
  for (auto _ : state) {
    f.CompteProbabilités();
    benchmark::DoNotOptimize(f.Réalisations(10));
  }
  state.SetLabel(s.name);
}

void CountingWithLabels(benchmark::State& state) {
  JeuPoker& f = BenchForm();
  const Shape& s = kShapes[state.range(0)];
  Lay(f, s);
  for (auto _ : state) {
    f.Probabilités();
    benchmark::DoNotOptimize(f.Réalisations(10));
  }
  state.SetLabel(s.name);
}

// Classifies with Résultat every final hand made of the held cards and a set of replacement
// cards drawn from `deck`, adding one to the class of each.
void CountDraws(JeuPoker& f, const std::vector<int>& held, const std::vector<int>& deck,
                std::array<long long, 11>& counts) {
  const int d = 5 - static_cast<int>(held.size());
  const int n = static_cast<int>(deck.size());
  std::vector<int> idx(static_cast<std::size_t>(d));
  for (int i = 0; i < d; ++i) idx[static_cast<std::size_t>(i)] = i;
  while (true) {
    int k = 0;
    for (int h : held) f.MainTriée(k++) = static_cast<Byte>(h);
    for (int i = 0; i < d; ++i)
      f.MainTriée(k++) = static_cast<Byte>(deck[static_cast<std::size_t>(idx[static_cast<std::size_t>(i)])]);
    f.Résultat();
    ++counts[f.RangMain];
    int i = d - 1;
    while (i >= 0 && idx[static_cast<std::size_t>(i)] == n - d + i) --i;
    if (i < 0) return;
    ++idx[static_cast<std::size_t>(i)];
    for (int j = i + 1; j < d; ++j) idx[static_cast<std::size_t>(j)] = idx[static_cast<std::size_t>(j - 1)] + 1;
  }
}

// Every set of replacement cards, each final hand classified by Résultat.
void Enumeration(benchmark::State& state) {
  JeuPoker& f = BenchForm();
  const Shape& s = kShapes[state.range(0)];
  Lay(f, s);
  std::vector<int> held, deck;
  for (int i = 0; i < 5; ++i)
    if (s.holds >> i & 1) held.push_back(s.cards[static_cast<std::size_t>(i)]);
  for (int c = 0; c < 52 + s.jokers; ++c)
    if (std::find(s.cards.begin(), s.cards.end(), c) == s.cards.end()) deck.push_back(c);
  f.NbTirées = 10;
  for (auto _ : state) {
    std::array<long long, 11> counts{};
    CountDraws(f, held, deck, counts);
    benchmark::DoNotOptimize(counts);
  }
  f.NbTirées = 5;
  state.SetLabel(s.name);
}

// One call for each of the 32 hold sets of a table with two jokers in the game: the
// average call over every shape a player can make of it.
const std::array<int, 5> kTable = {0, 16, 31, 46, 9};

void CountingAllHoldSets(benchmark::State& state) {
  JeuPoker& f = BenchForm();
  std::array<Shape, 32> shapes;
  for (int h = 0; h < 32; ++h) shapes[static_cast<std::size_t>(h)] = {"all", kTable, 2, h};
  Lay(f, shapes[0]);
  for (auto _ : state) {
    for (const Shape& s : shapes) {
      for (int i = 0; i < 5; ++i) f.Jouez(i).SetCaption((s.holds >> i & 1) ? "HOLD" : "REJECT");
      f.CompteProbabilités();
      benchmark::DoNotOptimize(f.Réalisations(10));
    }
  }
  state.SetItemsProcessed(state.iterations() * 32);
}

void EnumerationAllHoldSets(benchmark::State& state) {
  JeuPoker& f = BenchForm();
  Lay(f, {"all", kTable, 2, 0});
  f.NbTirées = 10;
  std::vector<int> deck;
  for (int c = 0; c < 54; ++c)
    if (std::find(kTable.begin(), kTable.end(), c) == kTable.end()) deck.push_back(c);
  for (auto _ : state) {
    std::array<long long, 11> counts{};
    for (int holds = 0; holds < 32; ++holds) {
      std::vector<int> held;
      for (int i = 0; i < 5; ++i)
        if (holds >> i & 1) held.push_back(kTable[static_cast<std::size_t>(i)]);
      CountDraws(f, held, deck, counts);
    }
    benchmark::DoNotOptimize(counts);
  }
  f.NbTirées = 5;
  state.SetItemsProcessed(state.iterations() * 32);
}

void Shapes(benchmark::internal::Benchmark* b) {
  for (int i = 0; i < static_cast<int>(std::size(kShapes)); ++i) b->Arg(i);
}

}  // namespace

BENCHMARK(Counting)->Apply(Shapes)->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(CountingWithLabels)->Apply(Shapes)->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(Enumeration)
    ->Apply(Shapes)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(3)
    ->ReportAggregatesOnly(true);

BENCHMARK(CountingAllHoldSets)->Repetitions(5)->ReportAggregatesOnly(true);
BENCHMARK(EnumerationAllHoldSets)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->Repetitions(3)
    ->ReportAggregatesOnly(true);
