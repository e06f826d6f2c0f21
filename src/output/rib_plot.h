/// The one routine that turns the rib into a drawing, for screen, paper and files alike.
#pragma once

#include "output/trace.h"

namespace loftwing {

/// Draws the rib at the scale and origin that the caller has set in rib.Zoom and trace.plot
/// (CordeEchelle, OrigineX, OrigineY). `factor` is not read: it keeps the program's plot routines
/// alike. A failure abandons the drawing, is reported under " Main/PrintSubroutine" and gives
/// false; the caller then clears the rib.
bool PrintSubroutine(const Trace &trace, double factor);
/// The same, but a failure passes on.
void DrawRib(const Trace &trace);

} // namespace loftwing
