// Pieces for a cutter, made by the built program and read back as cutters do.

#include "base/whole_file.h"
#include "e2e/printed_files.h"
#include "support/cut_reading.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <locale>
#include <sstream>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::Each;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr const char *kAirfoils = LOFTWING_SOURCE_DIR "/resources/airfoils";
constexpr double kWrittenAlike = 1e-9;

/// The numbers of a field of a JSON line, in its brackets or alone.
std::vector<double> Numbers(const std::string &json, const std::string &field) {
    const std::string name = "\"" + field + "\": ";
    const std::size_t at = json.find(name);
    if (at == std::string::npos) {
        ADD_FAILURE() << "no " << field << " in " << json;
        return {};
    }
    std::string text = json.substr(at + name.size());
    const bool list = text.front() == '[';
    text = list ? text.substr(1, text.find(']') - 1) : text.substr(0, text.find_first_of(",}"));
    std::replace(text.begin(), text.end(), ',', ' ');
    std::istringstream words(text);
    words.imbue(std::locale::classic());
    std::vector<double> numbers;
    for (double number = 0; words >> number;) {
        numbers.push_back(number);
    }
    return numbers;
}

double Number(const std::string &json, const std::string &field) {
    const std::vector<double> numbers = Numbers(json, field);
    return numbers.size() == 1 ? numbers.front() : std::nan("");
}

std::vector<std::string> LinesOf(const std::string &text) {
    std::istringstream lines(text);
    std::vector<std::string> all;
    for (std::string line; std::getline(lines, line);) {
        all.push_back(line);
    }
    return all;
}

/// Corners left, low, right, high of all rings.
std::array<double, 4> BoxOf(const ReadCut &cut) {
    std::array<double, 4> box = {1e9, 1e9, -1e9, -1e9};
    for (const ReadRing &ring : cut.rings) {
        for (const ReadPoint &point : ring) {
            box = {std::min(box[0], point.x), std::min(box[1], point.y), std::max(box[2], point.x),
                   std::max(box[3], point.y)};
        }
    }
    return box;
}

class CutFiles : public PrintedFiles {
  protected:
    /// Runs `cut` on a rib components file with these further words.
    Ran Cut(const ComponentsText &rib, const std::vector<std::string> &more, bool inches = false) {
        std::vector<std::string> words = {"cut",        folder.File("rib.lfw", rib.Current()),
                                          "--unit",     inches ? "in" : "mm",
                                          "--airfoils", kAirfoils};
        words.insert(words.end(), more.begin(), more.end());
        return RunLoftwing(words);
    }
    /// The same to standard output.
    std::string Bytes(const ComponentsText &rib, const std::string &form, bool inches = false,
                      const std::vector<std::string> &more = {}) {
        std::vector<std::string> words = {"--to", form, "-o", "-"};
        words.insert(words.end(), more.begin(), more.end());
        const Ran ran = Cut(rib, words, inches);
        EXPECT_EQ(ran.status, 0) << ran.err;
        return ran.out;
    }

    /// A rib with a notch in either surface, a round hole and a rectangular one, nothing of which
    /// touches another thing.
    static ComponentsText Rib() {
        ComponentsText rib;
        rib.chord = "180";
        rib.sheeting = "1.5";
        rib.edge = "8";
        rib.trailing = "20";
        rib.stations = "3";
        rib.spars = {{"60", "5", "3", "1", "1", "1", "0", "0", "0"}, ComponentsText::BlankSpar()};
        rib.holes = {{"35", "8", "1", "0", "0", "0", "0", "0"},
                     {"90", "10", "1", "0", "5", "0", "1", "0"},
                     ComponentsText::BlankHole()};
        return rib;
    }
};

class CutRing : public CutFiles {};

TEST_F(CutRing, AnAirfoilAloneIsItsContour) {
    const Ran info = RunLoftwing({"info", Sample("naca2412.dat"), "--json", "--contour"});
    const std::vector<double> xs = Numbers(info.out, "contourX");
    const std::vector<double> ys = Numbers(info.out, "contourY");
    ASSERT_GT(xs.size(), 100U);
    ReadRing contour;
    for (std::size_t i = 0; i < xs.size(); ++i) {
        contour.push_back({xs[i] * 150, ys[i] * 150});
    }
    const Ran ran = RunLoftwing({"cut", Sample("naca2412.dat"), "--chord", "150", "--sheeting", "0",
                                 "--le", "0", "--te", "0", "--to", "dxf", "-o", "-"});
    ASSERT_EQ(ran.status, 0) << ran.err;
    const ReadCut cut = JoinedLines(ran.out);
    EXPECT_EQ(cut.problem, "");
    ASSERT_EQ(cut.rings.size(), 1U);
    EXPECT_NEAR(AreaOf(cut.rings[0]), std::abs(AreaOf(contour)), 0.01);
    const auto box = BoxOf(cut);
    EXPECT_NEAR(box[0], 0, 0.01);
    EXPECT_NEAR(box[2], 150, 0.01);
}

