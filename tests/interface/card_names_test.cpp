// The card names that the double-up's messages are written from, in both languages: rebuilt
// by each language switch, and read from the stored language byte at start.
#include <gtest/gtest.h>

#include <QFile>

#include "tests/support/harness.h"

namespace {

TEST(CardNames, CardNamesInBothLanguages) {
  Harness h;
  JeuPoker& f = *h.form;
  f.Langue = 2;
  f.ModifieLangue();
  EXPECT_EQ(f.NomsValeurs(0), "2 of Clubs");
  EXPECT_EQ(f.NomsValeurs(8), "10 of Clubs");
  EXPECT_EQ(f.NomsValeurs(22), "JACK of Diamonds");
  EXPECT_EQ(f.NomsValeurs(36), "QUEEN of Hearts");
  EXPECT_EQ(f.NomsValeurs(50), "KING of Spades");
  EXPECT_EQ(f.NomsValeurs(51), "ACE of Spades");
  f.Langue = 1;  // French during a switch
  f.ModifieLangue();
  EXPECT_EQ(f.NomsValeurs(0), "2 de Trèfle");
  EXPECT_EQ(f.NomsValeurs(22), "VALET de Carreau");
  EXPECT_EQ(f.NomsValeurs(36), "DAME de Coeur");
  EXPECT_EQ(f.NomsValeurs(50), "ROI de Pique");
  EXPECT_EQ(f.NomsValeurs(12), "AS de Trèfle");
  f.Langue = 0;  // English during a switch
  f.ModifieLangue();
  EXPECT_EQ(f.NomsValeurs(25), "ACE of Diamonds");
}

TEST(CardNames, StoredLanguageGivesTheNamesAtStart) {
  Harness h(false);
  QFile ini(h.dir.filePath("Ini.dat"));
  ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
  ini.write("\x03", 1);
  ini.close();
  h.form->Form_Load();
  EXPECT_EQ(h.Drive1("var NomsValeurs(49)"), "NomsValeurs(49)=DAME de Pique");
}

}  // namespace
