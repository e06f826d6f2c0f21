#include "utilities/rib_set_fixture.h"

#include "support/failures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::ElementsAre;

class Ribevol2Test : public testing::Test, public JeuFixture {
  protected:
    SaisieRibevol2 typed{{"root", "tip"}, {"200", "100"}, {"2", "4"}};
    JeuNervures jeu;
    Ribevol2 set;
    std::optional<RefusJeu> refus;

    std::string Refusal() {
        refus = ValideRibevol2(typed, saisie, jeu, set);
        return refus ? refus->text : std::string();
    }
    void Apply(int gap, const char *thickness, const char *width) {
        set.NervCourante = static_cast<std::int16_t>(gap);
        AppliqueEcart(thickness, width, saisie, jeu, set);
    }
    /// Two gaps of 30 and 40 mm around a rib of 3 mm.
    void OneRib() {
        jeu.NbNervInter = 1;
        EXPECT_EQ(Refusal(), "");
        Apply(1, "9", "30");
        Apply(2, "3", "40");
    }
};

TEST_F(Ribevol2Test, OneRibHasTwoGapsAndThreeSlots) {
    OneRib();
    // Root 2, gap 30, rib 3, gap 40, tip 4 mm. The first gap doesn't read a thickness.
    EXPECT_EQ(jeu.EprNerv[0], 2.0F);
    EXPECT_EQ(jeu.EprNerv[1], 3.0F);
    EXPECT_EQ(jeu.EprNerv[kNervureMin], 4.0F);
    EXPECT_EQ(set.PasNerv[1], 32.5F);
    EXPECT_EQ(set.CumulNerv[1], 32.5F);
    EXPECT_EQ(set.LongNerv, 76.0F);   // 32.5 + 1.5 + 40 + 2
    EXPECT_EQ(set.LongTotale, 79.0F); // and half of either end
    EXPECT_EQ(set.LongTotaleAfich, " 79. mm");
}

TEST_F(Ribevol2Test, ChordAndBlendFollowTheDistanceOfTheCentreLines) {
    OneRib();
    CalculeRibevol2(jeu, set);
    EXPECT_DOUBLE_EQ(set.PenteCorde, 100.0 / 76);
    EXPECT_EQ(jeu.CordeNerv[1], static_cast<float>(200 - 32.5 * (100.0 / 76)));
    EXPECT_DOUBLE_EQ(set.RapportNerv[1], 32.5 / 76);
}

TEST_F(Ribevol2Test, EqualChordsHaveNoSlope) {
    typed.txtcorde = {"150", "150"};
    OneRib();
    CalculeRibevol2(jeu, set);
    EXPECT_EQ(set.PenteCorde, 0.0);
    EXPECT_EQ(jeu.CordeNerv[1], 150.0F);
}

TEST_F(Ribevol2Test, ChecksRunFromTheAirfoilsToTheThicknesses) {
    typed = {};
    EXPECT_EQ(Refusal(), "none of major");
    typed.txtprofil[0] = "root";
    EXPECT_EQ(Refusal(), "none of minor");
    EXPECT_EQ(refus->champ, ChampJeu::aucun);
    typed.txtprofil[1] = "tip";
    EXPECT_EQ(Refusal(), "no major");
    typed.txtcorde[0] = "2000";
    EXPECT_EQ(Refusal(), "gap 1999 mm !");
    EXPECT_EQ(refus->icon, BoxIcon::warning);
    EXPECT_EQ(refus->champ, ChampJeu::corde_max);
    typed.txtcorde[0] = "1999";
    EXPECT_EQ(Refusal(), "no minor");
    typed.txtcorde[1] = "999.5";
    EXPECT_EQ(Refusal(), "gap 1999 mm !");
    EXPECT_EQ(refus->champ, ChampJeu::corde_min);
    typed.txtcorde = {"90", "100"};
    EXPECT_EQ(Refusal(), "smaller");
    EXPECT_EQ(refus->icon, BoxIcon::information);
    typed.txtcorde[0] = "100";
    EXPECT_EQ(Refusal(), "no thickness major");
    EXPECT_EQ(refus->champ, ChampJeu::epaisseur_max);
    typed.txtEpR[0] = "2";
    EXPECT_EQ(Refusal(), "no thickness minor");
    EXPECT_EQ(refus->champ, ChampJeu::epaisseur_min);
    typed.txtEpR[1] = "0";
    EXPECT_EQ(Refusal(), "no thickness minor");
    typed.txtEpR[1] = "2";
    EXPECT_EQ(Refusal(), "");
}

TEST_F(Ribevol2Test, ComputingStopsAtTheFirstGapThatWasNotApplied) {
    jeu.NbNervInter = 2;
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(VerifieEcarts(jeu, messages)->text, "zero");
    Apply(1, "", "30");
    Apply(2, "3", "30");
    EXPECT_EQ(VerifieEcarts(jeu, messages)->text, "zero");
    Apply(3, "3", "30");
    EXPECT_FALSE(VerifieEcarts(jeu, messages));
}

TEST_F(Ribevol2Test, ThicknessOfAnEndNeedsANewApplyAndAChordDoesNot) {
    OneRib();
    typed.txtcorde[0] = "300";
    typed.txtEpR[1] = "10";
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(set.LongNerv, 76.0F);
    CalculeRibevol2(jeu, set);
    EXPECT_DOUBLE_EQ(set.PenteCorde, 200.0 / 76);
    Apply(2, "3", "40");
    EXPECT_EQ(set.LongNerv, 79.0F);
}

