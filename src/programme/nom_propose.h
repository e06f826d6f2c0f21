/// The name that save boxes propose.
#pragma once

#include "programme/programme.h"

#include <string>

namespace loftwing {

/// For a file of the view that is shown, without extension: the rib file's where the rib has one,
/// else airfoil and chord, "naca2412 200 mm". Ribs of one airfoil would otherwise all propose the
/// same name. The slash of a fraction, which would lead to a folder, becomes "-".
std::string NomPropose(const Programme &programme);

} // namespace loftwing
