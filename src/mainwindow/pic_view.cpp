#include "mainwindow/pic_view.h"

#include "mainwindow/piece_look.h"
#include "platform/qt_plot_device.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace loftwing {

PicView::PicView(QWidget *parent) : QWidget(parent) {
    setObjectName("Pic");
    setMinimumSize(120, 80);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus); // for the keys that scroll
}

void PicView::Montre(std::unique_ptr<Recording> drawing) {
    drawing_ = std::move(drawing);
    ++number_;
    wood_.clear();
    overlay_.reset();
    trial_.reset();
    touched_.reset();
    update();
}

void PicView::MontreTouche(std::unique_ptr<Recording> touched) {
    if (touched_ || touched) {
        touched_ = std::move(touched);
        update();
    }
}

void PicView::MontreEssai(std::unique_ptr<Recording> trial) {
    trial_ = std::move(trial);
    update();
}

/// The drawing, and a label in the lower left corner, where drawings reach last.
void PicView::PeintEssai(QPainter &painter) const {
    Replay(*trial_, painter, ScreenSurface());
    const QFontMetrics metrics(font());
    const int gap = metrics.averageCharWidth();
    const QRect label = metrics.boundingRect(trial_words_).adjusted(-gap, -gap / 2, gap, gap / 2);
    painter.setFont(font());
    painter.translate(gap - label.left(), height() - gap - label.bottom());
    painter.fillRect(label, QColor(255, 236, 150));
    painter.setPen(Qt::black);
    painter.drawText(label, Qt::AlignCenter, trial_words_);
}

void PicView::MontreDessous(std::vector<QPainterPath> wood) {
    wood_ = std::move(wood);
    update();
}

void PicView::MontreDessus(std::unique_ptr<Recording> overlay) {
    overlay_ = std::move(overlay);
    update();
}

void PicView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (trial_) {
        PeintEssai(painter);
    } else {
        PeintDessin(painter);
    }
    if (touched_ && !trial_) { // what it marks is where the drawing has it
        Replay(*touched_, painter, ScreenSurface());
    }
}

void PicView::PeintDessin(QPainter &painter) const {
    PeintBois(painter, wood_);
    if (drawing_) {
        Replay(*drawing_, painter, ScreenSurface());
    }
    if (overlay_) {
        Replay(*overlay_, painter, ScreenSurface());
    }
}

void PicView::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    Q_EMIT Redimensionne();
}

void PicView::wheelEvent(QWheelEvent *event) {
    const QPoint turn = event->angleDelta();
    const Qt::KeyboardModifiers keys = event->modifiers();
    if (!keys.testFlag(Qt::ControlModifier)) {
        Q_EMIT Roule(NotchesOf(turn.x(), turn.y(), keys.testFlag(Qt::ShiftModifier)));
    } else if (const int steps = zoom_wheel_.Turn(turn.y()); steps != 0) {
        Q_EMIT ZoomDemande(steps, event->position());
    }
    event->accept();
}

void PicView::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::RightButton) {
        Q_EMIT MenuDemande(event->globalPosition().toPoint());
    } else if (event->button() == Qt::MiddleButton) {
        dragging_ = true;
        dragged_from_ = event->position().toPoint();
        setCursor(Qt::ClosedHandCursor);
    }
}

void PicView::mouseMoveEvent(QMouseEvent *event) {
    if (!dragging_) {
        return;
    }
    const QPoint here = event->position().toPoint();
    Q_EMIT Tire(here - dragged_from_);
    dragged_from_ = here;
}

void PicView::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::MiddleButton && dragging_) {
        dragging_ = false;
        unsetCursor();
    }
}

} // namespace loftwing
