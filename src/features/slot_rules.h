/// What the lists of spars and of holes have in common.
#pragma once

#include "core/rib_model.h"
#include "core/units.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace loftwing {

/// Slots that the user can reach: numbers 1 to 12 stand for slots 0 to 11.
inline constexpr int kNumeros = 12;

/// What is wrong with an entry that is refused.
enum class Regle : std::uint8_t {
    derriere_bf,  ///< its place lies behind the trailing edge
    devant_ba,    ///< its place lies in front of the leading edge
    depasse_bf,   ///< its width reaches beyond the trailing edge
    depasse_ba,   ///< its width reaches beyond the leading edge
    sans_largeur, ///< it has no width or diameter
    sans_hauteur, ///< it has no depth or height
    illisible,    ///< one of its fields is no length
};

/// Hears of a value that is refused, in mm, and of the rule that it breaks.
using Refus = std::function<void(Regle regle, float mm)>;

/// Lengths closer than that touch each other: places in percent and numbers of 32 bits are no more
/// exact, and no saw is.
inline constexpr double kContact = 0.01; // mm

/// Place of a spar or hole in mm from the leading edge out of its text, which counts from the
/// trailing edge when `ref` isn't 0. Failures as PosDepuisBA.
float PlaceDepuis(const std::string &afich, std::uint8_t ref, float corde, const Saisie &saisie);

/// The rule that this place `mm` breaks, if any: neither a percentage nor a length, from whichever
/// edge it counts, may exceed the chord. There is no surface to draw at in front of the leading
/// edge.
std::optional<Regle> PlaceRefusee(const std::string &afich, std::uint8_t ref, float mm,
                                  float corde);

/// The entry in the work slot is finished and the next slot becomes the work slot. False at the
/// ceiling of twelve: the count stays at 11, and the twelfth entry remains the work slot.
bool AvanceTravail(std::uint8_t &count);

/// Takes `slot` out of a list: those behind it, up to the work slot, move ahead by `copie(from,
/// into)`, the old work slot is emptied by `efface` and the count falls by one. With no finished
/// entry only the slot itself is emptied. Failure 9 for a slot beyond the work slot.
template <class Slots, class Copie, class Efface>
void RetireEmplacement(Slots &slots, std::uint8_t &count, int slot, Copie copie, Efface efface) {
    if (slot < 0 || slot > count) {
        throw MakeFailure(kSubscriptOutOfRange);
    }
    for (int i = slot + 1; i <= count; ++i) {
        copie(std::as_const(At(slots, i)), At(slots, i - 1));
    }
    efface(At(slots, count));
    if (count > 0) {
        --count;
    }
}

/// Caption of a window that works on the rib's chord: "Spars setup 200  mm".
std::string TitreAvecCorde(const std::string &titre, const RibModel &rib, const std::string &Unite);

/// The text of a refusal: what is said, the name of the frame that the value stands in, the value.
std::string TexteValeur(const std::string &words, const std::string &cadre,
                        const std::string &valeur);

/// What is told about an entry that was added: its name and number, what is said of it and a line
/// for each remark. Empty without remarks.
std::string TexteRemarques(const std::string &nom, int slot, const std::string &words,
                           const std::vector<std::string> &remarques);

} // namespace loftwing
