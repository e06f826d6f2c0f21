#include "output/qt_swatch.h"

#include <QPainter>

namespace loftwing {

ColourSwatch::ColourSwatch(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ColourSwatch::Montre(const std::optional<Colour> &colour) {
    colour_ = colour;
    setAccessibleDescription(colour ? QColor::fromRgb(*colour).name() : QString());
    update();
}

QSize ColourSwatch::sizeHint() const {
    const int side = fontMetrics().height();
    return {side, side};
}

void ColourSwatch::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    // Colours near the window's own are told from it by the frame.
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect patch = rect().adjusted(0, 0, -1, -1);
    if (colour_) {
        painter.setBrush(QColor::fromRgb(*colour_));
    } else {
        painter.drawLine(patch.topLeft(), patch.bottomRight());
    }
    painter.drawRect(patch);
}

} // namespace loftwing
