#include "base/number_text.h"

#include "support/failures.h"

#include <string>

namespace loftwing {
namespace {

TEST(LeadingNumber, IsZeroWhereThereIsNone) {
    for (const char *text : {"", " ", "abc", "-", "+", ".", "-.", "e5", ".e5", "/8", "--5", "+-5",
                             "inf", "nan", "%", ",5", "x1"}) {
        EXPECT_EQ(LeadingNumber(text), 0.0) << '"' << text << '"';
    }
}

TEST(LeadingNumber, TakesTheLongestDecimalNumberAtTheStart) {
    EXPECT_EQ(LeadingNumber("12"), 12.0);
    EXPECT_EQ(LeadingNumber("12.5mm"), 12.5);
    EXPECT_EQ(LeadingNumber("-3.25"), -3.25);
    EXPECT_EQ(LeadingNumber("+7"), 7.0);
    EXPECT_EQ(LeadingNumber(".5"), 0.5);
    EXPECT_EQ(LeadingNumber("-.5"), -0.5);
    EXPECT_EQ(LeadingNumber("5."), 5.0);
    EXPECT_EQ(LeadingNumber("1.2.3"), 1.2);
    EXPECT_EQ(LeadingNumber("3/8"), 3.0);
    EXPECT_EQ(LeadingNumber("5-"), 5.0);
    EXPECT_EQ(LeadingNumber("0x10"), 0.0);
    EXPECT_EQ(LeadingNumber("00012"), 12.0);
}

TEST(LeadingNumber, KnowsThePointOnly) {
    EXPECT_EQ(LeadingNumber("1,5"), 1.0);
    EXPECT_EQ(LeadingNumber("1.234,5"), 1.234);
}

TEST(LeadingNumber, SkipsBlanksEverywhere) {
    EXPECT_EQ(LeadingNumber("   12"), 12.0);
    EXPECT_EQ(LeadingNumber("1 234.5"), 1234.5);
    EXPECT_EQ(LeadingNumber("- 5"), -5.0);
    EXPECT_EQ(LeadingNumber("1 . 5"), 1.5);
    EXPECT_EQ(LeadingNumber("1 e 3"), 1000.0);
    EXPECT_EQ(LeadingNumber("\t5"), 0.0) << "a tab is no blank";
}

TEST(LeadingNumber, ReadsExponents) {
    EXPECT_EQ(LeadingNumber("1e3"), 1000.0);
    EXPECT_EQ(LeadingNumber("1.5E+03"), 1500.0);
    EXPECT_EQ(LeadingNumber("3.01821227375942E-03"), 0.00301821227375942);
    EXPECT_EQ(LeadingNumber("-2e-1x"), -0.2);
    EXPECT_EQ(LeadingNumber(".5e1"), 5.0);
    EXPECT_EQ(LeadingNumber("1e0005"), 100000.0);
}

TEST(LeadingNumber, LeavesAnExponentWithoutDigits) {
    EXPECT_EQ(LeadingNumber("1e"), 1.0);
    EXPECT_EQ(LeadingNumber("2e+"), 2.0);
    EXPECT_EQ(LeadingNumber("3e-x"), 3.0);
    EXPECT_EQ(LeadingNumber("4d3"), 4.0);
}

TEST(LeadingNumber, FailsWithOverflowBeyond64Bits) {
    EXPECT_EQ(FailureOf([] { LeadingNumber("1e400"); }), kOverflow);
    EXPECT_EQ(FailureOf([] { LeadingNumber("-1e400"); }), kOverflow);
    EXPECT_EQ(FailureOf([] { LeadingNumber("1e99999999999999999999"); }), kOverflow);
    EXPECT_EQ(FailureOf([] { LeadingNumber('1' + std::string(400, '0')); }), kOverflow);
    EXPECT_EQ(FailureOf([] { LeadingNumber('1' + std::string(500, '0') + "e-100"); }), kOverflow);
    EXPECT_EQ(FailureOf([] { LeadingNumber("0.001e+99999"); }), kOverflow);
}

TEST(LeadingNumber, IsZeroBelow64Bits) {
    EXPECT_EQ(LeadingNumber("1e-400"), 0.0);
    EXPECT_EQ(LeadingNumber("-1e-400"), 0.0);
    EXPECT_EQ(LeadingNumber("1e-99999999999999999999"), 0.0);
    EXPECT_EQ(LeadingNumber("0." + std::string(400, '0') + '1'), 0.0);
    EXPECT_EQ(LeadingNumber("0." + std::string(1000, '0') + "1e100"), 0.0);
    EXPECT_EQ(LeadingNumber("0e99999999999999999999"), 0.0);
}

TEST(LeadingNumber, WeighsLongDigitsAgainstTheirExponent) {
    EXPECT_EQ(LeadingNumber('1' + std::string(400, '0') + "e-400"), 1.0);
    EXPECT_EQ(LeadingNumber("0." + std::string(399, '0') + "1e400"), 1.0);
    EXPECT_EQ(LeadingNumber("4.9e-324"), 4.9e-324);
    EXPECT_EQ(LeadingNumber("1.7976931348623157e308"), 1.7976931348623157e308);
}

} // namespace
} // namespace loftwing
