// Automatic card selection after the first drawing, the manual option, and the partial
// advice the grid relies on.
#include <gtest/gtest.h>

#include "tests/classic/holds_helpers.h"

using holds::FirstDrawing;
using holds::HeldWords;
using holds::Kept;

namespace {

struct Row {
  const char* rule;
  const char* hand;  // in position order
  int rang;          // the class Résultat gives the hand
  const char* kept;  // positions held, "1" = held
};

// One or more hands for each row of the selection's rule table.
const Row kRules[] = {
    {"straight keeps all five", "9C 6D 7H 8S 5C", 3, "11111"},
    {"flush keeps all five", "2H KH 5H JH 9H", 4, "11111"},
    {"straight flush keeps all five", "5S 6S 7S 8S 9S", 7, "11111"},
    {"royal flush keeps all five", "AD KD QD JD TD", 8, "11111"},
    {"five of a kind keeps all five", "7C X1 7D X2 7H", 9, "11111"},
    {"full house keeps all five", "3C 9S 3D 9C 3H", 5, "11111"},
    {"joker with two pairs keeps all five", "4C 8H X1 4D 8S", 5, "11111"},
    {"four of a kind keeps the four", "6C KC 6D 6H 6S", 6, "10111"},
    {"four of a kind with a joker makes five of a kind", "6C X1 6D 6H 6S", 9, "11111"},
    {"three of a kind keeps the three", "9C 2S 9D 5C 9H", 2, "10101"},
    {"pair and joker keep the pair and the joker", "9C 2H X1 5S 9D", 2, "10101"},
    {"two jokers and three lone cards keep only the jokers", "2C X1 7D KH X2", 2, "01001"},
    {"two pairs keep the four paired cards", "4C 2C 8H 4D 8S", 1, "10111"},
    {"pair of aces keeps the pair", "3H AC 7S AD 9C", 0, "01010"},
    {"pair of kings keeps the pair", "KC 3H 7S 9C KH", 0, "10001"},
    {"ace with a joker keeps the ace and the joker, not the king", "KC 3D AH 7S X1", 0, "00101"},
    {"king with a joker keeps the king and the joker", "3D KC 7S X1 9H", 0, "01010"},
    {"four to a flush keeps the four", "2H 5H KC 9H JH", 10, "11011"},
    {"three to a flush and a joker keep them", "3H 7H 2C JH X1", 10, "11011"},
    {"four to a flush breaks up a low pair", "4H 7H 4C 9H JH", 10, "11011"},
    {"low pair keeps the pair", "5C 9H 5D JS 2C", 10, "10100"},
    {"four to a straight keeps the four", "9C 2C 3D 4H 5S", 10, "01111"},
    {"three to a straight and a joker keep them", "5C QS 6D X1 7H", 10, "10111"},
    {"nothing keeps kings and aces", "2C KS 5D AC 9H", 10, "01010"},
    {"nothing and no high card keeps nothing", "2C 5D 9H JS 7C", 10, "00000"},
    {"nothing keeps the joker", "2C 5D X1 9H JH", 10, "00100"},
};

TEST(HoldsSelection, EveryRowOfTheRuleTable) {
  for (const Row& row : kRules) {
    SCOPED_TRACE(std::string(row.rule) + ": " + row.hand);
    Harness h;
    JeuPoker& f = *h.form;
    FirstDrawing(f, row.hand);
    EXPECT_EQ(f.RangMain, row.rang);
    EXPECT_EQ(Kept(f), row.kept);
    EXPECT_EQ(HeldWords(f), row.kept);
    for (int i = 0; i < 5; ++i) {
      const bool held = row.kept[i] == '1';
      EXPECT_EQ(f.Jouez(i).Caption(), held ? "HOLD" : "REJECT");
      EXPECT_EQ(f.Jouez(i).BackColor(), held ? 0xC0C000 : 0x607000);
      EXPECT_TRUE(f.Jouez(i).Visible());
    }
  }
}

struct StraightCase {
  const char* what;
  const char* hand;
  const char* kept;
};

// Four to a straight, the case chosen by the last rule that holds; the hands are dealt out
// of rank order so that the positions must be found again for the order of the ranks.
const StraightCase kStraights[] = {
    {"2 3 4 5 and a nine: the nine goes", "5C 9D 4D 3H 2S", "10111"},
    {"3 4 5 6 and a ten: the ten goes", "TS 6C 3D 5H 4C", "01111"},
    {"2 3 5 ace and a nine: the ace plays low and the nine goes", "AS 9C 5D 3H 2C", "10111"},
    {"8 9 10 J K: the second case overrides the first, the eight goes", "KD 8C TH JS 9C", "10111"},
    {"ace 2 3 4 and a king: the ace plays low and the king goes", "KS 3D AC 4H 2C", "01111"},
    {"joker with 8 9 J: the low card goes", "JS X1 2C 9H 8D", "11011"},
    {"joker with 5 6 7 and a queen: the queen goes", "7H QS X1 6D 5C", "10111"},
    {"joker with 2 5 6 7: both joker cases hold and the last wins, the two goes", "2C 7S 6H X1 5D", "01111"},
};

TEST(HoldsSelection, FourToAStraightCasesKeepTheRightPositions) {
  for (const auto& c : kStraights) {
    SCOPED_TRACE(std::string(c.what) + ": " + c.hand);
    Harness h;
    FirstDrawing(*h.form, c.hand);
    EXPECT_EQ(h.form->RangMain, 10);
    EXPECT_EQ(Kept(*h.form), c.kept);
    EXPECT_EQ(HeldWords(*h.form), c.kept);
  }
}

TEST(HoldsSelection, StraightDrawRebuildsPositionsInRankOrder) {
  Harness h;
  JeuPoker& f = *h.form;
  // By code the order is 5C 9C 4D 3H 2S; by rank 2S 3H 4D 5C 9C.
  FirstDrawing(f, "5C 9C 4D 3H 2S");
  EXPECT_EQ(f.PositionsMain(0), 4);
  EXPECT_EQ(f.PositionsMain(1), 3);
  EXPECT_EQ(f.PositionsMain(2), 2);
  EXPECT_EQ(f.PositionsMain(3), 0);
  EXPECT_EQ(f.PositionsMain(4), 1);
  EXPECT_EQ(Kept(f), "10111");
}

TEST(HoldsSelection, JokerWithAStaleSuitBlockKeepsItsPosition) {
  Harness h;
  JeuPoker& f = *h.form;
  for (Byte stale : {Byte{0}, Byte{13}, Byte{26}, Byte{39}}) {
    SCOPED_TRACE(stale);
    f.BlocsCouleur(4) = stale;
    FirstDrawing(f, "X1 9H 8D JS 2C");
    EXPECT_EQ(f.PositionsMain(4), 0);
    EXPECT_EQ(Kept(f), "11110");
  }
}

TEST(HoldsSelection, LowPairAndFourToAFlushKeepTheFlushCards) {
  Harness h;
  FirstDrawing(*h.form, "4H 7H 4C 9H JH");
  EXPECT_EQ(h.form->NbPaires, 1);
  EXPECT_EQ(HeldWords(*h.form), "11011");
  EXPECT_EQ(h.form->Jouez(2).Caption(), "REJECT");
}

TEST(HoldsSelection, LowPairBlocksTheStraightAndHighCardRules) {
  Harness h;
  // 3 4 5 6 with a pair of sixes: no straight draw, and the ace is not kept beside the pair.
  FirstDrawing(*h.form, "3C 4D 5H 6S 6C");
  EXPECT_EQ(Kept(*h.form), "00011");
  Harness h2;
  FirstDrawing(*h2.form, "AC 7D 7H 2S 9C");
  EXPECT_EQ(Kept(*h2.form), "01100");
}

TEST(HoldsSelection, FlushDrawBeatsAStraightDraw) {
  Harness h;
  // Four hearts, and 5 6 7 8 to a straight: the flush draw is taken first.
  FirstDrawing(*h.form, "5H 6H 7H KH 8C");
  EXPECT_EQ(Kept(*h.form), "11110");
}

TEST(HoldsSelection, KingAceJokerKeepsTheAceAndTheJoker) {
  Harness h;
  FirstDrawing(*h.form, "KC 2D AH 5S X1");
  EXPECT_EQ(h.form->RangMain, 0);
  EXPECT_EQ(HeldWords(*h.form), "00101");
}

TEST(HoldsSelection, WritesTheSecondDrawingLine) {
  Harness h;
  FirstDrawing(*h.form, "2C 5D 9H JS 7C");
  EXPECT_EQ(h.form->SSAlertes->Caption(), "SECOND DRAWING : Click on PLAY or press the 'Space' key.");
  Harness fr;
  fr.form->Langue = 3;
  FirstDrawing(*fr.form, "2C 5D 9H JS 7C");
  EXPECT_EQ(fr.form->SSAlertes->Caption(), "SECOND TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.");
  EXPECT_EQ(fr.form->Jouez(0).Caption(), "JETER");
}

TEST(HoldsSelection, FrenchHoldWords) {
  Harness h;
  h.form->Langue = 3;
  FirstDrawing(*h.form, "KC 3H 7S 9C KH");
  EXPECT_EQ(h.form->Jouez(0).Caption(), "GARDER");
  EXPECT_EQ(h.form->Jouez(1).Caption(), "JETER");
  EXPECT_EQ(h.form->Jouez(4).Caption(), "GARDER");
}

TEST(HoldsSelection, ManualOptionRejectsAllFiveWhateverTheHand) {
  for (const char* hand : {"AC AD AH AS KC", "5S 6S 7S 8S 9S", "2C 5D 9H JS 7C", "X1 X2 KC AD 2H"}) {
    SCOPED_TRACE(hand);
    Harness h;
    holds::ManualSelection(*h.form);
    FirstDrawing(*h.form, hand);
    EXPECT_EQ(HeldWords(*h.form), "00000");
    for (int i = 0; i < 5; ++i) {
      EXPECT_EQ(h.form->Jouez(i).Caption(), "REJECT");
      EXPECT_EQ(h.form->Jouez(i).BackColor(), 0x607000);
    }
  }
}

TEST(HoldsSelection, ShowsHiddenHoldPanels) {
  Harness h;
  for (int i = 0; i < 5; ++i) h.form->Jouez(i).SetVisible(false);
  FirstDrawing(*h.form, "2C 5D 9H JS 7C");
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(h.form->Jouez(i).Visible());
}

TEST(HoldsSelection, DoesNothingAtTheEndOfARound) {
  for (Byte stage : {Byte{10}, Byte{50}}) {
    Harness h;
    JeuPoker& f = *h.form;
    for (int i = 0; i < 5; ++i) f.Jouez(i).SetVisible(false);
    f.SSAlertes->SetCaption("unchanged");
    f.NbTirées = stage;
    f.CartesGardées(2) = true;
    f.RangMain = 3;
    f.GardeCartes();
    EXPECT_EQ(f.SSAlertes->Caption(), "unchanged");
    EXPECT_EQ(Kept(f), "00100");
    EXPECT_FALSE(f.Jouez(0).Visible());
    EXPECT_EQ(f.Jouez(0).Caption(), "JOUEZ");
  }
}

// The grid: neither option selected and JEU 2 in force. Only made hands and jokers are kept,
// and the hold words of JEU 1 are not touched.
struct GridCase {
  const char* hand;
  const char* kept;
};
const GridCase kGrid[] = {
    {"2H 5H KC 9H JH", "00000"},  // four to a flush: no draw is chased
    {"9C 2C 3D 4H 5S", "00000"},  // four to a straight
    {"2C KS 5D AC 9H", "00000"},  // lone king and ace
    {"KC 3H 7S 9C KH", "10001"},  // pair of kings
    {"KC 3D AH 7S X1", "00101"},  // ace and joker
    {"5C 9H 5D JS 2C", "10100"},  // low pair
    {"2C 5D X1 9H JH", "00100"},  // the joker alone
    {"9C 6D 7H 8S 5C", "11111"},  // straight
    {"6C KC 6D 6H 6S", "10111"},  // four of a kind
};

TEST(HoldsSelection, GridLineKeepsOnlyMadeHandsAndJokers) {
  for (const auto& c : kGrid) {
    SCOPED_TRACE(c.hand);
    Harness h;
    JeuPoker& f = *h.form;
    f.ParesseOui->SetBevelWidth(3);
    f.ParesseNon->SetBevelWidth(3);
    f.Jeu3D->SetBevelWidth(1);
    f.JeuSimple->SetBevelWidth(7);
    const auto cards = holds::Hand(c.hand);
    // The line is row 2 of the grid: positions 10..14.
    f.NbTirées = 25;
    for (int j = 0; j < 5; ++j) {
      f.IndexLigne(j) = static_cast<Byte>(10 + j);
      f.CartesTirage(10 + j) = static_cast<Byte>(cards[j]);
      f.MainTriée(j) = static_cast<Byte>(cards[j]);
    }
    f.Résultat();
    f.GardeCartes();
    EXPECT_EQ(Kept(f), c.kept);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(f.Jouez(i).Caption(), "JOUEZ");
  }
}

TEST(HoldsSelection, ClassTenRulesNeedTheAutomaticOption) {
  // JEU 1 with both buttons released, as after a visit to JEU 2 cannot leave it, still
  // chases no draw and writes no hold words.
  Harness h;
  JeuPoker& f = *h.form;
  f.ParesseOui->SetBevelWidth(3);
  f.ParesseNon->SetBevelWidth(3);
  FirstDrawing(f, "2H 5H KC 9H JH");
  EXPECT_EQ(HeldWords(f), "00000");
  EXPECT_EQ(f.Jouez(0).Caption(), "JOUEZ");
  EXPECT_EQ(f.SSAlertes->Caption(), "SECOND DRAWING : Click on PLAY or press the 'Space' key.");
}

}  // namespace
