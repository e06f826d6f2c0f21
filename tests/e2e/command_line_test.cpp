#include "e2e/program.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace loftwing {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

TEST(CommandLine, HelpAndVersionAreAnswered) {
    const Ran help = RunLoftwing({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.out, HasSubstr("loftwing draw FILE... -o OUT"));
    const Ran version = RunLoftwing({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_THAT(version.out, MatchesRegex("loftwing [0-9.]+-F\n"));
    const Ran draw = RunLoftwing({"draw", "--help"});
    EXPECT_EQ(draw.status, 0);
    EXPECT_THAT(draw.out, HasSubstr("--margin-before LENGTH"));
}

TEST(CommandLine, WrongUsageIsStatusTwoWithAReason) {
    const std::string file = Sample("naca2412.dat");
    const std::vector<std::vector<std::string>> wrong = {
        {"draw"},
        {"draw", file},
        {"draw", file, "-o"},
        {"draw", file, "-o", "rib"},
        {"draw", file, "-o", "rib.bmp"},
        {"draw", file, file, "-o", "rib.svg"},
        {"draw", file, "-o", "-"},
        {"draw", file, "-o", "rib.svg", "--colour", "3"},
        {"draw", file, "-o", "rib.svg", "--chord"},
        {"draw", file, "-o", "rib.svg", "--chord", "abc"},
        {"draw", file, "-o", "rib.svg", "--chord", "-5"},
        {"draw", file, "-o", "rib.svg", "--chord", "8.1/2"},
        {"draw", file, "-o", "rib.svg", "--chord", "8", "--chord", "9"},
        {"draw", file, "-o", "rib.svg", "--invert=yes"},
        {"draw", file, "-o", "rib.svg", "--stations", "2.5"},
        {"draw", file, "-o", "rib.svg", "--unit", "cm"},
        {"draw", file, "-o", "rib.svg", "--language", "Klingon"},
        {"draw", file, "-o", "rib.pdf", "--paper", "A9"},
        {"info"},
        {"info", file, "--xml"},
    };
    for (const auto &words : wrong) {
        const Ran ran = RunLoftwing(words);
        std::string line;
        for (const std::string &word : words) {
            line += word + " ";
        }
        EXPECT_EQ(ran.status, 2) << line;
        EXPECT_THAT(ran.err, StartsWith("loftwing: ")) << line;
        EXPECT_EQ(ran.out, "") << line;
    }
}

TEST(CommandLine, AWordThatIsNeitherCommandNorFileIsWrongUsage) {
    // Also where no window could be shown: a script must see its mistake.
    const std::string program =
        "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM " + ShellWord(ProgramTried());
    for (const std::string words : {"frob", "darw naca2412.dat -o rib.svg", "/nowhere/rib.lfw"}) {
        const Ran ran = RunShell(program + " " + words);
        EXPECT_EQ(ran.status, 2) << words;
        EXPECT_EQ(ran.err, "loftwing: no command \"" + words.substr(0, words.find(' ')) +
                               "\", and no file of that name (see loftwing --help)\n");
        EXPECT_EQ(ran.out, "") << words;
    }
    if (IsForeign()) {
        GTEST_SKIP() << "it has a window to open";
    }
    // A file of that name is one for the window.
    const TempFolder folder;
    const std::string file = folder.File("frob", "");
    EXPECT_EQ(RunShell("cd " + ShellWord(folder.Path()) + " && " + program + " frob").status, 1);
}

TEST(CommandLine, WithoutADisplayTheWindowSaysSo) {
    if (IsForeign()) {
        GTEST_SKIP() << "it has one";
    }
    const Ran ran = RunShell("env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM " +
                             ShellWord(ProgramTried()) + " " + ShellWord(Sample("naca2412.dat")));
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, StartsWith("loftwing: no display"));
}

TEST(CommandLine, NeitherReadsNorWritesTheUsersSettings) {
    const TempFolder folder;
    const Ran ran = RunShell("XDG_CONFIG_HOME=" + ShellWord(folder.Path()) +
                             " HOME=" + ShellWord(folder.Path()) + " " + ShellWord(ProgramTried()) +
                             " draw " + ShellWord(Sample("naca2412.dat")) + " --to svg -o -");
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(Info, JsonHoldsTheFactsOfEachFile) {
    const Ran ran = RunLoftwing(
        {"info", "--json", Sample("naca2412.dat"), Sample("naca0012.dat"), "--stations"});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(std::count(ran.out.begin(), ran.out.end(), '\n'), 2);
    for (const char *key :
         {"file", "title", "points", "contour", "upper", "lower", "thickness", "thicknessCount",
          "camber", "camberCount", "top", "bottom", "upperHeights", "lowerHeights"}) {
        EXPECT_THAT(ran.out, HasSubstr(std::string("\"") + key + "\": ")) << key;
    }
}

TEST(Info, ARefusedFileSaysWhyAndTheOthersGoOn) {
    const TempFolder folder;
    const std::string bad = folder.File("bad \"x\".dat", "Title\n0.5 0.1\n1.0 0.0\n");
    const std::string few = folder.File("few.dat", "Few\n1 0\n0 0\n1 0\n");
    const Ran ran = RunLoftwing(
        {"info", "--json", bad, folder.Path("missing.dat"), few, Sample("naca0012.dat")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(std::count(ran.out.begin(), ran.out.end(), '\n'), 4) << ran.out;
    EXPECT_THAT(ran.out, HasSubstr("bad \\\"x\\\".dat\", \"refused\": \""));
    EXPECT_THAT(ran.out, HasSubstr("File not found"));
    EXPECT_THAT(ran.out, HasSubstr("\"thickness\": 0.120"));
    // Readable lines have no place for the name of a file that has none.
    const Ran readable = RunLoftwing({"info", few, Sample("naca0012.dat")});
    EXPECT_THAT(readable.err, HasSubstr("loftwing: " + few + " was refused\n"));
}

TEST(Info, ReadableLinesNameTheAirfoil) {
    const Ran ran = RunLoftwing({"info", Sample("naca2412.dat")});
    EXPECT_EQ(ran.status, 0);
    EXPECT_THAT(ran.out, HasSubstr("title: NACA 2412"));
}

} // namespace
} // namespace loftwing
