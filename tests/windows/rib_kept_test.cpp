// What a rib must survive: values that can't be drawn, typed or chosen anywhere.

#include "mainwindow/pic_view.h"
#include "support/qt_window_world.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

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
    static void Type(QDialog &dialog, const char *name, const char *text) {
        dialog.findChild<QLineEdit *>(name)->setText(text);
    }
    static void Press(QDialog &dialog, const char *name) {
        dialog.findChild<QAbstractButton *>(name)->click();
    }
    /// The window system resizes the main window, which the dialog in front can't prevent.
    void Resize() {
        world.window->resize(world.window->size() + QSize(150, 90));
        QTest::qWait(400); // the redraw waits until the size has settled
    }
    void Box(const std::string &part) {
        world.platform.boxes_expected.push_back({BoxAnswer::ok, [part](const MessageBox &box) {
                                                     EXPECT_THAT(box.text, HasSubstr(part));
                                                 }});
    }
    /// Types a chord and OK; says whether the dialog was left by that.
    bool Chord(const char *text) {
        bool left = false;
        InNextDialog([&](QDialog &dialog) {
            Type(dialog, "infotxt", text);
            Press(dialog, "cmdok");
            left = !dialog.isVisible();
            if (!left) {
                Press(dialog, "cmdannuler");
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
    Box("leading or trailing edge");
    InNextDialog([this](QDialog &dialog) {
        Type(dialog, "Text1(0)", "2");
        Type(dialog, "Text1(1)", "10");
        Type(dialog, "Text1(2)", "5");
        Press(dialog, "CmdApply");
        Resize();
        EXPECT_TRUE(dialog.isVisible());
        Press(dialog, "Cmdannuler");
    });
    world.Action("mnu_profillongeron")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
}

TEST_F(RibKept, ResizingTheWindowDrawsNothingOfARampThatIsBeingTyped) {
    InNextDialog([this](QDialog &dialog) {
        Press(dialog, "CmdApply");
        Type(dialog, "txt(2)", "500");
        Resize();
        EXPECT_TRUE(dialog.isVisible());
        Press(dialog, "cmdannuler");
    });
    world.Action("mnu_parambloc")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
}

TEST_F(RibKept, ResizingTheWindowDrawsNothingOfMarginsThatAreBeingTyped) {
    Box("longer than the chord");
    InNextDialog([this](QDialog &dialog) {
        Press(dialog, "CmdApply");
        Type(dialog, "txt(1)", "150");
        Type(dialog, "txt(2)", "90");
        Resize();
        EXPECT_TRUE(dialog.isVisible());
        Press(dialog, "cmdannuler");
    });
    world.Action("mnu_profilTalon")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
}

TEST_F(RibKept, ChordThatASparDoesNotFitIsRefusedAndNamesIt) {
    Spar("190");
    Rib().Modifie = false;
    Box("The rib cannot be drawn with this value and stays as it was. What does not fit :\n"
        "Subscript out of range: Spars 1");
    EXPECT_FALSE(Chord("80"));
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(Rib().corde, 200.0F);
    EXPECT_EQ(Rib().cordeAfich, "200");
    EXPECT_FALSE(Rib().Modifie);
    EXPECT_TRUE(Chord("210"));
}

TEST_F(RibKept, ChordThatNoDrawingCanHoldIsRefused) {
    // It fits into 32 bits as mm, but not as device units.
    Box("Overflow");
    EXPECT_FALSE(Chord(std::string(38, '9').c_str()));
    EXPECT_EQ(Rib().cordeAfich, "200");
    EXPECT_TRUE(Chord("210"));
}

TEST_F(RibKept, ChordShorterThanTheHeelsMarginsIsRefused) {
    Heel(160);
    Box("Levelling heel");
    EXPECT_FALSE(Chord("150"));
    EXPECT_EQ(Rib().corde, 200.0F);
    EXPECT_EQ(Rib().talon.TalonLong, 160.0);
}

TEST_F(RibKept, ChordShorterThanTheTemplatesRampIsRefused) {
    Rib().TypeGabarit = kGabaritMousse;
    Rib().bloc.BFbloc = 150;
    Box("Foam");
    EXPECT_FALSE(Chord("140"));
    EXPECT_TRUE(Rib().ProfilCharge);
}

TEST_F(RibKept, DefaultsThatTheRibCannotTakeAreForTheNextOne) {
    EXPECT_TRUE(Chord("500"));
    Spar("450");
    Box("Spars 1");
    InNextDialog([](QDialog &dialog) { Press(dialog, "cmdok"); });
    world.Action("mnu_affdefaut")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(Rib().corde, 500.0F);
    EXPECT_THAT(world.folder.Bytes("Loftwing.ini"), HasSubstr("cordeAfich=200"));
}

TEST_F(RibKept, UnitThatCannotBeSavedDoesNotClearTheRib) {
    world.platform.Expect(BoxAnswer::yes);
    Box("# 75 ");
    InNextDialog([this](QDialog &dialog) {
        // Neither a folder nor what lies in it can be replaced by a file.
        world.programme.paths.fichier = world.folder.Path("missing/Loftwing.ini");
        Press(dialog, "inches");
        Press(dialog, "cmdok");
        EXPECT_TRUE(dialog.isVisible());
        Press(dialog, "cmdannuler");
    });
    world.Action("mnu_affdefaut")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_EQ(world.programme.settings.Unite, " mm");
    EXPECT_EQ(Rib().corde, 200.0F);
}

TEST_F(RibKept, UntouchedFirstSparWithANotchNeedsAWidth) {
    Box("no width");
    InNextDialog([](QDialog &dialog) {
        QTest::mouseClick(dialog.findChild<QWidget *>("LblNblongeron(0)"), Qt::LeftButton);
        Type(dialog, "Text1(0)", "50");
        Press(dialog, "Opte(1)");
        Press(dialog, "cmdok");
        EXPECT_TRUE(dialog.isVisible());
        Press(dialog, "Cmdannuler");
    });
    world.Action("mnu_profillongeron")->trigger();
    EXPECT_TRUE(Rib().ProfilCharge);
    EXPECT_GT(Operations(), 0U);
}

} // namespace
} // namespace loftwing
