// The pictures at the end of the hold bars: shown from the start, the picture of the selection
// in force in both games and after a return from JEU 2, their hints, and a caption that never
// runs under them.
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcessEnvironment>

#include "tests/interface/speech_helpers.h"

using options::Click;
using speech::Hint;
using speech::Lang;

namespace {

QString Get(Harness& h, const QString& what) {
  const QString line = h.Drive1("get " + what);
  return line.mid(line.indexOf('=') + 1);
}

// Each picture is shown and shows the picture of `selected`, read through talvero-drive.
void ExpectPictures(Harness& h, const QString& selected) {
  const QString picture = Get(h, selected + ".Picture");
  ASSERT_FALSE(picture.isEmpty());
  for (int i = 0; i <= 4; ++i) {
    const QString name = QStringLiteral("ImageConseils(%1)").arg(i);
    EXPECT_EQ(Get(h, name + ".Visible"), "-1") << name.toStdString();
    EXPECT_EQ(Get(h, name + ".Picture"), picture) << name.toStdString();
    EXPECT_EQ(h.form->ImageConseils(i).GetPicture(), h.form->FindControl(selected, -1)->GetPicture());
  }
}

// The hint line after the pointer reaches the picture over card `i`.
QString HintOver(Harness& h, int i) {
  const QStringList out = h.Drive({QStringLiteral("move ImageConseils(%1)").arg(i)});
  EXPECT_TRUE(out.isEmpty()) << out.join('\n').toStdString();
  return h.form->SSMessages->Caption();
}

TEST(SelectionPictures, ShownAtStartWithTheAutomaticSelection) {
  Harness h;
  ExpectPictures(h, "ParesseOui");
  for (int i = 0; i <= 4; ++i) EXPECT_TRUE(h.form->ImageConseils(i).isVisibleTo(h.form.get()));
}

TEST(SelectionPictures, FollowEachChangeOfSelection) {
  Harness h;
  Click(h, "ParesseNon");
  ExpectPictures(h, "ParesseNon");
  Click(h, "ParesseOui");
  ExpectPictures(h, "ParesseOui");
  Click(h, "ParesseNon");
  ExpectPictures(h, "ParesseNon");
}

TEST(SelectionPictures, StayVisibleThroughARound) {
  Harness h;
  Click(h, "ParesseNon");
  options::FirstDrawing1(h, {0, 14, 28, 42, 5});
  ExpectPictures(h, "ParesseNon");
  Click(h, "Jouer");
  ExpectPictures(h, "ParesseNon");
}

TEST(SelectionPictures, UnchangedInTheGridGameAndAutomaticOnTheReturn) {
  Harness h;
  Click(h, "ParesseNon");
  options::ToGrid(h);
  // JEU 2 has no selection and takes no click on it; the pictures keep the last one.
  EXPECT_EQ(h.form->ParesseNon->BevelWidth(), 3);
  EXPECT_EQ(h.form->ParesseOui->BevelWidth(), 3);
  Click(h, "ParesseOui");
  EXPECT_EQ(h.form->ParesseOui->BevelWidth(), 3);
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(h.form->ImageConseils(i).GetPicture(), h.form->ParesseNon->GetPicture()) << i;
  // Back in JEU 1 the automatic selection is in force again, and the pictures show it.
  Click(h, "JeuSimple");
  ExpectPictures(h, "ParesseOui");
  for (int i = 0; i <= 4; ++i) EXPECT_TRUE(h.form->ImageConseils(i).isVisibleTo(h.form.get())) << i;
}

class SelectionPictureHints : public ::testing::TestWithParam<Lang> {
 protected:
  void SetUp() override { speech::Choose(h, GetParam()); }
  QString H(int key) const { return Hint(key, GetParam()); }
  Harness h;
};

TEST_P(SelectionPictureHints, AutomaticThenManual) {
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(HintOver(h, i), H(9)) << i;
  Click(h, "ParesseNon");
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(HintOver(h, i), H(10)) << i;
  Click(h, "ParesseOui");
  EXPECT_EQ(HintOver(h, 3), H(9));
}

TEST_P(SelectionPictureHints, TheLanguageSwitchChangesTheHint) {
  Click(h, "ParesseNon");
  speech::Choose(h, speech::Other(GetParam()));
  EXPECT_EQ(HintOver(h, 1), Hint(10, speech::Other(GetParam())));
}

TEST_P(SelectionPictureHints, BlankInAutomaticMode) {
  QString during = "unset";
  speech::AtYieldWhen(
      h, [] { return true; },
      [&] {
        HintOver(h, 0);
        during = h.form->SSMessages->Caption();
        h.Drive({"click AutoPlayStop"});
      });
  Click(h, "AutoPlay");
  EXPECT_EQ(during, "");
  EXPECT_EQ(HintOver(h, 0), H(9));
}

INSTANTIATE_TEST_SUITE_P(Languages, SelectionPictureHints, ::testing::Values(Lang::English, Lang::French),
                         speech::LangName);

// The points of hold bar `i` that its caption paints: the bar grabbed with and without its
// caption, the picture hidden in both.
QImage CaptionInk(JeuPoker& f, int i) {
  Control& bar = f.Jouez(i);
  Control& picture = f.ImageConseils(i);
  const QString caption = bar.Caption();
  picture.SetVisible(false);
  const QImage with = bar.grab().toImage().convertToFormat(QImage::Format_RGB32);
  bar.SetCaption(QString());
  const QImage without = bar.grab().toImage().convertToFormat(QImage::Format_RGB32);
  bar.SetCaption(caption);
  picture.SetVisible(true);
  QImage ink(with.size(), QImage::Format_Mono);
  ink.fill(0);
  for (int y = 0; y < with.height(); ++y)
    for (int x = 0; x < with.width(); ++x)
      if (with.pixel(x, y) != without.pixel(x, y)) ink.setPixel(x, y, 1);
  return ink;
}

// Every caption a hold bar shows, in both languages, leaves the picture's square untouched.
TEST(SelectionPictures, NoCaptionRunsUnderThePicture) {
  const QString shots = QProcessEnvironment::systemEnvironment().value("TALVERO_SHOTS");
  QStringList seen;
  for (Lang l : {Lang::English, Lang::French}) {
    Harness h;
    JeuPoker& f = *h.form;
    f.show();
    speech::Choose(h, l);
    Click(h, "ParesseNon");
    for (int step = 0; step < 3; ++step) {
      if (step == 1) options::FirstDrawing1(h, {0, 14, 28, 42, 5});  // all five rejected
      if (step == 2) Click(h, "Deal(1)");                            // one held
      for (int i = 0; i <= 4; ++i) {
        const QString caption = f.Jouez(i).Caption();
        if (!seen.contains(caption)) seen << caption;
        const QImage ink = CaptionInk(f, i);
        const QRect square = f.ImageConseils(i).geometry().intersected(f.Jouez(i).rect());
        ASSERT_FALSE(square.isEmpty());
        int under = 0, painted = 0;
        for (int y = 0; y < ink.height(); ++y)
          for (int x = 0; x < ink.width(); ++x)
            if (ink.pixelIndex(x, y)) {
              ++painted;
              if (square.contains(x, y)) ++under;
            }
        EXPECT_GT(painted, 0) << caption.toStdString();
        EXPECT_EQ(under, 0) << caption.toStdString() << " runs under the picture of bar " << i;
      }
      if (!shots.isEmpty())
        f.SSAireJeu->grab(QRect(0, 0, f.SSAireJeu->width(), 40))
            .save(QDir(shots).filePath(
                QStringLiteral("hold-bars-%1-%2.png").arg(speech::IsEnglish(l) ? "en" : "fr").arg(step)));
    }
  }
  seen.sort();
  EXPECT_EQ(seen, (QStringList{"GARDER", "HOLD", "JETER", "JOUEZ", "PLAY", "REJECT"}));
}

}  // namespace
