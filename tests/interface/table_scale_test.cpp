// The table's scale: the rules that choose it, and a control at a scale keeping its logical
// place, its logical mouse coordinates and the pictures drawn for the scale.
#include "interface/table_scale.h"

#include <gtest/gtest.h>

#include <QMouseEvent>
#include <QResizeEvent>
#include <QTemporaryDir>
#include <cmath>

#include "core/table_facts.h"
#include "interface/pictures_art.h"
#include "tests/support/helpers.h"

namespace {

TEST(TableScale, FitsTheAreaAndNeverGoesBelowOne) {
  EXPECT_DOUBLE_EQ(table::FitScale(QSize(1024, 768)), 1.0);
  EXPECT_DOUBLE_EQ(table::FitScale(QSize(800, 600)), 1.0);
  EXPECT_DOUBLE_EQ(table::FitScale(QSize(2048, 1536)), 2.0);
  EXPECT_DOUBLE_EQ(table::FitScale(QSize(1536, 1152)), 1.5);
  // The narrower of the two ratios: a wide screen is limited by its height.
  EXPECT_DOUBLE_EQ(table::FitScale(QSize(2560, 1600)), 1600.0 / 768);
  EXPECT_DOUBLE_EQ(table::FitScale(QSize(1920, 1050)), 1050.0 / 768);
  EXPECT_DOUBLE_EQ(table::FitScale(QSize(1100, 3000)), 1100.0 / 1024);
  EXPECT_DOUBLE_EQ(table::FitScale(QSize(8000, 6000)), 4.0);
}

TEST(TableScale, ParsesScalesFromOneToFour) {
  EXPECT_EQ(table::ParseScale("1"), 1.0);
  EXPECT_EQ(table::ParseScale("1.5"), 1.5);
  EXPECT_EQ(table::ParseScale(" 2 "), 2.0);
  EXPECT_EQ(table::ParseScale("4"), 4.0);
  EXPECT_FALSE(table::ParseScale("0.5"));
  EXPECT_FALSE(table::ParseScale("4.01"));
  EXPECT_FALSE(table::ParseScale("two"));
  EXPECT_FALSE(table::ParseScale(""));
  EXPECT_FALSE(table::ParseScale("nan"));
  EXPECT_FALSE(table::ParseScale("inf"));
}

TEST(TableScale, TheCommandLineComesBeforeTheEnvironment) {
  qputenv("TALVERO_SCALE", "1.5");
  EXPECT_EQ(table::RequestedScale({"talvero"}), 1.5);
  EXPECT_EQ(table::RequestedScale({"talvero", "--scale", "2"}), 2.0);
  // A value that is not a scale is ignored: the table fits the screen.
  EXPECT_EQ(table::RequestedScale({"talvero", "--scale", "9"}), 0.0);
  EXPECT_EQ(table::RequestedScale({"talvero", "--scale"}), 0.0);
  qputenv("TALVERO_SCALE", "big");
  EXPECT_EQ(table::RequestedScale({"talvero"}), 0.0);
  qunsetenv("TALVERO_SCALE");
  EXPECT_EQ(table::RequestedScale({"talvero"}), 0.0);
}

TEST(TableScale, TheTableIsCentredAndRounded) {
  EXPECT_EQ(table::TableRect(QSize(1024, 768), 1), QRect(0, 0, 1024, 768));
  EXPECT_EQ(table::TableRect(QSize(2048, 1536), 2), QRect(0, 0, 2048, 1536));
  EXPECT_EQ(table::TableRect(QSize(2000, 1000), 1000.0 / 768), QRect(333, 0, 1333, 1000));
  EXPECT_EQ(table::TableRect(QSize(1200, 1600), 1200.0 / 1024), QRect(0, 350, 1200, 900));
}

TEST(TableScale, PrintsUpToFourDecimals) {
  EXPECT_EQ(table::ScaleText(1), "1");
  EXPECT_EQ(table::ScaleText(1.5), "1.5");
  EXPECT_EQ(table::ScaleText(2), "2");
  EXPECT_EQ(table::ScaleText(1600.0 / 768), "2.0833");
}

TEST(TableScale, AControlKeepsItsLogicalPlaceAndDrawsScaled) {
  TestApp();
  QWidget parent;
  Control c(ControlKind::Panel, "P", -1, &parent);
  c.Move(150, 300, 1500, 450);  // 10, 20, 100 x 30 pixels
  c.SetScale(2);
  EXPECT_EQ(c.geometry(), QRect(20, 40, 200, 60));
  EXPECT_EQ(c.Left(), 150);
  EXPECT_EQ(c.Width(), 1500);
  c.SetLeft(300);
  EXPECT_EQ(c.geometry(), QRect(40, 40, 200, 60));
  EXPECT_EQ(c.Left(), 300);
  // Each edge is rounded on its own: at 1.5, 11..111 logical covers 17 (16.5) to 167 (166.5).
  c.SetScale(1.5);
  c.Move(165, 0, 1500, 15);
  EXPECT_EQ(c.geometry(), QRect(17, 0, 150, 2));
  c.SetScale(1);
  EXPECT_EQ(c.geometry(), QRect(11, 0, 100, 1));
}

TEST(TableScale, MouseEventsReachTheGameInLogicalTwips) {
  TestApp();
  QWidget parent;
  Control c(ControlKind::Button, "B", -1, &parent);
  c.Move(0, 0, 1500, 1500);
  c.SetScale(2);
  int gotX = -1, gotY = -1, clicks = 0;
  c.MouseDown = [&](int, int, int x, int y) {
    gotX = x;
    gotY = y;
  };
  c.Click = [&] { ++clicks; };
  QMouseEvent press(QEvent::MouseButtonPress, QPointF(41, 21), QPointF(41, 21), Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QApplication::sendEvent(&c, &press);
  EXPECT_EQ(gotX, 20 * kTwipsPerPixel);
  EXPECT_EQ(gotY, 10 * kTwipsPerPixel);
  // A release at the bottom right corner of the widget is still inside the control.
  QMouseEvent release(QEvent::MouseButtonRelease, QPointF(199, 199), QPointF(199, 199), Qt::LeftButton, Qt::NoButton,
                      Qt::NoModifier);
  QApplication::sendEvent(&c, &release);
  EXPECT_EQ(clicks, 1);
}

TEST(TableScale, AFormAtAScaleDrawsItsPicturesForIt) {
  TestApp();
  QTemporaryDir dir;
  JeuPoker form(dir.path(), QString(), 2);
  EXPECT_EQ(form.TableScale(), 2.0);
  EXPECT_EQ(form.size(), QSize(2048, 1536));
  EXPECT_EQ(form.Deal(0).size(), QSize(186, 276));
  EXPECT_EQ(form.Deal(0).Width(), 93 * kTwipsPerPixel);
  // Every picture is drawn at twice its logical size, the card faces from the deck.
  EXPECT_EQ(form.Cartes(54).GetPicture()->Pixmap(form.PictureRatio()).size(), QSize(176, 266));
  EXPECT_EQ(form.ChiffresModèle(3).GetPicture()->Pixmap(form.PictureRatio()).size(),
            form.ChiffresModèle(3).LogicalSize() * 2);
  // The card pointer too, its tip where it was.
  form.Deal(0).SetMousePointer(kCarte);
  EXPECT_EQ(form.Deal(0).cursor().pixmap().size(), pics::CardPointer(1).size() * 2);
  EXPECT_EQ(form.Deal(0).cursor().hotSpot(), QPoint(8, 2));
}

TEST(TableScale, AResizeDrawsThePicturesAgainInTheBackground) {
  TestApp();
  QTemporaryDir dir;
  JeuPoker form(dir.path(), QString(), 1);
  const Picture digit = form.ChiffresModèle(3).GetPicture();
  const Picture back = form.Cartes(54).GetPicture();
  digit->Pixmap(form.PictureRatio());
  back->Pixmap(form.PictureRatio());
  form.resize(1536, 1152);
  QResizeEvent resized(QSize(1536, 1152), QSize(1024, 768));
  QApplication::sendEvent(&form, &resized);
  EXPECT_EQ(form.TableScale(), 1.5);
  // Until the new pictures come, the old ones are shown (scaled), never a wait.
  EXPECT_EQ(digit->Pixmap(form.PictureRatio()).size(), form.ChiffresModèle(3).LogicalSize());
  form.WaitForPictures();
  const QSize logical = form.ChiffresModèle(3).LogicalSize();
  EXPECT_EQ(digit->Pixmap(form.PictureRatio()).size(), QSize(static_cast<int>(std::ceil(logical.width() * 1.5)),
                                                             static_cast<int>(std::ceil(logical.height() * 1.5))));
  EXPECT_EQ(back->Pixmap(form.PictureRatio()).size(), QSize(132, 200));  // 88 x 133 at 1.5, rounded up
  EXPECT_EQ(digit->Ratio(), 1.5);
  // The same picture, by identity: the game's comparisons of pictures are unchanged.
  EXPECT_EQ(form.ChiffresModèle(3).GetPicture(), digit);
}

}  // namespace
