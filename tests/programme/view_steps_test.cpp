#include "programme/view_steps.h"

#include "base/version.h"
#include "support/steps_world.h"

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ViewSteps : public StepsWorld {
  protected:
    ViewSteps() {
        view.on_value = [this] {
            Rib().corde = 150;
            Rib().cordeAfich = "150";
            return true;
        };
    }
    /// A rib on the screen, without changes.
    void HaveRib() {
        ASSERT_TRUE(Read(Sample("naca4412.dat")));
        Rib().Modifie = false;
    }
    /// Airfoil 1 is kept from a comparison before.
    void HaveKept() {
        Rib().MemProfil = true;
        programme.compare.CompareNom1 = "naca0012";
        programme.compare.CompareNb1 = 3;
    }
    std::vector<std::string> Recent() const {
        const FichiersRecents recent = LitFichiersRecents(programme.paths.fichier);
        return {recent[0], recent[1]};
    }
};

// -- Two airfoils compared ------------------------------------------------------------------------

TEST_F(ViewSteps, AComparisonAsksForTheChordAndTwoAirfoils) {
    WillPick({Sample("naca0012.dat"), Sample("naca2412.dat")});
    CompareProfils(programme, view);
    EXPECT_THAT(view.asked,
                ElementsAre("FermeDialogues", "Saisit corde",
                            "ChoisitFichier Airfoil to compare  #1", "DesactiveCommandes",
                            "ActiveCommandesVue", "VideImage", "Titre Loftwing",
                            "AfficheFichiersRecents", std::string("Panneau 1 ") + kVersion,
                            "Panneau 2 Airfoil #1 :  naca0012 Chord150 mm",
                            "Panneau 2 Airfoil #1 :  naca0012",
                            "ChoisitFichier Airfoil to compare #2", "DesactiveCommandes",
                            "ActiveCommandesVue", "AfficheFichiersRecents", "afficheCompare"));
    EXPECT_TRUE(Rib().ModeCompare);
    EXPECT_TRUE(programme.compare.Complete());
    EXPECT_EQ(programme.compare.CompareNom2, "naca2412");
    EXPECT_THAT(Recent(), ElementsAre(Sample("naca2412.dat"), Sample("naca0012.dat")));
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(ViewSteps, OnlyTheFirstPickerOffersToKeepItsAirfoil) {
    WillPick({Sample("naca0012.dat"), Sample("naca2412.dat")});
    CompareProfils(programme, view);
    ASSERT_EQ(view.choices.size(), 2U);
    EXPECT_TRUE(view.choices[0].case_memoire);
    EXPECT_EQ(view.choices[0].memoire, "");
    EXPECT_TRUE(view.choices[0].laisse_rib);
    EXPECT_FALSE(view.choices[1].case_memoire);
    EXPECT_EQ(view.choices[1].memoire, "Airfoil #1 = naca0012");
    EXPECT_TRUE(view.choices[1].laisse_rib);
}

TEST_F(ViewSteps, RoomIsMadeForTheHigherAirfoil) {
    // The first one is 12 % thick and rises to 6 % of the chord, the second to 3 %.
    WillPick({Sample("naca0012.dat"), Sample("naca0006.dat")});
    CompareProfils(programme, view);
    EXPECT_NEAR(Rib().ExtradosMaxi, 0.06, 0.0005);
}

TEST_F(ViewSteps, WithAKeptAirfoilTheSecondIsAskedForAtOnce) {
    HaveKept();
    WillPick({Sample("naca0006.dat")});
    Rib().ExtradosMaxi = 0.5; // of whatever was read last
    CompareProfils(programme, view);
    EXPECT_THAT(view.asked,
                ElementsAre("FermeDialogues", "Panneau 2 Airfoil #1 :  naca0012",
                            "ChoisitFichier Airfoil to compare #2", "DesactiveCommandes",
                            "ActiveCommandesVue", "AfficheFichiersRecents", "afficheCompare"));
    EXPECT_NEAR(Rib().ExtradosMaxi, 0.03, 0.0005);
}

TEST_F(ViewSteps, AComparisonStopsWhereTheUserKeepsTheRib) {
    HaveRib();
    Rib().Modifie = true;
    ExpectBox(BoxAnswer::no,
              "The rib has changes that are not saved. Compare two airfoils all the same?",
              "Compare 2 airfoils");
    CompareProfils(programme, view);
    EXPECT_THAT(view.asked, IsEmpty());
    EXPECT_FALSE(Rib().ModeCompare);
}

TEST_F(ViewSteps, AForeignSeparatorMayStopAComparison) {
    ForeignSeparator();
    CompareProfils(programme, view);
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(ViewSteps, WithoutAChordTheModeStaysAndNothingElse) {
    HaveRib();
    Rib().ModeCouple = true;
    view.on_value = nullptr;
    CompareProfils(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("FermeDialogues", "Saisit corde"));
    EXPECT_TRUE(Rib().ModeCompare);
    EXPECT_TRUE(Rib().ModeCouple);
    EXPECT_FALSE(programme.compare.Complete());
}

TEST_F(ViewSteps, WithoutAnAirfoil1TheRibIsAsItWas) {
    HaveRib();
    Rib().ModeCouple = true;
    CompareProfils(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("FermeDialogues", "Saisit corde",
                                        "ChoisitFichier Airfoil to compare  #1"));
    EXPECT_FALSE(Rib().ModeCompare);
    EXPECT_TRUE(Rib().ModeCouple);
    EXPECT_EQ(Rib().corde, 200.0F);
    EXPECT_EQ(Rib().cordeAfich, "200");
}

TEST_F(ViewSteps, AComparisonThatIsUpSurvivesTheNextOnesFirstPicker) {
    Comparing();
    CompareProfils(programme, view);
    EXPECT_TRUE(Rib().ModeCompare);
    EXPECT_TRUE(programme.compare.Complete());
}

TEST_F(ViewSteps, WithoutAnAirfoil2EverythingIsCleared) {
    HaveKept();
    CompareProfils(programme, view);
    EXPECT_THAT(view.asked,
                ElementsAre("FermeDialogues", "Panneau 2 Airfoil #1 :  naca0012",
                            "ChoisitFichier Airfoil to compare #2", "Panneau 2", "affclear"));
    EXPECT_FALSE(Rib().ModeCompare);
}

TEST_F(ViewSteps, AnAirfoil1WithoutAContourEndsTheComparison) {
    WillPick({Short()});
    ExpectReport(" Calcul/Alocate");
    ExpectReport(" Calcul/MiniX");
    CompareProfils(programme, view);
    EXPECT_EQ(view.choices.size(), 1U);
}

TEST_F(ViewSteps, AnAirfoil1WithoutAContourLeavesTheRibThatWasThere) {
    HaveRib();
    Rib().cordeAfich = "200";
    WillPick({Short()});
    ExpectReport(" Calcul/Alocate");
    ExpectReport(" Calcul/MiniX");
    CompareProfils(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("FermeDialogues", "Saisit corde",
                                        "ChoisitFichier Airfoil to compare  #1"));
    EXPECT_EQ(Rib().NomProfil, "naca4412");
    EXPECT_EQ(Rib().CheminProfil, Sample("naca4412.dat"));
    EXPECT_GT(Rib().NbPoints, 5);
    EXPECT_EQ(Rib().corde, 200.0F);
    EXPECT_EQ(Rib().cordeAfich, "200");
    EXPECT_FALSE(Rib().ModeCompare);
}

TEST_F(ViewSteps, AnAirfoil2WithoutAContourClearsEverything) {
    HaveKept();
    WillPick({Short()});
    ExpectReport(" Calcul/Alocate");
    ExpectReport(" Calcul/MiniX");
    CompareProfils(programme, view);
    EXPECT_EQ(view.asked.back(), "affclear");
}

// -- Thickness and camber -------------------------------------------------------------------------

TEST_F(ViewSteps, AnAirfoilIsOpenedBeforeItsSectionIsChanged) {
    WillPick({Sample("naca2412.dat")});
    Rib().NouvExtrados.fill(0.5);
    Rib().NouvIntrados.fill(0.5);
    view.section = folder.Path("new.dat");
    ModifieEpCourb(programme, view);
    EXPECT_THAT(view.asked,
                ElementsAre("ChoisitFichier Open airfoil file", "Titre Loftwing Airfoil : naca2412",
                            "AfficheFichiersRecents", "ViewReset", "ActiveCommandes", "affiche",
                            "afficheEpcourb", "SaisitEpCourb", "AfficheFichiersRecents",
                            "mnuFileMRU_Click " + folder.Path("new.dat")));
    EXPECT_EQ(Rib().NouvExtrados[200], 0);
    EXPECT_EQ(Rib().NouvIntrados[200], 0);
    EXPECT_THAT(Recent(), ElementsAre(folder.Path("new.dat"), Sample("naca2412.dat")));
}

TEST_F(ViewSteps, ASectionIsChangedOnABareRib) {
    WillPick({Sample("naca2412.dat")});
    Rib().NbLongeron = 2;
    Rib().EpBF = 5;
    Rib().EpBAAfich = "7";
    ModifieEpCourb(programme, view);
    EXPECT_EQ(Rib().NbLongeron, 0);
    EXPECT_EQ(Rib().EpBF, 0.0F);
    EXPECT_EQ(Rib().EpBA, 7.0F); // its text survives
}

TEST_F(ViewSteps, ASectionThatIsNotChangedOpensNothing) {
    WillPick({Sample("naca2412.dat")});
    ModifieEpCourb(programme, view);
    EXPECT_EQ(view.asked.back(), "SaisitEpCourb");
}

TEST_F(ViewSteps, ANewAirfoilThatIsGoneTakesItsViewAlong) {
    WillPick({Sample("naca2412.dat")});
    view.section = folder.Path("new.dat");
    view.on_section = [this] { Rib().ModeEpCourb = true; };
    ModifieEpCourb(programme, view);
    EXPECT_EQ(view.asked.back(), "affclear");
}

TEST_F(ViewSteps, WithoutAnAirfoilThereIsNoSectionToChange) {
    HaveRib();
    ModifieEpCourb(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("ChoisitFichier Open airfoil file"));
}

TEST_F(ViewSteps, AnAirfoilWithoutAContourHasNoSectionToChange) {
    WillPick({Short()});
    ExpectReport(" Calcul/Alocate");
    ExpectReport(" Calcul/MiniX");
    ModifieEpCourb(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("ChoisitFichier Open airfoil file"));
}

TEST_F(ViewSteps, ASectionIsNotChangedWhereTheUserKeepsTheRib) {
    HaveRib();
    Rib().Modifie = true;
    ExpectBox(BoxAnswer::no,
              "The rib has changes that are not saved. Modify an airfoil all the same?",
              "Modify thickness and camber");
    ModifieEpCourb(programme, view);
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(ViewSteps, AForeignSeparatorMayStopASection) {
    ForeignSeparator();
    ModifieEpCourb(programme, view);
    EXPECT_THAT(view.asked, IsEmpty());
}

// -- Bare points ----------------------------------------------------------------------------------

TEST_F(ViewSteps, ASimplePlotClearsAndThenShowsThePoints) {
    WillPick({Short()});
    TraceSimple(programme, view);
    EXPECT_THAT(view.asked,
                ElementsAre("mnu_affclear_Click", "ActiveCommandesCouple",
                            "ChoisitFichier Open airfoil file for the simple plot",
                            "ActiveCommandesCouple", "Titre Loftwing : five", "afficheCouple"));
    EXPECT_FALSE(view.choices[0].laisse_rib);
    EXPECT_TRUE(Rib().ModeCouple);
    EXPECT_EQ(Rib().NomFichierRib, "five");
    EXPECT_EQ(Rib().ExtradosMaxi, 0.1);
    EXPECT_EQ(Rib().IntradosMini, -0.04);
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(ViewSteps, ASimplePlotTakesTheChordOfTheTitle) {
    WillPick({folder.File("five.dat", "Five: 80\n1 0\n0.5 0.1\n0 0\n0.5 -0.1\n1 0\n")});
    TraceSimple(programme, view);
    EXPECT_EQ(Rib().corde, 80.0F);
}

TEST_F(ViewSteps, ASimplePlotStopsWhereTheUserKeepsTheRib) {
    HaveRib();
    TraceSimple(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("mnu_affclear_Click"));
    EXPECT_FALSE(Rib().ModeCouple);
}

TEST_F(ViewSteps, ACancelledSimplePlotLeavesTheClearedStateInItsMode) {
    HaveRib();
    view.on_ask_clear = [this] { Rib().ProfilCharge = false; };
    TraceSimple(programme, view);
    EXPECT_EQ(view.asked.back(), "ActiveCommandesVides");
    EXPECT_TRUE(Rib().ModeCouple);
}

TEST_F(ViewSteps, AFileThatClearedEverythingInThePickerDoesNotEndTheMode) {
    view.on_pick = [this](const ChoixProfil &) {
        Rib().ModeCouple = false; // a first file couldn't be read
        return Read(Short());
    };
    TraceSimple(programme, view);
    EXPECT_TRUE(Rib().ModeCouple);
    EXPECT_EQ(view.asked.back(), "afficheCouple");
}

} // namespace
} // namespace loftwing
