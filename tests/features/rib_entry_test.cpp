#include "features/rib_entry.h"

#include "support/scripted_platform.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class RibEntryTest : public testing::Test {
  protected:
    RibEntryTest() {
        ChooseLanguage("English");
        rib.NomProfil = "e205";
        rib.ProfilCharge = true;
        rib.IntradosMini = -0.03125;
        rib.ExtradosMaxi = 0.0625;
    }

    void ChooseLanguage(const std::string &name) {
        language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }

    FinSaisie Type(std::string_view ModeSaisie, const std::string &typed) {
        return ValideSaisie(ModeDe(ModeSaisie), rib, typed, saisie);
    }

    std::string Shown(std::string_view ModeSaisie) const { return ModeDe(ModeSaisie).texte(rib); }

    /// A box with nothing but OK will come.
    void ExpectBox(const std::string &text, const std::string &title) {
        platform.Expect(BoxAnswer::ok, {.text = text, .title = title, .buttons = BoxButtons::ok});
    }

    ScriptedPlatform platform;
    LngIni language;
    Messages messages{platform, language};
    std::string Unite{kUniteMm};
    Saisie saisie{Unite, messages};
    RibModel rib;
};

// The modes.

TEST_F(RibEntryTest, EachModeShowsItsOwnValue) {
    rib.cordeAfich = "201";
    rib.EpCoffrageAfich = "1.1";
    rib.EpBAAfich = "3";
    rib.EpBFAfich = "4";
    rib.NbRep = 5;
    EXPECT_EQ(Shown("corde"), "201");
    EXPECT_EQ(Shown("epcof"), "1.1");
    EXPECT_EQ(Shown("ba"), "3");
    EXPECT_EQ(Shown("bf"), "4");
    EXPECT_EQ(Shown("rep"), "5");
}

TEST_F(RibEntryTest, TitlesEndInTheUnitButForTheCount) {
    EXPECT_EQ(TitreSaisie(ModeDe("corde"), saisie), "Chord length  mm");
    EXPECT_EQ(TitreSaisie(ModeDe("rep"), saisie), "Station lines");
    ChooseLanguage("French");
    Unite = kUniteIn;
    EXPECT_EQ(TitreSaisie(ModeDe("epcof"), saisie), "Épaisseur du coffrage  in");
    EXPECT_EQ(TitreSaisie(ModeDe("rep"), saisie), "Lignes de repère");
}

TEST_F(RibEntryTest, StationLinesHaveAHelpPageOfTheirOwn) {
    for (const char *mode : {"corde", "epcof", "ba", "bf"}) {
        EXPECT_EQ(ModeDe(mode).aide, 40) << mode;
    }
    EXPECT_EQ(ModeDe("rep").aide, 50);
}

TEST_F(RibEntryTest, AnUnknownModeIsAFailure) {
    try {
        ModeDe("chord");
        FAIL() << "no failure";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number, 5);
    }
}

// Chord.

