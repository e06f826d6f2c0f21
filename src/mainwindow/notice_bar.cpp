#include "mainwindow/notice_bar.h"

#include "mainwindow/tool_icons.h"
#include "platform/qt_form.h"
#include "platform/qt_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace loftwing {

namespace {

/// The words break where they must, so that a long folder never widens the window.
QLabel *Words(const Notice &notice, QWidget *strip) {
    auto *words = new QLabel(Q(notice.text), strip);
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    words->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    words->setForegroundRole(QPalette::ToolTipText);
    return words;
}

} // namespace

NoticeBar::NoticeBar(QWidget *parent) : QWidget(parent), column_(new QVBoxLayout(this)) {
    setObjectName("NoticeBar");
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    column_->setContentsMargins(0, 0, 0, 0);
    column_->setSpacing(0);
    hide();
}

void NoticeBar::Montre(const std::vector<Notice> &notices, const QString &close) {
    if (notices == shown_ && close == close_) {
        return;
    }
    shown_ = notices;
    close_ = close;
    // Later: the click that brought us here may be that of a button in one of them.
    for (QFrame *strip : strips_) {
        strip->hide();
        strip->setParent(nullptr);
        strip->deleteLater();
    }
    strips_.clear();
    for (const Notice &notice : shown_) {
        strips_.push_back(Strip(notice));
        column_->addWidget(strips_.back());
    }
    setVisible(!shown_.empty());
}

QFrame *NoticeBar::Strip(const Notice &notice) {
    const std::string name = std::string("notice_") + NoticeName(notice.subject);
    auto *strip = new QFrame(this);
    NameControl(*strip, name.c_str());
    strip->setFrameShape(QFrame::StyledPanel);
    strip->setAutoFillBackground(true);
    strip->setBackgroundRole(QPalette::ToolTipBase);
    auto *row = new QHBoxLayout(strip);
    row->setContentsMargins(8, 4, 4, 4);
    QLabel *words = Words(notice, strip);
    NameControl(*words, (name + "_text").c_str());
    row->addWidget(words, 1);
    int index = 0;
    for (const NoticeButton &button : notice.buttons) {
        auto *push = new QPushButton(Q(button.text), strip);
        NameControl(*push, (name + "_button").c_str(), index++);
        connect(push, &QPushButton::clicked, this,
                [this, act = button.act] { Q_EMIT Demande(act); });
        row->addWidget(push);
    }
    row->addWidget(CloseButton(notice, strip));
    return strip;
}

QWidget *NoticeBar::CloseButton(const Notice &notice, QWidget *strip) {
    auto *button = new QToolButton(strip);
    NameControl(*button, (std::string("notice_") + NoticeName(notice.subject) + "_close").c_str());
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setIcon(ImageOf(Image::close));
    SetTip(*button, S(close_));
    button->setAccessibleName(close_);
    connect(button, &QToolButton::clicked, this,
            [this, subject = notice.subject] { Q_EMIT Ferme(subject); });
    return button;
}

} // namespace loftwing
