// A building plan on a surface that draws.

#include "output/etendue.h"
#include "output/plan_feuilles.h"
#include "output/rib_measures.h"
#include "output/styles.h"

#include <algorithm>

namespace loftwing {

namespace {

Etendue BoiteDuTrait(const TraitPlan &trait) {
    Etendue boite;
    for (const PointMm &point : trait.points) {
        boite.Prend(point.x, -point.y);
    }
    return boite;
}

Etendue BoiteDuTexte(const TextePlan &texte) {
    const BoitePiece boite = BoiteTextePlan(texte);
    return {boite.bas_gauche.x, -boite.haut_droite.y, boite.haut_droite.x, -boite.bas_gauche.y};
}

/// Draws with a point of the plan at the device's origin.
class Traceur {
  public:
    Traceur(PlotDevice &device, const CouleursPlan &couleurs, const PointMm &coin)
        : device_(device), couleurs_(couleurs), coin_(coin) {}

    void Trace(const TraitPlan &trait);
    void Trace(const TextePlan &texte);

  private:
    PlotDevice &device_;
    const CouleursPlan &couleurs_;
    PointMm coin_;

    double X(double mm) const { return (mm - coin_.x) * kUnitsPerMm; }
    double Y(double mm) const { return (coin_.y - mm) * kUnitsPerMm; }
    Colour Couleur(CouchePlan couche) const {
        return couleurs_.at(static_cast<std::size_t>(couche));
    }
};

/// Without points that are where the one before is.
std::vector<PointMm> PointsDistincts(const TraitPlan &trait) {
    std::vector<PointMm> points = trait.points;
    points.erase(std::unique(points.begin(), points.end()), points.end());
    if (trait.ferme && points.size() > 1 && points.back() == points.front()) {
        points.pop_back();
    }
    return points;
}

void Traceur::Trace(const TraitPlan &trait) {
    const Colour couleur = Couleur(trait.couche);
    std::vector<PointMm> points = PointsDistincts(trait);
    if (trait.ferme && points.size() > 2) {
        points.push_back(points.front());
    }
    device_.DrawStyle = static_cast<int>(StylePlan(trait.couche));
    for (std::size_t i = 1; i < points.size(); ++i) {
        const PointMm &de = points[i - 1];
        const PointMm &a = points[i];
        device_.Line(X(de.x), Y(de.y), X(a.x), Y(a.y), couleur);
    }
}

void Traceur::Trace(const TextePlan &texte) {
    const double taille = TailleTextePlan(texte.hauteur);
    const PointMm debut = DebutTextePlan(texte);
    device_.Font = {"Arial", taille * kUnitsPerMm / kUnitsPerPoint};
    device_.ForeColor = Couleur(texte.couche);
    device_.CurrentX = X(debut.x);
    device_.CurrentY = Y(debut.y + kAscent * taille);
    device_.Print(texte.texte);
}

} // namespace

// A run is drawn as a whole or not at all, so that its dashes are the same on every sheet.
void TracePlan(PlotDevice &device, const DessinPlan &dessin, const CouleursPlan &couleurs,
               const FenetrePlan &fenetre) {
    const Etendue vue{fenetre.coin.x, -fenetre.coin.y, fenetre.coin.x + fenetre.largeur,
                      -fenetre.coin.y + fenetre.hauteur};
    Traceur traceur(device, couleurs, fenetre.coin);
    RendStyle(device);
    for (const TraitPlan &trait : dessin.traits) {
        if (vue.Touche(BoiteDuTrait(trait))) {
            traceur.Trace(trait);
        }
    }
    RendStyle(device);
    for (const TextePlan &texte : dessin.textes) {
        if (SeVoit(texte) && vue.Touche(BoiteDuTexte(texte))) {
            traceur.Trace(texte);
        }
    }
}

} // namespace loftwing
