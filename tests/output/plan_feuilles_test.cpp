#include "output/plan_feuilles.h"
#include "output/plan_sheets_fixture.h"
#include "support/failures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::ElementsAre;

constexpr double kPlanNear = 0.01; // mm
constexpr double kOver = 0.09;     // half of a line, by which sheets begin before the drawing
const MotsFeuillesPlan kPlanWords = {"the wing", "measure", " mm"};
constexpr Colour kCrosses = 8; // that of dimensions

std::vector<PlanSheet> Tiles(const std::vector<DessinPlan> &plans,
                             const ReglageFeuillesPlan &how = {}) {
    TestPrinter printer;
    ImprimePlanEnFeuilles(printer, plans, kPlanColours, how, kPlanWords);
    return ReadPlanSheets(printer);
}

/// A wing of 900 mm and its ribs, with lines in all directions and one of three points.
DessinPlan LargePlan() {
    DessinPlan plan;
    plan.traits = {{CouchePlan::contour, {{0, 0}, {900, -37.5}}, false},
                   {CouchePlan::contour, {{0, -310}, {420.3, -305}, {900, -222}}, false},
                   {CouchePlan::trou, {{10, -100}, {890, -111}}, false}};
    for (int i = 0; i < 9; ++i) {
        const double x = 5 + i * 110.625;
        plan.traits.push_back(
            {CouchePlan::nervure, {{x, -3}, {x + 3, -3}, {x + 3, -220}, {x, -220}}, true});
    }
    return plan;
}

/// Where the upper left corner of a sheet of A4 lies in LargePlan.
PointMm CornerOf(const PlanSheet &sheet) {
    return {-10 - kOver + sheet.column * 267.0, 10 + kOver - sheet.row * 180.0};
}

PointMm InPlan(const PlanSheet &sheet, const PointMm &on_sheet) {
    const PointMm corner = CornerOf(sheet);
    return {corner.x + on_sheet.x, corner.y - on_sheet.y};
}

PointMm OnSheet(const PlanSheet &sheet, const PointMm &in_plan) {
    const PointMm corner = CornerOf(sheet);
    return {in_plan.x - corner.x, corner.y - in_plan.y};
}

bool WithinMargins(const PointMm &place) {
    return place.x >= 10 && place.x <= 287 && place.y >= 10 && place.y <= 200;
}

bool IsOnLine(const PlanSheet &sheet, const PointMm &place, Colour colour) {
    for (const PlanLine &line : sheet.OfColour(colour)) {
        if (DistanceTo(line, place) < kPlanNear) {
            return true;
        }
    }
    return false;
}

std::vector<PlanLine> SidesOf(const TraitPlan &run) {
    std::vector<PlanLine> sides;
    for (std::size_t i = 1; i < run.points.size(); ++i) {
        sides.push_back({run.points[i - 1], run.points[i], {}});
    }
    if (run.ferme) {
        sides.push_back({run.points.back(), run.points.front(), {}});
    }
    return sides;
}

TEST(PlanSheets, TogetherTheyShowTheWholePlan) {
    const DessinPlan plan = LargePlan();
    const std::vector<PlanSheet> sheets = Tiles({plan});
    ASSERT_EQ(sheets.size(), 8U); // 4 by 2
    int tried = 0;
    for (const TraitPlan &run : plan.traits) {
        const Colour colour = kPlanColours[static_cast<std::size_t>(run.couche)];
        for (const PlanLine &side : SidesOf(run)) {
            const int parts = static_cast<int>(side.Length()) + 1;
            for (int i = 0; i <= parts; ++i) {
                const double share = static_cast<double>(i) / parts;
                const PointMm at{side.from.x + share * (side.to.x - side.from.x),
                                 side.from.y + share * (side.to.y - side.from.y)};
                int shown = 0;
                for (const PlanSheet &sheet : sheets) {
                    const PointMm place = OnSheet(sheet, at);
                    if (WithinMargins(place)) {
                        EXPECT_TRUE(IsOnLine(sheet, place, colour))
                            << sheet.label << " " << at.x << " " << at.y;
                        ++shown;
                    }
                }
                EXPECT_GE(shown, 1) << at.x << " " << at.y;
                ++tried;
            }
        }
    }
    EXPECT_GT(tried, 6000);
}

