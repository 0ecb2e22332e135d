// The blinking title: each tick of TitreTimer shows the other of the two title pictures.
#include <gtest/gtest.h>

#include "tests/interface/options_helpers.h"

using namespace options;

namespace {

TEST(TitleBlink, TicksAlternateBetweenTheTwoTitlePictures) {
  Harness h;
  JeuPoker& f = *h.form;
  const Picture first = f.TitreImage(1).GetPicture();
  const Picture second = f.TitreImage(2).GetPicture();
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  ASSERT_NE(first, second);
  Picture shown = f.TitreImage(0).GetPicture();
  for (int tick = 1; tick <= 5; ++tick) {
    SCOPED_TRACE(tick);
    h.Drive({"tick TitreTimer"});
    const Picture expected = shown == first ? second : first;
    EXPECT_EQ(f.TitreImage(0).GetPicture(), expected);
    shown = expected;
  }
}

TEST(TitleBlink, AnyOtherPictureGivesTheFirstTitle) {
  Harness h;
  JeuPoker& f = *h.form;
  f.TitreImage(0).SetPicture(f.Cartes(54).GetPicture());
  h.Drive({"tick TitreTimer"});
  EXPECT_EQ(f.TitreImage(0).GetPicture(), f.TitreImage(1).GetPicture());
  f.TitreImage(0).SetPicture(nullptr);
  h.Drive({"tick TitreTimer"});
  EXPECT_EQ(f.TitreImage(0).GetPicture(), f.TitreImage(1).GetPicture());
}

TEST(TitleBlink, TitleBlinksInBothGamesAndChangesNothingElse) {
  Harness h;
  JeuPoker& f = *h.form;
  ToGrid(h);
  FirstDrawing2(h, kGridNothing);
  f.TitreImage(0).SetPicture(f.TitreImage(2).GetPicture());
  const auto before = Record(f);
  const Watch w(h);
  h.Drive({"tick TitreTimer"});
  EXPECT_EQ(f.TitreImage(0).GetPicture(), f.TitreImage(1).GetPicture());
  EXPECT_EQ(Changes(before, Record(f)), "");
  EXPECT_EQ(w.Yields(), 0);
}

}  // namespace
