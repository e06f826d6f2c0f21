/// The arithmetic of the sheeting's inner lines, apart from their drawing.
#pragma once

#include "output/plot_state.h"

namespace loftwing {

/// Sheeting in fractions of the chord. Failure 11 for a chord of 0, 6 beyond 32 bits.
float EpaisseurRelative(const RibModel &rib);

/// Offsets of the inner face at station `k`, 1 to 400, of a surface with these heights: from its
/// own height and that of station k - 1. Failure 9 outside.
DecalageStation Decale(const TableStation &heights, long k, float EpRel);

/// A fresh plot state whose sheeting offsets of stations 1 to 400 are those of the rib, as if it
/// had been plotted before without trailing edge stock. With stock a plot takes the offsets of the
/// station behind it from the plot before; primed, what leaves the program is the same whatever was
/// shown. A rib that can't be plotted for its chord leaves the state fresh.
PlotState EtatAmorce(const RibModel &rib);

} // namespace loftwing
