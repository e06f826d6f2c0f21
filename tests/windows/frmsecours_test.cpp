// Unsaved work in the main window: kept while it runs, offered after it ended badly.

#include "mainwindow/frmsecours.h"

#include "base/whole_file.h"
#include "mainwindow/frmSplash.h"
#include "programme/secours_steps.h"
#include "support/qt_nothing_cut.h"
#include "support/qt_window_world.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QSessionManager>

#include <algorithm>
#include <chrono>
#include <filesystem>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;

class SecoursInWindow : public testing::Test {
  protected:
    SecoursInWindow() { world.Open(); }

    std::string Folder() const { return world.folder.Path("recovery"); }
    /// The snapshots in the folder.
    std::vector<std::string> Kept() const {
        std::vector<std::string> files;
        if (fs::exists(Folder())) {
            for (const auto &entry : fs::directory_iterator(Folder())) {
                if (entry.path().extension() == ".rib") {
                    files.push_back(entry.path().string());
                }
            }
        }
        return files;
    }
    /// A rib of that chord whose window is no more.
    void LeaveBehind(const std::string &name, float corde, std::chrono::minutes ago) {
        RibModel rib;
        rib.Partie<PartiesRib>() = Opened();
        rib.cordeAfich = std::to_string(static_cast<int>(corde));
        rib.corde = corde;
        rib.NomFichierRib = name + ".lfw";
        rib.CheminRib = "/ribs/" + name + ".lfw";
        fs::create_directories(Folder());
        const std::string file = Folder() + "/" + name + ".rib";
        WriteWholeFile(file, EcritInstantane(rib, std::string(kUniteMm)));
        fs::last_write_time(file, fs::file_time_type::clock::now() - ago);
    }
    static const PartiesRib &Opened() {
        static const PartiesRib parties = [] {
            WindowWorld other;
            other.Open().OuvreFichier(WindowWorld::Sample("naca2412.dat"));
            return other.programme.rib.Partie<PartiesRib>();
        }();
        return parties;
    }
    bool Offer(const User &user) {
        InNextDialog(user);
        return world.window->OffreSecours();
    }
    RibModel &Rib() { return world.programme.rib; }
    bool Holds(float corde) const {
        const std::vector<std::string> files = Kept();
        if (files.size() != 1) {
            return false;
        }
        const auto read = LitInstantane(ReadWholeFile(files.front()));
        return read && read->parties.corde == corde;
    }

    WindowWorld world;
};

TEST_F(SecoursInWindow, AChangedRibIsOnDiskWithinFiveSeconds) {
    const auto start = std::chrono::steady_clock::now();
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    EXPECT_TRUE(Eventually([&] { return Holds(200); }));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST_F(SecoursInWindow, TheDesktopHasItAtOnceBeforeItEnds) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    EXPECT_TRUE(Kept().empty());
    // The toolkit alone makes one; nothing of it is looked at.
    void *nobody = qApp;
    auto &manager = *static_cast<QSessionManager *>(nobody);
    Q_EMIT qApp->commitDataRequest(manager);
    EXPECT_TRUE(Holds(200));
    world.Run("mnu_profilcorde", {[](Seen &dialog) {
                  dialog.Type("infotxt", "250");
                  dialog.Click("cmdok");
              }});
    Q_EMIT qApp->saveStateRequest(manager);
    EXPECT_TRUE(Holds(250));
}

TEST_F(SecoursInWindow, ASavedRibIsKeptNoMore) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    GardeTravail(world.programme);
    ASSERT_EQ(Kept().size(), 1U);
    world.platform.files_expected = {world.folder.Path("saved.lfw")};
    world.Action("mnu_filesaveas")->trigger();
    EXPECT_TRUE(Kept().empty());
    world.Action("mnu_editannule")->trigger(); // back to what isn't in the file
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_TRUE(Kept().empty());
}

TEST_F(SecoursInWindow, AClearedRibIsKeptNoMore) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    GardeTravail(world.programme);
    world.platform.Expect(BoxAnswer::yes);
    world.Action("mnu_affclear")->trigger();
    EXPECT_TRUE(Kept().empty());
    world.Action("mnu_editannule")->trigger();
    EXPECT_TRUE(Eventually([&] { return Holds(200); }));
}

TEST_F(SecoursInWindow, ARibThatIsThrownAwayOnLeavingIsKeptNoMore) {
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    GardeTravail(world.programme);
    world.platform.Expect(BoxAnswer::cancel);
    EXPECT_FALSE(world.window->close());
    EXPECT_EQ(Kept().size(), 1U);
    world.platform.Expect(BoxAnswer::discard);
    EXPECT_TRUE(world.window->close());
    EXPECT_TRUE(Kept().empty());
    EXPECT_TRUE(world.platform.locked.empty());
}

TEST_F(SecoursInWindow, WhatCannotBeKeptIsToldAboveThePictureUntilItCan) {
    const std::string in_the_way = world.folder.File("recovery", "");
    world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    const auto told = [this] {
        return world.Main().Has("notice_recovery") && world.Main().Shown("notice_recovery");
    };
    EXPECT_FALSE(told());
    ASSERT_TRUE(Eventually(told));
    EXPECT_EQ(world.Main().Label("notice_recovery_text"),
              "What is not saved would be lost in a crash, for nothing can be written in the "
              "folder " +
                  in_the_way);
    fs::remove(in_the_way);
    world.window->affiche();
    EXPECT_TRUE(Eventually([&] { return !told(); }));
    EXPECT_TRUE(Holds(200));
}

