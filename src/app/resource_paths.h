/// Where the program finds its files.
#pragma once

#include "programme/programme.h"

namespace loftwing {

/// The folder of the program's resources: beside the program in the build tree, in its bundle where
/// programs are bundles, otherwise share/loftwing beside the folder that it is installed in.
std::string ResourceFolder();

/// Paths of the window: the settings file is `settings` where that is given, a Loftwing.ini in the
/// program folder (a portable copy) where there is one, otherwise one in the user's configuration
/// folder, which is made.
Paths WindowPaths(const std::string &settings);

/// Paths of the command line, which leaves the user's settings alone: `settings` may be empty.
Paths ConsolePaths(const std::string &settings);

} // namespace loftwing
