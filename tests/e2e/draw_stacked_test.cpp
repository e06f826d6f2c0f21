// The drawings of several ribs in one PDF.

#include "base/whole_file.h"
#include "e2e/program.h"
#include "support/components_text.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

namespace loftwing {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class DrawStacked : public testing::Test {
  protected:
    /// The bundled airfoil under another name, whose title brings a chord.
    std::string Airfoil(const std::string &name, const std::string &chord) const {
        std::string text = ReadWholeFile(Sample("naca2412.dat"));
        text.replace(0, text.find_first_of("\r\n"), "Rib 1: " + chord);
        return folder.File(name, text);
    }
    Ran Draw(const std::vector<std::string> &more) const {
        std::vector<std::string> words = {"draw", "--stacked"};
        words.insert(words.end(), more.begin(), more.end());
        return RunLoftwing(words);
    }
    /// The words of a page, in a row.
    std::string Page(int number) const {
        const std::string page = std::to_string(number);
        const Ran ran =
            RunShell("pdftotext -layout -f " + page + " -l " + page + " " + ShellWord(out) + " -");
        EXPECT_EQ(ran.status, 0) << ran.err;
        std::istringstream words(ran.out);
        std::string line;
        for (std::string word; words >> word;) {
            line += word + " ";
        }
        return line;
    }
    int Pages() const {
        const Ran ran = RunShell("pdfinfo " + ShellWord(out) + " | sed -n 's/^Pages: *//p'");
        return ran.out.empty() ? 0 : std::stoi(ran.out);
    }

    TempFolder folder;
    std::string out = folder.Path("ALL.pdf");
};

TEST_F(DrawStacked, AllRibsAreOnOnePageWithTheirLabels) {
    const Ran ran = Draw(
        {Airfoil("r1.dat", "200"), Airfoil("r2.dat", "180"), Airfoil("r3.dat", "160"), "-o", out});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.err, "");
    EXPECT_EQ(Pages(), 1);
    EXPECT_THAT(Page(1),
                AllOf(HasSubstr("r1 200 mm"), HasSubstr("r2 180 mm"), HasSubstr("r3 160 mm"),
                      HasSubstr("1/1"), HasSubstr("measure this line : 100 mm ALL ")));
}

TEST_F(DrawStacked, FurtherPagesAreNumberedAndHaveTheirCheckLine) {
    std::vector<std::string> words;
    for (int i = 1; i <= 12; ++i) {
        words.push_back(Airfoil("r" + std::to_string(i) + ".dat", "260"));
    }
    words.insert(words.end(), {"-o", out});
    EXPECT_EQ(Draw(words).status, 0);
    ASSERT_GT(Pages(), 1);
    for (int page = 1; page <= Pages(); ++page) {
        EXPECT_THAT(Page(page),
                    AllOf(HasSubstr(std::to_string(page) + "/" + std::to_string(Pages())),
                          HasSubstr("measure this line : ")));
    }
}

TEST_F(DrawStacked, InchesCountOverall) {
    const Ran ran = Draw({Sample("naca2412.dat"), Sample("naca0012.dat"), "--unit", "in", "--chord",
                          "7.1/2", "-o", out});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(Page(1), AllOf(HasSubstr("naca2412 7.1/2 in"), HasSubstr("naca0012 7.1/2 in"),
                               HasSubstr("measure this line : 4 in")));
}

TEST_F(DrawStacked, OneRibsFeaturesOnAllAirfoils) {
    ComponentsText rib;
    rib.text = "naca2412 Chord : 200";
    rib.text_x = "30";
    rib.text_y = "5";
    const Ran ran = Draw({folder.File("model.lfw", rib.Current()), "-o", out, "--on",
                          Airfoil("r1.dat", "180"), Airfoil("r2.dat", "160")});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(Pages(), 1);
    EXPECT_THAT(Page(1), AllOf(HasSubstr("r1 Chord : 180"), HasSubstr("r2 Chord : 160")));
}

TEST_F(DrawStacked, ALongRibIsTiledBehindTheOthers) {
    const Ran ran = Draw({Airfoil("long.dat", "600"), Airfoil("r2.dat", "160"), "-o", out});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(Pages(), 4);
    EXPECT_THAT(Page(1), HasSubstr("r2 160 mm"));
    EXPECT_THAT(Page(2), AllOf(HasSubstr("sheet 1 of 3"), HasSubstr("2/4")));
    const Ran without = Draw({Airfoil("long.dat", "600"), "--overlap", "0", "-o", out});
    EXPECT_EQ(without.status, 1);
    EXPECT_THAT(without.err, HasSubstr("--overlap"));
}

TEST_F(DrawStacked, ARefusedFileIsToldAndNothingIsWritten) {
    const std::string missing = folder.Path("none.dat");
    const Ran ran = Draw({Airfoil("r1.dat", "200"), missing, "-o", out});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr(missing));
    EXPECT_FALSE(std::filesystem::exists(out));
    folder.File("ALL.pdf", "as it was");
    EXPECT_EQ(Draw({Airfoil("r1.dat", "200"), "--le", "201", "-o", out}).status, 1);
    EXPECT_EQ(ReadWholeFile(out), "as it was");
}

TEST_F(DrawStacked, StandardOutputGetsOneFileOfAll) {
    const std::string other = Sample("naca0012.dat");
    const Ran ran = Draw({Sample("naca2412.dat"), other, "--to", "pdf", "-o", "-"});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(ran.out, StartsWith("%PDF"));
    for (const std::vector<std::string> &files :
         {std::vector<std::string>{other}, std::vector<std::string>{other, other}}) {
        std::filesystem::remove(out);
        std::vector<std::string> words = files;
        words.insert(words.end(), {"--to", "pdf", "-o", out});
        EXPECT_EQ(Draw(words).status, 0);
        EXPECT_THAT(ReadWholeFile(out), StartsWith("%PDF"));
    }
}

TEST_F(DrawStacked, OtherFormsAndViewsAreWrongUsage) {
    const std::string file = Sample("naca2412.dat");
    const std::vector<std::vector<std::string>> wrong = {
        {"draw", "--stacked", file, file, "-o", folder.Path("all.svg")},
        {"draw", "--stacked", file, "--to", "dxf", "-o", "-"},
        {"draw", "--stacked", file, file, "--to", "svg", "-o", folder.Path("all/")},
        {"draw", "--stacked", file, file},
        {"draw", "--stacked", "-o", out},
        {"draw", "--stacked", folder.Path("x.lfw"), "--on", file, "-o", folder.Path("all.svg")},
        {"plot", "--stacked", file, "-o", out},
        {"compare", "--stacked", file, file, "-o", out},
        {"cut", "--stacked", file, "-o", out},
    };
    for (const auto &words : wrong) {
        const Ran ran = RunLoftwing(words);
        EXPECT_EQ(ran.status, 2) << testing::PrintToString(words) << ran.err;
        EXPECT_THAT(ran.err, StartsWith("loftwing: ")) << testing::PrintToString(words);
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST_F(DrawStacked, TheHelpOfDrawTellsOfIt) {
    EXPECT_THAT(RunLoftwing({"draw", "--help"}).out, HasSubstr("  --stacked "));
    EXPECT_THAT(RunLoftwing({"plot", "--help"}).out, Not(HasSubstr("--stacked")));
}

} // namespace
} // namespace loftwing
