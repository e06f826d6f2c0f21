/// The line that runs beside a ring. The library that does the Boolean work has one of its own,
/// which takes three points for each point of a dense ring and many times as long to sort them out.
#pragma once

#include "output/surface.h"

namespace loftwing {

/// The ring `mm` to the right of an anticlockwise one, outside it, or to its left where that is
/// negative; round joins deviate at most `ecart`. It may cross itself: what counts is what it runs
/// around anticlockwise.
Anneau Parallele(const Anneau &ring, double mm, Coins coins, double ecart);

} // namespace loftwing
