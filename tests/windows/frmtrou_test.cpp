#include "features/frmtrou.h"

#include "windows/slots_fixture.h"

namespace loftwing {
namespace {

constexpr const char *kBad =
    "The hole shown lacks a size, or does not lie on the chord. "
    "Please correct it. To leave it as it was, click number 1 and then Close : Dimensions = ";

class FrmTrouTest : public SlotsTest<frmtrou> {
  protected:
    const char *NumbersName() const override { return "LblNbtrou"; }

    /// Finished holes at 20, 30, 40 mm and so on, and the next one in the work slot.
    void Holes(int finished) {
        for (int i = 0; i <= finished; ++i) {
            Trou &hole = At(programme.rib.trou, i);
            hole.PosTrouAfich = std::to_string(20 + 10 * i);
            hole.DiaTrouAfich = "10";
            hole.DiaTrou = 10;
        }
        programme.rib.NbTrou = static_cast<std::uint8_t>(finished);
    }
    static void TypeHole(Seen &window, const char *place, const char *diameter) {
        window.Type(0, place);
        window.Type(1, diameter);
    }
    const Trou &Slot(int index) { return At(programme.rib.trou, index); }
    int Count() const { return programme.rib.NbTrou; }
    std::string Places(int slots) {
        std::string all;
        for (int i = 0; i < slots; ++i) {
            all += (i == 0 ? "" : " ") + Slot(i).PosTrouAfich;
        }
        return all;
    }
};

TEST_F(FrmTrouTest, ShowsTheWorkSlotOfANewRib) {
    Use([](Seen &window) {
        EXPECT_EQ(S(window.Dialog().windowTitle()), "Holes setup 200  mm");
        EXPECT_EQ(window.Numbers(), "[1]");
        EXPECT_EQ(window.Texts(3), "0|0|0");
        EXPECT_EQ(window.Text("Text2"), "0");
        EXPECT_TRUE(window.Chosen("OptDistance(0)"));
        EXPECT_TRUE(window.Chosen("OptTrouRec(0)"));
        EXPECT_FALSE(window.Chosen("Chkcentr"));
        EXPECT_TRUE(window.Enabled("Text2"));
        EXPECT_FALSE(window.Shown("Text1(2)"));
        EXPECT_EQ(window.Focus(), "Text1(0)");
        EXPECT_EQ(S(window.Box(0).selectedText()), "0");
    });
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmTrouTest, SpeaksEnglishAndMm) {
    Use([](Seen &window) {
        EXPECT_EQ(window.Label("Label1"), "Location value            mm or %");
        EXPECT_EQ(window.Label("Label2"), "Diameter");
        EXPECT_EQ(window.Label("Label4"), "In the centrer of airfoil thickness");
        EXPECT_EQ(window.Label("Label5"), "Vertical distance from the reference line + or -");
        EXPECT_EQ(window.Label("Label6(2)"), " mm");
        EXPECT_EQ(S(window.Find<QGroupBox>("Frame2").title()), "Dimensions");
        EXPECT_EQ(S(window.Find<QGroupBox>("Frame6").title()), "Hole");
        EXPECT_EQ(S(window.Find<QRadioButton>("OptTrouRec(0)").text()), "Circle");
        EXPECT_EQ(S(window.Find<QRadioButton>("OptTrouRec(1)").text()), "Rectangular");
        EXPECT_EQ(window.Label("LabelListe"), "Hole # :");
        EXPECT_EQ(S(window.Box(0).toolTip()), "In percent   Ex 33%");
        const std::pair<const char *, const char *> buttons[] = {
            {"cmdajout", "Add"},   {"Cmdmodif", "Modify"},  {"Cmdeffac", "Remove"},
            {"CmdApply", "Apply"}, {"Cmdannuler", "Close"}, {"cmdok", "OK"},
            {"cmdaide", "Help"},
        };
        for (const auto &[name, word] : buttons) {
            EXPECT_EQ(S(window.Find<QPushButton>(name).text()), word);
        }
    });
}

TEST_F(FrmTrouTest, SpeaksFrenchAndInches) {
    Language("French");
    Inches();
    programme.rib.cordeAfich = "8.1/2";
    Use([](Seen &window) {
        EXPECT_EQ(S(window.Dialog().windowTitle()), "Trous 8.1/2  in");
        EXPECT_EQ(window.Label("Label1"), "Position            in ou %");
        EXPECT_EQ(window.Label("Label6(0)"), " in");
        EXPECT_EQ(S(window.Find<QPushButton>("Cmdeffac").text()), "Supprimer");
    });
}

TEST_F(FrmTrouTest, OnlyTheDistanceTakesAMinusSign) {
    Use([](Seen &window) {
        window.Click("OptTrouRec(1)");
        window.Type(0, "a1-2,3/4%5 6.7e");
        EXPECT_EQ(window.Text("Text1(0)"), "1234%56.7");
        for (int i = 1; i < 3; ++i) {
            window.Type(i, "a1-2,3/4%5 6.7e");
            EXPECT_EQ(S(window.Box(i).text()), "123456.7");
        }
        window.Type("Text2", "-1,3/4%5 6.7e");
        EXPECT_EQ(window.Text("Text2"), "-13456.7");
        window.Key(Qt::Key_Backspace);
        EXPECT_EQ(window.Text("Text2"), "-13456.");
    });
}

TEST_F(FrmTrouTest, KeysOfTheFieldsInInches) {
    Inches();
    Use([](Seen &window) {
        window.Click("OptTrouRec(1)");
        window.Type(0, "a1-2,3/4%5 6.7e");
        EXPECT_EQ(window.Text("Text1(0)"), "123/4%56.7");
        for (int i = 1; i < 3; ++i) {
            window.Type(i, "a1-2,3/4%5 6.7e");
            EXPECT_EQ(S(window.Box(i).text()), "123/456.7");
        }
        window.Type("Text2", "-1,3/4%5 6.7e");
        EXPECT_EQ(window.Text("Text2"), "-13/456.7");
    });
}

TEST_F(FrmTrouTest, EachFocusSelectsAllFieldsInUse) {
    Use([](Seen &window) {
        window.Click("OptTrouRec(1)");
        window.Click("Chkcentr");
        window.Box(1).setFocus();
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(S(window.Box(i).selectedText()), "0");
        }
        EXPECT_EQ(S(window.Find<QLineEdit>("Text2").selectedText()), "");
        window.Click("Chkcentr");
        window.Find<QLineEdit>("Text2").setFocus();
        EXPECT_EQ(S(window.Find<QLineEdit>("Text2").selectedText()), "0");
        EXPECT_EQ(S(window.Box(0).selectedText()), "0");
    });
}

TEST_F(FrmTrouTest, TabGoesThroughTheWholeWindow) {
    Use([](Seen &window) {
        window.Click("OptTrouRec(1)");
        window.Box(0).setFocus();
        const char *const order[] = {"OptDistance(0)", "Text1(1)",      "Text1(2)",   "Text2",
                                     "Chkcentr",       "OptTrouRec(1)", "cmdajout",   "Cmdmodif",
                                     "Cmdeffac",       "cmdok",         "Cmdannuler", "CmdApply",
                                     "cmdaide",        "LblNbtrou(0)",  "Text1(0)"};
        for (const char *name : order) {
            window.Key(Qt::Key_Tab);
            EXPECT_EQ(window.Focus(), name);
        }
    });
}

TEST_F(FrmTrouTest, HelpIsPage43) {
    Use([](Seen &window) {
        window.Click("cmdaide");
        QTest::keyClick(&window.Box(0), Qt::Key_F1);
    });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{43, 43}));
}

