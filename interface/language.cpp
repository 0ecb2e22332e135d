// Language tables and the switch between French and English.
#include "interface/JeuPoker.h"

namespace {
// Langue 0 or 2 is English, anything else French.
bool English(Byte langue) { return langue == 0 || langue == 2; }
}  // namespace

void JeuPoker::RemplitNomsValeurs() {
  static const char* const kRangsFr[13] = {"2", "3", "4", "5", "6", "7", "8", "9", "10", "VALET", "DAME", "ROI", "AS"};
  static const char* const kRangsEn[13] = {"2", "3",  "4",    "5",     "6",    "7",  "8",
                                           "9", "10", "JACK", "QUEEN", "KING", "ACE"};
  static const char* const kCouleursFr[4] = {" de Trèfle", " de Carreau", " de Coeur", " de Pique"};
  static const char* const kCouleursEn[4] = {" of Clubs", " of Diamonds", " of Hearts", " of Spades"};
  const bool english = English(Langue);
  for (int s = 0; s <= 3; ++s)
    for (int r = 0; r <= 12; ++r)
      NomsValeurs(s * 13 + r) = QString::fromUtf8(english ? kRangsEn[r] : kRangsFr[r]) +
                                QString::fromUtf8(english ? kCouleursEn[s] : kCouleursFr[s]);
}

// For now only the card names follow the language; the captions, alerts and rules page
// come with the language switch proper.
void JeuPoker::ModifieLangue() { RemplitNomsValeurs(); }
