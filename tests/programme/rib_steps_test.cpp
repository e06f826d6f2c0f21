#include "programme/rib_steps.h"

#include "persist/default_entry.h"
#include "support/steps_world.h"

#include <filesystem>
#include <functional>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RibSteps : public StepsWorld {
  protected:
    bool Confirm() { return ConfirmePerte(programme, view, {"fileopen", "1"}, {"fileopen", "2"}); }
    /// Another airfoil is read and takes over the rib.
    void TakeOver(const std::string &path) {
        const RibAvant before = RibAvantLecture(Rib(), programme.messages);
        ASSERT_TRUE(Read(path));
        RepriseProfil(programme, view, before);
    }
    void ExpectQuestion(BoxAnswer answer) {
        ExpectBox(answer, "The rib has changes that are not saved. Open another rib all the same?",
                  "Open rib components");
    }
};

TEST_F(RibSteps, WithoutChangesNothingIsAsked) {
    EXPECT_TRUE(Confirm());
}

TEST_F(RibSteps, ChangesAreAskedAboutWithNoAsDefault) {
    Rib().Modifie = true;
    ExpectQuestion(BoxAnswer::no);
    EXPECT_FALSE(Confirm());
    ExpectQuestion(BoxAnswer::yes);
    EXPECT_TRUE(Confirm());
    EXPECT_EQ(platform.boxes[0].buttons, BoxButtons::yes_no);
    EXPECT_EQ(platform.boxes[0].fallback, BoxAnswer::no);
    EXPECT_EQ(platform.boxes[0].icon, BoxIcon::question);
}

TEST_F(RibSteps, AComparisonHasNoChangesToLose) {
    Rib().Modifie = true;
    Comparing();
    EXPECT_TRUE(Confirm());
}

TEST_F(RibSteps, AComparisonThatWasCalledOffIsNone) {
    Rib().Modifie = true;
    Rib().ModeCompare = true;
    ExpectQuestion(BoxAnswer::no);
    EXPECT_FALSE(Confirm());
}

TEST_F(RibSteps, TheEndIsAskedAboutInWordsThatNameChanges) {
    ExpectBox(BoxAnswer::no, "Do you want to quit Loftwing ? ", "Loftwing");
    EXPECT_FALSE(ConfirmeFin(programme, view));
    Rib().Modifie = true;
    ExpectBox(BoxAnswer::yes,
              "The rib has changes that are not saved. Do you want to quit all the same?",
              "Loftwing");
    EXPECT_TRUE(ConfirmeFin(programme, view));
    Comparing();
    ExpectBox(BoxAnswer::yes, "Do you want to quit Loftwing ? ", "Loftwing");
    EXPECT_TRUE(ConfirmeFin(programme, view));
}

TEST_F(RibSteps, ARibWithChangesCanBeSavedBeforeTheEndOrThrownAway) {
    TakeOver(Sample("naca2412.dat"));
    const auto expect = [this](BoxAnswer answer) {
        platform.Expect(answer,
                        {.text = "The rib has changes that are not saved :\nnaca2412\n\nSave it "
                                 "before you quit?",
                         .title = "Loftwing",
                         .buttons = BoxButtons::save_discard_cancel});
    };
    expect(BoxAnswer::cancel);
    EXPECT_FALSE(ConfirmeFin(programme, view));
    expect(BoxAnswer::discard);
    EXPECT_TRUE(ConfirmeFin(programme, view));
    expect(BoxAnswer::save);
    platform.files_expected.emplace_back(); // the chooser is cancelled
    EXPECT_FALSE(ConfirmeFin(programme, view));
    expect(BoxAnswer::save);
    platform.files_expected.push_back(folder.Path("nowhere/rib.lfw"));
    ExpectReport(" Main/Mnu_SaveAs");
    EXPECT_FALSE(ConfirmeFin(programme, view));
    EXPECT_TRUE(Rib().Modifie);
    expect(BoxAnswer::save);
    platform.files_expected.push_back(folder.Path("rib.lfw"));
    EXPECT_TRUE(ConfirmeFin(programme, view));
    EXPECT_TRUE(std::filesystem::exists(folder.Path("rib.lfw")));
    EXPECT_FALSE(Rib().Modifie);
}