TEST(PlanSheets, NothingElseIsDrawn) {
    const DessinPlan plan = LargePlan();
    for (const PlanSheet &sheet : Tiles({plan})) {
        for (const CouchePlan layer : {CouchePlan::contour, CouchePlan::nervure}) {
            const Colour colour = kPlanColours[static_cast<std::size_t>(layer)];
            for (const PlanLine &line : sheet.OfColour(colour)) {
                EXPECT_EQ(line.pen, (Pen{colour, 1, LineStyle::solid}));
                double nearest = 1e9;
                for (const TraitPlan &run : plan.traits) {
                    for (const PlanLine &side : SidesOf(run)) {
                        nearest = std::min(nearest, DistanceTo(side, InPlan(sheet, line.from)) +
                                                        DistanceTo(side, InPlan(sheet, line.to)));
                    }
                }
                EXPECT_LT(nearest, kPlanNear);
            }
        }
        // Ribs wholly off the sheet are left out: at most three are on one, with four sides each.
        EXPECT_LE(sheet.OfColour(2).size(), 12U);
        for (const PlanLine &hole : sheet.OfColour(6)) {
            EXPECT_EQ(hole.pen.style, LineStyle::dash_dot);
        }
    }
}

/// Centres of crosses of two arms of 5 mm each, on the sheet.
std::vector<std::pair<double, double>> CrossesOf(const PlanSheet &sheet) {
    const std::vector<PlanLine> arms = sheet.OfColour(kCrosses);
    std::vector<std::pair<double, double>> centres;
    for (std::size_t i = 0; i + 1 < arms.size(); i += 2) {
        EXPECT_NEAR(arms[i].from.x, arms[i].to.x, 1e-9);
        EXPECT_NEAR(arms[i + 1].from.y, arms[i + 1].to.y, 1e-9);
        EXPECT_NEAR(arms[i].Length(), 10, 1e-9);
        EXPECT_NEAR(arms[i + 1].Length(), 10, 1e-9);
        EXPECT_NEAR((arms[i + 1].from.x + arms[i + 1].to.x) / 2, arms[i].from.x, 1e-9);
        EXPECT_NEAR((arms[i].from.y + arms[i].to.y) / 2, arms[i + 1].from.y, 1e-9);
        centres.emplace_back(std::round(arms[i].from.x * 1e6) / 1e6,
                             std::round(arms[i + 1].from.y * 1e6) / 1e6);
    }
    std::sort(centres.begin(), centres.end());
    return centres;
}

// In the middle of strips of 10 mm behind margins of 10.
TEST(PlanSheets, CrossesStandWhereSheetsMeet) {
    const std::vector<PlanSheet> sheets = Tiles({LargePlan()});
    ASSERT_EQ(sheets.size(), 8U);
    using Places = std::vector<std::pair<double, double>>;
    EXPECT_EQ(CrossesOf(sheets[0]), (Places{{15, 195}, {282, 15}, {282, 195}})); // A1
    EXPECT_EQ(CrossesOf(sheets[1]), (Places{{15, 15}, {15, 195}, {282, 15}, {282, 195}}));
    EXPECT_EQ(CrossesOf(sheets[7]), (Places{{15, 15}, {15, 195}, {282, 15}})); // D2
}

TEST(PlanSheets, CrossesOfNeighboursAreTheSamePlaces) {
    const std::vector<PlanSheet> sheets = Tiles({LargePlan()});
    int pairs = 0;
    for (const PlanSheet &one : sheets) {
        for (const PlanSheet &other : sheets) {
            const bool beside = other.column == one.column + 1 && other.row == one.row;
            const bool below = other.column == one.column && other.row == one.row + 1;
            if (!beside && !below) {
                continue;
            }
            int common = 0;
            for (const auto &[x, y] : CrossesOf(one)) {
                for (const auto &[u, v] : CrossesOf(other)) {
                    const PointMm here = InPlan(one, {x, y});
                    const PointMm there = InPlan(other, {u, v});
                    common += std::hypot(here.x - there.x, here.y - there.y) < kPlanNear ? 1 : 0;
                }
            }
            EXPECT_EQ(common, 2) << one.label << " " << other.label;
            ++pairs;
        }
    }
    EXPECT_EQ(pairs, 10);
}

TEST(PlanSheets, ASheetAloneHasNoCross) {
    const std::vector<PlanSheet> sheets = Tiles({OneLine({0, 0}, {200, -100})});
    ASSERT_EQ(sheets.size(), 1U);
    EXPECT_TRUE(CrossesOf(sheets[0]).empty());
    EXPECT_EQ(sheets[0].label, "1/1 A1");
}

TEST(PlanSheets, NumbersCountWhatIsPrintedOfAllDrawings) {
    DessinPlan angle = OneLine({0, 0}, {600, 0});
    angle.traits.push_back({CouchePlan::contour, {{0, 0}, {0, -400}}, false});
    std::vector<std::string> labels;
    for (const PlanSheet &sheet : Tiles({angle, OneLine({0, 0}, {300, 0})})) {
        labels.push_back(sheet.label);
    }
    EXPECT_THAT(labels,
                ElementsAre("1/7 A1", "2/7 B1", "3/7 C1", "4/7 A2", "5/7 A3", "6/7 D1", "7/7 E1"));
}

