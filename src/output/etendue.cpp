#include "output/etendue.h"

#include "output/recording.h"
#include "output/rib_measures.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

void Etendue::Prend(double x, double y) {
    gauche = std::min(gauche, x);
    droite = std::max(droite, x);
    haut = std::min(haut, y);
    bas = std::max(bas, y);
}

void Etendue::Prend(const Etendue &other) {
    gauche = std::min(gauche, other.gauche);
    droite = std::max(droite, other.droite);
    haut = std::min(haut, other.haut);
    bas = std::max(bas, other.bas);
}

bool Etendue::Touche(const Etendue &other) const {
    return gauche <= other.droite && other.gauche <= droite && haut <= other.bas &&
           other.haut <= bas;
}

namespace {

/// The box of two opposite corners given in device units.
Etendue Boite(double x1, double y1, double x2, double y2) {
    Etendue box;
    box.Prend(x1 / kUnitsPerMm, y1 / kUnitsPerMm);
    box.Prend(x2 / kUnitsPerMm, y2 / kUnitsPerMm);
    return box;
}

} // namespace

Etendue Metre::Tout() const {
    Etendue all = dessin;
    all.Prend(texte);
    return all;
}

void Metre::Segment(double x1, double y1, double x2, double y2, const Pen & /*pen*/) {
    constexpr double kMorceau = 5.0; // mm
    constexpr double kMorceaux = 2000;
    dessin.Prend(Boite(x1, y1, x2, y2));
    const double extent = std::min(std::abs(x2 - x1), std::abs(y2 - y1)) / kUnitsPerMm;
    const double pieces = std::clamp(std::ceil(extent / kMorceau), 1.0, kMorceaux);
    const double dx = (x2 - x1) / pieces;
    const double dy = (y2 - y1) / pieces;
    for (double i = 0; i < pieces; ++i) {
        encres.push_back(Boite(x1 + i * dx, y1 + i * dy, x1 + (i + 1) * dx, y1 + (i + 1) * dy));
    }
}

void Metre::CircleOutline(double x, double y, double radius, const Pen & /*pen*/) {
    encres.push_back(Boite(x - radius, y - radius, x + radius, y + radius));
    dessin.Prend(encres.back());
}

double Metre::Text(double x, double y, const std::string &text, const TextFont &font,
                   Colour /*colour*/) {
    const double advance = MeasuredAdvance(text, font);
    encres.push_back(Boite(x, y, x + advance, y + kLigneDeTexte * font.size * kUnitsPerPoint));
    (!insere_.empty() && text == insere_ ? texte : dessin).Prend(encres.back());
    return advance;
}

} // namespace loftwing
