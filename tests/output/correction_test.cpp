#include "output/correction.h"

#include "support/rib_world.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class Correction : public testing::Test {
  protected:
    FinMesure After(const CorrectionImprimante &before, const TextesMesure &typed) {
        return CorrigeParMesure(before, typed, {world.settings.Unite, world.messages}, "TITLE");
    }
    void Refusal() {
        world.platform.Expect(BoxAnswer::ok,
                              {.text = "<FrmPrint 284>", .title = "TITLE", .icon = BoxIcon::stop});
    }

    RibWorld world;
};

TEST_F(Correction, AShortLineStretchesTheSheets) {
    const FinMesure end = After({}, {"99", "100.5"});
    EXPECT_FALSE(end.refuse);
    EXPECT_DOUBLE_EQ(end.correction.x, 100.0 / 99);
    EXPECT_DOUBLE_EQ(end.correction.y, 100 / 100.5);
}

TEST_F(Correction, ANewMeasureMultipliesTheOldFactor) {
    const FinMesure end = After({1.01, 0.98}, {"99.8", "100"});
    EXPECT_DOUBLE_EQ(end.correction.x, 1.01 * 100 / 99.8);
    EXPECT_DOUBLE_EQ(end.correction.y, 0.98);
}

TEST_F(Correction, InchesAreHeldAgainstFour) {
    world.settings.Unite = " in";
    EXPECT_EQ(MesureJuste(" in"), "4");
    EXPECT_EQ(MesureJuste(" mm"), "100");
    const FinMesure end = After({}, {"4.1/16", "4"});
    EXPECT_NEAR(end.correction.x, 4 / 4.0625, 1e-6);
    EXPECT_DOUBLE_EQ(end.correction.y, 1);
}

TEST_F(Correction, MoreThanFivePercentAreRefused) {
    const CorrectionImprimante before{1.03, 1};
    EXPECT_FALSE(After(before, {"98.2", "100"}).refuse); // 1.0489
    Refusal();
    const FinMesure beyond = After(before, {"98", "100"}); // 1.0510
    EXPECT_EQ(beyond.refuse, kChampLong);
    EXPECT_EQ(beyond.correction, before);
    Refusal();
    EXPECT_EQ(After({}, {"100", "106"}).refuse, kChampTravers);
    Refusal();
    EXPECT_EQ(After({}, {"", "100"}).refuse, kChampLong);
    Refusal();
    EXPECT_EQ(After({}, {"0", "100"}).refuse, kChampLong);
}

TEST_F(Correction, WhatIsNoLengthIsToldOnce) {
    world.settings.Unite = " in";
    world.platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(After({}, {"4", "2./8"}).refuse, kChampTravers);
    EXPECT_EQ(world.platform.boxes.size(), 1U);
}

TEST_F(Correction, IsToldInPercent) {
    EXPECT_EQ(TexteCorrection({100.0 / 99, 1}, world.language),
              "<FrmPrint 280> : 101.01 % <FrmPrint 281>, 100 % <FrmPrint 282>");
}

TEST_F(Correction, GoesToThePrinterWithTheQuestion) {
    EXPECT_EQ(DemandeImprimante(world.Run()).stretch.x, 1);
    world.settings.correction = {1.01, 0.99};
    const PrintQuestion question = DemandeImprimante(world.Run());
    EXPECT_EQ(question.stretch.x, 1.01);
    EXPECT_EQ(question.stretch.y, 0.99);
}

} // namespace
} // namespace loftwing
