// The template for cutting foam.

#include "core/stations.h"
#include "output/plot_steps.h"

#include <cmath>

namespace loftwing {

namespace {

struct Point {
    double x, y;
};

Point operator+(Point a, Point b) {
    return {a.x + b.x, a.y + b.y};
}

/// Working copies of the template's measures, and the allowance at the trailing edge.
void PrendMesures(const Trace &trace) {
    const RibModel &rib = trace.rib;
    const Bloc &bloc = rib.bloc;
    PlotState &plot = trace.plot;
    plot.CoupeDev = 0;
    plot.CoupeRel = ToSingle(Quotient(Wide(bloc.CoupeBF), Wide(rib.corde)));
    if (plot.EpRel < plot.CoupeRel) {
        plot.CoupeDev =
            ToSingle((Wide(plot.CoupeRel) - Wide(plot.EpRel)) * Wide(plot.CordeEchelle));
    }
    plot.BlocEp = Wide(bloc.HTbasbloc);
    plot.BlocHaut = Wide(bloc.HTbloc) - Wide(bloc.HTbasbloc);
    plot.BlocBA = Wide(bloc.BAbloc);
    plot.BlocLong = Wide(bloc.BAbloc) + Wide(rib.corde) + Wide(bloc.BFbloc);
    plot.VrillageRad = EnRadians(Wide(rib.vrillage));
    const auto tail = Wide(StationDepuisBF(Wide(bloc.BFbloc), rib.corde));
    // Another choice than these two leaves the tail of the plot before.
    if (bloc.Optquebf == 0) {
        plot.BlocYBF = trace.U(tail);
    } else if (bloc.Optquebf == 1) {
        plot.BlocYBF = trace.L(tail);
    }
}

/// A template that leans out to the left moves the drawing to the right.
void EcarteOrigine(const Trace &trace) {
    PlotState &plot = trace.plot;
    if (trace.rib.vrillage == 0.0F) {
        return;
    }
    const double origine = Wide(plot.OrigineX);
    const double moved = origine - plot.BlocEp * std::sin(plot.VrillageRad) * Wide(plot.Echelle);
    if (moved >= origine) {
        plot.OrigineX = ToSingle(moved);
    }
}

void TraceBloc(const Trace &trace) {
    const PlotState &plot = trace.plot;
    const double s = std::sin(plot.VrillageRad);
    const double c = std::cos(plot.VrillageRad);
    const double echelle = Wide(plot.Echelle);
    const double echelle_y = Wide(plot.EchelleY);
    const double corde = Wide(plot.CordeEchelle);
    const double corde_y = Wide(plot.CordeEchelleY);
    const double fuite = Wide(trace.rib.bloc.BFbloc);
    const Point p{Wide(plot.OrigineX), Wide(plot.OrigineY)};
    const Point ramp{plot.BlocBA * echelle + p.x, p.y};
    const Point a = p + Point{plot.BlocEp * s * echelle, plot.BlocEp * c * echelle_y};
    const Point b = p + Point{-plot.BlocHaut * s * echelle, -plot.BlocHaut * c * echelle_y};
    const Point d{plot.BlocLong * c * c * echelle, -plot.BlocLong * c * s * echelle_y};
    // The tail's two lines end at the unsigned, the rib's own line starts at the signed height:
    // upside down they don't meet. A fixed oddity: sheets printed upside down have it.
    const Point tail{plot.BlocLong * echelle + p.x, corde * plot.BlocYBF + p.y};
    const Point tail_signed{tail.x, corde_y * plot.BlocYBF + p.y};
    const Point edge{(plot.BlocLong - fuite) * echelle + p.x,
                     p.y - corde_y * plot.DemiBF + Wide(plot.CoupeDev)};
    const Colour colour = trace.Couleur(Element::bloc);
    const auto line = [&](Point from, Point to) {
        trace.device.Line(from.x, from.y, to.x, to.y, colour);
    };
    trace.EnStyleDe(Element::bloc);
    line(p, ramp);
    line(p, a);
    line(p, b);
    line(b, b + d);
    line(b + d, tail);
    TraceTexteInsere(trace, plot.BlocBA);
    line(a, a + d);
    line(a + d, tail);
    line(tail_signed, edge);
    trace.FinDeStyle();
}

} // namespace

void TraceGabarit(const Trace &trace) {
    PlotState &plot = trace.plot;
    if (trace.rib.TypeGabarit != kGabaritMousse) {
        // The rib stands at the plain origin.
        plot.BlocEp = 0;
        plot.BlocBA = 0;
        plot.CoupeRel = 0;
        return;
    }
    PrendMesures(trace);
    EcarteOrigine(trace);
    TraceBloc(trace);
}

} // namespace loftwing
