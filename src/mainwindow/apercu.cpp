#include "mainwindow/apercu.h"

#include "output/airfoil_preview.h"
#include "platform/qt_plot_device.h"

#include <QPainter>

#include <algorithm>

namespace loftwing {

namespace {

// A little smaller than the main window draws, so that the picker fits on small screens.
constexpr double kUsualUnitsPerPixel = 20;
constexpr double kLargestUnitsPerPixel = 45;

QSize PaperSize(double units_per_pixel) {
    return (QSizeF(kApercuLargeur, kApercuHauteur) / units_per_pixel).toSize();
}

} // namespace

Apercu::Apercu(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Apercu::Montre(std::unique_ptr<Recording> drawing) {
    drawing_ = std::move(drawing);
    update();
}

QSize Apercu::sizeHint() const {
    return PaperSize(kUsualUnitsPerPixel);
}

QSize Apercu::minimumSizeHint() const {
    return PaperSize(kLargestUnitsPerPixel);
}

void Apercu::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    if (!drawing_) {
        return;
    }
    PlotSurface surface = ScreenSurface();
    surface.scale = std::min(width() / kApercuLargeur, height() / kApercuHauteur);
    painter.translate((width() - kApercuLargeur * surface.scale) / 2,
                      (height() - kApercuHauteur * surface.scale) / 2);
    Replay(*drawing_, painter, surface);
}

} // namespace loftwing
