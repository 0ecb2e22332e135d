// The pictures of the form: sizes, names, distinctness and what shows at the start.
#include <gtest/gtest.h>

#include <QImage>
#include <QSet>

#include "tests/support/harness.h"

namespace {

QImage ImageOf(Picture p) { return p->Pixmap().toImage().convertToFormat(QImage::Format_ARGB32); }

bool SingleColour(const QImage& img) {
  const QRgb first = img.pixel(0, 0);
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x)
      if (img.pixel(x, y) != first) return false;
  return true;
}

// The pixels of a picture as bytes, to compare pictures by content.
QByteArray Pixels(Picture p) {
  const QImage img = ImageOf(p);
  return QByteArray(reinterpret_cast<const char*>(img.constBits()), static_cast<int>(img.sizeInBytes()));
}

// Checks that every control of a store holds its own picture, named after it, of `size`
// logical pixels.
void ExpectStore(const ControlArray<Control>& store, int low, int high, QSize size) {
  ASSERT_EQ(store.Low(), low);
  ASSERT_EQ(store.High(), high);
  for (int i = low; i <= high; ++i) {
    Picture p = store(i).GetPicture();
    ASSERT_NE(p, nullptr) << store(i).FullName().toStdString();
    EXPECT_EQ(p->name, store(i).FullName());
    EXPECT_FALSE(p->Pixmap().isNull()) << p->name.toStdString();
    EXPECT_EQ(p->Pixmap().deviceIndependentSize().toSize(), size) << p->name.toStdString();
  }
}

}  // namespace

TEST(Pictures, CardStoresHaveTheirSizesAndNames) {
  Harness h(false);
  ExpectStore(h.form->Cartes, 0, 54, QSize(88, 133));
  ExpectStore(h.form->Cartes2, 0, 53, QSize(65, 87));
  EXPECT_EQ(h.form->Cartes(54).GetPicture()->name, "Cartes(54)");
  EXPECT_EQ(h.form->Cartes2(0).GetPicture()->name, "Cartes2(0)");
}

TEST(Pictures, DigitStoreHasThirtyDigitsOfSixteenByTwentyTwo) {
  Harness h(false);
  ExpectStore(h.form->ChiffresModèle, 0, 29, QSize(16, 22));
  EXPECT_EQ(h.form->ChiffresModèle(13).GetPicture()->name, QString::fromUtf8("ChiffresModèle(13)"));
}

TEST(Pictures, TwoLanguageStoresHaveTheirFormsAndSizes) {
  Harness h(false);
  for (int i = 1; i <= 4; ++i) {
    Picture p = h.form->JouerImage(i).GetPicture();
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(p->name, QStringLiteral("JouerImage(%1)").arg(i));
    EXPECT_EQ(p->Pixmap().deviceIndependentSize().toSize(), QSize(132, 64));
  }
  for (int i = 1; i <= 2; ++i) {
    for (auto* store : {&h.form->GainsImage, &h.form->MisesImage, &h.form->TitreImage, &h.form->SSMusic}) {
      Control& c = (*store)(i);
      Picture p = c.GetPicture();
      ASSERT_NE(p, nullptr) << c.FullName().toStdString();
      EXPECT_EQ(p->name, c.FullName());
      EXPECT_EQ(p->Pixmap().deviceIndependentSize().toSize(), c.size()) << p->name.toStdString();
      EXPECT_FALSE(SingleColour(ImageOf(p))) << p->name.toStdString();
    }
  }
  EXPECT_EQ(h.form->TitreImage(1).GetPicture()->Pixmap().deviceIndependentSize().toSize(), QSize(165, 24));
  EXPECT_EQ(h.form->SSMusic(1).GetPicture()->Pixmap().deviceIndependentSize().toSize(), QSize(36, 38));
  // The two forms of each title differ, and so do the four PLAY faces.
  for (auto* store : {&h.form->GainsImage, &h.form->MisesImage, &h.form->TitreImage, &h.form->SSMusic})
    EXPECT_NE(Pixels((*store)(1).GetPicture()), Pixels((*store)(2).GetPicture())) << (*store)(1).Name().toStdString();
  QSet<QByteArray> faces;
  for (int i = 1; i <= 4; ++i) faces.insert(Pixels(h.form->JouerImage(i).GetPicture()));
  EXPECT_EQ(faces.size(), 4);
}

