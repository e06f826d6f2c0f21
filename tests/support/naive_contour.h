/// A second computation of the contour, written straight from its rules and without regard to
/// speed. Lists count from 1; element 0 is unused.
#pragma once

#include <vector>

namespace loftwing {

struct NaiveAirfoil {
    std::vector<double> x{0.0};
    std::vector<double> y{0.0};

    long Count() const { return static_cast<long>(x.size()) - 1; }
    void Add(double px, double py) {
        x.push_back(px);
        y.push_back(py);
    }
};

struct NaiveContour {
    bool alocate_failed = false;
    bool minix_failed = false; ///< what follows MiniX was then not computed
    NaiveAirfoil contour;
    long NbExtrados = 0;
    NaiveAirfoil intrados;
    std::vector<double> TabExtrados;
    std::vector<double> TabIntrados;
    double EpMaxi = 0;
    long PosEpMaxi = 0;
    double CambrureMaxi = 0;
    long PosCambrure = 0;
    double MiniX = 0;
    double ExtradosMaxi = 0;
    double IntradosMini = 0;
};

NaiveContour ComputeNaively(const NaiveAirfoil &airfoil);

} // namespace loftwing
