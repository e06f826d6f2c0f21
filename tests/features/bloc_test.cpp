#include "features/bloc.h"

#include "features/inserted_text.h"
#include "support/failures.h"
#include "support/scripted_platform.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

const std::string kTitreBloc = "the window's title";

class BlocTest : public testing::Test {
  protected:
    BlocTest() {
        Language("English");
        rib.NomProfil = "e205";
        rib.ProfilCharge = true;
        rib.IntradosMini = -0.03125;
        rib.ExtradosMaxi = 0.0625;
    }

    void Language(const std::string &name) {
        language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }
    void Chord(const std::string &text, float mm) {
        rib.cordeAfich = text;
        rib.corde = mm;
    }
    /// Types `text` over box `champ` of a window that shows the rib.
    std::optional<std::string> Type(int champ, const std::string &text) {
        TextesBloc typed = TextesDuBloc(rib);
        At(typed, champ) = text;
        return SuitBloc(rib, champ, typed, saisie, kTitreBloc);
    }
    void Apply(const TextesBloc &typed) { ValideBloc(rib, typed, saisie, kTitreBloc); }
    void Expect(const std::string &text) {
        platform.Expect(BoxAnswer::ok,
                        {.text = text, .title = kTitreBloc, .icon = BoxIcon::information});
    }

    ScriptedPlatform platform;
    LngIni language;
    Messages messages{platform, language};
    std::string Unite{kUniteMm};
    Saisie saisie{Unite, messages};
    RibModel rib;
};

// What is shown.

TEST_F(BlocTest, ShowsTheRibsTexts) {
    rib.bloc.HTbasblocAfich = "1";
    rib.bloc.BAblocAfich = "2";
    rib.bloc.BFblocAfich = "3";
    rib.bloc.CoupeBFAfich = "4";
    rib.bloc.HTblocAfich = "5";
    rib.vrillage = -2.5F;
    EXPECT_EQ(TextesDuBloc(rib), (TextesBloc{"1", "2", "3", "4", "5", "-2.5"}));
    rib.vrillage = -0.0F;
    EXPECT_EQ(TextesDuBloc(rib)[kBlocVrillage], "0");
}

TEST_F(BlocTest, ShowsHowHighATemplateMustBe) {
    Chord("200", 200); // 200 / 16 and 200 / 32
    EXPECT_EQ(TextePointHaut(rib, Unite), "12.5 mm");
    EXPECT_EQ(TextePointBas(rib, Unite), "-6.25 mm");
    Chord("32", 32);
    EXPECT_EQ(TextePointHaut(rib, Unite), "2 mm");
    Chord("8.8888", 8.8888F);
    EXPECT_EQ(TextePointHaut(rib, Unite), "0.556 mm"); // 0.55555
    rib.IntradosMini = 0;
    EXPECT_EQ(TextePointBas(rib, Unite), "0 mm");
}

TEST_F(BlocTest, ShowsThatInInchesToo) {
    Unite = kUniteIn;
    Chord("10", 254); // 10 / 16 and 10 / 32
    EXPECT_EQ(TextePointHaut(rib, Unite), "5/8 in");
    EXPECT_EQ(TextePointBas(rib, Unite), "-5/16 in");
}

TEST_F(BlocTest, WithoutAnAirfoilThereIsNoHeightToShow) {
    rib.ProfilCharge = false;
    EXPECT_EQ(TextePointHaut(rib, Unite), "");
    EXPECT_EQ(TextePointBas(rib, Unite), "");
}

TEST_F(BlocTest, CaptionAndLengthAreInTheUnitOfTheUser) {
    EXPECT_EQ(TitreBloc(saisie), "Template for Foam cutting mm");
    rib.bloc.LongBloc = 279.4F;
    EXPECT_EQ(TexteLongBloc(rib, Unite), "279.4 mm");
    Unite = kUniteIn;
    Language("French");
    EXPECT_EQ(TexteLongBloc(rib, Unite), "11 in");
    EXPECT_EQ(TitreBloc(saisie), "Gabarit de découpe du polystyrène in");
}

// Typing.

TEST_F(BlocTest, RampsAndLengthFollowTheTyping) {
    EXPECT_EQ(Type(kBlocRampeBA, "30"), std::nullopt);
    EXPECT_EQ(Type(kBlocRampeBF, "40.5"), std::nullopt);
    EXPECT_EQ(rib.bloc.BAblocAfich, "30");
    EXPECT_EQ(rib.bloc.BAbloc, 30.0F);
    EXPECT_EQ(rib.bloc.BFblocAfich, "40.5");
    EXPECT_EQ(rib.bloc.BFbloc, 40.5F);
    EXPECT_EQ(rib.bloc.LongBloc, 270.5F);
    EXPECT_FALSE(rib.Modifie);
}

