#include "core/airfoil_import.h"

#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "core/airfoil_reader.h"
#include "core/contour.h"
#include "support/airfoil_folders.h"
#include "support/synthetic_airfoil.h"
#include "support/words.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <numbers>

namespace loftwing {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

namespace fs = std::filesystem;

constexpr const char *kRefusalWords = "[frmopen]\n1=Open\n11=A\n12=C\n16=D\n18=E\n";

/// How far `point` lies from the polygon through `line`, looked for everywhere.
double NaiveDistance(const PointList &x, const PointList &y, const CurvePoint &point) {
    double nearest = 1e9;
    for (long i = 1; i < x.Count(); ++i) {
        const double dx = x(i + 1) - x(i);
        const double dy = y(i + 1) - y(i);
        const double square = dx * dx + dy * dy;
        const double along =
            square == 0
                ? 0
                : std::clamp(((point.x - x(i)) * dx + (point.y - y(i)) * dy) / square, 0.0, 1.0);
        nearest =
            std::min(nearest, std::hypot(point.x - x(i) - along * dx, point.y - y(i) - along * dy));
    }
    return nearest;
}

std::string TextOfCurve(const Curve &points) {
    std::string text = "Section\n";
    for (const CurvePoint &point : points) {
        std::array<char, 80> line{};
        std::snprintf(line.data(), line.size(), "%.6f %.6f\n", point.x, point.y);
        text += line.data();
    }
    std::replace(text.begin(), text.end(), ',', '.');
    return text;
}

Curve Section(const SyntheticAirfoil &wanted) {
    const NaiveAirfoil made = MakeAirfoil(wanted);
    Curve points;
    for (std::size_t i = 1; i < made.x.size(); ++i) {
        points.push_back({made.x[i], made.y[i]});
    }
    return points;
}

class AirfoilImport : public testing::Test {
  protected:
    /// Opens an import as the user would open its file.
    void Open(const ImportedAirfoil &airfoil) {
        rib.CheminProfil = words.folder.File("import.dat", AirfoilFile(airfoil, "import"));
        ASSERT_EQ(FichierLecture(rib, words.messages, "Open").issue, Lecture::lu);
        ASSERT_EQ(PrepareContour(rib, words.messages), Preparation::complete);
    }
    /// The contour that is opened comes within the tolerance of all these points.
    void Passes(const Curve &points) const {
        for (const CurvePoint &point : points) {
            ASSERT_LE(NaiveDistance(rib.ContourX, rib.ContourY, point), kImportTolerance)
                << point.x << " " << point.y;
        }
    }

