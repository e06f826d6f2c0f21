#include "mainwindow/apercu.h"

#include "output/airfoil_preview.h"
#include "platform/qt_plot_device.h"

#include <algorithm>

namespace loftwing {

namespace {

// A little smaller than the main window draws, so that the picker fits on small screens.
constexpr double kUsualUnitsPerPixel = 20;
constexpr double kLargestUnitsPerPixel = 45;
constexpr int kMargin = 12; // around words, pixels

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
    words_.clear();
    setAccessibleDescription({});
    update();
}

void Apercu::Dit(const QString &words) {
    Efface();
    words_ = words;
    setAccessibleDescription(words); // painted words have no other way to a screen reader
}

/// A word that is wider than the paper (a line of a file) breaks anywhere.
void Apercu::PeintMots(QPainter &painter) const {
    const QRect place = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
    const int wrapped = Qt::AlignCenter | Qt::TextWordWrap;
    const bool fits = painter.boundingRect(place, wrapped, words_).width() <= place.width();
    painter.setPen(Qt::black);
    painter.drawText(place, fits ? wrapped : Qt::AlignCenter | Qt::TextWrapAnywhere, words_);
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
        PeintMots(painter);
        return;
    }
    PlotSurface surface = ScreenSurface();
    surface.scale = std::min(width() / kApercuLargeur, height() / kApercuHauteur);
    painter.translate((width() - kApercuLargeur * surface.scale) / 2,
                      (height() - kApercuHauteur * surface.scale) / 2);
    Replay(*drawing_, painter, surface);
}

} // namespace loftwing
