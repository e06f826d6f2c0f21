// Building plan and list of parts, made by the built program and measured in its files.

#include "base/whole_file.h"
#include "e2e/svg_lines.h"
#include "e2e/tapered_panel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <regex>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr double kClaim = 0.02; // mm

/// Middles at 1, 101, 201 and 301 of 302 mm.
class PlanFiles : public TaperedPanel {
  protected:
    Ran Panel(std::vector<std::string> more) {
        more.insert(more.begin(), {"--count", "2"});
        return TaperedPanel::Panel(std::move(more));
    }
    Ran Plan(std::vector<std::string> more) {
        more.insert(more.begin(), {"--length", "302", "--thickness", "2"});
        return Panel(std::move(more));
    }
    /// Saves the panel of some more words.
    std::string Saved(const std::string &name, std::vector<std::string> more) {
        const std::string file = folder.Path(name);
        more.insert(more.end(), {"--length", "302", "--thickness", "2", "--save", file});
        const Ran ran = Panel(more);
        EXPECT_EQ(ran.status, 0) << ran.err;
        return file;
    }
    static std::vector<SvgPath> Group(const std::string &svg, const std::string &name) {
        const std::size_t from = svg.find("<g id=\"" + name + "\"");
        EXPECT_NE(from, std::string::npos) << name;
        return PathsOf(svg.substr(from, svg.find("</g>", from) - from));
    }
    static void ExpectCorner(const SvgPoint &point, double x, double y) {
        EXPECT_NEAR(point.x, x, kClaim);
        EXPECT_NEAR(point.y, y, kClaim);
    }
    /// Sizes of all pages, points.
    static std::vector<std::pair<double, double>> PagesOf(const std::string &pdf) {
        const std::string told = RunShell("pdfinfo -l -1 " + ShellWord(pdf)).out;
        const std::regex line("Page +[0-9]+ size: +([0-9.]+) x ([0-9.]+) pts");
        std::vector<std::pair<double, double>> sizes;
        for (std::sregex_iterator at(told.begin(), told.end(), line), end; at != end; ++at) {
            sizes.emplace_back(std::stod((*at)[1]), std::stod((*at)[2]));
        }
        return sizes;
    }
};

TEST_F(PlanFiles, TheSvgIsMeasuredInMillimetres) {
    const std::string file = folder.Path("plan.svg");
    const Ran ran = Plan({"--sweep", "30.2", "--plan", file});
    ASSERT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.out, file + "\n");
    const std::string svg = ReadWholeFile(file);
    const auto ribs = Group(svg, "RIBS");
    ASSERT_EQ(ribs.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        const double middle = 1 + 100.0 * static_cast<double>(i);
        const double nose = 30.2 * middle / 302;
        const double chord = 240 - 40.0 * static_cast<double>(i);
        ASSERT_EQ(ribs[i].points.size(), 4U);
        ExpectCorner(ribs[i].points[0], middle - 1, nose);
        ExpectCorner(ribs[i].points[1], middle + 1, nose);
        ExpectCorner(ribs[i].points[2], middle + 1, nose + chord);
        ExpectCorner(ribs[i].points[3], middle - 1, nose + chord);
    }
    const auto spars = Group(svg, "SPARS");
    ASSERT_EQ(spars.size(), 1U);
    // 36 mm aft of the nose less over 300 mm, 2 mm narrower, on to the faces.
    ExpectCorner(spars[0].points[0], 0, 72.12 - 3.0033);
    ExpectCorner(spars[0].points[1], 302, 30.2 + 35.88 - 1.9967);
    ExpectCorner(spars[0].points[2], 302, 30.2 + 35.88 + 1.9967);
    ExpectCorner(spars[0].points[3], 0, 72.12 + 3.0033);
    ExpectCorner(Group(svg, "OUTLINE").at(0).points[2], 302, 30.2 + 119.6);
}

TEST_F(PlanFiles, BothWingsAreALargePageEach) {
    const std::string file = folder.Path("plan.pdf");
    ASSERT_EQ(Plan({"--plan", file, "--mirror"}).status, 0);
    const auto sizes = PagesOf(file);
    ASSERT_EQ(sizes.size(), 2U);
    EXPECT_EQ(sizes[0], sizes[1]);
    EXPECT_GT(sizes[0].first, 302 / 25.4 * 72);
    EXPECT_GT(sizes[0].second, 240 / 25.4 * 72);
}

