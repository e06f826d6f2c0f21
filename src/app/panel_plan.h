/// Building plan and list of parts as options of the command line.
#pragma once

#include "app/arguments.h"
#include "app/console_program.h"
#include "app/panel_outputs.h"
#include "programme/panel_file.h"

#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// Where a panel stands in its wing: --sweep, --dihedral, --density.
std::vector<OptionRule> PlaceOptions();
/// --plan, --parts and the paper of the plan.
std::vector<OptionRule> PlanOptions();

/// Whether plan or list shall be written. Throws UsageError for a form that a plan doesn't have.
bool WantsPlan(const Arguments &arguments);

/// The number of --first. Throws UsageError for one that no rib may have.
int FirstRibOf(const Arguments &arguments);
/// Opens a rib components file for an end of a panel. Throws UsageError for another file, Refused
/// where it was refused, which was told.
PartiesRib OpenPanelEnd(ConsoleProgram &program, const std::string &file,
                        const std::vector<std::string> &folders);
/// Puts the place's options over what a panel file has.
void TakePlace(const Arguments &arguments, FichierPanneau &wanted);

/// A panel of which a plan shall be made.
struct PanelOfPlan {
    const Panneau &panel;
    const FichierPanneau &wanted;
    const PanneauFait &made;
    const FeuillesPieces &laid; ///< what lies on sheets of stock
};

/// The files of plan and list that the options ask for. Nothing when one was refused, which was
/// told. Throws UsageError for a place that can't be.
std::optional<PanelFiles> PlanOfPanel(const Arguments &arguments, const Programme &programme,
                                      const PanelOfPlan &panel);

/// Throws UsageError for a plan or list of another form, and where one of both would take the place
/// of the other or of a FILE.
void VerifyPlanFiles(const Arguments &arguments, const std::optional<std::string> &plan);

/// Plan and list of a wing, as the options ask for them; `plan` is the path of the plan, empty
/// where none is wanted. Nothing when one was refused, which was told.
std::optional<PanelFiles> PlanFiles(const Arguments &arguments, const Programme &programme,
                                    const Aile &wing, const std::string &plan,
                                    const FeuillesPieces &laid);

} // namespace loftwing
