// Opening rib components files in the main window, when all goes well.

#include "windows/frmmain_files_fixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <variant>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::HasSubstr;

TEST_F(RibFiles, OpenAsksWhereChangesCouldBeLostAndStopsAtNo) {
    world.window->OuvreFichier(WindowWorld::Sample("naca0012.dat"));
    const std::string question =
        "The rib has changes that are not saved. Open another rib all the same?";
    world.platform.Expect(BoxAnswer::no, {.text = question, .title = "Open rib components"});
    world.Action("mnu_fileopen")->trigger();
    EXPECT_TRUE(world.platform.file_questions.empty());
    EXPECT_EQ(Rib().NomProfil, "naca0012");
    world.platform.Expect(BoxAnswer::yes, {.text = question, .title = "Open rib components"});
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    EXPECT_EQ(world.platform.file_questions.size(), 1U);
    EXPECT_EQ(Rib().NomProfil, "naca2412");
    // What was just opened has no changes.
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    EXPECT_EQ(world.platform.boxes.size(), 2U);
}

TEST_F(RibFiles, OpenAsksNothingWithoutARib) {
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    EXPECT_TRUE(world.platform.boxes.empty());
    EXPECT_TRUE(Rib().ProfilCharge);
}

TEST_F(RibFiles, ACancelledChooserLeavesTheRibAsItWasWithoutAWord) {
    world.window->OuvreFichier(WindowWorld::Sample("naca0012.dat"));
    const std::string caption = Caption();
    const std::size_t operations = Drawing()->Operations().size();
    world.platform.Expect(BoxAnswer::yes);
    Open("");
    EXPECT_EQ(world.platform.boxes.size(), 1U);
    EXPECT_EQ(Rib().NomProfil, "naca0012");
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_EQ(Caption(), caption);
    EXPECT_EQ(Drawing()->Operations().size(), operations);
    EXPECT_EQ(Setting("LastOpenLfw"), "");
}

TEST_F(RibFiles, TheChooserStartsWhereTheLastFileWas) {
    Open("");
    EXPECT_EQ(LastQuestion().title, "Open rib components");
    EXPECT_EQ(LastQuestion().filter_text, "Rib components Loftwing (*.lfw)");
    EXPECT_EQ(LastQuestion().folder, world.folder.Path("airfoils")); // none was opened yet
    EXPECT_EQ(LastQuestion().name, "");
    OpenBytes("first.lfw", ComponentsText{}.Current());
    EXPECT_EQ(Setting("LastOpenLfw"), world.folder.Path("ribs"));
    Open("");
    EXPECT_EQ(LastQuestion().folder, world.folder.Path("ribs"));
    EXPECT_EQ(LastQuestion().name, "first.lfw");
}

TEST_F(RibFiles, AnOpenedRibIsNamedDrawnAndUnchanged) {
    ComponentsText file;
    file.chord = "180.5";
    file.inverted = "1";
    OpenBytes("root.lfw", file.Current());
    EXPECT_EQ(Caption(), "Loftwing Rib : root.lfw Airfoil : naca2412");
    EXPECT_EQ(world.Panel(2), "Airfoil : naca2412  Chord : 180.5 mm <> Information : NACA 2412");
    ASSERT_NE(Drawing(), nullptr);
    EXPECT_GT(Drawing()->Operations().size(), 100U);
    EXPECT_TRUE(Rib().AffHaut);
    EXPECT_TRUE(world.Action("mnu_affinver")->isChecked());
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_EQ(Rib().CheminProfil, world.folder.Path("airfoils/naca2412.dat"));
    for (const char *name : {"mnu_filesaveas", "mnu_filedxf", "mnu_fileprint", "Toolbar1(3)"}) {
        EXPECT_TRUE(world.Action(name)->isEnabled()) << name;
    }
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
    OpenBytes("plain.lfw", ComponentsText{}.Current());
    EXPECT_FALSE(Rib().AffHaut);
    EXPECT_FALSE(world.Action("mnu_affinver")->isChecked());
}

TEST_F(RibFiles, EverythingInTheFileIsInThePicture) {
    OpenBytes("laden.lfw", LadenRib("11", false).Current());
    EXPECT_EQ(Rib().NbLongeron, 4);
    EXPECT_EQ(Rib().NbTrou, 2);
    EXPECT_EQ(Rib().longeron[1].PosLong, 56.1F); // 33 % of 170 mm, which the plot makes
    const auto &operations = Drawing()->Operations();
    // The round spar above and below, the round hole, and the one being edited.
    EXPECT_EQ(std::count_if(operations.begin(), operations.end(),
                            [](const Operation &operation) {
                                return std::holds_alternative<DrawnCircle>(operation);
                            }),
              4);
    EXPECT_TRUE(std::any_of(operations.begin(), operations.end(), [](const Operation &operation) {
        const auto *text = std::get_if<DrawnText>(&operation);
        return text != nullptr && text->text == "root rib 2.5° : é";
    }));
}

