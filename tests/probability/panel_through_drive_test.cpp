// The panel as a player sees it: a table dealt by JOUER, holds flipped by clicks on the
// cards, the captions read through talvero-drive, in process and through the real tool,
// and checked against the enumeration of every draw.
#include <gtest/gtest.h>

#include <QProcess>

#include "tests/probability/probability_support.h"

namespace {

// 2C 5D 7H 9S JC: nothing on the table, no ace, no three or four.
const char* kTable = "draw 0 16 31 46 9";
const probtest::Cards kCards = {0, 16, 31, 46, 9};

QStringList PanelQueries() {
  QStringList q = {"get UnSur.Caption"};
  for (int i = 0; i <= 4; ++i) q << QString("get Jouez(%1).Caption").arg(i);
  for (int i = 0; i <= 11; ++i)
    q << QString("get Fractions(%1).Caption").arg(i) << QString("get PourcDéc(%1).Caption").arg(i)
      << QString("get Pourcentages(%1).Caption").arg(i);
  return q;
}

// The value printed for a query such as "Fractions(3).Caption".
QString Value(const QStringList& out, const QString& name) {
  for (const QString& line : out)
    if (line.startsWith(name + "=")) return line.mid(name.size() + 1);
  ADD_FAILURE() << "no output for " << name.toStdString();
  return {};
}

struct Panel {
  int holds = 0;
  QString unSur;
  std::array<QString, 12> fractions, entier, décimales;
};

Panel ReadPanel(const QStringList& out) {
  Panel p;
  p.unSur = Value(out, "UnSur.Caption");
  for (int i = 0; i <= 4; ++i) {
    const QString w = Value(out, QString("Jouez(%1).Caption").arg(i));
    if (w == "HOLD" || w == "GARDER") p.holds |= 1 << i;
  }
  for (int i = 0; i <= 11; ++i) {
    p.fractions[static_cast<std::size_t>(i)] = Value(out, QString("Fractions(%1).Caption").arg(i));
    p.entier[static_cast<std::size_t>(i)] = Value(out, QString("PourcDéc(%1).Caption").arg(i));
    p.décimales[static_cast<std::size_t>(i)] = Value(out, QString("Pourcentages(%1).Caption").arg(i));
  }
  return p;
}

// Rows 1 to 8 are exact for this table with 52 cards; row 4 with 7 and 8 always.
void CheckAgainstEnumeration(const probtest::ClassTable& table, const Panel& p, int jokers) {
  SCOPED_TRACE(::testing::Message() << "holds " << p.holds << ", jokers " << jokers);
  const auto e = probtest::Enumerate(table, kCards, jokers, p.holds);
  EXPECT_EQ(p.unSur, QString("?/%1").arg(e.total));
  auto F = [&](int i) { return p.fractions[static_cast<std::size_t>(i)].toLongLong(); };
  EXPECT_EQ(F(4) + F(7) + F(8), e.byClass[4] + e.byClass[7] + e.byClass[8]);
  EXPECT_EQ(F(1), e.byClass[1]);
  if (jokers == 0) {
    for (int i = 1; i <= 8; ++i) EXPECT_EQ(F(i), e.byClass[static_cast<std::size_t>(i)]) << "row " << i;
  } else {
    EXPECT_EQ(F(9), e.byClass[9]);
  }
  // Each percentage is the count over the total, cut after six decimals.
  for (int i = 0; i <= 11; ++i) {
    if (jokers == 0 && i == 9) continue;
    const long long cut = static_cast<long long>(100000000.0 * F(i) / static_cast<double>(e.total));
    const QString shown = p.entier[static_cast<std::size_t>(i)] + p.décimales[static_cast<std::size_t>(i)];
    if (cut == 0) {
      EXPECT_EQ(shown, "0") << "row " << i;
    } else {
      EXPECT_EQ(shown, QString("%1.%2").arg(cut / 1000000).arg(cut % 1000000, 6, 10, QChar('0'))) << "row " << i;
    }
  }
}

class ProbDrive : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    classifier = new Harness();
    table = new probtest::ClassTable(*classifier->form);
  }
  static void TearDownTestSuite() {
    delete table;
    delete classifier;
  }
  static Harness* classifier;
  static probtest::ClassTable* table;
};
Harness* ProbDrive::classifier = nullptr;
probtest::ClassTable* ProbDrive::table = nullptr;

