// Ribs at an angle, on the command line.

#include "e2e/program.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class Angles : public testing::Test {
  protected:
    Angles()
        : file(folder.File("tiny.dat", "Tiny\n1 0\n0.5 0.1\n0 0\n0.5 -0.05\n1 0\n")),
          out(folder.Path("out.dat")) {}

    TempFolder folder;
    std::string file;
    std::string out;
};

TEST_F(Angles, ObliqueWritesTheAirfoilAndPrintsTheComputedChord) {
    const Ran ran =
        RunLoftwing({"oblique", file, "--template-chord", "200", "--angle", "30", "-o", out});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.out, " 100.\n");
    EXPECT_EQ(folder.Bytes("out.dat"), "Rib Chord :  100.00mm Angle  30.00°\r\n"
                                       "1.00000000  0.00000000\r\n"
                                       "0.50000000  0.20000000\r\n"
                                       "0.00000000  0.00000000\r\n"
                                       "0.50000000  -0.10000000\r\n"
                                       "1.00000000  0.00000000\r\n");
}

TEST_F(Angles, ObliqueTakesAnInternalChordInInches) {
    const Ran ran = RunLoftwing({"oblique", file, "--internal-chord", "3.3/4", "--angle", "30",
                                 "--unit", "in", "--language", "French", "-o", out});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.out, "7.1/2\n");
    EXPECT_THAT(folder.Bytes("out.dat"), StartsWith("Nervure Corde : 7.1/2in Angle  30.00°\r\n"));
}

TEST_F(Angles, InclineWritesTheAirfoil) {
    const Ran ran = RunLoftwing({"incline", file, "--angle", "60", "-o", out});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_EQ(ran.out, "");
    EXPECT_THAT(folder.Bytes("out.dat"), StartsWith("diedre  60.00°\r\n"
                                                    "1.00000000  0.00000000\r\n"
                                                    "0.50000000  0.20000000\r\n"));
}

TEST_F(Angles, ARefusalSaysWhyAndWritesNothing) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> refused = {
        {{"oblique", file, "--template-chord", "200", "--angle", "90"},
         "Rib Oblique  mm: The angle must not be more than 89° !\n"},
        {{"oblique", file, "--internal-chord", "200", "--angle", "91"},
         "Rib Oblique  mm: The angle must not be more than 90° !\n"},
        {{"oblique", file, "--internal-chord", "0", "--angle", "45"},
         "Rib Oblique  mm: Please enter a chord\n"},
        {{"oblique", file, "--template-chord", "1/0", "--angle", "45", "--unit", "in"},
         "loftwing: Division by zero\n"},
        {{"incline", file, "--angle", "0"}, "Dihedral rib: Please enter the angle\n"},
        {{"incline", file, "--angle", "90"},
         "Dihedral rib: The angle must not be more than 89° !\n"},
        {{"incline", folder.Path("missing.dat"), "--angle", "5"}, "File not found"},
    };
    for (auto [words, reason] : refused) {
        words.insert(words.end(), {"-o", out});
        const Ran ran = RunLoftwing(words);
        EXPECT_EQ(ran.status, 1) << reason;
        EXPECT_THAT(ran.err, HasSubstr(reason));
        EXPECT_EQ(ran.out, "");
        EXPECT_EQ(folder.Entries(), 1);
    }
}

TEST_F(Angles, AnOutThatCannotBeWrittenIsAFailure) {
    const std::string nowhere = folder.Path("nowhere/out.dat");
    for (const auto &words : std::vector<std::vector<std::string>>{
             {"oblique", file, "--template-chord", "200", "--angle", "30", "-o", nowhere},
             {"incline", file, "--angle", "30", "-o", nowhere}}) {
        const Ran ran = RunLoftwing(words);
        EXPECT_EQ(ran.status, 1);
        EXPECT_THAT(ran.err, HasSubstr(nowhere));
        EXPECT_EQ(ran.out, "");
    }
}

TEST_F(Angles, WrongUsageIsStatusTwo) {
    const std::vector<std::vector<std::string>> wrong = {
        {"oblique"},
        {"oblique", file, "--angle", "30", "-o", out},
        {"oblique", file, "--template-chord", "200", "-o", out},
        {"oblique", file, "--template-chord", "200", "--angle", "30"},
        {"oblique", file, file, "--template-chord", "200", "--angle", "30", "-o", out},
        {"oblique", file, "--template-chord", "2", "--internal-chord", "2", "--angle", "3", "-o",
         out},
        {"oblique", file, "--template-chord", "-2", "--angle", "30", "-o", out},
        {"oblique", file, "--template-chord", "2", "--angle", "x", "-o", out},
        {"incline", file, "-o", out},
        {"incline", file, "--angle", "5"},
        {"incline", file, "--angle", "-5", "-o", out},
        {"incline", "--angle", "5", "-o", out},
    };
    for (const auto &words : wrong) {
        const Ran ran = RunLoftwing(words);
        EXPECT_EQ(ran.status, 2) << testing::PrintToString(words);
        EXPECT_THAT(ran.err, StartsWith("loftwing: "));
    }
    EXPECT_EQ(folder.Entries(), 1);
}

} // namespace
} // namespace loftwing
