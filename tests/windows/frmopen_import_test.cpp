// The airfoil picker's search field, and its way to the import of a refused file.

#include "programme/import_steps.h"
#include "support/import_files.h"
#include "support/qt_modal.h"
#include "support/qt_nothing_cut.h"
#include "windows/frmopen_fixture.h"

namespace loftwing {
namespace {

TEST_F(FrmOpenTest, ARefusedFileThatImportCanReadHasAButtonForThat) {
    File("a.dat");
    File("b.dat", TwoLists());
    File("c.dat", "\n");
    Open();
    EXPECT_FALSE(Shown("cmdimporter"));
    ClickFile("a.dat");
    EXPECT_FALSE(Shown("cmdimporter"));
    Key("File1", Qt::Key_Down);
    Rest("b.dat");
    EXPECT_TRUE(Shown("cmdimporter"));
    EXPECT_EQ(Word("cmdimporter"), "Import...");
    EXPECT_FALSE(MayOpen());
    Key("File1", Qt::Key_Down);
    EXPECT_FALSE(Shown("cmdimporter"));
    Rest("c.dat");
    EXPECT_FALSE(Shown("cmdimporter")); // nothing to import either
    platform.Expect(BoxAnswer::ok);
    ClickFile("b.dat");
    EXPECT_TRUE(Shown("cmdimporter"));
}

TEST_F(FrmOpenTest, AnImportThatIsOpenedIsThePickersAirfoil) {
    File("b.dat", TwoLists());
    Open();
    Key("File1", Qt::Key_Down);
    Rest("b.dat");
    InNextDialog([](Seen &dialog) { dialog.Click("cmdouvrir"); });
    Click("cmdimporter");
    ExpectOpened(folder.Path("lib/b.dat"));
    EXPECT_EQ(programme.rib.NomProfil, "b");
    EXPECT_EQ(programme.rib.EnteteProfil, "Two lists");
    EXPECT_EQ(programme.rib.NbPoints, EssaieImport(folder.Path("lib/b.dat"))->points.size());
    EXPECT_EQ(Stored("Repertoires", "LastOpenProfil"), folder.Path("lib"));
}

TEST_F(FrmOpenTest, ACancelledImportLeavesThePickerAsItWas) {
    File("b.dat", TwoLists());
    Open();
    Key("File1", Qt::Key_Down);
    Rest("b.dat");
    InNextDialog([](Seen &dialog) { dialog.Click("cmdannuler"); });
    Click("cmdimporter");
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(Shown("cmdimporter"));
    Click("cmdannuler");
    ExpectBefore();
}

TEST_F(FrmOpenTest, TheSearchShowsNamesWithThatPart) {
    for (const char *name : {"NACA2412.dat", "clarky.dat", "naca0012.dat"}) {
        File(name);
    }
    Open();
    EXPECT_EQ(Listed("File1"), (Names{"clarky.dat", "naca0012.dat", "NACA2412.dat"}));
    Type("txtcherche", "aca");
    EXPECT_EQ(Listed("File1"), (Names{"naca0012.dat", "NACA2412.dat"}));
    Type("txtcherche", "ACA2");
    EXPECT_EQ(Listed("File1"), Names{"NACA2412.dat"});
    Type("txtcherche", "none");
    EXPECT_EQ(Listed("File1"), Names{});
    Key("txtcherche", Qt::Key_Escape);
    EXPECT_EQ(Text("txtcherche"), "");
    EXPECT_EQ(Listed("File1").size(), 3U);
    EXPECT_TRUE(IsOpen());
    Key("txtcherche", Qt::Key_Escape);
    ExpectBefore();
}

TEST_F(FrmOpenTest, DownAndReturnLeadFromTheSearchIntoTheList) {
    for (const char *name : {"clarky.dat", "naca0012.dat", "naca2412.dat"}) {
        File(name);
    }
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return}) {
        Open();
        Type("txtcherche", "naca");
        Key("txtcherche", key);
        EXPECT_TRUE(Focused("File1"));
        EXPECT_EQ(Selected(), Names{"naca0012.dat"});
        Rest("naca0012.dat");
        Key("File1", Qt::Key_Down);
        Rest("naca2412.dat");
        Click("cmdannuler");
        programme.rib.CheminProfil.clear();
    }
    Open();
    Type("txtcherche", "none");
    Key("txtcherche", Qt::Key_Return);
    EXPECT_TRUE(IsOpen()); // nothing is opened by it
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(FrmOpenTest, ASearchKeepsTheChosenFileWhileItIsShown) {
    File("clarky.dat");
    File("naca0012.dat");
    Open();
    ClickFile("naca0012.dat");
    Type("txtcherche", "naca");
    EXPECT_EQ(Selected(), Names{"naca0012.dat"});
    EXPECT_NE(Preview(), nullptr);
    Type("txtcherche", "cl");
    EXPECT_EQ(Selected(), Names{});
    EXPECT_EQ(Preview(), nullptr);
    EXPECT_EQ(programme.rib.CheminProfil, "");
}

TEST_F(FrmOpenTest, TheSearchOutlivesAReloadButNotTheFolder) {
    fs::create_directory(folder.Path("lib/inner"));
    File("clarky.dat");
    File("inner/other.dat");
    Open();
    Type("txtcherche", "cla");
    File("clara.dat");
    File("naca0012.dat");
    Key(Qt::Key_F5);
    EXPECT_EQ(Listed("File1"), (Names{"clara.dat", "clarky.dat"}));
    DoubleClick("Dir1", "inner");
    EXPECT_EQ(Text("txtcherche"), "");
    EXPECT_EQ(Listed("File1"), Names{"other.dat"});
}

TEST_F(FrmOpenTest, NothingIsCutBesideAnImportsButton) {
    File("b.dat", TwoLists());
    for (const char *language : {"English", "French"}) {
        for (const double scale : {1.0, 1.5}) {
            const FontScale larger(scale);
            Language(language);
            Open();
            Key("File1", Qt::Key_Down);
            Rest("b.dat");
            ASSERT_TRUE(Shown("cmdimporter"));
            ExpectNothingCut(*window);
            Click("cmdannuler");
        }
    }
}

} // namespace
} // namespace loftwing
