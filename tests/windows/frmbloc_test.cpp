#include "features/frmbloc.h"

#include "support/qt_window_world.h"
#include "windows/addon_fixture.h"

#include <algorithm>
#include <array>

namespace loftwing {
namespace {

using FrmblocTest = AddonTest<frmbloc>;

TEST_F(FrmblocTest, ShowsItsWordsAndTheStoredTexts) {
    Bloc &bloc = programme.rib.bloc;
    bloc.HTbasblocAfich = "10";
    bloc.BAblocAfich = "30";
    bloc.BAbloc = 30;
    bloc.BFblocAfich = "40";
    bloc.BFbloc = 40;
    bloc.CoupeBFAfich = "1";
    bloc.HTblocAfich = "35";
    bloc.Optquebf = 1;
    programme.rib.vrillage = -2.5F;
    Use([](Seen &window) {
        EXPECT_EQ(window.Title(), "Template for Foam cutting mm");
        const std::pair<const char *, const char *> captions[] = {
            {"Label1(0)", "Height under the ref. line"},
            {"Label1(1)", "L.E. ramp"},
            {"Label1(2)", "T.E. ramp"},
            {"Label1(3)", "Cutting T.E"},
            {"Label1(4)", "Total template height"},
            {"Label1(5)", "Washout angle"},
            {"LabelLong", "Template length"},
            {"lbllongb", "326 mm"},
            {"lblpointhaut", "16 mm"},
            {"lblpointbas", "-8 mm"},
        };
        for (const auto &[name, text] : captions) {
            EXPECT_EQ(window.Label(name), text);
        }
        const std::pair<const char *, const char *> values[] = {
            {"txt(0)", "10"}, {"txt(1)", "30"}, {"txt(2)", "40"},
            {"txt(3)", "1"},  {"txt(4)", "35"}, {"txt(5)", "-2.5"}};
        for (const auto &[name, text] : values) {
            EXPECT_EQ(window.Text(name), text);
        }
        EXPECT_EQ(window.Word("Optquebf(0)"), "Upper Surface");
        EXPECT_EQ(window.Word("Optquebf(1)"), "Lower Surface");
        EXPECT_TRUE(window.Chosen("Optquebf(1)"));
        EXPECT_FALSE(window.Chosen("Optquebf(0)"));
        EXPECT_EQ(window.Tip("txt(1)"), "Leading edge ramp");
        EXPECT_EQ(window.Tip("txt(2)"), "Trailing edge ramp");
        EXPECT_EQ(window.Word("CmdApply"), "Apply");
        EXPECT_EQ(window.Word("cmdok"), "OK");
        EXPECT_EQ(window.Word("cmdannuler"), "Cancel");
        EXPECT_EQ(window.Word("cmdaide"), "Help");
    });
}

TEST_F(FrmblocTest, SpeaksFrenchAndInches) {
    Language("French");
    Inches(); // 8 in: 8 / 16 and 8 / 32
    Use([](Seen &window) {
        EXPECT_EQ(window.Title(), "Gabarit de découpe du polystyrène in");
        EXPECT_EQ(window.Label("Label1(5)"), "Angle de vrillage");
        EXPECT_EQ(window.Word("Optquebf(0)"), "Extrados");
        EXPECT_EQ(window.Label("lbllongb"), "8 in");
        EXPECT_EQ(window.Label("lblpointhaut"), "1/2 in");
        EXPECT_EQ(window.Label("lblpointbas"), "-1/4 in");
    });
}

TEST_F(FrmblocTest, FieldsSwallowWhatIsNoLengthOrAngle) {
    Use([](Seen &window) {
        for (const char *name : {"txt(0)", "txt(1)", "txt(2)", "txt(3)", "txt(4)"}) {
            window.Type(name, "-a1/2.5%");
            EXPECT_EQ(window.Text(name), "12.5") << name;
        }
        window.Type("txt(5)", "-a1/.5%");
        EXPECT_EQ(window.Text("txt(5)"), "-1.5");
    });
}

TEST_F(FrmblocTest, InInchesLengthsTakeASlashAndTheAngleNone) {
    Inches();
    Use([](Seen &window) {
        for (const char *name : {"txt(0)", "txt(1)", "txt(2)", "txt(3)", "txt(4)"}) {
            window.Type(name, "-a1.1/2%");
            EXPECT_EQ(window.Text(name), "1.1/2") << name;
        }
        window.Type("txt(5)", "-a1/.5%");
        EXPECT_EQ(window.Text("txt(5)"), "-1.5");
    });
}

TEST_F(FrmblocTest, TheLengthFollowsTheTyping) {
    Use([this](Seen &window) {
        window.Type("txt(1)", "30");
        EXPECT_EQ(window.Label("lbllongb"), "286 mm");
        window.Type("txt(2)", "40.5");
        EXPECT_EQ(window.Label("lbllongb"), "326.5 mm");
        window.Type("txt(1)", "");
        EXPECT_EQ(window.Label("lbllongb"), "296.5 mm");
        EXPECT_EQ(programme.rib.bloc.BAblocAfich, "0");
    });
}

TEST_F(FrmblocTest, TwentyFiveDegreesTurnToTheLimitAtOnce) {
    Use([this](Seen &window) {
        window.Type("txt(5)", "2");
        EXPECT_EQ(programme.rib.vrillage, 2.0F);
        platform.Expect(BoxAnswer::ok, {.text = "Above the limit : Washout angle 20°"});
        window.Keys("txt(5)", "5");
        EXPECT_EQ(window.Text("txt(5)"), "20");
        EXPECT_EQ(programme.rib.vrillage, 20.0F);
        window.Keys("txt(5)", "-2"); // types over it
        EXPECT_EQ(programme.rib.vrillage, -2.0F);
        platform.Expect(BoxAnswer::ok, {.text = "Below the limit : Washout angle -20°"});
        window.Keys("txt(5)", "5");
        EXPECT_EQ(window.Text("txt(5)"), "-20");
        EXPECT_EQ(programme.rib.vrillage, -20.0F);
        EXPECT_EQ(platform.boxes.front().title, window.Title());
    });
    EXPECT_EQ(platform.boxes.size(), 2U);
}

TEST_F(FrmblocTest, ATextThatChangesBehindABoxStartsNoSecondOne) {
    Use([this](Seen &window) {
        platform.Expect(BoxAnswer::ok, {.meanwhile = [&] { window.Fill("txt(5)", "99"); }});
        window.Type("txt(5)", "25");
        EXPECT_EQ(window.Text("txt(5)"), "20");
    });
    EXPECT_EQ(platform.boxes.size(), 1U);
}

TEST_F(FrmblocTest, TheTailIsKeptAtOnce) {
    Use([this](Seen &window) {
        window.Click("Optquebf(1)");
        EXPECT_EQ(programme.rib.bloc.Optquebf, 1);
        window.Click("Optquebf(0)");
        EXPECT_EQ(programme.rib.bloc.Optquebf, 0);
    });
}

TEST_F(FrmblocTest, TheSketchFollowsTailAndWashoutAsTheyAreTyped) {
    programme.rib.AffHaut = true;
    programme.rib.vrillage = -2;
    Use([](Seen &window) {
        auto &sketch = window.Find<BlocSketch>("Picture1");
        const auto rise = [&sketch] {
            const FormeBloc block = sketch.Forme();
            return block.bas_arriere.y() - block.bas_avant.y();
        };
        EXPECT_LT(rise(), 0);
        window.Type("txt(5)", "3");
        EXPECT_GT(rise(), 0);
        window.Type("txt(5)", "");
        EXPECT_EQ(rise(), 0);
        EXPECT_LT(sketch.Forme().queue.y(), 0);
        window.Click("Optquebf(1)");
        EXPECT_GT(sketch.Forme().queue.y(), 0);
        const auto place = [&sketch](const char *letter) {
            sketch.grab();
            const auto word =
                std::find_if(sketch.Words().begin(), sketch.Words().end(),
                             [letter](const SketchWord &each) { return each.text == letter; });
            return word->place.center().y();
        };
        EXPECT_LT(place("A"), place("E")); // upside down as the rib is
    });
}

TEST_F(FrmblocTest, ApplyPutsTheTemplateOnTheRibAndStays) {
    const Left left = Use([this](Seen &window) {
        window.Keys("txt(0)", "10"); // the first field waits for typing
        window.Type("txt(1)", "30");
        window.Type("txt(2)", "40");
        window.Type("txt(3)", "1.5");
        window.Type("txt(4)", "35");
        window.Type("txt(5)", "2.50");
        EXPECT_EQ(programme.rib.TypeGabarit, 0);
        window.Click("CmdApply");
        EXPECT_EQ(window.Text("txt(5)"), "2.5");
        EXPECT_EQ(window.Label("lbllongb"), "326 mm");
        EXPECT_EQ(Redraws(), 1);
    });
    EXPECT_EQ(left, Left::open);
    const RibModel &rib = programme.rib;
    EXPECT_EQ(rib.TypeGabarit, kGabaritMousse);
    EXPECT_EQ(rib.bloc.HTbasbloc, 10.0F);
    EXPECT_EQ(rib.bloc.CoupeBF, 1.5F);
    EXPECT_EQ(rib.bloc.HTbloc, 35.0F);
    EXPECT_EQ(rib.bloc.LongBloc, 326.0F);
    EXPECT_EQ(rib.vrillage, 2.5F);
    EXPECT_EQ(rib.texte.InsTexte, "e205 Washout 2.5° Chord : 256");
    EXPECT_TRUE(rib.Modifie);
}

TEST_F(FrmblocTest, ReturnIsOk) {
    const Left left = Use([](Seen &window) {
        window.Type("txt(4)", "35");
        window.Key("txt(4)", Qt::Key_Return);
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_FALSE(programme.rib.Annule);
    EXPECT_EQ(programme.rib.bloc.HTbloc, 35.0F);
    EXPECT_EQ(programme.rib.TypeGabarit, kGabaritMousse);
    EXPECT_EQ(Redraws(), 1);
}

TEST_F(FrmblocTest, OkTakesARampAsLongAsTheChord) {
    const Left left = Use([](Seen &window) {
        window.Type("txt(2)", "256");
        window.Click("cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(programme.rib.bloc.BFbloc, 256.0F);
}

TEST_F(FrmblocTest, OkRefusesALongerRampAndPointsToIt) {
    const Left left = Use([this](Seen &window) {
        window.Type("txt(2)", "256.50");
        window.GoTo("txt(0)");
        platform.Expect(BoxAnswer::ok,
                        {.text = "Wrong entry : Trailing edge ramp = 256.50 > Chord = 256"});
        window.Click("cmdok");
        EXPECT_TRUE(window.FocusedAndSelected("txt(2)"));
    });
    EXPECT_EQ(left, Left::open);
    EXPECT_EQ(programme.rib.TypeGabarit, 0);
    EXPECT_FALSE(programme.rib.Modifie);
    EXPECT_EQ(Redraws(), 0);
}

TEST_F(FrmblocTest, ApplyCutsALongerRamp) {
    Use([this](Seen &window) {
        window.Type("txt(1)", "300");
        platform.Expect(BoxAnswer::ok,
                        {.text = "Wrong entry : Leading edge ramp = 300 > Chord = 256"});
        window.Click("CmdApply");
        EXPECT_EQ(window.Text("txt(1)"), "300");
    });
    EXPECT_EQ(programme.rib.bloc.BAbloc, 256.0F);
    EXPECT_EQ(programme.rib.TypeGabarit, kGabaritMousse);
}

TEST_F(FrmblocTest, AWashoutOfZeroLeavesTheText) {
    programme.rib.texte.InsTexte = "old";
    Use([](Seen &window) { window.Click("CmdApply"); });
    EXPECT_EQ(programme.rib.texte.InsTexte, "old");
}

TEST_F(FrmblocTest, AFractionOfZerothsIsToldAndTheWindowGoesOn) {
    Inches();
    const Left left = Use([this](Seen &window) {
        platform.Expect(BoxAnswer::ok);
        window.Type("txt(1)", "1/0");
        EXPECT_EQ(platform.boxes.back().title, " Bloc/Txt");
        platform.Expect(BoxAnswer::ok);
        window.Click("cmdok");
        EXPECT_EQ(platform.boxes.back().title, " Bloc/OK");
        EXPECT_TRUE(window.IsOpen());
        window.Type("txt(1)", "1");
        window.Click("cmdok");
    });
    EXPECT_EQ(left, Left::accepted);
    EXPECT_EQ(programme.rib.bloc.BAbloc, 25.4F);
}

TEST_F(FrmblocTest, CancelEscapeAndTheClosingButtonGiveBackWhatWasInUse) {
    for (const int way : {0, 1, 2}) {
        const std::uint8_t before = std::array{kSansGabarit, kGabaritMousse, kGabaritTalon}[way];
        programme.rib.TypeGabarit = before;
        programme.rib.Annule = false;
        view.asked.clear();
        std::uint8_t at_redraw = 99;
        view.on_draw = [&] { at_redraw = programme.rib.TypeGabarit; };
        const Left left = Use([this, way](Seen &window) {
            EXPECT_EQ(programme.rib.TypeGabarit, kSansGabarit);
            window.Type("txt(4)", "77");
            window.Click("Optquebf(1)");
            if (way == 0) {
                window.Click("cmdannuler");
            } else if (way == 1) {
                window.Key("txt(0)", Qt::Key_Escape);
            } else {
                window.Close();
            }
        });
        EXPECT_EQ(left, Left::rejected);
        EXPECT_TRUE(programme.rib.Annule);
        EXPECT_EQ(programme.rib.TypeGabarit, before);
        EXPECT_EQ(programme.rib.bloc.HTblocAfich, "");
        EXPECT_EQ(programme.rib.bloc.Optquebf, 0);
        EXPECT_EQ(programme.rib.bloc.LongBloc, 0.0F);
        EXPECT_FALSE(programme.rib.Modifie);
        EXPECT_EQ(Redraws(), 1);
        EXPECT_EQ(at_redraw, before);
    }
}

TEST_F(FrmblocTest, CancelPutsBackWhatWasTypedSinceTheLastApply) {
    Use([this](Seen &window) {
        window.Type("txt(1)", "20");
        window.Type("txt(5)", "-3");
        window.Click("CmdApply");
        window.Type("txt(1)", "35");
        window.Type("txt(5)", "4");
        EXPECT_EQ(programme.rib.bloc.BAbloc, 35.0F);
        window.Click("cmdannuler");
    });
    EXPECT_EQ(programme.rib.TypeGabarit, kGabaritMousse);
    EXPECT_EQ(programme.rib.bloc.BAblocAfich, "20");
    EXPECT_EQ(programme.rib.bloc.BAbloc, 20.0F);
    EXPECT_EQ(programme.rib.vrillage, -3.0F);
}

TEST_F(FrmblocTest, TabGoesThroughTheFieldsInTheirOrder) {
    Use([](Seen &window) {
        EXPECT_TRUE(window.FocusedAndSelected("txt(0)"));
        window.ExpectTabs({"txt(1)", "txt(2)", "txt(3)", "txt(4)", "txt(5)", "Optquebf(0)",
                           "CmdApply", "cmdok", "cmdannuler", "cmdaide", "txt(0)"});
    });
}

TEST_F(FrmblocTest, HelpOpensItsPage) {
    Use([](Seen &window) {
        window.Click("cmdaide");
        window.Key("txt(0)", Qt::Key_F1);
    });
    EXPECT_EQ(platform.help_contexts, (std::vector<int>{50, 50}));
}

TEST_F(FrmblocTest, NothingIsCutInAnyLanguageUnitOrSize) {
    ExpectNothingCutAnywhere();
}

// The command.

class TemplateCommandTest : public testing::Test {
  protected:
    TemplateCommandTest() { world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat")); }

    void Open(const User &user) { world.Run("mnu_parambloc", {user}); }
    bool Alive(const char *entry) const { return world.Action(entry)->isEnabled(); }
    RibModel &Rib() { return world.programme.rib; }

    WindowWorld world;
};

TEST_F(TemplateCommandTest, IsOpenWithoutHeelAndWithBothEntriesDead) {
    Rib().TypeGabarit = kGabaritTalon;
    Open([this](Seen &dialog) {
        EXPECT_EQ(dialog.Name(), "frmbloc");
        EXPECT_EQ(Rib().TypeGabarit, 0);
        EXPECT_FALSE(Alive("mnu_profilTalon"));
        EXPECT_FALSE(Alive("mnu_parambloc"));
        dialog.Click("cmdannuler");
    });
    EXPECT_TRUE(Alive("mnu_profilTalon"));
    EXPECT_TRUE(Alive("mnu_parambloc"));
}

TEST_F(TemplateCommandTest, CancelGivesTemplateOrHeelBackInThePictureToo) {
    Rib().bloc.BAbloc = 20;
    Rib().bloc.HTbloc = 40;
    Rib().talon.TalonIntra = 15;
    Rib().talon.TalonIntraAfich = "15";
    world.window->affiche();
    const auto plain = world.Find<PicView>("Pic")->Dessin()->Operations();
    for (const std::uint8_t kind : {kGabaritMousse, kGabaritTalon}) {
        Rib().TypeGabarit = kind;
        world.window->affiche();
        const auto drawn = world.Find<PicView>("Pic")->Dessin()->Operations();
        EXPECT_NE(drawn, plain);
        Open([](Seen &dialog) {
            dialog.Fill("txt(1)", "35");
            dialog.Fill("txt(5)", "4");
            dialog.Click("cmdannuler");
        });
        EXPECT_EQ(Rib().TypeGabarit, kind);
        EXPECT_EQ(Rib().bloc.BAbloc, 20.0F);
        EXPECT_EQ(world.Find<PicView>("Pic")->Dessin()->Operations(), drawn);
    }
}

TEST_F(TemplateCommandTest, OkMakesTextAndHeelHeightsAnew) {
    Rib().talon.TalonIntraAfich = "25";
    Rib().talon.TalonIntra = 25;
    Rib().IntradosMini = -0.05;
    Open([](Seen &dialog) {
        dialog.Fill("txt(4)", "40");
        dialog.Click("cmdok");
    });
    EXPECT_EQ(Rib().TypeGabarit, kGabaritMousse);
    EXPECT_EQ(Rib().texte.InsTexte, "naca2412 Chord : 200");
    EXPECT_EQ(Rib().talon.TalonIntraAfich, " 8.50"); // 200 * 0.05 - 1.5
}

TEST_F(TemplateCommandTest, CancelLeavesTextAndHeelHeights) {
    Rib().talon.TalonIntraAfich = "25";
    Rib().texte.InsTexte = "old";
    Open([](Seen &dialog) { dialog.Click("cmdannuler"); });
    EXPECT_EQ(Rib().talon.TalonIntraAfich, "25");
    EXPECT_EQ(Rib().texte.InsTexte, "old");
}

TEST_F(TemplateCommandTest, ARibThatWasClearedMeanwhileIsLeftAlone) {
    Open([this](Seen &) { world.window->affclear(); });
    EXPECT_FALSE(Alive("mnu_profilTalon"));
    EXPECT_TRUE(Alive("mnu_parambloc")); // in a menu that is dead
    EXPECT_FALSE(Alive("mnu_param"));
    EXPECT_FALSE(Rib().Modifie);
}

} // namespace
} // namespace loftwing
