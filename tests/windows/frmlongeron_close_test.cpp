// Apply, OK and Close of the spar window.

#include "windows/frmlongeron_fixture.h"

#include <QApplication>
#include <QTest>

#include <QClipboard>
#include <QGuiApplication>

namespace loftwing {
namespace {

// Apply and OK.

TEST_F(FrmLongeronTest, ApplyDrawsAndKeepsTheWindowOpen) {
    EXPECT_EQ(Use([this](SeenSlots &window) {
                  TypeSpar(window, "50%", "10", "5");
                  window.Click("CmdApply");
                  EXPECT_EQ(Drawn(), 1);
                  EXPECT_EQ(window.Texts(3), "50%|10|5");
                  EXPECT_EQ(window.Numbers(), "[1]");
              }),
              Left::open);
    EXPECT_EQ(Slot(0).PosLong, 100.0F);
    EXPECT_EQ(Slot(0).PosLongAfich, "50%");
}

TEST_F(FrmLongeronTest, ApplyWithASelectionModifiesItAndTheWorkSlotStays) {
    Spars(2);
    Use([this](SeenSlots &window) {
        window.ClickNumber(0);
        window.Type(0, "25");
        window.Click("CmdApply");
        EXPECT_EQ(window.Numbers(), "1 2 3 [4]");
        EXPECT_EQ(Drawn(), 1);
    });
    EXPECT_EQ(Places(3), "25 30 40");
}

TEST_F(FrmLongeronTest, AWrongSelectionDoesNotGetIntoTheWorkSlot) {
    Spars(2);
    platform.Expect(BoxAnswer::ok);
    const Left left = Use([this](SeenSlots &window) {
        window.ClickNumber(0);
        window.Type(0, "250");
        window.Click("cmdok");
        EXPECT_EQ(Drawn(), 0);
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(Places(3), "250 30 40");
}

TEST_F(FrmLongeronTest, RefusedValuesAreGoneWhenTheRibIsDrawn) {
    Spars(2);
    platform.Expect(BoxAnswer::ok);
    Use([this](SeenSlots &window) {
        window.ClickNumber(0);
        window.Type(0, "2"); // its width reaches in front of the leading edge
        window.Click("Cmdmodif");
        EXPECT_EQ(Places(3), "2 30 40"); // stored all the same
        window.ClickNumber(1);
        window.Type(0, "33");
        window.Click("Cmdmodif");
        EXPECT_EQ(Drawn(), 1);
    });
    EXPECT_EQ(Places(3), "20 33 40");
}

TEST_F(FrmLongeronTest, RefusedValuesAreGoneWhenTheWindowCloses) {
    Spars(2);
    platform.ExpectBoxes(2);
    EXPECT_EQ(Use([this](SeenSlots &window) {
                  window.ClickNumber(0);
                  window.Type(0, "2");
                  window.Click("Cmdmodif");
                  window.Type(0, "3"); // what was there before the first refusal counts
                  window.Click("Cmdmodif");
                  EXPECT_EQ(Places(3), "3 30 40");
                  window.Click("Cmdannuler");
              }),
              Left::rejected);
    EXPECT_EQ(Places(3), "20 30 40");
}

TEST_F(FrmLongeronTest, CloseThatIsRefusedShowsTheEntryThatItSpeaksOf) {
    Spars(3);
    platform.ExpectBoxes(2);
    Use([](SeenSlots &window) {
        window.ClickNumber(1);
        window.Type(0, "250");
        window.Click("Cmdmodif");
        window.ClickNumber(2); // which is right
        window.Click("Cmdannuler");
        EXPECT_EQ(window.Numbers(), "1 [2] 3 4 5");
        EXPECT_EQ(window.Box(0).text().toStdString(), "250");
    });
}

TEST_F(FrmLongeronTest, OkWithASelectionTakesItAndCloses) {
    Spars(2);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  window.ClickNumber(1);
                  window.Type(0, "33");
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Places(3), "20 33 40");
    EXPECT_EQ(Drawn(), 1);
}

TEST_F(FrmLongeronTest, OkOfAWrongEntryKeepsTheWindowOpenUntilItIsRight) {
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  TypeSpar(window, "100", "10", "0");
                  window.Click("cmdok");
                  EXPECT_TRUE(window.IsOpen());
                  EXPECT_EQ(window.Focus(), "Text1(0)");
                  window.Type(2, "4");
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(platform.LastBox(), Refused(kNoDepth, "0"));
}

TEST_F(FrmLongeronTest, OkOfAnUntouchedListDrawsAndCloses) {
    EXPECT_EQ(Use([](SeenSlots &window) { window.Click("cmdok"); }), Left::accepted);
    EXPECT_EQ(Drawn(), 1);
    EXPECT_EQ(Count(), 0);
}

TEST_F(FrmLongeronTest, OkAfterAnAddPassesOverTheNextEntry) {
    EXPECT_EQ(Use([](SeenSlots &window) {
                  TypeSpar(window, "50", "10", "5");
                  window.Click("Opte(1)");
                  window.Click("cmdajout");
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Drawn(), 1);
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(Places(2), "50 0");
}

TEST_F(FrmLongeronTest, WhatWasTypedIntoTheNextEntryIsChecked) {
    platform.ExpectBoxes(2);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  TypeSpar(window, "50", "10", "5");
                  window.Click("Opte(1)");
                  window.Click("cmdajout");
                  window.Type(0, "60"); // and no width
                  window.Click("cmdok");
                  EXPECT_TRUE(window.IsOpen());
                  window.Type(0, "0");
                  window.Click("Opti(2)"); // a choice counts too
                  window.Click("cmdok");
              }),
              Left::open);
    EXPECT_EQ(Drawn(), 0);
}

TEST_F(FrmLongeronTest, WhatIsTakenBackBeforeOkIsNothingTyped) {
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  TypeSpar(window, "210", "10", "5");
                  window.Click("cmdok");
                  EXPECT_TRUE(window.IsOpen());
                  TypeSpar(window, "", "0", "0");
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Slot(0).PosLongAfich, "0");
    EXPECT_EQ(Slot(0).LargLong, 0.0F);
}

TEST_F(FrmLongeronTest, ARefusedEntryIsCheckedAgainAfterAnotherIsModified) {
    Spars(2);
    platform.ExpectBoxes(2);
    EXPECT_EQ(Use([this](SeenSlots &window) {
                  TypeSpar(window, "210", "10", "5");
                  window.Click("CmdApply");
                  window.ClickNumber(0);
                  window.Click("Cmdmodif");
                  EXPECT_EQ(window.Numbers(), "1 2 3 [4]");
                  EXPECT_EQ(window.Texts(3), "210|10|5");
                  EXPECT_EQ(Drawn(), 0);
                  window.Click("Cmdannuler");
              }),
              Left::rejected);
    EXPECT_EQ(platform.LastBox(), Refused(kBehind, "210"));
    EXPECT_EQ(Places(4), "20 30 40 0");
    EXPECT_EQ(Count(), 2);
}

TEST_F(FrmLongeronTest, AnUntouchedEntryMayBeModified) {
    Spars(1);
    EXPECT_EQ(Use([this](SeenSlots &window) {
                  window.ClickNumber(2);
                  window.Click("Cmdmodif");
                  EXPECT_EQ(Drawn(), 1);
                  window.Click("Cmdannuler");
              }),
              Left::rejected);
    EXPECT_EQ(Count(), 1);
}

TEST_F(FrmLongeronTest, WithAnEmptyListAWidthOfZeroPassesAfterItsNumberWasClicked) {
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  window.Type(0, "50");
                  window.Click("cmdok");
                  EXPECT_TRUE(window.IsOpen());
                  window.ClickNumber(0);
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(platform.LastBox(), Refused(kNoWidth, "0"));
    EXPECT_EQ(Slot(0).PosLong, 50.0F);
}

TEST_F(FrmLongeronTest, WithSparsAWidthOfZeroIsRefusedEvenThen) {
    Spars(0);
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  window.ClickNumber(1);
                  window.Type(0, "50");
                  window.Click("cmdok");
              }),
              Left::open);
}

