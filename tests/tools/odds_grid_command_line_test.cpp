// talvero-odds --grid from the outside: the JSON and the text of a grid's two choices, a batch
// of grids, JEU 2's return, and the refusals of bad input.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "odds/cards.h"
#include "odds/grid.h"
#include "tests/tools/odds_grid_support.h"
#include "tests/tools/odds_process.h"
#include "tests/tools/odds_support.h"

namespace {

using oddstest::ExpectRefused;
using oddstest::Odds;

QJsonObject Json(const QString& line) { return QJsonDocument::fromJson(line.toUtf8()).object(); }

QStringList Codes(const odds::Grid& g) {
  QStringList words;
  for (Byte c : g) words << QString::number(c);
  return words;
}

QStringList Names(const odds::Grid& g) {
  QStringList words;
  for (Byte c : g) {
    const int rank = c % 13;
    words << (c >= 52 ? QStringLiteral("JK") : QString(QChar("23456789TJQKA"[rank])) + QChar("cdhs"[c / 13]));
  }
  return words;
}

void ExpectChoice(const QJsonObject& json, const odds::GridChoice& c) {
  QJsonArray down;
  for (int p = 0; p < odds::kGridPositions; ++p)
    if (c.down & (1u << p)) down.append(p);
  EXPECT_EQ(json["down"].toArray(), down);
  EXPECT_EQ(json["ev"].toDouble(), c.ev);
  QJsonArray lines;
  for (double v : c.lines) lines.append(v);
  EXPECT_EQ(json["lines"].toArray(), lines);
}

// A grid rich in pairs, its jokers in the order "JK" names them: 52 before 53.
odds::Grid SomeGrid(int jokers, unsigned seed) {
  std::mt19937_64 rng(seed);
  odds::Grid g = oddstest::GridOfKind(rng, jokers, 2);
  const auto j1 = std::find(g.begin(), g.end(), 52), j2 = std::find(g.begin(), g.end(), 53);
  if (j1 != g.end() && j2 < j1) std::iter_swap(j1, j2);
  return g;
}

TEST(OddsGridCommandLine, JsonIsWhatTheEngineGives) {
  const odds::Grid g = SomeGrid(1, 1);
  const oddstest::Run r = Odds(QStringList{"--grid", "--json", "--level", "7", "--jokers", "1"} + Codes(g));
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.out.count('\n'), 1);
  const QJsonObject o = Json(r.out);
  EXPECT_EQ(o.keys(), QStringList({"advice", "best", "grid", "jokers", "level"}));
  EXPECT_EQ(o["jokers"].toInt(), 1);
  EXPECT_EQ(o["level"].toInt(), 7);
  QJsonArray grid;
  for (Byte c : g) grid.append(c);
  EXPECT_EQ(o["grid"].toArray(), grid);
  const odds::GridOdds e = odds::AnalyseGrid(g, 1, 7);
  ExpectChoice(o["advice"].toObject(), odds::AdviceChoice(e));
  ExpectChoice(o["best"].toObject(), odds::BestChoice(e));
  EXPECT_EQ(o["advice"]["lines"].toArray().size(), 7);
}

TEST(OddsGridCommandLine, CardWordsAndCodesNameTheSameGridAndLevelTwelveIsTheDefault) {
  const odds::Grid g = SomeGrid(2, 2);
  const QString a = Odds(QStringList{"--grid", "--json"} + Names(g)).out;
  const QString b = Odds(QStringList{"--json", "--level=12", "--grid"} + Codes(g)).out;
  EXPECT_EQ(a, b);
  EXPECT_EQ(Json(a)["level"].toInt(), 12);
  EXPECT_EQ(Json(a)["jokers"].toInt(), 2);
}

TEST(OddsGridCommandLine, TheTextShowsBothChoicesLineByLine) {
  const odds::Grid g = SomeGrid(0, 3);
  const oddstest::Run r = Odds(QStringList{"--grid", "--level", "11", "--jokers", "0"} + Codes(g));
  EXPECT_EQ(r.status, 0);
  const odds::GridOdds e = odds::AnalyseGrid(g, 0, 11);
  const odds::GridChoice advice = odds::AdviceChoice(e), best = odds::BestChoice(e);
  EXPECT_TRUE(r.out.startsWith("JEU 2 at level 11 (lines 1 to 11), deck of 52 cards (0 jokers), 27 cards not dealt\n"))
      << r.out.toStdString();
  // The first row as each choice leaves it.
  QString row = "row 1    ";
  for (const odds::GridChoice* c : {&advice, &best}) {
    for (int p = 0; p < 5; ++p)
      row +=
          (p ? " " : "") + (c->down & (1u << p) ? QStringLiteral("--") : QString::fromStdString(odds::CardName(g[p])));
    row += c == &advice ? "       " : "\n";
  }
  EXPECT_TRUE(r.out.contains(row)) << row.toStdString() << r.out.toStdString();
  for (int line = 1; line <= 11; ++line)
    EXPECT_TRUE(r.out.contains(
        QString::asprintf("line %-3d %20.6f %20.6f\n", line, advice.lines[line - 1], best.lines[line - 1])))
        << line;
  EXPECT_FALSE(r.out.contains("line 12"));
  EXPECT_TRUE(r.out.contains(QString::asprintf("total    %20.6f %20.6f\n", advice.ev, best.ev)));
  EXPECT_TRUE(r.out.contains(QString::asprintf("worth %.6f more", best.ev - advice.ev)));
}

