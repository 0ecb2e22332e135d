// The coach in JEU 2 through the real form: the values of the cards turned down, of the advice
// and of the best choice against the odds engine, the session's JEU 2 tallies, and the mean pay
// of real second drawings with the advice applied against the advice's exact value.
#include <gtest/gtest.h>

#include <QStringList>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

#include "odds/grid.h"
#include "tests/coach/coach_support.h"

using coachtest::Field;
using coachtest::Quiet;

namespace {

const std::vector<int> kGrid = {51, 50, 49, 48, 47, 12, 25, 38, 11, 24, 0,  1, 2,
                                3,  4,  13, 14, 15, 16, 17, 26, 27, 28, 29, 30};

// JEU 2 at level `level`, then the first drawing of `grid`.
void FirstGridDrawing(Harness& h, int level, const std::vector<int>& grid) {
  Quiet(h, "click Jeu3D");
  while (h.form->Niveau != level) Quiet(h, "click Plus5");
  QString draw = "draw";
  for (int c : grid) draw += " " + QString::number(c);
  Quiet(h, draw);
  Quiet(h, "click Jouer");
  ASSERT_EQ(h.form->NbTirées, 25);
}

struct GridLine {
  double ev = 0, advice = 0, best = 0;
  QString down;
};

GridLine Read(Harness& h) {
  const QStringList w = h.Drive1("coach").split(' ');
  GridLine g;
  EXPECT_EQ(w.size(), 9) << w.join(' ').toStdString();
  if (w.size() != 9 || w[0] != "coach=grid") return g;
  g.ev = w[2].toDouble();
  g.advice = w[4].toDouble();
  g.best = w[6].toDouble();
  g.down = w[8];
  return g;
}

odds::GridOdds Odds(const JeuPoker& f) {
  odds::Grid grid;
  for (int p = 0; p < 25; ++p) grid[static_cast<std::size_t>(p)] = f.CartesTirage(p);
  return odds::AnalyseGrid(grid, f.NbJokers, f.Niveau);
}

TEST(CoachGrid, ValuesOfTheChoicesAgainstTheOddsEngine) {
  Harness h;
  Quiet(h, "key 113");
  FirstGridDrawing(h, 12, kGrid);
  const odds::GridOdds o = Odds(*h.form);
  const odds::GridChoice advice = odds::AdviceChoice(o);
  const odds::GridChoice best = odds::BestChoice(o);
  GridLine g = Read(h);
  EXPECT_NEAR(g.ev, odds::EvaluateChoice(o, 0).ev, 1e-6);
  EXPECT_NEAR(g.advice, advice.ev, 1e-6);
  EXPECT_NEAR(g.best, best.ev, 1e-6);
  QString down;
  for (int p = 0; p < 25; ++p) down += (best.down >> p & 1u) ? '1' : '0';
  EXPECT_EQ(g.down, down);
  // CONSEILS gives the advice's value; turning the best choice's cards gives the best.
  Quiet(h, "click Conseils5");
  EXPECT_NEAR(Read(h).ev, advice.ev, 1e-6);
  Quiet(h, "click AnnuleConseils5");
  for (int p = 0; p < 25; ++p)
    if (down[p] == '1') Quiet(h, QStringLiteral("click Deal2(%1)").arg(p));
  EXPECT_NEAR(Read(h).ev, best.ev, 1e-6);
  // The choice played is judged when the second drawing starts: the best costs nothing.
  Quiet(h, "click Jouer");
  const QString s = h.Drive1("coach session2");
  EXPECT_EQ(Field(s, "decisions"), 1);
  EXPECT_EQ(Field(s, "mistakes"), 0);
  EXPECT_EQ(h.Drive1("coach"), "coach=idle");
  EXPECT_EQ(Field(h.Drive1("coach session"), "decisions"), 0);
}

TEST(CoachGrid, TheAdvicePlayedCostsWhatTheBestChoiceWouldGainMore) {
  Harness h;
  Quiet(h, "key 113");
  Quiet(h, "click Plus");
  Quiet(h, "click Plus");  // a bet of 3: every value three times as large
  FirstGridDrawing(h, 5, kGrid);
  const odds::GridOdds o = Odds(*h.form);
  const double advice = odds::AdviceChoice(o).ev, best = odds::BestChoice(o).ev;
  const GridLine g = Read(h);
  EXPECT_NEAR(g.advice, 3 * advice, 1e-6);
  EXPECT_NEAR(g.best, 3 * best, 1e-6);
  Quiet(h, "click Conseils5");
  Quiet(h, "click Jouer");
  const QString s = h.Drive1("coach session2");
  EXPECT_EQ(Field(s, "decisions"), 1);
  EXPECT_EQ(Field(s, "mistakes"), best - advice > 1e-9 ? 1 : 0);
  EXPECT_NEAR(Field(s, "lost"), 3 * (best - advice), 1e-5);
}

// Real second drawings of the form, the advice applied: the mean of what they pay less the
// advice's exact value for each grid is zero within three standard errors.
TEST(CoachGrid, RealDrawingsWithTheAdvicePayItsExactValue) {
#ifdef TALVERO_SANITIZE
  const int grids = 40;
#else
  const int grids = 400;
#endif
  Harness h;
  Quiet(h, "set Capital 1000000");
  Quiet(h, "click Jeu3D");
  while (h.form->Niveau != 12) Quiet(h, "click Plus5");
  std::mt19937 rng(2024);
  double sum = 0, squares = 0;
  for (int k = 0; k < grids; ++k) {
    if (h.form->Doubler5->Visible()) Quiet(h, "click Quitte5X5");
    // The deck shuffled: the first 25 make the grid, the rest in order replace the cards turned
    // down, so the replacements are a uniform choice among the cards not dealt.
    std::vector<int> deck(static_cast<std::size_t>(h.form->TailleJeu));
    std::iota(deck.begin(), deck.end(), 0);
    std::shuffle(deck.begin(), deck.end(), rng);
    h.platform.queuedDraws.clear();
    h.platform.QueueDraws(deck);
    Quiet(h, "click Jouer");
    ASSERT_EQ(h.form->NbTirées, 25);
    const double exact = odds::AdviceChoice(Odds(*h.form)).ev;
    Quiet(h, "click Conseils5");
    Quiet(h, "click Jouer");
    ASSERT_EQ(h.form->NbTirées, 50);
    const double paid = static_cast<double>(h.form->GainTirage) / h.form->Mise;
    sum += paid - exact;
    squares += (paid - exact) * (paid - exact);
  }
  const double mean = sum / grids;
  const double error = std::sqrt((squares / grids - mean * mean) / (grids - 1));
  EXPECT_GT(error, 0);
  EXPECT_LE(std::abs(mean), 3 * error) << "mean " << mean << ", standard error " << error;
}

}  // namespace
