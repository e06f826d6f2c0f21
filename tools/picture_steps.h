/// What is done in a window before its picture is taken.
#pragma once

#include <QDialog>
#include <QEventLoop>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace loftwing {

/// What is typed or chosen is read when it rests.
inline void WaitForReading() {
    constexpr int kLongEnough = 300; // milliseconds
    QEventLoop loop;
    QTimer::singleShot(kLongEnough, &loop, &QEventLoop::quit);
    loop.exec();
}

inline void Fill(QDialog &window, const char *name, const char *text) {
    window.findChild<QLineEdit *>(name)->setText(text);
}

inline void Press(QDialog &window, const char *name) {
    window.findChild<QPushButton *>(name)->click();
}

/// A file that ends elsewhere than it begins.
inline void WriteRefusedAirfoil(const QString &path) {
    QFile refused(path);
    if (refused.open(QIODevice::WriteOnly)) {
        refused.write("REFUSED\n1 0\n0.5 0.1\n0 0\n0.5 -0.1\n0.99 0\n");
    }
}

} // namespace loftwing
