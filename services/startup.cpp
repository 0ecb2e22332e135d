// Start-up, the settings file and the end of the program.
#include <QApplication>
#include <QDir>

#include "core/table_facts.h"
#include "interface/JeuPoker.h"
#include "interface/table_scale.h"
#include "services/platform.h"
#include "services/startup_stages.h"
#include "services/web.h"

namespace {
// The leftover picture of card i: the last two characters of the number's text with its
// sign place, then ".bmp": " 1.bmp" .. " 9.bmp", "10.bmp" .. "54.bmp".
QString LeftoverPictureName(int i) {
  const QString text = QStringLiteral(" %1").arg(i + 1);
  return text.right(2) + QStringLiteral(".bmp");
}
}  // namespace

void JeuPoker::Form_Load() {
  // Display mode: the screen is checked and changed when below 768 lines; a refusal ends the
  // program here.
  VérifieRésolution();
  if (FinDemandée) return;
  // The form's size (15360 x 11520 twips, shown at the table's scale) and the web panels'
  // places.
  resize(table::TableSize(scale_));
  Pub0Pic->SetTop(8700);
  Pub1Pic->SetLeft(11940);
  // The web panels show the publisher's pages.
  if (auto* web = Pub0Web->findChild<WebPanel*>()) web->Navigate(AdresseWeb(QStringLiteral("pub0.htm")));
  if (auto* web = Pub1Web->findChild<WebPanel*>()) web->Navigate(AdresseWeb(QStringLiteral("pub1.htm")));
  StartupStage("web");
  // The no-connection notice is centred on the form.
  NonConnectéPic->SetLeft((table::kLogicalSize.width() * kTwipsPerPixel - NonConnectéPic->Width()) / 2);
  NonConnectéPic->SetTop((table::kLogicalSize.height() * kTwipsPerPixel - NonConnectéPic->Height()) / 2);

  // From here on a failing statement is skipped and the next one runs.
  // Leftover card pictures are deleted from the start directory.
  for (int i = 0; i <= 53; ++i) vb::SkipOnError([&] { Sys().DeleteFile(LeftoverPictureName(i)); });
  // The rules page is centred at (6000, 4500).
  vb::SkipOnError([&] {
    SSAides->SetTop(4500 - SSAides->Height() / 2);
    SSAides->SetLeft(6000 - SSAides->Width() / 2);
  });
  // The program's own directory becomes the current one (Ini.dat is read there).
  vb::SkipOnError([&] {
    if (!Sys().ChangeDirectory(programDir_)) vb::RuntimeError(76);
  });
  // The stored language: 2 English, 3 French turn the screen; any other byte, or none, leaves
  // it in French as built.
  vb::SkipOnError([&] {
    std::optional<std::uint8_t> byte;
    if (!Sys().ReadRecordByte(QStringLiteral("Ini.dat"), byte)) vb::RuntimeError(vb::PathFileAccess);
    if (byte) Langue = *byte;
  });
  vb::SkipOnError([&] {
    if (Langue == 2 || Langue == 3) ModifieLangue();
  });
  // Without a stored language the names of the grid's hands follow the alert lines' test.
  vb::SkipOnError([&] { RemplitNomsMains(); });
  // All cards start face down.
  vb::SkipOnError([&] {
    for (int i = 0; i <= 24; ++i) Deal2(i).SetPicture(Cartes(kDos).GetPicture());
    for (int i = 0; i <= 4; ++i) Deal(i).SetPicture(Cartes(kDos).GetPicture());
  });
  // Dealing starts instant (no card animation).
  AffichageImmédiat = true;
  // The hint table, both languages.
  vb::SkipOnError([&] { RemplitMessages(); });
  // Two jokers, and a new game on that deck.
  vb::SkipOnError([&] {
    NbJokers = 2;
    Initialise();
    TailleJeu = NbJokers + 52;
  });
  // The form is shown.
  vb::SkipOnError([&] { show(); });
  StartupStage("shown");
  // The statistics tables, and the panel at rest for the deck in force.
  vb::SkipOnError([&] { RemplitStatistiques(); });
  // The music: its button shows "on", and the first piece starts.
  vb::SkipOnError([&] { SSMusic(0).SetPicture(SSMusic(1).GetPicture()); });
  vb::SkipOnError([&] { JoueMusic(); });
  StartupStage("music");
  vb::SkipOnError([&] { Tirage->SetFocus(); });
}

void JeuPoker::SSLangue_Click(int index) {
  if (index < 2) Tirage->SetFocus();
  Langue = vb::CByte(index);
  ModifieLangue();
  if (index == 0) Langue = 2;
  if (index == 1) Langue = 3;
  if (!Sys().WriteRecordByte(QDir(programDir_).filePath(QStringLiteral("Ini.dat")), Langue))
    vb::RuntimeError(vb::PathFileAccess);
}

void JeuPoker::Form_QueryUnload() { Fin_Click(); }

void JeuPoker::Fin_Click() {
  Sys().SendMciCommand(QStringLiteral("close sequence"));
  RestaureRésolution();
  if (EndProgram) EndProgram();
}
