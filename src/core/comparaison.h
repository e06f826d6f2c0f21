/// Two airfoils laid over each other.
#pragma once

#include "base/failure.h"

#include <cstdint>
#include <string>

namespace loftwing {

/// The dense contours of both airfoils. They outlive the view and a cleared rib, so that the next
/// comparison can keep airfoil 1.
struct Comparaison {
    PointList CompareX1;
    PointList CompareY1;
    std::int16_t CompareNb1 = 0;
    std::string CompareNom1;
    PointList CompareX2;
    PointList CompareY2;
    std::int16_t CompareNb2 = 0;
    std::string CompareNom2;

    /// Whether there are two airfoils to be shown.
    bool Complete() const { return CompareNb1 > 0 && CompareNb2 > 0; }
    /// Makes the comparison incomplete; airfoil 1 stays.
    void OublieProfil2() { CompareNb2 = 0; }

    bool operator==(const Comparaison &) const = default;
};

} // namespace loftwing
