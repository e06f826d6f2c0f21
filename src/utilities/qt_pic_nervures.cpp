#include "utilities/qt_pic_nervures.h"

#include "output/text_lines.h"
#include "platform/qt_focus_mark.h"
#include "platform/qt_plot_device.h"
#include "utilities/nervure.h"

#include <QFontInfo>
#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace loftwing {

namespace {

constexpr double kRoomForLength = 1300.0; // device units of the last column
constexpr int kUsualLines = 16;
constexpr int kFewestLines = 5;
constexpr int kPage = 5;         // notches that a page of the list is worth
constexpr int kWheelNotch = 120; // eighths of a degree

} // namespace

PicNervures::PicNervures(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::TabFocus); // for the keys that scroll
    FocusMark::On(*this);
}

void PicNervures::Montre(std::unique_ptr<Recording> drawing) {
    drawing_ = std::move(drawing);
    update();
}

double PicNervures::Scale() const {
    return QFontInfo(font()).pixelSize() / (TextFont{}.size * kUnitsPerPoint);
}

int PicNervures::Pixels(double units) const {
    return static_cast<int>(std::lround(units * Scale()));
}

double PicNervures::Bas() const {
    return height() / Scale();
}

QSize PicNervures::sizeHint() const {
    return {Pixels(kColonneLongeron + kRoomForLength), Pixels(kUsualLines * LineHeight({}))};
}

QSize PicNervures::minimumSizeHint() const {
    return {sizeHint().width(), Pixels(kFewestLines * LineHeight({}))};
}

void PicNervures::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (drawing_) {
        PlotSurface surface = ScreenSurface();
        surface.scale = Scale();
        Replay(*drawing_, painter, surface);
    }
}

void PicNervures::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Up:
        return Q_EMIT Roule(1);
    case Qt::Key_Down:
        return Q_EMIT Roule(-1);
    case Qt::Key_PageUp:
        return Q_EMIT Roule(kPage);
    case Qt::Key_PageDown:
        return Q_EMIT Roule(-kPage);
    default:
        return QWidget::keyPressEvent(event);
    }
}

void PicNervures::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    Q_EMIT Redimensionne();
}

void PicNervures::wheelEvent(QWheelEvent *event) {
    turn_ += event->angleDelta().y();
    const int notches = turn_ / kWheelNotch;
    turn_ -= notches * kWheelNotch;
    if (notches != 0) {
        Q_EMIT Roule(notches);
    }
    event->accept();
}

} // namespace loftwing
