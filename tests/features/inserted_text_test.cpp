#include "features/inserted_text.h"

#include "support/scripted_platform.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

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

    ScriptedPlatform platform;
    LngIni language;
    Messages messages{platform, language};
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

} // namespace
} // namespace loftwing
