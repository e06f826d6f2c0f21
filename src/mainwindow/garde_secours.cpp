#include "mainwindow/garde_secours.h"

#include "programme/secours_steps.h"

#include <QGuiApplication>
#include <QSessionManager>

#include <chrono>

namespace loftwing {

namespace {

// Two seconds of work are what a crash may cost; written at every key, it would cost the disk.
constexpr auto kAttente = std::chrono::seconds(2);

} // namespace

GardeSecours::GardeSecours(Programme &programme, std::function<void()> dit)
    : programme_(programme), dit_(std::move(dit)) {
    attente_.setSingleShot(true);
    attente_.setInterval(kAttente);
    QObject::connect(&attente_, &QTimer::timeout, &attente_, [this] { Ecrit(); });
    for (const auto request :
         {&QGuiApplication::commitDataRequest, &QGuiApplication::saveStateRequest}) {
        QObject::connect(
            qGuiApp, request, &attente_, [this](QSessionManager &) { Ecrit(); },
            Qt::DirectConnection);
    }
}

void GardeSecours::Suit() {
    if (finie_) {
        return;
    }
    if (!AGarder(programme_)) {
        Ecrit(); // at once: what was saved is not to be offered after a crash
    } else if (!attente_.isActive()) {
        attente_.start();
    }
}

void GardeSecours::Finit() {
    finie_ = true;
    attente_.stop();
    programme_.secours.Retire();
}

void GardeSecours::Ecrit() {
    if (finie_) {
        return;
    }
    attente_.stop();
    const bool failed = programme_.secours.Echoue();
    GardeTravail(programme_);
    if (programme_.secours.Echoue() != failed) {
        dit_();
    }
}

} // namespace loftwing
