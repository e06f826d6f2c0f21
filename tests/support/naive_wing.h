/// A second computation of a wing put together from panels: where ribs, sticks, holes and sheeting
/// stand, as the rules read. It builds on the naive panel and shares nothing with the program.
#pragma once

#include "support/naive_panel.h"

#include <array>
#include <string>
#include <vector>

namespace loftwing::naive {

struct WingPanelAsked {
    PanelAsked panel;
    std::string thickness; ///< of all ribs in equal steps, may be empty
    double length = 0;     ///< in equal steps, mm from face to face
    double sweep = 0;      ///< mm
    double dihedral = 0;   ///< degrees
    double density = 0;    ///< kg/m3
};

/// A point of the wing: along the panels, backwards, up.
struct WingPoint {
    double x = 0, y = 0, z = 0;
};

struct WingRib {
    int number = 0;
    double x = 0; ///< of its middle
    double thickness = 0;
    double y = 0; ///< of its leading edge
    double chord = 0;
    double high = 0, low = 0;
};

struct WingStickEnd : WingPoint {
    double width = 0;
    double depth = 0;
};

struct WingStick {
    std::string name; ///< "spar2 above", "le", "te", "notch"
    int from = 0, to = 0;
    bool round = false;
    bool part_of_panel = false; ///< it doesn't stand in all ribs
    std::array<WingStickEnd, 2> ends;
    double length = 0;
};

/// Over ribs' middles.
struct WingLine {
    std::string name; ///< "hole2", "front", "rear"
    std::vector<WingPoint> points;
};

struct WingSheeting {
    double area = 0;                  ///< mm2
    std::array<double, 2> board{};    ///< the longer side first
    std::array<double, 2> smallest{}; ///< of all rectangles, however they lie
    double arc = 0;                   ///< the longest one
    double thickness = 0;             ///< at the root
};

struct WingPanel {
    double x = 0, y = 0, length = 0;
    std::array<double, 2> chords{}; ///< at the faces
    std::vector<WingRib> ribs;
    std::vector<WingStick> sticks;
    std::vector<WingLine> holes;
    std::vector<WingLine> edges;        ///< of the sheeting
    std::vector<WingSheeting> sheeting; ///< above, below
    double height = 0;                  ///< of the tip
    double joint = 0;                   ///< degrees
};

std::vector<WingPanel> MakeWing(const std::vector<WingPanelAsked> &asked, int first);

/// Grams of a rib of that area.
double WingWeight(double area, double thickness, double density);

} // namespace loftwing::naive
