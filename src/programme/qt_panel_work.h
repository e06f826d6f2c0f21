/// Long work on a panel beside the event loop, so that a window goes on while its ribs are made and
/// its pieces laid.
#pragma once

#include "base/failure.h"
#include "output/nesting.h"
#include "programme/panel_steps.h"

#include <QObject>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace loftwing {

/// Makes a panel's ribs: few at once, many one by one as the event loop has time. What is begun
/// anew takes the place of what was under way.
class PanneauEnCours : public QObject {
    Q_OBJECT

  public:
    explicit PanneauEnCours(Programme &programme);

    void Commence(const Panneau &panneau, const DemandePanneau &demande);
    void Abandonne();
    bool EnCours() const { return ouvrage_ != nullptr; }
    /// Makes all that is left. `avance` as FaitPanneau; where it calls the work off, that goes on
    /// with the event loop. False then.
    bool Acheve(const AvancePanneau &avance);

  Q_SIGNALS:
    void Avance(int done, int total); ///< of work that goes on with the event loop
    void Fini(const loftwing::PanneauFait &fait);

  private:
    Programme &programme_;
    std::unique_ptr<OuvragePanneau> ouvrage_;
    QTimer tour_;

    void Pas();
    void Rend();
};

/// Lays pieces on sheets in a thread of its own. What is begun anew takes the place of what was
/// under way.
class ImbricationEnCours : public QObject {
    Q_OBJECT

  public:
    using Resultat = std::variant<Imbrication, RefusPlanche, Failure>;

    ~ImbricationEnCours() override { Abandonne(); }

    void Commence(std::vector<PieceNommee> pieces, ReglageImbrication reglage);
    /// Calls it off and waits until it has ended.
    void Abandonne();
    /// Calls it off; nothing is heard of it any more.
    void Arrete();
    bool EnCours() const { return fil_ != nullptr; }

  Q_SIGNALS:
    void Avance(int percent);
    void Fini(const loftwing::ImbricationEnCours::Resultat &resultat);

  private:
    std::unique_ptr<QThread> fil_;
    std::atomic<bool> arret_ = false;
    int numero_ = 0; ///< of the work, so that what an older one has to say isn't heard

    void Rend(const Resultat &resultat);
};

} // namespace loftwing
