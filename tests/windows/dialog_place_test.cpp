// Where dialogs open: beside the rib, so that what is typed can be seen on it.

#include "platform/qt_place.h"
#include "programme/qt_dialogue.h"
#include "support/qt_all_windows.h"
#include "utilities/frmdiedre.h"
#include "windows/views_fixture.h"

#include <QApplication>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace loftwing {
namespace {

/// A window in the middle of a screen of 1920 by 1080, with a rib along its upper edge.
const QRect kScreen(0, 0, 1920, 1080);
const QRect kWindow(460, 240, 1000, 600);
const QRect kRib(480, 300, 760, 240); // to 1239 and 539

TEST(DialogPlace, IsBelowTheRibWhereThatIsNearest) {
    // In the middle it would begin at 390; below the rib and a gap of 8 pixels it does at 548.
    EXPECT_EQ(PlaceBeside({400, 300}, kWindow, kRib, kScreen), QPoint(760, 548));
}

TEST(DialogPlace, IsAtTheSideWhereThatIsNearer) {
    // 400 wide, it would begin at 760: 488 to the right of that. 700 high, it has no room below.
    EXPECT_EQ(PlaceBeside({400, 700}, kWindow, kRib, kScreen), QPoint(1248, 190));
    // At the left edge of the screen the left side is nearer.
    EXPECT_EQ(PlaceBeside({400, 700}, kWindow, QRect(700, 300, 760, 240), kScreen),
              QPoint(292, 190));
}

TEST(DialogPlace, IsAboveTheRibWhereOnlyThatHasRoom) {
    EXPECT_EQ(PlaceBeside({1000, 290}, QRect(0, 240, 1920, 840), QRect(0, 300, 1920, 700), kScreen),
              QPoint(460, 2));
}

TEST(DialogPlace, IsTheMiddleWhereThatLeavesTheRibFree) {
    EXPECT_EQ(PlaceBeside({400, 300}, kWindow, QRect(480, 300, 760, 80), kScreen),
              QPoint(760, 390));
    EXPECT_EQ(PlaceBeside({400, 300}, kWindow, QRect(), kScreen), QPoint(760, 390));
}

TEST(DialogPlace, IsTheMiddleWhereTheScreenHasNoRoom) {
    const QRect small(0, 0, 1000, 600);
    EXPECT_EQ(PlaceBeside({800, 500}, small, QRect(20, 60, 760, 240), small), QPoint(100, 50));
}

TEST(DialogPlace, NeverLeavesTheScreen) {
    const QRect window(1700, 900, 1000, 600);
    EXPECT_EQ(PlaceBeside({400, 300}, window, QRect(), kScreen), QPoint(1520, 780));
    EXPECT_EQ(PlaceBeside({400, 300}, QRect(-900, -500, 1000, 600), QRect(), kScreen),
              QPoint(0, 0));
}

/// Names of the widgets that Tab leads to, in its order.
std::vector<std::string> TabNames(const std::vector<QWidget *> &order) {
    std::vector<std::string> names;
    for (const QWidget *widget : order) {
        names.push_back(S(widget->objectName()));
    }
    return names;
}

std::vector<QWidget *> TabOrder(QWidget &window) {
    std::vector<QWidget *> order;
    for (QWidget *next = window.nextInFocusChain(); next != &window;
         next = next->nextInFocusChain()) {
        // Of a group of choices the toolkit leaves the one in force, once it has looked at them.
        const auto *choice = qobject_cast<QRadioButton *>(next);
        if (window.isAncestorOf(next) && (choice == nullptr || choice->isChecked()) &&
            (next->focusPolicy() & Qt::TabFocus) != 0 && next->isEnabled() && next->isVisible()) {
            order.push_back(next);
        }
    }
    return order;
}

/// A dialog made to fit a screen of 1366 by 768 pixels at 250 %, less its frame and a panel: all
/// that Tab leads to, in the order of before, can be seen.
void ExpectUsableOnASmallScreen(QDialog &dialog) {
    const QSize room(540, 260);
    const std::vector<QWidget *> before = TabOrder(dialog);
    dialog.hide();
    dialog.setAttribute(Qt::WA_Resized, false);
    FitDialog(dialog, room);
    dialog.show();
    QApplication::processEvents();
    EXPECT_LE(dialog.width(), room.width());
    EXPECT_LE(dialog.height(), room.height());
    EXPECT_EQ(TabNames(TabOrder(dialog)), TabNames(before));
    for (QWidget *widget : before) {
        widget->setFocus(Qt::TabFocusReason);
        auto *area = dialog.findChild<QScrollArea *>("Defilement");
        if (area != nullptr) {
            area->ensureWidgetVisible(widget); // as Tab does
        }
        EXPECT_FALSE(widget->visibleRegion().isEmpty()) << S(widget->objectName());
    }
}

TEST(DialogPlace, ADialogIsScrolledWhereTheScreenIsTooSmallForIt) {
    LookAtAllWindows("German", "mm", [](QWidget &window) {
        auto *dialog = qobject_cast<Dialogue *>(&window);
        if (dialog != nullptr) {
            ExpectUsableOnASmallScreen(*dialog);
        }
    });
}

TEST(DialogPlace, ADialogThatFitsIsNotScrolled) {
    LookAtAllWindows("English", "mm", [](QWidget &window) {
        if (auto *dialog = qobject_cast<Dialogue *>(&window)) {
            FitDialog(*dialog, {1920, 1040});
            EXPECT_EQ(dialog->findChild<QScrollArea *>("Defilement"), nullptr);
        }
    });
}

TEST(DialogPlace, AScrolledDialogHasNoBarThatItDoesNotNeed) {
    QDialog dialog;
    auto *rows = new QVBoxLayout(&dialog);
    rows->setContentsMargins(0, 0, 0, 0);
    auto *tall = new QWidget;
    tall->setFixedSize(300, 600);
    rows->addWidget(tall);
    FitDialog(dialog, {500, 400});
    dialog.show();
    QApplication::processEvents();
    const auto *area = dialog.findChild<QScrollArea *>("Defilement");
    ASSERT_NE(area, nullptr);
    EXPECT_TRUE(area->verticalScrollBar()->isVisible());
    EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
    EXPECT_EQ(dialog.height(), 400);
    EXPECT_EQ(dialog.width(), 300 + area->verticalScrollBar()->width());
    // Opened again it is as large as before.
    FitDialog(dialog, {500, 400});
    EXPECT_EQ(dialog.height(), 400);
    EXPECT_EQ(dialog.findChildren<QScrollArea *>("Defilement").size(), 1);
}

class DialogsBeside : public Views {
  protected:
    DialogsBeside() {
        world.window->move(0, 0);
        world.window->resize(780, 330);
        OpenRib();
    }
    /// What of the rib is seen, on the screen.
    QRect RibOnScreen() const {
        const auto *pic = world.Find<PicView>("Pic");
        const Extent extent = pic->Dessin()->Bounds();
        const QRect drawn(QPoint(qRound(extent.left / 15), qRound(extent.top / 15)),
                          QPoint(qRound(extent.right / 15), qRound(extent.bottom / 15)));
        return (drawn & pic->rect()).translated(pic->mapToGlobal(QPoint()));
    }
    void ExpectBeside(const QWidget &dialog, const char *command) const {
        EXPECT_FALSE(dialog.frameGeometry().intersects(RibOnScreen())) << command;
        EXPECT_TRUE(world.window->screen()->availableGeometry().contains(dialog.frameGeometry()))
            << command;
    }
};

TEST_F(DialogsBeside, LeaveTheRibFree) {
    for (const char *command : {"mnu_profilcorde", "mnu_profillongeron", "mnu_profiltrou",
                                "mnu_profilTalon", "mnu_affInstxt", "mnu_affcouleur"}) {
        bool came = false;
        Run(command, {[&](Seen &dialog) {
                came = true;
                ExpectBeside(dialog.Window(), command);
                dialog.Key(Qt::Key_Escape);
            }});
        EXPECT_TRUE(came) << command;
    }
}

TEST_F(DialogsBeside, SoDoWindowsThatStayOpen) {
    world.Action("mnu_OutlilDiedre")->trigger();
    ExpectBeside(*world.window->findChild<frmdiedre *>(), "mnu_OutlilDiedre");
}

} // namespace
} // namespace loftwing
