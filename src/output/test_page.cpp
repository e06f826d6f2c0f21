#include "output/test_page.h"

#include "base/version.h"
#include "output/print_file.h"
#include "output/printer.h"
#include "output/styles.h"

#include <array>
#include <string>

namespace loftwing {

namespace {

constexpr double kRang = 4.0; // from one row to the next, in units of the drawing

constexpr double Units(double mm) {
    return mm * kUnitsPerMm;
}

void Ecrit(PlotDevice &device, double x, double y, const std::string &text) {
    device.CurrentX = x;
    device.CurrentY = y;
    device.Print(text);
}

/// Where the lines of a row lie: from `x`, each width from `from` to `to`, `below` its number.
struct Rangee {
    double x;
    double below;
    struct Stretch {
        double from;
        double to;
    };
    std::array<Stretch, 3> stretches;

    void Numero(PlotDevice &device, double y, int number) const {
        Ecrit(device, x - Units(5), y, std::to_string(number));
    }
    void Couleur(PlotDevice &device, double y, int number) const {
        Numero(device, y, number);
        for (int width = kEpaisseurMin; width <= kEpaisseurMax; ++width) {
            const Stretch &stretch = stretches[static_cast<std::size_t>(width - kEpaisseurMin)];
            device.DrawWidth = width;
            device.Line(x + stretch.from, y + below, x + stretch.to, y + below,
                        PaletteColour(number));
        }
    }
    void Style(PlotDevice &device, double y, int number) const {
        Numero(device, y, number);
        device.DrawStyle = number;
        device.Line(x, y + below, x + stretches.back().to, y + below, PaletteColour(0));
    }
};

/// Rows of all colours from `y` on, the words between, rows of all styles; gives the next free y.
double Rangees(PlotDevice &device, const Rangee &row, double y, const std::string &words) {
    for (int colour = 0; colour <= kCouleurMax; ++colour, y += Units(kRang)) {
        row.Couleur(device, y, colour);
    }
    device.DrawWidth = 1;
    Ecrit(device, row.x, y, words);
    y += Units(kRang);
    for (int style = 0; style <= kStyleMax; ++style, y += Units(kRang)) {
        row.Style(device, y, style);
    }
    device.DrawStyle = 0;
    return y;
}

/// Samples of text in the sizes that a label on a rib may have. Their words are the same in every
/// language.
void Tailles(PlotDevice &device, double x, double y) {
    constexpr double kRangTaille = 5.0; // mm
    struct Sample {
        double size;
        const char *text;
    };
    constexpr std::array<Sample, 6> samples = {{
        {10, "Taille 10 = Corde 200 mm or 8 in "},
        {9, "Taille 9 = Corde 200 or 8 in"},
        {8, "Taille 8 = Corde 200 mm or 8 in"},
        {7, "Taille 7 = Corde 200 mm or 8 in"},
        {6, "Taille 6 = Corde 200 or 8 in"},
        {5, "Taille 5 = Corde 200 mm or 8 in"},
    }};
    Ecrit(device, x, y, "Text size on View / Insert Text");
    for (const Sample &sample : samples) {
        y += Units(kRangTaille);
        device.Font.size = sample.size;
        Ecrit(device, x, y, sample.text);
    }
}

PrintQuestion DemandePageTest(const Messages &messages) {
    PrintQuestion question;
    question.document = messages.Text({"FrmLines", "19"});
    question.landscape = false;
    question.proposed_pdf = question.document + ".pdf";
    question.pdf_title = TitreFichierImprime(messages);
    return question;
}

void Imprime(Printer &printer, const LngIni &language) {
    try {
        printer.SetOrientation(Orientation::portrait);
        TracePageTest(printer, language);
        printer.EndDoc();
    } catch (const Failure &) {
        printer.Abort();
        throw;
    }
}

} // namespace

void TraceLegende(PlotDevice &device, const LngIni &language) {
    constexpr double kX = 7.0;
    constexpr double kY = 2.0;
    const Rangee row{Units(kX),
                     Units(1.6), // the middle of a number
                     {{{0, Units(10)}, {Units(11), Units(20)}, {Units(21), Units(30)}}}};
    device.Font.size = 8;
    Ecrit(device, row.x, Units(kY), language.LngText({"FrmLines", "17"}));
    Rangees(device, row, Units(kY + kRang), language.LngText({"FrmLines", "18"}));
}

void TracePageTest(PlotDevice &device, const LngIni &language) {
    constexpr double kTaille = 10.0;
    const double OrigineX = 1701.0;
    const double OrigineY = 1984.5;
    const Rangee row{OrigineX, Units(2), {{{0, 1417.5}, {1474.2, 2835.0}, {2891.7, 4252.5}}}};
    device.Font.size = kTaille;
    Ecrit(device, 0, 0, kVersion);
    Ecrit(device, OrigineX, OrigineY, "Epaisseur = 1     Epaisseur = 2   Epaisseur = 3");
    const double end =
        Rangees(device, row, OrigineY + Units(5), language.LngText({"FrmLines", "18"}));
    Tailles(device, OrigineX, end);
    device.Font.size = kTaille;
    device.DrawWidth = 1;
}

bool cmdImprtest(const Messages &messages) {
    std::string file;
    try {
        const auto printer = messages.platform.OpenPrinter(DemandePageTest(messages));
        if (!printer) {
            return false;
        }
        Imprime(*printer, messages.language);
        file = TexteFichierImprime(*printer, messages);
    } catch (const Failure &failure) {
        messages.ReportPlot(failure, " cmdImprtest");
        return false;
    }
    messages.Inform(file.empty() ? messages.Text({"FrmLines", "23"}) : file, kTitre);
    return true;
}

} // namespace loftwing
