#include "output/qt_legend_view.h"

#include "output/test_page.h"
#include "platform/qt_plot_device.h"

#include <QPainter>

#include <algorithm>

namespace loftwing {

LegendView::LegendView(QWidget *parent) : QWidget(parent), drawing_(ScreenAdvance) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void LegendView::Show(const LngIni &language) {
    drawing_.Clear();
    TraceLegende(drawing_, language);
    updateGeometry();
    update();
}

/// Size of the drawing at the screen's own scale, with the margin of its left and upper edge on the
/// other sides too.
QSizeF LegendView::Natural() const {
    const Extent extent = drawing_.Bounds();
    return {(extent.right + extent.left) / kUnitsPerPixel,
            (extent.bottom + extent.top) / kUnitsPerPixel};
}

QSize LegendView::sizeHint() const {
    constexpr double kUsualLine = 16.0; // pixels of a line of text on a screen of usual settings
    const double larger = std::max(1.0, fontMetrics().height() / kUsualLine);
    return (Natural() * larger).toSize();
}

void LegendView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    const QSizeF natural = Natural();
    if (natural.isEmpty()) {
        return;
    }
    const double larger = std::min(width() / natural.width(), height() / natural.height());
    PlotSurface surface = ScreenSurface();
    surface.scale *= larger;
    surface.dash_scale *= larger;
    for (double &pen : surface.pen_widths) {
        pen *= std::max(1.0, larger);
    }
    Replay(drawing_, painter, surface);
}

} // namespace loftwing
