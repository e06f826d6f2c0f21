#include "output/stack_drawing.h"

#include "output/rib_plot.h"
#include "output/sheet_marks.h"
#include "output/sheeting.h"

#include <algorithm>
#include <array>
#include <optional>

namespace loftwing {

namespace {

constexpr double kTaille = kTailleNote; // of a label's letters, points
constexpr double kHauteur = 1.2 * kTaille * kUnitsPerPoint / kUnitsPerMm;
constexpr double kJeu = 1.0;       // around it, mm
constexpr double kPlusLong = 60.0; // that it may always be, mm

Etendue BoiteEn(double x, double y, double width) {
    return {x, y, x + width, y + kHauteur};
}

bool EstLibre(const Etendue &zone, const std::vector<Etendue> &encres) {
    const Etendue wide{zone.gauche - kJeu, zone.haut - kJeu, zone.droite + kJeu, zone.bas + kJeu};
    return std::none_of(encres.begin(), encres.end(),
                        [&wide](const Etendue &ink) { return wide.Touche(ink); });
}

/// Moves words that are free up or down, `step` at a time, to just before the drawing: so nobody
/// takes them for those of the next one.
Etendue PresDuDessin(Etendue place, double step, const Etendue &boite,
                     const std::vector<Etendue> &encres) {
    for (;;) {
        const Etendue next = BoiteEn(place.gauche, place.haut + step, place.droite - place.gauche);
        if (next.haut < boite.haut || next.bas > boite.bas || !EstLibre(next, encres)) {
            return place;
        }
        place = next;
    }
}

/// The trailing edge leaves most room, so it comes first.
std::optional<Etendue> CoinLibre(const Etendue &boite, double width,
                                 const std::vector<Etendue> &encres) {
    constexpr double kPas = 0.25; // mm
    if (width > boite.droite - boite.gauche || kHauteur > boite.bas - boite.haut) {
        return std::nullopt;
    }
    struct Coin {
        double x, y, vers;
    };
    const double right = boite.droite - width;
    const double below = boite.bas - kHauteur;
    const std::array<Coin, 4> corners = {{{right, below, -kPas},
                                          {right, boite.haut, kPas},
                                          {boite.gauche, below, -kPas},
                                          {boite.gauche, boite.haut, kPas}}};
    for (const Coin &corner : corners) {
        const Etendue place = BoiteEn(corner.x, corner.y, width);
        if (EstLibre(place, encres)) {
            return PresDuDessin(place, corner.vers, boite, encres);
        }
    }
    return std::nullopt;
}

void EcritEtiquette(const std::string &words, const Metre &metre, Recording &trace) {
    const Etendue boite = metre.Tout();
    const std::string shown = Raccourci(words, std::max(boite.droite - boite.gauche, kPlusLong));
    const double width = MeasuredAdvance(shown, {"Arial", kTaille}) / kUnitsPerMm;
    const Etendue place = CoinLibre(boite, width, metre.encres)
                              .value_or(BoiteEn(boite.gauche, boite.bas + kJeu, width));
    trace.Font = {"Arial", kTaille};
    trace.ForeColor = 0;
    trace.CurrentX = place.gauche * kUnitsPerMm;
    trace.CurrentY = place.haut * kUnitsPerMm;
    trace.Print(shown);
}

void Dessine(RibModel &rib, const AppSettings &settings, const Messages &messages,
             Recording &trace) {
    const PartieGardee<Vue> view(rib);
    rib.Zoom = 1;
    PlotState plot = EtatAmorce(rib);
    plot.CordeEchelle = ToSingle(Wide(rib.corde) * kUnitsPerMm);
    DrawRib({trace, rib, settings, plot, messages});
}

} // namespace

std::unique_ptr<DessinEmpile> EnregistreDessin(RibModel &rib, const AppSettings &settings,
                                               const Messages &messages,
                                               const std::string &etiquette) {
    auto dessin = std::make_unique<DessinEmpile>();
    try {
        Dessine(rib, settings, messages, dessin->trace);
    } catch (Failure &failure) {
        failure.Precise(etiquette);
        throw;
    }
    Metre plain(rib.texte.InsTexte);
    Redraw(dessin->trace, plain);
    if (plain.texte.Vide() && !plain.dessin.Vide()) {
        EcritEtiquette(etiquette, plain, dessin->trace);
    }
    Metre whole;
    Redraw(dessin->trace, whole);
    dessin->boite = whole.Tout();
    dessin->encres = std::move(whole.encres);
    return dessin;
}

} // namespace loftwing
