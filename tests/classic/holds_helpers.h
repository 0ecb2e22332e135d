// Helpers of the hold, selection and double-up tests: cards by short names, and a table
// laid out as a first drawing leaves it.
#pragma once

#include <array>
#include <string>

#include "tests/support/helpers.h"

namespace holds {

// Five cards in position order, "2C 3D 4H 5S 9C".
inline std::array<int, 5> Hand(const std::string& text) {
  std::array<int, 5> h{};
  size_t start = 0;
  for (int i = 0; i < 5; ++i) {
    const size_t end = text.find(' ', start);
    h[i] = Code(text.substr(start, end - start));
    start = end == std::string::npos ? text.size() : end + 1;
  }
  return h;
}

// Lays the cards face up at positions 0..4 as the first drawing leaves them, then runs
// Résultat and GardeCartes as Tirage1 does.
inline void FirstDrawing(JeuPoker& f, const std::string& text) {
  const auto cards = Hand(text);
  f.NbTirées = 5;
  for (int i = 0; i < 5; ++i) {
    f.CartesTirage(i) = static_cast<Byte>(cards[i]);
    f.Deal(i).SetPicture(f.Cartes(cards[i]).GetPicture());
    f.MainTriée(i) = static_cast<Byte>(cards[i]);
  }
  f.Résultat();
  f.GardeCartes();
}

// The positions whose Jouez caption is the hold word, as "10110".
inline std::string HeldWords(JeuPoker& f) {
  std::string s;
  for (int i = 0; i < 5; ++i) s += f.Jouez(i).Caption() == f.MotCarteGardée() ? '1' : '0';
  return s;
}

// CartesGardées(0..4) as "10110".
inline std::string Kept(JeuPoker& f) {
  std::string s;
  for (int i = 0; i < 5; ++i) s += f.CartesGardées(i) ? '1' : '0';
  return s;
}

// Selects the manual option (ParesseNon) directly, as its click does.
inline void ManualSelection(JeuPoker& f) {
  f.ParesseNon->SetBevelWidth(0);
  f.ParesseOui->SetBevelWidth(3);
}

}  // namespace holds
