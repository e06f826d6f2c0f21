// The geometry of the DXF drawing, worked out by hand.

#include "output/dxf_entities.h"

#include "base/number_text.h"

#include "output/rib_plot_fixture.h"
#include "support/failures.h"

#include <algorithm>
#include <cmath>

namespace loftwing {
namespace {

std::string Number(double value) {
    const double rounded = std::round(value * 1e4) / 1e4;
    return NumberText(rounded == 0.0 ? 0.0 : rounded);
}

/// "503 COFFR (0,5) (0,-5)", a circle "504 TROU (30,2) r 4"; a closed run ends in "*".
struct DxfWords {
    std::string operator()(const DxfPolyligne &line) const {
        std::string text = std::to_string(line.handle) + " " + std::string(line.calque);
        for (const DxfPoint &point : line.points) {
            text += " (" + Number(point.x) + "," + Number(point.y) + ")";
        }
        return text + (line.fermee ? " *" : "");
    }
    std::string operator()(const DxfCercle &circle) const {
        return std::to_string(circle.handle) + " " + std::string(circle.calque) + " (" +
               Number(circle.centre.x) + "," + Number(circle.centre.y) + ") r " +
               Number(circle.rayon);
    }
};

using Lines = std::vector<std::string>;

/// The rib of the plot tests: chord 100 mm, surfaces 5 mm above and below.
class DxfEntities : public RibPlot {
  protected:
    Lines Entities(bool echelle_juste = false) {
        world.Place();
        device.Clear();
        EXPECT_TRUE(Plot());
        return Export(echelle_juste);
    }
    Lines Export(bool echelle_juste = false) {
        Lines lines;
        EntitesDxf(
            {world.rib, world.plot, world.settings.Unite, echelle_juste},
            [&](const DxfEntite &entity) { lines.push_back(std::visit(DxfWords{}, entity)); });
        return lines;
    }
    /// What follows the two edge lines.
    Lines BehindEdges() {
        Lines lines = Entities();
        lines.erase(lines.begin(), lines.begin() + 2);
        return lines;
    }
    Longeron &Spar(float width, float depth, int kind) {
        Longeron &spar = world.rib.longeron[0];
        spar.PosLongAfich = "50";
        spar.LargLong = width;
        spar.HautLong = depth;
        spar.TypeLong = static_cast<std::uint8_t>(kind);
        spar.OptLongExt = spar.OptLongInt = 2;
        return spar;
    }
    Trou &Hole(float width, float height, int kind) {
        Trou &hole = world.rib.trou[0];
        hole.PosTrouAfich = "30";
        hole.DiaTrou = width;
        hole.HautTrou = height;
        hole.TypeTrou = static_cast<std::uint8_t>(kind);
        return hole;
    }
};

TEST_F(DxfEntities, EdgesAloneWhenAllElseIsOff) {
    EXPECT_EQ(Entities(), (Lines{"503 COFFR (0,5) (0,-5)", "503 COFFR (100,0) (100,0)"}));
    world.rib.EpBA = 10;
    world.rib.EpBF = 20;
    EXPECT_EQ(Entities(), (Lines{"503 COFFR (10,5) (10,-5)", "503 COFFR (80,5) (80,-5)"}));
}

TEST_F(DxfEntities, ContourAndReferenceLineGoWithTheirSwitches) {
    world.rib.AffTrac = true;
    world.rib.AffLignRef = true;
    Lines lines = Entities();
    lines.resize(2);
    EXPECT_EQ(lines, (Lines{"501 Layer01 (100,1) (50,5) (0,0) (50,-5) (100,-3)",
                            "502 AXIS (0,0) (100,0)"}));
    world.rib.AffTrac = false;
    EXPECT_EQ(Entities().front(), "502 AXIS (0,0) (100,0)");
}

TEST_F(DxfEntities, SquareSparIsOpenAtTheSideItIsNotCutAt) {
    for (const int kind : {1, 3}) {
        Spar(10, 3, kind).DistLong = 1;
        EXPECT_EQ(BehindEdges(),
                  (Lines{"502 AXIS (50,5) (50,-5)", "503 LONG (45,4) (55,4) (55,1) (45,1)",
                         "503 LONG (45,-4) (55,-4) (55,-1) (45,-1)"}));
    }
}

TEST_F(DxfEntities, NotchFromTheSheetingStartsAtItsInnerFace) {
    world.rib.EpCoffrage = 2;
    Spar(10, 2, 1).OptLongExt = 1;
    const Lines lines = Entities();
    EXPECT_EQ(lines[lines.size() - 2], "503 LONG (45,3) (55,3) (55,1) (45,1)");
}

TEST_F(DxfEntities, SparAlongTheSurfaceTiltsItsSides) {
    world.rib.TabExtrados[220] = 0.06;
    world.rib.TabIntrados[220] = -0.06;
    Spar(10, 5, 0);
    EXPECT_EQ(BehindEdges(),
              (Lines{"502 AXIS (50,5) (50,-5)", "503 LONG (45,6) (55,5) (54.5,0) (44.5,1)",
                     "503 LONG (45,-6) (55,-5) (54.5,0) (44.5,-1)"}));
}

TEST_F(DxfEntities, AxisOfARoundSparRunsThroughItsCentreOnBothSides) {
    Spar(4, 1, 2).DistLong = 3;
    EXPECT_EQ(BehindEdges(),
              (Lines{"502 AXIS (50,5) (50,-5)", "502 AXIS (48,1) (52,1)", "504 LONG (50,1) r 2",
                     "502 AXIS (48,-1) (52,-1)", "504 LONG (50,-1) r 2"}));
}

TEST_F(DxfEntities, EmptySlotAtTheEndOfTheSparsProducesNothing) {
    Spar(10, 5, 1).OptLongExt = 0;
    world.rib.longeron[0].OptLongInt = 0;
    world.rib.NbLongeron = 1;
    EXPECT_EQ(BehindEdges(), (Lines{"502 AXIS (50,5) (50,-5)"}));
}

TEST_F(DxfEntities, KindsAndOptionsOutOfRangeHaveNoShape) {
    Spar(10, 5, 7);
    EXPECT_EQ(BehindEdges(), (Lines{"502 AXIS (50,5) (50,-5)"}));
    Spar(10, 5, 1).OptLongExt = 3;
    world.rib.longeron[0].OptLongInt = 9;
    EXPECT_EQ(BehindEdges(), (Lines{"502 AXIS (50,5) (50,-5)"}));
}

TEST_F(DxfEntities, RoundHoleHasAShortVerticalAxis) {
    Hole(8, 0, 0).DecalTrou = 2;
    EXPECT_EQ(BehindEdges(),
              (Lines{"504 TROU (30,2) r 4", "502 AXIS (26,2) (34,2)", "502 AXIS (30,0) (30,4)"}));
}

TEST_F(DxfEntities, RectangularHoleStaysOpenAtItsFront) {
    Hole(8, 3, 1);
    EXPECT_EQ(BehindEdges(), (Lines{"504 TROU (26,0) (26,1.5) (34,1.5) (34,-1.5) (26,-1.5)",
                                    "502 AXIS (26,0) (34,0)", "502 AXIS (30,-2) (30,2)"}));
}

TEST_F(DxfEntities, SlotBeingEditedGivesACircleOfNothing) {
    Hole(8, 0, 2);
    world.rib.trou[0].TypeTrou = 2;
    world.rib.NbTrou = 1;
    EXPECT_EQ(BehindEdges(),
              (Lines{"504 TROU (0,0) r 0", "502 AXIS (0,0) (0,0)", "502 AXIS (0,0) (0,0)"}));
}

TEST_F(DxfEntities, StationOfAHoleIsRoundedDown) {
    // 30.2 mm: 279.2 stations before the leading edge. The plot takes 279, this 280.
    world.rib.TabExtrados[280] = 0.06;
    Trou &hole = Hole(0, 0, 0);
    hole.PosTrouAfich = "30.2";
    hole.ChkCentre = 1;
    EXPECT_EQ(BehindEdges()[0], "504 TROU (30.2,0.5) r 0");
    EXPECT_EQ(world.plot.trous[0].Uc, 0.05);
}

TEST_F(DxfEntities, HeelBelowAndAbove) {
    world.rib.TypeGabarit = kGabaritTalon;
    world.rib.talon.TalonIntra = 10;
    world.rib.talon.TalonExtra = -12;
    world.rib.talon.TalonBF = 20;
    world.rib.talon.TalonLong = 30;
    Lines lines = Entities();
    lines.resize(3);
    EXPECT_EQ(lines, (Lines{"504 TALON (0,-10) (100,-10)", "504 TALON (80,-10) (80,-5)",
                            "504 TALON (70,-10) (70,-5)"}));
    world.rib.talon.OptTalon = 1;
    lines = Entities();
    lines.resize(3);
    EXPECT_EQ(lines, (Lines{"502 TALON (0,12) (100,12)", "504 TALON (80,12) (80,5)",
                            "504 TALON (70,12) (70,5)"}));
}

TEST_F(DxfEntities, LeanOfTheHeelsFrontFollowsTheChord) {
    world.rib.TypeGabarit = kGabaritTalon;
    world.rib.vrillage = 30;
    world.rib.talon.TalonIntra = 10;
    world.rib.talon.TalonLong = 30;
    // The foot starts at (5, -8.6603); 70 mm on, (70 * 0.75, 70 * 0.4330). The top: 70 mm and the
    // tangent of 30 degrees of 5 mm.
    EXPECT_EQ(Entities()[2], "504 TALON (57.5,21.6506) (72.8868,-5)");
}

TEST_F(DxfEntities, TemplateMovesTheRibBehindItsRamp) {
    world.rib.TypeGabarit = kGabaritMousse;
    world.rib.bloc.BAbloc = 20;
    world.rib.bloc.BFbloc = 30;
    world.rib.bloc.HTbasbloc = 15;
    world.rib.bloc.HTbloc = 40;
    world.rib.TabExtrados[120] = 0.02;
    EXPECT_EQ(Entities(), (Lines{"504 COFFR (0,0) (20,0) (0,0) (0,-15) (150,-15) (150,-2) (120,-1)",
                                 "504 COFFR (0,0) (0,25) (150,25) (150,-2)",
                                 "503 COFFR (20,5) (20,-5)", "503 COFFR (120,0) (120,0)"}));
}

TEST_F(DxfEntities, AllowanceIsInDeviceUnitsUnlessTheScaleIsRight) {
    world.rib.TypeGabarit = kGabaritMousse;
    world.rib.bloc.CoupeBF = 3; // 170.1 units
    EXPECT_EQ(Entities()[0], "504 COFFR (0,0) (0,0) (0,0) (0,0) (100,0) (100,0) (100,-171.1)");
    EXPECT_EQ(Entities(true)[0], "504 COFFR (0,0) (0,0) (0,0) (0,0) (100,0) (100,0) (100,-4)");
}

TEST_F(DxfEntities, DiamondIsClosed) {
    world.rib.TypeBA = 0;
    world.rib.carre.CarreBA = 14.14F;
    world.rib.carre.CarreBAX = 6;
    world.rib.carre.CarreBAY = 2;
    EXPECT_EQ(Entities()[0], "503 COFFR (6,12) (-4,2) (6,-8) (16,2) *");
}

std::size_t PointCount(const std::string &line) {
    return static_cast<std::size_t>(std::count(line.begin(), line.end(), '('));
}

TEST_F(DxfEntities, SheetingToTheTrailingEdgeLeavesOutWhereItsFacesHaveCrossed) {
    world.rib.EpCoffrage = 2;
    const Lines lines = Entities();
    ASSERT_EQ(lines.size(), 5U);
    // Station 0 has no height: its faces have crossed, so the point of station 1 is left out.
    EXPECT_EQ(PointCount(lines[2]), 398U);
    EXPECT_TRUE(lines[2].starts_with("503 COFFR (99.5,3) (99.25,3) ")) << lines[2].substr(0, 60);
    EXPECT_TRUE(lines[2].ends_with(" (0.25,3)"));
    EXPECT_EQ(PointCount(lines[3]), 398U);
    EXPECT_TRUE(lines[3].starts_with("503 COFFR (99.5,-3) "));
    EXPECT_EQ(lines[4], "503 COFFR (99.75,3) (100,-1)");
}

TEST_F(DxfEntities, SheetingBetweenStocksStartsFromAnEarlierPlot) {
    world.rib.EpCoffrage = 2;
    world.rib.EpBA = 10;
    world.rib.EpBF = 20;
    const Lines lines = Entities();
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(PointCount(lines[2]), 281U); // stations 80 to 360
    EXPECT_TRUE(lines[2].starts_with("503 COFFR (80,5) (79.75,3) "));
    EXPECT_TRUE(lines[3].starts_with("503 COFFR (80,-5) (79.75,-3) "));
    EXPECT_TRUE(lines[3].ends_with(" (10,-3)"));
}

TEST_F(DxfEntities, LowerSheetingBetweenStocksHasItsOwnOffset) {
    world.rib.EpCoffrage = 2;
    world.rib.EpBF = 20;
    world.rib.TabIntrados[200] = -0.06; // leans on the lower surface only
    Entities();
    const double own = world.plot.intra.DecalY[200];
    const double upper = world.plot.extra.DecalY[200];
    ASSERT_NE(own, upper);
    const Lines lines = Export();
    const std::string point =
        "(" + Number(50 + world.plot.intra.DecalX[200] * 100) + "," + Number(-6 + own * 100) + ")";
    EXPECT_NE(lines[3].find(point), std::string::npos) << point;
}

TEST_F(DxfEntities, InchFilesHaveEverythingInInches) {
    world.settings.Unite = " in";
    world.rib.corde = 254; // 10 in
    world.rib.EpBA = 25.4F;
    Spar(25.4F, 12.7F, 1).PosLongAfich = "5";
    Hole(12.7F, 0, 0).PosTrouAfich = "2.1/2";
    world.rib.trou[0].DecalTrou = 6.35F;
    EXPECT_EQ(Entities(),
              (Lines{"503 COFFR (1,0.5) (1,-0.5)", "503 COFFR (10,0) (10,0)",
                     "502 AXIS (5,0.5) (5,-0.5)", "503 LONG (4.5,0.5) (5.5,0.5) (5.5,0) (4.5,0)",
                     "503 LONG (4.5,-0.5) (5.5,-0.5) (5.5,0) (4.5,0)", "504 TROU (2.5,0.25) r 0.25",
                     "502 AXIS (2.25,0.25) (2.75,0.25)", "502 AXIS (2.5,0.125) (2.5,0.375)"}));
}

TEST_F(DxfEntities, LeadingEdgeStockEndsTheSheetingOfAnInchFileTooEarly) {
    world.settings.Unite = " in";
    world.rib.EpCoffrage = 2;
    world.rib.EpBA = 10; // 10 mm over 3.94 in: above 1
    Lines lines = Entities();
    EXPECT_EQ(lines[2], "503 COFFR");
    EXPECT_EQ(lines[3], "503 COFFR");
    lines = Entities(true);
    EXPECT_EQ(PointCount(lines[2]), 358U); // stations 2 to 359
}

TEST_F(DxfEntities, SimplePlotViewHasTheRawPoints) {
    world.rib.ModeCouple = true;
    world.rib.NbPoints = 3;
    for (const auto &[x, y] : Points{{1, 0}, {0, 0.01}, {1, -0.02}}) {
        world.rib.ProfilX.Append(x);
        world.rib.ProfilY.Append(y);
    }
    EXPECT_EQ(Export(), (Lines{"501 Layer01 (100,0) (0,1) (100,-2)", "502 AXIS (0,0) (100,0)"}));
}

TEST_F(DxfEntities, BeforeAnyPlotTablesAreZero) {
    world.plot = PlotState{};
    EXPECT_EQ(Export(), (Lines{"503 COFFR (100,0) (100,0)", "503 COFFR (100,0) (100,0)"}));
}

TEST_F(DxfEntities, FailureLeavesWhatCameBefore) {
    Entities();
    Hole(8, 0, 0);
    world.rib.trou[0].PosTrou = -1; // in front of the leading edge
    Lines lines;
    EXPECT_EQ(FailureOf([&] {
                  EntitesDxf({world.rib, world.plot, " mm"}, [&](const DxfEntite &entity) {
                      lines.push_back(std::visit(DxfWords{}, entity));
                  });
              }),
              kSubscriptOutOfRange);
    EXPECT_EQ(lines.size(), 2U);
}

} // namespace
} // namespace loftwing
