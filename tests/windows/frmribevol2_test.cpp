#include "utilities/frmribevol2.h"

#include "windows/rib_set_fixture.h"

#include <gmock/gmock.h>

namespace loftwing {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

class Frmribevol2Test : public RibSetTest<frmribevol2> {
  protected:
    Frmribevol2Test() { programme.rib.jeu.NbNervInter = 1; }

    static void TypeEnds(Seen &window, const char *major, const char *minor,
                         const char *thickness) {
        window.Type("txtcorde(0)", major);
        window.Type("txtcorde(1)", minor);
        window.Type("txtEpR(0)", thickness);
        window.Type("txtEpR(13)", thickness);
    }
    static ClickLabel &Gap(Seen &window, int k) {
        return window.Find<ClickLabel>({"LblNoNervInterm", k});
    }
    static void ClickGap(Seen &window, int k) { window.Click({"LblNoNervInterm", k}); }
    static bool Blue(Seen &window, int k) {
        const QColor colour = Gap(window, k).palette().color(QPalette::WindowText);
        return colour.blue() > colour.red() && colour.blue() > colour.green();
    }
    static bool Bordered(Seen &window, int k) {
        return Gap(window, k).frameShape() != QFrame::NoFrame;
    }
    /// Shows gap k, types and applies it; the first one takes no thickness.
    static void Apply(Seen &window, int k, const char *thickness, const char *gap) {
        ClickGap(window, k);
        if (k > 1) {
            window.Type("TextEprNevure", thickness);
        }
        window.Type("TextEcartNevure", gap);
        window.Click("CmdApply");
    }
    void Ready(Seen &window) {
        PickBoth(window);
        TypeEnds(window, "200", "100", "2");
    }
};

TEST_F(Frmribevol2Test, ShowsItsWordsAndANumberForEachGap) {
    Use([this](Seen &window) {
        EXPECT_EQ(window.Title(), "Full set of ribs with variable spacing");
        EXPECT_EQ(window.Frame("Frame1(0)"), "Major chord ( mm )");
        EXPECT_EQ(window.Frame("Frame1(1)"), "Minor chord ( mm )");
        EXPECT_EQ(window.Frame("FrameNervInterm"), "Intermediate ribs");
        EXPECT_EQ(window.Frame("FrameDimensions"), "Dimensions ( mm )");
        EXPECT_EQ(window.Label("Label1(0)"), "Airfoil");
        EXPECT_EQ(window.Label("Label2(1)"), "Chord");
        for (const char *name : {"LblEprNervureCMax", "LblEprNervureCmin", "LblEprNervure"}) {
            EXPECT_EQ(window.Label(name), "Rib thickness");
        }
        EXPECT_EQ(window.Label("lblstep"), "Distance");
        EXPECT_EQ(window.Label("Label5"), "Click the number of a gap between two ribs");
        EXPECT_EQ(window.Label("LblLongTot"), "Total length :");
        EXPECT_EQ(window.Label("LblLongTotAffich"), "");
        EXPECT_EQ(window.Word("CmdApply"), "Apply");
        EXPECT_EQ(S(Gap(window, 1).text()), "1");
        EXPECT_EQ(S(Gap(window, 2).text()), "2");
        EXPECT_EQ(window.Tip("LblNoNervInterm(2)"), window.Label("Label5"));
        for (int k = 3; k <= 13; ++k) {
            EXPECT_EQ(S(Gap(window, k).text()), "") << k;
            ClickGap(window, k); // answers nothing
        }
        EXPECT_FALSE(window.Shown("FrameDimensions"));
        EXPECT_EQ(window.Text("txtEpR(0)"), "");
        EXPECT_EQ(window.Text("txtEpR(13)"), "");
        EXPECT_EQ(window.Text("txtdefprofevol"), folder.Path("sets"));
    });
}

TEST_F(Frmribevol2Test, GapNumbersLookAsIfTheyCouldBeClicked) {
    Use([this](Seen &window) {
        for (const char *name : {"LblNoNervInterm(1)", "LblNoNervInterm(2)"}) {
            EXPECT_TRUE(window.Find(name).font().underline()) << name;
            EXPECT_EQ(window.Find(name).cursor().shape(), Qt::PointingHandCursor) << name;
        }
        PickBoth(window);
    });
}

TEST_F(Frmribevol2Test, FieldsSwallowWhatIsNoLength) {
    Inches();
    Use([this](Seen &window) {
        PickBoth(window);
        for (const char *name : {"txtcorde(0)", "txtcorde(1)", "txtEpR(0)", "txtEpR(13)"}) {
            window.Type(name, "-a8.1/2%");
            EXPECT_EQ(window.Text(name), "8.1/2") << name;
        }
        ClickGap(window, 2);
        for (const char *name : {"TextEprNevure", "TextEcartNevure"}) {
            window.Type(name, "-a8.1/2%");
            EXPECT_EQ(window.Text(name), "8.1/2") << name;
        }
    });
}

TEST_F(Frmribevol2Test, RefusalsComeInOrderAndLeadToTheirFields) {
    Use([this](Seen &window) {
        const auto info = BoxIcon::information;
        const auto warning = BoxIcon::warning;
        Refused(window, "Please choose the airfoil of the Major chord", info, "");
        Pick(window, 0, Diamond("root", 0.1));
        Refused(window, "Please choose the airfoil of the Minor chord", info, "");
        Pick(window, 1, Diamond("tip", 0.1));
        Refused(window, "Please enter the major chord", info, "txtcorde(0)");
        window.Type("txtcorde(0)", "1999.01");
        Refused(window, "Distance 1999 mm !", warning, "txtcorde(0)");
        window.Type("txtcorde(0)", "998");
        Refused(window, "Please enter the minor chord", info, "txtcorde(1)");
        window.Type("txtcorde(1)", "999.5");
        Refused(window, "Distance 1999 mm !", warning, "txtcorde(1)");
        window.Type("txtcorde(1)", "999");
        Refused(window, "The major chord is smaller than the minor chord", info, "txtcorde(0)");
        window.Type("txtcorde(0)", "1999");
        Refused(window, "Please enter the thickness of the major rib", info, "txtEpR(0)");
        window.Type("txtEpR(0)", "2");
        Refused(window, "Please enter the thickness of the minor rib", info, "txtEpR(13)");
        window.Type("txtEpR(13)", "2");
        Refused(window, "A thickness or a distance is zero. Every gap wants both, and Apply", info,
                "");
    });
    EXPECT_TRUE(Files().empty());
}

TEST_F(Frmribevol2Test, AGapIsShownOnlyWhenTheEndsAreValid) {
    Use([this](Seen &window) {
        platform.Expect(BoxAnswer::ok, {.text = "Please choose the airfoil of the Major chord"});
        ClickGap(window, 1);
        EXPECT_FALSE(window.Shown("FrameDimensions"));
        EXPECT_FALSE(Blue(window, 1));
        Ready(window);
        ClickGap(window, 1);
        EXPECT_TRUE(window.Shown("FrameDimensions"));
        EXPECT_TRUE(Blue(window, 1));
        EXPECT_FALSE(Bordered(window, 1));
        EXPECT_FALSE(Blue(window, 2));
    });
}

TEST_F(Frmribevol2Test, TheFirstGapBeginsAtTheRootAndTheLastEndsAtTheTip) {
    programme.rib.jeu.NbNervInter = 2;
    Use([this](Seen &window) {
        Ready(window);
        ClickGap(window, 1);
        EXPECT_EQ(window.Label("Label3(0)"), "Major chord ( mm )");
        EXPECT_EQ(window.Label("Label3(1)"), "Rib 1");
        EXPECT_FALSE(window.Enabled("TextEprNevure"));
        EXPECT_FALSE(window.Enabled("LblEprNervure"));
        EXPECT_EQ(window.Text("TextEprNevure"), "2");
        ClickGap(window, 2);
        EXPECT_EQ(window.Label("Label3(0)"), "Rib 1");
        EXPECT_EQ(window.Label("Label3(1)"), "Rib 2");
        EXPECT_TRUE(window.Enabled("TextEprNevure"));
        EXPECT_EQ(window.Text("TextEprNevure"), "");
        ClickGap(window, 3);
        EXPECT_EQ(window.Label("Label3(0)"), "Rib 2");
        EXPECT_EQ(window.Label("Label3(1)"), "Minor chord ( mm )");
    });
}

TEST_F(Frmribevol2Test, AKeyReachesAGap) {
    Use([this](Seen &window) {
        Ready(window);
        Gap(window, 2).setFocus();
        window.Key({"LblNoNervInterm", 2}, Qt::Key_Space);
        EXPECT_TRUE(window.Shown("FrameDimensions"));
        EXPECT_EQ(window.Label("Label3(0)"), "Rib 1");
    });
}

TEST_F(Frmribevol2Test, ApplyMarksTheGapKeepsItsTextsAndSumsThePanel) {
    Use([this](Seen &window) {
        Ready(window);
        Apply(window, 1, "", "50");
        EXPECT_TRUE(Blue(window, 1));
        EXPECT_TRUE(Bordered(window, 1));
        EXPECT_FALSE(Bordered(window, 2));
        Apply(window, 2, "3", "60.5");
        // The panel: 2 + 50 + 3 + 60.5 + 2.
        EXPECT_EQ(window.Label("LblLongTotAffich"), " 117.5 mm");
        ClickGap(window, 1);
        EXPECT_EQ(window.Text("TextEcartNevure"), "50");
        ClickGap(window, 2);
        EXPECT_EQ(window.Text("TextEcartNevure"), "60.5");
        EXPECT_EQ(window.Text("TextEprNevure"), "3");
    });
}

TEST_F(Frmribevol2Test, ReturnInTheFieldsOfAGapApplies) {
    Use([this](Seen &window) {
        Ready(window);
        Apply(window, 1, "", "50");
        Apply(window, 2, "3", "60.5");
        window.Type("TextEprNevure", "4");
        window.Key("TextEprNevure", Qt::Key_Return);
        EXPECT_EQ(window.Label("LblLongTotAffich"), " 118.5 mm");
        window.Type("TextEcartNevure", "70");
        window.Key("TextEcartNevure", Qt::Key_Return);
        EXPECT_EQ(window.Label("LblLongTotAffich"), " 128. mm");
        EXPECT_THAT(Files(), ElementsAre());
        // Elsewhere it is Compute.
        window.GoTo("txtcorde(0)");
        platform.Expect(BoxAnswer::ok);
        window.Key("txtcorde(0)", Qt::Key_Return);
        EXPECT_EQ(Files().size(), 4U);
    });
}

TEST_F(Frmribevol2Test, TheNumberOfTheGapThatIsShownIsBold) {
    Use([this](Seen &window) {
        Ready(window);
        const auto bold = [&window](int k) { return Gap(window, k).font().bold(); };
        EXPECT_FALSE(bold(1) || bold(2));
        Apply(window, 1, "", "50");
        EXPECT_TRUE(bold(1) && !bold(2));
        ClickGap(window, 2);
        EXPECT_TRUE(!bold(1) && bold(2));
        window.Type("txtcorde(1)", "");
        platform.Expect(BoxAnswer::ok);
        ClickGap(window, 1);
        EXPECT_FALSE(bold(1) || bold(2));
    });
}

TEST_F(Frmribevol2Test, ReturnOnAButtonPressesThatButton) {
    Use([this](Seen &window) {
        view.picked = Diamond("root", 0.1);
        window.GoTo("cmdouvrir(0)");
        window.Key("cmdouvrir(0)", Qt::Key_Return);
        EXPECT_EQ(window.Text("txtprofil(0)"), "root");
    });
}

TEST_F(Frmribevol2Test, AGapThatCannotBeComputedIsToldAndNotMarked) {
    Inches();
    Use([this](Seen &window) {
        PickBoth(window);
        TypeEnds(window, "8", "4", "1/8");
        ClickGap(window, 1);
        window.Type("TextEcartNevure", "1/0");
        ExpectReport("Error # 11 ");
        window.Click("CmdApply");
        EXPECT_FALSE(Bordered(window, 1));
        EXPECT_TRUE(window.IsOpen());
    });
}

TEST_F(Frmribevol2Test, ComputingWantsEveryGapApplied) {
    Use([this](Seen &window) {
        Ready(window);
        Apply(window, 1, "", "50");
        Refused(window, "A thickness or a distance is zero. Every gap wants both, and Apply",
                BoxIcon::information, "");
    });
    // Also those of the set before, whose texts are still there.
    programme.rib.jeu.EprNerv.fill(2);
    programme.rib.jeu.EcartNerv.fill(50);
    programme.rib.jeu.EcartNervAfich.fill("50");
    Use([this](Seen &window) {
        Ready(window);
        Refused(window, "A thickness or a distance is zero. Every gap wants both, and Apply",
                BoxIcon::information, "");
        ClickGap(window, 1);
        EXPECT_EQ(window.Text("TextEcartNevure"), "50");
    });
    EXPECT_TRUE(Files().empty());
}

TEST_F(Frmribevol2Test, WritesAllRibsAndThenTheSummaryAndStays) {
    const Left left = Use([this](Seen &window) {
        Ready(window);
        Apply(window, 1, "", "48");
        Apply(window, 2, "2", "148");
        platform.Expect(BoxAnswer::ok,
                        // Centre lines 50 and 150 mm apart: a quarter of the way.
                        {.text = AllOf(HasSubstr("root&tipR02.dat Rib 2 Chord :  175.00\n"),
                                       HasSubstr("Summary root&tip_200_100_3.txt")),
                         .title = window.Title(),
                         .meanwhile = [this] { EXPECT_EQ(Files().size(), 3U); }});
        window.Click("cmdcalcul");
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_THAT(Files(), ElementsAre("root&tipR01.dat", "root&tipR02.dat", "root&tipR03.dat",
                                     "root&tip_200_100_3.txt"));
    EXPECT_THAT(folder.Bytes("sets/root&tipR02.dat"), HasSubstr("\r\n0.5000000   0.0875000\r\n"));
    EXPECT_EQ(Asked("affclear"), 0);
}

TEST_F(Frmribevol2Test, AFolderThatIsNotThereIsToldAndClosesTheWindow) {
    programme.settings.repertoires.RepProfilevol = folder.Path("nowhere");
    const Left left = Use([this](Seen &window) {
        Ready(window);
        Apply(window, 1, "", "48");
        Apply(window, 2, "2", "48");
        ExpectReport("Folder of the rib sets was not found.\n");
        window.Click("cmdcalcul");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_EQ(Asked("affclear"), 1);
}

TEST_F(Frmribevol2Test, CloseEscapeAndTheCloseButtonClearAsTheCommandDoes) {
    for (const int way : {0, 1, 2}) {
        view.asked.clear();
        const Left left = Use([way](Seen &window) {
            if (way == 0) {
                window.Click("cmdfermer");
            } else if (way == 1) {
                window.Key("txtcorde(0)", Qt::Key_Escape);
            } else {
                window.Close();
            }
        });
        EXPECT_EQ(left, Left::rejected);
        EXPECT_EQ(view.asked, std::vector<std::string>{"mnu_affclear_Click"});
    }
}

TEST_F(Frmribevol2Test, TabGoesThroughTheControlsInTheirOrder) {
    Use([this](Seen &window) {
        Ready(window);
        ClickGap(window, 2);
        window.GoTo("txtcorde(0)");
        window.ExpectTabs({"txtEpR(0)", "cmdouvrir(1)", "txtcorde(1)", "txtEpR(13)",
                           "LblNoNervInterm(1)", "LblNoNervInterm(2)", "TextEprNevure",
                           "TextEcartNevure", "CmdApply", "cmdrechercheevol", "cmdcalcul",
                           "cmdfermer", "cmdaide", "cmdouvrir(0)", "txtcorde(0)"});
    });
}

TEST_F(Frmribevol2Test, TheBlueOfAGapCanBeReadInADarkTheme) {
    Use([this](Seen &window) {
        Ready(window);
        ClickGap(window, 1);
        QPalette dark;
        dark.setColor(QPalette::Window, QColor(30, 30, 30));
        dark.setColor(QPalette::WindowText, QColor(235, 235, 235));
        window.Window().setPalette(dark);
        EXPECT_TRUE(Blue(window, 1));
        EXPECT_GT(Gap(window, 1).palette().color(QPalette::WindowText).lightness(), 150);
    });
}

TEST_F(Frmribevol2Test, HelpOpensItsPage) {
    Use([](Seen &window) { window.Click("cmdaide"); });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{610}));
}

TEST_F(Frmribevol2Test, NothingIsCutInAnyLanguageUnitOrSize) {
    programme.rib.jeu.NbNervInter = 12;
    ExpectNothingCutAnywhere();
}

// The command.

class VariableSetCommand : public testing::Test {
  protected:
    VariableSetCommand() { world.Open(); }
    /// Answers the questions for the number; for how many ribs the window came, 0 when it didn't.
    int Comes(const std::deque<std::optional<std::string>> &answers) {
        world.platform.texts_expected = answers;
        int ribs = 0;
        BringsDialog([this] { world.Action("mnu_outilevolut2")->trigger(); },
                     [this, &ribs](Seen &dialog) {
                         EXPECT_EQ(dialog.Name(), "frmribevol2");
                         ribs = world.programme.rib.jeu.NbNervInter;
                     });
        EXPECT_TRUE(world.platform.texts_expected.empty());
        return ribs;
    }

    WindowWorld world;
};

TEST_F(VariableSetCommand, AnswersOfOneToTwelveOpenTheWindow) {
    EXPECT_EQ(Comes({"1"}), 1);
    EXPECT_EQ(Comes({"12"}), 12);
}

TEST_F(VariableSetCommand, ZeroNothingAndCancelEndIt) {
    EXPECT_EQ(Comes({"0"}), 0);
    EXPECT_EQ(Comes({""}), 0);
    EXPECT_EQ(Comes({std::nullopt}), 0);
    EXPECT_EQ(Comes({"abc"}), 0);
}

TEST_F(VariableSetCommand, AnswersOutOfRangeAreAskedAgain) {
    EXPECT_EQ(Comes({"13", "99999", "-1", "3"}), 3);
    EXPECT_EQ(Comes({"20", "0"}), 0);
}

TEST_F(VariableSetCommand, AsksBeforeChangesOfTheRibAreLost) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.programme.rib.Modifie = true;
    world.platform.Expect(BoxAnswer::no);
    EXPECT_EQ(Comes({}), 0);
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
    // Nor is the rib gone where the number is called off.
    world.platform.Expect(BoxAnswer::yes);
    EXPECT_EQ(Comes({std::nullopt}), 0);
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
    EXPECT_TRUE(world.programme.rib.Modifie);
    world.platform.Expect(BoxAnswer::yes);
    EXPECT_EQ(Comes({"2"}), 2);
    EXPECT_FALSE(world.programme.rib.ProfilCharge);
}

} // namespace
} // namespace loftwing