TEST_F(SecoursInWindow, TheOfferEndsTheBusyPointerOfTheStart) {
    LeaveBehind("wing", 150, std::chrono::minutes(1));
    world.platform.SetPointer(Pointer::busy);
    frmSplash splash(world.programme, world.window.get());
    splash.show();
    Offer([&](Seen &) {
        EXPECT_FALSE(splash.isVisible());
        EXPECT_EQ(world.platform.pointer, Pointer::normal);
    });
}

TEST_F(SecoursInWindow, WithoutAnythingLeftBehindNothingIsAsked) {
    EXPECT_FALSE(BringsDialog([&] { EXPECT_FALSE(world.window->OffreSecours()); }, {}));
}

TEST_F(SecoursInWindow, ARestoredRibIsOnTheScreenAsItWas) {
    LeaveBehind("root", 231, std::chrono::minutes(3));
    EXPECT_TRUE(Offer([](Seen &dialog) {
        EXPECT_EQ(dialog.Title(), "Unsaved ribs");
        const auto &table = dialog.Find<QTableWidget>("Ribs");
        ASSERT_EQ(table.rowCount(), 1);
        EXPECT_EQ(S(table.item(0, 0)->text()), "root.lfw");
        EXPECT_EQ(S(table.item(0, 1)->text()), "231 mm");
        dialog.Click("cmdrestaurer");
    }));
    EXPECT_EQ(S(world.window->windowTitle()), "Loftwing Rib : root.lfw Airfoil : naca2412");
    PartiesRib wanted = Opened();
    EXPECT_EQ(Rib().corde, 231);
    EXPECT_TRUE(Rib().Modifie);
    EXPECT_TRUE(Rib().Partie<PointsLus>() == static_cast<const PointsLus &>(wanted));
    EXPECT_TRUE(Rib().Partie<ContourPrepare>() == static_cast<const ContourPrepare &>(wanted));
    EXPECT_TRUE(Rib().Partie<Ajouts>() == static_cast<const Ajouts &>(wanted));
    EXPECT_FALSE(world.Action("mnu_editannule")->isEnabled());
    EXPECT_TRUE(Holds(231)); // until it is saved
    world.platform.files_expected = {world.folder.Path("saved.lfw")};
    world.Action("mnu_filesaveas")->trigger();
    EXPECT_TRUE(Kept().empty());
}

TEST_F(SecoursInWindow, OfSeveralOneIsRestoredAndTheOthersAreOfferedNextTime) {
    LeaveBehind("old", 100, std::chrono::minutes(60));
    LeaveBehind("new", 200, std::chrono::minutes(1));
    LeaveBehind("middle", 150, std::chrono::minutes(30));
    EXPECT_TRUE(Offer([](Seen &dialog) {
        auto &table = dialog.Find<QTableWidget>("Ribs");
        ASSERT_EQ(table.rowCount(), 3);
        EXPECT_EQ(S(table.item(0, 0)->text()), "new.lfw");
        EXPECT_EQ(S(table.item(1, 0)->text()), "middle.lfw");
        EXPECT_EQ(S(table.item(2, 0)->text()), "old.lfw");
        table.setCurrentCell(1, 0);
        dialog.Click("cmdrestaurer");
    }));
    EXPECT_EQ(Rib().corde, 150);
    EXPECT_EQ(Kept().size(), 3U);
    Secours next(Folder(), world.platform);
    EXPECT_EQ(next.Cherche().ribs.size(), 2U);
}

TEST_F(SecoursInWindow, NotNowKeepsThemAndLeavesTheWindowEmpty) {
    LeaveBehind("root", 231, std::chrono::minutes(3));
    EXPECT_FALSE(Offer([](Seen &dialog) { dialog.Click("cmdplustard"); }));
    EXPECT_FALSE(Offer([](Seen &dialog) { dialog.Key(Qt::Key_Escape); }));
    EXPECT_FALSE(Rib().ProfilCharge);
    EXPECT_EQ(Kept().size(), 1U);
    EXPECT_TRUE(world.platform.locked.empty());
}

TEST_F(SecoursInWindow, DeleteAsksAndTakesOneAwayForGood) {
    LeaveBehind("root", 231, std::chrono::minutes(3));
    LeaveBehind("tip", 120, std::chrono::minutes(9));
    world.platform.Expect(BoxAnswer::no, {.text = HasSubstr("root.lfw")});
    world.platform.Expect(BoxAnswer::yes, {.text = HasSubstr("root.lfw")});
    world.platform.Expect(BoxAnswer::yes, {.text = HasSubstr("tip.lfw")});
    EXPECT_FALSE(Offer([this](Seen &dialog) {
        const auto &table = dialog.Find<QTableWidget>("Ribs");
        dialog.Click("cmdsupprimer");
        EXPECT_EQ(table.rowCount(), 2);
        dialog.Click("cmdsupprimer");
        EXPECT_EQ(table.rowCount(), 1);
        EXPECT_EQ(Kept().size(), 1U);
        EXPECT_TRUE(dialog.IsOpen());
        dialog.Click("cmdsupprimer");
        EXPECT_FALSE(dialog.IsOpen());
    }));
    EXPECT_TRUE(Kept().empty());
}

TEST_F(SecoursInWindow, TheHelpHasAPageOfIt) {
    LeaveBehind("root", 231, std::chrono::minutes(3));
    Offer([](Seen &dialog) { dialog.Click("cmdaide"); });
    EXPECT_EQ(world.platform.help_contexts, std::vector<int>{46});
}

} // namespace
} // namespace loftwing
