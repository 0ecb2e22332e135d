// The game is the same with the coach open as with it never opened: one recorded stream of
// actions, with the same seed, leaves the same table, variables and draws either way.
#include <gtest/gtest.h>

#include "tests/coach/coach_support.h"

namespace {

// What the table and the variables show, read after each action.
QStringList Readings() {
  QStringList r{"var Capital",  "var NbTirées",          "var GainMain",      "var Mise", "var Niveau",
                "var RangMain", "get SSAlertes.Caption", "get Gains.Caption", "slept"};
  for (int i = 0; i <= 4; ++i)
    r << QStringLiteral("get Deal(%1).Picture").arg(i) << QStringLiteral("get Jouez(%1).Caption").arg(i);
  for (int i = 0; i <= 10; ++i) r << QStringLiteral("var CartesSorties(%1)").arg(i);
  for (int p = 0; p < 25; p += 6) r << QStringLiteral("get Deal2(%1).Picture").arg(p);
  return r;
}

// The stream: JEU 1 with holds by click and keypad, double-ups, the language, JEU 2 with the
// advice, and the automatic mode; `coach` adds the coach's keys and reads between the actions.
QStringList Stream(bool coach) {
  const QStringList actions = {"click ParesseNon",
                               "click Jouer",
                               "click Deal(1)",
                               "key 99",
                               "click Jouer",
                               "click Double1X5",
                               "click Deal(3)",
                               "click Jouer",
                               "click Deal(0)",
                               "click Deal(4)",
                               "click Jouer",
                               "click Quitte1X5",
                               "click SSLangue(1)",
                               "click Jouer",
                               "key 97",
                               "click Jouer",
                               "click ParesseOui",
                               "click Jouer",
                               "click Jouer",
                               "click Jeu3D",
                               "click Jouer",
                               "click Conseils5",
                               "click Jouer",
                               "click Quitte5X5",
                               "click JeuSimple",
                               "atyield 60 click AutoPlayStop",
                               "click AutoPlay",
                               "click Jouer",
                               "click Jouer"};
  QStringList script{"seed 31"};
  int n = 0;
  for (const QString& a : actions) {
    script << a;
    if (coach && (n % 5 == 2)) script << "key 113";
    if (coach)
      script << "coach"
             << "coach session";
    script << Readings();
    ++n;
  }
  script << "close";
  return script;
}

TEST(CoachLeavesNoTrace, TheSameStreamGivesTheSameGame) {
  const ToolRun plain = RunTool(Stream(false));
  const ToolRun withCoach = RunTool(Stream(true), {"--coach"});
  QStringList kept;
  int coachLines = 0;
  for (const QString& l : withCoach.lines)
    if (l.startsWith("coach")) {
      ++coachLines;
    } else {
      kept << l;
    }
  EXPECT_GT(coachLines, 40);
  EXPECT_GT(plain.lines.size(), 1000);
  EXPECT_EQ(kept, plain.lines);
  EXPECT_EQ(plain.lines.back(), "ended");
  // The coach did judge: some decision was counted.
  bool decided = false;
  for (const QString& l : withCoach.lines) decided = decided || l.startsWith("coach-session=decisions 1 ");
  EXPECT_TRUE(decided);
}

}  // namespace
