/// The piece under the main window's drawing.
#pragma once

#include "mainwindow/picture_area.h"
#include "output/screen_plot.h"
#include "programme/programme.h"

namespace loftwing {

/// Knows whether the piece is shown, and lays the wood under the drawing so that its lines stay to
/// be read. What there is to say of the piece goes to the programme, for the notices.
class PieceOverlay {
  public:
    PieceOverlay(Programme &programme, PictureArea &picture)
        : programme_(programme), picture_(picture) {}

    /// Shows the piece or takes it away.
    void Montre(bool shown);
    /// Lays it under a new drawing, which the picture has taken.
    void Pose();

  private:
    Programme &programme_;
    PictureArea &picture_;
    bool shown_ = false;
    PlaceEcran place_; ///< of the drawing

    void Retrace();
};

} // namespace loftwing