TEST_F(FrmTrouTest, ANewUserTypesAHoleAndOkTakesAndDrawsIt) {
    const Left left = Use([](Seen &window) {
        QTest::keyClicks(&window.Box(0), "33%");
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
    Use([](Seen &window) {
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
    Use([](Seen &window) {
        EXPECT_EQ(window.Texts(3), "20|10|6");
        EXPECT_TRUE(window.Chosen("OptDistance(1)"));
        EXPECT_TRUE(window.Chosen("OptTrouRec(1)"));
        EXPECT_TRUE(window.Chosen("Chkcentr"));
        EXPECT_FALSE(window.Enabled("Text2"));
        EXPECT_TRUE(window.Shown("Text1(2)"));
    });
}

TEST_F(FrmTrouTest, TheMiddleOfTheThicknessGreysTheDistanceAndSetsItToZero) {
    Use([](Seen &window) {
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
        window.Find<QCheckBox>("Chkcentr").setFocus();
        window.Key(Qt::Key_Space);
        EXPECT_TRUE(window.Enabled("Text2"));
    });
}

TEST_F(FrmTrouTest, AHoleInTheMiddleLosesAnOldDistanceWhenItIsApplied) {
    Holes(0);
    programme.rib.trou[0].ChkCentre = 1;
    programme.rib.trou[0].DecalTrou = 4;
    programme.rib.trou[0].DecalTrouAfich = "4";
    Use([](Seen &window) {
        EXPECT_EQ(window.Text("Text2"), "0");
        window.Click("CmdApply");
    });
    EXPECT_EQ(Slot(0).DecalTrou, 0.0F);
    EXPECT_EQ(Slot(0).ChkCentre, 1.0F);
}

TEST_F(FrmTrouTest, AlmostTheMiddleIsNotTicked) {
    Holes(0);
    programme.rib.trou[0].ChkCentre = 0.5F;
    Use([](Seen &window) { EXPECT_FALSE(window.Chosen("Chkcentr")); });
}

TEST_F(FrmTrouTest, ARectangleAsksForWidthAndHeight) {
    Use([](Seen &window) {
        window.Find<QPushButton>("cmdajout").setFocus();
        window.Click("OptTrouRec(1)");
        EXPECT_EQ(window.Label("Label2"), "Width");
        EXPECT_EQ(window.Label("Label3"), "Height");
        for (const char *name : {"Label3", "Text1(2)", "Label6(1)"}) {
            EXPECT_TRUE(window.Shown(name));
        }
        EXPECT_EQ(window.Focus(), "Text1(0)");
        EXPECT_TRUE(window.AllSelected(window.Box(0)));
        window.Click("OptTrouRec(0)");
        EXPECT_EQ(window.Label("Label2"), "Diameter");
        for (const char *name : {"Label3", "Text1(2)", "Label6(1)"}) {
            EXPECT_FALSE(window.Shown(name));
        }
        EXPECT_EQ(window.Focus(), "Text1(0)");
    });
}

TEST_F(FrmTrouTest, ACircleKeepsAnOlderHeightUnasked) {
    EXPECT_EQ(Use([](Seen &window) {
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
    ExpectBoxes(1);
    EXPECT_EQ(Use([](Seen &window) {
                  window.Click("OptTrouRec(1)");
                  TypeHole(window, "50", "10");
                  window.Click("cmdok");
              }),
              Left::open);
    EXPECT_EQ(LastBox(), std::string(kBad) + "0");
    EXPECT_EQ(platform.boxes.at(0).title, "Holes setup 200  mm");
}

TEST_F(FrmTrouTest, AHoleThatPokesOutOfTheRibIsAccepted) {
    EXPECT_EQ(Use([](Seen &window) {
                  TypeHole(window, "1", "40");
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Slot(0).DiaTrou, 40.0F);
}

TEST_F(FrmTrouTest, ALocationBeyondTheChordIsRefused) {
    ExpectBoxes(1);
    Use([](Seen &window) {
        TypeHole(window, "210", "10");
        window.Click("CmdApply");
    });
    EXPECT_EQ(LastBox(), std::string(kBad) + "210");
    EXPECT_EQ(Drawn(), 0);
    EXPECT_EQ(Slot(0).PosTrouAfich, "210");
}

TEST_F(FrmTrouTest, OptionsThatThereArentShowAsTheFirst) {
    Holes(0);
    programme.rib.trou[0].TypeTrou = 7;
    programme.rib.trou[0].RefTrou = 200;
    Use([](Seen &window) {
        EXPECT_TRUE(window.Chosen("OptTrouRec(0)"));
        EXPECT_TRUE(window.Chosen("OptDistance(0)"));
    });
}

TEST_F(FrmTrouTest, AddTakesWhatWasTypedAndOffersTheNext) {
    Use([this](Seen &window) {
        TypeHole(window, "50", "10");
        window.Click("Chkcentr");
        window.Click("cmdajout");
        EXPECT_EQ(Count(), 1);
        EXPECT_EQ(window.Numbers(), "1 [2]");
        EXPECT_EQ(window.Texts(2), "0|0");
        EXPECT_FALSE(window.Chosen("Chkcentr"));
        EXPECT_TRUE(window.Enabled("Text2"));
        EXPECT_EQ(window.Focus(), "Text1(0)");
        QTest::keyClicks(&window.Box(0), "80");
        window.Type(1, "6");
        window.Click("cmdok");
    });
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(Places(3), "50 80 0");
    EXPECT_EQ(Slot(0).ChkCentre, 1.0F);
    EXPECT_EQ(Slot(1).ChkCentre, 0.0F);
}

TEST_F(FrmTrouTest, OfTwelveHolesTheTwelfthStaysTheWorkSlotAndTheCountIs11) {
    ExpectBoxes(1);
    EXPECT_EQ(Use([this](Seen &window) {
                  for (int i = 1; i <= 12; ++i) {
                      TypeHole(window, std::to_string(10 * i).c_str(), "4");
                      window.Click("cmdajout");
                  }
                  EXPECT_EQ(Count(), 11);
                  EXPECT_EQ(window.Texts(2), "120|4");
                  EXPECT_EQ(window.Numbers(), "1 2 3 4 5 6 7 8 9 10 11 [12]");
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Slot(11).PosTrouAfich, "120");
    EXPECT_EQ(Slot(12).PosTrouAfich, "0");
    EXPECT_EQ(LastBox(), "A rib has room for 12 holes. The one shown is the twelfth : it is kept, "
                         "and can still be changed.");
}

TEST_F(FrmTrouTest, ModifyChangesTheSelectedHoleAndDraws) {
    Holes(2);
    Use([this](Seen &window) {
        window.ClickNumber(1);
        EXPECT_EQ(window.Numbers(), "1 [2] 3");
        EXPECT_EQ(window.Text("Text1(0)"), "30");
        window.Type(0, "35");
        window.Click("Cmdmodif");
        EXPECT_EQ(window.Numbers(), "1 2 [3]");
        EXPECT_EQ(window.Text("Text1(0)"), "40");
        EXPECT_EQ(Drawn(), 1);
    });
    EXPECT_EQ(Places(3), "20 35 40");
}

TEST_F(FrmTrouTest, RemoveClosesTheGapAndDraws) {
    Holes(3);
    programme.rib.trou[2].ChkCentre = 1;
    Use([this](Seen &window) {
        window.ClickNumber(1);
        window.Click("Cmdeffac");
        EXPECT_EQ(window.Numbers(), "1 2 [3]");
        EXPECT_EQ(window.Text("Text1(0)"), "50");
        EXPECT_EQ(Drawn(), 1);
    });
    EXPECT_EQ(Places(4), "20 40 50 0");
    EXPECT_EQ(Slot(1).ChkCentre, 1.0F);
    EXPECT_EQ(Slot(2).ChkCentre, 0.0F);
    EXPECT_EQ(Count(), 2);
}

TEST_F(FrmTrouTest, RemoveOfTheOnlyHoleLeavesAnEmptyListThatIsDrawn) {
    Holes(0);
    EXPECT_EQ(Use([this](Seen &window) {
                  window.ClickNumber(0);
                  window.Click("Cmdeffac");
                  EXPECT_EQ(window.Texts(2), "0|0");
                  EXPECT_EQ(Drawn(), 1);
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(Slot(0).DiaTrou, 0.0F);
}

TEST_F(FrmTrouTest, ModifyAndRemoveWithoutASelectionAskForOne) {
    Holes(2);
    ExpectBoxes(2);
    Use([](Seen &window) {
        window.Click("Cmdmodif");
        window.Click("Cmdeffac");
    });
    for (const MessageBox &box : platform.boxes) {
        EXPECT_EQ(box.text, "Please click the number of a hole first.");
    }
    EXPECT_EQ(Places(3), "20 30 40");
}

TEST_F(FrmTrouTest, AnEmptyFirstSlotCanBeLeftAfterItsNumberWasClicked) {
    ExpectBoxes(1);
    EXPECT_EQ(Use([](Seen &window) {
                  window.Click("cmdok");
                  window.ClickNumber(0);
                  window.Click("cmdok");
              }),
              Left::accepted);
    EXPECT_EQ(LastBox(), std::string(kBad) + "0");
}

TEST_F(FrmTrouTest, CloseStoresNothing) {
    Holes(1);
    EXPECT_EQ(Use([](Seen &window) {
                  TypeHole(window, "77", "7");
                  window.Click("Cmdannuler");
              }),
              Left::rejected);
    EXPECT_EQ(Use([](Seen &window) {
                  TypeHole(window, "77", "7");
                  window.Key(Qt::Key_Escape);
              }),
              Left::rejected);
    EXPECT_EQ(Places(2), "20 30");
    EXPECT_FALSE(programme.rib.Modifie);
    EXPECT_EQ(Drawn(), 0);
}

TEST_F(FrmTrouTest, CloseWithAnotherNumberSelectedStaysWhileAValueIsWrong) {
    Holes(2);
    ExpectBoxes(2);
    EXPECT_EQ(Use([](Seen &window) {
                  window.ClickNumber(1);
                  window.Type(0, "250");
                  window.Click("CmdApply");
                  window.Click("Cmdannuler");
              }),
              Left::open);
    EXPECT_EQ(LastBox(), std::string(kBad) + "250");
}

TEST_F(FrmTrouTest, AFractionOfZerothsIsToldAndKeepsTheWindowOpen) {
    Inches();
    ExpectBoxes(1);
    EXPECT_EQ(Use([](Seen &window) {
                  TypeHole(window, "3", "1/2");
                  window.Type("Text2", "-1/0");
                  window.Click("cmdok");
              }),
              Left::open);
    EXPECT_EQ(platform.boxes.at(0).title, " Trou/OK");
    EXPECT_EQ(Drawn(), 0);
}

} // namespace
} // namespace loftwing
