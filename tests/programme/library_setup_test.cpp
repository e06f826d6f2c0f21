#include "programme/library_setup.h"

#include "support/special_files.h"
#include "support/steps_world.h"

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LibrarySetup : public StepsWorld {
  protected:
    LibrarySetup() {
        std::filesystem::create_directories(folder.Path("with"));
        std::filesystem::create_directories(folder.Path("without"));
        archive = folder.File("with/Foilpack.exe", "MZ");
    }
    std::string Question() const {
        return "Do you want to set up the airfoil library \"Open Pack Sections\" Foilpack.exe "
               "now?\n"
               "Folder : " +
               folder.Path("airfoils");
    }
    void ExpectNotThere(BoxAnswer again) {
        platform.Expect(again, {.text = "That folder has no file  Foilpack.exe ! Do you want to "
                                        "choose another folder?",
                                .icon = BoxIcon::question,
                                .buttons = BoxButtons::yes_no});
    }
    void ExpectStarted() {
        platform.Expect(BoxAnswer::ok,
                        {.text = "The archive has been started. When it has unpacked its files, "
                                 "choose their folder in View, Template defaults.",
                         .title = "Loftwing",
                         .icon = BoxIcon::information});
    }

    std::string archive;
};

TEST_F(LibrarySetup, ANoIsToldHowToDoItLater) {
    platform.Expect(BoxAnswer::no, {.text = Question(), .buttons = BoxButtons::yes_no});
    platform.Expect(BoxAnswer::ok,
                    {.text = "The library can be set up later with the same command of the Help "
                             "menu. The folder of the airfoils is chosen in View, Template "
                             "defaults, with 'Browse...'\nThe folder of the rib sets is chosen "
                             "there too, with 'Browse...'",
                     .icon = BoxIcon::stop});
    installationProfils(programme);
    EXPECT_THAT(platform.pages_opened, IsEmpty());
    EXPECT_TRUE(platform.folder_questions.empty());
}

TEST_F(LibrarySetup, AYesStartsTheArchiveInTheFolderThatIsShown) {
    platform.Expect(BoxAnswer::yes, {.text = Question()});
    platform.folders_expected = {folder.Path("with")};
    ExpectStarted();
    installationProfils(programme);
    EXPECT_THAT(platform.pages_opened, ElementsAre(archive));
    ASSERT_EQ(platform.folder_questions.size(), 1U);
    EXPECT_EQ(platform.folder_questions[0].title, "Folder of Foilpack.exe");
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(LibrarySetup, AFolderMayHaveBlanksAroundItAndASlashBehindIt) {
    platform.folders_expected = {" " + folder.Path("with") + "/ "};
    ExpectStarted();
    SetUpAirfoilLibrary(programme);
    EXPECT_THAT(platform.pages_opened, ElementsAre(archive));
}

TEST_F(LibrarySetup, AsksAgainUntilTheArchiveIsThere) {
    platform.folders_expected = {folder.Path("without"), "", folder.Path("gone"),
                                 folder.Path("with")};
    for (int times = 0; times < 3; ++times) {
        ExpectNotThere(BoxAnswer::yes);
    }
    ExpectStarted();
    SetUpAirfoilLibrary(programme);
    EXPECT_THAT(platform.pages_opened, ElementsAre(archive));
}

TEST_F(LibrarySetup, GivingUpLeavesTheLibrary) {
    platform.folders_expected = {folder.Path("without")};
    ExpectNotThere(BoxAnswer::no);
    platform.Expect(BoxAnswer::ok,
                    {.text = "The airfoil folder stays as it was : " + folder.Path("airfoils"),
                     .icon = BoxIcon::stop});
    SetUpAirfoilLibrary(programme);
    EXPECT_THAT(platform.pages_opened, IsEmpty());
    EXPECT_EQ(programme.settings.repertoires.RepProfil, folder.Path("airfoils"));
    EXPECT_EQ(Setting("Repertoires", "RepProfil"), folder.Path("airfoils"));
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(LibrarySetup, AFolderOfThatNameIsNoArchive) {
    std::filesystem::create_directories(folder.Path("without/foilpack.exe"));
    platform.folders_expected = {folder.Path("without")};
    ExpectNotThere(BoxAnswer::no);
    platform.Expect(BoxAnswer::ok);
    SetUpAirfoilLibrary(programme);
    EXPECT_THAT(platform.pages_opened, IsEmpty());
}

TEST_F(LibrarySetup, AFolderWithoutAnAirfoilInAnyFolderBelowHasNone) {
    EXPECT_TRUE(SansProfil(folder.Path("gone")));
    std::filesystem::create_directories(folder.Path("library/deep/deeper"));
    EXPECT_TRUE(SansProfil(folder.Path("library")));
    folder.File("library/deep/notes.txt", "");
    EXPECT_TRUE(SansProfil(folder.Path("library")));
    folder.File("library/deep/deeper/Wing.DAT", "");
    EXPECT_FALSE(SansProfil(folder.Path("library")));
    std::filesystem::create_directories(folder.Path("other"));
    folder.File("other/wing.cor", "");
    EXPECT_FALSE(SansProfil(folder.Path("other")));
}

TEST_F(LibrarySetup, AFolderThatLeadsBackToItselfIsNoHang) {
    std::filesystem::create_directories(folder.Path("loop"));
    if (!MakeLink(folder.Path("loop"), folder.Path("loop/again"))) {
        GTEST_SKIP() << "this system has no links for everybody";
    }
    EXPECT_TRUE(SansProfil(folder.Path("loop")));
}

} // namespace
} // namespace loftwing
