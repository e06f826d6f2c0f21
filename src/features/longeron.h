/// Rules of the spars.
#pragma once

#include "features/slot_rules.h"

#include <array>
#include <cstdint>
#include <string>

namespace loftwing {

/// Values of TypeLong.
inline constexpr std::uint8_t kLongeronSurface = 0;  ///< follows the surface
inline constexpr std::uint8_t kLongeronDroit = 1;    ///< square to the chord at the surface
inline constexpr std::uint8_t kLongeronRond = 2;     ///< round
inline constexpr std::uint8_t kLongeronDistance = 3; ///< square, at a distance from the surface

/// Values of OptLongExt and OptLongInt; 0 and any other: no notch.
inline constexpr std::uint8_t kEncocheCoffrage = 1; ///< from the inner face of the sheeting
inline constexpr std::uint8_t kEncocheContour = 2;  ///< from the contour

/// What the user typed and chose for one spar.
struct ChampsLongeron {
    std::array<std::string, 4> Text1; ///< location, width or diameter, depth, distance
    std::uint8_t Opte = 0;            ///< upper surface
    std::uint8_t Opti = 0;            ///< lower surface
    std::uint8_t OptLong = 0;         ///< kind
    std::uint8_t OptDistance = 0;     ///< edge that the location counts from
};

/// Stores all of it in a slot and tells whether the location passes; one that doesn't is told to
/// `MessageValeur` and stored all the same. Failures as VersMm, and 6 beyond 32 bits; what was
/// converted before stays stored.
bool StockeLongeron(Longeron &slot, const ChampsLongeron &champs, float corde, const Saisie &saisie,
                    const Refus &MessageValeur);

/// What the checks of a stored spar depend on beside the spar.
struct CasLongeron {
    float corde;
    bool liste_vide_choisie; ///< no finished spar, and the user has clicked the first number
    bool hauteur_demandee;   ///< the depth is asked for
};

/// Whether a stored spar lies on the chord with its whole width, and has a width and the depth that
/// it needs. Every value that doesn't pass is told to `MessageValeur`. In a list without spars
/// whose first number was clicked the sizes may be 0, so that an empty list can be left.
bool ControleLongeron(const Longeron &slot, const CasLongeron &cas, const Refus &MessageValeur);

/// Whether a slot holds a spar that the window would take as it is.
bool LongeronFini(const Longeron &slot, float corde);

/// Whether a spar cuts into neither surface, so that only its axis is drawn.
bool SansEncoche(const Longeron &slot);
/// Whether two spars, with their places in mm, share a stretch of the chord. Those that touch
/// don't.
bool SeCroisent(const Longeron &a, const Longeron &b);
/// What the user should know of a spar that is taken all the same: no notch, and notches of spars
/// before it that its own ones overlap. Empty when there is nothing. Failures as PlaceDepuis.
std::string RemarquesLongeron(const RibModel &rib, int slot, const Saisie &saisie);

/// Back to "0": the sizes; the options. Neither touches the place in mm, which follows its text,
/// nor the spare text.
void EffaceLongeron(Longeron &slot);
void EffaceOptions(Longeron &slot);

/// Takes a spar out of the rib; those behind it move ahead. Place in mm and spare text stay with
/// their slot. Failure 9 for a slot beyond the work slot.
void RetireLongeron(RibModel &rib, int slot);

/// Caption of the window, which titles its boxes.
std::string TitreLongeron(const RibModel &rib, const Saisie &saisie);
/// Text of the box about a value that is refused, as shown to the user: the rule that it breaks
/// and what can be done.
std::string TexteValeurLongeron(Regle regle, const std::string &valeur, const Messages &messages);

} // namespace loftwing
