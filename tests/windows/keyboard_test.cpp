// Every window without a mouse.

#include "platform/qt_access_letters.h"
#include "platform/qt_platform.h"
#include "support/qt_all_windows.h"
#include "support/qt_tab_chain.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QToolTip>

#include <algorithm>
#include <set>

namespace loftwing {
namespace {

/// The arrow keys lead on from the chosen button of a group, or from whichever Tab came to.
bool IsReachedByArrows(const QWidget &widget, const std::vector<QWidget *> &chain) {
    return qobject_cast<const QRadioButton *>(&widget) != nullptr &&
           std::any_of(chain.begin(), chain.end(), [&widget](const QWidget *other) {
               return other->parentWidget() == widget.parentWidget() &&
                      qobject_cast<const QRadioButton *>(other) != nullptr;
           });
}

/// Whether something can be done with it that has no other way.
bool IsControl(const QWidget &widget) {
    if (!widget.isVisible() || !widget.isEnabled()) {
        return false;
    }
    if (qobject_cast<const QAbstractButton *>(&widget) != nullptr) {
        // The cross in a field that empties it.
        return qobject_cast<const QLineEdit *>(widget.parentWidget()) == nullptr;
    }
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget)) {
        return !field->isReadOnly();
    }
    if (qobject_cast<const QHeaderView *>(&widget) != nullptr) {
        return false; // its sections only say what stands below them
    }
    return qobject_cast<const QComboBox *>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView *>(&widget) != nullptr ||
           widget.objectName() == "Pic" || widget.objectName() == "PicNervures";
}

TEST(Keyboard, TabReachesEveryControlOfEveryWindow) {
    LookAtAllWindows("English", "mm", [](QWidget &window) {
        const std::vector<QWidget *> chain = TabChain(window);
        for (auto *widget : window.findChildren<QWidget *>()) {
            if (IsControl(*widget) && !IsReachedByArrows(*widget, chain)) {
                EXPECT_NE(std::find(chain.begin(), chain.end(), widget), chain.end())
                    << widget->metaObject()->className() << " " << S(widget->objectName());
            }
        }
    });
}

/// Whether a reader who comes from `before` has passed `after` already: it stands above, and not in
/// a column further right.
bool IsAbove(const QWidget &window, const QWidget &after, const QWidget &before) {
    const QRect a(after.mapTo(&window, QPoint()), after.size());
    const QRect b(before.mapTo(&window, QPoint()), before.size());
    const bool same_line = a.top() <= b.bottom() && b.top() <= a.bottom();
    return same_line ? a.right() < b.left() : a.bottom() < b.top() && a.left() <= b.right();
}

/// What adds the typed spar or hole stands beside its sizes, above its kinds, and is wanted when
/// all of it is said.
bool IsCommandOfAList(const QWidget &widget) {
    const QString name = widget.objectName();
    return name == "cmdajout" || name == "Cmdmodif" || name == "Cmdeffac";
}

/// Notices come and go, and Tab comes to what is made last behind the picture. F6 leads to them
/// from the tool bar.
bool IsOfANotice(const QWidget &widget) {
    return widget.objectName().startsWith("notice_");
}

TEST(Keyboard, TabFollowsTheOrderOfReading) {
    LookAtAllWindows("English", "mm", [](QWidget &window) {
        const std::vector<QWidget *> chain = TabChain(window);
        int steps_back = 0;
        std::string told;
        for (std::size_t i = 0; i < chain.size(); ++i) {
            const QWidget &before = *chain[i];
            const QWidget &after = *chain[(i + 1) % chain.size()];
            if (IsAbove(window, after, before) && !IsCommandOfAList(after) && !IsOfANotice(after)) {
                ++steps_back;
                told += S(before.objectName()) + " > " + S(after.objectName()) + "; ";
            }
        }
        // Once, from the last to the first.
        EXPECT_LE(steps_back, 1) << told;
    });
}

std::vector<QAbstractButton *> ToolBarButtons(const frmmain &window) {
    std::vector<QAbstractButton *> buttons;
    for (auto *button :
         window.findChild<QWidget *>("Toolbar1")->findChildren<QAbstractButton *>()) {
        if (!button->objectName().isEmpty() && !button->objectName().startsWith("qt_")) {
            buttons.push_back(button);
        }
    }
    return buttons;
}

TEST(Keyboard, EveryButtonOfTheToolBarHasAKeyThatIsNoMenus) {
    for (const std::string &language : LanguagesHeld()) {
        WindowWorld world(language);
        world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
        std::set<std::string> keys;
        for (const QAction *menu : world.window->menuBar()->actions()) {
            const QKeySequence key = QKeySequence::mnemonic(menu->text());
            EXPECT_TRUE(keys.insert(S(key.toString())).second) << S(menu->text());
        }
        const std::vector<QAbstractButton *> buttons = ToolBarButtons(*world.window);
        EXPECT_EQ(buttons.size(), 12U); // six icons, six words
        for (const QAbstractButton *button : buttons) {
            const std::string key = S(button->shortcut().toString());
            EXPECT_TRUE(key.starts_with("Alt+") && key.size() == 5) << S(button->text()) << key;
            EXPECT_TRUE(keys.insert(key).second) << language << " " << key;
        }
    }
}

TEST(Keyboard, TheKeysStayWhenCommandsDieAndLiveAgain) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    const auto keys = [&world] {
        std::vector<std::string> all;
        for (const QAbstractButton *button : ToolBarButtons(*world.window)) {
            all.push_back(S(button->shortcut().toString()));
        }
        return all;
    };
    const std::vector<std::string> before = keys();
    world.window->affclear();
    EXPECT_EQ(keys(), before);
    world.window->AppliqueLangue();
    EXPECT_EQ(keys(), before);
}

