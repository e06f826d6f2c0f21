/// The dihedral: angle, length and height, each from the other two.
#pragma once

#include "core/units.h"

#include <array>
#include <string>

namespace loftwing {

/// The texts of the window, by the index of their text box.
inline constexpr int kDiedreAngle = 0; ///< degrees
inline constexpr int kDiedreLongueur = 1;
inline constexpr int kDiedreHauteur = 2;
inline constexpr int kChampsDiedre = 3;
using TextesDiedre = std::array<std::string, kChampsDiedre>;

/// Computes the text of the box `champ` from the two others. False, and nothing changed, where they
/// give no result: no length or height for the angle, no angle or height for the length. An angle
/// above 89 degrees is told in a box titled `titre` and its text becomes "89"; the result is still
/// that of the angle typed. Failures of VersMm, and 6 for a result beyond 64 bits.
bool CalculeDiedre(TextesDiedre &textes, int champ, const Saisie &saisie, const std::string &titre);

} // namespace loftwing
