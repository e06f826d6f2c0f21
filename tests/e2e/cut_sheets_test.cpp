// Pieces on sheets of stock, made by the built program and read back.

#include "base/whole_file.h"
#include "e2e/printed_files.h"
#include "support/cut_reading.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace loftwing {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

constexpr double kMarginOfSheets = 3;
constexpr double kDigitsOfSheets = 2e-6; // mm, of what stands in a file

std::vector<std::string> WordsOnLines(const std::string &text) {
    std::istringstream lines(text);
    std::vector<std::string> all;
    for (std::string line; std::getline(lines, line);) {
        all.push_back(line);
    }
    return all;
}

class CutOnSheetFiles : public PrintedFiles {
  protected:
    /// Runs `cut` on a plain rib, whose piece is 150 mm long, or on these FILEs.
    Ran Cut(const std::vector<std::string> &more,
            const std::vector<std::string> &files = {Sample("naca2412.dat")}) {
        std::vector<std::string> words = {"cut"};
        words.insert(words.end(), files.begin(), files.end());
        words.insert(words.end(), {"--chord", "150", "--sheeting", "0", "--le", "0", "--te", "0"});
        words.insert(words.end(), more.begin(), more.end());
        return RunLoftwing(words);
    }

    /// Every ring lies on the sheet within its margin.
    static void ExpectOnSheet(const ReadCut &cut, double length, double across) {
        EXPECT_EQ(cut.problem, "");
        for (const ReadRing &ring : cut.rings) {
            for (const ReadPoint &point : ring) {
                EXPECT_GE(point.x, kMarginOfSheets - kDigitsOfSheets);
                EXPECT_GE(point.y, kMarginOfSheets - kDigitsOfSheets);
                EXPECT_LE(point.x, length - kMarginOfSheets + kDigitsOfSheets);
                EXPECT_LE(point.y, across - kMarginOfSheets + kDigitsOfSheets);
            }
        }
    }
};

/// 18 mm high and one behind the other 302 mm long, so that 100 x 200 mm hold at most four.
TEST_F(CutOnSheetFiles, DxfIsAFileASheetWithItsCornerAtTheOrigin) {
    const Ran ran = Cut({"--sheet", "100x200", "--copies", "6", "-o", folder.Path("out.dxf")});
    ASSERT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(WordsOnLines(ran.out),
                ElementsAre(MatchesRegex("sheet 1: 100 x 200 mm, 4 pieces, [0-9.]+ %"),
                            MatchesRegex("sheet 2: 100 x 200 mm, 2 pieces, [0-9.]+ %")));
    EXPECT_FALSE(std::filesystem::exists(folder.Path("out.dxf")));
    EXPECT_FALSE(std::filesystem::exists(folder.Path("out-3.dxf")));
    const std::string first = folder.Bytes("out-1.dxf");
    const std::string second = folder.Bytes("out-2.dxf");
    EXPECT_EQ(JoinedLines(first).rings.size(), 4U);
    EXPECT_EQ(JoinedLines(second).rings.size(), 2U);
    ExpectOnSheet(JoinedLines(first), 200, 100);
    ExpectOnSheet(JoinedLines(second), 200, 100);
    EXPECT_THAT(first, HasSubstr("$LIMMAX\r\n10\r\n200.0\r\n20\r\n100.0\r\n"));
}

TEST_F(CutOnSheetFiles, SvgIsTheSheetAndItsRingsAreThoseOfDxf) {
    const std::vector<std::string> words = {"--sheet", "100x200", "--copies", "2", "--turn"};
    for (const char *name : {"out.svg", "out.dxf"}) {
        std::vector<std::string> all = words;
        all.insert(all.end(), {"-o", folder.Path(name)});
        ASSERT_EQ(Cut(all).status, 0);
    }
    const std::string svg = folder.Bytes("out-1.svg");
    EXPECT_THAT(svg, HasSubstr("width=\"200mm\" height=\"100mm\" viewBox=\"0 0 200 100\">\n"
                               "<title>out-1</title>"));
    ReadCut paths = Subpaths(svg);
    for (ReadRing &ring : paths.rings) {
        for (ReadPoint &point : ring) {
            point.y += 100; // the file counts down from the upper edge
        }
    }
    ExpectOnSheet(paths, 200, 100);
    EXPECT_LT(Difference(JoinedLines(folder.Bytes("out-1.dxf")), paths), kDigitsOfSheets);
}

TEST_F(CutOnSheetFiles, PdfIsAPageASheet) {
    NeedsPrograms({"pdftoppm", "pdfinfo"});
    if (IsSkipped()) {
        return;
    }
    const std::string out = folder.Path("out.pdf");
    const Ran ran = Cut({"--sheet", "100x200", "--copies", "6", "-o", out});
    ASSERT_EQ(ran.status, 0) << ran.err;
    const Ran info = RunShell("LC_ALL=C pdfinfo -f 1 -l 2 " + ShellWord(out));
    EXPECT_THAT(info.out, testing::ContainsRegex("Pages: +2\n"));
    // 200 by 100 mm in points.
    EXPECT_THAT(info.out, testing::ContainsRegex("Page +1 size: +56[67][0-9.]* x 28[34]"));
    EXPECT_THAT(info.out, testing::ContainsRegex("Page +2 size: +56[67][0-9.]* x 28[34]"));
    EXPECT_NEAR(PageOf(out).first, 200, 0.4);
    EXPECT_NEAR(InkOn(out).width, 150, 0.3);
}

