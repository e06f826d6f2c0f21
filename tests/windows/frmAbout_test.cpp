#include "mainwindow/frmAbout.h"

#include "base/version.h"
#include "support/qt_seen.h"
#include "support/scripted_platform.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class FrmAboutTest : public testing::Test {
  protected:
    FrmAboutTest() { ChooseLanguage("English"); }

    void ChooseLanguage(const std::string &name) {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }

    ScriptedPlatform platform;
    Programme programme{Paths{"/opt/loftwing", {}, {}, {}}, platform};
};

TEST_F(FrmAboutTest, TellsWhatTheProgramIs) {
    frmAbout about(programme, nullptr);
    const Seen window(about);
    EXPECT_EQ(window.Title(), "About Loftwing");
    EXPECT_EQ(window.Label("lblpresentation"),
              "Full-size rib drawings for builders of model aircraft");
    EXPECT_EQ(window.Label("lblversion"), std::string("version ") + kVersion);
    EXPECT_EQ(window.Label("lblsystemes"), "Linux");
    EXPECT_EQ(window.Label("lblnote"),
              "Before you cut any wood, measure the chord on the printed sheet.");
    EXPECT_EQ(window.Word("cmdok"), "OK");
}

TEST_F(FrmAboutTest, ShowsTheInstalledFoldersOfTheUser) {
    platform.store[{"Install", "RepAirfoil"}] = "/home/me/Documents/Airfoils & more";
    platform.store[{"Install", "RepEvol"}] = "/home/me/Documents/Rib sets";
    frmAbout about(programme, nullptr);
    const Seen window(about);
    EXPECT_EQ(window.Label("Label1(0)"), "Folder of the airfoils :");
    EXPECT_EQ(window.Text("txtdossier(0)"), "/home/me/Documents/Airfoils & more");
    EXPECT_EQ(window.Label("Label1(1)"), "Folder of the rib sets :");
    EXPECT_EQ(window.Text("txtdossier(1)"), "/home/me/Documents/Rib sets");
    EXPECT_TRUE(window.Box("txtdossier(0)").isReadOnly());
}

TEST_F(FrmAboutTest, ShowsTheProgramFolderWhereNothingIsStored) {
    frmAbout about(programme, nullptr);
    const Seen window(about);
    EXPECT_EQ(window.Text("txtdossier(0)"), "/opt/loftwing");
    EXPECT_EQ(window.Text("txtdossier(1)"), "/opt/loftwing");
}

TEST_F(FrmAboutTest, SpeaksFrench) {
    ChooseLanguage("French");
    frmAbout about(programme, nullptr);
    const Seen window(about);
    EXPECT_EQ(window.Title(), "À propos de Loftwing");
    EXPECT_EQ(window.Label("lblnote"),
              "Avant de couper le bois, mesurez la corde sur la feuille imprimée.");
}

TEST_F(FrmAboutTest, OkReturnAndEscapeClose) {
    frmAbout about(programme, nullptr);
    const Seen window(about);
    about.show();
    window.Click("cmdok");
    EXPECT_FALSE(window.IsOpen());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        about.show();
        window.Key(key);
        EXPECT_FALSE(window.IsOpen());
    }
}

} // namespace
} // namespace loftwing
