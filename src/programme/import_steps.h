/// An airfoil file in whatever order and scale: chosen, imported, put in the rib's place.
#pragma once

#include "programme/command_view.h"
#include "programme/import_reading.h"
#include "programme/programme.h"

#include <optional>
#include <string>

namespace loftwing {

/// An import that the user has seen and wants to be opened.
struct ImportVoulu {
    std::string chemin; ///< its file: the one that was imported, or the one that it was saved to
    ImportedAirfoil profil;
};

/// Imports a file; nothing where that can't be.
std::optional<ImportedAirfoil> EssaieImport(const std::string &path);

/// The same, and a box tells why it can't.
std::optional<ImportedAirfoil> LitImport(const Messages &messages, const std::string &path);

/// The contour that is drawn of an import. Failures as Alocate.
Curve ContourImporte(const ImportedAirfoil &airfoil);

/// Takes an import into the rib as reading its file would, identity included.
void PrendImport(RibModel &rib, const ImportVoulu &wanted);

/// Shows what the import of a file made, and opens it where the user wants that: with the
/// questions of any airfoil that is opened. A cancel leaves the rib.
void MontreEtOuvreImport(Programme &programme, CommandView &view, const std::string &path,
                         const ImportedAirfoil &airfoil);

/// The same for a file that is still to be read.
void ImporteFichier(Programme &programme, CommandView &view, const std::string &path);

/// The same for a file that the user chooses first, whatever its name ends in.
void ImporteProfil(Programme &programme, CommandView &view);

/// Saves an import as an airfoil file that the user names; its path, empty when that is cancelled.
std::string EnregistreImport(const Programme &programme, const std::string &path,
                             const ImportedAirfoil &airfoil);

} // namespace loftwing
