// The displays and the bet buttons within a game started and played through the form.
#include <gtest/gtest.h>

#include "tests/support/harness.h"

namespace {
Picture Modèle(Harness& h, int i) { return h.form->ChiffresModèle(i).GetPicture(); }

// Two, four, six, seven and jack of mixed suits: a hand that pays nothing.
const QString kRien = QStringLiteral("draw 0 2 17 31 48");
// Both drawings of a round that pays nothing: 2 4 6 7 J, all rejected, then 3 5 7 8 Q.
const QString kRienDeuxFois = QStringLiteral("draw 0 2 17 31 48 1 3 18 32 49");
}  // namespace

TEST(DigitsFlow, ANewGameShowsTheCreditTheBetAndTheLevel) {
  Harness h;
  auto& f = *h.form;
  for (int i = 0; i <= 7; ++i) EXPECT_EQ(f.CapImage(i).Visible(), i < 3) << i;
  EXPECT_EQ(f.CapImage(0).Left(), 720);
  EXPECT_EQ(f.CapImage(0).GetPicture(), Modèle(h, 12));
  EXPECT_EQ(f.CapImage(1).GetPicture(), Modèle(h, 10));
  EXPECT_TRUE(f.MiseImage(0).Visible());
  EXPECT_EQ(f.MiseImage(0).Left(), 960);
  EXPECT_EQ(f.MiseImage(0).GetPicture(), Modèle(h, 21));
  EXPECT_FALSE(f.MiseImage(1).Visible());
  EXPECT_TRUE(f.UnàDouzeImage(0).Visible());
  EXPECT_EQ(f.UnàDouzeImage(0).GetPicture(), Modèle(h, 21));
  EXPECT_FALSE(f.UnàDouzeImage(1).Visible());
  for (int i = 0; i <= 7; ++i) EXPECT_FALSE(f.GainImage(i).Visible()) << i;
}

TEST(DigitsFlow, ThePayTableFollowsTheBet) {
  Harness h;
  const QStringList out = h.Drive({"click Plus", "click Plus", "get MainLabel(2).Caption", "get MainLabel(9).Caption",
                                   "get Mises.Caption", "var Mise"});
  EXPECT_EQ(out, QStringList({"MainLabel(2).Caption=9", "MainLabel(9).Caption=2250", "Mises.Caption=3", "Mise=3"}));
  EXPECT_EQ(h.Drive({"click Moins", "click Moins", "click Moins", "get MainLabel(0).Caption", "get Mises.Caption"}),
            QStringList({"MainLabel(0).Caption=40", "Mises.Caption=40"}));
}

TEST(DigitsFlow, TheFirstDrawingBlocksTheBet) {
  Harness h;
  auto& f = *h.form;
  f.Plus->SetMousePointer(10);
  h.Drive({kRien, "click Jouer"});
  ASSERT_EQ(f.NbTirées, 5);
  EXPECT_EQ(f.Plus->MousePointer(), 12);
  EXPECT_EQ(f.Moins->MousePointer(), 12);
  EXPECT_EQ(f.CapImage(0).Left(), 720);
  EXPECT_EQ(f.CapImage(2).GetPicture(), Modèle(h, 19));  // 199
  h.platform.sleptMs = 0;
  h.Drive({"click Plus"});
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(h.platform.sleptMs, 1330);
}

TEST(DigitsFlow, TheLastCreditLostEndsTheGameAndBlocksTheBet) {
  Harness h;
  auto& f = *h.form;
  f.Capital = 1;
  f.AfficheCapital();
  h.Drive({kRienDeuxFois, "click Jouer", "click Jouer"});
  ASSERT_EQ(f.NbTirées, 10);
  ASSERT_EQ(f.Capital, 0);
  EXPECT_EQ(f.CapImage(0).Left(), 960);
  EXPECT_EQ(f.CapImage(0).GetPicture(), Modèle(h, 10));
  EXPECT_FALSE(f.CapImage(1).Visible());
  EXPECT_EQ(f.AutoPlay->BackColor(), 0x656565);
  EXPECT_EQ(f.SSRecommence->MousePointer(), 10);
  EXPECT_EQ(f.Plus->MousePointer(), 12);
  h.platform.sleptMs = 0;
  h.Drive({"click Moins"});
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(h.platform.sleptMs, 1330);
}

TEST(DigitsFlow, AutomaticModeIsPutAtRestWhenTheCreditRunsOut) {
  Harness h;
  auto& f = *h.form;
  f.Capital = 1;
  f.AutoPlay->SetBevelWidth(0);
  f.AutoPlay->SetBackColor(6645093);
  f.AutoPlayStop->SetBevelWidth(3);
  f.AutoPlayTimer->SetEnabled(true);
  h.Drive({kRienDeuxFois});
  f.Tirage1();
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 0);
  f.Tirage1();
  ASSERT_EQ(f.Capital, 0);
  EXPECT_EQ(f.AutoPlay->BevelWidth(), 3);
  EXPECT_EQ(f.AutoPlay->ForeColor(), 0);
  EXPECT_EQ(f.AutoPlay->MousePointer(), 12);
  EXPECT_EQ(f.AutoPlayStop->BevelWidth(), 0);
  EXPECT_EQ(f.AutoPlayStop->ForeColor(), 192);
  EXPECT_FALSE(f.AutoPlayTimer->Enabled());
}
