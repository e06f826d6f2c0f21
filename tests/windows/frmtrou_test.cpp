#include "windows/frmtrou_fixture.h"

namespace loftwing {
namespace {

TEST_F(FrmTrouTest, ShowsTheWorkSlotOfANewRib) {
    Use([](SeenSlots &window) {
        EXPECT_EQ(window.Title(), "Holes setup 200  mm");
        EXPECT_EQ(window.Numbers(), "[1]");
        EXPECT_EQ(window.Texts(3), "0|0|0");
        EXPECT_EQ(window.Text("Text2"), "0");
        EXPECT_TRUE(window.Chosen("OptDistance(0)"));
        EXPECT_TRUE(window.Chosen("OptTrouRec(0)"));
        EXPECT_FALSE(window.Chosen("Chkcentr"));
        EXPECT_TRUE(window.Enabled("Text2"));
        EXPECT_FALSE(window.Shown("Text1(2)"));
        EXPECT_EQ(window.Focus(), "Text1(0)");
        EXPECT_EQ(window.Selected({"Text1", 0}), "0");
    });
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmTrouTest, SpeaksEnglishAndMm) {
    Use([](SeenSlots &window) {
        EXPECT_EQ(window.Label("Label1"), "Location value            mm or %");
        EXPECT_EQ(window.Label("Label2"), "Diameter");
        EXPECT_EQ(window.Label("Label4"), "In the center of the airfoil thickness");
        EXPECT_EQ(window.Label("Label5"), "Vertical distance from the reference line + or -");
        EXPECT_EQ(window.Label("Label6(2)"), " mm");
        EXPECT_EQ(window.Frame("Frame2"), "Dimensions");
        EXPECT_EQ(window.Frame("Frame6"), "Hole");
        EXPECT_EQ(window.Word("OptTrouRec(0)"), "Circle");
        EXPECT_EQ(window.Word("OptTrouRec(1)"), "Rectangular");
        EXPECT_EQ(window.Label("LabelListe"), "Hole # :");
        EXPECT_EQ(window.Tip({"Text1", 0}), "In percent   Ex 33%");
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

TEST_F(FrmTrouTest, SpeaksFrenchAndInches) {
    Language("French");
    Inches();
    programme.rib.cordeAfich = "8.1/2";
    Use([](SeenSlots &window) {
        EXPECT_EQ(window.Title(), "Trous 8.1/2  in");
        EXPECT_EQ(window.Label("Label1"), "Position            in ou %");
        EXPECT_EQ(window.Label("Label6(0)"), " in");
        EXPECT_EQ(window.Word("Cmdeffac"), "Supprimer");
    });
}

TEST_F(FrmTrouTest, OnlyTheDistanceTakesAMinusSign) {
    Use([](SeenSlots &window) {
        window.Click("OptTrouRec(1)");
        window.Type(0, "a1-2;3/4%5 6.7e");
        EXPECT_EQ(window.Text("Text1(0)"), "1234%56.7");
        for (int i = 1; i < 3; ++i) {
            window.Type(i, "a1-2;3/4%5 6.7e");
            EXPECT_EQ(window.Text({"Text1", i}), "123456.7");
        }
        window.Type("Text2", "-1;3/4%5 6.7e");
        EXPECT_EQ(window.Text("Text2"), "-13456.7");
        window.Key(Qt::Key_Backspace);
        EXPECT_EQ(window.Text("Text2"), "-13456.");
    });
}

TEST_F(FrmTrouTest, KeysOfTheFieldsInInches) {
    Inches();
    Use([](SeenSlots &window) {
        window.Click("OptTrouRec(1)");
        window.Type(0, "a1-2;3/4%5 6.7e");
        EXPECT_EQ(window.Text("Text1(0)"), "123/4%56.7");
        for (int i = 1; i < 3; ++i) {
            window.Type(i, "a1-2;3/4%5 6.7e");
            EXPECT_EQ(window.Text({"Text1", i}), "123/456.7");
        }
        window.Type("Text2", "-1;3/4%5 6.7e");
        EXPECT_EQ(window.Text("Text2"), "-13/456.7");
    });
}

TEST_F(FrmTrouTest, EachFocusSelectsAllFieldsInUse) {
    Use([](SeenSlots &window) {
        window.Click("OptTrouRec(1)");
        window.Click("Chkcentr");
        window.GoTo({"Text1", 1});
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(window.Selected({"Text1", i}), "0");
        }
        EXPECT_EQ(window.Selected("Text2"), "");
        window.Click("Chkcentr");
        window.GoTo("Text2");
        EXPECT_EQ(window.Selected("Text2"), "0");
        EXPECT_EQ(window.Selected({"Text1", 0}), "0");
    });
}

TEST_F(FrmTrouTest, TabGoesThroughTheWholeWindow) {
    Use([](SeenSlots &window) {
        window.Click("OptTrouRec(1)");
        window.GoTo({"Text1", 0});
        const char *const order[] = {"OptDistance(0)", "Text1(1)",      "Text1(2)", "Text2",
                                     "Chkcentr",       "OptTrouRec(1)", "cmdajout", "Cmdmodif",
                                     "Cmdeffac",       "CmdApply",      "cmdok",    "Cmdannuler",
                                     "cmdaide",        "LblNbtrou(0)",  "Text1(0)"};
        for (const char *name : order) {
            window.Key(Qt::Key_Tab);
            EXPECT_EQ(window.Focus(), name);
        }
    });
}

TEST_F(FrmTrouTest, HelpIsPage43) {
    Use([](SeenSlots &window) {
        window.Click("cmdaide");
        window.Key({"Text1", 0}, Qt::Key_F1);
    });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{43, 43}));
}

TEST_F(FrmTrouTest, ANewUserTypesAHoleAndOkTakesAndDrawsIt) {
    const Left left = Use([](SeenSlots &window) {
        window.Keys({"Text1", 0}, "33%");
        window.Type(1, "10");
        window.Type("Text2", "-2.5");
        window.Key(Qt::Key_Return);
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(Slot(0).PosTrou, 66.0F);
    EXPECT_EQ(Slot(0).DiaTrou, 10.0F);
    EXPECT_EQ(Slot(0).DecalTrou, -2.5F);
    EXPECT_EQ(Slot(0).ChkCentre, 0.0F);
    EXPECT_EQ(view.asked, std::vector<std::string>{"affiche"});
    EXPECT_TRUE(programme.rib.Modifie);
}

TEST_F(FrmTrouTest, AllOptionsAreStoredAndComeBack) {
    Use([](SeenSlots &window) {
        window.Click("OptTrouRec(1)");
        TypeHole(window, "20", "10");
        window.Type(2, "6");
        window.Click("OptDistance(1)");
        window.Click("Chkcentr");
        window.Click("CmdApply");
    });
    EXPECT_EQ(Slot(0).PosTrou, 180.0F);
    EXPECT_EQ(Slot(0).RefTrou, 1);
    EXPECT_EQ(Slot(0).TypeTrou, 1);
    EXPECT_EQ(Slot(0).HautTrou, 6.0F);
    EXPECT_EQ(Slot(0).ChkCentre, 1.0F);
    EXPECT_EQ(Slot(0).DecalTrou, 0.0F);
    Use([](SeenSlots &window) {
        window.ClickNumber(0);
        EXPECT_EQ(window.Texts(3), "20|10|6");
        EXPECT_TRUE(window.Chosen("OptDistance(1)"));
        EXPECT_TRUE(window.Chosen("OptTrouRec(1)"));
        EXPECT_TRUE(window.Chosen("Chkcentr"));
        EXPECT_FALSE(window.Enabled("Text2"));
        EXPECT_TRUE(window.Shown("Text1(2)"));
    });
}

TEST_F(FrmTrouTest, TheMiddleOfTheThicknessGreysTheDistanceAndSetsItToZero) {
    Use([](SeenSlots &window) {
        window.Type("Text2", "-3");
        window.Click("Chkcentr");
        EXPECT_FALSE(window.Enabled("Text2"));
        EXPECT_EQ(window.Text("Text2"), "0");
        window.Click("Chkcentr");
        EXPECT_TRUE(window.Enabled("Text2"));
        EXPECT_EQ(window.Text("Text2"), "0");
        window.Click("Label4"); // its words tick it too
        EXPECT_TRUE(window.Chosen("Chkcentr"));
        EXPECT_FALSE(window.Enabled("Text2"));
        window.GoTo("Chkcentr");
        window.Key(Qt::Key_Space);
        EXPECT_TRUE(window.Enabled("Text2"));
    });
}

TEST_F(FrmTrouTest, AHoleInTheMiddleLosesAnOldDistanceWhenItIsApplied) {
    Holes(0);
    programme.rib.trou[0].ChkCentre = 1;
    programme.rib.trou[0].DecalTrou = 4;
    programme.rib.trou[0].DecalTrouAfich = "4";
    Use([](SeenSlots &window) {
        window.ClickNumber(0);
        EXPECT_EQ(window.Text("Text2"), "0");
        window.Click("CmdApply");
    });
    EXPECT_EQ(Slot(0).DecalTrou, 0.0F);
    EXPECT_EQ(Slot(0).ChkCentre, 1.0F);
}

TEST_F(FrmTrouTest, AlmostTheMiddleIsNotTicked) {
    Holes(0);
    programme.rib.trou[0].ChkCentre = 0.5F;
    Use([](SeenSlots &window) {
        window.ClickNumber(0);
        EXPECT_FALSE(window.Chosen("Chkcentr"));
    });
}

TEST_F(FrmTrouTest, ARectangleAsksForWidthAndHeight) {
    Use([](SeenSlots &window) {
        window.GoTo("cmdajout");
        window.Click("OptTrouRec(1)");
        EXPECT_EQ(window.Label("Label2"), "Width");
        EXPECT_EQ(window.Label("Label3"), "Height");
        for (const char *name : {"Label3", "Text1(2)", "Label6(1)"}) {
            EXPECT_TRUE(window.Shown(name));
        }
        EXPECT_EQ(window.Focus(), "Text1(0)");
        EXPECT_TRUE(window.FocusedAndSelected({"Text1", 0}));
        window.Click("OptTrouRec(0)");
        EXPECT_EQ(window.Label("Label2"), "Diameter");
        for (const char *name : {"Label3", "Text1(2)", "Label6(1)"}) {
            EXPECT_FALSE(window.Shown(name));
        }
        EXPECT_EQ(window.Focus(), "Text1(0)");
    });
}

TEST_F(FrmTrouTest, ACircleKeepsAnOlderHeightUnasked) {
    EXPECT_EQ(Use([](SeenSlots &window) {
                  window.Click("OptTrouRec(1)");
                  TypeHole(window, "50", "10");
                  window.Type(2, "7");
                  window.Click("OptTrouRec(0)");
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Slot(0).TypeTrou, 0);
    EXPECT_EQ(Slot(0).HautTrou, 7.0F);
}

TEST_F(FrmTrouTest, ARectangleWithoutHeightIsRefused) {
    platform.Expect(BoxAnswer::ok);
    EXPECT_EQ(Use([](SeenSlots &window) {
                  window.Click("OptTrouRec(1)");
                  TypeHole(window, "50", "10");
                  window.Click("cmdok");
              }),
              Left::open);
    EXPECT_EQ(platform.LastBox(), Refused(kHoleNoHeight, "0"));
    EXPECT_EQ(platform.boxes.at(0).title, "Holes setup 200  mm");
}

TEST_F(FrmTrouTest, AHoleThatPokesOutOfTheRibIsAccepted) {
    EXPECT_EQ(Use([](SeenSlots &window) {
                  TypeHole(window, "1", "40");
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Slot(0).DiaTrou, 40.0F);
}

TEST_F(FrmTrouTest, ALocationBeyondTheChordIsRefused) {
    platform.Expect(BoxAnswer::ok);
    Use([](SeenSlots &window) {
        TypeHole(window, "210", "10");
        window.Click("CmdApply");
    });
    EXPECT_EQ(platform.LastBox(), Refused(kHoleBehind, "210"));
    EXPECT_EQ(Drawn(), 0);
    EXPECT_EQ(Slot(0).PosTrouAfich, "210");
}

TEST_F(FrmTrouTest, OptionsThatThereArentShowAsTheFirst) {
    Holes(0);
    programme.rib.trou[0].TypeTrou = 7;
    programme.rib.trou[0].RefTrou = 200;
    Use([](SeenSlots &window) {
        window.ClickNumber(0);
        EXPECT_TRUE(window.Chosen("OptTrouRec(0)"));
        EXPECT_TRUE(window.Chosen("OptDistance(0)"));
        window.Click("cmdok");
    });
    EXPECT_EQ(Slot(0).TypeTrou, 0);
}

} // namespace
} // namespace loftwing
