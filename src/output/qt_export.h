/// Drawings as pictures.
#pragma once

#include "output/recording.h"

#include <string>

namespace loftwing {

/// A drawing as PNG, as the screen shows it at 100 %: 15 device units a pixel, on white paper, from
/// the origin to 5 mm beyond the drawing's right and lower end. Failure 7 when that is more than
/// 30,000 pixels either way.
std::string PngOf(const Recording &drawing);

} // namespace loftwing
