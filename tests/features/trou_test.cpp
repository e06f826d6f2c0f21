#include "features/trou.h"

#include "support/failures.h"
#include "support/words.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace loftwing {
namespace {

constexpr std::uint8_t kLeading = 0;
constexpr std::uint8_t kTrailing = 1;

class TrouTest : public testing::Test {
  protected:
    Saisie Entry() { return {unit, words.messages}; }
    Refus Refusals() {
        return [this](float mm) { refused.push_back(mm); };
    }
    bool Store(Trou &slot, const ChampsTrou &fields) {
        return StockeTrou(slot, fields, 200, Entry(), Refusals());
    }
    bool StorePlace(Trou &slot, const std::string &text, std::uint8_t edge) {
        return Store(slot, {{text, "10", "0"}, "0", false, edge, kTrouRond});
    }
    bool Check(float diameter, float height, bool height_asked, bool empty_list_clicked = false) {
        Trou slot;
        slot.DiaTrou = diameter;
        slot.HautTrou = height;
        return ControleTrou(slot, {empty_list_clicked, height_asked}, Refusals());
    }

    std::string unit{kUniteMm};
    Words words{"[FrmTrou]\n1=Holes\n4=Sizes\n22=\"Look at this :\"\n"};
    std::vector<float> refused;
};

TEST_F(TrouTest, StoresTextsNumbersAndOptions) {
    Trou slot;
    slot.ResTrou = "spare";
    EXPECT_TRUE(Store(slot, {{"25%", "12", "8"}, "-3.5", false, kTrailing, kTrouRectangle}));
    EXPECT_EQ(slot.PosTrouAfich, "25%");
    EXPECT_EQ(slot.PosTrou, 150.0F);
    EXPECT_EQ(slot.DiaTrouAfich, "12");
    EXPECT_EQ(slot.DiaTrou, 12.0F);
    EXPECT_EQ(slot.HautTrouAfich, "8");
    EXPECT_EQ(slot.HautTrou, 8.0F);
    EXPECT_EQ(slot.DecalTrouAfich, "-3.5");
    EXPECT_EQ(slot.DecalTrou, -3.5F);
    EXPECT_EQ(slot.ChkCentre, 0.0F);
    EXPECT_EQ(slot.RefTrou, 1);
    EXPECT_EQ(slot.TypeTrou, 1);
    EXPECT_EQ(slot.ResTrou, "spare");
}

TEST_F(TrouTest, TheMiddleOfTheThicknessIsKeptAsARealFlag) {
    Trou slot;
    EXPECT_TRUE(Store(slot, {{"50", "12", "0"}, "0", true, kLeading, kTrouRond}));
    EXPECT_EQ(slot.ChkCentre, 1.0F);
    EXPECT_TRUE(Store(slot, {{"50", "12", "0"}, "0", false, kLeading, kTrouRond}));
    EXPECT_EQ(slot.ChkCentre, 0.0F);
}

TEST_F(TrouTest, ANegativeDistanceInInchesGoesBelowTheReferenceLine) {
    unit = kUniteIn;
    Trou slot;
    EXPECT_TRUE(Store(slot, {{"2", "1/2", "0"}, "-1/4", false, kLeading, kTrouRond}));
    EXPECT_EQ(slot.DecalTrouAfich, "-1/4");
    EXPECT_EQ(slot.DecalTrou, -6.35F);
}

TEST_F(TrouTest, ALocationBeyondTheChordIsRefusedButStoredWithAllTheRest) {
    Trou slot;
    EXPECT_FALSE(Store(slot, {{"101%", "12", "8"}, "1", true, kLeading, kTrouRectangle}));
    EXPECT_EQ(refused, std::vector<float>{202});
    EXPECT_EQ(slot.PosTrouAfich, "101%");
    EXPECT_EQ(slot.DiaTrou, 12.0F);
    EXPECT_EQ(slot.ChkCentre, 1.0F);
    EXPECT_EQ(slot.TypeTrou, 1);
}

TEST_F(TrouTest, ALocationOfExactlyTheChordIsTaken) {
    Trou slot;
    for (const char *text : {"200", "100%"}) {
        EXPECT_TRUE(StorePlace(slot, text, kLeading));
        EXPECT_TRUE(StorePlace(slot, text, kTrailing));
    }
    EXPECT_TRUE(refused.empty());
}

TEST_F(TrouTest, AHoleThatPokesOutOfTheRibIsAccepted) {
    Trou slot;
    EXPECT_TRUE(StorePlace(slot, "1", kLeading)); // 10 across, so 4 mm before the leading edge
    EXPECT_TRUE(ControleTrou(slot, {false, false}, Refusals()));
    EXPECT_TRUE(StorePlace(slot, "199", kLeading));
    EXPECT_TRUE(ControleTrou(slot, {false, false}, Refusals()));
    EXPECT_TRUE(refused.empty());
}

TEST_F(TrouTest, KindAndEdgeAreStoredEvenWhenASizeFails) {
    unit = kUniteIn;
    Trou slot;
    const auto store = [&] {
        Store(slot, {{"2", "1/0", "1"}, "0", true, kTrailing, kTrouRectangle});
    };
    EXPECT_EQ(FailureOf(store), 11);
    EXPECT_EQ(slot.RefTrou, 1);
    EXPECT_EQ(slot.TypeTrou, 1);
    EXPECT_EQ(slot.ChkCentre, 0.0F);
}

TEST_F(TrouTest, ADiameterOfZeroIsRefusedAndTheHeightNotLookedAt) {
    EXPECT_FALSE(Check(0, 0, true));
    EXPECT_EQ(refused, std::vector<float>{0});
}

TEST_F(TrouTest, AHeightOfZeroIsRefusedWhereItIsAskedFor) {
    EXPECT_FALSE(Check(10, 0, true));
    EXPECT_EQ(refused, std::vector<float>{0});
    EXPECT_TRUE(Check(10, 0, false));
    EXPECT_TRUE(Check(10, 3, true));
}

TEST_F(TrouTest, AnEmptyListWhoseNumberWasClickedMayKeepAnEmptySlot) {
    EXPECT_TRUE(Check(0, 0, true, true));
    EXPECT_TRUE(refused.empty());
}

TEST(FinishedHole, IsOneThatTheWindowWouldTake) {
    Trou hole;
    EXPECT_FALSE(TrouFini(hole, 200)); // empty
    hole.DiaTrou = 10;
    EXPECT_TRUE(TrouFini(hole, 200)); // at the leading edge
    hole.PosTrou = 200;
    EXPECT_TRUE(TrouFini(hole, 200));
    EXPECT_FALSE(TrouFini(hole, 199));
    hole.PosTrou = -1;
    EXPECT_FALSE(TrouFini(hole, 200));
    hole.PosTrou = 100;
    hole.TypeTrou = kTrouRectangle;
    EXPECT_FALSE(TrouFini(hole, 200));
    hole.HautTrou = 4;
    EXPECT_TRUE(TrouFini(hole, 200));
}

Trou Full(int number) {
    const auto n = static_cast<float>(number);
    const std::string text = std::to_string(number);
    Trou hole;
    hole.PosTrouAfich = text;
    hole.PosTrou = n;
    hole.DiaTrouAfich = text + ".1";
    hole.DiaTrou = n + 1;
    hole.HautTrouAfich = text + ".2";
    hole.HautTrou = n + 2;
    hole.DecalTrouAfich = text + ".3";
    hole.DecalTrou = n + 3;
    hole.ChkCentre = 1;
    hole.RefTrou = 1;
    hole.TypeTrou = 1;
    hole.ResTrou = "r" + text;
    return hole;
}

TEST_F(TrouTest, ErasingClearsTextsNumbersAndTheMiddle) {
    Trou slot = Full(7);
    EffaceTrou(slot);
    for (const std::string &text :
         {slot.PosTrouAfich, slot.DiaTrouAfich, slot.HautTrouAfich, slot.DecalTrouAfich}) {
        EXPECT_EQ(text, "0");
    }
    EXPECT_EQ(slot.PosTrou, 0.0F);
    EXPECT_EQ(slot.DiaTrou, 0.0F);
    EXPECT_EQ(slot.HautTrou, 0.0F);
    EXPECT_EQ(slot.DecalTrou, 0.0F);
    EXPECT_EQ(slot.ChkCentre, 0.0F);
    EXPECT_EQ(slot.RefTrou, 1);
    EXPECT_EQ(slot.TypeTrou, 1);
    EXPECT_EQ(slot.ResTrou, "r7");
    EffaceOptions(slot);
    EXPECT_EQ(slot.RefTrou, 0);
    EXPECT_EQ(slot.TypeTrou, 0);
}

TEST_F(TrouTest, RemovingMovesAllFieldsButPlaceAndSpare) {
    RibModel rib;
    rib.trou[0] = Full(10);
    rib.trou[0].ChkCentre = 0;
    rib.trou[0].RefTrou = 0;
    rib.trou[0].TypeTrou = 0;
    rib.trou[1] = Full(20);
    rib.trou[2] = Full(30);
    rib.NbTrou = 1;
    RetireTrou(rib, 0);
    EXPECT_EQ(rib.NbTrou, 0);
    const Trou &moved = rib.trou[0];
    EXPECT_EQ(moved.PosTrouAfich, "20");
    EXPECT_EQ(moved.DiaTrouAfich, "20.1");
    EXPECT_EQ(moved.DiaTrou, 21.0F);
    EXPECT_EQ(moved.HautTrouAfich, "20.2");
    EXPECT_EQ(moved.HautTrou, 22.0F);
    EXPECT_EQ(moved.DecalTrouAfich, "20.3");
    EXPECT_EQ(moved.DecalTrou, 23.0F);
    EXPECT_EQ(moved.ChkCentre, 1.0F);
    EXPECT_EQ(moved.RefTrou, 1);
    EXPECT_EQ(moved.TypeTrou, 1);
    EXPECT_EQ(moved.PosTrou, 10.0F);
    EXPECT_EQ(moved.ResTrou, "r10");
    EXPECT_EQ(rib.trou[1].DiaTrouAfich, "0");
    EXPECT_EQ(rib.trou[1].ChkCentre, 0.0F);
    EXPECT_EQ(rib.trou[1].ResTrou, "r20");
    EXPECT_EQ(rib.trou[2].DiaTrou, 31.0F); // behind the work slot
}

TEST_F(TrouTest, WordsItsRefusals) {
    RibModel rib;
    rib.cordeAfich = "8.1/2";
    unit = kUniteIn;
    EXPECT_EQ(TitreTrou(rib, Entry()), "Holes 8.1/2  in");
    EXPECT_EQ(TexteValeurTrou("0", words.messages), "Look at this : Sizes = 0");
}

} // namespace
} // namespace loftwing
