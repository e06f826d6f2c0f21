/// Dimension lines of a building plan.
#pragma once

#include "output/plan_dessin.h"

#include <string>

namespace loftwing {

/// A length in texts of a plan: to a hundredth of a millimetre, in inches to a thousandth, without
/// fractions.
std::string LongueurPlan(double mm, const std::string &Unite);

/// An angle to a hundredth of a degree: "3.5°".
std::string Degres(double angle);

/// Draws dimensions on their layer. Places in mm of the drawing.
class TraceurCotes {
  public:
    explicit TraceurCotes(DessinPlan &dessin) : dessin_(dessin) {}

    /// The thin line that leads from a place to its dimension, and a little beyond.
    void Rappel(PointMm de, PointMm a);
    /// A level dimension with its text over the middle. One that has no room is written smaller,
    /// then left out: the list of parts has it.
    void EnLong(PointMm de, PointMm a, const std::string &texte);
    /// An upright dimension; its text stands beside the middle, outside of the drawing.
    void EnTravers(PointMm de, PointMm a, const std::string &texte);
    void Texte(PointMm place, const std::string &texte, AppuiTexte appui);

  private:
    DessinPlan &dessin_;

    void Ligne(PointMm de, PointMm a);
    void Fleche(PointMm pointe, PointMm vers);
};

} // namespace loftwing
