// What the heel's window does with the rib, without the window.

#include "features/inserted_text.h"
#include "features/talon.h"
#include "support/failures.h"
#include "support/scripted_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

const std::string kTitreTalon = "the window's title";

class TalonWindowTest : public testing::Test {
  protected:
    TalonWindowTest() {
        Language("English");
        rib.NomProfil = "e205";
        rib.ProfilCharge = true;
        rib.IntradosMini = -0.03125;
        rib.ExtradosMaxi = 0.0625;
        Chord("256", 256);
    }

    void Language(const std::string &name) {
        language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }
    void Chord(const std::string &text, float mm) {
        rib.cordeAfich = text;
        rib.corde = mm;
    }
    /// Types `text` over box `champ` of a window that shows the rib; true when the angle is reset.
    bool Type(int champ, const std::string &text) {
        TextesTalon typed = TextesDuTalon(rib);
        At(typed, champ) = text;
        return SuitTalon(rib, champ, typed, saisie, kTitreTalon);
    }
    bool Apply(const TextesTalon &typed) { return ValideTalon(rib, typed, saisie, kTitreTalon); }
    void Expect(const std::string &text) {
        platform.Expect(BoxAnswer::ok,
                        {.text = text, .title = kTitreTalon, .icon = BoxIcon::information});
    }

    ScriptedPlatform platform;
    LngIni language;
    Messages messages{platform, language};
    std::string Unite{kUniteMm};
    Saisie saisie{Unite, messages};
    RibModel rib;
};

// Margins of an opened rib.

/// The heel of a rib components file that was just read: texts, and no numbers.
Talon JustRead(const std::string &front, const std::string &rear) {
    Talon talon;
    talon.TalonBAAfich = front;
    talon.TalonBFAfich = rear;
    return talon;
}

TEST_F(TalonWindowTest, MarginsThatOnlyTheTextsHaveAreWaiting) {
    rib.talon = JustRead("20", "30");
    EXPECT_FALSE(MargesEnAttente(rib, saisie)); // no heel
    rib.TypeGabarit = kGabaritMousse;
    EXPECT_FALSE(MargesEnAttente(rib, saisie));
    rib.TypeGabarit = kGabaritTalon;
    EXPECT_TRUE(MargesEnAttente(rib, saisie));
    rib.talon = AvecMarges(rib.talon, rib.corde, saisie);
    EXPECT_FALSE(MargesEnAttente(rib, saisie));
    for (const char *nothing : {"0", "", "0%"}) {
        rib.talon = JustRead(nothing, "0");
        EXPECT_FALSE(MargesEnAttente(rib, saisie)) << nothing;
    }
    rib.talon = JustRead("0", "12.5%");
    EXPECT_TRUE(MargesEnAttente(rib, saisie));
}

