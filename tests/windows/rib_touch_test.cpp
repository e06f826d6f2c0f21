// The mouse on the main window's drawing.

#include "output/screen_plot.h"
#include "output/view_screen.h"
#include "platform/qt_plot_device.h"
#include "support/qt_window_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTest>
#include <QToolTip>

namespace loftwing {
namespace {

using testing::HasSubstr;

class RibTouchTest : public testing::Test {
  protected:
    RibTouchTest() {
        world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
        Trou &hole = Rib().trou[0];
        hole.PosTrouAfich = "60";
        hole.DiaTrouAfich = "10";
        hole.DiaTrou = 10;
        hole.ChkCentre = 1;
        Longeron &spar = Rib().longeron[0];
        spar.PosLongAfich = "100";
        spar.LargLongAfich = "6";
        spar.LargLong = 6;
        spar.HautLongAfich = "3";
        spar.HautLong = 3;
        spar.OptLongExt = 2;
        world.window->affiche();
    }

    PicView &Pic() const { return *world.Find<PicView>("Pic"); }
    RibModel &Rib() { return world.programme.rib; }
    /// The pixel of a place on the rib, mm from the leading edge and above the reference line.
    QPoint Pixel(double x, double y) {
        const PlaceEcran origin = PlaceProfil(Rib(), world.programme.compare);
        const double scale = kUnitsPerMm * origin.zoom / kUnitsPerPixel;
        return QPointF(origin.x / kUnitsPerPixel + x * scale, origin.y / kUnitsPerPixel - y * scale)
            .toPoint();
    }
    QPoint Hole() {
        const int k = 400 - 2 * 60; // the station of 60 mm of 200
        return Pixel(60, 100 * (Rib().TabExtrados[k] + Rib().TabIntrados[k]));
    }
    static void Move(PicView &pic, const QPoint &to) { QTest::mouseMove(&pic, to); }

