// Speed of one drawing of JEU 2 at level 12, dealing instantly: the grid turned down, 25 cards
// dealt, the twelve lines priced; and the settlement of the twelve lines alone.
#include <benchmark/benchmark.h>

#include "bench/bench_form.h"

namespace {

// The form as JEU 2 leaves it at level 12 with a bet of 1, random draws, no animation.
JeuPoker& GridForm() {
  JeuPoker& f = BenchForm();
  BenchPlatform().queuedDraws.clear();
  f.Langue = 2;
  f.RemplitNomsMains();
  f.Jeu3D->SetBevelWidth(1);
  f.JeuSimple->SetBevelWidth(7);
  f.ParesseOui->SetBevelWidth(3);
  f.ParesseNon->SetBevelWidth(3);
  f.AffichageImmédiat = true;
  f.Mise = 1;
  f.Niveau = 12;
  for (int i = 1; i <= 11; ++i) f.MetLigneEnJeu(i, true);
  f.NbTirées = 0;
  return f;
}

void GridFirstDrawing(benchmark::State& state) {
  JeuPoker& f = GridForm();
  for (auto _ : state) {
    f.Capital = 100000;
    f.GainTirage = 0;
    f.NbTirées = 0;
    f.Tirage5();
    benchmark::DoNotOptimize(f.GainTirage);
  }
  state.SetLabel("25 cards dealt and 12 lines priced");
}
BENCHMARK(GridFirstDrawing)->Unit(benchmark::kMicrosecond);

void GridSettlementOfTwelveLines(benchmark::State& state) {
  JeuPoker& f = GridForm();
  f.Capital = 100000;
  f.Tirage5();  // a dealt grid, between the drawings
  for (auto _ : state) {
    f.RègleLignes();
    benchmark::DoNotOptimize(f.GainTirage);
  }
}
BENCHMARK(GridSettlementOfTwelveLines)->Unit(benchmark::kMicrosecond);

}  // namespace
