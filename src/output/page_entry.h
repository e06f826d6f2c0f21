/// What the page dialog does with typed texts, and what it shows.
#pragma once

#include "core/units.h"
#include "output/page_setup.h"

#include <array>
#include <optional>
#include <string>

namespace loftwing {

/// The typed lengths of a page, by the index of their text box.
inline constexpr int kChampYdprint = 0;
inline constexpr int kChampMargeHaut = 1;
inline constexpr int kChampMargeBas = 2;
inline constexpr int kChampRecouvrement = 3;
inline constexpr int kChampsPage = 4;
using TextesPage = std::array<std::string, kChampsPage>;

/// The texts of a page as they were typed.
TextesPage TextesDe(const MiseEnPage &page);

/// Stores one typed text and its number. Failure 9 for another field; failures as VersMm, after
/// which the number is the old one.
void PrendTexte(MiseEnPage &page, int champ, const std::string &typed, const Saisie &saisie);

/// Stores all four. After a failure the page is what it was.
void PrendTextes(MiseEnPage &page, const TextesPage &typed, const Saisie &saisie);

/// Makes the numbers anew from the texts. A print on one sheet leaves an overlap of 0 behind a text
/// that is still the user's; what counts the sheets must count with what it shows. A text that is
/// no length keeps its number. Failures as VersMm.
void ReprendTextes(MiseEnPage &page, const Saisie &saisie);

/// Whether the rib goes over several sheets that don't overlap.
bool ManqueRecouvrement(const MiseEnPage &page);

/// What the OK of the dialog comes to.
enum class FinPage {
    prise,            ///< the page can be printed
    sans_pas,         ///< margins and overlap leave no room on the sheet
    sans_recouvrement ///< several sheets without overlap
};
/// Computes the sheets for good. The printer's own paper is never refused. Failure 6 for more than
/// 255 sheets.
FinPage ValidePage(MiseEnPage &page, const LongueurRib &longueur);

/// Caption of the dialog; `imprimante` is the printer's device name, empty where there is none.
std::string TitrePage(const LngIni &language, const std::string &imprimante);
/// The measure of the chosen paper along the rib, in words.
std::string TexteFeuille(const MiseEnPage &page, const LngIni &language);
/// The length that decides about the sheets, in the unit in force: the template's, otherwise the
/// chord as typed.
std::string LongueurAffichee(const RibModel &rib, const std::string &Unite);
/// The same with its words: "Chord length, mm : 200".
std::string TexteLongueur(const RibModel &rib, const Saisie &saisie);
/// The count of sheets in words, all rows together.
std::string TextePages(const MiseEnPage &page, const LngIni &language);
/// The same where no count could be made.
std::string TexteSansPages(const LngIni &language);

/// A paper of one's own from its typed name and measures, along the rib and across. Nothing for one
/// that no page can have; a box titled `titre` says so. Failures as VersMm.
std::optional<PapierPropre> PapierSaisi(const std::string &nom,
                                        const std::array<std::string, 2> &mesures,
                                        const Saisie &saisie, const std::string &titre);

/// Whether `nom`, an entry of the paper list, is the paper that is set in the printer.
bool NommePapierImprimante(const std::string &nom, const LngIni &language);

/// Tells that only one sheet of the printer's own paper will be used, however long the rib is.
void AnnoncePapierImprimante(const RibModel &rib, const Saisie &saisie);
/// Tells that margins and overlap leave no room on the sheet.
void RefuseSansPas(const Messages &messages);
/// Tells that a page for the whole drawing would be larger than a page may be.
void RefusePageTropGrande(const PageEntiere &page, const Messages &messages);
/// Tells how many sheets there are, and that they don't overlap.
void AlerteRecouvrement(const MiseEnPage &page, const Messages &messages);

} // namespace loftwing
