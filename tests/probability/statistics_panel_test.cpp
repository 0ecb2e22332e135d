// The statistics panel: the odds at rest for 0, 1 and 2 jokers, their display, and the
// tally of hands played.
#include <gtest/gtest.h>

#include "tests/probability/probability_support.h"

namespace {

const char* kCounts[12][3] = {
    {"206112", "337536", "467160"},
    {"123552", "123552", "123552"},
    {"54912", "137280", "267416"},
    {"10200", "20532", "34704"},
    {"5108", "7804", "11388"},
    {"3744", "9360", "14976"},
    {"624", "3120", "9360"},
    {"36", "180", "540"},
    {"4", "24", "84"},
    {"0", "13", "78"},
    {"2194668", "2230284", "2233252"},
    {"404292", "639401", "929258"},
};
const int kWhole[12][3] = {{7, 11, 14}, {4, 4, 3}, {2, 4, 8}, {0, 0, 1}, {0, 0, 0},    {0, 0, 0},
                           {0, 0, 0},   {0, 0, 0}, {0, 0, 0}, {0, 0, 0}, {84, 77, 70}, {15, 22, 29}};
const char* kDecimals[12][3] = {
    {".930556", ".762126", ".771811"}, {".753901", ".305420", ".906770"}, {".112845", ".783800", ".455815"},
    {".392464", ".715479", ".097356"}, {".196540", ".271946", ".360094"}, {".144057", ".326168", ".473548"},
    {".024009", ".108722", ".299967"}, {".001385", ".006272", ".017075"}, {".000153", ".000836", ".002656"},
    {".000000", ".000453", ".002467"}, {".444085", ".718774", ".616441"}, {".555915", ".281226", ".383559"},
};
const char* kHeads[3] = {"?/2598960", "?/2869685", "?/3162510"};

class ProbStatistics : public ::testing::Test {
 protected:
  void SetUp() override {
    h = std::make_unique<Harness>();
    h->form->RemplitStatistiques();
  }
  std::unique_ptr<Harness> h;
};

TEST_F(ProbStatistics, TablesAtRestHoldTheFiveCardSetsOfEachDeck) {
  JeuPoker& f = *h->form;
  for (int i = 0; i <= 11; ++i)
    for (int j = 0; j <= 2; ++j) {
      EXPECT_EQ(f.TexteMainsPossibles(i, j), kCounts[i][j]) << i << "," << j;
      EXPECT_EQ(f.MainsPossibles(i, j), kWhole[i][j]) << i << "," << j;
      EXPECT_EQ(f.TextePourcentages(i, j), kDecimals[i][j]) << i << "," << j;
    }
}

TEST_F(ProbStatistics, StartUpShowsTheTwoJokerOddsInEveryRow) {
  JeuPoker& f = *h->form;
  ASSERT_EQ(f.NbJokers, 2);
  for (int i = 0; i <= 11; ++i) {
    EXPECT_EQ(f.PourcDéc(i).Caption(), QString::number(kWhole[i][2]));
    EXPECT_EQ(f.Pourcentages(i).Caption(), kDecimals[i][2]);
    EXPECT_EQ(f.Fractions(i).Caption(), kCounts[i][2]);
  }
}

TEST_F(ProbStatistics, PanelAtRestFollowsTheJokers) {
  JeuPoker& f = *h->form;
  for (int j = 0; j <= 2; ++j) {
    f.NbJokers = static_cast<Byte>(j);
    f.TailleJeu = 52 + j;
    f.Fractions(9).SetCaption("");
    f.PourcDéc(9).SetCaption("");
    f.Pourcentages(9).SetCaption("");
    // From the blank state after a second drawing.
    f.NbTirées = 10;
    f.Probabilités();
    f.AfficheStatistiquesRepos();
    EXPECT_EQ(f.UnSur->Caption(), kHeads[j]);
    for (int i = 0; i <= 11; ++i) {
      if (j == 0 && i == 9) {
        // No five of a kind without jokers: the row stays empty.
        EXPECT_EQ(f.Fractions(9).Caption(), "");
        EXPECT_EQ(f.PourcDéc(9).Caption(), "");
        EXPECT_EQ(f.Pourcentages(9).Caption(), "");
        continue;
      }
      EXPECT_EQ(f.PourcDéc(i).Caption(), QString::number(kWhole[i][j])) << i;
      EXPECT_EQ(f.Pourcentages(i).Caption(), kDecimals[i][j]) << i;
      EXPECT_EQ(f.Fractions(i).Caption(), kCounts[i][j]) << i;
      EXPECT_EQ(f.Pourcentages(i).BackColor(), 0x404000) << i;
      EXPECT_EQ(f.Fractions(i).BackColor(), 0x404000) << i;
    }
  }
}

TEST_F(ProbStatistics, RowsAddUpToPayingHandsAndToTheHead) {
  JeuPoker& f = *h->form;
  const long long heads[3] = {2598960, 2869685, 3162510};
  for (int j = 0; j <= 2; ++j) {
    long long paying = 0;
    for (int i = 0; i <= 9; ++i) paying += f.TexteMainsPossibles(i, j).toLongLong();
    EXPECT_EQ(paying, f.TexteMainsPossibles(11, j).toLongLong()) << j;
    EXPECT_EQ(f.TexteMainsPossibles(10, j).toLongLong() + f.TexteMainsPossibles(11, j).toLongLong(), heads[j]) << j;
    EXPECT_EQ(probtest::Choose(52 + j, 5), heads[j]);
  }
}

TEST_F(ProbStatistics, TallyCountsEveryPayingClassAndNotNothing) {
  JeuPoker& f = *h->form;
  f.RangMain = 3;
  f.AfficheFréquence();
  f.AfficheFréquence();
  EXPECT_EQ(f.Fréquences(3), 2);
  EXPECT_EQ(f.Fréquence(3).Caption(), "2");
  f.RangMain = 9;
  f.AfficheFréquence();
  EXPECT_EQ(f.Fréquences(9), 1);
  EXPECT_EQ(f.Fréquence(9).Caption(), "1");
  f.RangMain = 10;
  f.AfficheFréquence();
  long long sum = 0;
  for (int i = 0; i <= 9; ++i) sum += f.Fréquences(i);
  EXPECT_EQ(sum, 3);
  EXPECT_EQ(f.Fréquence(0).Caption(), "");
}

TEST_F(ProbStatistics, SecondDrawingTalliesThePaidHand) {
  // Kings on the table, all held: the second drawing settles a pair of kings.
  h->Drive({"draw 11 24 26 42 7", "click Jouer"});
  JeuPoker& f = *h->form;
  for (int i = 0; i <= 4; ++i) f.Jouez(i).SetCaption("HOLD");
  h->Drive({"click Jouer"});
  ASSERT_EQ(f.NbTirées, 10);
  ASSERT_EQ(f.RangMain, 0);
  EXPECT_EQ(f.Fréquences(0), 1);
  EXPECT_EQ(f.Fréquence(0).Caption(), "1");
}

}  // namespace
