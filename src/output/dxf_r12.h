/// What the clean DXF files share: a whole R12 file around its entities, which every reader takes.
#pragma once

#include "base/picture.h"
#include "output/dxf_entities.h"
#include "output/dxf_text.h"
#include "output/written_ring.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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
    /// Upper right corner of the sheet that is drawn on, and its lower left one.
    std::optional<DxfPoint> limites = std::nullopt;
    DxfPoint limites_bas = {0, 0};
    /// About how many lines and vertices there are, so that room is made for them at once.
    std::size_t lignes = 0;
};

/// A whole file: header with unit and extent, line types, layers, no blocks, and what `entites`
/// writes.
std::string FichierR12(const CadreR12 &cadre, const std::function<void(DxfText &)> &entites);

/// Lengths in mm in the unit of a file, with digits for a millionth of a millimetre: less, and a
/// ring could come to cross itself.
class EchelleR12 {
  public:
    explicit EchelleR12(const std::string &Unite);

    double Longueur(double mm) const { return mm / diviseur_; }
    DxfPoint Place(const PointMm &mm) const { return {Longueur(mm.x), Longueur(mm.y)}; }
    std::string Ecrit(double mm) const;
    PointEcrit Ecrit(const PointMm &mm) const { return {Ecrit(mm.x), Ecrit(mm.y)}; }

  private:
    double diviseur_;
    Picture image_;
};

/// Groups `code`, `code` + 10 and `code` + 20.
void PointR12(DxfText &dxf, int code, const PointEcrit &point);
/// A line, by the groups of its two points; nothing for one without length.
void LigneR12(DxfText &dxf, std::string_view calque, const PointEcrit &de, const PointEcrit &a);
void PolyligneR12(DxfText &dxf, std::string_view calque, const std::vector<PointEcrit> &points,
                  bool fermee);

/// Which part of a text stands at its `appui`, by the numbers of the format.
enum class AppuiDxf { gauche = 0, milieu = 1, droite = 2 };

struct TexteDxf {
    DxfPoint place; ///< start of the base line
    double hauteur; ///< of its capitals
    std::string mots;
    AppuiDxf genre = AppuiDxf::gauche;
    DxfPoint appui = {0, 0}; ///< of a text that isn't placed by its start
};
void TexteR12(DxfText &dxf, std::string_view calque, const TexteDxf &texte);

} // namespace loftwing
