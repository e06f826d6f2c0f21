// The bundled airfoil library: what its generator computes, and what lies in its folder.

#include "../../tools/naca_series.h"

#include "core/airfoil_reader.h"
#include "core/contour.h"
#include "support/scripted_platform.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace loftwing {
namespace {

const std::filesystem::path kFolder =
    std::filesystem::path(LOFTWING_SOURCE_DIR) / "resources" / "airfoils";

std::string ReadFile(const std::filesystem::path &path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

/// The points of a file, read the simplest way: its title skipped, two numbers a line.
std::vector<naca::Point> PointsIn(const std::string &text) {
    std::istringstream lines(text);
    lines.imbue(std::locale::classic());
    std::string title;
    std::getline(lines, title);
    std::vector<naca::Point> points;
    for (naca::Point point{}; lines >> point.x >> point.y;) {
        points.push_back(point);
    }
    return points;
}

class BundledAirfoil : public testing::TestWithParam<naca::Section> {
  protected:
    std::filesystem::path Path() const { return kFolder / naca::FileName(GetParam()); }
    std::string Text() const { return ReadFile(Path()); }
};

INSTANTIATE_TEST_SUITE_P(Library, BundledAirfoil, testing::ValuesIn(naca::kLibrary),
                         [](const auto &it) { return std::string(it.param.digits); });

TEST_P(BundledAirfoil, IsWhatTheGeneratorComputes) {
    EXPECT_EQ(Text(), naca::FileText(GetParam())) << Path();
}

TEST_P(BundledAirfoil, HasATitleThatGivesNoChord) {
    const std::string title = Text().substr(0, Text().find('\n'));
    EXPECT_EQ(title, "NACA " + std::string(GetParam().digits));
}

TEST_P(BundledAirfoil, HasNothingButTitleAndPoints) {
    EXPECT_EQ(Text().find("\n\n"), std::string::npos);
    EXPECT_EQ(Text().find_first_of("\r\t"), std::string::npos);
    const auto lines = std::ranges::count(Text(), '\n');
    EXPECT_EQ(static_cast<std::size_t>(lines), PointsIn(Text()).size() + 1);
}

TEST_P(BundledAirfoil, Has60To120PointsClosedAtTheTrailingEdge) {
    const auto points = PointsIn(Text());
    ASSERT_GE(points.size(), 60U);
    ASSERT_LE(points.size(), 120U);
    EXPECT_EQ(points.front().x, 1.0);
    EXPECT_EQ(points.back().x, 1.0);
    EXPECT_EQ(points.front().y, 0.0);
    EXPECT_EQ(points.back().y, 0.0);
    for (std::size_t i = 1; i + 1 < points.size(); ++i) {
        EXPECT_LT(points[i].x, 1.0) << "point " << i;
    }
}

TEST_P(BundledAirfoil, HasItsLeadingEdgeInTheMiddleAndTheUpperSurfaceFirst) {
    const auto points = PointsIn(Text());
    const std::size_t middle = points.size() / 2;
    EXPECT_EQ(points.at(middle).x, 0.0);
    EXPECT_EQ(points.at(middle).y, 0.0);
    EXPECT_GT(points.at(middle / 2).y, points.at(middle + middle / 2).y);
}

// The contour is followed along x; a step of 0 would be a failure there.
TEST_P(BundledAirfoil, MovesOnAlongXFromEachPointToTheNext) {
    const auto points = PointsIn(Text());
    ASSERT_FALSE(points.empty());
    for (std::size_t i = 1; i < points.size(); ++i) {
        EXPECT_NE(points[i].x, points[i - 1].x) << "point " << i;
    }
}

// Around the nose it is followed along y, with six points at a time.
TEST_P(BundledAirfoil, HasSixDifferentHeightsInARowAroundTheNose) {
    const auto points = PointsIn(Text());
    const std::size_t middle = points.size() / 2;
    ASSERT_GE(middle, 8U);
    for (std::size_t first = middle - 8; first + 5 <= middle + 8; ++first) {
        std::set<double> heights;
        for (std::size_t i = first; i < first + 6; ++i) {
            heights.insert(points[i].y);
        }
        EXPECT_EQ(heights.size(), 6U) << "from point " << first;
    }
}

TEST_P(BundledAirfoil, OpensWithoutABoxAndIsAsThickAsItsDigitsSay) {
    ScriptedPlatform platform;
    const LngIni language;
    const Messages messages{platform, language};
    RibModel rib;
    rib.SansApercu = true;
    rib.CheminProfil = Path().string();
    ASSERT_EQ(FichierLecture(rib, messages, "").issue, Lecture::lu);
    EXPECT_EQ(PrepareContour(rib, messages), Preparation::complete);
    EXPECT_TRUE(platform.boxes.empty());

    const std::string digits(GetParam().digits);
    const double thickness = std::stoi(digits.substr(digits.size() - 2)) / 100.0;
    EXPECT_NEAR(rib.EpMaxi, thickness, 0.002);
}

TEST(AirfoilLibrary, HoldsEachFileOfTheListAndNoOther) {
    std::set<std::string> listed;
    for (const naca::Section &section : naca::kLibrary) {
        listed.insert(naca::FileName(section));
    }
    std::set<std::string> present;
    for (const auto &entry : std::filesystem::directory_iterator(kFolder)) {
        present.insert(entry.path().filename().string());
    }
    EXPECT_EQ(present, listed);
    EXPECT_EQ(listed.size(), naca::kLibrary.size());
}

const naca::Section &SectionNamed(std::string_view digits) {
    for (const naca::Section &section : naca::kLibrary) {
        if (section.digits == digits) {
            return section;
        }
    }
    throw std::invalid_argument("not in the library");
}

/// The points of a file, above and below, whose place on the camber line is a quarter of the chord:
/// with cosine spacing they lie a third of the way from the leading edge.
std::array<naca::Point, 2> AtAQuarter(std::string_view digits) {
    const naca::Section &section = SectionNamed(digits);
    EXPECT_EQ(section.intervals % 3, 0);
    const auto points = PointsIn(ReadFile(kFolder / naca::FileName(section)));
    const auto middle = static_cast<std::size_t>(section.intervals);
    return {points.at(middle - middle / 3), points.at(middle + middle / 3)};
}

constexpr double kLastPlace = 0.51e-6; // half of the files' last decimal

// 0.6 (0.2969 * 0.5 - 0.1260 * 0.25 - 0.3516 * 0.0625 + 0.2843 * 0.015625 - 0.1036 * 0.00390625)
// = 0.6 * 0.0990125 is half of the thickness of a 12 % airfoil at a quarter of the chord.
constexpr double kHalfOf12Percent = 0.0594075;

TEST(AirfoilGenerator, SymmetricalAirfoilLiesHalfItsThicknessAboveAndBelow) {
    const auto [upper, lower] = AtAQuarter("0012");
    EXPECT_NEAR(upper.x, 0.25, kLastPlace);
    EXPECT_NEAR(upper.y, kHalfOf12Percent, kLastPlace);
    EXPECT_NEAR(lower.x, 0.25, kLastPlace);
    EXPECT_NEAR(lower.y, -kHalfOf12Percent, kLastPlace);
}

// Camber at a quarter: 0.02 / 0.16 * (0.2 - 0.0625) = 0.0171875, slope 0.25 * 0.15 = 0.0375: its
// cosine is 1 / sqrt(1.00140625) = 0.999297616, its sine 0.037473661.
TEST(AirfoilGenerator, FourDigitThicknessStandsAtRightAnglesToTheCamberLine) {
    const auto [upper, lower] = AtAQuarter("2412");
    EXPECT_NEAR(upper.x, 0.25 - 0.002226217, kLastPlace);
    EXPECT_NEAR(upper.y, 0.0171875 + 0.059365773, kLastPlace);
    EXPECT_NEAR(lower.x, 0.25 + 0.002226217, kLastPlace);
    EXPECT_NEAR(lower.y, 0.0171875 - 0.059365773, kLastPlace);
}

// Behind 0.2025 the camber line falls straight with the slope 15.957 * 0.2025^3 / 6 = 0.022083865:
// 0.016562899 at a quarter, sine 0.022078482, cosine 0.999756241.
TEST(AirfoilGenerator, FiveDigitCamberFallsStraightBehindItsJoint) {
    const auto [upper, lower] = AtAQuarter("23012");
    EXPECT_NEAR(upper.x, 0.25 + 0.001311627, kLastPlace);
    EXPECT_NEAR(upper.y, 0.016562899 + 0.059393019, kLastPlace);
    EXPECT_NEAR(lower.x, 0.25 - 0.001311627, kLastPlace);
    EXPECT_NEAR(lower.y, 0.016562899 - 0.059393019, kLastPlace);
}

// 2.6595 ((-0.1025)^3 + 0.9 * 0.008303765625) and its derivative
// 2.6595 (3 * 0.1025^2 - 0.008303765625).
TEST(AirfoilGenerator, FiveDigitCamberIsACubicBeforeItsJoint) {
    const naca::Camber camber = naca::CamberOf("23012", 0.1);
    EXPECT_NEAR(camber.height, 0.0170114876, 1e-9);
    EXPECT_NEAR(camber.slope, 0.0617402509, 1e-9);
}

// With 0.783^3 = 0.480048687 and 0.217^3 = 0.010218313: 15.793 / 6 *
// (0.00677 * 0.383^3 - 0.00677 * 0.480048687 * 0.6 + 0.010218313 * 0.4), and for the slope
// 15.793 / 6 * (3 * 0.00677 * 0.383^2 - 0.00677 * 0.480048687 - 0.010218313).
TEST(AirfoilGenerator, ReflexedCamberGoesOnAsAWeakCubicBehindItsJoint) {
    const naca::Camber camber = naca::CamberOf("23112", 0.6);
    EXPECT_NEAR(camber.height, 0.0066270555, 1e-9);
    EXPECT_NEAR(camber.slope, -0.0276087673, 1e-9);
}

// 0.04 / 0.36 * (0.2 + 0.56 - 0.49) = 0.03; 0.08 / 0.36 * (0.4 - 0.7) = -1/15.
TEST(AirfoilGenerator, FourDigitCamberFallsAsASecondParabolaBehindItsCrest) {
    const naca::Camber camber = naca::CamberOf("4412", 0.7);
    EXPECT_NEAR(camber.height, 0.03, 1e-15);
    EXPECT_NEAR(camber.slope, -1.0 / 15.0, 1e-15);
}

TEST(AirfoilGenerator, CrestOfTheFourDigitCamberIsItsFirstDigit) {
    EXPECT_NEAR(naca::CamberOf("6409", 0.4).height, 0.06, 1e-15);
    EXPECT_NEAR(naca::CamberOf("6409", 0.4).slope, 0.0, 1e-15);
}

TEST(AirfoilGenerator, EveryCamberLineBeginsAndEndsOnTheChordLine) {
    for (const naca::Section &section : naca::kLibrary) {
        EXPECT_NEAR(naca::CamberOf(section.digits, 0.0).height, 0.0, 1e-15) << section.digits;
        EXPECT_NEAR(naca::CamberOf(section.digits, 1.0).height, 0.0, 1e-15) << section.digits;
    }
}

TEST(AirfoilGenerator, RefusesAMeanLineThatTheSeriesHasNot) {
    EXPECT_THROW(naca::CamberOf("26012", 0.5), std::invalid_argument);
}

TEST(AirfoilGenerator, ColumnsAreTenWideAndAZeroHasNoSign) {
    EXPECT_EQ(naca::Column(1.0), "  1.000000");
    EXPECT_EQ(naca::Column(-0.0421782), " -0.042178");
    EXPECT_EQ(naca::Column(-0.0000004), "  0.000000");
}

} // namespace
} // namespace loftwing
