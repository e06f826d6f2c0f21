#include "windows/frmPrint_fixture.h"

namespace loftwing {
namespace {

TEST_F(FrmPrintTest, ShowsItsWordsInEnglish) {
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Page setup : Test printer - Landscape printing");
        EXPECT_EQ(dialog.Frame("Frame2"), "Margins");
        EXPECT_EQ(dialog.Frame("Frame4"), "Pages");
        EXPECT_EQ(dialog.Frame("Frame5"), "Print Position");
        EXPECT_EQ(dialog.Frame("Frame6"), "Paper size");
        EXPECT_EQ(dialog.Label("Label1"), "Before the leading edge :");
        EXPECT_EQ(dialog.Label("Label2"), "After the trailing edge :");
        EXPECT_EQ(dialog.Label("Label4"), "Overlap Airfoil :");
        EXPECT_EQ(dialog.Word("Option1"), "Print on 1 page only");
        EXPECT_EQ(dialog.Word("Option2"), "Print on 1 or several pages");
        EXPECT_EQ(dialog.Label("Label3"), "Long side of the sheet : 297 mm");
        EXPECT_EQ(dialog.Label("Label9"), "Chord length, mm : 200");
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 1");
        EXPECT_EQ(dialog.Word("cmdok"), "OK");
        EXPECT_EQ(dialog.Word("cmdannuler"), "Cancel");
        EXPECT_EQ(dialog.Word("cmdaide"), "Help");
        EXPECT_EQ(dialog.Word("cmdconfigImprim"), "Printer Setup");
    });
}

TEST_F(FrmPrintTest, ShowsItsWordsInFrench) {
    Language("French");
    Chord(300);
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Mise en page : Test printer - Impression en mode paysage");
        EXPECT_EQ(dialog.Label("Label9"), "Longueur de la corde, mm : 300");
        EXPECT_EQ(dialog.Label("Label10"), "Nombre de pages : 2");
        EXPECT_EQ(dialog.Word("cmdannuler"), "Annuler");
    });
}

TEST_F(FrmPrintTest, ShowsTheStoredPage) {
    Inches();
    Chord("8", 203.2F);
    Use([](Seen &dialog) {
        const auto &papers = dialog.Find<QComboBox>("Combo1");
        EXPECT_EQ(papers.count(), 10); // behind them the page as large as the drawing
        EXPECT_EQ(papers.itemText(7).toStdString(), " A3 297 x 420 mm");
        EXPECT_EQ(papers.itemText(8).toStdString(), " Paper set in the printer");
        EXPECT_EQ(papers.currentIndex(), 1);
        EXPECT_EQ(dialog.Text("Text1(0)"), "2");
        EXPECT_EQ(dialog.Text("Text1(1)"), "1/2");
        EXPECT_EQ(dialog.Text("Text1(2)"), "1/2");
        for (const char *unit : {"Label5", "Label6", "Label7", "Label8"}) {
            EXPECT_EQ(dialog.Label(unit), " in");
        }
        EXPECT_EQ(dialog.Label("Label3"), "Long side of the sheet : 279.4 mm");
        EXPECT_EQ(dialog.Label("Label9"), "Chord length, in : 8");
    });
}

TEST_F(FrmPrintTest, ARibThatFitsTakesNoOverlap) {
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Text("Text1(3)"), "0");
        EXPECT_FALSE(dialog.Enabled("Text1(3)"));
        EXPECT_TRUE(dialog.Chosen("Option2"));
        EXPECT_TRUE(dialog.Enabled("Option2"));
        EXPECT_FALSE(dialog.Enabled("Option1"));
        EXPECT_FALSE(dialog.Enabled("cmdconfigImprim"));
        EXPECT_TRUE(dialog.Enabled("Label4"));
        EXPECT_FALSE(dialog.Bold("Label4"));
    });
}

TEST_F(FrmPrintTest, ALongRibPointsToItsOverlap) {
    Chord(300);
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 2");
        EXPECT_TRUE(dialog.Bold("Label4"));
        EXPECT_TRUE(dialog.Enabled("Text1(3)"));
        EXPECT_EQ(dialog.Text("Text1(3)"), "20");
        EXPECT_TRUE(dialog.FocusedAndSelected("Text1(3)"));
        EXPECT_TRUE(dialog.Chosen("Option2"));
        EXPECT_FALSE(dialog.Enabled("Option1"));
    });
}

