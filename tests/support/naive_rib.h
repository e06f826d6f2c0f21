/// A second computation of the rib's drawing, as plain and long as the rules read, to compare the
/// program's own with. It shares nothing with the program but the rib's record.
#pragma once

#include "core/app_settings.h"
#include "core/rib_model.h"

#include <string>
#include <vector>

namespace loftwing::naive {

/// One thing on the drawing: a text, a circle or else a line.
struct Drawn {
    bool text = false;
    bool circle = false;
    double x1 = 0, y1 = 0;
    double x2 = 0, y2 = 0; ///< of a line
    unsigned colour = 0;
    int width = 1; ///< of a line or circle
    int style = 0;
    std::string words;
    double size = 0; ///< of a text, points; of a circle, its radius
};

/// Where a spar or hole was set.
struct Spot {
    float kf = 0, kr = 0, kc = 0;
    double Uf = 0, Ur = 0, Uc = 0, Lf = 0, Lr = 0, Lc = 0;
};

/// What a plot is given and what it leaves to the next.
struct Memory {
    float CordeEchelle = 0, OrigineX = 0, OrigineY = 0;
    float EpRel = 0, StationBA = 0, StationBF = 0;
    double DemiBF = 0, PosEpDev = 0;
    int IdxFinCoffr = 0;
    float CoupeRel = 0, CoupeDev = 0;
    double BlocEp = 0, BlocBA = 0, BlocYBF = 0;
    Spot spars[13], holes[13];
    double AngleExtra[401] = {}, DecalXExtra[401] = {}, DecalYExtra[401] = {};
    double AngleIntra[401] = {}, DecalXIntra[401] = {}, DecalYIntra[401] = {};
};

/// A drawing, and the number of the failure that broke it off, 0 for none.
struct Drawing {
    std::vector<Drawn> drawn;
    int failure = 0;
};

/// The plot at the scale and origin in `memory`. Places of spars and holes are taken anew. Words of
/// the language are those of RibWorld.
Drawing PlotRib(RibModel &rib, const AppSettings &settings, Memory &memory);

/// Scale and origin of the screen.
void PlaceOnScreen(const RibModel &rib, Memory &memory);

/// "# ###.00" and the length shown in inches.
std::string TwoDecimals(double value);
std::string InInches(double mm);

} // namespace loftwing::naive