TEST_F(FrmLongeronTest, TheClickedNumberIsForgottenAfterAnAdd) {
    platform.Expect(BoxAnswer::ok);
    Use([this](SeenSlots &window) {
        window.ClickNumber(0);
        TypeSpar(window, "50", "10", "5");
        window.Click("Opte(1)");
        window.Click("cmdajout");
        programme.rib.NbLongeron = 0; // so that the list is empty again
        window.Type(0, "60");
        window.Click("CmdApply");
    });
    EXPECT_EQ(platform.LastBox(), Refused(kNoWidth, "0"));
}

TEST_F(FrmLongeronTest, ASparAtLocationZeroIsTakenWhenItHasNoWidth) {
    EXPECT_EQ(Use([](SeenSlots &window) {
                  window.ClickNumber(0);
                  window.Click("Opte(1)");
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Slot(0).PosLong, 0.0F);
    EXPECT_EQ(Slot(0).OptLongExt, 1);
    EXPECT_EQ(Drawn(), 1);
}

TEST_F(FrmLongeronTest, ARefusalShowsInchesAsTyped) {
    Inches();
    platform.Expect(BoxAnswer::ok);
    Use([](SeenSlots &window) {
        TypeSpar(window, "8.3/8", "1/2", "1/4"); // 212.725 mm on 200
        window.Click("CmdApply");
    });
    EXPECT_EQ(platform.LastBox(), Refused(kBehind, "8.3/8"));
}

TEST_F(FrmLongeronTest, ARefusalShowsAPercentageAsItsLength) {
    platform.Expect(BoxAnswer::ok);
    Use([](SeenSlots &window) {
        TypeSpar(window, "110%", "4", "3");
        window.Click("CmdApply");
    });
    EXPECT_EQ(platform.LastBox(), Refused(kBehind, "220"));
}

TEST_F(FrmLongeronTest, PastedWordsAreCleanedAndTheRestIsTheLeadingNumber) {
    QGuiApplication::clipboard()->setText("x4.0.7y");
    Use([](SeenSlots &window) {
        TypeSpar(window, "50", "4", "3");
        window.GoTo({"Text1", 1});
        QTest::keySequence(&window.Box(1), QKeySequence::Paste);
        EXPECT_EQ(window.Text("Text1(1)"), "4.0.7");
        window.Click("cmdok");
    });
    EXPECT_EQ(Slot(0).LargLong, 4.0F);
}

TEST_F(FrmLongeronTest, AFractionOfZerothsIsToldAndKeepsTheWindowOpen) {
    Inches();
    for (const char *button : {"cmdajout", "CmdApply", "cmdok"}) {
        platform.Expect(BoxAnswer::ok);
        EXPECT_EQ(Use([&](SeenSlots &window) {
                      TypeSpar(window, "3", "1/0", "1/4");
                      window.Click(button);
                      EXPECT_EQ(window.Focus(), "Text1(0)");
                  }),
                  Left::open);
    }
    EXPECT_EQ(platform.boxes.at(0).title, " Longeron/Add");
    EXPECT_EQ(platform.boxes.at(1).title, " Longeron/Apply");
    EXPECT_EQ(platform.boxes.at(2).title, " Longeron/OK");
    EXPECT_EQ(Drawn(), 0);
    EXPECT_EQ(Count(), 0);
}

// Close.

TEST_F(FrmLongeronTest, CloseStoresNothing) {
    Spars(1);
    for (const char *way : {"Cmdannuler", "Escape", "window"}) {
        EXPECT_EQ(Use([&](SeenSlots &window) {
                      TypeSpar(window, "77", "7", "7");
                      if (std::string(way) == "Escape") {
                          window.Key(Qt::Key_Escape);
                      } else if (std::string(way) == "window") {
                          window.Close();
                      } else {
                          window.Click(way);
                      }
                  }),
                  Left::rejected)
            << way;
    }
    EXPECT_EQ(Places(2), "20 30");
    EXPECT_FALSE(programme.rib.Modifie);
    EXPECT_EQ(Drawn(), 0);
}

TEST_F(FrmLongeronTest, CloseKeepsWhatWasAdded) {
    EXPECT_EQ(Use([](SeenSlots &window) {
                  TypeSpar(window, "50", "10", "5");
                  window.Click("Opte(1)");
                  window.Click("cmdajout");
                  window.Click("Cmdannuler");
              }),
              Left::rejected);
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(Places(2), "50 0");
}

TEST_F(FrmLongeronTest, CloseWithAnotherNumberSelectedStaysWhileAValueIsWrong) {
    Spars(2);
    platform.ExpectBoxes(3);
    EXPECT_EQ(Use([this](SeenSlots &window) {
                  window.ClickNumber(1);
                  window.Type(0, "250");
                  window.Click("Cmdmodif");
                  window.Click("Cmdannuler");
                  EXPECT_TRUE(window.IsOpen());
                  window.Key(Qt::Key_Escape);
                  EXPECT_TRUE(window.IsOpen());
                  EXPECT_EQ(platform.boxes.size(), 3U);
                  window.Type(0, "150");
                  window.Click("Cmdmodif");
                  window.Click("Cmdannuler");
              }),
              Left::rejected);
    EXPECT_EQ(platform.boxes.at(2).text, Refused(kBehind, "250"));
    EXPECT_EQ(Places(3), "20 150 40");
}

TEST_F(FrmLongeronTest, CloseWithTheFirstNumberAlwaysCloses) {
    Spars(2);
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  window.ClickNumber(0);
                  window.Type(0, "250");
                  window.Click("Cmdmodif");
                  window.Click("Cmdannuler");
              }),
              Left::rejected);
}

