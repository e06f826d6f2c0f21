/// Rules of the holes.
#pragma once

#include "features/slot_rules.h"
#include "lang/LngIni.h"

#include <array>
#include <cstdint>
#include <string>

namespace loftwing {

/// Values of TypeTrou, the places in the table below. A rib file may hold others, which are drawn
/// as nothing.
inline constexpr std::uint8_t kTrouRond = 0;
inline constexpr std::uint8_t kTrouRectangle = 1;

/// What a kind of hole asks for. Plot and DXF have a function for each, in the same order.
struct GenreTrou {
    LngKey nom;
    LngKey largeur;    ///< caption of its first size
    bool avec_hauteur; ///< has a height besides
};
inline constexpr std::array<GenreTrou, 2> kGenresTrou = {
    {{{"FrmTrou", "11"}, {"FrmTrou", "10"}, false}, {{"FrmTrou", "12"}, {"FrmTrou", "8"}, true}}};

/// What the user typed and chose for one hole.
struct ChampsTrou {
    std::array<std::string, 3> Text1; ///< location, diameter or width, height
    std::string Text2;                ///< distance from the reference line
    bool Chkcentr = false;            ///< in the middle of the thickness
    std::uint8_t OptDistance = 0;     ///< edge that the location counts from
    std::uint8_t OptTrouRec = 0;      ///< kind
};

/// Stores all of it in a slot and tells whether the location passes; one that doesn't is told to
/// `MessageValeur` and stored all the same. Failures as VersMm, and 6 beyond 32 bits; what was
/// converted before stays stored.
bool StockeTrou(Trou &slot, const ChampsTrou &champs, float corde, const Saisie &saisie,
                const Refus &MessageValeur);

/// What the checks of a stored hole depend on beside the hole.
struct CasTrou {
    bool liste_vide_choisie; ///< no finished hole, and the user has clicked the first number
    bool hauteur_demandee;   ///< the height is asked for
};

/// Whether a stored hole has the sizes that it needs; one that is missing is told to
/// `MessageValeur`. Where the hole ends is held against nothing. In a list without holes whose
/// first number was clicked everything passes, so that an empty list can be left.
bool ControleTrou(const Trou &slot, const CasTrou &cas, const Refus &MessageValeur);

/// Whether a slot holds a hole that the window would take as it is.
bool TrouFini(const Trou &slot, float corde);

/// Whether a hole, with its place in mm, leaves the airfoil: above or below at one of the stations
/// that it covers, or at one of the edges.
bool TrouSort(const Trou &slot, const RibModel &rib);
/// What the user should know of a hole that is taken all the same: that it leaves the airfoil.
/// Empty when it doesn't, or when there is no airfoil.
std::string RemarquesTrou(const RibModel &rib, int slot, const Messages &messages);

/// Back to "0": texts and numbers with the middle of the thickness; the options. Neither touches
/// the spare text.
void EffaceTrou(Trou &slot);
void EffaceOptions(Trou &slot);

/// Takes a hole out of the rib; those behind it move ahead. Place in mm and spare text stay with
/// their slot. Failure 9 for a slot beyond the work slot.
void RetireTrou(RibModel &rib, int slot);

/// Caption of the window, which titles its boxes.
std::string TitreTrou(const RibModel &rib, const Saisie &saisie);
/// Text of the box about a value that is refused, as shown to the user: the rule that it breaks
/// and what can be done.
std::string TexteValeurTrou(Regle regle, const std::string &valeur, const Messages &messages);

} // namespace loftwing
