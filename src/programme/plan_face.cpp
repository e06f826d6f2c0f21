// A wing from the front.

#include "core/stations.h"
#include "programme/plan_aile.h"
#include "programme/plan_cotes.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kMoitie = 0.5;
constexpr double kDepasseTip = 15; // of the board beyond the tip, mm
constexpr double kAuDessus = 6;    // from the wing to the angle of a joint

class VueDeFace {
  public:
    VueDeFace(const Aile &aile, CoteAile cote)
        : aile_(aile), sens_(cote == CoteAile::droite ? 1 : -1) {}

    DessinPlan dessin;

    void Panneaux();
    void Cotes(const Messages &messages, const std::string &Unite);

  private:
    const Aile &aile_;
    const double sens_;
    TraceurCotes cotes_{dessin};

    /// Where a panel begins, its reference line seen from the front, and the way it takes.
    struct Depart {
        double x = 0, z = 0, cosinus = 1, sinus = 0;
    };
    Depart DepartDe(std::size_t i) const;
    /// A place of a panel: `along` from its root's face, `up` from its reference line.
    PointMm Place(const Depart &from, double along, double up) const {
        return {sens_ * (from.x + along * from.cosinus - up * from.sinus),
                from.z + along * from.sinus + up * from.cosinus};
    }
    void Panneau(std::size_t i);
};

VueDeFace::Depart VueDeFace::DepartDe(std::size_t i) const {
    Depart from;
    for (std::size_t k = 0; k <= i && k < aile_.panneaux.size(); ++k) {
        if (k > 0) {
            from.x += aile_.panneaux[k - 1].longueur * from.cosinus;
            from.z += aile_.panneaux[k - 1].longueur * from.sinus;
        }
        const double angle = EnRadians(aile_.panneaux[k].reglage.diedre);
        from.cosinus = std::cos(angle);
        from.sinus = std::sin(angle);
    }
    return from;
}

void VueDeFace::Panneau(std::size_t i) {
    const PanneauAile &panel = aile_.panneaux[i];
    const Depart from = DepartDe(i);
    TraitPlan upper{CouchePlan::face, {}, false};
    TraitPlan lower = upper;
    for (const NervureAile &rib : panel.nervures) {
        const double half = rib.epaisseur * kMoitie;
        const double left = rib.x - panel.x - half;
        const double right = left + rib.epaisseur;
        const std::vector<PointMm> corners = {
            Place(from, left, rib.bas), Place(from, right, rib.bas), Place(from, right, rib.haut),
            Place(from, left, rib.haut)};
        if (half > 0) {
            dessin.traits.push_back({CouchePlan::face, corners, true});
        } else {
            dessin.traits.push_back({CouchePlan::face, {corners[0], corners[3]}, false});
        }
        upper.points.insert(upper.points.end(), {corners[3], corners[2]});
        lower.points.insert(lower.points.end(), {corners[0], corners[1]});
    }
    dessin.traits.push_back(std::move(upper));
    dessin.traits.push_back(std::move(lower));
    dessin.traits.push_back(
        {CouchePlan::face, {Place(from, 0, 0), Place(from, panel.longueur, 0)}, false});
}

void VueDeFace::Panneaux() {
    for (std::size_t i = 0; i < aile_.panneaux.size(); ++i) {
        Panneau(i);
    }
}

/// The height under the tip over a level line through the root, and the angles.
void VueDeFace::Cotes(const Messages &messages, const std::string &Unite) {
    const std::size_t last = aile_.panneaux.size() - 1;
    const PointMm tip = Place(DepartDe(last), aile_.panneaux[last].longueur, 0);
    const double x = tip.x + sens_ * kDepasseTip;
    dessin.traits.push_back({CouchePlan::cote, {{0, 0}, {x, 0}}, false});
    for (std::size_t i = 0; i <= last; ++i) {
        const PanneauAile &panel = aile_.panneaux[i];
        const Depart from = DepartDe(i);
        const double angle = AngleDeJoint(aile_, i);
        if (angle != 0) {
            const PointMm root = Place(from, 0, panel.nervures.front().haut + kAuDessus);
            const std::string words =
                i == 0 ? messages.Text({"Plan", "18"}) : messages.Text({"Plan", "20"});
            cotes_.Texte(root, words + " " + Degres(angle),
                         i > 0       ? AppuiTexte::milieu
                         : sens_ > 0 ? AppuiTexte::gauche
                                     : AppuiTexte::droite);
        }
    }
    if (tip.y != 0) {
        cotes_.Rappel(tip, {x, tip.y});
        cotes_.EnTravers({x, 0}, {x, tip.y}, LongueurPlan(tip.y, Unite));
    }
}

} // namespace

DessinPlan DessineFace(const Aile &aile, CoteAile cote, const Messages &messages,
                       const std::string &Unite) {
    VueDeFace view(aile, cote);
    view.dessin.titre = aile.nom;
    if (!aile.panneaux.empty()) {
        view.Panneaux();
        view.Cotes(messages, Unite);
    }
    return std::move(view.dessin);
}

} // namespace loftwing