TEST_F(PlanFiles, SheetsAreOfThePaperThatWasNamed) {
    const std::string file = folder.Path("plan.pdf");
    ASSERT_EQ(Plan({"--plan", file, "--paper", "A4"}).status, 0);
    const auto sizes = PagesOf(file);
    EXPECT_GE(sizes.size(), 2U); // one isn't long enough
    for (const auto &[width, height] : sizes) {
        EXPECT_NEAR(std::max(width, height), 297 / 25.4 * 72, 1);
        EXPECT_NEAR(std::min(width, height), 210 / 25.4 * 72, 1);
    }
    const Ran ran =
        Plan({"--plan", folder.Path("none.pdf"), "--paper", "60x60", "--overlap", "45"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("sheets"));
    EXPECT_FALSE(fs::exists(folder.Path("none.pdf")));
}

TEST_F(PlanFiles, TheDxfHasALayerOfEveryKind) {
    const std::string file = folder.Path("plan.dxf");
    root.holes[0] = {"120", "20", "1", "0", "0", "0", "0", "0"};
    tip.holes[0] = {"60", "10", "1", "0", "0", "0", "0", "0"};
    const Ran ran = Plan({"--plan", file, "--dihedral", "4", "--yes"});
    ASSERT_EQ(ran.status, 0) << ran.err;
    const std::string dxf = ReadWholeFile(file);
    for (const char *layer :
         {"OUTLINE", "RIBS", "SPARS", "SHEETING", "HOLES", "FRONT", "DIMENSIONS", "TITLE"}) {
        EXPECT_THAT(dxf, HasSubstr("\r\n8\r\n" + std::string(layer) + "\r\n")) << layer;
    }
}

TEST_F(PlanFiles, PanelsInARowMakeOnePlan) {
    const std::string inner = Saved("inner.lfp", {"--dihedral", "2", "--sweep", "10"});
    const std::string outer = Saved("outer.lfp", {"--dihedral", "6", "--first", "40"});
    const std::string file = folder.Path("wing.svg");
    const std::string list = folder.Path("wing.csv");
    const Ran ran = RunLoftwing({"plan", inner, outer, inner, "--first", "3", "--airfoils",
                                 kAirfoils, "-o", file, "--parts", list});
    ASSERT_EQ(ran.status, 0) << ran.err;
    const std::string svg = ReadWholeFile(file);
    const auto ribs = Group(svg, "RIBS");
    ASSERT_EQ(ribs.size(), 12U);
    ExpectCorner(ribs[4].points[0], 302, 10);
    ExpectCorner(ribs[8].points[0], 604, 10 + 10.0 / 302);
    EXPECT_THAT(svg,
                AllOf(HasSubstr(">3</text>"), HasSubstr(">14</text>"), HasSubstr("joint 4\u00b0"),
                      HasSubstr("joint -4\u00b0"), Not(HasSubstr(">40</text>"))));
    EXPECT_THAT(ReadWholeFile(list), HasSubstr("Panel 2: outer"));
}

TEST_F(PlanFiles, AWingFileNamesItsPanels) {
    Saved("inner.lfp", {});
    const std::string wing =
        folder.File("wing.lfa", "[Wing]\r\nFirst=21\r\nPanel1=inner.lfp\r\nPanel2=inner.lfp\r\n");
    const std::string file = folder.Path("wing.svg");
    const Ran ran = RunLoftwing({"plan", wing, "--airfoils", kAirfoils, "-o", file});
    ASSERT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(Group(ReadWholeFile(file), "RIBS").size(), 8U);
    EXPECT_THAT(ReadWholeFile(file), AllOf(HasSubstr(">21</text>"), HasSubstr(">28</text>")));
    EXPECT_EQ(RunLoftwing({"plan", wing, wing, "-o", file}).status, 2);
}

TEST_F(PlanFiles, AListKnowsTheSheetsThatWereLaid) {
    const std::string list = folder.Path("parts.txt");
    const Ran ran = Plan(
        {"-o", folder.Path("ribs"), "--sheet", "100x1000", "--parts", list, "--density", "160"});
    ASSERT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(ReadWholeFile(list), AllOf(HasSubstr("100 x 1000"), HasSubstr("Weight (g)")));
}

TEST_F(PlanFiles, WhatHasNoPlanIsRefusedAndWritesNothing) {
    const std::string file = folder.Path("plan.svg");
    const auto refused = [&](const Ran &ran, int status, const std::string &words) {
        EXPECT_EQ(ran.status, status) << ran.err;
        EXPECT_THAT(ran.err, HasSubstr(words));
        EXPECT_FALSE(fs::exists(file));
    };
    refused(Panel({"--plan", file}), 1, "The plan wants the length of the panel.");
    refused(Panel({"--plan", file, "--length", "7", "--thickness", "2"}), 1, "thicker");
    refused(Plan({"--plan", file, "--sweep", "abc"}), 2, "--sweep");
    refused(Plan({"--plan", file, "--dihedral", "90"}), 2, "--dihedral");
    refused(Plan({"--plan", file, "--density", "-1"}), 2, "--density");
    refused(Plan({"--plan", folder.Path("plan.png")}), 2, ".pdf, .svg or .dxf");
    refused(RunLoftwing({"plan", "-o", file}), 2, "plan wants panel files");
    refused(RunLoftwing({"plan", folder.Path("none.lfp"), "-o", file}), 1, "none.lfp");
    const std::string inches = folder.File("inch.lfp", "[Panel]\r\nRoot=root.lfw\r\nTip=tip.lfw\r\n"
                                                       "Unit=in\r\nCount=2\r\nLength=12\r\n");
    refused(RunLoftwing({"plan", inches, "-o", file}), 2, "add --unit in");
}

TEST_F(PlanFiles, AFileThatIsReadIsNeverWritten) {
    const std::string panel = Saved("wing.lfp", {});
    const std::string before = ReadWholeFile(panel);
    const std::string plan = folder.Path("plan.svg");
    EXPECT_EQ(RunLoftwing({"plan", panel, "-o", plan, "--parts", panel}).status, 2);
    EXPECT_EQ(ReadWholeFile(panel), before);
    EXPECT_EQ(Plan({"--plan", plan, "--parts", plan}).status, 2);
    EXPECT_EQ(Plan({"--parts", folder.Path("root.lfw"), "--yes"}).status, 2);
    EXPECT_EQ(Plan({"--parts", folder.Path("list.xls")}).status, 2);
    EXPECT_FALSE(fs::exists(plan));
}

TEST_F(PlanFiles, ChordsThatDoNotMeetAndWeightsWithoutThicknessAreTold) {
    const std::string panel = Saved("wing.lfp", {"--density", "160"});
    const Ran ran = RunLoftwing(
        {"plan", panel, panel, "--airfoils", kAirfoils, "--parts", folder.Path("a.txt")});
    EXPECT_EQ(ran.status, 0);
    EXPECT_THAT(ran.err, HasSubstr("wing.lfp: its root chord isn't the tip chord of the panel "
                                   "before: 240 / 120 mm"));
    const Ran bare =
        Panel({"--length", "302", "--density", "160", "--parts", folder.Path("b.txt")});
    EXPECT_EQ(bare.status, 0);
    EXPECT_THAT(bare.err, HasSubstr("There are no weights"));
}

TEST_F(PlanFiles, AFileThatExistsStaysUnlessYes) {
    const std::string file = folder.File("plan.svg", "mine");
    EXPECT_EQ(Plan({"--plan", file}).status, 1);
    EXPECT_EQ(ReadWholeFile(file), "mine");
    EXPECT_EQ(Plan({"--plan", file, "--yes"}).status, 0);
    EXPECT_NE(ReadWholeFile(file), "mine");
}

TEST_F(PlanFiles, TwoRunsAreTheSameToTheByte) {
    for (const char *name : {"a.svg", "a.dxf", "a.csv", "a.txt"}) {
        const std::string file = folder.Path(name);
        const bool list = std::string(name).ends_with("csv") || std::string(name).ends_with("txt");
        ASSERT_EQ(Plan({list ? "--parts" : "--plan", file}).status, 0);
        const std::string first = ReadWholeFile(file);
        ASSERT_EQ(Plan({list ? "--parts" : "--plan", file, "--yes"}).status, 0);
        EXPECT_EQ(ReadWholeFile(file), first) << name;
    }
}

} // namespace
} // namespace loftwing