TEST_F(RibEntryTest, AChordIsStoredAsTypedAndAsNumber) {
    EXPECT_EQ(Type("corde", "256.5"), FinSaisie::prise);
    EXPECT_EQ(rib.cordeAfich, "256.5");
    EXPECT_EQ(rib.corde, 256.5F);
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(RibEntryTest, AChordInInchesTakesAFraction) {
    Unite = kUniteIn;
    EXPECT_EQ(Type("corde", "8.1/2"), FinSaisie::prise);
    EXPECT_EQ(rib.cordeAfich, "8.1/2");
    EXPECT_EQ(rib.corde, 215.9F);
}

TEST_F(RibEntryTest, TheSameTextInMmIsEightAndATenth) {
    EXPECT_EQ(Type("corde", "8.1/2"), FinSaisie::prise);
    EXPECT_EQ(rib.cordeAfich, "8.1/2");
    EXPECT_EQ(rib.corde, 8.1F);
}

TEST_F(RibEntryTest, AChordOfZeroIsRefusedButItsTextIsStored) {
    rib.talon.TalonIntraAfich = "3";
    rib.bloc.LongBloc = 7;
    rib.texte.TexteUtilisateur = true;
    ExpectBox("Chord length : 0.0 mm - Please enter a chord", "Chord length  mm");
    EXPECT_EQ(Type("corde", "0.0"), FinSaisie::refusee);
    EXPECT_EQ(rib.cordeAfich, "0.0");
    EXPECT_EQ(rib.corde, 200.0F);
    EXPECT_FALSE(rib.Modifie);
    EXPECT_EQ(rib.talon.TalonIntraAfich, "3");
    EXPECT_EQ(rib.bloc.LongBloc, 7);
    EXPECT_TRUE(rib.texte.TexteUtilisateur);
}

TEST_F(RibEntryTest, AnEmptyChordIsAChordOfZero) {
    ChooseLanguage("French");
    ExpectBox("Longueur de la corde :  mm - Veuillez entrer une corde", "Longueur de la corde  mm");
    EXPECT_EQ(Type("corde", ""), FinSaisie::refusee);
    EXPECT_EQ(rib.cordeAfich, "");
}

TEST_F(RibEntryTest, AChordThatIsNoLengthInInchesIsRefusedTwice) {
    Unite = kUniteIn;
    platform.Expect(BoxAnswer::ok);
    ExpectBox("Chord length : 8./2 in - Please enter a chord", "Chord length  in");
    EXPECT_EQ(Type("corde", "8./2"), FinSaisie::refusee);
    ASSERT_EQ(platform.boxes.size(), 2U);
    EXPECT_EQ(platform.boxes[0].title, "Enter error");
    EXPECT_EQ(rib.cordeAfich, "8./2");
}

TEST_F(RibEntryTest, TheHeelFollowsTheChord) {
    rib.talon.TalonBAAfich = "25%";
    rib.talon.TalonBFAfich = "5";
    Type("corde", "256");
    EXPECT_EQ(rib.talon.TalonIntraAfich, " 6.50"); // 256 / 32 - 1.5
    EXPECT_EQ(rib.talon.TalonIntra, 6.5);
    EXPECT_EQ(rib.talon.TalonExtraAfich, " 14.50"); // 256 / 16 - 1.5
    EXPECT_EQ(rib.talon.TalonExtra, -14.5);
    EXPECT_EQ(rib.talon.TalonBA, 64);
    EXPECT_EQ(rib.talon.TalonBF, 5);
    EXPECT_EQ(rib.talon.TalonLong, 69);
}

TEST_F(RibEntryTest, TheHeelOfAWashedOutRibKeepsItsHeights) {
    rib.vrillage = -3;
    rib.talon.TalonIntraAfich = "11";
    rib.talon.TalonExtraAfich = "12";
    rib.talon.TalonBAAfich = "50%";
    Type("corde", "256");
    EXPECT_EQ(rib.talon.TalonIntraAfich, "11");
    EXPECT_EQ(rib.talon.TalonIntra, 11);
    EXPECT_EQ(rib.talon.TalonExtraAfich, "12");
    EXPECT_EQ(rib.talon.TalonExtra, -12);
    EXPECT_EQ(rib.talon.TalonLong, 128);
}

TEST_F(RibEntryTest, TheTemplateIsAsLongAsChordAndRamps) {
    rib.bloc.BAbloc = 20.5F;
    rib.bloc.BFbloc = 30;
    for (const std::uint8_t type : {kGabaritMousse, kSansGabarit, kGabaritTalon}) {
        rib.TypeGabarit = type;
        rib.bloc.LongBloc = 0;
        Type("corde", "256");
        EXPECT_EQ(rib.bloc.LongBloc, 306.5F) << int{type};
    }
}

TEST_F(RibEntryTest, ANewChordMakesALabelTheProgramsAgain) {
    for (const char *label : {"e205 Chord : 200", "e205 Chord : as it was", ""}) {
        rib.texte.InsTexte = label;
        rib.texte.TexteUtilisateur = true; // it has been in the text dialog
        Type("corde", "256");
        EXPECT_FALSE(rib.texte.TexteUtilisateur) << label;
        MajGabarit(rib, saisie);
        EXPECT_EQ(rib.texte.InsTexte, "e205 Chord : 256");
    }
}

TEST_F(RibEntryTest, ANewChordLeavesTheUsersOwnWords) {
    for (const char *words : {"left wing", "left wing : 3", "e205 left : 200"}) {
        rib.texte.InsTexte = words;
        rib.texte.TexteUtilisateur = true;
        Type("corde", "256");
        MajGabarit(rib, saisie);
        EXPECT_EQ(rib.texte.InsTexte, words);
    }
}

TEST_F(RibEntryTest, InCompareViewANewChordDoesNotMarkTheRib) {
    rib.ModeCompare = true;
    rib.Modifie = true;
    EXPECT_EQ(Type("corde", "256"), FinSaisie::prise);
    EXPECT_FALSE(rib.Modifie);
    EXPECT_EQ(rib.corde, 256.0F);
}

TEST_F(RibEntryTest, AChordBeyondItsBoundsIsReportedAndNothingStored) {
    platform.Expect(BoxAnswer::ok);
    const std::string beyond(40, '9'); // 1E+40: too much for 32 bits
    EXPECT_EQ(Type("corde", beyond), FinSaisie::refusee);
    ASSERT_EQ(platform.boxes.size(), 1U);
    EXPECT_EQ(platform.boxes[0].title, " Input/OK");
    EXPECT_NE(platform.boxes[0].text.find("# 6 "), std::string::npos);
    EXPECT_EQ(rib.cordeAfich, "200");
    EXPECT_EQ(rib.corde, 200.0F);
    EXPECT_FALSE(rib.Modifie);
}

TEST_F(RibEntryTest, AMarginOfTheHeelThatFailsLeavesTheRibAsItWas) {
    Unite = kUniteIn;
    rib.talon.TalonBAAfich = "1/0";
    rib.talon.TalonIntraAfich = "2";
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Type("corde", "10"), FinSaisie::refusee);
    EXPECT_NE(platform.boxes.at(0).text.find("# 11 "), std::string::npos);
    EXPECT_EQ(rib.cordeAfich, "200");
    EXPECT_EQ(rib.corde, 200.0F);
    EXPECT_EQ(rib.talon.TalonIntraAfich, "2");
}

