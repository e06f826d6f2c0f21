// Zooming and scrolling the main window's picture.

#include "output/recording.h"
#include "platform/qt_plot_device.h"
#include "support/qt_window_world.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

namespace loftwing {
namespace {

void Turn(PicView &pic, int eighths, Qt::KeyboardModifiers keys, const QPointF &at) {
    QWheelEvent event(at, pic.mapToGlobal(at), QPoint(), QPoint(0, eighths), Qt::NoButton, keys,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&pic, &event);
}

TEST(MainPicture, ZoomComesFromTheRowsTextAndResetsTheScrollBars) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    auto *zoom = world.Find<QComboBox>("Combo1");
    zoom->setCurrentIndex(0);
    Q_EMIT zoom->activated(0);
    EXPECT_EQ(world.programme.rib.Zoom, 3.0F);
    auto *across = world.Find<QScrollBar>("Hsbpic");
    ASSERT_GT(across->maximum(), 0);
    across->setValue(1);
    EXPECT_EQ(world.programme.rib.DecalX, -1);
    zoom->setCurrentIndex(4);
    Q_EMIT zoom->activated(4);
    EXPECT_EQ(world.programme.rib.Zoom, 0.75F);
    EXPECT_EQ(across->value(), 0);
    EXPECT_EQ(world.programme.rib.DecalX, 0);
}

TEST(MainPicture, ScrollBarsReachTheWholeDrawing) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.window->resize(400, 160);
    QApplication::processEvents();
    world.Find<QComboBox>("Combo1")->setCurrentIndex(0);
    Q_EMIT world.Find<QComboBox>("Combo1")->activated(0);
    auto *across = world.Find<QScrollBar>("Hsbpic");
    auto *down = world.Find<QScrollBar>("Vsbpic");
    across->setValue(across->maximum());
    down->setValue(down->minimum());
    EXPECT_LT(down->minimum(), 0);
    EXPECT_EQ(down->maximum(), 0);
    auto *pic = world.Find<PicView>("Pic");
    const Extent extent = pic->Dessin()->Bounds();
    EXPECT_LE(extent.right, pic->width() * 15.0);
    EXPECT_LE(extent.bottom, pic->height() * 15.0);
}

TEST(MainPicture, WithoutAnAirfoilZoomAndScrollHaveNoVisibleEffect) {
    WindowWorld world;
    world.Open();
    Q_EMIT world.Find<QComboBox>("Combo1")->activated(0);
    EXPECT_EQ(world.Find<PicView>("Pic")->Dessin(), nullptr);
    EXPECT_FALSE(world.Find<QScrollBar>("Hsbpic")->isEnabled());
}

TEST(MainPicture, CtrlWithTheWheelStepsThroughTheZoomList) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    auto *pic = world.Find<PicView>("Pic");
    const auto turn = [&](int eighths, Qt::KeyboardModifiers keys) {
        Turn(*pic, eighths, keys, QPointF(50, 50));
    };
    turn(120, Qt::ControlModifier);
    EXPECT_EQ(world.programme.rib.Zoom, 1.5F);
    turn(60, Qt::ControlModifier);
    EXPECT_EQ(world.programme.rib.Zoom, 1.5F);
    turn(60, Qt::ControlModifier);
    EXPECT_EQ(world.programme.rib.Zoom, 2.0F);
    turn(-1200, Qt::ControlModifier);
    EXPECT_EQ(world.programme.rib.Zoom, 0.25F);
    world.window->resize(400, 160);
    QApplication::processEvents();
    turn(1200, Qt::ControlModifier);
    EXPECT_EQ(world.programme.rib.Zoom, 3.0F);
    turn(-120, Qt::NoModifier);
    EXPECT_LT(world.Find<QScrollBar>("Vsbpic")->value(), 0);
}

TEST(MainPicture, TheMiddleButtonDragsTheDrawing) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    Q_EMIT world.Find<QComboBox>("Combo1")->activated(0);
    auto *pic = world.Find<PicView>("Pic");
    QTest::mousePress(pic, Qt::MiddleButton, {}, QPoint(300, 100));
    QTest::mouseMove(pic, QPoint(200, 100));
    QTest::mouseRelease(pic, Qt::MiddleButton, {}, QPoint(200, 100));
    // One unit is half the chord: 200 mm at three times are 300 units of 1/15 pixel, 20 pixels.
    EXPECT_EQ(world.Find<QScrollBar>("Hsbpic")->value(), 5);
}

/// A window with a rib of 200 mm, which is larger than its picture from 100 % on.
class ZoomedPicture : public testing::Test {
  protected:
    ZoomedPicture() {
        world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
        world.Resize(QSize(500, 220));
    }

    PicView &Pic() const { return *world.Find<PicView>("Pic"); }
    float Zoom() const { return world.programme.rib.Zoom; }
    int Across() const { return world.Find<QScrollBar>("Hsbpic")->value(); }
    int Down() const { return world.Find<QScrollBar>("Vsbpic")->value(); }
    /// Where on the chord a pixel of the picture lies, in mm from the leading edge, and how far
    /// below the chord line.
    QPointF OnRib(const QPointF &pixel) const {
        const PlotState &plot = world.programme.plot;
        return {(pixel.x() * kUnitsPerPixel - plot.OrigineX) / (kUnitsPerMm * Zoom()),
                (pixel.y() * kUnitsPerPixel - plot.OrigineY) / (kUnitsPerMm * Zoom())};
    }
    /// Half a unit of the bars, of which each is half the chord in device units.
    double Nearest() const { return world.programme.rib.corde / 4 / kUnitsPerMm + 0.001; }
    void ExpectStays(const QPointF &before, const QPointF &pixel) const {
        EXPECT_NEAR(OnRib(pixel).x(), before.x(), Nearest());
        EXPECT_NEAR(OnRib(pixel).y(), before.y(), Nearest());
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(world.window.get(), key, modifiers);
    }
    bool SeenWhole() const {
        const Extent extent = Pic().Dessin()->Bounds();
        return extent.left >= 0 && extent.top >= 0 &&
               extent.right <= Pic().width() * kUnitsPerPixel &&
               extent.bottom <= Pic().height() * kUnitsPerPixel;
    }

