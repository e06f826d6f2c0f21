// The numbered station lines.

#include "core/stations.h"
#include "output/plot_steps.h"

namespace loftwing {

namespace {

constexpr double kSousLeProfil = 0.015;       // the line overshoots the lower surface, in chords
constexpr double kSousLeProfilInverse = 0.01; // and a little more in the inverted view
constexpr double kTailleNumero = 7.2;         // points

void TraceRepere(const Trace &trace, int i, float x) {
    const PlotState &plot = trace.plot;
    const double station =
        static_cast<double>(StationDepuisBA(static_cast<double>(x), trace.rib.corde));
    const double up = trace.U(station);
    const double lo = trace.L(station) - kSousLeProfil;
    const double corde = static_cast<double>(plot.CordeEchelle);
    const double y = static_cast<double>(plot.OrigineY);
    const double xs = trace.X(station);
    const Colour colour = trace.Couleur(Element::rep);
    trace.EnStyleDe(Element::rep);
    if (trace.rib.AffHaut) {
        trace.device.Line(xs, corde * up + y, xs, (lo - kSousLeProfilInverse) * corde + y, colour);
    } else {
        trace.device.Line(xs, y - corde * up, xs, y - corde * lo, colour);
    }
    trace.device.ForeColor = colour;
    trace.device.Font.size = static_cast<double>(trace.rib.Zoom) * kTailleNumero;
    trace.device.Print(std::to_string(i));
}

} // namespace

void TraceReperes(const Trace &trace) {
    const int parts = trace.rib.NbRep + 1;
    const float part = ToSingle(Quotient(static_cast<double>(trace.rib.corde), parts));
    for (int i = 0; i <= parts; ++i) {
        TraceRepere(trace, i, ToSingle(static_cast<double>(part) * i));
    }
    trace.FinDeStyle();
    trace.device.ForeColor = PaletteColour(0);
}

} // namespace loftwing
