#include "windows/frmPrint_fixture.h"

namespace loftwing {
namespace {

TEST_F(FrmPrintTest, MarginsThatLeaveNoRoomAreRefusedAndLeadToTheOverlap) {
    Chord(300);
    Use([this](frmPrint &dialog) {
        Type(dialog, 1, "26");
        EXPECT_TRUE(platform.boxes.empty());
        ExpectBoxes(1);
        QTest::keyClicks(&Box(dialog, 1), "2"); // 297 - 262 - 15 - 20 = 0
        EXPECT_EQ(platform.boxes.back().text, kNoRoom);
        EXPECT_EQ(platform.boxes.back().title, "Error");
        EXPECT_EQ(platform.boxes.back().icon, BoxIcon::stop);
        EXPECT_TRUE(FocusedAndSelected(Box(dialog, 3)));
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : -");
        EXPECT_FALSE(Bold(dialog, "Label4"));
        Type(dialog, 3, "8");
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 26"); // 300 / 12
    });
}

TEST_F(FrmPrintTest, ATextThatChangesUnderABoxStartsNoSecondOne) {
    Chord(300);
    Use([this](frmPrint &dialog) {
        platform.boxes_expected.push_back(
            {BoxAnswer::ok, [&](const MessageBox &) { Box(dialog, 2).setText("290"); }});
        Box(dialog, 1).setText("290");
        EXPECT_EQ(platform.boxes.size(), 1U);
    });
}

TEST_F(FrmPrintTest, NoRoomIsToldAtOkWhenItWasSoFromTheStart) {
    Chord(300);
    programme.settings.page.MargeHaut = 290;
    programme.settings.page.MargeHautAfich = "290";
    const Left left = Use([this](frmPrint &dialog) {
        EXPECT_TRUE(platform.boxes.empty());
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : -");
        ExpectBoxes(1);
        Click(dialog, "cmdok");
        EXPECT_EQ(platform.boxes.back().text, kNoRoom);
        EXPECT_TRUE(FocusedAndSelected(Box(dialog, 3)));
    });
    EXPECT_EQ(left, Left::open);
}

TEST_F(FrmPrintTest, MoreThan255SheetsFailOnceForEachChange) {
    Chord(300);
    Use([this](frmPrint &dialog) {
        Type(dialog, 3, "27");
        ExpectBoxes(1);
        QTest::keyClicks(&Box(dialog, 3), "1"); // steps of 1 mm: 301 sheets
        EXPECT_TRUE(platform.boxes.back().text.starts_with("Error # 6 in Loftwing\n"));
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : -");
        EXPECT_TRUE(Box(dialog, 3).isEnabled());
        QTest::keyClick(&Box(dialog, 3), Qt::Key_Backspace);
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 2");
    });
    EXPECT_EQ(platform.boxes.size(), 1U);
}

TEST_F(FrmPrintTest, AFailureLeavesTheOverlapToBePutRight) {
    Chord(100000);
    Use([this](frmPrint &dialog) {
        ExpectBoxes(1);
        Paper(dialog, 8);
        ExpectBoxes(1);
        Paper(dialog, 0); // steps of 272 mm: 368 sheets
        EXPECT_TRUE(platform.boxes.back().text.starts_with("Error # 6 in Loftwing\n"));
        EXPECT_TRUE(Box(dialog, 3).isEnabled());
        EXPECT_FALSE(Enabled(dialog, "cmdconfigImprim"));
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : -");
    });
}

TEST_F(FrmPrintTest, AFractionOverNothingFailsAndNeverComesOut) {
    Inches();
    Chord("13", 330.2F);
    const Left left = Use([this](frmPrint &dialog) {
        Type(dialog, 1, "1/");
        ExpectBoxes(1);
        QTest::keyClicks(&Box(dialog, 1), "0");
        EXPECT_TRUE(platform.boxes.back().text.starts_with("Error # 11 in Loftwing\n"));
        // The other boxes don't complain of it.
        Type(dialog, 2, "1");
        ExpectBoxes(1);
        Click(dialog, "cmdok");
        EXPECT_TRUE(platform.boxes.back().text.starts_with("Error # 11 in Loftwing\n"));
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(Page().MargeHautAfich, "1/2");
    EXPECT_EQ(Page().MargeBasAfich, "1/2");
    EXPECT_EQ(Stored("MargeHaut"), "");
}

TEST_F(FrmPrintTest, ATextThatIsNoLengthIsToldAtItsOwnChangesOnly) {
    Inches();
    Chord("13", 330.2F);
    Use([this](frmPrint &dialog) {
        ExpectBoxes(1);
        Type(dialog, 2, "/");
        EXPECT_EQ(platform.boxes.back().title, "Enter error");
        Type(dialog, 1, "1");
        EXPECT_EQ(platform.boxes.size(), 1U);
    });
}

TEST_F(FrmPrintTest, BoxesTakeTheKeysOfTheUnit) {
    Use([](frmPrint &dialog) {
        for (const int index : {0, 1, 2}) {
            Type(dialog, index, "a1-./,%2");
            EXPECT_EQ(Box(dialog, index).text(), "1.2") << index;
        }
    });
    Inches();
    Use([](frmPrint &dialog) {
        Type(dialog, 0, "a1-.1/,%2");
        EXPECT_EQ(Box(dialog, 0).text(), "1.1/2");
    });
}

TEST_F(FrmPrintTest, PaperThatIsTooShortForTheMarginsIsRefused) {
    Chord(300);
    Use([this](frmPrint &dialog) {
        Type(dialog, 3, "250"); // steps of 22 mm on A4
        ExpectBoxes(1);
        Paper(dialog, 4); // 266.7 - 275
        EXPECT_EQ(platform.boxes.back().text, kNoRoom);
        EXPECT_TRUE(FocusedAndSelected(Box(dialog, 3)));
    });
}

TEST_F(FrmPrintTest, OkStoresThePageAndWritesIt) {
    Chord(300);
    const Left left = Use([this](frmPrint &dialog) {
        programme.rib.Annule = true;
        Type(dialog, 0, "60");
        Type(dialog, 1, "12.5");
        Type(dialog, 2, "16");
        Type(dialog, 3, "22");
        Paper(dialog, 1);
        Click(dialog, "cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_FALSE(programme.rib.Annule);
    EXPECT_EQ(Page().Ydprint, 60.0F);
    EXPECT_EQ(Page().MargeHaut, 12.5F);
    EXPECT_EQ(Page().MargeBas, 16.0F);
    EXPECT_EQ(Page().recouvrement, 22.0F);
    EXPECT_EQ(Page().NumIndex, 1);
    EXPECT_EQ(Page().PasPage, 228.9F); // 279.4 - 12.5 - 16 - 22
    EXPECT_EQ(Page().NbPages, 2);
    EXPECT_EQ(Stored("Ydprint"), "60");
    EXPECT_EQ(Stored("MargeHaut"), "12.5");
    EXPECT_EQ(Stored("MargeBas"), "16");
    EXPECT_EQ(Stored("recouvrement"), "22");
    EXPECT_EQ(Stored("NumIndex"), "1");
}

TEST_F(FrmPrintTest, OkLengthensAStepThatEqualsTheChord) {
    Chord(272);
    EXPECT_EQ(Use([](frmPrint &dialog) { Click(dialog, "cmdok"); }), Left::accepted);
    EXPECT_EQ(Page().PasPage, 272.5F);
    EXPECT_EQ(Page().NbPages, 1);
    EXPECT_EQ(Page().recouvrement, 0.0F);
}

TEST_F(FrmPrintTest, ReturnIsOk) {
    EXPECT_EQ(Use([](frmPrint &dialog) { QTest::keyClick(&Box(dialog, 1), Qt::Key_Return); }),
              Left::accepted);
}

TEST_F(FrmPrintTest, SeveralSheetsWithoutOverlapAreRefusedAtOkButKept) {
    Chord(300);
    NoOverlap();
    const Left left = Use([this](frmPrint &dialog) {
        EXPECT_TRUE(platform.boxes.empty());
        ExpectBoxes(1);
        Click(dialog, "cmdok");
        EXPECT_EQ(platform.boxes.back().text, "2 Pages, Please check Overlap Airfoil");
        EXPECT_EQ(platform.boxes.back().title, " Pages, Please check Overlap Airfoil");
        EXPECT_TRUE(Bold(dialog, "Option1"));
        EXPECT_TRUE(FocusedAndSelected(Box(dialog, 3)));
        EXPECT_EQ(Stored("recouvrement"), "0");
        QTest::keyClicks(&Box(dialog, 3), "15");
        EXPECT_FALSE(Bold(dialog, "Option1"));
        Click(dialog, "cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Page().recouvrement, 15.0F);
    EXPECT_EQ(Stored("recouvrement"), "15");
}

TEST_F(FrmPrintTest, CancelChangesNothing) {
    Chord(300);
    for (const bool by_key : {false, true}) {
        programme.rib.Annule = false;
        const Left left = Use([&](frmPrint &dialog) {
            Type(dialog, 1, "77");
            Type(dialog, 3, "33");
            Paper(dialog, 3);
            if (by_key) {
                QTest::keyClick(&dialog, Qt::Key_Escape);
            } else {
                Click(dialog, "cmdannuler");
            }
        });
        EXPECT_EQ(left, Left::rejected);
        EXPECT_TRUE(programme.rib.Annule);
        EXPECT_EQ(Page().MargeHautAfich, "10");
        EXPECT_EQ(Page().recouvrement, 20.0F);
        EXPECT_EQ(Page().NumIndex, 0);
        EXPECT_EQ(Page().NbPages, 0);
        EXPECT_EQ(Stored("MargeHaut"), "");
    }
}

TEST_F(FrmPrintTest, ClosingTheWindowIsCancel) {
    EXPECT_EQ(Use([](frmPrint &dialog) { dialog.close(); }), Left::rejected);
    EXPECT_TRUE(programme.rib.Annule);
}

TEST_F(FrmPrintTest, OpeningClearsTheLastCancel) {
    programme.rib.Annule = true;
    Use([this](frmPrint &) { EXPECT_FALSE(programme.rib.Annule); });
}

} // namespace
} // namespace loftwing
