#include "programme/file_steps.h"

#include "base/whole_file.h"
#include "features/inserted_text.h"
#include "persist/LireEcrire.h"
#include "support/components_text.h"
#include "support/steps_world.h"

#include <sstream>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FileSteps : public StepsWorld {
  protected:
    /// An airfoil where rib components files are searched for theirs.
    void HaveAirfoil() const {
        std::filesystem::copy_file(Sample("naca2412.dat"), folder.Path("airfoils/naca2412.dat"));
    }
    std::string RibFile() const { return folder.File("root.lfw", ComponentsText{}.Current()); }
    const FileQuestion &Question() const { return platform.file_questions.back(); }
    /// A rib of another airfoil with changes.
    void HaveRib() {
        ASSERT_TRUE(Read(Sample("naca0012.dat")));
        Rib().Modifie = true;
    }
    void ExpectQuestion(BoxAnswer answer) {
        ExpectBox(answer, "The rib has changes that are not saved. Open another rib all the same?",
                  "Open rib components");
    }
};

TEST_F(FileSteps, AnAirfoilThatIsPickedTakesOverTheRib) {
    WillPick({Sample("naca2412.dat")});
    Rib().MemProfil = true;
    Rib().ModeCouple = true;
    EXPECT_TRUE(OuvreProfil(programme, view));
    EXPECT_THAT(view.asked,
                ElementsAre("ChoisitFichier Open airfoil file", "Titre Loftwing Airfoil : naca2412",
                            "AfficheFichiersRecents", "ViewReset", "ActiveCommandes", "affiche"));
    EXPECT_FALSE(Rib().MemProfil);
    EXPECT_FALSE(Rib().ModeCouple);
    EXPECT_FALSE(view.choices[0].laisse_rib);
    EXPECT_FALSE(view.choices[0].case_memoire);
    EXPECT_EQ(view.choices[0].memoire, "");
}

TEST_F(FileSteps, EveryRibOfASetGetsItsOwnLabel) {
    OuvreFichier(programme, view, Named("rib2.dat", "Rib 2: 160"));
    // Placed by the text window, after which a text counts as the user's.
    PrendTexteInsere(Rib(), {GeneratedLabel(Rib(), programme.messages), "50", "5"},
                     programme.SaisieEnCours());
    OuvreFichier(programme, view, Named("rib3.dat", "Rib 3: 150"));
    EXPECT_EQ(Rib().texte.InsTexte, "rib3 Chord :  150"); // the chord has the place of its sign
    EXPECT_EQ(Rib().texte.InsTextX, 50.0F);
    WillPick({Named("rib4.dat", "Rib 4: 140")});
    EXPECT_TRUE(OuvreProfil(programme, view));
    EXPECT_EQ(Rib().texte.InsTexte, "rib4 Chord :  140");
    EXPECT_THAT(EcritComposants(Rib(), programme.settings.Unite),
                testing::HasSubstr("\r\nrib4 Chord :  140\r\n50\r\n"));
}

TEST_F(FileSteps, ALabelFollowsTheAirfoilWhateverItSaysOfTheWashout) {
    for (const bool named : {true, false}) {
        OuvreFichier(programme, view, Named("rib2.dat", "Rib 2"));
        if (named) {
            Rib().TypeGabarit = kGabaritMousse;
            Rib().vrillage = 2;
        }
        PrendTexteInsere(Rib(), {"", "50", "5"}, programme.SaisieEnCours());
        ASSERT_EQ(Rib().texte.InsTexte, named ? "rib2 Washout 2° Chord : 200" : "rib2 Chord : 200");
        Rib().TypeGabarit = kGabaritMousse;
        Rib().vrillage = 2;
        OuvreFichier(programme, view, Named("rib3.dat", "Rib 3"));
        // A new airfoil has no washout.
        EXPECT_EQ(Rib().texte.InsTexte, "rib3 Chord : 200");
    }
}

TEST_F(FileSteps, WordsOfTheUserStayOnTheNextRib) {
    for (const char *words : {"left wing", "left wing : 1", "rib2x Chord : 200"}) {
        OuvreFichier(programme, view, Named("rib2.dat", "Rib 2"));
        PrendTexteInsere(Rib(), {words, "50", "5"}, programme.SaisieEnCours());
        OuvreFichier(programme, view, Named("rib3.dat", "Rib 3: 150"));
        EXPECT_EQ(Rib().texte.InsTexte, words);
        // And are the user's there too: a chord typed later doesn't touch them.
        EXPECT_TRUE(Rib().texte.TexteUtilisateur);
    }
}