TEST_F(FrmPrintTest, CountsWithWhatItsFieldsShowAfterAPrintOnOneSheet) {
    // Such a print sets the overlap to 0 and leaves its text.
    programme.settings.page.recouvrement = 0;
    Chord(520);
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Text("Text1(3)"), "20");
        // 297 - 10 - 15 - 20 = 252; 520 / 252 = 2.06. Without overlap 520 / 272 = 1.9 would be two.
        EXPECT_EQ(dialog.Label("Label10").substr(dialog.Label("Label10").find(':')), ": 3");
    });
}

TEST_F(FrmPrintTest, CountsWhileTheUserTypes) {
    Chord(1000);
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 4"); // 1000 / 252
        dialog.Type("Text1(3)", "9");
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 4"); // 1000 / 263
        dialog.Keys("Text1(3)", "0");
        EXPECT_EQ(dialog.Text("Text1(3)"), "90");
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 6"); // 1000 / 182
        dialog.Type("Text1(1)", "100");
        EXPECT_EQ(dialog.Text("Text1(1)"), "100");
        EXPECT_TRUE(dialog.Focused("Text1(1)"));
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 11"); // 1000 / 92
        EXPECT_EQ(dialog.Selected("Text1(3)"), "90");
    });
}

TEST_F(FrmPrintTest, CountsInInches) {
    Inches();
    Chord("13", 330.2F);
    Use([](Seen &dialog) {
        // 279.4 - 12.7 - 12.7 - 25.4 = 228.6; 330.2 / 228.6 = 1.4
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 2");
        dialog.Type("Text1(3)", "5.3/4"); // 146.05, steps of 107.95: 3.06
        EXPECT_EQ(dialog.Text("Text1(3)"), "5.3/4");
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 4");
    });
}

TEST_F(FrmPrintTest, PrintPositionDoesntCountForTheSheets) {
    Chord(300);
    Use([](Seen &dialog) {
        dialog.Type("Text1(0)", "100");
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 2");
    });
}

TEST_F(FrmPrintTest, MarginsThatGrowOverTheSheetEndTheFit) {
    Use([](Seen &dialog) {
        dialog.Type("Text1(2)", "87"); // 200 + 10 + 87 = 297
        EXPECT_FALSE(dialog.Enabled("Text1(3)"));
        dialog.Type("Text1(2)", "88");
        EXPECT_TRUE(dialog.Enabled("Text1(3)"));
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 2"); // 200 / 199
        EXPECT_EQ(dialog.Text("Text1(3)"), "0");
    });
}

TEST_F(FrmPrintTest, FocusSelectsTheWholeText) {
    Use([](Seen &dialog) {
        dialog.GoTo("Text1(1)");
        EXPECT_EQ(dialog.Selected("Text1(1)"), "10");
        dialog.Key("Text1(1)", Qt::Key_Tab);
        EXPECT_TRUE(dialog.FocusedAndSelected("Text1(2)"));
    });
}