TEST_F(TalonWindowTest, MarginsThatAreNoLengthsDoNotWaitAndBringNoBox) {
    Unite = kUniteIn;
    rib.TypeGabarit = kGabaritTalon;
    for (const char *wrong : {"2./8", "/8", "1/0"}) {
        rib.talon = JustRead(wrong, "1");
        EXPECT_FALSE(MargesEnAttente(rib, saisie)) << wrong;
    }
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(TalonWindowTest, WaitingMarginsAreNamedAsTheyWillBeInForce) {
    rib.TypeGabarit = kGabaritTalon;
    rib.talon = JustRead("20", "25%");
    EXPECT_EQ(TexteMargesEnAttente(rib, saisie),
              "The heel's margins from the rib file are not in force : 20 mm, 64 mm. "
              "The heel is drawn as if they were 0.");
    Unite = kUniteIn;
    rib.talon = JustRead("1.1/2", "3/4");
    EXPECT_THAT(TexteMargesEnAttente(rib, saisie), testing::HasSubstr(" 1.1/2 in, 3/4 in. "));
}

TEST_F(TalonWindowTest, MarginsAreTakenAloneAndTheRestOfTheHeelStays) {
    rib.TypeGabarit = kGabaritTalon;
    rib.vrillage = 2;
    rib.texte.InsTexte = "words";
    rib.talon = JustRead("20", "25%");
    rib.talon.TalonExtraAfich = "9";
    rib.talon.TalonExtra = 9; // as a file gives it; the window would negate it
    EXPECT_TRUE(PrendMarges(rib, saisie));
    EXPECT_EQ(rib.talon.TalonBA, 20);
    EXPECT_EQ(rib.talon.TalonBF, 64);
    EXPECT_EQ(rib.talon.TalonLong, 84);
    EXPECT_EQ(rib.talon.TalonExtra, 9);
    EXPECT_EQ(rib.talon.TalonIntraAfich, "0");
    EXPECT_EQ(rib.vrillage, 2.0F);
    EXPECT_EQ(rib.texte.InsTexte, "words");
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(TalonWindowTest, MarginsThatAreTooLongAreToldAndNotTaken) {
    rib.TypeGabarit = kGabaritTalon;
    rib.talon = JustRead("200", "57"); // 257 on a chord of 256
    platform.Expect(BoxAnswer::ok,
                    {.text = "The margins together are longer than the chord : 257 mm > 256 mm",
                     .title = "Rib levelling heel 256  mm"});
    EXPECT_FALSE(PrendMarges(rib, saisie));
    EXPECT_EQ(rib.talon.TalonLong, 0);
    EXPECT_FALSE(rib.Modifie);
    rib.talon = JustRead("200", "56");
    EXPECT_TRUE(PrendMarges(rib, saisie));
}

// Opening.

TEST_F(TalonWindowTest, AHeightOfZeroOpensWithTheDepthOfTheContour) {
    OuvreTalon(rib, saisie);
    EXPECT_EQ(rib.talon.TalonIntraAfich, " 6.50"); // 256 / 32 - 1.5
    EXPECT_EQ(rib.talon.TalonIntra, 6.5);
    EXPECT_EQ(rib.talon.TalonExtraAfich, " 14.50"); // 256 / 16 - 1.5
    EXPECT_EQ(rib.talon.TalonExtra, -14.5);
    EXPECT_EQ(TextesDuTalon(rib), (TextesTalon{" 6.50", "0", "0", "0", " 14.50"}));
}

TEST_F(TalonWindowTest, AHeightOfTheUsersOwnStays) {
    rib.talon.TalonIntraAfich = "20";
    rib.talon.TalonIntra = 20;
    OuvreTalon(rib, saisie);
    EXPECT_EQ(rib.talon.TalonIntraAfich, "20");
    EXPECT_EQ(rib.talon.TalonExtraAfich, " 14.50");
}

TEST_F(TalonWindowTest, AWashedOutRibKeepsAHeightOfZero) {
    rib.vrillage = 2.5F;
    OuvreTalon(rib, saisie);
    EXPECT_EQ(TextesDuTalon(rib), (TextesTalon{"0", "0", "0", "-2.5", "0"}));
    EXPECT_EQ(rib.talon.TalonIntra, 0);
    EXPECT_EQ(rib.talon.TalonExtra, 0);
}

TEST_F(TalonWindowTest, OpeningReadsTheMarginsAgainstTheChord) {
    rib.talon.TalonBAAfich = "50%";
    rib.talon.TalonBFAfich = "25%";
    OuvreTalon(rib, saisie);
    // The trailing one too is the length of a margin and no place on the chord.
    EXPECT_EQ(rib.talon.TalonBA, 128);
    EXPECT_EQ(rib.talon.TalonBF, 64);
    EXPECT_EQ(rib.talon.TalonLong, 192);
    EXPECT_EQ(TexteMarges(rib.talon, Unite), "192 mm");
}

TEST_F(TalonWindowTest, AStoredTextThatIsNoLengthLeavesTheRibAsItWas) {
    Unite = kUniteIn;
    rib.talon.TalonBAAfich = "1/0";
    EXPECT_EQ(FailureOf([&] { OuvreTalon(rib, saisie); }), kDivisionByZero);
    EXPECT_EQ(rib.talon.TalonIntraAfich, "0");
}

TEST_F(TalonWindowTest, CaptionAndTotalAreInTheUnitOfTheUser) {
    EXPECT_EQ(TitreTalon(rib, saisie), "Rib levelling heel 256  mm");
    Language("French");
    Unite = kUniteIn;
    Chord("8.1/2", 215.9F);
    EXPECT_EQ(TitreTalon(rib, saisie), "Talon de calage 8.1/2  in");
    rib.talon.TalonLong = 38.1;
    EXPECT_EQ(TexteMarges(rib.talon, Unite), "1.1/2 in");
}

// Typing.

TEST_F(TalonWindowTest, MarginsCountWhileTheyAreTyped) {
    EXPECT_FALSE(Type(kTalonMargeBA, "30"));
    EXPECT_FALSE(Type(kTalonMargeBF, "12.5"));
    EXPECT_EQ(rib.talon.TalonBAAfich, "30");
    EXPECT_EQ(rib.talon.TalonBA, 30);
    EXPECT_EQ(rib.talon.TalonBFAfich, "12.5");
    EXPECT_EQ(rib.talon.TalonLong, 42.5);
    EXPECT_FALSE(rib.Modifie);
    EXPECT_EQ(rib.TypeGabarit, kSansGabarit);
}

TEST_F(TalonWindowTest, AnEmptyMarginCountsAsZero) {
    Type(kTalonMargeBA, "30");
    Type(kTalonMargeBA, "");
    EXPECT_EQ(rib.talon.TalonBAAfich, "0");
    EXPECT_EQ(rib.talon.TalonBA, 0);
    EXPECT_EQ(rib.talon.TalonLong, 0);
}

TEST_F(TalonWindowTest, AMarginAsLongAsTheChordPassesAndALongerOneIsZero) {
    Type(kTalonMargeBA, "256");
    EXPECT_EQ(rib.talon.TalonBA, 256);
    Type(kTalonMargeBA, "256.1");
    EXPECT_EQ(rib.talon.TalonBA, 0);
    EXPECT_EQ(rib.talon.TalonBAAfich, "256.1");
    Type(kTalonMargeBF, "100%");
    EXPECT_EQ(rib.talon.TalonBF, 256);
}

TEST_F(TalonWindowTest, AMarginTypedLikeTheChordIsNoLongerThanIt) {
    Unite = kUniteIn;
    Chord("8.1/2", 215.9F); // a little less than 215.9 in 32 bits
    Type(kTalonMargeBF, "8.1/2");
    EXPECT_EQ(rib.talon.TalonBF, 215.9);
    EXPECT_TRUE(Apply({"0", "0", "8.1/2", "0", "0"}));
}

TEST_F(TalonWindowTest, MarginsLongerThanTheChordTogetherAreTold) {
    Type(kTalonMargeBA, "156");
    Type(kTalonMargeBF, "100");
    Expect("The margins together are longer than the chord : 256.5 mm > 256 mm");
    Type(kTalonMargeBF, "100.5");
    EXPECT_EQ(rib.talon.TalonBF, 100.5);
    EXPECT_EQ(rib.talon.TalonLong, 256.5);
}

TEST_F(TalonWindowTest, TheTotalInABoxIsInInches) {
    Unite = kUniteIn;
    Chord("8", 203.2F);
    Type(kTalonMargeBA, "5.1/2");
    Expect("The margins together are longer than the chord : 8.1/4 in > 8 in");
    Type(kTalonMargeBF, "2.3/4");
}

TEST_F(TalonWindowTest, AnAngleAboveTwentyIsTakenBackWhicheverItsSign) {
    for (const char *angle : {"25", "-25", "20.01"}) {
        Expect("Beyond the limit : Washout angle 20°");
        EXPECT_TRUE(Type(kTalonVrillage, angle));
        EXPECT_EQ(rib.vrillage, -20.0F);
        EXPECT_EQ(TextesDuTalon(rib)[kTalonVrillage], kTexteVrillageMaxi);
    }
}

TEST_F(TalonWindowTest, AnAngleOfTwentyPasses) {
    for (const char *angle : {"20", "-20"}) {
        EXPECT_FALSE(Type(kTalonVrillage, angle));
        EXPECT_EQ(rib.vrillage, *angle == '-' ? -20.0F : 20.0F);
    }
}

TEST_F(TalonWindowTest, AnAngleHalfTypedIsNoAngleYet) {
    EXPECT_FALSE(Type(kTalonVrillage, "-"));
    EXPECT_EQ(rib.vrillage, 0.0F);
    EXPECT_EQ(TextesDuTalon(rib)[kTalonVrillage], "0");
    EXPECT_FALSE(Type(kTalonVrillage, "2"));
    EXPECT_EQ(rib.vrillage, 2.0F);
}

TEST_F(TalonWindowTest, AFailureWhileTypingLeavesTheRibAsItWas) {
    Unite = kUniteIn;
    Chord("8", 203.2F);
    Type(kTalonMargeBA, "1/2");
    EXPECT_EQ(FailureOf([&] { Type(kTalonMargeBA, "1/0"); }), kDivisionByZero);
    EXPECT_EQ(rib.talon.TalonBAAfich, "1/2");
    EXPECT_EQ(rib.talon.TalonBA, 12.7);
    EXPECT_EQ(rib.vrillage, 0.0F);
}

TEST_F(TalonWindowTest, ARefusedMarginIsToldOnceAndNotAtEveryOtherKey) {
    Unite = kUniteIn;
    rib.talon.TalonBAAfich = "/8";
    EXPECT_FALSE(Type(kTalonMargeBF, "1"));
    EXPECT_EQ(rib.talon.TalonLong, 25.4);
    EXPECT_TRUE(platform.boxes.empty());
}

// Apply.

TEST_F(TalonWindowTest, ApplyStoresEverythingAndTakesTheHeelIntoUse) {
    rib.TypeGabarit = kGabaritMousse;
    EXPECT_TRUE(Apply({"12", "30", "25%", "2.5", "15"}));
    EXPECT_EQ(rib.talon.TalonIntraAfich, "12");
    EXPECT_EQ(rib.talon.TalonIntra, 12);
    EXPECT_EQ(rib.talon.TalonBAAfich, "30");
    EXPECT_EQ(rib.talon.TalonBA, 30);
    EXPECT_EQ(rib.talon.TalonBFAfich, "25%");
    EXPECT_EQ(rib.talon.TalonBF, 64);
    EXPECT_EQ(rib.talon.TalonLong, 94);
    EXPECT_EQ(rib.talon.TalonExtraAfich, "15");
    EXPECT_EQ(rib.talon.TalonExtra, -15);
    EXPECT_EQ(rib.vrillage, -2.5F);
    EXPECT_EQ(rib.TypeGabarit, kGabaritTalon);
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(TalonWindowTest, ApplyReadsInches) {
    Unite = kUniteIn;
    Chord("8", 203.2F);
    EXPECT_TRUE(Apply({"3/8", "1.1/2", "1", "0", "1/2"}));
    EXPECT_EQ(rib.talon.TalonIntra, 9.525);
    EXPECT_EQ(rib.talon.TalonExtra, -12.7);
    EXPECT_EQ(rib.talon.TalonLong, 63.5);
}

TEST_F(TalonWindowTest, MarginsThatFillTheChordAreApplied) {
    EXPECT_TRUE(Apply({"5", "156", "100", "0", "5"}));
    EXPECT_EQ(rib.talon.TalonLong, 256);
}

TEST_F(TalonWindowTest, MarginsBeyondTheChordAreRefusedAndStayAsTyped) {
    rib.vrillage = 1;
    for (const TextesTalon &typed :
         {TextesTalon{"5", "257", "0", "3", "6"}, TextesTalon{"5", "0", "257", "3", "6"},
          TextesTalon{"5", "157", "100", "3", "6"}}) {
        Expect("The margins together are longer than the chord : 257 mm > 256 mm");
        rib.Modifie = false;
        EXPECT_FALSE(Apply(typed));
        EXPECT_TRUE(rib.Modifie);
        EXPECT_EQ(rib.talon.TalonIntraAfich, "5");
        EXPECT_EQ(rib.talon.TalonBAAfich, typed[1]);
        EXPECT_EQ(rib.talon.TalonBFAfich, typed[2]);
        EXPECT_EQ(rib.talon.TalonExtraAfich, "6");
        EXPECT_EQ(rib.TypeGabarit, kSansGabarit);
        EXPECT_EQ(rib.vrillage, 1.0F);
        EXPECT_EQ(rib.texte.InsTexte, "");
    }
}

TEST_F(TalonWindowTest, AFailureOfApplyStoresNothing) {
    Unite = kUniteIn;
    EXPECT_EQ(FailureOf([&] { Apply({"1/0", "1", "1", "3", "1"}); }), kDivisionByZero);
    EXPECT_EQ(rib.talon.TalonIntraAfich, "0");
    EXPECT_EQ(rib.talon.TalonBAAfich, "0");
    EXPECT_EQ(rib.TypeGabarit, kSansGabarit);
    EXPECT_EQ(rib.vrillage, 0.0F);
}

TEST_F(TalonWindowTest, AWashoutIsNamedInTheText) {
    for (const char *name : {"English", "French"}) {
        Language(name);
        rib.texte.InsTexte.clear();
        EXPECT_TRUE(Apply({"5", "0", "0", "2.5", "6"}));
        EXPECT_EQ(rib.texte.InsTexte, std::string(name) == "English"
                                          ? "e205 Washout -2.5° Chord : 256"
                                          : "e205 Vrillage -2.5° Corde : 256");
        // The same words as wherever else the label is made.
        EXPECT_EQ(rib.texte.InsTexte, GeneratedLabel(rib, messages));
    }
}

TEST_F(TalonWindowTest, WithoutWashoutTheTextStays) {
    rib.texte.InsTexte = "old";
    EXPECT_TRUE(Apply({"5", "0", "0", "0", "6"}));
    EXPECT_EQ(rib.texte.InsTexte, "old");
}

TEST_F(TalonWindowTest, TheUsersOwnTextStays) {
    rib.texte.InsTexte = "mine : 1";
    rib.texte.TexteUtilisateur = true;
    EXPECT_TRUE(Apply({"5", "0", "0", "3", "6"}));
    EXPECT_EQ(rib.texte.InsTexte, "mine : 1");
}

} // namespace
} // namespace loftwing
