#include "support/qt_nothing_cut.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>
#include <vector>

namespace loftwing {

namespace {

std::string NameOf(const QWidget &widget) {
    const auto *label = qobject_cast<const QLabel *>(&widget);
    return widget.objectName().toStdString() +
           (label != nullptr ? " \"" + label->text().toStdString() + "\"" : "");
}

/// What lies over another widget for a while and lets everything through.
bool IsMark(const QWidget &widget) {
    return widget.testAttribute(Qt::WA_TransparentForMouseEvents);
}

bool IsLeaf(const QWidget &widget) {
    const QList<QWidget *> children = widget.findChildren<QWidget *>();
    return std::all_of(children.begin(), children.end(),
                       [](const QWidget *child) { return IsMark(*child); });
}

/// What stands in the window without children of its own.
std::vector<QWidget *> Leaves(const QWidget &window) {
    std::vector<QWidget *> leaves;
    for (auto *child : window.findChildren<QWidget *>()) {
        if (child->isVisible() && !IsMark(*child) && IsLeaf(*child)) {
            leaves.push_back(child);
        }
    }
    return leaves;
}

QRect PlaceIn(const QWidget &window, const QWidget &child) {
    return {child.mapTo(&window, QPoint(0, 0)), child.size()};
}

bool ShowsAll(const QWidget &widget) {
    const QSize needed = widget.minimumSizeHint();
    return widget.width() >= needed.width() && widget.height() >= needed.height();
}

} // namespace

void ExpectNothingCut(QWidget &window) {
    const std::vector<QWidget *> leaves = Leaves(window);
    ASSERT_FALSE(leaves.empty());
    for (std::size_t i = 0; i < leaves.size(); ++i) {
        const QWidget &leaf = *leaves[i];
        EXPECT_TRUE(ShowsAll(leaf)) << NameOf(leaf) << " is too small";
        EXPECT_TRUE(window.rect().contains(PlaceIn(window, leaf)))
            << NameOf(leaf) << " reaches over the edge";
        for (std::size_t k = 0; k < i; ++k) {
            EXPECT_FALSE(PlaceIn(window, leaf).intersects(PlaceIn(window, *leaves[k])))
                << NameOf(leaf) << " covers " << NameOf(*leaves[k]);
        }
    }
}

FontScale::FontScale(double scale) : before_(QApplication::font()) {
    QFont font = before_;
    font.setPointSizeF(font.pointSizeF() * scale);
    QApplication::setFont(font);
}

FontScale::~FontScale() {
    QApplication::setFont(before_);
}

} // namespace loftwing
