#include "output/trace.h"

#include "core/stations.h"

namespace loftwing {

double Trace::X(double station) const {
    return (kLastStation - station) / kLastStation * Wide(plot.CordeEchelle) + Wide(plot.OrigineX);
}

double Trace::Y(double height) const {
    return Wide(plot.OrigineY) - Wide(plot.CordeEchelleY) * height;
}

double Trace::U(double station) const {
    return Hauteur(rib.TabExtrados, station);
}

double Trace::L(double station) const {
    return Hauteur(rib.TabIntrados, station);
}

PlaceTracee Trace::PlaceAutour(float centre, float width) const {
    // Behind the trailing edge stations count up again: it would be drawn somewhere in the rib.
    if (centre > rib.corde) {
        throw MakeFailure(kSubscriptOutOfRange);
    }
    const double middle = Wide(centre);
    const double half = Wide(width) / 2.0;
    PlaceTracee place;
    place.kr = StationDepuisBA(middle + half, rib.corde);
    place.kf = StationDepuisBA(middle - half, rib.corde);
    place.kc = StationDepuisBA(middle, rib.corde);
    place.Uc = U(Wide(place.kc));
    place.Lc = L(Wide(place.kc));
    return place;
}

void Trace::Ecrit(double x, double y, const std::string &text) const {
    device.CurrentX = x;
    device.CurrentY = y;
    device.Print(text);
}

} // namespace loftwing