// Sheeting.

TEST_F(RibEntryTest, TheHeelFollowsTheSheeting) {
    rib.corde = 256;
    EXPECT_EQ(Type("epcof", "2.5"), FinSaisie::prise);
    EXPECT_EQ(rib.EpCoffrageAfich, "2.5");
    EXPECT_EQ(rib.EpCoffrage, 2.5F);
    EXPECT_EQ(rib.talon.TalonIntraAfich, " 5.50"); // 256 / 32 - 2.5
    EXPECT_EQ(rib.talon.TalonIntra, 5.5);
    EXPECT_EQ(rib.talon.TalonExtraAfich, " 13.50"); // 256 / 16 - 2.5
    EXPECT_EQ(rib.talon.TalonExtra, -13.5);
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(RibEntryTest, TheSheetingOfAWashedOutRibLeavesTheHeelsTexts) {
    rib.vrillage = 1;
    rib.talon.TalonIntraAfich = "11";
    rib.talon.TalonExtraAfich = "12";
    Type("epcof", "2.5");
    EXPECT_EQ(rib.talon.TalonIntraAfich, "11");
    EXPECT_EQ(rib.talon.TalonIntra, 11);
    EXPECT_EQ(rib.talon.TalonExtraAfich, "12");
    EXPECT_EQ(rib.talon.TalonExtra, -12);
}

TEST_F(RibEntryTest, SheetingIsHeldAgainstNothing) {
    EXPECT_EQ(Type("epcof", "900"), FinSaisie::prise);
    EXPECT_EQ(rib.EpCoffrage, 900.0F);
    EXPECT_EQ(Type("epcof", ""), FinSaisie::prise);
    EXPECT_EQ(rib.EpCoffrageAfich, "");
    EXPECT_EQ(rib.EpCoffrage, 0.0F);
}

TEST_F(RibEntryTest, SheetingInInches) {
    Unite = kUniteIn;
    EXPECT_EQ(Type("epcof", "1/16"), FinSaisie::prise);
    EXPECT_EQ(rib.EpCoffrageAfich, "1/16");
    EXPECT_EQ(rib.EpCoffrage, 1.5875F);
}

TEST_F(RibEntryTest, AFractionOfZerothsIsReportedAndNothingStored) {
    Unite = kUniteIn;
    for (const char *mode : {"corde", "epcof", "ba", "bf"}) {
        platform.boxes.clear();
        platform.Expect(BoxAnswer::ok);
        const std::string before = Shown(mode);
        EXPECT_EQ(Type(mode, "1/0"), FinSaisie::refusee) << mode;
        ASSERT_EQ(platform.boxes.size(), 1U) << mode;
        EXPECT_EQ(platform.boxes[0].title, " Input/OK");
        EXPECT_NE(platform.boxes[0].text.find("# 11 "), std::string::npos);
        EXPECT_EQ(Shown(mode), before);
        EXPECT_FALSE(rib.Modifie) << mode;
    }
    EXPECT_EQ(rib.EpCoffrage, 1.5F);
}

// Stocks.

TEST_F(RibEntryTest, AStockAsWideAsTheChordPasses) {
    EXPECT_EQ(Type("ba", "200"), FinSaisie::prise);
    EXPECT_EQ(rib.EpBA, 200.0F);
    EXPECT_EQ(Type("bf", "200"), FinSaisie::prise);
    EXPECT_EQ(rib.EpBF, 200.0F);
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(RibEntryTest, ALeadingEdgeWiderThanTheChordIsZeroAndKeepsItsText) {
    rib.EpBA = 4;
    ExpectBox("The leading edge is wider than the chord.", "Leading edge width  mm");
    EXPECT_EQ(Type("ba", "200.1"), FinSaisie::ramenee);
    EXPECT_EQ(rib.EpBA, 0.0F);
    EXPECT_EQ(Shown("ba"), "200.1");
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(RibEntryTest, ATrailingEdgeWiderThanTheChordIsZeroAndKeepsItsText) {
    ChooseLanguage("French");
    rib.EpBF = 4;
    ExpectBox("Le bord de fuite est plus large que la corde.", "Largeur du bord de fuite  mm");
    EXPECT_EQ(Type("bf", "200.1"), FinSaisie::ramenee);
    EXPECT_EQ(rib.EpBF, 0.0F);
    EXPECT_EQ(Shown("bf"), "200.1");
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(RibEntryTest, ALeadingEdgeStockTakesThePlaceOfAVNotch) {
    rib.TypeBA = 0;
    Type("bf", "5");
    EXPECT_EQ(rib.TypeBA, 0);
    Type("ba", "5");
    EXPECT_EQ(rib.TypeBA, 1);
    rib.TypeBA = 0;
    platform.Expect(BoxAnswer::ok);
    Type("ba", "201");
    EXPECT_EQ(rib.TypeBA, 1);
}

TEST_F(RibEntryTest, AStockThatIsNoLengthInInchesIsZero) {
    Unite = kUniteIn;
    rib.EpBA = 4;
    ExpectBox("Wrong entry : \nxx.yy/zz ou xx.yy", "Enter error");
    EXPECT_EQ(Type("ba", "/8"), FinSaisie::ramenee);
    EXPECT_EQ(rib.EpBA, 0.0F);
    EXPECT_EQ(rib.EpBAAfich, "/8");
}

TEST_F(RibEntryTest, SheetingThatIsNoLengthInInchesIsZero) {
    Unite = kUniteIn;
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Type("epcof", "1./8"), FinSaisie::ramenee);
    EXPECT_EQ(rib.EpCoffrage, 0.0F);
    EXPECT_EQ(rib.EpCoffrageAfich, "1./8");
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(RibEntryTest, StocksAreComparedInMmWhateverTheUnit) {
    Unite = kUniteIn;
    EXPECT_EQ(Type("bf", "7.3/4"), FinSaisie::prise); // 7.75 * 25.4 = 196.85
    EXPECT_EQ(rib.EpBF, 196.85F);
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Type("bf", "7.7/8"), FinSaisie::ramenee); // 7.875 * 25.4 = 200.025
    EXPECT_EQ(rib.EpBF, 0.0F);
}

// Station lines.

TEST_F(RibEntryTest, StationLinesAreACountInEitherUnit) {
    for (const std::string_view unit : {kUniteMm, kUniteIn}) {
        Unite = unit;
        rib.NbRep = 0;
        rib.Modifie = false;
        EXPECT_EQ(Type("rep", "12"), FinSaisie::prise);
        EXPECT_EQ(rib.NbRep, 12);
        EXPECT_TRUE(rib.Modifie);
    }
}

TEST_F(RibEntryTest, ThreeHundredStationLinesAre255) {
    ExpectBox("There can be no more than 255 station lines.", "Station lines");
    EXPECT_EQ(Type("rep", "300"), FinSaisie::ramenee);
    EXPECT_EQ(rib.NbRep, 255);
    EXPECT_EQ(Shown("rep"), "255");
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(RibEntryTest, TheLimitOfStationLinesPasses) {
    EXPECT_EQ(Type("rep", "255"), FinSaisie::prise);
    EXPECT_EQ(rib.NbRep, 255);
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Type("rep", "255.4"), FinSaisie::ramenee);
    EXPECT_EQ(rib.NbRep, 255);
}

TEST_F(RibEntryTest, StationLinesAreRoundedHalvesToEven) {
    Type("rep", "2.5");
    EXPECT_EQ(rib.NbRep, 2);
    Type("rep", "3.5");
    EXPECT_EQ(rib.NbRep, 4);
    Type("rep", "1/2");
    EXPECT_EQ(rib.NbRep, 1);
    Type("rep", "");
    EXPECT_EQ(rib.NbRep, 0);
}

TEST_F(RibEntryTest, ANegativeCountIsReportedAndNothingStored) {
    rib.NbRep = 3;
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Type("rep", "-1"), FinSaisie::refusee);
    EXPECT_EQ(platform.boxes.at(0).title, " Input/OK");
    EXPECT_NE(platform.boxes.at(0).text.find("# 6 "), std::string::npos);
    EXPECT_EQ(rib.NbRep, 3);
    EXPECT_FALSE(rib.Modifie);
}

// Keeping in step.

TEST_F(RibEntryTest, ARibWithoutChangesIsLeftAlone) {
    rib.talon.TalonIntraAfich = "3";
    MajGabarit(rib, saisie);
    EXPECT_EQ(rib.texte.InsTexte, "");
    EXPECT_EQ(rib.talon.TalonIntraAfich, "3");
}

TEST_F(RibEntryTest, TextAndHeelAreKeptInStep) {
    rib.Modifie = true;
    rib.cordeAfich = "256";
    rib.corde = 256;
    rib.TypeGabarit = kGabaritMousse;
    rib.talon.TalonIntraAfich = "3";
    rib.vrillage = 2;
    MajGabarit(rib, saisie);
    EXPECT_EQ(rib.texte.InsTexte, "e205 Washout 2° Chord : 256");
    EXPECT_EQ(rib.talon.TalonIntraAfich, "3"); // a washed-out heel was set by hand
    rib.vrillage = 0;
    MajGabarit(rib, saisie);
    EXPECT_EQ(rib.talon.TalonIntraAfich, " 6.50");
    EXPECT_EQ(rib.talon.TalonIntra, 6.5);
    EXPECT_EQ(rib.talon.TalonExtraAfich, " 14.50");
    EXPECT_EQ(rib.talon.TalonExtra, -14.5);
}

TEST_F(RibEntryTest, TheUsersTextStaysWhileTheHeelIsKeptInStep) {
    rib.Modifie = true;
    rib.corde = 256;
    rib.texte.InsTexte = "left wing";
    rib.texte.TexteUtilisateur = true;
    MajGabarit(rib, saisie);
    EXPECT_EQ(rib.texte.InsTexte, "left wing");
    EXPECT_EQ(rib.talon.TalonIntraAfich, " 6.50");
}

} // namespace
} // namespace loftwing
