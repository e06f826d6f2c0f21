// Add, Modify and Remove of the spar window.

#include "windows/frmlongeron_fixture.h"

namespace loftwing {
namespace {

// Add.

TEST_F(FrmLongeronTest, AddTakesWhatWasTypedAndOffersTheNext) {
    Use([this](SeenSlots &window) {
        TypeSpar(window, "50", "10", "5");
        window.Click("Opte(1)");
        window.Click("cmdajout");
        EXPECT_EQ(Count(), 1);
        EXPECT_EQ(window.Numbers(), "1 [2]");
        EXPECT_EQ(window.Texts(4), "0|0|0|");
        EXPECT_TRUE(window.Chosen("Opte(0)"));
        EXPECT_EQ(window.Focus(), "Text1(0)");
        EXPECT_TRUE(window.FocusedAndSelected({"Text1", 0}));
        window.Keys({"Text1", 0}, "80");
        window.Type(1, "6");
        window.Type(2, "3");
        window.Click("cmdok");
    });
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(Places(3), "50 80 0");
    EXPECT_EQ(Slot(0).OptLongExt, 1);
    EXPECT_EQ(Slot(1).LargLong, 6.0F);
    EXPECT_TRUE(programme.rib.Modifie);
}

TEST_F(FrmLongeronTest, AddOfAnEmptyEntryIsRefused) {
    platform.Expect(BoxAnswer::ok);
    Use([this](SeenSlots &window) {
        window.Click("cmdajout");
        EXPECT_EQ(Count(), 0);
        EXPECT_EQ(window.Focus(), "Text1(0)");
        EXPECT_TRUE(window.FocusedAndSelected({"Text1", 0}));
    });
    EXPECT_EQ(platform.LastBox(), Refused(kNoWidth, "0"));
    EXPECT_EQ(platform.boxes.at(0).title, "Spars setup 200  mm");
}

TEST_F(FrmLongeronTest, AddOfALocationBeyondTheChordIsRefusedAndKeepsItInTheSlot) {
    platform.Expect(BoxAnswer::ok);
    Use([this](SeenSlots &window) {
        TypeSpar(window, "210", "10", "5");
        window.Click("cmdajout");
        EXPECT_EQ(Count(), 0);
        EXPECT_EQ(window.Texts(3), "210|10|5");
    });
    EXPECT_EQ(platform.LastBox(), Refused(kBehind, "210"));
    EXPECT_EQ(Slot(0).PosLongAfich, "210");
}

TEST_F(FrmLongeronTest, AddWhileASparIsSelectedShowsAndAddsTheWorkSlot) {
    Spars(1);
    Use([](SeenSlots &window) {
        TypeSpar(window, "40", "10", "5");
        window.Click("Opte(1)");
        window.Click("CmdApply");
        window.ClickNumber(0);
        window.Type(0, "99");
        window.Click("cmdajout");
        EXPECT_EQ(window.Numbers(), "1 2 3 [4]");
    });
    EXPECT_EQ(Count(), 3);
    EXPECT_EQ(Places(4), "20 30 40 0");
}

TEST_F(FrmLongeronTest, AddKeepsWhatWasTypedAfterTheWorkSlotsOwnNumberWasClicked) {
    Spars(1);
    Use([](SeenSlots &window) {
        window.ClickNumber(2);
        TypeSpar(window, "99", "10", "5");
        window.Click("Opte(1)");
        window.Click("cmdajout");
    });
    EXPECT_EQ(Places(4), "20 30 99 0");
    EXPECT_EQ(Count(), 3);
}

// A list that was finished before.

TEST_F(FrmLongeronTest, AFinishedListOpensWithTheNextEntry) {
    Spars(1);
    Use([](SeenSlots &window) {
        EXPECT_EQ(window.Numbers(), "1 2 [3]");
        EXPECT_EQ(window.Texts(4), "0|0|0|");
        TypeSpar(window, "99", "10", "5");
        window.Click("Opte(1)");
        window.Click("cmdajout");
        EXPECT_EQ(window.Numbers(), "1 2 3 [4]");
    });
    EXPECT_EQ(Places(4), "20 30 99 0");
    EXPECT_EQ(Count(), 3);
}

TEST_F(FrmLongeronTest, OkStoresTheNextEntryOfAFinishedList) {
    Spars(1);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  TypeSpar(window, "99", "10", "5");
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Places(3), "20 30 99");
    EXPECT_EQ(Count(), 2);
}

TEST_F(FrmLongeronTest, AFinishedListStaysAsItWasWhenNothingIsTyped) {
    for (const char *way : {"cmdok", "CmdApply", "Cmdannuler"}) {
        Spars(1);
        Use([way](SeenSlots &window) { window.Click(way); });
        EXPECT_EQ(Count(), 1) << way;
        EXPECT_EQ(Places(3), "20 30 0") << way;
    }
    EXPECT_EQ(Drawn(), 2);
}

TEST_F(FrmLongeronTest, AFinishedListStaysAsItWasWhenWhatIsTypedIsNotStored) {
    Spars(1);
    platform.Expect(BoxAnswer::ok);
    Use([](SeenSlots &window) {
        TypeSpar(window, "210", "10", "5");
        window.Click("CmdApply");
        window.Click("Cmdannuler");
    });
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(Places(3), "20 30 0");
}

TEST_F(FrmLongeronTest, AnUnfinishedEntryIsShownAgain) {
    const std::function<void(Longeron &)> unfinished[] = {
        [](Longeron &spar) { spar.PosLong = 0; },   // the plot ends there
        [](Longeron &spar) { spar.PosLong = 197; }, // with its width beyond the chord
        [](Longeron &spar) { spar.LargLong = 0; },  //
        [](Longeron &spar) { spar.HautLong = 0; },  //
    };
    for (const auto &change : unfinished) {
        Spars(1);
        change(programme.rib.longeron[1]);
        Use([](SeenSlots &window) {
            EXPECT_EQ(window.Numbers(), "1 [2]");
            EXPECT_EQ(window.Text("Text1(0)"), "30");
        });
    }
}

TEST_F(FrmLongeronTest, ARoundSparIsFinishedWithoutDepth) {
    Spars(0);
    programme.rib.longeron[0].TypeLong = kLongeronRond;
    programme.rib.longeron[0].HautLong = 0;
    Use([](SeenSlots &window) { EXPECT_EQ(window.Numbers(), "1 [2]"); });
}

TEST_F(FrmLongeronTest, AFullListOpensWithItsTwelfthEntry) {
    Spars(11);
    Use([](SeenSlots &window) {
        EXPECT_EQ(window.Numbers(), "1 2 3 4 5 6 7 8 9 10 11 [12]");
        EXPECT_EQ(window.Text("Text1(0)"), "130");
    });
}

TEST_F(FrmLongeronTest, ATwelfthAddShowsTheMessageAndTheCountStaysAt11) {
    platform.ExpectBoxes(2);
    Use([this](SeenSlots &window) {
        for (int i = 1; i <= 12; ++i) {
            TypeSpar(window, std::to_string(10 * i).c_str(), "4", "3");
            window.Click("Opte(1)");
            window.Click("cmdajout");
        }
        EXPECT_EQ(Count(), 11);
        EXPECT_EQ(platform.boxes.size(), 1U);
        EXPECT_EQ(window.Texts(3), "120|4|3");
        EXPECT_EQ(window.Numbers(), "1 2 3 4 5 6 7 8 9 10 11 [12]");
        window.Type(0, "125"); // a further Add overwrites the twelfth
        window.Click("cmdajout");
        EXPECT_EQ(Count(), 11);
        EXPECT_EQ(Slot(11).PosLongAfich, "125");
        window.Click("cmdok");
    });
    EXPECT_EQ(Slot(10).PosLongAfich, "110");
    EXPECT_EQ(Slot(12).PosLongAfich, "0");
    EXPECT_EQ(platform.LastBox(),
              "A rib has room for 12 spars. The one shown is the twelfth : it is kept, "
              "and can still be changed.");
    EXPECT_EQ(platform.boxes.at(0).title, "Spars setup 200  mm");
}

TEST_F(FrmLongeronTest, EachRefusalSaysWhichRuleWasBroken) {
    struct Case {
        const char *place, *width, *depth;
        bool from_trailing;
        std::string text;
    };
    const Case cases[] = {
        {"201", "10", "5", false, Refused(kBehind, "201")},
        {"201", "10", "5", true, Refused(kInFront, "-1")},
        {"196", "10", "5", false, Refused(kOverTrailing, "196")},
        {"4", "10", "5", false, Refused(kOverLeading, "4")},
        {"50", "0", "5", false, Refused(kNoWidth, "0")},
        {"50", "10", "0", false, Refused(kNoDepth, "0")},
    };
    platform.ExpectBoxes(std::size(cases));
    Use([&](SeenSlots &window) {
        for (const Case &wrong : cases) {
            TypeSpar(window, wrong.place, wrong.width, wrong.depth);
            window.Click(wrong.from_trailing ? "OptDistance(1)" : "OptDistance(0)");
            window.Click("cmdajout");
            EXPECT_EQ(platform.LastBox(), wrong.text);
        }
    });
    EXPECT_EQ(Count(), 0);
}

TEST_F(FrmLongeronTest, ASparWithoutANotchIsToldWhenItIsAddedAndStays) {
    platform.Expect(BoxAnswer::ok,
                    {.text =
                         "Spar 1 is added as it stands. Please note :\nIt has no notch, neither "
                         "above nor below : only its axis is drawn.",
                     .title = "Spars setup 200  mm",
                     .icon = BoxIcon::information});
    Use([this](SeenSlots &window) {
        TypeSpar(window, "50", "10", "5");
        window.Click("cmdajout");
        EXPECT_EQ(window.Numbers(), "1 [2]");
        EXPECT_EQ(window.Focus(), "Text1(0)");
        EXPECT_EQ(Count(), 1);
        window.ClickNumber(0); // told once
        window.Type(1, "9");
        window.Click("Cmdmodif");
        window.Click("cmdok");
    });
    EXPECT_EQ(Slot(0).LargLong, 9.0F);
}

TEST_F(FrmLongeronTest, AnOverlapIsToldWhenASparIsAddedAndStays) {
    Spars(1); // 15 to 25 and 25 to 35, above
    platform.Expect(BoxAnswer::ok,
                    {.text = "Spar 3 is added as it stands. Please note :\nOn the upper surface it "
                             "overlaps spar 2"});
    Use([this](SeenSlots &window) {
        TypeSpar(window, "34", "10", "5");
        window.Click("Opte(2)");
        window.Click("Opti(1)");
        window.Click("cmdajout");
        EXPECT_EQ(Count(), 3);
        TypeSpar(window, "34", "10", "5"); // below is spar 3 alone
        window.Click("Opti(1)");
        platform.Expect(BoxAnswer::ok,
                        {.text =
                             "Spar 4 is added as it stands. Please note :\nOn the lower surface "
                             "it overlaps spar 3"});
        window.Click("cmdajout");
    });
    EXPECT_EQ(Places(5), "20 30 34 34 0");
}

// Modify.

TEST_F(FrmLongeronTest, ModifyChangesTheSelectedSparAndDraws) {
    Spars(2);
    Use([this](SeenSlots &window) {
        window.ClickNumber(1);
        window.Type(0, "35");
        window.Click("Cmdmodif");
        EXPECT_EQ(window.Numbers(), "1 2 3 [4]");
        EXPECT_EQ(window.Texts(3), "0|0|0");
        EXPECT_EQ(Drawn(), 1);
    });
    EXPECT_EQ(Places(3), "20 35 40");
    EXPECT_EQ(Count(), 2);
    EXPECT_TRUE(programme.rib.Modifie);
}

TEST_F(FrmLongeronTest, ModifyWithoutASelectionAsksForOne) {
    Spars(2);
    platform.Expect(BoxAnswer::ok);
    Use([](SeenSlots &window) {
        window.Type(0, "35");
        window.Click("Cmdmodif");
        EXPECT_EQ(window.Text("Text1(0)"), "35");
    });
    EXPECT_EQ(platform.LastBox(), "Please click the number of a spar first.");
    EXPECT_EQ(Places(3), "20 30 40");
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmLongeronTest, TheSelectionIsOverAfterModify) {
    Spars(2);
    platform.Expect(BoxAnswer::ok);
    Use([](SeenSlots &window) {
        window.ClickNumber(0);
        window.Click("Cmdmodif");
        window.Click("Cmdmodif");
    });
    EXPECT_EQ(platform.LastBox(), "Please click the number of a spar first.");
}

TEST_F(FrmLongeronTest, AWrongModificationStaysShownAndStored) {
    Spars(2);
    platform.Expect(BoxAnswer::ok);
    Use([this](SeenSlots &window) {
        window.ClickNumber(0);
        window.Type(1, "60"); // 20 - 30 lies before the leading edge
        window.Click("Cmdmodif");
        EXPECT_EQ(window.Numbers(), "[1] 2 3 4");
        EXPECT_EQ(window.Texts(3), "20|60|5");
        EXPECT_EQ(Drawn(), 0);
    });
    EXPECT_EQ(platform.LastBox(), Refused(kOverLeading, "20"));
    EXPECT_EQ(Slot(0).LargLong, 60.0F);
    EXPECT_EQ(Places(3), "20 30 40");
}

TEST_F(FrmLongeronTest, AfterAModificationAnUntouchedWorkSlotIsPassedOver) {
    Spars(1);
    programme.rib.longeron[1] = Longeron{};
    EXPECT_EQ(Use([this](SeenSlots &window) {
                  window.ClickNumber(0);
                  window.Type(0, "25");
                  window.Click("Cmdmodif");
                  EXPECT_EQ(window.Numbers(), "1 [2]");
                  EXPECT_EQ(Drawn(), 1);
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Places(2), "25 0");
    EXPECT_EQ(Count(), 1);
}

// Remove.

TEST_F(FrmLongeronTest, RemoveClosesTheGapAndDraws) {
    Spars(3);
    Use([this](SeenSlots &window) {
        window.ClickNumber(1);
        window.Click("Cmdeffac");
        EXPECT_EQ(window.Numbers(), "1 2 3 [4]");
        EXPECT_EQ(window.Texts(3), "0|0|0");
        EXPECT_EQ(window.Focus(), "Text1(0)");
        EXPECT_EQ(Drawn(), 1);
    });
    EXPECT_EQ(Places(4), "20 40 50 0");
    EXPECT_EQ(Count(), 2);
    EXPECT_EQ(Slot(3).LargLong, 0.0F);
    EXPECT_EQ(Slot(3).OptLongExt, 0);
    EXPECT_TRUE(programme.rib.Modifie);
}

TEST_F(FrmLongeronTest, RemoveWithoutASelectionAsksForOne) {
    Spars(2);
    platform.Expect(BoxAnswer::ok);
    Use([](SeenSlots &window) { window.Click("Cmdeffac"); });
    EXPECT_EQ(platform.LastBox(), "Please click the number of a spar first.");
    EXPECT_EQ(Places(3), "20 30 40");
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmLongeronTest, RemoveOfTheOnlySparLeavesAnEmptyListThatIsDrawn) {
    Spars(0);
    const Left left = Use([this](SeenSlots &window) {
        window.ClickNumber(0);
        window.Click("Cmdeffac");
        EXPECT_EQ(window.Numbers(), "[1]");
        EXPECT_EQ(window.Texts(4), "0|0|0|");
        EXPECT_TRUE(window.Chosen("Opte(0)"));
        EXPECT_EQ(window.Focus(), "Text1(0)");
        EXPECT_EQ(Drawn(), 1);
        window.Click("cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(Slot(0).LargLong, 0.0F);
}

TEST_F(FrmLongeronTest, RemoveOfAnEmptyWorkSlotMakesTheLastSparTheWorkSlot) {
    Spars(1);
    programme.rib.longeron[1] = Longeron{};
    const Left left = Use([](SeenSlots &window) {
        window.ClickNumber(1);
        window.Click("Cmdeffac");
        EXPECT_EQ(window.Numbers(), "[1]");
        EXPECT_EQ(window.Texts(3), "20|10|5");
        window.Click("cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(Slot(0).PosLongAfich, "20");
}

TEST_F(FrmLongeronTest, RemoveOfTheNextEntryOfAFinishedListShowsTheLastOne) {
    Spars(1);
    const Left left = Use([](SeenSlots &window) {
        window.ClickNumber(2);
        window.Click("Cmdeffac");
        EXPECT_EQ(window.Numbers(), "1 [2]");
        EXPECT_EQ(window.Texts(3), "30|10|5");
        window.Click("cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(Places(3), "20 30 0");
}

TEST_F(FrmLongeronTest, RemoveOfTheLastOfAFinishedListTakesNoOther) {
    Spars(1);
    Use([](SeenSlots &window) {
        window.ClickNumber(1);
        window.Click("Cmdeffac");
        EXPECT_EQ(window.Numbers(), "1 [2]");
        window.Click("cmdok");
    });
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(Places(3), "20 0 0");
}

TEST_F(FrmLongeronTest, RemoveFromAFullList) {
    Spars(11);
    for (int i = 0; i <= 11; ++i) { // all on the chord
        Longeron &spar = At(programme.rib.longeron, i);
        spar.PosLongAfich = std::to_string(15 * (i + 1));
    }
    Use([](SeenSlots &window) {
        window.ClickNumber(0);
        window.Click("Cmdeffac");
        EXPECT_EQ(window.Numbers(), "1 2 3 4 5 6 7 8 9 10 [11]");
        EXPECT_EQ(window.Text("Text1(0)"), "180");
    });
    EXPECT_EQ(Count(), 10);
    EXPECT_EQ(Slot(0).PosLongAfich, "30");
    EXPECT_EQ(Slot(11).PosLongAfich, "0");
}

} // namespace
} // namespace loftwing