TEST(OddsGridCommandLine, BatchGivesWhatSingleGridsGive) {
  const odds::Grid g1 = SomeGrid(2, 4), g2 = SomeGrid(2, 5);
  const QByteArray input = (Names(g1).join(' ') + "\n\n" + Codes(g2).join(' ') + "\n").toUtf8();
  const oddstest::Run r = Odds({"--batch", "--grid", "--level", "9"}, input);
  EXPECT_EQ(r.status, 0);
  const QStringList lines = r.out.trimmed().split('\n');
  ASSERT_EQ(lines.size(), 2);
  EXPECT_EQ(lines[0] + "\n", Odds(QStringList{"--grid", "--json", "--level", "9"} + Codes(g1)).out);
  EXPECT_EQ(lines[1] + "\n", Odds(QStringList{"--grid", "--json", "--level", "9"} + Codes(g2)).out);
}

TEST(OddsGridCommandLine, ReturnIsTheEnginesOnTheSameGrids) {
  const int deals = oddstest::kSanitized ? 40 : 400;
  const oddstest::Run r = Odds({"--grid", "--return", "--json", "--level", "5", "--jokers", "1", "--deals",
                                QString::number(deals), "--seed", "17"});
  EXPECT_EQ(r.status, 0);
  const QJsonObject o = Json(r.out);
  EXPECT_EQ(o["deals"].toInt(), deals);
  EXPECT_EQ(o["seed"].toInt(), 17);
  // One thread here, two in the tool: the same figures.
  const odds::GridReturnResult e = odds::GridReturn(1, 5, deals, 17, 1);
  const std::pair<const char*, const odds::Estimate*> ways[] = {
      {"advice", &e.advice}, {"best", &e.best}, {"difference", &e.difference}};
  for (const auto& [name, estimate] : ways) {
    EXPECT_EQ(o[name]["return"].toDouble(), estimate->mean) << name;
    EXPECT_EQ(o[name]["error"].toDouble(), estimate->error) << name;
  }
  EXPECT_GT(e.best.mean, e.advice.mean);
  EXPECT_GT(e.advice.error, 0);
}

TEST(OddsGridCommandLine, ReturnInText) {
  const oddstest::Run r = Odds({"--grid", "--return", "--level", "2", "--jokers", "0", "--deals", "50"});
  EXPECT_EQ(r.status, 0);
  EXPECT_TRUE(r.out.startsWith("JEU 2 at level 2 with 0 jokers: 50 random grids of 52 cards (seed 1)\n"))
      << r.out.toStdString();
  const odds::GridReturnResult e = odds::GridReturn(0, 2, 50, 1, 1);
  EXPECT_TRUE(r.out.contains(
      QString::asprintf("%-20s %12.6f %% %14.6f %%\n", "best choice", 100 * e.best.mean, 100 * e.best.error)))
      << r.out.toStdString();
  // No progress bar off a terminal.
  EXPECT_TRUE(r.err.isEmpty());
}

TEST(OddsGridBadInput, TheNumberOfCards) {
  ExpectRefused({"--grid", "As", "Ks", "Qs", "Js", "Ts"}, "5 cards given, a grid has 25");
  ExpectRefused(QStringList{"--grid", "2c"} + Codes(SomeGrid(2, 6)), "26 cards given, a grid has 25");
}

TEST(OddsGridBadInput, ACardTwiceOrAJokerTheDeckLacks) {
  QStringList words = Codes(SomeGrid(0, 7));
  words[24] = words[3];
  ExpectRefused(QStringList{"--grid"} + words, "is given twice");
  words[24] = "JK";
  ExpectRefused(QStringList{"--grid", "--jokers", "0"} + words, "has no card 52");
}

TEST(OddsGridBadInput, TheLevelAndTheReturnsOptions) {
  const QStringList g = Codes(SomeGrid(2, 8));
  ExpectRefused(QStringList{"--grid", "--level", "0"} + g, "--level must be 1 to 12, not '0'");
  ExpectRefused(QStringList{"--grid", "--level", "13"} + g, "--level must be 1 to 12, not '13'");
  ExpectRefused(QStringList{"--grid", "--level=x"} + g, "--level must be 1 to 12, not 'x'");
  ExpectRefused({"--grid", "--level"}, "--level needs a number");
  ExpectRefused({"--level", "3", "As", "Ks", "Qs", "Js", "Ts"}, "--level goes with --grid");
  ExpectRefused(QStringList{"--grid", "--deals", "10"} + g, "--deals goes with --grid --return");
  ExpectRefused({"--return", "--seed", "3"}, "--seed goes with --grid --return");
  ExpectRefused({"--grid", "--return", "--deals", "0"}, "--deals must be a whole number");
  ExpectRefused({"--grid", "--return", "--seed", "-4"}, "--seed must be a whole number");
  ExpectRefused(QStringList{"--grid", "--return"} + g, "--return takes no cards");
  ExpectRefused(QStringList{"--grid", "--batch"} + g, "--batch reads its grids on standard input");
}

TEST(OddsGridBadInput, ABadLineOfABatchStopsItBeforeAnyOutput) {
  const QByteArray good = Codes(SomeGrid(2, 9)).join(' ').toUtf8();
  ExpectRefused({"--grid", "--batch"}, "line 2: 3 cards given, a grid has 25", good + "\n2c 3c 4c\n" + good + "\n");
}

}  // namespace
