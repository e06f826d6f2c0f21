/// The settings of a wing panel as a small text file (.lfp): which ribs it stands between, its
/// spacing, and which elements stand in which ribs.
#pragma once

#include "programme/sheet_choice.h"
#include "utilities/panneau.h"

#include <array>
#include <string>
#include <vector>

namespace loftwing {

struct FichierPanneau {
    std::array<std::string, 2> bouts; ///< rib components files of root and tip
    std::string unite = "mm";         ///< "mm" or "in": in which lengths below are typed
    std::string nombre;               ///< intermediate ribs in equal steps
    std::vector<std::string> ecarts;  ///< or the gaps between the ribs
    std::vector<std::string> epaisseurs;
    std::string longueur;
    int premier = 1; ///< number of the first rib
    PorteesPanneau portees;
    SaisiePlanches planches = {}; ///< without sizes where nothing was chosen for sheets
    std::string recul = {};       ///< sweep
    std::string diedre = {};      ///< degrees
    std::string densite = {};     ///< of the ribs' wood, kg/m3 or lb/ft3

    bool operator==(const FichierPanneau &) const = default;
};

/// Whether a path names such a file, by its extension.
bool EstPanneau(const std::string &path);

/// Reads one. Paths of ribs that aren't whole count from the file's folder. Failure 53 for a file
/// that isn't there, 5 for one that is no panel or has a value that can't be; the detail names it.
FichierPanneau LitPanneau(const std::string &path);

/// Writes one as a whole. What an older file of that name says beside is kept. Ribs in the file's
/// folder or below it are named from there, so that the folder can be moved. Failures as
/// IniFile::Read and WriteWholeFile.
void EnregistrePanneau(const std::string &path, const FichierPanneau &fichier,
                       Flush flush = Flush::no);

/// "1-5", and the range of such a word; nothing for another one.
std::string TextePortee(const PorteePanneau &portee);
std::optional<PorteePanneau> PorteeLue(const std::string &texte);

} // namespace loftwing
