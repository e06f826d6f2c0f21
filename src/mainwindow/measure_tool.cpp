#include "mainwindow/measure_tool.h"

#include "mainwindow/picture_reach.h"
#include "platform/qt_plot_device.h"
#include "programme/touch_steps.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <cmath>

namespace loftwing {

namespace {

constexpr double kCroix = 6 * kUnitsPerPixel; // half of a mark at an end

void Marque(PlotDevice &device, const LieuTrace &place) {
    device.Line(place.x - kCroix, place.y, place.x + kCroix, place.y, PictureReach::kColour);
    device.Line(place.x, place.y - kCroix, place.x, place.y + kCroix, PictureReach::kColour);
}

} // namespace

MeasureTool::MeasureTool(const Programme &programme, PicView &picture, std::function<void()> fin)
    : programme_(programme), picture_(picture), fin_(std::move(fin)) {
    picture_.installEventFilter(this);
}

void MeasureTool::Active(bool active) {
    active_ = active;
    from_.reset();
    finished_ = false;
    picture_.MontreTouche(nullptr);
    active ? picture_.setCursor(Qt::CrossCursor) : picture_.unsetCursor();
}

LieuTrace MeasureTool::Lieu(const QPointF &pixel) const {
    const LieuTrace place = PictureReach::Place(pixel);
    return Accroche(*picture_.Dessin(), place, PictureReach::kReach).value_or(place);
}

void MeasureTool::Clique(const LieuTrace &place) {
    if (!from_ || finished_) {
        from_ = place;
        finished_ = false;
    } else {
        finished_ = true;
    }
    Montre(place);
}

/// The line from the first point to another one, with its length beside the middle.
void MeasureTool::Montre(const LieuTrace &to) const {
    auto lines = std::make_unique<Recording>(ScreenAdvance);
    lines->DrawWidth = 2;
    Marque(*lines, to);
    if (from_ && !(*from_ == to)) {
        Marque(*lines, *from_);
        lines->Line(from_->x, from_->y, to.x, to.y, PictureReach::kColour);
        const double mm = std::hypot(to.x - from_->x, to.y - from_->y) /
                          (kUnitsPerMm * Wide(programme_.rib.Zoom));
        lines->ForeColor = PictureReach::kColour;
        lines->CurrentX = (from_->x + to.x) / 2 + kCroix;
        lines->CurrentY = (from_->y + to.y) / 2 + kCroix;
        lines->Print(DitDistance(mm));
    }
    picture_.MontreTouche(std::move(lines));
}

bool MeasureTool::eventFilter(QObject *watched, QEvent *event) {
    if (!active_ || picture_.Dessin() == nullptr) {
        return QObject::eventFilter(watched, event);
    }
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        fin_();
        return true;
    }
    const auto *mouse = dynamic_cast<QMouseEvent *>(event);
    if (mouse == nullptr) {
        return false;
    }
    if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton) {
        Clique(Lieu(mouse->position()));
        return true;
    }
    if (event->type() == QEvent::MouseMove && mouse->buttons() == Qt::NoButton && !finished_) {
        Montre(Lieu(mouse->position()));
    }
    return false;
}

} // namespace loftwing
