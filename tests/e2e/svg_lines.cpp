#include "e2e/svg_lines.h"

#include <locale>
#include <sstream>

namespace loftwing {

namespace {

/// What stands between `before` and the next quote, from `at` on; `at` moves behind it.
std::string Quoted(const std::string &svg, const std::string &before, std::size_t &at) {
    const std::size_t start = svg.find(before, at);
    if (start == std::string::npos) {
        at = start;
        return {};
    }
    const std::size_t end = svg.find('"', start + before.size());
    at = end;
    return svg.substr(start + before.size(), end - start - before.size());
}

std::vector<SvgPoint> PointsOf(const std::string &data) {
    std::istringstream words(data);
    words.imbue(std::locale::classic());
    std::vector<SvgPoint> points;
    std::string command;
    SvgPoint point{};
    while (words >> command >> point.x >> point.y) {
        points.push_back(point);
    }
    return points;
}

} // namespace

std::vector<SvgPath> PathsOf(const std::string &svg) {
    std::vector<SvgPath> paths;
    std::size_t at = 0;
    while (true) {
        const std::string data = Quoted(svg, "<path d=\"", at);
        if (at == std::string::npos) {
            return paths;
        }
        const std::string stroke = Quoted(svg, "stroke=\"", at);
        paths.push_back({stroke, PointsOf(data)});
    }
}

} // namespace loftwing
