// Start-up, the settings file Ini.dat and the end of the program.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "tests/support/harness.h"

namespace {
void WriteFile(const QString& path, const QByteArray& bytes) {
  QFile f(path);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
  f.write(bytes);
}

QByteArray ReadFile(const QString& path) {
  QFile f(path);
  if (!f.open(QIODevice::ReadOnly)) return {};
  return f.readAll();
}

// A form whose program directory holds an Ini.dat with these bytes, then started.
struct Started {
  explicit Started(const QByteArray* ini) : h(false) {
    if (ini) WriteFile(h.dir.filePath("Ini.dat"), *ini);
    h.form->Form_Load();
  }
  Harness h;
};
}  // namespace

TEST(Startup, NoIniDatCreatesItEmptyAndLeavesLangueZero) {
  Harness h(false);
  ASSERT_FALSE(QFile::exists(h.dir.filePath("Ini.dat")));
  h.form->Form_Load();
  EXPECT_TRUE(QFile::exists(h.dir.filePath("Ini.dat")));
  EXPECT_EQ(ReadFile(h.dir.filePath("Ini.dat")).size(), 0);
  EXPECT_EQ(h.form->Langue, 0);
  EXPECT_EQ(h.Drive1("file Ini.dat"), "Ini.dat=");
  // Captions of the form stay French, as designed.
  EXPECT_EQ(h.form->Maintitre(0).Caption(), " 1 PAIRE ROI OU AS");
  EXPECT_EQ(h.form->MainsPayantes->Caption(), "MAINS PAYANTES");
}

TEST(Startup, EveryStoredByteIsReadIntoLangue) {
  for (int b = 0; b <= 255; ++b) {
    const QByteArray bytes(1, static_cast<char>(b));
    Started s(&bytes);
    EXPECT_EQ(s.h.form->Langue, b) << b;
    // The file is only read: it keeps its byte.
    EXPECT_EQ(ReadFile(s.h.dir.filePath("Ini.dat")), bytes);
  }
}

TEST(Startup, OnlyTheFirstOfSeveralBytesIsRead) {
  const QByteArray bytes("\x02\x03\x07", 3);
  Started s(&bytes);
  EXPECT_EQ(s.h.form->Langue, 2);
}

TEST(Startup, EmptyIniDatLeavesLangueZero) {
  const QByteArray empty;
  Started s(&empty);
  EXPECT_EQ(s.h.form->Langue, 0);
}

TEST(Startup, DirectoryNamedIniDatIsSkippedAndTheGameGoesOn) {
  Harness h(false);
  ASSERT_TRUE(QDir(h.dir.path()).mkdir("Ini.dat"));
  h.form->Form_Load();
  EXPECT_EQ(h.form->Langue, 0);
  // The rest of start-up ran: the cards are down, the game is ready.
  EXPECT_EQ(h.form->Deal(0).GetPicture(), h.form->Cartes(54).GetPicture());
  EXPECT_EQ(h.form->NbJokers, 2);
  EXPECT_EQ(h.form->TailleJeu, 54);
  EXPECT_TRUE(h.form->isVisible());
  EXPECT_EQ(h.Drive1("file Ini.dat"), "Ini.dat absent");
}

TEST(Startup, LanguageClickWritesOneByteAndTheNextStartReadsIt) {
  QString dir;
  {
    Harness h;
    h.dir.setAutoRemove(false);
    dir = h.dir.path();
    h.Drive({"click SSLangue(0)"});
    EXPECT_EQ(h.form->Langue, 2);
    EXPECT_EQ(h.Drive1("file Ini.dat"), "Ini.dat=02");
    h.Drive({"click SSLangue(1)"});
    EXPECT_EQ(h.form->Langue, 3);
    EXPECT_EQ(h.Drive1("file Ini.dat"), "Ini.dat=03");
    EXPECT_EQ(h.form->focusWidget(), h.form->Tirage);
  }
  {
    ScriptedPlatform platform;
    SetPlatform(&platform);
    JeuPoker form(dir);
    form.Form_Load();
    EXPECT_EQ(form.Langue, 3);
    SetPlatform(nullptr);
  }
  QDir(dir).removeRecursively();
}

