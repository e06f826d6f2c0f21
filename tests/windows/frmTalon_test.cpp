#include "features/frmTalon.h"

#include "support/qt_window_world.h"
#include "windows/addon_fixture.h"

namespace loftwing {
namespace {

const char *const kTooLong = "The margins together are longer than the chord : 257 mm > 256 mm";
const char *const kWashoutTooLarge = "Beyond the limit : Washout angle 20°";

using FrmTalonTest = AddonTest<frmTalon>;

TEST_F(FrmTalonTest, ShowsItsWordsAndTheDepthOfTheContour) {
    Use([](Seen &window) {
        EXPECT_EQ(window.Title(), "Rib levelling heel 256  mm");
        EXPECT_EQ(window.Label("Label1"), "Washout angle : -/+");
        EXPECT_EQ(window.Word("OptTalon(0)"), "Lower surface");
        EXPECT_EQ(window.Word("OptTalon(1)"), "Upper surface");
        EXPECT_EQ(window.Tip("OptTalon(0)"), "The heel stands under the lower surface");
        EXPECT_EQ(window.Tip("OptTalon(1)"), "The heel stands on the upper surface");
        EXPECT_EQ(window.Tip("txt(3)"),
                  "Enter washout angle, 20° at most. Trailing edge up : negative angle, typed here "
                  "without its minus");
        EXPECT_EQ(window.Text("txt(0)"), " 6.50"); // 256 / 32 - 1.5
        EXPECT_EQ(window.Text("txt(1)"), "0");
        EXPECT_EQ(window.Text("txt(2)"), "0");
        EXPECT_EQ(window.Text("txt(3)"), "0");
        EXPECT_EQ(window.Text("txt(4)"), " 14.50"); // 256 / 16 - 1.5
        EXPECT_EQ(window.Label("Label2"), "6.50 mm");
        EXPECT_EQ(window.Label("Label3"), "14.50 mm");
        EXPECT_EQ(window.Label("lbllongb"), "0 mm");
        EXPECT_EQ(window.Word("CmdApply"), "Apply");
        EXPECT_EQ(window.Word("cmdok"), "OK");
        EXPECT_EQ(window.Word("cmdannuler"), "Cancel");
        EXPECT_EQ(window.Word("cmdaide"), "Help");
    });
}

TEST_F(FrmTalonTest, SpeaksFrenchAndInches) {
    Language("French");
    Inches();
    programme.rib.talon.TalonBAAfich = "1.1/2";
    programme.rib.vrillage = -2.5F;
    Use([](Seen &window) {
        EXPECT_EQ(window.Title(), "Talon de calage 8  in");
        EXPECT_EQ(window.Label("Label1"), "Angle de vrillage : -/+");
        EXPECT_EQ(window.Word("OptTalon(1)"), "Extrados");
        EXPECT_EQ(window.Text("txt(0)"), "0"); // washed out, so nothing is proposed
        EXPECT_EQ(window.Text("txt(3)"), "2.5");
        EXPECT_EQ(window.Label("lbllongb"), "1.1/2 in");
        EXPECT_EQ(window.Word("CmdApply"), "Appliquer");
    });
}

TEST_F(FrmTalonTest, ShowsTheSideOfTheHeelOnly) {
    Use([this](Seen &window) {
        const auto expect_side = [&](bool extra) {
            EXPECT_EQ(window.Chosen("OptTalon(1)"), extra);
            EXPECT_EQ(window.Chosen("OptTalon(0)"), !extra);
            EXPECT_EQ(window.Shown("txt(4)"), extra);
            EXPECT_EQ(window.Shown("Label3"), extra);
            EXPECT_EQ(window.Shown("txt(0)"), !extra);
            EXPECT_EQ(window.Shown("Label2"), !extra);
            EXPECT_EQ(programme.rib.talon.OptTalon, extra ? 1 : 0);
        };
        expect_side(false);
        EXPECT_TRUE(window.FocusedAndSelected("txt(0)"));
        window.Click("OptTalon(1)");
        expect_side(true);
        window.Click("OptTalon(0)");
        expect_side(false);
    });
}

TEST_F(FrmTalonTest, OpensOnTheSideOfTheRib) {
    programme.rib.talon.OptTalon = 1;
    Use([](Seen &window) {
        EXPECT_TRUE(window.Chosen("OptTalon(1)"));
        EXPECT_TRUE(window.Shown("txt(4)"));
        EXPECT_TRUE(window.FocusedAndSelected("txt(4)"));
    });
}

TEST_F(FrmTalonTest, FieldsSwallowWhatIsNoLengthOrAngle) {
    Use([](Seen &window) {
        for (const char *name : {"txt(0)", "txt(1)", "txt(2)"}) {
            window.Type(name, "a1-2/;.5%");
            EXPECT_EQ(window.Text(name), "12.5") << name;
        }
        window.Type("txt(3)", "-a1/.5%");
        EXPECT_EQ(window.Text("txt(3)"), "-1.5");
        window.Click("OptTalon(1)");
        window.Type("txt(4)", "a-2/5");
        EXPECT_EQ(window.Text("txt(4)"), "25");
    });
}

TEST_F(FrmTalonTest, InInchesAllFieldsTakeASlash) {
    Inches();
    Use([](Seen &window) {
        for (const char *name : {"txt(0)", "txt(1)", "txt(2)"}) {
            window.Type(name, "a-1.1/2%");
            EXPECT_EQ(window.Text(name), "1.1/2") << name;
        }
        window.Type("txt(3)", "-a1/2");
        EXPECT_EQ(window.Text("txt(3)"), "-1/2");
    });
}

TEST_F(FrmTalonTest, TheTotalFollowsTheTyping) {
    Use([this](Seen &window) {
        window.Type("txt(1)", "30");
        EXPECT_EQ(window.Label("lbllongb"), "30 mm");
        window.Type("txt(2)", "12.5");
        EXPECT_EQ(window.Label("lbllongb"), "42.5 mm");
        window.Type("txt(1)", "");
        EXPECT_EQ(window.Label("lbllongb"), "12.5 mm");
        EXPECT_EQ(programme.rib.talon.TalonBAAfich, "0");
        window.Type("txt(1)", "257");
        EXPECT_EQ(window.Label("lbllongb"), "12.5 mm");
        EXPECT_EQ(programme.rib.talon.TalonBA, 0);
    });
    EXPECT_TRUE(platform.boxes.empty());
}

TEST_F(FrmTalonTest, MarginsAreReadAgainstTheChordInPercent) {
    Use([this](Seen &window) {
        window.Fill("txt(1)", "50%");
        window.Fill("txt(2)", "25%");
        EXPECT_EQ(window.Label("lbllongb"), "192 mm");
        window.Click("CmdApply");
        EXPECT_EQ(programme.rib.talon.TalonBFAfich, "25%");
        EXPECT_EQ(programme.rib.talon.TalonBF, 64);
    });
}

TEST_F(FrmTalonTest, TypingMarginsBeyondTheChordIsToldAtOnce) {
    Use([this](Seen &window) {
        window.Type("txt(1)", "157");
        window.Type("txt(2)", "10");
        platform.Expect(BoxAnswer::ok, {.text = kTooLong});
        window.Keys("txt(2)", "0");
        EXPECT_EQ(platform.boxes.size(), 1U);
        EXPECT_EQ(platform.boxes.front().title, window.Title());
        EXPECT_EQ(window.Label("lbllongb"), "257 mm");
        EXPECT_EQ(window.Text("txt(2)"), "100");
    });
}

TEST_F(FrmTalonTest, OnlyAnAngleAboveTwentyIsTakenBack) {
    Use([this](Seen &window) {
        window.Type("txt(3)", "2");
        EXPECT_EQ(programme.rib.vrillage, 2.0F);
        platform.Expect(BoxAnswer::ok, {.text = kWashoutTooLarge});
        window.Keys("txt(3)", "5");
        EXPECT_EQ(window.Text("txt(3)"), "20");
        EXPECT_EQ(programme.rib.vrillage, -20.0F);
        // Ready to be typed over.
        window.Keys("txt(3)", "-");
        EXPECT_EQ(window.Text("txt(3)"), "-");
        EXPECT_EQ(programme.rib.vrillage, 0.0F);
        window.Keys("txt(3)", "2");
        platform.Expect(BoxAnswer::ok, {.text = kWashoutTooLarge});
        window.Keys("txt(3)", "1");
        EXPECT_EQ(window.Text("txt(3)"), "20");
        EXPECT_EQ(programme.rib.vrillage, -20.0F);
    });
    EXPECT_EQ(platform.boxes.size(), 2U);
}

TEST_F(FrmTalonTest, ATextThatChangesBehindABoxStartsNoSecondOne) {
    Use([this](Seen &window) {
        platform.Expect(BoxAnswer::ok, {.meanwhile = [&] { window.Fill("txt(3)", "99"); }});
        window.Type("txt(3)", "25");
        EXPECT_EQ(window.Text("txt(3)"), "20");
    });
    EXPECT_EQ(platform.boxes.size(), 1U);
}

TEST_F(FrmTalonTest, AFractionOfZerothsIsToldAndTheWindowGoesOn) {
    Inches();
    Use([this](Seen &window) {
        platform.Expect(BoxAnswer::ok);
        window.Type("txt(1)", "1/0");
        EXPECT_EQ(platform.boxes.back().title, " Talon/Txt");
        platform.Expect(BoxAnswer::ok);
        window.Click("cmdok");
        EXPECT_EQ(platform.boxes.back().title, " Talon/OK");
        EXPECT_TRUE(window.IsOpen());
        EXPECT_EQ(programme.rib.TypeGabarit, 0);
        window.Type("txt(1)", "1");
        window.Click("cmdok");
        EXPECT_FALSE(window.IsOpen());
    });
    EXPECT_EQ(programme.rib.talon.TalonBA, 25.4);
}

TEST_F(FrmTalonTest, ApplyPutsTheHeelOnTheRibAndStays) {
    const Left left = Use([this](Seen &window) {
        window.Type("txt(0)", "12");
        window.Type("txt(1)", "30");
        window.Type("txt(2)", "20");
        window.Type("txt(3)", "2.5");
        EXPECT_EQ(Redraws(), 0);
        window.Click("CmdApply");
        EXPECT_TRUE(window.IsOpen());
        EXPECT_EQ(Redraws(), 1);
        EXPECT_EQ(window.Text("txt(3)"), "2.5");
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
    const Left left = Use([](Seen &window) {
        window.Click("OptTalon(1)");
        window.Type("txt(4)", "15");
        window.Key("txt(4)", Qt::Key_Return);
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_FALSE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.talon.TalonExtra, -15);
    EXPECT_EQ(programme.rib.talon.OptTalon, 1);
    EXPECT_EQ(programme.rib.TypeGabarit, kGabaritTalon);
    EXPECT_EQ(Redraws(), 1);
}

TEST_F(FrmTalonTest, TheSignOfTheWashoutComesBackAsTyped) {
    Use([](Seen &window) {
        window.Type("txt(3)", "-3");
        window.Click("cmdok");
    });
    EXPECT_EQ(programme.rib.vrillage, 3.0F);
    Use([](Seen &window) {
        EXPECT_EQ(window.Text("txt(3)"), "-3");
        window.Click("cmdok");
    });
    EXPECT_EQ(programme.rib.vrillage, 3.0F);
}

TEST_F(FrmTalonTest, OkRefusesMarginsBeyondTheChordAndPointsToThem) {
    const Left left = Use([this](Seen &window) {
        window.Type("txt(2)", "257"); // counts as 0 while it is typed
        EXPECT_TRUE(platform.boxes.empty());
        window.GoTo("txt(1)");
        platform.Expect(BoxAnswer::ok, {.text = kTooLong});
        window.Click("cmdok");
        EXPECT_TRUE(window.FocusedAndSelected("txt(2)"));
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(programme.rib.talon.TalonBFAfich, "257");
    EXPECT_EQ(programme.rib.TypeGabarit, 0);
    EXPECT_EQ(Redraws(), 0);
}

TEST_F(FrmTalonTest, AfterARefusalCancelRepeatsItUntilTheMarginsFit) {
    const Left left = Use([this](Seen &window) {
        window.Type("txt(1)", "257");
        for (const char *button : {"CmdApply", "cmdannuler"}) {
            platform.Expect(BoxAnswer::ok, {.text = kTooLong});
            window.Click(button);
        }
        platform.Expect(BoxAnswer::ok, {.text = kTooLong});
        window.Key(Qt::Key_Escape);
        EXPECT_TRUE(window.IsOpen());
        EXPECT_EQ(Redraws(), 0);
        window.Type("txt(1)", "25");
        window.Click("CmdApply");
        window.Click("cmdannuler");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_TRUE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.TypeGabarit, kGabaritTalon);
}

TEST_F(FrmTalonTest, AfterARefusalMarginsThatFitAgainCanBeCancelled) {
    const Left left = Use([this](Seen &window) {
        window.Type("txt(1)", "257");
        platform.Expect(BoxAnswer::ok, {.text = kTooLong});
        window.Click("CmdApply");
        window.Type("txt(1)", "25");
        window.Click("cmdannuler");
    });
    EXPECT_EQ(left, Left::rejected);
    EXPECT_EQ(programme.rib.TypeGabarit, 0);
    EXPECT_EQ(programme.rib.talon.TalonBAAfich, "0");
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmTalonTest, CancelGivesBackWhatTheWindowFound) {
    programme.rib.talon.TalonBAAfich = "20"; // of an opened file: not in force yet
    for (const std::uint8_t before : {kSansGabarit, kGabaritMousse, kGabaritTalon}) {
        programme.rib.TypeGabarit = before;
        programme.rib.Annule = false;
        view.asked.clear();
        std::uint8_t at_redraw = 99;
        view.on_draw = [&] { at_redraw = programme.rib.TypeGabarit; };
        const Left left = Use([this](Seen &window) {
            EXPECT_EQ(programme.rib.TypeGabarit, kSansGabarit);
            EXPECT_EQ(programme.rib.talon.TalonBA, 20);
            window.Type("txt(0)", "20");
            window.Click("OptTalon(1)");
            window.Click("cmdannuler");
        });
        EXPECT_EQ(left, Left::rejected);
        EXPECT_TRUE(programme.rib.Annule);
        EXPECT_EQ(programme.rib.TypeGabarit, before);
        EXPECT_EQ(programme.rib.talon.OptTalon, 0);
        // What was proposed for a height of 0 was never taken.
        EXPECT_EQ(programme.rib.talon.TalonIntraAfich, "0");
        EXPECT_EQ(programme.rib.talon.TalonBA, 0);
        EXPECT_FALSE(programme.rib.Modifie);
        EXPECT_EQ(Redraws(), 1);
        EXPECT_EQ(at_redraw, before);
    }
}

TEST_F(FrmTalonTest, EscapeAndTheClosingButtonAreCancels) {
    for (const bool escape : {true, false}) {
        programme.rib.TypeGabarit = kGabaritMousse;
        programme.rib.Annule = false;
        const Left left = Use([escape](Seen &window) {
            if (escape) {
                window.Key("txt(0)", Qt::Key_Escape);
            } else {
                window.Close();
            }
        });
        EXPECT_EQ(left, Left::rejected);
        EXPECT_TRUE(programme.rib.Annule);
        EXPECT_EQ(programme.rib.TypeGabarit, kGabaritMousse);
    }
}

TEST_F(FrmTalonTest, CancelPutsBackWhatWasTypedSinceTheLastApply) {
    const Left left = Use([this](Seen &window) {
        window.Type("txt(0)", "9");
        window.Type("txt(1)", "157");
        window.Type("txt(3)", "3");
        window.Click("CmdApply");
        EXPECT_EQ(programme.rib.vrillage, -3.0F);
        window.Type("txt(3)", "5");
        EXPECT_EQ(programme.rib.vrillage, 5.0F); // typed, not yet applied
        window.Click("OptTalon(1)");
        window.Type("txt(2)", "10");
        platform.Expect(BoxAnswer::ok, {.text = kTooLong});
        window.Keys("txt(2)", "0");
        window.Click("cmdannuler");
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
    const Left left = Use([](Seen &window) {
        EXPECT_EQ(window.Text("txt(1)"), "1/0");
        window.Type("txt(1)", "1/2");
        window.Click("cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(platform.boxes.at(0).title, " Talon/Load");
    EXPECT_EQ(programme.rib.talon.TalonBA, 12.7);
}

TEST_F(FrmTalonTest, ARibThatIsClearedByItsRedrawIsLeftAlone) {
    frmTalon window(programme, view, nullptr);
    view.on_draw = [&] {
        programme.rib.ProfilCharge = false;
        programme.rib.Modifie = false;
        window.done(QDialog::Rejected);
    };
    window.show();
    Seen(window).Click("cmdok");
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(programme.rib.Modifie);
}

TEST_F(FrmTalonTest, TabGoesThroughTheFieldsInTheirOrder) {
    Use([](Seen &window) {
        window.ExpectTabs({"txt(1)", "txt(2)", "txt(3)", "CmdApply", "cmdok", "cmdannuler",
                           "cmdaide", "OptTalon(0)", "txt(0)"});
        window.Click("OptTalon(1)");
        window.GoTo("txt(4)");
        window.ExpectTabs({"txt(1)"});
    });
}

TEST_F(FrmTalonTest, HelpOpensItsPage) {
    Use([](Seen &window) {
        window.Click("cmdaide");
        window.Key("txt(0)", Qt::Key_F1);
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

    void Open(const User &user) { world.Run("mnu_profilTalon", {user}); }
    RibModel &Rib() { return world.programme.rib; }

    WindowWorld world;
};

TEST_F(HeelCommandTest, IsOpenWithoutTemplateAndWithTheLayoutMenuDead) {
    Rib().TypeGabarit = kGabaritMousse;
    Open([this](Seen &dialog) {
        EXPECT_EQ(dialog.Name(), "frmTalon");
        EXPECT_EQ(Rib().TypeGabarit, 0);
        EXPECT_FALSE(world.Action("mnu_param")->isEnabled());
        dialog.Click("cmdannuler");
    });
    EXPECT_TRUE(world.Action("mnu_param")->isEnabled());
}

TEST_F(HeelCommandTest, CancelGivesHeelOrTemplateBackInThePictureToo) {
    Rib().bloc.BAbloc = 20;
    Rib().bloc.HTbloc = 40;
    Rib().talon.TalonIntra = 15;
    Rib().talon.TalonIntraAfich = "15";
    world.window->affiche();
    const auto plain = world.Find<PicView>("Pic")->Dessin()->Operations();
    for (const std::uint8_t kind : {kGabaritTalon, kGabaritMousse}) {
        Rib().TypeGabarit = kind;
        world.window->affiche();
        const auto drawn = world.Find<PicView>("Pic")->Dessin()->Operations();
        EXPECT_NE(drawn, plain);
        Open([](Seen &dialog) {
            dialog.Fill("txt(1)", "35");
            dialog.Fill("txt(3)", "4");
            dialog.Click("cmdannuler");
        });
        EXPECT_EQ(Rib().TypeGabarit, kind);
        EXPECT_EQ(Rib().talon.TalonBA, 0);
        EXPECT_EQ(world.Find<PicView>("Pic")->Dessin()->Operations(), drawn);
    }
}

TEST_F(HeelCommandTest, OkKeepsTheHeightThatWasTyped) {
    Open([](Seen &dialog) {
        dialog.Fill("txt(0)", "25");
        dialog.Click("cmdok");
    });
    EXPECT_EQ(Rib().talon.TalonIntraAfich, "25");
    EXPECT_EQ(Rib().talon.TalonIntra, 25);
    EXPECT_EQ(Rib().TypeGabarit, kGabaritTalon);
    EXPECT_TRUE(world.Action("mnu_param")->isEnabled());
    Open([](Seen &dialog) {
        EXPECT_EQ(dialog.Text("txt(0)"), "25");
        dialog.Click("cmdok");
    });
}

TEST_F(HeelCommandTest, OkMakesTheLabelOfTheRibAnew) {
    Open([](Seen &dialog) {
        dialog.Fill("txt(3)", "2");
        dialog.Click("cmdok");
    });
    EXPECT_EQ(Rib().texte.InsTexte, "naca2412 Washout -2° Chord : 200");
    Open([](Seen &dialog) {
        dialog.Fill("txt(3)", "0");
        dialog.Click("cmdok");
    });
    EXPECT_EQ(Rib().texte.InsTexte, "naca2412 Chord : 200");
}

TEST_F(HeelCommandTest, CancelLeavesTheText) {
    Rib().texte.InsTexte = "old";
    Open([](Seen &dialog) { dialog.Click("cmdannuler"); });
    EXPECT_EQ(Rib().texte.InsTexte, "old");
}

TEST_F(HeelCommandTest, InASpecialViewTheLayoutMenuStaysDead) {
    world.Action("mnu_param")->setEnabled(false);
    Open([](Seen &dialog) { dialog.Click("cmdannuler"); });
    EXPECT_FALSE(world.Action("mnu_param")->isEnabled());
}

TEST_F(HeelCommandTest, ARibThatWasClearedMeanwhileIsLeftAlone) {
    Open([this](Seen &) { world.window->affclear(); });
    EXPECT_FALSE(world.Action("mnu_param")->isEnabled());
    EXPECT_EQ(Rib().texte.InsTexte, "");
    EXPECT_FALSE(Rib().Modifie);
}

} // namespace
} // namespace loftwing