TEST_F(FileSteps, ATextThatWasNeverMadeIsNotMadeByAnAirfoil) {
    OuvreFichier(programme, view, Sample("naca2412.dat"));
    OuvreFichier(programme, view, Sample("naca0012.dat"));
    EXPECT_EQ(Rib().texte.InsTexte, "");
    EXPECT_FALSE(Rib().texte.TexteUtilisateur);
}

TEST_F(FileSteps, ACancelledPickerLeavesTheSimplePlot) {
    Rib().ModeCouple = true;
    Rib().ProfilCharge = true;
    EXPECT_FALSE(OuvreProfil(programme, view));
    EXPECT_TRUE(Rib().ModeCouple);
    EXPECT_THAT(view.asked, ElementsAre("ChoisitFichier Open airfoil file"));
}

TEST_F(FileSteps, ASimplePlotThatWasClearedInThePickerDoesNotComeBack) {
    Rib().ModeCouple = true;
    Rib().ProfilCharge = true;
    view.on_pick = [this](const ChoixProfil &) {
        Rib().ProfilCharge = false;
        return false;
    };
    EXPECT_FALSE(OuvreProfil(programme, view));
    EXPECT_FALSE(Rib().ModeCouple);
}

TEST_F(FileSteps, AKnownAirfoilOpensWithoutAQuestion) {
    HaveRib();
    OuvreFichier(programme, view, Sample("naca2412.dat"));
    EXPECT_EQ(Rib().CheminProfil, Sample("naca2412.dat"));
    EXPECT_EQ(Rib().NomProfil, "naca2412");
    EXPECT_EQ(Rib().ExtProfil, "dat");
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_THAT(view.asked,
                ElementsAre("Titre Loftwing Airfoil : naca2412", "AfficheFichiersRecents",
                            "ViewReset", "ActiveCommandes", "affiche"));
}

