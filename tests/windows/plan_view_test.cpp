// The picture of a building plan.

#include "mainwindow/plan_view.h"

#include "platform/qt_contrast.h"
#include "support/qt_modal.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QWheelEvent>

namespace loftwing {
namespace {

constexpr double kTrueSize = 56.7 / 15; // pixels a mm, as the main window at 100 %

/// A plan of 1000 x 200 mm in a picture of 620 x 320 pixels.
class PlanOnScreen : public testing::Test {
  protected:
    PlanOnScreen() {
        QCursor::setPos(700, 500); // keys zoom about the pointer where it is over the picture
        view.resize(620, 320);
        view.show();
        QApplication::processEvents();
    }

    PlanView view{nullptr};

    static DessinPlan Wing() {
        DessinPlan plan;
        plan.titre = "wing";
        plan.traits = {{CouchePlan::contour, {{0, 0}, {1000, 0}, {1000, -200}, {0, -200}}, true}};
        return plan;
    }
    QPointF Seen(double x, double y) const { return view.Vers().map(QPointF(x, y)); }
    void Wheel(const QPointF &place, int turn, Qt::KeyboardModifiers keys) {
        QWheelEvent event(place, view.mapToGlobal(place), {}, {0, turn}, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &event);
    }
    static void ExpectNear(const QPointF &one, const QPointF &other) {
        EXPECT_NEAR(one.x(), other.x(), 1e-6);
        EXPECT_NEAR(one.y(), other.y(), 1e-6);
    }
    /// How many pixels of the picture aren't ground or frame.
    int Ink() {
        const QImage picture = view.grab().toImage();
        const QRgb ground = view.palette().color(QPalette::Base).rgb();
        int ink = 0;
        for (int y = 1; y + 1 < picture.height(); ++y) {
            for (int x = 1; x + 1 < picture.width(); ++x) {
                ink += picture.pixel(x, y) == ground ? 0 : 1;
            }
        }
        return ink;
    }
};

TEST_F(PlanOnScreen, AllOfADrawingIsSeenAtFirstWithItsYUp) {
    view.Montre(Wing());
    EXPECT_TRUE(view.EstAjuste());
    EXPECT_DOUBLE_EQ(view.Echelle(), 0.6); // 600 pixels between the margins of 10
    ExpectNear(Seen(0, 0), {10, 100});
    ExpectNear(Seen(1000, -200), {610, 220});
}

TEST_F(PlanOnScreen, CtrlWithTheWheelZoomsAboutThePointer) {
    view.Montre(Wing());
    const QPointF place(100, 130);
    const QPointF held = view.Vers().inverted().map(place);
    Wheel(place, 3 * 120, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view.Echelle(), 0.6 * 1.25 * 1.25 * 1.25);
    EXPECT_FALSE(view.EstAjuste());
    EXPECT_NEAR(Seen(held.x(), held.y()).x(), place.x(), 1e-6);
    Wheel(place, -3 * 120, Qt::ControlModifier);
    EXPECT_TRUE(view.EstAjuste());
    Wheel(place, -120, Qt::ControlModifier); // no smaller than whole
    EXPECT_DOUBLE_EQ(view.Echelle(), 0.6);
}

TEST_F(PlanOnScreen, KeysZoomAndFitAndShowTheTrueSize) {
    view.Montre(Wing());
    QTest::keyClick(&view, Qt::Key_Plus);
    EXPECT_DOUBLE_EQ(view.Echelle(), 0.6 * 1.25);
    ExpectNear(Seen(500, -100), {310, 160}); // about the middle
    QTest::keyClick(&view, Qt::Key_Minus);
    EXPECT_TRUE(view.EstAjuste());
    QTest::keyClick(&view, Qt::Key_0);
    EXPECT_DOUBLE_EQ(view.Echelle(), kTrueSize);
    QTest::keyClick(&view, Qt::Key_F);
    EXPECT_DOUBLE_EQ(view.Echelle(), 0.6);
    for (int i = 0; i < 50; ++i) {
        QTest::keyClick(&view, Qt::Key_Equal);
    }
    EXPECT_DOUBLE_EQ(view.Echelle(), 100); // no nearer
}

TEST_F(PlanOnScreen, ASmallDrawingCanBeSeenAtItsTrueSize) {
    DessinPlan plan = Wing();
    plan.traits[0].points = {{0, 0}, {10, 0}, {10, -10}};
    view.Montre(plan);
    EXPECT_DOUBLE_EQ(view.Echelle(), 30);
    QTest::keyClick(&view, Qt::Key_0);
    EXPECT_DOUBLE_EQ(view.Echelle(), kTrueSize);
    ExpectNear(Seen(5, -5), {310, 160});
}

TEST_F(PlanOnScreen, WheelArrowsAndDragsMoveItAsFarAsItReaches) {
    view.Montre(Wing());
    QTest::keyClick(&view, Qt::Key_Right);
    ExpectNear(Seen(0, 0), {10, 100}); // all of it is seen
    QTest::keyClick(&view, Qt::Key_0);
    const QPointF before = Seen(500, -100);
    QTest::keyClick(&view, Qt::Key_Right);
    ExpectNear(Seen(500, -100), before - QPointF(620 / 8.0, 0));
    QTest::keyClick(&view, Qt::Key_Left);
    ExpectNear(Seen(500, -100), before);
    QTest::keyClick(&view, Qt::Key_Down);
    ExpectNear(Seen(500, -100), before - QPointF(0, 40));
    Wheel({5, 5}, 120, {});
    ExpectNear(Seen(500, -100), before + QPointF(0, 8)); // three lines of 16 up
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton}) {
        const QPointF here = Seen(500, -100);
        QTest::mousePress(&view, button, {}, {100, 100});
        QMouseEvent move(QEvent::MouseMove, QPointF(130, 90), view.mapToGlobal(QPointF(130, 90)),
                         Qt::NoButton, button, {});
        QApplication::sendEvent(&view, &move);
        QTest::mouseRelease(&view, button, {}, {130, 90});
        ExpectNear(Seen(500, -100), here + QPointF(30, -10));
    }
    for (int i = 0; i < 100; ++i) {
        QTest::keyClick(&view, Qt::Key_Left);
    }
    EXPECT_NEAR(Seen(0, 0).x(), 10, 1e-6); // no farther than its end
}

