#include "output/airfoil_preview.h"

namespace loftwing {

namespace {

constexpr double kOrigineX = 600;
constexpr double kOrigineY = 5000;
constexpr double kCorde = 5000;
constexpr double kDebord = 200; // of the chord line beyond both ends of the airfoil
constexpr Colour kNoir = 0x000000;
constexpr Colour kRouge = 0xFF0000;

} // namespace

void DessineApercu(const RibModel &rib, PlotDevice &device) {
    const auto x = [&](long i) { return kOrigineX + kCorde * rib.ProfilX(i); };
    const auto y = [&](long i) { return kOrigineY - kCorde * rib.ProfilY(i); };
    device.Line(kOrigineX - kDebord, kOrigineY, kOrigineX + kCorde + kDebord, kOrigineY, kNoir);
    for (long i = 2; i <= rib.NbPoints; ++i) {
        device.Line(x(i - 1), y(i - 1), x(i), y(i), kRouge);
    }
}

} // namespace loftwing