TEST(Pictures, EveryCardPictureIsDistinctAndNotBlank) {
  Harness h(false);
  QSet<QByteArray> seen;
  auto check = [&](const ControlArray<Control>& store) {
    for (int i = store.Low(); i <= store.High(); ++i) {
      Picture p = store(i).GetPicture();
      EXPECT_FALSE(SingleColour(ImageOf(p))) << p->name.toStdString();
      seen.insert(Pixels(p));
    }
  };
  check(h.form->Cartes);
  check(h.form->Cartes2);
  EXPECT_EQ(seen.size(), 55 + 54);
}

TEST(Pictures, TheTwoJokersDiffer) {
  Harness h(false);
  EXPECT_NE(Pixels(h.form->Cartes(52).GetPicture()), Pixels(h.form->Cartes(53).GetPicture()));
  EXPECT_NE(Pixels(h.form->Cartes2(52).GetPicture()), Pixels(h.form->Cartes2(53).GetPicture()));
}

TEST(Pictures, CardsFillTheirPictures) {
  // The full-size faces reach every edge; the small ones are centred, keeping the card's
  // proportions, and reach the top and bottom.
  Harness h(false);
  const QImage big = ImageOf(h.form->Cartes(0).GetPicture());
  EXPECT_GT(qAlpha(big.pixel(big.width() / 2, 0)), 0);
  EXPECT_GT(qAlpha(big.pixel(big.width() / 2, big.height() - 1)), 0);
  EXPECT_GT(qAlpha(big.pixel(0, big.height() / 2)), 0);
  EXPECT_GT(qAlpha(big.pixel(big.width() - 1, big.height() / 2)), 0);
  const QImage small = ImageOf(h.form->Cartes2(0).GetPicture());
  EXPECT_GT(qAlpha(small.pixel(small.width() / 2, 0)), 0);
  EXPECT_GT(qAlpha(small.pixel(small.width() / 2, small.height() - 1)), 0);
  // The middle of a card is its white.
  const QRgb middle = small.pixel(small.width() / 2, small.height() / 2 - 8);
  EXPECT_EQ(qAlpha(middle), 255);
}

TEST(Pictures, BackIsWhatTheCardsShowAtTheStart) {
  Harness h;
  Picture back = h.form->Cartes(54).GetPicture();
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(h.form->Deal(i).GetPicture(), back);
  for (int i = 0; i <= 24; ++i) EXPECT_EQ(h.form->Deal2(i).GetPicture(), back);
  EXPECT_EQ(h.Drive1("get Deal(2).Picture"), "Deal(2).Picture=Cartes(54)");
}

TEST(Pictures, DigitsAreDistinctWithinEachSet) {
  Harness h(false);
  for (int set = 0; set < 3; ++set) {
    QSet<QByteArray> digits;
    for (int d = 0; d < 10; ++d) {
      Picture p = h.form->ChiffresModèle(set * 10 + d).GetPicture();
      EXPECT_FALSE(SingleColour(ImageOf(p))) << p->name.toStdString();
      digits.insert(Pixels(p));
    }
    EXPECT_EQ(digits.size(), 10) << "set " << set;
  }
}

TEST(Pictures, DigitSetsHaveTheirColours) {
  // The brightest pixel of an eight says the set's colour: red, blue, grey.
  Harness h(false);
  auto brightest = [&](int index) {
    const QImage img = ImageOf(h.form->ChiffresModèle(index).GetPicture());
    QColor best(Qt::black);
    for (int y = 0; y < img.height(); ++y)
      for (int x = 0; x < img.width(); ++x)
        if (QColor(img.pixel(x, y)).value() > best.value()) best = QColor(img.pixel(x, y));
    return best;
  };
  const QColor red = brightest(8), blue = brightest(18), grey = brightest(28);
  EXPECT_GT(red.red(), 2 * red.blue());
  EXPECT_GT(red.red(), 2 * red.green());
  EXPECT_GT(blue.blue(), red.blue());
  EXPECT_GT(blue.blue(), blue.red() + 60);
  EXPECT_LT(std::abs(grey.red() - grey.blue()), 20);
  EXPECT_LT(std::abs(grey.red() - grey.green()), 20);
}

