#include "base/whole_file.h"
#include "e2e/program.h"
#include "e2e/svg_lines.h"
#include "support/components_text.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <locale>
#include <sstream>

namespace loftwing {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr const char *kReferenceColour = "#ff0000"; // axes, colour 12

const SvgPath &LastOf(const std::vector<SvgPath> &paths, const std::string &stroke) {
    for (auto path = paths.rbegin(); path != paths.rend(); ++path) {
        if (path->stroke == stroke) {
            return *path;
        }
    }
    throw std::runtime_error("no path of " + stroke);
}

TEST(Draw, SvgHasAReferenceLineAsLongAsTheChord) {
    const TempFolder folder;
    const std::string out = folder.Path("rib.svg");
    const Ran ran = RunLoftwing({"draw", Sample("naca2412.dat"), "-o", out, "--chord", "237.5"});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.err, "");
    const auto paths = PathsOf(ReadWholeFile(out));
    const SvgPath &line = LastOf(paths, kReferenceColour);
    ASSERT_EQ(line.points.size(), 2U);
    // One device unit beyond either end.
    EXPECT_NEAR(line.points[1].x - line.points[0].x, 237.5 + 2 / 56.7, 0.0002);
    EXPECT_NEAR(line.points[0].x, 5.0 - 1 / 56.7, 0.0001);
    EXPECT_EQ(line.points[0].y, line.points[1].y);
}

TEST(Draw, StandardOutputGetsTheSameDrawingAsAFile) {
    const TempFolder folder;
    const std::string out = folder.Path("rib.svg");
    ASSERT_EQ(RunLoftwing({"draw", Sample("naca0012.dat"), "-o", out}).status, 0);
    const Ran ran = RunLoftwing({"draw", Sample("naca0012.dat"), "--to", "svg", "-o", "-"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.out, ReadWholeFile(out));
}

TEST(Draw, SheetingAndStocksAreDrawnInTheirColours) {
    const Ran plain =
        RunLoftwing({"draw", Sample("naca2412.dat"), "--to", "svg", "-o", "-", "--sheeting", "0"});
    const Ran full = RunLoftwing({"draw", Sample("naca2412.dat"), "--to", "svg", "-o", "-",
                                  "--sheeting", "1.5", "--le", "8", "--te", "25"});
    ASSERT_EQ(plain.status, 0) << plain.err;
    ASSERT_EQ(full.status, 0) << full.err;
    EXPECT_GT(PathsOf(full.out).size(), PathsOf(plain.out).size() + 300);
}

TEST(Draw, InchesStartFromTheEnglishSet) {
    const Ran ran =
        RunLoftwing({"draw", Sample("naca2412.dat"), "--to", "svg", "-o", "-", "--unit", "in"});
    ASSERT_EQ(ran.status, 0) << ran.err;
    const auto paths = PathsOf(ran.out);
    const SvgPath &line = LastOf(paths, kReferenceColour);
    EXPECT_NEAR(line.points[1].x - line.points[0].x, 8 * 25.4 + 2 / 56.7, 0.0002);
}

TEST(Draw, InchesTakeFractionsAsTyped) {
    const Ran ran = RunLoftwing({"draw", Sample("naca2412.dat"), "--to", "svg", "-o", "-", "--unit",
                                 "in", "--chord", "8.1/2"});
    ASSERT_EQ(ran.status, 0) << ran.err;
    const auto paths = PathsOf(ran.out);
    const SvgPath &line = LastOf(paths, kReferenceColour);
    EXPECT_NEAR(line.points[1].x - line.points[0].x, 8.5 * 25.4 + 2 / 56.7, 0.0002);
}

TEST(Draw, AChordInTheTitleCountsUnlessAnotherIsAskedFor) {
    const TempFolder folder;
    std::string text = ReadWholeFile(Sample("naca2412.dat"));
    text.replace(0, text.find_first_of("\r\n"), "Wing root: 150");
    const std::string file = folder.File("root.dat", text);
    const Ran titled = RunLoftwing({"draw", file, "--to", "svg", "-o", "-"});
    const Ran asked = RunLoftwing({"draw", file, "--to", "svg", "-o", "-", "--chord", "90"});
    ASSERT_EQ(titled.status, 0) << titled.err;
    ASSERT_EQ(asked.status, 0) << asked.err;
    const auto length = [](const std::string &svg) {
        const auto paths = PathsOf(svg);
        const SvgPath line = LastOf(paths, kReferenceColour);
        return line.points[1].x - line.points[0].x;
    };
    EXPECT_NEAR(length(titled.out), 150 + 2 / 56.7, 0.0002);
    EXPECT_NEAR(length(asked.out), 90 + 2 / 56.7, 0.0002);
}

TEST(Draw, PngHasTheScreensPixels) {
    const TempFolder folder;
    const std::string out = folder.Path("rib.png");
    const Ran ran = RunLoftwing({"draw", Sample("naca2412.dat"), "-o", out, "--chord", "200"});
    ASSERT_EQ(ran.status, 0) << ran.err;
    const std::string bytes = ReadWholeFile(out);
    ASSERT_THAT(bytes, StartsWith("\x89PNG\r\n\x1A\n"));
    const auto number = [&](std::size_t at) {
        int value = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            value = value * 256 + static_cast<unsigned char>(bytes[at + i]);
        }
        return value;
    };
    // 5 mm before, 200 mm of chord and 5 mm behind at 56.7 units a mm and 15 units a pixel.
    EXPECT_NEAR(number(16), 210 * 56.7 / 15, 2);
}

