#include "features/qt_bloc_sketch.h"
#include "features/qt_carre_sketch.h"
#include "features/qt_talon_sketch.h"
#include "output/recording.h"
#include "output/styles.h"
#include "support/qt_nothing_cut.h"
#include "support/rib_world.h"
#include "utilities/qt_angle_sketch.h"
#include "utilities/qt_diedre_sketch.h"
#include "utilities/qt_panneau_sketch.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <set>

namespace loftwing {
namespace {

using Make = std::function<std::unique_ptr<Sketch>()>;

std::unique_ptr<Sketch> Heel(int side) {
    auto sketch = std::make_unique<TalonSketch>();
    sketch->Montre(side);
    return sketch;
}

std::unique_ptr<Sketch> Foam(const AspectBloc &aspect) {
    auto sketch = std::make_unique<BlocSketch>();
    sketch->SetChordWord("Corde");
    sketch->Montre(aspect);
    return sketch;
}

/// Every way in which a template can look.
std::vector<AspectBloc> Aspects() {
    std::vector<AspectBloc> aspects;
    for (const int tail : {0, 1}) {
        for (const double washout : {0.0, 2.5, -2.5}) {
            for (const bool inverted : {false, true}) {
                aspects.push_back({tail, washout, inverted});
            }
        }
    }
    return aspects;
}

struct Kind {
    std::set<std::string> words;
    Make make;
};

std::vector<Kind> Kinds() {
    const std::set<std::string> heel = {"A", "B", "C", "D", "B.A.", "B.F."};
    const std::set<std::string> foam = {"A", "B", "C", "D", "E", "F", "L", "Corde", "B.A.", "B.F."};
    std::vector<Kind> kinds = {
        {heel, [] { return Heel(0); }},
        {heel, [] { return Heel(1); }},
        {{"A", "B", "C", "B.A."}, [] { return std::make_unique<CarreSketch>(); }},
        {{"A", "B", "C", "D", "E", "F", "G"}, [] { return std::make_unique<PanneauSketch>(); }},
        {{"A", "B", "C"}, [] { return std::make_unique<DiedreSketch>(); }},
        {{"A", "B", "C"}, [] { return std::make_unique<ObliqueSketch>(); }},
        {{"A", "B", "C"}, [] { return std::make_unique<InclineSketch>(); }}};
    for (const AspectBloc &aspect : Aspects()) {
        kinds.push_back({foam, [aspect] { return Foam(aspect); }});
    }
    return kinds;
}

/// Paints the sketch at that size and gives its picture.
QImage Painted(Sketch &sketch, QSize size) {
    sketch.SetEdgeWords("B.A.", "B.F.");
    sketch.resize(size);
    return sketch.grab().toImage();
}

QRectF PlaceOf(const Sketch &sketch, const QString &word) {
    for (const SketchWord &shown : sketch.Words()) {
        if (shown.text == word) {
            return shown.place;
        }
    }
    ADD_FAILURE() << "no word " << word.toStdString();
    return {};
}

void ExpectWordsApart(const Sketch &sketch) {
    const std::vector<SketchWord> &words = sketch.Words();
    for (std::size_t i = 0; i < words.size(); ++i) {
        EXPECT_TRUE(QRectF(sketch.rect()).contains(words[i].place)) << words[i].text.toStdString();
        for (std::size_t k = 0; k < i; ++k) {
            EXPECT_FALSE(words[i].place.intersects(words[k].place))
                << words[i].text.toStdString() << " and " << words[k].text.toStdString();
        }
    }
}

TEST(Sketches, NameEachMeasureOnceAndApartAtAnySize) {
    for (const double scale : {0.7, 1.0, 2.0, 3.0}) {
        const FontScale font(scale);
        for (const Kind &kind : Kinds()) {
            const auto sketch = kind.make();
            for (const QSize &size : {sketch->sizeHint(), sketch->sizeHint() * 2}) {
                Painted(*sketch, size);
                std::multiset<std::string> words;
                for (const SketchWord &word : sketch->Words()) {
                    words.insert(word.text.toStdString());
                }
                EXPECT_EQ(words, std::multiset<std::string>(kind.words.begin(), kind.words.end()));
                ExpectWordsApart(*sketch);
            }
        }
    }
}

TEST(Sketches, AskForRoomAsTheFontDoes) {
    for (const Kind &kind : Kinds()) {
        const QSize usual = kind.make()->sizeHint();
        const FontScale font(2);
        const QSize large = kind.make()->sizeHint();
        EXPECT_NEAR(static_cast<double>(large.width()) / usual.width(), 2.0, 0.15);
        EXPECT_NEAR(static_cast<double>(large.height()) / usual.height(), 2.0, 0.15);
    }
}

TEST(Sketches, TheHeelChangesSides) {
    TalonSketch sketch;
    Painted(sketch, sketch.sizeHint());
    EXPECT_GT(PlaceOf(sketch, "B").top(), PlaceOf(sketch, "B.F.").bottom());
    EXPECT_GT(PlaceOf(sketch, "A").top(), PlaceOf(sketch, "B.A.").bottom());
    sketch.Montre(1);
    Painted(sketch, sketch.sizeHint());
    EXPECT_LT(PlaceOf(sketch, "B").bottom(), PlaceOf(sketch, "B.F.").top());
    EXPECT_LT(PlaceOf(sketch, "A").bottom(), PlaceOf(sketch, "B.A.").top());
}

TEST(Sketches, TheTemplateFollowsTailWashoutAndView) {
    BlocSketch sketch;
    std::vector<QImage> pictures;
    for (const AspectBloc &aspect : Aspects()) {
        sketch.Montre(aspect);
        const QImage picture = Painted(sketch, sketch.sizeHint());
        EXPECT_EQ(std::count(pictures.begin(), pictures.end(), picture), 0);
        pictures.push_back(picture);
    }
    sketch.Montre(Aspects().front());
    EXPECT_EQ(Painted(sketch, sketch.sizeHint()), pictures.front());
}

/// The template's lines of a plot, in the plot's order, y upwards on the device.
std::vector<QLineF> PlottedTemplate(const AspectBloc &aspect) {
    RibWorld world;
    TakeAirfoil(world, Naca(12, 20, true)); // a thick trailing edge about the reference line
    ValeursDefautTraits(world.settings);
    RibModel &rib = world.rib;
    rib.corde = 140;
    rib.EpCoffrage = 0;
    rib.TypeGabarit = kGabaritMousse;
    rib.bloc.BAbloc = 38;
    rib.bloc.BFbloc = 42;
    rib.bloc.HTbasbloc = 32;
    rib.bloc.HTbloc = 69;
    rib.bloc.Optquebf = static_cast<std::uint8_t>(aspect.Optquebf);
    rib.vrillage = static_cast<float>(aspect.vrillage);
    rib.AffHaut = aspect.AffHaut;
    Recording device;
    world.Place();
    EXPECT_TRUE(PrintSubroutine(world.On(device), 1.0));
    std::vector<QLineF> lines;
    for (const Operation &operation : device.Operations()) {
        const auto &line = std::get<DrawnSegment>(operation);
        lines.emplace_back(line.x1, -line.y1, line.x2, -line.y2);
        if (lines.size() == 8) { // ramp, front below, above, top, rear above, bottom, rear, tail
            break;
        }
    }
    return lines;
}

int Sign(double value) {
    return value > 1E-6 ? 1 : value < -1E-6 ? -1 : 0;
}

TEST(Sketches, TheTemplateLeansAndEndsAsThePlotHasIt) {
    for (const AspectBloc &aspect : Aspects()) {
        SCOPED_TRACE(testing::Message() << aspect.Optquebf << aspect.vrillage << aspect.AffHaut);
        const std::vector<QLineF> plot = PlottedTemplate(aspect);
        ASSERT_EQ(plot.size(), 8U);
        BlocSketch sketch;
        sketch.Montre(aspect);
        const FormeBloc block = sketch.Forme();
        const double up = aspect.AffHaut ? -1 : 1; // the sketch is mirrored as a whole
        const auto expect_same_way = [up](QPointF from, QPointF to, const QLineF &plotted) {
            EXPECT_EQ(Sign(to.x() - from.x()), Sign(plotted.dx()));
            EXPECT_EQ(Sign(up * (to.y() - from.y())), Sign(plotted.dy()));
        };
        const QPointF tip(0, 0);
        expect_same_way(tip, block.bas_avant, plot[1]);
        expect_same_way(tip, block.haut_avant, plot[2]);
        expect_same_way(block.haut_avant, block.haut_arriere, plot[3]);
        expect_same_way(block.bas_avant, block.bas_arriere, plot[5]);
        expect_same_way(block.queue, block.bord, plot[7]); // the tail
    }
}

TEST(Sketches, TheAngleOfTheTemplateStandsOnItsSide) {
    BlocSketch sketch;
    const auto middle = [&sketch](const AspectBloc &aspect) {
        sketch.Montre(aspect);
        Painted(sketch, sketch.sizeHint());
        return PlaceOf(sketch, "F").center().y();
    };
    EXPECT_LT(middle({0, 2.5, false}), middle({0, -2.5, false})); // above, y downwards
    EXPECT_GT(middle({0, 2.5, true}), middle({0, -2.5, true}));
    // The height under the reference line is above it where the rib is upside down.
    const auto below = [&sketch](bool inverted) {
        sketch.Montre({0, 0, inverted});
        Painted(sketch, sketch.sizeHint());
        return PlaceOf(sketch, "A").center().y() > PlaceOf(sketch, "E").center().y();
    };
    EXPECT_TRUE(below(false));
    EXPECT_FALSE(below(true));
}

/// Pixels as dark or as light as the text's colour.
int PixelsNear(const QImage &image, QColor colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += std::abs(image.pixelColor(x, y).lightness() - colour.lightness()) < 40 ? 1 : 0;
        }
    }
    return count;
}

