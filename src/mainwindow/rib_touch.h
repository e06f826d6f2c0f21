/// The parts of the rib under the mouse in the main window's picture.
#pragma once

#include "mainwindow/pic_view.h"
#include "output/touche.h"
#include "programme/touch_steps.h"

#include <QMouseEvent>
#include <QObject>

#include <functional>
#include <optional>

namespace loftwing {

/// Pointing at a part shows its name and measures, a click selects it, Delete removes what is
/// selected, a double click opens its dialog, and spars, holes and the text can be dragged, Escape
/// calling that off. Works on the rib alone, not on views in its place.
class RibTouch : public QObject {
    Q_OBJECT

  public:
    /// What the user asks for.
    struct Demandes {
        std::function<void(const SujetTrace &sujet)> ouvre;
        std::function<void(const SujetTrace &sujet)> retire;
        std::function<void(const SujetTrace &sujet, const LieuRib &place, PasDeTire pas)> depose;
    };

    RibTouch(const Programme &programme, PicView &picture, Demandes demandes);

    /// While something else has the mouse nothing is found.
    void Active(bool active);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    /// A part that is being dragged.
    struct Tire {
        SujetTrace sujet;
        QPointF from;        ///< where the button went down
        LieuRib start;       ///< where the part stood then
        unsigned dessin = 0; ///< the drawing that it was taken from
        bool moving = false;
    };

    const Programme &programme_;
    PicView &picture_;
    Demandes demandes_;
    bool active_ = true;
    SujetTrace survole_;
    SujetTrace choisi_;
    std::optional<Tire> tire_;

    SujetTrace Sous(const QPointF &place) const;
    /// Whether what is dragged is still what was taken: an undo by the keys may have changed it.
    bool Tient() const { return tire_ && tire_->dessin == picture_.NumeroDuDessin(); }
    bool EncoreLa(const SujetTrace &sujet) const;
    void Souligne();
    void Survole(const QMouseEvent &mouse);
    void Prend(const QMouseEvent &mouse);
    void Bouge(const QMouseEvent &mouse);
    void Lache(const QMouseEvent &mouse);
    void Renonce();
    bool Touche(int key);
    LieuRib LieuVoulu(const QPointF &place) const;
    void MontreBulle(const QPointF &place, const std::string &text) const;
};

} // namespace loftwing
