#include "platform/qt_form.h"

#include "platform/platform.h"
#include "platform/qt_place.h"
#include "platform/qt_pointer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QShortcut>

namespace loftwing {

namespace {

LngKey KeyOf(SharedWord word) {
    switch (word) {
    case SharedWord::ok:
        return {"TextButton", "1"};
    case SharedWord::cancel:
        return {"TextButton", "2"};
    case SharedWord::help:
        return {"TextButton", "3"};
    case SharedWord::apply:
        return {"TextButton", "4"};
    case SharedWord::close:
        break;
    }
    return {"TextButton", "5"};
}

} // namespace

bool IsReturn(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

void SelectField(QLineEdit &field) {
    field.setFocus();
    field.selectAll();
}

void PlainText(std::initializer_list<QLabel *> labels) {
    for (QLabel *label : labels) {
        label->setTextFormat(Qt::PlainText);
    }
}

void SetCaption(QLabel &caption, QWidget &field) {
    PlainText({&caption});
    caption.setBuddy(&field);
}

std::string ButtonWord(const LngIni &language, SharedWord word) {
    return language.LngText(KeyOf(word));
}

void SetButtonWord(QAbstractButton &button, const LngIni &language, SharedWord word) {
    button.setText(Q(ButtonWord(language, word)));
}

void GardePlace(QWidget &widget) {
    QSizePolicy kept = widget.sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(kept);
}

void SetTip(QWidget &widget, const std::string &tip) {
    const QString text = Q(tip).trimmed();
    widget.setToolTip(Qt::mightBeRichText(text) ? "<qt>" + text.toHtmlEscaped() + "</qt>" : text);
    widget.setAccessibleDescription(text);
}

void MontreLignes(QLabel &label, const std::vector<std::string> &lines) {
    constexpr std::size_t kMost = 4; // more would push other things out of the window
    std::string shown;
    std::string all;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        all += (i == 0 ? "" : "\n") + lines[i];
        if (i + 1 == kMost) {
            shown = all;
        }
    }
    const bool many = lines.size() > kMost;
    label.setText(Q(many ? shown + " ... (" + std::to_string(lines.size()) + ")" : all));
    SetTip(label, many ? all : "");
    label.setVisible(!lines.empty());
}

void MakeNameDisplay(QLineEdit &field, int letters) {
    field.setReadOnly(true);
    field.setFocusPolicy(Qt::NoFocus);
    field.setMinimumWidth(field.fontMetrics().averageCharWidth() * letters);
    const auto show = [&field](const QString &text) {
        field.setCursorPosition(0);
        SetTip(field, S(text));
    };
    show(field.text());
    QObject::connect(&field, &QLineEdit::textChanged, &field, show);
}

void ConnectHelp(QDialog &dialog, QAbstractButton &help, Platform &platform, int context) {
    const auto show = [&platform, context] { platform.ShowHelp(context); };
    QObject::connect(&help, &QAbstractButton::clicked, &dialog, show);
    auto *key = new QShortcut(QKeySequence(Qt::Key_F1), &dialog);
    QObject::connect(key, &QShortcut::activated, &dialog, show);
}

void NameControl(QObject &control, const char *name) {
    control.setObjectName(QString::fromLatin1(name));
}

void NameControl(QObject &control, const char *name, int index) {
    control.setObjectName(QString::fromLatin1("%1(%2)").arg(QLatin1String(name)).arg(index));
}

void NameControls(std::initializer_list<std::pair<QObject *, const char *>> names) {
    for (const auto &[control, name] : names) {
        NameControl(*control, name);
    }
}

int ShowModal(QDialog &dialog, const QRect &clear) {
    const PointerPause pause;
    dialog.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    const QWidget *parent =
        dialog.parentWidget() ? dialog.parentWidget()->window() : QApplication::activeWindow();
    if (parent && parent->isVisible()) {
        PlaceDialog(dialog, *parent, clear);
    }
    return dialog.exec();
}

} // namespace loftwing
