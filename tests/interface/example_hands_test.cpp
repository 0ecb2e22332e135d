// The example hands over the hint line: a row title of the pay table shows five cards of its
// class, the row of the better hand and the amounts hide them, and so does every handler
// around the table as the mouse leaves it.
#include "tests/interface/speech_helpers.h"

using namespace speech;
using options::Click;

namespace {

const int kExamples[11][5] = {
    {2, 11, 17, 25, 52},  {10, 23, 9, 22, 14},  {10, 23, 36, 12, 13}, {7, 21, 22, 36, 50},
    {13, 16, 17, 20, 21}, {10, 23, 11, 24, 50}, {12, 25, 38, 51, 4},  {25, 13, 14, 15, 16},
    {8, 9, 10, 11, 12},   {12, 25, 38, 51, 52}, {2, 3, 17, 18, 28},
};

bool ExampleShown(const JeuPoker& f) {
  for (int i = 0; i <= 4; ++i)
    if (!f.CartesMains(i).Visible()) return false;
  return true;
}

bool ExampleHidden(const JeuPoker& f) {
  for (int i = 0; i <= 4; ++i)
    if (f.CartesMains(i).Visible()) return false;
  return true;
}

class ExampleHands : public ::testing::TestWithParam<int> {
 protected:
  Harness h;
};

TEST_P(ExampleHands, RowTitleShowsItsHand) {
  JeuPoker& f = *h.form;
  const int row = GetParam();
  HoverOver(h, "Fin");
  EXPECT_EQ(HoverOver(h, QStringLiteral("Maintitre(%1)").arg(row)), "");
  EXPECT_EQ(f.MainExemple, row);
  ASSERT_TRUE(ExampleShown(f));
  for (int i = 0; i <= 4; ++i)
    EXPECT_EQ(f.CartesMains(i).GetPicture(), f.Cartes(kExamples[row][i]).GetPicture()) << "card " << i;
}

// Each row by its number and the hand it pays, top to bottom as the pay table lists them.
std::string RowName(const ::testing::TestParamInfo<int>& info) {
  static const char* const kHands[11] = {"KingsOrAces", "TwoPairs",    "ThreeOfAKind", "Straight",
                                         "Flush",       "FullHouse",   "FourOfAKind",  "StraightFlush",
                                         "RoyalFlush",  "FiveOfAKind", "Nothing"};
  return "Row" + std::to_string(info.param) + "_" + kHands[info.param];
}

INSTANTIATE_TEST_SUITE_P(Rows, ExampleHands, ::testing::Range(0, 11), RowName);

TEST(ExampleHand, BetterHandRowHidesAndNothingRowShows) {
  Harness h;
  JeuPoker& f = *h.form;
  HoverOver(h, "Maintitre(10)");
  EXPECT_TRUE(ExampleShown(f));
  EXPECT_EQ(f.MainExemple, 10);
  HoverOver(h, "Maintitre(11)");
  EXPECT_TRUE(ExampleHidden(f));
  EXPECT_EQ(f.MainExemple, 50);
}

// A press on a title hides the cards but leaves MainExemple: moving on over the same title
// does not bring them back, another title does.
TEST(ExampleHand, PressHidesUntilAnotherRow) {
  Harness h;
  JeuPoker& f = *h.form;
  HoverOver(h, "Maintitre(4)");
  ASSERT_TRUE(ExampleShown(f));
  f.Maintitre(4).MouseDown(1, 0, 0, 0);
  EXPECT_TRUE(ExampleHidden(f));
  EXPECT_EQ(f.MainExemple, 4);
  HoverOver(h, "Maintitre(4)");
  EXPECT_TRUE(ExampleHidden(f));
  HoverOver(h, "Maintitre(5)");
  EXPECT_TRUE(ExampleShown(f));
  EXPECT_EQ(f.CartesMains(4).GetPicture(), f.Cartes(50).GetPicture());
}

// A pay amount hides the example and shows the amount alone, TableGains x Mise.
TEST(ExampleHand, AmountHidesAndShowsThePay) {
  Harness h;
  JeuPoker& f = *h.form;
  Click(h, "Plus");
  HoverOver(h, "Maintitre(8)");
  ASSERT_TRUE(ExampleShown(f));
  EXPECT_EQ(HoverOver(h, "MainLabel(8)"), QString::number(f.TableGains(8) * 2));
  EXPECT_TRUE(ExampleHidden(f));
  EXPECT_EQ(f.MainExemple, 50);
  EXPECT_EQ(f.TexteAide, 0);
}

// The handlers that take the example away first.
class ExampleHiddenBy : public ::testing::TestWithParam<const char*> {};

TEST_P(ExampleHiddenBy, MovingOver) {
  Harness h;
  JeuPoker& f = *h.form;
  HoverOver(h, "Maintitre(6)");
  ASSERT_TRUE(ExampleShown(f));
  HoverOver(h, GetParam());
  EXPECT_TRUE(ExampleHidden(f));
  EXPECT_EQ(f.MainExemple, 50);
  // The same row shows again, since MainExemple was reset.
  HoverOver(h, "Maintitre(6)");
  EXPECT_TRUE(ExampleShown(f));
}

INSTANTIATE_TEST_SUITE_P(Handlers, ExampleHiddenBy,
                         ::testing::Values("SSAireJeu", "Jouez(2)", "ImageConseils(3)", "MainLabel(0)", "SSGains",
                                           "MainsPayantes", "Rapport", "PourCentLabel", "Pourcentages(1)",
                                           "PourcDéc(1)", "Fractions(1)", "Fréquence(1)"),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                           QString n = QString::fromUtf8(info.param);
                           n.remove('(').remove(')');
                           n.replace(QString::fromUtf8("é"), "e");
                           return n.toStdString();
                         });

// The grid's area leaves the example as it is, since the table stands elsewhere in JEU 2; other
// controls leave it too.
TEST(ExampleHand, KeptByOtherHandlers) {
  Harness h;
  JeuPoker& f = *h.form;
  HoverOver(h, "Maintitre(3)");
  ASSERT_TRUE(ExampleShown(f));
  f.SSAireJeu5->MouseMove(0, 0, 0, 0);
  EXPECT_TRUE(ExampleShown(f));
  EXPECT_EQ(f.MainExemple, 3);
  for (const char* c : {"Jouer", "Fin", "AutoPlay", "SSLangue(1)"}) {
    HoverOver(h, c);
    EXPECT_TRUE(ExampleShown(f)) << c;
  }
}

}  // namespace
