#include "output/stack_sheets.h"

#include "base/failure.h"

#include <algorithm>
#include <array>
#include <optional>

namespace loftwing {

namespace {

constexpr double kTaille = 10.0; // of a sheet's number, points
constexpr double kHauteur = 1.2 * kTaille * kUnitsPerPoint / kUnitsPerMm;
constexpr double kJeu = 2.0; // around it, mm
constexpr double kPas = 2.0; // of the search for a place, mm

bool EstLibre(const Etendue &zone, const std::vector<Etendue> &encres) {
    const Etendue wide{zone.gauche - kJeu, zone.haut - kJeu, zone.droite + kJeu, zone.bas + kJeu};
    return std::none_of(encres.begin(), encres.end(),
                        [&wide](const Etendue &ink) { return wide.Touche(ink); });
}

Etendue PlaceNumero(const Etendue &room, double width, const std::vector<Etendue> &encres) {
    const auto at = [width](double x, double y) { return Etendue{x, y, x + width, y + kHauteur}; };
    const double right = room.droite - width;
    const double below = room.bas - kHauteur;
    const std::array<Etendue, 4> corners = {{at(right, below), at(right, room.haut),
                                             at(room.gauche, below), at(room.gauche, room.haut)}};
    for (const Etendue &corner : corners) {
        if (EstLibre(corner, encres)) {
            return corner;
        }
    }
    for (double y = below; y >= room.haut; y -= kPas) {
        for (double x = right; x >= room.gauche; x -= kPas) {
            if (EstLibre(at(x, y), encres)) {
                return at(x, y);
            }
        }
    }
    return corners.front();
}

} // namespace

void EcritNumero(Recording &sheet, const std::string &number, const Etendue &room) {
    Metre metre;
    Redraw(sheet, metre);
    const TextFont font{"Arial", kTaille};
    const Etendue place =
        PlaceNumero(room, MeasuredAdvance(number, font) / kUnitsPerMm, metre.encres);
    sheet.Font = font;
    sheet.ForeColor = 0;
    sheet.CurrentX = place.gauche * kUnitsPerMm;
    sheet.CurrentY = place.haut * kUnitsPerMm;
    sheet.Print(number);
}

Etendue PlaceDesDessins(const MiseEnPage &page) {
    const Papier paper = PapierDe(page);
    const double before = Wide(page.MargeHaut);
    const double behind = Wide(page.MargeBas);
    const double across = std::min(before, behind);
    return {before, across, paper.tailleFeuille - behind, paper.largeur - across};
}

FeuilleTemoin FeuilleDePile(const MiseEnPage &page, const SheetSize &size) {
    return FeuilleAvecMarges(size.width, size.height, Wide(page.MargeHaut), Wide(page.MargeBas));
}

void EcritNumeros(KeptSheets &sheets, const FeuilleTemoin &feuille) {
    const std::string of = "/" + std::to_string(sheets.sheets.size());
    int number = 0;
    for (Recording &sheet : sheets.sheets) {
        EcritNumero(sheet, std::to_string(++number) + of, feuille.utile);
    }
}

} // namespace loftwing
