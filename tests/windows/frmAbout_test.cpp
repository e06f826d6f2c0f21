#include "mainwindow/frmAbout.h"

#include "base/version.h"
#include "platform/qt_text.h"
#include "support/scripted_platform.h"

#include <QTest>

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class FrmAboutTest : public testing::Test {
  protected:
    FrmAboutTest() { ChooseLanguage("English"); }

    void ChooseLanguage(const std::string &name) {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", name);
    }

    static std::string Words(const frmAbout &window, const char *label) {
        return S(window.findChild<QLabel *>(label)->text());
    }
    static std::string Field(const frmAbout &window, const char *name) {
        return S(window.findChild<QLineEdit *>(name)->text());
    }

    ScriptedPlatform platform;
    Programme programme{Paths{"/opt/loftwing", {}, {}, {}}, platform};
};

TEST_F(FrmAboutTest, TellsWhatTheProgramIs) {
    const frmAbout window(programme, nullptr);
    EXPECT_EQ(S(window.windowTitle()), "About Loftwing");
    EXPECT_EQ(Words(window, "lblpresentation"),
              "Full-size rib drawings for builders of model aircraft");
    EXPECT_EQ(Words(window, "lblversion"), std::string("version ") + kVersion);
    EXPECT_EQ(Words(window, "lblsystemes"), "Linux");
    EXPECT_EQ(Words(window, "lblnote"),
              "Before you cut any wood, measure the chord on the printed sheet.");
    EXPECT_EQ(S(window.findChild<QPushButton *>("cmdok")->text()), "OK");
}

TEST_F(FrmAboutTest, ShowsTheInstalledFoldersOfTheUser) {
    platform.store[{"Install", "RepAirfoil"}] = "/home/me/Documents/Airfoils & more";
    platform.store[{"Install", "RepEvol"}] = "/home/me/Documents/Rib sets";
    const frmAbout window(programme, nullptr);
    EXPECT_EQ(Words(window, "Label1(0)"), "Folder of the airfoils :");
    EXPECT_EQ(Field(window, "txtdossier(0)"), "/home/me/Documents/Airfoils & more");
    EXPECT_EQ(Words(window, "Label1(1)"), "Folder of the rib sets :");
    EXPECT_EQ(Field(window, "txtdossier(1)"), "/home/me/Documents/Rib sets");
    EXPECT_TRUE(window.findChild<QLineEdit *>("txtdossier(0)")->isReadOnly());
}

TEST_F(FrmAboutTest, ShowsTheProgramFolderWhereNothingIsStored) {
    const frmAbout window(programme, nullptr);
    EXPECT_EQ(Field(window, "txtdossier(0)"), "/opt/loftwing");
    EXPECT_EQ(Field(window, "txtdossier(1)"), "/opt/loftwing");
}

TEST_F(FrmAboutTest, SpeaksFrench) {
    ChooseLanguage("French");
    const frmAbout window(programme, nullptr);
    EXPECT_EQ(S(window.windowTitle()), "À propos de Loftwing");
    EXPECT_EQ(Words(window, "lblnote"),
              "Avant de couper le bois, mesurez la corde sur la feuille imprimée.");
}

TEST_F(FrmAboutTest, OkReturnAndEscapeClose) {
    frmAbout window(programme, nullptr);
    window.show();
    QTest::mouseClick(window.findChild<QPushButton *>("cmdok"), Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        window.show();
        QTest::keyClick(&window, key);
        EXPECT_FALSE(window.isVisible());
    }
}

} // namespace
} // namespace loftwing
