/// A recorded drawing as SVG.
#pragma once

#include "output/recording.h"

#include <string>

namespace loftwing {

/// Writes a drawing in its order: the user unit is 1 mm, numbers have up to 4 decimals. Segments of
/// one pen, each starting where the last one ended, are one path; colour, width and dashes are
/// attributes, so that a cutter's program can tell the elements apart. The view box starts at 0 0
/// and leaves 5 mm around the drawing. Failure 6 for a drawing beyond 1 km.
std::string WriteSvg(const Recording &drawing, const std::string &title);

} // namespace loftwing
