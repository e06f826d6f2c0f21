/// The main window's picture with its scroll bars, and the notices above it.
#pragma once

#include "core/rib_model.h"
#include "lang/LngIni.h"
#include "mainwindow/empty_hint.h"
#include "mainwindow/notice_bar.h"
#include "mainwindow/pic_view.h"
#include "output/scrolling.h"

#include <QScrollBar>
#include <QTimer>

#include <memory>
#include <optional>
#include <string>

namespace loftwing {

/// Moves values between the scroll bars and the rib's offsets; what they are worth is told in
/// output/scrolling.h. A bar that moves asks for a redraw, it draws nothing itself.
class PictureArea : public QWidget {
    Q_OBJECT

  public:
    PictureArea(RibModel &rib, QWidget *parent);

    /// Gives everything its words, those for screen readers too.
    void PoseTextes(const LngIni &language);
    /// What is drawn, in words, for those who can't see it.
    void Decrit(const std::string &words);
    /// Takes a new drawing, null for an empty picture. The bars stay until RegleDefilement.
    void Montre(std::unique_ptr<Recording> drawing);
    /// Lays the edges of the sheets over the drawing, null for none. An empty picture takes none.
    void MontreFeuilles(std::unique_ptr<Recording> sheets);
    /// Lays the wood of pieces under the drawing, in logical pixels. An empty picture takes none.
    void MontrePiece(std::vector<QPainterPath> wood);
    /// Shows a drawing in place of the present one and what lies over and under it, marked as a
    /// preview; null shows the present one again. The bars stay.
    void MontreEssai(std::unique_ptr<Recording> trial) { Pic_.MontreEssai(std::move(trial)); }
    /// Gives the bars their ranges over the present drawing and the sheets.
    void RegleDefilement();
    /// The strips above the picture.
    NoticeBar &Avis() { return notices_; }
    /// The picture itself.
    PicView &Image() { return Pic_; }
    /// What stands in the empty picture.
    EmptyHint &Accueil() { return hint_; }
    /// Scrolls to these values of the bars, or back, without a redraw. What the next drawing has no
    /// room for is cut back then.
    void MetDefilement(const ScrollMove &bars = {});
    /// What of the drawing is seen, on the screen; empty without one.
    QRect PlaceDuDessin() const;
    /// How the present drawing is seen whole, its sheets too; nothing without one.
    std::optional<WholeView> VueEntiere() const;
    PicturePlace Milieu() const;

  Q_SIGNALS:
    /// A bar has changed the rib's offsets.
    void Defile();
    void MenuDemande(const QPoint &global);
    /// Ctrl with the wheel: that many steps of the zoom list, positive to a larger one.
    void ZoomDemande(int steps, const PicturePlace &place);
    /// The picture has another size, by the window's doing and not by a notice, and has come to
    /// rest.
    void Redimensionne();

  protected:
    void keyPressEvent(QKeyEvent *event) override;

  private:
    RibModel &rib_;
    NoticeBar notices_;
    PicView Pic_;
    EmptyHint hint_; ///< covers the picture as long as there is neither airfoil nor drawing
    QScrollBar Hsbpic_;
    QScrollBar Vsbpic_;
    QTimer resized_;
    QSize size_at_rest_; ///< of all of it
    ScrollDrag drag_;

    /// What the bars lead over; nothing without a drawing.
    std::optional<Extent> Etendu() const;
    void LayOut();
    void Connect();
    void Repose();
    void MontreAccueil();
    void Hsbpic_Change(int value);
    void Vsbpic_Change(int value);
    void Deplace(const ScrollMove &move);
    /// What a line is in units of the bars.
    ScrollMove Pas() const { return {Hsbpic_.singleStep(), Vsbpic_.singleStep()}; }
};

} // namespace loftwing
