// A wing panel between two rib files, made by the built program.

#include "base/whole_file.h"
#include "e2e/tapered_panel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

using PanelVerb = TaperedPanel;

TEST_F(PanelVerb, WritesEveryRibAsAFileThatDraws) {
    const std::string out = folder.Path("wing");
    const Ran ran = Panel({"--count", "2", "-o", out});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(ran.err, IsEmpty());
    EXPECT_THAT(ran.out, AllOf(HasSubstr(out + "/naca0012&naca0012R03.lfw\n"),
                               HasSubstr(out + "/naca0012&naca0012_240_120_4.txt\n")));
    // The airfoils are those of the verb that makes them alone.
    const std::string apart = folder.Path("apart");
    const std::string airfoil = LOFTWING_SOURCE_DIR "/resources/airfoils/naca0012.dat";
    ASSERT_EQ(RunLoftwing(
                  {"ribs", airfoil, airfoil, "--chords", "240", "120", "--count", "2", "-o", apart})
                  .status,
              0);
    for (const char *name : {"/naca0012&naca0012R01.dat", "/naca0012&naca0012R02.dat",
                             "/naca0012&naca0012R03.dat", "/naca0012&naca0012R04.dat"}) {
        EXPECT_EQ(ReadWholeFile(out + name), ReadWholeFile(apart + name)) << name;
    }
    const Ran cut =
        RunLoftwing({"cut", out + "/naca0012&naca0012R03.lfw", "-o", folder.Path("rib.dxf")});
    EXPECT_EQ(cut.status, 0) << cut.err;
    EXPECT_THAT(ReadWholeFile(out + "/naca0012&naca0012R03.lfw"), HasSubstr("\r\n48\r\n4.667\r\n"));
}

TEST_F(PanelVerb, DryRunPrintsRibsAndWritesNothing) {
    const Ran ran =
        Panel({"--count", "2", "--length", "500", "--thickness", "2", "--first", "5", "--dry-run"});
    EXPECT_EQ(ran.status, 0) << ran.err;
    // (500 - 4 * 2) / 3
    EXPECT_THAT(ran.out, StartsWith("Rib spacing: 164 mm\nRib 5: naca0012&naca0012R01.lfw, Chord : "
                                    "240 mm, spar 1: 72 (6 x 3)\n"));
    EXPECT_THAT(ran.out, HasSubstr("Rib 7: naca0012&naca0012R03.lfw, Chord : 160.00 mm, spar 1: 48 "
                                   "(4.667 x 3)\n"));
    EXPECT_THAT(ran.out, HasSubstr("spar 1 bows by at most 0 mm, in the upper surface, at rib"));
    EXPECT_FALSE(fs::exists("naca0012&naca0012R01.lfw"));
}

TEST_F(PanelVerb, VariableSpacingSharesByTheDistance) {
    const Ran ran = Panel({"--gaps", "97", "197", "--thickness", "3", "3", "3", "--dry-run"});
    EXPECT_EQ(ran.status, 0) << ran.err;
    // The middle rib stands at a third: 240 - 40, 72 - 12.
    EXPECT_THAT(ran.out, HasSubstr("Rib 2: naca0012&naca0012R02.lfw, Chord : 200.00 mm, spar 1: 60 "
                                   "(5.333 x 3)\n"));
}

