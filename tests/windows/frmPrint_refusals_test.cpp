#include "windows/frmPrint_fixture.h"

namespace loftwing {
namespace {

TEST_F(FrmPrintTest, MarginsThatLeaveNoRoomAreRefusedAndLeadToTheOverlap) {
    Chord(300);
    Use([this](Seen &dialog) {
        dialog.Type("Text1(1)", "26");
        EXPECT_TRUE(platform.boxes.empty());
        platform.Expect(BoxAnswer::ok);
        dialog.Keys("Text1(1)", "2"); // 297 - 262 - 15 - 20 = 0
        EXPECT_EQ(platform.boxes.back().text, kNoRoom);
        EXPECT_EQ(platform.boxes.back().title, "Error");
        EXPECT_EQ(platform.boxes.back().icon, BoxIcon::stop);
        EXPECT_TRUE(dialog.FocusedAndSelected("Text1(3)"));
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : -");
        EXPECT_FALSE(dialog.Bold("Label4"));
        dialog.Type("Text1(3)", "8");
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 26"); // 300 / 12
    });
}

TEST_F(FrmPrintTest, ATextThatChangesUnderABoxStartsNoSecondOne) {
    Chord(300);
    Use([this](Seen &dialog) {
        platform.Expect(BoxAnswer::ok, {.meanwhile = [&] { dialog.Fill("Text1(2)", "290"); }});
        dialog.Fill("Text1(1)", "290");
        EXPECT_EQ(platform.boxes.size(), 1U);
    });
}

TEST_F(FrmPrintTest, NoRoomIsToldAtOkWhenItWasSoFromTheStart) {
    Chord(300);
    programme.settings.page.MargeHaut = 290;
    programme.settings.page.MargeHautAfich = "290";
    const Left left = Use([this](Seen &dialog) {
        EXPECT_TRUE(platform.boxes.empty());
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : -");
        platform.Expect(BoxAnswer::ok);
        dialog.Click("cmdok");
        EXPECT_EQ(platform.boxes.back().text, kNoRoom);
        EXPECT_TRUE(dialog.FocusedAndSelected("Text1(3)"));
    });
    EXPECT_EQ(left, Left::open);
}

TEST_F(FrmPrintTest, MoreThan255SheetsFailOnceForEachChange) {
    Chord(300);
    Use([this](Seen &dialog) {
        dialog.Type("Text1(3)", "27");
        platform.Expect(BoxAnswer::ok);
        dialog.Keys("Text1(3)", "1"); // steps of 1 mm: 301 sheets
        EXPECT_TRUE(platform.boxes.back().text.starts_with("Error # 6 in Loftwing\n"));
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : -");
        EXPECT_TRUE(dialog.Enabled("Text1(3)"));
        dialog.Key("Text1(3)", Qt::Key_Backspace);
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 2");
    });
    EXPECT_EQ(platform.boxes.size(), 1U);
}

TEST_F(FrmPrintTest, AFailureLeavesTheOverlapToBePutRight) {
    Chord(100000);
    Use([this](Seen &dialog) {
        platform.Expect(BoxAnswer::ok);
        Paper(dialog, 8);
        platform.Expect(BoxAnswer::ok);
        Paper(dialog, 0); // steps of 272 mm: 368 sheets
        EXPECT_TRUE(platform.boxes.back().text.starts_with("Error # 6 in Loftwing\n"));
        EXPECT_TRUE(dialog.Enabled("Text1(3)"));
        EXPECT_FALSE(dialog.Enabled("cmdconfigImprim"));
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : -");
    });
}

TEST_F(FrmPrintTest, AFractionOverNothingFailsAndNeverComesOut) {
    Inches();
    Chord("13", 330.2F);
    const Left left = Use([this](Seen &dialog) {
        dialog.Type("Text1(1)", "1/");
        platform.Expect(BoxAnswer::ok);
        dialog.Keys("Text1(1)", "0");
        EXPECT_TRUE(platform.boxes.back().text.starts_with("Error # 11 in Loftwing\n"));
        // The other boxes don't complain of it.
        dialog.Type("Text1(2)", "1");
        platform.Expect(BoxAnswer::ok);
        dialog.Click("cmdok");
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
    Use([this](Seen &dialog) {
        platform.Expect(BoxAnswer::ok);
        dialog.Type("Text1(2)", "/");
        EXPECT_EQ(platform.boxes.back().title, "Enter error");
        dialog.Type("Text1(1)", "1");
        EXPECT_EQ(platform.boxes.size(), 1U);
    });
}

TEST_F(FrmPrintTest, BoxesTakeTheKeysOfTheUnit) {
    Use([](Seen &dialog) {
        for (const int index : {0, 1, 2}) {
            dialog.Type({"Text1", index}, "a1-./;%2");
            EXPECT_EQ(dialog.Text({"Text1", index}), "1.2") << index;
        }
    });
    Inches();
    Use([](Seen &dialog) {
        dialog.Type("Text1(0)", "a1-.1/;%2");
        EXPECT_EQ(dialog.Text("Text1(0)"), "1.1/2");
    });
}

TEST_F(FrmPrintTest, PaperThatIsTooShortForTheMarginsIsRefused) {
    Chord(300);
    Use([this](Seen &dialog) {
        dialog.Type("Text1(3)", "250"); // steps of 22 mm on A4
        platform.Expect(BoxAnswer::ok);
        Paper(dialog, 4); // 266.7 - 275
        EXPECT_EQ(platform.boxes.back().text, kNoRoom);
        EXPECT_TRUE(dialog.FocusedAndSelected("Text1(3)"));
    });
}

TEST_F(FrmPrintTest, OkStoresThePageAndWritesIt) {
    Chord(300);
    const Left left = Use([this](Seen &dialog) {
        programme.rib.Annule = true;
        dialog.Type("Text1(0)", "60");
        dialog.Type("Text1(1)", "12.5");
        dialog.Type("Text1(2)", "16");
        dialog.Type("Text1(3)", "22");
        Paper(dialog, 1);
        dialog.Click("cmdok");
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
    EXPECT_EQ(Use([](Seen &dialog) { dialog.Click("cmdok"); }), Left::accepted);
    EXPECT_EQ(Page().PasPage, 272.5F);
    EXPECT_EQ(Page().NbPages, 1);
    EXPECT_EQ(Page().recouvrement, 0.0F);
}

TEST_F(FrmPrintTest, ReturnIsOk) {
    EXPECT_EQ(Use([](Seen &dialog) { dialog.Key("Text1(1)", Qt::Key_Return); }), Left::accepted);
}

TEST_F(FrmPrintTest, SeveralSheetsWithoutOverlapAreRefusedAtOkButKept) {
    Chord(300);
    NoOverlap();
    const Left left = Use([this](Seen &dialog) {
        EXPECT_TRUE(platform.boxes.empty());
        platform.Expect(BoxAnswer::ok);
        dialog.Click("cmdok");
        EXPECT_EQ(platform.boxes.back().text, "2 Pages, Please check Overlap Airfoil");
        EXPECT_EQ(platform.boxes.back().title, " Pages, Please check Overlap Airfoil");
        EXPECT_TRUE(dialog.Bold("Option1"));
        EXPECT_TRUE(dialog.FocusedAndSelected("Text1(3)"));
        EXPECT_EQ(Stored("recouvrement"), "0");
        dialog.Keys("Text1(3)", "15");
        EXPECT_FALSE(dialog.Bold("Option1"));
        dialog.Click("cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Page().recouvrement, 15.0F);
    EXPECT_EQ(Stored("recouvrement"), "15");
}

TEST_F(FrmPrintTest, CancelChangesNothing) {
    Chord(300);
    for (const bool by_key : {false, true}) {
        programme.rib.Annule = false;
        const Left left = Use([&](Seen &dialog) {
            dialog.Type("Text1(1)", "77");
            dialog.Type("Text1(3)", "33");
            Paper(dialog, 3);
            if (by_key) {
                dialog.Key(Qt::Key_Escape);
            } else {
                dialog.Click("cmdannuler");
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
    EXPECT_EQ(Use([](Seen &dialog) { dialog.Close(); }), Left::rejected);
    EXPECT_TRUE(programme.rib.Annule);
}

TEST_F(FrmPrintTest, OpeningClearsTheLastCancel) {
    programme.rib.Annule = true;
    Use([this](Seen &) { EXPECT_FALSE(programme.rib.Annule); });
}

} // namespace
} // namespace loftwing
