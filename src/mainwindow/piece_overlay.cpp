#include "mainwindow/piece_overlay.h"

#include "mainwindow/piece_look.h"
#include "output/view_screen.h"
#include "platform/qt_plot_device.h"
#include "programme/cut_steps.h"

namespace loftwing {

namespace {

/// Without marks, which the drawing has.
DemandePiece BoisSeul() {
    DemandePiece demande;
    demande.reference = demande.stations = demande.axes = false;
    demande.etiquette = demande.talon = false;
    return demande;
}

/// From mm to the picture's pixels.
QTransform Vers(const PlaceEcran &place) {
    const double scale = kUnitsPerMm * place.zoom / kUnitsPerPixel;
    QTransform to;
    to.translate(place.x / kUnitsPerPixel, place.y / kUnitsPerPixel);
    to.scale(scale, -scale);
    return to;
}

} // namespace

void PieceOverlay::Montre(bool shown) {
    shown_ = shown;
    Retrace();
}

void PieceOverlay::Pose() {
    // Kept, since a redraw that is refused leaves the drawing but not the rib as they were.
    place_ = PlaceProfil(programme_.rib, programme_.compare);
    Retrace();
}

void PieceOverlay::Retrace() {
    PiecesFaites faites;
    if (shown_ && RibVisible(programme_.rib)) {
        faites = FaitPiecesDuRib(programme_, BoisSeul());
    }
    programme_.AvisDePiece = TexteDesAvis(programme_.messages, faites);
    picture_.MontrePiece(BoisDe(faites.pieces, Vers(place_)));
}

} // namespace loftwing
