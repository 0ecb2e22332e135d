// At scale 1 the table is today's, pixel for pixel; at any scale the game is the same game,
// draw for draw: the scale changes what is drawn, never what is played or printed.
#include <QCryptographicHash>
#include <QImage>
#include <QPainter>

#include "tests/interface/scale_helpers.h"

namespace {

// A shot's pixels as a short fingerprint. The music button is left out: it shows the number
// of the piece drawn at start, before any command can seed the draws.
QString Fingerprint(QImage img) {
  img = img.convertToFormat(QImage::Format_RGB32);
  QPainter p(&img);
  p.fillRect(QRect(363, 2, 36, 38), Qt::black);  // SSMusic(0)
  p.end();
  QCryptographicHash h(QCryptographicHash::Sha256);
  for (int y = 0; y < img.height(); ++y)
    h.addData(QByteArrayView(reinterpret_cast<const char*>(img.constScanLine(y)), img.width() * 4));
  return QString::fromLatin1(h.result().toHex().left(16));
}

struct Scene {
  const char* name;
  QStringList commands;
  const char* fingerprint;  // of the window before the table had a scale
};

const Scene kScenes[] = {
    {"first drawing", {"seed 7", "click Jouer"}, "9786402c190b4d21"},
    {"second drawing", {"seed 7", "click Jouer", "click Deal(1)", "click Deal(3)", "click Jouer"}, "c2770cb65784b960"},
    {"English", {"click SSLangue(0)", "seed 3", "click Jouer"}, "82b9e43291a37aed"},
    {"grid with advice", {"seed 5", "click Jeu3D", "click Jouer", "click Conseils5"}, "9b116b70d8a887ed"},
    {"rules page", {"click SSRègles"}, "994f273653eb2257"},
};

TEST(ScaleOne, TheWindowIsTodaysPixelForPixel) {
  QTemporaryDir dir;
  for (const Scene& scene : kScenes) {
    const QString file = dir.filePath("shot.png");
    QStringList commands = scene.commands;
    commands << "shot " + file;
    RunTool(commands, {"--scale", "1"});
    const QImage shot(file);
    ASSERT_EQ(shot.size(), QSize(1024, 768)) << scene.name;
    EXPECT_EQ(Fingerprint(shot), QString::fromLatin1(scene.fingerprint)) << scene.name;
  }
}

// A long session of both games: rounds, holds, the double-up, the advice, the statistics, the
// other deck, a language switch and the automatic selection; and all the state it leaves.
QStringList Session() {
  QStringList c = {"seed 11"};
  for (int round = 0; round < 6; ++round)
    c << "click Jouer"
      << "click Deal(0)"
      << "click Deal(2)"
      << "click Jouer"
      << "var Capital"
      << "get SSAlertes.Caption";
  c << "click Jouer"
    << "click Jouer"
    << "get SSAlertes.Caption"
    << "click ParesseNon"
    << "click SSLangue(0)"
    << "click NJokerSélection(0)"
    << "click Jouer"
    << "click Jouer"
    << "click Jeu3D";
  for (int round = 0; round < 4; ++round)
    c << "click Jouer"
      << "click Conseils5"
      << "click Deal2(3)"
      << "click Jouer"
      << "var Capital"
      << "get Gains5(12).Caption";
  c << "click JeuSimple"
    << "key 32"
    << "key 32";
  for (const char* v : {"Capital", "Mise", "Niveau", "NbTirées", "GainTirage", "Langue", "NbJokers"})
    c << "var " + QString(v);
  for (int i = 0; i <= 9; ++i) c << QStringLiteral("get Fréquence(%1).Caption").arg(i);
  for (int i = 0; i <= 11; ++i) c << QStringLiteral("get Fractions(%1).Caption").arg(i);
  for (int i = 0; i <= 4; ++i)
    c << QStringLiteral("get Deal(%1).Picture").arg(i) << QStringLiteral("get Deal(%1).Left").arg(i);
  c << "get JeuPoker.Width"
    << "get JeuPoker.Height"
    << "get Jouer.Top"
    << "slept";
  return c;
}

TEST(ScaleOne, TheGameIsTheSameDrawForDrawAtEveryScale) {
  const ToolRun one = RunTool(Session(), {"--scale", "1"});
  ASSERT_EQ(one.exitCode, 0);
  ASSERT_GT(one.lines.size(), 60);
  for (const char* s : {"1.5", "2", "3.25"}) {
    const ToolRun scaled = RunTool(Session(), {"--scale", s});
    EXPECT_EQ(scaled.exitCode, 0) << s;
    EXPECT_EQ(scaled.lines, one.lines) << "at scale " << s;
  }
}

TEST(ScaleOne, TheDriveRefusesAScaleOutsideOneToFour) {
  for (const char* s : {"0.5", "5", "x"}) {
    const ToolRun run = RunTool({"scale"}, {"--scale", s});
    EXPECT_EQ(run.exitCode, 2) << s;
    EXPECT_TRUE(run.lines.isEmpty()) << s;
  }
  EXPECT_EQ(RunTool({"scale"}, {"--scale", "4"}).lines, QStringList{"scale=4"});
}

}  // namespace