TEST_F(CutRing, AllFormsDescribeTheSameRings) {
    for (const bool inverted : {false, true}) {
        ComponentsText rib = Rib();
        rib.inverted = inverted ? "1" : "0";
        const ReadCut lines = JoinedLines(Bytes(rib, "dxf"));
        EXPECT_EQ(lines.problem, "");
        ASSERT_EQ(lines.rings.size(), 2U); // the rectangular hole and the outline
        ASSERT_EQ(lines.circles.size(), 1U);
        EXPECT_NEAR(std::abs(AreaOf(lines.rings[0])), 10 * 5, 1e-4);
        EXPECT_EQ(lines.circles[0].radius, 4);
        EXPECT_GT(std::abs(AreaOf(lines.rings[1])), 1000);
        const ReadCut polylines = Polylines(Bytes(rib, "dxf", false, {"--polylines"}));
        EXPECT_EQ(polylines.problem, "");
        EXPECT_LT(Difference(lines, polylines), kWrittenAlike);
        const ReadCut paths = Subpaths(Bytes(rib, "svg"));
        EXPECT_EQ(paths.problem, "");
        EXPECT_LT(Difference(lines, paths), kWrittenAlike);
    }
}

TEST_F(CutRing, UpsideDownThePieceIsMirrored) {
    ComponentsText rib = Rib();
    const auto upright = BoxOf(JoinedLines(Bytes(rib, "dxf")));
    rib.inverted = "1";
    const auto inverted = BoxOf(JoinedLines(Bytes(rib, "dxf")));
    EXPECT_NEAR(inverted[1], -upright[3], 1e-5);
    EXPECT_NEAR(inverted[3], -upright[1], 1e-5);
    EXPECT_EQ(inverted[0], upright[0]);
    const auto asked = BoxOf(JoinedLines(Bytes(Rib(), "dxf", false, {"--invert"})));
    EXPECT_EQ(asked, inverted);
}

TEST_F(CutRing, StocksBoundThePiece) {
    const auto box = BoxOf(JoinedLines(Bytes(Rib(), "dxf")));
    EXPECT_NEAR(box[0], 8, 1e-5);
    EXPECT_NEAR(box[2], 180 - 20, 1e-5);
    const auto other = BoxOf(JoinedLines(Bytes(Rib(), "dxf", false, {"--le", "12", "--te", "30"})));
    EXPECT_NEAR(other[0], 12, 1e-5);
    EXPECT_NEAR(other[2], 180 - 30, 1e-5);
}

TEST_F(CutRing, InchesAreTheSamePieceInAnotherUnit) {
    const ComponentsText rib = LadenRib("0", true);
    const std::string dxf = Bytes(rib, "dxf", true);
    EXPECT_THAT(dxf, HasSubstr("$INSUNITS\r\n70\r\n1\r\n"));
    ReadCut inches = JoinedLines(dxf);
    EXPECT_EQ(inches.problem, "");
    for (ReadRing &ring : inches.rings) {
        for (ReadPoint &point : ring) {
            point = {point.x * 25.4, point.y * 25.4};
        }
    }
    for (ReadCircle &circle : inches.circles) {
        circle = {{circle.centre.x * 25.4, circle.centre.y * 25.4}, circle.radius * 25.4};
    }
    const ReadCut mm = Subpaths(Bytes(rib, "svg", true));
    EXPECT_LT(Difference(inches, mm), 1e-6);
    EXPECT_NEAR(BoxOf(mm)[2], (6.5 - 1) * 25.4, 1e-4); // the chord less an inch of stock
}