TEST_F(FrmLongeronTest, CloseAfterAFailureWithoutAValueShowsAQuestionMark) {
    Inches();
    Spars(2);
    platform.ExpectBoxes(2);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  window.ClickNumber(1);
                  window.Type(0, "1/0");
                  window.Click("Cmdmodif");
                  window.Click("Cmdannuler");
              }),
              Left::open);
    EXPECT_EQ(platform.LastBox(), Refused(kUnusable, "?"));
}

// When the drawing fails the main window clears the rib and closes this one.

TEST_F(FrmLongeronTest, AFailingDrawingClosesTheWindowInsideEveryCommand) {
    for (const char *button : {"CmdApply", "cmdok", "Cmdmodif", "Cmdeffac"}) {
        Spars(3);
        view.on_draw = [this] {
            RazRib(programme.rib, 0);
            for (QWidget *window : QApplication::topLevelWidgets()) {
                if (window->objectName() == "frmlongeron") {
                    static_cast<QDialog *>(window)->done(QDialog::Rejected);
                }
            }
        };
        EXPECT_EQ(Use([&](SeenSlots &window) {
                      window.ClickNumber(1);
                      window.Click(button);
                      EXPECT_FALSE(window.IsOpen());
                  }),
                  Left::rejected)
            << button;
        EXPECT_EQ(Count(), 0);
    }
}

} // namespace
} // namespace loftwing
