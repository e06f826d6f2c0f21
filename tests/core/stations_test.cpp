#include "core/stations.h"

#include "support/failures.h"
#include "support/words.h"

#include <cmath>

namespace loftwing {
namespace {

TEST(Stations, TheWholeChordReachesFromOneEdgeToTheOther) {
    EXPECT_EQ(StationDepuisBF(200, 200.0F), 400.0F);
    EXPECT_EQ(StationDepuisBF(0, 200.0F), 0.0F);
    EXPECT_EQ(StationDepuisBA(200, 200.0F), 0.0F);
    EXPECT_EQ(StationDepuisBA(0, 200.0F), 400.0F);
}

TEST(Stations, LieBetweenWhereTheLengthDoes) {
    EXPECT_EQ(StationDepuisBF(33.3, 200.0F), static_cast<float>(400.0 * 33.3 / 200.0));
    EXPECT_EQ(StationDepuisBA(50, 200.0F), 300.0F);
    EXPECT_EQ(StationDepuisBA(0.25, 200.0F), 399.5F);
}

TEST(Stations, AreNeverNegative) {
    EXPECT_EQ(StationDepuisBF(-50, 200.0F), 100.0F);
    EXPECT_EQ(StationDepuisBA(300, 200.0F), 200.0F);
}

TEST(Stations, FailOnAChordOfZero) {
    EXPECT_EQ(FailureOf([] { StationDepuisBF(10, 0.0F); }), kDivisionByZero);
    EXPECT_EQ(FailureOf([] { StationDepuisBA(10, 0.0F); }), kDivisionByZero);
}

TEST(Hauteur, IsThatOfTheNearestStationHalvesToEven) {
    TableStation table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = static_cast<double>(i);
    }
    EXPECT_EQ(Hauteur(table, 10.4), 10.0);
    EXPECT_EQ(Hauteur(table, 10.5), 10.0);
    EXPECT_EQ(Hauteur(table, 11.5), 12.0);
    EXPECT_EQ(Hauteur(table, 400.5), 400.0);
    EXPECT_EQ(Hauteur(table, -0.5), 0.0);
}

TEST(Hauteur, FailsOutsideTheTable) {
    const TableStation table{};
    EXPECT_EQ(FailureOf([&] { Hauteur(table, 400.6); }), kSubscriptOutOfRange);
    EXPECT_EQ(FailureOf([&] { Hauteur(table, -1); }), kSubscriptOutOfRange);
    EXPECT_EQ(FailureOf([&] { Hauteur(table, 1e12); }), kOverflow);
}

TEST(Pi, IsFourTimesTheArcTangentOfOne) {
    EXPECT_EQ(Pi(), 4.0 * std::atan(1.0));
    EXPECT_EQ(EnRadians(180), Pi());
    EXPECT_EQ(EnRadians(-90), -Pi() / 2);
    EXPECT_EQ(EnRadians(0), 0.0);
}

class Pourcent : public testing::Test {
  protected:
    const std::string mm_unit{kUniteMm};
    const std::string in_unit{kUniteIn};
    Words words{"[Message]\n20=Wrong entry\n"};
    Saisie mm{mm_unit, words.messages};
    Saisie in{in_unit, words.messages};
};

TEST_F(Pourcent, IsAPartOfTheChordInBothUnits) {
    EXPECT_EQ(ValeurPourcent("33%", 200.0F, mm), 66.0);
    EXPECT_EQ(ValeurPourcent("12.5%", 200.0F, in), 25.0);
    EXPECT_EQ(ValeurPourcent("50 %", 200.0F, mm), 100.0);
    EXPECT_EQ(ValeurPourcent("%", 200.0F, mm), 0.0);
}

TEST_F(Pourcent, IsALengthWithoutThePercentSignAtTheEnd) {
    EXPECT_EQ(ValeurPourcent("33", 200.0F, mm), 33.0);
    EXPECT_EQ(ValeurPourcent("33%x", 200.0F, mm), 33.0);
    EXPECT_EQ(ValeurPourcent("3/8", 200.0F, in), 9.525);
    EXPECT_EQ(ValeurPourcent("", 200.0F, in), 0.0);
}

TEST_F(Pourcent, IsTakenFromTheChordWhenItCountsFromTheTrailingEdge) {
    EXPECT_EQ(ValeurPourcentBF("33%", 200.0F, mm), 134.0);
    EXPECT_EQ(ValeurPourcentBF("50", 200.0F, mm), 150.0);
}

TEST_F(Pourcent, PlacesOfRecordsAreRoundedToThirtyTwoBits) {
    EXPECT_EQ(PosDepuisBA("50%", 300.0F, mm), 150.0F);
    EXPECT_EQ(PosDepuisBA("", 300.0F, mm), 0.0F);
    EXPECT_EQ(PosDepuisBA("0.1", 300.0F, mm), 0.1F);
    EXPECT_EQ(PosDepuisBF("20", 200.0F, mm), 180.0F);
    EXPECT_EQ(PosDepuisBF("25%", 200.0F, mm), 150.0F);
    EXPECT_EQ(PosDepuisBF("1/2", 25.4F, in), ToSingle(static_cast<double>(25.4F) - 12.7));
    EXPECT_EQ(FailureOf([&] { PosDepuisBA("1e39", 200.0F, mm); }), kOverflow);
}

TEST_F(Pourcent, RefusesWhatTheLengthRefuses) {
    words.platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(ValeurPourcentBF("/8", 200.0F, in), 200.0);
    EXPECT_EQ(FailureOf([&] { ValeurPourcent("1/0", 200.0F, in); }), kDivisionByZero);
}

} // namespace
} // namespace loftwing
