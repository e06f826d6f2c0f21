/// What the views that replace the rib are made from, for the window and the command line alike.
#pragma once

#include "core/contour.h"
#include "programme/programme.h"

#include <optional>

namespace loftwing {

/// Takes the rib's airfoil, whose points have been read, as airfoil 1 of the comparison; the second
/// is then open again. A contour that is incomplete is compared as far as it came; an impossible
/// one leaves the comparison as it was, and the caller clears the rib. Both are reported.
Preparation PrendProfil1(Programme &programme);

/// The same for airfoil 2. `haut1`, the top of airfoil 1 in fractions of the chord where that was
/// taken in the same run, makes room for the higher of the two: ExtradosMaxi becomes the larger.
Preparation PrendProfil2(Programme &programme, std::optional<double> haut1);

/// Makes the rib's airfoil, whose points have been read, ready for the simple plot: the chord of
/// its title, and its highest and lowest point. Failures as CordeDuTitre, and 9 for too few points.
void PrepareTraceSimple(Programme &programme);
/// The same with the rib's chord as it is.
void MesureTraceSimple(RibModel &rib);

} // namespace loftwing
