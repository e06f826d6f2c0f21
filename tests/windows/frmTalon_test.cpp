#include "features/frmTalon.h"

#include "support/qt_window_world.h"
#include "windows/addon_fixture.h"

#include <QMenu>

namespace loftwing {
namespace {

const char *const kTooLong = "The margins together are longer than the chord : 257 mm > 256 mm";
const char *const kTooLarge = "Beyond the limit : Washout angle 20°";

using FrmTalonTest = AddonTest<frmTalon>;

TEST_F(FrmTalonTest, ShowsItsWordsAndTheDepthOfTheContour) {
    Use([](frmTalon &window) {
        EXPECT_EQ(S(window.windowTitle()), "Rib levelling heel 256  mm");
        EXPECT_EQ(Label(window, "Label1"), "Washout angle : -/+");
        EXPECT_EQ(Word(window, "OptTalon(0)"), "Intra");
        EXPECT_EQ(Word(window, "OptTalon(1)"), "Extra");
        EXPECT_EQ(Tip(window, "OptTalon(0)"), "The heel stands under the lower surface");
        EXPECT_EQ(Tip(window, "OptTalon(1)"), "The heel stands on the upper surface");
        EXPECT_EQ(Tip(window, "txt(3)"),
                  "Enter washout angle  20°. Trailing edge up négative angle");
        EXPECT_EQ(Text(window, "txt(0)"), " 6.50"); // 256 / 32 - 1.5
        EXPECT_EQ(Text(window, "txt(1)"), "0");
        EXPECT_EQ(Text(window, "txt(2)"), "0");
        EXPECT_EQ(Text(window, "txt(3)"), "0");
        EXPECT_EQ(Text(window, "txt(4)"), " 14.50"); // 256 / 16 - 1.5
        EXPECT_EQ(Label(window, "Label2"), "6.50 mm");
        EXPECT_EQ(Label(window, "Label3"), "14.50 mm");
        EXPECT_EQ(Label(window, "lbllongb"), "0 mm");
        EXPECT_EQ(Word(window, "CmdApply"), "Apply");
        EXPECT_EQ(Word(window, "cmdok"), "OK");
        EXPECT_EQ(Word(window, "cmdannuler"), "Cancel");
        EXPECT_EQ(Word(window, "cmdaide"), "Help");
    });
}

TEST_F(FrmTalonTest, SpeaksFrenchAndInches) {
    Language("French");
    Inches();
    programme.rib.talon.TalonBAAfich = "1.1/2";
    programme.rib.vrillage = -2.5F;
    Use([](frmTalon &window) {
        EXPECT_EQ(S(window.windowTitle()), "Talon de calage 8  in");
        EXPECT_EQ(Label(window, "Label1"), "Angle de vrillage : -/+");
        EXPECT_EQ(Word(window, "OptTalon(1)"), "Extrados");
        EXPECT_EQ(Text(window, "txt(0)"), "0"); // washed out, so nothing is proposed
        EXPECT_EQ(Text(window, "txt(3)"), "2.5");
        EXPECT_EQ(Label(window, "lbllongb"), "1.1/2 in");
        EXPECT_EQ(Word(window, "CmdApply"), "Appliquer");
    });
}

TEST_F(FrmTalonTest, ShowsTheSideOfTheHeelOnly) {
    Use([this](frmTalon &window) {
        const auto expect_side = [&](bool extra) {
            EXPECT_EQ(Chosen(window, "OptTalon(1)"), extra);
            EXPECT_EQ(Chosen(window, "OptTalon(0)"), !extra);
            EXPECT_EQ(Shown(window, "txt(4)"), extra);
            EXPECT_EQ(Shown(window, "Label3"), extra);
            EXPECT_EQ(Shown(window, "txt(0)"), !extra);
            EXPECT_EQ(Shown(window, "Label2"), !extra);
            EXPECT_EQ(programme.rib.talon.OptTalon, extra ? 1 : 0);
        };
        expect_side(false);
        EXPECT_TRUE(FocusedAndSelected(Box(window, "txt(0)")));
        Click(window, "OptTalon(1)");
        expect_side(true);
        Click(window, "OptTalon(0)");
        expect_side(false);
    });
}

TEST_F(FrmTalonTest, OpensOnTheSideOfTheRib) {
    programme.rib.talon.OptTalon = 1;
    Use([](frmTalon &window) {
        EXPECT_TRUE(Chosen(window, "OptTalon(1)"));
        EXPECT_TRUE(Shown(window, "txt(4)"));
        EXPECT_TRUE(FocusedAndSelected(Box(window, "txt(4)")));
    });
}

TEST_F(FrmTalonTest, FieldsSwallowWhatIsNoLengthOrAngle) {
    Use([](frmTalon &window) {
        for (const char *name : {"txt(0)", "txt(1)", "txt(2)"}) {
            Type(window, name, "a1-2/,.5%");
            EXPECT_EQ(Text(window, name), "12.5") << name;
        }
        Type(window, "txt(3)", "-a1/.5%");
        EXPECT_EQ(Text(window, "txt(3)"), "-1.5");
        Click(window, "OptTalon(1)");
        Type(window, "txt(4)", "a-2/5");
        EXPECT_EQ(Text(window, "txt(4)"), "25");
    });
}

TEST_F(FrmTalonTest, InInchesAllFieldsTakeASlash) {
    Inches();
    Use([](frmTalon &window) {
        for (const char *name : {"txt(0)", "txt(1)", "txt(2)"}) {
            Type(window, name, "a-1.1/2%");
            EXPECT_EQ(Text(window, name), "1.1/2") << name;
        }
        Type(window, "txt(3)", "-a1/2");
        EXPECT_EQ(Text(window, "txt(3)"), "-1/2");
    });
}

TEST_F(FrmTalonTest, TheTotalFollowsTheTyping) {
    Use([this](frmTalon &window) {
        Type(window, "txt(1)", "30");
        EXPECT_EQ(Label(window, "lbllongb"), "30 mm");
        Type(window, "txt(2)", "12.5");
        EXPECT_EQ(Label(window, "lbllongb"), "42.5 mm");
        Type(window, "txt(1)", "");
        EXPECT_EQ(Label(window, "lbllongb"), "12.5 mm");
        EXPECT_EQ(programme.rib.talon.TalonBAAfich, "0");
        Type(window, "txt(1)", "257");
        EXPECT_EQ(Label(window, "lbllongb"), "12.5 mm");
        EXPECT_EQ(programme.rib.talon.TalonBA, 0);
    });
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(FrmTalonTest, MarginsAreReadAgainstTheChordInPercent) {
    Use([this](frmTalon &window) {
        Box(window, "txt(1)").setText("50%");
        Box(window, "txt(2)").setText("25%");
        EXPECT_EQ(Label(window, "lbllongb"), "192 mm");
        Click(window, "CmdApply");
        EXPECT_EQ(programme.rib.talon.TalonBFAfich, "25%");
        EXPECT_EQ(programme.rib.talon.TalonBF, 64);
    });
}

TEST_F(FrmTalonTest, TypingMarginsBeyondTheChordIsToldAtOnce) {
    Use([this](frmTalon &window) {
        Type(window, "txt(1)", "157");
        Type(window, "txt(2)", "10");
        ExpectBox(kTooLong);
        QTest::keyClicks(&Box(window, "txt(2)"), "0");
        EXPECT_EQ(platform.boxes.size(), 1U);
        EXPECT_EQ(platform.boxes.front().title, S(window.windowTitle()));
        EXPECT_EQ(Label(window, "lbllongb"), "257 mm");
        EXPECT_EQ(Text(window, "txt(2)"), "100");
    });
}

TEST_F(FrmTalonTest, OnlyAnAngleAboveTwentyIsTakenBack) {
    Use([this](frmTalon &window) {
        Type(window, "txt(3)", "2");
        EXPECT_EQ(programme.rib.vrillage, 2.0F);
        ExpectBox(kTooLarge);
        QTest::keyClicks(&Box(window, "txt(3)"), "5");
        EXPECT_EQ(Text(window, "txt(3)"), "20");
        EXPECT_EQ(programme.rib.vrillage, -20.0F);
        // Ready to be typed over.
        QTest::keyClicks(&Box(window, "txt(3)"), "-");
        EXPECT_EQ(Text(window, "txt(3)"), "-");
        EXPECT_EQ(programme.rib.vrillage, 0.0F);
        QTest::keyClicks(&Box(window, "txt(3)"), "2");
        ExpectBox(kTooLarge);
        QTest::keyClicks(&Box(window, "txt(3)"), "1");
        EXPECT_EQ(Text(window, "txt(3)"), "20");
        EXPECT_EQ(programme.rib.vrillage, -20.0F);
    });
    EXPECT_EQ(platform.boxes.size(), 2U);
}

TEST_F(FrmTalonTest, ATextThatChangesBehindABoxStartsNoSecondOne) {
    Use([this](frmTalon &window) {
        platform.boxes_expected.push_back(
            {BoxAnswer::ok, [&](const MessageBox &) { Box(window, "txt(3)").setText("99"); }});
        Type(window, "txt(3)", "25");
        EXPECT_EQ(Text(window, "txt(3)"), "20");
    });
    EXPECT_EQ(platform.boxes.size(), 1U);
}

TEST_F(FrmTalonTest, AFractionOfZerothsIsToldAndTheWindowGoesOn) {
    Inches();
    Use([this](frmTalon &window) {
        platform.Expect(BoxAnswer::ok);
        Type(window, "txt(1)", "1/0");
        EXPECT_EQ(platform.boxes.back().title, " Talon/Txt");
        platform.Expect(BoxAnswer::ok);
        Click(window, "cmdok");
        EXPECT_EQ(platform.boxes.back().title, " Talon/OK");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(programme.rib.TypeGabarit, 0);
        Type(window, "txt(1)", "1");
        Click(window, "cmdok");
        EXPECT_FALSE(window.isVisible());
    });
    EXPECT_EQ(programme.rib.talon.TalonBA, 25.4);
}

TEST_F(FrmTalonTest, ApplyPutsTheHeelOnTheRibAndStays) {
    const Left left = Use([this](frmTalon &window) {
        Type(window, "txt(0)", "12");
        Type(window, "txt(1)", "30");
        Type(window, "txt(2)", "20");
        Type(window, "txt(3)", "2.5");
        EXPECT_EQ(Redraws(), 0);
        Click(window, "CmdApply");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(Redraws(), 1);
        EXPECT_EQ(Text(window, "txt(3)"), "2.5");
    });
    EXPECT_EQ(left, Left::open);
    const RibModel &rib = programme.rib;
    EXPECT_EQ(rib.TypeGabarit, kGabaritTalon);
    EXPECT_EQ(rib.talon.TalonIntra, 12);
    EXPECT_EQ(rib.talon.TalonLong, 50);
    EXPECT_EQ(rib.talon.TalonExtra, -14.5);
    EXPECT_EQ(rib.vrillage, -2.5F);
    EXPECT_EQ(rib.texte.InsTexte, "e205 Washout -2.5° Chord : 256");
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(FrmTalonTest, ReturnIsOk) {
    const Left left = Use([](frmTalon &window) {
        Click(window, "OptTalon(1)");
        Type(window, "txt(4)", "15");
        QTest::keyClick(&Box(window, "txt(4)"), Qt::Key_Return);
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_FALSE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.talon.TalonExtra, -15);
    EXPECT_EQ(programme.rib.talon.OptTalon, 1);
    EXPECT_EQ(programme.rib.TypeGabarit, kGabaritTalon);
    EXPECT_EQ(Redraws(), 1);
}

TEST_F(FrmTalonTest, TheSignOfTheWashoutComesBackAsTyped) {
    Use([](frmTalon &window) {
        Type(window, "txt(3)", "-3");
        Click(window, "cmdok");
    });
    EXPECT_EQ(programme.rib.vrillage, 3.0F);
    Use([](frmTalon &window) {
        EXPECT_EQ(Text(window, "txt(3)"), "-3");
        Click(window, "cmdok");
    });
    EXPECT_EQ(programme.rib.vrillage, 3.0F);
}

TEST_F(FrmTalonTest, OkRefusesMarginsBeyondTheChordAndPointsToThem) {
    const Left left = Use([this](frmTalon &window) {
        Type(window, "txt(2)", "257"); // counts as 0 while it is typed
        EXPECT_TRUE(platform.boxes.empty());
        Box(window, "txt(1)").setFocus();
        ExpectBox(kTooLong);
        Click(window, "cmdok");
        EXPECT_TRUE(FocusedAndSelected(Box(window, "txt(2)")));
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(programme.rib.talon.TalonBFAfich, "257");
    EXPECT_EQ(programme.rib.TypeGabarit, 0);
    EXPECT_EQ(Redraws(), 0);
}

TEST_F(FrmTalonTest, AfterARefusalCancelRepeatsItUntilTheMarginsFit) {
    const Left left = Use([this](frmTalon &window) {
        Type(window, "txt(1)", "257");
        for (const char *button : {"CmdApply", "cmdannuler"}) {
            ExpectBox(kTooLong);
            Click(window, button);
        }
        ExpectBox(kTooLong);
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(Redraws(), 0);
        Type(window, "txt(1)", "25");
        Click(window, "CmdApply");
        Click(window, "cmdannuler");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_TRUE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.TypeGabarit, kGabaritTalon);
}

TEST_F(FrmTalonTest, AfterARefusalMarginsThatFitAgainCanBeCancelled) {
    const Left left = Use([this](frmTalon &window) {
        Type(window, "txt(1)", "257");
        ExpectBox(kTooLong);
        Click(window, "CmdApply");
        Type(window, "txt(1)", "25");
        Click(window, "cmdannuler");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_EQ(programme.rib.TypeGabarit, 0);
    EXPECT_EQ(programme.rib.talon.TalonBAAfich, "0");
}

TEST_F(FrmTalonTest, CancelLeavesTheRibWithoutAHeel) {
    programme.rib.Modifie = true;
    programme.rib.TypeGabarit = kGabaritMousse;
    const Left left = Use([](frmTalon &window) {
        Type(window, "txt(0)", "20");
        Click(window, "cmdannuler");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_TRUE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.TypeGabarit, 0);
    EXPECT_EQ(programme.rib.talon.TalonIntraAfich, " 6.50");
    EXPECT_EQ(Redraws(), 1);
}

TEST_F(FrmTalonTest, EscapeAndTheClosingButtonAreCancels) {
    for (const bool escape : {true, false}) {
        programme.rib.TypeGabarit = kGabaritMousse;
        programme.rib.Annule = false;
        const Left left = Use([escape](frmTalon &window) {
            if (escape) {
                QTest::keyClick(&Box(window, "txt(0)"), Qt::Key_Escape);
            } else {
                window.close();
            }
        });
        EXPECT_EQ(left, Left::rejected);
        EXPECT_TRUE(programme.rib.Annule);
        EXPECT_EQ(programme.rib.TypeGabarit, 0);
    }
}

TEST_F(FrmTalonTest, CancelPutsBackWhatWasTypedSinceTheLastApply) {
    const Left left = Use([this](frmTalon &window) {
        Type(window, "txt(0)", "9");
        Type(window, "txt(1)", "157");
        Type(window, "txt(3)", "3");
        Click(window, "CmdApply");
        EXPECT_EQ(programme.rib.vrillage, -3.0F);
        Type(window, "txt(3)", "5");
        EXPECT_EQ(programme.rib.vrillage, 5.0F); // typed, not yet applied
        Click(window, "OptTalon(1)");
        Type(window, "txt(2)", "10");
        ExpectBox(kTooLong);
        QTest::keyClicks(&Box(window, "txt(2)"), "0");
        Click(window, "cmdannuler");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_EQ(Redraws(), 2);
    EXPECT_EQ(programme.rib.TypeGabarit, kGabaritTalon);
    EXPECT_EQ(programme.rib.vrillage, -3.0F);
    EXPECT_EQ(programme.rib.talon.OptTalon, 0);
    EXPECT_EQ(programme.rib.talon.TalonLong, 157.0);
}

TEST_F(FrmTalonTest, AStoredTextThatIsNoLengthCanBePutRight) {
    Inches();
    programme.rib.talon.TalonBAAfich = "1/0";
    platform.Expect(BoxAnswer::ok);
    const Left left = Use([](frmTalon &window) {
        EXPECT_EQ(Text(window, "txt(1)"), "1/0");
        Type(window, "txt(1)", "1/2");
        Click(window, "cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(platform.boxes.at(0).title, " Talon/Load");
    EXPECT_EQ(programme.rib.talon.TalonBA, 12.7);
}

TEST_F(FrmTalonTest, ARibThatIsClearedByItsRedrawIsLeftAlone) {
    class ClearingView : public NotedView {
      public:
        std::function<void()> clear;
        void affiche() override { clear(); }
    } clearing;
    frmTalon window(programme, clearing, nullptr);
    clearing.clear = [&] {
        programme.rib.ProfilCharge = false;
        programme.rib.Modifie = false;
        window.done(QDialog::Rejected);
    };
    window.show();
    Click(window, "cmdok");
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmTalonTest, TabGoesThroughTheFieldsInTheirOrder) {
    Use([](frmTalon &window) {
        ExpectTabs(window, {"txt(1)", "txt(2)", "txt(3)", "CmdApply", "cmdok", "cmdannuler",
                            "cmdaide", "OptTalon(0)", "txt(0)"});
        Click(window, "OptTalon(1)");
        Box(window, "txt(4)").setFocus();
        ExpectTabs(window, {"txt(1)"});
    });
}

TEST_F(FrmTalonTest, HelpOpensItsPage) {
    Use([](frmTalon &window) {
        Click(window, "cmdaide");
        QTest::keyClick(&Box(window, "txt(0)"), Qt::Key_F1);
    });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{40, 40}));
}

TEST_F(FrmTalonTest, NothingIsCutInAnyLanguageUnitOrSize) {
    ExpectNothingCutAnywhere();
    programme.rib.talon.OptTalon = 1;
    ExpectNothingCutAnywhere();
}

// The command.

class HeelCommandTest : public testing::Test {
  protected:
    HeelCommandTest() { world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat")); }

    void Open(const std::function<void(QDialog &)> &user) {
        InNextDialog(user);
        world.Action("mnu_profilTalon")->trigger();
    }
    static void Click(QDialog &dialog, const char *name) {
        QTest::mouseClick(dialog.findChild<QPushButton *>(name), Qt::LeftButton);
    }
    static void Fill(QDialog &dialog, const char *name, const char *text) {
        dialog.findChild<QLineEdit *>(name)->setText(text);
    }
    RibModel &Rib() { return world.programme.rib; }

    WindowWorld world;
};

TEST_F(HeelCommandTest, OpensWithoutTemplateAndWithTheLayoutMenuDead) {
    Rib().TypeGabarit = kGabaritMousse;
    Open([this](QDialog &dialog) {
        EXPECT_EQ(dialog.objectName(), "frmTalon");
        EXPECT_EQ(Rib().TypeGabarit, 0);
        EXPECT_FALSE(world.Action("mnu_param")->isEnabled());
        Click(dialog, "cmdannuler");
    });
    EXPECT_TRUE(world.Action("mnu_param")->isEnabled());
    EXPECT_EQ(Rib().TypeGabarit, 0);
}

TEST_F(HeelCommandTest, OkKeepsTheHeightThatWasTyped) {
    Open([](QDialog &dialog) {
        Fill(dialog, "txt(0)", "25");
        Click(dialog, "cmdok");
    });
    EXPECT_EQ(Rib().talon.TalonIntraAfich, "25");
    EXPECT_EQ(Rib().talon.TalonIntra, 25);
    EXPECT_EQ(Rib().TypeGabarit, kGabaritTalon);
    EXPECT_TRUE(world.Action("mnu_param")->isEnabled());
    Open([](QDialog &dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit *>("txt(0)")->text(), "25");
        Click(dialog, "cmdok");
    });
}

TEST_F(HeelCommandTest, OkMakesTheLabelOfTheRibAnew) {
    Open([](QDialog &dialog) {
        Fill(dialog, "txt(3)", "2");
        Click(dialog, "cmdok");
    });
    EXPECT_EQ(Rib().texte.InsTexte, "naca2412 Washout -2° Chord : 200");
    Open([](QDialog &dialog) {
        Fill(dialog, "txt(3)", "0");
        Click(dialog, "cmdok");
    });
    EXPECT_EQ(Rib().texte.InsTexte, "naca2412 Chord : 200");
}

TEST_F(HeelCommandTest, CancelLeavesTheText) {
    Rib().texte.InsTexte = "old";
    Open([](QDialog &dialog) { Click(dialog, "cmdannuler"); });
    EXPECT_EQ(Rib().texte.InsTexte, "old");
}

TEST_F(HeelCommandTest, InASpecialViewTheLayoutMenuStaysDead) {
    world.Action("mnu_param")->setEnabled(false);
    Open([](QDialog &dialog) { Click(dialog, "cmdannuler"); });
    EXPECT_FALSE(world.Action("mnu_param")->isEnabled());
}

TEST_F(HeelCommandTest, ARibThatWasClearedMeanwhileIsLeftAlone) {
    Open([this](QDialog &) { world.window->affclear(); });
    EXPECT_FALSE(world.Action("mnu_param")->isEnabled());
    EXPECT_EQ(Rib().texte.InsTexte, "");
    EXPECT_FALSE(Rib().Modifie);
}

} // namespace
} // namespace loftwing
