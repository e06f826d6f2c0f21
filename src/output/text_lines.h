/// Lines of text and print zones on a drawing surface.
#pragma once

#include "output/plot_device.h"

#include <string>

namespace loftwing {

/// From one line of a font to the next, in device units.
double LineHeight(const TextFont &font);

/// Writes `text` at the current point of `device`, which then moves to the start of the next line.
void PrintLine(PlotDevice &device, const std::string &text);

/// `text` with blanks up to the next print zone: zones begin at every 14th character, and a text
/// that ends where one begins goes on to the one after it.
std::string UpToNextZone(std::string text);

} // namespace loftwing
