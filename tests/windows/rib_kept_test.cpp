// What a rib must survive: values that can't be drawn, typed or chosen anywhere.

#include "base/whole_file.h"
#include "mainwindow/pic_view.h"
#include "support/qt_window_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::HasSubstr;

class RibKept : public testing::Test {
  protected:
    RibKept() { world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat")); }

    RibModel &Rib() { return world.programme.rib; }
    std::size_t Operations() {
        const Recording *drawing = world.Find<PicView>("Pic")->Dessin();
        return drawing == nullptr ? 0 : drawing->Operations().size();
    }
    /// The window system resizes the main window, which the dialog in front can't prevent.
    void Resize() { world.Resize(world.window->size() + QSize(150, 90)); }
    /// Types a chord and OK; says whether the dialog was left by that.
    bool Chord(const char *text) {
        bool left = false;
        InNextDialog([&](Seen &dialog) {
            dialog.Fill("infotxt", text);
            dialog.Click("cmdok");
            left = !dialog.IsOpen();
            if (!left) {
                dialog.Click("cmdannuler");
            }
        });
        world.Action("mnu_profilcorde")->trigger();
        return left;
    }
    void Spar(const char *place) {
        Rib().longeron[0].PosLongAfich = place;
        Rib().longeron[0].LargLong = 10;
    }
    void Heel(double margins) {
        Rib().TypeGabarit = kGabaritTalon;
        Rib().talon.TalonBAAfich = std::to_string(static_cast<int>(margins));
        Rib().talon.TalonBA = Rib().talon.TalonLong = margins;
    }

    WindowWorld world;
};

TEST_F(RibKept, ResizingTheWindowDrawsNothingOfARefusedSpar) {
    world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("reaches beyond the leading edge")});
    InNextDialog([this](Seen &dialog) {
        dialog.Fill("Text1(0)", "2");
        dialog.Fill("Text1(1)", "10");
        dialog.Fill("Text1(2)", "5");
        dialog.Click("CmdApply");
        Resize();
        EXPECT_TRUE(dialog.IsOpen());
        dialog.Click("Cmdannuler");
    });
    world.Action("mnu_profillongeron")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
}

TEST_F(RibKept, ResizingTheWindowDrawsNothingOfARampThatIsBeingTyped) {
    InNextDialog([this](Seen &dialog) {
        dialog.Click("CmdApply");
        dialog.Fill("txt(2)", "500");
        Resize();
        EXPECT_TRUE(dialog.IsOpen());
        dialog.Click("cmdannuler");
    });
    world.Action("mnu_parambloc")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
}

TEST_F(RibKept, ResizingTheWindowDrawsNothingOfMarginsThatAreBeingTyped) {
    world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("longer than the chord")});
    InNextDialog([this](Seen &dialog) {
        dialog.Click("CmdApply");
        dialog.Fill("txt(1)", "150");
        dialog.Fill("txt(2)", "90");
        Resize();
        EXPECT_TRUE(dialog.IsOpen());
        dialog.Click("cmdannuler");
    });
    world.Action("mnu_profilTalon")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
}

TEST_F(RibKept, ChordThatASparDoesNotFitIsRefusedAndNamesIt) {
    Spar("190");
    Rib().Modifie = false;
    world.platform.Expect(
        BoxAnswer::ok,
        {.text = HasSubstr(
             "The rib cannot be drawn with this value and stays as it was. What does not fit :\n"
             "Subscript out of range: Spars 1")});
    EXPECT_FALSE(Chord("80"));
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(Rib().corde, 200.0F);
    EXPECT_EQ(Rib().cordeAfich, "200");
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_TRUE(Chord("210"));
}

TEST_F(RibKept, ChordThatNoDrawingCanHoldIsRefused) {
    // It fits into 32 bits as mm, but not as device units.
    world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("Overflow")});
    EXPECT_FALSE(Chord(std::string(38, '9').c_str()));
    EXPECT_EQ(Rib().cordeAfich, "200");
    EXPECT_TRUE(Chord("210"));
}

