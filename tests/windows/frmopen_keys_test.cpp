// What the airfoil picker reads by itself and what it says of a bad file.

#include "windows/frmopen_fixture.h"

#include <QElapsedTimer>

namespace loftwing {
namespace {

TEST_F(FrmOpenTest, KeysReadAFileOnlyWhereTheSelectionRests) {
    File("a.dat", "\n");
    File("b.dat", "TITLE\n1 0\n0.5\n1 0\n");
    File("c.dat");
    Open();
    Key("File1", Qt::Key_Down);
    Key("File1", Qt::Key_Down);
    Key("File1", Qt::Key_Down);
    QElapsedTimer since;
    since.start();
    QApplication::processEvents();
    EXPECT_EQ(programme.rib.CheminProfil, "");
    Rest("c.dat");
    EXPECT_GE(since.elapsed(), 140); // timers may be early by a twentieth
    EXPECT_EQ(Label("Label1"), "SMALL 5");
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(FrmOpenTest, AClickReadsAtOnce) {
    File("a.dat", "\n");
    File("c.dat");
    Open();
    Key("File1", Qt::Key_Down);
    ClickFile("c.dat");
    EXPECT_EQ(Label("Label1"), "SMALL 5");
}

TEST_F(FrmOpenTest, ARefusalMetByKeysStandsInThePreviewsPlace) {
    File("a.dat");
    File("b.dat", "TITLE\n1 0\n0 0\n0.99 0\n");
    File("c.dat");
    Open();
    ClickFile("a.dat");
    Key("File1", Qt::Key_Down);
    Rest("b.dat");
    EXPECT_EQ(Words(),
              "The list of points does not end at the trailing edge.\nThe last point is not "
              "at x = 1.\nPoint 3, x = 0.99" +
                  kClosing);
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_EQ(Preview(), nullptr);
    EXPECT_EQ(Label("Label1"), "");
    EXPECT_EQ(Label("Label2"), "");
    EXPECT_EQ(Label("nomfile1"), "b");
    EXPECT_FALSE(MayOpen());
    EXPECT_TRUE(view.asked.empty());
    Key("File1", Qt::Key_Down);
    EXPECT_TRUE(MayOpen()); // nothing is known against it
    Rest("c.dat");
    EXPECT_EQ(Words(), "");
    EXPECT_NE(Preview(), nullptr);
    EXPECT_TRUE(MayOpen());
}

TEST_F(FrmOpenTest, WordsInThePreviewsPlaceArePaintedWhole) {
    File("b.dat", "TITLE\n1 0\n0 0\n0.99 0\n");
    Open();
    auto &surface = Find<Apercu>("Surface");
    const QImage clear = surface.grab().toImage();
    Key("File1", Qt::Key_Down);
    Rest("b.dat");
    const QImage told = surface.grab().toImage();
    EXPECT_NE(told, clear);
    for (int y = 0; y < told.height(); ++y) { // nothing reaches the edge
        for (const int x : {4, told.width() - 5}) {
            ASSERT_EQ(told.pixelColor(x, y), clear.pixelColor(x, y)) << x << ", " << y;
        }
    }
    EXPECT_EQ(S(surface.accessibleDescription()), Words());
}

TEST_F(FrmOpenTest, AFailureMetByKeysLeavesTheRib) {
    File("b.dat", "TITLE\n1 0\n0.5\n1 0\n");
    Open();
    Key("File1", Qt::Key_Down);
    Rest("b.dat");
    EXPECT_EQ(Words(), "Error # 5 in Loftwing\nInvalid procedure call or argument: b.dat, Point 2, "
                       "0.5");
    EXPECT_TRUE(platform.boxes.empty());
    EXPECT_TRUE(view.asked.empty());
    EXPECT_FALSE(MayOpen());
    Click("cmdannuler");
    ExpectBefore();
    EXPECT_EQ(programme.rib.NbPoints, 61);
}

TEST_F(FrmOpenTest, AClickOnAFileRefusedBeforeShowsItsBox) {
    File("b.dat", "\n");
    Open();
    Key("File1", Qt::Key_Down);
    Rest("b.dat");
    EXPECT_NE(Words(), "");
    platform.Expect(BoxAnswer::ok);
    ClickFile("b.dat");
    EXPECT_EQ(Words(), "");
    EXPECT_EQ(Label("Label1"), "The first line of the file is empty." + kClosing);
}

TEST_F(FrmOpenTest, ARefusedFileCannotBeOpened) {
    File("a.dat");
    File("bad.dat", "\n");
    Open();
    platform.Expect(BoxAnswer::ok);
    ClickFile("bad.dat");
    EXPECT_FALSE(MayOpen());
    Key("File1", Qt::Key_Return);
    EXPECT_TRUE(IsOpen());
    ClickFile("a.dat");
    EXPECT_TRUE(MayOpen());
    platform.Expect(BoxAnswer::ok);
    ClickFile("bad.dat");
    TypePath(folder.Path("lib/a.dat"));
    EXPECT_TRUE(MayOpen()); // it is the typed one that would be opened
    Click("cmdouvrir");
    ExpectOpened(folder.Path("lib/a.dat"));
}

TEST_F(FrmOpenTest, ADoubleClickOnARefusedFileTellsOnceAndStays) {
    File("bad.dat", "\n");
    Open();
    platform.Expect(BoxAnswer::ok);
    DoubleClick("File1", "bad.dat");
    QApplication::processEvents();
    EXPECT_EQ(platform.boxes.size(), 1U);
    EXPECT_TRUE(IsOpen());
}

TEST_F(FrmOpenTest, OpenTellsOfARefusedFileThatWasNotReadYet) {
    File("bad.dat", "\n");
    Open();
    Key("File1", Qt::Key_Down);
    platform.Expect(BoxAnswer::ok);
    Key("File1", Qt::Key_Return);
    EXPECT_EQ(platform.boxes.size(), 1U);
    EXPECT_TRUE(IsOpen());
    EXPECT_FALSE(MayOpen());
}

TEST_F(FrmOpenTest, AChangedFolderClearsSelectionAndPreview) {
    File("a.dat");
    fs::create_directory(folder.Path("lib/inner"));
    Open();
    ClickFile("a.dat");
    DoubleClick("Dir1", "inner");
    EXPECT_EQ(Preview(), nullptr);
    EXPECT_EQ(programme.rib.CheminProfil, "");
    platform.Expect(BoxAnswer::ok, {.text = "No airfoil file has been chosen."});
    Click("cmdouvrir");
    ExpectBefore();
}

TEST_F(FrmOpenTest, AChangedFolderForgetsARefusalToo) {
    File("b.dat", "\n");
    fs::create_directory(folder.Path("lib/inner"));
    Open();
    Key("File1", Qt::Key_Down);
    Rest("b.dat");
    DoubleClick("Dir1", "inner");
    EXPECT_EQ(Words(), "");
    EXPECT_TRUE(MayOpen());
}

TEST_F(FrmOpenTest, TheLastOpenedFileIsSelectedAgain) {
    File("a.dat");
    File("b.dat", "SECOND\n1 0\n0.5 0.1\n0 0\n0.5 -0.1\n1 0\n");
    Open();
    ClickFile("b.dat");
    Click("cmdouvrir");
    Open();
    EXPECT_EQ(Selected(), Names{"b.dat"});
    Rest("b.dat");
    EXPECT_EQ(Label("Label1"), "SECOND");
    EXPECT_NE(Preview(), nullptr);
    Key("File1", Qt::Key_Up); // from there on
    EXPECT_EQ(Selected(), Names{"a.dat"});
}

TEST_F(FrmOpenTest, TheLastFileOfTheRunBeforeIsSelectedWithItsType) {
    File("a.dat");
    File("b.cor");
    NoteFichierRecent("/elsewhere/c.dat", programme.paths.fichier);
    NoteFichierRecent(folder.Path("lib/a.dat"), programme.paths.fichier);
    NoteFichierRecent(folder.Path("lib/b.cor"), programme.paths.fichier);
    Open();
    EXPECT_EQ(Listed("File1"), Names{"b.cor"});
    EXPECT_EQ(Selected(), Names{"b.cor"});
    EXPECT_EQ(Find<QComboBox>("Combo1").currentIndex(), 1);
}

TEST_F(FrmOpenTest, NothingIsSelectedWhereTheLastFileLiesElsewhere) {
    File("a.dat");
    programme.DernierProfil = "/elsewhere/a.dat";
    Open();
    EXPECT_EQ(Selected(), Names{});
    QTest::qWait(200);
    EXPECT_EQ(programme.rib.CheminProfil, "");
}

TEST_F(FrmOpenTest, ReadingTheFolderAnewKeepsTheSelection) {
    File("b.dat");
    Open();
    ClickFile("b.dat");
    File("a.dat");
    Key(Qt::Key_F5);
    EXPECT_EQ(Listed("File1"), (Names{"a.dat", "b.dat"}));
    EXPECT_EQ(Selected(), Names{"b.dat"});
    Rest("b.dat");
    EXPECT_NE(Preview(), nullptr);
}

} // namespace
} // namespace loftwing
