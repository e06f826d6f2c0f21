#include "base/whole_file.h"
#include "e2e/program.h"
#include "e2e/svg_lines.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace loftwing {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// The nose of a cambered airfoil reaches a little in front of x = 0; mm.
constexpr double kNose = 0.05;
constexpr const char *kFive = "Five: 80\n1 0\n0.5 0.1\n0 0\n0.5 -0.04\n1 0\n";

/// The widest run of lines of a colour: from its least to its greatest x.
double Width(const std::vector<SvgPath> &paths, const std::string &stroke) {
    double left = 1e9;
    double right = -1e9;
    for (const SvgPath &path : paths) {
        for (const auto &point : path.points) {
            if (path.stroke == stroke) {
                left = std::min(left, point.x);
                right = std::max(right, point.x);
            }
        }
    }
    return right - left;
}

TEST(CompareVerb, DrawsBothAirfoilsAtOneChord) {
    const TempFolder folder;
    const std::string out = folder.Path("both.svg");
    const std::string five = folder.File("five.dat", ReadWholeFile(Sample("naca0012.dat")));
    const Ran ran = RunLoftwing({"compare", five, Sample("naca2412.dat"), "-o", out});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.err, "");
    const std::string svg = ReadWholeFile(out);
    const auto paths = PathsOf(svg);
    EXPECT_NEAR(Width(paths, "#800080"), 200, kNose);
    EXPECT_NEAR(Width(paths, "#0000ff"), 200, kNose);
    EXPECT_NEAR(Width(paths, "#ff0000"), 200 + 2 / 56.7, 0.001);
    EXPECT_THAT(svg, HasSubstr("Airfoil #1 : five"));
    EXPECT_THAT(svg, HasSubstr("Airfoil #2 : naca2412"));
}

TEST(CompareVerb, TakesAChordAndLeavesTheReferenceLineOut) {
    const std::vector<std::string> words = {"compare",
                                            Sample("naca0012.dat"),
                                            Sample("naca2412.dat"),
                                            "--to",
                                            "svg",
                                            "-o",
                                            "-",
                                            "--chord",
                                            "90",
                                            "--no-reference-line"};
    const Ran ran = RunLoftwing(words);
    ASSERT_EQ(ran.status, 0) << ran.err;
    const auto paths = PathsOf(ran.out);
    EXPECT_NEAR(Width(paths, "#0000ff"), 90, kNose);
    EXPECT_LT(Width(paths, "#ff0000"), 0);
}

TEST(CompareVerb, ATitlesChordDoesNotCount) {
    const TempFolder folder;
    std::string text = ReadWholeFile(Sample("naca2412.dat"));
    text.replace(0, text.find_first_of("\r\n"), "Root: 150");
    const std::string titled = folder.File("titled.dat", text);
    for (const auto &[first, second] :
         {std::pair(titled, Sample("naca0012.dat")), std::pair(Sample("naca0012.dat"), titled)}) {
        const Ran ran = RunLoftwing({"compare", first, second, "--to", "svg", "-o", "-"});
        ASSERT_EQ(ran.status, 0) << ran.err;
        EXPECT_NEAR(Width(PathsOf(ran.out), "#800080"), 200, kNose);
    }
}

TEST(CompareVerb, HasPngAndPdf) {
    const TempFolder folder;
    for (const char *form : {"png", "pdf"}) {
        const std::string out = folder.Path(std::string("both.") + form);
        const Ran ran =
            RunLoftwing({"compare", Sample("naca0012.dat"), Sample("naca2412.dat"), "-o", out});
        EXPECT_EQ(ran.status, 0) << ran.err;
        EXPECT_GT(ReadWholeFile(out).size(), 1000U);
    }
}

