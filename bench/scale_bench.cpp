// The table at a scale: what a resize costs the GUI thread (the controls placed again), what
// the background does before every picture is sharp again, and a whole frame painted.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QResizeEvent>
#include <QTemporaryDir>

#include "interface/JeuPoker.h"

namespace {

void Resize(JeuPoker& form, QSize size) {
  const QSize old = form.size();
  form.resize(size);
  QResizeEvent e(size, old);
  QApplication::sendEvent(&form, &e);
}

// One resize event, between scale 1 and scale 2: the part the window waits for.
void BM_ResizeEvent(benchmark::State& state) {
  QTemporaryDir dir;
  JeuPoker form(dir.path(), QString(), 1);
  bool large = false;
  for (auto _ : state) {
    large = !large;
    Resize(form, large ? QSize(2048, 1536) : QSize(1024, 768));
  }
  form.WaitForPictures();
}
BENCHMARK(BM_ResizeEvent)->Unit(benchmark::kMicrosecond);

// After a resize from scale 1 to the argument's scale (in hundredths): until every picture shown
// (all of them here, the card faces of both sizes too) is drawn again for it, in the
// background.
void BM_PicturesDrawnAgain(benchmark::State& state) {
  QTemporaryDir dir;
  JeuPoker form(dir.path(), QString(), 1);
  form.grab();  // every picture of the first frame drawn at scale 1
  for (int code = 0; code <= 54; ++code) form.Cartes(code).GetPicture()->Pixmap();
  for (int code = 0; code <= 53; ++code) form.Cartes2(code).GetPicture()->Pixmap();
  const double s = state.range(0) / 100.0;
  const QSize to(qRound(1024 * s), qRound(768 * s));
  for (auto _ : state) {
    Resize(form, to);
    form.WaitForPictures();
    state.PauseTiming();
    Resize(form, QSize(1024, 768));
    form.WaitForPictures();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_PicturesDrawnAgain)->Arg(150)->Arg(200)->Unit(benchmark::kMillisecond)->UseRealTime();

// A whole frame of the table painted at the argument's scale (in hundredths).
void BM_FrameAtScale(benchmark::State& state) {
  QTemporaryDir dir;
  JeuPoker form(dir.path(), QString(), state.range(0) / 100.0);
  form.grab();
  form.WaitForPictures();
  for (auto _ : state) benchmark::DoNotOptimize(form.grab().cacheKey());
}
BENCHMARK(BM_FrameAtScale)->Arg(100)->Arg(150)->Arg(200)->Unit(benchmark::kMillisecond);

}  // namespace
