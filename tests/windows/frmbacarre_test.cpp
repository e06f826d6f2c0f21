#include "features/frmbacarre.h"

#include "support/qt_window_world.h"
#include "windows/addon_fixture.h"

namespace loftwing {
namespace {

const char *const kTooLarge = "The largest size of the square is 50 mm";
const char *const kTooFar =
    "The axe lies behind the trailing edge. Its position from L.E is set to 0.";

using FrmbacarreTest = AddonTest<frmbacarre>;

TEST_F(FrmbacarreTest, ShowsItsWordsAndTheStoredTexts) {
    programme.rib.carre.CarreBAAfich = "5";
    programme.rib.carre.CarreBAXAfich = "4.5";
    programme.rib.carre.CarreBAYAfich = "-1";
    Use([](frmbacarre &window) {
        EXPECT_EQ(S(window.windowTitle()), "Leading Edge V-notch square mm");
        EXPECT_EQ(Label(window, "Label1(0)"), "Enter the size of the square");
        EXPECT_EQ(Label(window, "Label1(1)"), "Enter the position of the axe from L.E");
        EXPECT_EQ(Label(window, "Label1(2)"),
                  "Enter the position of the axe from reference line  + or -");
        EXPECT_EQ(Text(window, "infotxt(0)"), "5");
        EXPECT_EQ(Text(window, "infotxt(1)"), "4.5");
        EXPECT_EQ(Text(window, "infotxt(2)"), "-1");
        EXPECT_EQ(Word(window, "CmdApply"), "Apply");
        EXPECT_EQ(Word(window, "cmdok"), "OK");
        EXPECT_EQ(Word(window, "cmdannuler"), "Cancel");
        EXPECT_EQ(Word(window, "cmdaide"), "Help");
    });
}

TEST_F(FrmbacarreTest, SpeaksFrenchAndInches) {
    Language("French");
    Inches();
    Use([](frmbacarre &window) {
        EXPECT_EQ(S(window.windowTitle()), "Baguette carrée de bord d’attaque, encoche en V in");
        EXPECT_EQ(Label(window, "Label1(0)"), "Entrez le côté du carré");
        EXPECT_EQ(Word(window, "cmdannuler"), "Annuler");
    });
}

TEST_F(FrmbacarreTest, FieldsSwallowWhatIsNoLength) {
    Use([](frmbacarre &window) {
        for (const char *name : {"infotxt(0)", "infotxt(1)"}) {
            Type(window, name, "-a1/2.5%");
            EXPECT_EQ(Text(window, name), "12.5") << name;
        }
        Type(window, "infotxt(2)", "-a1/2.5%");
        EXPECT_EQ(Text(window, "infotxt(2)"), "-12.5");
    });
}

TEST_F(FrmbacarreTest, InInchesTheyTakeASlash) {
    Inches();
    Use([](frmbacarre &window) {
        for (const char *name : {"infotxt(0)", "infotxt(1)"}) {
            Type(window, name, "-a1.1/2%");
            EXPECT_EQ(Text(window, name), "1.1/2") << name;
        }
        Type(window, "infotxt(2)", "-a1/8");
        EXPECT_EQ(Text(window, "infotxt(2)"), "-1/8");
    });
}

TEST_F(FrmbacarreTest, ApplyPutsTheSquareOnTheRibAndStays) {
    programme.rib.EpBAAfich = "3";
    const Left left = Use([this](frmbacarre &window) {
        QTest::keyClicks(&Box(window, "infotxt(0)"), "6"); // the first field waits for typing
        Type(window, "infotxt(1)", "5");
        Type(window, "infotxt(2)", "-1.5");
        EXPECT_EQ(programme.rib.TypeBA, 1);
        Click(window, "CmdApply");
        EXPECT_EQ(Redraws(), 1);
    });
    EXPECT_EQ(left, Left::open);
    const RibModel &rib = programme.rib;
    EXPECT_EQ(rib.TypeBA, 0);
    EXPECT_EQ(rib.carre.CarreBA, 6.0F);
    EXPECT_EQ(rib.carre.CarreBAX, 5.0F);
    EXPECT_EQ(rib.carre.CarreBAY, -1.5F);
    EXPECT_EQ(rib.EpBA, 3.0F);
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(FrmbacarreTest, ReturnIsOk) {
    Inches();
    const Left left = Use([](frmbacarre &window) {
        Type(window, "infotxt(0)", "3/8");
        QTest::keyClick(&Box(window, "infotxt(0)"), Qt::Key_Return);
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(programme.rib.carre.CarreBA, 9.525F);
    EXPECT_EQ(Redraws(), 1);
}

TEST_F(FrmbacarreTest, ASquareOfSixtyIsCutToFiftyAndItsTextKept) {
    Use([this](frmbacarre &window) {
        Type(window, "infotxt(0)", "60");
        ExpectBox(kTooLarge);
        Click(window, "CmdApply");
        EXPECT_EQ(platform.boxes.front().title, S(window.windowTitle()));
        EXPECT_EQ(Text(window, "infotxt(0)"), "50");
        EXPECT_EQ(programme.rib.carre.CarreBAAfich, "60");
        EXPECT_EQ(programme.rib.carre.CarreBA, 50.0F);
        EXPECT_TRUE(window.isVisible());
        Click(window, "cmdok");
    });
    EXPECT_EQ(programme.rib.carre.CarreBAAfich, "50");
}

TEST_F(FrmbacarreTest, InInchesItIsCutToTwo) {
    Inches();
    Use([this](frmbacarre &window) {
        Type(window, "infotxt(0)", "3");
        ExpectBox("The largest size of the square is 2 inches");
        Click(window, "CmdApply");
        EXPECT_EQ(Text(window, "infotxt(0)"), "2");
    });
    EXPECT_EQ(programme.rib.carre.CarreBA, 50.8F);
}

TEST_F(FrmbacarreTest, AnAxisBehindTheChordIsToldAndSetToZero) {
    Use([this](frmbacarre &window) {
        Type(window, "infotxt(1)", "257");
        ExpectBox(kTooFar);
        Click(window, "CmdApply");
    });
    EXPECT_EQ(programme.rib.carre.CarreBAX, 0.0F);
}

TEST_F(FrmbacarreTest, AFractionOfZerothsKeepsTheWindowOpenAndStoresNothing) {
    Inches();
    const Left left = Use([this](frmbacarre &window) {
        Type(window, "infotxt(2)", "1/0");
        platform.Expect(BoxAnswer::ok);
        Click(window, "cmdok");
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(platform.boxes.at(0).title, " BaCarre/Apply");
    EXPECT_EQ(programme.rib.TypeBA, 1);
    EXPECT_EQ(Redraws(), 0);
}

TEST_F(FrmbacarreTest, CancelStoresNothing) {
    for (const int way : {0, 1, 2}) {
        const Left left = Use([way](frmbacarre &window) {
            Type(window, "infotxt(0)", "7");
            if (way == 0) {
                Click(window, "cmdannuler");
            } else if (way == 1) {
                QTest::keyClick(&Box(window, "infotxt(0)"), Qt::Key_Escape);
            } else {
                window.close();
            }
        });
        EXPECT_EQ(left, Left::rejected);
    }
    EXPECT_EQ(programme.rib.carre.CarreBAAfich, "0");
    EXPECT_EQ(programme.rib.TypeBA, 1);
    EXPECT_FALSE(programme.rib.Modifie);
    EXPECT_EQ(Redraws(), 0);
}

TEST_F(FrmbacarreTest, TabGoesThroughTheFieldsInTheirOrder) {
    Use([](frmbacarre &window) {
        EXPECT_TRUE(FocusedAndSelected(Box(window, "infotxt(0)")));
        ExpectTabs(window, {"infotxt(1)", "infotxt(2)", "CmdApply", "cmdok", "cmdannuler",
                            "cmdaide", "infotxt(0)"});
    });
}

TEST_F(FrmbacarreTest, HelpOpensItsPage) {
    Use([](frmbacarre &window) {
        Click(window, "cmdaide");
        QTest::keyClick(&Box(window, "infotxt(0)"), Qt::Key_F1);
    });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{40, 40}));
}

TEST_F(FrmbacarreTest, NothingIsCutInAnyLanguageUnitOrSize) {
    ExpectNothingCutAnywhere();
}

// The commands.

class NotchCommandTest : public testing::Test {
  protected:
    NotchCommandTest() {
        world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
        Rib().EpBAAfich = "3";
        Rib().EpBA = 3;
    }

    static void Click(QDialog &dialog, const char *name) {
        QTest::mouseClick(dialog.findChild<QPushButton *>(name), Qt::LeftButton);
    }
    RibModel &Rib() { return world.programme.rib; }

    WindowWorld world;
};

TEST_F(NotchCommandTest, OkLeavesTheSquareInPlaceOfTheStock) {
    InNextDialog([this](QDialog &dialog) {
        EXPECT_EQ(dialog.objectName(), "frmbacarre");
        EXPECT_EQ(Rib().EpBA, 3.0F);
        dialog.findChild<QLineEdit *>("infotxt(0)")->setText("5");
        Click(dialog, "cmdok");
    });
    world.Action("mnu_profilbaC")->trigger();
    EXPECT_EQ(Rib().TypeBA, 0);
    EXPECT_EQ(Rib().carre.CarreBA, 5.0F);
    EXPECT_EQ(Rib().EpBAAfich, "0");
    EXPECT_EQ(Rib().EpBA, 0.0F);
}

TEST_F(NotchCommandTest, CancelTakesTheStockAwayToo) {
    InNextDialog([](QDialog &dialog) { Click(dialog, "cmdannuler"); });
    world.Action("mnu_profilbaC")->trigger();
    EXPECT_EQ(Rib().TypeBA, 1);
    EXPECT_EQ(Rib().EpBAAfich, "0");
    EXPECT_EQ(Rib().EpBA, 0.0F);
}

TEST_F(NotchCommandTest, TheButtonOpensTheWindowOfTheKindInUse) {
    for (const int type : {0, 1}) {
        Rib().TypeBA = static_cast<std::uint8_t>(type);
        InNextDialog([type](QDialog &dialog) {
            EXPECT_EQ(dialog.objectName(), type == 1 ? "frmInput" : "frmbacarre");
            Click(dialog, "cmdannuler");
        });
        world.Find<QPushButton>("cmdba")->click();
    }
}

TEST_F(NotchCommandTest, ThePlainStockAfterwardsTakesTheSquaresPlace) {
    Rib().TypeBA = 0;
    Rib().carre.CarreBAAfich = "5";
    Rib().carre.CarreBA = 5;
    InNextDialog([](QDialog &dialog) {
        dialog.findChild<QLineEdit *>("infotxt")->setText("4");
        Click(dialog, "cmdok");
    });
    world.Action("mnu_profilbaD")->trigger();
    EXPECT_EQ(Rib().TypeBA, 1);
    EXPECT_EQ(Rib().EpBA, 4.0F);
    EXPECT_EQ(Rib().carre.CarreBAAfich, "5");
    EXPECT_EQ(Rib().carre.CarreBA, 5.0F);
}

TEST_F(NotchCommandTest, AClearedRibKeepsTheStockOfTheDefaults) {
    InNextDialog([this](QDialog &) {
        world.window->affclear();
        Rib().EpBAAfich = "2";
        Rib().EpBA = 2;
    });
    world.Action("mnu_profilbaC")->trigger();
    EXPECT_EQ(Rib().EpBAAfich, "2");
    EXPECT_EQ(Rib().EpBA, 2.0F);
}

} // namespace
} // namespace loftwing
