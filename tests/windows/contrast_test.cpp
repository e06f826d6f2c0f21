// Colours that can be told from their ground, on a light desktop and on a dark one.

#include "features/qt_sketch.h"
#include "mainwindow/import_picture.h"
#include "mainwindow/plan_picture.h"
#include "mainwindow/tool_icons.h"
#include "platform/qt_contrast.h"
#include "platform/qt_focus_mark.h"
#include "support/qt_all_windows.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

#include <algorithm>
#include <map>

namespace loftwing {
namespace {

struct Desktop {
    const char *name;
    QPalette palette;
};

QPalette Coloured(const QColor &window, const QColor &base, const QColor &text,
                  const QColor &button, const QColor &highlight) {
    QPalette palette(text, button, button.lighter(), button.darker(), Qt::gray, text, Qt::white,
                     base, window);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, text);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    QColor faint = text;
    faint.setAlpha(128);
    palette.setColor(QPalette::PlaceholderText, faint);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, Qt::gray);
    }
    return palette;
}

/// The colours of common desktops; the last two have a highlight close to their window.
std::vector<Desktop> Desktops() {
    return {
        {"light", Coloured("#efefef", "#ffffff", "#000000", "#efefef", "#308cc6")},
        {"dark", Coloured("#353535", "#2a2a2a", "#ffffff", "#353535", "#1f6fbf")},
        {"light, pale highlight", Coloured("#fafafa", "#ffffff", "#202020", "#f0f0f0", "#a0d0ff")},
        {"dark, dim highlight", Coloured("#202326", "#141618", "#fcfcfc", "#31363b", "#1d4058")}};
}

class DesktopColours {
  public:
    explicit DesktopColours(const QPalette &palette) : before_(QApplication::palette()) {
        QApplication::setPalette(palette);
    }
    ~DesktopColours() { QApplication::setPalette(before_); }
    DesktopColours(const DesktopColours &) = delete;
    DesktopColours &operator=(const DesktopColours &) = delete;

  private:
    QPalette before_;
};

TEST(Contrast, IsMeasuredAsTheGuidelinesDo) {
    EXPECT_NEAR(Contraste(Qt::black, Qt::white), 21, 1E-9);
    EXPECT_NEAR(Contraste(Qt::white, Qt::white), 1, 1E-9);
    // Luminance of pure red is 0.2126: (1 + 0.05) / (0.2126 + 0.05).
    EXPECT_NEAR(Contraste(Qt::red, Qt::white), 1.05 / 0.2626, 1E-9);
    // 0x77 is 0.46667 of full: ((0.46667 + 0.055) / 1.055) ^ 2.4 = 0.18447.
    EXPECT_NEAR(Contraste("#777777", Qt::white), 1.05 / 0.23447, 1E-3);
}

TEST(Contrast, AColourIsChangedOnlyWhereItMustBe) {
    EXPECT_EQ(Lisible("#308cc6", Qt::white, kContrasteTrait), QColor("#308cc6"));
    for (const char *ground : {"#ffffff", "#808080", "#000000", "#353535"}) {
        const QColor shade = Lisible("#7f8081", ground, kContrasteTexte);
        EXPECT_GE(Contraste(shade, ground), kContrasteTexte) << ground;
    }
}

/// How well the colour that differs most is told from the one that most of an image has.
double BestContrast(const QImage &image) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            ++counts[image.pixel(x, y) | 0xFF000000U];
        }
    }
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](auto &a, auto &b) { return a.second < b.second; });
    double best = 1;
    for (const auto &[colour, count] : counts) {
        best = std::max(best, Contraste(QColor(colour), QColor(most->first)));
    }
    return best;
}

std::string WordsOf(const QWidget &widget) {
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        return S(label->text());
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
        return S(button->text());
    }
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget)) {
        return S(field->text().isEmpty() ? field->placeholderText() : field->text());
    }
    return {};
}

TEST(Contrast, OfEveryTextInEveryWindowIsEnoughToReadIt) {
    const std::vector<Desktop> desktops = Desktops();
    for (const Desktop &desktop : {desktops[0], desktops[1]}) { // all windows take their time
        SCOPED_TRACE(desktop.name);
        const DesktopColours colours(desktop.palette);
        LookAtAllWindows("English", "mm", [](QWidget &window) {
            const QImage all = window.grab().toImage();
            for (auto *widget : window.findChildren<QWidget *>()) {
                // What can't be used now may be faint.
                if (widget->isVisible() && widget->isEnabled() && !WordsOf(*widget).empty()) {
                    const QRect place(widget->mapTo(&window, QPoint()), widget->size());
                    EXPECT_GE(BestContrast(all.copy(place & window.rect())), kContrasteTexte)
                        << S(widget->objectName()) << " \"" << WordsOf(*widget) << "\"";
                }
            }
        });
    }
}

