// Opening rib components files in the main window, when something is wrong with them.

#include "support/ordinary_user.h"
#include "windows/frmmain_files_fixture.h"

#include <gmock/gmock.h>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

TEST_F(RibFiles, AMissingAirfoilGivesTwoBoxesAndAResetRib) {
    ComponentsText file;
    file.airfoil = "unknown.dat";
    file.text = "words";
    file.inverted = "1";
    world.window->OuvreFichier(WindowWorld::Sample("naca0012.dat"));
    Rib().Modifie = false;
    world.platform.Expect(
        BoxAnswer::ok,
        {.text = "The airfoil of this rib was not found : unknown.dat\n"
                 " It was searched in the airfoil folders, with all that is below them : \n" +
                 world.folder.Path("airfoils") + " and " + world.folder.Path("sets") +
                 "\n Then in the folder of the rib file : \n" + world.folder.Path("ribs"),
         .title = "Open rib components"});
    ExpectReport(0, "");
    OpenBytes("rib.lfw", file.Current());
    ASSERT_EQ(world.platform.boxes.size(), 2U);
    for (const MessageBox &box : world.platform.boxes) {
        EXPECT_EQ(box.icon, BoxIcon::information);
    }
    EXPECT_EQ(world.platform.boxes[0].buttons, BoxButtons::locate_cancel);
    EXPECT_EQ(world.platform.boxes[1].buttons, BoxButtons::ok);
    ExpectResetRib();
    ExpectAlive();
}

TEST_F(RibFiles, ANameWithAPathInItIsNotFound) {
    Airfoil("elsewhere/naca2412.dat");
    ComponentsText file;
    for (const std::string &name :
         {std::string("../elsewhere/naca2412.dat"), world.folder.Path("elsewhere/naca2412.dat"),
          std::string("..\\elsewhere\\naca2412.dat")}) {
        file.airfoil = name;
        world.platform.Expect(BoxAnswer::ok);
        world.platform.Expect(BoxAnswer::ok);
        OpenBytes("rib.lfw", file.Current());
        ExpectResetRib();
    }
}

TEST_F(RibFiles, AFileThatIsTooShortIsReportedOnceAndStaysAsItIs) {
    ComponentsText::Lines lines = LadenRib("1", false).CurrentLines();
    for (const std::size_t count : {1U, 12U, 25U, 60U}) {
        const ComponentsText::Lines part(lines.begin(),
                                         lines.begin() + static_cast<std::ptrdiff_t>(count));
        ExpectReport(62, "Input past end of file");
        OpenBytes("short.lfw", ComponentsText::Bytes(part));
        ExpectResetRib();
        EXPECT_EQ(world.folder.Bytes("ribs/short.lfw"), ComponentsText::Bytes(part));
    }
    EXPECT_EQ(world.platform.boxes.size(), 4U);
    ExpectAlive();
}

TEST_F(RibFiles, DamagedFilesAreReportedOnceAndStayAsTheyAre) {
    ComponentsText::Lines spars = ComponentsText{}.CurrentLines();
    spars.at(17) = " 200 ";
    spars.insert(spars.begin() + 18, 5000, "0");
    ComponentsText::Lines behind = ComponentsText{}.CurrentLines();
    behind.emplace_back("one line more"); // the whole counts as of the older format then
    ComponentsText::Lines wide = ComponentsText{}.CurrentLines();
    wide.at(6) = "9" + std::string(400, '9');
    std::string binary;
    for (int i = 0; i < 20000; ++i) {
        binary += static_cast<char>(i * 7919 >> 3);
    }
    const std::vector<std::string> damaged = {
        ComponentsText::Bytes(spars), ComponentsText::Bytes(behind),
        ComponentsText::Bytes(wide),  binary,
        std::string(5000, '\0'),      std::string(3000, '\n'),
        std::string(100000, 'x')};
    for (std::size_t i = 0; i < damaged.size(); ++i) {
        const std::size_t before = world.platform.boxes.size();
        world.platform.Expect(BoxAnswer::ok, {.text = testing::StartsWith("Error # "),
                                              .title = "Error LireEcrire/newLfw"});
        OpenBytes("damaged.lfw", damaged[i]);
        EXPECT_EQ(world.platform.boxes.size(), before + 1) << i;
        ExpectResetRib();
        EXPECT_TRUE(world.folder.Bytes("ribs/damaged.lfw") == damaged[i]) << i;
    }
    ExpectAlive();
}

