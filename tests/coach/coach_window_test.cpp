// The coach's window and talvero-drive's commands: F2 opens and closes it, --coach opens it at
// start, its texts follow the game's language, the hold played is marked among the 32, a mistake
// can be opened again, and Fin ends the program with the window open.
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QRegularExpression>
#include <QResizeEvent>
#include <QTableWidget>
#include <QTemporaryDir>

#include "tests/coach/coach_support.h"
#include "tests/interface/speech_helpers.h"

using coachtest::Deal;
using coachtest::Play;
using coachtest::Quiet;

namespace {

const std::vector<int> kKings = {11, 24, 29, 46, 13};  // KC KD 5H 9S 2D

QString Texts(QWidget* w) {
  QCoreApplication::processEvents();
  QStringList texts;
  for (auto* l : w->findChildren<QLabel*>()) texts << l->text();
  return texts.join('\n');
}

TEST(CoachWindow, F2OpensAndClosesIt) {
  Harness h;
  EXPECT_EQ(h.Drive1("get Coach.Visible"), "Coach.Visible=0");
  EXPECT_EQ(h.form->FenêtreCoach(), nullptr);
  Quiet(h, "key 113");
  EXPECT_EQ(h.Drive1("get Coach.Visible"), "Coach.Visible=-1");
  QWidget* w = h.form->FenêtreCoach();
  ASSERT_NE(w, nullptr);
  EXPECT_EQ(w->windowTitle(), "Coach");
  EXPECT_TRUE(w->isWindow());
  Quiet(h, "key 113");
  EXPECT_EQ(h.Drive1("get Coach.Visible"), "Coach.Visible=0");
  EXPECT_FALSE(w->isVisible());
  Quiet(h, "key 113");
  EXPECT_EQ(h.Drive1("get Coach.Visible"), "Coach.Visible=-1");
  EXPECT_EQ(h.Drive1("get Coach.Caption"), "error: Coach has no property Caption");
}

TEST(CoachWindow, TheHoldInForceIsMarkedAmongTheThirtyTwo) {
  Harness h;
  Quiet(h, "key 113");
  Deal(h, kKings);
  Quiet(h, "click Deal(0)");
  Quiet(h, "click Deal(1)");
  Quiet(h, "click Deal(4)");
  QWidget* w = h.form->FenêtreCoach();
  QCoreApplication::processEvents();
  auto* table = w->findChild<QTableWidget*>();
  ASSERT_NE(table, nullptr);
  ASSERT_EQ(table->rowCount(), 32);
  int marked = 0;
  QString markedText;
  for (int r = 0; r < 32; ++r)
    if (table->item(r, 0)->text().startsWith(QStringLiteral("\u25b6"))) {
      ++marked;
      markedText = table->item(r, 0)->text();
    }
  EXPECT_EQ(marked, 1);
  EXPECT_EQ(markedText, QStringLiteral("\u25b6 K\u2663 K\u2666 \u00b7 \u00b7 2\u2666"));
  EXPECT_EQ(table->item(0, 0)->text(), QStringLiteral("   K\u2663 K\u2666 \u00b7 \u00b7 \u00b7"));
  EXPECT_TRUE(Texts(w).contains("Difference:")) << Texts(w).toStdString();
  // The keypad changes the hold too, and the mark follows.
  Quiet(h, "key 101");
  QCoreApplication::processEvents();
  EXPECT_TRUE(table->item(0, 0)->text().startsWith(QStringLiteral("\u25b6")));
  EXPECT_TRUE(Texts(w).contains("Your hold is the best.")) << Texts(w).toStdString();
}

TEST(CoachWindow, ItsTextsSwitchLiveWithTheFlags) {
  Harness h;
  speech::Choose(h, speech::Lang::French);
  Quiet(h, "key 113");
  QWidget* w = h.form->FenêtreCoach();
  EXPECT_TRUE(Texts(w).contains(QStringLiteral("Rien à juger"))) << Texts(w).toStdString();
  Deal(h, kKings);
  EXPECT_TRUE(Texts(w).contains("Entre les tirages")) << Texts(w).toStdString();
  speech::Choose(h, speech::Lang::English);
  EXPECT_TRUE(Texts(w).contains("Between the drawings")) << Texts(w).toStdString();
  EXPECT_FALSE(Texts(w).contains("Entre les tirages"));
  speech::Choose(h, speech::Lang::French);
  EXPECT_TRUE(Texts(w).contains("Entre les tirages")) << Texts(w).toStdString();
  EXPECT_EQ(w->windowTitle(), "Coach");
}

TEST(CoachWindow, AMistakeOpensAgainWithItsThirtyTwoHolds) {
  Harness h;
  Quiet(h, "key 113");
  Deal(h, kKings);
  Play(h, "00000", {0, 14, 28, 42, 5});
  Deal(h, {12, 25, 38, 10, 0});
  QWidget* w = h.form->FenêtreCoach();
  QCoreApplication::processEvents();
  auto* list = w->findChild<QListWidget*>();
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(list->count(), 1);
  emit list->itemActivated(list->item(0));
  QCoreApplication::processEvents();
  EXPECT_TRUE(Texts(w).contains(QStringLiteral("Mistake: K\u2663 K\u2666 5\u2665 9\u2660 2\u2666")))
      << Texts(w).toStdString();
  auto* table = w->findChild<QTableWidget*>();
  EXPECT_EQ(table->item(0, 0)->text(), QStringLiteral("   K\u2663 K\u2666 \u00b7 \u00b7 \u00b7"));
}

TEST(CoachWindow, FinEndsTheProgramWithTheCoachOpen) {
  Harness h;
  Quiet(h, "key 113");
  ASSERT_TRUE(h.form->CoachVisible());
  h.Drive({"click Fin"});
  EXPECT_TRUE(h.ended);
  const ToolRun r = RunTool({"get Coach.Visible", "click Fin", "var Capital"}, {"--coach"});
  EXPECT_EQ(r.lines, (QStringList{"Coach.Visible=-1", "ended"}));
  EXPECT_EQ(r.exitCode, 0);
}

TEST(CoachWindow, KeepsThePlayersSizeWhenTheTableScales) {
  Harness h;
  Quiet(h, "key 113");
  QWidget* w = h.form->FenêtreCoach();
  ASSERT_NE(w, nullptr);
  EXPECT_EQ(w->size(), QSize(480, 768));
  w->resize(720, 900);
  auto resizeTable = [&](QSize size) {
    const QSize old = h.form->size();
    h.form->resize(size);
    QResizeEvent resized(size, old);
    QApplication::sendEvent(h.form.get(), &resized);
  };
  resizeTable(QSize(2048, 1536));
  EXPECT_EQ(h.form->TableScale(), 2);
  EXPECT_EQ(w->size(), QSize(1440, 1800));
  resizeTable(QSize(1536, 1152));
  EXPECT_EQ(w->size(), QSize(1080, 1350));
  resizeTable(QSize(1024, 768));
  EXPECT_EQ(w->size(), QSize(720, 900));
}

TEST(CoachDrive, PrintsIdleAHoldLineAndTheSession) {
  const ToolRun r = RunTool({"coach", "coach session", "click ParesseNon", "draw 11 24 29 46 13", "click Jouer",
                             "click Deal(0)", "coach", "coach bogus", "key 113", "get Coach.Visible", "click Deal(1)",
                             "draw 0 1 2", "click Jouer", "coach", "coach session"});
  ASSERT_EQ(r.lines.size(), 7) << r.lines.join('\n').toStdString();
  EXPECT_EQ(r.lines[0], "coach=idle");
  EXPECT_EQ(r.lines[1], "coach-session=decisions 0 mistakes 0 lost 0.000000 auto 0 automistakes 0 autolost 0.000000");
  static const QRegularExpression held(
      QStringLiteral("^coach=held 10000 ev \\d+\\.\\d{6} best 11000 bestev \\d+\\.\\d{6}$"));
  EXPECT_TRUE(held.match(r.lines[2]).hasMatch()) << r.lines[2].toStdString();
  EXPECT_EQ(r.lines[3], "error: coach takes nothing, session, session2 or shot FILE");
  EXPECT_EQ(r.lines[4], "Coach.Visible=-1");
  EXPECT_EQ(r.lines[5], "coach=idle");
  EXPECT_EQ(r.lines[6], "coach-session=decisions 1 mistakes 0 lost 0.000000 auto 0 automistakes 0 autolost 0.000000");
}

TEST(CoachDrive, ShotPutsTheCoachBesideTheTable) {
  QTemporaryDir dir;
  const QString file = QDir(dir.path()).filePath("coach.png");
  EXPECT_EQ(RunTool({"coach shot " + file}).lines, QStringList{"error: the coach is not open"});
  const ToolRun r = RunTool({"key 113", "coach shot " + file});
  EXPECT_TRUE(r.lines.isEmpty()) << r.lines.join('\n').toStdString();
  const QImage shot(file);
  ASSERT_FALSE(shot.isNull());
  EXPECT_GT(shot.width(), 1024 + 300);
  EXPECT_EQ(shot.height(), 768);
}

}  // namespace