TEST_F(PanelVerb, WarningsKeepItFromWritingUnlessYes) {
    root.sheeting = "2";
    const std::string out = folder.Path("wing");
    Ran ran = Panel({"--count", "2", "-o", out});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, AllOf(HasSubstr("sheeting 2 at the root, 1.5 at the tip: "),
                               HasSubstr("Nothing was written because of the warnings")));
    EXPECT_FALSE(fs::exists(out));
    ran = Panel({"--count", "2", "-o", out, "--yes"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_TRUE(fs::exists(out + "/naca0012&naca0012R04.lfw"));
}

TEST_F(PanelVerb, FilesThatExistAreAskedAbout) {
    const std::string out = folder.Path("wing");
    ASSERT_EQ(Panel({"--count", "2", "-o", out}).status, 0);
    WriteWholeFile(out + "/naca0012&naca0012R02.lfw", "mine");
    EXPECT_EQ(Panel({"--count", "2", "-o", out}).status, 1);
    EXPECT_EQ(ReadWholeFile(out + "/naca0012&naca0012R02.lfw"), "mine");
    EXPECT_EQ(Panel({"--count", "2", "-o", out, "--yes"}).status, 0);
    EXPECT_THAT(ReadWholeFile(out + "/naca0012&naca0012R02.lfw"), StartsWith("LFW V3.0"));
}

TEST_F(PanelVerb, ADamagedNumberOfAPanelFileIsTold) {
    const std::string file = folder.Path("wing.lfp");
    ASSERT_EQ(Panel({"--count", "2", "--length", "500", "--thickness", "2", "-o", folder.Path("a"),
                     "--save", file})
                  .status,
              0);
    const std::string good = ReadWholeFile(file);
    const auto with = [&](const std::string &line, const std::string &other) {
        std::string text = good;
        text.replace(text.find(line), line.size(), other);
        WriteWholeFile(file, text);
        return RunLoftwing(
            {"panel", file, "--airfoils", LOFTWING_SOURCE_DIR "/resources/airfoils", "--dry-run"});
    };
    for (const auto &[line, other] :
         {std::pair("Count=2", "Count=xyz"), std::pair("Length=500", "Length=abc"),
          std::pair("Thickness=2", "Thickness=zz")}) {
        const Ran ran = with(line, other);
        EXPECT_EQ(ran.status, 1) << other;
        EXPECT_THAT(ran.err,
                    HasSubstr(std::string(other).substr(std::string(other).find('=') + 1)));
        EXPECT_EQ(ran.out, "");
    }
    const Ran thick = with("Length=500", "Length=5");
    EXPECT_THAT(thick.err, HasSubstr("thicker than the panel is long"));
    EXPECT_THAT(thick.out, Not(HasSubstr("Rib spacing")));
}

TEST_F(PanelVerb, ARefusalNamesRibAndElement) {
    root.spars[0][0] = "0";
    Ran ran = Panel({"--count", "2", "--dry-run"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("spar1: it stands at one end only"));
    ran = Panel({"--count", "2", "--dry-run", "--range", "spar1=3-4"});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(ran.out, HasSubstr("Rib 2: naca0012&naca0012R02.lfw, Chord : 200.00 mm\n"));
    root.chord = "100"; // shorter than the tip's
    ran = Panel({"--count", "2", "--range", "spar1=3-4", "-o", folder.Path("wing")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_FALSE(fs::exists(folder.Path("wing")));
}

TEST_F(PanelVerb, APanelFileKeepsTheSettings) {
    const std::string saved = folder.Path("wing.lfp");
    const Ran first =
        Panel({"--count", "2", "--first", "4", "--range", "spar1=1-3", "--save", saved});
    EXPECT_EQ(first.status, 0) << first.err;
    const std::string airfoils = LOFTWING_SOURCE_DIR "/resources/airfoils";
    const Ran again = RunLoftwing({"panel", saved, "--airfoils", airfoils, "--dry-run"});
    EXPECT_EQ(again.status, 0) << again.err;
    EXPECT_EQ(again.out,
              Panel({"--count", "2", "--first", "4", "--range", "spar1=1-3", "--dry-run"}).out);
    const Ran more =
        RunLoftwing({"panel", saved, "--airfoils", airfoils, "--dry-run", "--count", "4"});
    EXPECT_THAT(more.out, HasSubstr("Rib 9: naca0012&naca0012R06.lfw, Chord : 120 mm\n"));
    const Ran inches =
        RunLoftwing({"panel", saved, "--airfoils", airfoils, "--dry-run", "--unit", "in"});
    EXPECT_EQ(inches.status, 2);
    EXPECT_THAT(inches.err, HasSubstr("is in mm: add --unit mm"));
}

TEST_F(PanelVerb, TheSampleWingIsMadeWithoutAWarning) {
    const std::string wing = LOFTWING_SOURCE_DIR "/resources/samples/wing/wing.lfp";
    const Ran ran =
        RunLoftwing({"panel", wing, "-o", folder.Path("ribs"), "--sheet", "100x1000", "--copies",
                     "2", "--mirror", "--to", "dxf", "--drawings", folder.Path("ribs.pdf")});
    EXPECT_EQ(ran.status, 0);
    EXPECT_THAT(ran.err, IsEmpty());
    EXPECT_TRUE(fs::exists(folder.Path("ribs/naca2412&naca2412R08.lfw")));
    EXPECT_THAT(ReadWholeFile(folder.Path("ribs.pdf")), StartsWith("%PDF"));
    // Eight ribs for each wing, each with its number and its wing.
    const std::string sheet = ReadWholeFile(folder.Path("ribs/sheet-1.dxf"));
    for (const char *label : {"  1 L\r\n", "  1 R\r\n", "  8 L\r\n", "  8 R\r\n"}) {
        EXPECT_THAT(sheet, HasSubstr(label));
    }
    EXPECT_THAT(ran.out, HasSubstr("sheet 1: 100 x 1000 mm, 16 pieces, "));
}

TEST_F(PanelVerb, APieceWithoutRoomKeepsEverythingFromBeingWritten) {
    const std::string out = folder.Path("wing");
    const Ran ran = Panel({"--count", "2", "-o", out, "--sheet", "100x200"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("naca0012&naca0012R01.lfw"));
    EXPECT_FALSE(fs::exists(out));
    // 92 ribs a thousand times are more than are nested.
    EXPECT_EQ(Panel({"--count", "90", "-o", out, "--sheet", "100x1000", "--copies", "1000"}).status,
              1);
    EXPECT_EQ(Panel({"--count", "2", "-o", out, "--gap", "2"}).status, 2);
    EXPECT_EQ(Panel({"--count", "2", "-o", out, "--sheet", "100"}).status, 2);
}

TEST_F(PanelVerb, WrongWordsAreToldBeforeAnythingIsRead) {
    const std::vector<std::vector<std::string>> wrong = {
        {"-o", "x"},
        {"--count", "2"},
        {"--count", "2", "-o", "-"},
        {"--count", "2", "--gaps", "1", "2", "-o", "x"},
        {"--gaps", "1", "2", "-o", "x"},
        {"--gaps", "1", "2", "--thickness", "1", "1", "-o", "x"},
        {"--count", "2", "--thickness", "1", "1", "-o", "x"},
        {"--count", "x", "-o", "x"},
        {"--count", "2", "-o", "x", "--range", "spar1"},
        {"--count", "2", "-o", "x", "--range", "spar1=2"},
        {"--count", "2", "-o", "x", "--range", "rib=1-2"},
        {"--count", "2", "-o", "x", "--first", "0"}};
    for (const auto &words : wrong) {
        EXPECT_EQ(Panel(words).status, 2) << testing::PrintToString(words);
    }
    EXPECT_EQ(RunLoftwing({"panel", "a.dat", "b.dat", "--count", "2", "-o", "x"}).status, 2);
}

} // namespace
} // namespace loftwing
