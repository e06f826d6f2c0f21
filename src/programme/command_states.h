/// Which commands live when: a plain table of what changes with the state of the rib and its view.
#pragma once

#include "core/rib_model.h"

#include <array>
#include <optional>
#include <string_view>

namespace loftwing {

/// Enabling groups that a command belongs to, as bits.
enum CommandGroup : unsigned {
    kAlways = 0,
    /// Live once a rib is loaded; not before.
    kWithRib = 1U << 0U,
    /// Dies again when the rib is cleared.
    kDiesOnClear = 1U << 1U,
    /// Makes no sense in the compare and simple-plot views.
    kNotInView = 1U << 2U,
    /// Live in those views even if it wasn't before.
    kAliveInView = 1U << 3U,
    /// Part of a rib's own menus and buttons: live after a clear.
    kAliveAfterClear = 1U << 4U,
    /// Makes sense for bare points too: live in the simple plot.
    kAliveInSimplePlot = 1U << 5U
};

/// What the commands are brought to.
enum class EtatCommandes {
    depart, ///< the program has just started
    rib,    ///< a rib is loaded
    sans,   ///< what saves or prints a rib dies
    vide,   ///< the rib was cleared
    vue,    ///< a view stands in the rib's place
    couple  ///< that view is the simple plot, which has some of a rib's commands
};

/// Whether a command of these groups lives once that state is entered; nothing where the state
/// leaves it as it is.
std::optional<bool> Vivante(EtatCommandes state, unsigned groups);

/// The entries of the view menu that carry a check, and what of the rib that shows.
struct CocheVue {
    const char *name;
    bool RibModel::*shown;
};
inline constexpr std::array<CocheVue, 6> kCochesVue = {{{"mnu_affinver", &RibModel::AffHaut},
                                                        {"mnu_affhautba", &RibModel::AffHautBA},
                                                        {"mnu_affhautbf", &RibModel::AffHautBF},
                                                        {"mnu_affepr", &RibModel::AffEpr},
                                                        {"mnu_affTrac", &RibModel::AffTrac},
                                                        {"mnu_afflignRef", &RibModel::AffLignRef}}};
/// What the entry of that name shows. Failure 5 for another entry.
bool &Coche(RibModel &rib, std::string_view name);

} // namespace loftwing
