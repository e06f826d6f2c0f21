#include "features/trou.h"

#include "support/failures.h"
#include "support/words.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace loftwing {
namespace {

constexpr std::uint8_t kFromNose = 0;
constexpr std::uint8_t kFromTail = 1;

class TrouTest : public testing::Test {
  protected:
    Saisie Entry() { return {unit, words.messages}; }
    Refus Refusals() {
        return [this](Regle rule, float mm) {
            rules.push_back(rule);
            refused.push_back(mm);
        };
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
    Words words{"[FrmTrou]\n1=Holes\n4=Sizes\n15=Hole\n22=\"Look at this :\"\n160=Too far back.\n"
                "161=Too far in front.\n162=No width.\n163=No height.\n164=No length.\n"
                "165=is in :\n166=It leaves the rib.\n"};
    std::vector<float> refused;
    std::vector<Regle> rules;
};

TEST_F(TrouTest, StoresTextsNumbersAndOptions) {
    Trou slot;
    slot.ResTrou = "spare";
    EXPECT_TRUE(Store(slot, {{"25%", "12", "8"}, "-3.5", false, kFromTail, kTrouRectangle}));
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
    EXPECT_TRUE(Store(slot, {{"50", "12", "0"}, "0", true, kFromNose, kTrouRond}));
    EXPECT_EQ(slot.ChkCentre, 1.0F);
    EXPECT_TRUE(Store(slot, {{"50", "12", "0"}, "0", false, kFromNose, kTrouRond}));
    EXPECT_EQ(slot.ChkCentre, 0.0F);
}

TEST_F(TrouTest, ANegativeDistanceInInchesGoesBelowTheReferenceLine) {
    unit = kUniteIn;
    Trou slot;
    EXPECT_TRUE(Store(slot, {{"2", "1/2", "0"}, "-1/4", false, kFromNose, kTrouRond}));
    EXPECT_EQ(slot.DecalTrouAfich, "-1/4");
    EXPECT_EQ(slot.DecalTrou, -6.35F);
}

TEST_F(TrouTest, ALocationBeyondTheChordIsRefusedButStoredWithAllTheRest) {
    Trou slot;
    EXPECT_FALSE(Store(slot, {{"101%", "12", "8"}, "1", true, kFromNose, kTrouRectangle}));
    EXPECT_EQ(refused, std::vector<float>{202});
    EXPECT_EQ(slot.PosTrouAfich, "101%");
    EXPECT_EQ(slot.DiaTrou, 12.0F);
    EXPECT_EQ(slot.ChkCentre, 1.0F);
    EXPECT_EQ(slot.TypeTrou, 1);
}

TEST_F(TrouTest, ALocationOfExactlyTheChordIsTaken) {
    Trou slot;
    for (const char *text : {"200", "100%"}) {
        EXPECT_TRUE(StorePlace(slot, text, kFromNose));
        EXPECT_TRUE(StorePlace(slot, text, kFromTail));
    }
    EXPECT_TRUE(refused.empty());
}

TEST_F(TrouTest, AHoleThatPokesOutOfTheRibIsAccepted) {
    Trou slot;
    EXPECT_TRUE(StorePlace(slot, "1", kFromNose)); // 10 across, so 4 mm before the leading edge
    EXPECT_TRUE(ControleTrou(slot, {false, false}, Refusals()));
    EXPECT_TRUE(StorePlace(slot, "199", kFromNose));
    EXPECT_TRUE(ControleTrou(slot, {false, false}, Refusals()));
    EXPECT_TRUE(refused.empty());
}

TEST_F(TrouTest, KindAndEdgeAreStoredEvenWhenASizeFails) {
    unit = kUniteIn;
    Trou slot;
    const auto store = [&] {
        Store(slot, {{"2", "1/0", "1"}, "0", true, kFromTail, kTrouRectangle});
    };
    EXPECT_EQ(FailureOf(store), 11);
    EXPECT_EQ(slot.RefTrou, 1);
    EXPECT_EQ(slot.TypeTrou, 1);
    EXPECT_EQ(slot.ChkCentre, 0.0F);
}

TEST_F(TrouTest, ADiameterOfZeroIsRefusedAndTheHeightNotLookedAt) {
    EXPECT_FALSE(Check(0, 0, true));
    EXPECT_EQ(refused, std::vector<float>{0});
    EXPECT_EQ(rules, std::vector{Regle::sans_largeur});
}

TEST_F(TrouTest, AHeightOfZeroIsRefusedWhereItIsAskedFor) {
    EXPECT_FALSE(Check(10, 0, true));
    EXPECT_EQ(refused, std::vector<float>{0});
    EXPECT_EQ(rules, std::vector{Regle::sans_hauteur});
    EXPECT_TRUE(Check(10, 0, false));
    EXPECT_TRUE(Check(10, 3, true));
}

TEST_F(TrouTest, AnEmptyListWhoseNumberWasClickedMayKeepAnEmptySlot) {
    EXPECT_TRUE(Check(0, 0, true, true));
    EXPECT_TRUE(refused.empty());
}

/// A rib of 200 mm whose upper surface is flat, 20 mm above the reference line, and whose lower
/// surface is 10 mm below.
class HolesThatLeave : public testing::Test {
  protected:
    HolesThatLeave() {
        rib.corde = 200;
        rib.ProfilCharge = true;
        rib.TabExtrados.fill(0.1);
        rib.TabIntrados.fill(-0.05);
    }
    /// The upper surface falls from 20 mm at the leading edge to 0 at the trailing edge.
    void Wedge() {
        for (std::size_t k = 0; k < rib.TabExtrados.size(); ++k) {
            rib.TabExtrados[k] = 0.1 * static_cast<double>(k) / kLastStation;
        }
    }
    static Trou Circle(float place, float diameter, float distance) {
        Trou hole;
        hole.PosTrou = place;
        hole.DiaTrou = diameter;
        hole.DecalTrou = distance;
        return hole;
    }
    static Trou Rectangle(float place, float width, float height, float distance) {
        Trou hole = Circle(place, width, distance);
        hole.TypeTrou = kTrouRectangle;
        hole.HautTrou = height;
        return hole;
    }
    static Trou Centred(Trou hole) {
        hole.ChkCentre = 1;
        return hole;
    }
    bool Leaves(const Trou &hole) { return TrouSort(hole, rib); }