TEST(Keyboard, AltWithItsLetterPressesAButton) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    const std::pair<Qt::Key, const char *> cases[] = {{Qt::Key_C, "frmInput"},
                                                      {Qt::Key_S, "frmlongeron"}};
    for (const auto &[key, opened] : cases) {
        bool came = false;
        // The button is seen to go down before its command runs.
        const auto press = [&, key = key] {
            world.window->activateWindow();
            EXPECT_TRUE(Eventually([&] { return world.window->isActiveWindow(); }));
            QTest::keyClick(world.window.get(), key, Qt::AltModifier);
            EXPECT_TRUE(Eventually([&came] { return came; }));
        };
        EXPECT_TRUE(BringsDialog(press, [&, opened = opened](Seen &dialog) {
            came = true;
            EXPECT_EQ(dialog.Name(), opened);
        }));
    }
    EXPECT_EQ(world.Main().Find<QPushButton>("cmdcorde").text(), "&Chord");
}

TEST(Keyboard, TheToolTipTellsTheKeyOfAButton) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    auto *button = world.Find<QPushButton>("cmdbf");
    // Its T and E are those of the tools and of the leading edge.
    EXPECT_EQ(S(button->text()), "T.E.");
    EXPECT_EQ(S(button->toolTip()), "Trailing edge");
    QHelpEvent asked(QEvent::ToolTip, QPoint(3, 3), button->mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(button, &asked);
    EXPECT_EQ(S(QToolTip::text()), "Trailing edge (" + S(button->shortcut().toString()) + ")");
    QToolTip::hideText();
}

TEST(Keyboard, F6LeadsThroughThePartsOfTheMainWindow) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.window->activateWindow();
    ASSERT_TRUE(Eventually([&] { return world.window->isActiveWindow(); }));
    const Seen main = world.Main();
    EXPECT_EQ(main.Focus(), "Pic");
    main.Key(Qt::Key_F6);
    EXPECT_EQ(main.Focus(), "Toolbar1(2)_button");
    main.Key(Qt::Key_F6);
    EXPECT_EQ(main.Focus(), "Pic");
    world.programme.rib.EcartContour = 0.0318;
    world.window->MontreAvis();
    main.Key(Qt::Key_F6);
    main.Key(Qt::Key_F6);
    EXPECT_TRUE(main.Focus().starts_with("notice_")) << main.Focus();
    main.Key(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(main.Focus(), "Toolbar1(2)_button");
    main.Key(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(main.Focus(), "Pic");
}

TEST(Keyboard, AnAnswerOfABoxHasALetter) {
    const std::pair<BoxButtons, std::vector<const char *>> cases[] = {
        {BoxButtons::yes_no, {"&Oui", "&Non"}},
        {BoxButtons::retry_cancel, {"&Encore", "Annuler"}},
        {BoxButtons::locate_cancel, {"&Indiquer", "Annuler"}},
        {BoxButtons::ok_cancel, {"Bien", "Annuler"}}};
    for (const auto &[buttons, words] : cases) {
        QtPlatform platform(LOFTWING_SOURCE_DIR "/resources");
        platform.SetButtonWords({"Bien", "Annuler", "Oui", "Non", "Encore", "Indiquer"});
        InNextDialog([&words = words](Seen &dialog) {
            std::set<std::string> shown;
            for (const QAbstractButton *button : dialog.As<QMessageBox>().buttons()) {
                shown.insert(S(button->text()));
            }
            EXPECT_EQ(shown, std::set<std::string>(words.begin(), words.end()));
            dialog.Key(Qt::Key_Escape);
        });
        platform.Show({"?", "t", BoxIcon::question, buttons, BoxAnswer::ok});
    }
}

TEST(Keyboard, AltWithTheLetterOfNoIsNo) {
    QtPlatform platform(LOFTWING_SOURCE_DIR "/resources");
    platform.SetButtonWords({"OK", "Cancel", "Yes", "No", "Retry", "Locate..."});
    InNextDialog([](Seen &dialog) {
        dialog.Key(Qt::Key_N, Qt::AltModifier);
        EXPECT_TRUE(Eventually([&dialog] { return !dialog.IsOpen(); }));
    });
    EXPECT_EQ(platform.Show({"?", "t", BoxIcon::question, BoxButtons::yes_no, BoxAnswer::yes}),
              BoxAnswer::no);
}

TEST(AccessLetters, AreGivenOnceAndFirstLettersFirst) {
    EXPECT_EQ(AccessLetters({"Airfoil", "Axis", "Edge"}), (std::vector<QChar>{'a', 'x', 'e'}));
    EXPECT_EQ(AccessLetters({"Save as"}, "s"), (std::vector<QChar>{'a'}));
}

TEST(AccessLetters, AWordGivesWayWhereItCanDoWithAnotherLetter) {
    EXPECT_EQ(AccessLetters({"ab", "a"}), (std::vector<QChar>{'b', 'a'}));
    EXPECT_EQ(AccessLetters({"L.E.", "T.E."}, "l"), (std::vector<QChar>{'e', 't'}));
    EXPECT_EQ(AccessLetters({"L.E.", "T.E."}, "lt"), (std::vector<QChar>{'e', QChar()}));
}

TEST(AccessLetters, AMarkedOneIsKept) {
    EXPECT_EQ(AccessLetters({"Save", "&Stop"}), (std::vector<QChar>{'a', 's'}));
    EXPECT_EQ(WithAccessLetter("&Stop", 't'), "&Stop");
    EXPECT_EQ(WithAccessLetter("Do not", 'n'), "Do &not");
    EXPECT_EQ(WithAccessLetter("Don't", 'n'), "Do&n't");
    EXPECT_EQ(WithAccessLetter("Yes", 'x'), "Yes");
}

} // namespace
} // namespace loftwing
