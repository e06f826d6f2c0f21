#include "programme/qt_export_forms.h"

#include "base/text_encoding.h"
#include "base/version.h"
#include "output/dxf.h"
#include "output/print_run.h"
#include "output/qt_export.h"
#include "output/sheeting.h"
#include "output/svg_writer.h"
#include "output/view_screen.h"
#include "persist/LireEcrire.h"
#include "platform/qt_plot_device.h"
#include "platform/qt_printer.h"

#include <algorithm>

namespace loftwing {

namespace {

/// The current view recorded for a file.
std::unique_ptr<Recording> PourFichier(Programme &programme, Exported &exported,
                                       Recording::Measure measure = MeasuredAdvance) {
    PlotState plot = EtatAmorce(programme.rib);
    return DessineVue(programme, plot, exported.failed, std::move(measure));
}

Exported AsSvg(Programme &programme, const ReglagePage &) {
    Exported exported;
    if (const auto drawing = PourFichier(programme, exported)) {
        exported.bytes = WriteSvg(*drawing, NomDuDessin(programme.rib, programme.compare));
    }
    return exported;
}

Exported AsPng(Programme &programme, const ReglagePage &) {
    Exported exported;
    if (const auto drawing = PourFichier(programme, exported, ScreenAdvance)) {
        exported.bytes = PngOf(*drawing);
    }
    return exported;
}

Exported AsPdf(Programme &programme, const ReglagePage &page) {
    const bool of_rib = RibVisible(programme.rib);
    if (of_rib && !StocksTiennent(programme.rib, programme.messages)) {
        return {};
    }
    PlotState plot = EtatAmorce(programme.rib);
    const Impression run = ImpressionDeVue(programme, plot);
    // A PDF has no printer whose paper could be meant.
    if (const auto end = PrepareImpression(programme, run, page, Papiers().front())) {
        return {std::nullopt, *end == FinImpression::trace_echec, std::nullopt};
    }
    std::string bytes;
    const auto printer = MakePdfPrinter(bytes, run.nom);
    const FinImpression end = ImprimeVue(run, *printer);
    if (end == FinImpression::imprime) {
        return {bytes, false, std::nullopt};
    }
    return {std::nullopt, end == FinImpression::trace_echec, std::nullopt};
}

/// A form of DXF shows what a plot has left in `plot`.
template <class Ecrit>
void EcritTrace(const Programme &programme, const PlotState &plot, const Ecrit &ecrit,
                Exported &exported) {
    exported.bytes = std::string();
    try {
        ecrit(DxfSource{programme.rib, plot, programme.settings.Unite}, *exported.bytes);
    } catch (const Failure &failure) {
        exported.rupture = failure;
    }
}

/// The interchange form is read by other people's macros and has always shown what the screen's
/// plots leave behind, at the screen's zoom. An inverted view has no such form.
Exported AsDxf(Programme &programme, const ReglagePage &) {
    Exported exported;
    if (programme.rib.AffHaut) {
        programme.messages.Inform(programme.Text({"filedxf", "1"}), kTitre);
        return exported;
    }
    Recording nowhere;
    const Affichage end = afficheVue(programme.TraceSur(nowhere), programme.compare);
    exported.failed = end == Affichage::echec;
    if (end == Affichage::dessine) {
        EcritTrace(programme, programme.plot, EcritDxf, exported);
    }
    return exported;
}

Exported AsDxfSimple(Programme &programme, const ReglagePage &) {
    Exported exported;
    PlotState plot = EtatAmorce(programme.rib);
    if (DessineVue(programme, plot, exported.failed)) {
        EcritTrace(
            programme, plot,
            [](const DxfSource &source, std::string &out) { out = EcritDxfSimple(source); },
            exported);
    }
    return exported;
}

Exported AsComposants(Programme &programme, const ReglagePage &) {
    return {EcritComposants(programme.rib, programme.settings.Unite), false, std::nullopt};
}

constexpr EntreeExport kEntreeDxf{"mnu_filedxf",           {"MenuFile", "5"}, " Main/Mnu_DXF",
                                  LngKey{"filedxf", "2"},  "RepDxf",          "FormeDxf",
                                  LngKey{"MenuFile", "5t"}};
constexpr EntreeExport kEntreePdf{"mnu_filepdf", {"MenuFile", "11"}, " Main/mnu_filepdf"};
constexpr EntreeExport kEntreeSvg{"mnu_filesvg", {"MenuFile", "12"}, " Main/mnu_filesvg"};

} // namespace

const std::vector<ExportForm> &ExportForms() {
    constexpr unsigned kLignes = kVueRib | kVueCouple; // DXF has no text to tell two airfoils apart
    static const std::vector<ExportForm> forms = {
        {"dxf", "DXF ", LngKey{"filedxf", "3"}, kLignes, false, &kEntreeDxf, AsDxf},
        {"dxf", "", LngKey{"filedxf", "4"}, kLignes, false, &kEntreeDxf, AsDxfSimple, "--dxf",
         "plain", "the clean form of DXF for cutters"},
        {"pdf", "PDF", std::nullopt, kToutesVues, true, &kEntreePdf, AsPdf},
        {"svg", "SVG", std::nullopt, kToutesVues, false, &kEntreeSvg, AsSvg},
        {"png", "PNG", std::nullopt, kToutesVues, true, nullptr, AsPng},
        {"lfw", "Loftwing", std::nullopt, kVueRib, false, nullptr, AsComposants}};
    return forms;
}

const ExportForm *FindExportForm(const std::string &extension, const std::string &variant) {
    const std::string lower = LowerAscii(extension);
    const auto &forms = ExportForms();
    const auto form = std::find_if(forms.begin(), forms.end(), [&](const ExportForm &each) {
        return each.extension == lower && each.variant == variant;
    });
    return form == forms.end() ? nullptr : &*form;
}

std::vector<const EntreeExport *> EntreesExport() {
    std::vector<const EntreeExport *> entrees;
    for (const ExportForm &form : ExportForms()) {
        const bool known = std::find(entrees.begin(), entrees.end(), form.entree) != entrees.end();
        if (form.entree != nullptr && !known) {
            entrees.push_back(form.entree);
        }
    }
    return entrees;
}

std::vector<const ExportForm *> FormesDe(const EntreeExport &entree) {
    std::vector<const ExportForm *> forms;
    for (const ExportForm &form : ExportForms()) {
        if (form.entree == &entree) {
            forms.push_back(&form);
        }
    }
    return forms;
}

unsigned VuesDe(const EntreeExport &entree) {
    unsigned views = 0;
    for (const ExportForm *form : FormesDe(entree)) {
        views |= form->vues;
    }
    return views;
}

std::string FiltreDe(const ExportForm &form, const Messages &messages) {
    return form.mots + (form.cle ? messages.Text(*form.cle) : std::string()) + " (*." +
           form.extension + ")";
}

} // namespace loftwing
