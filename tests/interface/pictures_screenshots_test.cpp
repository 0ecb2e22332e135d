// Screenshots for looking at the pictures: the start screen and contact sheets of the
// stores. They are written only when TALVERO_SHOTS names a directory.
#include <gtest/gtest.h>

#include <QDir>
#include <QPainter>

#include "interface/pictures_art.h"
#include "tests/support/harness.h"

namespace {

QString ShotsDir() { return qEnvironmentVariable("TALVERO_SHOTS"); }

// All pictures of a store side by side, on the felt of the play area.
QImage Sheet(const ControlArray<Control>& store, int perRow, QSize cell, qreal scale) {
  const int count = store.High() - store.Low() + 1;
  const int rows = (count + perRow - 1) / perRow;
  QImage img(QSize(perRow * cell.width() + 8, rows * cell.height() + 8) * scale, QImage::Format_ARGB32);
  img.fill(QColor(0, 64, 0));
  QPainter p(&img);
  p.scale(scale, scale);
  for (int i = 0; i < count; ++i) {
    const QPixmap& pm = store(store.Low() + i).GetPicture()->Pixmap();
    p.drawPixmap(QPoint(4 + (i % perRow) * cell.width(), 4 + (i / perRow) * cell.height()), pm);
  }
  return img;
}

}  // namespace

TEST(PicturesShots, StartScreenAndSheets) {
  if (ShotsDir().isEmpty()) GTEST_SKIP() << "set TALVERO_SHOTS to a directory to write the screenshots";
  Harness h;
  QDir().mkpath(ShotsDir());
  const QDir dir(ShotsDir());
  EXPECT_TRUE(h.form->grab().save(dir.filePath("start.png")));
  EXPECT_TRUE(Sheet(h.form->Cartes, 13, QSize(92, 137), 1).save(dir.filePath("cards.png")));
  EXPECT_TRUE(Sheet(h.form->Cartes2, 13, QSize(69, 91), 1).save(dir.filePath("cards2.png")));
  EXPECT_TRUE(Sheet(h.form->ChiffresModèle, 10, QSize(18, 24), 4).save(dir.filePath("digits.png")));
  EXPECT_TRUE(Sheet(h.form->JouerImage, 5, QSize(136, 68), 2).save(dir.filePath("play.png")));

  // A deal on the table, a win pending, the digits showing.
  const int hand[5] = {51, 37, 23, 9, 53};
  for (int i = 0; i <= 4; ++i) h.form->Deal(i).SetPicture(h.form->Cartes(hand[i]).GetPicture());
  const int capital[3] = {11, 19, 10};
  for (int i = 0; i < 3; ++i) {
    h.form->CapImage(i).SetLeft(720 + 240 * i);
    h.form->CapImage(i).SetPicture(h.form->ChiffresModèle(capital[i]).GetPicture());
    h.form->CapImage(i).SetVisible(true);
  }
  for (int i = 0; i < 2; ++i) {
    h.form->GainImage(i).SetLeft(840 + 240 * i);
    h.form->GainImage(i).SetPicture(h.form->ChiffresModèle(i == 0 ? 2 : 5).GetPicture());
    h.form->GainImage(i).SetVisible(true);
  }
  h.form->MiseImage(0).SetLeft(960);
  h.form->MiseImage(0).SetPicture(h.form->ChiffresModèle(21).GetPicture());
  h.form->MiseImage(0).SetVisible(true);
  h.form->Deal(1).SetMousePointer(99);
  h.form->SSMusic(0).SetCaption("3");
  for (int i = 0; i <= 4; ++i) {
    h.form->CartesMains(i).SetPicture(h.form->Cartes(8 + 13 * (i % 4)).GetPicture());
    h.form->CartesMains(i).SetVisible(true);
  }
  QCoreApplication::processEvents();
  EXPECT_TRUE(h.form->grab().save(dir.filePath("deal.png")));

  // English, and the grid game.
  h.form->GainsImage(0).SetPicture(h.form->GainsImage(2).GetPicture());
  h.form->MisesImage(0).SetPicture(h.form->MisesImage(2).GetPicture());
  h.form->JouerImage(0).SetPicture(h.form->JouerImage(4).GetPicture());
  h.form->TitreImage(0).SetPicture(h.form->TitreImage(2).GetPicture());
  h.form->SSMusic(0).SetPicture(h.form->SSMusic(2).GetPicture());
  h.form->SSAireJeu->SetVisible(false);
  h.form->SSAireJeu5->SetVisible(true);
  h.form->SSTirage->SetTop(3765);
  h.form->SSMises->SetHeight(4245);
  h.form->SSGains->Move(7275, 4935, 3870, 2880);
  for (int i = 0; i <= 24; ++i) h.form->Deal2(i).SetPicture(h.form->Cartes2((i * 7) % 54).GetPicture());
  h.form->UnàDouzeImage(0).SetLeft(960);
  h.form->UnàDouzeImage(0).SetPicture(h.form->ChiffresModèle(27).GetPicture());
  h.form->UnàDouzeImage(0).SetVisible(true);
  h.form->Jouez5->SetVisible(false);
  h.form->SSConseils5->SetVisible(true);
  QCoreApplication::processEvents();
  EXPECT_TRUE(h.form->grab().save(dir.filePath("grid.png")));

  // The card pointer, four times its size, on the felt.
  const QPixmap cursor = h.form->Deal(1).cursor().pixmap();
  QImage pointer(cursor.size() * 4, QImage::Format_ARGB32);
  pointer.fill(QColor(0, 64, 0));
  QPainter p(&pointer);
  p.scale(4, 4);
  p.drawPixmap(0, 0, cursor);
  p.end();
  EXPECT_TRUE(pointer.save(dir.filePath("pointer.png")));

  // The small pictures drawn for a screen of density 4, to check their shapes.
  const qreal dense = 4;
  const QImage icons[] = {pics::CardPointer(dense),
                          pics::AdviceIcon(QSize(32, 32), dense),
                          pics::HandIcon(QSize(32, 32), dense),
                          pics::MusicIcon(true, QSize(36, 38), dense),
                          pics::MusicIcon(false, QSize(36, 38), dense),
                          pics::PowerIcon(QSize(24, 24), dense),
                          pics::FlagIcon(true, QSize(26, 17), dense),
                          pics::FlagIcon(false, QSize(26, 17), dense),
                          pics::Digit(8, pics::DigitColour::Blue, QSize(16, 22), dense),
                          pics::GameTitle(2, QSize(165, 24), dense)};
  QImage sheet(QSize(1400, 200), QImage::Format_ARGB32);
  sheet.fill(QColor(128, 128, 128));
  QPainter s(&sheet);
  int x = 4;
  for (const QImage& pm : icons) {
    QImage raw = pm;
    raw.setDevicePixelRatio(1);
    s.drawImage(x, 4, raw);
    x += raw.width() + 8;
  }
  s.end();
  EXPECT_TRUE(sheet.save(dir.filePath("icons.png")));
}