TEST(CompareVerb, WrongUsageAndRefusalsLeaveNoFile) {
    const TempFolder folder;
    const std::string out = folder.Path("both.svg");
    const std::string good = Sample("naca0012.dat");
    const std::string bad = folder.File("bad.dat", "Title\n0.5 0.1\n1.0 0.0\n");
    EXPECT_EQ(RunLoftwing({"compare", good, "-o", out}).status, 2);
    EXPECT_EQ(RunLoftwing({"compare", good, good, good, "-o", out}).status, 2);
    EXPECT_EQ(RunLoftwing({"compare", good, good, "-o", folder.Path("both.dxf")}).status, 2);
    EXPECT_EQ(RunLoftwing({"compare", good, good, "-o", out, "--invert"}).status, 2);
    const Ran refused = RunLoftwing({"compare", good, bad, "-o", out});
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.err, HasSubstr("loftwing: " + bad + " was refused\n"));
    const Ran unwritable = RunLoftwing({"compare", good, good, "-o", "/nowhere/both.svg"});
    EXPECT_EQ(unwritable.status, 1);
    EXPECT_THAT(unwritable.err, HasSubstr("/nowhere/both.svg"));
    EXPECT_THAT(unwritable.err, Not(HasSubstr(good)));
    EXPECT_EQ(RunLoftwing({"compare", good, good, "-o", out, "--chord", "0"}).status, 1);
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(PlotVerb, DrawsTheBarePointsAtTheTitlesChord) {
    const TempFolder folder;
    const std::string five = folder.File("five.dat", kFive);
    const Ran ran = RunLoftwing({"plot", five, "--to", "svg", "-o", "-", "--no-reference-line"});
    ASSERT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.err, "");
    const auto paths = PathsOf(ran.out);
    ASSERT_EQ(paths.size(), 1U);
    ASSERT_EQ(paths[0].points.size(), 5U);
    EXPECT_NEAR(paths[0].points[0].x, 85, 0.001);
    EXPECT_NEAR(paths[0].points[0].y, 15 + 8, 0.001);
    EXPECT_NEAR(paths[0].points[1].y, 15, 0.001);
    EXPECT_NEAR(paths[0].points[3].y, 15 + 8 + 3.2, 0.001);
}

TEST(PlotVerb, InvertsAndTakesAnotherChord) {
    const TempFolder folder;
    const std::string five = folder.File("five.dat", kFive);
    const Ran ran = RunLoftwing({"plot", five, "--to", "svg", "-o", "-", "--no-reference-line",
                                 "--invert", "--chord", "100"});
    ASSERT_EQ(ran.status, 0) << ran.err;
    const auto paths = PathsOf(ran.out);
    ASSERT_EQ(paths.size(), 1U);
    EXPECT_NEAR(paths[0].points[1].y, 15 + 4 + 10, 0.001);
    EXPECT_NEAR(paths[0].points[3].y, 15, 0.001);
}

