/// Opening a rib components file: the file, then the airfoil that it names.
#pragma once

#include "programme/import_reading.h"
#include "programme/programme.h"

#include <string>
#include <vector>

namespace loftwing {

/// Whether a path names a rib components file, by its extension.
bool EstComposants(const std::string &path);

/// Which file, and where to search for its airfoil.
struct DemandeComposants {
    std::string path;
    std::vector<std::string> dossiers; ///< in turn, with all that is below them
    bool reecrit = true;               ///< writes a file of the older format anew in place
    /// Then beside the file itself, and in the end the user is asked to locate it.
    bool puis_demande = false;
    ReadingWay lecture = ReadingWay::as_it_stands; ///< of the airfoil
};

/// How the opening ended.
enum class OuvertureComposants {
    ouverte,      ///< the rib holds the file's values and the airfoil; its contour is not made yet
    sans_profil,  ///< the airfoil's own reading was refused; a box told why
    echec,        ///< told under " LireEcrire/newLfw"; the caller clears the rib
    echec_lecture ///< a failure of the airfoil's reading, told; the caller clears the rib
};

/// Reads a file into a rib that has just been reset, searches its airfoil and reads that. A missing
/// airfoil is told in a box of its own before the failure's. The text stays as read; whether it is
/// a label is decided by itself. A file of the older format is rewritten before the search. An
/// airfoil of another name that the user locates becomes the rib's, whose label then names it.
OuvertureComposants OuvreComposants(Programme &programme, const DemandeComposants &demande);

/// The same without its airfoil, which is neither searched nor read: NomProfil tells which it is.
/// A file of the older format stays as it is. False when it was refused; a box told why.
bool OuvreSansProfil(Programme &programme, const std::string &path);

/// The caption of the main window with a rib components file: title, file, airfoil. `ecart` stands
/// between file and airfoil.
std::string TitreComposants(const Programme &programme, const std::string &ecart);
/// The caption with the rib that is there, be it of such a file or not.
std::string TitreDuRib(const Programme &programme);

} // namespace loftwing
