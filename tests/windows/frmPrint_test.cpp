#include "windows/frmPrint_fixture.h"

namespace loftwing {
namespace {

TEST_F(FrmPrintTest, ShowsItsWordsInEnglish) {
    Use([](frmPrint &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(),
                  "Page setup : Test printer - Landscape printing");
        EXPECT_EQ(Find<QGroupBox>(dialog, "Frame2").title(), "Margins");
        EXPECT_EQ(Find<QGroupBox>(dialog, "Frame4").title(), "Pages");
        EXPECT_EQ(Find<QGroupBox>(dialog, "Frame5").title(), "Print Position");
        EXPECT_EQ(Find<QGroupBox>(dialog, "Frame6").title(), "Paper size");
        EXPECT_EQ(Label(dialog, "Label1"), "Top :");
        EXPECT_EQ(Label(dialog, "Label2"), "Bottom :");
        EXPECT_EQ(Label(dialog, "Label4"), "Overlap Airfoil :");
        EXPECT_EQ(Find<QRadioButton>(dialog, "Option1").text(), "Print on 1 page only");
        EXPECT_EQ(Find<QRadioButton>(dialog, "Option2").text(), "Print on 1 or several pages");
        EXPECT_EQ(Label(dialog, "Label3"), "Long side of the sheet : 297 mm");
        EXPECT_EQ(Label(dialog, "Label9"), "Chord length, mm : 200");
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 1");
        EXPECT_EQ(Find<QPushButton>(dialog, "cmdok").text(), "OK");
        EXPECT_EQ(Find<QPushButton>(dialog, "cmdannuler").text(), "Cancel");
        EXPECT_EQ(Find<QPushButton>(dialog, "cmdaide").text(), "Help");
        EXPECT_EQ(Find<QPushButton>(dialog, "cmdconfigImprim").text(), "Printer Setup");
    });
}

TEST_F(FrmPrintTest, ShowsItsWordsInFrench) {
    Language("French");
    Chord(300);
    Use([](frmPrint &dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(),
                  "Mise en page : Test printer - Impression en mode paysage");
        EXPECT_EQ(Label(dialog, "Label9"), "Longueur de la corde, mm : 300");
        EXPECT_EQ(Label(dialog, "Label10"), "Nombre de pages : 2");
        EXPECT_EQ(Find<QPushButton>(dialog, "cmdannuler").text(), "Annuler");
    });
}

TEST_F(FrmPrintTest, ShowsTheStoredPage) {
    Inches();
    Chord("8", 203.2F);
    Use([](frmPrint &dialog) {
        const auto &papers = Find<QComboBox>(dialog, "Combo1");
        EXPECT_EQ(papers.count(), 9);
        EXPECT_EQ(papers.itemText(7).toStdString(), " A3 297 x 420 mm");
        EXPECT_EQ(papers.itemText(8).toStdString(), " Paper set in the printer");
        EXPECT_EQ(papers.currentIndex(), 1);
        EXPECT_EQ(Box(dialog, 0).text(), "2");
        EXPECT_EQ(Box(dialog, 1).text(), "1/2");
        EXPECT_EQ(Box(dialog, 2).text(), "1/2");
        for (const char *unit : {"Label5", "Label6", "Label7", "Label8"}) {
            EXPECT_EQ(Label(dialog, unit), " in");
        }
        EXPECT_EQ(Label(dialog, "Label3"), "Long side of the sheet : 279.4 mm");
        EXPECT_EQ(Label(dialog, "Label9"), "Chord length, in : 8");
    });
}

TEST_F(FrmPrintTest, ARibThatFitsTakesNoOverlap) {
    Use([](frmPrint &dialog) {
        EXPECT_EQ(Box(dialog, 3).text(), "0");
        EXPECT_FALSE(Box(dialog, 3).isEnabled());
        EXPECT_TRUE(Chosen(dialog, "Option2"));
        EXPECT_TRUE(Enabled(dialog, "Option2"));
        EXPECT_FALSE(Enabled(dialog, "Option1"));
        EXPECT_FALSE(Enabled(dialog, "cmdconfigImprim"));
        EXPECT_TRUE(Enabled(dialog, "Label4"));
        EXPECT_FALSE(Bold(dialog, "Label4"));
    });
}

