// Speed of JEU 2's odds (talvero-odds --grid): the 32 expectations of each of the twelve lines of
// a level-12 grid, the exact best choice alone, and the whole analysis of one grid as the tool
// writes it (expectations, the advice's choice, the best choice, the JSON), over random grids.
#include <benchmark/benchmark.h>

#include <vector>

#include "odds/grid.h"
#include "odds/json.h"

namespace {

constexpr int kLevel = 12;

std::vector<odds::Grid> Grids(int jokers) {
  std::mt19937_64 rng(77u + static_cast<unsigned>(jokers));
  std::vector<odds::Grid> grids;
  for (int i = 0; i < 256; ++i) grids.push_back(odds::RandomGrid(rng, jokers));
  return grids;
}

void BM_GridLineExpectations(benchmark::State& state) {
  const int jokers = static_cast<int>(state.range(0));
  const auto grids = Grids(jokers);
  odds::GameClassifier::Get();
  std::size_t k = 0;
  for (auto _ : state) {
    const odds::GridOdds o = odds::AnalyseGrid(grids[k++ % grids.size()], jokers, kLevel);
    benchmark::DoNotOptimize(o.value);
  }
}
BENCHMARK(BM_GridLineExpectations)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

void BM_GridBestChoice(benchmark::State& state) {
  const int jokers = static_cast<int>(state.range(0));
  std::vector<odds::GridOdds> analyses;
  for (const odds::Grid& g : Grids(jokers)) analyses.push_back(odds::AnalyseGrid(g, jokers, kLevel));
  std::size_t k = 0;
  for (auto _ : state) {
    const odds::GridChoice best = odds::BestChoice(analyses[k++ % analyses.size()]);
    benchmark::DoNotOptimize(best.value);
  }
}
BENCHMARK(BM_GridBestChoice)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

void BM_GridWholeAnalysis(benchmark::State& state) {
  const int jokers = static_cast<int>(state.range(0));
  const auto grids = Grids(jokers);
  odds::GameClassifier::Get();
  std::size_t k = 0;
  for (auto _ : state) {
    const odds::GridOdds o = odds::AnalyseGrid(grids[k++ % grids.size()], jokers, kLevel);
    std::string line = odds::GridJson(o, odds::AdviceChoice(o), odds::BestChoice(o));
    benchmark::DoNotOptimize(line);
  }
  state.SetLabel("one level-12 grid: 12 x 32 expectations, advice, best choice, JSON");
}
BENCHMARK(BM_GridWholeAnalysis)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

}  // namespace
