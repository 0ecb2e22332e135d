// The grid's twelve lines and the advice's rule between the drawings, on plain values. The
// form's settlement and the odds engine both read them.
#pragma once

#include <array>
#include <cstdint>

#include "core/vb.h"

inline constexpr int kLignesGrille = 12;

// The grid position (5 x row + column) of the j-th card (0..4) that line `ligne` (1..12)
// reads: the five rows, the five columns, the descending diagonal and the rising one.
Byte PositionSurLigne(int ligne, int j);

// The positions that CONSEILS keeps with lines 1..niveau in play: bit p set when at least one
// of those lines keeps position p by the selection rules of a made hand (no draw chased).
std::uint32_t PositionsGardéesGrille(const std::array<Byte, 25>& grille, int niveau);
