#include "grid/line_rules.h"

#include "classic/selection_rules.h"

Byte PositionSurLigne(int ligne, int j) {
  if (ligne <= 5) return static_cast<Byte>(5 * (ligne - 1) + j);
  if (ligne <= 10) return static_cast<Byte>(5 * j + (ligne - 6));
  static constexpr Byte kDiagonales[2][5] = {{0, 6, 12, 18, 24}, {20, 16, 12, 8, 4}};
  return kDiagonales[ligne - 11][j];
}

std::uint32_t PositionsGardéesGrille(const std::array<Byte, 25>& grille, int niveau) {
  std::uint32_t gardées = 0;
  for (int ligne = 1; ligne <= niveau; ++ligne) {
    std::array<Byte, 5> cartes{};
    for (int j = 0; j < 5; ++j) cartes[j] = grille[PositionSurLigne(ligne, j)];
    // A plain union: a position stays as soon as one line keeps it.
    const unsigned garde = GardesMain(cartes, false);
    for (int j = 0; j < 5; ++j)
      if (garde & (1u << j)) gardées |= std::uint32_t{1} << PositionSurLigne(ligne, j);
  }
  return gardées;
}
