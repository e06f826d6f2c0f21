#include "features/longeron.h"

#include "support/failures.h"
#include "support/words.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace loftwing {
namespace {

constexpr std::uint8_t kLeading = 0;
constexpr std::uint8_t kTrailing = 1;

class LongeronTest : public testing::Test {
  protected:
    Saisie Entry() { return {unit, words.messages}; }
    Refus Refusals() {
        return [this](Regle rule, float mm) {
            rules.push_back(rule);
            refused.push_back(mm);
        };
    }
    bool Store(Longeron &slot, const ChampsLongeron &fields, float corde = 200) {
        return StockeLongeron(slot, fields, corde, Entry(), Refusals());
    }
    bool StorePlace(Longeron &slot, const std::string &text, std::uint8_t edge, float corde = 200) {
        return Store(slot, {{text, "0", "0", "0"}, 0, 0, 0, edge}, corde);
    }
    bool Check(float place, float width, float depth, bool depth_asked = true,
               bool empty_list_clicked = false) {
        Longeron slot;
        slot.PosLong = place;
        slot.LargLong = width;
        slot.HautLong = depth;
        return ControleLongeron(slot, {200, empty_list_clicked, depth_asked}, Refusals());
    }

    std::string unit{kUniteMm};
    Words words{
        "[Frmlongeron]\n1=Spars\n4=Sizes\n22=Spar\n27=\"Look at this :\"\n162=Too far back.\n"
        "166=No length.\n167=is in :\n168=No notch.\n169=Above, spar\n170=Below, "
        "spar\n"};
    std::vector<float> refused;
    std::vector<Regle> rules;
};

TEST_F(LongeronTest, StoresTextsNumbersAndOptions) {
    Longeron slot;
    slot.ResLong = "spare";
    EXPECT_TRUE(Store(slot, {{"50", "10.5", "5", "2"}, 1, 2, 3, kLeading}));
    EXPECT_EQ(slot.PosLongAfich, "50");
    EXPECT_EQ(slot.PosLong, 50.0F);
    EXPECT_EQ(slot.LargLongAfich, "10.5");
    EXPECT_EQ(slot.LargLong, 10.5F);
    EXPECT_EQ(slot.HautLongAfich, "5");
    EXPECT_EQ(slot.HautLong, 5.0F);
    EXPECT_EQ(slot.DistLongAfich, "2");
    EXPECT_EQ(slot.DistLong, 2.0F);
    EXPECT_EQ(slot.OptLongExt, 1);
    EXPECT_EQ(slot.OptLongInt, 2);
    EXPECT_EQ(slot.TypeLong, 3);
    EXPECT_EQ(slot.RefLong, 0);
    EXPECT_EQ(slot.ResLong, "spare");
    EXPECT_TRUE(refused.empty());
}

TEST_F(LongeronTest, StoresInchesAsTypedWithTheirMm) {
    unit = kUniteIn;
    Longeron slot;
    EXPECT_TRUE(Store(slot, {{"2.3/8", "1/2", "1/4", ""}, 0, 0, 0, kLeading}));
    EXPECT_EQ(slot.PosLongAfich, "2.3/8");
    EXPECT_EQ(slot.PosLong, 60.325F);
    EXPECT_EQ(slot.LargLong, 12.7F);
    EXPECT_EQ(slot.HautLong, 6.35F);
    EXPECT_EQ(slot.DistLongAfich, "");
    EXPECT_EQ(slot.DistLong, 0.0F);
}

TEST_F(LongeronTest, APercentageOfTheChordIsNoLengthInInches) {
    unit = kUniteIn;
    Longeron slot;
    EXPECT_TRUE(StorePlace(slot, "50%", kLeading));
    EXPECT_EQ(slot.PosLong, 100.0F);
}

TEST_F(LongeronTest, FromTheTrailingEdgeTwentyOnTwoHundredIsAt180) {
    Longeron slot;
    EXPECT_TRUE(StorePlace(slot, "20", kTrailing));
    EXPECT_EQ(slot.PosLong, 180.0F);
    EXPECT_EQ(slot.RefLong, 1);
}

TEST_F(LongeronTest, AnEmptyLocationIsZero) {
    Longeron slot;
    EXPECT_TRUE(StorePlace(slot, "", kLeading));
    EXPECT_EQ(slot.PosLong, 0.0F);
    EXPECT_EQ(slot.PosLongAfich, "");
}

TEST_F(LongeronTest, ALocationBeyondTheChordIsRefusedButStoredWithAllTheRest) {
    Longeron slot;
    EXPECT_FALSE(Store(slot, {{"201", "10", "5", "0"}, 2, 1, 1, kLeading}));
    EXPECT_EQ(refused, std::vector<float>{201});
    EXPECT_EQ(slot.PosLongAfich, "201");
    EXPECT_EQ(slot.PosLong, 201.0F);
    EXPECT_EQ(slot.LargLong, 10.0F);
    EXPECT_EQ(slot.OptLongExt, 2);
    EXPECT_EQ(slot.TypeLong, 1);
}

TEST_F(LongeronTest, ALocationOfExactlyTheChordIsStoredWithoutRefusal) {
    Longeron slot;
    for (const char *text : {"200", "100%"}) {
        EXPECT_TRUE(StorePlace(slot, text, kLeading));
        EXPECT_TRUE(StorePlace(slot, text, kTrailing));
    }
    EXPECT_TRUE(refused.empty());
}

TEST_F(LongeronTest, APercentageAboveAHundredFromTheTrailingEdgeIsRefused) {
    Longeron slot;
    EXPECT_FALSE(StorePlace(slot, "110%", kTrailing));
    EXPECT_EQ(refused, std::vector<float>{-20});
    EXPECT_EQ(rules, std::vector{Regle::devant_ba});
}

TEST_F(LongeronTest, TheRefusalComesBeforeTheSizesAreRead) {
    unit = kUniteIn;
    words.platform.Expect(BoxAnswer::ok, {.meanwhile = [this] { EXPECT_EQ(refused.size(), 1U); }});
    Longeron slot;
    EXPECT_FALSE(Store(slot, {{"20", "2./8", "1", "0"}, 0, 0, 0, kLeading}));
    EXPECT_EQ(slot.LargLongAfich, "2./8");
    EXPECT_EQ(slot.LargLong, 0.0F);
}

TEST_F(LongeronTest, AFractionOfZerothsIsAFailureAndWhatCameBeforeStaysStored) {
    unit = kUniteIn;
    Longeron slot;
    EXPECT_EQ(FailureOf([&] { Store(slot, {{"3", "1/0", "1", "0"}, 2, 0, 0, kLeading}); }), 11);
    EXPECT_EQ(slot.PosLongAfich, "3");
    EXPECT_EQ(slot.PosLong, 76.2F);
    EXPECT_EQ(slot.HautLongAfich, "0");
    EXPECT_EQ(slot.OptLongExt, 0);
}

TEST_F(LongeronTest, PastedWordsCountAsTheirLeadingNumber) {
    Longeron slot;
    EXPECT_TRUE(Store(slot, {{"40 mm", "x", "3.5.5", "0"}, 0, 0, 0, kLeading}));
    EXPECT_EQ(slot.PosLong, 40.0F);
    EXPECT_EQ(slot.LargLong, 0.0F);
    EXPECT_EQ(slot.HautLong, 3.5F);
}

TEST_F(LongeronTest, ASparWithItsWholeWidthOnTheChordPasses) {
    EXPECT_TRUE(Check(195, 10, 5)); // 190 to 200
    EXPECT_TRUE(Check(5, 10, 5));   // 0 to 10
    EXPECT_TRUE(refused.empty());
}

TEST_F(LongeronTest, ASparThatReachesBeyondAnEdgeIsRefused) {
    EXPECT_FALSE(Check(195.5F, 10, 5));
    EXPECT_FALSE(Check(4.5F, 10, 5));
    EXPECT_EQ(refused, (std::vector<float>{195.5F, 4.5F}));
    EXPECT_EQ(rules, (std::vector{Regle::depasse_bf, Regle::depasse_ba}));
}

TEST_F(LongeronTest, ASparWiderThanTheChordIsToldAboutBothEdges) {
    EXPECT_FALSE(Check(100, 300, 5));
    EXPECT_EQ(refused, (std::vector<float>{100, 100}));
    EXPECT_EQ(rules, (std::vector{Regle::depasse_bf, Regle::depasse_ba}));
}

TEST_F(LongeronTest, ALengthBeyondTheLeadingEdgeIsCaughtByTheCheck) {
    EXPECT_FALSE(Check(-1, 0.5F, 5));
    EXPECT_EQ(refused, std::vector<float>{-1});
}

TEST_F(LongeronTest, AWidthOfZeroIsRefusedAndTheDepthNotLookedAt) {
    EXPECT_FALSE(Check(100, 0, 0));
    EXPECT_EQ(refused, std::vector<float>{0});
    EXPECT_EQ(rules, std::vector{Regle::sans_largeur});
}

TEST_F(LongeronTest, ADepthOfZeroIsRefusedWhereItIsAskedFor) {
    EXPECT_FALSE(Check(100, 10, 0));
    EXPECT_EQ(refused, std::vector<float>{0});
    EXPECT_TRUE(Check(100, 10, 0, false));
}

TEST_F(LongeronTest, AfterAFailedPlaceTheSizesAreCheckedToo) {
    EXPECT_FALSE(Check(199, 10, 0));
    EXPECT_EQ(refused, (std::vector<float>{199, 0}));
    EXPECT_EQ(rules, (std::vector{Regle::depasse_bf, Regle::sans_hauteur}));
}

TEST_F(LongeronTest, AnEmptyListWhoseNumberWasClickedMayKeepAnEmptySlot) {
    EXPECT_TRUE(Check(0, 0, 0, true, true));
    EXPECT_TRUE(refused.empty());
}

TEST_F(LongeronTest, EvenThereTheSparMustLieOnTheChord) {
    EXPECT_FALSE(Check(201, 0, 0, true, true));
    EXPECT_EQ(refused, std::vector<float>{201});
}

TEST_F(LongeronTest, AtLocationZeroOnlyASparWithoutWidthLiesOnTheChord) {
    EXPECT_FALSE(Check(0, 2, 5));
    EXPECT_EQ(refused, std::vector<float>{0});
}

Longeron Lying(float place, float width) {
    Longeron spar;
    spar.PosLong = place;
    spar.LargLong = width;
    return spar;
}

TEST(SparsOnTheChord, CrossWhereTheyShareAStretch) {
    EXPECT_TRUE(SeCroisent(Lying(100, 10), Lying(109, 10)));  // 95 to 105, 104 to 114
    EXPECT_TRUE(SeCroisent(Lying(109, 10), Lying(100, 10)));  //
    EXPECT_TRUE(SeCroisent(Lying(100, 40), Lying(95, 2)));    // one within the other
    EXPECT_FALSE(SeCroisent(Lying(100, 10), Lying(111, 10))); // 105, 106
    EXPECT_TRUE(SeCroisent(Lying(100, 10), Lying(100, 10)));
}

TEST(SparsOnTheChord, ThatTouchDoNotCross) {
    EXPECT_FALSE(SeCroisent(Lying(100, 10), Lying(110, 10)));
    EXPECT_FALSE(SeCroisent(Lying(20.1F, 10.2F), Lying(30.3F, 10.2F)));
}

TEST(SparNotches, AreMissingWhereNeitherSurfaceHasOne) {
    Longeron spar;
    EXPECT_TRUE(SansEncoche(spar));
    spar.OptLongExt = spar.OptLongInt = 7; // draws nothing
    EXPECT_TRUE(SansEncoche(spar));
    spar.OptLongExt = kEncocheCoffrage;
    EXPECT_FALSE(SansEncoche(spar));
    spar.OptLongExt = 0;
    spar.OptLongInt = kEncocheContour;
    EXPECT_FALSE(SansEncoche(spar));
}

class SparRemarks : public LongeronTest {
  protected:
    SparRemarks() { rib.corde = 200; }