TEST_F(RibSteps, WhereALossIsConfirmedTheRibCanBeSaved) {
    TakeOver(Sample("naca2412.dat"));
    platform.Expect(BoxAnswer::save, {.buttons = BoxButtons::save_yes_no});
    platform.files_expected.emplace_back(); // cancelled
    EXPECT_FALSE(Confirm());
    platform.Expect(BoxAnswer::save, {.buttons = BoxButtons::save_yes_no});
    platform.files_expected.push_back(folder.Path("rib.lfw"));
    EXPECT_TRUE(Confirm());
    EXPECT_TRUE(std::filesystem::exists(folder.Path("rib.lfw")));
    EXPECT_TRUE(Confirm()); // nothing is asked any more
}

TEST_F(RibSteps, BarePointsAreNotOfferedToBeSaved) {
    TakeOver(Sample("naca2412.dat"));
    Rib().ModeCouple = true;
    platform.Expect(BoxAnswer::no, {.buttons = BoxButtons::yes_no});
    EXPECT_FALSE(Confirm());
    platform.Expect(BoxAnswer::no, {.buttons = BoxButtons::yes_no});
    EXPECT_FALSE(ConfirmeFin(programme, view));
}

TEST_F(RibSteps, AnAirfoilIsNamedNotedAndShown) {
    Rib().talon.TalonIntra = 3;
    Pointer while_drawn = Pointer::normal;
    view.on_draw = [&] { while_drawn = platform.pointer; };
    TakeOver(Sample("naca2412.dat"));
    EXPECT_THAT(view.asked,
                ElementsAre("Titre Loftwing Airfoil : naca2412", "AfficheFichiersRecents",
                            "ViewReset", "ActiveCommandes", "affiche"));
    EXPECT_EQ(while_drawn, Pointer::busy);
    EXPECT_EQ(platform.pointer, Pointer::normal);
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_EQ(Rib().NomFichierRib, "naca2412");
    EXPECT_EQ(Rib().talon.TalonIntra, 0);
    EXPECT_GT(Rib().NbContour, 0);
    EXPECT_EQ(LitFichiersRecents(programme.paths.fichier)[0], Sample("naca2412.dat"));
}

TEST_F(RibSteps, AnAirfoilBringsTheChordOfItsTitle) {
    TakeOver(Named("root.dat", "Root rib: 150"));
    EXPECT_EQ(Rib().corde, 150.0F);
}

TEST_F(RibSteps, AnImpossibleContourClearsTheRib) {
    ASSERT_TRUE(Read(Short()));
    ExpectReport(" Calcul/Alocate");
    ExpectReport(" Calcul/MiniX");
    RecalculProfil(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("affclear"));
}

