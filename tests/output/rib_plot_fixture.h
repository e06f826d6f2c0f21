/// A rib so plain that its drawing can be worked out by hand.
#pragma once

#include "output/rib_plot.h"
#include "support/drawing_text.h"
#include "support/rib_world.h"

#include <gtest/gtest.h>

namespace loftwing {

inline constexpr unsigned kBlack = 0x000000;
inline constexpr unsigned kBrightBlue = 0x0000FF;
inline constexpr unsigned kBrightRed = 0xFF0000;

inline naive::Drawn LineOf(double x1, double y1, double x2, double y2, unsigned colour,
                           int style = 0, int width = 1) {
    naive::Drawn line;
    line.x1 = x1;
    line.y1 = y1;
    line.x2 = x2;
    line.y2 = y2;
    line.colour = colour;
    line.style = style;
    line.width = width;
    return line;
}

inline naive::Drawn CircleOf(double x, double y, double radius, unsigned colour) {
    naive::Drawn circle;
    circle.circle = true;
    circle.x1 = x;
    circle.y1 = y;
    circle.size = radius;
    circle.colour = colour;
    return circle;
}

inline naive::Drawn TextOf(double x, double y, const std::string &words, double size,
                           unsigned colour = kBlack) {
    naive::Drawn text;
    text.text = true;
    text.x1 = x;
    text.y1 = y;
    text.words = words;
    text.size = size;
    text.colour = colour;
    return text;
}

/// A chord of 100 mm (5670 units) from x 283.5 to 5953.5 with its reference line at y 1000,
/// surfaces at 5 % of the chord above and below, and three contour points. Every other thing is
/// off.
class RibPlot : public testing::Test {
  protected:
    RibPlot() {
        RibModel &rib = world.rib;
        rib.corde = 100;
        rib.EpCoffrage = 0;
        rib.AffTrac = false;
        rib.AffLignRef = false;
        // The hole that is being edited would be drawn too; no shape has this kind.
        rib.trou[0].TypeTrou = 2;
        FlatSurfaces(rib, 0.05, -0.05);
        for (const auto &[x, y] :
             Points{{1, 0.01}, {0.5, 0.05}, {0, 0}, {0.5, -0.05}, {1, -0.03}}) {
            rib.ContourX.Append(x);
            rib.ContourY.Append(y);
        }
        rib.NbContour = 5;
        world.Place();
    }

    bool Plot() { return PrintSubroutine(world.On(device), 1.0); }
    /// What the plot draws behind the two edge lines, which are always there.
    std::vector<naive::Drawn> PlotBehindEdges() {
        EXPECT_TRUE(Plot());
        std::vector<naive::Drawn> drawn = Drawn(device);
        EXPECT_GE(drawn.size(), 2U);
        drawn.erase(drawn.begin(), drawn.begin() + std::min<std::ptrdiff_t>(2, std::ssize(drawn)));
        return drawn;
    }
    void ExpectDrawn(const std::vector<naive::Drawn> &got,
                     const std::vector<naive::Drawn> &wanted) {
        EXPECT_EQ(DrawingText(got, 3), DrawingText(wanted, 3));
    }
    /// A plot that fails with `number` and tells so in exactly one box.
    void ExpectFailure(int number, const std::string &description) {
        world.platform.Expect(BoxAnswer::ok);
        EXPECT_FALSE(Plot());
        ASSERT_EQ(world.platform.boxes.size(), 1U);
        const MessageBox &box = world.platform.boxes.front();
        EXPECT_EQ(box.title, "<Erreur 1> Main/PrintSubroutine");
        EXPECT_EQ(box.text, "<Erreur 3> # " + std::to_string(number) + " <Erreur 2> Loftwing\n" +
                                description);
        EXPECT_EQ(box.icon, BoxIcon::information);
        EXPECT_EQ(box.buttons, BoxButtons::ok);
    }

    RibWorld world;
    Recording device;
};

} // namespace loftwing
