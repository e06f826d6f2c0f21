/// Windows that stay open beside the main one, in a scripted world.
#pragma once

#include "platform/qt_form.h"
#include "programme/programme.h"
#include "support/qt_nothing_cut.h"
#include "support/scripted_platform.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace loftwing {

template <class Window>
class BesideTest : public testing::Test {
  protected:
    ScriptedPlatform platform;
    Programme programme{Paths{}, platform};
    std::unique_ptr<Window> window;

    BesideTest() { Language("English"); }

    void Language(const std::string &name) {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }
    void Inches() { programme.settings.Unite = kUniteIn; }

    Window &Open() {
        window = std::make_unique<Window>(programme, nullptr);
        window->show();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        return *window;
    }
    template <class Widget = QWidget>
    Widget &Find(const char *name) const {
        auto *widget = window->template findChild<Widget *>(name);
        if (widget == nullptr) {
            throw std::runtime_error(std::string("no control ") + name);
        }
        return *widget;
    }
    QLineEdit &Box(const char *name) const { return Find<QLineEdit>(name); }
    std::string Text(const char *name) const { return S(Box(name).text()); }
    std::string Label(const char *name) const { return S(Find<QLabel>(name).text()); }
    std::string Word(const char *name) const { return S(Find<QAbstractButton>(name).text()); }
    std::string Tip(const char *name) const { return S(Find(name).toolTip()); }
    std::string Titre() const { return S(window->windowTitle()); }
    void Click(const char *name) const {
        QTest::mouseClick(&Find<QAbstractButton>(name), Qt::LeftButton);
    }
    /// Goes to a box and types over what it holds, key by key.
    void Type(const char *name, const char *text) const {
        Box(name).setFocus();
        Box(name).selectAll();
        if (*text == '\0') {
            QTest::keyClick(&Box(name), Qt::Key_Backspace);
        }
        QTest::keyClicks(&Box(name), text);
    }
    bool FocusedAndSelected(const char *name) const {
        return Box(name).hasFocus() && Box(name).selectedText() == Box(name).text();
    }
    void ExpectBox(const std::string &text, BoxIcon icon, BoxAnswer answer = BoxAnswer::ok) {
        platform.boxes_expected.push_back({answer, [this, text, icon](const MessageBox &box) {
                                               EXPECT_EQ(box.text, text);
                                               EXPECT_EQ(box.title, Titre());
                                               EXPECT_EQ(box.icon, icon);
                                           }});
    }
    /// Tab leads through these from what has the focus now.
    void ExpectTabs(const std::vector<const char *> &names) const {
        for (const char *name : names) {
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(S(window->focusWidget()->objectName()), name);
        }
    }
    void ExpectNothingCutAnywhere() {
        for (const double scale : {1.0, 2.0}) {
            const FontScale font(scale);
            for (const char *language : {"English", "French"}) {
                for (const std::string_view unit : {kUniteMm, kUniteIn}) {
                    SCOPED_TRACE(std::string(language) + S(Q(unit)) + std::to_string(scale));
                    Language(language);
                    programme.settings.Unite = unit;
                    ExpectNothingCut(Open());
                }
            }
        }
    }
};

} // namespace loftwing
