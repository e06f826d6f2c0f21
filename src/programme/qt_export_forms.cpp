#include "programme/qt_export_forms.h"

#include "output/print_run.h"
#include "output/qt_export.h"
#include "output/view_screen.h"
#include "persist/LireEcrire.h"
#include "platform/qt_plot_device.h"
#include "platform/qt_printer.h"
#include "programme/export.h"

#include <algorithm>
#include <cctype>

namespace loftwing {

namespace {

Exported AsSvg(Programme &programme, const std::function<void()> &) {
    Exported exported;
    const std::string text = ExporteSvg(programme, exported.failed);
    if (!text.empty()) {
        exported.bytes = text;
    }
    return exported;
}

Exported AsPng(Programme &programme, const std::function<void()> &) {
    Exported exported;
    const auto drawing = DessineVue(programme, exported.failed, ScreenAdvance);
    if (drawing) {
        exported.bytes = PngOf(*drawing);
    }
    return exported;
}

Exported AsPdf(Programme &programme, const std::function<void()> &set_up_page) {
    const bool of_rib = RibVisible(programme.rib);
    if (of_rib && !StocksTiennent(programme.rib, programme.messages)) {
        return {};
    }
    PlotState fresh;
    const Impression run = ImpressionDeVue(programme, fresh);
    if (!PrepareFeuilles(run, set_up_page)) {
        return {};
    }
    std::string bytes;
    const auto printer = MakePdfPrinter(bytes, run.nom);
    const FinImpression end = ImprimeVue(run, *printer);
    if (end == FinImpression::imprime) {
        return {bytes, false};
    }
    return {std::nullopt, end == FinImpression::trace_echec};
}

/// Plots the view as the screen does at 100 %, for the forms that show what the last plot left.
bool PlotFirst(Programme &programme, Exported &exported) {
    Recording recording;
    const Affichage end = afficheVue(programme.TraceSur(recording), programme.compare);
    exported.failed = end == Affichage::echec;
    return end == Affichage::dessine;
}

Exported AsDxf(Programme &programme, const std::function<void()> &) {
    Exported exported;
    std::string bytes;
    if (PlotFirst(programme, exported) && ExporteDxf(programme, bytes)) {
        exported.bytes = bytes;
    }
    return exported;
}

Exported AsDxfSimple(Programme &programme, const std::function<void()> &) {
    Exported exported;
    if (PlotFirst(programme, exported)) {
        exported.bytes = ExporteDxfSimple(programme);
    }
    return exported;
}

Exported AsComposants(Programme &programme, const std::function<void()> &) {
    return {EcritComposants(programme.rib), false};
}

} // namespace

const std::vector<ExportForm> &ExportForms() {
    static const std::vector<ExportForm> forms = {
        {"svg", "", "SVG (*.svg)", false, AsSvg},
        {"png", "", "PNG (*.png)", true, AsPng},
        {"pdf", "", "PDF (*.pdf)", true, AsPdf},
        {"dxf", "", "DXF (*.dxf)", false, AsDxf},
        {"dxf", "plain", "DXF (*.dxf)", false, AsDxfSimple},
        {"lfw", "", "Loftwing (*.lfw)", false, AsComposants}};
    return forms;
}

const ExportForm *FindExportForm(const std::string &extension, const std::string &variant) {
    std::string lower = extension;
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    const auto &forms = ExportForms();
    const auto form = std::find_if(forms.begin(), forms.end(), [&](const ExportForm &each) {
        return each.extension == lower && each.variant == variant;
    });
    return form == forms.end() ? nullptr : &*form;
}

} // namespace loftwing
