#include "programme/import_steps.h"

#include "programme/file_steps.h"
#include "support/import_files.h"
#include "support/steps_world.h"

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

class ImportSteps : public StepsWorld {
  protected:
    ImportSteps() {
        EXPECT_TRUE(Read(Sample("naca0012.dat")));
        Rib().Modifie = true;
    }
    /// The user presses Open in the import window.
    void WillOpen() {
        view.on_import = [](const std::string &path, const ImportedAirfoil &airfoil) {
            return std::optional(ImportVoulu{path, airfoil});
        };
    }
    void ExpectRibKept() {
        EXPECT_EQ(Rib().CheminProfil, Sample("naca0012.dat"));
        EXPECT_EQ(Rib().NomProfil, "naca0012");
        EXPECT_TRUE(Rib().ProfilCharge);
        EXPECT_TRUE(Rib().Modifie);
    }
    void ExpectSample(const std::string &path) {
        EXPECT_EQ(Rib().CheminProfil, path);
        const PointsLus points = Rib();
        ASSERT_TRUE(Read(Sample("naca2412.dat")));
        EXPECT_EQ(points.ProfilX.Values(), Rib().ProfilX.Values());
        EXPECT_EQ(points.ProfilY.Values(), Rib().ProfilY.Values());
        EXPECT_EQ(points.NbPoints, Rib().NbPoints);
    }
    void ExpectOffer(BoxAnswer answer) {
        platform.Expect(answer, {.text = EndsWith("\n\nLoftwing can import this file. Import it?"),
                                 .title = "Open airfoil file",
                                 .buttons = BoxButtons::yes_no});
    }
};

TEST_F(ImportSteps, AnImportTakesTheRibsPlace) {
    WillOpen();
    const std::string path = folder.File("lists.txt", TwoLists());
    ImporteFichier(programme, view, path);
    EXPECT_THAT(view.asked,
                ElementsAre("MontreImport " + path, "Titre Loftwing Airfoil : lists",
                            "AfficheFichiersRecents", "ViewReset", "ActiveCommandes", "affiche"));
    EXPECT_EQ(Rib().EnteteProfil, "Two lists");
    EXPECT_EQ(Rib().EcartContour > kImportTolerance, false);
    EXPECT_GT(Rib().NbContour, 0);
    ExpectSample(path);
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(ImportSteps, ACancelledImportLeavesTheRib) {
    ImporteFichier(programme, view, folder.File("lists.txt", TwoLists()));
    ExpectRibKept();
    EXPECT_EQ(view.asked.size(), 1U);
}

TEST_F(ImportSteps, AFileThatIsNoAirfoilIsToldWithTheReason) {
    const std::string path = folder.File("words.txt", "nothing\nbut words\n");
    ExpectBox(BoxAnswer::ok, path + "\nThe file is no airfoil : it has fewer than five points.",
              "Import airfoil");
    ImporteFichier(programme, view, path);
    platform.Expect(BoxAnswer::ok, {.text = StartsWith(folder.Path("none") + "\nFile not found"),
                                    .title = "Import airfoil"});
    ImporteFichier(programme, view, folder.Path("none"));
    ExpectRibKept();
    EXPECT_THAT(view.asked, IsEmpty());
}

TEST_F(ImportSteps, TheChooserShowsFilesOfAnyName) {
    programme.settings.repertoires.LastOpenProfil = folder.Path("sets");
    platform.files_expected = {""};
    ImporteProfil(programme, view);
    EXPECT_EQ(platform.file_questions.back().title, "Import airfoil");
    EXPECT_EQ(platform.file_questions.back().folder, folder.Path("sets"));
    EXPECT_EQ(platform.file_questions.back().filter_text, "All files (*)");
    EXPECT_THAT(view.asked, IsEmpty());
    const std::string path = folder.File("wing.csv", Semicolons());
    platform.files_expected = {path};
    ImporteProfil(programme, view);
    EXPECT_THAT(view.asked, ElementsAre("MontreImport " + path));
}

TEST_F(ImportSteps, AnImportIsSavedAsAnAirfoilFileThatOpens) {
    programme.settings.repertoires.LastOpenProfil.clear();
    const std::string path = folder.File("lists.txt", TwoLists());
    const auto airfoil = EssaieImport(path);
    ASSERT_TRUE(airfoil);
    platform.files_expected = {"", folder.Path("airfoils/saved.dat")};
    EXPECT_EQ(EnregistreImport(programme, path, *airfoil), "");
    EXPECT_EQ(platform.file_questions.back().folder, folder.Path("airfoils"));
    EXPECT_EQ(platform.file_questions.back().name, "lists.dat");
    EXPECT_EQ(platform.file_questions.back().default_extension, "dat");
    EXPECT_EQ(EnregistreImport(programme, path, *airfoil), folder.Path("airfoils/saved.dat"));
    ASSERT_TRUE(Read(folder.Path("airfoils/saved.dat")));
    EXPECT_EQ(Rib().EnteteProfil, "Two lists");
    ExpectSample(folder.Path("airfoils/saved.dat"));
}

TEST_F(ImportSteps, ARefusedFileIsOfferedForImport) {
    const std::string path = folder.File("lists.dat", TwoLists());
    ExpectOffer(BoxAnswer::no);
    OuvreFichier(programme, view, path);
    ExpectRibKept();
    EXPECT_THAT(view.asked, IsEmpty());
    ExpectOffer(BoxAnswer::yes);
    OuvreFichier(programme, view, path);
    ExpectRibKept(); // and cancelled
    EXPECT_THAT(view.asked, ElementsAre("MontreImport " + path));
    WillOpen();
    ExpectOffer(BoxAnswer::yes);
    OuvreFichier(programme, view, path);
    ExpectSample(path);
}

TEST_F(ImportSteps, AFileAtWhichReadingFailsIsOfferedBeforeTheRibIsCleared) {
    const std::string path = folder.File("stray.dat", Stray());
    ExpectOffer(BoxAnswer::yes);
    OuvreFichier(programme, view, path);
    ExpectRibKept();
    EXPECT_THAT(view.asked, ElementsAre("MontreImport " + path));
    ExpectOffer(BoxAnswer::no);
    OuvreFichier(programme, view, path);
    EXPECT_EQ(view.asked.back(), "affclear");
}

TEST_F(ImportSteps, AContourThatStraysIsMeasuredAndAnImportMendsIt) {
    const std::string path = folder.File("coarse.dat", Coarse());
    OuvreFichier(programme, view, path);
    EXPECT_GT(Rib().EcartContour, kImportTolerance);
    WillOpen();
    ImporteFichier(programme, view, path);
    EXPECT_EQ(Rib().CheminProfil, path);
    EXPECT_LE(Rib().EcartContour, kImportTolerance);
    EXPECT_EQ(Rib().NbPoints, 160);
}

} // namespace
} // namespace loftwing
