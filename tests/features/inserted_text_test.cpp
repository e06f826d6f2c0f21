#include "features/inserted_text.h"

#include "support/failures.h"
#include "support/scripted_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::ElementsAre;

class InsertedTextTest : public testing::Test {
  protected:
    InsertedTextTest() {
        ChooseLanguage("English");
        rib.NomProfil = "e205";
        rib.cordeAfich = "200";
    }

    void ChooseLanguage(const std::string &name) {
        language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }

    void Take(const TexteTape &typed) { PrendTexteInsere(rib, typed, saisie); }

    ScriptedPlatform platform;
    LngIni language;
    Messages messages{platform, language};
    std::string Unite{kUniteMm};
    Saisie saisie{Unite, messages};
    RibModel rib;
    std::string &InsTexte = rib.texte.InsTexte;
    bool &TexteUtilisateur = rib.texte.TexteUtilisateur;
};

TEST_F(InsertedTextTest, TheLabelNamesAirfoilAndChordAsTyped) {
    rib.cordeAfich = "8.1/2";
    EXPECT_EQ(GeneratedLabel(rib, messages), "e205 Chord : 8.1/2");
    ChooseLanguage("French");
    EXPECT_EQ(GeneratedLabel(rib, messages), "e205 Corde : 8.1/2");
}

TEST_F(InsertedTextTest, TheWashoutJoinsInWithAnAddOnOnly) {
    rib.vrillage = -2.5F;
    EXPECT_EQ(GeneratedLabel(rib, messages), "e205 Chord : 200");
    rib.TypeGabarit = kGabaritTalon;
    EXPECT_EQ(GeneratedLabel(rib, messages), "e205 Washout -2.5° Chord : 200");
    rib.TypeGabarit = kGabaritMousse;
    EXPECT_EQ(GeneratedLabel(rib, messages), "e205 Washout -2.5° Chord : 200");
    ChooseLanguage("French");
    EXPECT_EQ(GeneratedLabel(rib, messages), "e205 Vrillage -2.5° Corde : 200");
    rib.vrillage = 0;
    EXPECT_EQ(GeneratedLabel(rib, messages), "e205 Corde : 200");
}

TEST_F(InsertedTextTest, AWashoutBelowOneDegreeKeepsItsZero) {
    rib.TypeGabarit = kGabaritMousse;
    rib.vrillage = 0.1F;
    EXPECT_EQ(GeneratedLabel(rib, messages), "e205 Washout 0.1° Chord : 200");
}

TEST_F(InsertedTextTest, MakingAnewLeavesTheUsersWords) {
    InsTexte = "left wing";
    TexteUtilisateur = true;
    RegenereTexte(rib, messages);
    EXPECT_EQ(InsTexte, "left wing");
    TexteUtilisateur = false;
    RegenereTexte(rib, messages);
    EXPECT_EQ(InsTexte, "e205 Chord : 200");
}

TEST_F(InsertedTextTest, AnUntouchedLabelTakesTheChordInForce) {
    InsTexte = "e205 Chord : 150";
    TexteUtilisateur = true;
    ActualiseTexte(rib, messages);
    EXPECT_EQ(InsTexte, "e205 Chord : 200");
    EXPECT_FALSE(TexteUtilisateur);
}

TEST_F(InsertedTextTest, OnlyTheWordsBeforeTheColonDecide) {
    InsTexte = "e205 Chord : tip: left";
    ActualiseTexte(rib, messages);
    EXPECT_EQ(InsTexte, "e205 Chord : 200");
    EXPECT_FALSE(TexteUtilisateur);
}

TEST_F(InsertedTextTest, AnEditedLabelIsTheUsers) {
    InsTexte = "e205 tip Chord : 150";
    ActualiseTexte(rib, messages);
    EXPECT_EQ(InsTexte, "e205 tip Chord : 150");
    EXPECT_TRUE(TexteUtilisateur);
}

TEST_F(InsertedTextTest, ALabelWithoutTheBlankBeforeItsColonIsTheUsers) {
    // The character in front of the colon is left out whatever it is.
    InsTexte = "e205 Chord: 150";
    ActualiseTexte(rib, messages);
    EXPECT_EQ(InsTexte, "e205 Chord: 150");
    EXPECT_TRUE(TexteUtilisateur);
}

TEST_F(InsertedTextTest, ACharacterOfTwoBytesBeforeTheColonIsOneCharacter) {
    InsTexte = "e205 Chord°: 150";
    ActualiseTexte(rib, messages);
    EXPECT_EQ(InsTexte, "e205 Chord : 200");
}

TEST_F(InsertedTextTest, AColonAtTheStartIsTheUsers) {
    InsTexte = ": 150";
    ActualiseTexte(rib, messages);
    EXPECT_EQ(InsTexte, ": 150");
    EXPECT_TRUE(TexteUtilisateur);
}

TEST_F(InsertedTextTest, ATextWithoutColonChangesNothing) {
    InsTexte = "e205 Chord";
    for (const bool own : {false, true}) {
        TexteUtilisateur = own;
        ActualiseTexte(rib, messages);
        EXPECT_EQ(InsTexte, "e205 Chord");
        EXPECT_EQ(TexteUtilisateur, own);
    }
}

TEST_F(InsertedTextTest, AnEmptyTextBecomesTheLabel) {
    TexteUtilisateur = true;
    ActualiseTexte(rib, messages);
    EXPECT_EQ(InsTexte, "e205 Chord : 200");
    EXPECT_FALSE(TexteUtilisateur);
}

