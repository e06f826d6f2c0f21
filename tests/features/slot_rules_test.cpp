#include "features/slot_rules.h"

#include "support/failures.h"
#include "support/words.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace loftwing {
namespace {

const std::string kUnitMm{kUniteMm};

class Place : public testing::Test {
  protected:
    float Mm(const std::string &text, std::uint8_t ref, float corde) {
        return PlaceDepuis(text, ref, corde, {kUnitMm, words.messages});
    }
    std::optional<Regle> Broken(const std::string &text, std::uint8_t ref, float corde) {
        return PlaceRefusee(text, ref, Mm(text, ref, corde), corde);
    }
    bool Passes(const std::string &text, std::uint8_t ref, float corde) {
        return !Broken(text, ref, corde).has_value();
    }

    Words words{""};
};

TEST_F(Place, HalfwayIsHalfTheChordAndFollowsIt) {
    EXPECT_EQ(Mm("50%", 0, 200), 100.0F);
    EXPECT_EQ(Mm("50%", 0, 300), 150.0F);
}

TEST_F(Place, CountsFromTheTrailingEdgeToo) {
    EXPECT_EQ(Mm("20", 1, 200), 180.0F);
    EXPECT_EQ(Mm("10%", 1, 200), 180.0F);
}

TEST_F(Place, FromTheLeadingEdgeTheChordIsTheLimitAndPasses) {
    EXPECT_TRUE(Passes("200", 0, 200));
    EXPECT_FALSE(Passes("200.01", 0, 200));
    EXPECT_TRUE(Passes("100%", 0, 200));
    EXPECT_FALSE(Passes("101%", 0, 200));
}

TEST_F(Place, FromTheTrailingEdgeAPercentageOfTheWholeChordIsTheLimitAndPasses) {
    EXPECT_TRUE(Passes("100%", 1, 200));
    EXPECT_FALSE(Passes("101%", 1, 200));
}

TEST_F(Place, FromTheTrailingEdgeALengthBeyondTheLeadingEdgeDoesNotPass) {
    EXPECT_TRUE(Passes("200", 1, 200));
    EXPECT_EQ(Mm("201", 1, 200), -1.0F);
    EXPECT_FALSE(Passes("201", 1, 200));
    EXPECT_FALSE(Passes("-1", 1, 200)); // 201 mm from the leading edge
}

TEST_F(Place, ARefusalSaysOnWhichSideOfTheRibThePlaceLies) {
    EXPECT_EQ(Broken("200.01", 0, 200), Regle::derriere_bf);
    EXPECT_EQ(Broken("101%", 0, 200), Regle::derriere_bf);
    EXPECT_EQ(Broken("-1", 1, 200), Regle::derriere_bf);
    EXPECT_EQ(Broken("-1", 0, 200), Regle::devant_ba);
    EXPECT_EQ(Broken("201", 1, 200), Regle::devant_ba);
    EXPECT_EQ(Broken("101%", 1, 200), Regle::devant_ba);
}

TEST(WorkSlot, AdvancesUpToTheTwelfth) {
    std::uint8_t count = 0;
    for (int added = 1; added <= 11; ++added) {
        EXPECT_TRUE(AvanceTravail(count));
        EXPECT_EQ(count, added);
    }
    EXPECT_FALSE(AvanceTravail(count));
    EXPECT_EQ(count, 11);
    EXPECT_FALSE(AvanceTravail(count));
    EXPECT_EQ(count, 11);
}

TEST(WorkSlot, ACountBeyondTheCeilingComesBackToIt) {
    std::uint8_t count = 255;
    EXPECT_FALSE(AvanceTravail(count));
    EXPECT_EQ(count, 11);
}

/// A list of four texts, emptied as "-".
struct SlotList {
    std::array<std::string, 4> slots{"a", "b", "c", "d"};
    std::uint8_t count = 2;

    void Take(int slot) {
        RetireEmplacement(
            slots, count, slot, [](const std::string &from, std::string &into) { into = from; },
            [](std::string &last) { last = "-"; });
    }
};

TEST(TakingASlotOut, MovesTheFollowingOnesAheadUpToTheWorkSlot) {
    SlotList list;
    list.Take(0);
    EXPECT_EQ(list.slots, (std::array<std::string, 4>{"b", "c", "-", "d"}));
    EXPECT_EQ(list.count, 1);
}

TEST(TakingASlotOut, OfTheWorkSlotMakesTheLastEntryTheWorkSlot) {
    SlotList list;
    list.Take(2);
    EXPECT_EQ(list.slots, (std::array<std::string, 4>{"a", "b", "-", "d"}));
    EXPECT_EQ(list.count, 1);
}

TEST(TakingASlotOut, OfAnEmptyListOnlyEmptiesTheWorkSlot) {
    SlotList list;
    list.count = 0;
    list.Take(0);
    EXPECT_EQ(list.slots, (std::array<std::string, 4>{"-", "b", "c", "d"}));
    EXPECT_EQ(list.count, 0);
}

TEST(TakingASlotOut, BeyondTheWorkSlotIsAFailureAndChangesNothing) {
    SlotList list;
    EXPECT_EQ(FailureOf([&] { list.Take(3); }), 9);
    EXPECT_EQ(FailureOf([&] { list.Take(-1); }), 9);
    EXPECT_EQ(list.slots, (std::array<std::string, 4>{"a", "b", "c", "d"}));
    EXPECT_EQ(list.count, 2);
}

TEST(SlotTexts, TheCaptionShowsTheChordAsTyped) {
    RibModel rib;
    rib.cordeAfich = "8.1/2";
    EXPECT_EQ(TitreAvecCorde("Spars", rib, " in"), "Spars 8.1/2  in");
}

TEST(SlotTexts, RemarksNameTheEntryAndStandOnALineEach) {
    EXPECT_EQ(TexteRemarques("Spar", 2, "is in. Note :", {"One.", "Two."}),
              "Spar 3 is in. Note :\nOne.\nTwo.");
    EXPECT_EQ(TexteRemarques("Spar", 2, "is in. Note :", {}), "");
}

TEST(SlotTexts, ARefusalNamesTheFrameAndTheValue) {
    EXPECT_EQ(TexteValeur("Check :", "Dimensions", "2.3/8"), "Check : Dimensions = 2.3/8");
}

} // namespace
} // namespace loftwing
