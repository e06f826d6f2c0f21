#include "output/dxf_entities.h"

#include "output/dxf_trace.h"
#include "output/rib_measures.h"

#include <algorithm>

namespace loftwing {

namespace {

/// Contour, or the raw points in the view that shows them alone.
void Contour(const DxfTrace &trace, const PointList &xs, const PointList &ys, long count) {
    std::vector<DxfPoint> points;
    points.reserve(static_cast<std::size_t>(std::max(count, 0L)));
    for (long i = 1; i <= count; ++i) {
        points.push_back({xs(i) * trace.corde + trace.Ox(), trace.Y(ys(i))});
    }
    trace.Polyligne(kDxfContour, kCalqueContour, std::move(points));
}

void LigneReference(const DxfTrace &trace) {
    trace.Polyligne(kDxfAxe, kCalqueAxe,
                    {{trace.Ox(), trace.Oy()}, {trace.Ox() + trace.corde, trace.Oy()}});
}

void BordAttaque(const DxfTrace &trace) {
    const RibModel &rib = trace.source.rib;
    if (rib.TypeBA == 1) {
        const double k = Wide(trace.source.plot.StationBA);
        trace.Polyligne(kDxfTrait, kCalqueCoffrage,
                        {{trace.X(k), trace.Y(trace.U(k))}, {trace.X(k), trace.Y(trace.L(k))}});
        return;
    }
    const double d = trace.Longueur(rib.carre.CarreBA) / kDiagonaleCarre;
    const double x = trace.Ox() + trace.Longueur(rib.carre.CarreBAX);
    const double y = trace.Oy() + trace.Longueur(rib.carre.CarreBAY);
    trace.recoit(DxfPolyligne{
        kDxfTrait, kCalqueCoffrage, true, {{x, y + d}, {x - d, y}, {x, y - d}, {x + d, y}}});
}

void BordFuite(const DxfTrace &trace) {
    const double stock = trace.Longueur(trace.source.rib.EpBF);
    const double x = (1.0 - Quotient(stock, trace.corde)) * trace.corde + trace.Ox();
    const double k = Wide(trace.source.plot.StationBF);
    trace.Polyligne(kDxfTrait, kCalqueCoffrage,
                    {{x, trace.Y(trace.U(k))}, {x, trace.Y(trace.L(k))}});
}

} // namespace

double DiviseurDxf(const std::string &Unite) {
    constexpr double kMmParPouce = 25.4;
    return Unite == " in" ? kMmParPouce : 1.0;
}

std::size_t SommetsProbables(const RibModel &rib) {
    return static_cast<std::size_t>(std::max<int>(rib.NbContour, 0)) + 2 * rib.TabExtrados.size();
}

void EntitesDxf(const DxfSource &source, const std::function<void(const DxfEntite &)> &recoit) {
    DxfTrace trace(source, recoit);
    const RibModel &rib = source.rib;
    if (rib.ModeCouple) {
        Contour(trace, rib.ProfilX, rib.ProfilY, rib.NbPoints);
        LigneReference(trace);
        return;
    }
    if (rib.TypeGabarit == kGabaritMousse) {
        DxfGabarit(trace);
    }
    if (rib.TypeGabarit == kGabaritTalon) {
        DxfTalon(trace);
    }
    if (rib.AffTrac) {
        Contour(trace, rib.ContourX, rib.ContourY, rib.NbContour);
    }
    if (rib.AffLignRef) {
        LigneReference(trace);
    }
    BordAttaque(trace);
    BordFuite(trace);
    if (rib.EpCoffrage != 0.0F) {
        DxfCoffrage(trace);
    }
    DxfLongerons(trace);
    DxfTrous(trace);
}

} // namespace loftwing