TEST_F(ProbDrive, DealtTableWithFlippedHoldsShowsTheEnumeratedCounts) {
  Harness h;
  h.Drive({"set NbJokers 0", "set TailleJeu 52", kTable, "click Jouer"});
  ASSERT_EQ(h.Drive1("var NbTirées"), "NbTirées=5");
  CheckAgainstEnumeration(*table, ReadPanel(h.Drive(PanelQueries())), 0);
  for (const char* click : {"click Deal(0)", "click Deal(4)", "click Deal(2)", "click Deal(0)"}) {
    h.Drive({click});
    CheckAgainstEnumeration(*table, ReadPanel(h.Drive(PanelQueries())), 0);
  }
}

TEST_F(ProbDrive, TwoJokerGameFollowsEveryClick) {
  Harness h;
  h.Drive({kTable, "click Jouer"});
  CheckAgainstEnumeration(*table, ReadPanel(h.Drive(PanelQueries())), 2);
  for (const char* click : {"click Deal(1)", "click Deal(3)", "click Deal(1)"}) {
    h.Drive({click});
    CheckAgainstEnumeration(*table, ReadPanel(h.Drive(PanelQueries())), 2);
  }
  // The tables of the driver are reachable by name.
  const int held = ReadPanel(h.Drive(PanelQueries())).holds;
  EXPECT_EQ(h.Drive1("var NbGardées"), QString("NbGardées=%1").arg(__builtin_popcount(static_cast<unsigned>(held))));
  EXPECT_EQ(h.Drive1("var JokersRestants"), "JokersRestants=2");
  EXPECT_EQ(h.Drive1("var RestantsCouleurValeur(0)").left(24), "RestantsCouleurValeur(0)");
}

TEST_F(ProbDrive, SecondDrawingLeavesThePanelBlank) {
  Harness h;
  h.Drive({kTable, "click Jouer", "draw 1 17 32 47 10", "click Jouer"});
  ASSERT_EQ(h.Drive1("var NbTirées"), "NbTirées=10");
  EXPECT_EQ(h.Drive1("get UnSur.Caption"), "UnSur.Caption=");
  for (int i = 0; i <= 11; ++i) {
    EXPECT_EQ(h.Drive1(QString("get Fractions(%1).Caption").arg(i)), QString("Fractions(%1).Caption=").arg(i));
    EXPECT_EQ(h.Drive1(QString("get Fractions(%1).BackColor").arg(i)), QString("Fractions(%1).BackColor=0").arg(i));
  }
}

TEST_F(ProbDrive, RealToolShowsTheEnumeratedCounts) {
  QStringList commands = {"set NbJokers 0", "set TailleJeu 52", kTable, "click Jouer", "click Deal(1)"};
  commands += PanelQueries();
  commands << "click Deal(3)";
  const QStringList second = PanelQueries();
  commands += second;
  QProcess tool;
  tool.start(QStringLiteral(TALVERO_DRIVE), {});
  ASSERT_TRUE(tool.waitForStarted(20000));
  tool.write((commands.join('\n') + '\n').toUtf8());
  tool.closeWriteChannel();
  ASSERT_TRUE(tool.waitForFinished(60000));
  const QStringList lines = QString::fromUtf8(tool.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
  // The two panels, one after the other.
  const int n = static_cast<int>(second.size());
  ASSERT_GE(lines.size(), 2 * n);
  const QStringList first = lines.mid(lines.size() - 2 * n, n);
  const QStringList last = lines.mid(lines.size() - n, n);
  const Panel p1 = ReadPanel(first), p2 = ReadPanel(last);
  EXPECT_NE(p1.holds, p2.holds);
  CheckAgainstEnumeration(*table, p1, 0);
  CheckAgainstEnumeration(*table, p2, 0);
}

}  // namespace
