#include "base/number_text.h"

#include "support/failures.h"

#include <cmath>
#include <cstdlib>
#include <string>

namespace loftwing {
namespace {

struct Example {
    double value;
    const char *picture;
    const char *text;
};

void Check(std::initializer_list<Example> examples) {
    for (const Example &example : examples) {
        EXPECT_EQ(Format(example.value, example.picture), example.text)
            << example.value << " under \"" << example.picture << '"';
    }
}

TEST(Format, WritesTwoFixedDecimalsWithABlankBetweenThousands) {
    Check({{12.3, "# ###.00", " 12.30"},
           {1.0, "# ###.00", " 1.00"},
           {0.5, "# ###.00", " .50"},
           {1234.5, "# ###.00", "1 234.50"}});
}

TEST(Format, WritesUpToThreeDecimalsAndAlwaysThePoint) {
    Check({{1.0, "# ###.###", " 1."},
           {0.393700787401575, "# ###.###", " .394"},
           {12.3, "# ###.###", " 12.3"},
           {1234.0, "# ###.###", "1 234."},
           {10.01, "# ###.###", " 10.01"}});
}

TEST(Format, LeavesNothingOfZeroButForcedDigits) {
    Check({{0.0, "# ###.00", " .00"},
           {0.0, "# ###.###", " ."},
           {-0.0, "# ###.00", " .00"},
           {0.0, "#0.00", "0.00"},
           {0.0, "# ###0", " 0"},
           {0.0, "# ###0.00", " 0.00"},
           {0.0, "#", ""}});
}

TEST(Format, SetsTheMinusInFrontOfAll) {
    Check({{-12.3, "# ###.00", "- 12.30"},
           {-1234.5, "# ###.00", "-1 234.50"},
           {-0.5, "# ###.###", "- .5"},
           {-2.0, "#0.00", "-2.00"}});
}

TEST(Format, KeepsTheMinusOfWhatRoundsToZero) {
    Check({{-0.0004, "# ###.###", "- ."}, {-0.001, "#0.00", "-0.00"}});
}

TEST(Format, RoundsHalvesAwayFromZeroOnTheDecimalText) {
    // None of these is a half in binary; some lie below it there.
    Check({{1.005, "# ###.00", " 1.01"},
           {2.675, "# ###.00", " 2.68"},
           {0.015, "# ###.00", " .02"},
           {-1.005, "# ###.00", "- 1.01"},
           {0.0005, "# ###.###", " .001"},
           {0.00049999, "# ###.###", " ."},
           {0.5, "# ###0", " 1"},
           {2.5, "# ###0", " 3"},
           {-2.5, "# ###0", "- 3"},
           {0.4999, "# ###0", " 0"},
           {0.1 + 0.2 + 0.045, "# ###.00", " .35"}});
}

TEST(Format, CarriesIntoNewDigits) {
    Check({{999.995, "# ###.00", "1 000.00"},
           {9.9996, "# ###.###", " 10."},
           {0.9996, "# ###.###", " 1."},
           {999.9996, "# ###.###", "1 000."},
           {9999.5, "#", "10000"}});
}

TEST(Format, SetsDigitsWithoutAPlaceInFrontOfTheLeftmostOne) {
    Check({{12345.678, "# ###.00", "12 345.68"},
           {1234567.891, "# ###.00", "1234 567.89"},
           {-1234567.891, "# ###.00", "-1234 567.89"},
           {12345.6, "# ###0.00", "1 2345.60"},
           {1234567890.0, "# ### ###", "1234 567 890"},
           {1e15, "# ###.###", "1000000000000 000."},
           {12.3, ".00", "12.30"}});
}

TEST(Format, AlwaysWritesLiterals) {
    Check({{12.0, "# ### ###", "  12"},
           {1234567.0, "# ### ###", "1 234 567"},
           {12.345, "# ####.##", " 12.35"},
           {12345.6, "# ####.##", "1 2345.6"},
           {5.0, "#0.00 mm", "5.00 mm"}});
}

TEST(Format, ForcesDigitsAtZeroPlaces) {
    Check({{5.0, "#0.00", "5.00"},
           {123.0, "#0.00", "123.00"},
           {0.5, "#0.00", "0.50"},
           {1.0, "##0.0#####", "1.0"},
           {0.1234567, "##0.0#####", "0.123457"},
           {123.45, "##0.0#####", "123.45"},
           {1234.0, "##0.0#####", "1234.0"},
           {5.0, "000", "005"},
           {1.2, ".#0", "1.20"},
           {1.0, ".#0", "1.00"}});
}

TEST(Format, TakesValuesOfAnySize) {
    EXPECT_EQ(Format(1e300, "#0.00").size(), 301U + 3U);
    Check({{1e-300, "#0.00", "0.00"}, {123456789012345.678, "#0.00", "123456789012346.00"}});
}

TEST(Format, TakesTheSevenDigitTextOfASingle) {
    EXPECT_EQ(Format(16777.215F, "#.####"), "16777.21");
    EXPECT_EQ(Format(static_cast<double>(16777.215F), "#.####"), "16777.2148");
    EXPECT_EQ(Format(2.675F, "# ###.00"), " 2.68");
    EXPECT_EQ(Format(0.1F, "#.##########"), ".1");
}

TEST(Format, FailsWithOverflowForWhatIsNoNumber) {
    EXPECT_EQ(FailureOf([] { Format(std::nan(""), "#0.00"); }), kOverflow);
}

/// Hundredths of `thousandths` by whole numbers alone, halves away from zero.
std::string TwoDecimals(int thousandths) {
    const int hundredths = (std::abs(thousandths) + 5) / 10;
    const std::string fraction = std::to_string(hundredths % 100);
    return (thousandths < 0 ? "-" : "") + std::to_string(hundredths / 100) + '.' +
           (fraction.size() < 2 ? "0" : "") + fraction;
}

TEST(Format, AgreesWithWholeNumberArithmetic) {
    for (int thousandths = -120000; thousandths <= 120000; thousandths += 5) {
        ASSERT_EQ(Format(thousandths / 1000.0, "#0.00"), TwoDecimals(thousandths)) << thousandths;
    }
}

} // namespace
} // namespace loftwing
