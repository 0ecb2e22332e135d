// The hint table in both languages, read by key through talvero-drive, and the name tables
// (hands, suits, cards) that each language switch rebuilds.
#include "tests/interface/speech_helpers.h"

using namespace speech;

namespace {

QString VarValue(Harness& h, const QString& name) {
  const QString line = h.Drive1("var " + name);
  const QString head = name + "=";
  EXPECT_TRUE(line.startsWith(head)) << line.toStdString();
  return line.mid(head.size()).replace("\\r", "\r").replace("\\n", "\n").replace("\\\\", "\\");
}

class MessagesTable : public ::testing::TestWithParam<Lang> {};

// Both languages are in the table from the start, whatever the language in force: French at
// 1..71, English at 101..171, and every other entry empty (34 to 36, 65 to 68, 99, the
// English 138 to 141, 0 and 201 before any hint).
TEST_P(MessagesTable, EveryEntryHoldsItsText) {
  Harness h;
  Choose(h, GetParam());
  EXPECT_EQ(HintKeys().size(), 64u);
  for (int i = 0; i <= 201; ++i) {
    QString expected;
    if (i >= 1 && i <= 71) expected = Hint(i, Lang::French);
    if (i >= 101 && i <= 171) expected = Hint(i - 100, Lang::English);
    EXPECT_EQ(VarValue(h, QStringLiteral("Messages(%1)").arg(i)), expected) << "entry " << i;
  }
}

TEST_P(MessagesTable, EmptyKeysAreTheListedOnes) {
  Harness h;
  Choose(h, GetParam());
  for (int key : {34, 35, 36, 65, 66, 67, 68, 99}) {
    EXPECT_EQ(VarValue(h, QStringLiteral("Messages(%1)").arg(key)), "") << key;
    EXPECT_EQ(VarValue(h, QStringLiteral("Messages(%1)").arg(100 + key)), "") << key;
  }
  // The French side has 38 to 41, the English one not.
  for (int key = 38; key <= 41; ++key) {
    EXPECT_NE(VarValue(h, QStringLiteral("Messages(%1)").arg(key)), "") << key;
    EXPECT_EQ(VarValue(h, QStringLiteral("Messages(%1)").arg(100 + key)), "") << key;
  }
}

TEST_P(MessagesTable, LangueVarPicksTheHalf) {
  Harness h;
  Choose(h, GetParam());
  EXPECT_EQ(h.Drive1("var LangueVar"), IsEnglish(GetParam()) ? "LangueVar=100" : "LangueVar=0");
  EXPECT_EQ(h.Drive1("var Langue"), IsEnglish(GetParam()) ? "Langue=2" : "Langue=3");
}

TEST_P(MessagesTable, NameTablesFollowTheLanguage) {
  Harness h;
  const Lang l = GetParam();
  // From the other language first, so that every table is really rebuilt.
  Choose(h, Other(l));
  Choose(h, l);
  for (int s = 0; s <= 3; ++s) EXPECT_EQ(VarValue(h, QStringLiteral("NomsCouleurs(%1)").arg(s)), SuitName(s, l)) << s;
  for (int c = 0; c <= 51; ++c) EXPECT_EQ(VarValue(h, QStringLiteral("NomsValeurs(%1)").arg(c)), CardName(c, l)) << c;
  for (int r = 0; r <= 10; ++r) EXPECT_EQ(VarValue(h, QStringLiteral("NomsMains(%1)").arg(r)), HandName(r, l)) << r;
}

TEST(NameTables, SomeNamesAsTheyRead) {
  Harness h;
  Choose(h, Lang::French);
  EXPECT_EQ(VarValue(h, "NomsValeurs(9)"), "VALET de Trèfle");
  EXPECT_EQ(VarValue(h, "NomsValeurs(51)"), "AS de Pique");
  EXPECT_EQ(VarValue(h, "NomsValeurs(21)"), "10 de Carreau");
  Choose(h, Lang::English);
  EXPECT_EQ(VarValue(h, "NomsValeurs(37)"), "KING of Hearts");
  EXPECT_EQ(VarValue(h, "NomsValeurs(0)"), "2 of Clubs");
  EXPECT_EQ(VarValue(h, "NomsMains(3)"), "Straight");
}

// The grid's line names are rebuilt from MainsLignes at a switch, for the lines in play only;
// their amounts stay.
TEST_P(MessagesTable, GridLineNamesAreRelabelled) {
  Harness h;
  const Lang l = GetParam();
  Choose(h, Other(l));
  options::ToGrid(h);
  options::Click(h, "Plus5");
  options::Click(h, "Plus5");
  ASSERT_EQ(h.form->Niveau, 3);
  options::FirstDrawing2(h, options::kGridFourKings);
  JeuPoker& f = *h.form;
  QStringList amounts;
  for (int i = 0; i <= 12; ++i) amounts << f.Gains5(i).Caption();
  Choose(h, l);
  for (int i = 0; i <= 2; ++i) {
    SCOPED_TRACE("line " + std::to_string(i + 1));
    EXPECT_EQ(f.Mains5(i).Caption(), HandName(f.MainsLignes(i), l));
  }
  EXPECT_EQ(f.Mains5(0).Caption(), HandName(6, l));
  EXPECT_EQ(f.Mains5(3).Caption(), "");
  EXPECT_EQ(f.Mains5(12).Caption(), "GAINS");
  QStringList after;
  for (int i = 0; i <= 12; ++i) after << f.Gains5(i).Caption();
  EXPECT_EQ(after, amounts);
}

// A name is changed only where a caption stands: an empty line label stays empty.
TEST_P(MessagesTable, EmptyLineLabelsStayEmpty) {
  Harness h;
  options::ToGrid(h);
  JeuPoker& f = *h.form;
  ASSERT_EQ(f.Mains5(0).Caption(), "");
  Choose(h, GetParam());
  EXPECT_EQ(f.Mains5(0).Caption(), "");
}

TEST_P(MessagesTable, CaptionsOfTheTableAndButtons) {
  Harness h;
  const Lang l = GetParam();
  Choose(h, Other(l));
  Choose(h, l);
  JeuPoker& f = *h.form;
  const bool en = IsEnglish(l);
  static const char* const fr[12] = {
      " 1 PAIRE ROI OU AS",   " 2 PAIRES", " BRELAN", " QUINTE", " COULEUR", " FULL", " CARRE", " QUINTE FLUSH",
      " QUINTE FLUSH ROYALE", " POKER",    " RIEN",   " MIEUX"};
  static const char* const eng[12] = {
      " 1 PAIR of KINGS or ACES", " 2 PAIRS",     " 3 OF KIND", " STRAIGHT", " FLUSH",      " FULL HOUSE", " 4 OF KIND",
      " STRAIGHT FLUSH",          " ROYAL FLUSH", " 5 OF KIND", " NOTHING",  " BETTER HAND"};
  for (int i = 0; i <= 11; ++i) EXPECT_EQ(f.Maintitre(i).Caption(), QString::fromUtf8(en ? eng[i] : fr[i])) << i;
  EXPECT_EQ(f.MainsPayantes->Caption(), en ? "WINNER HANDS" : "MAINS PAYANTES");
  EXPECT_EQ(f.Jouer->Caption(), en ? "PLAY" : "JOUER");
  for (int i = 0; i <= 4; ++i) EXPECT_EQ(f.Jouez(i).Caption(), en ? "PLAY" : "JOUEZ");
  EXPECT_EQ(f.Jouez5->Caption(), en ? "PLAY" : "JOUEZ");
  EXPECT_EQ(f.Quitte1X5->Caption(), en ? "QUIT" : "QUITTE");
  EXPECT_EQ(f.Quitte5X5->Caption(), en ? "QUIT" : "QUITTE");
  EXPECT_EQ(f.Double1X5->Caption(), "DOUBLE");
  EXPECT_EQ(f.Double5X5->Caption(), "DOUBLE");
  EXPECT_EQ(f.Conseils5->Caption(), en ? "HELP" : "CONSEILS");
  EXPECT_EQ(f.AnnuleConseils5->Caption(), en ? "CANCEL" : "ANNULE");
  EXPECT_EQ(f.Mains5(12).Caption(), "GAINS");
}

INSTANTIATE_TEST_SUITE_P(Languages, MessagesTable, ::testing::Values(Lang::English, Lang::French), LangName);

}  // namespace