TEST_F(BlocTest, AnEmptyRampCountsAsZero) {
    Type(kBlocRampeBF, "40");
    Type(kBlocRampeBF, "");
    EXPECT_EQ(rib.bloc.BFblocAfich, "0");
    EXPECT_EQ(rib.bloc.BFbloc, 0.0F);
    EXPECT_EQ(rib.bloc.LongBloc, 200.0F);
}

TEST_F(BlocTest, HeightsWaitForApply) {
    Type(kBlocHauteur, "40");
    Type(kBlocBas, "10");
    Type(kBlocCoupeBF, "1");
    EXPECT_EQ(rib.bloc.HTblocAfich, "");
    EXPECT_EQ(rib.bloc.HTbasblocAfich, "0");
    EXPECT_EQ(rib.bloc.CoupeBFAfich, "0");
}

TEST_F(BlocTest, AWashoutBeyondTwentyIsTakenBackToTheLimitOfItsSign) {
    Expect("Above the limit : Washout angle 20°");
    EXPECT_EQ(Type(kBlocVrillage, "25"), "20");
    EXPECT_EQ(rib.vrillage, 20.0F);
    Expect("Below the limit : Washout angle -20°");
    EXPECT_EQ(Type(kBlocVrillage, "-25"), "-20");
    EXPECT_EQ(rib.vrillage, -20.0F);
}

TEST_F(BlocTest, AWashoutOfTwentyPasses) {
    EXPECT_EQ(Type(kBlocVrillage, "20"), std::nullopt);
    EXPECT_EQ(rib.vrillage, 20.0F);
    EXPECT_EQ(Type(kBlocVrillage, "-20"), std::nullopt);
    EXPECT_EQ(rib.vrillage, -20.0F);
    EXPECT_EQ(Type(kBlocVrillage, "-"), std::nullopt);
    EXPECT_EQ(rib.vrillage, 0.0F);
}

TEST_F(BlocTest, TheBoxOfAWashoutIsInFrenchToo) {
    Language("French");
    Expect("Au-dessus de la limite\u00a0: Angle de vrillage 20°");
    Type(kBlocVrillage, "21");
}

TEST_F(BlocTest, AFailureWhileTypingLeavesTheRibAsItWas) {
    Unite = kUniteIn;
    Type(kBlocRampeBA, "1");
    EXPECT_EQ(FailureOf([&] { Type(kBlocRampeBA, "1/0"); }), kDivisionByZero);
    EXPECT_EQ(rib.bloc.BAblocAfich, "1");
    EXPECT_EQ(rib.bloc.BAbloc, 25.4F);
}

TEST_F(BlocTest, ARefusedRampIsToldOnceAndNotAtEveryOtherKey) {
    Unite = kUniteIn;
    rib.bloc.BAblocAfich = "/8";
    Type(kBlocRampeBF, "1");
    EXPECT_EQ(rib.bloc.BFbloc, 25.4F);
    EXPECT_TRUE(platform.boxes.empty());
}

// Apply.

