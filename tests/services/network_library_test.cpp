// The network library: a game without a publisher's server never loads the network stack; a
// publisher's page loads the library; without the library the page shows its notice, one
// line on the standard error says why, and the game goes on.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "services/network.h"
#include "tests/support/harness.h"

namespace {

// talvero-drive, kept running so that its memory map can be read between commands.
class RunningDrive {
 public:
  explicit RunningDrive(const QString& program = QStringLiteral(TALVERO_DRIVE), const QString& publisher = {}) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("TALVERO_PUBLISHER"));
    if (!publisher.isEmpty()) env.insert(QStringLiteral("TALVERO_PUBLISHER"), publisher);
    process_.setProcessEnvironment(env);
    process_.start(program, QStringList{});
    EXPECT_TRUE(process_.waitForStarted(10000));
  }
  ~RunningDrive() {
    process_.closeWriteChannel();
    process_.waitForFinished(60000);
  }
  RunningDrive(const RunningDrive&) = delete;
  RunningDrive& operator=(const RunningDrive&) = delete;

  // Sends a command that prints one line, and returns that line.
  QString Ask(const QString& command) {
    process_.write((command + '\n').toUtf8());
    while (!process_.canReadLine())
      if (!process_.waitForReadyRead(30000)) return {};
    return QString::fromUtf8(process_.readLine()).trimmed();
  }
  void Send(const QString& command) { process_.write((command + '\n').toUtf8()); }
  // The files the process has mapped, libraries included.
  QString Maps() {
    QFile maps(QStringLiteral("/proc/%1/maps").arg(process_.processId()));
    return maps.open(QIODevice::ReadOnly) ? QString::fromUtf8(maps.readAll()) : QString();
  }
  QString Errors() {
    process_.closeWriteChannel();
    process_.waitForFinished(60000);
    return QString::fromUtf8(process_.readAllStandardError());
  }

 private:
  QProcess process_;
};

// The panel's text once it is no longer empty.
QString PageText(RunningDrive& drive) {
  QString line;
  for (int i = 0; i < 200; ++i) {
    line = drive.Ask(QStringLiteral("get Pub0Web.Text"));
    if (line != QStringLiteral("Pub0Web.Text=")) break;
    drive.Send(QStringLiteral("wait 50"));
  }
  return line;
}

TEST(NetworkLibrary, AGameWithoutAPublishersServerNeverLoadsTheNetworkStack) {
  RunningDrive drive;
  ASSERT_TRUE(drive.Ask(QStringLiteral("get Pub0Web.Address")).endsWith(QStringLiteral("pub0.htm")));
  drive.Send(QStringLiteral("click Jouer"));
  drive.Send(QStringLiteral("net off"));
  drive.Send(QStringLiteral("tick NonConnectéTimer"));
  ASSERT_EQ(drive.Ask(QStringLiteral("get NonConnectéPic.Visible")), QStringLiteral("NonConnectéPic.Visible=-1"));
  const QString maps = drive.Maps();
  ASSERT_FALSE(maps.isEmpty());
  EXPECT_TRUE(maps.contains(QStringLiteral("libQt6Widgets")));
  EXPECT_FALSE(maps.contains(QStringLiteral("libQt6Network")));
  EXPECT_FALSE(maps.contains(QLatin1String(kNetworkLibrary)));
}

TEST(NetworkLibrary, APublishersPageLoadsTheLibraryBesideTheProgram) {
  // Nothing listens on the discard port: the page gets its notice.
  RunningDrive drive(QStringLiteral(TALVERO_DRIVE), QStringLiteral("http://127.0.0.1:9"));
  EXPECT_TRUE(PageText(drive).contains(QStringLiteral("Page indisponible")));
  const QString maps = drive.Maps();
  EXPECT_TRUE(maps.contains(QLatin1String(kNetworkLibrary)));
  EXPECT_TRUE(maps.contains(QStringLiteral("libQt6Network")));
  EXPECT_FALSE(drive.Errors().contains(QStringLiteral("talvero:")));
}

TEST(NetworkLibrary, WithoutTheLibraryThePageShowsItsNoticeAndOneLineSaysWhy) {
  // The tool and its program directory copied where no library is beside them.
  QTemporaryDir dir;
  ASSERT_TRUE(dir.isValid());
  const QDir root(dir.path());
  ASSERT_TRUE(root.mkpath(QStringLiteral("bin/talvero")));
  const QString tool = root.filePath(QStringLiteral("bin/talvero-drive"));
  ASSERT_TRUE(QFile::copy(QStringLiteral(TALVERO_DRIVE), tool));
  QFile::setPermissions(tool, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  for (const QString& name : QDir(QStringLiteral(TALVERO_PROGRAM_DIR)).entryList({"*.htm", "*.mid"}, QDir::Files))
    ASSERT_TRUE(QFile::copy(QDir(QStringLiteral(TALVERO_PROGRAM_DIR)).filePath(name),
                            root.filePath(QStringLiteral("bin/talvero/") + name)));

  RunningDrive drive(tool, QStringLiteral("http://127.0.0.1:9"));
  EXPECT_TRUE(PageText(drive).contains(QStringLiteral("Page indisponible")));
  EXPECT_FALSE(drive.Maps().contains(QStringLiteral("libQt6Network")));
  // The game goes on: a deal is played.
  drive.Send(QStringLiteral("click Jouer"));
  EXPECT_EQ(drive.Ask(QStringLiteral("var NbTirées")), QStringLiteral("NbTirées=5"));
  const QStringList errors = drive.Errors().split('\n').filter(QStringLiteral("talvero:"));
  ASSERT_EQ(errors.size(), 1);
  EXPECT_TRUE(
      errors[0].startsWith(QStringLiteral("talvero: the network library libtalvero-network.so cannot be "
                                          "loaded (not found)")))
      << errors[0].toStdString();
}

}  // namespace
