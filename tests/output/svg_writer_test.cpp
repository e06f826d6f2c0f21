#include "output/svg_writer.h"

#include "output/screen_plot.h"
#include "support/failures.h"
#include "support/rib_world.h"
#include "support/tiny_svg.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace loftwing {
namespace {

/// Device units of so many millimetres.
constexpr double Mm(double mm) {
    return mm * 56.7;
}

/// The drawn elements: everything behind the root and the title.
std::vector<SvgElement> Body(const Recording &drawing) {
    std::vector<SvgElement> elements = ReadSvg(WriteSvg(drawing, "title"));
    EXPECT_GE(elements.size(), 2U);
    elements.erase(elements.begin(), elements.begin() + 2);
    return elements;
}

TEST(Svg, UserUnitIsOneMillimetreAndTheViewBoxStartsAtTheOrigin) {
    Recording drawing;
    drawing.Line(Mm(5), Mm(10), Mm(205), Mm(40.5), 0);
    const std::vector<SvgElement> elements = ReadSvg(WriteSvg(drawing, "title"));
    ASSERT_EQ(elements.size(), 3U);
    EXPECT_EQ(elements[0].name, "svg");
    EXPECT_EQ(elements[0]["xmlns"], "http://www.w3.org/2000/svg");
    EXPECT_EQ(elements[0]["width"], "210mm");
    EXPECT_EQ(elements[0]["height"], "45.5mm");
    EXPECT_EQ(elements[0]["viewBox"], "0 0 210 45.5");
    EXPECT_EQ(elements[1].name, "title");
    EXPECT_EQ(elements[1].text, "title");
    EXPECT_EQ(elements[2]["d"], "M 5 10 L 205 40.5");
}

TEST(Svg, EmptyDrawingIsAnEmptyPage) {
    const std::vector<SvgElement> elements = ReadSvg(WriteSvg(Recording(), "title"));
    ASSERT_EQ(elements.size(), 2U);
    EXPECT_EQ(elements[0]["viewBox"], "0 0 5 5");
}

TEST(Svg, WhatLiesLeftOfOrAboveTheOriginStaysOutside) {
    Recording drawing;
    drawing.Line(Mm(-30), Mm(-2), Mm(-10), Mm(-1), 0);
    const std::vector<SvgElement> elements = ReadSvg(WriteSvg(drawing, ""));
    EXPECT_EQ(elements[0]["viewBox"], "0 0 5 5");
    EXPECT_EQ(elements[2]["d"], "M -30 -2 L -10 -1");
}

TEST(Svg, NumbersHaveUpToFourDecimals) {
    Recording drawing;
    drawing.Line(Mm(1.00004), Mm(1.00006), Mm(-0.00001), Mm(12.3456789), 0);
    EXPECT_EQ(Body(drawing).at(0)["d"], "M 1 1.0001 L 0 12.3457");
}

TEST(Svg, TouchingSegmentsOfOnePenAreOnePath) {
    Recording drawing;
    drawing.Line(Mm(0), Mm(0), Mm(1), Mm(0), 0);
    drawing.LineStep(0, Mm(1), 0);
    drawing.LineStep(Mm(1), 0, 0);
    const std::vector<SvgElement> body = Body(drawing);
    ASSERT_EQ(body.size(), 1U);
    EXPECT_EQ(body[0]["d"], "M 0 0 L 1 0 L 1 1 L 2 1");
    EXPECT_EQ(body[0]["fill"], "none");
}

TEST(Svg, AnotherPenBeginsAnotherPath) {
    Recording drawing;
    drawing.Line(0, 0, Mm(1), 0, 0xFF0000);
    drawing.LineStep(Mm(1), 0, 0x0000FF); // other colour
    drawing.DrawWidth = 2;
    drawing.LineStep(Mm(1), 0, 0x0000FF); // other width
    drawing.DrawWidth = 1;
    drawing.DrawStyle = 1;
    drawing.LineStep(Mm(1), 0, 0x0000FF); // other style
    const std::vector<SvgElement> body = Body(drawing);
    ASSERT_EQ(body.size(), 4U);
    EXPECT_EQ(body[0]["stroke"], "#ff0000");
    EXPECT_EQ(body[1]["stroke"], "#0000ff");
    EXPECT_EQ(body[1]["stroke-width"], "0.18");
    EXPECT_EQ(body[2]["stroke-width"], "0.35");
    EXPECT_EQ(body[2]["stroke-dasharray"], "(none)");
    EXPECT_NE(body[3]["stroke-dasharray"], "(none)");
    EXPECT_EQ(body[3]["d"], "M 3 0 L 4 0");
}

TEST(Svg, SegmentsThatDoNotTouchAreSeveralPaths) {
    Recording drawing;
    drawing.Line(0, 0, Mm(1), 0, 0);
    drawing.Line(Mm(1.001), 0, Mm(2), 0, 0);
    drawing.Line(0, 0, Mm(3), 0, 0);     // starts where the first one started
    drawing.Line(Mm(4), 0, Mm(3), 0, 0); // ends where the last one ended
    EXPECT_EQ(Body(drawing).size(), 4U);
}

TEST(Svg, OrderOfTheDrawingIsKept) {
    Recording drawing;
    drawing.Line(0, 0, Mm(1), 0, 0);
    drawing.Circle(Mm(5), Mm(6), Mm(2), 0x00FF00);
    drawing.Line(Mm(1), 0, Mm(2), 0, 0); // goes on, but the circle lies between
    drawing.Print("a");
    drawing.Line(Mm(2), 0, Mm(3), 0, 0);
    std::string order;
    for (const SvgElement &element : Body(drawing)) {
        order += element.name + " ";
    }
    EXPECT_EQ(order, "path circle path text path ");
}

TEST(Svg, CircleHasCentreRadiusAndPen) {
    Recording drawing;
    drawing.DrawWidth = 3;
    drawing.Circle(Mm(5), Mm(6.5), Mm(2.25), 0x00FF00);
    const SvgElement circle = Body(drawing).at(0);
    EXPECT_EQ(circle["cx"], "5");
    EXPECT_EQ(circle["cy"], "6.5");
    EXPECT_EQ(circle["r"], "2.25");
    EXPECT_EQ(circle["fill"], "none");
    EXPECT_EQ(circle["stroke"], "#00ff00");
    EXPECT_EQ(circle["stroke-width"], "0.5");
}

TEST(Svg, EachStyleHasDashesOfItsOwn) {
    std::vector<std::string> seen;
    for (int style = 0; style <= 4; ++style) {
        Recording drawing;
        drawing.DrawStyle = style;
        drawing.Line(0, 0, Mm(10), 0, 0);
        const std::string dashes = Body(drawing).at(0)["stroke-dasharray"];
        EXPECT_EQ(dashes == "(none)", style == 0);
        EXPECT_EQ(std::count(seen.begin(), seen.end(), dashes), 0) << dashes;
        seen.push_back(dashes);
    }
}

TEST(Svg, TextStandsBelowItsTopLeftCorner) {
    Recording drawing;
    drawing.Font.size = 10; // 200 units, 3.5273 mm
    drawing.ForeColor = 0x800000;
    drawing.CurrentX = Mm(12);
    drawing.CurrentY = Mm(20);
    drawing.Print("Corde 200");
    const SvgElement text = Body(drawing).at(0);
    EXPECT_EQ(text.name, "text");
    EXPECT_EQ(text["x"], "12");
    EXPECT_NEAR(text.Number("y"), 20 + 0.905 * 200 / 56.7, 1e-4);
    EXPECT_EQ(text["font-size"], "3.5273");
    EXPECT_TRUE(text["font-family"].starts_with("Arial"));
    EXPECT_EQ(text["fill"], "#800000");
    EXPECT_EQ(text["xml:space"], "preserve");
    EXPECT_EQ(text.text, "Corde 200");
}

TEST(Svg, CharactersOfTheMarkupAreEscaped) {
    Recording drawing;
    drawing.Print("a < b & c > \"d\"\x01\t\xC3\xA9");
    EXPECT_EQ(Body(drawing).at(0).text, "a < b & c > \"d\"  \xC3\xA9");
    EXPECT_EQ(ReadSvg(WriteSvg(Recording(), "<&>")).at(1).text, "<&>");
}

TEST(Svg, FileNameThatIsNoUtf8StillMakesAFile) {
    EXPECT_EQ(ReadSvg(WriteSvg(Recording(), "r\xE9gl\xE9")).at(1).text, "r\xC3\xA9gl\xC3\xA9");
}

TEST(Svg, DrawingBeyondAKilometreIsAnOverflow) {
    for (const double sign : {1.0, -1.0}) {
        for (const bool across : {false, true}) {
            Recording drawing;
            const double far = sign * 1e200;
            drawing.Line(0, 0, across ? far : 0, across ? 0 : far, 0);
            EXPECT_EQ(FailureOf([&] { WriteSvg(drawing, ""); }), 6) << sign << across;
        }
    }
}

/// A whole rib: the segments of the file, taken apart again, are those of the recording.
TEST(Svg, WholeRibHoldsEverySegmentInOrder) {
    RibWorld world;
    TakeAirfoil(world, Naca(2412, 30, true));
    world.rib.NbRep = 3;
    world.rib.AffEpr = true;
    world.rib.EpBF = 15;
    world.rib.NbTrou = 1;
    world.rib.trou[0].PosTrouAfich = "30%";
    world.rib.trou[0].DiaTrou = 8;
    Recording drawing;
    ASSERT_EQ(afficheRib(world.On(drawing)), Affichage::dessine);
    std::size_t next = 0;
    std::size_t longest = 0;
    for (const SvgElement &element : Body(drawing)) {
        if (element.name == "text") {
            const auto &text = std::get<DrawnText>(drawing.Operations().at(next++));
            EXPECT_EQ(element.text, text.text);
            continue;
        }
        if (element.name == "circle") {
            const auto &circle = std::get<DrawnCircle>(drawing.Operations().at(next++));
            ASSERT_NEAR(element.Number("cx"), circle.x / 56.7, 0.00005001);
            ASSERT_NEAR(element.Number("cy"), circle.y / 56.7, 0.00005001);
            ASSERT_NEAR(element.Number("r"), circle.radius / 56.7, 0.00005001);
            continue;
        }
        const auto points = PathPoints(element["d"]);
        longest = std::max(longest, points.size());
        for (std::size_t i = 1; i < points.size(); ++i) {
            const auto &segment = std::get<DrawnSegment>(drawing.Operations().at(next++));
            ASSERT_NEAR(points[i - 1].first, segment.x1 / 56.7, 0.00005001);
            ASSERT_NEAR(points[i - 1].second, segment.y1 / 56.7, 0.00005001);
            ASSERT_NEAR(points[i].first, segment.x2 / 56.7, 0.00005001);
            ASSERT_NEAR(points[i].second, segment.y2 / 56.7, 0.00005001);
        }
    }
    EXPECT_EQ(next, drawing.Operations().size());
    EXPECT_EQ(longest, static_cast<std::size_t>(world.rib.NbContour)); // the contour is one path
}

} // namespace
} // namespace loftwing
