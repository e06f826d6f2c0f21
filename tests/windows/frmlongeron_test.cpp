#include "windows/frmlongeron_fixture.h"

#include <QApplication>
#include <QTest>

namespace loftwing {
namespace {

TEST_F(FrmLongeronTest, ShowsTheWorkSlotOfANewRib) {
    Use([](SeenSlots &window) {
        EXPECT_EQ(window.Title(), "Spars setup 200  mm");
        EXPECT_EQ(window.Numbers(), "[1]");
        EXPECT_EQ(window.Texts(4), "0|0|0|");
        EXPECT_TRUE(window.Chosen("OptDistance(0)"));
        EXPECT_TRUE(window.Chosen("OptLong(0)"));
        EXPECT_TRUE(window.Chosen("Opte(0)"));
        EXPECT_TRUE(window.Chosen("Opti(0)"));
        EXPECT_EQ(window.Focus(), "Text1(0)");
        EXPECT_EQ(window.Selected({"Text1", 0}), "0");
    });
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmLongeronTest, SpeaksEnglishAndMm) {
    Use([](SeenSlots &window) {
        EXPECT_EQ(window.Label("Label1"), "Location value        mm or %");
        EXPECT_EQ(window.Label("Label2"), "Width");
        EXPECT_EQ(window.Label("Label3"), "Depth");
        EXPECT_EQ(window.Label("Label4"), "From  Upper or  Lower surface");
        EXPECT_EQ(window.Label("Label6(1)"), " mm");
        EXPECT_EQ(window.Frame("Frame2"), "Dimensions");
        EXPECT_EQ(window.Frame("Frame3"), "Location");
        EXPECT_EQ(window.Frame("Frame4"), "Upper Surface");
        EXPECT_EQ(window.Frame("Frame5"), "Lower Surface");
        EXPECT_EQ(window.Frame("Frame6"), "Spar");
        EXPECT_EQ(window.Word("OptDistance(0)"), "From L.E");
        EXPECT_EQ(window.Word("OptDistance(1)"), "From T.E");
        EXPECT_EQ(window.Label("LabelListe"), "Spar # :");
        EXPECT_EQ(window.Tip({"Text1", 0}), "In percent   Ex 33%");
        EXPECT_EQ(S(window.Number(0).toolTip()), "click here to modify");
        EXPECT_EQ(S(window.Number(1).toolTip()), "");
        const std::pair<const char *, const char *> buttons[] = {
            {"cmdajout", "Add"},   {"Cmdmodif", "Modify"},  {"Cmdeffac", "Remove"},
            {"CmdApply", "Apply"}, {"Cmdannuler", "Close"}, {"cmdok", "OK"},
            {"cmdaide", "Help"},
        };
        for (const auto &[name, word] : buttons) {
            EXPECT_EQ(window.Word(name), word);
        }
    });
}

TEST_F(FrmLongeronTest, SpeaksFrenchAndInches) {
    Language("French");
    Inches();
    programme.rib.cordeAfich = "8.1/2";
    Use([](SeenSlots &window) {
        EXPECT_EQ(window.Title(), "Longerons 8.1/2  in");
        EXPECT_EQ(window.Label("Label1"), "Position        in ou %");
        EXPECT_EQ(window.Label("Label6(0)"), " in");
        EXPECT_EQ(window.Word("Cmdannuler"), "Fermer");
    });
}

TEST_F(FrmLongeronTest, KeysOfTheFieldsInMm) {
    Use([](SeenSlots &window) {
        window.Click("OptLong(3)");
        window.Type(0, "a1-2;3/4%5 6.7e");
        EXPECT_EQ(window.Text("Text1(0)"), "1234%56.7");
        window.Key(Qt::Key_Backspace);
        EXPECT_EQ(window.Text("Text1(0)"), "1234%56.");
        for (int i = 1; i < 4; ++i) {
            window.Type(i, "a1-2;3/4%5 6.7e");
            EXPECT_EQ(window.Text({"Text1", i}), "123456.7");
        }
    });
}

TEST_F(FrmLongeronTest, KeysOfTheFieldsInInches) {
    Inches();
    Use([](SeenSlots &window) {
        window.Click("OptLong(3)");
        window.Type(0, "a1-2;3/4%5 6.7e");
        EXPECT_EQ(window.Text("Text1(0)"), "123/4%56.7");
        for (int i = 1; i < 4; ++i) {
            window.Type(i, "a1-2;3/4%5 6.7e");
            EXPECT_EQ(window.Text({"Text1", i}), "123/456.7");
        }
    });
}

TEST_F(FrmLongeronTest, EachFocusSelectsAllFields) {
    Spars(0);
    Use([](SeenSlots &window) {
        window.Click("OptLong(3)");
        for (int i = 0; i < 4; ++i) {
            window.Box(i).setText("7" + QString::number(i));
        }
        window.GoTo("cmdajout");
        window.GoTo({"Text1", 1});
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(window.Selected({"Text1", i}), "7" + std::to_string(i));
        }
        window.Key(Qt::Key_3);
        EXPECT_EQ(window.Text({"Text1", 1}), "3");
        EXPECT_EQ(window.Text({"Text1", 2}), "72");
    });
}

TEST_F(FrmLongeronTest, TabGoesThroughTheWholeWindow) {
    Use([](SeenSlots &window) {
        window.Click("OptLong(3)");
        window.GoTo({"Text1", 0});
        const char *const order[] = {"OptDistance(0)", "Text1(1)", "Text1(2)",         "Text1(3)",
                                     "OptLong(3)",     "Opte(0)",  "Opti(0)",          "cmdajout",
                                     "Cmdmodif",       "Cmdeffac", "CmdApply",         "cmdok",
                                     "Cmdannuler",     "cmdaide",  "LblNblongeron(0)", "Text1(0)"};
        for (const char *name : order) {
            window.Key(Qt::Key_Tab);
            EXPECT_EQ(window.Focus(), name);
        }
    });
}

TEST_F(FrmLongeronTest, HelpIsPage42) {
    EXPECT_EQ(Use([](SeenSlots &window) {
                  window.Click("cmdaide");
                  window.Key({"Text1", 0}, Qt::Key_F1);
              }),
              Left::open);
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{42, 42}));
}

