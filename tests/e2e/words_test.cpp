// What the command line says of a failure, in the language that it is asked for.

#include "e2e/program.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

constexpr const char *kFivePoints = "Five\n1 0\n0.5 0.1\n0 0\n0.5 -0.1\n1 0\n";

TEST(FailureWords, AreThoseOfTheLanguageThatIsAskedFor) {
    const TempFolder folder;
    const std::string out = folder.Path("none/rib.svg");
    const Ran english = RunLoftwing({"draw", Sample("naca2412.dat"), "-o", out});
    EXPECT_EQ(english.status, 1);
    EXPECT_EQ(english.err, "loftwing: Path not found: " + out + "\n");
    const Ran french =
        RunLoftwing({"draw", Sample("naca2412.dat"), "-o", out, "--language", "French"});
    EXPECT_EQ(french.status, 1);
    EXPECT_EQ(french.err, "loftwing: Chemin introuvable\u00a0: " + out + "\n");
}

TEST(FailureWords, AreThoseOfTheLanguageWhereAVerbFailsAsAWhole) {
    const std::vector<std::string> words = {"oblique",
                                            Sample("naca2412.dat"),
                                            "--template-chord",
                                            "1/0",
                                            "--angle",
                                            "45",
                                            "--unit",
                                            "in",
                                            "-o",
                                            "-"};
    const Ran english = RunLoftwing(words);
    EXPECT_EQ(english.err, "loftwing: Division by zero\n");
    std::vector<std::string> in_french = words;
    in_french.insert(in_french.end(), {"--language", "French"});
    EXPECT_EQ(RunLoftwing(in_french).err, "loftwing: Division par zéro\n");
}

TEST(FailureWords, NameFilePointsAndCauseOfAnAirfoilThatCannotBePrepared) {
    const TempFolder folder;
    const std::string five = folder.File("five.dat", kFivePoints);
    const Ran ran = RunLoftwing({"draw", five, "-o", folder.Path("rib.svg")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.err,
              " Calcul/Alocate: Error # 9 in Loftwing Subscript out of range: five.dat, too few "
              "points for an outline : 5\n"
              " Calcul/MiniX: Error # 9 in Loftwing Subscript out of range: five.dat, nothing of "
              "its outline can be drawn, too few points for an outline : 5\n");
    const Ran french =
        RunLoftwing({"draw", five, "-o", folder.Path("rib.svg"), "--language", "French"});
    EXPECT_THAT(french.err, HasSubstr("Indice hors limites\u00a0: five.dat, trop peu de points"));
}

TEST(FailureWords, NameThePointAndTheValueOfARefusal) {
    const TempFolder folder;
    const std::string bad = folder.File("bad.dat", "Bad\n1 0\n0 0\n0.99 0\n");
    const Ran ran = RunLoftwing({"info", bad});
    EXPECT_EQ(ran.status, 1);
    EXPECT_THAT(ran.err, HasSubstr(" Point 3, x = 0.99 "));
    EXPECT_THAT(ran.err, EndsWith("\n"));
}

} // namespace
} // namespace loftwing
