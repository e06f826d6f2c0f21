/// What the dialog of colours, styles and widths does with typed numbers.
#pragma once

#include "base/failure.h"
#include "output/styles.h"

#include <array>
#include <optional>
#include <string>

namespace loftwing {

/// Elements whose width can be chosen.
inline constexpr std::size_t kEpaisseurs = 8;

/// The element of width box `index`. Failure 9 outside 0 to 7.
Element ElementDeEpaisseur(int index);

/// Colour, style and width of each element, by its number.
using Traits = std::array<Trait, kElements>;

/// What the text boxes of the dialog hold.
struct TextesTraits {
    std::array<std::string, kElements> couleur;
    std::array<std::string, kElements> style;
    std::array<std::string, kEpaisseurs> epaisseur;
};

/// The texts of stored numbers.
TextesTraits TextesDe(const Traits &traits);

enum class ListeTraits { couleur, style, epaisseur };

/// Names one text box: its list and its index there.
struct ChampTrait {
    ListeTraits liste;
    int index;

    bool operator==(const ChampTrait &) const = default;
};

/// Typed numbers, and whether they may be kept.
struct LectureTraits {
    Traits traits;                   ///< means nothing after a failure
    std::optional<ChampTrait> faute; ///< the first box that is out of range or failed
    std::optional<Failure> echec;    ///< 6: its number is no 16-bit number
};

/// Reads typed numbers (leading number, halves to even) and checks them: all colours, then all
/// styles, then all widths. Widths that can't be chosen are those of `base`.
LectureTraits LitTraits(const TextesTraits &typed, const Traits &base);

/// The colour of a typed number, read as LitTraits reads it; none where that refuses it.
std::optional<Colour> CouleurTapee(const std::string &typed);

/// What a box out of range is told: the range of its list.
std::string TexteFaute(ListeTraits liste, const LngIni &language);

} // namespace loftwing