TEST(Draw, WithoutARuntimeFolderStandardErrorStaysEmpty) {
    const TempFolder folder;
    const Ran ran = RunShell("env -u XDG_RUNTIME_DIR " + ShellWord(ProgramTried()) + " draw " +
                             ShellWord(Sample("naca2412.dat")) + " --chord 200 -o " +
                             ShellWord(folder.Path("rib.pdf")));
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "");
}

TEST(Draw, SeveralFilesGoToAFolderAndARefusedOneStopsNothing) {
    const TempFolder folder;
    const std::string bad = folder.File("bad.dat", "Title\n0.5 0.1\n1.0 0.0\n");
    const Ran ran = RunLoftwing({"draw", Sample("naca2412.dat"), bad, Sample("naca0009.dat"),
                                 "--to", "svg", "-o", folder.Path("out/")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_TRUE(std::filesystem::exists(folder.Path("out/naca2412.svg")));
    EXPECT_TRUE(std::filesystem::exists(folder.Path("out/naca0009.svg")));
    EXPECT_FALSE(std::filesystem::exists(folder.Path("out/bad.svg")));
    EXPECT_THAT(ran.err, HasSubstr("loftwing: " + bad + " was refused\n"));
}

TEST(Draw, ARefusalLeavesTheOldFileAndSaysWhyOnOneLine) {
    const TempFolder folder;
    const std::string bad = folder.File("bad.dat", "Title\n0.5 0.1\n1.0 0.0\n");
    const std::string out = folder.File("rib.svg", "old");
    const Ran ran = RunLoftwing({"draw", bad, "-o", out});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ReadWholeFile(out), "old");
    EXPECT_EQ(std::count(ran.err.begin(), ran.err.end(), '\n'), 1) << ran.err;
    EXPECT_THAT(ran.err, StartsWith("Open airfoil file: "));
}

TEST(Draw, StocksLongerThanTheChordLeaveNoFile) {
    const TempFolder folder;
    for (const std::string form : {"svg", "png", "pdf"}) {
        const std::string out = folder.Path("rib." + form);
        const Ran ran =
            RunLoftwing({"draw", Sample("naca2412.dat"), "-o", out, "--le", "120", "--te", "100"});
        EXPECT_EQ(ran.status, 1) << form;
        EXPECT_NE(ran.err, "") << form;
        EXPECT_FALSE(std::filesystem::exists(out)) << form;
    }
}

TEST(Draw, AValueThatTheDialogRefusesLeavesNoFile) {
    const TempFolder folder;
    const std::string out = folder.Path("rib.svg");
    for (const std::vector<std::string> &option :
         {std::vector<std::string>{"--chord", "0"}, {"--le", "201"}, {"--stations", "256"}}) {
        std::vector<std::string> words = {"draw", Sample("naca2412.dat"), "-o", out};
        words.insert(words.end(), option.begin(), option.end());
        const Ran ran = RunLoftwing(words);
        EXPECT_EQ(ran.status, 1) << option[0];
        EXPECT_NE(ran.err, "") << option[0];
        EXPECT_FALSE(std::filesystem::exists(out)) << option[0];
    }
}

TEST(Draw, AnUnwritablePlaceIsAFailure) {
    const Ran ran = RunLoftwing({"draw", Sample("naca2412.dat"), "-o", "/nowhere/at/all/rib.svg"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("/nowhere/at/all/rib.svg"));
}

TEST(Draw, FrenchWordsComeFromTheFrenchFile) {
    const std::vector<std::string> words = {"draw", Sample("naca2412.dat"), "--to", "svg", "-o",
                                            "-",    "--chord-thickness"};
    std::vector<std::string> french = words;
    french.insert(french.end(), {"--language", "French"});
    const Ran one = RunLoftwing(words);
    const Ran other = RunLoftwing(french);
    EXPECT_THAT(one.out, HasSubstr("Chord thickness : "));
    EXPECT_THAT(other.out, Not(HasSubstr("Chord thickness : ")));
    EXPECT_THAT(other.out, HasSubstr("<text"));
}

constexpr const char *kSettings =
    "[Couleurs]\ncoulprofil=4\ncoulcoffrage=9\ncoulaxe=2\ncoulba=9\ncoulbf=9\n"
    "[StyleLignes]\nlineaxe=1\n[Eprlines]\nprofil=3\neplinecoffrage=1\neplineba=1\n"
    "eplinebf=1\n[InsText]\nTailleFont=9\n[Defaut]\nunit= mm\ncordeAfich=120\n"
    "EpCoffrageAfich=1\nEpBAAfich=0\n[Marges]\nMargeHaut=10\nMargeBas=15\n"
    "recouvrement=20\nNumIndex=0\n";

TEST(Draw, ASettingsFileGivesTheColours) {
    const TempFolder folder;
    const std::string settings = folder.File("s.ini", kSettings);
    const Ran ran = RunLoftwing(
        {"draw", Sample("naca2412.dat"), "--to", "svg", "-o", "-", "--settings", settings});
    ASSERT_EQ(ran.status, 0) << ran.err;
    const auto paths = PathsOf(ran.out);
    const SvgPath &line = LastOf(paths, "#008000");
    EXPECT_NEAR(line.points[1].x - line.points[0].x, 120 + 2 / 56.7, 0.0002);
    EXPECT_GT(LastOf(paths, "#800000").points.size(), 100U);
}

/// Whether some line of the drawing is upright, `x` mm behind the leading edge, and longer than a
/// station's mark.
bool HasUpright(const std::string &svg, double x) {
    for (const SvgPath &path : PathsOf(svg)) {
        for (std::size_t i = 1; i < path.points.size(); ++i) {
            const SvgPoint &from = path.points[i - 1];
            const SvgPoint &to = path.points[i];
            if (std::abs(from.x - 5 - x) < 0.001 && std::abs(to.x - 5 - x) < 0.001 &&
                std::abs(from.y - to.y) > 3) {
                return true;
            }
        }
    }
    return false;
}

/// A rib of 200 mm with a heel 20 mm below its reference line.
ComponentsText HeelRib(const std::string &front, const std::string &rear) {
    ComponentsText rib;
    rib.kind = "11";
    rib.intra = "20";
    rib.heel_front = front;
    rib.heel_back = rear;
    return rib;
}

Ran DrawHeel(const TempFolder &folder, const ComponentsText &rib, std::vector<std::string> more) {
    std::vector<std::string> words = {"draw",       folder.File("heel.lfw", rib.Current()),
                                      "--airfoils", LOFTWING_SOURCE_DIR "/resources/airfoils",
                                      "--to",       "svg",
                                      "-o",         "-"};
    words.insert(words.end(), more.begin(), more.end());
    return RunLoftwing(words);
}

TEST(Draw, APdfThatLeavesTheSheetIsToldAndDrawn) {
    const TempFolder folder;
    const std::string out = folder.Path("rib.pdf");
    const auto draw = [&out](std::vector<std::string> more) {
        std::vector<std::string> words = {"draw", Sample("naca2412.dat"), "-o", out};
        words.insert(words.end(), more.begin(), more.end());
        const Ran ran = RunLoftwing(words);
        EXPECT_EQ(ran.status, 0) << ran.err;
        EXPECT_THAT(ReadWholeFile(out), StartsWith("%PDF"));
        std::filesystem::remove(out);
        return ran.err;
    };
    // The file's highest point lies 0.07918 of the chord above the line: 15.84 mm of 200.
    EXPECT_THAT(draw({"--reference-line-at", "5"}),
                StartsWith("Page setup: The drawing leaves the sheet. What lies beyond its edge is "
                           "lost : Upper edge : 10.9 mm  What helps : --reference-line-at : 16 mm "
                           "to "));
    EXPECT_EQ(draw({"--reference-line-at", "16"}), "");
    EXPECT_EQ(draw({}), "");
    // The lower edge of A3 is further away than that of A4; 4.2 % are below the line.
    EXPECT_THAT(draw({"--reference-line-at", "205"}), HasSubstr("Lower edge : "));
    EXPECT_EQ(draw({"--reference-line-at", "205", "--paper", "A3"}), "");
    // Nothing of this is said of a form without sheets.
    EXPECT_EQ(RunLoftwing({"draw", Sample("naca2412.dat"), "--to", "svg", "-o", "-",
                           "--reference-line-at", "5"})
                  .err,
              "");
}

/// What another program reads of a PDF's pages: their count and the size of the first one in
/// points.
struct PdfFacts {
    int pages = 0;
    double width = 0;
    double height = 0;
};

PdfFacts FactsOf(const std::string &pdf) {
    const Ran ran = RunShell("pdfinfo " + ShellWord(pdf));
    EXPECT_EQ(ran.status, 0) << ran.err;
    PdfFacts facts;
    std::istringstream lines(ran.out);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        words.imbue(std::locale::classic());
        std::string word;
        std::string times;
        words >> word;
        if (word == "Pages:") {
            words >> facts.pages;
        } else if (word == "Page" && line.find("size:") != std::string::npos) {
            words >> word >> facts.width >> times >> facts.height;
        }
    }
    return facts;
}

constexpr double kPoints = 72 / 25.4; // of a millimetre

TEST(Draw, ATallRibGoesOverRowsOfSheetsWhereTheyAreAskedFor) {
    const TempFolder folder;
    const std::string out = folder.Path("rib.pdf");
    // 2500 mm of NACA 2412 are 198 mm above the line and 105 below it; with the margin of 10 the
    // line is lowered to 208 mm. 313 are more than the 195 of the first row and less than 360.
    // Along the rib there are 2500 / 252 = 9 whole steps and a rest.
    const Ran ran =
        RunLoftwing({"draw", Sample("naca2412.dat"), "--chord", "2500", "--rows", "-o", out});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "");
    EXPECT_EQ(FactsOf(out).pages, 20);
}

