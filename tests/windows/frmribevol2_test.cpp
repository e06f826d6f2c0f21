#include "utilities/frmribevol2.h"

#include "windows/rib_set_fixture.h"

#include <gmock/gmock.h>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Frmribevol2Test : public RibSetTest<frmribevol2> {
  protected:
    Frmribevol2Test() { programme.rib.jeu.NbNervInter = 1; }

    static void TypeEnds(frmribevol2 &window, const char *major, const char *minor,
                         const char *thickness) {
        Type(window, "txtcorde(0)", major);
        Type(window, "txtcorde(1)", minor);
        Type(window, "txtEpR(0)", thickness);
        Type(window, "txtEpR(13)", thickness);
    }
    static ClickLabel &Gap(frmribevol2 &window, int k) {
        return Find<ClickLabel>(window, ("LblNoNervInterm(" + std::to_string(k) + ")").c_str());
    }
    static void ClickGap(frmribevol2 &window, int k) {
        QTest::mouseClick(&Gap(window, k), Qt::LeftButton);
    }
    static bool Blue(frmribevol2 &window, int k) {
        const QColor colour = Gap(window, k).palette().color(QPalette::WindowText);
        return colour.blue() > colour.red() && colour.blue() > colour.green();
    }
    static bool Bordered(frmribevol2 &window, int k) {
        return Gap(window, k).frameShape() != QFrame::NoFrame;
    }
    /// Shows gap k, types and applies it; the first one takes no thickness.
    static void Apply(frmribevol2 &window, int k, const char *thickness, const char *gap) {
        ClickGap(window, k);
        if (k > 1) {
            Type(window, "TextEprNevure", thickness);
        }
        Type(window, "TextEcartNevure", gap);
        Click(window, "CmdApply");
    }
    void Ready(frmribevol2 &window) {
        PickBoth(window);
        TypeEnds(window, "200", "100", "2");
    }
};

TEST_F(Frmribevol2Test, ShowsItsWordsAndANumberForEachGap) {
    Use([this](frmribevol2 &window) {
        EXPECT_EQ(S(window.windowTitle()), "Full set of ribs with variable spacing");
        EXPECT_EQ(S(Find<QGroupBox>(window, "Frame1(0)").title()), "Major chord ( mm )");
        EXPECT_EQ(S(Find<QGroupBox>(window, "Frame1(1)").title()), "Minor chord ( mm )");
        EXPECT_EQ(S(Find<QGroupBox>(window, "FrameNervInterm").title()), "Intermediate ribs");
        EXPECT_EQ(S(Find<QGroupBox>(window, "FrameDimensions").title()), "Dimensions ( mm )");
        EXPECT_EQ(Label(window, "Label1(0)"), "Airfoil");
        EXPECT_EQ(Label(window, "Label2(1)"), "Chord");
        for (const char *name : {"LblEprNervureCMax", "LblEprNervureCmin", "LblEprNervure"}) {
            EXPECT_EQ(Label(window, name), "Rib thickness");
        }
        EXPECT_EQ(Label(window, "lblstep"), "Distance");
        EXPECT_EQ(Label(window, "Label5"), "Click the number of a gap between two ribs");
        EXPECT_EQ(Label(window, "LblLongTot"), "Total length :");
        EXPECT_EQ(Label(window, "LblLongTotAffich"), "");
        EXPECT_EQ(Word(window, "CmdApply"), "Apply");
        EXPECT_EQ(S(Gap(window, 1).text()), "1");
        EXPECT_EQ(S(Gap(window, 2).text()), "2");
        EXPECT_EQ(Tip(window, "LblNoNervInterm(2)"), Label(window, "Label5"));
        for (int k = 3; k <= 13; ++k) {
            EXPECT_EQ(S(Gap(window, k).text()), "") << k;
            ClickGap(window, k); // answers nothing
        }
        EXPECT_FALSE(Shown(window, "FrameDimensions"));
        EXPECT_EQ(Text(window, "txtEpR(0)"), "");
        EXPECT_EQ(Text(window, "txtEpR(13)"), "");
        EXPECT_EQ(Text(window, "txtdefprofevol"), folder.Path("sets"));
    });
}

