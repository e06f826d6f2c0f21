#include "e2e/svg_lines.h"

#include <regex>
#include <sstream>

namespace loftwing {

std::vector<SvgPath> PathsOf(const std::string &svg) {
    const std::regex path("<path d=\"([^\"]*)\"[^>]*stroke=\"(#[0-9a-f]{6})\"");
    std::vector<SvgPath> paths;
    for (std::sregex_iterator match(svg.begin(), svg.end(), path), end; match != end; ++match) {
        SvgPath found{(*match)[2], {}};
        std::istringstream words((*match)[1]);
        words.imbue(std::locale::classic());
        std::string command;
        SvgPoint point{};
        while (words >> command >> point.x >> point.y) {
            found.points.push_back(point);
        }
        paths.push_back(found);
    }
    return paths;
}

} // namespace loftwing
