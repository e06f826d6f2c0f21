#include "e2e/program.h"

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
        double x = 0;
        double y = 0;
        std::sscanf(line.c_str(), "%lf %lf", &x, &y);
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

} // namespace
} // namespace loftwing
