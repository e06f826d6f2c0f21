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
    if (lines_ == 1) {
        return fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
    }
    if (Holds(text())) {
        return text();
    }
    // A line cut through its letters can't be read: as much as there is room for, and a sign that
    // there is more.
    const QString more = QStringLiteral("...");
    qsizetype fits = 0;
    for (qsizetype step = text().size(); step > 0; step /= 2) {
        while (fits + step <= text().size() && Holds(text().left(fits + step) + more)) {
            fits += step;
        }
    }
    return text().left(fits).trimmed() + more;
}

int FittedLabel::Flags(const QString &words) const {
    const int flags = static_cast<int>(alignment().toInt());
    if (lines_ == 1) {
        return flags | Qt::TextSingleLine;
    }
    // A title line without a blank in it has no other place to break.
    const QRect box = fontMetrics().boundingRect(rect(), flags | Qt::TextWordWrap, words);
    return flags | (box.width() > width() ? Qt::TextWrapAnywhere : Qt::TextWordWrap);
}

bool FittedLabel::Holds(const QString &words) const {
    return fontMetrics().boundingRect(rect(), Flags(words), words).height() <= height();
}

bool FittedLabel::Fits() const {
    return Fitted() == text();
}

void FittedLabel::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const QString words = Fitted();
    style()->drawItemText(&painter, rect(), Flags(words), palette(), isEnabled(), words,
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
