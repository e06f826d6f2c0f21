/// A set of ribs out of what was typed for it, for those who ask for all of it at once.
#pragma once

#include "core/feature_records.h"
#include "utilities/rib_set.h"

#include <array>
#include <string>
#include <variant>
#include <vector>

namespace loftwing {

/// Chords and spacing as typed. Index 0 is the root, 1 the tip.
struct SaisieJeu {
    std::array<std::string, 2> cordes;
    std::string nombre;                  ///< intermediate ribs in equal steps
    std::vector<std::string> ecarts;     ///< instead: clear gaps from root to tip
    std::vector<std::string> epaisseurs; ///< and the ribs' thicknesses, one more than gaps
    std::string dossier;                 ///< of the files, ends in a separator
};

/// The set, or the first fault with the window's words. `jeu` is worked on where the spacing
/// varies. Failures as ComposeRibevol and ComposeRibevol2.
std::variant<JeuDeNervures, RefusJeu> ComposeJeu(const SaisieJeu &typed,
                                                 const std::array<ProfilJeu, 2> &profils,
                                                 const Saisie &saisie, JeuNervures &jeu);
/// The title of the box that such a fault is told in.
LngKey TitreJeu(const SaisieJeu &typed);

} // namespace loftwing
