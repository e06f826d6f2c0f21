/// What the numbers of colours, styles and widths look like: on a sheet and beside the dialog.
#pragma once

#include "core/messages.h"
#include "output/plot_device.h"

namespace loftwing {

/// Draws the legend: all colours in all widths, then all styles. One of its own units, which are
/// about a millimetre, is 56.7 device units; its upper left corner is the origin.
void TraceLegende(PlotDevice &device, const LngIni &language);

/// Draws the test page: version, colours in all widths, styles, and the sizes of text.
void TracePageTest(PlotDevice &device, const LngIni &language);

/// Prints the test page in portrait on the printer's own paper, and says so in a box. A failure of
/// the printer is reported. False when nothing was printed, by failure or by the user's choice.
bool cmdImprtest(const Messages &messages);

} // namespace loftwing
