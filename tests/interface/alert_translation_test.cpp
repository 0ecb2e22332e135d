// The alert line through a change of language at every stage of both games: the known texts
// are translated, the double-up results are written anew from the card names, and the few
// texts that the two directions do not mirror stay or come back changed.
#include "tests/interface/speech_helpers.h"

using namespace speech;
using options::Click;

namespace {

// The house shows the seven of clubs in every duel below (rank 5, suit 0).
constexpr int kHouse = 5;
// Player's cards, as (rank, suit) draws: an ace of hearts wins, a seven of spades ties, a two
// of diamonds loses.
constexpr int kAceHearts = 38, kSevenSpades = 44, kTwoDiamonds = 13;

// A pair of kings in the top row (line 1), nothing in the second row.
const std::vector<int> kGridKingsPair{11, 24, 14, 49, 5, 40, 29, 6,  15, 37, 50, 10, 33,
                                      0,  32, 7,  43, 9, 31, 8,  47, 45, 26, 38, 41};

void Pick(Harness& h, const QString& card, int code) {
  h.platform.QueueDraws({code % 13, code / 13});
  Click(h, card);
  ASSERT_FALSE(h.form->DoubleEnCours);
}

void Grid(Harness& h) { options::ToGrid(h); }

void GridLevel2(Harness& h, Long capital) {
  Grid(h);
  h.Drive({QStringLiteral("set Capital %1").arg(capital)});
  Click(h, "Plus5");
  ASSERT_EQ(h.form->Niveau, 2);
}

void ClassicBet2(Harness& h, Long capital) {
  h.Drive({QStringLiteral("set Capital %1").arg(capital)});
  Click(h, "Plus");
  ASSERT_EQ(h.form->Mise, 2);
}

struct Stage {
  const char* name;
  std::function<void(Harness&)> reach;
  // The alert this stage shows in a language.
  std::function<QString(Lang)> alert;
  int player = -1;  // the player's card of a duel on the table
};

QString Pair(int i, Lang l) {
  const AlertPair& p = AlertPairs()[static_cast<size_t>(i)];
  return QString::fromUtf8(IsEnglish(l) ? p.en : p.fr);
}
enum { kSecond, kFirst, kNew, kCollect, kOver, kLostOver, kLostLow, kChoose };

QString Low(Lang l) { return IsEnglish(l) ? kLowEn : kLowFr; }
QString WinLow(Lang l) { return IsEnglish(l) ? kWinLowEn : kWinLowFr; }
QString GridOver(Lang l) { return IsEnglish(l) ? Pair(kOver, l) : kGridOverFr; }

std::function<QString(Lang)> Fixed(int pair) {
  return [pair](Lang l) { return Pair(pair, l); };
}
std::function<QString(Lang)> Duel(int outcome, int player) {
  return [outcome, player](Lang l) { return DuelText(outcome, player, kHouse, l); };
}

const std::vector<Stage>& Stages() {
  static const std::vector<Stage> all = {
      {"ClassicBeforeDeal", [](Harness&) {}, Fixed(kFirst)},
      {"ClassicBetweenDrawings", [](Harness& h) { options::FirstDrawing1(h, options::kHandNothing); }, Fixed(kSecond)},
      {"ClassicWinWaiting", options::WinWaiting1, Fixed(kCollect)},
      {"ClassicDoubleUp", options::Doubling1, Fixed(kChoose)},
      {"ClassicDuelWon",
       [](Harness& h) {
         options::Doubling1(h);
         Pick(h, "Deal(1)", kAceHearts);
       },
       Duel(1, kAceHearts), kAceHearts},
      {"ClassicDuelEqual",
       [](Harness& h) {
         options::Doubling1(h);
         Pick(h, "Deal(2)", kSevenSpades);
       },
       Duel(0, kSevenSpades), kSevenSpades},
      {"ClassicDuelLost",
       [](Harness& h) {
         options::Doubling1(h);
         Pick(h, "Deal(3)", kTwoDiamonds);
       },
       Duel(-1, kTwoDiamonds), kTwoDiamonds},
      {"ClassicDuelLostBetBack",
       [](Harness& h) {
         ClassicBet2(h, 3);
         options::Doubling1(h);
         Pick(h, "Deal(4)", kTwoDiamonds);
       },
       Fixed(kLostLow), kTwoDiamonds},
      {"ClassicDuelLostNoCredit",
       [](Harness& h) {
         h.Drive({"set Capital 1"});
         options::Doubling1(h);
         Pick(h, "Deal(4)", kTwoDiamonds);
       },
       Fixed(kLostOver), kTwoDiamonds},
      {"ClassicAfterCollect",
       [](Harness& h) {
         options::WinWaiting1(h);
         Click(h, "Quitte1X5");
       },
       Fixed(kNew)},
      {"ClassicNothingWon", [](Harness& h) { options::Round1(h, options::kHandNothing); }, Fixed(kNew)},
      {"ClassicBetBack",
       [](Harness& h) {
         ClassicBet2(h, 3);
         options::Round1(h, options::kHandNothing);
       },
       Low},
      {"ClassicNoCredit", options::NoCredit1, Fixed(kOver)},
      {"GridBeforeDeal", Grid, Fixed(kNew)},
      {"GridBetweenDrawings",
       [](Harness& h) {
         Grid(h);
         options::FirstDrawing2(h, options::kGridNothing);
       },
       Fixed(kSecond)},
      {"GridWinWaiting",
       [](Harness& h) {
         Grid(h);
         options::WinWaiting2(h);
       },
       Fixed(kCollect)},
      {"GridWinWaitingBetBack",
       [](Harness& h) {
         GridLevel2(h, 2);
         options::Round2(h, kGridKingsPair);
         ASSERT_TRUE(h.form->Doubler5->Visible());
       },
       WinLow},
      {"GridDoubleUp",
       [](Harness& h) {
         Grid(h);
         options::Doubling2(h);
       },
       Fixed(kChoose)},
      {"GridDuelWon",
       [](Harness& h) {
         Grid(h);
         options::Doubling2(h);
         Pick(h, "Deal2(13)", kAceHearts);
       },
       Duel(1, kAceHearts), kAceHearts},
      {"GridDuelEqual",
       [](Harness& h) {
         Grid(h);
         options::Doubling2(h);
         Pick(h, "Deal2(7)", kSevenSpades);
       },
       Duel(0, kSevenSpades), kSevenSpades},
      {"GridDuelLost",
       [](Harness& h) {
         Grid(h);
         options::Doubling2(h);
         Pick(h, "Deal2(24)", kTwoDiamonds);
       },
       Duel(-1, kTwoDiamonds), kTwoDiamonds},
      {"GridDuelLostBetBack",
       [](Harness& h) {
         GridLevel2(h, 3);
         options::Round2(h, kGridKingsPair);
         h.platform.QueueDraws({5, 0});
         Click(h, "Double5X5");
         Pick(h, "Deal2(2)", kTwoDiamonds);
       },
       Fixed(kLostLow), kTwoDiamonds},
      {"GridDuelLostNoCredit",
       [](Harness& h) {
         Grid(h);
         h.Drive({"set Capital 1"});
         options::Doubling2(h);
         Pick(h, "Deal2(2)", kTwoDiamonds);
       },
       Fixed(kLostOver), kTwoDiamonds},
      {"GridNothingWon",
       [](Harness& h) {
         Grid(h);
         options::Round2(h, options::kGridNothing);
       },
       Fixed(kNew)},
      {"GridBetBack",
       [](Harness& h) {
         GridLevel2(h, 3);
         options::Round2(h, options::kGridNothing);
       },
       Low},
      {"GridNoCredit",
       [](Harness& h) {
         Grid(h);
         options::NoCredit2(h);
       },
       GridOver},
  };
  return all;
}

using Param = std::tuple<size_t, Lang>;

class AlertThroughSwitch : public ::testing::TestWithParam<Param> {};

// Reached in one language, the line is switched to the other and back.
TEST_P(AlertThroughSwitch, FollowsTheTranslationTable) {
  const Stage& stage = Stages()[std::get<0>(GetParam())];
  const Lang l = std::get<1>(GetParam());
  Harness h;
  Choose(h, l);
  stage.reach(h);
  if (::testing::Test::HasFatalFailure()) return;
  JeuPoker& f = *h.form;
  const QString first = f.SSAlertes->Caption();
  EXPECT_EQ(first, stage.alert(l));
  Choose(h, Other(l));
  const QString second = f.SSAlertes->Caption();
  EXPECT_EQ(second, Translated(first, Other(l), stage.player, kHouse));
  Choose(h, l);
  EXPECT_EQ(f.SSAlertes->Caption(), Translated(second, l, stage.player, kHouse));
  // Only the line changed: the duel's cards are the same.
  if (stage.player >= 0) {
    EXPECT_EQ(f.DoubleCarte3, stage.player);
    EXPECT_EQ(f.DoubleCarte2 * 13 + f.DoubleCarte1, kHouse);
  }
}

INSTANTIATE_TEST_SUITE_P(Stages, AlertThroughSwitch,
                         ::testing::Combine(::testing::Range<size_t>(0, Stages().size()),
                                            ::testing::Values(Lang::English, Lang::French)),
                         [](const ::testing::TestParamInfo<Param>& info) {
                           return std::string(Stages()[std::get<0>(info.param)].name) +
                                  (std::get<1>(info.param) == Lang::English ? "_FromEnglish" : "_FromFrench");
                         });

TEST(AlertStages, EveryStageIsListed) { EXPECT_EQ(Stages().size(), 26u); }

// The oddities of the table, spelled out.
TEST(AlertOddities, BetBackWarningComesOutMixed) {
  Harness h;
  Choose(h, Lang::English);
  ClassicBet2(h, 3);
  options::Round1(h, options::kHandNothing);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "WARNING ! No more credit ! Bet back to 1.");
  Choose(h, Lang::French);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "WARNING ! Vous n'avez plus assez de crédit. Mises ramenées à 1.");
  Choose(h, Lang::English);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "WARNING ! Vous n'avez plus assez de crédit. Mises ramenées à 1.");
}

