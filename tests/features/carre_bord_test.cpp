#include "features/carre_bord.h"

#include "features/rib_entry.h"
#include "support/failures.h"
#include "support/scripted_platform.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

const std::string kTitreCarre = "the window's title";

class CarreBordTest : public testing::Test {
  protected:
    CarreBordTest() {
        Language("English");
        rib.corde = 200;
    }

    void Language(const std::string &name) {
        language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }
    /// Applies the texts and gives what the boxes show then.
    TextesCarre Apply(TextesCarre typed) {
        ValideCarre(rib, typed, saisie, kTitreCarre);
        return typed;
    }
    void Expect(const std::string &text) {
        platform.Expect(BoxAnswer::ok,
                        {.text = text, .title = kTitreCarre, .icon = BoxIcon::information});
    }

    ScriptedPlatform platform;
    LngIni language;
    Messages messages{platform, language};
    std::string Unite{kUniteMm};
    Saisie saisie{Unite, messages};
    RibModel rib;
};

TEST_F(CarreBordTest, ApplyStoresTheSquareInPlaceOfTheStock) {
    EXPECT_EQ(Apply({"5", "4.5", "-1.5"}), (TextesCarre{"5", "4.5", "-1.5"}));
    EXPECT_EQ(rib.carre.CarreBAAfich, "5");
    EXPECT_EQ(rib.carre.CarreBA, 5.0F);
    EXPECT_EQ(rib.carre.CarreBAXAfich, "4.5");
    EXPECT_EQ(rib.carre.CarreBAX, 4.5F);
    EXPECT_EQ(rib.carre.CarreBAYAfich, "-1.5");
    EXPECT_EQ(rib.carre.CarreBAY, -1.5F);
    EXPECT_EQ(rib.TypeBA, 0);
    EXPECT_TRUE(rib.Modifie);
    EXPECT_EQ(TextesDuCarre(rib), (TextesCarre{"5", "4.5", "-1.5"}));
}

TEST_F(CarreBordTest, ASquareOfFiftyPassesAndSixtyIsCutToIt) {
    Apply({"50", "0", "0"});
    EXPECT_EQ(rib.carre.CarreBA, 50.0F);
    Expect("The largest size of the square is 50 mm");
    EXPECT_EQ(Apply({"60", "0", "0"})[kCarreCote], "50");
    EXPECT_EQ(rib.carre.CarreBA, 50.0F);
    EXPECT_EQ(rib.carre.CarreBAAfich, "60");
}

TEST_F(CarreBordTest, InInchesTwoIsTheLimit) {
    Unite = kUniteIn;
    Apply({"2", "1/4", "-1/8"});
    EXPECT_EQ(rib.carre.CarreBA, 50.8F);
    EXPECT_EQ(rib.carre.CarreBAX, 6.35F);
    EXPECT_EQ(rib.carre.CarreBAY, -3.175F);
    Expect("The largest size of the square is 2 inches");
    EXPECT_EQ(Apply({"2.1/64", "0", "0"})[kCarreCote], "2");
    EXPECT_EQ(rib.carre.CarreBA, 50.8F);
    EXPECT_EQ(rib.carre.CarreBAAfich, "2.1/64");
}

TEST_F(CarreBordTest, AnAxisBehindTheChordBecomesZero) {
    Apply({"5", "200", "0"});
    EXPECT_EQ(rib.carre.CarreBAX, 200.0F);
    Expect("The axis lies behind the trailing edge. Its position from L.E is set to 0.");
    EXPECT_EQ(Apply({"5", "200.1", "0"})[kCarreX], "200.1");
    EXPECT_EQ(rib.carre.CarreBAX, 0.0F);
    EXPECT_EQ(rib.carre.CarreBAXAfich, "200.1");
}

TEST_F(CarreBordTest, TheHeightOfTheAxisHasNoLimit) {
    Apply({"5", "5", "-500"});
    EXPECT_EQ(rib.carre.CarreBAY, -500.0F);
}

TEST_F(CarreBordTest, BothLimitsAreToldInTurn) {
    Expect("The largest size of the square is 50 mm");
    Expect("The axis lies behind the trailing edge. Its position from L.E is set to 0.");
    Apply({"51", "201", "0"});
}

TEST_F(CarreBordTest, ApplyMakesTheStockAnewFromItsText) {
    rib.EpBAAfich = "3.5";
    rib.EpBA = 8;
    Apply({"5", "5", "0"});
    EXPECT_EQ(rib.EpBA, 3.5F);
}

TEST_F(CarreBordTest, AFailureLeavesTheRibAsItWas) {
    Unite = kUniteIn;
    EXPECT_EQ(FailureOf([&] { Apply({"1", "1", "1/0"}); }), kDivisionByZero);
    EXPECT_EQ(rib.carre.CarreBAAfich, "0");
    EXPECT_EQ(rib.TypeBA, 1);
    EXPECT_FALSE(rib.Modifie);
}

TEST_F(CarreBordTest, ThePlainStockAfterwardsKeepsTheThreeValues) {
    Apply({"5", "4", "1"});
    EXPECT_EQ(ValideSaisie(ModeDe("ba"), rib, "6", saisie), FinSaisie::prise);
    EXPECT_EQ(rib.TypeBA, 1);
    EXPECT_EQ(TextesDuCarre(rib), (TextesCarre{"5", "4", "1"}));
    EXPECT_EQ(rib.carre.CarreBA, 5.0F);
    EXPECT_EQ(rib.carre.CarreBAX, 4.0F);
    EXPECT_EQ(rib.carre.CarreBAY, 1.0F);
}

TEST_F(CarreBordTest, OnceTheSquareIsTakenThereIsNoStock) {
    rib.EpBAAfich = "3";
    rib.EpBA = 3;
    RetireBaguette(rib);
    EXPECT_EQ(rib.EpBAAfich, "0");
    EXPECT_EQ(rib.EpBA, 0.0F);
}

TEST_F(CarreBordTest, TheCaptionEndsInTheUnit) {
    EXPECT_EQ(TitreCarre(saisie), "Leading Edge V-notch square mm");
    Language("French");
    Unite = kUniteIn;
    EXPECT_EQ(TitreCarre(saisie), "Baguette carrée de bord d’attaque, encoche en V in");
}

} // namespace
} // namespace loftwing
