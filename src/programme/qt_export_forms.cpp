#include "programme/qt_export_forms.h"

#include "output/print_run.h"
#include "output/qt_export.h"
#include "output/screen_plot.h"
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
    const auto drawing = DessineRib(programme, exported.failed, ScreenAdvance);
    if (drawing) {
        exported.bytes = PngOf(*drawing);
    }
    return exported;
}

Exported AsPdf(Programme &programme, const std::function<void()> &set_up_page) {
    if (!StocksTiennent(programme.rib, programme.messages)) {
        return {};
    }
    PlotState fresh;
    const Impression run = ImpressionDuRib(programme, fresh);
    if (!PrepareFeuilles(run, set_up_page)) {
        return {};
    }
    std::string bytes;
    const auto printer = MakePdfPrinter(bytes, programme.rib.NomProfil);
    const FinImpression end = Imprime(run, *printer);
    if (end == FinImpression::imprime) {
        return {bytes, false};
    }
    return {std::nullopt, end == FinImpression::trace_echec};
}

} // namespace

const std::vector<ExportForm> &ExportForms() {
    static const std::vector<ExportForm> forms = {{"svg", "SVG (*.svg)", false, AsSvg},
                                                  {"png", "PNG (*.png)", true, AsPng},
                                                  {"pdf", "PDF (*.pdf)", true, AsPdf}};
    return forms;
}

const ExportForm *FindExportForm(const std::string &extension) {
    std::string lower = extension;
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    const auto &forms = ExportForms();
    const auto form = std::find_if(forms.begin(), forms.end(),
                                   [&](const ExportForm &each) { return each.extension == lower; });
    return form == forms.end() ? nullptr : &*form;
}

std::string ExportExtensions() {
    std::string names;
    for (const ExportForm &form : ExportForms()) {
        names += (names.empty() ? "" : ", ") + form.extension;
    }
    return names;
}

} // namespace loftwing