TEST_F(RibFiles, WhatIsNoFileIsReported) {
    fs::create_directories(world.folder.Path("ribs/folder.lfw"));
    ExpectReport(75, "Path/file access error: " + world.folder.Path("ribs/folder.lfw"));
    Open(world.folder.Path("ribs/folder.lfw"));
    ExpectReport(53, "File not found: " + world.folder.Path("ribs/none.lfw"));
    Open(world.folder.Path("ribs/none.lfw"));
    ExpectResetRib();
    ExpectAlive();
}

TEST_F(RibFiles, AnEmptyFileNamesNoAirfoil) {
    world.platform.Expect(
        BoxAnswer::ok,
        {.text = "The airfoil of this rib was not found : .\n"
                 " It was searched in the airfoil folders, with all that is below them : \n" +
                 world.folder.Path("airfoils") + " and " + world.folder.Path("sets") +
                 "\n Then in the folder of the rib file : \n" + world.folder.Path("ribs"),
         .title = "Open rib components"});
    ExpectReport(0, "");
    OpenBytes("empty.lfw", "");
    ExpectResetRib();
    EXPECT_EQ(world.folder.Bytes("ribs/empty.lfw"), "");
}

/// What becomes of an older file on disk: what it doesn't hold stands as a new rib has it, and its
/// record ends in lines that were empty there.
std::string Rewritten(const ComponentsText &older, const std::string &cut) {
    ComponentsText current = older;
    current.cut = cut;
    for (ComponentsText::Lines &spar : current.spars) {
        spar[6] = "0";
        spar[7] = "0";
        spar[8] = "";
    }
    for (ComponentsText::Lines &hole : current.holes) {
        hole[4] = "0";
        hole[5] = "0";
        hole[6] = "0";
        hole[7] = "";
    }
    current.inverted = "0";
    current.heel_front = "0";
    current.heel_back = "0";
    current.intra = "0";
    current.extra = "0#0";
    return current.Current();
}

TEST_F(RibFiles, AnOlderFileIsRewrittenAtOnceAndThenReadByTheCurrentReader) {
    const ComponentsText file = LadenRib("1", false);
    OpenBytes("old.lfw", file.Older());
    EXPECT_EQ(Caption(), "Loftwing Rib : old.lfw Airfoil : naca2412");
    EXPECT_EQ(Rib().cordeAfich, "170");
    EXPECT_EQ(Rib().NbLongeron, 4);
    EXPECT_NE(Drawing(), nullptr);
    // Its number is taken, its text isn't.
    EXPECT_EQ(Rib().bloc.CoupeBF, 1.0F);
    EXPECT_EQ(world.folder.Bytes("ribs/old.lfw"), Rewritten(file, "0"));
    Open(world.folder.Path("ribs/old.lfw"));
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(world.folder.Bytes("ribs/old.lfw"), Rewritten(file, "0")); // untouched now
}

TEST_F(RibFiles, AnOlderFileIsRewrittenEvenWhenItsAirfoilIsMissing) {
    ComponentsText file = LadenRib("0", false);
    file.airfoil = "unknown.dat";
    world.platform.Expect(BoxAnswer::ok);
    world.platform.Expect(BoxAnswer::ok);
    OpenBytes("old.lfw", file.Older());
    ExpectResetRib();
    EXPECT_EQ(world.folder.Bytes("ribs/old.lfw"), Rewritten(file, "0"));
}

TEST_F(RibFiles, AnOlderFileThatIsTooShortIsNotRewritten) {
    ComponentsText::Lines lines = LadenRib("1", false).OlderLines();
    lines.pop_back();
    ExpectReport(62, "Input past end of file");
    OpenBytes("old.lfw", ComponentsText::Bytes(lines));
    ExpectResetRib();
    EXPECT_EQ(world.folder.Bytes("ribs/old.lfw"), ComponentsText::Bytes(lines));
}