TEST(AlertOddities, FrenchBetBackWarningIsRecognised) {
  Harness h;
  Choose(h, Lang::French);
  ClassicBet2(h, 3);
  options::Round1(h, options::kHandNothing);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "ATTENTION ! Vous n'avez plus assez de crédit. Mises ramenées à 1.");
  Choose(h, Lang::English);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "WARNING ! No more credit ! Bet back to 1.");
}

TEST(AlertOddities, WinWithBetBackComesBackWithWarning) {
  Harness h;
  Choose(h, Lang::English);
  GridLevel2(h, 2);
  options::Round2(h, kGridKingsPair);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "QUIT, DOUBLE or PLAY ? ATTENTION : Bet back to 1.");
  Choose(h, Lang::French);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "QUITTE, DOUBLE ou JOUER ? ATTENTION : Mises ramenées à 1.");
  Choose(h, Lang::English);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "QUIT, DOUBLE or PLAY ? WARNING : Bet back to 1.");
  // That form is not known going to French.
  Choose(h, Lang::French);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "QUIT, DOUBLE or PLAY ? WARNING : Bet back to 1.");
}

TEST(AlertOddities, GridEndOfCreditStaysFrench) {
  Harness h;
  Choose(h, Lang::French);
  options::ToGrid(h);
  options::NoCredit2(h);
  const QString over = "Crédit épuisé ! Cliquez sur l'icône situé en haut à droite pour une nouvelle partie.";
  EXPECT_EQ(h.form->SSAlertes->Caption(), over);
  Choose(h, Lang::English);
  EXPECT_EQ(h.form->SSAlertes->Caption(), over);
}

