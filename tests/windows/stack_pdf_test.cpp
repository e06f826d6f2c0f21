// The PDF of a stack of drawings, as another program measures it.

#include "programme/qt_stack_pdf.h"
#include "support/qt_pdf.h"
#include "support/rib_world.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace loftwing {
namespace {

constexpr double kStackTrue = 0.05; // mm
constexpr double kStackPastEnds = 2 / 56.7;

/// Ribs of the bundled airfoils on A4, whose room is 272 x 190 mm.
class StackPdf : public testing::Test {
  protected:
    RibWorld &Add(float chord, bool inverted = false) {
        worlds.push_back(std::make_unique<RibWorld>());
        RibWorld &world = *worlds.back();
        TakeAirfoil(world, Naca(2412, 30));
        world.rib.corde = chord;
        world.rib.AffHaut = inverted;
        return world;
    }
    ReadPdf Make() {
        RibWorld &first = *worlds.front();
        DemandePile demand{
            {}, first.settings, first.messages, "panel é", "2031-05-24", [] { return false; }, {}};
        for (const auto &world : worlds) {
            demand.nervures.push_back({world->rib});
        }
        Pile pile(demand);
        const auto bytes = PdfDePile(pile);
        EXPECT_TRUE(bytes.has_value());
        return ReadPdf(QString::fromStdString(folder.File("all.pdf", bytes.value_or(""))));
    }
    /// Level lines of this length on a page, from the top: reference lines and arms.
    static std::vector<QPointF> Level(const ReadPdf &pdf, int page, double length) {
        std::vector<QPointF> starts;
        for (const QPolygonF &line : pdf.Lines(page)) {
            const QPointF way = line.back() - line.front();
            if (line.size() == 2 && std::abs(way.y()) < kStackTrue &&
                std::abs(std::abs(way.x()) - length) < kStackTrue) {
                starts.push_back(line.front());
            }
        }
        std::sort(starts.begin(), starts.end(),
                  [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
        return starts;
    }
    static void ExpectInside(const ReadPdf &pdf, int page) {
        const QRectF room(QPointF(9.9, 9.9), QPointF(282.1, 200.1));
        for (const QPolygonF &line : pdf.Lines(page)) {
            for (const QPointF &point : line) {
                EXPECT_TRUE(room.contains(point)) << point.x() << " " << point.y();
            }
        }
    }

    std::vector<std::unique_ptr<RibWorld>> worlds;
    TempFolder folder;
};

TEST_F(StackPdf, RibsAreAtTrueScaleUnderEachOther) {
    Add(240);
    Add(200, true);
    Add(137.5);
    const ReadPdf pdf = Make();
    ASSERT_EQ(pdf.PageSizes().size(), 1U);
    EXPECT_NEAR(pdf.PageSizes()[0].width(), 842, 1); // A4 landscape, points
    double y = 0;
    for (const double chord : {240.0, 200.0, 137.5}) {
        const auto lines = Level(pdf, 1, chord + kStackPastEnds);
        ASSERT_EQ(lines.size(), 1U) << chord;
        EXPECT_NEAR(lines[0].x(), 10, kStackTrue);
        EXPECT_GT(lines[0].y(), y);
        y = lines[0].y();
    }
    EXPECT_EQ(Level(pdf, 1, 100).size(), 1U); // the check line
    ExpectInside(pdf, 1);
    EXPECT_EQ(pdf.Information("Title"), QString::fromUtf8("panel é"));
}

TEST_F(StackPdf, EveryPageHasItsCheckLineAndNothingLeavesItsRoom) {
    for (int i = 0; i < 11; ++i) {
        Add(265);
    }
    const ReadPdf pdf = Make();
    const int pages = static_cast<int>(pdf.PageSizes().size());
    ASSERT_GT(pages, 1);
    std::size_t ribs = 0;
    for (int page = 1; page <= pages; ++page) {
        ribs += Level(pdf, page, 265 + kStackPastEnds).size();
        EXPECT_EQ(Level(pdf, page, 100).size() + Level(pdf, page, 50).size(), 1U) << page;
        ExpectInside(pdf, page);
    }
    EXPECT_EQ(ribs, 11U);
}

TEST_F(StackPdf, HeelAndTemplateAreHeldApart) {
    RibWorld &heel = Add(200);
    heel.rib.TypeGabarit = kGabaritTalon;
    heel.rib.talon.TalonIntra = 20;
    RibWorld &foam = Add(180);
    foam.rib.TypeGabarit = kGabaritMousse;
    foam.rib.bloc.HTbloc = 60;
    foam.rib.bloc.HTbasbloc = 20;
    foam.rib.bloc.BAbloc = 15;
    foam.rib.bloc.BFbloc = 18;
    Add(160);
    const ReadPdf pdf = Make();
    ASSERT_EQ(pdf.PageSizes().size(), 1U);
    const auto first = Level(pdf, 1, 200 + kStackPastEnds);
    const auto second = Level(pdf, 1, 180 + kStackPastEnds);
    const auto third = Level(pdf, 1, 160 + kStackPastEnds);
    ASSERT_EQ(first.size(), 2U); // the heel's foot is as long as the chord
    EXPECT_NEAR(first[1].y() - first[0].y(), 20, kStackTrue);
    ASSERT_EQ(second.size(), 1U);
    ASSERT_EQ(third.size(), 1U);
    EXPECT_NEAR(second[0].x(), 10 + 15, kStackTrue); // behind the ramp
    // The template reaches 20 mm below the line and fills its box, so its label of 8 points stands
    // a millimetre under it; 5 mm from there is the top of the third rib.
    const double label = 1 + 1.2 * 8 * 20 / 56.7;
    EXPECT_NEAR(third[0].y() - second[0].y(), 20 + label + 5 + 160 * 0.0792, kStackTrue);
    ExpectInside(pdf, 1);
}

} // namespace
} // namespace loftwing
