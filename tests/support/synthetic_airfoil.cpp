#include "support/synthetic_airfoil.h"

#include <cmath>

namespace loftwing {

namespace {

double HalfThickness(double thickness, double x) {
    // The last factor is -0.1036 where the trailing edge is to close.
    return thickness / 0.2 *
           (0.2969 * std::sqrt(x) + x * (-0.1260 + x * (-0.3516 + x * (0.2843 - 0.1036 * x))));
}

double MeanLine(const SyntheticAirfoil &wanted, double x) {
    const double p = wanted.camber_place;
    const double span = x < p ? p : 1.0 - p;
    const double start = x < p ? 0.0 : 1.0 - 2.0 * p;
    return wanted.camber / (span * span) * (start + 2.0 * p * x - x * x);
}

double Spaced(int i, int segments) {
    return 0.5 * (1.0 + std::cos(std::acos(-1.0) * i / segments));
}

} // namespace

NaiveAirfoil MakeAirfoil(const SyntheticAirfoil &wanted) {
    NaiveAirfoil airfoil;
    airfoil.Add(1.0, 0.0);
    for (int i = 1; i < wanted.upper; ++i) {
        const double x = Spaced(i, wanted.upper);
        airfoil.Add(x, MeanLine(wanted, x) + HalfThickness(wanted.thickness, x));
    }
    airfoil.Add(0.0, 0.0);
    for (int i = wanted.lower - 1; i > 0; --i) {
        const double x = Spaced(i, wanted.lower);
        airfoil.Add(x, MeanLine(wanted, x) - HalfThickness(wanted.thickness, x));
    }
    airfoil.Add(1.0, 0.0);
    return airfoil;
}

} // namespace loftwing
