/// The picture of a building plan, to be zoomed and scrolled.
#pragma once

#include "output/plan_dessin.h"
#include "output/scrolling.h"

#include <QColor>
#include <QPointF>
#include <QTransform>
#include <QWidget>

class QPainter;

namespace loftwing {

/// Shows all of a drawing at first, and again with F; + - and Ctrl with the wheel zoom about the
/// pointer, 0 gives the true size, arrows and wheel scroll, a drag pulls the drawing along. In the
/// colours of the desktop. Letters have the size that they have on the plan; those too small to be
/// read are left out.
class PlanView : public QWidget {
    Q_OBJECT

  public:
    explicit PlanView(QWidget *parent);

    /// A drawing without lines leaves the picture empty. The part that is looked at stays where a
    /// drawing changes a little.
    void Montre(DessinPlan dessin);
    /// Shows no drawing but why there is none.
    void MontreMots(const QString &mots);
    const DessinPlan &Dessin() const { return dessin_; }
    const QString &Mots() const { return mots_; }

    void Ajuste();
    void Agrandit(); ///< about the pointer, or the middle where that is elsewhere
    void Reduit();
    void VraieGrandeur();

    /// Pixels a mm.
    double Echelle() const;
    bool EstAjuste() const { return ajuste_; }
    /// From the drawing to pixels.
    QTransform Vers() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// What can be told from the ground.
    QColor Couleur(CouchePlan couche) const;

  protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

  private:
    DessinPlan dessin_;
    BoitePiece boite_;
    QString mots_;
    bool ajuste_ = true;
    double echelle_ = 1; ///< where the picture isn't fitted
    PointMm centre_;     ///< of the drawing, in the middle of the picture
    ZoomWheel molette_;
    bool tire_ = false;
    QPointF tire_de_;

    double EchelleAjustee() const;
    QPointF PlaceDuZoom() const;
    void Zoome(double facteur, const QPointF &place);
    void Deplace(const QPointF &pixels);
    void Retient();
    bool Touche(int key);
    void PeintTraits(QPainter &painter, const QTransform &to) const;
    void PeintTextes(QPainter &painter, const QTransform &to) const;
};

} // namespace loftwing