TEST_F(FrmPrintTest, ALongRibPointsToItsOverlap) {
    Chord(300);
    Use([](frmPrint &dialog) {
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 2");
        EXPECT_TRUE(Bold(dialog, "Label4"));
        EXPECT_TRUE(Box(dialog, 3).isEnabled());
        EXPECT_EQ(Box(dialog, 3).text(), "20");
        EXPECT_TRUE(FocusedAndSelected(Box(dialog, 3)));
        EXPECT_TRUE(Chosen(dialog, "Option2"));
        EXPECT_FALSE(Enabled(dialog, "Option1"));
    });
}

TEST_F(FrmPrintTest, CountsWhileTheUserTypes) {
    Chord(1000);
    Use([](frmPrint &dialog) {
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 4"); // 1000 / 252
        Type(dialog, 3, "9");
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 4"); // 1000 / 263
        QTest::keyClicks(&Box(dialog, 3), "0");
        EXPECT_EQ(Box(dialog, 3).text(), "90");
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 6"); // 1000 / 182
        Type(dialog, 1, "100");
        EXPECT_EQ(Box(dialog, 1).text(), "100");
        EXPECT_TRUE(Box(dialog, 1).hasFocus());
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 11"); // 1000 / 92
        EXPECT_EQ(Box(dialog, 3).selectedText(), "90");
    });
}

TEST_F(FrmPrintTest, CountsInInches) {
    Inches();
    Chord("13", 330.2F);
    Use([](frmPrint &dialog) {
        // 279.4 - 12.7 - 12.7 - 25.4 = 228.6; 330.2 / 228.6 = 1.4
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 2");
        Type(dialog, 3, "5.3/4"); // 146.05, steps of 107.95: 3.06
        EXPECT_EQ(Box(dialog, 3).text(), "5.3/4");
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 4");
    });
}

TEST_F(FrmPrintTest, PrintPositionDoesntCountForTheSheets) {
    Chord(300);
    Use([](frmPrint &dialog) {
        Type(dialog, 0, "100");
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 2");
    });
}

TEST_F(FrmPrintTest, MarginsThatGrowOverTheSheetEndTheFit) {
    Use([](frmPrint &dialog) {
        Type(dialog, 2, "87"); // 200 + 10 + 87 = 297
        EXPECT_FALSE(Box(dialog, 3).isEnabled());
        Type(dialog, 2, "88");
        EXPECT_TRUE(Box(dialog, 3).isEnabled());
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 2"); // 200 / 199
        EXPECT_EQ(Box(dialog, 3).text(), "0");
    });
}

TEST_F(FrmPrintTest, FocusSelectsTheWholeText) {
    Use([](frmPrint &dialog) {
        Box(dialog, 1).setFocus();
        EXPECT_EQ(Box(dialog, 1).selectedText(), "10");
        QTest::keyClick(&Box(dialog, 1), Qt::Key_Tab);
        EXPECT_TRUE(FocusedAndSelected(Box(dialog, 2)));
    });
}

