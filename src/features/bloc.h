/// Template for cutting a foam core with a hot wire.
#pragma once

#include "core/rib_model.h"
#include "core/units.h"

#include <array>
#include <optional>
#include <string>

namespace loftwing {

/// The texts of the template's window, by the index of their text box.
inline constexpr int kBlocBas = 0; ///< height under the reference line
inline constexpr int kBlocRampeBA = 1;
inline constexpr int kBlocRampeBF = 2;
inline constexpr int kBlocCoupeBF = 3;
inline constexpr int kBlocHauteur = 4;
inline constexpr int kBlocVrillage = 5; ///< degrees
inline constexpr int kChampsBloc = 6;
using TextesBloc = std::array<std::string, kChampsBloc>;

/// What the text boxes show of the rib.
TextesBloc TextesDuBloc(const RibModel &rib);
/// Caption of the window, which titles its boxes too.
std::string TitreBloc(const Saisie &saisie);
/// LongBloc with the unit.
std::string TexteLongBloc(const RibModel &rib, const std::string &Unite);

/// Highest and lowest point of the rib from its reference line, with the unit, so that the user
/// sees how high a template must be; a point under the line is below 0. Empty without an airfoil.
std::string TextePointHaut(const RibModel &rib, const std::string &Unite);
std::string TextePointBas(const RibModel &rib, const std::string &Unite);

/// Follows the typing in the box `champ`: a ramp with the length of the template, and the washout,
/// go into the rib at once. A washout beyond 20 degrees either way becomes the limit; a box tells
/// so, and what is given back is what the angle's box must show instead. Failures as VersMm, and 6
/// for a length beyond 32 bits; the rib is then as it was.
std::optional<std::string> SuitBloc(RibModel &rib, int champ, const TextesBloc &typed,
                                    const Saisie &saisie, const std::string &titre);

/// Whether a ramp is longer than the chord; a box tells so. Gives the index of its text box.
std::optional<int> RefuseRampe(const RibModel &rib, const Saisie &saisie, const std::string &titre);

/// Takes the template into use: stores all texts and numbers and the washout. A ramp longer than
/// the chord becomes as long as it, and a box tells so; LongBloc still counts what was typed. With
/// a washout the text on the rib names it. Failures as SuitBloc; the rib then only counts as
/// changed.
void ValideBloc(RibModel &rib, const TextesBloc &typed, const Saisie &saisie,
                const std::string &titre);

} // namespace loftwing