TEST_F(CutRing, KerfMovesOutlinesOutwardAndHolesInward) {
    ComponentsText rib = Rib();
    rib.spars = {
        ComponentsText::BlankSpar()}; // the corner of a notch isn't where the rib is highest
    const ReadCut plain = JoinedLines(Bytes(rib, "dxf"));
    const ReadCut wide = JoinedLines(Bytes(rib, "dxf", false, {"--kerf", "0.4"}));
    EXPECT_EQ(wide.problem, "");
    ASSERT_EQ(wide.rings.size(), 2U);
    ASSERT_EQ(wide.circles.size(), 1U);
    EXPECT_NEAR(wide.circles[0].radius, 4 - 0.2, 1e-5);
    EXPECT_NEAR(std::abs(AreaOf(wide.rings[0])), 9.6 * 4.6, 1e-3);
    const auto before = BoxOf(plain);
    const auto after = BoxOf(wide);
    EXPECT_NEAR(after[0], before[0] - 0.2, 1e-4);
    EXPECT_NEAR(after[1], before[1] - 0.2, 1e-3);
    EXPECT_NEAR(after[2], before[2] + 0.2, 1e-4);
    EXPECT_NEAR(after[3], before[3] + 0.2, 1e-3);
}

TEST_F(CutRing, AKerfIsALengthOfTheUnit) {
    const ComponentsText rib = LadenRib("0", true);
    const double before = BoxOf(Subpaths(Bytes(rib, "svg", true)))[2];
    const double after = BoxOf(Subpaths(Bytes(rib, "svg", true, {"--kerf", "1/64"})))[2];
    EXPECT_NEAR(after - before, 25.4 / 64 / 2, 1e-4);
}

class CutMarks : public CutFiles {};

TEST_F(CutMarks, EachKindCanBeLeftOutWithAllOthers) {
    const std::string with = Bytes(Rib(), "svg");
    EXPECT_THAT(with, Not(HasSubstr("<g id=\"marks\">\n</g>")));
    EXPECT_THAT(with, HasSubstr("<text"));
    const std::string without = Bytes(Rib(), "svg", false, {"--no-marks"});
    EXPECT_THAT(without, HasSubstr("<g id=\"marks\">\n</g>"));
    EXPECT_LT(Difference(Subpaths(with), Subpaths(without)), kWrittenAlike);
    for (const DxfRecord &record : DxfEntities(Bytes(Rib(), "dxf", false, {"--no-marks"}))) {
        EXPECT_NE(record.Value(8), "MARK");
    }
}

TEST_F(CutMarks, TheReferenceLineIsLeftOutAsInADrawing) {
    const auto level = [this](const std::vector<std::string> &more) {
        long count = 0;
        for (const DxfRecord &record : DxfEntities(Bytes(Rib(), "dxf", false, more))) {
            count += record.Value(8) == "MARK" && record.kind == "LINE" && record.Number(20) == 0 &&
                             record.Number(21) == 0
                         ? 1
                         : 0;
        }
        return count;
    };
    EXPECT_GE(level({}), 1);
    EXPECT_EQ(level({"--no-reference-line"}), 0);
}

TEST_F(CutMarks, ALabelIsTakenAsItIsTyped) {
    EXPECT_THAT(Bytes(Rib(), "svg", false, {"--label", "R<7> & é"}),
                HasSubstr(">R&lt;7&gt; &amp; é</text>"));
    EXPECT_THAT(Bytes(Rib(), "dxf", false, {"--label", "R7 é"}), HasSubstr("\r\n1\r\nR7 \xE9\r\n"));
}

TEST_F(CutMarks, AnEmptyLabelIsNone) {
    const std::string svg = Bytes(Rib(), "svg", false, {"--label", ""});
    EXPECT_THAT(svg, Not(HasSubstr("<text")));
    EXPECT_THAT(svg, Not(HasSubstr("<g id=\"marks\">\n</g>")));
}

TEST_F(CutMarks, ColoursAreThoseOfTheSettings) {
    EXPECT_THAT(
        Bytes(Rib(), "svg"),
        HasSubstr("fill=\"none\" stroke=\"#000000\" stroke-width=\"0.01\"/>\n</g>\n</svg>"));
    EXPECT_THAT(Bytes(Rib(), "svg"), HasSubstr("stroke=\"#ff0000\" stroke-width=\"0.01\"/>"));
}

class CutReport : public CutFiles {};