TEST_F(FileSteps, AnAirfoilThatIsRefusedLeavesRibAndView) {
    HaveRib();
    Rib().ModeCouple = true;
    const std::int16_t points = Rib().NbPoints;
    platform.Expect(BoxAnswer::ok);
    OuvreFichier(programme, view, folder.File("bad.dat", "Title\n0.5 0.1\n1 0\n"));
    EXPECT_EQ(Rib().NomProfil, "naca0012");
    EXPECT_EQ(Rib().CheminProfil, Sample("naca0012.dat"));
    EXPECT_EQ(Rib().NbPoints, points);
    EXPECT_TRUE(Rib().ModeCouple);
    EXPECT_FALSE(Rib().SansApercu);
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(FileSteps, AnAirfoilTooLargeToBeDrawnLeavesTheRibAndIsNamed) {
    HaveRib();
    // Its contour can be made: 1e40 is a number of 64 bits. A drawing has 32.
    std::istringstream sample(ReadWholeFile(Sample("naca2412.dat")));
    std::string text;
    std::string line;
    for (int number = 0; std::getline(sample, line); ++number) {
        text += (number == 9 ? line.substr(0, line.find_last_of(' ')) + " 1e40" : line) + "\n";
    }
    platform.Expect(
        BoxAnswer::ok,
        {.text = testing::AllOf(
             testing::HasSubstr("Overflow: tall.dat, nothing of its outline can be drawn, "
                                "too large a value at point 9, x = "),
             testing::HasSubstr(", y = 1E+40")),
         .title = " Main/PrintSubroutine"});
    OuvreFichier(programme, view, folder.File("tall.dat", text));
    EXPECT_EQ(Rib().NomProfil, "naca0012");
    EXPECT_EQ(Rib().CheminProfil, Sample("naca0012.dat"));
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(FileSteps, AnAirfoilThatCannotBeReadClearsTheRib) {
    HaveRib();
    ExpectReport(" Open/FichierLecture");
    OuvreFichier(programme, view, folder.Path("missing.dat"));
    EXPECT_THAT(view.asked, ElementsAre("affclear"));
}

TEST_F(FileSteps, AKnownRibFileIsAskedAboutWhereChangesCouldBeLost) {
    HaveRib();
    HaveAirfoil();
    ExpectQuestion(BoxAnswer::no);
    OuvreFichier(programme, view, RibFile());
    EXPECT_THAT(view.asked, IsEmpty());
    ExpectQuestion(BoxAnswer::yes);
    OuvreFichier(programme, view, RibFile());
    EXPECT_EQ(Rib().NomProfil, "naca2412");
}

TEST_F(FileSteps, ARibFileClearsWhatWasThereAndIsShown) {
    HaveAirfoil();
    OuvreFichier(programme, view, RibFile());
    EXPECT_THAT(view.asked, ElementsAre("affclear", "AfficheFichiersRecents",
                                        "Titre Loftwing Rib : root.lfw Airfoil : naca2412",
                                        "MontreCoches", "ViewReset", "ActiveCommandes", "affiche"));
    EXPECT_EQ(Setting("Repertoires", "LastOpenLfw"), folder.Path());
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(FileSteps, ARibFileWhoseAirfoilIsMissingClearsAgain) {
    platform.Expect(BoxAnswer::ok); // where was searched
    ExpectReport("Error LireEcrire/newLfw");
    OuvreFichier(programme, view, RibFile());
    EXPECT_THAT(view.asked, ElementsAre("affclear", "affclear"));
}

TEST_F(FileSteps, ARibFileWhoseAirfoilIsRefusedStaysCleared) {
    folder.File("airfoils/naca2412.dat", "Title\n0.5 0.1\n1 0\n");
    platform.Expect(BoxAnswer::ok);
    OuvreFichier(programme, view, RibFile());
    EXPECT_THAT(view.asked, ElementsAre("affclear"));
}

TEST_F(FileSteps, FailuresOfAnOpeningCarryTheLabelOfItsKind) {
    EXPECT_EQ(EtiquetteOuverture("/ribs/root.LFW"), " LireEcrire/newLfw");
    EXPECT_EQ(EtiquetteOuverture("/ribs/root.dat"), " Main/FileMru");
}

TEST_F(FileSteps, TheChooserOfRibFilesStartsWhereTheLastOneWas) {
    platform.files_expected = {"", ""};
    OuvreRib(programme, view);
    EXPECT_EQ(Question().title, "Open rib components");
    EXPECT_EQ(Question().folder, folder.Path("airfoils"));
    EXPECT_EQ(Question().filter_text, "Rib components Loftwing (*.lfw)");
    EXPECT_EQ(Question().default_extension, "lfw");
    WriteINIFile("Repertoires", "LastOpenLfw", "/ribs", programme.paths.fichier);
    OuvreRib(programme, view);
    EXPECT_EQ(Question().folder, "/ribs");
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(FileSteps, TheChooserDoesNotAppearAfterNo) {
    HaveRib();
    ExpectQuestion(BoxAnswer::no);
    OuvreRib(programme, view);
    EXPECT_THAT(platform.file_questions, IsEmpty());
}

TEST_F(FileSteps, ChangesWithoutAnAirfoilAreNotAskedAbout) {
    Rib().Modifie = true;
    platform.files_expected = {""};
    OuvreRib(programme, view);
    EXPECT_EQ(platform.file_questions.size(), 1U);
}

TEST_F(FileSteps, SavingProposesTheNameWithItsExtension) {
    platform.files_expected = {"", ""};
    Rib().NomProfil = Rib().NomFichierRib = "clark.y";
    EnregistreRib(programme, view);
    EXPECT_EQ(Question().title, "Save as rib components");
    EXPECT_EQ(Question().name, "clark.y 200 mm.lfw");
    Rib().NomFichierRib = "root.lfw";
    EnregistreRib(programme, view);
    EXPECT_EQ(Question().name, "root.lfw");
}

TEST_F(FileSteps, ASavedRibHasANameAndNoChanges) {
    HaveRib();
    platform.files_expected = {folder.Path("wing.lfw")};
    EnregistreRib(programme, view);
    EXPECT_THAT(view.asked,
                ElementsAre("AfficheFichiersRecents", "MontreAvis",
                            "Titre Loftwing Rib : wing.lfw  Airfoil : naca0012")); // two blanks
    EXPECT_EQ(Rib().NomFichierRib, "wing.lfw");
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_EQ(Setting("Repertoires", "LastOpenLfw"), folder.Path());
    EXPECT_THAT(folder.Bytes("wing.lfw"), testing::HasSubstr("naca0012.dat"));
}

TEST_F(FileSteps, ASavedRibKnowsItsFileAndWhetherItsAirfoilLiesElsewhere) {
    HaveRib(); // of an airfoil outside the folders
    platform.files_expected = {folder.Path("wing.lfw")};
    EnregistreRib(programme, view);
    EXPECT_EQ(Rib().CheminRib, folder.Path("wing.lfw"));
    EXPECT_TRUE(Rib().ProfilAilleurs);
    for (const char *inside : {"airfoils/deep/in.dat", "sets/in.dat"}) {
        std::filesystem::create_directories(folder.Path("airfoils/deep"));
        std::filesystem::copy_file(Sample("naca2412.dat"), folder.Path(inside));
        ASSERT_TRUE(Read(folder.Path(inside)));
        platform.files_expected = {folder.Path("wing.lfw")};
        EnregistreRib(programme, view);
        EXPECT_FALSE(Rib().ProfilAilleurs) << inside;
    }
}

TEST_F(FileSteps, OpenedAndSavedRibsAreAmongTheRecentOnes) {
    HaveAirfoil();
    const std::string root = RibFile();
    OuvreFichier(programme, view, root);
    EXPECT_EQ(Setting("LastRibs", "RecentRib1"), root);
    platform.files_expected = {folder.Path("wing.lfw")};
    EnregistreRib(programme, view);
    EXPECT_EQ(Setting("LastRibs", "RecentRib1"), folder.Path("wing.lfw"));
    EXPECT_EQ(Setting("LastRibs", "RecentRib2"), root);
    // Those of the airfoils are as before.
    EXPECT_EQ(Setting("LastFiles", "RecentFile1"), "");
}

TEST_F(FileSteps, ARibThatCannotBeOpenedIsNotAmongTheRecentOnes) {
    folder.File("airfoils/naca2412.dat", "Title\n0.5 0.1\n1 0\n");
    platform.Expect(BoxAnswer::ok);
    OuvreFichier(programme, view, RibFile());
    EXPECT_EQ(Setting("LastRibs", "RecentRib1"), "");
}

TEST_F(FileSteps, ARecentRibOpensAsAnyOther) {
    HaveAirfoil();
    HaveRib();
    ExpectQuestion(BoxAnswer::no);
    OuvreRibRecent(programme, view, RibFile());
    EXPECT_EQ(Rib().NomProfil, "naca0012");
    ExpectQuestion(BoxAnswer::yes);
    OuvreRibRecent(programme, view, RibFile());
    EXPECT_EQ(Rib().NomProfil, "naca2412");
}

TEST_F(FileSteps, ARecentRibThatIsGoneIsToldAndTheRibStays) {
    HaveRib();
    ExpectBox(BoxAnswer::ok, "This rib file is not there any more :\n" + folder.Path("gone.lfw"),
              "Open rib components");
    OuvreRibRecent(programme, view, folder.Path("gone.lfw"));
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(FileSteps, AFolderWhoseNameGoesOnIsAnotherOne) {
    std::filesystem::create_directories(folder.Path("airfoils2"));
    std::filesystem::copy_file(Sample("naca2412.dat"), folder.Path("airfoils2/a.dat"));
    ASSERT_TRUE(Read(folder.Path("airfoils2/a.dat")));
    platform.files_expected = {folder.Path("wing.lfw")};
    EnregistreRib(programme, view);
    EXPECT_TRUE(Rib().ProfilAilleurs);
}

TEST_F(FileSteps, ANewAirfoilForgetsTheRibFile) {
    HaveAirfoil();
    OuvreFichier(programme, view, RibFile());
    EXPECT_EQ(Rib().CheminRib, folder.Path("root.lfw"));
    Rib().ProfilAilleurs = true;
    OuvreFichier(programme, view, Sample("naca0012.dat"));
    EXPECT_EQ(Rib().CheminRib, "");
    EXPECT_FALSE(Rib().ProfilAilleurs);
}

TEST_F(FileSteps, AnAirfoilBesideTheRibFileIsFoundAfterTheFolders) {
    std::filesystem::copy_file(Sample("naca2412.dat"), folder.Path("naca2412.dat"));
    OuvreFichier(programme, view, RibFile());
    EXPECT_EQ(Rib().CheminProfil, folder.Path("naca2412.dat"));
    HaveAirfoil();
    OuvreFichier(programme, view, RibFile());
    EXPECT_EQ(Rib().CheminProfil, folder.Path("airfoils/naca2412.dat"));
}

TEST_F(FileSteps, AnAirfoilThatIsNowhereCanBeLocated) {
    std::filesystem::create_directories(folder.Path("far"));
    std::filesystem::copy_file(Sample("naca2412.dat"), folder.Path("far/naca2412.dat"));
    platform.Expect(BoxAnswer::locate,
                    {.text = "The airfoil of this rib was not found : naca2412.dat\n It was "
                             "searched in the airfoil folders, with all that is below them : \n" +
                             folder.Path("airfoils") + " and " + folder.Path("sets") +
                             "\n Then in the folder of the rib file : \n" + folder.Path(),
                     .title = "Open rib components",
                     .icon = BoxIcon::information,
                     .buttons = BoxButtons::locate_cancel});
    platform.files_expected = {folder.Path("far/naca2412.dat")};
    OuvreFichier(programme, view, RibFile());
    EXPECT_EQ(Question().title, "Locate the airfoil of this rib : naca2412.dat");
    EXPECT_EQ(Question().filter_text, "Airfoil files (*.dat *.cor)");
    EXPECT_EQ(Question().folder, folder.Path());
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(Rib().CheminProfil, folder.Path("far/naca2412.dat"));
    EXPECT_FALSE(Rib().Modifie); // the file says the same
}

TEST_F(FileSteps, AnAirfoilOfAnotherNameThatIsLocatedBecomesTheRibs) {
    ComponentsText file;
    for (const auto &[text, wanted] :
         {std::pair<const char *, const char *>{"naca2412 Chord : 200", "naca0012 Chord : 200"},
          {"left wing", "left wing"},
          {"", ""}}) {
        file.text = text;
        Rib().Modifie = false;
        platform.Expect(BoxAnswer::locate);
        platform.files_expected = {Sample("naca0012.dat")};
        OuvreFichier(programme, view, folder.File("root.lfw", file.Current()));
        EXPECT_EQ(Rib().NomProfil, "naca0012");
        EXPECT_EQ(Rib().ExtProfil, "dat");
        EXPECT_TRUE(Rib().Modifie);
        EXPECT_EQ(Rib().texte.InsTexte, wanted);
    }
}

TEST_F(FileSteps, ACancelledLocatingEndsAsAMissingAirfoilDoes) {
    platform.Expect(BoxAnswer::locate);
    platform.files_expected = {""};
    ExpectReport("Error LireEcrire/newLfw");
    OuvreFichier(programme, view, RibFile());
    EXPECT_THAT(view.asked, ElementsAre("affclear", "affclear"));
}

TEST_F(FileSteps, ARibIsReadAnewInTheOtherUnit) {
    HaveAirfoil();
    ComponentsText file;
    file.chord = "8.1/2";
    file.sheeting = "1/16";
    OuvreFichier(programme, view, folder.File("root.lfw", file.Current()));
    EXPECT_EQ(Rib().corde, 8.1F);
    EXPECT_TRUE(Rib().UniteDouteuse);
    view.asked.clear();
    OuvreAutreUnite(programme, view);
    EXPECT_EQ(programme.settings.Unite, " in");
    EXPECT_EQ(programme.settings.page.MargeHautAfich, "1/2"); // the page of inches
    EXPECT_EQ(Rib().corde, 215.9F);                           // 8.5 inches
    EXPECT_EQ(Rib().EpCoffrage, 1.5875F);
    EXPECT_FALSE(Rib().UniteDouteuse);
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_THAT(view.asked, ElementsAre("affclear", "AfficheUnite", "AfficheFichiersRecents",
                                        "Titre Loftwing Rib : root.lfw Airfoil : naca2412",
                                        "MontreCoches", "ViewReset", "ActiveCommandes", "affiche"));
    // The user's own unit and defaults stay on file.
    EXPECT_EQ(Setting("Defaut", "unit"), "mm");
    EXPECT_EQ(Setting("Defaut", "cordeAfich"), "200");
    EXPECT_EQ(Setting("Marges", "MargeHaut"), "10");
}

TEST_F(FileSteps, TheOtherUnitAsksWhereChangesCouldBeLost) {
    HaveAirfoil();
    OuvreFichier(programme, view, RibFile());
    Rib().Modifie = true;
    view.asked.clear();
    ExpectQuestion(BoxAnswer::no);
    OuvreAutreUnite(programme, view);
    EXPECT_EQ(programme.settings.Unite, " mm");
    EXPECT_THAT(view.asked, IsEmpty());
    ExpectQuestion(BoxAnswer::yes);
    OuvreAutreUnite(programme, view);
    EXPECT_EQ(programme.settings.Unite, " in");
    EXPECT_EQ(Rib().corde, 5080.0F); // 200 inches, as asked
    EXPECT_TRUE(Rib().UniteDouteuse);
}

TEST_F(FileSteps, ACancelledSavingLeavesTheChanges) {
    HaveRib();
    platform.files_expected = {""};
    EnregistreRib(programme, view);
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_THAT(view.asked, IsEmpty());
    EXPECT_EQ(Setting("Repertoires", "LastOpenLfw"), "");
}

} // namespace
} // namespace loftwing
