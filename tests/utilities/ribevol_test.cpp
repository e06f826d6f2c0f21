#include "utilities/rib_set_fixture.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class RibevolTest : public testing::Test, public JeuFixture {
  protected:
    SaisieRibevol typed{{"root", "tip"}, {"200", "100"}, "3"};
    Ribevol set;

    /// The text of the refusal, "" for none.
    std::string Refusal() {
        refus = VerifieRibevol(typed, saisie, set);
        return refus ? refus->text : std::string();
    }
    std::optional<RefusJeu> refus;
};

TEST_F(RibevolTest, StepsShareChordAndBlendEvenly) {
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(set.PasCorde, 25.0);
    EXPECT_EQ(set.PasRapport, 100.0 / 4 / 100);
    const JeuDeNervures jeu = ComposeRibevol(set, profils, Dossier(), saisie);
    ASSERT_EQ(jeu.nervures.size(), 5U);
    EXPECT_EQ(jeu.nervures[2].corde, " 150.00");
    EXPECT_EQ(jeu.nervures[3].rapport, 0.75);
}

TEST_F(RibevolTest, EqualChordsHaveAStepOfZero) {
    typed.txtcorde = {"150", "150"};
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(set.PasCorde, 0.0);
}

TEST_F(RibevolTest, ChecksRunFromTheNumberToTheAirfoils) {
    typed = {};
    EXPECT_EQ(Refusal(), "no count");
    EXPECT_EQ(refus->champ, ChampJeu::nombre);
    typed.txtnervI = "3";
    EXPECT_EQ(Refusal(), "no major");
    EXPECT_EQ(refus->champ, ChampJeu::corde_max);
    typed.txtcorde[0] = "100";
    EXPECT_EQ(Refusal(), "no minor");
    EXPECT_EQ(refus->champ, ChampJeu::corde_min);
    typed.txtcorde[1] = "200";
    EXPECT_EQ(Refusal(), "smaller");
    EXPECT_EQ(refus->champ, ChampJeu::corde_max);
    EXPECT_EQ(refus->icon, BoxIcon::warning);
    typed.txtcorde[1] = "100";
    EXPECT_EQ(Refusal(), "no airfoil");
    EXPECT_EQ(refus->champ, ChampJeu::aucun);
    typed.txtprofil = {"root", ""};
    EXPECT_EQ(Refusal(), "no airfoil");
    typed.txtprofil = {"root", "tip"};
    EXPECT_EQ(Refusal(), "");
}

TEST_F(RibevolTest, ZeroCountsAsNothingTyped) {
    typed.txtnervI = "0";
    EXPECT_EQ(Refusal(), "no count");
    typed.txtnervI = "1";
    typed.txtcorde[0] = "0";
    EXPECT_EQ(Refusal(), "no major");
}

TEST_F(RibevolTest, NinetyRibsPassAndNinetyOneAreTooMany) {
    typed.txtnervI = "90";
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(set.NbNervI, 90);
    typed.txtnervI = "91";
    EXPECT_EQ(Refusal(), "too many 90 Ribs !");
    EXPECT_EQ(refus->icon, BoxIcon::warning);
    typed.txtnervI = "99999999999";
    EXPECT_EQ(Refusal(), "too many 90 Ribs !");
}

TEST_F(RibevolTest, CountIsRoundedHalvesToEven) {
    typed.txtnervI = "2.5";
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(set.NbNervI, 2);
    typed.txtnervI = "90.5";
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(set.NbNervI, 90);
}

TEST_F(RibevolTest, MajorChordPassesUpTo1999) {
    typed.txtcorde[0] = "1999.0";
    EXPECT_EQ(Refusal(), "");
    typed.txtcorde[0] = "1999.01";
    EXPECT_EQ(Refusal(), "too long 1999 mm !");
    EXPECT_EQ(refus->icon, BoxIcon::warning);
    EXPECT_EQ(refus->champ, ChampJeu::corde_max);
}

TEST_F(RibevolTest, MinorChordPassesUpTo999AndTheWordsSay1999) {
    typed.txtcorde = {"1500", "999.0"};
    EXPECT_EQ(Refusal(), "");
    typed.txtcorde[1] = "999.5";
    EXPECT_EQ(Refusal(), "too long 1999 mm !");
    EXPECT_EQ(refus->champ, ChampJeu::corde_min);
}

TEST_F(RibevolTest, LimitInInchesIsThatOfTheConvertedValue) {
    Unite = kUniteIn;
    typed.txtcorde = {"78.75", "4"}; // 2000.25 mm
    EXPECT_EQ(Refusal(), "too long 78 1/3 inches !");
    typed.txtcorde[0] = "78.5"; // 1993.9 mm
    EXPECT_EQ(Refusal(), "");
}

TEST_F(RibevolTest, TextIsKeptAsTyped) {
    Unite = kUniteIn;
    typed.txtcorde = {"8.1/2", "4"};
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(set.CordeMaxAfich, "8.1/2");
    EXPECT_EQ(set.CordeMax, 215.9F);
}

} // namespace
} // namespace loftwing
