// Start-up cost of the pictures: parsing the SVG deck and building every picture of the form.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include "interface/JeuPoker.h"
#include "interface/pictures_art.h"

namespace {

// Parsing the deck, as the first form of a process does.
void BM_DeckParse(benchmark::State& state) {
  for (auto _ : state) {
    QSvgRenderer deck(QStringLiteral(TALVERO_CARD_DECK));
    benchmark::DoNotOptimize(deck.isValid());
  }
}
BENCHMARK(BM_DeckParse)->Unit(benchmark::kMillisecond);

// The 55 full-size faces alone, from a parsed deck.
void BM_CardFaces(benchmark::State& state) {
  QSvgRenderer& deck = pics::Deck();
  for (auto _ : state) {
    for (int code = 0; code <= 54; ++code) benchmark::DoNotOptimize(pics::CardFace(deck, code, QSize(88, 133), 1));
  }
}
BENCHMARK(BM_CardFaces)->Unit(benchmark::kMillisecond);

// BuildPictures as the form runs it, the deck already parsed; only its own time counts.
void BM_BuildPictures(benchmark::State& state) {
  QTemporaryDir dir;
  pics::Deck();
  for (auto _ : state) {
    JeuPoker form(dir.path());
    state.SetIterationTime(pics::LastBuildSeconds());
  }
}
BENCHMARK(BM_BuildPictures)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM",
          qgetenv("QT_QPA_PLATFORM").isEmpty() ? QByteArray("offscreen") : qgetenv("QT_QPA_PLATFORM"));
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
