/// What the dialog of the defaults does with its fields: the values that a new rib and its template
/// start from, the unit, the folders.
#pragma once

#include "core/app_settings.h"
#include "core/rib_model.h"
#include "core/units.h"

#include <array>
#include <string>

namespace loftwing {

/// The default lengths, by the index of their field.
inline constexpr int kDefautCorde = 0;
inline constexpr int kDefautCoffrage = 1;
inline constexpr int kDefautBA = 2;
inline constexpr int kDefautHTbloc = 3;
inline constexpr int kDefautBAbloc = 4;
inline constexpr int kDefautBFbloc = 5;
inline constexpr int kChampsDefaut = 6;
using TextesDefaut = std::array<std::string, kChampsDefaut>;

/// The default lengths on file, empty where there are none. Failure as IniFile::Read.
TextesDefaut LitTextesDefaut(const std::string &fichier);
/// The same as texts in `Unite`: where the file's are of the other unit, the lengths that go with
/// this one.
TextesDefaut TextesDefautEn(std::string_view Unite, const std::string &fichier);
/// The same in the unit in force, and the built-in ones where the settings file is lost.
TextesDefaut TextesDefautConnus(const AppSettings &settings, const std::string &fichier);

/// Changes the unit to " mm" or " in", and the page to the values that go with it. Nothing is
/// converted: who builds in inches has another sheet before him and other stock. Gives the default
/// lengths that go with the unit.
TextesDefaut ChoisitUnite(AppSettings &settings, std::string_view Unite, const Messages &messages);

/// Says that the rib goes for another unit, and asks whether it shall.
std::string QuestionUnite(const Messages &messages);
/// Asks so; true for Yes.
bool ConfirmeUnite(const Messages &messages);

/// What became of the typed defaults.
enum class FinDefauts {
    prise,     ///< in the rib
    inchangee, ///< what the rib has already; nothing was touched
    sans_corde ///< a chord of 0: a box told so and the rib is what it was
};

/// The user's own unit, which the settings file has: "mm" or "in"; empty where it can't be read.
std::string UniteSurFichier(const std::string &fichier);

/// Puts the typed lengths into the current rib. The template's length and a label that is the
/// program's own follow; a loaded rib that they change counts as changed. Failures as VersMm, and 6
/// for a length beyond 32 bits; the rib is then what it was.
FinDefauts PrendDefauts(RibModel &rib, const TextesDefaut &typed, const Saisie &saisie);

/// Makes both folders those of the program, the picker's too, and keeps them in the settings file
/// and in the user's own store, as far as these can be written.
void RangeDossiers(Repertoires &folders, const std::string &profils, const std::string &jeux,
                   const std::string &fichier, Platform &platform);

/// The folder of rib sets alone.
void RangeDossierJeux(Repertoires &folders, const std::string &jeux, const std::string &fichier,
                      Platform &platform);

/// Lets the user choose a folder. The chooser opens on `shown`, where the user is already, if that
/// place is there. Empty when it is cancelled.
std::string ChoisitDossier(std::string shown, const Messages &messages);

} // namespace loftwing