TEST_F(CutOnSheetFiles, SheetsAreInTheUnitInForce) {
    std::vector<std::string> words = {"cut",        Sample("naca2412.dat"),
                                      "--chord",    "6",
                                      "--unit",     "in",
                                      "--sheeting", "0",
                                      "--le",       "0",
                                      "--te",       "0",
                                      "--sheet",    "3.1/2x8",
                                      "--gap",      "1/8",
                                      "--margin",   "1/4",
                                      "--copies",   "3",
                                      "-o",         folder.Path("out.dxf")};
    const Ran ran = RunLoftwing(words);
    ASSERT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(ran.out, MatchesRegex("sheet 1: 3.1/2 x 8 in, 3 pieces, [0-9.]+ %\n"));
    const ReadCut cut = JoinedLines(folder.Bytes("out-1.dxf"));
    ASSERT_EQ(cut.rings.size(), 3U);
    double left = 100;
    double low = 100;
    for (const ReadRing &ring : cut.rings) {
        for (const ReadPoint &point : ring) {
            left = std::min(left, point.x);
            low = std::min(low, point.y);
            EXPECT_LE(point.x, 7.75 + 1e-7);
            EXPECT_LE(point.y, 3.25 + 1e-7);
        }
    }
    EXPECT_NEAR(left, 0.25, 1e-7);
    EXPECT_NEAR(low, 0.25, 1e-7);
}

TEST_F(CutOnSheetFiles, SeveralFilesLieTogetherAndJsonTellsOfThem) {
    const Ran ran = Cut({"--sheet", "100x200", "--json", "-o", folder.Path("wing.svg")},
                        {Sample("naca2412.dat"), Sample("naca0012.dat")});
    ASSERT_EQ(ran.status, 0) << ran.err;
    const std::vector<std::string> lines = WordsOnLines(ran.out);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_THAT(lines[0], AllOf(StartsWith("{\"file\": "), HasSubstr("naca2412.dat")));
    EXPECT_THAT(lines[1], AllOf(StartsWith("{\"file\": "), HasSubstr("naca0012.dat")));
    EXPECT_THAT(lines[2], AllOf(StartsWith("{\"sheet\": 1, \"width\": 100, \"height\": 200, "
                                           "\"pieces\": 2, \"area\": "),
                                HasSubstr("\"out\": \"" + folder.Path("wing-1.svg") + "\"}")));
    EXPECT_EQ(Subpaths(folder.Bytes("wing-1.svg")).rings.size(), 2U);
}

TEST_F(CutOnSheetFiles, AFolderAndSeveralSizesAreTaken) {
    const std::string out = folder.Path("sheets");
    const Ran ran = Cut({"--sheet", "100x200,50x160", "--copies", "5", "--to", "dxf", "-o", out});
    ASSERT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(WordsOnLines(ran.out), ElementsAre(StartsWith("sheet 1: 100 x 200 mm, 4 pieces, "),
                                                   StartsWith("sheet 2: 50 x 160 mm, 1 piece, ")));
    EXPECT_EQ(JoinedLines(ReadWholeFile(out + "/sheet-1.dxf")).rings.size(), 4U);
    EXPECT_EQ(JoinedLines(ReadWholeFile(out + "/sheet-2.dxf")).rings.size(), 1U);
}

TEST_F(CutOnSheetFiles, EverySecondCopyIsMirroredAndItsWordsAreNot) {
    const Ran ran = Cut({"--sheet", "100x200", "--copies", "2", "--mirror", "--label", "R7", "-o",
                         folder.Path("out.svg")});
    ASSERT_EQ(ran.status, 0) << ran.err;
    const std::string svg = folder.Bytes("out-1.svg");
    const ReadCut cut = Subpaths(svg);
    ASSERT_EQ(cut.rings.size(), 2U);
    // A cambered rib is deepest farther forward than it is highest.
    const auto places = [](const ReadRing &ring) {
        const auto by_y = [](const ReadPoint &a, const ReadPoint &b) { return a.y < b.y; };
        const auto [low, high] = std::minmax_element(ring.begin(), ring.end(), by_y);
        const double front = std::min_element(ring.begin(), ring.end())->x;
        return std::pair(low->x - front, high->x - front);
    };
    const auto first = places(cut.rings[0]);
    const auto second = places(cut.rings[1]);
    EXPECT_LT(first.first, first.second - 5);
    EXPECT_NEAR(first.first, second.second, 1e-5);
    EXPECT_NEAR(first.second, second.first, 1e-5);
    EXPECT_THAT(svg, testing::ContainsRegex(">R7</text>(.|\n)*>R7</text>"));
    EXPECT_THAT(svg, Not(HasSubstr("transform")));
}

