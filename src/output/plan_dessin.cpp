#include "output/plan_dessin.h"

#include "base/failure.h"
#include "output/recording.h"
#include "output/rib_measures.h"

#include <algorithm>

namespace loftwing {

namespace {

constexpr double kEntreDessins = 10; // white between a drawing and the one below it, mm

constexpr std::array<std::string_view, kCouchesPlan> kNoms = {
    "OUTLINE", "RIBS", "SPARS", "STOCKS", "SHEETING", "HOLES", "FRONT", "DIMENSIONS", "TITLE"};

/// A box that grows.
class Boite {
  public:
    void Prend(double x, double y) {
        const PointMm point{Finite(x), Finite(y)};
        if (vide_) {
            boite_ = {point, point};
            vide_ = false;
            return;
        }
        boite_.bas_gauche = {std::min(boite_.bas_gauche.x, point.x),
                             std::min(boite_.bas_gauche.y, point.y)};
        boite_.haut_droite = {std::max(boite_.haut_droite.x, point.x),
                              std::max(boite_.haut_droite.y, point.y)};
    }
    const BoitePiece &Tout() const { return boite_; }

  private:
    BoitePiece boite_;
    bool vide_ = true;
};

} // namespace

std::string_view NomCouche(CouchePlan couche) {
    return At(kNoms, static_cast<long>(couche));
}

double TailleTextePlan(double hauteur) {
    return hauteur / kCapitales;
}

double LargeurTextePlan(const std::string &texte, double hauteur) {
    const double points = TailleTextePlan(hauteur) * kUnitsPerMm / kUnitsPerPoint;
    return MeasuredAdvance(texte, {"Arial", points}) / kUnitsPerMm;
}

PointMm DebutTextePlan(const TextePlan &texte) {
    const double largeur = LargeurTextePlan(texte.texte, texte.hauteur);
    switch (texte.appui) {
    case AppuiTexte::milieu:
        return {texte.place.x - largeur / 2, texte.place.y};
    case AppuiTexte::droite:
        return {texte.place.x - largeur, texte.place.y};
    case AppuiTexte::gauche:
        break;
    }
    return texte.place;
}

bool SeVoit(const TextePlan &texte) {
    return !texte.texte.empty() && Finite(texte.hauteur) > 0;
}

BoitePiece BoiteTextePlan(const TextePlan &texte) {
    const PointMm debut = DebutTextePlan(texte);
    const double taille = TailleTextePlan(texte.hauteur);
    const double haut = debut.y + kAscent * taille;
    return {{debut.x, haut - kLigneDeTexte * taille},
            {debut.x + LargeurTextePlan(texte.texte, texte.hauteur), haut}};
}

BoitePiece EtenduePlan(const DessinPlan &dessin) {
    Boite boite;
    for (const TraitPlan &trait : dessin.traits) {
        for (const PointMm &point : trait.points) {
            boite.Prend(point.x, point.y);
        }
    }
    for (const TextePlan &texte : dessin.textes) {
        if (SeVoit(texte)) {
            const BoitePiece autour = BoiteTextePlan(texte);
            boite.Prend(autour.bas_gauche.x, autour.bas_gauche.y);
            boite.Prend(autour.haut_droite.x, autour.haut_droite.y);
        }
    }
    return boite.Tout();
}

bool EstVide(const DessinPlan &dessin) {
    const auto sans_point = [](const TraitPlan &trait) { return trait.points.empty(); };
    return std::all_of(dessin.traits.begin(), dessin.traits.end(), sans_point) &&
           std::none_of(dessin.textes.begin(), dessin.textes.end(), SeVoit);
}

void AjouteAuPlan(DessinPlan &ensemble, const DessinPlan &dessin, PointMm decalage) {
    const auto moved = [&decalage](const PointMm &point) {
        return PointMm{point.x + decalage.x, point.y + decalage.y};
    };
    for (TraitPlan trait : dessin.traits) {
        std::transform(trait.points.begin(), trait.points.end(), trait.points.begin(), moved);
        ensemble.traits.push_back(std::move(trait));
    }
    for (TextePlan texte : dessin.textes) {
        texte.place = moved(texte.place);
        ensemble.textes.push_back(std::move(texte));
    }
}

DessinPlan EnDessousPlan(const std::vector<DessinPlan> &dessins) {
    DessinPlan ensemble;
    for (const DessinPlan &dessin : dessins) {
        PointMm decalage;
        if (!EstVide(ensemble) && !EstVide(dessin)) {
            const BoitePiece above = EtenduePlan(ensemble);
            const BoitePiece below = EtenduePlan(dessin);
            decalage = {above.bas_gauche.x - below.bas_gauche.x,
                        above.bas_gauche.y - kEntreDessins - below.haut_droite.y};
        }
        if (ensemble.titre.empty()) {
            ensemble.titre = dessin.titre;
        }
        AjouteAuPlan(ensemble, dessin, decalage);
    }
    return ensemble;
}

} // namespace loftwing
