/// What there is to say of a panel's ribs, in the user's words.
#pragma once

#include "programme/panel_steps.h"

#include <string>
#include <vector>

namespace loftwing {

/// A length in mm to three decimals, in inches to five, with its unit.
std::string LongueurDePanneau(double mm, const std::string &Unite);

/// "Rib 3: e205N03.lfw, Chord : 180 mm, spar 1: 54 (5 x 3), hole 1: 90 (10)", places as their texts
/// have them.
std::string LigneNervure(const Messages &messages, const NervureFaite &nervure, int numero,
                         const std::string &Unite);

/// An element in the user's words: "spar 2", "leading edge stock".
std::string MotElement(const Messages &messages, const Panneau &panneau,
                       const ElementPanneau &element);

/// The same line as LigneAvis with the element's own words.
std::string LigneEnMots(const Messages &messages, const Panneau &panneau, const AvisPanneau &avis);

/// The lines of a box; of many the first ones and how many there are.
std::string LignesDeBoite(const std::vector<std::string> &lines);

} // namespace loftwing
