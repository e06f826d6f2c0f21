#include "output/frmPrint.h"

#include "lang/ini_file.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace loftwing {
namespace {

constexpr const char *kNoRoom = "The margins and the overlap leave no room on the sheet.";

/// How the dialog was left.
enum class Left { accepted, rejected, open };

class FrmPrintTest : public testing::Test {
  protected:
    FrmPrintTest() { Language("English"); }

    void Language(const std::string &name) {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }
    void Chord(const std::string &text, float mm) {
        programme.rib.cordeAfich = text;
        programme.rib.corde = mm;
    }
    void Chord(int mm) { Chord(std::to_string(mm), static_cast<float>(mm)); }
    void Inches() {
        programme.settings.Unite = " in";
        ValeursPouces(programme.settings.page);
    }
    void Template(float ramp) {
        programme.rib.TypeGabarit = 1;
        programme.rib.bloc.BAbloc = ramp;
    }
    void NoOverlap() {
        programme.settings.page.recouvrement = 0;
        programme.settings.page.recouvrementAfich = "0";
    }

    /// Shows the dialog as a command does, lets `act` be the user, and tells how it was left. A
    /// dialog that the user left open is closed behind its back.
    Left Use(const std::function<void(frmPrint &)> &act) {
        frmPrint dialog(programme, nullptr);
        Left left = Left::open;
        QObject::connect(&dialog, &QDialog::accepted, [&] { left = Left::accepted; });
        QObject::connect(&dialog, &QDialog::rejected, [&] { left = Left::rejected; });
        QTimer::singleShot(0, &dialog, [&] {
            dialog.activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
            act(dialog);
            if (dialog.isVisible()) {
                dialog.done(2);
                left = Left::open;
            }
        });
        ShowModal(dialog);
        return left;
    }

    template <class Widget>
    static Widget &Find(frmPrint &dialog, const char *name) {
        return *dialog.findChild<Widget *>(name);
    }
    static QLineEdit &Box(frmPrint &dialog, int index) {
        return *dialog.findChild<QLineEdit *>(QString("Text1(%1)").arg(index));
    }
    static std::string Label(frmPrint &dialog, const char *name) {
        return Find<QLabel>(dialog, name).text().toStdString();
    }
    static bool Enabled(frmPrint &dialog, const char *name) {
        return Find<QWidget>(dialog, name).isEnabled();
    }
    static bool Chosen(frmPrint &dialog, const char *name) {
        return Find<QRadioButton>(dialog, name).isChecked();
    }
    static bool Bold(frmPrint &dialog, const char *name) {
        return Find<QWidget>(dialog, name).font().bold();
    }
    static bool FocusedAndSelected(QLineEdit &box) {
        return box.hasFocus() && box.selectedText() == box.text();
    }
    static void Click(frmPrint &dialog, const char *name) {
        QTest::mouseClick(&Find<QPushButton>(dialog, name), Qt::LeftButton);
    }
    /// Goes to a box and types over what it holds, key by key.
    static void Type(frmPrint &dialog, int index, const char *text) {
        Box(dialog, index).setFocus();
        Box(dialog, index).selectAll();
        QTest::keyClicks(&Box(dialog, index), text);
    }
    static void Paper(frmPrint &dialog, int index) {
        Find<QComboBox>(dialog, "Combo1").setCurrentIndex(index);
    }
    /// Expects a box; at its time nothing else may be asked.
    void ExpectBoxes(int count) {
        for (int i = 0; i < count; ++i) {
            platform.Expect(BoxAnswer::ok);
        }
    }
    std::string Stored(const char *key) const {
        return IniFile::Read(programme.paths.fichier).Value("Marges", key);
    }
    const MiseEnPage &Page() const { return programme.settings.page; }

    TempFolder folder;
    ScriptedPlatform platform;
    Programme programme{Paths{{}, {}, folder.Path("Loftwing.ini"), {}}, platform};
};

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

TEST_F(FrmPrintTest, APaperThatThereIsntShowsAsTheFirst) {
    programme.settings.page.NumIndex = 77;
    Use([](frmPrint &dialog) {
        EXPECT_EQ(Find<QComboBox>(dialog, "Combo1").currentIndex(), 0);
        EXPECT_EQ(Label(dialog, "Label10"), "Number of pages : 1");
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
