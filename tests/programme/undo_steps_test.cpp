#include "programme/undo_steps.h"

#include "programme/file_steps.h"
#include "programme/rib_steps.h"
#include "programme/view_steps.h"
#include "support/steps_world.h"

namespace loftwing {
namespace {

using testing::Contains;
using testing::Not;

class UndoSteps : public StepsWorld {
  protected:
    UndoSteps() {
        view.on_draw = [this] { NoteEtat(programme); };
        view.on_clear = [this] { VideTout(programme, view); };
        NoteEtat(programme);
    }

    void Open(const std::string &name) {
        OuvreFichier(programme, view, Sample(name));
        NoteEtat(programme);
    }
    void Undo() {
        view.asked.clear();
        AnnulePas(programme, view);
    }
    void Redo() {
        view.asked.clear();
        RetablitPas(programme, view);
    }
};

TEST_F(UndoSteps, NothingToUndoLeavesAllAsItIs) {
    Undo();
    Redo();
    EXPECT_TRUE(view.asked.empty());
    EXPECT_EQ(PasAnnulable(programme), "");
}

TEST_F(UndoSteps, AnOpenedAirfoilIsAStep) {
    Open("naca2412.dat");
    EXPECT_EQ(PasAnnulable(programme), "open naca2412");
    Undo();
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_THAT(view.asked, Contains("ActiveCommandesVides"));
    EXPECT_THAT(view.asked, Contains("VideImage"));
    EXPECT_EQ(PasRetablissable(programme), "open naca2412");
    Redo();
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_GT(Rib().NbContour, 0);
    EXPECT_THAT(view.asked, Contains("ActiveCommandes"));
    EXPECT_THAT(view.asked, Contains("Titre Loftwing Airfoil : naca2412"));
    EXPECT_THAT(view.asked, Contains("affiche"));
}

TEST_F(UndoSteps, AValueIsAStepAndLeavesTheOtherWindowsOpen) {
    Open("naca2412.dat");
    view.on_value = [this] {
        Rib().corde = 250;
        Rib().cordeAfich = "250";
        return true;
    };
    ChangeCorde(programme, view);
    EXPECT_EQ(PasAnnulable(programme), "chord");
    Undo();
    EXPECT_EQ(Rib().cordeAfich, "200");
    EXPECT_THAT(view.asked, Not(Contains("FermeDialogues")));
    EXPECT_THAT(view.asked, Not(Contains("ActiveCommandes")));
    EXPECT_THAT(view.asked, Not(Contains("ViewReset")));
    EXPECT_THAT(view.asked, Contains("affiche"));
    Redo();
    EXPECT_EQ(Rib().cordeAfich, "250");
}

TEST_F(UndoSteps, AClearIsAStepAlsoAfterAFailure) {
    Open("naca2412.dat");
    Rib().NbRep = 4;
    NoteEtat(programme);
    view.affclear();
    NoteEtat(programme);
    EXPECT_EQ(PasAnnulable(programme), "clear all");
    Undo();
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(Rib().NbRep, 4);
    EXPECT_EQ(Rib().NomProfil, "naca2412");
}

TEST_F(UndoSteps, AClearThatIsUndoneBringsTheChecksOfTheViewMenuBack) {
    Open("naca2412.dat");
    Rib().AffEpr = true;
    Rib().AffTrac = false;
    NoteEtat(programme);
    view.affclear();
    NoteEtat(programme);
    EXPECT_FALSE(Rib().AffEpr);
    Undo();
    EXPECT_TRUE(Rib().AffEpr);
    EXPECT_FALSE(Rib().AffTrac);
    Rib().NbRep = 4;
    NoteEtat(programme);
    Rib().AffEpr = false; // no step of its own, and no part of one
    Undo();
    EXPECT_FALSE(Rib().AffEpr);
}

TEST_F(UndoSteps, AnotherAirfoilIsOneStepAndItsRedrawsAreNone) {
    Open("naca2412.dat");
    Open("naca0012.dat");
    Undo();
    EXPECT_EQ(Rib().NomProfil, "naca2412");
    EXPECT_EQ(PasRetablissable(programme), "open naca0012");
    Undo();
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_EQ(PasAnnulable(programme), "");
}

TEST_F(UndoSteps, TheUnitOfItsTextsComesBackWithTheRib) {
    Open("naca2412.dat");
    const float margin = programme.settings.page.MargeHaut;
    programme.settings.Unite = kUniteIn;
    Rib().cordeAfich = "8";
    NoteEtat(programme);
    EXPECT_EQ(PasAnnulable(programme), "chord");
    Undo();
    EXPECT_EQ(programme.settings.Unite, kUniteMm);
    EXPECT_EQ(programme.settings.page.MargeHaut, margin);
    EXPECT_THAT(view.asked, Contains("AfficheUnite"));
    Redo();
    EXPECT_EQ(programme.settings.Unite, kUniteIn);
}

TEST_F(UndoSteps, ASavedRibStaysTheFileThatItIsAndChangesWithItsSteps) {
    Open("naca2412.dat");
    Rib().NbRep = 4;
    NoteEtat(programme);
    platform.files_expected.push_back(folder.Path("mine.lfw"));
    EnregistreRib(programme, view);
    NoteEtat(programme);
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_EQ(PasAnnulable(programme), "station lines");
    Undo();
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_EQ(Rib().NomFichierRib, "mine.lfw");
    Redo();
    EXPECT_FALSE(Rib().Modifie);
}

TEST_F(UndoSteps, AComparisonIsAStepAndBringsTheRibBack) {
    Open("naca2412.dat");
    const PartiesRib before = Rib().Partie<PartiesRib>();
    Comparing();
    NoteEtat(programme);
    EXPECT_EQ(PasAnnulable(programme), "compare airfoils");
    Undo();
    EXPECT_FALSE(Rib().ModeCompare);
    EXPECT_EQ(Rib().Partie<Ajouts>(), static_cast<const Ajouts &>(before));
    EXPECT_THAT(view.asked, Contains("ActiveCommandes"));
    Redo();
    EXPECT_TRUE(Rib().ModeCompare);
    EXPECT_THAT(view.asked, Contains("DesactiveCommandes"));
    EXPECT_THAT(view.asked, Contains("ActiveCommandesVue"));
    EXPECT_THAT(view.asked, Contains("afficheCompare"));
}

TEST_F(UndoSteps, BarePointsComeBackAsBarePoints) {
    Open("naca2412.dat");
    Rib().ModeCouple = true;
    NoteEtat(programme);
    Undo();
    EXPECT_FALSE(Rib().ModeCouple);
    Redo();
    EXPECT_TRUE(Rib().ModeCouple);
    EXPECT_THAT(view.asked, Contains("ActiveCommandesCouple"));
    EXPECT_THAT(view.asked, Contains("afficheCouple"));
    EXPECT_THAT(view.asked, Contains("Titre Loftwing : naca2412"));
}

TEST_F(UndoSteps, EveryStepHasTheNameOfWhatItChanged) {
    Open("naca2412.dat");
    const auto expect = [this](const char *name, const std::function<void()> &change) {
        change();
        NoteEtat(programme);
        EXPECT_EQ(PasAnnulable(programme), name);
    };
    expect("sheeting", [this] { Rib().EpCoffrageAfich = "2"; });
    expect("leading edge stock", [this] { Rib().EpBA = 5; });
    expect("leading edge: stock or V-notch", [this] { Rib().TypeBA = 0; });
    expect("trailing edge stock", [this] { Rib().EpBF = 5; });
    expect("washout", [this] { Rib().vrillage = 2; });
    expect("spar 2", [this] { Rib().longeron[1].LargLong = 3; });
    expect("hole 13", [this] { Rib().trou[12].DiaTrou = 3; });
    expect("V-notch", [this] { Rib().carre.CarreBAX = 3; });
    expect("heel", [this] { Rib().TypeGabarit = kGabaritTalon; });
    expect("heel", [this] { Rib().talon.TalonIntra = 3; });
    expect("foam template", [this] { Rib().bloc.BAbloc = 3; });
    expect("heel", [this] { Rib().TypeGabarit = kGabaritMousse; });
    expect("foam template", [this] { Rib().TypeGabarit = kSansGabarit; });
    expect("text", [this] { Rib().texte.InsTexte = "mine"; });
    expect("upside down", [this] { Rib().AffHaut = true; });
    expect("unit", [this] { programme.settings.Unite = kUniteIn; });
}

} // namespace
} // namespace loftwing
