/// The settings file: what outlives a run beside the ribs themselves.
#pragma once

#include "core/app_settings.h"
#include "core/messages.h"
#include "core/rib_model.h"

#include <array>
#include <string>

namespace loftwing {

/// Everything that reading and writing settings touches. Numbers behind display texts are derived
/// in the unit in force at reading.
struct Reglages {
    AppSettings &settings;
    RibModel &rib;
    const Messages &messages;
    const std::string &fichier; ///< path of the settings file
};

/// Sets every default that a new program has, folders to `programme`. No file is touched.
void ValeursDefaut(const Reglages &reglages, const std::string &programme);

/// Writers, one per family of sections, so that each dialog saves its own part. What the writing
/// came to is not reported: a program that can't keep its settings still draws ribs. Only a file
/// that is there and can't be read is told, once in a run.
void EcritCouleurs(const Reglages &reglages);
void EcritStyles(const Reglages &reglages);
void EcritEpaisseurs(const Reglages &reglages); ///< widths and the text size
void EcritDefauts(const Reglages &reglages);
void EcritRepertoires(const Reglages &reglages);
void EcritMarges(const Reglages &reglages);   ///< nothing in another unit than the one on file
void EcritFeuilles(const Reglages &reglages); ///< check line, rows, own papers, correction
/// All but the sheets, which stand on file once the page has been set up. False when the file could
/// not be written.
bool EcritTout(const Reglages &reglages);

/// Readers. A key that isn't there reads as the empty text, and so as 0. A file that can't be read
/// and a value that doesn't fit its field are reported in a box; the fields concerned stay as they
/// are, and the reader gives false. That a file can't be read is told once in a run.
bool LitCouleurs(const Reglages &reglages);
bool LitStyles(const Reglages &reglages);
bool LitEpaisseurs(const Reglages &reglages);
/// The defaults of a cleared rib. Where the file is lost they are the built-in ones, never 0.
bool LitDefauts(const Reglages &reglages);
bool LitRepertoires(const Reglages &reglages);
bool LitMarges(const Reglages &reglages);
bool LitTout(const Reglages &reglages);

/// Notes that the settings file can't be used, and tells the first failure of a run under `label`.
void PerdFichier(AppSettings &settings, const Messages &messages, const Failure &failure,
                 const std::string &label);

/// Derives all lengths anew from their texts, after the unit has changed under them.
void DeriveLongueurs(const Reglages &reglages);

/// Takes RepProfil and RepProfilevol from the user's own store, `programme` where that has none,
/// and writes them to the settings file. The airfoil picker then starts in RepProfil.
void ReadInstallFolders(const Reglages &reglages, const std::string &programme);

/// Warns of airfoil folders that are missing or that are the program's own folder.
void ControlRep(const Reglages &reglages, const std::string &programme);

/// The recently opened airfoils, most recent first. Both routines raise what IniFile::Read raises
/// for a file that is there but can't be read.
inline constexpr int kFichiersRecents = 4;
using FichiersRecents = std::array<std::string, kFichiersRecents>;
FichiersRecents LitFichiersRecents(const std::string &fichier);
/// Puts `path` at the top of the list.
void NoteFichierRecent(const std::string &path, const std::string &fichier);
/// The same for rib components files, whose list stands beside it.
FichiersRecents LitRibsRecents(const std::string &fichier);
void NoteRibRecent(const std::string &path, const std::string &fichier);

} // namespace loftwing