TEST(PlotVerb, SeveralFilesGoToAFolder) {
    const TempFolder folder;
    const std::string bad = folder.File("bad.dat", "Title\n0.5 0.1\n1.0 0.0\n");
    const Ran ran = RunLoftwing({"plot", Sample("naca0012.dat"), bad, Sample("naca2412.dat"),
                                 "--to", "pdf", "-o", folder.Path("out/")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_TRUE(std::filesystem::exists(folder.Path("out/naca0012.pdf")));
    EXPECT_TRUE(std::filesystem::exists(folder.Path("out/naca2412.pdf")));
    EXPECT_FALSE(std::filesystem::exists(folder.Path("out/bad.pdf")));
}

TEST(PlotVerb, DxfIsTwoLinesInBothForms) {
    const TempFolder folder;
    const std::string five = folder.File("five.dat", kFive);
    const std::string out = folder.Path("five.dxf");
    ASSERT_EQ(RunLoftwing({"plot", five, "-o", out}).status, 0);
    const std::string dxf = ReadWholeFile(out);
    EXPECT_THAT(dxf, HasSubstr("POLYLINE"));
    const Ran inverted = RunLoftwing({"plot", five, "-o", folder.Path("i.dxf"), "--invert"});
    EXPECT_EQ(inverted.status, 1);
    EXPECT_FALSE(std::filesystem::exists(folder.Path("i.dxf")));
    const Ran plain = RunLoftwing({"plot", five, "-o", folder.Path("p.dxf"), "--dxf", "plain"});
    EXPECT_EQ(plain.status, 0) << plain.err;
    // Read back by somebody else's program.
    const Ran facts =
        RunShell("/usr/bin/python3 -c 'import sys, ezdxf\n"
                 "for name in sys.argv[1:]:\n"
                 "    lines = list(ezdxf.readfile(name).modelspace())\n"
                 "    print(sorted(set(e.dxf.layer.upper() for e in lines)), len(lines))' " +
                 ShellWord(folder.Path("p.dxf")));
    EXPECT_EQ(facts.out, "['AXIS', 'LAYER01'] 5\n") << facts.err;
}

TEST(ModifyVerb, WritesTheNewAirfoil) {
    const TempFolder folder;
    const std::string out = folder.Path("new.dat");
    const Ran ran = RunLoftwing(
        {"modify", Sample("naca2412.dat"), "--thickness", "9", "--camber", "3.5", "-o", out});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.out + ran.err, "");
    const std::string text = ReadWholeFile(out);
    EXPECT_THAT(text, StartsWith("naca2412  thickness 9.00% camber 3.50%\r\n1.000  0 \r\n0.990 "));
    EXPECT_THAT(text, testing::EndsWith("\r\n1.000  0 \r\nBy Loftwing\r\n"));
    const Ran info = RunLoftwing({"info", out});
    EXPECT_THAT(info.out, testing::ContainsRegex("thickness: (8.999|9)"));
    EXPECT_THAT(info.out, testing::ContainsRegex("camber: 3.(499|5)"));
    const Ran same = RunLoftwing(
        {"modify", Sample("naca2412.dat"), "--thickness", "9", "--camber", "3.5", "-o", "-"});
    EXPECT_EQ(same.out, text);
}

TEST(ModifyVerb, WithoutACamberThatStays) {
    const Ran ran = RunLoftwing({"modify", Sample("naca2412.dat"), "--thickness", "6", "-o", "-"});
    ASSERT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(ran.out, StartsWith("naca2412  thickness 6.00% camber 2.00%\r\n"));
}

TEST(ModifyVerb, ACamberAskedOfASymmetricalAirfoilIsSaidAndTheThicknessApplied) {
    const Ran ran = RunLoftwing(
        {"modify", Sample("naca0012.dat"), "--thickness", "9", "--camber", "2", "-o", "-"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_THAT(ran.err, HasSubstr("symmetrical"));
    EXPECT_THAT(ran.out, StartsWith("naca0012  thickness 9.00% camber 0.00%\r\n"));
}

TEST(ModifyVerb, RefusalsAndWrongUsageWriteNothing) {
    const TempFolder folder;
    const std::string out = folder.Path("new.dat");
    const std::string file = Sample("naca2412.dat");
    const auto status = [&](std::vector<std::string> words) {
        words.insert(words.begin(), {"modify", file, "-o", out});
        return RunLoftwing(words).status;
    };
    EXPECT_EQ(status({"--thickness", "0"}), 1);
    EXPECT_EQ(status({"--thickness", "100.5"}), 1);
    EXPECT_EQ(status({"--thickness", "9", "--camber", "99.5"}), 1);
    EXPECT_EQ(status({"--thickness", "-9"}), 2);
    EXPECT_EQ(status({"--thickness", "9", "--camber", "2%"}), 2);
    EXPECT_EQ(status({"--camber", "2"}), 2);
    EXPECT_EQ(folder.Entries(), 0);
    const Ran lost =
        RunLoftwing({"modify", file, "--thickness", "9", "-o", folder.Path("no/new.dat")});
    EXPECT_EQ(lost.status, 1);
    EXPECT_THAT(lost.err, HasSubstr("no/new.dat"));
}

} // namespace
} // namespace loftwing
