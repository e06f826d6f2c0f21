/// A building plan as a drawing of lines and texts, each on the layer of what it shows. All forms
/// of a plan (screen, paper, PDF, SVG, DXF) are written from it, so that they show the same.
/// Lengths in mm, y up.
#pragma once

#include "output/piece.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace loftwing {

/// What a line or a text of a plan shows.
enum class CouchePlan {
    contour,  ///< leading and trailing edge, ends of a panel
    nervure,  ///< ribs as they stand on the board, their numbers
    longeron, ///< spars
    baguette, ///< stocks at the edges, the square of a V-notch
    coffrage, ///< edges of the sheeting
    trou,     ///< centre lines of holes
    face,     ///< the view from the front
    cote,     ///< dimension lines and their texts
    cadre     ///< title block and check line
};
inline constexpr int kCouchesPlan = 9;

/// Name of its DXF layer and of its group in an SVG, the same in every language: "OUTLINE", "RIBS",
/// "SPARS", "STOCKS", "SHEETING", "HOLES", "FRONT", "DIMENSIONS", "TITLE".
std::string_view NomCouche(CouchePlan couche);

/// A run of straight lines; a closed one leads back to its first point.
struct TraitPlan {
    CouchePlan couche = CouchePlan::contour;
    std::vector<PointMm> points;
    bool ferme = false;

    bool operator==(const TraitPlan &) const = default;
};

/// Which part of a text stands at its place.
enum class AppuiTexte { gauche, milieu, droite };

struct TextePlan {
    CouchePlan couche = CouchePlan::cote;
    PointMm place;      ///< on the line that the letters stand on
    double hauteur = 0; ///< of the capital letters
    std::string texte;  ///< UTF-8
    AppuiTexte appui = AppuiTexte::gauche;

    bool operator==(const TextePlan &) const = default;
};

struct DessinPlan {
    std::string titre;
    std::vector<TraitPlan> traits;
    std::vector<TextePlan> textes;
};

/// Whether a text has letters and a height.
bool SeVoit(const TextePlan &texte);
/// Size of a font whose capitals are so high, mm.
double TailleTextePlan(double hauteur);
/// Width of a text whose capitals are so high, mm, by the table of Arial's widths.
double LargeurTextePlan(const std::string &texte, double hauteur);
/// The left end of its base line.
PointMm DebutTextePlan(const TextePlan &texte);
/// The box around its letters, with what some of them have above capitals and below their line.
BoitePiece BoiteTextePlan(const TextePlan &texte);
/// The box around all lines and texts; all 0 where there is nothing. Failure 6 where a measure is
/// not finite.
BoitePiece EtenduePlan(const DessinPlan &dessin);
bool EstVide(const DessinPlan &dessin);

/// Adds the lines and texts of another drawing, moved.
void AjouteAuPlan(DessinPlan &ensemble, const DessinPlan &dessin, PointMm decalage);

/// Several drawings as one, each below the one before with its left edge under that one's. The
/// first stays where it is.
DessinPlan EnDessousPlan(const std::vector<DessinPlan> &dessins);

} // namespace loftwing