TEST_F(RibSteps, AnAirfoilOfWhichNothingCanBeDrawnLeavesTheRib) {
    TakeOver(Sample("naca2412.dat"));
    Rib().Modifie = false;
    Rib().talon.TalonIntra = 3;
    Rib().vrillage = 2;
    const std::vector<double> contour = Rib().ContourX.Values();
    view.asked.clear();
    ExpectReport(" Calcul/Alocate");
    ExpectReport(" Calcul/MiniX");
    TakeOver(Short());
    EXPECT_THAT(view.asked, IsEmpty());
    EXPECT_EQ(Rib().NomProfil, "naca2412");
    EXPECT_EQ(Rib().CheminProfil, Sample("naca2412.dat"));
    EXPECT_EQ(Rib().ContourX.Values(), contour);
    EXPECT_EQ(Rib().talon.TalonIntra, 3.0F);
    EXPECT_EQ(Rib().vrillage, 2.0F);
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_EQ(Rib().faute.cause, CauseContour::aucune);
    EXPECT_EQ(LitFichiersRecents(programme.paths.fichier)[0], Sample("naca2412.dat"));
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(RibSteps, ClearingGoesFromTheDialogsToThePicture) {
    ASSERT_TRUE(Read(Sample("naca2412.dat")));
    Rib().AffHaut = true;
    Rib().AffTrac = false;
    Rib().Zoom = 3;
    Rib().corde = 321;
    Rib().Modifie = true;
    Rib().ModeCouple = true;
    view.on_checks = [this] {
        EXPECT_FALSE(Rib().AffHaut);
        EXPECT_TRUE(Rib().AffTrac);
    };
    VideTout(programme, view);
    EXPECT_THAT(view.asked,
                ElementsAre("FermeDialogues", "ViewReset", "ActiveCommandesVides", "MontreCoches",
                            "Panneau 2", "Titre Loftwing", "RemetZoom", "VideImage"));
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_EQ(Rib().NomProfil, "");
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_FALSE(Rib().ModeCouple);
    EXPECT_EQ(Rib().Zoom, 1.0F);
    EXPECT_EQ(Rib().corde, 200.0F); // the user's default
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(RibSteps, ClearingBringsBackTheUsersUnitAndItsPage) {
    programme.settings.page.MargeBasAfich = "18";
    programme.settings.page.MargeBas = 18;
    EcritMarges(programme.ReglagesEnCours());
    ChoisitUnite(programme.settings, kUniteIn, programme.messages);
    VideTout(programme, view);
    EXPECT_EQ(programme.settings.Unite, " mm");
    EXPECT_EQ(programme.settings.page.MargeBasAfich, "18");
    EXPECT_EQ(programme.settings.page.MargeBas, 18.0F);
    EXPECT_EQ(programme.settings.page.NumIndex, 0);
    EXPECT_EQ(programme.settings.page.Ydprint, 50.0F);
    EXPECT_EQ(Rib().corde, 200.0F);
    EXPECT_EQ(view.asked.back(), "AfficheUnite");
}

TEST_F(RibSteps, AFailureOfTheClearingIsToldAndEndsIt) {
    programme.settings.Unite = kUniteIn;
    Rib().EpBAAfich = "1/0";
    ExpectReport(" Main/AffichClear");
    VideTout(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("FermeDialogues"));
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(RibSteps, TheCommandAsksBeforeItClearsChanges) {
    Rib().ProfilCharge = true;
    Rib().Modifie = true;
    const std::string question = "The rib has changes that are not saved. Clear all data all the "
                                 "same?";
    ExpectBox(BoxAnswer::no, question, "Clear all data");
    DemandeVide(programme, view);
    EXPECT_THAT(view.asked, IsEmpty());
    ExpectBox(BoxAnswer::yes, question, "Clear all data");
    DemandeVide(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("affclear"));
}

TEST_F(RibSteps, ChangesOfWhateverIsThereAreAskedAboutBeforeTheCommandClears) {
    const auto from_file = [this] { Rib().ProfilCharge = Rib().FichierRibOuvert = true; };
    const auto simple = [this] { Rib().ProfilCharge = Rib().ModeCouple = true; };
    const auto typed_before_an_airfoil = [] {};
    for (const std::function<void()> &there :
         {std::function<void()>(from_file), std::function<void()>(simple),
          std::function<void()>(typed_before_an_airfoil)}) {
        Rib().ProfilCharge = Rib().FichierRibOuvert = Rib().ModeCouple = false;
        there();
        Rib().Modifie = true;
        platform.Expect(BoxAnswer::no, {.title = "Clear all data"});
        DemandeVide(programme, view);
    }
    EXPECT_THAT(view.asked, IsEmpty());
    Rib().Modifie = false;
    DemandeVide(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("affclear"));
}

TEST_F(RibSteps, AChordIsDrawnInWhicheverViewIsUp) {
    view.on_value = [] { return true; };
    ChangeCorde(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("Saisit corde", "RetraceVues", "affiche"));
    EXPECT_TRUE(Rib().Modifie);
}

TEST_F(RibSteps, AChordForAComparisonDoesNotChangeTheRib) {
    Comparing();
    view.on_value = [] { return true; };
    ChangeCorde(programme, view);
    EXPECT_FALSE(Rib().Modifie);
    Rib().Modifie = true;
    ChangeCorde(programme, view);
    EXPECT_TRUE(Rib().Modifie);
}

TEST_F(RibSteps, ACancelledChordDrawsNothing) {
    ChangeCorde(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("Saisit corde"));
    EXPECT_FALSE(Rib().Modifie);
}

} // namespace
} // namespace loftwing
