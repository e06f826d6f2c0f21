// The numbered station lines.

#include "core/stations.h"
#include "output/plot_steps.h"
#include "output/rib_measures.h"

namespace loftwing {

namespace {

constexpr double kTailleNumero = 7.2; // points

constexpr double kAuDessusDuFond = 3.5;        // mm from the template's bottom to the number
constexpr double kAuDessusDuFondInverse = 1.0; // the same in the inverted view
constexpr double kNumeroADroite = 20;          // device units from the line to the number

/// One line across the airfoil alone.
void LigneDansProfil(const Trace &trace, double xs, double up, double lo) {
    const double corde = Wide(trace.plot.CordeEchelle);
    const double y = Wide(trace.plot.OrigineY);
    const Colour colour = trace.Couleur(Element::rep);
    if (trace.rib.AffHaut) {
        trace.device.Line(xs, corde * up + y, xs, (lo - kSousLeProfilInverse) * corde + y, colour);
    } else {
        trace.device.Line(xs, y - corde * up, xs, y - corde * lo, colour);
    }
}

/// One line down to the bottom of the foam template; the number goes beside its foot.
void LigneDansGabarit(const Trace &trace, double xs, double up) {
    const double corde = Wide(trace.plot.CordeEchelle);
    const double echelle = Wide(trace.plot.Echelle);
    const double y = Wide(trace.plot.OrigineY);
    const double bas = Wide(trace.rib.bloc.HTbasbloc);
    const Colour colour = trace.Couleur(Element::rep);
    PlotDevice &device = trace.device;
    if (trace.rib.AffHaut) {
        device.Line(xs, corde * up + y, xs, y - trace.plot.BlocEp * echelle, colour);
        device.CurrentY = y - (bas - kAuDessusDuFondInverse) * echelle;
    } else {
        device.Line(xs, y - corde * up, xs, trace.plot.BlocEp * echelle + y, colour);
        device.CurrentY = (bas - kAuDessusDuFond) * echelle + y;
    }
    device.CurrentX += kNumeroADroite;
}

void TraceRepere(const Trace &trace, int i, float x) {
    const double station = Wide(StationDepuisBA(Wide(x), trace.rib.corde));
    const double up = trace.U(station);
    const double lo = trace.L(station) - kSousLeProfil;
    trace.EnStyleDe(Element::rep);
    if (trace.plot.BlocEp == 0.0) {
        LigneDansProfil(trace, trace.X(station), up, lo);
    } else {
        LigneDansGabarit(trace, trace.X(station), up);
    }
    trace.device.ForeColor = trace.Couleur(Element::rep);
    trace.device.Font.size = Wide(trace.rib.Zoom) * kTailleNumero;
    trace.device.Print(std::to_string(i));
}

} // namespace

void TraceReperes(const Trace &trace) {
    const int parts = trace.rib.NbRep + 1;
    const float part = ToSingle(Quotient(Wide(trace.rib.corde), parts));
    for (int i = 0; i <= parts; ++i) {
        TraceRepere(trace, i, ToSingle(Wide(part) * i));
    }
    trace.FinDeStyle();
    trace.device.ForeColor = PaletteColour(0);
}

} // namespace loftwing
