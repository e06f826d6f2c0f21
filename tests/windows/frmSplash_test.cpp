#include "mainwindow/frmSplash.h"

#include "base/version.h"
#include "support/qt_modal.h"
#include "support/scripted_platform.h"

#include <QScreen>
#include <QTimer>

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class FrmSplashTest : public testing::Test {
  protected:
    FrmSplashTest() {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", "English");
        platform.pointer = Pointer::busy;
    }

    static QTimer &Timer(const frmSplash &splash) { return *splash.findChild<QTimer *>("Timer1"); }

    ScriptedPlatform platform;
    Programme programme{Paths{}, platform};
};

TEST_F(FrmSplashTest, ShowsVersionAndPurpose) {
    frmSplash splash(programme, nullptr);
    const std::string version = std::to_string(kVersionMajor) + "." +
                                std::to_string(kVersionMinor) + "." +
                                std::to_string(kVersionRevision) + "-F";
    EXPECT_EQ(Seen(splash).Label("lblversion"), "version  " + version);
    EXPECT_EQ(Seen(splash).Label("lblpresentation"),
              "Full-size rib drawings for builders of model aircraft");
}

TEST_F(FrmSplashTest, SpeaksFrench) {
    programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", "French");
    frmSplash splash(programme, nullptr);
    EXPECT_EQ(Seen(splash).Label("lblpresentation"),
              "Plans de nervures grandeur nature pour les modélistes");
}

TEST_F(FrmSplashTest, ClosesOfItselfAfterThreeSeconds) {
    frmSplash splash(programme, nullptr);
    EXPECT_FALSE(Timer(splash).isActive());
    splash.show();
    EXPECT_TRUE(Timer(splash).isActive());
    EXPECT_TRUE(Timer(splash).isSingleShot());
    EXPECT_EQ(Timer(splash).interval(), 3000);
    Timer(splash).start(0); // without waiting for it
    EXPECT_TRUE(Eventually([&] { return !splash.isVisible(); }));
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(FrmSplashTest, ClickOnTheImageCloses) {
    frmSplash splash(programme, nullptr);
    splash.show();
    Seen(splash).Click("lblversion");
    EXPECT_TRUE(splash.isVisible());
    Seen(splash).Click("image");
    EXPECT_FALSE(splash.isVisible());
    EXPECT_FALSE(Timer(splash).isActive());
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(FrmSplashTest, StandsInTheMiddleOfTheScreenWhereverItsWindowIs) {
    QWidget window;
    window.setGeometry(20, 30, 300, 200);
    window.show();
    frmSplash splash(programme, &window);
    splash.show();
    const QPoint off = splash.geometry().center() - window.screen()->availableGeometry().center();
    EXPECT_LE(std::abs(off.x()), 2);
    EXPECT_LE(std::abs(off.y()), 2);
}

} // namespace
} // namespace loftwing
