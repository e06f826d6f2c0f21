// Foam template and levelling heel of the DXF drawing.

#include "core/stations.h"
#include "features/talon.h"
#include "output/dxf_trace.h"

#include <cmath>

namespace loftwing {

namespace {

DxfPoint operator+(DxfPoint a, DxfPoint b) {
    return {a.x + b.x, a.y + b.y};
}

/// What of the cutting allowance exceeds the sheeting. The interchange form of old takes it in the
/// device units of the last plot.
double Coupe(const DxfTrace &trace) {
    const PlotState &plot = trace.source.plot;
    if (!trace.source.echelle_juste) {
        return Wide(plot.CoupeDev);
    }
    const double beyond = Wide(plot.CoupeRel) - Wide(plot.EpRel);
    return beyond > 0 ? beyond * trace.corde : 0.0;
}

} // namespace

void DxfGabarit(DxfTrace &trace) {
    const PlotState &plot = trace.source.plot;
    const double s = std::sin(plot.VrillageRad);
    const double c = std::cos(plot.VrillageRad);
    const double length = trace.Longueur(plot.BlocLong);
    const double below = trace.Longueur(plot.BlocEp);
    const double above = trace.Longueur(plot.BlocHaut);
    const double ramp = trace.Longueur(plot.BlocBA);
    const double tail_ramp = trace.Longueur(trace.source.rib.bloc.BFbloc);
    const DxfPoint o{trace.Ox(), trace.Oy()};
    const DxfPoint a = o + DxfPoint{s * below, -c * below};
    const DxfPoint b = o + DxfPoint{-above * s, above * c};
    const DxfPoint d{length * c * c, length * c * s};
    const DxfPoint tail{o.x + length, o.y - trace.corde * plot.BlocYBF};
    const DxfPoint edge{length - tail_ramp + o.x, trace.corde * plot.DemiBF - Coupe(trace) + o.y};
    trace.Polyligne(kDxfForme, kCalqueCoffrage,
                    {o, o + DxfPoint{ramp, 0}, o, a, a + d, tail, edge});
    trace.Polyligne(kDxfForme, kCalqueCoffrage, {o, b, b + d, tail});
    trace.Avance(ramp);
}

void DxfTalon(const DxfTrace &trace) {
    const RibModel &rib = trace.source.rib;
    const Talon &talon = rib.talon;
    const PlotState &plot = trace.source.plot;
    const bool extra = talon.OptTalon != 0;
    const double s = std::sin(plot.VrillageRad);
    const double c = std::cos(plot.VrillageRad);
    const double height = trace.Longueur(HauteurTalon(talon));
    const DxfPoint q{s * height + trace.Ox(), trace.Oy() - c * height};
    const auto foot = [&](double distance) {
        return q + DxfPoint{distance * c * c, distance * c * s};
    };
    const auto face = [&](double margin) {
        return FaceTalon(rib, plot.EpRel, Wide(StationDepuisBF(margin, rib.corde)));
    };
    trace.Polyligne(extra ? kDxfAxe : kDxfForme, kCalqueTalon, {foot(0), foot(trace.corde)});
    const double rear = trace.corde - trace.Longueur(talon.TalonBF);
    const double rear_face = face(talon.TalonBF);
    trace.Polyligne(kDxfForme, kCalqueTalon, {foot(rear), {rear + trace.Ox(), trace.Y(rear_face)}});
    const double margins = trace.Longueur(talon.TalonLong);
    const double front_face = face(talon.TalonLong);
    // The lean is that of this chord, where the plot has a fixed one.
    const double lean = front_face * trace.corde * std::tan(plot.VrillageRad);
    trace.Polyligne(kDxfForme, kCalqueTalon,
                    {foot(trace.corde - margins),
                     {trace.corde - (lean + margins) + trace.Ox(), trace.Y(front_face)}});
}

} // namespace loftwing
