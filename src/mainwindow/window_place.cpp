#include "mainwindow/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QWidget>

namespace loftwing {

namespace {

QSettings PlaceStore() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, "loftwing", "window");
}

} // namespace

void LitPlace(QWidget &window) {
    const QSettings store = PlaceStore();
    if (!window.restoreGeometry(store.value("geometry").toByteArray())) {
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        window.resize(QSize(1000, 600).boundedTo(screen));
    }
}

void EcritPlace(const QWidget &window) {
    QSettings store = PlaceStore();
    store.setValue("geometry", window.saveGeometry());
}

} // namespace loftwing
