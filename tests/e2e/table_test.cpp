#include "e2e/program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(Table, PrintsSpacingChordsAndSparPlaces) {
    const Ran ran = RunLoftwing({"table", "--chords", "200", "150", "--count", "3", "--length",
                                 "500", "--thickness", "2", "--spar", "60", "45"});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.out, "spacing  122.5\n1\t200\t60\n2\t 187.5\t 56.25\n3\t 175.\t 52.5\n"
                       "4\t 162.5\t 48.75\n5\t150\t45\n");
    EXPECT_EQ(ran.err, "");
}

TEST(Table, WithoutASparThereIsNoColumn) {
    const Ran ran = RunLoftwing({"table", "--chords", "200", "150", "--count", "1.9"});
    EXPECT_EQ(ran.out, "spacing 0\n1\t200\n2\t 175.\n3\t150\n");
    EXPECT_EQ(
        RunLoftwing({"table", "--chords", "200", "150", "--count", "1", "--spar", "0", "0"}).out,
        ran.out);
}

TEST(Table, TakesInches) {
    const Ran ran =
        RunLoftwing({"table", "--unit", "in", "--chords", "8", "6.1/2", "--count", "0"});
    EXPECT_EQ(ran.out, "spacing 0\n1\t8\n2\t6.1/2\n");
}

TEST(Table, ARefusalIsALineAndStatusOne) {
    const std::vector<std::vector<std::string>> refused = {
        {"table", "--chords", "100", "150", "--count", "3"},
        {"table", "--chords", "0", "0", "--count", "3"},
        {"table", "--chords", "200", "150", "--count", "32768"},
        {"table", "--unit", "in", "--chords", "8", "6", "--count", "3", "--length", "2./8"}};
    for (const auto &words : refused) {
        const Ran ran = RunLoftwing(words);
        EXPECT_EQ(ran.status, 1);
        EXPECT_EQ(ran.out, "");
        EXPECT_NE(ran.err, "");
    }
    EXPECT_THAT(RunLoftwing(refused.front()).err,
                StartsWith("Compute set of ribs  mm: The major chord is smaller"));
}

TEST(Table, WrongUsageIsStatusTwo) {
    const std::vector<std::vector<std::string>> wrong = {
        {"table"},
        {"table", "--chords", "200", "150"},
        {"table", "--count", "3"},
        {"table", "--chords", "200", "--count", "3"},
        {"table", "--chords", "200", "x", "--count", "3"},
        {"table", "--chords", "200", "150", "--count", "-1"},
        {"table", "--chords", "200", "150", "--count", ""},
        {"table", "--chords", "200", "150", "--count", "3", "more"}};
    for (const auto &words : wrong) {
        const Ran ran = RunLoftwing(words);
        EXPECT_EQ(ran.status, 2) << ran.err;
        EXPECT_EQ(ran.out, "");
    }
}

TEST(Dihedral, TwoOfThreeGiveTheThird) {
    EXPECT_EQ(RunLoftwing({"dihedral", "--length", "100", "--height", "100"}).out, " 45.00\n");
    EXPECT_EQ(RunLoftwing({"dihedral", "--angle", "30", "--height", "100"}).out, " 173.205\n");
    EXPECT_EQ(RunLoftwing({"dihedral", "--angle", "30", "--length", "100"}).out, " 57.735\n");
    EXPECT_EQ(RunLoftwing({"dihedral", "--unit", "in", "--length", "1.1/2", "--height", "3/2"}).out,
              " 45.00\n");
}

TEST(Dihedral, AnAngleAboveTheLimitIsToldAndComputedWith) {
    const Ran ran = RunLoftwing({"dihedral", "--angle", "89.5", "--length", "100"});
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.out, "11 458.865\n");
    EXPECT_EQ(ran.err, "Compute the dihedral  mm: The angle is limited to   89°\n");
}

TEST(Dihedral, ZerosThatGiveNothingAreRefused) {
    const Ran ran = RunLoftwing({"dihedral", "--length", "0", "--height", "5"});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.out, "");
    EXPECT_THAT(ran.err, HasSubstr("a value of 0 gives no angle"));
    EXPECT_EQ(RunLoftwing({"dihedral", "--angle", "0", "--height", "5"}).status, 1);
    EXPECT_EQ(RunLoftwing({"dihedral", "--angle", "0", "--length", "5"}).out, "0\n");
}

TEST(Dihedral, OtherThanTwoValuesIsWrongUsage) {
    EXPECT_EQ(RunLoftwing({"dihedral"}).status, 2);
    EXPECT_EQ(RunLoftwing({"dihedral", "--angle", "3"}).status, 2);
    EXPECT_EQ(RunLoftwing({"dihedral", "--angle", "3", "--length", "3", "--height", "3"}).status,
              2);
    EXPECT_EQ(RunLoftwing({"dihedral", "--angle", "-3", "--length", "3"}).status, 2);
    EXPECT_EQ(RunLoftwing({"dihedral", "--angle", "3", "--length", "3", "file.dat"}).status, 2);
}

} // namespace
} // namespace loftwing