TEST_F(RibKept, ChordShorterThanTheHeelsMarginsIsRefused) {
    Heel(160);
    world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("Levelling heel")});
    EXPECT_FALSE(Chord("150"));
    EXPECT_EQ(Rib().corde, 200.0F);
    EXPECT_EQ(Rib().talon.TalonLong, 160.0);
}

TEST_F(RibKept, ChordShorterThanTheTemplatesRampIsRefused) {
    Rib().TypeGabarit = kGabaritMousse;
    Rib().bloc.BFbloc = 150;
    world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("Foam")});
    EXPECT_FALSE(Chord("140"));
    EXPECT_TRUE(Rib().ProfilCharge);
}

TEST_F(RibKept, AnAirfoilWhoseChordASparDoesNotFitAsksAndCostsNothing) {
    EXPECT_TRUE(Chord("220"));
    Spar("150");
    Rib().NbLongeron = 1;
    world.window->affiche();
    std::string bytes = ReadWholeFile(WindowWorld::Sample("naca0012.dat"));
    bytes.replace(0, bytes.find_first_of("\r\n"), "Rib 3: 140");
    const std::string next = world.folder.File("rib3.dat", bytes);
    const std::size_t drawn = Operations();
    const std::string caption = world.Main().Title();
    world.platform.Expect(BoxAnswer::no, {.text = HasSubstr("\nSpars 1\n")});
    world.window->OuvreFichier(next);
    EXPECT_EQ(Rib().NomProfil, "naca2412");
    EXPECT_EQ(Rib().corde, 220.0F);
    EXPECT_EQ(Operations(), drawn);
    EXPECT_EQ(world.Main().Title(), caption);
    // The rib that was kept can be drawn as before.
    world.window->affiche();
    EXPECT_EQ(Operations(), drawn);
    world.platform.Expect(BoxAnswer::yes, {.text = HasSubstr("Airfoil : rib3   Chord : 140 mm")});
    world.window->OuvreFichier(next);
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(Rib().corde, 140.0F);
    EXPECT_EQ(Rib().NbLongeron, 0);
    EXPECT_GT(Operations(), 0U);
}

TEST_F(RibKept, DefaultsThatTheRibCannotTakeAreForTheNextOne) {
    EXPECT_TRUE(Chord("500"));
    Spar("450");
    world.platform.Expect(BoxAnswer::yes); // the rib is to take them
    world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("Spars 1")});
    InNextDialog([](Seen &dialog) { dialog.Click("cmdok"); });
    world.Action("mnu_affdefaut")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(Rib().corde, 500.0F);
    EXPECT_THAT(world.folder.Bytes("Loftwing.ini"), HasSubstr("cordeAfich=200"));
}

TEST_F(RibKept, UnitThatCannotBeSavedDoesNotClearTheRib) {
    world.platform.Expect(BoxAnswer::yes);
    world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("# 75 ")});
    InNextDialog([this](Seen &dialog) {
        // Neither a folder nor what lies in it can be replaced by a file.
        world.programme.paths.fichier = world.folder.Path("missing/Loftwing.ini");
        dialog.Click("inches");
        dialog.Click("cmdok");
        EXPECT_TRUE(dialog.IsOpen());
        dialog.Click("cmdannuler");
    });
    world.Action("mnu_affdefaut")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(world.programme.settings.Unite, " mm");
    EXPECT_EQ(Rib().corde, 200.0F);
}

TEST_F(RibKept, UntouchedFirstSparWithANotchNeedsAWidth) {
    world.platform.Expect(BoxAnswer::ok, {.text = HasSubstr("no width")});
    InNextDialog([](Seen &dialog) {
        dialog.Click("LblNblongeron(0)");
        dialog.Fill("Text1(0)", "50");
        dialog.Click("Opte(1)");
        dialog.Click("cmdok");
        EXPECT_TRUE(dialog.IsOpen());
        dialog.Click("Cmdannuler");
    });
    world.Action("mnu_profillongeron")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_GT(Operations(), 0U);
}

} // namespace
} // namespace loftwing
