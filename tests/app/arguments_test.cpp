#include "app/arguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Typed = std::vector<std::string>;

const std::vector<OptionRule> kRules = {{"--unit", "mm|in", "unit"},
                                        {"--yes", nullptr, "answer Yes"},
                                        {"--airfoils", "DIR", "folder", true},
                                        {"--chords", "MAJOR MINOR", "both chords", false, 2},
                                        {"--gaps", "G1 ...", "all gaps", false, kAllWords}};

std::string Refusal(const Typed &words) {
    try {
        const Arguments arguments(words, kRules);
    } catch (const UsageError &error) {
        return error.what();
    }
    return "";
}

TEST(Arguments, OneValueStandsBehindItsOptionOrAnEqualsSign) {
    EXPECT_EQ(Arguments({"--unit", "in"}, kRules).Value("--unit"), "in");
    EXPECT_EQ(Arguments({"--unit=in"}, kRules).Value("--unit"), "in");
    EXPECT_EQ(Arguments({"--unit", "-5"}, kRules).Value("--unit"), "-5");
    EXPECT_EQ(Arguments({}, kRules).Value("--unit", "mm"), "mm");
    EXPECT_THAT(Arguments({"--airfoils", "a", "--airfoils", "b"}, kRules).Values("--airfoils"),
                ElementsAre("a", "b"));
}

TEST(Arguments, AFixedNumberOfValuesLeavesTheNextWordToTheFiles) {
    const Arguments arguments({"root.dat", "--chords", "200", "150", "tip.dat", "--yes"}, kRules);
    EXPECT_THAT(arguments.Values("--chords"), ElementsAre("200", "150"));
    EXPECT_THAT(arguments.Files(), ElementsAre("root.dat", "tip.dat"));
    EXPECT_TRUE(arguments.Has("--yes"));
    EXPECT_FALSE(arguments.Has("--gaps"));
    EXPECT_THAT(arguments.Values("--gaps"), IsEmpty());
}

TEST(Arguments, AllWordsUpToTheNextOptionAreItsValues) {
    const Arguments arguments({"--gaps", "10", "20", "30", "--yes", "tip.dat"}, kRules);
    EXPECT_THAT(arguments.Values("--gaps"), ElementsAre("10", "20", "30"));
    EXPECT_THAT(arguments.Files(), ElementsAre("tip.dat"));
    EXPECT_THAT(Arguments({"--gaps", "10"}, kRules).Values("--gaps"), ElementsAre("10"));
    const Arguments ended({"--gaps", "10", "--", "--odd.dat"}, kRules);
    EXPECT_THAT(ended.Values("--gaps"), ElementsAre("10"));
    EXPECT_THAT(ended.Files(), ElementsAre("--odd.dat"));
}

TEST(Arguments, TooFewValuesAreWrongUsage) {
    EXPECT_EQ(Refusal({"--unit"}), "option --unit wants a value");
    EXPECT_EQ(Refusal({"--chords", "200"}), "option --chords wants MAJOR MINOR");
    EXPECT_EQ(Refusal({"--chords", "200", "--yes"}), "option --chords wants MAJOR MINOR");
    EXPECT_EQ(Refusal({"--gaps"}), "option --gaps wants G1 ...");
    EXPECT_EQ(Refusal({"--gaps", "--yes"}), "option --gaps wants G1 ...");
}

TEST(Arguments, OptionsThatDontFitAreWrongUsage) {
    EXPECT_EQ(Refusal({"--colour"}), "unknown option --colour");
    EXPECT_EQ(Refusal({"--yes=1"}), "option --yes takes no value");
    EXPECT_EQ(Refusal({"--unit", "in", "--unit", "mm"}), "option --unit stands twice");
    EXPECT_EQ(Refusal({"--chords", "2", "1", "--chords", "2", "1"}),
              "option --chords stands twice");
    EXPECT_EQ(Refusal({"--gaps=1"}), "option --gaps takes G1 ... as words of their own");
}

} // namespace
} // namespace loftwing
