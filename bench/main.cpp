// The benchmarks' entry point: one QApplication (offscreen unless told otherwise) for all.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "bench/bench_form.h"
#include "interface/card_faces.h"

void ReportFirstBuildPictures();

int main(int argc, char** argv) {
  if (qgetenv("QT_QPA_PLATFORM").isEmpty()) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  ReportFirstBuildPictures();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  ReleaseBenchForm();
  pics::CardFaces::StopAll();
  return 0;
}
