#include "mainwindow/frmSplash.h"

#include "base/version.h"
#include "platform/qt_text.h"
#include "support/scripted_platform.h"

#include <QTest>

#include <gtest/gtest.h>

namespace loftwing {
namespace {

class FrmSplashTest : public testing::Test {
  protected:
    FrmSplashTest() {
        programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", "English");
        platform.pointer = Pointer::busy;
    }

    static std::string Words(const frmSplash &splash, const char *label) {
        return S(splash.findChild<QLabel *>(label)->text());
    }

    static QTimer &Timer(const frmSplash &splash) { return *splash.findChild<QTimer *>("Timer1"); }

    ScriptedPlatform platform;
    Programme programme{Paths{}, platform};
};

TEST_F(FrmSplashTest, ShowsVersionAndPurpose) {
    const frmSplash splash(programme, nullptr);
    const std::string version = std::to_string(kVersionMajor) + "." +
                                std::to_string(kVersionMinor) + "." +
                                std::to_string(kVersionRevision) + "-F";
    EXPECT_EQ(Words(splash, "lblversion"), "version  " + version);
    EXPECT_EQ(Words(splash, "lblpresentation"),
              "Full-size rib drawings for builders of model aircraft");
}

TEST_F(FrmSplashTest, SpeaksFrench) {
    programme.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", "French");
    const frmSplash splash(programme, nullptr);
    EXPECT_EQ(Words(splash, "lblpresentation"),
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
    EXPECT_TRUE(QTest::qWaitFor([&] { return !splash.isVisible(); }));
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(FrmSplashTest, ClickOnTheImageCloses) {
    frmSplash splash(programme, nullptr);
    splash.show();
    QTest::mouseClick(splash.findChild<QLabel *>("lblversion"), Qt::LeftButton);
    EXPECT_TRUE(splash.isVisible());
    QTest::mouseClick(splash.findChild<QWidget *>("image"), Qt::LeftButton);
    EXPECT_FALSE(splash.isVisible());
    EXPECT_FALSE(Timer(splash).isActive());
    EXPECT_EQ(platform.pointer, Pointer::normal);
}

TEST_F(FrmSplashTest, StandsInTheMiddleOfItsWindow) {
    QWidget window;
    window.setGeometry(100, 80, 900, 600);
    window.show();
    frmSplash splash(programme, &window);
    splash.show();
    const QPoint off = splash.geometry().center() - window.frameGeometry().center();
    EXPECT_LE(std::abs(off.x()), 2);
    EXPECT_LE(std::abs(off.y()), 2);
}

} // namespace
} // namespace loftwing
