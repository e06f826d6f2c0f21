/// What else than rib files comes out of a panel: its pieces on sheets, its drawings on pages.
#pragma once

#include "app/arguments.h"
#include "base/whole_file.h"
#include "programme/liste_pieces.h"
#include "programme/panel_steps.h"

#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// The options of sheets and drawings.
std::vector<OptionRule> PanelOutputOptions();

/// Files and what is said of them when they are written.
struct PanelFiles {
    std::vector<FileToWrite> files;
    std::vector<std::string> lines;
};

/// What the options ask of the pieces. Throws UsageError for a text that is none of theirs.
DemandePanneau PanelDemandOf(const Arguments &arguments, const Programme &programme);

/// The sheets that the options ask for, in the ribs' folder, and what lies on them; none where they
/// ask for none. Nothing when a piece has no room, which was told.
std::optional<PanelFiles> PanelSheets(const Arguments &arguments, const Programme &programme,
                                      const PanneauFait &made, FeuillesPieces &laid);

/// The file of all ribs' drawings where the options ask for it, numbers from `premier`. Nothing
/// when it was refused, which was told.
std::optional<PanelFiles> PanelDrawings(const Arguments &arguments, Programme &programme,
                                        const PanneauFait &made, int premier);

} // namespace loftwing
