/// The drawing as it goes into files.
#pragma once

#include "output/print_run.h"
#include "output/recording.h"
#include "programme/programme.h"

#include <memory>
#include <string>

namespace loftwing {

/// Records the current view, the rib or what stands in its place, as the screen shows it at 100 %,
/// unscrolled. Drawn from a fresh plot state, so that a file depends on the view alone and not on
/// what was drawn before it. Nothing when the rib doesn't fit or the plot fails; a box told why,
/// and after a failure `failed` is set: the window then clears the rib.
std::unique_ptr<Recording> DessineVue(Programme &programme, bool &failed,
                                      Recording::Measure measure = MeasuredAdvance);

/// A print run of the current view. It works on the plot state given, at the scale of paper.
Impression ImpressionDeVue(Programme &programme, PlotState &plot);

/// Imprime, after which the screen's zoom is in force again: it is what the list of zooms shows.
FinImpression ImprimeVue(const Impression &run, Printer &printer);

/// The rib as it was last plotted, in the interchange form of DXF, appended to `out`. An inverted
/// view has no such form: false, and a box tells so. Failures as EntitesDxf; `out` then holds what
/// came before.
bool ExporteDxf(Programme &programme, std::string &out);
/// The rib as it was last plotted, as clean DXF for cutters. Failures as EntitesDxf.
std::string ExporteDxfSimple(Programme &programme);

/// The current view as SVG; empty as DessineVue.
std::string ExporteSvg(Programme &programme, bool &failed);

} // namespace loftwing
