/// Sheets of nested pieces, held against distances from edge to edge of all that is cut.
#pragma once

#include "output/nesting.h"

#include <string>
#include <vector>

namespace loftwing::naive {

/// Of two closed runs of lines, mm; negative where they cross or one lies in the other.
double RingDistance(const Anneau &one, const Anneau &other);

/// What is wrong with the sheets; empty when all pieces are there once, as they were given but for
/// moves and half turns, and keep gap and margin but for `digits` mm.
std::string SheetFault(const Imbrication &sheets, const std::vector<PieceNommee> &pieces,
                       const ReglageImbrication &wanted, double digits = 1e-6);

} // namespace loftwing::naive
