// The session's record through the real form: every hold played from the first opening on,
// mistakes and what they cost against a plain enumeration, the verdict, the bet, the automatic
// mode counted apart, and a record that goes on with the window closed and over a new game.
#include <gtest/gtest.h>

#include <QLabel>
#include <bit>

#include "tests/coach/coach_support.h"
#include "tests/interface/speech_helpers.h"
#include "tests/tools/odds_support.h"

using coachtest::Deal;
using coachtest::Field;
using coachtest::Play;
using coachtest::Quiet;

namespace {

// The expected payout of each hold of a deal for one unit of bet, by plain enumeration.
std::array<double, 32> PlainValues(int jokers, const std::vector<int>& codes) {
  odds::Hand deal;
  for (int i = 0; i < 5; ++i) deal[static_cast<std::size_t>(i)] = static_cast<Byte>(codes[static_cast<std::size_t>(i)]);
  const auto counts = oddstest::PlainHolds(jokers, deal);
  const odds::PayTable pay = odds::PayTableClassic(jokers);
  std::array<double, 32> ev{};
  for (unsigned held = 0; held < 32; ++held) {
    std::int64_t payout = 0, total = 0;
    for (int c = 0; c < odds::kClasses; ++c) {
      payout += std::int64_t{counts[held][static_cast<std::size_t>(c)]} * pay[static_cast<std::size_t>(c)];
      total += counts[held][static_cast<std::size_t>(c)];
    }
    ev[held] = static_cast<double>(payout) / static_cast<double>(total);
  }
  return ev;
}

double Max(const std::array<double, 32>& v) { return *std::max_element(v.begin(), v.end()); }

const std::vector<int> kKings = {11, 24, 29, 46, 13};  // KC KD 5H 9S 2D
const std::vector<int> kAces = {12, 25, 38, 10, 0};    // AC AD AH QC 2C

TEST(CoachSession, CountsRightHoldsAndMistakesWithTheirCost) {
  Harness h;
  EXPECT_EQ(h.Drive1("coach session"),
            "coach-session=decisions 0 mistakes 0 lost 0.000000 auto 0 automistakes 0 autolost 0.000000");
  Quiet(h, "key 113");
  const auto kings = PlainValues(2, kKings);

  Deal(h, kKings);
  Play(h, "11000", {0, 1, 2});  // the pair of kings kept: the best
  QString s = h.Drive1("coach session");
  EXPECT_EQ(Field(s, "decisions"), 1);
  EXPECT_EQ(Field(s, "mistakes"), 0);

  Deal(h, kKings);
  Play(h, "00000", {0, 14, 28, 42, 5});  // everything thrown: a mistake
  s = h.Drive1("coach session");
  EXPECT_EQ(Field(s, "decisions"), 2);
  EXPECT_EQ(Field(s, "mistakes"), 1);
  const double cost = Max(kings) - kings[0];
  EXPECT_GT(cost, 0.1);
  EXPECT_NEAR(Field(s, "lost"), cost, 1e-6);
  EXPECT_EQ(Field(s, "auto"), 0);

  // At a bet of 3 every value is three times as large.
  Quiet(h, "click Plus");
  Quiet(h, "click Plus");
  ASSERT_EQ(h.form->Mise, 3);
  Deal(h, kAces);
  const auto aces = PlainValues(2, kAces);
  const QString line = h.Drive1("coach");
  EXPECT_EQ(line, QStringLiteral("coach=held 00000 ev %1 best 11100 bestev %2")
                      .arg(QString::number(3 * aces[0], 'f', 6), QString::number(3 * Max(aces), 'f', 6)));
  Play(h, "10100", {1, 2, 3});  // two aces of three: a mistake at three credits a unit
  s = h.Drive1("coach session");
  EXPECT_EQ(Field(s, "decisions"), 3);
  EXPECT_EQ(Field(s, "mistakes"), 2);
  EXPECT_NEAR(Field(s, "lost"), cost + 3 * (Max(aces) - aces[0b00101]), 1e-6);
}

TEST(CoachSession, TheVerdictFollowsTheSecondDrawing) {
  Harness h;
  Quiet(h, "key 113");
  Deal(h, kKings);
  EXPECT_TRUE(h.Drive1("coach").startsWith("coach=held 00000 "));
  Play(h, "00100", {0, 1, 14, 28});
  EXPECT_EQ(h.Drive1("coach"), "coach=idle");
  QWidget* w = h.form->FenêtreCoach();
  ASSERT_NE(w, nullptr);
  QCoreApplication::processEvents();
  QStringList texts;
  for (auto* l : w->findChildren<QLabel*>()) texts << l->text();
  EXPECT_TRUE(texts.join('\n').contains("Mistake")) << texts.join('\n').toStdString();
  EXPECT_TRUE(texts.join('\n').contains("K\u2663 K\u2666 \u00b7 \u00b7 \u00b7")) << texts.join('\n').toStdString();
}

TEST(CoachSession, NothingIsCountedBeforeTheFirstOpening) {
  Harness h;
  Deal(h, kKings);
  Play(h, "00000", {0, 14, 28, 42, 5});
  Quiet(h, "key 113");
  EXPECT_EQ(Field(h.Drive1("coach session"), "decisions"), 0);
  Deal(h, kKings);
  Play(h, "00000", {0, 14, 28, 42, 5});
  EXPECT_EQ(Field(h.Drive1("coach session"), "decisions"), 1);
}

TEST(CoachSession, GoesOnWithTheWindowClosedAndOverANewGame) {
  Harness h;
  Quiet(h, "key 113");
  Quiet(h, "key 113");
  EXPECT_EQ(h.Drive1("get Coach.Visible"), "Coach.Visible=0");
  Deal(h, kKings);
  Play(h, "00000", {0, 14, 28, 42, 5});
  EXPECT_EQ(Field(h.Drive1("coach session"), "mistakes"), 1);
  Quiet(h, "click SSRecommence");
  EXPECT_EQ(Field(h.Drive1("coach session"), "mistakes"), 1);
  Deal(h, kKings);
  Play(h, "11000", {0, 1, 2});
  const QString s = h.Drive1("coach session");
  EXPECT_EQ(Field(s, "decisions"), 2);
  EXPECT_EQ(Field(s, "mistakes"), 1);
}

TEST(CoachSession, TheAutomaticModeIsCountedApart) {
  Harness h;
  Quiet(h, "key 113");
  Deal(h, kKings);
  Play(h, "11000", {0, 1, 2});
  int drawings = 0;
  speech::AtYieldWhen(
      h,
      [&] {
        if (h.form->NbTirées == 10) ++drawings;
        return Field(h.form->LigneSessionCoach(), "auto") >= 5;
      },
      [&] { h.Drive({"click AutoPlayStop"}); });
  Quiet(h, "click AutoPlay");
  const QString s = h.Drive1("coach session");
  EXPECT_EQ(Field(s, "decisions"), 1);
  EXPECT_EQ(Field(s, "mistakes"), 0);
  EXPECT_GE(Field(s, "auto"), 5);
  EXPECT_GE(Field(s, "automistakes"), 0);
  EXPECT_GE(Field(s, "autolost"), 0);
  EXPECT_EQ(Field(s, "automistakes") == 0, Field(s, "autolost") == 0);
}

}  // namespace

