/// What of a drawing lies beyond the sheets that it is printed on, and what helps.
#pragma once

#include "output/print_run.h"

#include <optional>
#include <string>

namespace loftwing {

/// How far a drawing reaches beyond its sheets, in mm; 0 at an edge that it doesn't reach. Left is
/// the first sheet's, right the last one's edge: what a sheet between them loses stands on the
/// next.
struct Debords {
    double haut = 0;
    double bas = 0;
    double gauche = 0;
    double droite = 0;

    bool Aucun() const { return haut == 0 && bas == 0 && gauche == 0 && droite == 0; }
};

/// What there is to tell.
struct HorsFeuille {
    Debords tout;
    Debords sans_texte; ///< the same without the inserted text
    /// Where the reference line may stand from the sheet's top, mm. Without a most on paper of
    /// unknown size; none at all where the drawing is higher than the sheet.
    double Yd_mini = 0;
    std::optional<double> Yd_maxi;
    double hauteur = 0; ///< of the drawing, mm
    bool trop_haut = false;
    double avant = 0; ///< margins that the drawing wants, mm
    double apres = 0;
};

/// Measures the drawing of a run whose sheets have been decided about. `propre` is the paper that
/// the entry for the printer's own one stands for; of one without a size only the upper and the
/// left edge are known. Nothing when the plot failed, which it has reported. The run's plot state
/// is used up.
std::optional<HorsFeuille> MesureHorsFeuille(const Impression &run, const Papier &propre);

/// What the settings that help are called where the user finds them.
struct NomsReglages {
    std::string Ydprint;
    std::string MargeHaut;
    std::string MargeBas;
    std::string papier;
    std::string rangees; ///< sheets downwards
};

/// Says at which edges and by how much, and what helps.
std::string TexteHorsFeuille(const HorsFeuille &hors, const NomsReglages &noms,
                             const Saisie &saisie);

} // namespace loftwing
