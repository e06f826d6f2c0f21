/// A rib that crosses the panel at an angle, without its window: chords, name and text of its file.
#pragma once

#include "core/units.h"
#include "utilities/rib_at_angle.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace loftwing {

/// The fields by index.
inline constexpr int kChampExterne = 0;
inline constexpr int kChampInterne = 1;
inline constexpr int kChampAngle = 2;
inline constexpr int kChampsOblique = 3;
using TextesOblique = std::array<std::string, kChampsOblique>;

/// The angle that the window starts with.
inline constexpr const char *kAngleUsuel = "89.90";

/// What OptionCorde says: which chord is given. The other one is computed.
inline constexpr std::uint8_t kGabaritDonne = 0;
inline constexpr std::uint8_t kInterneDonnee = 1;

/// The template chord runs along the rib, the internal chord square to the span. Lengths in mm,
/// with the text typed or shown.
struct NervureOblique {
    std::uint8_t OptionCorde = kGabaritDonne;
    float CordeExterne = 0; ///< template chord
    std::string CordeExterneAfich;
    float CordeInterne = 0; ///< internal chord
    std::string CordeInterneAfich;
    float AngleNervure = 0; ///< degrees between rib and span line
};

/// Takes in chord and angle and computes the other chord. Gives the field that a box has refused,
/// nothing when all is computed. An internal chord takes 90 degrees, a template chord doesn't.
/// Failure 11 or 6 where a length or the result can't be computed.
std::optional<int> CalculeOblique(NervureOblique &oblique, const TextesOblique &typed,
                                  const Saisie &saisie, const std::string &titre);

/// The chord that was computed, as it is shown.
const std::string &CordeCalculee(const NervureOblique &oblique);
/// The field that shows it.
int ChampCalcule(const NervureOblique &oblique);

/// Proposed name of the file; an inch fraction's slash is still in it.
std::string NomOblique(const NervureOblique &oblique, const std::string &NomProfil,
                       const Saisie &saisie);

/// Text of the file. Failure 11 for an angle of 0.
std::string TexteOblique(const NervureOblique &oblique, const ProfilChoisi &profil,
                         const Saisie &saisie);

} // namespace loftwing
