#include "output/plan_feuilles.h"

#include "base/failure.h"
#include "output/etendue.h"
#include "output/page_setup.h"
#include "output/recording.h"
#include "output/sheet_marks.h"
#include "output/stack_sheets.h"
#include "output/styles.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

/// Whole millimetres, as papers are counted in.
double CotePage(double longueur) {
    constexpr double kBruit = 1E-6; // so that 63.0000001 isn't rounded up to 64
    return std::ceil(longueur + 2 * kBordPlan - kBruit);
}

SheetSize PagePour(const DessinPlan &dessin) {
    const BoitePiece boite = EtenduePlan(dessin);
    return {CotePage(boite.haut_droite.x - boite.bas_gauche.x),
            CotePage(boite.haut_droite.y - boite.bas_gauche.y)};
}

/// `size`: as the sheets lie.
void PrendPapier(Printer &printer, const SheetSize &size) {
    printer.SetOrientation(size.width > size.height ? Orientation::landscape
                                                    : Orientation::portrait);
    printer.SetPaperSize(std::min(size.width, size.height), std::max(size.width, size.height));
}

[[noreturn]] void Refuse(const std::string &quoi) {
    throw MakeFailure(kInvalidProcedureCall, quoi);
}

/// The sheets of one drawing.
struct DessinEnFeuilles {
    const DessinPlan &dessin;
    QuadrillagePlan quadrillage;
    std::vector<FeuillePlan> feuilles;
};

/// What all sheets of a job have in common.
struct TravailPlan {
    const CouleursPlan &couleurs;
    const ReglageFeuillesPlan &reglage;
    const MotsFeuillesPlan &mots;
};

/// On which sides of a sheet others go on.
struct Voisines {
    bool gauche, droite, dessus, dessous;
};
Voisines VoisinesDe(const QuadrillagePlan &quadrillage, const FeuillePlan &feuille) {
    return {feuille.colonne > 0, feuille.colonne + 1 < quadrillage.colonnes, feuille.rangee > 0,
            feuille.rangee + 1 < quadrillage.rangees};
}

/// In the middle of the overlaps, at places that the sheets beside, above and below have too;
/// where there is no such sheet there is no cross.
void TraceCroisees(PlotDevice &device, const TravailPlan &travail,
                   const QuadrillagePlan &quadrillage, const Voisines &voisines) {
    const double avant = travail.reglage.marge + travail.reglage.recouvrement / 2;
    for (const int bas : {0, 1}) {
        for (const int droite : {0, 1}) {
            const bool a_cote = droite == 1 ? voisines.droite : voisines.gauche;
            const bool en_face = bas == 1 ? voisines.dessous : voisines.dessus;
            if (a_cote || en_face) {
                TraceCroisee(device, (avant + droite * quadrillage.pas_x) * kUnitsPerMm,
                             (avant + bas * quadrillage.pas_y) * kUnitsPerMm,
                             travail.couleurs[static_cast<std::size_t>(CouchePlan::cote)]);
            }
        }
    }
}

/// Where a sheet's check line may stand: where others go on, behind the crosses, which would take
/// every corner else.
FeuilleTemoin PlaceDuTemoin(const ReglageFeuillesPlan &reglage, const Voisines &voisines) {
    constexpr double kApresBras = 2.5; // a little more than a check line keeps from all ink
    FeuilleTemoin feuille =
        FeuilleAvecMarges(reglage.largeur, reglage.hauteur, reglage.marge, reglage.marge);
    const double retrait = reglage.marge + reglage.recouvrement / 2 + kBras + kApresBras;
    Etendue &utile = feuille.utile;
    utile.gauche = voisines.gauche ? std::max(utile.gauche, retrait) : utile.gauche;
    utile.haut = voisines.dessus ? std::max(utile.haut, retrait) : utile.haut;
    utile.droite =
        voisines.droite ? std::min(utile.droite, reglage.largeur - retrait) : utile.droite;
    utile.bas = voisines.dessous ? std::min(utile.bas, reglage.hauteur - retrait) : utile.bas;
    return feuille;
}

