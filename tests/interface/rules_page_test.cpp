// The rules page: it takes the place of the game and gives it back, and nothing stops while
// it is open.
#include <gtest/gtest.h>

#include "tests/interface/options_helpers.h"

using namespace options;

namespace {

TEST(RulesPage, OpensInPlaceOfTheGameAndClosesBack) {
  Harness h;
  JeuPoker& f = *h.form;
  ASSERT_FALSE(f.SSAides->Visible());
  Click(h, "SSRègles");
  EXPECT_FALSE(f.Jeu->Visible());
  EXPECT_TRUE(f.SSAides->Visible());
  // The game's buttons cannot be reached while the page is open.
  EXPECT_EQ(h.Drive1("click Jouer"), "error: Jouer cannot be reached");
  EXPECT_EQ(f.NbTirées, 0);
  f.SSLangue(0).SetFocus();
  Click(h, "AidesOk");
  EXPECT_FALSE(f.SSAides->Visible());
  EXPECT_TRUE(f.Jeu->Visible());
  EXPECT_EQ(f.focusWidget(), f.Tirage);
  // And play goes on.
  FirstDrawing1(h, kHandNothing);
}

TEST(RulesPage, TimersGoOnWhileItIsOpen) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "SSRègles");
  ASSERT_TRUE(f.SSAides->Visible());
  EXPECT_TRUE(f.TitreTimer->Enabled());
  const Picture first = f.TitreImage(1).GetPicture();
  const Picture second = f.TitreImage(2).GetPicture();
  f.TitreImage(0).SetPicture(first);
  h.Drive({"tick TitreTimer"});
  EXPECT_EQ(f.TitreImage(0).GetPicture(), second);
  h.Drive({"tick TitreTimer"});
  EXPECT_EQ(f.TitreImage(0).GetPicture(), first);
  EXPECT_TRUE(f.SSAides->Visible());
  EXPECT_FALSE(f.Jeu->Visible());
}

TEST(RulesPage, OpenBetweenDrawingsLeavesTheDealAsItWas) {
  Harness h;
  JeuPoker& f = *h.form;
  ToGrid(h);
  FirstDrawing2(h, kGridNothing);
  const auto before = Record(f);
  Click(h, "SSRègles");
  Click(h, "AidesOk");
  EXPECT_EQ(Changes(before, Record(f)), "");
  Click(h, "Jouer");
  EXPECT_EQ(f.NbTirées, 50);
}

}  // namespace
