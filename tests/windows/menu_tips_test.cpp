// Entries of the menus that do nothing, and what they say.

#include "mainwindow/commands.h"
#include "support/qt_window_world.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>

namespace loftwing {
namespace {

/// The tool tip that comes when the pointer rests on an entry of an open menu; empty without one.
std::string TipOf(const WindowWorld &world, const std::string &menu, const std::string &entry) {
    auto *shown = world.Find<QMenu>(menu);
    shown->popup(world.window->mapToGlobal(QPoint(0, 0)));
    const QPoint place = shown->actionGeometry(world.Action(entry)).center();
    QHelpEvent rests(QEvent::ToolTip, place, shown->mapToGlobal(place));
    QApplication::sendEvent(shown, &rests);
    const std::string tip = QToolTip::isVisible() ? QToolTip::text().toStdString() : "";
    QToolTip::hideText();
    QApplication::processEvents();
    shown->hide();
    return tip;
}

struct Elsewhere {
    const char *menu;
    const char *entry;
    const char *english;
    const char *french;
};
constexpr Elsewhere kElsewhere[] = {
    {"mnu_file", "mnu_fileprintpreview", "View, Sheets", "Affichage, Feuilles"},
    {"mnu_param", "mnu_paramvril", "template (Layout, Template)",
     "gabarit (Gabarit, Gabarit de découpe)"}};

TEST(MenuTips, AnEntryThatDoesNothingIsDeadAndSaysWhereItsThingIs) {
    for (const char *language : {"English", "French"}) {
        const bool english = std::string(language) == "English";
        WindowWorld world(language);
        world.Open();
        world.window->AppliqueLangue();
        for (const bool with_rib : {false, true}) {
            if (with_rib) {
                world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
            }
            for (const Elsewhere &row : kElsewhere) {
                EXPECT_FALSE(world.Action(row.entry)->isEnabled()) << row.entry;
                EXPECT_NE(
                    TipOf(world, row.menu, row.entry).find(english ? row.english : row.french),
                    std::string::npos)
                    << TipOf(world, row.menu, row.entry);
            }
        }
    }
}

TEST(MenuTips, NoOtherEntryRepeatsItsWordsAsATip) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    EXPECT_EQ(TipOf(world, "mnu_param", "mnu_parambloc"), "");
    EXPECT_EQ(TipOf(world, "mnu_file", "mnu_fileprint"), "");
}

TEST(MenuTips, TheSheetsSayThatThePrintersOwnPaperHasNone) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    EXPECT_TRUE(world.Action("mnu_afffeuilles")->isEnabled());
    EXPECT_NE(TipOf(world, "mnu_aff", "mnu_afffeuilles").find("paper set in the printer"),
              std::string::npos);
}

TEST(MenuTips, EveryEntryThatDoesNothingSaysSo) {
    for (const Command &command : MenuCommands()) {
        const bool does_nothing =
            !command.submenu && command.handler == nullptr && command.exporte == nullptr;
        EXPECT_EQ(command.ailleurs.has_value(), does_nothing) << command.name;
    }
}

} // namespace
} // namespace loftwing
