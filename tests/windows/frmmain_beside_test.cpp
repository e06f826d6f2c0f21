// Windows that stay open beside the main one.

#include "support/qt_window_world.h"
#include "utilities/frmCoord.h"
#include "utilities/frmdiedre.h"
#include "utilities/frmnervure.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class BesideMainTest : public testing::Test {
  protected:
    WindowWorld world;

    BesideMainTest() {
        world.Open();
        world.window->OuvreFichier(WindowWorld::Sample("naca2412.dat"));
    }
    template <class Window>
    QList<Window *> Windows() const {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return world.window->findChildren<Window *>();
    }
    void Run(const char *command) const { world.Action(command)->trigger(); }
    void EnterPoint() const {
        const Seen editor(*Windows<frmCoord>().front());
        editor.Fill("txtinX", "1");
        editor.Fill("txtinY", "0");
        editor.Click("cmdentre");
    }
    template <class Window>
    void ExpectOneBeside(const char *command) {
        Run(command);
        ASSERT_EQ(Windows<Window>().size(), 1);
        Window *window = Windows<Window>().front();
        EXPECT_TRUE(window->isVisible());
        EXPECT_FALSE(window->isModal());
        window->showMinimized();
        Run(command);
        EXPECT_EQ(Windows<Window>(), QList<Window *>{window});
        EXPECT_FALSE(window->isMinimized());
        window->reject();
        EXPECT_TRUE(Windows<Window>().isEmpty());
        Run(command);
        EXPECT_EQ(Windows<Window>().size(), 1);
    }
};

TEST_F(BesideMainTest, ThereIsOneOfEach) {
    ExpectOneBeside<frmnervure>("mnu_outilnervinter");
    ExpectOneBeside<frmdiedre>("mnu_OutlilDiedre");
    ExpectOneBeside<frmCoord>("mnu_Outilcoord");
}

TEST_F(BesideMainTest, CalculatorsCloseWithTheRibAndTheEditorStays) {
    for (const char *command : {"mnu_outilnervinter", "mnu_OutlilDiedre", "mnu_Outilcoord"}) {
        Run(command);
    }
    EnterPoint();
    world.window->affclear();
    EXPECT_TRUE(Windows<frmnervure>().isEmpty());
    EXPECT_TRUE(Windows<frmdiedre>().isEmpty());
    ASSERT_EQ(Windows<frmCoord>().size(), 1);
    EXPECT_TRUE(Windows<frmCoord>().front()->isVisible());
    EXPECT_TRUE(world.platform.boxes.empty());
    world.window->OuvreFichier(WindowWorld::Sample("naca0012.dat"));
    EXPECT_EQ(Windows<frmCoord>().size(), 1);
}

TEST_F(BesideMainTest, CalculatorsDontKeepTheRibFromBeingDrawnAgain) {
    Run("mnu_outilnervinter");
    Run("mnu_OutlilDiedre");
    Run("mnu_Outilcoord");
    auto *picture = world.Find<PicView>("Pic");
    picture->Montre(nullptr);
    world.window->resize(world.window->width() + 60, world.window->height() + 40);
    EXPECT_TRUE(Eventually([picture] { return picture->Dessin() != nullptr; }));
}

TEST_F(BesideMainTest, AnotherLanguageReachesWhatIsOpen) {
    for (const char *command : {"mnu_outilnervinter", "mnu_OutlilDiedre", "mnu_Outilcoord"}) {
        Run(command);
    }
    EnterPoint();
    world.programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", "French");
    world.window->AppliqueLangue();
    const Seen dihedral(*Windows<frmdiedre>().front());
    EXPECT_EQ(dihedral.Title(), "Calcul du dièdre  mm");
    EXPECT_EQ(dihedral.Label("Label1"), "Angle en degrés");
    const Seen ribs(*Windows<frmnervure>().front());
    EXPECT_EQ(ribs.Label("Label2"), world.programme.Text({"FrmNervure", "4"}));
    EXPECT_EQ(ribs.Title(), world.programme.Text({"FrmNervure", "1"}) + "  mm");
    const Seen editor(*Windows<frmCoord>().front());
    EXPECT_EQ(editor.Title(), world.programme.Text({"Frmcoord", "1"}));
    EXPECT_EQ(editor.Find<QListWidget>("Liste_Valeurs").count(), 1);
}

TEST_F(BesideMainTest, UnsavedLinesAreAskedForWhenTheProgramEnds) {
    Run("mnu_Outilcoord");
    EnterPoint();
    world.platform.Expect(BoxAnswer::discard); // quit?
    world.platform.Expect(BoxAnswer::no);      // the lines
    EXPECT_FALSE(world.window->close());
    EXPECT_TRUE(world.window->isVisible());
    EXPECT_EQ(world.platform.boxes.back().text, "The lines are not saved. Close all the same?");
    EXPECT_EQ(world.platform.help_closed, 0);
    // Who stays at the first question is asked no second.
    world.platform.Expect(BoxAnswer::cancel);
    EXPECT_FALSE(world.window->close());
    EXPECT_EQ(Windows<frmCoord>().size(), 1);
    world.platform.Expect(BoxAnswer::discard);
    world.platform.Expect(BoxAnswer::yes);
    EXPECT_TRUE(world.window->close());
    EXPECT_TRUE(Windows<frmCoord>().isEmpty());
}

TEST_F(BesideMainTest, AnotherDecimalSeparatorIsToldFirst) {
    world.platform.decimal_separator = ',';
    world.platform.leaves_ticks = false;
    for (const char *command : {"mnu_outilnervinter", "mnu_OutlilDiedre", "mnu_Outilcoord"}) {
        world.programme.SeparateurDit = false; // as if this were the first one
        world.platform.Expect(BoxAnswer::cancel);
        Run(command);
    }
    EXPECT_TRUE(Windows<frmnervure>().isEmpty());
    EXPECT_TRUE(Windows<frmdiedre>().isEmpty());
    EXPECT_TRUE(Windows<frmCoord>().isEmpty());
    EXPECT_NE(world.platform.boxes.at(0).text.find("Compute set of ribs"), std::string::npos);
    EXPECT_NE(world.platform.boxes.at(1).text.find("Compute the dihedral"), std::string::npos);
    EXPECT_NE(world.platform.boxes.at(2).text.find("Create new coordinates"), std::string::npos);
    EXPECT_EQ(world.platform.ticks_offered.back(), "Don't show this again");
    Run("mnu_OutlilDiedre"); // told once
    EXPECT_EQ(Windows<frmdiedre>().size(), 1);
}

} // namespace
} // namespace loftwing
