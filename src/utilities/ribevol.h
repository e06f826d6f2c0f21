/// The set of ribs in equal steps: chords and blend shared out evenly between root and tip.
#pragma once

#include "core/units.h"
#include "utilities/rib_set.h"

#include <array>

namespace loftwing {

/// Most intermediate ribs of a set.
inline constexpr int kNervuresMaxi = 90;
/// From this number on the result is told in short.
inline constexpr int kResultatCourt = 13;

/// What the user typed and chose. Index 0 is the root, 1 the tip.
struct SaisieRibevol {
    std::array<std::string, 2> txtprofil; ///< names; empty where none was chosen
    std::array<std::string, 2> txtcorde;
    std::string txtnervI;
};

/// The set as computed from it. Chords in mm.
struct Ribevol {
    std::int16_t NbNervI = 0; ///< intermediate ribs
    float CordeMax = 0;
    float CordeMin = 0;
    std::string CordeMaxAfich;
    std::string CordeMinAfich;
    double PasRapport = 0; ///< blend from one rib to the next
    double PasCorde = 0;   ///< chord lost from one rib to the next, mm
};

/// Checks what was typed and fills `set` as far as it goes. The first fault, or nothing.
std::optional<RefusJeu> VerifieRibevol(const SaisieRibevol &typed, const Saisie &saisie,
                                       Ribevol &set);

/// The files of a set, for SaveProfil: both airfoils are brought to common stations. Failures as
/// CalculProfils.
JeuDeNervures ComposeRibevol(const Ribevol &set, const std::array<ProfilJeu, 2> &profils,
                             const std::string &dossier, const Saisie &saisie);

/// What the user reads after a run: in full, or in short for many ribs.
std::string ResultatRibevol(const JeuDeNervures &jeu, const Messages &messages);

} // namespace loftwing