TEST_F(Frmribevol2Test, FieldsSwallowWhatIsNoLength) {
    Inches();
    Use([this](frmribevol2 &window) {
        PickBoth(window);
        for (const char *name : {"txtcorde(0)", "txtcorde(1)", "txtEpR(0)", "txtEpR(13)"}) {
            Type(window, name, "-a8.1/2%");
            EXPECT_EQ(Text(window, name), "8.1/2") << name;
        }
        ClickGap(window, 2);
        for (const char *name : {"TextEprNevure", "TextEcartNevure"}) {
            Type(window, name, "-a8.1/2%");
            EXPECT_EQ(Text(window, name), "8.1/2") << name;
        }
    });
}

TEST_F(Frmribevol2Test, RefusalsComeInOrderAndLeadToTheirFields) {
    Use([this](frmribevol2 &window) {
        const auto info = BoxIcon::information;
        const auto warning = BoxIcon::warning;
        Refused(window, "Please choose the airfoil of the Major chord", info, "");
        Pick(window, 0, Diamond("root", 0.1));
        Refused(window, "Please choose the airfoil of the Minor chord", info, "");
        Pick(window, 1, Diamond("tip", 0.1));
        Refused(window, "Please enter the major chord", info, "txtcorde(0)");
        Type(window, "txtcorde(0)", "1999.01");
        Refused(window, "Distance 1999 mm !", warning, "txtcorde(0)");
        Type(window, "txtcorde(0)", "998");
        Refused(window, "Please enter the minor chord", info, "txtcorde(1)");
        Type(window, "txtcorde(1)", "999.5");
        Refused(window, "Distance 1999 mm !", warning, "txtcorde(1)");
        Type(window, "txtcorde(1)", "999");
        Refused(window, "The major chord is smaller than the minor chord", info, "txtcorde(0)");
        Type(window, "txtcorde(0)", "1999");
        Refused(window, "Please enter the thickness of the major rib", info, "txtEpR(0)");
        Type(window, "txtEpR(0)", "2");
        Refused(window, "Please enter the thickness of the minor rib", info, "txtEpR(13)");
        Type(window, "txtEpR(13)", "2");
        Refused(window, "A thickness or a distance is zero. Every gap wants both, and Apply", info,
                "");
    });
    EXPECT_TRUE(Files().empty());
}

TEST_F(Frmribevol2Test, AGapIsShownOnlyWhenTheEndsAreValid) {
    Use([this](frmribevol2 &window) {
        ExpectBox("Please choose the airfoil of the Major chord");
        ClickGap(window, 1);
        EXPECT_FALSE(Shown(window, "FrameDimensions"));
        EXPECT_FALSE(Blue(window, 1));
        Ready(window);
        ClickGap(window, 1);
        EXPECT_TRUE(Shown(window, "FrameDimensions"));
        EXPECT_TRUE(Blue(window, 1));
        EXPECT_FALSE(Bordered(window, 1));
        EXPECT_FALSE(Blue(window, 2));
    });
}

TEST_F(Frmribevol2Test, TheFirstGapBeginsAtTheRootAndTheLastEndsAtTheTip) {
    programme.rib.jeu.NbNervInter = 2;
    Use([this](frmribevol2 &window) {
        Ready(window);
        ClickGap(window, 1);
        EXPECT_EQ(Label(window, "Label3(0)"), "Major chord ( mm )");
        EXPECT_EQ(Label(window, "Label3(1)"), "Rib 1");
        EXPECT_FALSE(Box(window, "TextEprNevure").isEnabled());
        EXPECT_FALSE(Find(window, "LblEprNervure").isEnabled());
        EXPECT_EQ(Text(window, "TextEprNevure"), "2");
        ClickGap(window, 2);
        EXPECT_EQ(Label(window, "Label3(0)"), "Rib 1");
        EXPECT_EQ(Label(window, "Label3(1)"), "Rib 2");
        EXPECT_TRUE(Box(window, "TextEprNevure").isEnabled());
        EXPECT_EQ(Text(window, "TextEprNevure"), "");
        ClickGap(window, 3);
        EXPECT_EQ(Label(window, "Label3(0)"), "Rib 2");
        EXPECT_EQ(Label(window, "Label3(1)"), "Minor chord ( mm )");
    });
}

TEST_F(Frmribevol2Test, AKeyReachesAGap) {
    Use([this](frmribevol2 &window) {
        Ready(window);
        Gap(window, 2).setFocus();
        QTest::keyClick(&Gap(window, 2), Qt::Key_Space);
        EXPECT_TRUE(Shown(window, "FrameDimensions"));
        EXPECT_EQ(Label(window, "Label3(0)"), "Rib 1");
    });
}

