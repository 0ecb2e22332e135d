// The colour of the probability panel's rows as the player sees them: the whole-part labels
// lie over the percentage column and let its colour show through.
#include <gtest/gtest.h>

#include <QImage>

#include "tests/interface/options_helpers.h"

using namespace options;

namespace {

const QColor kTeal(0, 64, 64);  // 0x404000
const QColor kBlack(0, 0, 0);

// The colour on screen at the centre of PourcDéc(i).
QColor CentreOfWholePart(JeuPoker& f, const QImage& shot, int i) {
  const Control& label = f.PourcDéc(i);
  const QPoint centre = label.mapTo(&f, QPoint(label.width() / 2, label.height() / 2));
  return shot.pixelColor(centre);
}

// Rows whose whole part reads "0" or nothing, so that no text lies at the label's centre.
std::vector<int> ShortRows(const JeuPoker& f) {
  std::vector<int> rows;
  for (int i = 0; i <= 11; ++i) {
    const QString text = f.PourcDéc(i).Caption();
    if (text.isEmpty() || text == "0") rows.push_back(i);
  }
  return rows;
}

TEST(PanelColour, WholePartLabelsAreTransparent) {
  Harness h;
  for (int i = 0; i <= 11; ++i) EXPECT_TRUE(h.form->PourcDéc(i).Transparent()) << i;
}

TEST(PanelColour, RowsShowTheirColumnColourThroughTheWholePart) {
  Harness h;
  JeuPoker& f = *h.form;
  // At rest every row is teal.
  QImage shot = f.grab().toImage();
  ASSERT_FALSE(ShortRows(f).empty());
  for (int i : ShortRows(f)) EXPECT_EQ(CentreOfWholePart(f, shot, i), kTeal) << "at rest, row " << i;

  // Counted after the first drawing: teal where draws make the row, black where none does.
  FirstDrawing1(h, kHandNothing);
  shot = f.grab().toImage();
  int tealZeros = 0;
  for (int i : ShortRows(f)) {
    const bool counted = f.Pourcentages(i).BackColor() == 0x404000;
    EXPECT_EQ(CentreOfWholePart(f, shot, i), counted ? kTeal : kBlack) << "first drawing, row " << i;
    if (counted && f.PourcDéc(i).Caption() == "0") ++tealZeros;
  }
  EXPECT_GT(tealZeros, 0);

  // After the second drawing the twelve rows are blank and black.
  HoldAll(h);
  Click(h, "Jouer");
  ASSERT_EQ(f.NbTirées, 10);
  shot = f.grab().toImage();
  ASSERT_EQ(ShortRows(f).size(), 12u);
  for (int i = 0; i <= 11; ++i) EXPECT_EQ(CentreOfWholePart(f, shot, i), kBlack) << "second drawing, row " << i;
}

}  // namespace
