#include "mainwindow/fitted_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace loftwing {

namespace {

constexpr int kUsualCharacters = 30;

} // namespace

FittedLabel::FittedLabel(int lines, QWidget *parent) : QLabel(parent), lines_(lines) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAlignment(lines == 1 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignLeft | Qt::AlignTop);
}

QSize FittedLabel::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return {metrics.averageCharWidth() * kUsualCharacters, metrics.lineSpacing() * lines_ + 2};
}

QSize FittedLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * kUsualCharacters / 3, sizeHint().height()};
}

QString FittedLabel::Fitted() const {
    return lines_ == 1 ? fontMetrics().elidedText(text(), Qt::ElideMiddle, width()) : text();
}

int FittedLabel::Flags() const {
    const int flags = static_cast<int>(alignment().toInt());
    if (lines_ == 1) {
        return flags | Qt::TextSingleLine;
    }
    // A title line without a blank in it has no other place to break.
    const QRect words = fontMetrics().boundingRect(rect(), flags | Qt::TextWordWrap, text());
    return flags | (words.width() > width() ? Qt::TextWrapAnywhere : Qt::TextWordWrap);
}

bool FittedLabel::Fits() const {
    if (lines_ == 1) {
        return Fitted() == text();
    }
    return fontMetrics().boundingRect(rect(), Flags(), text()).height() <= height();
}

void FittedLabel::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), Flags(), palette(), isEnabled(), Fitted(),
                          foregroundRole());
}

bool FittedLabel::event(QEvent *event) {
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const QString whole = "<qt>" + text().toHtmlEscaped() + "</qt>";
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), Fits() ? "" : whole,
                           this);
        return true;
    }
    return QLabel::event(event);
}

} // namespace loftwing