TEST(AlertOddities, GridEndOfCreditInEnglishGetsTheScreenWords) {
  Harness h;
  Choose(h, Lang::English);
  options::ToGrid(h);
  options::NoCredit2(h);
  Choose(h, Lang::French);
  EXPECT_EQ(h.form->SSAlertes->Caption(),
            "Crédit épuisé ! Cliquez sur l'icône situé en haut à droite de l'écran pour une nouvelle partie.");
}

TEST(AlertOddities, FrenchTieOpensWithQuitteAndIsRebuilt) {
  Harness h;
  Choose(h, Lang::French);
  options::Doubling1(h);
  Pick(h, "Deal(1)", kSevenSpades);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "QUITTE ! 7 de Pique est égal 7 de Trèfle. QUITTE, DOUBLE ou JOUER ?");
  Choose(h, Lang::English);
  EXPECT_EQ(h.form->SSAlertes->Caption(), "EQUAL ! 7 of Spades is equal 7 of Clubs. QUIT, DOUBLE or PLAY ?");
}

// A text the tables do not know stays as it is, both ways.
TEST(AlertOddities, UnknownTextStays) {
  Harness h;
  for (Lang l : {Lang::French, Lang::English, Lang::French}) {
    h.form->SSAlertes->SetCaption("hello");
    Choose(h, l);
    EXPECT_EQ(h.form->SSAlertes->Caption(), "hello");
  }
}

}  // namespace