TEST(Sketches, AreReadableInDarkThemes) {
    for (const Kind &kind : Kinds()) {
        const auto sketch = kind.make();
        const int usual = PixelsNear(Painted(*sketch, sketch->sizeHint()),
                                     sketch->palette().color(QPalette::WindowText));
        QPalette dark;
        dark.setColor(QPalette::Window, QColor(30, 30, 30));
        dark.setColor(QPalette::WindowText, QColor(235, 235, 235));
        sketch->setPalette(dark);
        const QImage image = Painted(*sketch, sketch->sizeHint());
        EXPECT_EQ(image.pixelColor(1, 1), QColor(30, 30, 30));
        EXPECT_GT(usual, 100);
        EXPECT_GT(PixelsNear(image, QColor(235, 235, 235)), usual / 2);
    }
}

TEST(Sketches, TheMeasureOfTheFieldInUseIsDrawnStrongly) {
    QWidget window;
    auto *rows = new QVBoxLayout(&window);
    auto *grid = new QGridLayout;
    CarreSketch sketch;
    QLabel caption("Caption");
    QLineEdit field;
    QLineEdit other;
    AddMeasure(*grid, 0, sketch, {CarreSketch::kX, caption, field, "mm"});
    rows->addLayout(grid);
    rows->addWidget(&other);
    rows->addWidget(&sketch);
    other.setFocus();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const QImage plain = sketch.grab().toImage();
    field.setFocus();
    EXPECT_NE(sketch.grab().toImage(), plain);
    other.setFocus();
    EXPECT_EQ(sketch.grab().toImage(), plain);
    EXPECT_EQ(caption.buddy(), &field);
}

TEST(SketchedAirfoil, IsClosedAtTheNoseAndBluntAtTheTail) {
    EXPECT_EQ(SketchUpper(0), 0);
    EXPECT_EQ(SketchLower(0), 0);
    EXPECT_GT(SketchUpper(1), 0);
    EXPECT_LT(SketchLower(1), 0);
    for (int k = 1; k <= 100; ++k) {
        EXPECT_GT(SketchUpper(k / 100.0), SketchLower(k / 100.0));
    }
    const QPolygonF outline = SketchOutline({2, 3}, 10);
    EXPECT_EQ(outline.front().x(), 12);
    EXPECT_EQ(outline.back().x(), 12);
    EXPECT_EQ(outline.boundingRect().left(), 2);
    EXPECT_GT(outline.front().y(), outline.back().y());
}

} // namespace
} // namespace loftwing
