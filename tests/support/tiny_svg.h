/// Just enough of a reader to look at what the SVG writer writes.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace loftwing {

struct SvgElement {
    std::string name;
    std::map<std::string, std::string> attributes; ///< entities resolved
    std::string text;                              ///< what stands behind the opening tag

    /// The attribute, or "(none)".
    std::string operator[](const std::string &attribute) const;
    double Number(const std::string &attribute) const;
};

/// Every element in the order of its opening tag. Anything that is no well-formed XML of the kind
/// that the writer makes fails the test.
std::vector<SvgElement> ReadSvg(const std::string &bytes);

/// The points of a path that consists of one M and any number of L; others fail the test.
std::vector<std::pair<double, double>> PathPoints(const std::string &d);

} // namespace loftwing
