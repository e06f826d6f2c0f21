// A building plan as SVG.

#include "base/failure.h"
#include "output/plan_ecrit.h"
#include "output/plan_formes.h"
#include "output/styles.h"
#include "output/svg_text.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

std::string Nombre(double mm) {
    constexpr int kDecimales = 4;
    return SvgNumber(mm, kDecimales);
}

PointEcrit Ecrit(const PointMm &point) {
    return {Nombre(point.x), Nombre(-point.y)};
}

std::string Chemin(const TraitPlan &trait, Colour couleur) {
    const TraitEcrit ecrit = EcritTrait(trait, Ecrit);
    if (ecrit.points.empty()) {
        return {};
    }
    std::string donnees;
    for (const PointEcrit &point : ecrit.points) {
        donnees += donnees.empty() ? "M " : " L ";
        donnees += point.x;
        donnees += ' ';
        donnees += point.y;
    }
    return "<path" + SvgAttribute("d", donnees + (ecrit.ferme ? " Z" : "")) +
           SvgStroke({couleur, 1, StylePlan(trait.couche)}) + "/>\n";
}

std::string Lettres(const TextePlan &texte, Colour couleur) {
    if (!SeVoit(texte)) {
        return {};
    }
    constexpr std::array<const char *, 3> kAppuis = {"", "middle", "end"};
    const PointEcrit place = Ecrit(texte.place);
    return SvgTexte({place.x, place.y, Nombre(TailleTextePlan(texte.hauteur)), couleur, texte.texte,
                     kAppuis.at(static_cast<std::size_t>(texte.appui))});
}

std::string Groupe(const DessinPlan &dessin, CouchePlan couche, Colour couleur) {
    std::string elements;
    for (const TraitPlan &trait : dessin.traits) {
        if (trait.couche == couche) {
            elements += Chemin(trait, couleur);
        }
    }
    for (const TextePlan &texte : dessin.textes) {
        if (texte.couche == couche) {
            elements += Lettres(texte, couleur);
        }
    }
    return SvgGroupe(std::string(NomCouche(couche)), elements);
}

void VerifieEtendue(const BoitePiece &boite) {
    const PointMm &bas = boite.bas_gauche;
    const PointMm &haut = boite.haut_droite;
    const double loin =
        std::max({std::abs(bas.x), std::abs(bas.y), std::abs(haut.x), std::abs(haut.y)});
    if (loin > kSvgMaxi) {
        throw MakeFailure(kOverflow);
    }
}

} // namespace

CouleursPlan CouleursDuPlan(const AppSettings &settings) {
    const auto de = [&settings](Element element) { return CouleurDe(settings, element); };
    const Colour contour = de(Element::profil);
    return {
        contour,           contour, de(Element::longeron), de(Element::ba), de(Element::coffrage),
        de(Element::trou), contour, de(Element::rep),      PaletteColour(0)};
}

LineStyle StylePlan(CouchePlan couche) {
    return couche == CouchePlan::trou ? LineStyle::dash_dot : LineStyle::solid;
}

std::string EcritPlanSvg(const DessinPlan &dessin, const CouleursPlan &couleurs) {
    const BoitePiece boite = EtenduePlan(dessin);
    VerifieEtendue(boite);
    const PointMm &bas = boite.bas_gauche;
    const PointMm &haut = boite.haut_droite;
    const PointEcrit coin = Ecrit({bas.x - kBordPlan, haut.y + kBordPlan});
    std::string groupes;
    for (int i = 0; i < kCouchesPlan; ++i) {
        groupes +=
            Groupe(dessin, static_cast<CouchePlan>(i), couleurs.at(static_cast<std::size_t>(i)));
    }
    return SvgFichier({coin.x + " " + coin.y, Nombre(haut.x - bas.x + 2 * kBordPlan),
                       Nombre(haut.y - bas.y + 2 * kBordPlan), dessin.titre},
                      groupes);
}

} // namespace loftwing
