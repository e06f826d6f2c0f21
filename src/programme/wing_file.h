/// A wing of several panels as a small text file (.lfa): which panel files stand in a row.
#pragma once

#include <string>
#include <vector>

namespace loftwing {

struct FichierAile {
    int premier = 1;                   ///< number of the root's rib
    std::vector<std::string> panneaux; ///< panel files from the root to the tip

    bool operator==(const FichierAile &) const = default;
};

/// Whether a path names such a file, by its extension.
bool EstAile(const std::string &path);

/// Reads one. Paths of panels that aren't whole count from the file's folder. Failure 53 for a file
/// that isn't there, 5 for one that is no wing, has a value that can't be or more panels than
/// kPanneauxMaxi (programme/wing_steps.h); the detail names it.
FichierAile LitAile(const std::string &path);

/// Writes one as a whole. What an older file of that name says beside is kept. Panels in the file's
/// folder or below it are named from there, so that the folder can be moved. It
/// outlasts a power cut. Failures as IniFile::Read and WriteWholeFile.
void EnregistreAile(const std::string &path, const FichierAile &fichier);

} // namespace loftwing
