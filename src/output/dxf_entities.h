/// The rib as the entities of a DXF drawing: the same elements as on paper, y pointing up, the
/// leading edge (or the foam template's tip) at 0, 0. Station lines and texts are not among them.
#pragma once

#include "core/rib_model.h"
#include "output/plot_state.h"

#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace loftwing {

/// Names of the layers.
inline constexpr std::string_view kCalqueContour = "Layer01";
inline constexpr std::string_view kCalqueTalon = "TALON";
inline constexpr std::string_view kCalqueAxe = "AXIS";
inline constexpr std::string_view kCalqueCoffrage = "COFFR";
inline constexpr std::string_view kCalqueLongeron = "LONG";
inline constexpr std::string_view kCalqueTrou = "TROU";

struct DxfPoint {
    double x, y;
};

/// A run of straight lines. It may have no point at all.
struct DxfPolyligne {
    int handle; ///< marks a kind of line; not unique
    std::string_view calque;
    bool fermee; ///< a line leads back from the last point to the first
    std::vector<DxfPoint> points;
};

struct DxfCercle {
    int handle;
    std::string_view calque;
    DxfPoint centre;
    double rayon;
};

using DxfEntite = std::variant<DxfPolyligne, DxfCercle>;

/// What a DXF drawing is made from. It shows the rib as the last plot left it: places, heights and
/// offsets come from `plot`.
struct DxfSource {
    const RibModel &rib;
    const PlotState &plot;
    std::string Unite; ///< the file's unit is that of the display
    /// Everything at the file's scale. The interchange form of old takes the trailing edge's
    /// allowance in device units and, in inches, the leading edge stock in mm.
    bool echelle_juste = false;
};

/// Lengths of the file are those of the rib divided by this: 25.4 in inches, else 1.
double DiviseurDxf(const std::string &Unite);

/// About how many points the lines of a rib have, those of its contour and of the two faces of its
/// sheeting: whoever keeps or writes them makes room for them at once.
std::size_t SommetsProbables(const RibModel &rib);

/// Hands the entities over one by one, in the order of the file. A failure (9 for a place beyond
/// the chord, 11 for a chord of 0) leaves those that came before it.
void EntitesDxf(const DxfSource &source, const std::function<void(const DxfEntite &)> &recoit);

} // namespace loftwing
