/// The windows of heel, V-notch and template in a scripted world, with a user who is a function.
#pragma once

#include "platform/qt_form.h"
#include "programme/programme.h"
#include "support/noted_view.h"
#include "support/qt_nothing_cut.h"
#include "support/scripted_platform.h"

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace loftwing {

/// How a window was left.
enum class Left { accepted, rejected, open };

template <class Dialog>
class AddonTest : public testing::Test {
  protected:
    using User = std::function<void(Dialog &)>;

    AddonTest() {
        Language("English");
        RibModel &rib = programme.rib;
        rib.NomProfil = "e205";
        rib.ProfilCharge = true;
        rib.IntradosMini = -0.03125;
        rib.ExtradosMaxi = 0.0625;
        Chord("256", 256);
    }

    void Language(const std::string &name) {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }
    void Inches() {
        programme.settings.Unite = kUniteIn;
        Chord("8", 203.2F);
    }
    void Chord(const std::string &text, float mm) {
        programme.rib.cordeAfich = text;
        programme.rib.corde = mm;
    }

    /// Shows the window as a command does, lets `act` be the user, and tells how it was left. A
    /// window that the user left open is closed behind its back.
    Left Use(const User &act) {
        Dialog window(programme, view, nullptr);
        Left left = Left::open;
        QObject::connect(&window, &QDialog::accepted, [&] { left = Left::accepted; });
        QObject::connect(&window, &QDialog::rejected, [&] { left = Left::rejected; });
        QTimer::singleShot(0, &window, [&] {
            window.activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
            act(window);
            const bool still_open = window.isVisible();
            EXPECT_EQ(still_open, left == Left::open);
            if (still_open) {
                window.done(2);
                left = Left::open;
            }
        });
        ShowModal(window);
        return left;
    }

    template <class Widget = QWidget>
    static Widget &Find(Dialog &window, const char *name) {
        auto *widget = window.template findChild<Widget *>(name);
        if (widget == nullptr) {
            throw std::runtime_error(std::string("no control ") + name);
        }
        return *widget;
    }
    static QLineEdit &Box(Dialog &window, const char *name) {
        return Find<QLineEdit>(window, name);
    }
    static std::string Text(Dialog &window, const char *name) {
        return S(Box(window, name).text());
    }
    static std::string Label(Dialog &window, const char *name) {
        return S(Find<QLabel>(window, name).text());
    }
    static std::string Word(Dialog &window, const char *name) {
        return S(Find<QAbstractButton>(window, name).text());
    }
    static std::string Tip(Dialog &window, const char *name) {
        return S(Find(window, name).toolTip());
    }
    static bool Shown(Dialog &window, const char *name) { return Find(window, name).isVisible(); }
    static bool Chosen(Dialog &window, const char *name) {
        return Find<QRadioButton>(window, name).isChecked();
    }
    static void Click(Dialog &window, const char *name) {
        QTest::mouseClick(&Find<QAbstractButton>(window, name), Qt::LeftButton);
    }
    /// Goes to a box and types over what it holds, key by key.
    static void Type(Dialog &window, const char *name, const char *text) {
        Box(window, name).setFocus();
        Box(window, name).selectAll();
        if (*text == '\0') {
            QTest::keyClick(&Box(window, name), Qt::Key_Backspace);
        }
        QTest::keyClicks(&Box(window, name), text);
    }
    static bool FocusedAndSelected(QLineEdit &box) {
        return box.hasFocus() && box.selectedText() == box.text();
    }

    /// The next box says this.
    void ExpectBox(const std::string &text) {
        platform.boxes_expected.push_back(
            {BoxAnswer::ok, [text](const MessageBox &box) { EXPECT_EQ(box.text, text); }});
    }
    /// Tab leads through these from what has the focus now, and back to it.
    static void ExpectTabs(Dialog &window, const std::vector<const char *> &names) {
        for (const char *name : names) {
            QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(S(window.focusWidget()->objectName()), name);
        }
    }
    /// In both languages and units, at the usual and at the double size of font.
    void ExpectNothingCutAnywhere() {
        for (const double scale : {1.0, 2.0}) {
            const FontScale font(scale);
            for (const char *language : {"English", "French"}) {
                for (const std::string_view unit : {kUniteMm, kUniteIn}) {
                    Language(language);
                    programme.settings.Unite = unit;
                    Use([&](Dialog &window) {
                        SCOPED_TRACE(std::string(language) + S(Q(unit)) + std::to_string(scale));
                        ExpectNothingCut(window);
                    });
                }
            }
        }
    }
    int Redraws() const {
        return static_cast<int>(std::count(view.asked.begin(), view.asked.end(), "affiche"));
    }

    ScriptedPlatform platform;
    NotedView view;
    Programme programme{Paths{}, platform};
};

} // namespace loftwing
