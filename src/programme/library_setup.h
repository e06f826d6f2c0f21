/// The set-up of an airfoil library: an archive that the user has, which unpacks itself.
#pragma once

#include "programme/programme.h"

#include <string>

namespace loftwing {

/// Asks whether the library shall be set up and does so on a Yes; a No is told how to do it later.
void installationProfils(const Programme &programme);

/// Lets the user show the folder of the archive, until it is there or the user gives up, and has
/// the desktop open it. Settings and the airfoil folder stay as they are. Failure of the desktop to
/// open it is not told.
void SetUpAirfoilLibrary(const Programme &programme);

/// Whether no airfoil file lies in a folder or below it. Folders that can't be read count as empty.
bool SansProfil(const std::string &dossier);

} // namespace loftwing
