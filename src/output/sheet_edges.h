/// The edges of the sheets as an overlay of the drawing on the screen.
#pragma once

#include "core/app_settings.h"
#include "output/etendue.h"
#include "output/plot_device.h"
#include "output/screen_plot.h"

#include <string>
#include <vector>

namespace loftwing {

/// A sheet over the drawing, in mm from the leading edge end of the reference line as the plot
/// finds it; y points down. That is where a print run lays it.
struct FeuilleVue {
    Etendue bords;
    std::string numero; ///< "1/4"
};

/// What there is to be seen of the sheets.
struct FeuillesVues {
    std::vector<FeuilleVue> feuilles; ///< row by row, as they are printed
    // What two neighbours both have between their margins, over all sheets; none without overlap.
    std::vector<Etendue> entre_colonnes;
    std::vector<Etendue> entre_rangees;
};

/// The sheets of a page that has been decided about, as PrepareFeuilles and PrepareDessin do. None
/// for the printer's own paper, whose size isn't known.
FeuillesVues FeuillesDe(const MiseEnPage &page);

/// Draws them around a drawing that lies so on the screen. A number stands in the upper left corner
/// of what of its sheet lies right of and below (0, 0), the picture's corner.
void TraceFeuilles(const FeuillesVues &vues, const PlaceEcran &place, PlotDevice &device);

} // namespace loftwing
