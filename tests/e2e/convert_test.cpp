#include "e2e/program.h"

#include "base/number_text.h"
#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

namespace loftwing {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace fs = std::filesystem;

/// A sample's lines of points, and its nose's place among them.
std::vector<std::string> SamplePoints() {
    std::vector<std::string> lines = SplitLines(ReadWholeFile(Sample("naca2412.dat")));
    lines.erase(lines.begin());
    return lines;
}

/// The sample as two lists from the nose with their counts in front.
std::string Lednicer() {
    const std::vector<std::string> lines = SamplePoints();
    const auto nose = lines.begin() + static_cast<std::ptrdiff_t>(lines.size() / 2);
    std::vector<std::string> upper(lines.begin(), nose + 1);
    std::reverse(upper.begin(), upper.end());
    const std::vector<std::string> lower(nose, lines.end());
    std::string text = "Two lists\n " + std::to_string(upper.size()) + ". " +
                       std::to_string(lower.size()) + ".\n\n";
    for (const auto &list : {upper, lower}) {
        for (const std::string &line : list) {
            text += line + "\n";
        }
        text += "\n";
    }
    return text;
}

class ConvertVerb : public testing::Test {
  protected:
    TempFolder folder;
};

TEST_F(ConvertVerb, MakesAnAirfoilThatOpensOfTwoLists) {
    const std::string file = folder.File("lists.dat", Lednicer());
    EXPECT_EQ(RunLoftwing({"info", file}).status, 1);
    const Ran ran = RunLoftwing({"convert", file, "-o", folder.Path("out.dat")});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(ran.err, AllOf(StartsWith(file + ": Two lists were joined. All points are kept;"),
                               HasSubstr("%")));
    const Ran made = RunLoftwing({"info", folder.Path("out.dat"), "--contour", "--json"});
    const Ran sample = RunLoftwing({"info", Sample("naca2412.dat"), "--contour", "--json"});
    const auto contour = [](const std::string &json) { return json.substr(json.find("contourX")); };
    EXPECT_EQ(contour(made.out), contour(sample.out));
    EXPECT_THAT(made.out, HasSubstr("Two lists"));
}

TEST_F(ConvertVerb, TakesSeveralFilesIntoAFolderAndGoesOnAfterARefusedOne) {
    const std::string good = folder.File("good.txt", Lednicer());
    const std::string bad = folder.File("bad.txt", "words\nand no numbers\n");
    const std::string out = folder.Path("new/");
    const Ran ran = RunLoftwing({"convert", bad, good, folder.Path("none"), "-o", out});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, AllOf(HasSubstr(bad + ": The file is no airfoil : it has fewer than five "
                                               "points."),
                               HasSubstr(good + ": Two lists"), HasSubstr(folder.Path("none"))));
    EXPECT_TRUE(fs::exists(out + "good.dat"));
    EXPECT_FALSE(fs::exists(out + "bad.dat"));
}

