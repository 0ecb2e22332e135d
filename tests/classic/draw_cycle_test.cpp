// The draw cycle of the classic game, played through talvero-drive's commands on the real
// form: JOUER and Space, both drawings, the four endings, the credit, the animation and a
// JOUER click arriving in the middle of a drawing.
#include <gtest/gtest.h>

#include <set>

#include "tests/support/helpers.h"

namespace {

// A few hands by code (13 x suit + rank; ranks two .. ace are 0..12).
const char* kNothing1 = "0 16 31 46 9";   // 2C 5D 7H 9S JC
const char* kNothing2 = "1 17 32 47 10";  // 3C 6D 8H TS QC
const char* kNothing3 = "2 18 33 48 13";  // 4C 7D 9H JS 2D
const char* kKings = "11 24 26 42 7";     // KC KD 2H 5S 9C: pair of kings
const char* kStraight = "3 17 44 45 7";   // 5C 6D 7S 8S 9C

const QString kFirstEn = "FIRST DRAWING : Click on PLAY or press the 'Space' key.";
const QString kWinEn = "QUIT to collect credits, DOUBLE to risk, PLAY to collect credits and play again.";
const QString kWinFr = "QUITTE pour encaisser, DOUBLE pour risquer, JOUER pour encaisser et rejouer.";
const QString kNewEn = "NEW DRAWING : Click on PLAY or press the 'Space' key.";
const QString kNewFr = "NOUVEAU TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.";
const QString kBetEn = "WARNING ! No more credit ! Bet back to 1.";
const QString kBetFr = "ATTENTION ! Vous n'avez plus assez de crédit. Mises ramenées à 1.";
const QString kLostEn = "No more credit ! Click on the icon up on the right handside of the screen for a new game.";
const QString kLostFr =
    "Crédit épuisé ! Cliquez sur l'icône situé en haut à droite de l'écran pour une nouvelle partie.";

// Hold words by letter: H holds, R rejects.
void Holds(Harness& h, const QString& pattern) {
  JeuPoker& f = *h.form;
  for (int i = 0; i <= 4; ++i) {
    const bool hold = pattern[i] == 'H';
    f.Jouez(i).SetCaption(hold ? (English(f) ? "HOLD" : "GARDER") : (English(f) ? "REJECT" : "JETER"));
  }
}

bool Shows(const JeuPoker& f, int i, int code) { return f.Deal(i).GetPicture() == f.Cartes(code).GetPicture(); }

// What must hold between any two steps of a classic round.
void CheckInvariants(Harness& h) {
  const JeuPoker& f = *h.form;
  EXPECT_EQ(f.TailleJeu, 52 + f.NbJokers);
  // Before the first round of a run the list still holds its zeros.
  bool started = false;
  for (int k = 1; k <= 10; ++k) started = started || f.CartesSorties(k) != 0;
  std::set<int> seen;
  for (int k = 1; started && k <= 10; ++k) {
    const int c = f.CartesSorties(k);
    if (c == -1) continue;
    EXPECT_TRUE(seen.insert(c).second) << "code " << c << " twice among the cards gone";
    EXPECT_GE(c, 0);
    EXPECT_LT(c, f.TailleJeu);
  }
  for (int i = 0; i <= 4; ++i) {
    if (!FaceDown(f, f.Deal(i))) {
      EXPECT_TRUE(Shows(f, i, f.CartesTirage(i))) << "position " << i;
    }
  }
  if (f.NbTirées == 0) {
    EXPECT_EQ(f.GainMain, 0);
  }
  if (f.NbTirées == 10 && f.RangMain != 10) {
    EXPECT_EQ(f.GainMain % f.Mise, 0);
    EXPECT_EQ(f.GainMain, f.TableGains(f.RangMain) * f.Mise);
  }
  if (f.DoubleEnCours) {
    EXPECT_EQ(f.NbTirées, 10);
  }
  EXPECT_GE(f.Capital, 0);
}

// Runs the commands one at a time, checking the invariants after each.
QStringList Play(Harness& h, const QStringList& commands) {
  QStringList out;
  for (const QString& c : commands) {
    out += h.Drive({c});
    CheckInvariants(h);
  }
  return out;
}

// ---- The first drawing ------------------------------------------------------------------

TEST(RoundDraw, FirstDrawingDealsFiveTakesTheStakeAndEmptiesTheAlertLine) {
  Harness h;
  JeuPoker& f = *h.form;
  ASSERT_EQ(f.SSAlertes->Caption(), kFirstEn);
  // At the one yield of Jouer_Click the line is already empty and nothing is dealt yet.
  const QStringList out = Play(h, {QString("draw ") + kNothing1, "atyield 1 get SSAlertes.Caption",
                                   "atyield 1 var NbTirées", "atyield 1 var Capital", "click Jouer"});
  EXPECT_EQ(out, QStringList({"SSAlertes.Caption=", "NbTirées=0", "Capital=200"}));
  const int codes[5] = {0, 16, 31, 46, 9};
  EXPECT_EQ(f.NbTirées, 5);
  EXPECT_EQ(f.Capital, 199);
  for (int i = 0; i <= 4; ++i) {
    EXPECT_TRUE(Shows(f, i, codes[i])) << i;
    EXPECT_EQ(f.CartesTirage(i), codes[i]) << i;
    EXPECT_EQ(f.CartesSorties(i + 1), codes[i]) << i;
    EXPECT_EQ(f.Deal(i).MousePointer(), 99) << i;
  }
  for (int k = 6; k <= 10; ++k) EXPECT_EQ(f.CartesSorties(k), -1);
  EXPECT_EQ(f.RangMain, 10);
  EXPECT_EQ(f.Gains->Caption(), "");
  EXPECT_NE(f.SSAlertes->Caption(), kFirstEn);
  EXPECT_EQ(h.Drive1("get Deal(3).Picture"), "Deal(3).Picture=Cartes(46)");
}

TEST(RoundDraw, EachPositionCountsAndYieldsBeforeItsCard) {
  Harness h;
  // Yield 1 is JOUER's, 2 the turning down, then one per position before it is dealt.
  const QStringList out =
      Play(h, {QString("draw ") + kNothing1, "atyield 3 var NbTirées", "atyield 3 get Deal(0).Picture",
               "atyield 4 var NbTirées", "atyield 4 get Deal(0).Picture", "atyield 7 var NbTirées",
               "atyield 7 get Deal(4).Picture", "click Jouer"});
  EXPECT_EQ(out, QStringList({"NbTirées=1", "Deal(0).Picture=Cartes(54)", "NbTirées=2", "Deal(0).Picture=Cartes(0)",
                              "NbTirées=5", "Deal(4).Picture=Cartes(54)"}));
}

TEST(RoundDraw, FirstDrawingThatPaysShowsItsValueAtOnce) {
  Harness h;
  JeuPoker& f = *h.form;
  Play(h, {QString("draw ") + kKings, "click Jouer"});
  EXPECT_EQ(f.RangMain, 0);
  EXPECT_EQ(f.GainMain, 1);
  EXPECT_EQ(f.Gains->Caption(), "1");
  EXPECT_EQ(f.Maintitre(0).ForeColor(), 255);
  EXPECT_EQ(f.MainLabel(0).ForeColor(), 255);
  EXPECT_EQ(f.Maintitre(0).BackColor(), 49344);
  EXPECT_EQ(f.MainLabel(0).BackColor(), 49344);
  EXPECT_EQ(f.Capital, 199);  // nothing is owed before the second drawing
  EXPECT_FALSE(f.Doubler->Visible());
}

TEST(RoundDraw, AHandOnTheTableIsTurnedDownAtTheNextRound) {
  Harness h;
  JeuPoker& f = *h.form;
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  Holds(h, "HHHHH");
  Play(h, {"click Jouer"});
  ASSERT_EQ(f.NbTirées, 10);
  // At the first yield of the new round every card is face up still; after the turning
  // down, all are backs.
  const QStringList out = Play(h, {QString("draw ") + kNothing2, "atyield 1 get Deal(2).Picture",
                                   "atyield 2 get Deal(2).Picture", "click Jouer"});
  EXPECT_EQ(out, QStringList({"Deal(2).Picture=Cartes(31)", "Deal(2).Picture=Cartes(54)"}));
  EXPECT_TRUE(Shows(f, 2, 32));
}

// ---- The second drawing -----------------------------------------------------------------

TEST(RoundDraw, SecondDrawingReplacesOnlyTheRejectedPositions) {
  Harness h;
  JeuPoker& f = *h.form;
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  Holds(h, "HRHRH");
  Play(h, {"draw 1 17", "click Jouer"});
  EXPECT_EQ(f.NbTirées, 10);
  const int codes[5] = {0, 1, 31, 17, 9};
  for (int i = 0; i <= 4; ++i) {
    EXPECT_TRUE(Shows(f, i, codes[i])) << i;
    EXPECT_EQ(f.CartesTirage(i), codes[i]) << i;
    EXPECT_EQ(f.Deal(i).MousePointer(), 12) << i;
  }
  // A slot per position, written only where a card was dealt.
  const int gone[11] = {0, 0, 16, 31, 46, 9, -1, 1, -1, 17, -1};
  for (int k = 1; k <= 10; ++k) EXPECT_EQ(f.CartesSorties(k), gone[k]) << k;
  EXPECT_EQ(f.Capital, 199);
}

TEST(RoundDraw, AllRejectedGivesFiveNewCardsNoneOfTheFirstFive) {
  Harness h;
  JeuPoker& f = *h.form;
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  Holds(h, "RRRRR");
  const long long seeds = static_cast<long long>(h.platform.seeds.size());
  const long long yields = h.platform.yields;
  // Each position first draws a card of the first five, which is drawn again.
  Play(h, {"draw 0 1 16 17 31 32 46 47 9 10", "click Jouer"});
  const int codes[5] = {1, 17, 32, 47, 10};
  for (int i = 0; i <= 4; ++i) {
    EXPECT_TRUE(Shows(f, i, codes[i])) << i;
    EXPECT_EQ(f.CartesSorties(6 + i), codes[i]) << i;
  }
  EXPECT_EQ(f.NbTirées, 10);
  EXPECT_EQ(static_cast<long long>(h.platform.seeds.size()) - seeds, 10);  // seeded before every draw
  EXPECT_EQ(h.platform.yields - yields, 2 + 5 * 2);                        // a drawn-again card yields again
  EXPECT_TRUE(h.platform.queuedDraws.empty());
}

TEST(RoundDraw, ARejectedCardCannotComeBackInTheSameRound) {
  Harness h;
  JeuPoker& f = *h.form;
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  Holds(h, "RHHHH");
  // The rejected two of clubs (0) and the kept cards are all refused.
  Play(h, {"draw 0 16 46 0 5", "click Jouer"});
  EXPECT_TRUE(Shows(f, 0, 5));
  EXPECT_EQ(f.CartesSorties(6), 5);
}

TEST(RoundDraw, AllHeldChangesNoCardButStillEndsTheRoundAndPays) {
  Harness h;
  JeuPoker& f = *h.form;
  Play(h, {QString("draw ") + kKings, "click Jouer"});
  Holds(h, "HHHHH");
  const long long slept = h.platform.sleptMs;
  const long long seeds = static_cast<long long>(h.platform.seeds.size());
  Play(h, {"click Jouer"});
  EXPECT_EQ(f.NbTirées, 10);
  const int codes[5] = {11, 24, 26, 42, 7};
  for (int i = 0; i <= 4; ++i) EXPECT_TRUE(Shows(f, i, codes[i])) << i;
  for (int k = 6; k <= 10; ++k) EXPECT_EQ(f.CartesSorties(k), -1) << k;
  EXPECT_EQ(h.platform.sleptMs, slept);  // nothing was turned down
  EXPECT_EQ(static_cast<long long>(h.platform.seeds.size()), seeds);
  // The paying ending.
  EXPECT_EQ(f.RangMain, 0);
  EXPECT_EQ(f.GainMain, 1);
  EXPECT_EQ(f.Gains->Caption(), "1");
  EXPECT_EQ(f.MainLabel(0).ForeColor(), 255);
  EXPECT_EQ(f.MainLabel(0).BackColor(), 49344);
  EXPECT_EQ(f.SSAlertes->Caption(), kWinEn);
  EXPECT_TRUE(f.Doubler->Visible());
  for (int i = 0; i <= 4; ++i) {
    EXPECT_FALSE(f.Jouez(i).Visible()) << i;
    EXPECT_EQ(f.Deal(i).MousePointer(), 12) << i;
  }
  EXPECT_EQ(f.Capital, 199);  // pending until collected
}

TEST(RoundDraw, KeptPositionsStillAdvanceTheCount) {
  Harness h;
  JeuPoker& f = *h.form;
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  Holds(h, "HHHHR");
  // Yields of the second drawing: 1 JOUER, 2 turning down, 3..7 the positions.
  const QStringList out = Play(h, {"draw 10", "atyield 3 var NbTirées", "atyield 7 var NbTirées", "click Jouer"});
  EXPECT_EQ(out, QStringList({"NbTirées=6", "NbTirées=10"}));
  EXPECT_EQ(f.CartesSorties(10), 10);
  for (int k = 6; k <= 9; ++k) EXPECT_EQ(f.CartesSorties(k), -1);
}

// ---- The four endings -------------------------------------------------------------------

struct Ending {
  Byte langue;
  QString win, nouveau, mise, perdu;
};

// The language the alert texts of a case are in.
std::string LanguageOf(const Ending& e) { return e.win == kWinEn ? "English" : "French"; }

// A case prints as its language byte and language rather than as the bytes of its texts.
void PrintTo(const Ending& e, std::ostream* os) {
  *os << "Langue " << static_cast<int>(e.langue) << " (" << LanguageOf(e) << ")";
}

class RoundEndings : public ::testing::TestWithParam<Ending> {};

TEST_P(RoundEndings, PayingHand) {
  Harness h;
  JeuPoker& f = *h.form;
  f.Langue = GetParam().langue;
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  Holds(h, "RRRRR");
  Play(h, {QString("draw ") + kKings, "click Jouer"});
  EXPECT_EQ(f.SSAlertes->Caption(), GetParam().win);
  EXPECT_EQ(f.Gains->Caption(), "1");
  EXPECT_TRUE(f.Doubler->Visible());
}

TEST_P(RoundEndings, NothingWithCreditLeft) {
  Harness h;
  JeuPoker& f = *h.form;
  f.Langue = GetParam().langue;
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  Holds(h, "RRRRR");
  Play(h, {QString("draw ") + kNothing2, "click Jouer"});
  EXPECT_EQ(f.RangMain, 10);
  EXPECT_EQ(f.SSAlertes->Caption(), GetParam().nouveau);
  EXPECT_EQ(f.Gains->Caption(), "");
  EXPECT_EQ(f.GainMain, 0);
  EXPECT_FALSE(f.Doubler->Visible());
  for (int i = 0; i <= 4; ++i) {
    EXPECT_TRUE(f.Jouez(i).Visible()) << i;
    EXPECT_EQ(f.Deal(i).MousePointer(), 12) << i;
  }
  EXPECT_EQ(f.Capital, 199);
}

TEST_P(RoundEndings, NothingWithTheCreditBelowTheStake) {
  Harness h;
  JeuPoker& f = *h.form;
  f.Langue = GetParam().langue;
  // A capital of 8 with a bet of 5: after the stake 3 is left, below the bet.
  h.Drive({"set Capital 8", "set Mise 5"});
  f.Mises->SetCaption("5");
  for (int i = 0; i <= 9; ++i) f.MainLabel(i).SetCaption(QString::number(f.TableGains(i) * 5));
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  EXPECT_EQ(f.Capital, 3);
  Holds(h, "HHHHH");
  Play(h, {"click Jouer"});
  EXPECT_EQ(f.SSAlertes->Caption(), GetParam().mise);
  EXPECT_EQ(f.Mise, 1);
  EXPECT_EQ(f.Niveau, 1);
  EXPECT_EQ(f.Mises->Caption(), "1");
  EXPECT_EQ(f.UnADouze->Caption(), "1");
  for (int i = 0; i <= 9; ++i) EXPECT_EQ(f.MainLabel(i).Caption(), QString::number(f.TableGains(i))) << i;
  EXPECT_EQ(f.Capital, 3);
  for (int i = 0; i <= 4; ++i) EXPECT_TRUE(f.Jouez(i).Visible()) << i;
  // The next round stakes the corrected bet.
  Play(h, {QString("draw ") + kNothing2, "click Jouer"});
  EXPECT_EQ(f.Capital, 2);
}

TEST_P(RoundEndings, NothingWithNoCreditLeft) {
  Harness h;
  JeuPoker& f = *h.form;
  f.Langue = GetParam().langue;
  h.Drive({"set Capital 1"});
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  EXPECT_EQ(f.Capital, 0);
  Holds(h, "RRRRR");
  Play(h, {QString("draw ") + kNothing2, "click Jouer"});
  EXPECT_EQ(f.SSAlertes->Caption(), GetParam().perdu);
  for (int i = 0; i <= 4; ++i) EXPECT_FALSE(f.Jouez(i).Visible()) << i;
  EXPECT_FALSE(f.Doubler->Visible());
  EXPECT_EQ(f.Gains->Caption(), "");
  // The game is lost: JOUER and Space are refused, nothing is drawn, the line stays.
  Play(h, {QString("draw ") + kNothing3, "click Jouer", "key 32"});
  EXPECT_EQ(f.NbTirées, 10);
  EXPECT_EQ(f.Capital, 0);
  EXPECT_EQ(h.platform.queuedDraws.size(), 5u);
  EXPECT_EQ(f.SSAlertes->Caption(), GetParam().perdu);
  EXPECT_TRUE(Shows(f, 0, 1));
}

INSTANTIATE_TEST_SUITE_P(Languages, RoundEndings,
                         ::testing::Values(Ending{0, kWinEn, kNewEn, kBetEn, kLostEn},
                                           Ending{2, kWinEn, kNewEn, kBetEn, kLostEn},
                                           Ending{1, kWinFr, kNewFr, kBetFr, kLostFr},
                                           Ending{3, kWinFr, kNewFr, kBetFr, kLostFr}),
                         [](const ::testing::TestParamInfo<Ending>& info) {
                           return LanguageOf(info.param) + "_Langue" + std::to_string(info.param.langue);
                         });

TEST(RoundDraw, FrenchFromTheLanguageByteAtStart) {
  Harness h(false);
  WriteIni(h, 3);
  h.form->Form_Load();
  JeuPoker& f = *h.form;
  ASSERT_EQ(f.Langue, 3);
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  Holds(h, "JJJJJ");  // any letter but H: the French reject word
  for (int i = 0; i <= 4; ++i) ASSERT_EQ(f.Jouez(i).Caption(), "JETER");
  Play(h, {QString("draw ") + kKings, "click Jouer"});
  EXPECT_TRUE(Shows(f, 0, 11));
  EXPECT_EQ(f.SSAlertes->Caption(), kWinFr);
}

TEST(RoundDraw, TheRejectWordOfTheOtherLanguageIsNotARejection) {
  Harness h;
  JeuPoker& f = *h.form;
  f.Langue = 3;
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  for (int i = 0; i <= 4; ++i) f.Jouez(i).SetCaption("REJECT");
  Play(h, {"click Jouer"});
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(f.CartesTirage(i), f.CartesSorties(i + 1)) << i;
  for (int k = 6; k <= 10; ++k) EXPECT_EQ(f.CartesSorties(k), -1) << k;
}

// ---- Money ------------------------------------------------------------------------------

TEST(RoundDraw, JouerOnAWinCreditsItBeforeTakingTheNewStake) {
  Harness h;
  JeuPoker& f = *h.form;
  // No joker: a straight pays 7.
  h.Drive({"set NbJokers 0", "set TailleJeu 52"});
  f.Initialise();
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  Holds(h, "RRRRR");
  Play(h, {QString("draw ") + kStraight, "click Jouer"});
  ASSERT_EQ(f.RangMain, 3);
  EXPECT_EQ(f.GainMain, 7);
  EXPECT_EQ(f.Capital, 199);
  // At the turning down of the new round the win is in and the stake out.
  const QStringList out = Play(h, {QString("draw ") + kNothing2, "atyield 2 var Capital", "click Jouer"});
  EXPECT_EQ(out, QStringList({"Capital=205"}));
  EXPECT_EQ(f.Capital, 205);
  EXPECT_EQ(f.GainMain, 0);
  EXPECT_FALSE(f.Doubler->Visible());
  EXPECT_EQ(f.MainLabel(3).ForeColor(), 0xFFFFFF);
}

TEST(RoundDraw, NoCreditButAWinPendingStillPlays) {
  Harness h;
  JeuPoker& f = *h.form;
  h.Drive({"set Capital 1"});
  Play(h, {QString("draw ") + kKings, "click Jouer"});
  Holds(h, "HHHHH");
  Play(h, {"click Jouer"});
  ASSERT_EQ(f.Capital, 0);
  ASSERT_EQ(f.Gains->Caption(), "1");
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  EXPECT_EQ(f.NbTirées, 5);
  EXPECT_EQ(f.Capital, 0);  // 0 + 1 collected - 1 staked
}

TEST(RoundDraw, APayingFirstDrawingLostAtTheSecondPaysNothing) {
  Harness h;
  JeuPoker& f = *h.form;
  Play(h, {QString("draw ") + kKings, "click Jouer"});
  ASSERT_EQ(f.Gains->Caption(), "1");
  Holds(h, "RRRRR");
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  EXPECT_EQ(f.RangMain, 10);
  EXPECT_EQ(f.GainMain, 0);
  EXPECT_EQ(f.Gains->Caption(), "");
  for (int i = 0; i <= 9; ++i) {
    EXPECT_EQ(f.MainLabel(i).ForeColor(), 0xFFFFFF) << i;
    EXPECT_EQ(f.Maintitre(i).BackColor(), 0) << i;
  }
  EXPECT_EQ(f.Capital, 199);
  Play(h, {QString("draw ") + kNothing2, "click Jouer"});
  EXPECT_EQ(f.Capital, 198);
}

TEST(RoundDraw, StakeIsLevelTimesBetButTheWinIsByTheBetAlone) {
  Harness h;
  JeuPoker& f = *h.form;
  h.Drive({"set Niveau 3", "set Mise 2"});
  Play(h, {QString("draw ") + kKings, "click Jouer"});
  EXPECT_EQ(f.Capital, 194);
  EXPECT_EQ(f.GainMain, 2);
  EXPECT_EQ(f.Gains->Caption(), "2");
}

TEST(RoundDraw, ANewRoundDoesNotCheckTheCredit) {
  Harness h;
  JeuPoker& f = *h.form;
  h.Drive({"set Capital 5", "set Mise 5"});
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  EXPECT_EQ(f.Capital, 0);
  EXPECT_EQ(f.NbTirées, 5);
}

TEST(RoundDraw, CreditRunsOutOverScriptedRounds) {
  Harness h;
  JeuPoker& f = *h.form;
  h.Drive({"set Capital 3"});
  const char* hands[3] = {kNothing1, kNothing2, kNothing3};
  for (int round = 0; round < 3; ++round) {
    Play(h, {QString("draw ") + hands[round], "click Jouer"});
    EXPECT_EQ(f.NbTirées, 5);
    EXPECT_EQ(f.Capital, 2 - round);
    Holds(h, "HHHHH");
    Play(h, {"key 32"});
    EXPECT_EQ(f.NbTirées, 10);
    EXPECT_EQ(f.SSAlertes->Caption(), round < 2 ? kNewEn : kLostEn);
  }
  Play(h, {"click Jouer"});
  EXPECT_EQ(f.NbTirées, 10);
  EXPECT_EQ(f.Capital, 0);
}

// ---- Jokers in the deck -----------------------------------------------------------------

TEST(RoundDraw, TheDrawIsTakenBelowTheSizeOfTheDeck) {
  Harness h;
  h.Drive({"set NbJokers 0", "set TailleJeu 52"});
  QStringList out = Play(h, {"draw 52 16 31 46 9 0", "click Jouer"});
  EXPECT_EQ(out, QStringList({"error: draw 52 is not below 52; drawn at random"}));
  EXPECT_LT(h.form->CartesTirage(0), 52);

  Harness h1;
  h1.Drive({"set NbJokers 1", "set TailleJeu 53"});
  out = Play(h1, {"draw 52 53 31 46 9 0", "click Jouer"});
  EXPECT_EQ(out, QStringList({"error: draw 53 is not below 53; drawn at random"}));
  EXPECT_EQ(h1.form->CartesTirage(0), 52);
  EXPECT_LT(h1.form->CartesTirage(1), 53);
}

TEST(RoundDraw, NoJokerIsEverDealtWithoutJokersInTheGame) {
  Harness h;
  JeuPoker& f = *h.form;
  h.Drive({"set NbJokers 0", "set TailleJeu 52", "set Capital 30000"});
  for (int round = 0; round < 40; ++round) {
    Play(h, {"click Jouer"});
    Holds(h, "RRRRR");
    Play(h, {"click Jouer"});
    for (int k = 1; k <= 10; ++k) ASSERT_LT(f.CartesSorties(k), 52);
  }
}

TEST(RoundDraw, BothJokersCanComeOutInOneRound) {
  Harness h;
  JeuPoker& f = *h.form;
  Play(h, {"draw 52 0 16 31 46", "click Jouer"});
  Holds(h, "HRRRR");
  Play(h, {"draw 52 53 1 17 32", "click Jouer"});
  EXPECT_TRUE(Shows(f, 0, 52));
  EXPECT_TRUE(Shows(f, 1, 53));
  EXPECT_EQ(f.CartesSorties(1), 52);
  EXPECT_EQ(f.CartesSorties(7), 53);
  EXPECT_EQ(f.RangMain, 2);  // two jokers with three lone low cards
}

TEST(RoundDraw, ADrawAlreadyOutIsDrawnAgainWithAFreshSeed) {
  Harness h;
  JeuPoker& f = *h.form;
  h.platform.clock = 1000.5;
  h.platform.seeds.clear();  // the music's choice of a piece at start
  Play(h, {"draw 5 5 5 6 7 8 9", "click Jouer"});
  const int codes[5] = {5, 6, 7, 8, 9};
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(f.CartesTirage(i), codes[i]) << i;
  ASSERT_EQ(h.platform.seeds.size(), 7u);
  for (double s : h.platform.seeds) EXPECT_EQ(s, 1000.5);
}

// ---- JOUER and Space ---------------------------------------------------------------------

TEST(RoundDraw, SpacePlaysThroughTheFocusedTirageButton) {
  Harness h;
  JeuPoker& f = *h.form;
  EXPECT_EQ(h.Drive1("get Tirage.Focus"), "Tirage.Focus=-1");
  Play(h, {QString("draw ") + kNothing1, "key 32"});
  EXPECT_EQ(f.NbTirées, 5);
  EXPECT_EQ(f.Capital, 199);
  Holds(h, "RHHHH");
  Play(h, {"draw 1", "key 32"});
  EXPECT_EQ(f.NbTirées, 10);
  EXPECT_TRUE(Shows(f, 0, 1));
}

TEST(RoundDraw, OtherKeysDoNotPlay) {
  Harness h;
  JeuPoker& f = *h.form;
  const Picture before = f.JouerImage(0).GetPicture();
  Play(h, {"key 13", "key 65", "key 33"});
  f.Tirage_KeyDown(13, 0);
  f.Tirage_KeyUp(13, 0);
  f.Tirage_KeyDown(65, 0);
  f.Tirage_KeyUp(65, 0);
  EXPECT_EQ(f.NbTirées, 0);
  EXPECT_EQ(f.Capital, 200);
  EXPECT_EQ(f.JouerImage(0).GetPicture(), before);
  EXPECT_EQ(f.SSAlertes->Caption(), kFirstEn);
}

TEST(RoundDraw, ClicksOnTheHoldPanelsTheDrawingAreaAndTheDoublePanelOnlyGiveTheFocusToTirage) {
  Harness h;
  JeuPoker& f = *h.form;
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  ASSERT_EQ(f.NbTirées, 5);
  const QString word = f.Jouez(2).Caption();
  const Long colour = f.Jouez(2).BackColor();
  const long long slept = h.platform.sleptMs;
  f.SSLangue(0).SetFocus();
  ASSERT_NE(f.focusWidget(), f.Tirage);
  EXPECT_EQ(h.Drive({"click Jouez(2)"}), QStringList{});
  EXPECT_EQ(f.focusWidget(), f.Tirage);
  EXPECT_EQ(f.Jouez(2).Caption(), word);
  EXPECT_EQ(f.Jouez(2).BackColor(), colour);
  f.SSLangue(0).SetFocus();
  f.SSTirage->Click();
  EXPECT_EQ(f.focusWidget(), f.Tirage);
  f.SSLangue(0).SetFocus();
  f.Doubler->Click();
  EXPECT_EQ(f.focusWidget(), f.Tirage);
  EXPECT_EQ(f.NbTirées, 5);
  EXPECT_EQ(f.Capital, 199);
  EXPECT_EQ(h.platform.sleptMs, slept);  // no blink
}

TEST(RoundDraw, JouerFacesFollowOnlyLangueTwo) {
  Harness h;
  JeuPoker& f = *h.form;
  const struct {
    Byte langue;
    int down, up;
  } cases[] = {{0, 3, 1}, {1, 3, 1}, {2, 4, 2}, {3, 3, 1}};
  for (const auto& c : cases) {
    f.Langue = c.langue;
    f.Jouer->MouseDown(1, 0, 0, 0);
    EXPECT_EQ(f.JouerImage(0).GetPicture(), f.JouerImage(c.down).GetPicture()) << int(c.langue);
    f.Jouer->MouseUp(1, 0, 0, 0);
    EXPECT_EQ(f.JouerImage(0).GetPicture(), f.JouerImage(c.up).GetPicture()) << int(c.langue);
    f.Tirage_KeyDown(32, 0);
    EXPECT_EQ(f.JouerImage(0).GetPicture(), f.JouerImage(c.down).GetPicture()) << int(c.langue);
    f.JouerImage(0).SetPicture(nullptr);
    f.Tirage_KeyUp(32, 0);
    EXPECT_EQ(f.JouerImage(0).GetPicture(), f.JouerImage(c.up).GetPicture()) << int(c.langue);
  }
}

TEST(RoundDraw, LangueZeroGivesEnglishWordsAndFrenchJouerFaces) {
  Harness h;
  JeuPoker& f = *h.form;
  ASSERT_EQ(f.Langue, 0);
  // The face while JOUER is held down, seen from inside the click.
  const QStringList out = Play(h, {QString("draw ") + kNothing1, "atyield 1 get JouerImage(0).Picture", "click Jouer"});
  EXPECT_EQ(out, QStringList({"JouerImage(0).Picture=JouerImage(1)"}));
  Holds(h, "RRRRR");
  ASSERT_EQ(f.Jouez(0).Caption(), "REJECT");
  Play(h, {QString("draw ") + kKings, "key 32"});
  EXPECT_EQ(f.SSAlertes->Caption(), kWinEn);
  EXPECT_EQ(h.Drive1("get JouerImage(0).Picture"), "JouerImage(0).Picture=JouerImage(1)");
}

TEST(RoundDraw, JouerIsIgnoredWhileAutomaticModeRuns) {
  Harness h;
  JeuPoker& f = *h.form;
  f.AutoPlay->SetBevelWidth(0);
  const long long yields = h.platform.yields;
  Play(h, {QString("draw ") + kNothing1, "click Jouer", "key 32"});
  EXPECT_EQ(f.NbTirées, 0);
  EXPECT_EQ(f.Capital, 200);
  EXPECT_EQ(f.SSAlertes->Caption(), kFirstEn);
  EXPECT_EQ(h.platform.yields, yields);
  EXPECT_EQ(h.platform.queuedDraws.size(), 5u);
}

TEST(RoundDraw, JouerIsRefusedDuringADoubleUp) {
  Harness h;
  JeuPoker& f = *h.form;
  Play(h, {QString("draw ") + kKings, "click Jouer"});
  Holds(h, "HHHHH");
  Play(h, {"click Jouer"});
  f.DoubleEnCours = true;
  f.SSAlertes->SetCaption("Choose a masked card and click on its back.");
  Play(h, {QString("draw ") + kNothing1, "click Jouer", "key 32"});
  EXPECT_EQ(f.NbTirées, 10);
  EXPECT_EQ(f.Capital, 199);
  EXPECT_EQ(f.GainMain, 1);
  EXPECT_EQ(f.SSAlertes->Caption(), "Choose a masked card and click on its back.");
  EXPECT_EQ(h.platform.queuedDraws.size(), 5u);
}

TEST(RoundDraw, DoublerIsHiddenAtTheStartOfADrawing) {
  Harness h;
  JeuPoker& f = *h.form;
  Play(h, {QString("draw ") + kKings, "click Jouer"});
  Holds(h, "HHHHH");
  Play(h, {"click Jouer"});
  ASSERT_TRUE(f.Doubler->Visible());
  const QStringList out = Play(h, {QString("draw ") + kNothing1, "atyield 2 get Doubler.Visible", "click Jouer"});
  EXPECT_EQ(out, QStringList({"Doubler.Visible=0"}));
}

// ---- Timing: the wait and the animation ---------------------------------------------------

TEST(RoundDraw, ImmediateModeWaitsOnlyWhenACardWasTurnedDown) {
  Harness h;
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  EXPECT_EQ(h.Drive1("slept"), "slept=0");  // the table was all backs
  Holds(h, "HHHHH");
  Play(h, {"click Jouer"});
  EXPECT_EQ(h.Drive1("slept"), "slept=0");  // nothing rejected
  Play(h, {QString("draw ") + kNothing2, "click Jouer"});
  EXPECT_EQ(h.Drive1("slept"), "slept=250");  // five cards up, turned down
  Holds(h, "HRHHH");
  Play(h, {"draw 0", "click Jouer"});
  EXPECT_EQ(h.Drive1("slept"), "slept=500");
}

TEST(RoundDraw, AnimatedCardsShrinkAndGrowWithAYieldAtEachStep) {
  Harness h;
  JeuPoker& f = *h.form;
  h.Drive({"set AffichageImmédiat 0"});
  const int left = f.Deal(0).Left(), top = f.Deal(0).Top();
  const int width = f.Deal(0).Width(), height = f.Deal(0).Height();
  long long yields = h.platform.yields;
  // Yields: 1 JOUER, 2 turning down, then per position one, 30 shrinking, 30 growing.
  const QStringList out = Play(h, {QString("draw ") + kNothing1, "atyield 4 get Deal(0).Height",
                                   "atyield 33 get Deal(0).Picture", "atyield 34 get Deal(0).Picture",
                                   "atyield 33 get Deal(0).Left", "atyield 33 get Deal(0).Top", "click Jouer"});
  EXPECT_EQ(h.platform.yields - yields, 2 + 5 * 61);
  EXPECT_EQ(h.Drive1("slept"), "slept=0");
  ASSERT_EQ(out.size(), 5);
  EXPECT_EQ(out[0], QString("Deal(0).Height=%1").arg(height));  // before the first step
  EXPECT_EQ(out[1], "Deal(0).Picture=Cartes(54)");              // the 30th step of the shrink: still the back
  EXPECT_EQ(out[2], QString("Deal(0).Left=%1").arg(left));
  EXPECT_EQ(out[3], QString("Deal(0).Top=%1").arg(top));
  EXPECT_EQ(out[4], "Deal(0).Picture=Cartes(0)");  // the first step of the growth
  // The card closes towards its top left corner and opens again; its size is whatever
  // the arithmetic leaves, close to the start.
  for (int i = 0; i <= 4; ++i) {
    EXPECT_EQ(f.Deal(i).Left(), f.Deal(i).Left());
    EXPECT_NEAR(f.Deal(i).Width(), width, 15 * 6) << i;
    EXPECT_NEAR(f.Deal(i).Height(), height, 15 * 6) << i;
  }
  EXPECT_EQ(f.Deal(0).Left(), left);
  EXPECT_EQ(f.Deal(0).Top(), top);

  // Second drawing: a rejected card goes down with 60 steps and comes back with 60 more.
  Holds(h, "HHRHH");
  yields = h.platform.yields;
  Play(h, {"draw 1", "click Jouer"});
  EXPECT_EQ(h.platform.yields - yields, 1 + 60 + 1 + 5 + 60);
  EXPECT_EQ(h.Drive1("slept"), "slept=0");
  EXPECT_TRUE(Shows(f, 2, 1));
}

TEST(RoundDraw, ShrinkingReallyMakesTheCardSmaller) {
  Harness h;
  JeuPoker& f = *h.form;
  h.Drive({"set AffichageImmédiat 0"});
  const int width = f.Deal(0).Width(), height = f.Deal(0).Height();
  int smallestW = width, smallestH = height;
  for (int step = 4; step <= 33; ++step)
    h.platform.AtYield(step, [&] {
      smallestW = std::min(smallestW, f.Deal(0).Width());
      smallestH = std::min(smallestH, f.Deal(0).Height());
    });
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  // 0.94 to the 29th power is about 0.17.
  EXPECT_LT(smallestW, width / 4);
  EXPECT_LT(smallestH, height / 4);
  EXPECT_GT(smallestH, 0);
}

// ---- A JOUER click inside a drawing ------------------------------------------------------

TEST(RoundDraw, JouerDuringTheFirstDrawingRunsANestedDrawing) {
  Harness h;
  JeuPoker& f = *h.form;
  // The outer drawing deals position 0 (the four of clubs, 2) and, at the yield of
  // position 1, a second JOUER starts a new round inside it: the stake is taken again, the
  // list of cards gone is emptied, the card on the table is turned down and five are dealt.
  // The nested hand is a straight, so it keeps every card whatever the advice, and the
  // outer drawing then finds every remaining position face up and held.
  const QStringList out = Play(h, {"draw 2 4 18 32 46 8", "atyield 4 click Jouer", "atyield 5 var NbTirées",
                                   "atyield 5 var CartesSorties(1)", "click Jouer"});
  EXPECT_EQ(out, QStringList({"NbTirées=2", "CartesSorties(1)=2"}));
  const int nested[5] = {4, 18, 32, 46, 8};
  for (int i = 0; i <= 4; ++i) {
    EXPECT_TRUE(Shows(f, i, nested[i])) << i;
    EXPECT_EQ(f.CartesTirage(i), nested[i]) << i;
    EXPECT_EQ(f.CartesSorties(i + 1), nested[i]) << i;
  }
  for (int k = 6; k <= 10; ++k) EXPECT_EQ(f.CartesSorties(k), -1) << k;
  // The outer call went on counting after the nested one ended at 5.
  EXPECT_EQ(f.NbTirées, 8);
  EXPECT_EQ(f.Capital, 198);
  EXPECT_EQ(f.RangMain, 3);
  EXPECT_EQ(h.Drive1("slept"), "slept=250");  // the nested drawing turned the first card down
  // The straight shows its value as after any first drawing, and it stays pending.
  EXPECT_EQ(f.GainMain, 4);
  EXPECT_EQ(f.Gains->Caption(), "4");
  // The next JOUER takes 8 for the start of a round, and so collects the pending value.
  Play(h, {QString("draw ") + kNothing1, "click Jouer"});
  EXPECT_EQ(f.NbTirées, 5);
  EXPECT_EQ(f.Capital, 198 + 4 - 1);
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(f.CartesSorties(i + 1), f.CartesTirage(i)) << i;
}

TEST(RoundDraw, JouerDuringTheSecondDrawingStartsAndOverlapsANewRound) {
  Harness h;
  JeuPoker& f = *h.form;
  // Automatic selection off: every hold word is the reject word after a first drawing.
  f.ParesseOui->SetBevelWidth(3);
  f.ParesseNon->SetBevelWidth(0);
  Play(h, {QString("draw ") + kKings, "click Jouer"});
  ASSERT_EQ(f.GainMain, 1);
  Holds(h, "RRRRR");
  // Outer second drawing: 1 JOUER, 2 turning down, 3 position 0 (dealt 0), 4 position 1:
  // there the nested JOUER collects the first drawing's pair, stakes, and deals five.
  const QStringList out = Play(h, {"draw 0 1 17 32 47 10 13 14 15 27", "atyield 4 click Jouer", "click Jouer"});
  EXPECT_TRUE(out.isEmpty()) << out.join("\n").toStdString();
  // 200 - 1, + 1 collected by the nested round, - 1 staked by it.
  EXPECT_EQ(f.Capital, 199);
  // The nested round ended at 5; the outer went on for positions 1..4 with the nested
  // round's reject words, writing from slot 5.
  EXPECT_EQ(f.NbTirées, 8);
  const int table[5] = {1, 13, 14, 15, 27};
  for (int i = 0; i <= 4; ++i) EXPECT_TRUE(Shows(f, i, table[i])) << i;
  const int gone[11] = {0, 1, 17, 32, 47, 13, 14, 15, 27, -1, -1};
  for (int k = 1; k <= 10; ++k) EXPECT_EQ(f.CartesSorties(k), gone[k]) << k;
}

}  // namespace
