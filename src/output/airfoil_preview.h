/// The airfoil picker's drawing of a file's points.
#pragma once

#include "core/rib_model.h"
#include "output/plot_device.h"

namespace loftwing {

/// Extent of the picker's surface in device units. A chord is 5000 long, begins at 600 across and
/// lies at 5000 down, whatever the file.
inline constexpr double kApercuLargeur = 6200;
inline constexpr double kApercuHauteur = 10000;

/// Draws the chord line, longer than the airfoil at both ends, then the points as read in red.
/// Failure 9 when NbPoints is more than there are.
void DessineApercu(const RibModel &rib, PlotDevice &device);

} // namespace loftwing
