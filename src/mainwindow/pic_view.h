/// The picture of the main window.
#pragma once

#include "output/recording.h"
#include "output/scrolling.h"

#include <QPainterPath>
#include <QPoint>
#include <QWidget>

#include <memory>
#include <vector>

namespace loftwing {

/// Shows a recorded drawing on white paper, whatever the desktop's theme. An exposed part is drawn
/// again from the recording, never computed.
class PicView : public QWidget {
    Q_OBJECT

  public:
    explicit PicView(QWidget *parent);

    /// Takes a new drawing, null for an empty picture.
    void Montre(std::unique_ptr<Recording> drawing);
    const Recording *Dessin() const { return drawing_.get(); }
    /// Another number for each drawing.
    unsigned NumeroDuDessin() const { return number_; }
    /// Pieces of wood that lie under the drawing, in logical pixels; a new drawing starts without.
    void MontreDessous(std::vector<QPainterPath> wood);
    const std::vector<QPainterPath> &Dessous() const { return wood_; }
    /// What lies over the drawing, null for nothing; a new drawing starts without.
    void MontreDessus(std::unique_ptr<Recording> overlay);
    const Recording *Dessus() const { return overlay_.get(); }
    /// A drawing that stands in for all of that and is marked by these words, null for none; a new
    /// drawing starts without.
    void MontreEssai(std::unique_ptr<Recording> trial);
    const Recording *Essai() const { return trial_.get(); }
    /// What the mouse has taken hold of, over all the rest; null for nothing. A new drawing starts
    /// without.
    void MontreTouche(std::unique_ptr<Recording> touched);
    const Recording *ToucheMontree() const { return touched_.get(); }
    void PoseMotEssai(const QString &words) { trial_words_ = words; }

  Q_SIGNALS:
    void MenuDemande(const QPoint &global);
    /// Ctrl with the wheel: +1 a step larger, -1 a step smaller, at that logical pixel.
    void ZoomDemande(int steps, const QPointF &place);
    /// The wheel alone.
    void Roule(const WheelNotches &notches);
    /// The middle button drags the drawing by that many logical pixels.
    void Tire(const QPoint &pixels);
    void Redimensionne();

  protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

  private:
    void PeintDessin(QPainter &painter) const;
    void PeintEssai(QPainter &painter) const;

    std::unique_ptr<Recording> drawing_;
    unsigned number_ = 0;
    std::vector<QPainterPath> wood_;
    std::unique_ptr<Recording> overlay_;
    std::unique_ptr<Recording> trial_;
    QString trial_words_;
    std::unique_ptr<Recording> touched_;
    QPoint dragged_from_;
    bool dragging_ = false;
    ZoomWheel zoom_wheel_;
};

} // namespace loftwing