TEST(Startup, ReadOnlyDirectoryAtLanguageClickIsRuntimeError75) {
  EXPECT_EXIT(
      {
        Harness h;
        h.platform.readOnlyFiles = true;
        h.Drive({"click SSLangue(1)"});
      },
      ::testing::ExitedWithCode(3), "run-time error 75");
}

TEST(Startup, UnwritableIniDatAtLanguageClickIsRuntimeError75) {
  EXPECT_EXIT(
      {
        Harness h(false);
        QDir(h.dir.path()).mkdir("Ini.dat");
        h.form->Form_Load();
        h.Drive({"click SSLangue(0)"});
      },
      ::testing::ExitedWithCode(3), "run-time error 75");
}

TEST(Startup, LeftoverCardPicturesAreDeletedFromTheStartDirectory) {
  QTemporaryDir start;
  const QStringList doomed = {" 1.bmp", " 9.bmp", "10.bmp", "12.bmp", "54.bmp"};
  const QStringList kept = {"1.bmp", "9.bmp", "55.bmp", " 0.bmp", "120.bmp", "12.BMP2"};
  for (const auto& n : doomed + kept) WriteFile(start.filePath(n), "x");
  Harness h(false);
  QDir::setCurrent(start.path());
  h.form->Form_Load();
  for (const auto& n : doomed) EXPECT_FALSE(QFile::exists(start.filePath(n))) << n.toStdString();
  for (const auto& n : kept) EXPECT_TRUE(QFile::exists(start.filePath(n))) << n.toStdString();
  // Then the program changed to its own directory.
  EXPECT_EQ(QDir::current().canonicalPath(), QDir(h.dir.path()).canonicalPath());
}

TEST(Startup, FormSizeAndCentredPanels) {
  Harness h;
  EXPECT_EQ(h.form->width() * 15, 15360);
  EXPECT_EQ(h.form->height() * 15, 11520);
  EXPECT_EQ(h.form->NonConnectéPic->Left(), (15360 - 7095) / 2 / 15 * 15);
  EXPECT_EQ(h.form->NonConnectéPic->Top(), (11520 - 3615) / 2 / 15 * 15);
  // Centred at (6000, 4500), kept in whole pixels.
  EXPECT_EQ(h.form->SSAides->Top(), 180);  // 4500 - 8655 / 2 = 173 twips
  EXPECT_EQ(h.form->SSAides->Left(), 0);   // 6000 - 12015 / 2 = -7 twips
  EXPECT_FALSE(h.form->SSAides->Visible());
  EXPECT_TRUE(h.form->AffichageImmédiat);
  EXPECT_EQ(h.form->NbJokers, 2);
  EXPECT_EQ(h.form->TailleJeu, 54);
}

TEST(Startup, FinAndClosingTheWindowDoTheSame) {
  Harness a;
  a.Drive({"click Fin"});
  EXPECT_TRUE(a.ended);
  Harness b;
  b.Drive({"close"});
  EXPECT_TRUE(b.ended);
  // The pieces are drawn at random; the commands are the same in kind and number.
  EXPECT_EQ(a.platform.mciCommands.size(), b.platform.mciCommands.size());
  ASSERT_FALSE(a.platform.mciCommands.empty());
  EXPECT_EQ(b.platform.mciCommands.back(), "close sequence");
  EXPECT_EQ(a.platform.mciCommands.back(), "close sequence");
  // The mode found at start is set again, though it never changed.
  for (const Harness* h : {&a, &b}) {
    ASSERT_EQ(h->platform.displayChanges.size(), 1u);
    EXPECT_EQ(h->platform.displayChanges[0].width, 1024);
    EXPECT_EQ(h->platform.displayChanges[0].height, 768);
  }
}

