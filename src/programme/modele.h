/// A rib as the model of others: its features on airfoils other than its own.
#pragma once

#include "core/contour.h"
#include "programme/programme.h"

#include <optional>
#include <string>

namespace loftwing {

/// What of a rib goes onto other airfoils.
struct Modele {
    PartiesRib parties;
    bool etiquette = false; ///< its text is a label, in whichever language
};

/// The rib of a rib components file, whose own airfoil isn't wanted and not searched for. Nothing
/// when the file was refused; a box told why.
std::optional<Modele> LitModele(Programme &programme, const std::string &path);

/// Makes the rib the model's, before another airfoil is read into it.
void PrendModele(RibModel &rib, const Modele &modele);

/// What an airfoil that was just read brings: its chord, where its title has one. All else stays
/// the model's, heights of a heel and washout included.
void MetSurProfil(RibModel &rib, const Saisie &saisie);

/// The contour, once all values are set, and what follows chord and airfoil: the template's length
/// and the label. What has no room on the chord is asked about; No is `impossible`, as is an
/// airfoil without a contour.
Preparation FinitSurProfil(Programme &programme, const Modele &modele);

} // namespace loftwing