TEST_F(RibFiles, TheFormerRibLeavesNothingBehind) {
    OpenBytes("laden.lfw", LadenRib("1", false).Current());
    const ComponentsText plain;
    OpenBytes("plain.lfw", plain.Older()); // holds fewer fields
    EXPECT_EQ(Rib().talon.TalonIntra, 0.0);
    EXPECT_EQ(Rib().longeron[0].DistLongAfich, "0");
    EXPECT_EQ(Rib().NbLongeron, 0);
    EXPECT_EQ(Rib().longeron[2].PosLongAfich, "0");
    EXPECT_EQ(Rib().trou[1].TypeTrou, 0);
    EXPECT_EQ(Rib().TypeGabarit, kSansGabarit);
}

TEST_F(RibFiles, TheFirstAirfoilFolderIsSearchedBeforeTheOther) {
    Airfoil("sets/naca2412.dat", "of the sets");
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    EXPECT_EQ(Rib().EnteteProfil, "NACA 2412");
    fs::remove(world.folder.Path("airfoils/naca2412.dat"));
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    EXPECT_EQ(Rib().EnteteProfil, "of the sets");
}

TEST_F(RibFiles, OfTheSameNameInTwoSubfoldersTheLastOneIsTaken) {
    Airfoil("airfoils/b/naca2412.dat", "in b");
    Airfoil("airfoils/a/naca2412.dat", "in a");
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    EXPECT_EQ(Rib().EnteteProfil, "in b");
}

TEST_F(RibFiles, AChordInTheAirfoilsTitleDoesNotTouchTheRib) {
    Airfoil("airfoils/naca2412.dat", "Root rib: 150");
    ComponentsText file;
    file.chord = "320";
    OpenBytes("rib.lfw", file.Current());
    EXPECT_EQ(Rib().corde, 320.0F);
    EXPECT_EQ(Rib().cordeAfich, "320");
    // While the airfoil alone takes it.
    world.window->OuvreFichier(world.folder.Path("airfoils/naca2412.dat"));
    EXPECT_EQ(Rib().corde, 150.0F);
}

/// Enters another chord by the menu.
void EnterChord(WindowWorld &world, const char *chord) {
    bool came = false;
    InNextDialog([&](Seen &dialog) {
        came = true;
        dialog.Type("infotxt", chord);
        dialog.Key("infotxt", Qt::Key_Return);
    });
    world.Action("mnu_profilcorde")->trigger();
    EXPECT_TRUE(came);
}

TEST_F(RibFiles, ALabelStaysAsReadAndFollowsALaterChord) {
    ComponentsText file;
    file.text = "naca2412 Chord : 180"; // of a chord that the rib had once
    OpenBytes("rib.lfw", file.Current());
    EXPECT_EQ(Rib().texte.InsTexte, "naca2412 Chord : 180");
    EnterChord(world, "150");
    EXPECT_EQ(Rib().corde, 150.0F);
    EXPECT_EQ(Rib().texte.InsTexte, "naca2412 Chord : 150");
}

TEST_F(RibFiles, OwnWordsStayWhateverTheChord) {
    ComponentsText file;
    for (const char *words : {"left wing", "naca2412 chord : 180", "naca4412 Chord : 180"}) {
        file.text = words;
        OpenBytes("rib.lfw", file.Current());
        EXPECT_EQ(Rib().texte.InsTexte, words);
        EnterChord(world, "150");
        EXPECT_EQ(Rib().texte.InsTexte, words);
        Rib().Modifie = false;
    }
}

TEST_F(RibFiles, ATextThatIsEmptyStaysEmpty) {
    OpenBytes("rib.lfw", ComponentsText{}.Current());
    EXPECT_EQ(Rib().texte.InsTexte, "");
    world.window->affiche();
    EXPECT_EQ(Rib().texte.InsTexte, "");
}

TEST_F(RibFiles, ToolBarButtonsOpenAndSave) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    Choose("Toolbar1(3)", world.folder.Path("ribs/saved.lfw"));
    EXPECT_TRUE(Exists("ribs/saved.lfw"));
    Choose("Toolbar1(2)", world.folder.Path("ribs/saved.lfw"));
    EXPECT_EQ(Caption(), "Loftwing Rib : saved.lfw Airfoil : naca2412");
}

