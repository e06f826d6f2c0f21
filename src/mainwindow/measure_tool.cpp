#include "mainwindow/measure_tool.h"

#include "mainwindow/picture_reach.h"
#include "output/view_screen.h"
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
    to_.reset();
    picture_.MontreTouche(nullptr);
    active ? picture_.setCursor(Qt::CrossCursor) : picture_.unsetCursor();
}

LieuTrace MeasureTool::Lieu(const QPointF &pixel) const {
    const LieuTrace place = PictureReach::Place(pixel);
    const LieuTrace caught =
        Accroche(*picture_.Dessin(), place, PictureReach::kReach).value_or(place);
    const PlaceEcran origin = PlaceProfil(programme_.rib, programme_.compare);
    const double mm = kUnitsPerMm * origin.zoom;
    return {(caught.x - origin.x) / mm, (caught.y - origin.y) / mm};
}

LieuTrace MeasureTool::DansLeDessin(const LieuTrace &mm) const {
    const PlaceEcran origin = PlaceProfil(programme_.rib, programme_.compare);
    const double scale = kUnitsPerMm * origin.zoom;
    return {origin.x + mm.x * scale, origin.y + mm.y * scale};
}

void MeasureTool::Clique(const LieuTrace &place) {
    if (!from_ || to_) {
        from_ = place;
        to_.reset();
    } else {
        to_ = place;
    }
    Montre(place);
}

/// The line from the first point to another one, with its length beside the middle.
void MeasureTool::Montre(const LieuTrace &to) const {
    auto lines = std::make_unique<Recording>(ScreenAdvance);
    lines->DrawWidth = 2;
    const LieuTrace end = DansLeDessin(to);
    Marque(*lines, end);
    if (from_ && !(*from_ == to)) {
        const LieuTrace start = DansLeDessin(*from_);
        Marque(*lines, start);
        lines->Line(start.x, start.y, end.x, end.y, PictureReach::kColour);
        lines->ForeColor = PictureReach::kColour;
        lines->CurrentX = (start.x + end.x) / 2 + kCroix;
        lines->CurrentY = (start.y + end.y) / 2 + kCroix;
        lines->Print(DitDistance(std::hypot(to.x - from_->x, to.y - from_->y)));
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
    if (event->type() == QEvent::MouseMove && mouse->buttons() == Qt::NoButton) {
        Montre(to_ ? *to_ : Lieu(mouse->position()));
    }
    return false;
}

} // namespace loftwing
