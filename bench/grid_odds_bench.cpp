// Speed of JEU 2's odds (talvero-odds --grid) over random level-12 grids: the 32 expectations of
// each of the twelve lines, the whole analysis of one grid as the tool writes it (expectations,
// the advice's choice, the best choice, the JSON), and the exact best choice alone.
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

// The expectations alone (second argument 0), or the whole analysis as the tool writes it (1).
void BM_GridAnalysis(benchmark::State& state) {
  const int jokers = static_cast<int>(state.range(0));
  const bool whole = state.range(1) != 0;
  const auto grids = Grids(jokers);
  odds::GameClassifier::Get();
  std::size_t k = 0;
  for (auto _ : state) {
    const odds::GridOdds o = odds::AnalyseGrid(grids[k++ % grids.size()], jokers, kLevel);
    if (whole) {
      std::string line = odds::GridJson(o, odds::AdviceChoice(o), odds::BestChoice(o));
      benchmark::DoNotOptimize(line);
    }
    benchmark::DoNotOptimize(o.value);
  }
  state.SetLabel(whole ? "one level-12 grid: 12 x 32 expectations, advice, best choice, JSON" : "12 x 32 expectations");
}
BENCHMARK(BM_GridAnalysis)->ArgsProduct({{0, 1, 2}, {0, 1}})->Unit(benchmark::kMicrosecond);

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

}  // namespace