    Words words{kRefusalWords};
    RibModel rib;
};

TEST_F(AirfoilImport, PointsThatDrawASmoothContourAreKeptToTheLastDigit) {
    const std::string text = TextOfCurve(Section({0.12, 0.02, 0.4, 40, 40}));
    const ImportedAirfoil airfoil = ImportAirfoil(text);
    EXPECT_EQ(airfoil.laid, 0);
    EXPECT_FALSE(airfoil.scaled);
    ASSERT_TRUE(airfoil.before);
    EXPECT_EQ(*airfoil.before, airfoil.after);
    rib.CheminProfil = words.folder.File("own.dat", text);
    FichierLecture(rib, words.messages, "Open");
    PrepareContour(rib, words.messages);
    const PartiesRib own = rib.Partie<PartiesRib>();
    Open(airfoil);
    EXPECT_EQ(rib.ContourX.Values(), own.ContourX.Values());
    EXPECT_EQ(rib.ContourY.Values(), own.ContourY.Values());
    EXPECT_EQ(rib.EnteteProfil, "Section");
}

TEST_F(AirfoilImport, CoarsePointsAreLaidAnewOnACurveThroughThem) {
    const Curve points = Section({0.12, 0.02, 0.4, 7, 6});
    const ImportedAirfoil airfoil = ImportAirfoil(TextOfCurve(points));
    EXPECT_EQ(airfoil.laid, 160);
    EXPECT_EQ(airfoil.points.size(), 160U);
    EXPECT_LE(airfoil.after, kImportTolerance);
    EXPECT_TRUE(!airfoil.before || *airfoil.before > kImportTolerance);
    Open(airfoil);
    Passes(points);
    // What lies between the points is near the section that they were taken from.
    for (const CurvePoint &fine : Section({0.12, 0.02, 0.4, 60, 60})) {
        if (fine.x > 0.05) {
            EXPECT_LE(NaiveDistance(rib.ContourX, rib.ContourY, fine), 0.005) << fine.x;
        }
    }
}

TEST_F(AirfoilImport, AnyScaleBecomesTheChord) {
    Curve points = Section({0.12, 0.02, 0.4, 40, 40});
    Curve large = points;
    for (CurvePoint &point : large) {
        point = {25 + 180 * point.x, 180 * point.y};
    }
    const ImportedAirfoil airfoil = ImportAirfoil(TextOfCurve(large));
    EXPECT_TRUE(airfoil.scaled);
    Open(airfoil);
    Passes(points);
}

TEST_F(AirfoilImport, EndsThatAreNearlyAtOneAreSetThereAndNothingIsScaled) {
    Curve points = Section({0.12, 0.02, 0.4, 40, 40});
    points.front().x = 1.0004;
    points.back().x = 0.9996;
    const ImportedAirfoil airfoil = ImportAirfoil(TextOfCurve(points));
    EXPECT_FALSE(airfoil.scaled);
    EXPECT_EQ(airfoil.points.front().at.x, 1);
    EXPECT_EQ(airfoil.points.back().at.x, 1);
    EXPECT_EQ(airfoil.points[5].x, ImportAirfoil(TextOfCurve(points)).points[5].x);
    EXPECT_FALSE(airfoil.points[5].x.empty());
    points.front().x = 1.0006;
    EXPECT_TRUE(ImportAirfoil(TextOfCurve(points)).scaled);
}

TEST_F(AirfoilImport, WhatReachesTheEndBetweenTheEndsIsDropped) {
    Curve points = Section({0.12, 0.02, 0.4, 40, 40});
    points.insert(points.begin() + 1, {1.0002, 0.0001});
    const ImportedAirfoil airfoil = ImportAirfoil(TextOfCurve(points));
    EXPECT_EQ(airfoil.dropped, 1);
    Open(airfoil);
    EXPECT_EQ(rib.NbPoints, 81);
}

TEST_F(AirfoilImport, PointsThatMeetWhereOneBetweenThemIsDroppedAreOne) {
    Curve points = Section({0.12, 0.02, 0.4, 40, 40});
    const CurvePoint second = points[1];
    points.insert(points.begin() + 2, {{1.0002, 0.0001}, second});
    const ImportedAirfoil airfoil = ImportAirfoil(TextOfCurve(points));
    EXPECT_EQ(airfoil.dropped, 2);
    Open(airfoil);
    EXPECT_EQ(rib.NbPoints, 81);
}

// Two points that only a thirteenth decimal tells apart have no direction between them.
TEST_F(AirfoilImport, PointsThatAFileCantTellApartAreOne) {
    std::vector<std::string> lines = SplitLines(TextOfCurve(Section({0.12, 0.02, 0.4, 40, 40})));
    constexpr std::size_t kEnd = 81; // behind the title
    for (const std::size_t at : {kEnd, std::size_t{60}, std::size_t{20}, std::size_t{1}}) {
        const std::string &line = lines[at];
        const std::string beside = at == 1 || at == kEnd
                                       ? "0.9999999999999" + line.substr(8)
                                       : line.substr(0, 8) + "0000001" + line.substr(8);
        lines.insert(lines.begin() + static_cast<long>(at == 1 ? 2 : at), beside);
    }
    std::string text;
    for (const std::string &line : lines) {
        text += line + "\n";
    }
    const ImportedAirfoil airfoil = ImportAirfoil(text);
    EXPECT_EQ(airfoil.dropped, 4);
    EXPECT_EQ(airfoil.laid, 0);
    Open(airfoil);
    EXPECT_EQ(rib.NbPoints, 81);
}

TEST_F(AirfoilImport, LevelTurnsTheTrailingEdgeOntoTheReferenceLine) {
    Curve points = Section({0.12, 0.02, 0.4, 40, 40});
    const double angle = 0.05;
    for (CurvePoint &point : points) {
        point = {point.x * std::cos(angle) - point.y * std::sin(angle),
                 point.x * std::sin(angle) + point.y * std::cos(angle)};
    }
    EXPECT_EQ(ImportAirfoil(TextOfCurve(points)).turned, 0);
    ImportWishes wishes;
    wishes.level = true;
    const ImportedAirfoil airfoil = ImportAirfoil(TextOfCurve(points), wishes);
    EXPECT_NEAR(airfoil.turned, -angle * 180 / std::acos(-1.0), 0.05);
    EXPECT_NEAR((airfoil.points.front().at.y + airfoil.points.back().at.y) / 2, 0, 1e-9);
    EXPECT_EQ(airfoil.points.front().at.x, 1);
}

TEST_F(AirfoilImport, MorePointsThanTheProgramCountsAreLaidAnew) {
    Curve many; // NACA 0012
    constexpr int kEach = 17000;
    for (int i = -kEach; i <= kEach; ++i) {
        const double x = (1 - std::cos(std::numbers::pi * i / kEach)) / 2;
        const double y = 0.6 * (0.2969 * std::sqrt(x) - 0.126 * x - 0.3516 * x * x +
                                0.2843 * x * x * x - 0.1036 * x * x * x * x);
        many.push_back({x, i < 0 ? y : -y});
    }
    const ImportedAirfoil airfoil = ImportAirfoil(TextOfCurve(many));
    EXPECT_EQ(airfoil.laid, 160);
    EXPECT_LE(airfoil.after, kImportTolerance);
    EXPECT_FALSE(airfoil.before);
}

TEST_F(AirfoilImport, AsManyPointsAsAskedForAreLaid) {
    const Curve points = Section({0.12, 0.02, 0.4, 40, 40});
    for (const int count : {60, 61, 200}) {
        ImportWishes wishes;
        wishes.points = count;
        const ImportedAirfoil airfoil = ImportAirfoil(TextOfCurve(points), wishes);
        EXPECT_EQ(airfoil.laid, count);
        Open(airfoil);
        EXPECT_EQ(rib.NbPoints, count);
    }
    Passes(points); // with enough of them
}

TEST_F(AirfoilImport, LaidPointsAreDenseAtBothEndsOfEachSurface) {
    const ImportedAirfoil airfoil = ImportAirfoil(TextOfCurve(Section({0.12, 0.02, 0.4, 7, 6})));
    const std::vector<ImportPoint> &points = airfoil.points;
    const std::size_t nose = NoseOf(points);
    EXPECT_NEAR(static_cast<double>(nose), 79, 1);
    EXPECT_NEAR(points[nose].at.x, 0, 0.0005);
    // By the cosine the first step is (1 - cos(pi / 79)) / 2 of the surface, the middle one
    // sin(pi / 2) pi / 158.
    const double surface = 1.03;
    EXPECT_NEAR(points[0].at.x - points[1].at.x, 0.000395 * surface, 0.0001);
    EXPECT_NEAR(points[39].at.x - points[40].at.x, 0.0199 * surface, 0.002);
}

TEST_F(AirfoilImport, TheFileHasATitleThatOpensAsOne) {
    const Curve points = Section({0.12, 0.02, 0.4, 40, 40});
    const auto title = [&](const std::string &line) {
        std::string text = TextOfCurve(points);
        const ImportedAirfoil airfoil = ImportAirfoil(text.replace(0, text.find('\n'), line));
        const std::string file = AirfoilFile(airfoil, "name");
        return file.substr(0, file.find("\r\n"));
    };
    EXPECT_EQ(title("My section"), "My section");
    EXPECT_EQ(title(""), "name");
    EXPECT_EQ(title("2412"), "name 2412");
    EXPECT_EQ(title("AG 35: by somebody"), "AG 35  by somebody");
    EXPECT_EQ(title("naca2412 : 150.5"), "naca2412 : 150.5");
    EXPECT_EQ(title("naca2412 : 0"), "naca2412   0");
}

TEST_F(AirfoilImport, TheDeviationOfAnAirfoilAsReadIsThatOfItsImport) {
    for (const int segments : {7, 14, 40}) {
        const std::string text = TextOfCurve(Section({0.12, 0.02, 0.4, segments, segments}));
        rib.CheminProfil = words.folder.File("read.dat", text);
        FichierLecture(rib, words.messages, "Open");
        const auto deviation = ContourDeviation(rib);
        const ImportedAirfoil airfoil = ImportAirfoil(text);
        ASSERT_EQ(deviation.has_value(), airfoil.before.has_value());
        if (deviation) {
            EXPECT_DOUBLE_EQ(*deviation, *airfoil.before);
        }
    }
}

/// A polyline as two lists.
std::pair<PointList, PointList> ListsOf(const Curve &line) {
    std::pair<PointList, PointList> lists;
    for (const CurvePoint &point : line) {
        lists.first.Append(point.x);
        lists.second.Append(point.y);
    }
    return lists;
}

/// How far the rib's contour leaves the spline through its points, or these.
double NaiveDeviation(const Profil &rib) {
    Curve points;
    for (long i = 1; i <= rib.NbPoints; ++i) {
        points.push_back({rib.ProfilX(i), rib.ProfilY(i)});
    }
    const auto [x, y] = ListsOf(NaturalSpline(points).Sampled(40));
    double worst = 0;
    for (long i = 1; i <= rib.NbContour; ++i) {
        worst = std::max(worst, NaiveDistance(x, y, {rib.ContourX(i), rib.ContourY(i)}));
    }
    for (const CurvePoint &point : points) {
        worst = std::max(worst, NaiveDistance(rib.ContourX, rib.ContourY, point));
    }
    return worst;
}

TEST_F(AirfoilImport, TheDeviationIsTheGreatestDistanceWhereverItIs) {
    for (const int segments : {8, 11, 14, 20, 40}) {
        for (const double camber : {0.0, 0.04}) {
            SCOPED_TRACE(std::to_string(segments) + " " + std::to_string(camber));
            rib.CheminProfil = words.folder.File(
                "read.dat", TextOfCurve(Section({0.12, camber, 0.4, segments, segments + 1})));
            FichierLecture(rib, words.messages, "Open");
            if (PrepareContour(rib, words.messages) != Preparation::complete) {
                continue;
            }
            const double naive = NaiveDeviation(rib);
            const auto deviation = MadeContourDeviation(rib);
            ASSERT_TRUE(deviation);
            EXPECT_NEAR(*deviation, naive, 1e-14);
            EXPECT_EQ(ContourDeviation(rib), deviation);
            // What is no more than that is not looked for.
            EXPECT_EQ(MadeContourDeviation(rib, *deviation / 2), deviation);
            EXPECT_EQ(MadeContourDeviation(rib, *deviation * 2), *deviation * 2);
            EXPECT_EQ(ContourDeviation(rib, *deviation * 2), *deviation * 2);
        }
    }
}

TEST_F(AirfoilImport, NothingDeviatesWhereNoContourIs) {
    rib.CheminProfil = words.folder.File("read.dat", "Section\n1 0\n0.5 0.1\n0 0\n0.5 0\n1 0\n");
    FichierLecture(rib, words.messages, "Open");
    EXPECT_EQ(ContourDeviation(rib), std::nullopt);
    EXPECT_EQ(ContourDeviation(rib, 1), std::nullopt);
    EXPECT_EQ(MadeContourDeviation(Profil{}), std::nullopt);
}

TEST_F(AirfoilImport, EveryFileOfTheLargeCollectionCanBeImported) {
    const std::vector<fs::path> files = LargeCollection();
    if (files.empty()) {
        GTEST_SKIP() << kNoCollection;
    }
    for (const fs::path &path : files) {
        SCOPED_TRACE(path.string());
        const ImportedAirfoil airfoil = ImportAirfoil(ReadWholeFile(path.string()));
        EXPECT_LE(airfoil.after, kImportTolerance);
        Open(airfoil);
        Passes(airfoil.file);
    }
}

} // namespace
} // namespace loftwing