TEST_F(FrmLongeronTest, ANewUserTypesASparAndOkTakesAndDrawsIt) {
    const Left left = Use([](SeenSlots &window) {
        window.Keys({"Text1", 0}, "50");
        window.Type(1, "10");
        window.Type(2, "5");
        window.Click("Opte(2)");
        window.Click("cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(Slot(0).PosLong, 50.0F);
    EXPECT_EQ(Slot(0).LargLong, 10.0F);
    EXPECT_EQ(Slot(0).HautLong, 5.0F);
    EXPECT_EQ(Slot(0).OptLongExt, 2);
    EXPECT_EQ(view.asked, std::vector<std::string>{"affiche"});
    EXPECT_TRUE(programme.rib.Modifie);
}

TEST_F(FrmLongeronTest, ReturnIsOk) {
    const Left left = Use([](SeenSlots &window) {
        TypeSpar(window, "50", "10", "5");
        window.Key(Qt::Key_Return);
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Slot(0).HautLong, 5.0F);
}

TEST_F(FrmLongeronTest, AllOptionsAreStoredAndComeBack) {
    Use([](SeenSlots &window) {
        window.Click("OptLong(3)");
        TypeSpar(window, "20", "10", "5");
        window.Type(3, "2");
        window.Click("OptDistance(1)");
        window.Click("Opte(1)");
        window.Click("Opti(2)");
        window.Click("CmdApply");
    });
    EXPECT_EQ(Slot(0).PosLong, 180.0F);
    EXPECT_EQ(Slot(0).RefLong, 1);
    EXPECT_EQ(Slot(0).DistLong, 2.0F);
    EXPECT_EQ(Slot(0).TypeLong, 3);
    EXPECT_EQ(Slot(0).OptLongExt, 1);
    EXPECT_EQ(Slot(0).OptLongInt, 2);
    Use([](SeenSlots &window) {
        window.ClickNumber(0);
        EXPECT_EQ(window.Texts(4), "20|10|5|2");
        EXPECT_TRUE(window.Chosen("OptDistance(1)"));
        EXPECT_TRUE(window.Chosen("OptLong(3)"));
        EXPECT_TRUE(window.Chosen("Opte(1)"));
        EXPECT_TRUE(window.Chosen("Opti(2)"));
    });
}

// Kinds.

TEST_F(FrmLongeronTest, ARoundSparAsksForNoDepthAndTheFieldHoldsZero) {
    Use([](SeenSlots &window) {
        TypeSpar(window, "50", "10", "5");
        window.Click("OptLong(2)");
        EXPECT_EQ(window.Label("Label2"), "Diameter");
        EXPECT_EQ(window.Label("Label3"), "");
        EXPECT_EQ(window.Label("Label6(0)"), " mm");
        EXPECT_EQ(window.Label("Label6(1)"), "");
        EXPECT_FALSE(window.Shown("Text1(2)"));
        EXPECT_EQ(window.Text("Text1(2)"), "0");
        EXPECT_TRUE(window.Enabled("Text1(3)"));
        EXPECT_TRUE(window.Enabled("Label4"));
        EXPECT_EQ(window.Focus(), "Text1(1)");
        EXPECT_EQ(window.Selected({"Text1", 1}), "10");
        window.Type(3, "4");
        window.Click("cmdok");
    });
    EXPECT_EQ(Slot(0).HautLong, 0.0F);
    EXPECT_EQ(Slot(0).HautLongAfich, "0");
    EXPECT_EQ(Slot(0).DistLong, 4.0F);
    EXPECT_EQ(Drawn(), 1); // no refusal for the depth
}

TEST_F(FrmLongeronTest, AtADistanceTheDistanceIsNext) {
    Use([](SeenSlots &window) {
        EXPECT_FALSE(window.Enabled("Text1(3)"));
        EXPECT_FALSE(window.Enabled("Label4"));
        window.Click("OptLong(3)");
        EXPECT_TRUE(window.Enabled("Text1(3)"));
        EXPECT_TRUE(window.Enabled("Label4"));
        EXPECT_EQ(window.Focus(), "Text1(3)");
    });
}

TEST_F(FrmLongeronTest, BackAtTheSurfaceTheDistanceIsEmptied) {
    Use([](SeenSlots &window) {
        for (const char *at_surface : {"OptLong(0)", "OptLong(1)"}) {
            window.Click("OptLong(2)");
            window.Type(3, "4");
            window.Click(at_surface);
            EXPECT_EQ(window.Text("Text1(3)"), "");
            EXPECT_FALSE(window.Enabled("Text1(3)"));
            EXPECT_TRUE(window.Shown("Text1(2)"));
            EXPECT_EQ(window.Label("Label2"), "Width");
            EXPECT_EQ(window.Label("Label3"), "Depth");
            EXPECT_EQ(window.Label("Label6(1)"), " mm");
        }
    });
}

TEST_F(FrmLongeronTest, TheArrowKeysChooseAKindToo) {
    Use([](SeenSlots &window) {
        window.GoTo("OptLong(0)");
        window.Key(Qt::Key_Down);
        EXPECT_TRUE(window.Chosen("OptLong(1)"));
        window.Key(Qt::Key_Right);
        EXPECT_TRUE(window.Chosen("OptLong(3)"));
        EXPECT_TRUE(window.Enabled("Text1(3)"));
        window.GoTo("OptLong(3)"); // the distance has taken it
        window.Key(Qt::Key_Up);
        EXPECT_TRUE(window.Chosen("OptLong(2)"));
        EXPECT_FALSE(window.Shown("Text1(2)"));
    });
}

TEST_F(FrmLongeronTest, OptionsThatThereArentShowAsTheFirst) {
    Spars(0);
    Longeron &spar = programme.rib.longeron[0];
    spar.TypeLong = 9;
    spar.OptLongExt = spar.OptLongInt = spar.RefLong = 255;
    Use([](SeenSlots &window) {
        window.ClickNumber(0);
        for (const char *first : {"OptLong(0)", "Opte(0)", "Opti(0)", "OptDistance(0)"}) {
            EXPECT_TRUE(window.Chosen(first));
        }
        window.Click("cmdok");
    });
    EXPECT_EQ(Slot(0).TypeLong, 0);
    EXPECT_EQ(Slot(0).OptLongExt, 0);
}

// The numbers.

TEST_F(FrmLongeronTest, ANumberShowsItsSpar) {
    Spars(2);
    programme.rib.longeron[0].TypeLong = 2;
    programme.rib.longeron[0].DistLongAfich = "4";
    Use([](SeenSlots &window) {
        EXPECT_EQ(window.Numbers(), "1 2 3 [4]");
        window.ClickNumber(0);
        EXPECT_EQ(window.Numbers(), "[1] 2 3 4");
        EXPECT_EQ(window.Texts(4), "20|10|0|4");
        EXPECT_TRUE(window.Chosen("OptLong(2)"));
        EXPECT_TRUE(window.Chosen("Opte(1)"));
        EXPECT_EQ(window.Focus(), "Text1(0)");
        EXPECT_TRUE(window.FocusedAndSelected({"Text1", 0}));
        window.ClickNumber(1);
        EXPECT_EQ(window.Numbers(), "1 [2] 3 4");
        EXPECT_EQ(window.Texts(4), "30|10|5|");
    });
}

TEST_F(FrmLongeronTest, ANumberNotInUseDoesNothing) {
    Spars(1);
    Use([](SeenSlots &window) {
        window.ClickNumber(3);
        window.ClickNumber(11);
        EXPECT_EQ(window.Numbers(), "1 2 [3]");
        EXPECT_EQ(window.Text("Text1(0)"), "0");
    });
}

TEST_F(FrmLongeronTest, ThePressMustEndOnTheNumber) {
    Spars(1);
    Use([](SeenSlots &window) {
        ClickLabel &number = window.Number(0);
        QTest::mousePress(&number, Qt::LeftButton);
        QTest::mouseRelease(&number, Qt::LeftButton, {}, {-20, 5});
        QTest::mouseClick(&number, Qt::RightButton);
        EXPECT_EQ(window.Numbers(), "1 2 [3]");
    });
}

TEST_F(FrmLongeronTest, TheNumbersAreChosenByKeysToo) {
    Spars(2);
    Use([](SeenSlots &window) {
        window.GoTo({"Text1", 0});
        window.Key(Qt::Key_Backtab);
        EXPECT_EQ(window.Focus(), "LblNblongeron(3)");
        window.Key(Qt::Key_Right); // there is none
        EXPECT_EQ(window.Focus(), "LblNblongeron(3)");
        for (int i = 0; i < 3; ++i) {
            window.Key(Qt::Key_Left);
        }
        EXPECT_EQ(window.Focus(), "LblNblongeron(0)");
        EXPECT_EQ(window.Text("Text1(0)"), "0"); // not chosen yet
        window.Key(Qt::Key_Space);
        EXPECT_EQ(window.Numbers(), "[1] 2 3 4");
        EXPECT_EQ(window.Text("Text1(0)"), "20");
        window.Key(Qt::Key_Backtab);
        window.Key(Qt::Key_Right);
        window.Key(Qt::Key_Return);
        EXPECT_EQ(window.Numbers(), "1 [2] 3 4");
        EXPECT_EQ(window.Text("Text1(0)"), "30");
    });
}

TEST_F(FrmLongeronTest, ABorderMovesNothing) {
    Spars(1);
    Use([](SeenSlots &window) {
        const QRect first = window.Number(0).geometry();
        const QRect last = window.Number(2).geometry();
        window.ClickNumber(0);
        QApplication::processEvents();
        EXPECT_EQ(window.Number(0).geometry(), first);
        EXPECT_EQ(window.Number(2).geometry(), last);
    });
}

} // namespace
} // namespace loftwing
