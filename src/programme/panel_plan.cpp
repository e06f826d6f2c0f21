#include "programme/panel_plan.h"

#include "features/slot_rules.h"

#include <functional>
#include <optional>

namespace loftwing {

namespace {

constexpr double kSansLongueur = 1.5; // root chords

/// Where something stands in rib `numero`, from 1; nothing where it doesn't.
using Lieu = std::function<std::optional<double>(int numero)>;

class Traceur {
  public:
    Traceur(const Panneau &panneau, const PanneauFait &fait, const Saisie &saisie)
        : panneau_(panneau), fait_(fait), saisie_(saisie), elements_(Elements(panneau, saisie)) {}

    PlanPanneau plan;

    void Nervures(int premier);
    void Longerons();
    void Baguettes();

  private:
    const Panneau &panneau_;
    const PanneauFait &fait_;
    const Saisie &saisie_;
    const std::vector<ElementPanneau> elements_;

    int Nombre() const { return static_cast<int>(fait_.nervures.size()); }
    const PartiesRib &Rib(int numero) const { return At(fait_.nervures, numero - 1).rib; }
    double Rapport(int numero) const;
    std::optional<double> PlaceDe(const ElementPanneau &spar, int numero) const;
    void Ligne(std::vector<std::vector<PointMm>> &lines, const Lieu &lieu) const;
};

/// The ends' own isn't read from the set.
double Traceur::Rapport(int numero) const {
    const auto &ribs = fait_.jeu.nervures;
    if (numero == 1) {
        return 0;
    }
    return numero == static_cast<int>(ribs.size()) ? 1 : At(ribs, numero - 1).rapport;
}

void Traceur::Nervures(int premier) {
    for (int numero = 1; numero <= Nombre(); ++numero) {
        const double part = Rapport(numero);
        plan.nervures.push_back({plan.longueur * part,
                                 plan.cordes[0] + (plan.cordes[1] - plan.cordes[0]) * part,
                                 premier + numero - 1});
    }
}

std::optional<double> Traceur::PlaceDe(const ElementPanneau &spar, int numero) const {
    const PartiesRib &rib = Rib(numero);
    const auto slot = rib.ProfilCharge ? SlotDe(panneau_, elements_, spar, numero) : std::nullopt;
    if (!slot) {
        return std::nullopt;
    }
    const Longeron &record = At(rib.longeron, *slot);
    return Wide(PlaceDepuis(record.PosLongAfich, record.RefLong, rib.corde, saisie_));
}

/// A line for each run of ribs that have a place; one rib alone makes none.
void Traceur::Ligne(std::vector<std::vector<PointMm>> &lines, const Lieu &lieu) const {
    std::vector<PointMm> run;
    const auto end = [&] {
        if (run.size() > 1) {
            lines.push_back(run);
        }
        run.clear();
    };
    for (int numero = 1; numero <= Nombre(); ++numero) {
        if (const auto y = lieu(numero)) {
            run.push_back({plan.longueur * Rapport(numero), *y});
        } else {
            end();
        }
    }
    end();
}

void Traceur::Longerons() {
    for (const ElementPanneau &element : elements_) {
        if (element.genre == GenreElement::longeron) {
            Ligne(plan.longerons, [&](int numero) { return PlaceDe(element, numero); });
        }
    }
}

void Traceur::Baguettes() {
    Ligne(plan.baguettes, [this](int numero) -> std::optional<double> {
        const PartiesRib &rib = Rib(numero);
        const bool there = rib.ProfilCharge && rib.TypeBA == 1 && rib.EpBA > 0.0F;
        return there ? std::optional(Wide(rib.EpBA)) : std::nullopt;
    });
    Ligne(plan.baguettes, [this](int numero) -> std::optional<double> {
        const PartiesRib &rib = Rib(numero);
        const bool there = rib.ProfilCharge && rib.EpBF > 0.0F;
        return there ? std::optional(Wide(rib.corde) - Wide(rib.EpBF)) : std::nullopt;
    });
}

} // namespace

PlanPanneau FaitPlan(const Panneau &panneau, const PanneauFait &fait, double longueur, int premier,
                     const Saisie &saisie) {
    Traceur traceur(panneau, fait, saisie);
    PlanPanneau &plan = traceur.plan;
    plan.cordes = {Wide(panneau.bouts[0].corde), Wide(panneau.bouts[1].corde)};
    plan.longueur = longueur > 0 ? longueur : kSansLongueur * plan.cordes[0];
    traceur.Nervures(premier);
    traceur.Longerons();
    traceur.Baguettes();
    return std::move(traceur.plan);
}

} // namespace loftwing