    WindowWorld world;
};

TEST_F(RibTouchTest, PointingAtAHoleShowsItsNameAndMeasures) {
    Move(Pic(), Pixel(150, 60)); // beside the rib
    EXPECT_EQ(Pic().ToucheMontree(), nullptr);
    Move(Pic(), Hole());
    ASSERT_NE(Pic().ToucheMontree(), nullptr);
    EXPECT_EQ(S(QToolTip::text()), "hole 1: 60 mm from the leading edge, Ø 10 mm");
    Move(Pic(), Pixel(150, 60));
    EXPECT_EQ(Pic().ToucheMontree(), nullptr);
}

TEST_F(RibTouchTest, ADoubleClickOpensTheDialogAtItsSlot) {
    Rib().NbTrou = 1;
    Rib().trou[1] = Rib().trou[0];
    Rib().trou[1].PosTrouAfich = "130";
    world.window->affiche();
    bool opened = false;
    InNextDialog([&](Seen &dialog) {
        opened = true;
        EXPECT_EQ(dialog.Name(), "frmtrou");
        EXPECT_EQ(dialog.Text("Text1(0)"), "60");
        dialog.Click("Cmdannuler");
    });
    QTest::mouseDClick(&Pic(), Qt::LeftButton, {}, Hole());
    EXPECT_TRUE(opened);
}

TEST_F(RibTouchTest, AHoleIsDraggedInOneStep) {
    const QPoint from = Hole();
    const QPoint to = from + (Pixel(90, 0) - Pixel(60, 0));
    QTest::mousePress(&Pic(), Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, Pic().mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&Pic(), &move);
    EXPECT_NE(Pic().Essai(), nullptr);
    EXPECT_THAT(S(QToolTip::text()), HasSubstr("90 mm"));
    EXPECT_EQ(Rib().trou[0].PosTrouAfich, "60"); // not yet
    QTest::mouseRelease(&Pic(), Qt::LeftButton, {}, to);
    EXPECT_EQ(Rib().trou[0].PosTrouAfich, "90");
    EXPECT_EQ(Pic().Essai(), nullptr);
    EXPECT_EQ(S(world.Action("mnu_editannule")->text()), "&Undo: hole 1");
    world.Action("mnu_editannule")->trigger();
    EXPECT_EQ(Rib().trou[0].PosTrouAfich, "60");
}

TEST_F(RibTouchTest, EscapeCallsADragOff) {
    const QPoint from = Hole();
    const QPoint to = from + QPoint(60, 0);
    QTest::mousePress(&Pic(), Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, Pic().mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&Pic(), &move);
    QTest::keyClick(&Pic(), Qt::Key_Escape);
    EXPECT_EQ(Pic().Essai(), nullptr);
    QTest::mouseRelease(&Pic(), Qt::LeftButton, {}, to);
    EXPECT_EQ(Rib().trou[0].PosTrouAfich, "60");
}

TEST_F(RibTouchTest, AnUndoCallsADragOff) {
    const QPoint from = Hole();
    const QPoint to = from + QPoint(60, 0);
    const auto move = [this](const QPoint &place) {
        QMouseEvent event(QEvent::MouseMove, place, Pic().mapToGlobal(place), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&Pic(), &event);
    };
    QTest::mousePress(&Pic(), Qt::LeftButton, {}, from);
    move(to);
    world.Action("mnu_editannule")->trigger(); // of hole and spar, which are one step here
    EXPECT_EQ(Rib().trou[0].DiaTrouAfich, "0");
    move(to + QPoint(10, 0));
    QTest::mouseRelease(&Pic(), Qt::LeftButton, {}, to);
    EXPECT_EQ(Pic().Essai(), nullptr);
    EXPECT_EQ(Rib().trou[0].PosTrouAfich, "0");
    EXPECT_TRUE(world.Action("mnu_editretablit")->isEnabled());
}

TEST_F(RibTouchTest, AClickMovesNothing) {
    QTest::mouseClick(&Pic(), Qt::LeftButton, {}, Hole());
    EXPECT_EQ(Rib().trou[0].PosTrouAfich, "60");
    EXPECT_NE(Pic().ToucheMontree(), nullptr);
}

TEST_F(RibTouchTest, DeleteRemovesWhatWasClickedAfterAQuestion) {
    QTest::mouseClick(&Pic(), Qt::LeftButton, {}, Hole());
    world.platform.Expect(BoxAnswer::yes, {.text = "Remove hole 1 ?"});
    QTest::keyClick(&Pic(), Qt::Key_Delete);
    EXPECT_EQ(Rib().trou[0].DiaTrouAfich, "0");
    world.Action("mnu_editannule")->trigger();
    EXPECT_EQ(Rib().trou[0].DiaTrouAfich, "10");
    QTest::keyClick(&Pic(), Qt::Key_Delete); // nothing is selected any more
}

TEST_F(RibTouchTest, UpsideDownAHoleFollowsThePointer) {
    Rib().trou[0].ChkCentre = 0;
    Rib().trou[0].DecalTrouAfich = "3";
    Rib().trou[0].DecalTrou = 3;
    world.Action("mnu_affinver")->trigger();
    const PlaceEcran origin = PlaceProfil(Rib(), world.programme.compare);
    const double scale = kUnitsPerMm * origin.zoom / kUnitsPerPixel;
    const QPoint from =
        (QPointF(origin.x, origin.y) / kUnitsPerPixel + QPointF(60, 3) * scale).toPoint();
    const QPoint to = from + QPoint(0, qRound(5 * scale));
    QTest::mousePress(&Pic(), Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, Pic().mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&Pic(), &move);
    QTest::mouseRelease(&Pic(), Qt::LeftButton, {}, to);
    EXPECT_EQ(Rib().trou[0].DecalTrouAfich, "8");
}

TEST_F(RibTouchTest, MeasuringCatchesCentresAndSaysTheDistance) {
    world.Action("mnu_affmesure")->trigger();
    QTest::mouseClick(&Pic(), Qt::LeftButton, {}, Hole() + QPoint(2, -1));
    Move(Pic(), Hole() + QPoint(80, 30));
    QTest::mouseClick(&Pic(), Qt::LeftButton, {}, Pixel(200, 0)); // the trailing edge
    ASSERT_NE(Pic().ToucheMontree(), nullptr);
    const auto &drawn = Pic().ToucheMontree()->Operations();
    const auto *text = std::get_if<DrawnText>(&drawn.back());
    ASSERT_NE(text, nullptr);
    EXPECT_THAT(text->text, HasSubstr("140."));
    EXPECT_THAT(text->text, HasSubstr(" in"));
    const std::string before = text->text;
    world.Action("mnu_affzoomplus")->trigger();
    Move(Pic(), Hole() + QPoint(9, 9));
    const auto *zoomed = std::get_if<DrawnText>(&Pic().ToucheMontree()->Operations().back());
    ASSERT_NE(zoomed, nullptr);
    EXPECT_EQ(zoomed->text, before); // the points stay on the rib
    QTest::keyClick(&Pic(), Qt::Key_Escape);
    EXPECT_FALSE(world.Action("mnu_affmesure")->isChecked());
    EXPECT_EQ(Pic().ToucheMontree(), nullptr);
    EXPECT_EQ(Rib().trou[0].PosTrouAfich, "60");
}

} // namespace
} // namespace loftwing
