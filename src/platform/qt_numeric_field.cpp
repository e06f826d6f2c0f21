#include "platform/qt_numeric_field.h"

#include "platform/qt_form.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QSignalBlocker>

#include <algorithm>
#include <iterator>
#include <memory>

namespace loftwing {

namespace {

/// A copied number with a point for its decimals. Where it has both signs, or one of them more than
/// once, the others set off thousands.
QString WithPoint(QString number) {
    const qsizetype comma = number.lastIndexOf(',');
    const qsizetype point = number.lastIndexOf('.');
    const bool decimal = comma > point && (point >= 0 || number.count(',') == 1);
    if (decimal) {
        number.remove('.');
        number[number.lastIndexOf(',')] = '.';
    }
    return number.remove(',');
}

/// "8 1/2" with the point that is kept between whole and fraction.
QString WithJoinedFraction(QString number) {
    static const QRegularExpression whole(R"(^(\s*-?\d+)\s+(?=\d+\s*/\s*\d))",
                                          QRegularExpression::UseUnicodePropertiesOption);
    return number.replace(whole, R"(\1.)");
}

} // namespace

NumericField::NumericField(std::string_view keys, QWidget *parent)
    : QLineEdit(parent), keys_(Q(keys)) {
    setInputMethodHints(Qt::ImhPreferNumbers | Qt::ImhNoPredictiveText);
    MontreSelection(false);
    connect(this, &QLineEdit::selectionChanged, this, [this] {
        if (!hasFocus() && hasSelectedText()) {
            CacheCurseur();
        }
    });
}

void NumericField::SetKeys(std::string_view keys) {
    keys_ = Q(keys);
    ShowTip();
}

void NumericField::SetTip(const std::string &tip) {
    tip_ = tip;
    ShowTip();
}

void NumericField::SetNotation(const std::string &notation) {
    notation_ = notation;
    ShowTip();
}

void NumericField::ShowTip() {
    const bool notation = TakesFractions() && !notation_.empty();
    const std::string between = notation && !tip_.empty() ? "\n" : "";
    loftwing::SetTip(static_cast<QWidget &>(*this),
                     tip_ + between + (notation ? notation_ : std::string()));
}

bool NumericField::Admits(QChar character) const {
    return keys_.isEmpty() || keys_.contains(character);
}

QString NumericField::Admitted(const QString &text) const {
    QString admitted;
    std::copy_if(text.begin(), text.end(), std::back_inserter(admitted),
                 [this](QChar character) { return Admits(character); });
    return admitted;
}

/// What stands in front of the place where the next character comes.
QString NumericField::BeforeEntry() const {
    return text().left(hasSelectedText() ? selectionStart() : cursorPosition());
}

QString NumericField::AfterEntry() const {
    return text().mid(hasSelectedText() ? selectionEnd() : cursorPosition());
}

bool NumericField::CommaIsPoint() const {
    return Admits('.') && !Admits(',');
}

/// Whether a blank typed here stands behind the whole of a mixed number.
bool NumericField::BlankIsPoint() const {
    static const QRegularExpression whole(R"(^-?\d+$)");
    const QString rest = AfterEntry();
    return TakesFractions() && whole.match(BeforeEntry()).hasMatch() && !rest.contains('.') &&
           !rest.startsWith('/');
}

QString NumericField::AsTyped(const QString &text) const {
    const bool point = (text == "," && CommaIsPoint()) || (text == " " && BlankIsPoint());
    return point ? QString('.') : text;
}

QString NumericField::AsPasted(const QString &text) const {
    if (!CommaIsPoint()) {
        return Admitted(text);
    }
    const QString number = WithPoint(text);
    if (!TakesFractions()) {
        return Admitted(number);
    }
    const QString before = BeforeEntry();
    return Admitted(WithJoinedFraction(before + number).mid(before.size()));
}

void NumericField::Paste(const QString &text) {
    if (!isReadOnly()) {
        insert(AsPasted(text));
    }
}

void NumericField::keyPressEvent(QKeyEvent *event) {
    if (event->matches(QKeySequence::Paste)) {
        Paste(QApplication::clipboard()->text());
        return;
    }
    // Keys without a character of their own (backspace, arrows, Return) and shortcuts go on. Ctrl
    // and Alt together are the third level of some keyboards and give a character.
    const QString typed = AsTyped(event->text());
    const bool printable = !typed.isEmpty() && typed.front().isPrint();
    const Qt::KeyboardModifiers held = event->modifiers();
    const bool shortcut = (held & (Qt::ControlModifier | Qt::AltModifier)) == Qt::ControlModifier;
    if (!printable || shortcut) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    if (Admitted(typed) == typed) {
        QKeyEvent admitted(event->type(), event->key(), held, typed, event->isAutoRepeat());
        QLineEdit::keyPressEvent(&admitted);
        event->setAccepted(admitted.isAccepted());
        return;
    }
    // Alt with a letter may still be somebody's access key.
    event->setAccepted((held & (Qt::AltModifier | Qt::MetaModifier)) == 0);
}

void NumericField::inputMethodEvent(QInputMethodEvent *event) {
    const QString brought = event->commitString();
    event->setCommitString(brought.size() == 1 ? Admitted(AsTyped(brought)) : AsPasted(brought),
                           event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(event);
}

void NumericField::contextMenuEvent(QContextMenuEvent *event) {
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    // The toolkit's entry has no name; its words stand in front of the shortcut.
    for (QAction *entry : menu->actions()) {
        if (entry->text().section('\t', 0, 0) == QLineEdit::tr("&Paste")) {
            entry->disconnect(SIGNAL(triggered(bool)));
            connect(entry, &QAction::triggered, this,
                    [this] { Paste(QApplication::clipboard()->text()); });
        }
    }
    menu->exec(event->globalPos());
}

void NumericField::dropEvent(QDropEvent *event) {
    // What is moved within the field is in it already.
    if (event->source() == this || !event->mimeData()->hasText()) {
        QLineEdit::dropEvent(event);
        return;
    }
    QMimeData admitted;
    admitted.setText(AsPasted(event->mimeData()->text().trimmed()));
    QDropEvent drop(event->position(), event->possibleActions(), &admitted, event->buttons(),
                    event->modifiers(), event->type());
    QLineEdit::dropEvent(&drop);
    event->setAccepted(drop.isAccepted());
}

void NumericField::focusInEvent(QFocusEvent *event) {
    QLineEdit::focusInEvent(event);
    // A context menu that closes gives the focus back; what it was opened for is still selected.
    if (event->reason() == Qt::PopupFocusReason) {
        return;
    }
    entered_by_press_ = event->reason() == Qt::MouseFocusReason;
    selectAll();
    MontreSelection(true);
}

void NumericField::focusOutEvent(QFocusEvent *event) {
    QLineEdit::focusOutEvent(event);
    // While its context menu is open, what that is about is to be seen.
    MontreSelection(event->reason() == Qt::PopupFocusReason);
}

void NumericField::changeEvent(QEvent *event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && selection_hidden_) {
        MontreSelection(false);
    }
}

/// A text may be selected in a field that hasn't the focus, for whoever comes to it; shown, it
/// would look like the field that takes the next key.
void NumericField::MontreSelection(bool shown) {
    selection_hidden_ = !shown;
    QPalette colours; // says nothing but these two
    if (!shown) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            colours.setColor(group, QPalette::Highlight, Qt::transparent);
            colours.setColor(group, QPalette::HighlightedText,
                             palette().color(group, QPalette::Text));
        }
    }
    setPalette(colours);
}

/// The toolkit shows a cursor wherever text is selected. Only leaving a field hides it.
void NumericField::CacheCurseur() {
    const QSignalBlocker quiet(this);
    QFocusEvent left(QEvent::FocusOut, Qt::PopupFocusReason);
    QLineEdit::focusOutEvent(&left);
}

void NumericField::mousePressEvent(QMouseEvent *event) {
    // The press that brought the focus would drop the selection again.
    if (entered_by_press_ && event->button() == Qt::LeftButton) {
        event->accept();
        return;
    }
    QLineEdit::mousePressEvent(event);
}

void NumericField::mouseReleaseEvent(QMouseEvent *event) {
    entered_by_press_ = false;
    const QClipboard *clipboard = QApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard->supportsSelection()) {
        deselect();
        Paste(clipboard->text(QClipboard::Selection));
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

} // namespace loftwing