TEST_F(CutReport, JsonTellsOfThePiece) {
    const Ran ran = Cut(Rib(), {"-o", folder.Path("rib.dxf"), "--json"});
    ASSERT_EQ(ran.status, 0) << ran.err;
    ASSERT_EQ(LinesOf(ran.out).size(), 1U);
    EXPECT_THAT(ran.out, StartsWith("{\"file\": \"" + folder.Path("rib.lfw") + "\", "));
    EXPECT_THAT(ran.out, HasSubstr("\"piece\": \"rib\""));
    EXPECT_THAT(ran.out, HasSubstr("\"warnings\": []"));
    const ReadCut cut = JoinedLines(ReadWholeFile(folder.Path("rib.dxf")));
    constexpr double kPi = 3.14159265358979;
    double area = -kPi * 16;
    double length = 2 * kPi * 4;
    for (const ReadRing &ring : cut.rings) {
        area += AreaOf(ring);
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const ReadPoint &next = ring[(i + 1) % ring.size()];
            length += std::hypot(next.x - ring[i].x, next.y - ring[i].y);
        }
    }
    EXPECT_NEAR(Number(ran.out, "area"), area, 1e-3);
    EXPECT_NEAR(Number(ran.out, "cut"), length, 1e-3);
    EXPECT_EQ(Number(ran.out, "parts"), 1);
    const auto box = BoxOf(cut);
    const std::vector<double> told = Numbers(ran.out, "box");
    ASSERT_EQ(told.size(), 4U);
    for (std::size_t i = 0; i < told.size(); ++i) {
        EXPECT_NEAR(told[i], box[i], 1e-6);
    }
}

TEST_F(CutReport, JsonStaysInMillimetres) {
    const Ran ran = Cut(LadenRib("0", true), {"-o", folder.Path("rib.dxf"), "--json"}, true);
    ASSERT_EQ(ran.status, 0) << ran.err;
    const std::vector<double> box = Numbers(ran.out, "box");
    ASSERT_EQ(box.size(), 4U);
    EXPECT_NEAR(box[2], (6.5 - 1) * 25.4, 1e-4); // the chord less an inch of stock
}

TEST_F(CutReport, StandardOutputHasTheFileAndNothingElse) {
    const Ran ran = Cut(Rib(), {"--to", "svg", "-o", "-", "--json"});
    ASSERT_EQ(ran.status, 0) << ran.err;
    ASSERT_EQ(Cut(Rib(), {"-o", folder.Path("rib.svg")}).status, 0);
    EXPECT_EQ(ran.out, ReadWholeFile(folder.Path("rib.svg")));
    EXPECT_THAT(LinesOf(ran.err),
                testing::ElementsAre(AllOf(StartsWith("{\"file\": "), EndsWith("}"))));
}

TEST_F(CutReport, AWarningIsALineInTheUsersLanguageAndStandsInTheJson) {
    ComponentsText rib = Rib();
    rib.holes[0][3] = "9"; // moved up by 9 mm, out of the rib
    const Ran ran = Cut(rib, {"-o", folder.Path("rib.svg"), "--json"});
    ASSERT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(ran.err, HasSubstr("rib.lfw: Hole 1 leaves the wood and opens its outline.\n"));
    EXPECT_THAT(ran.out, HasSubstr("\"Hole 1 leaves the wood and opens its outline.\""));
    const Ran french = Cut(rib, {"-o", folder.Path("rib.svg"), "--language", "French"});
    EXPECT_THAT(french.err, HasSubstr("rib.lfw: Le trou 1 sort du bois"));
    EXPECT_EQ(french.out, "");
    const Ran out = Cut(rib, {"--to", "svg", "-o", "-", "--json"});
    EXPECT_THAT(LinesOf(out.err), Each(StartsWith("{")));
}

