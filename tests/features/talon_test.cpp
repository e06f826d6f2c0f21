#include "features/talon.h"

#include "support/scripted_platform.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class TalonTest : public testing::Test {
  protected:
    TalonTest() {
        rib.IntradosMini = -0.03125;
        rib.ExtradosMaxi = 0.0625;
    }

    ScriptedPlatform platform;
    LngIni language;
    Messages messages{platform, language};
    std::string Unite{kUniteMm};
    Saisie saisie{Unite, messages};
    RibModel rib;
};

TEST_F(TalonTest, HeightsAreTheContoursLessTheSheeting) {
    // 256 / 32 - 1.5 and 256 / 16 - 1.5; the picture's blank stands in front.
    EXPECT_EQ(TexteTalonIntra(rib, {256, 1.5F}, Unite), " 6.50");
    EXPECT_EQ(TexteTalonExtra(rib, {256, 1.5F}, Unite), " 14.50");
}

TEST_F(TalonTest, SheetingThickerThanTheContourGivesAHeightBelowZero) {
    rib.IntradosMini = 0;
    EXPECT_EQ(TexteTalonIntra(rib, {256, 1.5F}, Unite), "- 1.50");
    Talon talon;
    talon.TalonIntraAfich = "- 1.50";
    EXPECT_EQ(AvecHauteurs(talon, saisie).TalonIntra, -1.5);
}

TEST_F(TalonTest, AHeightInInchesIsAFractionWhereSixtyFourthsGiveIt) {
    Unite = kUniteIn;
    // 254 mm are 10 in: 10 / 32 and 10 / 16.
    EXPECT_EQ(TexteTalonIntra(rib, {254, 0}, Unite), "5/16");
    EXPECT_EQ(TexteTalonExtra(rib, {254, 0}, Unite), "5/8");
}

TEST_F(TalonTest, AnotherHeightInInchesHasTwoDecimals) {
    Unite = kUniteIn;
    // 255 mm / 32 are 7.96875 mm or 0.31373 in; 255 / 16 are 0.62746 in.
    EXPECT_EQ(TexteTalonIntra(rib, {255, 0}, Unite), " .31");
    EXPECT_EQ(TexteTalonExtra(rib, {255, 0}, Unite), " .63");
}

TEST_F(TalonTest, TheUpperHeightIsKeptNegated) {
    Talon talon;
    talon.TalonIntraAfich = "12.5";
    talon.TalonExtraAfich = " 14.50";
    talon = AvecHauteurs(talon, saisie);
    EXPECT_EQ(talon.TalonIntra, 12.5);
    EXPECT_EQ(talon.TalonExtra, -14.5);
}

TEST_F(TalonTest, WithoutWashoutTheHeightsFollowTheMeasures) {
    rib.talon.TalonIntraAfich = "3";
    const Talon talon = TalonPour(rib, {256, 1.5F}, saisie);
    EXPECT_EQ(talon.TalonIntraAfich, " 6.50");
    EXPECT_EQ(talon.TalonIntra, 6.5);
    EXPECT_EQ(talon.TalonExtraAfich, " 14.50");
    EXPECT_EQ(talon.TalonExtra, -14.5);
    EXPECT_EQ(rib.talon.TalonIntraAfich, "3");
}

TEST_F(TalonTest, AWashedOutRibKeepsTheTypedHeights) {
    rib.vrillage = 2;
    rib.talon.TalonIntraAfich = "3";
    rib.talon.TalonExtraAfich = "4";
    const Talon talon = TalonPour(rib, {256, 1.5F}, saisie);
    EXPECT_EQ(talon.TalonIntraAfich, "3");
    EXPECT_EQ(talon.TalonIntra, 3);
    EXPECT_EQ(talon.TalonExtraAfich, "4");
    EXPECT_EQ(talon.TalonExtra, -4);
}

TEST_F(TalonTest, MarginsAreLengthsOrPartsOfTheChord) {
    Talon talon;
    talon.TalonBAAfich = "25%";
    talon.TalonBFAfich = "5.5";
    talon = AvecMarges(talon, 256, saisie);
    EXPECT_EQ(talon.TalonBA, 64);
    EXPECT_EQ(talon.TalonBF, 5.5);
    EXPECT_EQ(talon.TalonLong, 69.5);
}

} // namespace
} // namespace loftwing
