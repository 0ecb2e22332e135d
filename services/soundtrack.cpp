// The music: the pieces of the program directory play one after another at random, through
// the multimedia command texts, and the title moves with the beat of the piece.
#include <QDir>
#include <cmath>

#include "interface/JeuPoker.h"
#include "services/platform.h"

void JeuPoker::JoueMusic() {
  // The file list of the data directory, read once.
  if (FileMidItems.isEmpty())
    FileMidItems = QDir(dataDir_).entryList({QStringLiteral("*.mid")}, QDir::Files, QDir::Name);
  // Without pieces the music stays silent (and its button shows no number).
  if (FileMidItems.isEmpty()) {
    SSMusic(0).SetCaption(QString());
    return;
  }
  Sys().Randomize(Sys().Timer());
  const int i = Sys().RandomInt(static_cast<int>(FileMidItems.size()));
  MorceauCourant = FileMidItems.at(i);
  SSMusic(0).SetCaption(QString::number(i + 1));

  Sys().SendMciCommand(QStringLiteral("close sequence"));
  // The piece is named from the program directory, the current one; an installed game reads
  // its pieces from the data directory, by their full path.
  const QString fichier = dataDir_ == programDir_ ? MorceauCourant : QDir(dataDir_).filePath(MorceauCourant);
  Sys().SendMciCommand(QStringLiteral("open ") + fichier + QStringLiteral(" alias sequence"));
  Sys().SendMciCommand(QStringLiteral("play sequence"));
  LongueurMorceau = Sys().SendMciCommand(QStringLiteral("status sequence length"));
  TempoMorceau = Sys().SendMciCommand(QStringLiteral("status sequence tempo"));

  TitreTimer->SetEnabled(true);
  MusicTimer->SetEnabled(true);
  // A tempo that is no number, or 0, leaves the interval as it was.
  bool nombre = false;
  const double tempo = TempoMorceau.trimmed().toDouble(&nombre);
  if (nombre && tempo != 0.0) {
    const double intervalle = std::nearbyint(54000.0 / tempo);
    if (intervalle >= 0 && intervalle <= 65535) TitreTimer->SetInterval(static_cast<int>(intervalle));
  }
}

void JeuPoker::MusicTimer_Timer() {
  // The end of a piece is told by its position reaching its length, compared as text.
  const QString position = Sys().SendMciCommand(QStringLiteral("status sequence position"));
  if (position != LongueurMorceau) return;
  MusicTimer->SetEnabled(false);
  TitreTimer->SetEnabled(false);
  TitreImage(0).SetPicture(TitreImage(1).GetPicture());
  JoueMusic();
}

void JeuPoker::SSMusic_Click() {
  Tirage->SetFocus();
  if (SSMusic(0).GetPicture() == SSMusic(1).GetPicture()) {
    SSMusic(0).SetCaption(QString());
    SSMusic(0).SetPicture(SSMusic(2).GetPicture());
    MusicTimer->SetEnabled(false);
    TitreTimer->SetEnabled(false);
    TitreImage(0).SetPicture(TitreImage(1).GetPicture());
    Sys().SendMciCommand(QStringLiteral("close sequence"));
    return;
  }
  SSMusic(0).SetPicture(SSMusic(1).GetPicture());
  JoueMusic();
}
