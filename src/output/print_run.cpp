#include "output/print_run.h"

#include "base/number_text.h"
#include "output/page_entry.h"
#include "output/print_file.h"
#include "output/styles.h"
#include "output/view_plots.h"
#include "platform/busy_pointer.h"

namespace loftwing {

namespace {

constexpr double kBras = 5.0; // arms of a cross, mm
constexpr double kTailleTexte = 10.0;

void MetEchelle(const Impression &run) {
    run.plot.CordeEchelle = ToSingle(Wide(run.rib.corde) * kUnitsPerMm);
    run.rib.Zoom = 1;
}

void PrepareImprimante(const Impression &run, Printer &printer, const Papier &paper) {
    printer.SetOrientation(Orientation::landscape);
    printer.SetPaperSize(paper.largeur, paper.tailleFeuille);
    printer.Font.size = kTailleTexte;
    printer.CurrentX = 0;
    printer.CurrentY = 0;
    MetEchelle(run);
}

void PlaceOrigine(const Impression &run) {
    run.plot.OrigineX = ToSingle(Wide(run.settings.page.MargeHaut) * kUnitsPerMm);
    run.plot.OrigineY = ToSingle(Wide(run.settings.page.Ydprint) * kUnitsPerMm);
}

/// Shifts the drawing for sheet `i`. The margin is taken off in device units although it is in mm:
/// all sheets ever printed lie that much to the left, and so match each other.
void DecaleOrigine(const Impression &run, int i) {
    const MiseEnPage &page = run.settings.page;
    const double margin = Wide(page.MargeHaut);
    run.plot.OrigineX =
        ToSingle(margin * kUnitsPerMm - (i * Wide(page.PasPage) * kUnitsPerMm + margin));
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

/// One cross around (x, y), all in device units.
void Croix(PlotDevice &device, double x, double y, Colour colour) {
    const double arm = kBras * kUnitsPerMm;
    device.Line(x, y - arm, x, y + arm, colour);
    device.Line(x - arm, y, x + arm, y, colour);
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
        page.recouvrement = 0;
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

void PlaceFeuille(const Impression &run, int i) {
    MetEchelle(run);
    PlaceOrigine(run);
    if (run.settings.page.NumIndex != kPapierImprimante) {
        DecaleOrigine(run, i);
    }
}

PrintQuestion DemandeImprimante(const Impression &run) {
    const Papier &paper = PapierDe(run.settings.page);
    PrintQuestion question;
    question.document = run.nom;
    question.long_side_mm = paper.tailleFeuille;
    question.short_side_mm = paper.largeur;
    question.proposed_pdf = run.nom + ".pdf";
    question.pdf_title = TitreFichierImprime(run.messages);
    return question;
}

std::string ResumeFeuilles(const Impression &run) {
    const MiseEnPage &page = run.settings.page;
    MiseEnPage counted = page;
    if (page.NumIndex == kPapierImprimante) {
        counted.NbPages = 1;
    }
    return TextePages(counted, run.messages.language) + "\n" +
           std::string(Trim(NomFeuille(page.NumIndex, run.messages.language)));
}

FinImpression imprime1page(const Impression &run, Printer &printer) {
    return Conduit(run, printer, [&] {
        PlaceOrigine(run);
        PrepareImprimante(run, printer, Papiers()[kPapierImprimante]);
        return run.plot_routine(printer);
    });
}

FinImpression imprimeXpage(const Impression &run, Printer &printer) {
    return Conduit(run, printer, [&] {
        PlaceOrigine(run);
        PrepareImprimante(run, printer, PapierDe(run.settings.page));
        const int sheets = run.settings.page.NbPages;
        for (int i = 0; i < sheets; ++i) {
            DecaleOrigine(run, i);
            if (!run.plot_routine(printer)) {
                return false;
            }
            tracerepere(run, printer);
            if (i + 1 < sheets) {
                printer.NewPage();
            }
        }
        return true;
    });
}

FinImpression Imprime(const Impression &run, Printer &printer) {
    return run.settings.page.NumIndex == kPapierImprimante ? imprime1page(run, printer)
                                                           : imprimeXpage(run, printer);
}

void tracerepere(const Impression &run, PlotDevice &device) {
    const MiseEnPage &page = run.settings.page;
    if (page.NbPages == 1) {
        return;
    }
    const double left = Wide(page.recouvrement) / 2.0 * kUnitsPerMm;
    const double right = left + Wide(page.PasPage) * kUnitsPerMm;
    const double t = Wide(run.rib.corde) * run.rib.ExtradosMaxi * kUnitsPerMm;
    const double origin = Wide(run.plot.OrigineY);
    const double below = origin + t + kBras * kUnitsPerMm;
    const Colour colour = CouleurDe(run.settings, Element::axe);
    PrendStyleSeul(device, run.settings, Element::axe);
    Croix(device, right, origin - t, colour);
    Croix(device, right, below, colour);
    Croix(device, left, origin - t, colour);
    Croix(device, left, below, colour);
    RendStyle(device);
}

} // namespace loftwing
