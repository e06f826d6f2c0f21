#include "output/airfoil_preview.h"

#include "output/recording.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

constexpr Pen kBlackPen{0x000000, 1, LineStyle::solid};
constexpr Pen kRed{0xFF0000, 1, LineStyle::solid};

void Append(RibModel &rib, double x, double y) {
    rib.ProfilX.Append(x);
    rib.ProfilY.Append(y);
    ++rib.NbPoints;
}

TEST(AirfoilPreview, DrawsTheChordLineAndThePointsInTwips) {
    RibModel rib;
    Append(rib, 1, 0);
    Append(rib, 0.5, 0.125);
    Append(rib, 0, 0);
    Append(rib, 0.5, -0.0625);
    Append(rib, 1, 0);
    Recording drawing;
    DessineApercu(rib, drawing);
    const std::vector<Operation> expected = {
        DrawnSegment{400, 5000, 5800, 5000, kBlackPen}, DrawnSegment{5600, 5000, 3100, 4375, kRed},
        DrawnSegment{3100, 4375, 600, 5000, kRed},      DrawnSegment{600, 5000, 3100, 5312.5, kRed},
        DrawnSegment{3100, 5312.5, 5600, 5000, kRed},
    };
    EXPECT_EQ(drawing.Operations(), expected);
}

TEST(AirfoilPreview, KeepsItsScaleWhateverTheFile) {
    RibModel rib;
    Append(rib, 1, 0);
    Append(rib, 0, 2);
    Recording drawing;
    DessineApercu(rib, drawing);
    ASSERT_EQ(drawing.Operations().size(), 2U);
    EXPECT_EQ(drawing.Operations()[1], (Operation{DrawnSegment{5600, 5000, 600, -5000, kRed}}));
}

TEST(AirfoilPreview, WithoutPointsThereIsTheChordLineAlone) {
    Recording drawing;
    DessineApercu(RibModel(), drawing);
    EXPECT_EQ(drawing.Operations().size(), 1U);
}

} // namespace
} // namespace loftwing