    WindowWorld world;
};

TEST_F(ZoomedPicture, TheWheelKeepsWhatIsUnderThePointer) {
    const QPointF pointer(380, 95);
    const QPointF before = OnRib(pointer);
    for (const float zoom : {1.5F, 2.0F, 3.0F}) {
        Turn(Pic(), 120, Qt::ControlModifier, pointer);
        ASSERT_EQ(Zoom(), zoom);
        ExpectStays(before, pointer);
        EXPECT_GT(Across(), 0);
    }
    const QPointF other(200, 60);
    const QPointF there = OnRib(other);
    Turn(Pic(), -120, Qt::ControlModifier, other);
    ASSERT_EQ(Zoom(), 2.0F);
    ExpectStays(there, other);
}

TEST_F(ZoomedPicture, ZoomedOutItNeverLeavesThePicture) {
    for (const int eighths : {360, -720}) {
        Turn(Pic(), eighths, Qt::ControlModifier, QPointF(480, 100));
    }
    EXPECT_EQ(Zoom(), 0.25F);
    EXPECT_EQ(Across(), 0);
    EXPECT_TRUE(SeenWhole());
}

TEST_F(ZoomedPicture, KeysZoomAroundTheMiddle) {
    const QPointF middle(Pic().width() / 2.0, Pic().height() / 2.0);
    const QPointF before = OnRib(middle);
    Press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Zoom(), 1.5F);
    EXPECT_EQ(world.Find<QComboBox>("Combo1")->currentIndex(), 2);
    ExpectStays(before, middle);
    Press(Qt::Key_Equal, Qt::ControlModifier);
    EXPECT_EQ(Zoom(), 2.0F);
    ExpectStays(before, middle);
    Press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(Zoom(), 1.5F);
}

TEST_F(ZoomedPicture, CtrlZeroIsTheFullSizeFromTheStart) {
    for (int i = 0; i < 3; ++i) {
        Press(Qt::Key_Plus, Qt::ControlModifier);
    }
    ASSERT_GT(Across(), 0);
    Press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Zoom(), 1.0F);
    EXPECT_EQ(world.Find<QComboBox>("Combo1")->currentIndex(), 3);
    EXPECT_EQ(Across(), 0);
    EXPECT_EQ(Down(), 0);
}

TEST_F(ZoomedPicture, FShowsTheWholeRibAsLargeAsItCan) {
    for (const QSize size : {QSize(520, 240), QSize(1300, 500), QSize(700, 400)}) {
        world.Resize(size);
        Press(Qt::Key_Plus, Qt::ControlModifier);
        Press(Qt::Key_F);
        EXPECT_TRUE(SeenWhole()) << size.width();
        EXPECT_FALSE(world.Find<QScrollBar>("Hsbpic")->isEnabled());
        EXPECT_FALSE(world.Find<QScrollBar>("Vsbpic")->isEnabled());
        const float fits = Zoom();
        Press(Qt::Key_Plus, Qt::ControlModifier);
        EXPECT_GT(Zoom(), fits);
        EXPECT_TRUE(world.Find<QScrollBar>("Hsbpic")->isEnabled() ||
                    world.Find<QScrollBar>("Vsbpic")->isEnabled())
            << size.width();
    }
}

TEST_F(ZoomedPicture, WithoutADrawingFLeavesTheZoom) {
    world.window->affclear();
    Press(Qt::Key_F);
    EXPECT_EQ(Zoom(), 1.0F);
}

TEST_F(ZoomedPicture, ArrowKeysScrollByALine) {
    Q_EMIT world.Find<QComboBox>("Combo1")->activated(0);
    ASSERT_EQ(Zoom(), 3.0F);
    // A line is 30 pixels, of which a unit has 20: one unit.
    const int line = world.Find<QScrollBar>("Hsbpic")->singleStep();
    ASSERT_EQ(line, 1);
    EXPECT_TRUE(Pic().hasFocus());
    const auto press = [this](Qt::Key key, int times) {
        for (int i = 0; i < times; ++i) {
            QTest::keyClick(world.window->focusWidget(), key);
        }
    };
    press(Qt::Key_Right, 3);
    EXPECT_EQ(Across(), 3);
    EXPECT_EQ(world.programme.rib.DecalX, -3);
    press(Qt::Key_Left, 1);
    EXPECT_EQ(Across(), 2);
    press(Qt::Key_Down, 2);
    EXPECT_EQ(Down(), -2);
    press(Qt::Key_Up, 1);
    EXPECT_EQ(Down(), -1);
}

TEST_F(ZoomedPicture, AClickOnTheZoomListLeavesTheArrowKeysToThePicture) {
    QTest::mouseClick(world.Find<QComboBox>("Combo1"), Qt::LeftButton);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_TRUE(Pic().hasFocus());
}

} // namespace
} // namespace loftwing