namespace {

// Drawings entered again from their own yields can leave a card twice on the table: the coach
// then judges nothing, counts nothing, and never stalls the game.
TEST(CoachSession, ADealWithACardTwiceIsNotJudged) {
  Harness h;
  Quiet(h, "key 113");
  Deal(h, kKings);
  Quiet(h, "set CartesTirage(1) 11");  // the king of clubs twice
  Quiet(h, "click Deal(0)");
  EXPECT_EQ(h.Drive1("coach"), "coach=idle");
  Play(h, "01000", {0, 1, 2});
  EXPECT_EQ(Field(h.Drive1("coach session"), "decisions"), 0);

  if (h.form->Doubler->Visible()) Quiet(h, "click Quitte1X5");
  Quiet(h, "click Jeu3D");
  QString draw = "draw";
  for (int c = 0; c < 25; ++c) draw += " " + QString::number(c);
  Quiet(h, draw);
  Quiet(h, "click Jouer");
  ASSERT_EQ(h.form->NbTirées, 25);
  Quiet(h, "set CartesTirage(7) 3");  // the five of clubs twice on the grid
  Quiet(h, "click Deal2(7)");
  EXPECT_EQ(h.Drive1("coach"), "coach=idle");
  Quiet(h, "click Jouer");
  EXPECT_EQ(Field(h.Drive1("coach session2"), "decisions"), 0);
}

}  // namespace
