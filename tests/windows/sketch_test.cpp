#include "features/qt_bloc_sketch.h"
#include "features/qt_carre_sketch.h"
#include "features/qt_talon_sketch.h"
#include "support/qt_nothing_cut.h"
#include "utilities/qt_diedre_sketch.h"
#include "utilities/qt_panneau_sketch.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

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

std::unique_ptr<Sketch> Foam(int tail) {
    auto sketch = std::make_unique<BlocSketch>();
    sketch->SetChordWord("Corde");
    sketch->Montre(tail);
    return sketch;
}

struct Kind {
    std::set<std::string> words;
    Make make;
};

std::vector<Kind> Kinds() {
    const std::set<std::string> heel = {"A", "B", "C", "D", "B.A.", "B.F."};
    const std::set<std::string> foam = {"A", "B", "C", "D", "E", "F", "L", "Corde", "B.A.", "B.F."};
    return {{heel, [] { return Heel(0); }},
            {heel, [] { return Heel(1); }},
            {{"A", "B", "C", "B.A."}, [] { return std::make_unique<CarreSketch>(); }},
            {foam, [] { return Foam(0); }},
            {foam, [] { return Foam(1); }},
            {{"A", "B", "C", "D", "E", "F", "G"}, [] { return std::make_unique<PanneauSketch>(); }},
            {{"A", "B", "C"}, [] { return std::make_unique<DiedreSketch>(); }}};
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

TEST(Sketches, TheTailOfTheTemplateFollowsItsOption) {
    BlocSketch sketch;
    const QImage upper = Painted(sketch, sketch.sizeHint());
    sketch.Montre(1);
    EXPECT_NE(Painted(sketch, sketch.sizeHint()), upper);
    sketch.Montre(0);
    EXPECT_EQ(Painted(sketch, sketch.sizeHint()), upper);
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
        EXPECT_GT(usual, 200);
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
