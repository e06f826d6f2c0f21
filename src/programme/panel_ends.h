/// The ends of a panel as the window is given them.
#pragma once

#include "programme/programme.h"

#include <optional>
#include <string>

namespace loftwing {

/// Lets the user choose a rib components file for an end; the chooser has that title. Empty when it
/// is cancelled. The folder is the one of File, Open rib.
std::string ChoisitBout(const Programme &programme, const std::string &titre);

/// The rib of a rib components file with its airfoil, searched as File, Open rib does. The rib of
/// the programme stays what it is, and a file of the older format isn't written anew. Nothing where
/// it was refused, which a box told.
std::optional<PartiesRib> LitBout(Programme &programme, const std::string &path);

/// Whether the main window has a rib that can be an end: no comparison and no view of points.
bool RibDeFenetre(const RibModel &rib);

/// What an end is called: its rib components file, or its airfoil where it has none.
std::string NomDuBout(const PartiesRib &bout);

} // namespace loftwing
