/// A rib that stands inclined by the dihedral, without its window.
#pragma once

#include "utilities/rib_at_angle.h"

#include <optional>
#include <string>

namespace loftwing {

/// The typed dihedral in degrees; nothing when a box has refused it. Failure 6 for a number beyond
/// 32 bits.
std::optional<float> PrendAngleDiedre(const std::string &typed, const Messages &messages,
                                      const std::string &titre);

/// Proposed name of the file.
std::string NomIncline(const std::string &NomProfil, float AngleDiedre);

/// Text of the file: heights grow by 1 / cos of the dihedral.
std::string TexteIncline(float AngleDiedre, const ProfilChoisi &profil);

} // namespace loftwing
