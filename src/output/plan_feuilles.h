/// A building plan on paper at true scale: on one large page, or on sheets in both directions that
/// are laid together by their crosses.
#pragma once

#include "output/plan_formes.h"
#include "output/printer.h"

#include <optional>
#include <string>
#include <vector>

namespace loftwing {

/// Sheets to lay together. Lengths in mm.
struct ReglageFeuillesPlan {
    double largeur = 297; ///< of a sheet as it lies
    double hauteur = 210;
    double marge = 10;        ///< that the printer leaves white, on all four sides
    double recouvrement = 10; ///< of two neighbours, within the margins
};

/// How many sheets, and how far it is from one to the next.
struct QuadrillagePlan {
    int colonnes = 1;
    int rangees = 1;
    double pas_x = 0;
    double pas_y = 0;
};

/// Most sheets of one drawing.
inline constexpr int kFeuillesPlanMaxi = 400;

/// Nothing where margins and overlap leave no step, where there were more than kFeuillesPlanMaxi
/// sheets or where nothing is drawn.
std::optional<QuadrillagePlan> QuadrillageDe(const DessinPlan &dessin,
                                             const ReglageFeuillesPlan &reglage);

/// What is shown of a drawing, mm.
struct FenetrePlan {
    PointMm coin; ///< the upper left one
    double largeur = 0;
    double hauteur = 0;
};
/// Draws a plan with the point `coin` of it at the device's origin. What lies wholly beyond
/// `largeur` and `hauteur` mm right of and below that is left out. Dash-dotted centre lines.
void TracePlan(PlotDevice &device, const DessinPlan &dessin, const CouleursPlan &couleurs,
               const FenetrePlan &fenetre);

/// One sheet: its place, both counted from 0, and what it shows, its margins too.
struct FeuillePlan {
    int colonne = 0;
    int rangee = 0;
    FenetrePlan fenetre;
};
/// The sheets that something is drawn on, row by row from the upper left one; the others are not
/// printed, those beside them keep their names. Within their margins they show the whole drawing.
/// None where QuadrillageDe gives nothing.
std::vector<FeuillePlan> FeuillesDuPlan(const DessinPlan &dessin,
                                        const ReglageFeuillesPlan &reglage);
/// "B1": letters for the column, a number for the row.
std::string NomFeuillePlan(int colonne, int rangee);

/// Whether a drawing with its white has room on a page of kPapierMaxi (output/page_setup.h) either
/// way. Nothing drawn has none.
bool TientSurUnePage(const DessinPlan &dessin);

/// Words on the sheets.
struct MotsFeuillesPlan {
    std::string nom;      ///< of the plan, where a drawing has no title
    std::string consigne; ///< what to measure the check line for; its length is added
    std::string Unite;
};

/// One page a drawing, as large as the largest needs, in whole millimetres: all sheets of a job
/// have one size. Failure 5 where TientSurUnePage says no.
void ImprimePlanEntier(Printer &printer, const std::vector<DessinPlan> &dessins,
                       const CouleursPlan &couleurs);
/// The sheets of every drawing, as FeuillesDuPlan has them. All have crosses in the middle of the
/// overlaps with others, a check line where there is room and their number "2/12 B1": of all of the
/// job, column and row; the columns of a further drawing are lettered on, so that no name stands
/// twice. Failure 5 where QuadrillageDe gives none. Both refuse before they draw, and
/// refuse a job without drawings; neither ends it.
void ImprimePlanEnFeuilles(Printer &printer, const std::vector<DessinPlan> &dessins,
                           const CouleursPlan &couleurs, const ReglageFeuillesPlan &reglage,
                           const MotsFeuillesPlan &mots);

} // namespace loftwing
