// Add, Modify and Remove, Apply, OK and Close of the hole window.

#include "windows/frmtrou_fixture.h"

#include <functional>

namespace loftwing {
namespace {

TEST_F(FrmTrouTest, EachRefusalSaysWhichRuleWasBroken) {
    platform.ExpectBoxes(4);
    Use([this](SeenSlots &window) {
        window.Click("OptTrouRec(1)");
        TypeHole(window, "201", "10");
        window.Click("cmdajout");
        EXPECT_EQ(platform.LastBox(), Refused(kHoleBehind, "201"));
        window.Click("OptDistance(1)");
        window.Click("cmdajout");
        EXPECT_EQ(platform.LastBox(), Refused(kHoleInFront, "-1"));
        TypeHole(window, "100", "0");
        window.Click("cmdajout");
        EXPECT_EQ(platform.LastBox(), Refused(kHoleNoSize, "0"));
        TypeHole(window, "100", "10");
        window.Click("cmdajout");
        EXPECT_EQ(platform.LastBox(), Refused(kHoleNoHeight, "0"));
    });
    EXPECT_EQ(Count(), 0);
}

TEST_F(FrmTrouTest, AHoleThatLeavesTheRibIsToldWhenItIsAddedAndStays) {
    programme.rib.ProfilCharge = true;
    programme.rib.TabExtrados.fill(0.1); // 20 mm up, 10 mm down
    programme.rib.TabIntrados.fill(-0.05);
    platform.Expect(BoxAnswer::ok,
                    {.text =
                         "Hole 2 is added as it stands. Please note :\nIt leaves the rib : part "
                         "of it lies outside the airfoil.",
                     .title = "Holes setup 200  mm",
                     .icon = BoxIcon::information});
    Use([this](SeenSlots &window) {
        TypeHole(window, "50", "20");
        window.Click("cmdajout");
        EXPECT_EQ(Count(), 1);
        TypeHole(window, "100", "24");
        window.Click("cmdajout");
        EXPECT_EQ(Count(), 2);
        window.ClickNumber(1); // told once
        window.Click("Cmdmodif");
        window.Click("cmdok");
    });
    EXPECT_EQ(Slot(1).DiaTrou, 24.0F);
}

TEST_F(FrmTrouTest, AddTakesWhatWasTypedAndOffersTheNext) {
    Use([this](SeenSlots &window) {
        TypeHole(window, "50", "10");
        window.Click("Chkcentr");
        window.Click("cmdajout");
        EXPECT_EQ(Count(), 1);
        EXPECT_EQ(window.Numbers(), "1 [2]");
        EXPECT_EQ(window.Texts(2), "0|0");
        EXPECT_FALSE(window.Chosen("Chkcentr"));
        EXPECT_TRUE(window.Enabled("Text2"));
        EXPECT_EQ(window.Focus(), "Text1(0)");
        window.Keys({"Text1", 0}, "80");
        window.Type(1, "6");
        window.Click("cmdok");
    });
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(Places(3), "50 80 0");
    EXPECT_EQ(Slot(0).ChkCentre, 1.0F);
    EXPECT_EQ(Slot(1).ChkCentre, 0.0F);
}

TEST_F(FrmTrouTest, AfterAnAddTabComesByTheChoicesOfTheNextHole) {
    Use([](SeenSlots &window) {
        TypeHole(window, "50", "10");
        window.Key(Qt::Key_Backtab);
        window.Key(Qt::Key_Right);
        window.GoTo("OptTrouRec(0)");
        window.Key(Qt::Key_Down);
        window.Type(2, "4");
        window.Click("cmdajout");
        window.ExpectTabs({"OptDistance(0)", "Text1(1)", "Text2", "Chkcentr", "OptTrouRec(0)"});
        window.Key(Qt::Key_Down);
        EXPECT_TRUE(window.Chosen("OptTrouRec(1)"));
    });
    EXPECT_EQ(Slot(0).RefTrou, 1);
    EXPECT_EQ(Slot(0).TypeTrou, kTrouRectangle);
}

TEST_F(FrmTrouTest, OfTwelveHolesTheTwelfthStaysTheWorkSlotAndTheCountIs11) {
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Use([this](SeenSlots &window) {
                  for (int i = 1; i <= 12; ++i) {
                      TypeHole(window, std::to_string(10 * i).c_str(), "4");
                      window.Click("cmdajout");
                  }
                  EXPECT_EQ(Count(), 11);
                  EXPECT_EQ(window.Texts(2), "120|4");
                  EXPECT_EQ(window.Numbers(), "1 2 3 4 5 6 7 8 9 10 11 [12]");
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Slot(11).PosTrouAfich, "120");
    EXPECT_EQ(Slot(12).PosTrouAfich, "0");
    EXPECT_EQ(platform.LastBox(),
              "A rib has room for 12 holes. The one shown is the twelfth : it is kept, "
              "and can still be changed.");
}

TEST_F(FrmTrouTest, ModifyChangesTheSelectedHoleAndDraws) {
    Holes(2);
    Use([this](SeenSlots &window) {
        window.ClickNumber(1);
        EXPECT_EQ(window.Numbers(), "1 [2] 3 4");
        EXPECT_EQ(window.Text("Text1(0)"), "30");
        window.Type(0, "35");
        window.Click("Cmdmodif");
        EXPECT_EQ(window.Numbers(), "1 2 3 [4]");
        EXPECT_EQ(window.Text("Text1(0)"), "0");
        EXPECT_EQ(Drawn(), 1);
    });
    EXPECT_EQ(Places(3), "20 35 40");
}

TEST_F(FrmTrouTest, RemoveClosesTheGapAndDraws) {
    Holes(3);
    programme.rib.trou[2].ChkCentre = 1;
    Use([this](SeenSlots &window) {
        window.ClickNumber(1);
        window.Click("Cmdeffac");
        EXPECT_EQ(window.Numbers(), "1 2 3 [4]");
        EXPECT_EQ(window.Text("Text1(0)"), "0");
        EXPECT_EQ(Drawn(), 1);
    });
    EXPECT_EQ(Places(4), "20 40 50 0");
    EXPECT_EQ(Slot(1).ChkCentre, 1.0F);
    EXPECT_EQ(Slot(2).ChkCentre, 0.0F);
    EXPECT_EQ(Count(), 2);
}

TEST_F(FrmTrouTest, RemoveOfTheOnlyHoleLeavesAnEmptyListThatIsDrawn) {
    Holes(0);
    EXPECT_EQ(Use([this](SeenSlots &window) {
                  window.ClickNumber(0);
                  window.Click("Cmdeffac");
                  EXPECT_EQ(window.Texts(2), "0|0");
                  EXPECT_EQ(Drawn(), 1);
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Slot(0).DiaTrou, 0.0F);
}

TEST_F(FrmTrouTest, ModifyAndRemoveWithoutASelectionAskForOne) {
    Holes(2);
    platform.ExpectBoxes(2);
    Use([](SeenSlots &window) {
        window.Click("Cmdmodif");
        window.Click("Cmdeffac");
    });
    for (const MessageBox &box : platform.boxes) {
        EXPECT_EQ(box.text, "Please click the number of a hole first.");
    }
    EXPECT_EQ(Places(3), "20 30 40");
}

TEST_F(FrmTrouTest, OkOfAnUntouchedListDrawsAndCloses) {
    EXPECT_EQ(Use([](SeenSlots &window) { window.Click("cmdok"); }), Left::accepted);
    EXPECT_EQ(Drawn(), 1);
}

TEST_F(FrmTrouTest, WithAnEmptyListADiameterOfZeroPassesAfterItsNumberWasClicked) {
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  window.Type(0, "50");
                  window.Click("cmdok");
                  window.ClickNumber(0);
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(platform.LastBox(), Refused(kHoleNoSize, "0"));
}

TEST_F(FrmTrouTest, AFinishedListOpensWithTheNextEntryAndStaysAsItWas) {
    Holes(1);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  EXPECT_EQ(window.Numbers(), "1 2 [3]");
                  EXPECT_EQ(window.Texts(2), "0|0");
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(Drawn(), 1);
}

TEST_F(FrmTrouTest, AddAfterReopeningReplacesNothing) {
    Holes(1);
    Use([](SeenSlots &window) {
        TypeHole(window, "90", "10");
        window.Click("cmdajout");
    });
    EXPECT_EQ(Places(4), "20 30 90 0");
    EXPECT_EQ(Count(), 3);
}

TEST_F(FrmTrouTest, AnUnfinishedEntryIsShownAgain) {
    const std::function<void(Trou &)> unfinished[] = {
        [](Trou &hole) { hole.PosTrou = 201; }, [](Trou &hole) { hole.PosTrou = -1; },
        [](Trou &hole) { hole.DiaTrou = 0; },
        [](Trou &hole) { hole.TypeTrou = kTrouRectangle; }, // without a height
    };
    for (const auto &change : unfinished) {
        programme.rib.trou[1] = Trou{};
        Holes(1);
        change(programme.rib.trou[1]);
        Use([](SeenSlots &window) {
            EXPECT_EQ(window.Numbers(), "1 [2]");
            EXPECT_EQ(window.Text("Text1(0)"), "30");
        });
    }
}

TEST_F(FrmTrouTest, WhatWasTypedIntoTheNextEntryIsChecked) {
    Holes(0);
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  window.Click("Chkcentr");
                  window.Click("cmdok");
              }),
              Left::open);
    EXPECT_EQ(platform.LastBox(), Refused(kHoleNoSize, "0"));
    EXPECT_EQ(Count(), 0);
}

TEST_F(FrmTrouTest, CloseStoresNothing) {
    Holes(1);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  TypeHole(window, "77", "7");
                  window.Click("Cmdannuler");
              }),
              Left::rejected);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  TypeHole(window, "77", "7");
                  window.Key(Qt::Key_Escape);
              }),
              Left::rejected);
    EXPECT_EQ(Places(2), "20 30");
    EXPECT_FALSE(programme.rib.Modifie);
    EXPECT_EQ(Drawn(), 0);
}

TEST_F(FrmTrouTest, CloseWithAnotherNumberSelectedStaysWhileAValueIsWrong) {
    Holes(2);
    platform.ExpectBoxes(2);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  window.ClickNumber(1);
                  window.Type(0, "250");
                  window.Click("CmdApply");
                  window.Click("Cmdannuler");
              }),
              Left::open);
    EXPECT_EQ(platform.LastBox(), Refused(kHoleBehind, "250"));
}

TEST_F(FrmTrouTest, AFractionOfZerothsIsToldAndKeepsTheWindowOpen) {
    Inches();
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  TypeHole(window, "3", "1/2");
                  window.Type("Text2", "-1/0");
                  window.Click("cmdok");
              }),
              Left::open);
    EXPECT_EQ(platform.boxes.at(0).title, " Trou/OK");
    EXPECT_EQ(Drawn(), 0);
}

} // namespace
} // namespace loftwing
