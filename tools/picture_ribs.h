/// What the ribs in the pictures carry.
#pragma once

#include "programme/programme.h"

namespace loftwing {

/// Spars and holes of many kinds, in the unit in force.
void AddFeatures(Programme &programme);

/// What the first tour adds to its rib, in mm.
void DressAsInTheTour(Programme &programme);

} // namespace loftwing
