// Which sheets a building plan takes.

#include "output/line_look.h"
#include "output/plan_feuilles.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

constexpr double kBruit = 1E-6; // so that nothing takes a sheet more for a digit too many
constexpr double kDemiTrait = kPenWidthsMm[0] / 2; // lines at the drawing's edge are this much over

/// The place for the drawing on a sheet.
double Utile(double cote, const ReglageFeuillesPlan &reglage) {
    return cote - 2 * reglage.marge;
}

double Combien(double longueur, double pas, double recouvrement) {
    return std::max(1.0, std::ceil((longueur + 2 * kDemiTrait - recouvrement - kBruit) / pas));
}

bool ReglageAdmis(const ReglageFeuillesPlan &reglage) {
    return std::isfinite(reglage.largeur) && std::isfinite(reglage.hauteur) && reglage.marge >= 0 &&
           reglage.recouvrement >= 0;
}

/// What a sheet shows within its margins, y up.
BoitePiece ZoneUtile(const FenetrePlan &fenetre, double marge) {
    const PointMm &coin = fenetre.coin;
    return {{coin.x + marge, coin.y - fenetre.hauteur + marge},
            {coin.x + fenetre.largeur - marge, coin.y - marge}};
}

/// The part of a line from share `entre` to share `sort` that is left of a border. `avance`: how
/// far the whole line goes towards it; `reste`: how far its start is away from it.
bool Borne(double avance, double reste, double &entre, double &sort) {
    if (avance == 0) {
        return reste >= 0;
    }
    const double la = reste / avance;
    if (avance > 0) {
        sort = std::min(sort, la);
    } else {
        entre = std::max(entre, la);
    }
    return entre <= sort;
}

bool Traverse(const BoitePiece &zone, const PointMm &de, const PointMm &a) {
    double entre = 0;
    double sort = 1;
    const double dx = a.x - de.x;
    const double dy = a.y - de.y;
    return Borne(dx, zone.haut_droite.x - de.x, entre, sort) &&
           Borne(-dx, de.x - zone.bas_gauche.x, entre, sort) &&
           Borne(dy, zone.haut_droite.y - de.y, entre, sort) &&
           Borne(-dy, de.y - zone.bas_gauche.y, entre, sort);
}

bool Traverse(const BoitePiece &zone, const TraitPlan &trait) {
    const std::vector<PointMm> &points = trait.points;
    for (std::size_t i = 1; i < points.size(); ++i) {
        if (Traverse(zone, points[i - 1], points[i])) {
            return true;
        }
    }
    return trait.ferme && points.size() > 2 && Traverse(zone, points.back(), points.front());
}

bool Touche(const BoitePiece &zone, const BoitePiece &autre) {
    return zone.bas_gauche.x <= autre.haut_droite.x && autre.bas_gauche.x <= zone.haut_droite.x &&
           zone.bas_gauche.y <= autre.haut_droite.y && autre.bas_gauche.y <= zone.haut_droite.y;
}

bool ADeLEncre(const DessinPlan &dessin, BoitePiece zone) {
    zone = {{zone.bas_gauche.x - kDemiTrait, zone.bas_gauche.y - kDemiTrait},
            {zone.haut_droite.x + kDemiTrait, zone.haut_droite.y + kDemiTrait}};
    const auto du_trait = [&zone](const TraitPlan &trait) { return Traverse(zone, trait); };
    const auto du_texte = [&zone](const TextePlan &texte) {
        return SeVoit(texte) && Touche(zone, BoiteTextePlan(texte));
    };
    return std::any_of(dessin.traits.begin(), dessin.traits.end(), du_trait) ||
           std::any_of(dessin.textes.begin(), dessin.textes.end(), du_texte);
}

} // namespace

std::optional<QuadrillagePlan> QuadrillageDe(const DessinPlan &dessin,
                                             const ReglageFeuillesPlan &reglage) {
    QuadrillagePlan quadrillage;
    quadrillage.pas_x = Utile(reglage.largeur, reglage) - reglage.recouvrement;
    quadrillage.pas_y = Utile(reglage.hauteur, reglage) - reglage.recouvrement;
    const BoitePiece boite = EtenduePlan(dessin);
    if (EstVide(dessin) || !ReglageAdmis(reglage) || !(quadrillage.pas_x > 0) ||
        !(quadrillage.pas_y > 0)) {
        return std::nullopt;
    }
    const double colonnes =
        Combien(boite.haut_droite.x - boite.bas_gauche.x, quadrillage.pas_x, reglage.recouvrement);
    const double rangees =
        Combien(boite.haut_droite.y - boite.bas_gauche.y, quadrillage.pas_y, reglage.recouvrement);
    if (!(colonnes * rangees <= kFeuillesPlanMaxi)) {
        return std::nullopt;
    }
    quadrillage.colonnes = static_cast<int>(colonnes);
    quadrillage.rangees = static_cast<int>(rangees);
    return quadrillage;
}

std::vector<FeuillePlan> FeuillesDuPlan(const DessinPlan &dessin,
                                        const ReglageFeuillesPlan &reglage) {
    std::vector<FeuillePlan> feuilles;
    const std::optional<QuadrillagePlan> quadrillage = QuadrillageDe(dessin, reglage);
    if (!quadrillage) {
        return feuilles;
    }
    const BoitePiece boite = EtenduePlan(dessin);
    const double bord = reglage.marge + kDemiTrait;
    for (int rangee = 0; rangee < quadrillage->rangees; ++rangee) {
        for (int colonne = 0; colonne < quadrillage->colonnes; ++colonne) {
            const PointMm coin{boite.bas_gauche.x - bord + colonne * quadrillage->pas_x,
                               boite.haut_droite.y + bord - rangee * quadrillage->pas_y};
            const FeuillePlan feuille{colonne, rangee, {coin, reglage.largeur, reglage.hauteur}};
            if (ADeLEncre(dessin, ZoneUtile(feuille.fenetre, reglage.marge))) {
                feuilles.push_back(feuille);
            }
        }
    }
    return feuilles;
}

std::string NomFeuillePlan(int colonne, int rangee) {
    constexpr int kLettres = 26;
    std::string nom;
    for (int reste = colonne + 1; reste > 0; reste = (reste - 1) / kLettres) {
        nom.insert(nom.begin(), static_cast<char>('A' + (reste - 1) % kLettres));
    }
    return nom + std::to_string(rangee + 1);
}

} // namespace loftwing
