/// The windows of spars and of holes in a scripted world, with a user who is a function.
#pragma once

#include "features/qt_numbered_list.h"
#include "programme/programme.h"
#include "support/noted_view.h"
#include "support/scripted_platform.h"

#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace loftwing {

/// How a window was left.
enum class Left { accepted, rejected, open };

/// A window as its user sees it.
class Seen {
  public:
    Seen(QDialog &dialog, const char *numbers) : dialog_(dialog), numbers_(numbers) {}

    QDialog &Dialog() { return dialog_; }
    template <class Widget>
    Widget &Find(const QString &name) {
        auto *found = dialog_.findChild<Widget *>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return *found;
    }
    QLineEdit &Box(int index) { return Find<QLineEdit>(QString("Text1(%1)").arg(index)); }
    std::string Text(const QString &name) { return Find<QLineEdit>(name).text().toStdString(); }
    /// What Text1 holds, joined by "|".
    std::string Texts(int count) {
        std::string all;
        for (int i = 0; i < count; ++i) {
            all += (i == 0 ? "" : "|") + Box(i).text().toStdString();
        }
        return all;
    }
    std::string Label(const QString &name) { return Find<QLabel>(name).text().toStdString(); }
    bool Chosen(const QString &name) { return Find<QAbstractButton>(name).isChecked(); }
    bool Enabled(const QString &name) { return Find<QWidget>(name).isEnabled(); }
    bool Shown(const QString &name) { return Find<QWidget>(name).isVisible(); }
    std::string Focus() {
        return dialog_.focusWidget() ? dialog_.focusWidget()->objectName().toStdString() : "";
    }
    bool AllSelected(QLineEdit &box) { return box.selectedText() == box.text(); }

    void Click(const QString &name) {
        QTest::mouseClick(&Find<QWidget>(name), Qt::LeftButton, {}, Near(Find<QWidget>(name)));
    }
    void ClickNumber(int index) { Click(NumberName(index)); }
    /// Goes to a field and types over what it holds, key by key.
    void Type(const QString &name, const char *text) {
        auto &box = Find<QLineEdit>(name);
        box.setFocus();
        box.selectAll();
        QTest::keyClick(&box, Qt::Key_Backspace);
        QTest::keyClicks(&box, text);
    }
    void Type(int index, const char *text) { Type(QString("Text1(%1)").arg(index), text); }
    void Key(Qt::Key key) { QTest::keyClick(dialog_.focusWidget(), key); }

    QString NumberName(int index) { return QString("%1(%2)").arg(numbers_).arg(index); }
    ClickLabel &Number(int index) { return Find<ClickLabel>(NumberName(index)); }
    /// The numbers as "1 2 [3]", the one with a border in brackets.
    std::string Numbers() {
        std::string all;
        for (int i = 0; i < kNumeros; ++i) {
            const std::string text = Number(i).text().toStdString();
            const bool border = Number(i).frameShape() != QFrame::NoFrame;
            if (!text.empty() || border) {
                all += (all.empty() ? "" : " ") + (border ? "[" + text + "]" : text);
            }
        }
        return all;
    }

  private:
    QDialog &dialog_;
    const char *numbers_;

    /// Where a radio button or check box is sure to be hit.
    static QPoint Near(const QWidget &widget) { return {8, widget.height() / 2}; }
};

template <class Window>
class SlotsTest : public testing::Test {
  protected:
    SlotsTest() { Language("English"); }

    void Language(const std::string &name) {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }
    void Inches() { programme.settings.Unite = kUniteIn; }

    virtual const char *NumbersName() const = 0;

    /// Shows the window as a command does, lets `act` be the user, and tells how it was left. A
    /// window that the user left open is closed behind its back.
    Left Use(const std::function<void(Seen &)> &act) {
        Window window(programme, view, nullptr);
        Left left = Left::open;
        QObject::connect(&window, &QDialog::accepted, [&] { left = Left::accepted; });
        QObject::connect(&window, &QDialog::rejected, [&] { left = Left::rejected; });
        QTimer::singleShot(0, &window, [&] {
            window.activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
            Seen seen(window, NumbersName());
            act(seen);
            EXPECT_EQ(window.isVisible(), left == Left::open);
            if (window.isVisible()) {
                window.done(2);
                left = Left::open;
            }
        });
        ShowModal(window);
        return left;
    }

    /// Expects boxes and gives their texts when they have been shown.
    void ExpectBoxes(int count) {
        for (int i = 0; i < count; ++i) {
            platform.Expect(BoxAnswer::ok);
        }
    }
    std::string LastBox() const { return platform.boxes.empty() ? "" : platform.boxes.back().text; }
    int Drawn() const { return static_cast<int>(view.asked.size()); }

    ScriptedPlatform platform;
    NotedView view;
    Programme programme{Paths{}, platform};
};

} // namespace loftwing
