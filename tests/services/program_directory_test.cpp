// Where the game reads its data and keeps Ini.dat: beside the executable in the build tree;
// installed, the data where it was installed and Ini.dat in the player's own directory.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <optional>

#include "services/program_dir.h"
#include "tests/support/harness.h"

namespace {

// Sets an environment variable for the life of the object, and puts the old value back.
class EnvironmentVariable {
 public:
  EnvironmentVariable(const char* name, const std::optional<QString>& value) : name_(name) {
    if (qEnvironmentVariableIsSet(name)) old_ = qEnvironmentVariable(name);
    if (value)
      qputenv(name, value->toLocal8Bit());
    else
      qunsetenv(name);
  }
  ~EnvironmentVariable() {
    if (old_)
      qputenv(name_, old_->toLocal8Bit());
    else
      qunsetenv(name_);
  }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

 private:
  const char* name_;
  std::optional<QString> old_;
};

// A game installed under `root`/usr as the package lays it out: the data of the build's
// program directory in usr/share/games/talvero, and (nothing but) the directory usr/games.
QString InstallUnder(const QString& root) {
  const QString data = root + QStringLiteral("/usr/share/games/talvero");
  EXPECT_TRUE(QDir().mkpath(data));
  EXPECT_TRUE(QDir().mkpath(root + QStringLiteral("/usr/games")));
  QDirIterator it(QStringLiteral(TALVERO_PROGRAM_DIR), {QStringLiteral("*.mid"), QStringLiteral("*.htm")}, QDir::Files);
  while (it.hasNext()) {
    const QString p = it.next();
    QFile::copy(p, QDir(data).filePath(QFileInfo(p).fileName()));
  }
  return root + QStringLiteral("/usr/games");
}

QByteArray FileBytes(const QString& path) {
  QFile f(path);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("absent");
}

// The game as app/main.cpp starts it, from an executable in `executableDir`, on the scripted
// platform; it clicks a language button when `langue` is 0 (English) or 1 (French) and returns
// the language read at start.
struct Game {
  explicit Game(const QString& executableDir) : dirs(LocateProgramDirectories(executableDir)) {
    TestApp();
    SetPlatform(&platform);
    form = std::make_unique<JeuPoker>(dirs.program, dirs.data);
    form->EndProgram = [] {};
    form->Form_Load();
    QCoreApplication::processEvents();
  }
  ~Game() {
    form.reset();
    SetPlatform(nullptr);
    QDir::setCurrent(QDir::tempPath());
  }
  ProgramDirectories dirs;
  ScriptedPlatform platform;
  std::unique_ptr<JeuPoker> form;
};

TEST(ProgramDirectory, InTheBuildTreeEverythingIsBesideTheExecutable) {
  QTemporaryDir exe;
  const ProgramDirectories dirs = LocateProgramDirectories(exe.path());
  EXPECT_FALSE(dirs.installed);
  EXPECT_EQ(dirs.program, QDir::cleanPath(exe.path()));
  EXPECT_EQ(dirs.data, QDir::cleanPath(exe.path()));
  EXPECT_TRUE(dirs.problem.isEmpty());
}

TEST(ProgramDirectory, TheBuiltProgramDirectoryIsNoInstalledLayout) {
  const ProgramDirectories dirs = LocateProgramDirectories(QStringLiteral(TALVERO_PROGRAM_DIR));
  EXPECT_FALSE(dirs.installed);
  EXPECT_EQ(dirs.program, QDir::cleanPath(QStringLiteral(TALVERO_PROGRAM_DIR)));
}

TEST(ProgramDirectory, InstalledTheDataIsBesideAndIniDatIsInTheHome) {
  QTemporaryDir root, home;
  const QString games = InstallUnder(root.path());
  EnvironmentVariable h("HOME", home.path());
  EnvironmentVariable x("XDG_DATA_HOME", std::nullopt);
  const ProgramDirectories dirs = LocateProgramDirectories(games);
  EXPECT_TRUE(dirs.installed);
  EXPECT_EQ(dirs.data, root.path() + QStringLiteral("/usr/share/games/talvero"));
  EXPECT_EQ(dirs.program, home.path() + QStringLiteral("/.local/share/talvero"));
  EXPECT_TRUE(QFileInfo(dirs.program).isDir()) << "the player's directory is made on first start";
  EXPECT_TRUE(dirs.problem.isEmpty());
}

TEST(ProgramDirectory, XdgDataHomeIsHonouredWhenAbsolute) {
  QTemporaryDir root, home, xdg;
  const QString games = InstallUnder(root.path());
  EnvironmentVariable h("HOME", home.path());
  {
    EnvironmentVariable x("XDG_DATA_HOME", xdg.path() + QStringLiteral("/data"));
    EXPECT_EQ(LocateProgramDirectories(games).program, xdg.path() + QStringLiteral("/data/talvero"));
    EXPECT_TRUE(QFileInfo(xdg.path() + QStringLiteral("/data/talvero")).isDir());
  }
  {
    EnvironmentVariable x("XDG_DATA_HOME", QStringLiteral("relative/data"));
    EXPECT_EQ(LocateProgramDirectories(games).program, home.path() + QStringLiteral("/.local/share/talvero"));
  }
  {
    EnvironmentVariable x("XDG_DATA_HOME", QString());
    EXPECT_EQ(LocateProgramDirectories(games).program, home.path() + QStringLiteral("/.local/share/talvero"));
  }
}

TEST(ProgramDirectory, InstalledGameFindsItsPiecesAndPagesAndWritesNothingThere) {
  QTemporaryDir root, home;
  const QString games = InstallUnder(root.path());
  EnvironmentVariable h("HOME", home.path());
  EnvironmentVariable x("XDG_DATA_HOME", std::nullopt);
  const QString data = root.path() + QStringLiteral("/usr/share/games/talvero");
  const QStringList before = QDir(data).entryList(QDir::Files, QDir::Name);
  {
    Game game(games);
    ASSERT_FALSE(game.form->FileMidItems.isEmpty());
    // The piece is opened by its full path, from the player's directory.
    const QString open = QStringLiteral("open %1/%2 alias sequence").arg(data, game.form->MorceauCourant);
    EXPECT_NE(std::find(game.platform.mciCommands.begin(), game.platform.mciCommands.end(), open),
              game.platform.mciCommands.end())
        << open.toStdString();
    EXPECT_EQ(game.form->AdresseWeb(QStringLiteral("pub0.htm")), data + QStringLiteral("/pub0.htm"));
    EXPECT_EQ(QDir::currentPath(), home.path() + QStringLiteral("/.local/share/talvero"));
    EXPECT_TRUE(QFileInfo::exists(home.path() + QStringLiteral("/.local/share/talvero/Ini.dat")));
    game.form->SSLangue_Click(0);
  }
  EXPECT_EQ(FileBytes(home.path() + QStringLiteral("/.local/share/talvero/Ini.dat")), QByteArray("\x02", 1));
  EXPECT_EQ(QDir(data).entryList(QDir::Files, QDir::Name), before);
}

TEST(ProgramDirectory, TwoPlayersKeepTheirOwnLanguage) {
  QTemporaryDir root, anne, bruno;
  const QString games = InstallUnder(root.path());
  EnvironmentVariable x("XDG_DATA_HOME", std::nullopt);
  {
    EnvironmentVariable h("HOME", anne.path());
    Game game(games);
    game.form->SSLangue_Click(0);  // English
  }
  {
    EnvironmentVariable h("HOME", bruno.path());
    Game game(games);
    EXPECT_EQ(game.form->Langue, 0) << "a first start of its own";
    game.form->SSLangue_Click(1);  // French
  }
  EXPECT_EQ(FileBytes(anne.path() + QStringLiteral("/.local/share/talvero/Ini.dat")), QByteArray("\x02", 1));
  EXPECT_EQ(FileBytes(bruno.path() + QStringLiteral("/.local/share/talvero/Ini.dat")), QByteArray("\x03", 1));
  {
    EnvironmentVariable h("HOME", anne.path());
    Game game(games);
    EXPECT_EQ(game.form->Langue, 2);
  }
  {
    EnvironmentVariable h("HOME", bruno.path());
    Game game(games);
    EXPECT_EQ(game.form->Langue, 3);
  }
  EXPECT_FALSE(QFileInfo::exists(root.path() + QStringLiteral("/usr/share/games/talvero/Ini.dat")));
  EXPECT_FALSE(QFileInfo::exists(root.path() + QStringLiteral("/usr/games/Ini.dat")));
}

// A home where nothing can be made (a file, not a directory: this holds for root too).
TEST(ProgramDirectory, AHomeWhereNothingCanBeMadeGivesOneLineAndTheGameGoesOn) {
  QTemporaryDir root, work;
  const QString games = InstallUnder(root.path());
  const QString home = work.filePath(QStringLiteral("home"));
  QFile file(home);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.close();
  EnvironmentVariable h("HOME", home);
  EnvironmentVariable x("XDG_DATA_HOME", std::nullopt);
  const ProgramDirectories dirs = LocateProgramDirectories(games);
  EXPECT_TRUE(dirs.installed);
  EXPECT_EQ(dirs.program, home + QStringLiteral("/.local/share/talvero"));
  EXPECT_TRUE(dirs.problem.contains(dirs.program)) << dirs.problem.toStdString();
  EXPECT_FALSE(dirs.problem.contains('\n'));
  // The game starts; the language click then cannot keep its byte, as with any directory that
  // cannot be written.
  QDir::setCurrent(work.path());
  EXPECT_EXIT(
      {
        Game game(games);
        if (!game.form->isVisible()) std::exit(1);
        game.form->SSLangue_Click(0);
      },
      ::testing::ExitedWithCode(3), "run-time error 75");
  QDir::setCurrent(QDir::tempPath());
}

}  // namespace
