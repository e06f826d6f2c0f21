// The page dialog's papers of one's own, rows and check line.
#include "output/frmpapier.h"
#include "persist/settings.h"
#include "windows/frmPrint_fixture.h"

namespace loftwing {
namespace {

class FrmPrintSheets : public FrmPrintTest {
  protected:
    std::string Sheets(const char *key) const { return DialogTest::Stored("Feuilles", key); }
    static int Papers(Seen &dialog) { return dialog.Find<QComboBox>("Combo1").count(); }
    static std::string Chosen(Seen &dialog) {
        return S(dialog.Find<QComboBox>("Combo1").currentText());
    }
    /// Makes a paper of one's own; its dialog is left by OK, or by Cancel where it is refused.
    static void Make(Seen &dialog, const char *name, const char *length, const char *width) {
        InNextDialog([&](Seen &paper) {
            paper.Type("txtnom", name);
            paper.Type("Text1(0)", length);
            paper.Type("Text1(1)", width);
            paper.Click("cmdok");
        });
        dialog.Click("cmdpapier");
    }
};

TEST_F(FrmPrintSheets, RowsAndCheckLineAreKeptByOk) {
    programme.settings.page.temoin = true;
    EXPECT_EQ(Use([](Seen &dialog) {
                  EXPECT_EQ(dialog.Word("chkrangees"),
                            "Sheets downwards too, where the drawing is taller");
                  EXPECT_FALSE(dialog.Chosen("chkrangees"));
                  EXPECT_TRUE(dialog.Chosen("chktemoin"));
                  dialog.Click("chkrangees");
                  dialog.Click("chktemoin");
                  dialog.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_TRUE(Page().en_rangees);
    EXPECT_FALSE(Page().temoin);
    EXPECT_EQ(Sheets("Rangees"), "1");
    EXPECT_EQ(Sheets("Temoin"), "0");
}

TEST_F(FrmPrintSheets, CancelKeepsRowsCheckLineAndPapers) {
    programme.settings.page.temoin = true;
    Use([](Seen &dialog) {
        dialog.Click("chkrangees");
        dialog.Click("chktemoin");
        Make(dialog, "Roll", "2000", "610");
        EXPECT_EQ(Papers(dialog), 11);
        dialog.Click("cmdannuler");
    });
    EXPECT_FALSE(Page().en_rangees);
    EXPECT_TRUE(Page().temoin);
    EXPECT_TRUE(Page().papiers.empty());
    EXPECT_EQ(Page().NumIndex, 0);
    EXPECT_EQ(Sheets("Papiers"), "");
}

TEST_F(FrmPrintSheets, APaperOfOnesOwnIsChosenCountedAndKept) {
    Chord(300);
    Use([](Seen &dialog) {
        EXPECT_FALSE(dialog.Enabled("cmdretire"));
        Make(dialog, "Roll", "2000", "610");
        EXPECT_EQ(Chosen(dialog), " Roll 2000 x 610 mm");
        EXPECT_EQ(dialog.Label("Label3"), "Long side of the sheet : 2000 mm");
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 1");
        EXPECT_TRUE(dialog.Enabled("cmdretire"));
        dialog.Click("cmdok");
    });
    EXPECT_EQ(Page().papiers, (std::vector<PapierPropre>{{"Roll", 2000, 610}}));
    EXPECT_EQ(Page().NumIndex, 10);
    EXPECT_EQ(Sheets("Papiers"), "2000 x 610 Roll");
    EXPECT_EQ(Stored("NumIndex"), "10");
    AppSettings read;
    LitTout({read, programme.rib, programme.messages, programme.paths.fichier});
    EXPECT_EQ(read.page.papiers, Page().papiers);
}

TEST_F(FrmPrintSheets, APaperIsTypedInTheUnitInForce) {
    Inches();
    Chord("8", 203.2F);
    Use([](Seen &dialog) {
        Make(dialog, "", "36", "24");
        EXPECT_EQ(Chosen(dialog), " 914.4 x 609.6 mm");
    });
}

TEST_F(FrmPrintSheets, APaperThatNoPageCanHaveIsRefused) {
    platform.Expect(BoxAnswer::ok, {.text = "The sides of a paper may be 50 to 5080 mm",
                                    .title = "Paper of your own",
                                    .icon = BoxIcon::stop});
    Use([](Seen &dialog) {
        InNextDialog([](Seen &paper) {
            paper.Type("Text1(0)", "300");
            paper.Type("Text1(1)", "20");
            paper.Click("cmdok");
            EXPECT_TRUE(paper.IsOpen());
            paper.Click("cmdannuler");
        });
        dialog.Click("cmdpapier");
        EXPECT_EQ(Papers(dialog), 10);
    });
}

TEST_F(FrmPrintSheets, ARemovedPaperIsGoneAndTheFirstOneIsChosen) {
    programme.settings.page.papiers = {{"Roll", 2000, 610}, {"Plotter", 1189, 841}};
    programme.settings.page.NumIndex = 10;
    Use([](Seen &dialog) {
        EXPECT_EQ(Chosen(dialog), " Roll 2000 x 610 mm");
        dialog.Click("cmdretire");
        EXPECT_EQ(Chosen(dialog), " A4 210 x 297 mm");
        EXPECT_EQ(Papers(dialog), 11);
        EXPECT_FALSE(dialog.Enabled("cmdretire"));
        dialog.Click("cmdok");
    });
    EXPECT_EQ(Page().papiers, (std::vector<PapierPropre>{{"Plotter", 1189, 841}}));
    EXPECT_EQ(Page().NumIndex, 0);
}

TEST_F(FrmPrintSheets, APageAsLargeAsTheDrawingIsOneSheet) {
    Chord(3000);
    Use([](Seen &dialog) {
        Paper(dialog, 9);
        EXPECT_EQ(Chosen(dialog), " One page as large as the drawing");
        EXPECT_EQ(dialog.Label("Label3"), "The page is as long as the drawing and its margins");
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 1");
        EXPECT_FALSE(dialog.Enabled("chkrangees"));
        Paper(dialog, 0);
        EXPECT_TRUE(dialog.Enabled("chkrangees"));
    });
}

TEST_F(FrmPrintSheets, APaperThatIsGoneFallsBackToTheFirst) {
    programme.settings.page.NumIndex = 12;
    Use([](Seen &dialog) { EXPECT_EQ(Chosen(dialog), " A4 210 x 297 mm"); });
}

} // namespace
} // namespace loftwing