/// The check line with the sheet's number in its note, or the number alone.
void EcritReperes(Recording &trace, const TravailPlan &travail, const DessinPlan &dessin,
                  const FeuilleTemoin &feuille, const std::string &numero) {
    Metre metre;
    Redraw(trace, metre);
    const std::string &nom = dessin.titre.empty() ? travail.mots.nom : dessin.titre;
    const NoteTemoin note{travail.mots.consigne, nom, numero, travail.mots.Unite};
    if (const auto place = PlaceLibre(feuille, note, metre.encres)) {
        TraceTemoin(trace, *place, travail.mots.Unite);
    } else {
        EcritNumero(trace, numero, feuille.utile);
    }
}

std::vector<DessinEnFeuilles> Decoupe(const std::vector<DessinPlan> &dessins,
                                      const ReglageFeuillesPlan &reglage) {
    std::vector<DessinEnFeuilles> decoupes;
    for (const DessinPlan &dessin : dessins) {
        const std::optional<QuadrillagePlan> quadrillage = QuadrillageDe(dessin, reglage);
        if (!quadrillage) {
            Refuse(dessin.titre);
        }
        decoupes.push_back({dessin, *quadrillage, FeuillesDuPlan(dessin, reglage)});
    }
    return decoupes;
}

} // namespace

bool TientSurUnePage(const DessinPlan &dessin) {
    const SheetSize page = PagePour(dessin);
    return !EstVide(dessin) && std::max(page.width, page.height) <= kPapierMaxi;
}

void ImprimePlanEntier(Printer &printer, const std::vector<DessinPlan> &dessins,
                       const CouleursPlan &couleurs) {
    if (dessins.empty()) {
        Refuse({});
    }
    SheetSize page;
    for (const DessinPlan &dessin : dessins) {
        if (!TientSurUnePage(dessin)) {
            Refuse(dessin.titre);
        }
        const SheetSize its = PagePour(dessin);
        page = {std::max(page.width, its.width), std::max(page.height, its.height)};
    }
    PrendPapier(printer, page);
    for (const DessinPlan &dessin : dessins) {
        if (&dessin != &dessins.front()) {
            printer.NewPage();
        }
        const BoitePiece boite = EtenduePlan(dessin);
        const PointMm coin{boite.bas_gauche.x - kBordPlan, boite.haut_droite.y + kBordPlan};
        TracePlan(printer, dessin, couleurs, {coin, page.width, page.height});
    }
}

void ImprimePlanEnFeuilles(Printer &printer, const std::vector<DessinPlan> &dessins,
                           const CouleursPlan &couleurs, const ReglageFeuillesPlan &reglage,
                           const MotsFeuillesPlan &mots) {
    if (dessins.empty()) {
        Refuse({});
    }
    const std::vector<DessinEnFeuilles> decoupes = Decoupe(dessins, reglage);
    std::size_t total = 0;
    for (const DessinEnFeuilles &decoupe : decoupes) {
        total += decoupe.feuilles.size();
    }
    PrendPapier(printer, {reglage.largeur, reglage.hauteur});
    const TravailPlan travail{couleurs, reglage, mots};
    std::size_t numero = 0;
    int colonnes = 0; // of the drawings before: no two sheets of a job have one name
    for (const DessinEnFeuilles &decoupe : decoupes) {
        for (const FeuillePlan &feuille : decoupe.feuilles) {
            if (numero++ > 0) {
                printer.NewPage();
            }
            Recording trace;
            TracePlan(trace, decoupe.dessin, couleurs, feuille.fenetre);
            const Voisines voisines = VoisinesDe(decoupe.quadrillage, feuille);
            TraceCroisees(trace, travail, decoupe.quadrillage, voisines);
            EcritReperes(trace, travail, decoupe.dessin, PlaceDuTemoin(reglage, voisines),
                         std::to_string(numero) + "/" + std::to_string(total) + " " +
                             NomFeuillePlan(colonnes + feuille.colonne, feuille.rangee));
            Redraw(trace, printer);
        }
        colonnes += decoupe.quadrillage.colonnes;
    }
}

} // namespace loftwing
