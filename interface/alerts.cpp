// The blinking of the alert line.
#include "core/colours.h"
#include "core/table_facts.h"
#include "interface/JeuPoker.h"
#include "services/platform.h"

// Seven times: the text goes out (black on black) for 40 ms, then comes back in a darker
// yellow for 150 ms, yielding after each wait. The line's first yellow is not restored.
// Automatic mode is never interrupted by it.
void JeuPoker::ClignoteAlertes() {
  if (AutoPlay->BevelWidth() == 0) return;
  for (int i = 1; i <= 7; ++i) {
    SSAlertes->SetForeColor(couleur::kNoir);
    Sys().Sleep(40);
    Sys().DoEvents();
    SSAlertes->SetForeColor(couleur::kOcre);
    Sys().Sleep(150);
    Sys().DoEvents();
  }
}

QString JeuPoker::TexteAlerte(Alerte a) const {
  const bool anglais = Anglais(Langue);
  switch (a) {
    case Alerte::SecondTirage:
      return anglais ? QStringLiteral("SECOND DRAWING : Click on PLAY or press the 'Space' key.")
                     : QStringLiteral("SECOND TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.");
    case Alerte::Encaisser:
      return anglais
                 ? QStringLiteral("QUIT to collect credits, DOUBLE to risk, PLAY to collect credits and play again.")
                 : QStringLiteral("QUITTE pour encaisser, DOUBLE pour risquer, JOUER pour encaisser et rejouer.");
    case Alerte::EncaisserMiseUn:
      return anglais ? QStringLiteral("QUIT, DOUBLE or PLAY ? ATTENTION : Bet back to 1.")
                     : QStringLiteral("QUITTE, DOUBLE ou JOUER ? ATTENTION : Mises ramenées à 1.");
    case Alerte::NouveauTirage:
      return anglais ? QStringLiteral("NEW DRAWING : Click on PLAY or press the 'Space' key.")
                     : QStringLiteral("NOUVEAU TIRAGE : Cliquez sur JOUER ou pressez la touche 'Space'.");
    case Alerte::MiseRamenée:
      return anglais ? QStringLiteral("WARNING ! No more credit ! Bet back to 1.")
                     : QStringLiteral("ATTENTION ! Vous n'avez plus assez de crédit. Mises ramenées à 1.");
    case Alerte::CréditÉpuisé:
      return anglais ? QStringLiteral(
                           "No more credit ! Click on the icon up on the right handside of the screen for a new game.")
                     : QStringLiteral(
                           "Crédit épuisé ! Cliquez sur l'icône situé en haut à droite de l'écran pour une "
                           "nouvelle partie.");
    case Alerte::CréditÉpuiséGrille:
      // The grid's own wording leaves out "de l'écran".
      return anglais ? QStringLiteral(
                           "No more credit ! Click on the icon up on the right handside of the screen for a new game.")
                     : QStringLiteral(
                           "Crédit épuisé ! Cliquez sur l'icône situé en haut à droite pour une nouvelle partie.");
    case Alerte::PerduMiseRamenée:
      return anglais ? QStringLiteral("YOU LOST ! WARNING ! No more credit ! Bet back to 1.")
                     : QStringLiteral("PERDU ! ATTENTION ! Pas assez de crédit. Mises ramenées à 1.");
    case Alerte::PerduCréditÉpuisé:
      return anglais ? QStringLiteral(
                           "YOU LOST ! WARNING ! No more credit ! Click on the icon up on the right handside "
                           "of the screen for a new game.")
                     : QStringLiteral(
                           "PERDU ! Crédit épuisé ! Cliquez sur l'icône situé en haut à droite de l'écran "
                           "pour une nouvelle partie.");
    case Alerte::ChoixCarte:
      return anglais ? QStringLiteral("Choose a masked card and click on its back.")
                     : QStringLiteral("Cliquez sur une carte face cachée de votre choix");
  }
  return {};
}

QString JeuPoker::TexteDuel(int comparaison, const QString& joueur, const QString& maison) const {
  const bool anglais = Anglais(Langue);
  if (comparaison > 0)
    return anglais ? QStringLiteral("YOU WIN ! %1 is stronger then %2. QUIT, DOUBLE or PLAY ?").arg(joueur, maison)
                   : QStringLiteral("GAGNE ! %1 est plus fort que %2. QUITTE, DOUBLE ou JOUER ?").arg(joueur, maison);
  if (comparaison == 0)
    return anglais ? QStringLiteral("EQUAL ! %1 is equal %2. QUIT, DOUBLE or PLAY ?").arg(joueur, maison)
                   : QStringLiteral("QUITTE ! %1 est égal %2. QUITTE, DOUBLE ou JOUER ?").arg(joueur, maison);
  return anglais ? QStringLiteral("YOU LOST ! %1 is beaten by %2. NEW DRAWING.").arg(joueur, maison)
                 : QStringLiteral("PERDU ! %1 est moins fort que %2. NOUVEAU TIRAGE.").arg(joueur, maison);
}