    RibModel rib;
};

TEST_F(HolesThatLeave, ACircleOnTheReferenceLineReachesTheNearerSurface) {
    EXPECT_FALSE(Leaves(Circle(100, 20, 0))); // from -10 to 10
    EXPECT_TRUE(Leaves(Circle(100, 21, 0)));
    EXPECT_FALSE(Leaves(Circle(100, 20, 10))); // from 0 to 20
    EXPECT_TRUE(Leaves(Circle(100, 20, 11)));
    EXPECT_TRUE(Leaves(Circle(100, 20, -1)));
}

TEST_F(HolesThatLeave, InTheMiddleOfTheThicknessThereIsRoomForAllOfIt) {
    EXPECT_FALSE(Leaves(Centred(Circle(100, 30, 0)))); // around 5
    EXPECT_TRUE(Leaves(Centred(Circle(100, 31, 0))));
    EXPECT_FALSE(Leaves(Centred(Rectangle(100, 60, 30, 0))));
    EXPECT_TRUE(Leaves(Centred(Rectangle(100, 60, 31, 0))));
}

TEST_F(HolesThatLeave, AnEdgeOfTheRibIsALimitToo) {
    EXPECT_FALSE(Leaves(Circle(5, 10, 0)));
    EXPECT_TRUE(Leaves(Circle(4, 10, 0)));
    EXPECT_FALSE(Leaves(Rectangle(195, 10, 4, 0)));
    EXPECT_TRUE(Leaves(Rectangle(196, 10, 4, 0)));
}

TEST_F(HolesThatLeave, ARectangleMustFitAtItsLowerEnd) {
    Wedge(); // 10 mm high at 100, 8 mm at 120, 12 mm at 80
    EXPECT_FALSE(Leaves(Rectangle(100, 40, 15, 0)));
    EXPECT_TRUE(Leaves(Rectangle(100, 40, 17, 0))); // 8.5 above the reference line
    EXPECT_FALSE(Leaves(Rectangle(100, 2, 17, 0)));
}

TEST_F(HolesThatLeave, ACircleFitsWhereItsSquareDoesNot) {
    Wedge();
    // The surface falls by 1 in 10: it is 10 / sqrt(1.01) = 9.950 from the centre.
    EXPECT_FALSE(Leaves(Circle(100, 19.8F, 0)));
    EXPECT_TRUE(Leaves(Rectangle(100, 19.8F, 19.8F, 0)));
    EXPECT_TRUE(Leaves(Circle(100, 19.96F, 0))); // its top fits, what lies behind doesn't
}

TEST_F(HolesThatLeave, AreToldOnlyWithAnAirfoil) {
    Words words("[FrmTrou]\n15=Hole\n165=is in :\n166=It leaves the rib.\n");
    rib.trou[1] = Circle(100, 40, 0);
    EXPECT_EQ(RemarquesTrou(rib, 1, words.messages), "Hole 2 is in :\nIt leaves the rib.");
    rib.trou[1] = Circle(100, 20, 0);
    EXPECT_EQ(RemarquesTrou(rib, 1, words.messages), "");
    rib.ProfilCharge = false;
    rib.trou[1] = Circle(100, 40, 0);
    EXPECT_EQ(RemarquesTrou(rib, 1, words.messages), "");
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

Trou FullHole(int number) {
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
    Trou slot = FullHole(7);
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
    rib.trou[0] = FullHole(10);
    rib.trou[0].ChkCentre = 0;
    rib.trou[0].RefTrou = 0;
    rib.trou[0].TypeTrou = 0;
    rib.trou[1] = FullHole(20);
    rib.trou[2] = FullHole(30);
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
    const std::pair<Regle, const char *> texts[] = {
        {Regle::derriere_bf, "Too far back."}, {Regle::devant_ba, "Too far in front."},
        {Regle::sans_largeur, "No width."},    {Regle::sans_hauteur, "No height."},
        {Regle::illisible, "No length."},
    };
    for (const auto &[rule, text] : texts) {
        EXPECT_EQ(TexteValeurTrou(rule, "0", words.messages),
                  std::string(text) + " Look at this : Sizes = 0");
    }
}

} // namespace
} // namespace loftwing
