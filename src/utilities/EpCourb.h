/// The same airfoil with another thickness and camber.
#pragma once

#include "core/rib_model.h"
#include "core/units.h"

#include <string>

namespace loftwing {

/// What the fields for the new airfoil hold, in %.
struct ChampsEpCourb {
    std::string txtEpR;      ///< thickness
    std::string txtCourbure; ///< camber

    bool operator==(const ChampsEpCourb &) const = default;
};

/// What the window shows when it opens.
struct TextesEpCourb {
    std::string txtEpROr; ///< of the airfoil as read, %
    std::string txtCourbureOr;
    std::string Label4;   ///< its greatest thickness as a length
    std::string Label5;   ///< that of the new airfoil; empty before there is one
    ChampsEpCourb champs; ///< to start from: the thickness applied last, the camber as it is
};

/// Caption of the window, which titles its boxes too.
std::string TitreEpCourb(const RibModel &rib, const Messages &messages);

/// Makes the rib ready: no template, the new airfoil out of view. A camber that is none (below a
/// thousandth of the chord) becomes 0 for good.
TextesEpCourb OuvreEpCourb(RibModel &rib, const std::string &Unite);

/// A part of the chord as a length with its unit.
std::string TexteEpaisseurMaxi(const RibModel &rib, double part, const std::string &Unite);

/// Computes the new airfoil from the fields and puts it in view; both texts become the values
/// applied. A camber above 99 or a thickness above 100 or of 0 is refused in a box: false, and the
/// new airfoil is out of view. A camber asked of an airfoil that has none is told, becomes 0, and
/// the thickness is applied all the same. Failure 11 for an airfoil without thickness, 6 for a
/// number beyond 64 bits.
bool AppliqueEpCourb(RibModel &rib, ChampsEpCourb &champs, const Messages &messages,
                     const std::string &titre);

/// The same with the camber as it is, whose value goes to its text.
bool AppliqueEpaisseur(RibModel &rib, ChampsEpCourb &champs, const Messages &messages,
                       const std::string &titre);

/// File name proposed for the new airfoil.
std::string NomEpCourb(const RibModel &rib, const ChampsEpCourb &champs);

/// The new airfoil as the text of a file: 209 or 210 points, closer at the nose.
std::string TexteEpCourb(const RibModel &rib, const ChampsEpCourb &champs,
                         const Messages &messages);

} // namespace loftwing
