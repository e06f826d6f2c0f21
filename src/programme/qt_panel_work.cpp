#include "programme/qt_panel_work.h"

#include <utility>

namespace loftwing {

namespace {

/// So many ribs are made before the eye sees that they weren't there.
constexpr int kDUnTrait = 20;

ImbricationEnCours::Resultat Essaie(const std::vector<PieceNommee> &pieces,
                                    const ReglageImbrication &reglage) {
    try {
        auto made = Imbrique(pieces, reglage);
        if (const auto *why = std::get_if<RefusPlanche>(&made)) {
            return *why;
        }
        return std::move(std::get<Imbrication>(made));
    } catch (const Failure &failure) {
        return failure;
    }
}

} // namespace

PanneauEnCours::PanneauEnCours(Programme &programme) : programme_(programme) {
    tour_.setInterval(0);
    connect(&tour_, &QTimer::timeout, this, &PanneauEnCours::Pas);
}

void PanneauEnCours::Commence(const Panneau &panneau, const DemandePanneau &demande) {
    Abandonne();
    ouvrage_ = std::make_unique<OuvragePanneau>(programme_, panneau, demande);
    if (ouvrage_->Nombre() <= kDUnTrait) {
        Acheve({});
    } else {
        Q_EMIT Avance(0, ouvrage_->Nombre());
        tour_.start();
    }
}

void PanneauEnCours::Abandonne() {
    tour_.stop();
    ouvrage_.reset();
}

bool PanneauEnCours::Acheve(const AvancePanneau &avance) {
    tour_.stop();
    while (ouvrage_ && !ouvrage_->Fini()) {
        ouvrage_->Avance();
        if (avance && !avance(ouvrage_->Faites(), ouvrage_->Nombre())) {
            tour_.start();
            return false;
        }
    }
    Rend();
    return true;
}

void PanneauEnCours::Pas() {
    if (!ouvrage_->Fini()) {
        ouvrage_->Avance();
        Q_EMIT Avance(ouvrage_->Faites(), ouvrage_->Nombre());
    } else {
        Rend();
    }
}

void PanneauEnCours::Rend() {
    tour_.stop();
    if (const auto made = std::exchange(ouvrage_, nullptr)) {
        Q_EMIT Fini(made->Rend());
    }
}

void ImbricationEnCours::Commence(std::vector<PieceNommee> pieces, ReglageImbrication reglage) {
    Abandonne();
    arret_ = false;
    const int numero = ++numero_;
    reglage.avance = [this, numero, told = -1](double part) mutable {
        constexpr int kPercent = 100;
        const int percent = static_cast<int>(part * kPercent);
        if (percent != told) {
            told = percent;
            QMetaObject::invokeMethod(
                this,
                [this, numero, percent] {
                    if (numero == numero_) {
                        Q_EMIT Avance(percent);
                    }
                },
                Qt::QueuedConnection);
        }
        return !arret_;
    };
    fil_.reset(
        QThread::create([this, numero, pieces = std::move(pieces), reglage = std::move(reglage)] {
            const auto made = std::make_shared<Resultat>(Essaie(pieces, reglage));
            QMetaObject::invokeMethod(
                this,
                [this, numero, made] {
                    if (numero == numero_) {
                        Rend(*made);
                    }
                },
                Qt::QueuedConnection);
        }));
    fil_->start();
}

/// The thread looks at every piece whether it shall end.
void ImbricationEnCours::Arrete() {
    ++numero_;
    arret_ = true;
}

void ImbricationEnCours::Abandonne() {
    Arrete();
    if (fil_) {
        fil_->wait();
        fil_.reset();
    }
}

void ImbricationEnCours::Rend(const Resultat &resultat) {
    fil_->wait(); // it has nothing left to do
    fil_.reset();
    Q_EMIT Fini(resultat);
}

} // namespace loftwing