TEST(PlanSheets, EverySheetWithRoomHasACheckLineAndAName) {
    DessinPlan titled = LargePlan();
    titled.titre = "left wing";
    const std::vector<PlanSheet> sheets = Tiles({OneLine({0, 0}, {250, 0}), titled});
    ASSERT_EQ(sheets.size(), 9U);
    EXPECT_TRUE(sheets[0].Says("the wing"));
    EXPECT_TRUE(sheets[0].Says("measure : 100 mm"));
    EXPECT_TRUE(sheets[1].Says("left wing") || sheets[8].Says("left wing"));
    int long_lines = 0;
    for (const PlanLine &line : sheets[0].OfColour(0)) {
        long_lines += std::abs(line.Length() - 100) < kPlanNear ? 1 : 0;
    }
    EXPECT_EQ(long_lines, 2); // both arms
}

// The crosses end 20 mm from the edges; the check line keeps 2 mm from all ink.
TEST(PlanSheets, CheckLinesStandBehindTheCrosses) {
    DessinPlan plan;
    plan.traits = {{CouchePlan::contour, {{0, 0}, {700, 0}, {700, -500}, {0, -500}}, true},
                   {CouchePlan::contour, {{360, -230}, {370, -230}}, false}};
    const std::vector<PlanSheet> sheets = Tiles({plan});
    ASSERT_EQ(sheets.size(), 9U);
    const PlanSheet &inner = sheets[4];
    EXPECT_EQ(inner.label, "5/9 B2");
    ASSERT_FALSE(inner.OfColour(0).empty());
    const PlanLine arm = inner.OfColour(0)[0];
    EXPECT_NEAR(arm.from.x, 22.5, kPlanNear);
    EXPECT_NEAR(arm.to.x, 122.5, kPlanNear);
    EXPECT_NEAR(arm.from.y, 187.5, kPlanNear);
    for (const PlanSheet &sheet : sheets) {
        EXPECT_TRUE(sheet.Says("measure : 100 mm")) << sheet.label;
    }
}

TEST(PlanSheets, ASheetFullOfInkHasItsNumberAlone) {
    DessinPlan hatched;
    for (int x = 0; x <= 270; x += 5) {
        const double at = x;
        hatched.traits.push_back({CouchePlan::contour, {{at, 0}, {at, -180}}, false});
    }
    const std::vector<PlanSheet> sheets = Tiles({hatched});
    ASSERT_EQ(sheets.size(), 1U);
    EXPECT_EQ(sheets[0].label, "1/1 A1");
    EXPECT_EQ(sheets[0].texts.size(), 1U);
    EXPECT_TRUE(sheets[0].OfColour(0).empty());
}

TEST(PlanSheets, PaperIsThatOfTheSheets) {
    TestPrinter printer;
    const std::vector<DessinPlan> plans = {OneLine({0, 0}, {250, 0})};
    ImprimePlanEnFeuilles(printer, plans, kPlanColours, {}, kPlanWords);
    EXPECT_THAT(printer.calls, ElementsAre("landscape", "paper 210 297", "draw"));
    TestPrinter upright;
    ImprimePlanEnFeuilles(upright, plans, kPlanColours, {210, 297, 10, 10}, kPlanWords);
    EXPECT_THAT(upright.calls,
                ElementsAre("portrait", "paper 210 297", "draw", "new page", "draw"));
}

TEST(PlanSheets, RefusedJobsDrawNothing) {
    TestPrinter printer;
    const DessinPlan good = PlanByHand();
    const auto tiles = [&printer](const std::vector<DessinPlan> &plans,
                                  const ReglageFeuillesPlan &how) {
        return FailureOf(
            [&] { ImprimePlanEnFeuilles(printer, plans, kPlanColours, how, kPlanWords); });
    };
    EXPECT_EQ(tiles({good}, {297, 210, 100, 10}), 5);
    EXPECT_EQ(tiles({good, {}}, {}), 5);
    EXPECT_EQ(tiles({}, {}), 5);
    EXPECT_EQ(tiles({good, OneLine({0, 0}, {1e6, 1e6})}, {}), 5);
    const auto whole = [&printer](const std::vector<DessinPlan> &plans) {
        return FailureOf([&] { ImprimePlanEntier(printer, plans, kPlanColours); });
    };
    EXPECT_EQ(whole({good, OneLine({0, 0}, {5060.1, 0})}), 5);
    EXPECT_EQ(whole({good, {}}), 5);
    EXPECT_EQ(whole({}), 5);
    EXPECT_TRUE(printer.calls.empty());
}

