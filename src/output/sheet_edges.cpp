#include "output/sheet_edges.h"

#include "output/page_setup.h"
#include "output/print_run.h"
#include "output/recording.h"

#include <algorithm>

namespace loftwing {

namespace {

/// A blue grey that no element of a drawing can have: it isn't in the palette.
constexpr Colour kCouleur = 0x5B7DA8;
constexpr double kTailleNumero = 9; // points at every zoom
constexpr double kEcartNumero = 60; // device units from the corner, 4 pixels

/// The surface of one sheet.
Etendue BordsDe(const MiseEnPage &page, const Feuille &feuille) {
    const OrigineFeuille origin = OrigineSur(page, feuille);
    const Papier paper = PapierDe(page);
    const double left = -Wide(origin.x) / kUnitsPerMm;
    const double top = -Wide(origin.y) / kUnitsPerMm;
    return {left, top, left + paper.tailleFeuille, top + paper.largeur};
}

/// Keeps a strip, if there is one.
void Prend(std::vector<Etendue> &strips, const Etendue &strip) {
    constexpr double kRien = 0.001; // mm, an overlap of 0 is not quite that
    if (strip.droite - strip.gauche > kRien && strip.bas - strip.haut > kRien) {
        strips.push_back(strip);
    }
}

void PrendRecouvrements(const MiseEnPage &page, FeuillesVues &found) {
    const Etendue first = BordsDe(page, {});
    const Etendue last = BordsDe(page, {page.NbPages - 1, page.rangees.nombre - 1});
    for (int i = 1; i < page.NbPages; ++i) {
        const double from = BordsDe(page, {i, 0}).gauche + Wide(page.MargeHaut);
        const double to = BordsDe(page, {i - 1, 0}).droite - Wide(page.MargeBas);
        Prend(found.entre_colonnes, {from, first.haut, to, last.bas});
    }
    for (int i = 1; i < page.rangees.nombre; ++i) {
        const double from = BordsDe(page, {0, i}).haut + Wide(page.MargeHaut);
        const double to = BordsDe(page, {0, i - 1}).bas - Wide(page.MargeBas);
        Prend(found.entre_rangees, {first.gauche, from, last.droite, to});
    }
}

/// Puts an extent in mm on the screen.
Etendue SurEcran(const Etendue &mm, const PlaceEcran &place) {
    const double scale = kUnitsPerMm * place.zoom;
    return {place.x + mm.gauche * scale, place.y + mm.haut * scale, place.x + mm.droite * scale,
            place.y + mm.bas * scale};
}

void TraceCotes(PlotDevice &device, const Etendue &at) {
    device.Line(at.gauche, at.haut, at.gauche, at.bas, kCouleur);
    device.Line(at.droite, at.haut, at.droite, at.bas, kCouleur);
}

void TraceHautBas(PlotDevice &device, const Etendue &at) {
    device.Line(at.gauche, at.haut, at.droite, at.haut, kCouleur);
    device.Line(at.gauche, at.bas, at.droite, at.bas, kCouleur);
}

/// The number keeps to the seen part of its sheet as long as it has room there.
void EcritNumero(PlotDevice &device, const Etendue &at, const std::string &numero) {
    const double width = MeasuredAdvance(numero, device.Font);
    const double height = 1.2 * device.Font.size * kUnitsPerPoint;
    const double right = std::max(at.gauche, at.droite - width - 2 * kEcartNumero);
    const double low = std::max(at.haut, at.bas - height - 2 * kEcartNumero);
    device.CurrentX = std::clamp(0.0, at.gauche, right) + kEcartNumero;
    device.CurrentY = std::clamp(0.0, at.haut, low) + kEcartNumero;
    device.Print(numero);
}

} // namespace

FeuillesVues FeuillesDe(const MiseEnPage &page) {
    FeuillesVues found;
    if (page.NumIndex == kPapierImprimante) {
        return found;
    }
    const std::string all = "/" + std::to_string(NombreFeuilles(page));
    for (int row = 0; row < page.rangees.nombre; ++row) {
        for (int column = 0; column < page.NbPages; ++column) {
            const std::string number = std::to_string(found.feuilles.size() + 1) + all;
            found.feuilles.push_back({BordsDe(page, {column, row}), number});
        }
    }
    PrendRecouvrements(page, found);
    return found;
}

void TraceFeuilles(const FeuillesVues &vues, const PlaceEcran &place, PlotDevice &device) {
    device.DrawWidth = 1;
    device.Font.size = kTailleNumero;
    device.ForeColor = kCouleur;
    device.DrawStyle = static_cast<int>(LineStyle::dash);
    for (const FeuilleVue &sheet : vues.feuilles) {
        const Etendue at = SurEcran(sheet.bords, place);
        TraceCotes(device, at);
        TraceHautBas(device, at);
        EcritNumero(device, at, sheet.numero);
    }
    device.DrawStyle = static_cast<int>(LineStyle::dot); // their ends lie on the sheets' edges
    for (const Etendue &strip : vues.entre_colonnes) {
        TraceCotes(device, SurEcran(strip, place));
    }
    for (const Etendue &strip : vues.entre_rangees) {
        TraceHautBas(device, SurEcran(strip, place));
    }
    device.DrawStyle = static_cast<int>(LineStyle::solid);
}

} // namespace loftwing