TEST_F(FrmPrintTest, ThePrintersOwnPaperTakesOneSheetWhateverTheLength) {
    Chord(3000);
    const Left left = Use([this](frmPrint &dialog) {
        ExpectBoxes(1);
        Paper(dialog, 8);
        EXPECT_EQ(platform.boxes.back().text,
                  "Chord length : 3000 mm\nOnly one sheet of the paper set in the printer is used. "
                  "What lies beyond it is not printed.");
        EXPECT_EQ(platform.boxes.back().icon, BoxIcon::information);
        EXPECT_EQ(Box(dialog, 3).text(), "0");
        for (const char *off : {"Text1(3)", "Label4", "Label5", "Option2"}) {
            EXPECT_FALSE(Enabled(dialog, off)) << off;
        }
        EXPECT_TRUE(Enabled(dialog, "Option1"));
        EXPECT_TRUE(Chosen(dialog, "Option1"));
        EXPECT_TRUE(Enabled(dialog, "cmdconfigImprim"));
        EXPECT_FALSE(Bold(dialog, "Label4"));
        EXPECT_EQ(Label(dialog, "Label3"), "Paper set in the printer");
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 1");
        Click(dialog, "cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Page().NumIndex, 8);
    EXPECT_EQ(Page().NbPages, 1);
    EXPECT_EQ(Stored("NumIndex"), "8");
    EXPECT_EQ(Stored("recouvrement"), "0");
}

TEST_F(FrmPrintTest, BackFromThePrintersPaperEverythingCountsAgain) {
    Chord(300);
    Use([this](frmPrint &dialog) {
        ExpectBoxes(1);
        Paper(dialog, 8);
        Paper(dialog, 0);
        for (const char *on : {"Text1(3)", "Label4", "Label5", "Option2"}) {
            EXPECT_TRUE(Enabled(dialog, on)) << on;
        }
        EXPECT_TRUE(Chosen(dialog, "Option2"));
        EXPECT_FALSE(Enabled(dialog, "Option1"));
        EXPECT_FALSE(Enabled(dialog, "cmdconfigImprim"));
        EXPECT_EQ(Label(dialog, "Label3"), "Long side of the sheet : 297 mm");
        EXPECT_TRUE(FocusedAndSelected(Box(dialog, 3)));
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 2");
    });
}

TEST_F(FrmPrintTest, ThePrintersPaperInTheSettingsSaysNothingAtTheStart) {
    programme.settings.page.NumIndex = 8;
    Chord(3000);
    Use([](frmPrint &dialog) {
        EXPECT_TRUE(Chosen(dialog, "Option1"));
        EXPECT_EQ(Label(dialog, "Label3"), "Paper set in the printer");
    });
}

TEST_F(FrmPrintTest, LargerPaperTakesTheRibInOne) {
    Chord(300);
    Use([](frmPrint &dialog) {
        Paper(dialog, 7);
        EXPECT_EQ(Label(dialog, "Label3"), "Long side of the sheet : 420 mm");
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 1");
        EXPECT_FALSE(Box(dialog, 3).isEnabled());
    });
}

TEST_F(FrmPrintTest, APaperThatThereIsntShowsAsTheFirst) {
    programme.settings.page.NumIndex = 77;
    Use([](frmPrint &dialog) {
        EXPECT_EQ(Find<QComboBox>(dialog, "Combo1").currentIndex(), 0);
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 1");
    });
}

TEST_F(FrmPrintTest, ATemplateCountsByItsOwnLength) {
    Template(60); // 200 + 60 = 260, with the margins 285
    Use([](frmPrint &dialog) {
        EXPECT_EQ(Label(dialog, "Label9"), "Template length, mm : 260");
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 1");
        EXPECT_EQ(Box(dialog, 3).text(), "0");
    });
    Template(100);
    Use([](frmPrint &dialog) {
        EXPECT_EQ(Label(dialog, "Label9"), "Template length, mm : 300");
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 2");
        EXPECT_FALSE(Bold(dialog, "Option1"));
        EXPECT_FALSE(Bold(dialog, "Label4"));
    });
    EXPECT_EQ(programme.rib.bloc.LongBloc, 300.0F);
}

TEST_F(FrmPrintTest, ATemplateWithoutOverlapIsWarnedOfAtOnce) {
    Template(100);
    NoOverlap();
    ExpectBoxes(1);
    Use([this](frmPrint &dialog) {
        ASSERT_EQ(platform.boxes.size(), 1U);
        EXPECT_EQ(platform.boxes.back().text, "2 Pages, Please check Overlap Airfoil");
        EXPECT_TRUE(Bold(dialog, "Option1"));
        EXPECT_TRUE(FocusedAndSelected(Box(dialog, 3)));
        QTest::keyClicks(&Box(dialog, 3), "5");
        EXPECT_FALSE(Bold(dialog, "Option1"));
        ExpectBoxes(1);
        QTest::keyClick(&Box(dialog, 3), Qt::Key_Backspace);
        EXPECT_TRUE(Bold(dialog, "Option1"));
        EXPECT_EQ(platform.boxes.size(), 2U);
    });
}

TEST_F(FrmPrintTest, ATemplateIsNamedWithThePrintersPaper) {
    Template(100);
    Use([this](frmPrint &dialog) {
        ExpectBoxes(1);
        Paper(dialog, 8);
        EXPECT_TRUE(platform.boxes.back().text.starts_with("Template length : 300 mm\n"));
    });
}

TEST_F(FrmPrintTest, PrinterSetupIsThePlatforms) {
    programme.settings.page.NumIndex = 8;
    Use([this](frmPrint &dialog) {
        platform.printer_name = "Other";
        Click(dialog, "cmdconfigImprim");
        EXPECT_EQ(platform.printer_settings_shown, 1);
        EXPECT_EQ(dialog.windowTitle(), "Page setup : Other - Landscape printing");
    });
}

TEST_F(FrmPrintTest, HelpOpensAtItsPlace) {
    Use([](frmPrint &dialog) {
        Click(dialog, "cmdaide");
        QTest::keyClick(&dialog, Qt::Key_F1);
    });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{31, 31}));
}

} // namespace
} // namespace loftwing