TEST_F(CutOnSheetFiles, StandardOutputTakesOneSheet) {
    const Ran one = Cut({"--sheet", "100x200", "--to", "svg", "-o", "-"});
    ASSERT_EQ(one.status, 0) << one.err;
    EXPECT_THAT(one.out, AllOf(StartsWith("<?xml"), EndsWith("</svg>\n")));
    EXPECT_THAT(one.err, StartsWith("sheet 1: 100 x 200 mm, 1 piece, "));
    const Ran two = Cut({"--sheet", "100x200", "--to", "svg", "-o", "-", "--copies", "6"});
    EXPECT_EQ(two.status, 2);
    EXPECT_EQ(two.out, "");
}

TEST_F(CutOnSheetFiles, APieceTooLongIsRefusedByNameInTheUsersLanguage) {
    const Ran ran = Cut({"--sheet", "100x150", "-o", folder.Path("out.svg")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, AllOf(HasSubstr("naca2412.dat: The piece fits on no sheet"),
                               HasSubstr("150.0 x 18.2 mm"))); // 12.1 % of the chord
    const Ran german =
        Cut({"--sheet", "100x150", "-o", folder.Path("out.svg"), "--language", "German"});
    EXPECT_THAT(german.err, HasSubstr("Das Teil passt auf keine Platte"));
    EXPECT_EQ(folder.Entries(), 0);
}

TEST_F(CutOnSheetFiles, WhereOneFileFailsNothingIsWritten) {
    const Ran ran = Cut({"--sheet", "100x200", "--json", "-o", folder.Path("out.svg")},
                        {Sample("naca2412.dat"), folder.Path("none.dat")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("none.dat was refused\n"));
    EXPECT_THAT(WordsOnLines(ran.out),
                ElementsAre(HasSubstr("\"area\""), HasSubstr("\"refused\"")));
    EXPECT_EQ(folder.Entries(), 0);
}

TEST_F(CutOnSheetFiles, WhereOneSheetCannotBeWrittenNoneIs) {
    std::filesystem::create_directory(folder.Path("out-2.svg"));
    const Ran ran = Cut({"--sheet", "100x200", "--copies", "6", "-o", folder.Path("out.svg")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("out-2.svg"));
    EXPECT_EQ(ran.out, "");
    EXPECT_EQ(folder.Entries(), 1);
    EXPECT_EQ(Cut({"--sheet", "100x200", "-o", folder.Path("none/out.svg")}).status, 1);
}

TEST_F(CutOnSheetFiles, WrongUsageOfSheetsIsStatusTwo) {
    const std::string out = folder.Path("out.svg");
    const std::vector<std::vector<std::string>> wrong = {
        {"--sheet", "100", "-o", out},
        {"--sheet", "100x", "-o", out},
        {"--sheet", "100x200x3", "-o", out},
        {"--sheet", "0x200", "-o", out},
        {"--sheet", "axb", "-o", out},
        {"--sheet", "100x5001", "-o", out},
        {"--sheet", "100x200,", "-o", out},
        {"--sheet", "100x200", "-o", out, "--gap", "-1"},
        {"--sheet", "100x200", "-o", out, "--margin", "501"},
        {"--sheet", "100x200", "-o", out, "--copies", "0"},
        {"--sheet", "100x200", "-o", out, "--copies", "1001"},
        {"--sheet", "100x200", "-o", out, "--copies", "99999999999999999999"},
        {"--sheet", "100x200", "-o", out, "--mirror"},
        {"--sheet", "100x200", "-o", folder.Path("out.png")},
        {"--sheet", "100x200", "-o", "-"},
        {"--sheet", "100x200"},
        {"-o", out, "--gap", "2"},
        {"-o", out, "--margin", "2"},
        {"-o", out, "--turn"},
        {"-o", out, "--copies", "2"},
        {"-o", out, "--mirror"}};
    for (const auto &words : wrong) {
        const Ran ran = Cut(words);
        EXPECT_EQ(ran.status, 2) << testing::PrintToString(words);
        EXPECT_EQ(ran.out, "");
    }
    EXPECT_EQ(folder.Entries(), 0);
    EXPECT_THAT(RunLoftwing({"cut", "--help"}).out,
                AllOf(HasSubstr("--sheet WIDTHxHEIGHT"), HasSubstr("--copies N")));
}

TEST_F(CutOnSheetFiles, TooManyPiecesAreRefused) {
    const std::vector<std::string> files(6, Sample("naca2412.dat"));
    const Ran ran =
        Cut({"--sheet", "100x200", "--copies", "1000", "-o", folder.Path("out.svg")}, files);
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("Too many pieces at once. At most 5000"));
    EXPECT_EQ(folder.Entries(), 0);
}

} // namespace
} // namespace loftwing