TEST_F(Ribevol2Test, PanelWithoutLengthIsADivisionByZero) {
    jeu.NbNervInter = 1;
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(FailureOf([&] { CalculeRibevol2(jeu, set); }), kDivisionByZero);
}

TEST_F(Ribevol2Test, UniformSetEqualsTheEvenOne) {
    typed.txtEpR = {"2", "2"};
    jeu.NbNervInter = 3;
    EXPECT_EQ(Refusal(), "");
    for (int gap = 1; gap <= 4; ++gap) {
        Apply(gap, "2", "23");
    }
    CalculeRibevol2(jeu, set);
    const JeuDeNervures variable = ComposeRibevol2(jeu, set, profils, Dossier(), saisie);
    const JeuDeNervures even = Even("200", "100", "3");
    ASSERT_EQ(variable.nervures.size(), even.nervures.size());
    for (std::size_t i = 1; i + 1 < even.nervures.size(); ++i) {
        EXPECT_EQ(variable.nervures[i].corde, even.nervures[i].corde);
        EXPECT_NEAR(variable.nervures[i].rapport, even.nervures[i].rapport, 1e-6);
    }
}

TEST_F(Ribevol2Test, SummarySetsThicknessesIntoPrintZonesAndNamesTheGapSelectedLast) {
    OneRib();
    CalculeRibevol2(jeu, set);
    set.NervCourante = 1; // a click on another gap afterwards
    const JeuDeNervures files = ComposeRibevol2(jeu, set, profils, Dossier(), saisie);
    // 200 - 32.5 x 100 / 76 = 157.2368...; 23 characters reach to column 28.
    EXPECT_THAT(files.resume, ElementsAre("Set of ribs :  mm - variable : 1", "",
                                          "Rib #01 Chord :  200.00     thick =2", "gap =30",
                                          "Rib #02 Chord :  157.24     thick =3", "gap =40",
                                          "Rib #03 Chord :  100.00     thick =4"));
    EXPECT_EQ(NomResume(files), "root&tip_200_100_3.txt");
}

TEST_F(Ribevol2Test, ZoneThatStartsAtAMultipleOfFourteenGoesToTheNextOne) {
    // The line up to the chord has 17 characters: with these chords it ends at 27, 28 and 29.
    Unite = kUniteIn;
    typed.txtcorde = {"", "5"};
    for (const auto &[chord, blanks] : {std::pair("10.1234567", 1), std::pair("10.12345678", 14),
                                        std::pair("10.123456789", 13)}) {
        typed.txtcorde[0] = chord;
        jeu.NbNervInter = 1;
        EXPECT_EQ(Refusal(), "");
        Apply(1, "", "1");
        Apply(2, "1", "1");
        CalculeRibevol2(jeu, set);
        const JeuDeNervures files = ComposeRibevol2(jeu, set, profils, Dossier(), saisie);
        EXPECT_EQ(files.resume[2], std::string("Rib #01 Chord :  ") + chord +
                                       std::string(static_cast<std::size_t>(blanks), ' ') +
                                       "thick =2");
    }
}

TEST_F(Ribevol2Test, InchesShowFractionsAndTypedEnds) {
    Unite = kUniteIn;
    typed = {{"root", "tip"}, {"8.1/2", "4"}, {"1/16", "1/8"}};
    jeu.NbNervInter = 1;
    EXPECT_EQ(Refusal(), "");
    Apply(1, "", "1.1/2");
    Apply(2, "1/16", "2");
    CalculeRibevol2(jeu, set);
    const JeuDeNervures files = ComposeRibevol2(jeu, set, profils, Dossier(), saisie);
    EXPECT_EQ(files.resume[2], "Rib #01 Chord :  8.1/2      thick =1/16");
    EXPECT_EQ(files.resume[3], "gap =1.1/2");
    EXPECT_EQ(files.resume[6], "Rib #03 Chord :  4          thick =1/8");
    SaveProfil(files, messages);
    EXPECT_EQ(Lines("root&tipR03in.dat")[0], "Rib 3 Chord : 4 in");
}

TEST_F(Ribevol2Test, ResultIsAlwaysInFull) {
    OneRib();
    CalculeRibevol2(jeu, set);
    const JeuDeNervures files = ComposeRibevol2(jeu, set, profils, Dossier(), saisie);
    const std::string text = ResultatRibevol2(files, messages);
    EXPECT_TRUE(text.ends_with("Chord :  100.00\n\r\n\nSummary root&tip_200_100_3.txt")) << text;
}

TEST_F(Ribevol2Test, NumberOfRibsIsAskedAgainWhileItIsOutOfRange) {
    EXPECT_EQ(NombreVariable(""), 0);
    EXPECT_EQ(NombreVariable("12"), 12);
    EXPECT_EQ(NombreVariable("13 ribs"), 13);
    EXPECT_EQ(NombreVariable("-2"), -2);
    EXPECT_EQ(NombreVariable("1e300"), 32767);
    EXPECT_EQ(QuestionNombre(1, messages), "how many");
    EXPECT_EQ(QuestionNombre(-2, messages), "how many !");
    EXPECT_EQ(QuestionNombre(13, messages), "how many !\n  --->    at most twelve");
}

} // namespace
} // namespace loftwing