TEST_F(ConvertVerb, LaysAsManyPointsAsAskedFor) {
    const Ran ran = RunLoftwing({"convert", Sample("naca2412.dat"), "--points", "90", "-o", "-"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(SplitLines(ran.out).size(), 91U);
    EXPECT_THAT(ran.err, HasSubstr("90 points were laid anew"));
    for (const char *points : {"39", "2561", "many", "-90", "1e3"}) {
        EXPECT_EQ(
            RunLoftwing({"convert", Sample("naca2412.dat"), "--points", points, "-o", "-"}).status,
            2)
            << points;
    }
}

TEST_F(ConvertVerb, LevelTurnsTheTrailingEdgeOntoTheReferenceLine) {
    std::string tilted = "tilted\n";
    for (const std::string &line : SamplePoints()) {
        const double x = LeadingNumber(Trim(line).substr(0, Trim(line).find(' ')));
        const double y = LeadingNumber(Trim(line).substr(Trim(line).find(' ')));
        tilted += std::to_string(x) + ";" + std::to_string(y + 0.1 * x) + "\n";
    }
    std::replace(tilted.begin(), tilted.end(), ',', '.');
    const Ran ran =
        RunLoftwing({"convert", folder.File("tilted.csv", tilted), "--level", "-o", "-"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_THAT(ran.err, HasSubstr("Turned onto the reference line by -5.7"));
}

TEST_F(ConvertVerb, SpeaksTheLanguageThatIsChosen) {
    const Ran ran = RunLoftwing(
        {"convert", folder.File("a.dat", Lednicer()), "-o", "-", "--language", "French"});
    EXPECT_THAT(ran.err, HasSubstr("Deux listes ont été réunies."));
}

TEST_F(ConvertVerb, WantsAFileAndAPlace) {
    EXPECT_EQ(RunLoftwing({"convert"}).status, 2);
    EXPECT_EQ(RunLoftwing({"convert", Sample("naca2412.dat")}).status, 2);
    EXPECT_EQ(RunLoftwing({"convert", Sample("naca2412.dat"), Sample("naca2412.dat"), "-o",
                           folder.Path("one.dat")})
                  .status,
              2);
    EXPECT_EQ(RunLoftwing({"convert", "--help"}).status, 0);
}

/// The sample at one of five of its points: coarse enough for a contour that swings.
std::string Coarse() {
    const std::vector<std::string> lines = SamplePoints();
    std::string text = "Coarse\n";
    for (std::size_t i = 0; i < lines.size(); i += 5) {
        text += lines[i] + "\n";
    }
    return lines.size() % 5 == 1 ? text : text + lines.back() + "\n";
}

TEST_F(ConvertVerb, EveryVerbThatReadsAirfoilsTakesTheImport) {
    const std::string lists = folder.File("lists.dat", Lednicer());
    const std::string rib = folder.Path("rib.lfw");
    fs::copy_file(Sample("naca2412.dat"), folder.Path("naca2412.dat"));
    ASSERT_EQ(RunLoftwing({"draw", folder.Path("naca2412.dat"), "-o", rib}).status, 0);
    folder.File("naca2412.dat", Lednicer());
    const std::string out = folder.Path("out");
    for (const std::vector<std::string> &words : std::vector<std::vector<std::string>>{
             {"draw", lists, "--to", "svg", "-o", out},
             {"draw", rib, "--to", "svg", "-o", out},
             {"info", lists},
             {"plot", lists, "--to", "svg", "-o", out},
             {"compare", lists, lists, "--to", "svg", "-o", folder.Path("compare.svg")},
             {"modify", lists, "--thickness", "10", "-o", folder.Path("modify.dat")},
             {"ribs", lists, lists, "--chords", "200", "100", "--count", "3", "-o",
              folder.Path("set")},
         }) {
        SCOPED_TRACE(words[0] + " " + words[1]);
        EXPECT_EQ(RunLoftwing(words).status, 1);
        std::vector<std::string> with = words;
        with.push_back("--import");
        const Ran ran = RunLoftwing(with);
        EXPECT_EQ(ran.status, 0) << ran.err;
    }
}

TEST_F(ConvertVerb, AContourThatLeavesItsPointsIsWarnedOf) {
    const std::string coarse = folder.File("coarse.dat", Coarse());
    const std::string warning =
        coarse + ": The contour leaves the smooth curve through the airfoil's points by ";
    for (const std::vector<std::string> &words : std::vector<std::vector<std::string>>{
             {"draw", coarse, "-o", folder.Path("a.svg")},
             {"info", coarse},
             {"ribs", coarse, Sample("naca2412.dat"), "--chords", "200", "100", "--count", "3",
              "-o", folder.Path("set")}}) {
        const Ran ran = RunLoftwing(words);
        EXPECT_EQ(ran.status, 0) << words[0] << ran.err;
        EXPECT_THAT(ran.err, HasSubstr(warning)) << words[0];
        std::vector<std::string> with = words;
        with.push_back("--import");
        EXPECT_EQ(RunLoftwing(with).err, "") << words[0];
    }
}

} // namespace
} // namespace loftwing
