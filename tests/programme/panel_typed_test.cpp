#include "programme/panel_typed.h"

#include "base/file_name.h"
#include "support/words.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class PlaceInWing : public testing::Test {
  protected:
    Words words{"[Plan]\r\n1=no length\r\n2=bad sweep\r\n3=bad angle\r\n4=bad density\r\n"
                "[Panel]\r\n124=bad length\r\n130=too thick\r\n"};
    std::string Unite{kUniteMm};
    Saisie saisie{Unite, words.messages};
    FichierPanneau file;

    ReglageAile Place() {
        const auto place = ReglageDe(file, saisie);
        EXPECT_TRUE(std::holds_alternative<ReglageAile>(place));
        return std::holds_alternative<ReglageAile>(place) ? std::get<ReglageAile>(place)
                                                          : ReglageAile{};
    }
    void ExpectRefused(ChampAile field, const std::string &why) {
        const auto place = ReglageDe(file, saisie);
        ASSERT_TRUE(std::holds_alternative<RefusReglage>(place));
        EXPECT_EQ(std::get<RefusReglage>(place).champ, field);
        EXPECT_EQ(std::get<RefusReglage>(place).texte, why);
    }
};

TEST_F(PlaceInWing, EmptyTextsAreNothing) {
    const ReglageAile place = Place();
    EXPECT_EQ(place.longueur, 0);
    EXPECT_EQ(place.recul, 0);
    EXPECT_EQ(place.diedre, 0);
    EXPECT_EQ(place.densite, 0);
}

TEST_F(PlaceInWing, SweepAndDihedralMayHaveAMinus) {
    file.longueur = "500.5";
    file.recul = "-12.5";
    file.diedre = "-3,5";
    file.densite = "160";
    const ReglageAile place = Place();
    EXPECT_DOUBLE_EQ(place.longueur, 500.5);
    EXPECT_DOUBLE_EQ(place.recul, -12.5);
    EXPECT_DOUBLE_EQ(place.diedre, -3.5);
    EXPECT_DOUBLE_EQ(place.densite, 160);
}

TEST_F(PlaceInWing, InchesMayBeFractionsAndADensityIsInPoundsPerCubicFoot) {
    Unite = kUniteIn;
    file.longueur = "20.1/2";
    file.recul = "-1/4";
    file.densite = "10";
    const ReglageAile place = Place();
    EXPECT_NEAR(place.longueur, 20.5 * 25.4, 1e-4);
    EXPECT_NEAR(place.recul, -6.35, 1e-5);
    EXPECT_NEAR(place.densite, 0.45359237 * 10 / (0.3048 * 0.3048 * 0.3048), 1e-9);
}

TEST_F(PlaceInWing, WhatIsNoneIsRefusedByItsField) {
    file.longueur = "20001";
    ExpectRefused(ChampAile::longueur, "bad length");
    file.longueur = "";
    for (const char *text : {"abc", "5001", "--3", "-", "1e3"}) {
        file.recul = text;
        ExpectRefused(ChampAile::recul, "bad sweep");
    }
    file.recul = "";
    for (const char *text : {"60.01", "x", "nan", "inf", "1e1", "-", "3 4"}) {
        file.diedre = text;
        ExpectRefused(ChampAile::diedre, "bad angle");
    }
    file.diedre = "";
    for (const char *text : {"-1", "2000.5", "12kg"}) {
        file.densite = text;
        ExpectRefused(ChampAile::densite, "bad density");
    }
}

TEST_F(PlaceInWing, TheTextThatDoesNotCountIsNamed) {
    file.nombre = "3";
    file.epaisseurs = {"2"};
    EXPECT_FALSE(TexteIllisible(file, saisie));
    file.nombre = "many";
    EXPECT_EQ(TexteIllisible(file, saisie), "many");
    file.epaisseurs = {"thick"};
    EXPECT_EQ(TexteIllisible(file, saisie), "thick");
    file.epaisseurs = {"2", "2", "2"};
    file.ecarts = {"50", "fifty"};
    EXPECT_EQ(TexteIllisible(file, saisie), "fifty");
}

TEST_F(PlaceInWing, GapsAndThicknessesGoTogether) {
    EXPECT_TRUE(EcartsComplets(file));
    file.epaisseurs = {"2", "2"};
    EXPECT_FALSE(EcartsComplets(file));
    file.ecarts = {"50"};
    EXPECT_FALSE(EcartsComplets(file)); // one gap is no panel with a rib between
    file.ecarts = {"50", "60"};
    EXPECT_FALSE(EcartsComplets(file));
    file.epaisseurs = {"2", "2", "2"};
    EXPECT_TRUE(EcartsComplets(file));
    EXPECT_EQ(JeuDe(file, "sets").dossier, WithSeparator("sets"));
    EXPECT_EQ(JeuDe(file, "sets").ecarts, file.ecarts);
}

TEST_F(PlaceInWing, ARefusalHasWords) {
    EXPECT_EQ(TexteRefusAile(words.messages, RefusAile::sans_longueur), "no length");
    EXPECT_EQ(TexteRefusAile(words.messages, RefusAile::trop_epais), "too thick");
}

} // namespace
} // namespace loftwing