TEST_F(InsertedTextTest, ALabelMadeForAnotherWashoutIsTheUsers) {
    rib.TypeGabarit = kGabaritMousse;
    rib.vrillage = 3;
    InsTexte = "e205 Washout 2° Chord : 150";
    ActualiseTexte(rib, messages);
    EXPECT_EQ(InsTexte, "e205 Washout 2° Chord : 150");
    EXPECT_TRUE(TexteUtilisateur);
    InsTexte = "e205 Washout 3° Chord : 150";
    ActualiseTexte(rib, messages);
    EXPECT_EQ(InsTexte, "e205 Washout 3° Chord : 200");
    EXPECT_FALSE(TexteUtilisateur);
}

// What the dialog shows and takes.

TEST_F(InsertedTextTest, TheDialogShowsTheLabelOfTheRibAsItIsNow) {
    InsTexte = "e205 Chord : 150";
    rib.texte.InsTextXAfich = "12.5";
    rib.texte.InsTextYAfich = "-3";
    const TexteTape shown = TexteAffiche(rib, messages);
    EXPECT_EQ(shown.texte, "e205 Chord : 200");
    EXPECT_EQ(shown.x, "12.5");
    EXPECT_EQ(shown.y, "-3");
    EXPECT_EQ(InsTexte, "e205 Chord : 150");
}

TEST_F(InsertedTextTest, TheDialogShowsTheUsersTextAsItStands) {
    InsTexte = "e205 Chord : 150";
    TexteUtilisateur = true;
    EXPECT_EQ(TexteAffiche(rib, messages).texte, "e205 Chord : 150");
}

TEST_F(InsertedTextTest, TakingStoresTextsAndNumbersAndMarksTheRib) {
    Take({"left wing", "60.5", "-4"});
    EXPECT_EQ(InsTexte, "left wing");
    EXPECT_EQ(rib.texte.InsTextXAfich, "60.5");
    EXPECT_EQ(rib.texte.InsTextX, 60.5F);
    EXPECT_EQ(rib.texte.InsTextYAfich, "-4");
    EXPECT_EQ(rib.texte.InsTextY, -4.0F);
    EXPECT_TRUE(TexteUtilisateur);
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(InsertedTextTest, ALabelThatIsTakenIsRefreshedAndCountsAsTheUsersAllTheSame) {
    Take({"e205 Chord : 150", "0", "0"});
    EXPECT_EQ(InsTexte, "e205 Chord : 200");
    EXPECT_TRUE(TexteUtilisateur);
}

TEST_F(InsertedTextTest, PlacesInInchesAreKeptAsTypedAndCountInMm) {
    Unite = kUniteIn;
    Take({"x", "2.1/2", "-1/4"});
    EXPECT_EQ(rib.texte.InsTextXAfich, "2.1/2");
    EXPECT_EQ(rib.texte.InsTextX, 63.5F);
    EXPECT_EQ(rib.texte.InsTextYAfich, "-1/4");
    EXPECT_EQ(rib.texte.InsTextY, -6.35F);
}

TEST_F(InsertedTextTest, AnEmptyPlaceIsZero) {
    rib.texte.InsTextX = 7;
    Take({"x", "", ""});
    EXPECT_EQ(rib.texte.InsTextXAfich, "");
    EXPECT_EQ(rib.texte.InsTextX, 0.0F);
    EXPECT_EQ(rib.texte.InsTextY, 0.0F);
}

TEST_F(InsertedTextTest, APlaceThatIsNoLengthLeavesTheRibAsItWas) {
    Unite = kUniteIn;
    InsTexte = "old";
    for (const TexteTape &typed :
         {TexteTape{"new", "1/0", "1"}, TexteTape{"new", "1", "1/0"}, TexteTape{"", "2", "1/0"}}) {
        EXPECT_EQ(FailureOf([&] { Take(typed); }), 11);
        EXPECT_EQ(InsTexte, "old");
        EXPECT_EQ(rib.texte.InsTextXAfich, "0");
        EXPECT_EQ(rib.texte.InsTextX, 0.0F);
        EXPECT_FALSE(TexteUtilisateur);
        EXPECT_FALSE(rib.Modifie);
    }
    Unite = kUniteMm;
    EXPECT_EQ(FailureOf([&] { Take({"new", "1" + std::string(39, '0'), "0"}); }), 6);
    EXPECT_EQ(InsTexte, "old");
}

TEST_F(InsertedTextTest, TheTextStaysOneLine) {
    Take({"left\nwing\ttip\r", "0", "0"});
    EXPECT_EQ(InsTexte, "left wing tip ");
    Take({"aile gauche é°", "0", "0"});
    EXPECT_EQ(InsTexte, "aile gauche é°");
}

TEST_F(InsertedTextTest, TheListHasTheCommonSizes) {
    EXPECT_THAT(TaillesProposees(9),
                ElementsAre("6", "7", "8", "9", "10", "11", "12", "14", "16", "18", "20"));
}

TEST_F(InsertedTextTest, ASizeOutsideTheListStandsAtItsPlace) {
    EXPECT_THAT(TaillesProposees(9.5F),
                ElementsAre("6", "7", "8", "9", "9.5", "10", "11", "12", "14", "16", "18", "20"));
    EXPECT_EQ(TaillesProposees(0).front(), "0");
    EXPECT_EQ(TaillesProposees(72).back(), "72");
}

TEST_F(InsertedTextTest, AnEntryIsItsLeadingNumber) {
    EXPECT_EQ(TailleChoisie("14"), 14.0F);
    EXPECT_EQ(TailleChoisie("9.5 pt"), 9.5F);
    EXPECT_EQ(TailleChoisie(""), 0.0F);
}

} // namespace
} // namespace loftwing
