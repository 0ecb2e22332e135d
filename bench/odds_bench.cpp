// Speed of talvero-odds: the 32 holds of one hand from the tables (as --batch does, JSON
// included), the same without tables (one hand in one process), a plain enumeration of the
// draws classified by ClasseMain for comparison, the tables, and the whole return.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <random>
#include <thread>
#include <vector>

#include "classic/selection_rules.h"
#include "core/evaluation.h"
#include "odds/engine.h"
#include "odds/json.h"

namespace {

std::vector<odds::Hand> RandomHands(int jokers, int count) {
  std::mt19937 rng(42u + jokers);
  std::vector<Byte> deck;
  for (int c = 0; c < 52 + jokers; ++c) deck.push_back(static_cast<Byte>(c));
  std::vector<odds::Hand> hands;
  for (int i = 0; i < count; ++i) {
    std::shuffle(deck.begin(), deck.end(), rng);
    hands.push_back({deck[0], deck[1], deck[2], deck[3], deck[4]});
  }
  return hands;
}

const odds::Tables& GameTables(int jokers) {
  static std::unique_ptr<odds::Tables> tables[3];
  if (!tables[jokers]) tables[jokers] = std::make_unique<odds::Tables>(odds::Tables::ForGame(jokers));
  return *tables[jokers];
}

int Threads() { return static_cast<int>(std::max(1u, std::thread::hardware_concurrency())); }

void BM_OddsBatchHand(benchmark::State& state) {
  const int jokers = static_cast<int>(state.range(0));
  const odds::Tables& tables = GameTables(jokers);
  const odds::PayTable pay = odds::PayTableClassic(jokers);
  const auto hands = RandomHands(jokers, 1000);
  std::size_t k = 0;
  for (auto _ : state) {
    const odds::Hand& h = hands[k++ % hands.size()];
    std::string line = odds::HandJson(jokers, h, odds::AnalyseHand(tables, pay, h));
    benchmark::DoNotOptimize(line);
  }
}
BENCHMARK(BM_OddsBatchHand)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

void BM_OddsDirectHand(benchmark::State& state) {
  const int jokers = static_cast<int>(state.range(0));
  const odds::PayTable pay = odds::PayTableClassic(jokers);
  odds::GameClassifier::Get();
  const auto hands = RandomHands(jokers, 16);
  std::size_t k = 0;
  for (auto _ : state) {
    auto holds = odds::AnalyseHandDirect(jokers, pay, hands[k++ % hands.size()], Threads());
    benchmark::DoNotOptimize(holds);
  }
}
BENCHMARK(BM_OddsDirectHand)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

// Every draw of every hold, each final hand classified by ClasseMain: what the tables spare.
void BM_OddsPlainEnumeration(benchmark::State& state) {
  const int jokers = static_cast<int>(state.range(0));
  const auto hands = RandomHands(jokers, 4);
  std::size_t k = 0;
  for (auto _ : state) {
    const odds::Hand& deal = hands[k++ % hands.size()];
    std::vector<Byte> left;
    for (int c = 0; c < 52 + jokers; ++c)
      if (std::find(deal.begin(), deal.end(), c) == deal.end()) left.push_back(static_cast<Byte>(c));
    std::array<odds::Counts, odds::kHolds> counts{};
    for (unsigned held = 0; held < odds::kHolds; ++held) {
      odds::Hand f{};
      int kept = 0;
      for (int i = 0; i < 5; ++i)
        if (held & (1u << i)) f[kept++] = deal[i];
      // Every set of 5 - kept cards of the rest of the deck.
      const int draw = 5 - kept, n = static_cast<int>(left.size());
      std::array<int, 5> idx{};
      for (int i = 0; i < draw; ++i) idx[i] = i;
      while (true) {
        for (int i = 0; i < draw; ++i) f[kept + i] = left[idx[i]];
        ++counts[held][ClasseMain(f)];
        int i = draw - 1;
        while (i >= 0 && idx[i] == n - draw + i) --i;
        if (i < 0) break;
        ++idx[i];
        for (int j = i + 1; j < draw; ++j) idx[j] = idx[j - 1] + 1;
      }
    }
    benchmark::DoNotOptimize(counts);
  }
}
BENCHMARK(BM_OddsPlainEnumeration)->Arg(2)->Unit(benchmark::kMillisecond)->Iterations(4);

void BM_OddsTables(benchmark::State& state) {
  const int jokers = static_cast<int>(state.range(0));
  for (auto _ : state) {
    odds::Tables t = odds::Tables::ForGame(jokers);
    benchmark::DoNotOptimize(t);
  }
}
BENCHMARK(BM_OddsTables)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

// What --return does: the tables, then every deal under perfect play and the automatic selection.
void BM_OddsReturn(benchmark::State& state) {
  const int jokers = static_cast<int>(state.range(0));
  for (auto _ : state) {
    const odds::ReturnResult r = odds::ComputeReturn(odds::Tables::ForGame(jokers), odds::PayTableClassic(jokers),
                                                     SélectionAutomatique, Threads());
    benchmark::DoNotOptimize(r.perfect.ret);
  }
}
BENCHMARK(BM_OddsReturn)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

}  // namespace
