// What a screen reader says of every window.

#include "features/qt_numbered_list.h"
#include "support/qt_all_windows.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QToolBar>

#include <map>

namespace loftwing {
namespace {

/// The name that the toolkit tells. That of a list to choose from is on this system what is chosen,
/// and its caption is told by itself: then it is what counts.
std::string NameOf(QWidget &widget) {
    if (qobject_cast<QComboBox *>(&widget) != nullptr && widget.accessibleName().isEmpty()) {
        for (const auto *label : widget.window()->findChildren<QLabel *>()) {
            if (label->buddy() == &widget) {
                return S(label->text());
            }
        }
        return {};
    }
    QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&widget);
    return told == nullptr ? std::string() : S(told->text(QAccessible::Name));
}

/// What the toolkit makes for itself, such as the parts of a list.
bool IsToolkits(const QWidget &widget) {
    const QString kind = widget.metaObject()->className();
    return widget.objectName().startsWith("qt_") ||
           widget.parentWidget()->objectName().startsWith("qt_scrollarea") ||
           kind == "QToolBarSeparator" || kind == "QSizeGrip" || kind == "QLineEditIconButton" ||
           kind == "QToolBarExtension" || kind == "QSplitterHandle" || kind == "QHeaderView" ||
           kind == "loftwing::FocusMark" || kind.startsWith("QComboBox") != (kind == "QComboBox");
}

/// What only holds other things.
bool IsContainer(const QWidget &widget) {
    const QString kind = widget.metaObject()->className();
    return kind == "QWidget" || kind == "QFrame" || kind == "QDialogButtonBox" ||
           kind == "QStackedWidget" || kind == "QSplitter" || kind == "loftwing::PictureArea" ||
           kind == "loftwing::EmptyHint" || kind == "loftwing::NoticeBar";
}

bool IsEmptyLabel(const QWidget &widget) {
    const auto *label = qobject_cast<const QLabel *>(&widget);
    return label != nullptr && label->text().isEmpty() && label->pixmap().isNull();
}

bool WantsAName(const QWidget &widget) {
    return widget.isVisible() && !IsToolkits(widget) && !IsEmptyLabel(widget) &&
           (widget.focusPolicy() != Qt::NoFocus || !IsContainer(widget));
}

void ExpectNames(const QWidget &window) {
    int named = 0;
    for (auto *widget : window.findChildren<QWidget *>()) {
        if (WantsAName(*widget)) {
            EXPECT_NE(NameOf(*widget), "")
                << widget->metaObject()->className() << " " << S(widget->objectName());
            ++named;
        }
    }
    EXPECT_GT(named, 1);
}

TEST(AccessibleNames, EveryControlOfEveryWindowHasOneInEachLanguage) {
    LookAtAllWindows([](QWidget &window) {
        EXPECT_NE(S(window.windowTitle()), "");
        ExpectNames(window);
    });
}

TEST(AccessibleNames, TellTheFieldsOfAGroupApart) {
    LookAtAllWindows([](QWidget &window) {
        std::map<std::pair<const QWidget *, std::string>, const QWidget *> known;
        for (auto *widget : window.findChildren<QWidget *>()) {
            // The two browse buttons of the folders are told apart by their descriptions.
            if (!WantsAName(*widget) || widget->focusPolicy() == Qt::NoFocus) {
                continue;
            }
            const std::string told = NameOf(*widget) + "/" + S(widget->accessibleDescription());
            const auto [same, fresh] = known.try_emplace({widget->parentWidget(), told}, widget);
            EXPECT_TRUE(fresh) << told << ": " << S(widget->objectName()) << ", "
                               << S(same->second->objectName());
        }
    });
}

TEST(AccessibleNames, TheDrawingIsDescribedByWhatTheStatusBarSays) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    QAccessibleInterface *picture =
        QAccessible::queryAccessibleInterface(world.Find<QWidget>("Pic"));
    EXPECT_EQ(S(picture->text(QAccessible::Name)), "Drawing");
    EXPECT_NE(world.Panel(2), "");
    EXPECT_EQ(S(picture->text(QAccessible::Description)), world.Panel(2));
    world.window->affclear();
    EXPECT_EQ(S(picture->text(QAccessible::Description)), world.Panel(2));
}

TEST(AccessibleNames, ANumberIsAButtonThatAReaderPresses) {
    NumberedList numbers;
    numbers.Nomme("Spar # :");
    numbers.Numerote(1);
    numbers.Marque(1);
    std::vector<int> clicked;
    QObject::connect(&numbers, &NumberedList::Clicked,
                     [&clicked](int index) { clicked.push_back(index); });
    const auto told = [&numbers](int index) {
        return QAccessible::queryAccessibleInterface(
            &numbers.Labels().at(static_cast<std::size_t>(index)));
    };
    EXPECT_EQ(told(0)->role(), QAccessible::Button);
    EXPECT_EQ(S(told(0)->text(QAccessible::Name)), "Spar # : 1");
    EXPECT_FALSE(told(0)->state().selected);
    EXPECT_TRUE(told(1)->state().selected);
    QAccessibleActionInterface *actions = told(0)->actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicked, std::vector<int>({0}));
    // A number that isn't in use yet is nothing to press.
    EXPECT_FALSE(told(2)->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
}

} // namespace
} // namespace loftwing