TEST_F(BlocTest, ApplyStoresEverythingAndTakesTheTemplateIntoUse) {
    rib.TypeGabarit = kGabaritTalon;
    Apply({"10", "30", "40", "1.5", "35", "2.50"});
    EXPECT_EQ(rib.bloc.HTbasblocAfich, "10");
    EXPECT_EQ(rib.bloc.HTbasbloc, 10.0F);
    EXPECT_EQ(rib.bloc.BAblocAfich, "30");
    EXPECT_EQ(rib.bloc.BAbloc, 30.0F);
    EXPECT_EQ(rib.bloc.BFblocAfich, "40");
    EXPECT_EQ(rib.bloc.BFbloc, 40.0F);
    EXPECT_EQ(rib.bloc.CoupeBFAfich, "1.5");
    EXPECT_EQ(rib.bloc.CoupeBF, 1.5F);
    EXPECT_EQ(rib.bloc.HTblocAfich, "35");
    EXPECT_EQ(rib.bloc.HTbloc, 35.0F);
    EXPECT_EQ(rib.bloc.LongBloc, 270.0F);
    EXPECT_EQ(rib.vrillage, 2.5F);
    EXPECT_EQ(rib.TypeGabarit, kGabaritMousse);
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(BlocTest, ApplyReadsInches) {
    Unite = kUniteIn;
    Chord("8", 203.2F);
    Apply({"3/8", "1", "1.1/2", "1/16", "2", "0"});
    EXPECT_EQ(rib.bloc.HTbasbloc, 9.525F);
    EXPECT_EQ(rib.bloc.BAbloc, 25.4F);
    EXPECT_EQ(rib.bloc.BFbloc, 38.1F);
    EXPECT_EQ(rib.bloc.CoupeBF, 1.5875F);
    EXPECT_EQ(rib.bloc.HTbloc, 50.8F);
    EXPECT_NEAR(static_cast<double>(rib.bloc.LongBloc), 266.7, 1E-4);
}

TEST_F(BlocTest, ARampAsLongAsTheChordIsTakenAndALongerOneCutToIt) {
    Apply({"0", "0", "200", "0", "0", "0"});
    EXPECT_EQ(rib.bloc.BFbloc, 200.0F);
    Expect("Wrong entry : Leading edge ramp = 250.5 > Chord = 200");
    Expect("Wrong entry : Trailing edge ramp = 201 > Chord = 200");
    Apply({"0", "250.5", "201", "0", "0", "0"});
    EXPECT_EQ(rib.bloc.BAbloc, 200.0F);
    EXPECT_EQ(rib.bloc.BAblocAfich, "250.5");
    EXPECT_EQ(rib.bloc.BFbloc, 200.0F);
    EXPECT_EQ(rib.bloc.BFblocAfich, "201");
    // The length was made before the ramps were cut.
    EXPECT_EQ(rib.bloc.LongBloc, 651.5F);
    EXPECT_EQ(rib.TypeGabarit, kGabaritMousse);
}

TEST_F(BlocTest, TheBoxOfACutRampIsInInches) {
    Unite = kUniteIn;
    Chord("8", 203.2F);
    Expect("Wrong entry : Trailing edge ramp = 8.1/2 > Chord = 8");
    Apply({"0", "0", "8.1/2", "0", "0", "0"});
}

TEST_F(BlocTest, AWashoutIsNamedInTheText) {
    Apply({"0", "0", "0", "0", "0", "-3"});
    EXPECT_EQ(rib.texte.InsTexte, "e205 Washout -3° Chord : 200");
    Language("French");
    Apply({"0", "0", "0", "0", "0", "-3"});
    EXPECT_EQ(rib.texte.InsTexte, "e205 Vrillage -3° Corde : 200");
}

TEST_F(BlocTest, AWashoutOfZeroLeavesTheTextAsItWas) {
    rib.texte.InsTexte = "old";
    Apply({"0", "0", "0", "0", "0", "0"});
    EXPECT_EQ(rib.texte.InsTexte, "old");
}

TEST_F(BlocTest, TheUsersOwnTextStays) {
    rib.texte.InsTexte = "mine";
    rib.texte.TexteUtilisateur = true;
    Apply({"0", "0", "0", "0", "0", "3"});
    EXPECT_EQ(rib.texte.InsTexte, "mine");
}

TEST_F(BlocTest, AFailureOfApplyStoresNothing) {
    Unite = kUniteIn;
    EXPECT_EQ(FailureOf([&] { Apply({"1", "1", "1", "1", "1/0", "3"}); }), kDivisionByZero);
    EXPECT_EQ(rib.bloc.HTbasblocAfich, "0");
    EXPECT_EQ(rib.TypeGabarit, kSansGabarit);
    EXPECT_EQ(rib.vrillage, 0.0F);
}

// OK.

TEST_F(BlocTest, OkRefusesARampLongerThanTheChord) {
    rib.bloc.BAblocAfich = "200";
    rib.bloc.BFblocAfich = "200.0";
    EXPECT_EQ(RefuseRampe(rib, saisie, kTitreBloc), std::nullopt);
    rib.bloc.BFblocAfich = "200.50";
    Expect("Wrong entry : Trailing edge ramp = 200.50 > Chord = 200");
    EXPECT_EQ(RefuseRampe(rib, saisie, kTitreBloc), kBlocRampeBF);
    rib.bloc.BAblocAfich = "300";
    Expect("Wrong entry : Leading edge ramp = 300 > Chord = 200");
    EXPECT_EQ(RefuseRampe(rib, saisie, kTitreBloc), kBlocRampeBA);
}

TEST_F(BlocTest, OkReadsARampInInches) {
    Unite = kUniteIn;
    Chord("8.1/2", 215.9F); // a little less than 215.9 in 32 bits
    rib.bloc.BAblocAfich = "8.1/2";
    EXPECT_EQ(RefuseRampe(rib, saisie, kTitreBloc), std::nullopt);
    rib.bloc.BAblocAfich = "8.3/4";
    Expect("Wrong entry : Leading edge ramp = 8.3/4 > Chord = 8.1/2");
    EXPECT_EQ(RefuseRampe(rib, saisie, kTitreBloc), kBlocRampeBA);
}

} // namespace
} // namespace loftwing
