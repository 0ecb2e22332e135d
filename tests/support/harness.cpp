#include "tests/support/harness.h"

#include <QDirIterator>

#include "interface/controls.h"

QApplication& TestApp() {
  static int argc = 1;
  static char name[] = "talvero_tests";
  static char* argv[] = {name, nullptr};
  static QApplication* app = [] {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    auto* a = new QApplication(argc, argv);
    TimerControl::SetAutomatic(false);
    return a;
  }();
  return *app;
}

Harness::Harness(bool load) {
  TestApp();
  QDirIterator it(QStringLiteral(TALVERO_PROGRAM_DIR), QDir::Files);
  while (it.hasNext()) {
    const QString p = it.next();
    if (QFileInfo(p).fileName() != "Ini.dat") QFile::copy(p, dir.filePath(QFileInfo(p).fileName()));
  }
  SetPlatform(&platform);
  form = std::make_unique<JeuPoker>(dir.path());
  form->EndProgram = [this] { ended = true; };
  driver = std::make_unique<Driver>(*form, platform, [this](const QString& l) { output << l; });
  if (load) {
    form->Form_Load();
    QCoreApplication::processEvents();
  }
}

Harness::~Harness() {
  form.reset();
  SetPlatform(nullptr);
  QDir::setCurrent(QDir::tempPath());
}

QStringList Harness::Drive(const QStringList& commands) {
  output.clear();
  for (const auto& c : commands) {
    driver->Execute(c);
    QCoreApplication::processEvents();
  }
  return output;
}

QString Harness::Drive1(const QString& command) {
  const QStringList out = Drive({command});
  return out.isEmpty() ? QString() : out.join('\n');
}
