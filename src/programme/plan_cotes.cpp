#include "programme/plan_cotes.h"

#include "base/number_text.h"
#include "core/units.h"

#include <cmath>

namespace loftwing {

namespace {

constexpr double kHauteur = 2.5;     // capitals, mm
constexpr double kMoindre = 1.4;     // smaller ones can't be read
constexpr double kAuDessus = 1;      // from the line to its text
constexpr double kAutour = 1;        // left free beside a text within its dimension
constexpr double kJour = 1;          // between a thing and the line that leads away from it
constexpr double kDepasse = 1.5;     // of that line beyond the dimension
constexpr double kPointe = 2;        // length of an arrow head
constexpr double kDemiPointe = 0.35; // half its width

} // namespace

std::string LongueurPlan(double mm, const std::string &Unite) {
    constexpr double kParts = 100;
    constexpr double kPartsIn = 1000;
    constexpr double kMmParPouce = 25.4;
    return NumberText(Unite == kUniteMm ? std::round(mm * kParts) / kParts
                                        : std::round(mm / kMmParPouce * kPartsIn) / kPartsIn);
}

std::string Degres(double angle) {
    constexpr double kParts = 100;
    const double rounded = std::round(angle * kParts) / kParts;
    return NumberText(rounded == 0 ? 0 : rounded) + "\u00b0";
}

void TraceurCotes::Ligne(PointMm de, PointMm a) {
    dessin_.traits.push_back({CouchePlan::cote, {de, a}, false});
}

/// An arrow head at one end of a line that leads to `vers`.
void TraceurCotes::Fleche(PointMm pointe, PointMm vers) {
    const double length = std::hypot(vers.x - pointe.x, vers.y - pointe.y);
    if (length < 2 * kPointe) {
        return;
    }
    const PointMm along{(vers.x - pointe.x) / length, (vers.y - pointe.y) / length};
    const auto barb = [&](double side) {
        return PointMm{pointe.x + along.x * kPointe - along.y * side * kDemiPointe,
                       pointe.y + along.y * kPointe + along.x * side * kDemiPointe};
    };
    dessin_.traits.push_back({CouchePlan::cote, {barb(-1), pointe, barb(1)}, false});
}

void TraceurCotes::Rappel(PointMm de, PointMm a) {
    const double length = std::hypot(a.x - de.x, a.y - de.y);
    if (length <= kJour) {
        return;
    }
    const PointMm along{(a.x - de.x) / length, (a.y - de.y) / length};
    Ligne({de.x + along.x * kJour, de.y + along.y * kJour},
          {a.x + along.x * kDepasse, a.y + along.y * kDepasse});
}

void TraceurCotes::Texte(PointMm place, const std::string &texte, AppuiTexte appui) {
    dessin_.textes.push_back({CouchePlan::cote, place, kHauteur, texte, appui});
}

void TraceurCotes::EnLong(PointMm de, PointMm a, const std::string &texte) {
    Ligne(de, a);
    Fleche(de, a);
    Fleche(a, de);
    const double room = std::abs(a.x - de.x) - kAutour;
    const double wanted = LargeurTextePlan(texte, kHauteur);
    const double height = wanted > room ? kHauteur * room / wanted : kHauteur;
    if (height >= kMoindre) {
        dessin_.textes.push_back({CouchePlan::cote,
                                  {(de.x + a.x) / 2, de.y + kAuDessus},
                                  height,
                                  texte,
                                  AppuiTexte::milieu});
    }
}

void TraceurCotes::EnTravers(PointMm de, PointMm a, const std::string &texte) {
    Ligne(de, a);
    Fleche(de, a);
    Fleche(a, de);
    const PointMm middle{de.x, (de.y + a.y) / 2 - kHauteur / 2};
    const BoitePiece box = EtenduePlan(dessin_);
    const bool left = middle.x < (box.bas_gauche.x + box.haut_droite.x) / 2;
    Texte({middle.x + (left ? -kAuDessus : kAuDessus), middle.y}, texte,
          left ? AppuiTexte::droite : AppuiTexte::gauche);
}

} // namespace loftwing
