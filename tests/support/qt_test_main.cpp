// Runs the tests of windows: one QApplication for all, without a screen, in a home of its own.

#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

/// Whoever starts the tests by hand must find his settings and documents untouched.
void LeaveHome(const QString &home) {
    qputenv("HOME", home.toUtf8());
    qputenv("XDG_CONFIG_HOME", (home + "/config").toUtf8());
    qputenv("XDG_DATA_HOME", (home + "/data").toUtf8());
    // No printer of this machine may take part.
    qputenv("CUPS_SERVER", "/nowhere");
}

} // namespace

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    LeaveHome(home.path());
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
