// Full sets of ribs from the command line.

#include "base/text_encoding.h"
#include "e2e/program.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace loftwing {
namespace {

using testing::HasSubstr;
using testing::Not;

TEST(Ribs, EvenSetWritesItsFilesAndPrintsTheirPaths) {
    const TempFolder folder;
    const std::string out = folder.Path("set");
    const Ran ran = RunLoftwing({"ribs", Sample("naca2412.dat"), Sample("naca0009.dat"), "--chords",
                                 "200", "100", "--count", "2", "-o", out});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.err, "");
    EXPECT_EQ(ran.out, out + "/naca2412&naca0009R01.dat\n" + out + "/naca2412&naca0009R02.dat\n" +
                           out + "/naca2412&naca0009R03.dat\n" + out +
                           "/naca2412&naca0009R04.dat\n" + out +
                           "/naca2412&naca0009_200_100_4.txt\n");
    for (const std::string &path : SplitLines(ran.out)) {
        EXPECT_TRUE(std::filesystem::exists(path)) << path;
    }
}

TEST(Ribs, WrittenRibsCanBeDrawnAtTheChordOfTheirTitle) {
    const TempFolder folder;
    ASSERT_EQ(RunLoftwing({"ribs", Sample("naca2412.dat"), Sample("naca0009.dat"), "--chords",
                           "200", "100", "--count", "1", "-o", folder.Path()})
                  .status,
              0);
    const Ran ran =
        RunLoftwing({"draw", folder.Path("naca2412&naca0009R02.dat"), "--to", "lfw", "-o", "-"});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_THAT(ran.out, HasSubstr("150"));
}

TEST(Ribs, VariableSetCountsItsGapsInTheSummary) {
    const TempFolder folder;
    const Ran ran = RunLoftwing({"ribs", Sample("naca2412.dat"), Sample("naca0009.dat"), "--chords",
                                 "200", "100", "--gaps", "30", "40", "--thickness", "2", "3", "4",
                                 "-o", folder.Path()});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(folder.Bytes("naca2412&naca0009_200_100_3.txt"),
              "Set of rib airfoils :  mm - Intermediate ribs : 2\r\n\r\n"
              "Rib #01 Chord :  200.00     Rib thickness =2\r\nDistance =30\r\n"
              "Rib #02 Chord :  157.24     Rib thickness =3\r\nDistance =40\r\n"
              "Rib #03 Chord :  100.00     Rib thickness =4\r\n");
}

/// Runs a set that is refused, and checks that nothing was written.
Ran Refused(const std::vector<std::string> &options, int status) {
    const TempFolder folder;
    std::vector<std::string> words = {"ribs", Sample("naca2412.dat"), Sample("naca0009.dat"), "-o",
                                      folder.Path()};
    words.insert(words.end(), options.begin(), options.end());
    Ran ran = RunLoftwing(words);
    EXPECT_EQ(ran.status, status) << ran.err;
    EXPECT_EQ(folder.Entries(), 0);
    EXPECT_EQ(ran.out, "");
    return ran;
}

TEST(Ribs, RefusedValuesWriteNothing) {
    EXPECT_THAT(Refused({"--chords", "200", "100", "--count", "91"}, 1).err,
                HasSubstr("90 Ribs !"));
    EXPECT_THAT(Refused({"--chords", "100", "200", "--count", "3"}, 1).err, HasSubstr("smaller"));
    EXPECT_THAT(Refused({"--chords", "2000", "200", "--count", "3"}, 1).err,
                HasSubstr("1999 mm !"));
    EXPECT_THAT(
        Refused({"--chords", "200", "100", "--gaps", "30", "0", "--thickness", "2", "2", "2"}, 1)
            .err,
        HasSubstr("zero"));
    std::vector<std::string> many = {"--chords", "200", "100", "--gaps"};
    many.insert(many.end(), 14, "30");
    many.emplace_back("--thickness");
    many.insert(many.end(), 15, "2");
    EXPECT_THAT(Refused(many, 1).err, HasSubstr("12"));
}

TEST(Ribs, LengthThatIsNoneInInchesIsRefused) {
    Refused({"--unit", "in", "--chords", "8", "/", "--count", "1"}, 1);
    Refused(
        {"--unit", "in", "--chords", "8", "4", "--gaps", "1", "2./8", "--thickness", "1", "1", "1"},
        1);
}

TEST(Ribs, OfTwoAirfoilsTheRefusedOneIsNamed) {
    const TempFolder folder;
    const std::string bad = folder.File("bad.dat", "Title\n0.5 0.1\n1.0 0.0\n");
    const std::string good = Sample("naca0009.dat");
    for (const auto &[root, tip] : {std::pair(bad, good), std::pair(good, bad)}) {
        const Ran ran = RunLoftwing({"ribs", root, tip, "--chords", "200", "100", "--count", "1",
                                     "-o", folder.Path("out")});
        EXPECT_EQ(ran.status, 1);
        EXPECT_THAT(ran.err, HasSubstr("loftwing: " + bad + " was refused\n"));
        EXPECT_THAT(ran.err, Not(HasSubstr(good)));
        EXPECT_FALSE(std::filesystem::exists(folder.Path("out")));
    }
}

TEST(Ribs, WrongUsageIsTold) {
    // Several files have no place on standard output.
    EXPECT_EQ(RunLoftwing({"ribs", Sample("naca2412.dat"), Sample("naca0009.dat"), "--chords",
                           "200", "100", "--count", "1", "-o", "-"})
                  .status,
              2);
    EXPECT_EQ(RunLoftwing({"ribs", Sample("naca2412.dat"), Sample("naca0009.dat"), "--chords",
                           "200", "100", "--count", "1", "-o", ""})
                  .status,
              2);

    Refused({"--chords", "200", "100"}, 2);
    Refused({"--count", "3"}, 2);
    Refused({"--chords", "200", "100", "--count", "x"}, 2);
    Refused({"--chords", "200", "100", "--count", "3", "--thickness", "2"}, 2);
    Refused({"--chords", "200", "100", "--gaps", "30", "30", "--thickness", "2", "2"}, 2);
}

TEST(Ribs, StationOutsideTheOtherAirfoilNamesBothAndWritesNothing) {
    const TempFolder folder;
    // The root's nose lies before the tip's, which ends in two points above each other.
    const std::string root =
        folder.File("root.dat", "root\n1 0\n0.5 0.1\n-0.001 0\n0.2 -0.1\n0.5 -0.1\n1 0\n");
    const std::string tip = folder.File("tip.dat", "tip\n1 0\n0.5 0.05\n0 0.01\n0 -0.01\n1 0\n");
    const std::string out = folder.Path("out");
    std::filesystem::create_directory(out);
    const Ran ran =
        RunLoftwing({"ribs", root, tip, "--chords", "200", "100", "--count", "1", "-o", out});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr("x = -0.001, root, tip"));
    EXPECT_TRUE(std::filesystem::is_empty(out));
}

} // namespace
} // namespace loftwing
