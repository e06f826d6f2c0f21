/// The forms in which pieces leave the program: one table for the window, the command line and its
/// help.
#pragma once

#include "output/cut_forms.h"
#include "programme/programme.h"

#include <functional>
#include <string>
#include <vector>

namespace loftwing {

/// What of the settings and of the user's choice counts for a file.
struct ReglageDecoupe {
    CouleursDecoupe couleurs;
    std::string Unite; ///< of DXF
    AnneauxDxf anneaux = AnneauxDxf::lignes;
};

struct FormeDecoupe {
    std::string extension; ///< without its point
    std::string mots;      ///< of the filter of a save box
    bool needs_toolkit;    ///< drawn with the toolkit's fonts, so its application must run
    std::function<std::string(const DessinDecoupe &, const ReglageDecoupe &)> Ecrit;
};

const std::vector<FormeDecoupe> &FormesDecoupe();
/// The form of an extension, case ignored; null for one that there isn't.
const FormeDecoupe *TrouveFormeDecoupe(const std::string &extension);

/// Pieces, each below the one before, as a file of that form, in the colours and the unit in force.
std::string EcritDecoupe(const Programme &programme, const FormeDecoupe &forme,
                         const std::vector<Piece> &pieces, AnneauxDxf anneaux);

} // namespace loftwing
