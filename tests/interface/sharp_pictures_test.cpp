// Sharp at every scale: at scale 2 (and 1.5) the card faces, the digits, the painted pictures
// and the texts are drawn for the scale, their edges as steep as at scale 1; on a screen of
// device pixel ratio 2 every picture has twice the pixels.
#include <QImage>

#include "tests/interface/scale_helpers.h"

namespace {

const QStringList kClassic = {"seed 7", "click Jouer"};

// Regions of the table, each a union of the controls named, in window pixels.
struct Region {
  const char* what;
  QStringList controls;
};
const Region kRegions[] = {
    {"card faces", {"Deal(0)", "Deal(1)", "Deal(2)", "Deal(3)", "Deal(4)"}},
    {"credit digits", {"CapImage(0)", "CapImage(1)", "CapImage(2)"}},
    {"pay table texts", {"Maintitre(3)", "Maintitre(4)", "Maintitre(5)", "Maintitre(6)"}},
    {"hold bar captions", {"Jouez(0)", "Jouez(1)"}},
    {"alert line", {"SSAlertes"}},
    {"title", {"TitreImage(0)"}},
    {"PLAY face", {"JouerImage(0)"}},
    {"menu buttons", {"AutoPlay", "AutoPlayStop", "Fin", "SSLangue(0)", "SSLangue(1)"}},
};

QRect Union(const QHash<QString, QRect>& rects, const QStringList& names) {
  QRect r;
  for (const QString& n : names) {
    EXPECT_TRUE(rects.contains(n)) << n.toStdString();
    r = r.united(rects.value(n));
  }
  return r;
}

struct Shot {
  QImage image;
  QHash<QString, QRect> rects;
};

Shot Take(const scale::VirtualScreen& screen, const QString& scaleText, const QStringList& more = {}) {
  QTemporaryDir dir;
  const QString file = dir.filePath("shot.png");
  QStringList commands = kClassic;
  commands << more << "rects"
           << "shot " + file;
  const ToolRun run = screen.Drive(commands, {"--scale", scaleText});
  return {QImage(file), scale::Rects(run.lines)};
}

void ExpectAsSharp(const Shot& one, const Shot& scaled, const char* label) {
  ASSERT_FALSE(one.image.isNull());
  ASSERT_FALSE(scaled.image.isNull());
  for (const Region& region : kRegions) {
    const QRect a = Union(one.rects, region.controls), b = Union(scaled.rects, region.controls);
    const double sharpOne = scale::Sharpness(one.image, a), sharpScaled = scale::Sharpness(scaled.image, b);
    ASSERT_GT(sharpOne, 10) << region.what;
    EXPECT_GE(sharpScaled / sharpOne, 0.8) << label << ": " << region.what << " " << sharpScaled << " / " << sharpOne;
  }
}

TEST(SharpPictures, AtScaleTwoEdgesAreAsSteepAsAtScaleOne) {
  scale::VirtualScreen screen(QSize(2560, 1600));
  ASSERT_TRUE(screen.Ok());
  const Shot one = Take(screen, "1"), two = Take(screen, "2");
  EXPECT_EQ(two.image.size(), QSize(2048, 1536));
  ExpectAsSharp(one, two, "scale 2");
}

TEST(SharpPictures, TheMeasureTellsAnEnlargedBitmap) {
  // Scale 1 enlarged twice, as a window that only stretched its bitmap would show it.
  scale::VirtualScreen screen(QSize(2560, 1600));
  ASSERT_TRUE(screen.Ok());
  const Shot one = Take(screen, "1");
  const QImage enlarged = one.image.scaled(one.image.size() * 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  for (const Region& region : kRegions) {
    const QRect a = Union(one.rects, region.controls);
    const QRect b(a.topLeft() * 2, a.size() * 2);
    const double ratio = scale::Sharpness(enlarged, b) / scale::Sharpness(one.image, a);
    EXPECT_LT(ratio, 0.7) << region.what << " " << ratio;
  }
}

TEST(SharpPictures, AfterAResizeThePicturesAreDrawnForTheNewScale) {
  scale::VirtualScreen screen(QSize(2560, 1600));
  ASSERT_TRUE(screen.Ok());
  const Shot one = Take(screen, "1"), resized = Take(screen, "1", {"resize 1536 1152"});
  EXPECT_EQ(resized.image.size(), QSize(1536, 1152));
  ExpectAsSharp(one, resized, "resized to 1.5");
}

// Pictures of every kind, painted and from the deck.
const QStringList kPictured = {
    "Deal(0)",     "Cartes(10)", "Cartes2(10)", "ChiffresModèle(3)", "JouerImage(0)", "TitreImage(0)",
    "SSMusic(0)",  "ParesseOui", "ImageCrédit", "CréditImage",       "Jeu3D",         "JeuSimple",
    "SSLangue(0)", "Fin"};

QHash<QString, QSize> PixelsOf(const ToolRun& run) {
  static const QRegularExpression re(QStringLiteral(R"(^(\S+)\.Pixels=(\d+)x(\d+)$)"));
  QHash<QString, QSize> out;
  for (const QString& line : run.lines) {
    const auto m = re.match(line);
    if (m.hasMatch()) out.insert(m.captured(1), QSize(m.captured(2).toInt(), m.captured(3).toInt()));
  }
  return out;
}

QStringList PixelsCommands() {
  QStringList commands = kClassic;
  for (const QString& c : kPictured) commands << "pixels " + c;
  return commands;
}

TEST(SharpPictures, EveryPictureHasTwiceThePixelsAtScaleTwo) {
  const auto one = PixelsOf(RunTool(PixelsCommands(), {"--scale", "1"}));
  const auto two = PixelsOf(RunTool(PixelsCommands(), {"--scale", "2"}));
  ASSERT_EQ(one.size(), kPictured.size());
  for (const QString& c : kPictured) EXPECT_EQ(two.value(c), one.value(c) * 2) << c.toStdString();
}

TEST(SharpPictures, OnAScreenOfPixelRatioTwoEveryPictureHasTwiceThePixels) {
  QProcessEnvironment dense = QProcessEnvironment::systemEnvironment();
  dense.insert("QT_SCALE_FACTOR", "2");
  QProcessEnvironment plain = QProcessEnvironment::systemEnvironment();
  plain.remove("QT_SCALE_FACTOR");
  const auto one = PixelsOf(RunTool(PixelsCommands(), {"--scale", "1"}, plain));
  const auto two = PixelsOf(RunTool(PixelsCommands(), {"--scale", "1"}, dense));
  ASSERT_EQ(one.size(), kPictured.size());
  for (const QString& c : kPictured) EXPECT_EQ(two.value(c), one.value(c) * 2) << c.toStdString();

  // The shot has twice the pixels, as sharp as at ratio 1.
  QTemporaryDir dir;
  QStringList commands = kClassic;
  commands << "rects"
           << "shot " + dir.filePath("one.png");
  const ToolRun run = RunTool(commands, {"--scale", "1"}, plain);
  commands.last() = "shot " + dir.filePath("two.png");
  RunTool(commands, {"--scale", "1"}, dense);
  Shot a{QImage(dir.filePath("one.png")), scale::Rects(run.lines)};
  Shot b{QImage(dir.filePath("two.png")), {}};
  ASSERT_EQ(b.image.size(), QSize(2048, 1536));
  for (auto it = a.rects.begin(); it != a.rects.end(); ++it)
    b.rects.insert(it.key(), QRect(it.value().topLeft() * 2, it.value().size() * 2));
  ExpectAsSharp(a, b, "device pixel ratio 2");
}

}  // namespace
