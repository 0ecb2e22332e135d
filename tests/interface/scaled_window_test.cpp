// The table in a real window under Xvfb, on a screen of 2560 x 1600: the scale at start, every
// control twice as large at scale 2 and reached by the pointer at the same places, resizing,
// full screen, and the coach's window following the scale.
#include <QImage>

#include "tests/interface/scale_helpers.h"

namespace {

const QSize kScreen(2560, 1600);

// JEU 1 after the first drawing, and JEU 2 after its drawing with the advice shown.
const QStringList kClassic = {"seed 7", "click Jouer"};
const QStringList kGrid = {"seed 5", "click Jeu3D", "click Jouer", "click Conseils5"};

QStringList With(QStringList commands, const QStringList& more) {
  commands << more;
  return commands;
}

TEST(ScaledWindow, AtStartTheTableFitsTheScreen) {
  scale::VirtualScreen screen(kScreen);
  ASSERT_TRUE(screen.Ok());
  const QStringList lines = screen.Drive({"scale", "window"}).lines;
  // 1600 lines limit it: 1600 / 768.
  EXPECT_EQ(scale::Value(lines, "scale"), "2.0833");
  EXPECT_EQ(scale::Value(lines, "window"), "2133x1600 table=0,0,2133x1600 fullscreen=0");

  // A screen of the table's own size keeps today's window.
  scale::VirtualScreen small(QSize(1024, 768));
  ASSERT_TRUE(small.Ok());
  EXPECT_EQ(scale::Value(small.Drive({"scale", "window"}).lines, "window"), "1024x768 table=0,0,1024x768 fullscreen=0");
}

TEST(ScaledWindow, EveryControlIsTwiceAsLargeAtScaleTwo) {
  scale::VirtualScreen screen(kScreen);
  ASSERT_TRUE(screen.Ok());
  for (const QStringList& state : {kClassic, kGrid}) {
    const auto one = scale::Rects(screen.Drive(With(state, {"rects"}), {"--scale", "1"}).lines);
    const auto two = scale::Rects(screen.Drive(With(state, {"rects"}), {"--scale", "2"}).lines);
    ASSERT_GT(one.size(), 200);
    EXPECT_EQ(one.keys().size(), two.keys().size());
    for (auto it = one.begin(); it != one.end(); ++it) {
      ASSERT_TRUE(two.contains(it.key())) << it.key().toStdString();
      const QRect a = it.value(), b = two.value(it.key());
      EXPECT_LE(std::abs(b.x() - 2 * a.x()), 1) << it.key().toStdString();
      EXPECT_LE(std::abs(b.y() - 2 * a.y()), 1) << it.key().toStdString();
      EXPECT_LE(std::abs(b.width() - 2 * a.width()), 1) << it.key().toStdString();
      EXPECT_LE(std::abs(b.height() - 2 * a.height()), 1) << it.key().toStdString();
    }
  }
}

TEST(ScaledWindow, APointerAtAControlsCentreReachesTheSameControl) {
  scale::VirtualScreen screen(kScreen);
  ASSERT_TRUE(screen.Ok());
  for (const QStringList& state : {kClassic, kGrid}) {
    const auto one = scale::Rects(screen.Drive(With(state, {"rects"}), {"--scale", "1"}).lines);
    QStringList atOne, atTwo;
    for (const QRect& r : one) {
      const QPoint c = r.center();
      if (!QRect(0, 0, 1024, 768).contains(c)) continue;
      atOne << QStringLiteral("at %1 %2").arg(c.x()).arg(c.y());
      atTwo << QStringLiteral("at %1 %2").arg(2 * c.x() + 1).arg(2 * c.y() + 1);
    }
    ASSERT_GT(atOne.size(), 120);
    const QStringList reachedOne = screen.Drive(With(state, atOne), {"--scale", "1"}).lines;
    const QStringList reachedTwo = screen.Drive(With(state, atTwo), {"--scale", "2"}).lines;
    ASSERT_EQ(reachedOne.size(), atOne.size());
    ASSERT_EQ(reachedTwo.size(), atTwo.size());
    for (qsizetype i = 0; i < reachedOne.size(); ++i) {
      const QString a = reachedOne[i].section('=', 1), b = reachedTwo[i].section('=', 1);
      EXPECT_EQ(a, b) << reachedOne[i].toStdString() << " / " << reachedTwo[i].toStdString();
    }
  }
  // And a click there plays: the game sees the same logical place at both scales.
  const QStringList clicked = {"seed 7",
                               "click Jouer",
                               "click Deal(1)",
                               "click Deal(3)",
                               "click Jouer",
                               "var CartesGardées(1)",
                               "var CartesGardées(3)",
                               "var Capital",
                               "get Jouez(1).Caption"};
  EXPECT_EQ(screen.Drive(clicked, {"--scale", "2"}).lines, screen.Drive(clicked, {"--scale", "1"}).lines);
}

TEST(ScaledWindow, AResizeGivesTheLargestTableThatFitsCentred) {
  scale::VirtualScreen screen(kScreen);
  ASSERT_TRUE(screen.Ok());
  const QStringList lines =
      screen
          .Drive(With(kClassic,
                      {"resize 1536 1152", "scale", "window", "pixels Deal(1)", "resize 2000 1000", "scale", "window",
                       "resize 1100 1500", "window", "resize 1024 768", "scale", "window", "pixels Deal(1)"}),
                 {"--scale", "1"})
          .lines;
  const QStringList expected = {
      "scale=1.5",
      "window=1536x1152 table=0,0,1536x1152 fullscreen=0",
      "Deal(1).Pixels=132x200",
      // 1000 lines limit it: 1333 x 1000, centred across.
      "scale=1.3021",
      "window=2000x1000 table=333,0,1333x1000 fullscreen=0",
      // 1100 columns limit it, centred down.
      "window=1100x1500 table=0,337,1100x825 fullscreen=0",
      "scale=1",
      "window=1024x768 table=0,0,1024x768 fullscreen=0",
      "Deal(1).Pixels=88x133",
  };
  EXPECT_EQ(lines, expected);
}

TEST(ScaledWindow, TheMarginsAreTheTablesBlack) {
  scale::VirtualScreen screen(kScreen);
  ASSERT_TRUE(screen.Ok());
  QTemporaryDir dir;
  const QString shot = dir.filePath("wide.png");
  screen.Drive(With(kClassic, {"resize 2000 1000", "shot " + shot}), {"--scale", "1"});
  const QImage img(shot);
  ASSERT_EQ(img.size(), QSize(2000, 1000));
  for (int y = 0; y < 1000; y += 50) {
    EXPECT_EQ(img.pixelColor(10, y), QColor(Qt::black)) << y;
    EXPECT_EQ(img.pixelColor(1990, y), QColor(Qt::black)) << y;
  }
}

TEST(ScaledWindow, F11GoesToFullScreenAndBack) {
  scale::VirtualScreen screen(kScreen);
  ASSERT_TRUE(screen.Ok());
  const QStringList lines =
      screen
          .Drive(With(kClassic, {"window", "key 122", "window", "key 122", "window", "var Capital"}),
                 {"--scale", "1.5"})
          .lines;
  ASSERT_EQ(lines.size(), 4);
  EXPECT_EQ(lines[0], "window=1536x1152 table=0,0,1536x1152 fullscreen=0");
  EXPECT_TRUE(lines[1].endsWith("fullscreen=1")) << lines[1].toStdString();
  EXPECT_EQ(lines[2], "window=1536x1152 table=0,0,1536x1152 fullscreen=0");
  // The game never saw the key.
  EXPECT_EQ(lines[3], "Capital=199");
}

TEST(ScaledWindow, FullScreenFillsTheScreenWithTheTableCentred) {
  // Xvfb has no window manager to give a full-screen window the whole screen; Qt's offscreen
  // screen does, as a window manager would.
  QTemporaryDir dir;
  QFile config(dir.filePath("screen.json"));
  ASSERT_TRUE(config.open(QIODevice::WriteOnly));
  config.write(R"({"screens": [{"name": "wide", "x": 0, "y": 0, "width": 2560, "height": 1600,
                   "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
  config.close();
  const QStringList lines = RunTool({"window", "key 122", "window", "scale", "key 122", "window"},
                                    {"--platform", "offscreen:configfile=" + config.fileName()})
                                .lines;
  const QStringList expected = {
      "window=2133x1600 table=0,0,2133x1600 fullscreen=0",
      "window=2560x1600 table=213,0,2133x1600 fullscreen=1",
      "scale=2.0833",
      "window=2133x1600 table=0,0,2133x1600 fullscreen=0",
  };
  EXPECT_EQ(lines, expected);
}

TEST(ScaledWindow, TheCoachFollowsTheScale) {
  scale::VirtualScreen screen(kScreen);
  ASSERT_TRUE(screen.Ok());
  QTemporaryDir dir;
  const QString one = dir.filePath("one.png"), two = dir.filePath("two.png");
  screen.Drive(With(kClassic, {"coach shot " + one}), {"--scale", "1", "--coach"});
  screen.Drive(With(kClassic, {"coach shot " + two}), {"--scale", "2", "--coach"});
  const QImage a(one), b(two);
  ASSERT_FALSE(a.isNull());
  ASSERT_FALSE(b.isNull());
  // The table, a gap of 8 and the coach: 480 x 768 at scale 1, twice that at scale 2.
  EXPECT_EQ(a.size(), QSize(1024 + 8 + 480, 768));
  EXPECT_EQ(b.size(), QSize(2048 + 8 + 960, 1536));
}

}  // namespace
