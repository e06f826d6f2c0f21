// What has the focus is seen.

#include "platform/qt_numeric_field.h"
#include "support/qt_all_windows.h"
#include "support/qt_tab_chain.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <vector>

namespace loftwing {
namespace {

/// A place of the window as it is painted, with what a frame around the widget takes.
QImage Painted(QWidget &window, const QWidget &widget) {
    constexpr int kAround = 3;
    const QRect place(widget.mapTo(&window, QPoint()), widget.size());
    return window.grab(place.adjusted(-kAround, -kAround, kAround, kAround))
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

int Differing(const QImage &one, const QImage &other) {
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

TEST(FocusSeen, EveryStopOfTheTabKeyLooksOtherwiseThanBefore) {
    LookAtAllWindows("English", "mm", [](QWidget &window) {
        constexpr int kEnough = 20; // pixels; a frame around the smallest control has more
        std::vector<const QWidget *> known;
        QWidget *at = window.focusWidget();
        while (at != nullptr && std::find(known.begin(), known.end(), at) == known.end()) {
            known.push_back(at);
            QWidget *next = TabOn(window);
            if (next == at) {
                return; // the only one
            }
            const QImage without = Painted(window, *at);
            TabOn(window, true);
            ASSERT_EQ(window.focusWidget(), at) << S(at->objectName()) << S(next->objectName());
            // Return presses a default button wherever the focus is, and it looks so.
            const auto *button = qobject_cast<const QPushButton *>(at);
            if (button == nullptr || !button->isDefault()) {
                EXPECT_GE(Differing(Painted(window, *at), without), kEnough)
                    << at->metaObject()->className() << " " << S(at->objectName());
            }
            at = TabOn(window);
        }
    });
}

/// The colours of a field as it is painted.
bool ShowsColour(QWidget &field, const QColor &colour) {
    const QImage image = field.grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == colour) {
                return true;
            }
        }
    }
    return false;
}

TEST(FocusSeen, OfTheFieldsOfASparOnlyTheOneWithTheFocusLooksSelected) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.Run("mnu_profillongeron", {[](Seen &dialog) {
                  // Selected they all are, so that whoever comes to one types over it.
                  for (const int field : {0, 1, 2}) {
                      const ControlName name("Text1", field);
                      dialog.GoTo(name);
                      for (const int other : {0, 1, 2}) {
                          auto &box = dialog.Find<NumericField>({"Text1", other});
                          EXPECT_EQ(box.selectedText(), box.text());
                          const QColor selection =
                              QApplication::palette().color(QPalette::Highlight);
                          EXPECT_EQ(ShowsColour(box, selection), other == field)
                              << other << " while in " << field;
                      }
                  }
                  dialog.Key(Qt::Key_Escape);
              }});
}

/// Two fields in a window that is in use.
class TwoFields : public testing::Test {
  protected:
    TwoFields() {
        other.move(0, 60);
        one.setText("200");
        window.show();
        window.activateWindow();
    }
    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowActive(&window)); }

    QWidget window;
    NumericField one{&window};
    NumericField other{&window};
};

TEST_F(TwoFields, OneThatIsLeftAndComeBackToShowsItsSelectionAgain) {
    const QColor selection = QApplication::palette().color(QPalette::Highlight);
    one.setFocus();
    EXPECT_TRUE(ShowsColour(one, selection));
    other.setFocus();
    one.selectAll();
    // The frame of the focus is of that colour too.
    EXPECT_FALSE(ShowsColour(one, selection));
    one.setFocus();
    EXPECT_TRUE(ShowsColour(one, selection));
}

TEST_F(TwoFields, OneThatIsSelectedWithoutTheFocusShowsNoCursor) {
    other.setFocus();
    one.deselect();
    const QImage plain = one.grab().toImage();
    one.selectAll();
    EXPECT_EQ(one.selectedText(), "200");
    EXPECT_EQ(one.grab().toImage(), plain);
}

} // namespace
} // namespace loftwing