TEST(Draw, PaperOfOnesOwnHasTheMeasuresThatWereTyped) {
    const TempFolder folder;
    const std::string out = folder.Path("rib.pdf");
    const auto draw = [&out](std::vector<std::string> more) {
        std::vector<std::string> words = {"draw", Sample("naca2412.dat"), "-o", out};
        words.insert(words.end(), more.begin(), more.end());
        EXPECT_EQ(RunLoftwing(words).status, 0);
        return FactsOf(out);
    };
    const PdfFacts own = draw({"--paper", "610x300"});
    EXPECT_NEAR(own.width, 610 * kPoints, 1);
    EXPECT_NEAR(own.height, 300 * kPoints, 1);
    const PdfFacts upright = draw({"--paper", "300x610"});
    EXPECT_NEAR(upright.width, 300 * kPoints, 1);
    EXPECT_NEAR(upright.height, 610 * kPoints, 1);
    const PdfFacts inches = draw({"--unit", "in", "--chord", "10", "--paper", "12x9.1/2"});
    EXPECT_NEAR(inches.width, 12 * 72, 1);
    EXPECT_NEAR(inches.height, 9.5 * 72, 1);
    const PdfFacts whole = draw({"--chord", "1200", "--paper", "drawing"});
    EXPECT_EQ(whole.pages, 1);
    EXPECT_NEAR(whole.width, 1226 * kPoints, 2); // 10 + 1200 + 15 and what the lines have around
}

