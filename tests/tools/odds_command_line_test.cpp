// talvero-odds from the outside: the card words, the JSON of one hand and of a batch, and
// the JSON of the return.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "classic/selection_rules.h"
#include "tests/tools/odds_process.h"
#include "tests/tools/odds_support.h"

namespace {

QByteArray Odds(const QStringList& args, const QByteArray& input = {}, int* status = nullptr) {
  const oddstest::Run r = oddstest::Odds(args, input);
  if (status) *status = r.status;
  return r.out.toUtf8();
}

QJsonObject Json(const QByteArray& line) { return QJsonDocument::fromJson(line).object(); }

TEST(OddsCommandLine, CardWordsOfEveryKindNameTheSameHand) {
  const QJsonObject a = Json(Odds({"--json", "As", "Kd", "10h", "JK", "2c"}));
  const QJsonObject b = Json(Odds({"--json", "51", "24", "34", "52", "0"}));
  EXPECT_EQ(a, b);
  EXPECT_EQ(a["hand"].toArray(), QJsonArray({51, 24, 34, 52, 0}));
  const QJsonObject c = Json(Odds({"--json", "JK", "jk", "7C", "7d", "qs"}));
  EXPECT_EQ(c["hand"].toArray(), QJsonArray({52, 53, 5, 18, 49}));
}

TEST(OddsCommandLine, OneHandInJson) {
  int status = -1;
  const QByteArray out = Odds({"--json", "--jokers", "1", "Ah", "Kh", "Qh", "Jh", "2c"}, {}, &status);
  EXPECT_EQ(status, 0);
  const QJsonObject o = Json(out);
  EXPECT_EQ(o["jokers"].toInt(), 1);
  const QJsonArray holds = o["holds"].toArray();
  ASSERT_EQ(holds.size(), 32);
  double previous = 1e9;
  for (const auto& v : holds) {
    const QJsonObject h = v.toObject();
    const QJsonArray counts = h["counts"].toArray();
    ASSERT_EQ(counts.size(), 11);
    qint64 sum = 0;
    for (const auto& c : counts) sum += c.toInteger();
    EXPECT_EQ(sum, h["total"].toInteger());
    EXPECT_EQ(h["total"].toInteger(), odds::Binomial(48, 5 - static_cast<int>(h["held"].toArray().size())));
    EXPECT_LE(h["ev"].toDouble(), previous);
    previous = h["ev"].toDouble();
  }
  // Four to the royal flush is the best hold: 1 royal card and the joker among 48.
  const QJsonObject best = holds[0].toObject();
  EXPECT_EQ(best["held"].toArray(), QJsonArray({38, 37, 36, 35}));
  EXPECT_EQ(best["counts"].toArray()[8].toInt(), 2);
}

TEST(OddsCommandLine, BatchGivesWhatSingleHandsGive) {
  const QByteArray input = "As Kd Th JK 2c\n\n7c 7d 7h 2s 9s\n";
  const QList<QByteArray> lines = Odds({"--batch"}, input).trimmed().split('\n');
  ASSERT_EQ(lines.size(), 2);
  EXPECT_EQ(Json(lines[0]), Json(Odds({"--json", "As", "Kd", "Th", "JK", "2c"})));
  EXPECT_EQ(Json(lines[1]), Json(Odds({"--json", "7c", "7d", "7h", "2s", "9s"})));
}

TEST(OddsCommandLine, TheTableOnATerminal) {
  const QString out = QString::fromUtf8(Odds({"As", "Ks", "Qs", "Js", "9h"}));
  EXPECT_TRUE(out.contains(QStringLiteral("A♠ K♠ Q♠ J♠ 9♥"))) << out.toStdString();
  EXPECT_EQ(out.count('\n'), 4 + 32);
}

TEST(OddsCommandLine, ReturnInJson) {
  if (oddstest::kSanitized) GTEST_SKIP() << "the whole return is too slow under the sanitizers";
  const QJsonObject o = Json(Odds({"--return", "--json", "--jokers", "0"}));
  EXPECT_EQ(o["jokers"].toInt(), 0);
  EXPECT_EQ(o["deals"].toInteger(), 2598960);
  const odds::ReturnResult r =
      odds::ComputeReturn(odds::Tables::ForGame(0), odds::PayTableClassic(0), SélectionAutomatique, 2);
  for (const char* way : {"perfect", "automatic"}) {
    const QJsonObject f = o[way].toObject();
    const odds::Figures& e = std::string(way) == "perfect" ? r.perfect : r.automatic;
    EXPECT_DOUBLE_EQ(f["return"].toDouble(), e.ret);
    EXPECT_EQ(f["fraction"].toString().toStdString(),
              odds::ToString(e.numerator) + "/" + odds::ToString(e.denominator));
    ASSERT_EQ(f["classes"].toArray().size(), 11);
  }
  EXPECT_GT(o["perfect"]["return"].toDouble(), o["automatic"]["return"].toDouble());
}

}  // namespace
