// What is added to a rib, from the command to the picture.

#include "features/frmlongeron.h"
#include "features/frmtrou.h"
#include "mainwindow/pic_view.h"
#include "support/qt_window_world.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <functional>
#include <variant>

namespace loftwing {
namespace {

class RibFeatures : public testing::Test {
  protected:
    RibFeatures() {
        world.Open();
        world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    }

    /// Uses the dialog that a command brings up.
    void Use(const std::function<void()> &command, const char *dialog_name, const User &user) {
        const bool came = BringsDialog(command, [&](Seen &dialog) {
            EXPECT_EQ(dialog.Name(), dialog_name);
            user(dialog);
        });
        EXPECT_TRUE(came) << dialog_name;
    }
    static void TypeSpar(Seen &dialog, const char *place) {
        dialog.Type("Text1(0)", place);
        dialog.Type("Text1(1)", "10");
        dialog.Type("Text1(2)", "5");
    }
    std::function<void()> Menu(const char *name) {
        return [this, name] { world.Action(name)->trigger(); };
    }
    std::function<void()> Button(const char *name) {
        return [this, name] { world.Main().Click(name); };
    }
    const Recording *Drawing() { return world.Find<PicView>("Pic")->Dessin(); }
    std::size_t Operations() { return Drawing()->Operations().size(); }

