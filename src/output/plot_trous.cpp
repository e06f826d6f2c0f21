// Lightening and tube holes.

#include "features/trou.h"
#include "output/plot_steps.h"

#include <array>

namespace loftwing {

namespace {

/// A hole in device units.
struct Percage {
    double xf, xr, xc;  ///< front edge, rear edge, centre
    double y;           ///< centre
    double w;           ///< width
    double hh;          ///< height in the view's y direction
    double hh_unsigned; ///< the same whichever way up
};

/// The two axes, `half` to either side of the centre the vertical one.
void TraceAxes(const Trace &trace, const Percage &hole, double half) {
    PrendStyleSeul(trace.device, trace.settings, Element::axe);
    trace.device.DrawWidth = 1;
    const Colour colour = trace.Couleur(Element::axe);
    trace.device.Line(hole.xf, hole.y, hole.xr, hole.y, colour);
    trace.device.Line(hole.xc, hole.y - half, hole.xc, hole.y + half, colour);
}

void TraceRectangle(const Trace &trace, const Percage &hole) {
    constexpr double kAxe = 1.5; // the axis overshoots the rectangle
    const Colour colour = trace.Couleur(Element::trou);
    trace.device.Line(hole.xf, hole.y, hole.xf, hole.y - hole.hh / 2.0, colour);
    trace.device.LineStep(hole.w, 0, colour);
    trace.device.LineStep(0, hole.hh, colour);
    trace.device.LineStep(-hole.w, 0, colour);
    trace.device.LineStep(0, -hole.hh / 2.0, colour);
    TraceAxes(trace, hole, hole.hh_unsigned / kAxe);
}

void TraceRond(const Trace &trace, const Percage &hole) {
    trace.device.Circle(hole.xc, hole.y, hole.w / 2.0, trace.Couleur(Element::trou));
    TraceAxes(trace, hole, hole.w / 2.0);
}

constexpr std::array kFormes = {TraceRond, TraceRectangle}; // in the order of kGenresTrou
static_assert(kFormes.size() == kGenresTrou.size());

Percage PercageDe(const Trace &trace, const Trou &trou, const PlaceTracee &place) {
    const PlotState &plot = trace.plot;
    const double echelle = Wide(plot.Echelle);
    const double echelle_y = Wide(plot.EchelleY);
    // Midway between the surfaces, or on the reference line.
    const double base = trou.ChkCentre == 1.0F ? (place.Uc - place.Lc) / 2.0 : place.Uc;
    Percage hole{};
    hole.xf = trace.X(Wide(place.kf));
    hole.xr = trace.X(Wide(place.kr));
    hole.w = Wide(trou.DiaTrou) * echelle;
    hole.xc = hole.xf + hole.w / 2.0;
    hole.y = trace.Y(place.Uc - base) - Wide(trou.DecalTrou) * echelle_y;
    hole.hh = Wide(trou.HautTrou) * echelle_y;
    hole.hh_unsigned = Wide(trou.HautTrou) * echelle;
    return hole;
}

void TraceTrou(const Trace &trace, Trou &trou, PlaceTracee &place) {
    trou.PosTrou =
        PlaceDepuis(trou.PosTrouAfich, trou.RefTrou, trace.rib.corde, trace.SaisieEnCours());
    place = trace.PlaceAutour(trou.PosTrou, trou.DiaTrou);
    const Percage hole = PercageDe(trace, trou, place);
    trace.EnStyleDe(Element::trou);
    if (trou.TypeTrou < kFormes.size()) {
        kFormes[trou.TypeTrou](trace, hole);
    }
}

} // namespace

void TraceTrous(const Trace &trace) {
    for (int slot = 0; slot <= trace.rib.NbTrou; ++slot) {
        trace.Nomme(
            {"FrmLines", "11"},
            [&] {
                Trou &hole = At(trace.rib.trou, slot);
                // The slot that is being edited is drawn even while it is empty.
                const GenreSujet genre =
                    hole.DiaTrou == 0.0F ? GenreSujet::aucun : GenreSujet::trou;
                trace.Pour({genre, slot},
                           [&] { TraceTrou(trace, hole, At(trace.plot.trous, slot)); });
            },
            slot + 1);
    }
}

} // namespace loftwing
