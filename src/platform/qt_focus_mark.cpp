#include "platform/qt_focus_mark.h"

#include "platform/qt_contrast.h"

#include <QFocusEvent>
#include <QPainter>

namespace loftwing {

namespace {

constexpr int kDark = 2; // pixels of the outer line
constexpr int kLight = 1;
/// Of the two lines to each other: on any ground one of them then has the root of it, which is 3.
constexpr double kBetween = kContrasteTrait * kContrasteTrait;

bool LedByKey(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

void Frame(QPainter &painter, QRect &place, int width, const QColor &colour) {
    for (int line = 0; line < width; ++line) {
        painter.setPen(colour);
        painter.drawRect(place.adjusted(0, 0, -1, -1));
        place.adjust(1, 1, -1, -1);
    }
}

} // namespace

FocusMark::FocusMark(QWidget &widget) : QWidget(&widget) {
    setObjectName("FocusMark");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    widget.installEventFilter(this);
}

bool FocusMark::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::FocusIn) {
        setGeometry(parentWidget()->rect());
        // A window or menu that comes or goes leaves the mark as it was.
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
            reason != Qt::MenuBarFocusReason) {
            setProperty("key", LedByKey(reason));
        }
        setVisible(property("key").toBool());
        raise();
    } else if (event->type() == QEvent::FocusOut) {
        hide();
    } else if (event->type() == QEvent::Resize) {
        setGeometry(parentWidget()->rect());
    }
    return QWidget::eventFilter(watched, event);
}

void FocusMark::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    QRect place = rect();
    const QColor highlight = palette().color(QPalette::Highlight);
    Frame(painter, place, kDark, Lisible(highlight, Qt::white, kBetween));
    Frame(painter, place, kLight, Qt::white);
}

} // namespace loftwing
