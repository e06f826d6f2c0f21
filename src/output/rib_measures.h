/// Measures that every kind of drawing of a rib takes alike.
#pragma once

namespace loftwing {

/// Builders' figure for the square root of 2, by which a square stands on its corner.
inline constexpr double kDiagonaleCarre = 1.414;
/// How far the inserted text lies above its place, mm.
inline constexpr double kTexteAuDessus = 3.0;
/// Station lines overshoot the lower surface, in chords, and a little more in the inverted view.
inline constexpr double kSousLeProfil = 0.015;
inline constexpr double kSousLeProfilInverse = 0.01;
/// From the top of a text to its base line, in sizes of Arial.
inline constexpr double kAscent = 0.905;
/// Height of its capitals, in the same.
inline constexpr double kCapitales = 0.716;

/// Height of a line of text, in the same: no letter leaves it.
inline constexpr double kLigneDeTexte = 1.2;

} // namespace loftwing