TEST_F(PlanOnScreen, APlanThatChangesIsSeenWhereItWas) {
    view.Montre(Wing());
    QTest::keyClick(&view, Qt::Key_0);
    const QPointF before = Seen(500, -100);
    DessinPlan longer = Wing();
    longer.traits[0].points[1].x = longer.traits[0].points[2].x = 1100;
    view.Montre(longer);
    ExpectNear(Seen(500, -100), before);
}

TEST_F(PlanOnScreen, LettersTooSmallToBeReadAreLeftOut) {
    DessinPlan plan = Wing();
    plan.traits[0].points = {{0, 0}, {1000, 0}};
    view.Montre(plan);
    const int line = Ink();
    plan.textes = {{CouchePlan::nervure, {500, -50}, 6.6, "WWW", AppuiTexte::milieu}};
    view.Montre(plan);
    EXPECT_EQ(Ink(), line); // 3.96 pixels
    plan.textes[0].hauteur = 7;
    view.Montre(plan);
    EXPECT_GT(Ink(), line + 20);
}

TEST_F(PlanOnScreen, WordsStandInThePlaceOfADrawing) {
    EXPECT_EQ(Ink(), 0);
    view.Montre(Wing());
    EXPECT_EQ(view.accessibleDescription(), "wing");
    view.MontreMots("The plan wants a length.");
    EXPECT_TRUE(view.Dessin().traits.empty());
    EXPECT_EQ(view.accessibleDescription(), "The plan wants a length.");
    EXPECT_GT(Ink(), 50);
    QTest::keyClick(&view, Qt::Key_Plus); // nothing to be zoomed
    view.Montre(Wing());
    EXPECT_TRUE(view.EstAjuste());
    EXPECT_TRUE(view.Mots().isEmpty());
}

TEST_F(PlanOnScreen, ItsColoursCanBeToldFromAnyGround) {
    for (const auto &[text, ground] : {std::pair(Qt::black, Qt::white), {Qt::white, Qt::black}}) {
        QPalette desktop;
        desktop.setColor(QPalette::Base, ground);
        desktop.setColor(QPalette::Text, text);
        desktop.setColor(QPalette::Highlight, ground); // as bad as it can be
        desktop.setColor(QPalette::Link, ground);
        view.setPalette(desktop);
        for (int layer = 0; layer < kCouchesPlan; ++layer) {
            EXPECT_GE(Contraste(view.Couleur(static_cast<CouchePlan>(layer)), ground),
                      kContrasteTrait)
                << layer;
        }
        EXPECT_GE(Contraste(view.Couleur(CouchePlan::cote), ground), kContrasteTexte);
    }
}

} // namespace
} // namespace loftwing