TEST_F(FrmPrintTest, ThePrintersOwnPaperTakesOneSheetWhateverTheLength) {
    Chord(3000);
    const Left left = Use([this](Seen &dialog) {
        platform.Expect(BoxAnswer::ok);
        Paper(dialog, 8);
        EXPECT_EQ(platform.boxes.back().text,
                  "Chord length : 3000 mm\nOnly one sheet of the paper set in the printer is used. "
                  "What lies beyond it is not printed.");
        EXPECT_EQ(platform.boxes.back().icon, BoxIcon::information);
        EXPECT_EQ(dialog.Text("Text1(3)"), "0");
        for (const char *off : {"Text1(3)", "Label4", "Label5", "Option2"}) {
            EXPECT_FALSE(dialog.Enabled(off)) << off;
        }
        EXPECT_TRUE(dialog.Enabled("Option1"));
        EXPECT_TRUE(dialog.Chosen("Option1"));
        EXPECT_TRUE(dialog.Enabled("cmdconfigImprim"));
        EXPECT_FALSE(dialog.Bold("Label4"));
        EXPECT_EQ(dialog.Label("Label3"), "Paper set in the printer");
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 1");
        dialog.Click("cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Page().NumIndex, 8);
    EXPECT_EQ(Page().NbPages, 1);
    EXPECT_EQ(Stored("NumIndex"), "8");
    EXPECT_EQ(Stored("recouvrement"), "0");
}

TEST_F(FrmPrintTest, BackFromThePrintersPaperEverythingCountsAgain) {
    Chord(300);
    Use([this](Seen &dialog) {
        platform.Expect(BoxAnswer::ok);
        Paper(dialog, 8);
        Paper(dialog, 0);
        for (const char *on : {"Text1(3)", "Label4", "Label5", "Option2"}) {
            EXPECT_TRUE(dialog.Enabled(on)) << on;
        }
        EXPECT_TRUE(dialog.Chosen("Option2"));
        EXPECT_FALSE(dialog.Enabled("Option1"));
        EXPECT_FALSE(dialog.Enabled("cmdconfigImprim"));
        EXPECT_EQ(dialog.Label("Label3"), "Long side of the sheet : 297 mm");
        EXPECT_TRUE(dialog.FocusedAndSelected("Text1(3)"));
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 2");
    });
}

TEST_F(FrmPrintTest, ThePrintersPaperInTheSettingsSaysNothingAtTheStart) {
    programme.settings.page.NumIndex = 8;
    Chord(3000);
    Use([](Seen &dialog) {
        EXPECT_TRUE(dialog.Chosen("Option1"));
        EXPECT_EQ(dialog.Label("Label3"), "Paper set in the printer");
    });
}

TEST_F(FrmPrintTest, LargerPaperTakesTheRibInOne) {
    Chord(300);
    Use([](Seen &dialog) {
        Paper(dialog, 7);
        EXPECT_EQ(dialog.Label("Label3"), "Long side of the sheet : 420 mm");
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 1");
        EXPECT_FALSE(dialog.Enabled("Text1(3)"));
    });
}

TEST_F(FrmPrintTest, APaperThatThereIsntShowsAsTheFirst) {
    programme.settings.page.NumIndex = 77;
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Find<QComboBox>("Combo1").currentIndex(), 0);
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 1");
    });
}

TEST_F(FrmPrintTest, ATemplateCountsByItsOwnLength) {
    Template(60); // 200 + 60 = 260, with the margins 285
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Label("Label9"), "Template length, mm : 260");
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 1");
        EXPECT_EQ(dialog.Text("Text1(3)"), "0");
    });
    Template(100);
    Use([](Seen &dialog) {
        EXPECT_EQ(dialog.Label("Label9"), "Template length, mm : 300");
        EXPECT_EQ(dialog.Label("Label10"), "Number of pages : 2");
        EXPECT_FALSE(dialog.Bold("Option1"));
        EXPECT_FALSE(dialog.Bold("Label4"));
    });
    EXPECT_EQ(programme.rib.bloc.LongBloc, 300.0F);
}

TEST_F(FrmPrintTest, ATemplateWithoutOverlapIsWarnedOfAtOnce) {
    Template(100);
    NoOverlap();
    platform.Expect(BoxAnswer::ok);
    Use([this](Seen &dialog) {
        ASSERT_EQ(platform.boxes.size(), 1U);
        EXPECT_EQ(platform.boxes.back().text, "2 Pages, Please check Overlap Airfoil");
        EXPECT_TRUE(dialog.Bold("Option1"));
        EXPECT_TRUE(dialog.FocusedAndSelected("Text1(3)"));
        dialog.Keys("Text1(3)", "5");
        EXPECT_FALSE(dialog.Bold("Option1"));
        platform.Expect(BoxAnswer::ok);
        dialog.Key("Text1(3)", Qt::Key_Backspace);
        EXPECT_TRUE(dialog.Bold("Option1"));
        EXPECT_EQ(platform.boxes.size(), 2U);
    });
}

TEST_F(FrmPrintTest, ATemplateIsNamedWithThePrintersPaper) {
    Template(100);
    Use([this](Seen &dialog) {
        platform.Expect(BoxAnswer::ok);
        Paper(dialog, 8);
        EXPECT_TRUE(platform.boxes.back().text.starts_with("Template length : 300 mm\n"));
    });
}

TEST_F(FrmPrintTest, PrinterSetupIsThePlatforms) {
    programme.settings.page.NumIndex = 8;
    Use([this](Seen &dialog) {
        platform.printer_name = "Other";
        dialog.Click("cmdconfigImprim");
        EXPECT_EQ(platform.printer_settings_shown, 1);
        EXPECT_EQ(dialog.Title(), "Page setup : Other - Landscape printing");
    });
}

TEST_F(FrmPrintTest, HelpOpensAtItsPlace) {
    Use([](Seen &dialog) {
        dialog.Click("cmdaide");
        dialog.Key(Qt::Key_F1);
    });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{31, 31}));
}

} // namespace
} // namespace loftwing
