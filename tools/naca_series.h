/// The airfoils of the NACA four- and five-digit series, computed from their published formulas,
/// as files for the bundled library. Lengths are fractions of the chord.
///
/// A cut through these airfoils is a camber line with half of a thickness set off from it on either
/// side, at right angles. The thickness closes at the trailing edge (last coefficient 0.1036, not
/// 0.1015), so that a file begins and ends at x = 1 exactly, as an airfoil file must.
#pragma once

#include <array>
#include <charconv>
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace loftwing::naca {

/// One airfoil of the library: its digits, and the number of intervals on each surface.
struct Section {
    std::string_view digits;
    int intervals;
};

/// What the library holds. The strongly cambered and the blunt ones have more points: the nose
/// must be over within the few points on either side of it where a contour is followed along y.
inline constexpr std::array<Section, 22> kLibrary{{
    {"0006", 40},  {"0009", 30},  {"0010", 35},  {"0012", 45},  {"0015", 50},  {"1408", 40},
    {"1412", 45},  {"2409", 50},  {"2412", 45},  {"2415", 54},  {"4409", 57},  {"4412", 57},
    {"4415", 55},  {"6409", 59},  {"6412", 59},  {"21012", 50}, {"23012", 54}, {"23015", 48},
    {"24012", 51}, {"24112", 45}, {"23112", 52}, {"25112", 50},
}};

struct Point {
    double x;
    double y;
};

/// Height and slope of the camber line at one place.
struct Camber {
    double height;
    double slope;
};

/// Half of the thickness at x (0 to 1) of an airfoil that is `thickness` thick in all.
inline double HalfThickness(double thickness, double x) {
    const double polynomial = x * (-0.1260 + x * (-0.3516 + x * (0.2843 - x * 0.1036)));
    return 5.0 * thickness * (0.2969 * std::sqrt(x) + polynomial);
}

/// Camber line of the four-digit series: two parabolas that meet at their crest. `crest` is the
/// camber's height, `place` where it lies; a crest of 0 is a symmetrical airfoil, whatever `place`.
inline Camber FourDigitCamber(double crest, double place, double x) {
    if (crest == 0.0) {
        return {0.0, 0.0};
    }
    const double reach = x < place ? place : 1.0 - place;
    const double scale = crest / (reach * reach);
    const double foot = x < place ? 0.0 : 1.0 - 2.0 * place;
    return {scale * (foot + 2.0 * place * x - x * x), 2.0 * scale * (place - x)};
}

/// A mean line of the five-digit series for a design lift of 0.3: a cubic up to `joint`, behind it
/// a straight line or, on the reflexed ones, a cubic of `tail` times the strength.
struct MeanLine {
    std::string_view digits;
    double joint;
    double strength;
    double tail;
};

inline constexpr std::array<MeanLine, 9> kMeanLines{{
    {"210", 0.0580, 361.400, 0.0},
    {"220", 0.1260, 51.640, 0.0},
    {"230", 0.2025, 15.957, 0.0},
    {"240", 0.2900, 6.643, 0.0},
    {"250", 0.3910, 3.230, 0.0},
    {"221", 0.1300, 51.990, 0.000764},
    {"231", 0.2170, 15.793, 0.00677},
    {"241", 0.3180, 6.520, 0.0303},
    {"251", 0.4410, 3.191, 0.1355},
}};

/// Camber line of the five-digit series at x (0 to 1).
inline Camber FiveDigitCamber(const MeanLine &line, double x) {
    const double from_joint = x - line.joint;
    const double joint_cubed = line.joint * line.joint * line.joint;
    const double behind = 1.0 - line.joint;
    const double fall = joint_cubed + line.tail * behind * behind * behind;
    const double scale = line.strength / 6.0;
    const double cubic = x < line.joint ? 1.0 : line.tail;
    return {scale * (cubic * from_joint * from_joint * from_joint + joint_cubed - fall * x),
            scale * (3.0 * cubic * from_joint * from_joint - fall)};
}

/// The mean line with these three digits; throws std::invalid_argument when there is none.
inline const MeanLine &MeanLineOf(std::string_view digits) {
    for (const MeanLine &line : kMeanLines) {
        if (line.digits == digits) {
            return line;
        }
    }
    throw std::invalid_argument("no mean line " + std::string(digits));
}

/// Height and slope of the camber line of the airfoil with these four or five digits.
inline Camber CamberOf(std::string_view digits, double x) {
    if (digits.size() == 5) {
        return FiveDigitCamber(MeanLineOf(digits.substr(0, 3)), x);
    }
    return FourDigitCamber((digits[0] - '0') / 100.0, (digits[1] - '0') / 10.0, x);
}

/// The thickness that the last two digits name.
inline double ThicknessOf(std::string_view digits) {
    const std::size_t tens = digits.size() - 2;
    return ((digits[tens] - '0') * 10 + (digits[tens + 1] - '0')) / 100.0;
}

/// The point of the airfoil that belongs to x on the camber line; `side` 1 is above it, -1 below.
inline Point SurfacePoint(std::string_view digits, double x, int side) {
    const Camber line = CamberOf(digits, x);
    const double angle = std::atan(line.slope);
    const double offset = side * HalfThickness(ThicknessOf(digits), x);
    return {x - offset * std::sin(angle), line.height + offset * std::cos(angle)};
}

/// The whole outline: from the trailing edge over the upper surface to the leading edge, which is
/// the middle point, and back below. Cosine spacing: the points crowd at both edges.
inline std::vector<Point> Outline(const Section &section) {
    std::vector<Point> points;
    for (int i = -section.intervals; i <= section.intervals; ++i) {
        const double turn = std::numbers::pi * std::abs(i) / section.intervals;
        points.push_back(
            SurfacePoint(section.digits, 0.5 * (1.0 - std::cos(turn)), i < 0 ? 1 : -1));
    }
    return points;
}

/// A coordinate in a column of its own: six decimals, and no minus in front of a zero.
inline std::string Column(double value) {
    const double rounded = std::round(value * 1e6) / 1e6 + 0.0;
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), rounded,
                                   std::chars_format::fixed, 6);
    const std::string text(digits.data(), end.ptr);
    constexpr std::size_t width = 10;
    return std::string(text.size() < width ? width - text.size() : 0, ' ') + text;
}

/// The airfoil file: the title line, then one point a line.
inline std::string FileText(const Section &section) {
    std::string text = "NACA " + std::string(section.digits) + '\n';
    for (const Point &point : Outline(section)) {
        text += Column(point.x) + Column(point.y) + '\n';
    }
    return text;
}

/// Name of the airfoil file within the library's folder.
inline std::string FileName(const Section &section) {
    return "naca" + std::string(section.digits) + ".dat";
}

} // namespace loftwing::naca
