#include "output/print_run.h"

#include "base/number_text.h"
#include "output/etendue.h"
#include "output/page_entry.h"
#include "output/print_file.h"
#include "output/sheet_marks.h"
#include "output/styles.h"
#include "output/temoins.h"
#include "output/view_plots.h"
#include "platform/busy_pointer.h"

#include <algorithm>

namespace loftwing {

namespace {

constexpr double kTailleTexte = 10.0;

void MetEchelle(const Impression &run) {
    run.plot.CordeEchelle = ToSingle(Wide(run.rib.corde) * kUnitsPerMm);
    run.rib.Zoom = 1;
}

/// Papers of the table, and that of the printer, are all turned; one's own may be a short piece of
/// a wide roll.
Orientation SensDe(const Papier &paper) {
    return paper.tailleFeuille < paper.largeur ? Orientation::portrait : Orientation::landscape;
}

void PrepareImprimante(const Impression &run, Printer &printer, const Papier &paper) {
    printer.SetOrientation(SensDe(paper));
    printer.SetPaperSize(paper.largeur, paper.tailleFeuille);
    printer.Font.size = kTailleTexte;
    printer.CurrentX = 0;
    printer.CurrentY = 0;
    MetEchelle(run);
}

void PlaceOrigine(const Impression &run) {
    run.plot.OrigineX = ToSingle(Wide(run.settings.page.MargeHaut) * kUnitsPerMm);
    run.plot.OrigineY = ToSingle(LigneReference(run.settings.page) * kUnitsPerMm);
}

/// Shifts the drawing for a sheet.
void DecaleOrigine(const Impression &run, const Feuille &feuille) {
    const OrigineFeuille origin = OrigineSur(run.settings.page, feuille);
    run.plot.OrigineX = origin.x;
    run.plot.OrigineY = origin.y;
}

/// Runs `job`; whatever goes wrong drops what was to be printed.
template <class Job>
FinImpression Conduit(const Impression &run, Printer &printer, Job job) {
    try {
        // Gone before the box of a failure: that one waits for the user.
        const Sablier sablier(run.messages.platform);
        if (!job()) {
            printer.Abort();
            return FinImpression::trace_echec;
        }
        printer.EndDoc();
        return FinImpression::imprime;
    } catch (const Failure &failure) {
        printer.Abort();
        run.messages.ReportPlot(failure, "");
        return FinImpression::echec;
    }
}

/// Sheet `i` of the run, from 0, row by row.
Feuille FeuilleNumero(const Impression &run, int i) {
    const int columns = run.settings.page.NbPages;
    return {i % columns, i / columns};
}

} // namespace

std::string QuestionImpression(const RibModel &rib, const Comparaison &compare,
                               const Messages &messages) {
    const std::string verb = messages.Text({"TextButton", "14"}) + " ";
    if (!CompareEnVue(rib, compare)) {
        return verb + rib.NomProfil;
    }
    const std::string word = messages.Text({"MainTolbar", "11"});
    return verb + word + " #1 :  " + compare.CompareNom1 + " / " + word +
           " #2 :  " + compare.CompareNom2;
}

namespace {

bool DecideFeuilles(const Impression &run, const std::function<bool()> &set_up_page) {
    MiseEnPage &page = run.settings.page;
    if (page.NumIndex == kPapierImprimante) {
        return true;
    }
    if (TientSurUneFeuille(page, LongueurDe(run.rib))) {
        SansRecouvrement(page);
        page.NbPages = 1;
        return true;
    }
    if (page.recouvrement == 0.0F || page.NbPages == 0) {
        if (!set_up_page()) {
            return false;
        }
        // The user may have chosen other paper.
        if (page.NumIndex == kPapierImprimante || TientSurUneFeuille(page, LongueurDe(run.rib))) {
            page.NbPages = 1;
            return true;
        }
    }
    if (CalculPasPage(page, LongueurDe(run.rib)) == Feuilles::sans_pas) {
        RefuseSansPas(run.messages);
        return false;
    }
    return true;
}

} // namespace

bool PrepareFeuilles(const Impression &run, const std::function<bool()> &set_up_page) {
    try {
        return DecideFeuilles(run, set_up_page);
    } catch (const Failure &failure) {
        run.messages.ReportPlot(failure, "");
        return false;
    }
}

// The margin is taken off in device units although it is in mm: all sheets ever printed lie that
// much to the left, and so match each other.
OrigineFeuille OrigineSur(const MiseEnPage &page, const Feuille &feuille) {
    const float y =
        ToSingle((LigneReference(page) - feuille.rangee * page.rangees.pas) * kUnitsPerMm);
    if (page.NumIndex == kPapierEntier) {
        return {ToSingle(page.entiere.avant * kUnitsPerMm), y};
    }
    const double margin = Wide(page.MargeHaut);
    return {ToSingle(margin * kUnitsPerMm -
                     (feuille.colonne * Wide(page.PasPage) * kUnitsPerMm + margin)),
            y};
}

void PlaceFeuille(const Impression &run, const Feuille &feuille) {
    MetEchelle(run);
    PlaceOrigine(run);
    if (run.settings.page.NumIndex != kPapierImprimante) {
        DecaleOrigine(run, feuille);
    }
}

Origine OrigineDe(const PlotState &plot) {
    return {Wide(plot.OrigineX) / kUnitsPerMm, Wide(plot.OrigineY) / kUnitsPerMm};
}

std::optional<Origine> MesureDessin(const Impression &run, PlotDevice &metre) {
    const PlotState kept = run.plot;
    PlaceFeuille(run, {});
    const Origine origin = OrigineDe(run.plot);
    const bool drawn = run.plot_routine(metre);
    run.plot = kept;
    return drawn ? std::optional(origin) : std::nullopt;
}

namespace {

/// How far the drawing reaches. Nothing when its plot failed.
std::optional<Portee> MesurePortee(const Impression &run) {
    Metre metre;
    const std::optional<Origine> origin = MesureDessin(run, metre);
    if (!origin) {
        return std::nullopt;
    }
    const Etendue all = metre.Tout();
    if (all.Vide()) {
        return Portee{};
    }
    return Portee{origin->x - all.gauche, all.droite - origin->x, origin->y - all.haut,
                  all.bas - origin->y};
}

bool DecideRangees(const Impression &run, const Portee &portee) {
    if (!CalculRangees(run.settings.page, portee)) {
        RefuseSansPas(run.messages);
        return false;
    }
    return true;
}

/// A page with room below the drawing for a check line.
bool PrendPageAvecTemoin(const Impression &run, Portee portee) {
    MiseEnPage &page = run.settings.page;
    const std::string &Unite = run.settings.Unite;
    const double before = Wide(page.MargeHaut);
    const double behind = Wide(page.MargeBas);
    portee.apres = std::max(portee.apres, LongueurPourTemoin(before, behind, Unite) - behind -
                                              std::max(before, portee.avant + before));
    return CalculPageEntiere(page, portee, HauteurPourTemoin(before, Unite));
}

bool DecidePageEntiere(const Impression &run, const Portee &portee) {
    MiseEnPage &page = run.settings.page;
    Portee wanted = portee;
    // The margin behind the rib counts from its end, also where nothing is drawn so far.
    wanted.apres = std::max(wanted.apres, Wide(LongueurDe(run.rib).EnJeu()));
    // A check line is worth a larger page, but no refusal.
    if ((page.temoin && PrendPageAvecTemoin(run, wanted)) || CalculPageEntiere(page, wanted, 0)) {
        return true;
    }
    RefusePageTropGrande(page.entiere, run.messages);
    return false;
}

} // namespace

std::optional<FinImpression> PrepareDessin(const Impression &run) {
    MiseEnPage &page = run.settings.page;
    page.rangees = {};
    const bool whole = page.NumIndex == kPapierEntier;
    if (!whole && !(page.en_rangees && PrendRangees(page))) {
        return std::nullopt;
    }
    try {
        const std::optional<Portee> portee = MesurePortee(run);
        if (!portee) {
            return FinImpression::trace_echec;
        }
        const bool decided = whole ? DecidePageEntiere(run, *portee) : DecideRangees(run, *portee);
        return decided ? std::nullopt : std::optional(FinImpression::annule);
    } catch (const Failure &failure) {
        run.messages.ReportPlot(failure, "");
        return FinImpression::annule;
    }
}

PrintQuestion DemandeImprimante(const Impression &run) {
    const Papier paper = PapierDe(run.settings.page);
    PrintQuestion question;
    question.landscape = SensDe(paper) == Orientation::landscape;
    question.document = run.nom;
    question.long_side_mm = std::max(paper.tailleFeuille, paper.largeur);
    question.short_side_mm = std::min(paper.tailleFeuille, paper.largeur);
    question.proposed_pdf = run.nom + ".pdf";
    question.pdf_title = TitreFichierImprime(run.messages);
    question.stretch = {run.settings.correction.x, run.settings.correction.y};
    return question;
}

std::string ResumeFeuilles(const Impression &run) {
    const MiseEnPage &page = run.settings.page;
    MiseEnPage counted = page;
    if (page.NumIndex == kPapierImprimante) {
        counted.NbPages = 1;
    }
    return TextePages(counted, run.messages.language) + "\n" +
           std::string(Trim(NomFeuille(page, page.NumIndex, run.messages.language)));
}

FinImpression imprime1page(const Impression &run, Printer &printer) {
    return Conduit(run, printer, [&] {
        PlaceOrigine(run);
        PrepareImprimante(run, printer, Papiers()[kPapierImprimante]);
        Temoins marks(run, printer, 1);
        const Origine origin = OrigineDe(run.plot);
        if (!marks.Mesure() || !run.plot_routine(printer)) {
            return false;
        }
        marks.Trace(1, origin);
        marks.Finit();
        return true;
    });
}

FinImpression imprimeXpage(const Impression &run, Printer &printer) {
    return Conduit(run, printer, [&] {
        PlaceOrigine(run);
        PrepareImprimante(run, printer, PapierDe(run.settings.page));
        const int sheets = NombreFeuilles(run.settings.page);
        Temoins marks(run, printer, sheets);
        if (!marks.Mesure()) {
            return false;
        }
        for (int i = 0; i < sheets; ++i) {
            DecaleOrigine(run, FeuilleNumero(run, i));
            const Origine origin = OrigineDe(run.plot);
            if (!run.plot_routine(printer)) {
                return false;
            }
            tracerepere(run, printer);
            marks.Trace(i + 1, origin);
            if (i + 1 < sheets) {
                printer.NewPage();
            }
        }
        marks.Finit();
        return true;
    });
}

FinImpression Imprime(const Impression &run, Printer &printer) {
    return run.settings.page.NumIndex == kPapierImprimante ? imprime1page(run, printer)
                                                           : imprimeXpage(run, printer);
}

namespace {

/// Where the crosses of a sheet stand: at both x on both y, in device units.
struct Croisees {
    double gauche, droite, haut, bas;
};

/// Beside the rib, which is between the upper and the lower ones.
Croisees CroiseesDeBande(const Impression &run) {
    const MiseEnPage &page = run.settings.page;
    const double left = Wide(page.recouvrement) / 2.0 * kUnitsPerMm;
    const double t = Wide(run.rib.corde) * run.rib.ExtradosMaxi * kUnitsPerMm;
    const double origin = Wide(run.plot.OrigineY);
    return {left, left + Wide(page.PasPage) * kUnitsPerMm, origin - t,
            origin + t + kBras * kUnitsPerMm};
}

/// In the middle of the overlaps, at a place that the sheets beside and below have too.
Croisees CroiseesDeRangee(const MiseEnPage &page) {
    const RangeesFeuilles &rows = page.rangees;
    double left = Wide(page.MargeHaut) + kBras;
    double right = PapierDe(page).tailleFeuille - Wide(page.MargeBas) - kBras;
    if (page.NbPages > 1) {
        left = Wide(page.recouvrement) / 2.0;
        right = left + Wide(page.PasPage);
    }
    const double top = rows.recouvrement / 2.0;
    return {left * kUnitsPerMm, right * kUnitsPerMm, top * kUnitsPerMm,
            (top + rows.pas) * kUnitsPerMm};
}

} // namespace

void tracerepere(const Impression &run, PlotDevice &device) {
    const MiseEnPage &page = run.settings.page;
    if (NombreFeuilles(page) == 1) {
        return;
    }
    const Croisees at = page.rangees.nombre > 1 ? CroiseesDeRangee(page) : CroiseesDeBande(run);
    const Colour colour = CouleurDe(run.settings, Element::axe);
    PrendStyleSeul(device, run.settings, Element::axe);
    TraceCroisee(device, at.droite, at.haut, colour);
    TraceCroisee(device, at.droite, at.bas, colour);
    TraceCroisee(device, at.gauche, at.haut, colour);
    TraceCroisee(device, at.gauche, at.bas, colour);
    RendStyle(device);
}

} // namespace loftwing
