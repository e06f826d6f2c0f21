/// Pieces in other places. What is drawn on them goes along, and words stay readable: they stand
/// upright on the same wood.
#pragma once

#include "output/piece.h"

namespace loftwing {

Piece Deplacee(Piece piece, const PointMm &de);
/// Turned by 180 degrees about the origin.
Piece DemiTour(Piece piece);
/// The piece of the other wing: its upper side is below.
Piece Opposee(Piece piece);

} // namespace loftwing