    WindowWorld world;
};

TEST_F(RibFeatures, MenuAndButtonOpenTheSameWindow) {
    const auto nothing = [](Seen &dialog) { dialog.Key(Qt::Key_Escape); };
    Use(Menu("mnu_profillongeron"), "frmlongeron", nothing);
    Use(Button("cmdlongeron"), "frmlongeron", nothing);
    Use(Menu("mnu_profiltrou"), "frmtrou", nothing);
    Use(Button("cmdtrou"), "frmtrou", nothing);
}

TEST_F(RibFeatures, ASparTypedAndOkIsInThePicture) {
    const std::size_t before = Operations();
    Use(Menu("mnu_profillongeron"), "frmlongeron", [](Seen &dialog) {
        TypeSpar(dialog, "50");
        dialog.Click("Opte(2)");
        dialog.Click("cmdok");
        EXPECT_FALSE(dialog.IsOpen());
    });
    // The axis and the four edges of the notch.
    EXPECT_EQ(Operations(), before + 5);
}

TEST_F(RibFeatures, ApplyShowsTheSparWhileTheWindowIsOpen) {
    const std::size_t before = Operations();
    Use(Menu("mnu_profillongeron"), "frmlongeron", [&](Seen &dialog) {
        TypeSpar(dialog, "50");
        dialog.Click("CmdApply");
        EXPECT_EQ(Operations(), before + 1); // no notch is chosen yet
        EXPECT_TRUE(dialog.IsOpen());
    });
}

TEST_F(RibFeatures, SparsThatWereAddedAreDrawnWhenTheWindowCloses) {
    const std::size_t before = Operations();
    world.platform.ExpectBoxes(2); // no notch
    Use(Menu("mnu_profillongeron"), "frmlongeron", [](Seen &dialog) {
        for (const char *place : {"50", "80"}) {
            TypeSpar(dialog, place);
            dialog.Click("cmdajout");
        }
        dialog.Click("Cmdannuler");
    });
    EXPECT_EQ(Operations(), before + 2);
}

TEST_F(RibFeatures, ASparAtLocationZeroHidesThoseBehindIt) {
    const std::size_t before = Operations();
    world.platform.Expect(BoxAnswer::ok); // no notch
    Use(Menu("mnu_profillongeron"), "frmlongeron", [](Seen &dialog) {
        TypeSpar(dialog, "50");
        dialog.Click("cmdajout");
        TypeSpar(dialog, "80");
        dialog.Click("CmdApply");
    });
    EXPECT_EQ(Operations(), before + 2);
    world.programme.rib.longeron[0].PosLongAfich = "0";
    world.window->affiche();
    EXPECT_EQ(Operations(), before);
}

TEST_F(RibFeatures, AfterAChangeOfChordASparInPercentMovesWithoutAWindow) {
    Use(Menu("mnu_profillongeron"), "frmlongeron", [](Seen &dialog) {
        TypeSpar(dialog, "50%");
        dialog.Click("cmdok");
    });
    EXPECT_EQ(world.programme.rib.longeron[0].PosLong, 100.0F);
    world.programme.rib.corde = 300;
    world.window->affiche();
    EXPECT_EQ(world.programme.rib.longeron[0].PosLong, 150.0F);
}

TEST_F(RibFeatures, AHoleInTheMiddleFollowsTheThicknessOfAnotherAirfoil) {
    Use(Button("cmdtrou"), "frmtrou", [](Seen &dialog) {
        dialog.Type("Text1(0)", "60");
        dialog.Type("Text1(1)", "8");
        dialog.Click("Chkcentr");
        dialog.Click("cmdok");
    });
    const auto centre = [this] {
        for (const Operation &operation : Drawing()->Operations()) {
            if (const auto *circle = std::get_if<DrawnCircle>(&operation)) {
                return circle->y;
            }
        }
        ADD_FAILURE() << "no circle";
        return 0.0;
    };
    const auto middle = [this] {
        const RibModel &rib = world.programme.rib;
        const PlotState &plot = world.programme.plot;
        // 60 of 200 mm from the leading edge is station 280.
        return static_cast<double>(plot.OrigineY) - (rib.TabExtrados[280] + rib.TabIntrados[280]) /
                                                        2.0 *
                                                        static_cast<double>(plot.CordeEchelleY);
    };
    EXPECT_NEAR(centre(), middle(), 0.01);
    const double before = world.programme.rib.TabExtrados[280];
    world.window->OuvreFichier(WindowWorld::Sample("naca4415.dat"));
    EXPECT_NE(world.programme.rib.TabExtrados[280], before);
    EXPECT_NEAR(centre(), middle(), 0.01);
}

TEST_F(RibFeatures, AHoleThatPokesOutIsDrawn) {
    const std::size_t before = Operations();
    Use(Button("cmdtrou"), "frmtrou", [](Seen &dialog) {
        dialog.Type("Text1(0)", "1");
        dialog.Type("Text1(1)", "40");
        dialog.Click("cmdok");
    });
    EXPECT_EQ(Operations(), before); // what the empty work slot had drawn, only bigger
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
}

TEST_F(RibFeatures, AHoleIsHeldAgainstTheAirfoilWhenItIsAdded) {
    // The airfoil is 12 % of 200 mm thick where it is thickest, at 60 mm.
    Use(Button("cmdtrou"), "frmtrou", [this](Seen &dialog) {
        for (const char *diameter : {"22", "26"}) {
            dialog.Type("Text1(0)", "60");
            dialog.Type("Text1(1)", diameter);
            dialog.Click("Chkcentr");
            if (diameter == std::string("26")) {
                world.platform.Expect(BoxAnswer::ok, {.text = testing::StartsWith("Hole 2 ")});
            }
            dialog.Click("cmdajout");
        }
        dialog.Click("cmdok");
    });
    EXPECT_EQ(world.programme.rib.NbTrou, 2);
}

TEST_F(RibFeatures, ARefusedSparDoesNotCostTheRib) {
    const std::size_t before = Operations();
    world.platform.Expect(BoxAnswer::ok);
    Use(Menu("mnu_profillongeron"), "frmlongeron", [](Seen &dialog) {
        TypeSpar(dialog, "2");
        dialog.Click("CmdApply");
        dialog.Click("Cmdannuler");
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
    EXPECT_EQ(Operations(), before);
}

TEST_F(RibFeatures, AHoleInFrontOfTheLeadingEdgeIsRefused) {
    const std::size_t before = Operations();
    world.platform.Expect(BoxAnswer::ok);
    Use(Menu("mnu_profiltrou"), "frmtrou", [](Seen &dialog) {
        dialog.Type("Text1(0)", "250");
        dialog.Type("Text1(1)", "10");
        dialog.Click("OptDistance(1)");
        dialog.Click("CmdApply");
        dialog.Click("Cmdannuler");
    });
    EXPECT_TRUE(world.programme.rib.ProfilCharge);
    EXPECT_EQ(Operations(), before);
}

TEST_F(RibFeatures, APlotThatFailsInsideApplyClosesTheWindowAndClearsTheRib) {
    for (const char *button : {"CmdApply", "cmdok"}) {
        world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
        // A finished spar far behind the trailing edge, as a damaged file may bring it.
        world.programme.rib.longeron[0].PosLongAfich = "900";
        world.programme.rib.NbLongeron = 1;
        world.platform.Expect(BoxAnswer::ok);
        Use(Menu("mnu_profillongeron"), "frmlongeron", [&](Seen &dialog) {
            TypeSpar(dialog, "50");
            dialog.Click(button);
            EXPECT_FALSE(dialog.IsOpen());
        });
        EXPECT_FALSE(world.programme.rib.ProfilCharge);
        EXPECT_EQ(world.programme.rib.NbLongeron, 0);
        EXPECT_EQ(world.programme.rib.longeron[0].PosLongAfich, "0");
        EXPECT_EQ(Drawing(), nullptr);
    }
}

TEST_F(RibFeatures, RemoveInsideAFailingPlotIsSafeToo) {
    RibModel &rib = world.programme.rib;
    for (std::size_t i = 0; i < 3; ++i) {
        rib.longeron[i].PosLongAfich = "900";
        rib.longeron[i].LargLong = 10;
        rib.longeron[i].LargLongAfich = "10";
    }
    rib.NbLongeron = 2;
    rib.longeron[2].PosLongAfich = "50";
    rib.longeron[2].HautLongAfich = "5";
    world.platform.Expect(BoxAnswer::ok);
    Use(Menu("mnu_profillongeron"), "frmlongeron", [&](Seen &dialog) {
        dialog.Click("LblNblongeron(0)");
        dialog.Click("Cmdeffac");
        EXPECT_FALSE(dialog.IsOpen());
    });
    EXPECT_FALSE(rib.ProfilCharge);
}

TEST_F(RibFeatures, NothingIsCutAtDoubleFontSize) {
    const QFont normal = QApplication::font();
    QFont twice = normal;
    twice.setPointSizeF(2 * normal.pointSizeF());
    QApplication::setFont(twice);
    for (const char *language : {"English", "French"}) {
        world.programme.language.Charge(world.programme.paths.langues, language);
        for (const char *command : {"mnu_profillongeron", "mnu_profiltrou"}) {
            const char *name = std::string(command) == "mnu_profiltrou" ? "frmtrou" : "frmlongeron";
            Use(Menu(command), name, [](Seen &dialog) {
                QApplication::processEvents();
                for (QWidget *widget : dialog.Window().findChildren<QWidget *>()) {
                    if (widget->isVisible() && widget->parentWidget() != nullptr &&
                        widget->objectName() != "qt_scrollarea_viewport" &&
                        // What the screen is too small for is scrolled.
                        widget->parentWidget()->objectName() != "qt_scrollarea_viewport") {
                        EXPECT_GE(widget->width(), widget->minimumSizeHint().width())
                            << widget->objectName().toStdString();
                        EXPECT_GE(widget->height(), widget->minimumSizeHint().height())
                            << widget->objectName().toStdString();
                        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
                            << widget->objectName().toStdString();
                    }
                }
                EXPECT_GE(dialog.Box("Text1(0)").width(),
                          dialog.Window().fontMetrics().horizontalAdvance("00.00/00"));
            });
        }
    }
    QApplication::setFont(normal);
}

} // namespace
} // namespace loftwing