TEST_F(CutReport, ARibWithoutAPieceIsRefusedInWordsAndLeavesNoFile) {
    ComponentsText rib = Rib();
    rib.sheeting = "6";
    rib.trailing = "0";
    rib.spars[0] = {"170", "5", "3", "1", "1", "1", "0", "0", "0"}; // the inner faces have met
    const std::string out = folder.Path("no.dxf");
    const Ran ran = Cut(rib, {"-o", out, "--json"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("No piece can be made: where spar 1 stands"));
    EXPECT_THAT(ran.out, AllOf(StartsWith("{\"file\": "), HasSubstr("\"refused\": \"No piece")));
    EXPECT_FALSE(fs::exists(out));
}

TEST_F(CutReport, AFoamTemplateIsTwoPiecesAndTheWireLowersBoth) {
    ComponentsText rib = LadenRib("1", false);
    rib.washout = "0"; // ends that stand upright
    const std::string out = folder.Path("foam.svg");
    const auto areas = [&](const std::string &wire) {
        const Ran ran = Cut(rib, {"-o", out, "--wire", wire, "--json"});
        EXPECT_EQ(ran.status, 0) << ran.err;
        const std::vector<std::string> lines = LinesOf(ran.out);
        EXPECT_EQ(lines.size(), 2U);
        if (lines.size() != 2) {
            return std::array{0.0, 0.0};
        }
        EXPECT_THAT(lines[0], HasSubstr("\"piece\": \"upper\""));
        EXPECT_THAT(lines[1], HasSubstr("\"piece\": \"lower\""));
        return std::array{Number(lines[0], "area"), Number(lines[1], "area")};
    };
    const auto plain = areas("0");
    const auto melted = areas("1");
    const double length = std::stod(rib.chord) + std::stod(rib.ramp) + std::stod(rib.tail_ramp);
    EXPECT_NEAR(plain[0] - melted[0], length / 2, 0.05);
    EXPECT_NEAR(plain[1] - melted[1], length / 2, 0.05);
    EXPECT_GT(plain[0], plain[1]);
}

TEST_F(CutReport, ATemplateTooLowForItsWireIsRefusedInWords) {
    ComponentsText rib = LadenRib("1", false);
    rib.below = "1";
    const Ran ran = Cut(rib, {"-o", folder.Path("no.svg")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("No template can be made: the wire's path leaves the block."));
    EXPECT_FALSE(fs::exists(folder.Path("no.svg")));
}

TEST_F(CutReport, ARibThatCannotBeDrawnIsRefusedInTheSameWords) {
    ComponentsText rib = Rib();
    rib.edge = "100";
    rib.trailing = "100";
    const std::string file = folder.File("rib.lfw", rib.Current());
    const Ran draw =
        RunLoftwing({"draw", file, "--airfoils", kAirfoils, "-o", folder.Path("no.svg")});
    const Ran cut = Cut(rib, {"-o", folder.Path("no.svg")});
    EXPECT_EQ(draw.status, 1);
    EXPECT_EQ(cut.status, 1);
    EXPECT_EQ(cut.err, draw.err);
    EXPECT_FALSE(fs::exists(folder.Path("no.svg")));
}

TEST_F(CutReport, TheHeelsMarginsAreInForceWithoutAWord) {
    const Ran ran = Cut(LadenRib("11", false), {"--to", "dxf", "-o", "-"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_THAT(ran.err, Not(HasSubstr("margins")));
}

TEST_F(CutReport, MarginsThatAreTooLongAreRefusedAsInADrawingWithThem) {
    ComponentsText rib = LadenRib("11", false);
    rib.heel_front = "100";
    rib.heel_back = "80"; // of a chord of 170
    const Ran cut = Cut(rib, {"-o", folder.Path("no.svg")});
    const Ran draw = RunLoftwing({"draw", folder.Path("rib.lfw"), "--airfoils", kAirfoils, "-o",
                                  folder.Path("no.svg"), "--heel"});
    EXPECT_EQ(cut.status, 1);
    EXPECT_THAT(cut.err, HasSubstr("longer than the chord"));
    EXPECT_EQ(cut.err, draw.err);
    EXPECT_FALSE(fs::exists(folder.Path("no.svg")));
}

TEST_F(CutReport, SeveralFilesGoToAFolderAndARefusedOneStopsNoOther) {
    const std::string out = folder.Path("cut");
    const Ran ran = RunLoftwing({"cut", Sample("naca2412.dat"), folder.Path("none.dat"),
                                 Sample("naca0012.dat"), "--to", "DXF", "-o", out, "--json"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(LinesOf(ran.out).size(), 3U);
    EXPECT_THAT(ran.err, HasSubstr("none.dat was refused\n"));
    EXPECT_EQ(JoinedLines(ReadWholeFile(out + "/naca2412.dxf")).problem, "");
    EXPECT_EQ(JoinedLines(ReadWholeFile(out + "/naca0012.dxf")).rings.size(), 1U);
    EXPECT_FALSE(fs::exists(out + "/none.dxf"));
}

TEST_F(CutReport, WrongUsageIsStatusTwo) {
    const std::string file = Sample("naca2412.dat");
    const std::string out = folder.Path("rib.dxf");
    const std::vector<std::vector<std::string>> wrong = {
        {"cut"},
        {"cut", file},
        {"cut", file, "-o", folder.Path("rib.png")},
        {"cut", file, "-o", folder.Path("rib")},
        {"cut", file, "-o", "-"},
        {"cut", file, file, "-o", out},
        {"cut", file, "-o", out, "--kerf", "wide"},
        {"cut", file, "-o", out, "--kerf", "-0.2"},
        {"cut", file, "-o", out, "--wire", ""},
        {"cut", file, "-o", out, "--kerf", "100.5"},
        {"cut", file, "-o", out, "--wire", "4", "--unit", "in"}, // 101.6 mm
        {"cut", file, "-o", out, "--paper", "A4"}};
    for (const auto &words : wrong) {
        const Ran ran = RunLoftwing(words);
        EXPECT_EQ(ran.status, 2) << words.back();
        EXPECT_EQ(ran.out, "");
    }
    EXPECT_FALSE(fs::exists(out));
    EXPECT_EQ(RunLoftwing({"cut", file, "-o", out, "--kerf", "100"}).status, 0);
    const Ran help = RunLoftwing({"cut", "--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_THAT(help.out, AllOf(HasSubstr("--kerf LENGTH"), HasSubstr("svg, dxf, pdf")));
}

class CutElsewhere : public CutFiles {};

TEST_F(CutElsewhere, AReaderOfDxfFindsNothingToRepair) {
    if (RunShell("/usr/bin/python3 -c 'import ezdxf'").status != 0) {
        GTEST_SKIP() << "no ezdxf";
    }
    for (const bool inches : {false, true}) {
        for (const char *form : {"lines", "polylines"}) {
            std::vector<std::string> words = {"-o", folder.Path("rib.dxf")};
            if (std::string(form) == "polylines") {
                words.emplace_back("--polylines");
            }
            ASSERT_EQ(Cut(LadenRib("0", inches), words, inches).status, 0);
            const Ran facts = RunShell("HOME=" + ShellWord(folder.Path()) + " /usr/bin/python3 " +
                                       ShellWord(LOFTWING_SOURCE_DIR "/tests/e2e/dxf_facts.py") +
                                       " " + ShellWord(folder.Path("rib.dxf")));
            ASSERT_EQ(facts.status, 0) << facts.err;
            const std::vector<std::string> all = LinesOf(facts.out);
            for (const char *fact : {"errors 0", "fixes 0", "$ACADVER AC1009", "layer CUT",
                                     "layer MARK", "used-layer CUT", "used-layer MARK"}) {
                EXPECT_THAT(all, testing::Contains(fact)) << form;
            }
            EXPECT_THAT(all, testing::Contains(inches ? "$INSUNITS 1" : "$INSUNITS 4"));
            const bool has_polylines = facts.out.find("\nPOLYLINE") != std::string::npos;
            EXPECT_EQ(has_polylines, std::string(form) == "polylines");
        }
    }
}

TEST_F(CutElsewhere, ACadProgramPrintsThePieceAtItsSize) {
    NeedsPrograms({"librecad", "pdftoppm", "pdfinfo"});
    if (IsSkipped()) {
        return;
    }
    const std::string out = folder.Path("rib.dxf");
    ASSERT_EQ(Cut(Rib(), {"-o", out, "--no-marks"}).status, 0);
    const auto box = BoxOf(JoinedLines(ReadWholeFile(out)));
    const Ink ink = InkOn(Printed(out));
    EXPECT_NEAR(ink.width, box[2] - box[0], 1.0);
    EXPECT_NEAR(ink.height, box[3] - box[1], 1.0);
}

TEST_F(CutElsewhere, APdfIsOnePageOfTheDrawingsSize) {
    NeedsPrograms({"pdftoppm", "pdfinfo"});
    if (IsSkipped()) {
        return;
    }
    const std::string out = folder.Path("rib.pdf");
    ASSERT_EQ(Cut(Rib(), {"-o", out, "--no-marks"}).status, 0);
    const auto box = BoxOf(JoinedLines(Bytes(Rib(), "dxf")));
    EXPECT_THAT(RunShell("LC_ALL=C pdfinfo " + ShellWord(out)).out,
                testing::ContainsRegex("Pages: +1\n"));
    const auto [width, height] = PageOf(out);
    EXPECT_NEAR(width, box[2] - box[0] + 10, 0.4); // whole points
    EXPECT_NEAR(height, box[3] - box[1] + 10, 0.4);
    const Ink ink = InkOn(out);
    EXPECT_NEAR(ink.width, box[2] - box[0], 0.3);
    EXPECT_NEAR(ink.height, box[3] - box[1], 0.3);
}

} // namespace
} // namespace loftwing
