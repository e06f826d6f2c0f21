// The piece under the main window's drawing.

#include "base/whole_file.h"
#include "output/styles.h"
#include "windows/views_fixture.h"

#include <gmock/gmock.h>

#include <QImage>

namespace loftwing {
namespace {

using testing::HasSubstr;

/// Of the screen at 100 %: 56.7 units a mm, 15 of them a pixel, and the leading edge 283.5 from the
/// left.
constexpr double kPixelsPerMm = 56.7 / 15;
constexpr double kLeadingEdge = 283.5 / 15;

/// A rib of 200 mm that is 24 mm thick, without anything on it: its wood is the whole airfoil.
class PieceOnScreen : public Views {
  protected:
    PieceOnScreen() {
        world.window->OuvreFichier(WindowWorld::Sample("naca0012.dat"));
        Rib().Modifie = false;
        Rib().EpCoffrage = Rib().EpBA = Rib().EpBF = 0;
        world.window->affiche();
    }

    void Toggle() { world.Action("mnu_affpiece")->trigger(); }
    bool Ticked() const { return world.Action("mnu_affpiece")->isChecked(); }
    const std::vector<QPainterPath> &Wood() const { return world.Find<PicView>("Pic")->Dessous(); }
    QRectF Bounds() const { return Wood().empty() ? QRectF() : Wood().front().boundingRect(); }
    /// Whether there is wood so many mm behind the leading edge, in the middle of the rib.
    bool WoodAt(double mm) const {
        const QPointF place(kLeadingEdge + mm * kPixelsPerMm, Bounds().center().y());
        return !Wood().empty() && Wood().front().contains(place);
    }
    void HaveHole(float place, float diameter) {
        Rib().trou[0].PosTrouAfich = std::to_string(place / 2) + "%"; // of 200 mm
        Rib().trou[0].PosTrou = place;
        Rib().trou[0].DiaTrou = diameter;
        Rib().trou[0].ChkCentre = 1;
        Rib().NbTrou = 0;
    }
    bool Told() const {
        QApplication::processEvents();
        return world.Main().Has("notice_piece_text") && world.Main().Shown("notice_piece_text");
    }
    std::string Text() const { return world.Main().Label("notice_piece_text"); }
    static QColor At(const QImage &image, double x, double y) {
        return image.pixelColor(static_cast<int>(x), static_cast<int>(y));
    }
};

TEST_F(PieceOnScreen, IsShownAndTakenAwayByItsEntry) {
    EXPECT_FALSE(Ticked());
    EXPECT_TRUE(Wood().empty());
    Toggle();
    ASSERT_EQ(Wood().size(), 1U);
    EXPECT_NEAR(Bounds().left(), kLeadingEdge, 0.5);
    EXPECT_NEAR(Bounds().width(), 200 * kPixelsPerMm, 0.5);
    EXPECT_NEAR(Bounds().height(), 24 * kPixelsPerMm, 0.5);
    Toggle();
    EXPECT_TRUE(Wood().empty());
}

TEST_F(PieceOnScreen, IsPaintedUnderTheDrawing) {
    world.Resize({1000, 700});
    Toggle();
    auto *pic = world.Find<PicView>("Pic");
    const QPointF middle = Bounds().center();
    const double above = middle.y() - 5 * kPixelsPerMm;
    const QImage with = pic->grab().toImage();
    EXPECT_EQ(At(with, middle.x(), above), QColor(0xF7, 0xE6, 0xBE));
    EXPECT_EQ(At(with, middle.x(), Bounds().top() - 20), QColor(Qt::white));
    Toggle();
    const QImage without = pic->grab().toImage();
    EXPECT_EQ(At(without, middle.x(), above), QColor(Qt::white));
    // The reference line is no paler with wood under it than on paper; the wood alone is lighter.
    const auto darkest = [&](const QImage &image) {
        int least = 255;
        for (int y = static_cast<int>(middle.y()) - 3; y <= static_cast<int>(middle.y()) + 3; ++y) {
            for (int x = static_cast<int>(middle.x()) - 40; x < middle.x(); ++x) {
                least = std::min(least, image.pixelColor(x, y).lightness());
            }
        }
        return least;
    };
    EXPECT_LE(darkest(with), darkest(without));
    EXPECT_LT(darkest(with), 200);
}

TEST_F(PieceOnScreen, LooksTheSameOnEveryDesktop) {
    world.Resize({1000, 700});
    Toggle();
    auto *pic = world.Find<PicView>("Pic");
    const QImage light = pic->grab().toImage();
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    pic->setPalette(dark);
    EXPECT_EQ(pic->grab().toImage(), light);
}

TEST_F(PieceOnScreen, FollowsTheRibAtEveryRedraw) {
    Toggle();
    EXPECT_TRUE(WoodAt(100));
    HaveHole(100, 8);
    world.window->affiche();
    EXPECT_FALSE(WoodAt(100));
    EXPECT_TRUE(WoodAt(105));
    Rib().EpBA = 10;
    Rib().TypeBA = 1;
    Rib().EpBF = 30;
    world.window->affiche();
    EXPECT_NEAR(Bounds().left(), kLeadingEdge + 10 * kPixelsPerMm, 0.01);
    EXPECT_NEAR(Bounds().right(), kLeadingEdge + 170 * kPixelsPerMm, 0.01);
}

TEST_F(PieceOnScreen, LiesOnItsContourAtEveryZoomScrolledAndUpsideDown) {
    Toggle();
    const auto expect_on_contour = [this](const std::string &what) {
        double left = 1e9, right = -1e9, top = 1e9, bottom = -1e9;
        const Colour contour = CouleurDe(world.programme.settings, Element::profil);
        for (const DrawnSegment &line : SegmentsOf(Drawing()->Operations())) {
            if (line.pen.colour == contour) {
                left = std::min({left, line.x1 / 15, line.x2 / 15});
                right = std::max({right, line.x1 / 15, line.x2 / 15});
                top = std::min({top, line.y1 / 15, line.y2 / 15});
                bottom = std::max({bottom, line.y1 / 15, line.y2 / 15});
            }
        }
        EXPECT_NEAR(Bounds().left(), left, 0.5) << what;
        EXPECT_NEAR(Bounds().right(), right, 0.5) << what;
        EXPECT_NEAR(Bounds().top(), top, 0.5) << what;
        EXPECT_NEAR(Bounds().bottom(), bottom, 0.5) << what;
    };
    // A cambered airfoil, so that up and down aren't the same.
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    Rib().EpCoffrage = Rib().EpBA = Rib().EpBF = 0;
    world.window->affiche();
    for (int row = 0; row < std::ssize(kZoomRows); ++row) {
        Q_EMIT world.Find<QComboBox>("Combo1")->activated(row);
        expect_on_contour(kZoomRows.at(static_cast<std::size_t>(row)));
    }
    Q_EMIT world.Find<QComboBox>("Combo1")->activated(1);
    Rib().DecalX = -1;
    Rib().DecalY = -1;
    world.window->affiche();
    expect_on_contour("scrolled");
    const double upright = Bounds().top();
    world.Action("mnu_affinver")->trigger();
    expect_on_contour("upside down");
    EXPECT_GT(std::abs(Bounds().top() - upright), 5);
}

TEST_F(PieceOnScreen, GoesWithTheRibAndComesWithTheNext) {
    Toggle();
    world.Action("mnu_affclear")->trigger();
    EXPECT_TRUE(Wood().empty());
    EXPECT_FALSE(Enabled("mnu_affpiece"));
    OpenRib();
    EXPECT_TRUE(Enabled("mnu_affpiece"));
    EXPECT_TRUE(Ticked());
    EXPECT_EQ(Wood().size(), 1U);
}

TEST_F(PieceOnScreen, IsNoneOfAViewInTheRibsPlace) {
    Toggle();
    Compare();
    EXPECT_TRUE(Wood().empty());
    EXPECT_FALSE(Enabled("mnu_affpiece"));
}

TEST_F(PieceOnScreen, StandsInNoFile) {
    const std::string settings = ReadWholeFileIfThere(world.programme.paths.fichier);
    Toggle();
    EXPECT_EQ(ReadWholeFileIfThere(world.programme.paths.fichier), settings);
    EXPECT_FALSE(Rib().Modifie);
}

TEST_F(PieceOnScreen, LeavesPlotAndDrawingAlone) {
    const auto drawn = Drawing()->Operations();
    const PlotState before = world.programme.plot;
    Toggle();
    EXPECT_EQ(Drawing()->Operations(), drawn);
    EXPECT_EQ(world.programme.plot.OrigineY, before.OrigineY);
    world.window->affiche();
    EXPECT_EQ(Drawing()->Operations(), drawn);
}

TEST_F(PieceOnScreen, ItsWarningsStandAboveThePictureWhileItIsShown) {
    HaveHole(100, 30); // wider than the rib is thick
    world.window->affiche();
    EXPECT_FALSE(Told());
    Toggle();
    ASSERT_TRUE(Told());
    EXPECT_THAT(Text(), HasSubstr("Piece : "));
    EXPECT_THAT(Text(), HasSubstr("Hole 1 leaves the wood and opens its outline."));
    EXPECT_THAT(Text(), HasSubstr("The piece falls apart into 2 parts."));
    Toggle();
    EXPECT_FALSE(Told());
}

TEST_F(PieceOnScreen, AWarningThatWasClosedStaysSoUntilThereIsAnother) {
    Toggle();
    HaveHole(100, 30);
    world.window->affiche();
    ASSERT_TRUE(Told());
    world.Main().Click("notice_piece_close");
    world.window->affiche();
    EXPECT_FALSE(Told());
    HaveHole(199, 8); // opens the trailing edge, and the wood stays in one
    world.window->affiche();
    EXPECT_TRUE(Told());
}

TEST_F(PieceOnScreen, WhereThereIsNoPieceItSaysWhyWithoutABox) {
    Toggle();
    Rib().EpCoffrage = 15; // of 12 to either side
    world.window->affiche();
    EXPECT_TRUE(Wood().empty());
    ASSERT_TRUE(Told());
    EXPECT_EQ(Text(), "Piece : No piece can be made: no wood is left.");
    Rib().EpCoffrage = 1;
    world.window->affiche();
    EXPECT_FALSE(Wood().empty());
    EXPECT_FALSE(Told());
}

TEST_F(PieceOnScreen, ARefusedRedrawLeavesItAtTheOldDrawing) {
    Toggle();
    const QRectF before = Bounds();
    Rib().EpBA = 400; // wider than the chord
    world.platform.Expect(BoxAnswer::ok);
    world.window->affiche();
    EXPECT_EQ(Bounds(), before);
}

} // namespace
} // namespace loftwing
