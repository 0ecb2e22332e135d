// The double-up's figures in the coach, in both games, against a count over the house's draw:
// before the house's card is up they average over its draw, then they are those against it.
#include <gtest/gtest.h>

#include <QLabel>

#include "coach/coach.h"
#include "tests/coach/coach_support.h"

using coachtest::Quiet;

namespace {

// The duel counted over every house card (rank two to king, any suit) and every player's card
// (any of the 52 but the house's), weighting each house card alike.
void Count(int onlyRank, double& win, double& tie, double& lose) {
  double w = 0, t = 0, l = 0, houses = 0;
  for (int rank = 0; rank < 12; ++rank) {
    if (onlyRank >= 0 && rank != onlyRank) continue;
    for (int suit = 0; suit < 4; ++suit) {
      ++houses;
      for (int card = 0; card < 52; ++card) {
        if (card == 13 * suit + rank) continue;
        const int r = card % 13;
        (r > rank ? w : r == rank ? t : l) += 1.0 / 51;
      }
    }
  }
  win = w / houses;
  tie = t / houses;
  lose = l / houses;
}

TEST(CoachDuel, FiguresBeforeTheHouseCardAverageOverItsDraw) {
  const coach::DuelFigures d = coach::Duel(false, 0);
  double w, t, l;
  Count(-1, w, t, l);
  EXPECT_NEAR(d.win, w, 1e-12);
  EXPECT_NEAR(d.tie, t, 1e-12);
  EXPECT_NEAR(d.lose, l, 1e-12);
  EXPECT_NEAR(d.win, 26.0 / 51, 1e-12);
  EXPECT_NEAR(d.ev, 55.0 / 51, 1e-12);
}

TEST(CoachDuel, AgainstAKingOnlyAnAceWinsAndAgainstATwoNothingLoses) {
  for (int rank = 0; rank < 12; ++rank) {
    const coach::DuelFigures d = coach::Duel(true, rank);
    double w, t, l;
    Count(rank, w, t, l);
    EXPECT_NEAR(d.win, w, 1e-12) << rank;
    EXPECT_NEAR(d.tie, t, 1e-12) << rank;
    EXPECT_NEAR(d.lose, l, 1e-12) << rank;
    EXPECT_NEAR(d.ev, 2 * w + t, 1e-12) << rank;
  }
  EXPECT_NEAR(coach::Duel(true, 11).win, 4.0 / 51, 1e-12);
  EXPECT_EQ(coach::Duel(true, 0).lose, 0);
}

QString DuelText(Harness& h) {
  QCoreApplication::processEvents();
  QString all;
  for (auto* l : h.form->FenêtreCoach()->findChildren<QLabel*>())
    if (l->isVisibleTo(h.form->FenêtreCoach())) all += l->text() + "\n";
  return all;
}

TEST(CoachDuel, ShownWhenAWinWaitsAndAgainstTheHouseCardInJeu1) {
  Harness h;
  Quiet(h, "key 113");
  EXPECT_FALSE(DuelText(h).contains("If you double"));
  coachtest::Deal(h, {12, 25, 38, 10, 0});  // three aces and more kept: the hand pays
  coachtest::Play(h, "11100", {1, 2});
  ASSERT_TRUE(h.form->Doubler->Visible());
  EXPECT_TRUE(DuelText(h).contains("If you double: win 51.0 %, tie 5.9 %, lose 43.1 %.\nDoubling is worth 1.078 "))
      << DuelText(h).toStdString();
  Quiet(h, "draw 11 3");  // the house's king of spades
  Quiet(h, "click Double1X5");
  ASSERT_TRUE(h.form->DoubleEnCours);
  EXPECT_TRUE(DuelText(h).contains("The duel against this card: win 7.8 %, tie 5.9 %, lose 86.3 %"))
      << DuelText(h).toStdString();
}

TEST(CoachDuel, ShownInJeu2Too) {
  Harness h;
  Quiet(h, "key 113");
  Quiet(h, "set Capital 100000");
  Quiet(h, "click Jeu3D");
  // Until a drawing wins, take the next one.
  for (int k = 0; k < 200 && !h.form->Doubler5->Visible(); ++k) {
    Quiet(h, "click Jouer");
    Quiet(h, "click Conseils5");
    Quiet(h, "click Jouer");
  }
  ASSERT_TRUE(h.form->Doubler5->Visible());
  EXPECT_TRUE(DuelText(h).contains("If you double: win 51.0 %")) << DuelText(h).toStdString();
  Quiet(h, "draw 0 0");  // the house's two of clubs
  Quiet(h, "click Double5X5");
  EXPECT_TRUE(DuelText(h).contains("The duel against this card: win 94.1 %, tie 5.9 %, lose 0.0 %"))
      << DuelText(h).toStdString();
}

}  // namespace
