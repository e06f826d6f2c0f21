#include "output/plan_fixture.h"
#include "support/failures.h"

#include <gtest/gtest.h>

#include <limits>

namespace loftwing {
namespace {

// A4 with margins of 10 has room for 277 x 190 and goes on by 267 x 180.
TEST(PlanGrid, CountsSheetsByTheirSteps) {
    const auto grid = QuadrillageDe(PlanByHand(), {});
    ASSERT_TRUE(grid);
    EXPECT_EQ(grid->colonnes, 2);
    EXPECT_EQ(grid->rangees, 2); // 195.095 mm
    EXPECT_EQ(grid->pas_x, 267);
    EXPECT_EQ(grid->pas_y, 180);
}

// Lines are 0.18 mm wide, half of which is beyond the ends of the drawing.
TEST(PlanGrid, ADrawingThatJustFitsTakesNoMore) {
    const auto columns = [](double width) {
        return QuadrillageDe(OneLine({-5, 0}, {width - 5, -100}), {})->colonnes;
    };
    EXPECT_EQ(columns(1), 1);
    EXPECT_EQ(columns(276.82), 1);
    EXPECT_EQ(columns(276.83), 2);
    EXPECT_EQ(columns(276.82 + 267), 2);
    EXPECT_EQ(columns(276.83 + 267), 3);
    const auto rows = [](double height) {
        return QuadrillageDe(OneLine({0, 0}, {10, -height}), {})->rangees;
    };
    EXPECT_EQ(rows(189.82 + 3 * 180), 4);
    EXPECT_EQ(rows(189.83 + 3 * 180), 5);
    EXPECT_EQ(QuadrillageDe(OneLine({0, 0}, {800, 0}), {297, 210, 0, 0})->colonnes, 3);
}

TEST(PlanGrid, RefusesSheetsWithoutAStep) {
    const DessinPlan plan = PlanByHand();
    EXPECT_TRUE(QuadrillageDe(plan, {297, 210, 90, 10}));
    EXPECT_FALSE(QuadrillageDe(plan, {297, 210, 100, 10}));
    EXPECT_FALSE(QuadrillageDe(plan, {297, 210, 10, 190}));
    EXPECT_FALSE(QuadrillageDe(plan, {210, 297, 10, 190}));
    EXPECT_FALSE(QuadrillageDe(plan, {297, 210, -1, 10}));
    EXPECT_FALSE(QuadrillageDe(plan, {297, 210, 10, -1}));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(QuadrillageDe(plan, {nan, 210, 10, 10}));
    EXPECT_FALSE(QuadrillageDe(plan, {297, inf, 10, 10}));
    EXPECT_FALSE(QuadrillageDe(plan, {297, 210, nan, 10}));
    EXPECT_FALSE(QuadrillageDe(plan, {297, 210, 10, nan}));
}

TEST(PlanGrid, RefusesMoreThanFourHundredSheets) {
    const auto wide = [](int columns) { return OneLine({0, 0}, {columns * 267.0, -3500}); };
    const auto most = QuadrillageDe(wide(20), {}); // 3500 mm are 20 rows
    ASSERT_TRUE(most);
    EXPECT_EQ(most->colonnes, 20);
    EXPECT_EQ(most->rangees, 20);
    EXPECT_FALSE(QuadrillageDe(wide(21), {}));
    EXPECT_FALSE(QuadrillageDe(OneLine({0, 0}, {1e300, 1e300}), {}));
    EXPECT_TRUE(FeuillesDuPlan(wide(21), {}).empty());
}

TEST(PlanGrid, NothingTakesNoSheet) {
    EXPECT_FALSE(QuadrillageDe({}, {}));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(FailureOf([&] { QuadrillageDe(OneLine({0, 0}, {1, nan}), {}); }), 6);
}

std::string NamesOf(const DessinPlan &plan) {
    std::string names;
    for (const FeuillePlan &sheet : FeuillesDuPlan(plan, {})) {
        names += NomFeuillePlan(sheet.colonne, sheet.rangee) + " ";
    }
    return names;
}

TEST(PlanGrid, SheetsThatNothingIsDrawnOnAreLeftOut) {
    // An angle of two lines leaves the sheets within it white; a slanting line those off it;
    // where four overlap it is on all of them.
    DessinPlan angle = OneLine({0, 0}, {600, 0});
    angle.traits.push_back({CouchePlan::contour, {{0, 0}, {0, -400}}, false});
    EXPECT_EQ(NamesOf(angle), "A1 B1 C1 A2 A3 ");
    EXPECT_EQ(NamesOf(OneLine({0, 0}, {800, -540})), "A1 B1 A2 B2 C2 B3 C3 ");
    // Closed: the line back goes along the slanting edge.
    DessinPlan closed;
    closed.traits = {{CouchePlan::contour, {{0, 0}, {0, -500}, {750, -500}}, true}};
    DessinPlan open = closed;
    open.traits[0].ferme = false;
    EXPECT_EQ(NamesOf(open), "A1 A2 A3 B3 C3 ");
    EXPECT_EQ(NamesOf(closed), "A1 B1 A2 B2 C2 A3 B3 C3 ");
    // Letters count too.
    angle.textes = {{CouchePlan::cote, {310, -280}, 3, "text", AppuiTexte::gauche}};
    EXPECT_EQ(NamesOf(angle), "A1 B1 C1 A2 B2 A3 ");
}

TEST(PlanGrid, ColumnsHaveLettersAndRowsNumbers) {
    EXPECT_EQ(NomFeuillePlan(0, 0), "A1");
    EXPECT_EQ(NomFeuillePlan(25, 9), "Z10");
    EXPECT_EQ(NomFeuillePlan(26, 0), "AA1");
    EXPECT_EQ(NomFeuillePlan(52, 0), "BA1");
    EXPECT_EQ(NomFeuillePlan(399, 0), "OJ1"); // 15 * 26 + 10
}

} // namespace
} // namespace loftwing