TEST(Draw, SheetsHaveACheckLineOnlyWhereItIsAskedFor) {
    const TempFolder folder;
    const std::string settings =
        folder.File("s.ini", std::string(kSettings) + "[Feuilles]\nTemoin=1\nRangees=1\n");
    const auto words = [&](std::vector<std::string> more) {
        const std::string out = folder.Path("rib.pdf");
        std::vector<std::string> all = {"draw", Sample("naca2412.dat"), "-o", out};
        all.insert(all.end(), more.begin(), more.end());
        EXPECT_EQ(RunLoftwing(all).status, 0);
        return RunShell("pdftotext " + ShellWord(out) + " -").out;
    };
    EXPECT_THAT(words({}), Not(HasSubstr("measure this line")));
    EXPECT_THAT(words({"--settings", settings}), Not(HasSubstr("measure this line")));
    EXPECT_THAT(words({"--check-line"}), HasSubstr("measure this line : 100 mm"));
    EXPECT_THAT(words({"--check-line", "--unit", "in"}), HasSubstr("measure this line : 4 in"));
}

TEST(Draw, PaperThatNoPageCanHaveIsWrongUsage) {
    const TempFolder folder;
    const std::string out = folder.Path("rib.pdf");
    for (const char *paper : {"49x300", "300x5081", "300x", "x300", "axb", "300x300x300"}) {
        const Ran ran = RunLoftwing({"draw", Sample("naca2412.dat"), "-o", out, "--paper", paper});
        EXPECT_EQ(ran.status, 2) << paper;
        EXPECT_FALSE(std::filesystem::exists(out));
    }
    const Ran large = RunLoftwing(
        {"draw", Sample("naca2412.dat"), "-o", out, "--chord", "5200", "--paper", "drawing"});
    EXPECT_EQ(large.status, 1);
    EXPECT_THAT(large.err, HasSubstr("The drawing wants a page of : 5226 x "));
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST(Draw, HeelMarginsThatAreNotInForceAreToldOnStandardError) {
    const TempFolder folder;
    const Ran ran = DrawHeel(folder, HeelRib("20", "30"), {});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "heel.lfw: The heel's margins from the rib file are not in force : 20 mm, "
                       "30 mm. The heel is drawn as if they were 0. --heel puts them in force.\n");
    EXPECT_TRUE(HasUpright(ran.out, 200)); // both lines of the heel
    EXPECT_FALSE(HasUpright(ran.out, 170));
}

