/// The files of a set that are in its folder already.
#pragma once

#include "utilities/rib_set.h"

#include <set>
#include <string>

namespace loftwing {

/// Paths, in the order of their names.
using FichiersEcrits = std::set<std::string>;

/// Every file that a set is made of, the summary included.
FichiersEcrits FichiersDuJeu(const JeuDeNervures &jeu, const Messages &messages);

/// Those of them that are there and aren't among `ecrits`, what the user has just had made: they
/// belong to another set.
FichiersEcrits FichiersRemplaces(const JeuDeNervures &jeu, const FichiersEcrits &ecrits,
                                 const Messages &messages);

/// The question before they are replaced. It names the first ones.
std::string TexteRemplacement(const FichiersEcrits &files, const Messages &messages);

} // namespace loftwing
