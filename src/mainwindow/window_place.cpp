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

void LitPlace(QWidget &window, const char *nom, const QSize &usual) {
    const QSettings store = PlaceStore();
    if (!window.restoreGeometry(store.value(nom).toByteArray())) {
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        window.resize(usual.boundedTo(screen));
    }
}

void EcritPlace(const QWidget &window, const char *nom) {
    QSettings store = PlaceStore();
    store.setValue(nom, window.saveGeometry());
}

} // namespace loftwing
