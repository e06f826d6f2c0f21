/// A second computation of the rib's drawing, as plain and long as the rules read, to compare the
/// program's own with. It shares nothing with the program but the rib's record.
#pragma once

#include "core/app_settings.h"
#include "core/rib_model.h"

#include <string>
#include <vector>

namespace loftwing::naive {

/// One thing on the drawing.
struct Drawn {
    bool text = false; ///< otherwise a line
    double x1 = 0, y1 = 0;
    double x2 = 0, y2 = 0; ///< of a line
    unsigned colour = 0;
    int width = 1; ///< of a line
    int style = 0; ///< of a line
    std::string words;
    double size = 0; ///< of a text, points
};

/// What a plot is given and what it leaves to the next.
struct Memory {
    float CordeEchelle = 0, OrigineX = 0, OrigineY = 0;
    float EpRel = 0, StationBA = 0, StationBF = 0;
    double DemiBF = 0, PosEpDev = 0;
    int IdxFinCoffr = 0;
    double AngleExtra[401] = {}, DecalXExtra[401] = {}, DecalYExtra[401] = {};
    double AngleIntra[401] = {}, DecalXIntra[401] = {}, DecalYIntra[401] = {};
};

/// A drawing, and the number of the failure that broke it off, 0 for none.
struct Drawing {
    std::vector<Drawn> drawn;
    int failure = 0;
};

/// The plot at the scale and origin in `memory`. Words of the language are those of RibWorld.
Drawing PlotRib(const RibModel &rib, const AppSettings &settings, Memory &memory);

/// Scale and origin of the screen.
void PlaceOnScreen(const RibModel &rib, Memory &memory);

/// "# ###.00" and the length shown in inches.
std::string TwoDecimals(double value);
std::string InInches(double mm);

} // namespace loftwing::naive
