// Start-up cost of the pictures: parsing the SVG deck and building every picture of the form.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <cstdio>

#include "interface/JeuPoker.h"
#include "interface/card_faces.h"
#include "interface/deck_svg.h"
#include "interface/pictures_art.h"
#include "services/measurement.h"

namespace {

// Parsing the deck, as the first form of a process does.
void BM_DeckParse(benchmark::State& state) {
  for (auto _ : state) {
    QSvgRenderer deck(pics::DeckFile());
    benchmark::DoNotOptimize(deck.isValid());
  }
}
BENCHMARK(BM_DeckParse)->Unit(benchmark::kMillisecond);

// The 55 full-size faces alone, from a parsed deck.
void BM_CardFaces(benchmark::State& state) {
  QSvgRenderer deck(pics::DeckFile());
  for (auto _ : state) {
    for (int code = 0; code <= 54; ++code)
      benchmark::DoNotOptimize(pics::CardFace(deck, code, QSize(88, 133), 1).bits());
  }
}
BENCHMARK(BM_CardFaces)->Unit(benchmark::kMillisecond);

// The 54 smaller faces of the grid.
void BM_SmallCardFaces(benchmark::State& state) {
  QSvgRenderer deck(pics::DeckFile());
  for (auto _ : state) {
    for (int code = 0; code <= 53; ++code) benchmark::DoNotOptimize(pics::SmallCardFace(deck, code, QSize(65, 87), 1));
  }
}
BENCHMARK(BM_SmallCardFaces)->Unit(benchmark::kMillisecond);

// The thirty digits.
void BM_Digits(benchmark::State& state) {
  for (auto _ : state) {
    for (int i = 0; i < 30; ++i)
      benchmark::DoNotOptimize(pics::Digit(i % 10, static_cast<pics::DigitColour>(i / 10), QSize(16, 22), 1));
  }
}
BENCHMARK(BM_Digits)->Unit(benchmark::kMillisecond);

// What is drawn with text: the four PLAY faces, the two titles and a row title.
void BM_TextPictures(benchmark::State& state) {
  for (auto _ : state) {
    for (int i = 0; i < 4; ++i)
      benchmark::DoNotOptimize(
          pics::PlayFace(i % 2 ? QStringLiteral("PLAY") : QStringLiteral("JOUER"), i >= 2, QSize(132, 64), 1));
    for (int i = 1; i <= 2; ++i) benchmark::DoNotOptimize(pics::GameTitle(i, QSize(165, 24), 1));
    benchmark::DoNotOptimize(pics::RowTitle(QStringLiteral("GAINS"), Qt::red, QSize(104, 17), 1));
  }
}
BENCHMARK(BM_TextPictures)->Unit(benchmark::kMillisecond);

// From a cold start of the card worker (deck not parsed): until the back, which the first
// frame shows, can be painted.
void BM_CardWorkerBackReady(benchmark::State& state) {
  const pics::CardFaces::Sizes sizes{QSize(88, 133), 55, QSize(65, 87), 54, 1};
  for (auto _ : state) {
    pics::CardFaces faces(sizes);
    benchmark::DoNotOptimize(faces.Face(54).isNull());
    state.PauseTiming();
    faces.WaitAll();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_CardWorkerBackReady)->Unit(benchmark::kMillisecond)->UseRealTime();

// From a cold start of the card worker until every face of both sizes is drawn and the deck
// released: the longest a first deal could wait.
void BM_CardWorkerAllFaces(benchmark::State& state) {
  const pics::CardFaces::Sizes sizes{QSize(88, 133), 55, QSize(65, 87), 54, 1};
  for (auto _ : state) {
    pics::CardFaces faces(sizes);
    faces.WaitAll();
  }
}
BENCHMARK(BM_CardWorkerAllFaces)->Unit(benchmark::kMillisecond)->UseRealTime();

// BuildPictures as the form runs it, the card faces already rendered for the process; only
// its own time counts.
void BM_BuildPictures(benchmark::State& state) {
  QTemporaryDir dir;
  double cpu = 0;
  for (auto _ : state) {
    JeuPoker form(dir.path());
    state.SetIterationTime(LastPicturesBuildTime().wall);
    cpu += LastPicturesBuildTime().cpu;
  }
  // The processor time of BuildPictures alone, which a busy machine does not inflate.
  state.counters["cpu_ms"] = benchmark::Counter(cpu * 1000, benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_BuildPictures)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

// The first form of the process pays for the fonts' loading; the cards render on a worker.
void ReportFirstBuildPictures() {
  QTemporaryDir dir;
  JeuPoker form(dir.path());
  std::printf("first BuildPictures of the process: %.1f ms (%.1f ms of this thread's processor time)\n",
              LastPicturesBuildTime().wall * 1000, LastPicturesBuildTime().cpu * 1000);
}