TEST(Startup, FinSavesNothing) {
  Harness h;
  h.Drive({"set Capital 999", "click Fin"});
  EXPECT_TRUE(h.ended);
  EXPECT_EQ(ReadFile(h.dir.filePath("Ini.dat")).size(), 0);
}

TEST(Startup, StoredEnglishGivesEnglishAlertsHoldWordsAndCardNames) {
  const QByteArray en("\x02", 1);
  Started s(&en);
  auto& f = *s.h.form;
  EXPECT_EQ(f.Langue, 2);
  EXPECT_EQ(f.SSAlertes->Caption(), "FIRST DRAWING : Click on PLAY or press the 'Space' key.");
  EXPECT_EQ(f.NomsValeurs(12), "ACE of Clubs");
  s.h.Drive({"draw 0 14 28 42 5", "click Jouer"});
  EXPECT_TRUE(f.Jouez(0).Caption() == "HOLD" || f.Jouez(0).Caption() == "REJECT");
}

TEST(Startup, StoredFrenchGivesFrenchAlertsHoldWordsAndCardNames) {
  const QByteArray fr("\x03", 1);
  Started s(&fr);
  auto& f = *s.h.form;
  EXPECT_EQ(f.Langue, 3);
  EXPECT_EQ(f.SSAlertes->Caption(), "PREMIER TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.");
  EXPECT_EQ(f.NomsValeurs(12), QString::fromUtf8("AS de Trèfle"));
  s.h.Drive({"draw 0 14 28 42 5", "click Jouer"});
  EXPECT_TRUE(f.Jouez(0).Caption() == "GARDER" || f.Jouez(0).Caption() == "JETER");
}

TEST(Startup, NoStoredByteGivesFrenchCaptionsWithEnglishAlertsAndFrenchPlayFace) {
  Harness h;
  auto& f = *h.form;
  EXPECT_EQ(f.Langue, 0);
  EXPECT_EQ(f.MainsPayantes->Caption(), "MAINS PAYANTES");
  EXPECT_EQ(f.Jouez(0).Caption(), "JOUEZ");
  EXPECT_EQ(f.SSAlertes->Caption(), "FIRST DRAWING : Click on PLAY or press the 'Space' key.");
  EXPECT_EQ(f.JouerImage(0).GetPicture(), f.JouerImage(1).GetPicture());
  h.Drive({"draw 0 14 28 42 5", "click Jouer"});
  EXPECT_TRUE(f.Jouez(0).Caption() == "HOLD" || f.Jouez(0).Caption() == "REJECT");
  // The PLAY face stays French: only a stored 2 gives the English face.
  EXPECT_EQ(f.JouerImage(0).GetPicture(), f.JouerImage(1).GetPicture());
}

TEST(Startup, StatisticsPanelIsAtRestForTwoJokers) {
  Harness h;
  EXPECT_EQ(h.form->UnSur->Caption(), "?/3162510");
  EXPECT_FALSE(h.form->Fractions(0).Caption().isEmpty());
}

TEST(Focus, TirageKeepsTheFocusAfterEveryClick) {
  Harness h;
  auto& f = *h.form;
  const QStringList clicks = {"click Jouer",       "click Deal(0)",    "click Deal(4)",    "click Plus",
                              "click Moins",       "click Jouer",      "click ParesseNon", "click ParesseOui",
                              "click SSLangue(0)", "click SSLangue(1)"};
  h.Drive({"draw 0 14 28 42 5"});
  for (const auto& c : clicks) {
    h.Drive({c});
    EXPECT_EQ(f.focusWidget(), f.Tirage) << c.toStdString();
  }
  // And Space still plays.
  const int before = f.NbTirées;
  h.Drive({"key 32"});
  EXPECT_NE(f.NbTirées, before);
}
