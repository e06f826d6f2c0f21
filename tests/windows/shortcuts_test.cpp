// The keys of the main window's commands.

#include "support/qt_window_world.h"

#include <gtest/gtest.h>

#include <QTest>

#include <filesystem>
#include <set>

namespace loftwing {
namespace {

TEST(MainShortcuts, NoShortcutStandsForTwoCommands) {
    WindowWorld world;
    world.Open();
    std::set<QString> keys;
    for (const Command &command : MenuCommands()) {
        for (const QKeySequence &key : world.Action(command.name)->shortcuts()) {
            EXPECT_FALSE(key.isEmpty()) << command.name;
            EXPECT_TRUE(keys.insert(key.toString()).second) << command.name;
        }
    }
    EXPECT_GE(keys.size(), 5U);
}

TEST(MainShortcuts, AltWithTheArrowsLeafsThroughTheFolder) {
    WindowWorld world;
    for (const char *name : {"a.dat", "b.dat"}) {
        std::filesystem::copy_file(WindowWorld::Sample("naca2412.dat"),
                                   world.folder.Path(std::string("airfoils/") + name));
    }
    world.Open().OuvreFichier(world.folder.Path("airfoils/a.dat"));
    QTest::keyClick(world.window.get(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(world.programme.rib.NomProfil, "b");
    EXPECT_EQ(world.window->windowTitle().toStdString(), "Loftwing Airfoil : b");
    QTest::keyClick(world.window.get(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(world.programme.rib.NomProfil, "a");
}

TEST(MainShortcuts, CtrlSSavesAsCtrlShiftSDoes) {
    WindowWorld world;
    world.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    world.platform.files_expected = {world.folder.Path("a.lfw"), world.folder.Path("b.lfw")};
    QTest::keyClick(world.window.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(std::filesystem::exists(world.folder.Path("a.lfw")));
    EXPECT_FALSE(world.programme.rib.Modifie);
    QTest::keyClick(world.window.get(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(std::filesystem::exists(world.folder.Path("b.lfw")));
    EXPECT_EQ(world.Action("mnu_filesaveas")->shortcut().toString().toStdString(), "Ctrl+Shift+S");
}

} // namespace
} // namespace loftwing
