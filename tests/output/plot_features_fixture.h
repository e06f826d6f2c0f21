/// Spars, holes and add-ons on the plain rib.
#pragma once

#include "output/rib_plot_fixture.h"

#include <algorithm>

namespace loftwing {

inline constexpr unsigned kPink = 0xFF00FF;   // spars
inline constexpr unsigned kPurple = 0x800080; // holes
inline constexpr unsigned kNavy = 0x000080;   // template and heel
inline constexpr int kDashDot = 3;            // axes

/// 1 mm is 56.7 units; place 0 lies at x 283.5; surfaces at y 716.5 and 1283.5.
class PlotFeatures : public RibPlot {
  protected:
    static Longeron Spar(const char *place, float width, float depth, int kind) {
        Longeron spar;
        spar.PosLongAfich = place;
        spar.LargLong = width;
        spar.HautLong = depth;
        spar.TypeLong = static_cast<std::uint8_t>(kind);
        return spar;
    }
    static Longeron Above(Longeron spar, int option = 2) {
        spar.OptLongExt = static_cast<std::uint8_t>(option);
        return spar;
    }
    static Longeron Below(Longeron spar, int option = 2) {
        spar.OptLongInt = static_cast<std::uint8_t>(option);
        return spar;
    }
    static Trou Hole(const char *place, float width, float height, int kind) {
        Trou hole;
        hole.PosTrouAfich = place;
        hole.DiaTrou = width;
        hole.HautTrou = height;
        hole.TypeTrou = static_cast<std::uint8_t>(kind);
        return hole;
    }
    /// The rib's surfaces at the stations of 45 and 55 mm.
    void Slope() {
        world.rib.TabExtrados[220] = 0.06;
        world.rib.TabExtrados[180] = 0.05;
        world.rib.TabIntrados[220] = -0.06;
        world.rib.TabIntrados[180] = -0.05;
    }
    /// The last `count` things drawn.
    std::vector<naive::Drawn> PlotLast(std::size_t count) {
        EXPECT_TRUE(Plot());
        std::vector<naive::Drawn> drawn = Drawn(device);
        EXPECT_GE(drawn.size(), count);
        drawn.erase(drawn.begin(),
                    drawn.end() - static_cast<std::ptrdiff_t>(std::min(count, drawn.size())));
        return drawn;
    }
    /// What a spar in the middle of the flat rib draws before its shapes.
    static naive::Drawn Axis(double from = 716.5, double to = 1283.5) {
        return LineOf(3118.5, from, 3118.5, to, kBrightRed, kDashDot);
    }
};

} // namespace loftwing