TEST(Draw, HeelPutsTheMarginsInForce) {
    const TempFolder folder;
    const Ran ran = DrawHeel(folder, HeelRib("20", "30"), {"--heel"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "");
    EXPECT_TRUE(HasUpright(ran.out, 170)); // 200 - 30
    EXPECT_TRUE(HasUpright(ran.out, 150)); // and 20 mm in front of it
    // A percentage is one of the chord that is drawn.
    const Ran other = DrawHeel(folder, HeelRib("20", "10%"), {"--heel", "--chord", "160"});
    EXPECT_TRUE(HasUpright(other.out, 144));
}

TEST(Draw, HeelRefusesMarginsLongerThanTheChord) {
    const TempFolder folder;
    const Ran ran = DrawHeel(folder, HeelRib("150", "51"), {"--heel"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.out, "");
    EXPECT_THAT(ran.err, HasSubstr("The margins together are longer than the chord"));
}

TEST(Draw, NothingIsToldOfAHeelWithoutMargins) {
    const TempFolder folder;
    for (const char *kind : {"0", "1", "11"}) {
        ComponentsText rib = HeelRib("0", "0");
        rib.kind = kind;
        EXPECT_EQ(DrawHeel(folder, rib, {}).err, "") << kind;
        EXPECT_EQ(DrawHeel(folder, rib, {"--heel"}).err, "") << kind;
    }
    EXPECT_EQ(RunLoftwing({"draw", Sample("naca2412.dat"), "--heel", "--to", "svg", "-o", "-"}).err,
              "");
}

} // namespace
} // namespace loftwing