TEST_F(RibFiles, RecentRibsStandUnderAnEntryOfTheirOwn) {
    EXPECT_FALSE(world.Action("mnu_fileribs")->isEnabled());
    const std::string a = OpenBytes("a&b.lfw", ComponentsText{}.Current());
    const std::string c = OpenBytes("c.lfw", ComponentsText{}.Current());
    EXPECT_TRUE(world.Action("mnu_fileribs")->isEnabled());
    EXPECT_EQ(world.Action("mnuRibMRU(1)")->data().toString().toStdString(), c);
    EXPECT_THAT(world.Action("mnuRibMRU(2)")->text().toStdString(), HasSubstr("&2 "));
    EXPECT_THAT(world.Action("mnuRibMRU(2)")->text().toStdString(), HasSubstr("a&&b.lfw"));
    EXPECT_FALSE(world.Action("mnuRibMRU(3)")->isVisible());
    EXPECT_FALSE(world.Action("mnuFileMRU(1)")->isVisible()); // no airfoil was opened
    world.Action("mnuRibMRU(2)")->trigger();
    EXPECT_EQ(Caption(), "Loftwing Rib : a&b.lfw Airfoil : naca2412");
    EXPECT_EQ(world.Action("mnuRibMRU(1)")->data().toString().toStdString(), a);
}

TEST_F(RibFiles, AFileHandedOverOpensWhateverTheCaseOfItsExtension) {
    for (const char *name : {"a.lfw", "B.LFW", "c.Lfw"}) {
        const std::string path =
            world.folder.File(std::string("ribs/") + name, ComponentsText{}.Current());
        world.window->OuvreFichier(path);
        EXPECT_EQ(Caption(), std::string("Loftwing Rib : ") + name + " Airfoil : naca2412");
        EXPECT_FALSE(Rib().Modifie);
        EXPECT_EQ(Setting("LastOpenLfw"), world.folder.Path("ribs"));
    }
    EXPECT_TRUE(world.platform.file_questions.empty());
}

TEST_F(RibFiles, AFileHandedOverAsksWhereChangesCouldBeLost) {
    world.window->OuvreFichier(WindowWorld::Sample("naca0012.dat"));
    const std::string path = world.folder.File("ribs/rib.lfw", ComponentsText{}.Current());
    world.platform.Expect(BoxAnswer::no);
    world.window->OuvreFichier(path);
    EXPECT_EQ(Rib().NomProfil, "naca0012");
    world.platform.Expect(BoxAnswer::yes);
    world.window->OuvreFichier(path);
    EXPECT_EQ(Rib().NomProfil, "naca2412");
}

TEST_F(RibFiles, AFileDroppedOnTheWindowOpens) {
    const std::string path = world.folder.File("ribs/dropped.lfw", ComponentsText{}.Current());
    world.Drop(path, [this] { return Rib().ProfilCharge; });
    EXPECT_EQ(Rib().NomFichierRib, "dropped.lfw");
    EXPECT_NE(Drawing(), nullptr);
}

TEST_F(RibFiles, NamesOutsideAsciiOpen) {
    Airfoil("airfoils/é/nervure é.dat");
    ComponentsText file;
    file.airfoil = "nervure é.dat";
    OpenBytes("aile n° 1.lfw", file.Current());
    EXPECT_EQ(Caption(), "Loftwing Rib : aile n° 1.lfw Airfoil : nervure é");
}

TEST(RibFilesInFrench, OpenSpeaksFrench) {
    WindowWorld world("French");
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.platform.files_expected = {world.folder.Path("a.lfw")};
    world.Action("mnu_filesaveas")->trigger();
    world.platform.Expect(BoxAnswer::ok, {.text = AllOf(HasSubstr("naca2412.dat"),
                                                        testing::Not(HasSubstr("was not found")))});
    world.platform.Expect(BoxAnswer::ok);
    world.window->OuvreFichier(world.folder.Path("a.lfw"));
    EXPECT_FALSE(world.programme.rib.ProfilCharge);
}

TEST(RibFilesInInches, LengthsAreThoseOfTheUnitInForce) {
    WindowWorld world("English", "in");
    world.folder.File("airfoils/naca2412.dat", ReadWholeFile(WindowWorld::Sample("naca2412.dat")));
    world.Open().OuvreFichier(world.folder.File("rib.lfw", LadenRib("11", true).Current()));
    EXPECT_EQ(world.programme.rib.corde, 165.1F); // 6.1/2 inches
    EXPECT_EQ(world.programme.rib.cordeAfich, "6.1/2");
    EXPECT_EQ(world.programme.rib.EpCoffrage, 1.5875F);
    EXPECT_NE(world.Find<PicView>("Pic")->Dessin(), nullptr);
}

} // namespace
} // namespace loftwing