TEST(Pictures, DigitsStandOnTheDarkOfTheirRows) {
  // A digit's corner is the colour of the window of its row, so that a number reads as
  // one display.
  Harness h(false);
  const QImage digit = ImageOf(h.form->ChiffresModèle(5).GetPicture());
  const QImage row = ImageOf(h.form->ImageCrédit->GetPicture());
  const qreal dpr = h.form->ImageCrédit->GetPicture()->Pixmap().devicePixelRatio();
  const QPoint inRow = h.form->CapImage(0).pos() - h.form->ImageCrédit->pos();
  EXPECT_EQ(digit.pixel(0, 0), row.pixel(qRound((inRow.x() + 60) * dpr), qRound((inRow.y() + 1) * dpr)));
  EXPECT_EQ(digit.pixel(0, 0), digit.pixel(digit.width() - 1, digit.height() - 1));
  EXPECT_LT(QColor(digit.pixel(0, 0)).value(), 40);
}

TEST(Pictures, OnScreenTitlesStartWithTheFrenchForms) {
  Harness h(false);
  EXPECT_EQ(h.form->GainsImage(0).GetPicture(), h.form->GainsImage(1).GetPicture());
  EXPECT_EQ(h.form->MisesImage(0).GetPicture(), h.form->MisesImage(1).GetPicture());
  EXPECT_EQ(h.form->JouerImage(0).GetPicture(), h.form->JouerImage(1).GetPicture());
  EXPECT_EQ(h.form->TitreImage(0).GetPicture(), h.form->TitreImage(1).GetPicture());
  EXPECT_EQ(h.form->SSMusic(0).GetPicture(), h.form->SSMusic(1).GetPicture());
  EXPECT_EQ(h.Drive1("get JouerImage(0).Picture"), "JouerImage(0).Picture=JouerImage(1)");
}

TEST(Pictures, RowsAndOptionsHavePictures) {
  Harness h(false);
  for (Control* c : {h.form->ImageCrédit, h.form->ImageGains, h.form->ImageMises, h.form->ImageUnàDouze}) {
    ASSERT_NE(c->GetPicture(), nullptr) << c->FullName().toStdString();
    EXPECT_EQ(c->GetPicture()->Pixmap().deviceIndependentSize().toSize(), QSize(138, 52));
  }
  for (Control* c : {h.form->CréditImage, h.form->UnàDouze, h.form->Image6, h.form->ParesseOui, h.form->ParesseNon,
                     h.form->JeuSimple, h.form->Jeu3D}) {
    ASSERT_NE(c->GetPicture(), nullptr) << c->FullName().toStdString();
    EXPECT_FALSE(SingleColour(ImageOf(c->GetPicture()))) << c->FullName().toStdString();
  }
  EXPECT_EQ(h.form->Image6->GetPicture()->Pixmap().deviceIndependentSize().toSize(), QSize(32, 32));
  // The markers above the cards show the picture of the option in force: automatic.
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(h.form->ImageConseils(i).GetPicture(), h.form->ParesseOui->GetPicture());
}

TEST(Pictures, PicturesFollowTheScreenDensity) {
  Harness h(false);
  const qreal dpr = qGuiApp->devicePixelRatio();
  const QPixmap& back = h.form->Cartes(54).GetPicture()->Pixmap();
  EXPECT_DOUBLE_EQ(back.devicePixelRatio(), dpr);
  EXPECT_EQ(back.width(), qRound(88 * dpr));
}

TEST(Pictures, CardPointerIsSet) {
  Harness h;
  h.form->Deal(0).SetMousePointer(99);
  const QCursor cursor = h.form->Deal(0).cursor();
  EXPECT_EQ(cursor.shape(), Qt::BitmapCursor);
  EXPECT_FALSE(cursor.pixmap().isNull());
}
