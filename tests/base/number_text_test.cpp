#include "base/number_text.h"

#include "support/failures.h"

#include <cmath>
#include <limits>
#include <random>
#include <string>

namespace loftwing {
namespace {

constexpr auto kBare = ZeroBeforePoint::no;

TEST(NumberText, HasNoTrailingZerosAndNoPointBehindWholeNumbers) {
    EXPECT_EQ(NumberText(0.0), "0");
    EXPECT_EQ(NumberText(-0.0), "0");
    EXPECT_EQ(NumberText(1.0), "1");
    EXPECT_EQ(NumberText(-200.0), "-200");
    EXPECT_EQ(NumberText(1.5), "1.5");
    EXPECT_EQ(NumberText(100.25), "100.25");
}

TEST(NumberText, SetsTheZeroBeforeThePointOnlyWhereItIsWanted) {
    EXPECT_EQ(NumberText(0.375), "0.375");
    EXPECT_EQ(NumberText(0.375, kBare), ".375");
    EXPECT_EQ(NumberText(-0.375), "-0.375");
    EXPECT_EQ(NumberText(-0.375, kBare), "-.375");
    EXPECT_EQ(NumberText(0.0, kBare), "0");
    EXPECT_EQ(NumberText(10.5, kBare), "10.5");
    EXPECT_EQ(NumberText(0.375F, kBare), ".375");
}

TEST(NumberText, RoundsTo15Digits) {
    EXPECT_EQ(NumberText(1.0 / 3.0), "0.333333333333333");
    EXPECT_EQ(NumberText(2.0 / 3.0), "0.666666666666667");
    EXPECT_EQ(NumberText(200.0 / 3.0), "66.6666666666667");
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(NumberText(1.5 * 25.4), "38.1");
    EXPECT_EQ(NumberText(std::acos(-1.0)), "3.14159265358979");
}

TEST(NumberText, IsFixedBelow1E15) {
    EXPECT_EQ(NumberText(999999999999999.0), "999999999999999");
    EXPECT_EQ(NumberText(99999999999999.5), "99999999999999.5");
    EXPECT_EQ(NumberText(1e15), "1E+15");
    EXPECT_EQ(NumberText(-1e15), "-1E+15");
    EXPECT_EQ(NumberText(1234567890123456.0), "1.23456789012346E+15");
    EXPECT_EQ(NumberText(999999999999999.9), "1E+15") << "as rounded";
}

TEST(NumberText, IsFixedAsLongAsDigitsAndZerosFitInto15Places) {
    EXPECT_EQ(NumberText(0.123456789012345), "0.123456789012345");
    EXPECT_EQ(NumberText(0.0123456789012345), "1.23456789012345E-02");
    EXPECT_EQ(NumberText(0.01234567890123), "0.01234567890123");
    EXPECT_EQ(NumberText(0.00301821227375942), "3.01821227375942E-03");
    EXPECT_EQ(NumberText(0.00301821227375942, kBare), "3.01821227375942E-03");
    EXPECT_EQ(NumberText(1e-15), "0.000000000000001");
    EXPECT_EQ(NumberText(1e-16), "1E-16");
    EXPECT_EQ(NumberText(1.5e-14), "0.000000000000015");
    EXPECT_EQ(NumberText(1.5e-15), "1.5E-15");
    EXPECT_EQ(NumberText(-0.0078125), "-0.0078125");
}

TEST(NumberText, WritesExponentsOfTwoDigitsOrMore) {
    EXPECT_EQ(NumberText(1e100), "1E+100");
    EXPECT_EQ(NumberText(-2.5e-200), "-2.5E-200");
    EXPECT_EQ(NumberText(std::numeric_limits<double>::max()), "1.79769313486232E+308");
    EXPECT_EQ(NumberText(std::numeric_limits<double>::denorm_min()), "4.94065645841247E-324");
}

TEST(NumberText, RoundsSinglesTo7Digits) {
    EXPECT_EQ(NumberText(0.1F), "0.1");
    EXPECT_EQ(NumberText(1.0F / 3.0F), "0.3333333");
    EXPECT_EQ(NumberText(200.0F), "200");
    EXPECT_EQ(NumberText(9.525F), "9.525");
    EXPECT_EQ(NumberText(66.6666667F), "66.66666") << "the single next to it is 66.6666641...";
}

TEST(NumberText, HasTheLimitsOfSevenPlacesForSingles) {
    EXPECT_EQ(NumberText(9999999.0F), "9999999");
    EXPECT_EQ(NumberText(1e7F), "1E+07");
    EXPECT_EQ(NumberText(12345678.0F), "1.234568E+07");
    EXPECT_EQ(NumberText(0.1234567F), "0.1234567");
    EXPECT_EQ(NumberText(0.01234567F), "1.234567E-02");
    EXPECT_EQ(NumberText(0.012345F), "0.012345");
    EXPECT_EQ(NumberText(1e-7F), "0.0000001");
    EXPECT_EQ(NumberText(1e-8F), "1E-08");
    EXPECT_EQ(NumberText(-1.5e-7F), "-1.5E-07");
}

TEST(NumberText, FailsWithOverflowForWhatIsNoNumber) {
    EXPECT_EQ(FailureOf([] { NumberText(std::nan("")); }), kOverflow);
    EXPECT_EQ(FailureOf([] { NumberText(std::numeric_limits<double>::infinity()); }), kOverflow);
    EXPECT_EQ(FailureOf([] { NumberText(-std::numeric_limits<float>::infinity()); }), kOverflow);
}

TEST(NumberText, ReadsBackToFifteenDigits) {
    std::mt19937_64 dice(20);
    for (int i = 0; i < 20000; ++i) {
        const int power = static_cast<int>(dice() % 600) - 300;
        const double value = std::ldexp(static_cast<double>(dice() >> 11U), power);
        const double back = LeadingNumber(NumberText(value));
        ASSERT_LE(std::abs(back - value), 5.0000001e-15 * value) << NumberText(value);
        ASSERT_EQ(NumberText(back), NumberText(value));
    }
}

TEST(Trim, TakesBlanksAndNothingElse) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(TrimLeft("  a "), "a ");
    EXPECT_EQ(TrimRight(" a  "), " a");
    EXPECT_EQ(Trim(""), "");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(TrimLeft("   "), "");
    EXPECT_EQ(TrimRight("   "), "");
    EXPECT_EQ(Trim("\ta\t"), "\ta\t");
}

} // namespace
} // namespace loftwing