/// Paints one kind of line of a sketch.
class LineSketch : public Sketch {
  public:
    explicit LineSketch(SketchLine kind) : Sketch({8, 4}, {1, 1}), kind_(kind) {}

  protected:
    void Draw(SketchPainter &pen) const override {
        for (const double y : {0.0, 0.5, 1.0, 1.5}) { // one of them falls on whole pixels
            pen.Line(QPointF(0, y + y / 40), {6, y + y / 40}, kind_);
        }
    }

  private:
    SketchLine kind_;
};

TEST(Contrast, OfTheLinesOfASketchIsEnoughToSeeThem) {
    for (const Desktop &desktop : Desktops()) {
        const DesktopColours colours(desktop.palette);
        for (const auto kind :
             {SketchLine::rib, SketchLine::added, SketchLine::axis, SketchLine::aid}) {
            EXPECT_GE(Contraste(SketchColour(desktop.palette, kind),
                                desktop.palette.color(QPalette::Window)),
                      kContrasteTrait)
                << desktop.name << " " << static_cast<int>(kind);
            LineSketch sketch(kind);
            EXPECT_GT(BestContrast(sketch.grab().toImage()), 1.5) << "it uses that colour";
        }
    }
}

TEST(Contrast, OfTheIconsIsEnoughToSeeThem) {
    // Made once: a desktop may change its colours while the program runs.
    std::vector<QIcon> icons;
    for (const int index : {2, 3, 5, 7, 9, 10}) {
        icons.push_back(ToolIcon(index));
    }
    for (const Image image : {Image::back, Image::forward, Image::contents, Image::close}) {
        icons.push_back(ImageOf(image));
    }
    for (const Desktop &desktop : Desktops()) {
        const DesktopColours colours(desktop.palette);
        for (std::size_t i = 0; i < icons.size(); ++i) {
            QImage image(32, 32, QImage::Format_RGB32);
            image.fill(desktop.palette.color(QPalette::Window));
            QPainter painter(&image);
            icons[i].paint(&painter, image.rect());
            painter.end();
            EXPECT_GE(BestContrast(image), kContrasteTrait) << desktop.name << " " << i;
        }
    }
}

TEST(Contrast, OfAnIconIsNotLostByStretchingIt) {
    for (const QIcon &icon : {ToolIcon(2), ImageOf(Image::back), ImageOf(Image::close)}) {
        for (const int side : {10, 25, 40, 400}) {
            EXPECT_EQ(icon.pixmap(QSize(side, side)).size(), QSize(side, side));
        }
    }
}

TEST(Contrast, OfTheImportsCurvesIsEnoughToSeeThem) {
    for (const Desktop &desktop : Desktops()) {
        const DesktopColours colours(desktop.palette);
        const ImportPicture picture(nullptr);
        const QColor ground = desktop.palette.color(QPalette::Base);
        EXPECT_GE(Contraste(picture.PointsColour(), ground), kContrasteTrait) << desktop.name;
        EXPECT_GE(Contraste(picture.ContourColour(), ground), kContrasteTrait) << desktop.name;
    }
}

TEST(Contrast, OfTheLinesOfAPlanIsEnoughToSeeThem) {
    for (const Desktop &desktop : Desktops()) {
        const DesktopColours colours(desktop.palette);
        const PlanPicture picture(nullptr);
        const QColor ground = desktop.palette.color(QPalette::Base);
        EXPECT_GE(Contraste(picture.ContourColour(), ground), kContrasteTexte) << desktop.name;
        EXPECT_GE(Contraste(picture.SparColour(), ground), kContrasteTrait) << desktop.name;
        EXPECT_GE(Contraste(picture.StockColour(), ground), kContrasteTrait) << desktop.name;
    }
}

TEST(Contrast, OfTheFocusMarkIsEnoughToSeeItOnAnyGround) {
    for (const Desktop &desktop : Desktops()) {
        const DesktopColours colours(desktop.palette);
        for (const QColor &ground : {QColor(Qt::white), QColor(Qt::gray), QColor(Qt::black),
                                     desktop.palette.color(QPalette::Base)}) {
            QWidget marked;
            FocusMark::On(marked);
            auto *mark = marked.findChild<QWidget *>("FocusMark");
            QPalette painted;
            painted.setColor(QPalette::Window, ground);
            marked.setPalette(painted);
            marked.resize(40, 40);
            mark->resize(40, 40);
            mark->show();
            const QImage image = marked.grab().toImage();
            EXPECT_GE(std::max(Contraste(image.pixelColor(0, 20), ground),
                               Contraste(image.pixelColor(2, 20), ground)),
                      kContrasteTrait)
                << desktop.name << " " << S(ground.name());
            EXPECT_EQ(image.pixelColor(20, 20), ground);
        }
    }
}

} // namespace
} // namespace loftwing