    void Put(int slot, const std::string &place, float width, std::uint8_t above,
             std::uint8_t below) {
        Longeron &spar = At(rib.longeron, slot);
        spar.PosLongAfich = place;
        spar.PosLong = PlaceDepuis(place, 0, rib.corde, Entry());
        spar.LargLong = width;
        spar.OptLongExt = above;
        spar.OptLongInt = below;
    }
    std::string Remarks(int slot) { return RemarquesLongeron(rib, slot, Entry()); }

    RibModel rib;
};

TEST_F(SparRemarks, ThereAreNoneForASparOfItsOwn) {
    Put(0, "50", 10, 1, 1);
    Put(1, "60", 10, 1, 1);
    EXPECT_EQ(Remarks(0), "");
    EXPECT_EQ(Remarks(1), "");
}

TEST_F(SparRemarks, TellOfAMissingNotch) {
    Put(0, "50", 10, 0, 0);
    EXPECT_EQ(Remarks(0), "Spar 1 is in :\nNo notch.");
}

TEST_F(SparRemarks, TellOfOverlapsOnTheSameSurface) {
    Put(0, "50", 10, 1, 0);
    Put(1, "55", 10, 2, 0);
    EXPECT_EQ(Remarks(1), "Spar 2 is in :\nAbove, spar 1");
    EXPECT_EQ(Remarks(0), ""); // it was there before
    Put(1, "55", 10, 0, 1);
    EXPECT_EQ(Remarks(1), ""); // one above, one below
    Put(2, "52", 10, 1, 2);
    EXPECT_EQ(Remarks(2), "Spar 3 is in :\nAbove, spar 1\nBelow, spar 2");
}

TEST_F(SparRemarks, WithoutANotchASparOverlapsNone) {
    Put(0, "50", 10, 1, 1);
    Put(1, "50", 10, 0, 0);
    EXPECT_EQ(Remarks(1), "Spar 2 is in :\nNo notch.");
}

TEST_F(SparRemarks, CountWithPlacesAsTyped) {
    Put(0, "25%", 10, 1, 0);
    Put(1, "50", 10, 1, 0);
    rib.longeron[0].PosLong = 0; // of an earlier plot
    EXPECT_EQ(Remarks(1), "Spar 2 is in :\nAbove, spar 1");
    rib.longeron[0].RefLong = 1; // now at 150
    EXPECT_EQ(Remarks(1), "");
}

TEST(FinishedSpar, IsOneThatTheWindowWouldTakeAndThePlotDraws) {
    Longeron spar;
    EXPECT_FALSE(LongeronFini(spar, 200)); // empty
    spar.PosLong = 100;
    spar.LargLong = 10;
    spar.HautLong = 5;
    EXPECT_TRUE(LongeronFini(spar, 200));
    EXPECT_TRUE(LongeronFini(spar, 105));
    EXPECT_FALSE(LongeronFini(spar, 104)); // it ends at 105
    spar.HautLong = 0;
    EXPECT_FALSE(LongeronFini(spar, 200));
    spar.TypeLong = kLongeronRond;
    EXPECT_TRUE(LongeronFini(spar, 200));
    spar.LargLong = 0;
    EXPECT_FALSE(LongeronFini(spar, 200));
    spar.LargLong = 10;
    spar.PosLong = 0;
    EXPECT_FALSE(LongeronFini(spar, 200));
}

Longeron Full(int number) {
    const auto n = static_cast<float>(number);
    const std::string text = std::to_string(number);
    Longeron spar;
    spar.PosLongAfich = text;
    spar.PosLong = n;
    spar.LargLongAfich = text + ".1";
    spar.LargLong = n + 1;
    spar.HautLongAfich = text + ".2";
    spar.HautLong = n + 2;
    spar.DistLongAfich = text + ".3";
    spar.DistLong = n + 3;
    spar.OptLongExt = spar.OptLongInt = 1;
    spar.TypeLong = 2;
    spar.RefLong = 1;
    spar.ResLong = "r" + text;
    return spar;
}

TEST_F(LongeronTest, ErasingKeepsPlaceOptionsAndSpare) {
    Longeron slot = Full(7);
    EffaceLongeron(slot);
    for (const std::string &text :
         {slot.PosLongAfich, slot.LargLongAfich, slot.HautLongAfich, slot.DistLongAfich}) {
        EXPECT_EQ(text, "0");
    }
    EXPECT_EQ(slot.LargLong, 0.0F);
    EXPECT_EQ(slot.HautLong, 0.0F);
    EXPECT_EQ(slot.DistLong, 0.0F);
    EXPECT_EQ(slot.PosLong, 7.0F);
    EXPECT_EQ(slot.TypeLong, 2);
    EXPECT_EQ(slot.ResLong, "r7");
}

TEST_F(LongeronTest, ErasingTheOptionsKeepsTheSizes) {
    Longeron slot = Full(7);
    EffaceOptions(slot);
    EXPECT_EQ(slot.OptLongExt, 0);
    EXPECT_EQ(slot.OptLongInt, 0);
    EXPECT_EQ(slot.TypeLong, 0);
    EXPECT_EQ(slot.RefLong, 0);
    EXPECT_EQ(slot.LargLong, 8.0F);
}

TEST_F(LongeronTest, RemovingMovesAllFieldsButPlaceAndSpare) {
    RibModel rib;
    for (int i = 0; i < 4; ++i) {
        rib.longeron[static_cast<std::size_t>(i)] = Full(10 * (i + 1));
    }
    rib.longeron[2].OptLongExt = 2;
    rib.longeron[2].OptLongInt = 0;
    rib.longeron[2].TypeLong = 3;
    rib.longeron[2].RefLong = 0;
    rib.NbLongeron = 2;
    RetireLongeron(rib, 1);
    EXPECT_EQ(rib.NbLongeron, 1);
    EXPECT_EQ(rib.longeron[0].PosLongAfich, "10");
    const Longeron &moved = rib.longeron[1]; // was slot 2
    EXPECT_EQ(moved.PosLongAfich, "30");
    EXPECT_EQ(moved.LargLongAfich, "30.1");
    EXPECT_EQ(moved.LargLong, 31.0F);
    EXPECT_EQ(moved.HautLongAfich, "30.2");
    EXPECT_EQ(moved.HautLong, 32.0F);
    EXPECT_EQ(moved.DistLongAfich, "30.3");
    EXPECT_EQ(moved.DistLong, 33.0F);
    EXPECT_EQ(moved.OptLongExt, 2);
    EXPECT_EQ(moved.OptLongInt, 0);
    EXPECT_EQ(moved.TypeLong, 3);
    EXPECT_EQ(moved.RefLong, 0);
    EXPECT_EQ(moved.PosLong, 20.0F);
    EXPECT_EQ(moved.ResLong, "r20");
    const Longeron &last = rib.longeron[2];
    EXPECT_EQ(last.PosLongAfich, "0");
    EXPECT_EQ(last.LargLong, 0.0F);
    EXPECT_EQ(last.TypeLong, 0);
    EXPECT_EQ(last.PosLong, 30.0F);
    EXPECT_EQ(last.ResLong, "r30");
    EXPECT_EQ(rib.longeron[3].PosLongAfich, "40"); // behind the work slot
}

TEST_F(LongeronTest, WordsItsRefusals) {
    RibModel rib;
    EXPECT_EQ(TitreLongeron(rib, Entry()), "Spars 200  mm");
    EXPECT_EQ(TexteValeurLongeron(Regle::depasse_bf, "195", words.messages),
              "Too far back. Look at this : Sizes = 195");
    EXPECT_EQ(TexteValeurLongeron(Regle::illisible, "?", words.messages),
              "No length. Look at this : Sizes = ?");
}

TEST(LongeronEmptyList, OnlyWhatCouldBeDrawnMayBeLeftWithoutAWidth) {
    Longeron spar;
    int refused = 0;
    const Refus count = [&](Regle, float) { ++refused; };
    const CasLongeron clicked{200, true, true};
    EXPECT_TRUE(ControleLongeron(spar, clicked, count));
    spar.PosLong = 50;
    EXPECT_TRUE(ControleLongeron(spar, clicked, count)); // its axis alone
    spar.OptLongInt = 1;
    EXPECT_FALSE(ControleLongeron(spar, clicked, count));
    EXPECT_EQ(refused, 1);
    spar.TypeLong = kLongeronDroit;
    EXPECT_TRUE(ControleLongeron(spar, clicked, count));
}

} // namespace
} // namespace loftwing
