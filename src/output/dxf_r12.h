/// What the clean DXF files share: a whole R12 file around its entities, which every reader takes.
#pragma once

#include "output/dxf_entities.h"
#include "output/dxf_text.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace loftwing {

/// The box around a drawing, in the file's unit.
struct EtendueDxf {
    DxfPoint bas{1e300, 1e300};
    DxfPoint haut{-1e300, -1e300};

    void Prend(DxfPoint point) {
        bas = {std::min(bas.x, point.x), std::min(bas.y, point.y)};
        haut = {std::max(haut.x, point.x), std::max(haut.y, point.y)};
    }
};

inline constexpr std::string_view kTraitPlein = "CONTINUOUS";
inline constexpr std::string_view kTraitAxe = "CENTER";

struct CalqueR12 {
    std::string_view nom;
    int couleur;
    std::string_view trait; ///< kTraitPlein or kTraitAxe
};

struct CadreR12 {
    std::string Unite;
    EtendueDxf etendue;
    std::span<const CalqueR12> calques;
    /// Upper right corner of the sheet that is drawn on, whose lower left one is 0,0.
    std::optional<DxfPoint> limites = std::nullopt;
};

/// A whole file: header with unit and extent, line types, layers, no blocks, and what `entites`
/// writes.
std::string FichierR12(const CadreR12 &cadre, const std::function<void(DxfText &)> &entites);

struct TexteDxf {
    DxfPoint place; ///< start of the base line
    double hauteur; ///< of its capitals
    std::string mots;
};
void TexteR12(DxfText &dxf, std::string_view calque, const TexteDxf &texte);

} // namespace loftwing
