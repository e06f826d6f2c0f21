/// The forms in which pieces leave the program: one table for the window, the command line and its
/// help.
#pragma once

#include "base/whole_file.h"
#include "output/cut_forms.h"
#include "output/nesting.h"
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
    bool several_pages;    ///< one file has them all; without that it takes one drawing
    std::function<std::string(const std::vector<DessinDecoupe> &, const ReglageDecoupe &)> Ecrit;
};

const std::vector<FormeDecoupe> &FormesDecoupe();
/// The form of an extension, case ignored; null for one that there isn't.
const FormeDecoupe *TrouveFormeDecoupe(const std::string &extension);

/// Pieces, each below the one before, as a file of that form, in the colours and the unit in force.
std::string EcritDecoupe(const Programme &programme, const FormeDecoupe &forme,
                         const std::vector<Piece> &pieces, AnneauxDxf anneaux);

/// The files of pieces on sheets, `path` being the one that the user named: a page a sheet in that
/// file, or a file a sheet, "rib.svg" being "rib-1.svg", "rib-2.svg" and so on.
std::vector<FileToWrite> EcritPlanches(const Programme &programme, const FormeDecoupe &forme,
                                       const Imbrication &planches, AnneauxDxf anneaux,
                                       const std::string &path);

} // namespace loftwing
