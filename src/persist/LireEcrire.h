/// The rib components file (.lfw): everything that the user has set on one rib, one value a line,
/// known by its place. Of the airfoil it holds the name only.
#pragma once

#include "core/rib_model.h"
#include "core/units.h"

#include <functional>
#include <string>
#include <vector>

namespace loftwing {

/// The rib as the bytes of a file in the current format: UTF-8, lines ended by CR LF. Lengths stand
/// in it as they were typed in the unit in force; of chord, stocks and V-notch it holds what is in
/// force, also where another text was refused. Failure 9 when the rib counts more spars or holes
/// than there are slots.
std::string EcritComposants(const RibModel &rib, const std::string &Unite);

/// In which format a file was found.
enum class FormatComposants {
    courant,
    ancien ///< the caller writes it anew in the current one
};

/// Takes the values of a file into a rib that has been reset before, without its airfoil: NomProfil
/// and ExtProfil tell which. `nom_cherche` gets the name to search for. Lengths are read in the
/// unit in force; limits are not checked, and only the first text that is no length is told of. A
/// file whose first line isn't the current one's counts as of the older format, whatever it holds;
/// what that doesn't hold stays as it was. UniteDouteuse says whether the lengths look like those
/// of the other unit, since the file names none.
///
/// Failure 62 for a file that is too short, 9 for more than 13 spars or holes, 6 for a number that
/// its field can't hold, and those of VersMm. The rib then has what was read so far.
FormatComposants LitComposants(const std::string &bytes, RibModel &rib, const Saisie &saisie,
                               std::string &nom_cherche);

/// Searches folders with all that is below them for the airfoil file `nom`. Each folder in sorted
/// order; the last hit of a folder's tree wins, and a folder without one leaves the turn to the
/// next. Links to folders that the walk has been in are not followed. `pause` is called at each
/// folder, so that a window stays alive. A name with a path in it is nowhere found. Gives the path,
/// empty when there is none.
std::string ChercheProfil(const std::vector<std::string> &dossiers, const std::string &nom,
                          const std::function<void()> &pause);
/// The airfoil file `nom` in the folder of a rib components file itself, without what is below it.
/// Empty when it isn't there.
std::string ProfilACote(const std::string &chemin_rib, const std::string &nom);

} // namespace loftwing
