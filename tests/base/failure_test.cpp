#include "base/failure.h"

#include "support/failures.h"

#include <cmath>
#include <limits>

namespace loftwing {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
const double kNoNumber = std::nan("");

TEST(MakeFailure, GivesNumberAndDetail) {
    EXPECT_EQ(MakeFailure(kOverflow).number, 6);
    EXPECT_EQ(MakeFailure(kOverflow).detail, "");
    EXPECT_EQ(MakeFailure(kCancel).number, 32755);
    EXPECT_EQ(MakeFailure(kFileNotFound, "/home/x.dat").detail, "/home/x.dat");
}

TEST(Failure, TakesWhatEachCallerKnowsBehindAColon) {
    Failure failure = MakeFailure(kDivisionByZero);
    failure.Precise("Spars 3");
    EXPECT_EQ(failure.detail, "Spars 3");
    failure.Precise("root.lfw");
    EXPECT_EQ(failure.detail, "Spars 3: root.lfw");
}

TEST(RoundHalfEven, TakesHalvesToTheEvenNeighbour) {
    EXPECT_EQ(RoundHalfEven(0.5), 0.0);
    EXPECT_EQ(RoundHalfEven(1.5), 2.0);
    EXPECT_EQ(RoundHalfEven(2.5), 2.0);
    EXPECT_EQ(RoundHalfEven(3.5), 4.0);
    EXPECT_EQ(RoundHalfEven(-0.5), 0.0);
    EXPECT_EQ(RoundHalfEven(-1.5), -2.0);
    EXPECT_EQ(RoundHalfEven(-2.5), -2.0);
    EXPECT_EQ(RoundHalfEven(200.5), 200.0);
}

TEST(RoundHalfEven, RoundsTheRestToTheNearest) {
    EXPECT_EQ(RoundHalfEven(2.4999999), 2.0);
    EXPECT_EQ(RoundHalfEven(2.5000001), 3.0);
    EXPECT_EQ(RoundHalfEven(-2.5000001), -3.0);
    EXPECT_EQ(RoundHalfEven(7.0), 7.0);
}

TEST(ToInt16, RoundsHalvesToEvenAtBothEndsOfItsRange) {
    EXPECT_EQ(ToInt16(32767.4), 32767);
    EXPECT_EQ(ToInt16(32766.5), 32766);
    EXPECT_EQ(ToInt16(-32768.5), -32768);
    EXPECT_EQ(ToInt16(-0.4), 0);
}

TEST(ToInt16, FailsWithOverflowOutsideItsRange) {
    EXPECT_EQ(FailureOf([] { ToInt16(32767.5); }), kOverflow);
    EXPECT_EQ(FailureOf([] { ToInt16(-32768.6); }), kOverflow);
    EXPECT_EQ(FailureOf([] { ToInt16(1e300); }), kOverflow);
    EXPECT_EQ(FailureOf([] { ToInt16(kInfinity); }), kOverflow);
    EXPECT_EQ(FailureOf([] { ToInt16(kNoNumber); }), kOverflow);
}

TEST(ToByte, RoundsHalvesToEvenAtBothEndsOfItsRange) {
    EXPECT_EQ(ToByte(0.5), 0);
    EXPECT_EQ(ToByte(-0.5), 0);
    EXPECT_EQ(ToByte(1.5), 2);
    EXPECT_EQ(ToByte(254.5), 254);
    EXPECT_EQ(ToByte(255.4), 255);
}

TEST(ToByte, FailsWithOverflowOutsideItsRange) {
    EXPECT_EQ(FailureOf([] { ToByte(255.5); }), kOverflow);
    EXPECT_EQ(FailureOf([] { ToByte(-0.6); }), kOverflow);
    EXPECT_EQ(FailureOf([] { ToByte(300); }), kOverflow);
    EXPECT_EQ(FailureOf([] { ToByte(kNoNumber); }), kOverflow);
}

TEST(ToInt, FailsWithOverflowOutside32Bits) {
    EXPECT_EQ(ToInt(2147483647.0), 2147483647);
    EXPECT_EQ(ToInt(-2147483648.0), -2147483647 - 1);
    EXPECT_EQ(FailureOf([] { ToInt(2147483648.0); }), kOverflow);
    EXPECT_EQ(FailureOf([] { ToInt(-2147483649.0); }), kOverflow);
}

TEST(Quotient, FailsOnADivisorOfZeroOfEitherSign) {
    EXPECT_EQ(Quotient(1.0, 4.0), 0.25);
    EXPECT_EQ(FailureOf([] { Quotient(1.0, 0.0); }), kDivisionByZero);
    EXPECT_EQ(FailureOf([] { Quotient(1.0, -0.0); }), kDivisionByZero);
    EXPECT_EQ(FailureOf([] { Quotient(0.0, 0.0); }), kDivisionByZero);
}

TEST(Quotient, FailsWithOverflowBeyond64Bits) {
    EXPECT_EQ(FailureOf([] { Quotient(1e300, 1e-300); }), kOverflow);
    EXPECT_EQ(FailureOf([] { Quotient(kNoNumber, 1.0); }), kOverflow);
}

TEST(Finite, LetsNumbersPassAndNothingElse) {
    EXPECT_EQ(Finite(-1e308), -1e308);
    EXPECT_EQ(FailureOf([] { Finite(-kInfinity); }), kOverflow);
    EXPECT_EQ(FailureOf([] { Finite(kNoNumber); }), kOverflow);
}

TEST(ToSingle, RoundsOnceTo32Bits) {
    EXPECT_EQ(ToSingle(0.1), 0.1F);
    EXPECT_EQ(ToSingle(16777217.0), 16777216.0F);
    EXPECT_EQ(ToSingle(1e-60), 0.0F);
}

TEST(ToSingle, FailsWithOverflowBeyond32Bits) {
    EXPECT_EQ(FailureOf([] { ToSingle(3.5e38); }), kOverflow);
    EXPECT_EQ(FailureOf([] { ToSingle(-3.5e38); }), kOverflow);
    EXPECT_EQ(FailureOf([] { ToSingle(kNoNumber); }), kOverflow);
}

TEST(Increment, FailsAtTheLastCountAndLeavesIt) {
    std::int16_t count = 32766;
    Increment(count);
    EXPECT_EQ(count, 32767);
    EXPECT_EQ(FailureOf([&] { Increment(count); }), kOverflow);
    EXPECT_EQ(count, 32767);
}

TEST(PointList, CountsFromOneAndFailsOutside) {
    PointList list;
    EXPECT_EQ(FailureOf([&] { list(1); }), kSubscriptOutOfRange);
    list.Append(1.5);
    list.Append(2.5);
    EXPECT_EQ(list.Count(), 2);
    EXPECT_EQ(list(1), 1.5);
    EXPECT_EQ(list(2), 2.5);
    EXPECT_TRUE(list.Holds(1));
    EXPECT_TRUE(list.Holds(2));
    EXPECT_FALSE(list.Holds(0));
    EXPECT_FALSE(list.Holds(3));
    EXPECT_EQ(FailureOf([&] { list(0); }), kSubscriptOutOfRange);
    EXPECT_EQ(FailureOf([&] { list(-1); }), kSubscriptOutOfRange);
    EXPECT_EQ(FailureOf([&] { list(3); }), kSubscriptOutOfRange);
}

} // namespace
} // namespace loftwing
