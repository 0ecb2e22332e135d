// talvero-drive refuses an index that does not fit a number, rather than taking it for 0.
#include <gtest/gtest.h>

#include "tests/support/helpers.h"

namespace {

const QString kHuge = QStringLiteral("99999999999999999999");

TEST(DriveIndex, AnIndexTooLargeForANumberIsAnError) {
  Harness h;
  const QStringList out =
      h.Drive({"click Jouer", "click Deal(" + kHuge + ")", "get Jouez(0).Caption", "get Deal(" + kHuge + ").Picture",
               "var CartesTirage(" + kHuge + ")", "set CartesTirage(" + kHuge + ") 3", "move Deal(" + kHuge + ")"});
  const QString error = "error: index " + kHuge + " does not fit a number";
  ASSERT_EQ(out.size(), 6);
  EXPECT_EQ(out[0], error);
  EXPECT_TRUE(out[1].startsWith("Jouez(0).Caption=")) << out[1].toStdString();
  for (int i = 2; i <= 5; ++i) EXPECT_EQ(out[i], error);
}

TEST(DriveIndex, ACardIsNotFlippedByAnIndexThatDoesNotFit) {
  Harness h;
  h.Drive({"click Jouer"});
  const QString before = h.Drive1("get Jouez(0).Caption");
  h.Drive({"click Deal(" + kHuge + ")", "click Deal(4294967296)"});
  EXPECT_EQ(h.Drive1("get Jouez(0).Caption"), before);
}

TEST(DriveIndex, TheLargestIndexThatFitsIsOnlyOutOfRange) {
  Harness h;
  EXPECT_EQ(h.Drive1("click Deal(2147483647)"), "error: no control Deal(2147483647)");
  EXPECT_EQ(h.Drive1("click Deal(2147483648)"), "error: index 2147483648 does not fit a number");
}

TEST(DriveIndex, TheToolReportsItAndGoesOn) {
  const QStringList out =
      RunToolLines({"click Deal(" + kHuge + ")", "var NbTirées", "click Jouer", "var NbTirées", "close"});
  EXPECT_EQ(out,
            (QStringList{"error: index " + kHuge + " does not fit a number", "NbTirées=0", "NbTirées=5", "ended"}));
}

}  // namespace
