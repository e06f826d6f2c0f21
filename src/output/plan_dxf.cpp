// A building plan as DXF.

#include "base/text_encoding.h"
#include "output/dxf_r12.h"
#include "output/plan_ecrit.h"
#include "output/plan_formes.h"

namespace loftwing {

namespace {

/// Colours of the layers by the numbers of the format; 7 is black on paper and white on a dark
/// screen.
constexpr std::array<int, kCouchesPlan> kCouleurs = {7, 7, 210, 30, 180, 195, 7, 1, 8};

std::array<CalqueR12, kCouchesPlan> Calques() {
    std::array<CalqueR12, kCouchesPlan> calques{};
    for (std::size_t i = 0; i < calques.size(); ++i) {
        const auto couche = static_cast<CouchePlan>(i);
        const bool plein = StylePlan(couche) == LineStyle::solid;
        calques[i] = {NomCouche(couche), kCouleurs[i], plein ? kTraitPlein : kTraitAxe};
    }
    return calques;
}

void Trace(DxfText &dxf, const EchelleR12 &echelle, const TraitPlan &trait) {
    const std::string_view calque = NomCouche(trait.couche);
    const TraitEcrit ecrit =
        EcritTrait(trait, [&echelle](const PointMm &point) { return echelle.Ecrit(point); });
    if (ecrit.points.size() == 2) {
        LigneR12(dxf, calque, ecrit.points[0], ecrit.points[1]);
    } else if (!ecrit.points.empty()) {
        PolyligneR12(dxf, calque, ecrit.points, ecrit.ferme);
    }
}

void Trace(DxfText &dxf, const EchelleR12 &echelle, const TextePlan &texte) {
    constexpr std::array<AppuiDxf, 3> kAppuis = {AppuiDxf::gauche, AppuiDxf::milieu,
                                                 AppuiDxf::droite};
    if (SeVoit(texte)) {
        TexteR12(dxf, NomCouche(texte.couche),
                 {echelle.Place(DebutTextePlan(texte)), echelle.Longueur(texte.hauteur),
                  ToUtf8(texte.texte), kAppuis.at(static_cast<std::size_t>(texte.appui)),
                  echelle.Place(texte.place)});
    }
}

} // namespace

std::string EcritPlanDxf(const DessinPlan &dessin, const std::string &Unite) {
    const EchelleR12 echelle(Unite);
    const BoitePiece boite = EtenduePlan(dessin);
    const PointMm &bas = boite.bas_gauche;
    const PointMm &haut = boite.haut_droite;
    const auto calques = Calques();
    CadreR12 cadre{Unite, {echelle.Place(bas), echelle.Place(haut)}, calques};
    cadre.limites = echelle.Place({haut.x + kBordPlan, haut.y + kBordPlan});
    cadre.limites_bas = echelle.Place({bas.x - kBordPlan, bas.y - kBordPlan});
    return FichierR12(cadre, [&](DxfText &dxf) {
        for (const TraitPlan &trait : dessin.traits) {
            Trace(dxf, echelle, trait);
        }
        for (const TextePlan &texte : dessin.textes) {
            Trace(dxf, echelle, texte);
        }
    });
}

} // namespace loftwing
