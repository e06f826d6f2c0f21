#include "support/qt_seen.h"

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QTest>

namespace loftwing {

ControlName::ControlName(const char *array, int index)
    : name_(QString("%1(%2)").arg(QLatin1String(array)).arg(index)) {}

std::string Seen::Label(const ControlName &name) const {
    return S(Find<QLabel>(name).text());
}

std::string Seen::Frame(const ControlName &name) const {
    return S(Find<QGroupBox>(name).title());
}

std::string Seen::Focus() const {
    const QWidget *focused = window_->focusWidget();
    return focused == nullptr ? "" : S(focused->objectName());
}

void Seen::ExpectTabs(const std::vector<const char *> &names) const {
    for (const char *name : names) {
        Key(Qt::Key_Tab);
        EXPECT_EQ(Focus(), name);
    }
}

void Seen::Click(const ControlName &name) const {
    auto &control = Find(name);
    // On a radio button or check box only the mark and its words take clicks.
    QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(8, control.height() / 2));
}

void Seen::Type(const ControlName &name, const QString &text) const {
    QLineEdit &box = Box(name);
    box.setFocus();
    box.selectAll();
    if (text.isEmpty()) {
        QTest::keyClick(&box, Qt::Key_Backspace);
    }
    QTest::keyClicks(&box, text);
}

void Seen::Keys(const ControlName &name, const QString &text) const {
    QTest::keyClicks(&Find(name), text);
}

void Seen::Key(const ControlName &name, Qt::Key key) const {
    QTest::keyClick(&Find(name), key);
}

void Seen::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QWidget *focused = window_->focusWidget();
    QTest::keyClick(focused == nullptr ? window_ : focused, key, modifiers);
}

} // namespace loftwing
