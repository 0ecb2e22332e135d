// Facts of the table that several subsystems share: the card back, the mouse pointers, the
// language test and the words of the hold bars.
#pragma once

#include <QLatin1String>
#include <QString>

#include "core/vb.h"

// Cartes(kDos) is the card back: a position is face down when it shows that picture.
inline constexpr int kDos = 54;

// The mouse pointer of a control tells whether a click on it will be taken.
inline constexpr int kFlèche = 10;    // the control will work
inline constexpr int kInterdit = 12;  // the control will refuse
inline constexpr int kCarte = 99;     // a card that can be acted on

// Langue 0 or 2 is English, anything else French.
inline bool Anglais(Byte langue) { return langue == 0 || langue == 2; }

// A word a hold bar (Jouez) can say, in either language.
struct MotJouez {
  const char* français;
  const char* anglais;
};
inline constexpr MotJouez kMotJouez{"JOUEZ", "PLAY"};    // before the first drawing
inline constexpr MotJouez kMotGarder{"GARDER", "HOLD"};  // a held card
inline constexpr MotJouez kMotJeter{"JETER", "REJECT"};  // a rejected card

inline QString Mot(const MotJouez& mot, bool anglais) {
  return QString::fromLatin1(anglais ? mot.anglais : mot.français);
}

// Whether a caption says the word in either language: a caption left from the other language
// still counts.
inline bool DitMot(const QString& légende, const MotJouez& mot) {
  return légende == QLatin1String(mot.français) || légende == QLatin1String(mot.anglais);
}
