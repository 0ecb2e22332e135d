// Speed of the coach: the judging of one deal, a hold click with the coach never opened, open,
// and closed again, and the first opening (its library, Qt Charts and the window).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <random>

#include "bench/bench_form.h"
#include "coach/coach.h"

namespace {

// The 32 holds of a random deal, the deck's tables built.
void CoachJudgeDeal(benchmark::State& state) {
  const int jokers = static_cast<int>(state.range(0));
  coach::Prepare(jokers);
  coach::WaitUntilPrepared(jokers);
  std::mt19937 rng(7);
  std::vector<std::array<std::uint8_t, 5>> deals;
  for (int k = 0; k < 256; ++k) {
    std::vector<std::uint8_t> deck;
    for (int c = 0; c < 52 + jokers; ++c) deck.push_back(static_cast<std::uint8_t>(c));
    std::shuffle(deck.begin(), deck.end(), rng);
    deals.push_back({deck[0], deck[1], deck[2], deck[3], deck[4]});
  }
  std::size_t k = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(coach::Judge(deals[k++ % deals.size()], jokers, 1, 1));
  }
}
BENCHMARK(CoachJudgeDeal)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

// A deal between its drawings with the manual selection.
void Between(JeuPoker& f) {
  if (f.NbTirées == 5) return;
  if (f.ParesseNon->BevelWidth() != 0) f.ParesseNon_Click();
  BenchPlatform().QueueDraws({11, 24, 29, 46, 13});
  f.Jouer_Click();
}

// One hold click on a card and one back, as the player makes them: range(0) 0 the coach never
// opened, 1 open, 2 closed again; range(1) 1 also gives the event loop its turn after each click,
// where the open coach's window catches up (paints its changed rows), 0 the click's handler alone.
void CoachHoldClick(benchmark::State& state) {
  JeuPoker& f = BenchForm();
  const int mode = static_cast<int>(state.range(0));
  const bool loop = state.range(1) != 0;
  if (mode == 1) f.OuvreCoach(true);
  if (mode == 2) f.OuvreCoach(false);
  Between(f);
  QCoreApplication::processEvents();
  for (auto _ : state) {
    f.Deal_Click(2);
    if (loop) QCoreApplication::processEvents();
    f.Deal_Click(2);
    if (loop) QCoreApplication::processEvents();
  }
  state.SetLabel(QStringLiteral("%1%2")
                     .arg(mode == 0   ? "never opened"
                          : mode == 1 ? "open"
                                      : "closed again",
                          loop ? ", with the event loop" : ", handler alone")
                     .toStdString());
}
// Registered in this order so that "never opened" runs before the coach first opens.
BENCHMARK(CoachHoldClick)->Args({0, 0})->Args({0, 1})->Unit(benchmark::kMicrosecond);

// The first opening of the coach: its library and Qt Charts loaded, the window made and shown,
// the deal on the table judged. Once per process, so one iteration.
void CoachFirstOpening(benchmark::State& state) {
  JeuPoker& f = BenchForm();
  Between(f);
  for (auto _ : state) {
    QElapsedTimer t;
    t.start();
    f.OuvreCoach(true);
    QCoreApplication::processEvents();
    state.SetIterationTime(t.nsecsElapsed() / 1e9);
  }
}
BENCHMARK(CoachFirstOpening)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(CoachHoldClick)->Args({1, 0})->Args({1, 1})->Args({2, 0})->Args({2, 1})->Unit(benchmark::kMicrosecond);

}  // namespace
