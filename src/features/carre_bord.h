/// Square stick on its corner in a V-notch at the leading edge.
#pragma once

#include "core/rib_model.h"
#include "core/units.h"

#include <array>
#include <string>

namespace loftwing {

/// The texts of the window of the square, by the index of their text box.
inline constexpr int kCarreCote = 0;
inline constexpr int kCarreX = 1;
inline constexpr int kCarreY = 2;
inline constexpr int kChampsCarre = 3;
using TextesCarre = std::array<std::string, kChampsCarre>;

/// What the text boxes show of the rib.
TextesCarre TextesDuCarre(const RibModel &rib);
/// Caption of the window, which titles its boxes too.
std::string TitreCarre(const Saisie &saisie);

/// Gives the rib a V-notch square in place of its leading edge stock. A side above 50 mm (in inches
/// 2 in) becomes that, and `typed` shows it from then on, while the stored text stays as typed; an
/// axis behind the chord becomes 0. Boxes tell of both. Failures as VersMm, and 6 for a value
/// beyond 32 bits; the rib is then as it was.
void ValideCarre(RibModel &rib, TextesCarre &typed, const Saisie &saisie, const std::string &titre);

/// What follows once the window was left with OK: the rib has no stock at its leading edge.
void RetireBaguette(RibModel &rib);

} // namespace loftwing
