#include "features/qt_numbered_list.h"

#include "features/qt_click_label_accessible.h"
#include "platform/qt_form.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace loftwing {

namespace {

constexpr int kBord = 1;
constexpr int kMarge = 3;

} // namespace

ClickLabel::ClickLabel(QWidget *parent) : QLabel(parent) {
    TellScreenReaders();
    setTextFormat(Qt::PlainText);
}

void ClickLabel::Marque(bool marked) {
    marked_ = marked;
    setFrameStyle(marked ? static_cast<int>(QFrame::Box) | static_cast<int>(QFrame::Plain)
                         : static_cast<int>(QFrame::NoFrame));
    setLineWidth(kBord);
    setMargin(marked ? kMarge - kBord : kMarge);
}

void ClickLabel::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Space || IsReturn(event->key())) {
        Q_EMIT Clicked();
    } else {
        QLabel::keyPressEvent(event);
    }
}

void ClickLabel::mousePressEvent(QMouseEvent *event) {
    event->setAccepted(event->button() == Qt::LeftButton);
}

void ClickLabel::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
        Q_EMIT Clicked();
    }
}

void ClickLabel::paintEvent(QPaintEvent *event) {
    QLabel::paintEvent(event);
    if (!hasFocus()) {
        return;
    }
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect.adjust(kBord, kBord, -kBord, -kBord);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

NumberedList::NumberedList(QWidget *parent) : QWidget(parent) {
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < kNumeros; ++i) {
        ClickLabel &label = At(labels_, i);
        label.setAlignment(Qt::AlignCenter);
        label.installEventFilter(this);
        row->addWidget(&label);
        connect(&label, &ClickLabel::Clicked, this, [this, i] {
            if (i <= last_) {
                Q_EMIT Clicked(i);
            }
        });
    }
    row->addStretch();
    SansMarque();
    RegleLargeur();
}

void NumberedList::SetTip(const std::string &tip) {
    tip_ = tip;
    Numerote(last_);
}

void NumberedList::Nomme(const QString &caption) {
    caption_ = caption;
    setAccessibleName(caption);
    Numerote(last_);
}

void NumberedList::Numerote(int last) {
    last_ = last;
    for (int i = 0; i < kNumeros; ++i) {
        const bool used = i <= last;
        ClickLabel &label = At(labels_, i);
        label.setText(used ? QString::number(i + 1) : QString());
        label.setAccessibleName(used ? caption_ + " " + label.text() : QString());
        loftwing::SetTip(label, used ? tip_ : std::string());
        label.setCursor(used ? Qt::PointingHandCursor : Qt::ArrowCursor);
    }
}

void NumberedList::Marque(int index) {
    MarqueOuNon(index);
    ArretTabulation(index);
}

void NumberedList::SansMarque() {
    MarqueOuNon(-1);
    ArretTabulation(0);
}

void NumberedList::MarqueOuNon(int marked) {
    for (int i = 0; i < kNumeros; ++i) {
        At(labels_, i).Marque(i == marked);
    }
}

void NumberedList::ArretTabulation(int index) {
    for (int i = 0; i < kNumeros; ++i) {
        At(labels_, i).setFocusPolicy(i == index ? Qt::TabFocus : Qt::NoFocus);
    }
}

/// All numbers are as wide as the widest, so that the row stands still.
void NumberedList::RegleLargeur() {
    const int digits = fontMetrics().horizontalAdvance("00");
    for (ClickLabel &label : labels_) {
        label.setMinimumWidth(digits + 2 * kMarge + digits / 2);
    }
}

void NumberedList::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        RegleLargeur();
    }
}

bool NumberedList::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        Deplace(watched, -1);
        return true;
    case Qt::Key_Right:
    case Qt::Key_Down:
        Deplace(watched, 1);
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void NumberedList::Deplace(const QObject *from, int step) {
    for (int i = 0; i < kNumeros; ++i) {
        const int next = i + step;
        if (&At(labels_, i) == from && next >= 0 && next <= last_) {
            ArretTabulation(next);
            At(labels_, next).setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

} // namespace loftwing