TEST(PlanPage, HasRoomForUpToTwoHundredInches) {
    EXPECT_TRUE(TientSurUnePage(OneLine({0, 0}, {5060, -5060})));
    EXPECT_FALSE(TientSurUnePage(OneLine({0, 0}, {5060.01, 0})));
    EXPECT_FALSE(TientSurUnePage(OneLine({0, 0}, {0, 5060.01})));
    EXPECT_FALSE(TientSurUnePage({}));
}

// 420 x 215.095 and 120 x 320 mm with their white.
TEST(PlanPage, AllPagesAreAsLargeAsTheLargestDrawingsWant) {
    TestPrinter printer;
    ImprimePlanEntier(printer, {PlanByHand(), OneLine({50, 7}, {150, -293})}, kPlanColours);
    EXPECT_THAT(printer.calls,
                ElementsAre("landscape", "paper 320 420", "draw", "new page", "draw"));
    const std::vector<PlanSheet> sheets = ReadPlanSheets(printer);
    const PlanLine second = sheets[1].lines.at(0);
    EXPECT_NEAR(second.from.x, 10, 1e-9);
    EXPECT_NEAR(second.from.y, 10, 1e-9);
    EXPECT_NEAR(second.to.x, 110, 1e-9);
    EXPECT_NEAR(second.to.y, 310, 1e-9);
}

TEST(PlanPage, ADrawingIsAtTrueScaleWithTenMillimetresRound) {
    TestPrinter printer;
    ImprimePlanEntier(printer, {PlanByHand()}, kPlanColours);
    EXPECT_THAT(printer.calls, ElementsAre("landscape", "paper 216 420", "draw"));
    const PlanSheet sheet = ReadPlanSheets(printer).at(0);
    ASSERT_EQ(sheet.lines.size(), 8U); // 1, 4 of a rib, 1, 2 of holes
    EXPECT_NEAR(sheet.lines[0].from.x, 10, 1e-9);
    EXPECT_NEAR(sheet.lines[0].from.y, 23.62, 1e-9);
    EXPECT_NEAR(sheet.lines[0].to.x, 410, 1e-9);
    EXPECT_NEAR(sheet.lines[0].to.y, 43.62, 1e-9);
    EXPECT_EQ(sheet.lines[7].pen, (Pen{6, 1, LineStyle::dash_dot}));
    EXPECT_EQ(sheet.lines[5].pen, (Pen{2, 1, LineStyle::solid}));
    ASSERT_EQ(sheet.texts.size(), 2U);
    const DrawnText &text = sheet.texts[0];
    EXPECT_EQ(text.text, "100 mm");
    EXPECT_EQ(text.colour, 8U);
    EXPECT_NEAR(text.font.size * 20 / 56.7, 4, 1e-9);    // mm
    EXPECT_NEAR(text.x / 56.7, 160 - 7.224, 1e-9);       // centred on 150
    EXPECT_NEAR(text.y / 56.7, 23.62 - 10 - 3.62, 1e-9); // Arial's letters hang from 0.905
    EXPECT_NEAR(sheet.texts[1].y / 56.7 + 4.525, 203.62, 1e-9);
}

TEST(PlanTrace, OnlyWhatIsInTheWindowIsDrawnAndThePenIsGivenBack) {
    DessinPlan plan = PlanByHand();
    Recording trace;
    trace.DrawStyle = 2;
    trace.DrawWidth = 3;
    TracePlan(trace, plan, kPlanColours, {{190, 0}, 20, 100});
    std::vector<Colour> colours;
    for (const Operation &each : trace.Operations()) {
        ASSERT_TRUE(std::holds_alternative<DrawnSegment>(each));
        colours.push_back(std::get<DrawnSegment>(each).pen.colour);
        EXPECT_EQ(std::get<DrawnSegment>(each).pen.width, 1);
    }
    // The leading edge, the rib without thickness, both parts of the run of holes.
    EXPECT_THAT(colours, ElementsAre(1, 2, 6, 6));
    EXPECT_EQ(trace.DrawStyle, 0);
    EXPECT_EQ(trace.DrawWidth, 1);
    Recording below;
    TracePlan(below, plan, kPlanColours, {{-10, -174}, 50, 20});
    ASSERT_EQ(below.Operations().size(), 1U);
    EXPECT_TRUE(std::holds_alternative<DrawnText>(below.Operations()[0]));
}

} // namespace
} // namespace loftwing