TEST_F(Frmribevol2Test, ApplyMarksTheGapKeepsItsTextsAndSumsThePanel) {
    Use([this](frmribevol2 &window) {
        Ready(window);
        Apply(window, 1, "", "50");
        EXPECT_TRUE(Blue(window, 1));
        EXPECT_TRUE(Bordered(window, 1));
        EXPECT_FALSE(Bordered(window, 2));
        Apply(window, 2, "3", "60.5");
        // The panel: 2 + 50 + 3 + 60.5 + 2.
        EXPECT_EQ(Label(window, "LblLongTotAffich"), " 117.5 mm");
        ClickGap(window, 1);
        EXPECT_EQ(Text(window, "TextEcartNevure"), "50");
        ClickGap(window, 2);
        EXPECT_EQ(Text(window, "TextEcartNevure"), "60.5");
        EXPECT_EQ(Text(window, "TextEprNevure"), "3");
    });
}

TEST_F(Frmribevol2Test, ReturnInTheFieldsOfAGapApplies) {
    Use([this](frmribevol2 &window) {
        Ready(window);
        Apply(window, 1, "", "50");
        Apply(window, 2, "3", "60.5");
        Type(window, "TextEprNevure", "4");
        QTest::keyClick(&Box(window, "TextEprNevure"), Qt::Key_Return);
        EXPECT_EQ(Label(window, "LblLongTotAffich"), " 118.5 mm");
        Type(window, "TextEcartNevure", "70");
        QTest::keyClick(&Box(window, "TextEcartNevure"), Qt::Key_Return);
        EXPECT_EQ(Label(window, "LblLongTotAffich"), " 128. mm");
        EXPECT_THAT(Files(), ElementsAre());
        // Elsewhere it is Compute.
        Box(window, "txtcorde(0)").setFocus();
        platform.Expect(BoxAnswer::ok);
        QTest::keyClick(&Box(window, "txtcorde(0)"), Qt::Key_Return);
        EXPECT_EQ(Files().size(), 4U);
    });
}

TEST_F(Frmribevol2Test, TheNumberOfTheGapThatIsShownIsBold) {
    Use([this](frmribevol2 &window) {
        Ready(window);
        const auto bold = [&window](int k) { return Gap(window, k).font().bold(); };
        EXPECT_FALSE(bold(1) || bold(2));
        Apply(window, 1, "", "50");
        EXPECT_TRUE(bold(1) && !bold(2));
        ClickGap(window, 2);
        EXPECT_TRUE(!bold(1) && bold(2));
        Type(window, "txtcorde(1)", "");
        platform.Expect(BoxAnswer::ok);
        ClickGap(window, 1);
        EXPECT_FALSE(bold(1) || bold(2));
    });
}

TEST_F(Frmribevol2Test, ReturnOnAButtonPressesThatButton) {
    Use([this](frmribevol2 &window) {
        view.picked = Diamond("root", 0.1);
        Find(window, "cmdouvrir(0)").setFocus();
        QTest::keyClick(&Find(window, "cmdouvrir(0)"), Qt::Key_Return);
        EXPECT_EQ(Text(window, "txtprofil(0)"), "root");
    });
}

TEST_F(Frmribevol2Test, AGapThatCannotBeComputedIsToldAndNotMarked) {
    Inches();
    Use([this](frmribevol2 &window) {
        PickBoth(window);
        TypeEnds(window, "8", "4", "1/8");
        ClickGap(window, 1);
        Type(window, "TextEcartNevure", "1/0");
        ExpectReport("Error # 11 ");
        Click(window, "CmdApply");
        EXPECT_FALSE(Bordered(window, 1));
        EXPECT_TRUE(window.isVisible());
    });
}

TEST_F(Frmribevol2Test, ComputingWantsEveryGapApplied) {
    Use([this](frmribevol2 &window) {
        Ready(window);
        Apply(window, 1, "", "50");
        Refused(window, "A thickness or a distance is zero. Every gap wants both, and Apply",
                BoxIcon::information, "");
    });
    // Also those of the set before, whose texts are still there.
    programme.rib.jeu.EprNerv.fill(2);
    programme.rib.jeu.EcartNerv.fill(50);
    programme.rib.jeu.EcartNervAfich.fill("50");
    Use([this](frmribevol2 &window) {
        Ready(window);
        Refused(window, "A thickness or a distance is zero. Every gap wants both, and Apply",
                BoxIcon::information, "");
        ClickGap(window, 1);
        EXPECT_EQ(Text(window, "TextEcartNevure"), "50");
    });
    EXPECT_TRUE(Files().empty());
}

