#include "features/frmbacarre.h"

#include "support/qt_window_world.h"
#include "windows/addon_fixture.h"

namespace loftwing {
namespace {

const char *const kSquareTooLarge = "The largest size of the square is 50 mm";
const char *const kTooFar =
    "The axis lies behind the trailing edge. Its position from L.E is set to 0.";

using FrmbacarreTest = AddonTest<frmbacarre>;

TEST_F(FrmbacarreTest, ShowsItsWordsAndTheStoredTexts) {
    programme.rib.carre.CarreBAAfich = "5";
    programme.rib.carre.CarreBAXAfich = "4.5";
    programme.rib.carre.CarreBAYAfich = "-1";
    Use([](Seen &window) {
        EXPECT_EQ(window.Title(), "Leading Edge V-notch square mm");
        EXPECT_EQ(window.Label("Label1(0)"), "Enter the size of the square");
        EXPECT_EQ(window.Label("Label1(1)"), "Enter the position of the axis from L.E");
        EXPECT_EQ(window.Label("Label1(2)"),
                  "Enter the position of the axis from reference line  + or -");
        EXPECT_EQ(window.Text("infotxt(0)"), "5");
        EXPECT_EQ(window.Text("infotxt(1)"), "4.5");
        EXPECT_EQ(window.Text("infotxt(2)"), "-1");
        EXPECT_EQ(window.Word("CmdApply"), "Apply");
        EXPECT_EQ(window.Word("cmdok"), "OK");
        EXPECT_EQ(window.Word("cmdannuler"), "Cancel");
        EXPECT_EQ(window.Word("cmdaide"), "Help");
    });
}

TEST_F(FrmbacarreTest, SpeaksFrenchAndInches) {
    Language("French");
    Inches();
    Use([](Seen &window) {
        EXPECT_EQ(window.Title(), "Baguette carrée de bord d’attaque, encoche en V in");
        EXPECT_EQ(window.Label("Label1(0)"), "Entrez le côté du carré");
        EXPECT_EQ(window.Word("cmdannuler"), "Annuler");
    });
}

TEST_F(FrmbacarreTest, FieldsSwallowWhatIsNoLength) {
    Use([](Seen &window) {
        for (const char *name : {"infotxt(0)", "infotxt(1)"}) {
            window.Type(name, "-a1/2.5%");
            EXPECT_EQ(window.Text(name), "12.5") << name;
        }
        window.Type("infotxt(2)", "-a1/2.5%");
        EXPECT_EQ(window.Text("infotxt(2)"), "-12.5");
    });
}

TEST_F(FrmbacarreTest, InInchesTheyTakeASlash) {
    Inches();
    Use([](Seen &window) {
        for (const char *name : {"infotxt(0)", "infotxt(1)"}) {
            window.Type(name, "-a1.1/2%");
            EXPECT_EQ(window.Text(name), "1.1/2") << name;
        }
        window.Type("infotxt(2)", "-a1/8");
        EXPECT_EQ(window.Text("infotxt(2)"), "-1/8");
    });
}

TEST_F(FrmbacarreTest, ApplyPutsTheSquareOnTheRibAndStays) {
    programme.rib.EpBAAfich = "3";
    const Left left = Use([this](Seen &window) {
        window.Keys("infotxt(0)", "6"); // the first field waits for typing
        window.Type("infotxt(1)", "5");
        window.Type("infotxt(2)", "-1.5");
        EXPECT_EQ(programme.rib.TypeBA, 1);
        window.Click("CmdApply");
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
    const Left left = Use([](Seen &window) {
        window.Type("infotxt(0)", "3/8");
        window.Key("infotxt(0)", Qt::Key_Return);
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(programme.rib.carre.CarreBA, 9.525F);
    EXPECT_EQ(Redraws(), 1);
}

TEST_F(FrmbacarreTest, ASquareOfSixtyIsCutToFiftyAndItsTextKept) {
    Use([this](Seen &window) {
        window.Type("infotxt(0)", "60");
        platform.Expect(BoxAnswer::ok, {.text = kSquareTooLarge});
        window.Click("CmdApply");
        EXPECT_EQ(platform.boxes.front().title, window.Title());
        EXPECT_EQ(window.Text("infotxt(0)"), "50");
        EXPECT_EQ(programme.rib.carre.CarreBAAfich, "60");
        EXPECT_EQ(programme.rib.carre.CarreBA, 50.0F);
        EXPECT_TRUE(window.IsOpen());
        window.Click("cmdok");
    });
    EXPECT_EQ(programme.rib.carre.CarreBAAfich, "50");
}

TEST_F(FrmbacarreTest, InInchesItIsCutToTwo) {
    Inches();
    Use([this](Seen &window) {
        window.Type("infotxt(0)", "3");
        platform.Expect(BoxAnswer::ok, {.text = "The largest size of the square is 2 inches"});
        window.Click("CmdApply");
        EXPECT_EQ(window.Text("infotxt(0)"), "2");
    });
    EXPECT_EQ(programme.rib.carre.CarreBA, 50.8F);
}

TEST_F(FrmbacarreTest, AnAxisBehindTheChordIsToldAndSetToZero) {
    Use([this](Seen &window) {
        window.Type("infotxt(1)", "257");
        platform.Expect(BoxAnswer::ok, {.text = kTooFar});
        window.Click("CmdApply");
    });
    EXPECT_EQ(programme.rib.carre.CarreBAX, 0.0F);
}

TEST_F(FrmbacarreTest, AFractionOfZerothsKeepsTheWindowOpenAndStoresNothing) {
    Inches();
    const Left left = Use([this](Seen &window) {
        window.Type("infotxt(2)", "1/0");
        platform.Expect(BoxAnswer::ok);
        window.Click("cmdok");
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(platform.boxes.at(0).title, " BaCarre/Apply");
    EXPECT_EQ(programme.rib.TypeBA, 1);
    EXPECT_EQ(Redraws(), 0);
}

TEST_F(FrmbacarreTest, CancelStoresNothing) {
    for (const int way : {0, 1, 2}) {
        const Left left = Use([way](Seen &window) {
            window.Type("infotxt(0)", "7");
            if (way == 0) {
                window.Click("cmdannuler");
            } else if (way == 1) {
                window.Key("infotxt(0)", Qt::Key_Escape);
            } else {
                window.Close();
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
    Use([](Seen &window) {
        EXPECT_TRUE(window.FocusedAndSelected("infotxt(0)"));
        window.ExpectTabs({"infotxt(1)", "infotxt(2)", "CmdApply", "cmdok", "cmdannuler", "cmdaide",
                           "infotxt(0)"});
    });
}

TEST_F(FrmbacarreTest, HelpOpensItsPage) {
    Use([](Seen &window) {
        window.Click("cmdaide");
        window.Key("infotxt(0)", Qt::Key_F1);
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

    RibModel &Rib() { return world.programme.rib; }

    WindowWorld world;
};

TEST_F(NotchCommandTest, OkLeavesTheSquareInPlaceOfTheStock) {
    InNextDialog([this](Seen &dialog) {
        EXPECT_EQ(dialog.Name(), "frmbacarre");
        EXPECT_EQ(Rib().EpBA, 3.0F);
        dialog.Fill("infotxt(0)", "5");
        dialog.Click("cmdok");
    });
    world.Action("mnu_profilbaC")->trigger();
    EXPECT_EQ(Rib().TypeBA, 0);
    EXPECT_EQ(Rib().carre.CarreBA, 5.0F);
    EXPECT_EQ(Rib().EpBAAfich, "0");
    EXPECT_EQ(Rib().EpBA, 0.0F);
}

TEST_F(NotchCommandTest, CancelKeepsTheStockAndTheFormOfTheEdge) {
    for (const int type : {1, 0}) {
        Rib().TypeBA = static_cast<std::uint8_t>(type);
        world.window->affiche();
        const auto drawn = world.Find<PicView>("Pic")->Dessin()->Operations();
        Rib().Modifie = false;
        InNextDialog([](Seen &dialog) {
            dialog.Fill("infotxt(0)", "5");
            dialog.Click("cmdannuler");
        });
        world.Action("mnu_profilbaC")->trigger();
        EXPECT_EQ(Rib().TypeBA, type);
        EXPECT_EQ(Rib().EpBAAfich, "3");
        EXPECT_EQ(Rib().EpBA, 3.0F);
        EXPECT_EQ(Rib().carre.CarreBAAfich, "0");
        EXPECT_FALSE(Rib().Modifie);
        EXPECT_EQ(world.Find<PicView>("Pic")->Dessin()->Operations(), drawn);
    }
}

TEST_F(NotchCommandTest, CancelAfterApplyLeavesWhatApplyShowed) {
    InNextDialog([this](Seen &dialog) {
        dialog.Fill("infotxt(0)", "5");
        dialog.Click("CmdApply");
        EXPECT_EQ(Rib().TypeBA, 0);
        dialog.Fill("infotxt(0)", "7");
        dialog.Click("cmdannuler");
    });
    world.Action("mnu_profilbaC")->trigger();
    EXPECT_EQ(Rib().TypeBA, 0);
    EXPECT_EQ(Rib().carre.CarreBA, 5.0F);
    EXPECT_EQ(Rib().EpBA, 3.0F);
}

TEST_F(NotchCommandTest, TheButtonOpensTheWindowOfTheKindInUse) {
    for (const int type : {0, 1}) {
        Rib().TypeBA = static_cast<std::uint8_t>(type);
        InNextDialog([type](Seen &dialog) {
            EXPECT_EQ(dialog.Name(), type == 1 ? "frmInput" : "frmbacarre");
            dialog.Click("cmdannuler");
        });
        world.Main().Click("cmdba");
    }
}

TEST_F(NotchCommandTest, ThePlainStockAfterwardsTakesTheSquaresPlace) {
    Rib().TypeBA = 0;
    Rib().carre.CarreBAAfich = "5";
    Rib().carre.CarreBA = 5;
    InNextDialog([](Seen &dialog) {
        dialog.Fill("infotxt", "4");
        dialog.Click("cmdok");
    });
    world.Action("mnu_profilbaD")->trigger();
    EXPECT_EQ(Rib().TypeBA, 1);
    EXPECT_EQ(Rib().EpBA, 4.0F);
    EXPECT_EQ(Rib().carre.CarreBAAfich, "5");
    EXPECT_EQ(Rib().carre.CarreBA, 5.0F);
}

TEST_F(NotchCommandTest, AClearedRibKeepsTheStockOfTheDefaults) {
    InNextDialog([this](Seen &) {
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
