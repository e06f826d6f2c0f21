#include "core/contour_fault.h"

#include "core/contour.h"
#include "support/contour_check.h"
#include "support/failures.h"
#include "support/synthetic_airfoil.h"
#include "support/words.h"

#include <gmock/gmock.h>

namespace loftwing {
namespace {

using testing::EndsWith;

constexpr const char *kFaultWords = "[Erreur]\n1=Error\n2=in\n"
                                    "[frmopen]\n24=points\n192=and\n193=side by side\n"
                                    "194=level\n195=too few :\n196=too many behind\n"
                                    "197=too large at\n198=no outline\n";

/// An airfoil of 41 points, which are changed and then prepared.
class ContourFault : public testing::Test {
  protected:
    ContourFault() { rib.CheminProfil = "/airfoils/mine.dat"; }

    Preparation Prepare(int boxes) {
        SetPoints(rib, airfoil);
        for (int box = 0; box < boxes; ++box) {
            words.platform.Expect(BoxAnswer::ok);
        }
        return PrepareContour(rib, words.messages);
    }
    /// The box of a contour that is drawn as far as it came.
    std::string Told() {
        EXPECT_EQ(Prepare(1), Preparation::incomplete);
        if (words.platform.boxes.empty()) {
            return {};
        }
        EXPECT_EQ(words.LastBox().title, " Calcul/Alocate");
        return words.LastBox().text;
    }

    Words words{kFaultWords};
    RibModel rib;
    NaiveAirfoil airfoil = MakeAirfoil({}); // point 21 is the nose
};

TEST_F(ContourFault, ThereIsNoneInAGoodAirfoil) {
    EXPECT_EQ(Prepare(0), Preparation::complete);
    EXPECT_EQ(rib.faute.cause, CauseContour::aucune);
}

TEST_F(ContourFault, TwoPointsAtTheSamePlaceAreNamed) {
    airfoil.x[12] = airfoil.x[13] = 0.25;
    EXPECT_EQ(Told(), "Error # 11 in Loftwing\n"
                      "Division by zero: mine.dat, points 12 and 13 side by side, x = 0.25");
}

TEST_F(ContourFault, TwoPointsAtTheSameHeightInTheNoseAreNamed) {
    airfoil.y[22] = airfoil.y[23] = -0.0125;
    EXPECT_EQ(Told(), "Error # 11 in Loftwing\n"
                      "Division by zero: mine.dat, points 22 and 23 level, y = -0.0125");
}

TEST_F(ContourFault, EqualHeightsBesideTheNoseAreNone) {
    airfoil.y[8] = airfoil.y[9];
    EXPECT_EQ(Prepare(0), Preparation::complete);
}

TEST_F(ContourFault, PointsTooCloseToStepBetweenAreNamedWithBothValues) {
    airfoil.x[12] = 0.25;
    airfoil.x[13] = 0.25 - 1e-9;
    EXPECT_THAT(Told(), EndsWith("mine.dat, points 12 and 13 side by side, x = 0.25, "
                                 "x = 0.249999999"));
}

TEST_F(ContourFault, PointsOfBothSurfacesMayStandOverEachOther) {
    // With so few points the nose is sampled along x, and the six points of a sample lie on both
    // surfaces.
    airfoil = MakeAirfoil({0.12, 0, 0.4, 6, 6});
    airfoil.x[6] = airfoil.x[8] = 0.0625;
    EXPECT_EQ(Prepare(2), Preparation::impossible);
    EXPECT_THAT(words.platform.boxes[0].text,
                EndsWith("mine.dat, points 6 and 8 side by side, x = 0.0625"));
    EXPECT_THAT(words.platform.boxes[1].text,
                EndsWith("mine.dat, no outline, points 6 and 8 side by side, x = 0.0625"));
}

TEST_F(ContourFault, TooFewPointsAreCounted) {
    airfoil = MakeAirfoil({0.12, 0, 0.4, 2, 2});
    EXPECT_EQ(Prepare(2), Preparation::impossible);
    EXPECT_EQ(words.platform.boxes[0].text,
              "Error # 9 in Loftwing\nSubscript out of range: mine.dat, too few : 5");
    EXPECT_EQ(words.platform.boxes[1].text,
              "Error # 9 in Loftwing\nSubscript out of range: mine.dat, no outline, too few : 5");
}

TEST_F(ContourFault, AContourThatIsWholeButTooShortHasTooFewPoints) {
    // Five segments of the six are sampled: about 52 points, fewer than the 60 that are looked
    // through.
    airfoil = {};
    const std::vector<std::pair<double, double>> seven = {
        {1, 0}, {0.7, 0.04}, {0.3, 0.06}, {0, 0}, {0.2, -0.05}, {0.6, -0.03}, {1, 0}};
    for (const auto &[x, y] : seven) {
        airfoil.Add(x, y);
    }
    EXPECT_EQ(Prepare(1), Preparation::impossible);
    EXPECT_EQ(words.LastBox().title, " Calcul/MiniX");
    EXPECT_THAT(words.LastBox().text, EndsWith(": mine.dat, no outline, too few : 7"));
}

TEST_F(ContourFault, ThePointAtWhichAContourGetsTooLongIsNamed) {
    airfoil = MakeAirfoil({0.12, 0.02, 0.4, 2000, 2000});
    EXPECT_EQ(Prepare(1), Preparation::incomplete);
    EXPECT_EQ(rib.faute.cause, CauseContour::trop_long);
    // Ten samples a segment, at times eleven: 32767 of them end at about point 3200.
    EXPECT_NEAR(static_cast<double>(rib.faute.premier), 3200, 100);
    EXPECT_THAT(words.LastBox().text,
                EndsWith("mine.dat, too many behind " + std::to_string(rib.faute.premier)));
}

TEST_F(ContourFault, ACoordinateBeyondComputingIsNamed) {
    airfoil.y[22] = 1e300; // beyond the 32 bits of a step in the nose
    EXPECT_THAT(Told(), testing::HasSubstr("mine.dat, too large at 22, x = "));
    EXPECT_THAT(words.LastBox().text, EndsWith(", y = 1E+300"));
}

TEST_F(ContourFault, TellsHowFarTheContourComes) {
    airfoil.x[12] = airfoil.x[13] = 0.25;
    Told();
    // The six points around segment 10 are the first that hold both.
    EXPECT_EQ(rib.faute.jusque, 10);
}

TEST_F(ContourFault, GoesWithTheNextAirfoil) {
    const NaiveAirfoil good = airfoil;
    airfoil.x[12] = airfoil.x[13] = 0.25;
    Told();
    airfoil = good;
    EXPECT_EQ(Prepare(0), Preparation::complete);
    EXPECT_EQ(rib.faute.cause, CauseContour::aucune);
}

} // namespace
} // namespace loftwing
