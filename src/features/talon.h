/// Heights and margins of the levelling heel.
#pragma once

#include "core/rib_model.h"
#include "core/units.h"

#include <string>

namespace loftwing {

/// What the heights of a heel follow, in mm. The airfoil's share comes from the rib.
struct MesuresTalon {
    float corde;
    float EpCoffrage;
};

/// Depth of the lower and height of the upper surface from the reference line, without the
/// sheeting, as shown to the user. Negative where the sheeting is thicker than that. Failure 6 for
/// a value beyond 64 bits.
std::string TexteTalonIntra(const RibModel &rib, MesuresTalon mesures, const std::string &Unite);
std::string TexteTalonExtra(const RibModel &rib, MesuresTalon mesures, const std::string &Unite);

/// The rib's heel with the numbers of its heights taken from their texts; TalonExtra is kept
/// negated. Failures of VersMm.
Talon AvecHauteurs(Talon talon, const Saisie &saisie);

/// The rib's heel for other measures. Without washout both heights become the contour's; a
/// washed-out rib keeps what was typed. The rib stays as it is. Failures of VersMm.
Talon TalonPour(const RibModel &rib, MesuresTalon mesures, const Saisie &saisie);

/// The heel with its margins taken from their texts for a chord in mm, and their sum.
Talon AvecMarges(Talon talon, float corde, const Saisie &saisie);

} // namespace loftwing
