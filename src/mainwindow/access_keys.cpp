#include "mainwindow/access_keys.h"

#include "platform/qt_access_letters.h"

#include <QAbstractButton>
#include <QAction>
#include <QHelpEvent>
#include <QMenuBar>
#include <QToolBar>
#include <QToolTip>

#include <algorithm>

namespace loftwing {

namespace {

QString Joined(const std::vector<QChar> &letters) {
    QString joined;
    for (const QChar letter : letters) {
        joined += letter.isNull() ? QString() : QString(letter);
    }
    return joined;
}

/// Letters of the words that the buttons show, and of the tool tips of those that have none left.
std::vector<QChar> LettersOf(const std::vector<QAbstractButton *> &buttons, const QString &taken) {
    QStringList words;
    for (const QAbstractButton *button : buttons) {
        words += button->text();
    }
    std::vector<QChar> letters = AccessLetters(words, taken);
    QStringList tips;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        tips += letters[i].isNull() ? buttons[i]->toolTip() : QString();
    }
    const std::vector<QChar> further = AccessLetters(tips, taken + Joined(letters));
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        letters[i] = letters[i].isNull() ? further[i] : letters[i];
    }
    return letters;
}

/// The words of an icon all of whose letters are taken, with a digit behind them.
QString WithDigit(const QString &word, int digit) {
    return word + QStringLiteral(" (&%1)").arg(digit);
}

void SetKey(QAbstractButton &button, QChar letter) {
    button.setText(WithAccessLetter(button.text(), letter));
    if (button.shortcut().isEmpty() && !letter.isNull()) {
        button.setShortcut(
            QKeySequence(Qt::ALT | static_cast<Qt::Key>(letter.toUpper().unicode())));
    }
}

} // namespace

QString AccessKeys::LettersOfMenus() const {
    QString letters;
    for (const QAction *menu : menus_.actions()) {
        letters += MarkedLetter(menu->text());
    }
    return letters;
}

void AccessKeys::Give(const std::vector<QAbstractButton *> &buttons, QToolBar &bar,
                      const std::vector<QAction *> &icons) {
    const QString menus = LettersOfMenus();
    const std::vector<QChar> letters = LettersOf(buttons, menus);
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        SetKey(*buttons[i], letters[i]);
        buttons[i]->installEventFilter(this);
    }
    QStringList words;
    for (const QAction *icon : icons) {
        words += icon->text();
    }
    const std::vector<QChar> further = AccessLetters(words, menus + Joined(letters));
    int digit = 0;
    for (std::size_t i = 0; i < icons.size(); ++i) {
        // The button takes its words, and with them its key, from here.
        const QString &word = words[static_cast<qsizetype>(i)];
        icons[i]->setIconText(further[i].isNull() ? WithDigit(word, ++digit)
                                                  : WithAccessLetter(word, further[i]));
        bar.widgetForAction(icons[i])->installEventFilter(this);
    }
}

bool AccessKeys::eventFilter(QObject *watched, QEvent *event) {
    auto *button = qobject_cast<QAbstractButton *>(watched);
    if (event->type() != QEvent::ToolTip || button == nullptr || button->shortcut().isEmpty()) {
        return QObject::eventFilter(watched, event);
    }
    const QString key = button->shortcut().toString(QKeySequence::NativeText);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       button->toolTip() + " (" + key + ')', button);
    return true;
}

} // namespace loftwing
