#include "programme/modele.h"

#include "support/components_text.h"
#include "support/steps_world.h"

namespace loftwing {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

/// A rib file whose features go onto airfoils of another name and chord.
class ModeleTest : public StepsWorld {
  protected:
    ModeleTest() {
        file.airfoil = "gone.dat"; // no folder has it
        file.text_x = "40";
        file.text_y = "6";
    }

    Modele Model() {
        auto modele = LitModele(programme, folder.File("model.lfw", file.Current()));
        EXPECT_TRUE(modele);
        return modele.value_or(Modele{});
    }
    /// The model on the airfoil of a title.
    Preparation On(const std::string &title) {
        const Modele modele = Model();
        PrendModele(Rib(), modele);
        EXPECT_TRUE(Read(Named("other.dat", title)));
        MetSurProfil(Rib(), programme.SaisieEnCours());
        return FinitSurProfil(programme, modele);
    }
    void Language(const char *name) { programme.language.Charge(programme.paths.langues, name); }

    ComponentsText file;
};

TEST_F(ModeleTest, TheModelsOwnAirfoilIsNotWanted) {
    EXPECT_EQ(On("Other"), Preparation::complete);
    EXPECT_EQ(Rib().NomProfil, "other");
    EXPECT_EQ(Rib().corde, 200.0F); // the title has none
    EXPECT_THAT(platform.boxes, IsEmpty());
}

TEST_F(ModeleTest, AChordInTheTitleCounts) {
    file.spars = {{"50%", "6", "3", "1", "1", "0", "0", "0", "0"}, ComponentsText::BlankSpar()};
    EXPECT_EQ(On("Rib 3: 150"), Preparation::complete);
    EXPECT_EQ(Rib().corde, 150.0F);
    EXPECT_EQ(Rib().longeron[0].PosLongAfich, "50%");
}

TEST_F(ModeleTest, ALabelIsMadeAnewForTheAirfoilAndItsChord) {
    file.text = "gone Chord : 200";
    On("Rib 3: 150");
    EXPECT_EQ(Rib().texte.InsTexte, "other Chord :  150"); // the blank is the place of a sign
    EXPECT_EQ(Rib().texte.InsTextX, 40.0F);
}

TEST_F(ModeleTest, ALabelOfAnotherLanguageIsALabelToo) {
    file.text = "gone Corde : 200"; // the French word
    On("Other");
    EXPECT_EQ(Rib().texte.InsTexte, "other Chord : 200");
    file.text = "gone Chord : 200";
    Language("French");
    On("Other");
    EXPECT_EQ(Rib().texte.InsTexte, "other Corde : 200");
}

TEST_F(ModeleTest, AUsersOwnTextStays) {
    for (const char *text : {"Left wing", "Left wing : 200", "gone", ""}) {
        file.text = text;
        On("Rib 3: 150");
        EXPECT_EQ(Rib().texte.InsTexte, text);
    }
}

TEST_F(ModeleTest, HeelHeightsAndWashoutAreTheModels) {
    file.kind = "11";
    file.intra = "20";
    file.washout = "2.5";
    EXPECT_EQ(On("Rib 3: 150"), Preparation::complete);
    EXPECT_EQ(Rib().TypeGabarit, kGabaritTalon);
    EXPECT_EQ(Rib().talon.TalonIntra, 20.0);
    EXPECT_EQ(Rib().vrillage, 2.5F);
}

TEST_F(ModeleTest, ATemplateIsAsLongAsTheChordAndItsRamps) {
    file.kind = "1";
    file.below = "10";
    file.total = "40";
    file.ramp = "30";
    file.tail_ramp = "50";
    On("Rib 3: 150");
    EXPECT_EQ(Rib().bloc.LongBloc, 230.0F); // 30 + 150 + 50
}

TEST_F(ModeleTest, WhatHasNoRoomIsNamedAndTheAirfoilRefused) {
    file.spars = {{"50", "6", "3", "1", "1", "0", "0", "0", "0"},
                  {"160", "6", "3", "1", "1", "0", "0", "0", "0"},
                  ComponentsText::BlankSpar()};
    platform.Expect(BoxAnswer::no, {.text = "Airfoil : other   Chord : 150 mm\n\n"
                                            "What does not fit on this chord :\nSpars 2\n\n"
                                            "Open the airfoil without it? No leaves the rib as it "
                                            "is.",
                                    .title = "Open airfoil file",
                                    .buttons = BoxButtons::yes_no});
    EXPECT_EQ(On("Rib 3: 150"), Preparation::impossible);
    EXPECT_EQ(On("Rib 2: 170"), Preparation::complete);
    EXPECT_EQ(Rib().NbLongeron, 2);
}

TEST_F(ModeleTest, AYesLeavesOutWhatHasNoRoom) {
    file.kind = "1";
    file.washout = "3";
    file.total = "40";
    file.tail_ramp = "180"; // its foot would lie in front of the nose
    file.text = "gone Washout 3° Chord : 200";
    platform.Expect(BoxAnswer::yes, {.title = "Open airfoil file", .buttons = BoxButtons::yes_no});
    EXPECT_EQ(On("Rib 3: 150"), Preparation::complete);
    EXPECT_EQ(Rib().TypeGabarit, kSansGabarit);
    EXPECT_EQ(Rib().texte.InsTexte, "other Chord :  150"); // no template, no washout in the label
}

TEST_F(ModeleTest, AFileThatIsNoRibIsToldOnce) {
    ExpectReport("Error LireEcrire/newLfw");
    EXPECT_FALSE(LitModele(programme, folder.File("model.lfw", "LFW")));
}

} // namespace
} // namespace loftwing