TEST_F(RibFiles, AnOlderFileThatMayNotBeWrittenIsReportedAndStaysAsItIs) {
    const std::string bytes = ComponentsText{}.Older();
    const std::string path = world.folder.File("ribs/old.lfw", bytes);
    fs::permissions(world.folder.Path("ribs"), fs::perms::all);
    fs::permissions(path, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    {
        const OrdinaryUser user;
        ExpectReport(70, "Permission denied: " + path);
        Open(path);
    }
    ExpectResetRib();
    EXPECT_EQ(world.folder.Bytes("ribs/old.lfw"), bytes);
    EXPECT_EQ(std::distance(fs::directory_iterator(world.folder.Path("ribs")), {}), 1);
    ExpectAlive();
}

TEST_F(RibFiles, AnAirfoilThatIsRefusedEndsTheOpeningWithTheReadersOwnBox) {
    world.folder.File("airfoils/bad.dat", "Title\n0.5 0.1\n1.0 0.0\n");
    ComponentsText file;
    file.airfoil = "bad.dat";
    world.window->OuvreFichier(WindowWorld::Sample("naca0012.dat"));
    Rib().Modifie = false;
    world.platform.Expect(BoxAnswer::ok, {.title = "Open airfoil file"});
    OpenBytes("rib.lfw", file.Current());
    EXPECT_EQ(world.platform.boxes.size(), 1U);
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_EQ(Drawing(), nullptr);
    EXPECT_EQ(Caption(), "Loftwing");
    EXPECT_EQ(world.platform.pointer, Pointer::normal);
    ExpectAlive();
}

TEST_F(RibFiles, AFailureOfTheAirfoilsReadingIsToldUnderItsOwnLabel) {
    // A line without a blank in the middle.
    world.folder.File("airfoils/bad.dat", "Title\n1.0 0.0\n0.5\n1.0 0.0\n");
    ComponentsText file;
    file.airfoil = "bad.dat";
    world.platform.Expect(BoxAnswer::ok,
                          {.text = "Error # 5 in Loftwing\nInvalid procedure call or argument: "
                                   "bad.dat, Point 2, 0.5",
                           .title = " Open/FichierLecture"});
    OpenBytes("rib.lfw", file.Current());
    EXPECT_EQ(world.platform.boxes.size(), 1U);
    ExpectResetRib();
    ExpectAlive();
}

TEST_F(RibFiles, ValuesThatCannotBeDrawnAreReportedByThePlotAndCostTheRib) {
    ComponentsText file;
    file.spars = {{"900", "5", "3", "1", "1", "1", "0", "0", "0"}};
    for (const char *chord : {"200", "0"}) {
        file.chord = chord;
        world.platform.Expect(BoxAnswer::ok, {.title = testing::HasSubstr("Main/PrintSubroutine")});
        const std::string path = OpenBytes("rib.lfw", file.Current());
        ExpectResetRib();
        EXPECT_EQ(ReadWholeFile(path), file.Current());
    }
    ExpectAlive();
}

TEST(RibFilesInInches, LengthsThatAreNoneAreToldInOneBox) {
    WindowWorld world("English", "in");
    world.folder.File("airfoils/naca2412.dat", ReadWholeFile(WindowWorld::Sample("naca2412.dat")));
    ComponentsText file;
    file.chord = "8";
    for (std::string *length : {&file.sheeting, &file.edge, &file.notch, &file.ramp, &file.intra}) {
        *length = "2./8";
    }
    world.platform.Expect(BoxAnswer::ok, {.title = "Enter error"});
    world.Open().OuvreFichier(world.folder.File("rib.lfw", file.Current()));
    EXPECT_EQ(world.platform.boxes.size(), 1U);
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
    EXPECT_EQ(world.programme.rib.EpCoffrageAfich, "2./8"); // as it stands in the file
    EXPECT_EQ(world.programme.rib.EpCoffrage, 0.0F);
    EXPECT_EQ(world.programme.rib.talon.TalonIntra, 0.0);
}

} // namespace
} // namespace loftwing
