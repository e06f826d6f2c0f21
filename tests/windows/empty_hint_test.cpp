// What the picture says as long as it has nothing to show.

#include "mainwindow/empty_hint.h"
#include "support/components_text.h"
#include "windows/views_fixture.h"

#include <QApplication>
#include <QMenu>
#include <QTest>

namespace loftwing {
namespace {

class EmptyPicture : public Views {
  protected:
    bool Hinted() const { return world.Main().Shown("EmptyHint"); }
    static std::string File(const char *name) { return WindowWorld::Sample(name); }
};

TEST_F(EmptyPicture, SaysHowToBegin) {
    const Seen window = world.Main();
    ASSERT_TRUE(Hinted());
    EXPECT_EQ(window.Label("EmptyHint_title"), "Nothing is open");
    EXPECT_EQ(window.Word("EmptyHint_open"), "Open an airfoil file... (Ctrl+O)");
    EXPECT_EQ(window.Label("EmptyHint_drop"), "or drop an airfoil or a rib file on this window");
    EXPECT_FALSE(window.Shown("EmptyHint_recent")); // nothing was ever opened
}

TEST_F(EmptyPicture, NamesTheKeysThatOpen) {
    EXPECT_NE(world.Main()
                  .Word("EmptyHint_open")
                  .find(world.Action("mnu_fileprofilopen")->shortcut().toString().toStdString()),
              std::string::npos);
}

TEST(EmptyPictureInFrench, SpeaksFrench) {
    WindowWorld world("French");
    world.Open();
    EXPECT_EQ(world.Main().Label("EmptyHint_title"), "Rien n’est ouvert");
    EXPECT_EQ(world.Main().Word("EmptyHint_open"), "Ouvrir un fichier de profil... (Ctrl+O)");
}

TEST_F(EmptyPicture, HasNoHintAsSoonAsThereIsADrawing) {
    OpenRib();
    EXPECT_FALSE(Hinted());
    world.Action("mnu_affclear")->trigger();
    EXPECT_TRUE(Hinted());
    Compare();
    EXPECT_FALSE(Hinted());
    world.Action("mnu_affclear")->trigger();
    Run("mnu_Outilcoupl", {PickSample("naca2412.dat")});
    EXPECT_FALSE(Hinted());
}

TEST_F(EmptyPicture, OpensAnAirfoilAtAClick) {
    InNextDialog(PickSample("naca0012.dat"));
    world.Main().Click("EmptyHint_open");
    EXPECT_EQ(Rib().NomProfil, "naca0012");
    EXPECT_FALSE(Hinted());
}

TEST_F(EmptyPicture, OffersTheAirfoilsOpenedLast) {
    OpenRib();
    world.window->OuvreFichier(File("naca0012.dat"));
    Rib().Modifie = false;
    world.Action("mnu_affclear")->trigger();
    const Seen window = world.Main();
    EXPECT_EQ(window.Label("EmptyHint_before"), "Opened last");
    EXPECT_FALSE(window.Shown({"EmptyHint_file", 3})); // the ribs stand before them
    EXPECT_EQ(window.Word({"EmptyHint_file", 4}), "naca0012.dat");
    EXPECT_EQ(window.Word({"EmptyHint_file", 5}), "naca2412.dat");
    EXPECT_EQ(window.Tip({"EmptyHint_file", 5}), File("naca2412.dat"));
    EXPECT_FALSE(window.Shown({"EmptyHint_file", 6}));
    window.Click({"EmptyHint_file", 5});
    EXPECT_EQ(Rib().CheminProfil, File("naca2412.dat"));
    EXPECT_TRUE(Rib().ProfilCharge);
}

TEST_F(EmptyPicture, OffersTheRibsOpenedLast) {
    std::filesystem::copy_file(File("naca2412.dat"), world.folder.Path("airfoils/naca2412.dat"));
    const std::string path = world.folder.File("root.lfw", ComponentsText{}.Current());
    world.window->OuvreFichier(path);
    world.Action("mnu_affclear")->trigger();
    EXPECT_EQ(world.Main().Word({"EmptyHint_file", 0}), "root.lfw");
    world.Main().Click({"EmptyHint_file", 0});
    EXPECT_EQ(Caption(), "Loftwing Rib : root.lfw Airfoil : naca2412");
}

TEST_F(EmptyPicture, LeavesTheRecentAirfoilsToTheMenuWhereTheyHaveNoRoom) {
    OpenRib();
    world.Action("mnu_affclear")->trigger();
    EXPECT_TRUE(world.Main().Shown("EmptyHint_recent"));
    world.Resize(QSize(900, 230));
    EXPECT_FALSE(world.Main().Shown("EmptyHint_recent"));
    for (const char *name : {"EmptyHint_title", "EmptyHint_open", "EmptyHint_drop"}) {
        const QWidget &words = world.Main().Find(name);
        EXPECT_GE(words.height(), words.sizeHint().height()) << name;
        EXPECT_TRUE(words.parentWidget()->rect().contains(words.geometry())) << name;
    }
}

TEST_F(EmptyPicture, HasTheColoursOfTheDesktop) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(40, 40, 40)));
    QApplication::processEvents(); // which tell the widgets
    const QWidget &hint = world.Main().Find("EmptyHint");
    const QColor dark = QApplication::palette().color(QPalette::Base);
    EXPECT_LT(dark.lightness(), 100);
    EXPECT_EQ(world.Main().Find("Pic").grab().toImage().pixelColor(3, 3), dark);
    EXPECT_EQ(hint.palette().color(QPalette::Text), QApplication::palette().color(QPalette::Text));
    OpenRib(); // paper is white
    EXPECT_EQ(world.Main().Find("Pic").grab().toImage().pixelColor(3, 3), QColor(Qt::white));
    QApplication::setPalette(before);
}

TEST_F(EmptyPicture, StillOpensTheRibsMenu) {
    QTest::mouseClick(&world.Main().Find("EmptyHint_title"), Qt::RightButton);
    auto *menu = world.Find<QMenu>("mnuprofil");
    EXPECT_TRUE(menu->isVisible());
    menu->close();
}

} // namespace
} // namespace loftwing
