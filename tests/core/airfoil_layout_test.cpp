#include "core/airfoil_layout.h"

#include "support/synthetic_airfoil.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <optional>

namespace loftwing {
namespace {

using testing::Optional;

/// A cambered section without a closed trailing edge, from its upper to its lower end.
Curve Section() {
    const NaiveAirfoil made = MakeAirfoil({0.12, 0.03, 0.4, 12, 10});
    Curve points;
    for (std::size_t i = 1; i < made.x.size(); ++i) {
        points.push_back({made.x[i], made.y[i]});
    }
    points.front().y = 0.002;
    points.back().y = -0.001;
    return points;
}

constexpr std::ptrdiff_t kNose = 12;

TableRow Row(const std::vector<double> &values, int line) {
    TableRow row{values, {}, line};
    for (const double value : values) {
        row.texts.push_back(std::to_string(value));
    }
    return row;
}

CoordinateTable TableOf(const Curve &points) {
    CoordinateTable table;
    for (const CurvePoint &point : points) {
        table.rows.push_back(Row({point.x, point.y}, static_cast<int>(table.rows.size()) + 2));
    }
    return table;
}

Curve PointsOfLoop(const AirfoilLoop &loop) {
    Curve points;
    for (const ImportPoint &point : loop.points) {
        points.push_back(point.at);
    }
    return points;
}

Curve Reversed(Curve points) {
    std::reverse(points.begin(), points.end());
    return points;
}

Curve Together(Curve one, const Curve &other) {
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

std::optional<ImportReason> RefusalOf(const CoordinateTable &table, int *line = nullptr) {
    try {
        LayOutAirfoil(table);
    } catch (const ImportRefusal &refusal) {
        if (line != nullptr) {
            *line = refusal.line;
        }
        return refusal.reason;
    }
    return std::nullopt;
}

class AirfoilLayout : public testing::Test {
  protected:
    void Gives(const CoordinateTable &table, FileOrder order) {
        const AirfoilLoop loop = LayOutAirfoil(table);
        EXPECT_EQ(loop.order, order);
        EXPECT_EQ(PointsOfLoop(loop), section);
    }
    void Gives(const Curve &points, FileOrder order) { Gives(TableOf(points), order); }

    const Curve section = Section();
    /// From the nose to the trailing edge.
    const Curve upper = Reversed({section.begin(), section.begin() + kNose + 1});
    const Curve lower{section.begin() + kNose, section.end()};
};

TEST_F(AirfoilLayout, PointsMayRunEitherWayAround) {
    Gives(section, FileOrder::selig);
    Gives(Reversed(section), FileOrder::reversed);
}

TEST_F(AirfoilLayout, ListsMayComeInAnyOrderAndRunEitherWay) {
    for (const Curve &one : {upper, Reversed(upper)}) {
        for (const Curve &other : {lower, Reversed(lower)}) {
            const bool around = one.back() == other.front();
            const bool from_nose = one.back().x == 1 && other.front().x == 1;
            if (!around && !from_nose) {
                Gives(Together(one, other), FileOrder::lists);
            }
            if (!(one.front() == other.back()) && !(other.back().x == 1 && one.front().x == 1)) {
                Gives(Together(other, one), FileOrder::lists);
            }
        }
    }
}

TEST_F(AirfoilLayout, ACurveMayBeginAtTheNose) {
    const AirfoilLoop loop = LayOutAirfoil(TableOf(Together(upper, Reversed(lower))));
    EXPECT_EQ(loop.order, FileOrder::rotated);
    EXPECT_EQ(PointsOfLoop(loop), section);
}

TEST_F(AirfoilLayout, AClosedCurveMayBeginAnywhere) {
    for (std::ptrdiff_t first = 3; first + 3 < static_cast<std::ptrdiff_t>(section.size());
         ++first) {
        Curve turned = section;
        std::rotate(turned.begin(), turned.begin() + first, turned.end());
        EXPECT_EQ(PointsOfLoop(LayOutAirfoil(TableOf(turned))), section) << first;
    }
}

TEST_F(AirfoilLayout, CountsMayStandInFrontOfTwoLists) {
    CoordinateTable table = TableOf(Together(upper, lower));
    table.rows.insert(table.rows.begin(), Row({13, 11}, 1));
    Gives(table, FileOrder::lists);
    table.rows.front() = Row({14, 9}, 1); // wrong ones do no harm
    Gives(table, FileOrder::lists);
}

TEST_F(AirfoilLayout, ThePlottingWindowOfAnotherProgramIsNoPoint) {
    CoordinateTable table = TableOf(section);
    table.rows.insert(table.rows.begin(), Row({-2, 3, -2.5, 3.5}, 1));
    Gives(table, FileOrder::selig);
}

TEST_F(AirfoilLayout, ColumnsGiveBothSurfaces) {
    const Curve both = {{0, 0}, {0.1, 0.05}, {0.4, 0.09}, {0.8, 0.04}, {1, 0.01}};
    CoordinateTable table;
    for (const CurvePoint &point : both) {
        table.rows.push_back(Row({point.x, point.y, -point.y / 2}, 1));
    }
    const Curve wanted = {{1, 0.01},     {0.8, 0.04},   {0.4, 0.09},  {0.1, 0.05}, {0, 0},
                          {0.1, -0.025}, {0.4, -0.045}, {0.8, -0.02}, {1, -0.005}};
    const AirfoilLoop loop = LayOutAirfoil(table);
    EXPECT_EQ(loop.order, FileOrder::columns);
    EXPECT_EQ(PointsOfLoop(loop), wanted);
    std::reverse(table.rows.begin(), table.rows.end());
    EXPECT_EQ(PointsOfLoop(LayOutAirfoil(table)), wanted);
}

TEST_F(AirfoilLayout, NumbersOfPointsAndADepthOfZeroAreLeftOut) {
    CoordinateTable numbered = TableOf(section);
    CoordinateTable deep = TableOf(section);
    double number = 0;
    for (TableRow &row : numbered.rows) {
        row.values.insert(row.values.begin(), ++number);
        row.texts.insert(row.texts.begin(), "n");
    }
    for (TableRow &row : deep.rows) {
        row.values.push_back(0);
        row.texts.push_back("0");
    }
    Gives(numbered, FileOrder::selig);
    Gives(deep, FileOrder::selig);
}

TEST_F(AirfoilLayout, RepeatedPointsAreDropped) {
    Curve doubled;
    for (const CurvePoint &point : section) {
        doubled.push_back(point);
        doubled.push_back(point);
    }
    const AirfoilLoop loop = LayOutAirfoil(TableOf(doubled));
    EXPECT_EQ(PointsOfLoop(loop), section);
    EXPECT_EQ(loop.dropped, static_cast<int>(section.size()));
}

TEST_F(AirfoilLayout, ABluntTrailingEdgeThatIsClosedIsOpened) {
    Curve closed = section;
    closed.push_back(section.front());
    Gives(closed, FileOrder::selig);
}

TEST_F(AirfoilLayout, ASurfaceThatStopsShortIsProlonged) {
    Curve shorter(section.begin(), section.end() - 1);
    const CurvePoint a = shorter[shorter.size() - 2];
    const CurvePoint b = shorter.back();
    AirfoilLoop loop = LayOutAirfoil(TableOf(shorter));
    EXPECT_EQ(loop.added, 1);
    ASSERT_EQ(loop.points.size(), section.size());
    EXPECT_EQ(loop.points.back().at.x, 1);
    EXPECT_NEAR(loop.points.back().at.y, b.y + (b.y - a.y) / (b.x - a.x) * (1 - b.x), 1e-12);
    shorter.erase(shorter.end() - 2, shorter.end()); // more is missing: to where the other one ends
    loop = LayOutAirfoil(TableOf(shorter));
    EXPECT_EQ(loop.points.back().at, section.front());
    shorter = {section.begin() + 1, section.end()};
    loop = LayOutAirfoil(TableOf(shorter));
    EXPECT_EQ(loop.points.size(), section.size());
    EXPECT_EQ(loop.points.front().at.x, 1);
}

TEST_F(AirfoilLayout, WhatIsNoAirfoilIsRefusedWithReasonAndLine) {
    int line = 0;
    EXPECT_THAT(RefusalOf(TableOf({{1, 0}, {0.5, 0.1}, {0, 0}, {1, 0}})),
                Optional(ImportReason::too_few_points));
    EXPECT_THAT(RefusalOf({}), Optional(ImportReason::too_few_points));
    EXPECT_THAT(RefusalOf(TableOf(Curve(9, {1, 1}))), Optional(ImportReason::too_few_points));
    EXPECT_THAT(RefusalOf(TableOf(upper), &line), Optional(ImportReason::one_surface));
    EXPECT_EQ(line, 2); // where the nose is, and nothing leads to it
    EXPECT_THAT(RefusalOf(TableOf(Together(Together(upper, lower), lower)), &line),
                Optional(ImportReason::several_curves));
    EXPECT_EQ(line, 2 + 13 + 11);
    EXPECT_THAT(RefusalOf(TableOf({{1, 0}, {1, 1}, {1, 2}, {1, 3}, {1, 4}})),
                Optional(ImportReason::no_chord));
    EXPECT_THAT(RefusalOf(TableOf({{1, 0}, {0.5, 2}, {0, 0}, {0.4, -1}, {1, 0}})),
                Optional(ImportReason::no_chord));
}

TEST_F(AirfoilLayout, MoreRowsThanAnAirfoilMayHaveAreRefused) {
    CoordinateTable table = TableOf(section);
    const TableRow nose = table.rows[kNose];
    table.rows.insert(table.rows.begin() + kNose, kMostRows - table.rows.size(), nose);
    EXPECT_EQ(table.rows.size(), kMostRows);
    EXPECT_EQ(LayOutAirfoil(table).points.size(), section.size()); // repeated points are dropped
    table.rows.insert(table.rows.begin() + kNose, nose);
    EXPECT_THAT(RefusalOf(table), Optional(ImportReason::too_many_points));
}

TEST_F(AirfoilLayout, PointsThatGoBackAndForthAreRefused) {
    Curve wild = section;
    for (std::size_t i = 1; i + 1 < wild.size(); ++i) {
        wild[i].x = 0.25 + 0.5 * wild[i].x + (i % 2 == 0 ? 0.15 : -0.15);
    }
    int line = 0;
    EXPECT_THAT(RefusalOf(TableOf(wild), &line), Optional(ImportReason::noise));
    EXPECT_GT(line, 0);
}

TEST_F(AirfoilLayout, SurfacesThatCrossAlongTheChordAreRefused) {
    Curve crossed;
    for (int i = 20; i >= 0; --i) {
        crossed.push_back({i / 20.0, i % 2 == 0 ? 0.05 : -0.04});
    }
    for (int i = 1; i <= 20; ++i) {
        crossed.push_back({i / 20.0, i % 2 == 0 ? -0.05 : 0.04});
    }
    EXPECT_THAT(RefusalOf(TableOf(crossed)), Optional(ImportReason::crossing));
}

} // namespace
} // namespace loftwing
