// The advice's choice of the odds engine is what the game's CONSEILS turns down: random grids
// are dealt through the real form at several levels with each deck, CONSEILS is pressed, and
// the cards showing the back are the positions the engine turns down.
#include <gtest/gtest.h>

#include "odds/grid.h"
#include "tests/support/harness.h"
#include "tests/tools/odds_grid_support.h"
#include "tests/tools/odds_support.h"

namespace {

void Command(Harness& h, const QString& command) {
  const QStringList out = h.Drive({command});
  ASSERT_TRUE(out.isEmpty()) << command.toStdString() << ": " << out.join('\n').toStdString();
}

// The positions whose button shows the back of the cards, as talvero-drive reads them.
std::uint32_t FaceDown(Harness& h) {
  std::uint32_t down = 0;
  for (int p = 0; p < odds::kGridPositions; ++p)
    if (h.Drive1(QStringLiteral("get Deal2(%1).Picture").arg(p)) ==
        QStringLiteral("Deal2(%1).Picture=Cartes(54)").arg(p))
      down |= 1u << p;
  return down;
}

class OddsGridAdvice : public ::testing::TestWithParam<int> {};

TEST_P(OddsGridAdvice, IsWhatConseilsTurnsDownInTheGame) {
  const int jokers = GetParam();
  Harness h;
  Command(h, "click Jeu3D");
  if (h.form->NbJokers != jokers) Command(h, QStringLiteral("click NJokerSélection(%1)").arg(jokers));
  ASSERT_EQ(h.form->TailleJeu, 52 + jokers);
  Command(h, "set Capital 1000000");
  std::mt19937_64 rng(900u + static_cast<unsigned>(jokers));
  const std::vector<int> levels = oddstest::kSanitized ? std::vector<int>{3, 12} : std::vector<int>{1, 4, 7, 10, 12};
  for (int level : levels) {
    for (int i = 0; i < 12 && h.form->Niveau != level; ++i) Command(h, "click Plus5");
    ASSERT_EQ(h.form->Niveau, level);
    for (int deal = 0; deal < (oddstest::kSanitized ? 2 : 6); ++deal) {
      const odds::Grid grid = oddstest::GridOfKind(rng, jokers, deal % 3);
      QString draws = "draw";
      for (Byte c : grid) draws += " " + QString::number(c);
      Command(h, draws);
      Command(h, "click Jouer");
      ASSERT_EQ(h.form->NbTirées, 25);
      Command(h, "click Conseils5");
      const odds::GridChoice advice = odds::AdviceChoice(odds::AnalyseGrid(grid, jokers, level));
      EXPECT_EQ(FaceDown(h), advice.down) << "level " << level << ", deal " << deal;
      // The second drawing, and the table left ready for the next deal or level.
      Command(h, "click Jouer");
      ASSERT_EQ(h.form->NbTirées, 50);
      if (h.form->Doubler5->Visible()) Command(h, "click Quitte5X5");
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EachDeck, OddsGridAdvice, ::testing::Values(0, 1, 2),
                         [](const ::testing::TestParamInfo<int>& info) {
                           return std::to_string(info.param) + "Jokers";
                         });

}  // namespace
