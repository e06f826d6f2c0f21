/// The drawing as it goes into files.
#pragma once

#include "output/print_run.h"
#include "output/recording.h"
#include "programme/programme.h"

#include <memory>
#include <string>

namespace loftwing {

/// Records the current view, the rib or what stands in its place, as the screen shows it at 100 %,
/// unscrolled. `plot` is worked on; what leaves the program starts from EtatAmorce. Nothing when
/// the rib doesn't fit or the plot fails; a box told why, and after a failure `failed` is set: the
/// window then clears the rib.
std::unique_ptr<Recording> DessineVue(Programme &programme, PlotState &plot, bool &failed,
                                      Recording::Measure measure = MeasuredAdvance);

/// A print run of the current view. It works on the plot state given, at the scale of paper.
Impression ImpressionDeVue(Programme &programme, PlotState &plot);

/// Imprime, after which the screen's zoom is in force again: it is what the list of zooms shows.
FinImpression ImprimeVue(const Impression &run, Printer &printer);

} // namespace loftwing
