#include "output/dxf_trace.h"

#include "core/stations.h"

namespace loftwing {

DxfTrace::DxfTrace(const DxfSource &from, const std::function<void(const DxfEntite &)> &to)
    : source(from), recoit(to), diviseur(DiviseurDxf(from.Unite)),
      corde(Wide(from.rib.corde) / diviseur) {}

void DxfTrace::Avance(double distance) {
    ox_ = ToSingle(Ox() + distance);
}

double DxfTrace::X(double station) const {
    return (kLastStation - station) / kLastStation * corde + Ox();
}

double DxfTrace::U(double station) const {
    return Hauteur(source.rib.TabExtrados, station);
}

double DxfTrace::L(double station) const {
    return Hauteur(source.rib.TabIntrados, station);
}

double DxfTrace::CoupeRel() const {
    return source.rib.TypeGabarit == kGabaritMousse ? Wide(source.plot.CoupeRel) : 0.0;
}

void DxfTrace::Polyligne(int handle, std::string_view calque, std::vector<DxfPoint> points) const {
    recoit(DxfPolyligne{handle, calque, false, std::move(points)});
}

void DxfTrace::Cercle(std::string_view calque, DxfPoint centre, double rayon) const {
    recoit(DxfCercle{kDxfForme, calque, centre, rayon});
}

} // namespace loftwing
