/// What choosing an airfoil file means, without the window in which it is chosen.
#pragma once

#include "core/messages.h"
#include "core/rib_model.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace loftwing {

/// An airfoil as the picker hands it to a tool: the points of its file, whose contour isn't made.
struct ProfilChoisi : PointsLus {
    std::string NomProfil;
};

/// The airfoil that the rib holds.
ProfilChoisi ProfilDuRib(const RibModel &rib);

/// The airfoil that is there when the picker opens. The picker overwrites it with each file that is
/// looked at, and a cancel gives it back.
class ProfilPrecedent {
  public:
    explicit ProfilPrecedent(const RibModel &rib);
    /// Puts the airfoil's identity and points back, and whether the inserted text is the user's
    /// own.
    void Rend(RibModel &rib) const;

  private:
    IdentiteProfil identite_;
    PointsLus points_;
    bool texte_utilisateur_;
};

/// A folder as a label shows it: whole up to 30 characters, otherwise its first 12, "..." and its
/// last 10.
std::string CheminAbrege(const std::string &folder);

/// The file pattern that a row of the picker's list of file types ends in: "*.dat" of
/// "Selig Files (*.dat)".
std::string MotifDeLigne(const std::string &row);

/// Whether a file name has the extension of a pattern such as "*.dat"; capitals don't matter, since
/// libraries that come from other systems write .DAT.
bool SuitMotif(std::string_view name, std::string_view motif);

/// The path of an entry of a folder.
std::string CheminDans(const std::string &folder, const std::string &name);

/// The folder above, empty at the top.
std::string DossierParent(const std::string &folder);

/// Names in a folder, sorted without regard to capitals. Hidden entries are left out.
struct ContenuDossier {
    std::vector<std::string> dossiers;
    std::vector<std::string> fichiers;
};

/// Lists the folders of `folder` and its plain files that suit `motif`; links count as what they
/// lead to. Failure 76 when it is no folder, 70 when it may not be read, 57 when reading breaks
/// off.
ContenuDossier LitDossier(const std::string &folder, std::string_view motif);

/// The airfoil file that stands next to `chemin` in the list of its folder, of all kinds that the
/// picker lists: behind it where `pas` is above 0, before it otherwise. A file that is gone counts
/// where it would stand, and a folder, a path that ends in "/", has all its files next to it.
/// Empty at the end of the list. Failures as LitDossier.
std::string ProfilVoisin(const std::string &chemin, int pas);

/// The folder on which the picker opens: `last` as an absolute path where that can be listed,
/// otherwise the current folder, otherwise the top one.
std::string DossierDepart(const std::string &last);

/// Words at the preview: the file's title, or its name where the title is the first point.
std::string TitreApercu(const RibModel &rib);
/// Number of points read, with its word.
std::string NombreApercu(const RibModel &rib, const Messages &messages);

/// The warning for a file that is no airfoil by its name (rib components, texts, what an installer
/// left behind); empty for any other.
std::string NomEcarte(const RibModel &rib);

} // namespace loftwing
