#include "output/hors_feuille.h"

#include "base/number_text.h"
#include "output/etendue.h"

#include <algorithm>
#include <cmath>

namespace loftwing {

namespace {

/// A line on the very edge, or a margin of 0 before which the reference line begins a device unit
/// early, is not lost.
constexpr double kTolerance = 0.1; // mm
/// So that 63.0000001 isn't rounded up to 64.
constexpr double kBruit = 1E-6;

/// The surface of all sheets together, in mm on the first one; 0 where it isn't known.
struct Surface {
    double longueur = 0;
    double hauteur = 0;
};

Surface SurfaceDe(const MiseEnPage &page, const Papier &propre) {
    if (page.NumIndex == kPapierImprimante) {
        return {propre.tailleFeuille, propre.largeur};
    }
    const Papier paper = PapierDe(page);
    return {paper.tailleFeuille + (page.NbPages - 1) * Wide(page.PasPage),
            paper.largeur + (page.rangees.nombre - 1) * page.rangees.pas};
}

double AuDela(double mm) {
    return mm > kTolerance ? mm : 0.0;
}

Debords DebordsDe(const Etendue &extent, const Surface &surface) {
    if (extent.Vide()) {
        return {};
    }
    const bool known = surface.hauteur > 0;
    return {AuDela(-extent.haut), known ? AuDela(extent.bas - surface.hauteur) : 0.0,
            AuDela(-extent.gauche), known ? AuDela(extent.droite - surface.longueur) : 0.0};
}

HorsFeuille Compare(const Metre &metre, const Impression &run, const Surface &surface) {
    const MiseEnPage &page = run.settings.page;
    const Etendue all = metre.Tout();
    HorsFeuille found;
    found.tout = DebordsDe(all, surface);
    found.sans_texte = DebordsDe(metre.dessin, surface);
    found.hauteur = all.bas - all.haut;
    found.Yd_mini = LigneReference(page) - all.haut;
    found.avant = Wide(page.MargeHaut) - all.gauche;
    // The sheets are counted by the rib's length: what the drawing has behind it must be a margin.
    found.apres = all.droite - Wide(page.MargeHaut) - Wide(LongueurDe(run.rib).EnJeu());
    if (surface.hauteur > 0) {
        found.Yd_maxi = LigneReference(page) + surface.hauteur - all.bas;
        found.trop_haut = *found.Yd_maxi < found.Yd_mini;
    }
    return found;
}

/// One step of what a user types: a millimetre, or a sixteenth of an inch.
double PasTape(const std::string &Unite) {
    return Unite == kUniteIn ? 25.4 / 16 : 1.0;
}

double AuMoins(double mm, double step) {
    return std::ceil(mm / step - kBruit) * step;
}

double AuPlus(double mm, double step) {
    return std::floor(mm / step + kBruit) * step;
}

std::string Longueur(double mm, const std::string &Unite) {
    return DepuisMm(mm, Unite) + Unite;
}

/// "Left edge : 12.4 mm".
std::string LigneDebord(const std::string &edge, double mm, const std::string &Unite) {
    constexpr double kDixieme = 0.1;
    if (mm == 0) {
        return {};
    }
    const std::string length = Unite == kUniteIn
                                   ? DepuisMm(mm, Unite)
                                   : NumberText(std::round(AuMoins(mm, kDixieme) * 10) / 10);
    return edge + " : " + length + Unite + "\n";
}

/// Captions of fields end in a colon, options of the command line don't.
std::string SansDeuxPoints(const std::string &caption) {
    const std::size_t end = caption.find_last_not_of(" :");
    return end == std::string::npos ? std::string() : caption.substr(0, end + 1);
}

std::string AideHauteur(const HorsFeuille &hors, const NomsReglages &noms, const Saisie &saisie) {
    const Messages &messages = saisie.messages;
    const double step = PasTape(saisie.Unite);
    const double least = AuMoins(hors.Yd_mini, step);
    const std::string line = SansDeuxPoints(noms.Ydprint) + " : ";
    if (!hors.Yd_maxi) {
        return line + Longueur(least, saisie.Unite) + " " + messages.Text({"FrmPrint", "236"}) +
               "\n";
    }
    const double most = AuPlus(*hors.Yd_maxi, step);
    if (hors.trop_haut || most < least) {
        return SansDeuxPoints(noms.papier) + " : " + messages.Text({"FrmPrint", "238"}) + " " +
               Longueur(AuMoins(hors.hauteur, step), saisie.Unite) + "\n";
    }
    return line + Longueur(least, saisie.Unite) + " " + messages.Text({"FrmPrint", "237"}) + " " +
           Longueur(most, saisie.Unite) + "\n";
}

std::string AideMarge(const std::string &name, double mm, const Saisie &saisie) {
    return SansDeuxPoints(name) + " : " +
           Longueur(AuMoins(mm, PasTape(saisie.Unite)), saisie.Unite) + " " +
           saisie.messages.Text({"FrmPrint", "236"}) + "\n";
}

/// Whether an edge is crossed by the inserted text and nothing else.
bool ParLeTexteSeul(const HorsFeuille &hors) {
    const Debords &all = hors.tout;
    const Debords &rest = hors.sans_texte;
    return (all.haut > 0 && rest.haut == 0) || (all.bas > 0 && rest.bas == 0) ||
           (all.gauche > 0 && rest.gauche == 0) || (all.droite > 0 && rest.droite == 0);
}

} // namespace

std::optional<HorsFeuille> MesureHorsFeuille(const Impression &run, const Papier &propre) {
    Metre metre(run.rib.texte.InsTexte);
    PlaceFeuille(run, {});
    if (!run.plot_routine(metre)) {
        return std::nullopt;
    }
    if (metre.dessin.Vide() && metre.texte.Vide()) {
        return HorsFeuille{};
    }
    return Compare(metre, run, SurfaceDe(run.settings.page, propre));
}

std::string TexteHorsFeuille(const HorsFeuille &hors, const NomsReglages &noms,
                             const Saisie &saisie) {
    const Messages &messages = saisie.messages;
    const Debords &debords = hors.tout;
    std::string text = messages.Text({"FrmPrint", "230"}) + "\n";
    text += LigneDebord(messages.Text({"FrmPrint", "231"}), debords.haut, saisie.Unite);
    text += LigneDebord(messages.Text({"FrmPrint", "232"}), debords.bas, saisie.Unite);
    text += LigneDebord(messages.Text({"FrmPrint", "233"}), debords.gauche, saisie.Unite);
    text += LigneDebord(messages.Text({"FrmPrint", "234"}), debords.droite, saisie.Unite);
    text += "\n" + messages.Text({"FrmPrint", "235"}) + "\n";
    if (hors.sans_texte.haut > 0 || hors.sans_texte.bas > 0) {
        text += AideHauteur(hors, noms, saisie);
    }
    if (hors.sans_texte.gauche > 0) {
        text += AideMarge(noms.MargeHaut, hors.avant, saisie);
    }
    if (hors.sans_texte.droite > 0) {
        text += AideMarge(noms.MargeBas, hors.apres, saisie);
    }
    if (ParLeTexteSeul(hors)) {
        text += messages.Text({"FrmPrint", "239"}) + "\n";
    }
    return text;
}

} // namespace loftwing
