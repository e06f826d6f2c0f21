/// Reading the lines of an SVG back.
#pragma once

#include <string>
#include <vector>

namespace loftwing {

struct SvgPoint {
    double x;
    double y;
};
struct SvgPath {
    std::string stroke;
    std::vector<SvgPoint> points;
};

/// All paths of a drawing made of "M x y L x y ..." only.
std::vector<SvgPath> PathsOf(const std::string &svg);

} // namespace loftwing