TEST_F(Frmribevol2Test, WritesAllRibsAndThenTheSummaryAndStays) {
    const Left left = Use([this](frmribevol2 &window) {
        Ready(window);
        Apply(window, 1, "", "48");
        Apply(window, 2, "2", "148");
        platform.boxes_expected.push_back(
            {BoxAnswer::ok, [this, &window](const MessageBox &box) {
                 EXPECT_EQ(box.title, S(window.windowTitle()));
                 // Centre lines 50 and 150 mm apart: a quarter of the way.
                 EXPECT_THAT(box.text, HasSubstr("root&tipR02.dat Rib 2 Chord :  175.00\n"));
                 EXPECT_THAT(box.text, HasSubstr("Summary root&tip_200_100_3.txt"));
                 EXPECT_EQ(Files().size(), 3U);
             }});
        Click(window, "cmdcalcul");
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_THAT(Files(), ElementsAre("root&tipR01.dat", "root&tipR02.dat", "root&tipR03.dat",
                                     "root&tip_200_100_3.txt"));
    EXPECT_THAT(folder.Bytes("sets/root&tipR02.dat"), HasSubstr("\r\n0.5000000   0.0875000\r\n"));
    EXPECT_EQ(Asked("affclear"), 0);
}

TEST_F(Frmribevol2Test, AFolderThatIsNotThereIsToldAndClosesTheWindow) {
    programme.settings.repertoires.RepProfilevol = folder.Path("nowhere");
    const Left left = Use([this](frmribevol2 &window) {
        Ready(window);
        Apply(window, 1, "", "48");
        Apply(window, 2, "2", "48");
        ExpectReport("Folder of the rib sets was not found.\n");
        Click(window, "cmdcalcul");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_EQ(Asked("affclear"), 1);
}

TEST_F(Frmribevol2Test, CloseEscapeAndTheCloseButtonClearAsTheCommandDoes) {
    for (const int way : {0, 1, 2}) {
        view.asked.clear();
        const Left left = Use([way](frmribevol2 &window) {
            if (way == 0) {
                Click(window, "cmdfermer");
            } else if (way == 1) {
                QTest::keyClick(&Box(window, "txtcorde(0)"), Qt::Key_Escape);
            } else {
                window.close();
            }
        });
        EXPECT_EQ(left, Left::rejected);
        EXPECT_EQ(view.asked, std::vector<std::string>{"mnu_affclear_Click"});
    }
}

TEST_F(Frmribevol2Test, TabGoesThroughTheControlsInTheirOrder) {
    Use([this](frmribevol2 &window) {
        Ready(window);
        ClickGap(window, 2);
        Box(window, "txtcorde(0)").setFocus();
        ExpectTabs(window, {"txtEpR(0)", "cmdouvrir(1)", "txtcorde(1)", "txtEpR(13)",
                            "LblNoNervInterm(1)", "LblNoNervInterm(2)", "TextEprNevure",
                            "TextEcartNevure", "CmdApply", "cmdrechercheevol", "cmdcalcul",
                            "cmdfermer", "cmdaide", "cmdouvrir(0)", "txtcorde(0)"});
    });
}

TEST_F(Frmribevol2Test, TheBlueOfAGapCanBeReadInADarkTheme) {
    Use([this](frmribevol2 &window) {
        Ready(window);
        ClickGap(window, 1);
        QPalette dark;
        dark.setColor(QPalette::Window, QColor(30, 30, 30));
        dark.setColor(QPalette::WindowText, QColor(235, 235, 235));
        window.setPalette(dark);
        EXPECT_TRUE(Blue(window, 1));
        EXPECT_GT(Gap(window, 1).palette().color(QPalette::WindowText).lightness(), 150);
    });
}

TEST_F(Frmribevol2Test, HelpOpensItsPage) {
    Use([](frmribevol2 &window) { Click(window, "cmdaide"); });
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
        QTimer::singleShot(0, world.window.get(), [this, &ribs] {
            if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                EXPECT_EQ(dialog->objectName(), "frmribevol2");
                ribs = world.programme.rib.jeu.NbNervInter;
                dialog->reject();
            }
        });
        world.Action("mnu_outilevolut2")->trigger();
        QApplication::processEvents();
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
    world.platform.Expect(BoxAnswer::yes);
    EXPECT_EQ(Comes({"2"}), 2);
    EXPECT_FALSE(world.programme.rib.ProfilCharge);
}

} // namespace
} // namespace loftwing
