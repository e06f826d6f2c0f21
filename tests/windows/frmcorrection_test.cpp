#include "output/frmcorrection.h"

#include "output/frmPrint.h"
#include "support/qt_nothing_cut.h"
#include "windows/dialog_fixture.h"

namespace loftwing {
namespace {

class FrmCorrectionTest : public DialogTest {
  protected:
    Left Use(const User &user) {
        frmcorrection dialog(programme, nullptr);
        return UseModal(dialog, user);
    }
    CorrectionImprimante &InForce() { return programme.settings.correction; }
};

TEST_F(FrmCorrectionTest, ShowsItsWordsAndTheRightLengths) {
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Printer correction");
        EXPECT_EQ(dialog.Frame("Frame1"), "The check line measures");
        EXPECT_EQ(dialog.Label("Label2(0)"), "Along the rib :");
        EXPECT_EQ(dialog.Label("Label2(1)"), "Across the rib :");
        EXPECT_EQ(dialog.Text("Text1(0)"), "100");
        EXPECT_EQ(dialog.Text("Text1(1)"), "100");
        EXPECT_EQ(dialog.Label("Label3(1)"), " mm");
        EXPECT_EQ(dialog.Label("Label4"), "In force : 100 % along the rib, 100 % across it");
        EXPECT_EQ(dialog.Word("cmdaucune"), "No correction");
        EXPECT_FALSE(dialog.Enabled("cmdaucune"));
        EXPECT_TRUE(dialog.FocusedAndSelected("Text1(0)"));
        dialog.ExpectTabs({"Text1(1)", "cmdok", "cmdannuler", "cmdaide"});
    });
}

TEST_F(FrmCorrectionTest, NothingIsCut) {
    InForce() = {1.0123, 0.9877};
    for (const char *language : {"English", "French"}) {
        Language(language);
        Use([](Seen &dialog) { ExpectNothingCut(dialog.Window()); });
    }
}

TEST_F(FrmCorrectionTest, OkTakesTheMeasuresAndWritesThem) {
    InForce() = {1.01, 1};
    const Left left = Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Label("Label4"), "In force : 101 % along the rib, 100 % across it");
        dialog.Type("Text1(0)", "99");
        dialog.Type("Text1(1)", "100.4");
        dialog.Click("cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_DOUBLE_EQ(InForce().x, 1.01 * 100 / 99);
    EXPECT_DOUBLE_EQ(InForce().y, 100 / 100.4);
    EXPECT_EQ(Stored("Feuilles", "CorrectionX").substr(0, 7), "1.02020");
    EXPECT_EQ(Stored("Feuilles", "CorrectionY").substr(0, 7), "0.99601");
}

TEST_F(FrmCorrectionTest, InchesStartFromFour) {
    Inches();
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Text("Text1(0)"), "4");
        EXPECT_EQ(dialog.Label("Label3(0)"), " in");
        dialog.Type("Text1(1)", "3.31/32");
        dialog.Click("cmdok");
    });
    EXPECT_EQ(InForce().x, 1);
    EXPECT_NEAR(InForce().y, 4 / 3.96875, 1e-6);
}

TEST_F(FrmCorrectionTest, AMeasureBeyondFivePercentStaysToBePutRight) {
    platform.Expect(BoxAnswer::ok, {.title = "Printer correction", .icon = BoxIcon::stop});
    Use([](Seen &dialog) {
        dialog.Type("Text1(1)", "94");
        dialog.Click("cmdok");
        EXPECT_TRUE(dialog.IsOpen());
        EXPECT_TRUE(dialog.FocusedAndSelected("Text1(1)"));
        dialog.Click("cmdannuler");
    });
    EXPECT_EQ(InForce(), CorrectionImprimante{});
    EXPECT_EQ(Stored("Feuilles", "CorrectionX"), "");
}

TEST_F(FrmCorrectionTest, NoCorrectionTakesItBackAtOk) {
    InForce() = {1.01, 0.99};
    const User none = [](Seen &dialog) {
        dialog.Click("cmdaucune");
        EXPECT_EQ(dialog.Label("Label4"), "In force : 100 % along the rib, 100 % across it");
        EXPECT_FALSE(dialog.Enabled("cmdaucune"));
    };
    Use([&none](Seen &dialog) {
        none(dialog);
        dialog.Click("cmdannuler");
    });
    EXPECT_EQ(InForce(), (CorrectionImprimante{1.01, 0.99}));
    Use([&none](Seen &dialog) {
        dialog.Type("Text1(0)", "97"); // which no longer counts
        none(dialog);
        dialog.Click("cmdok");
    });
    EXPECT_EQ(InForce(), CorrectionImprimante{});
    EXPECT_EQ(Stored("Feuilles", "CorrectionX"), "1");
}

TEST_F(FrmCorrectionTest, ThePageSetUpOpensIt) {
    frmPrint page(programme, nullptr);
    UseModal(page, [](Seen &dialog) {
        EXPECT_EQ(dialog.Word("cmdcorrection"), "Printer correction...");
        InNextDialog([](Seen &correction) {
            EXPECT_EQ(correction.Name(), "frmcorrection");
            correction.Type("Text1(0)", "99");
            correction.Click("cmdok");
        });
        dialog.Click("cmdcorrection");
        dialog.Click("cmdannuler");
    });
    EXPECT_DOUBLE_EQ(InForce().x, 100.0 / 99); // whatever the page ends with
}

} // namespace
} // namespace loftwing
