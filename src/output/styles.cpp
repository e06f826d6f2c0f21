#include "output/styles.h"

namespace loftwing {

const std::array<DrawingElement, kElements> &DrawingElements() {
    static const std::array<DrawingElement, kElements> elements = {{
        {Element::profil, "coulprofil", 0, "lineprofil", 0, "profil", {"FrmLines", "5"}},
        {Element::coffrage,
         "coulcoffrage",
         9,
         "linecoffrage",
         0,
         "eplinecoffrage",
         {"FrmLines", "6"}},
        {Element::axe, "coulaxe", 12, "lineaxe", 3, nullptr, {"FrmLines", "7"}},
        {Element::longeron, "coulong", 13, "linelong", 0, "eplinelong", {"FrmLines", "8"}},
        {Element::ba, "coulba", 9, "lineba", 0, "eplineba", {"FrmLines", "9"}},
        {Element::bf, "coulbf", 9, "linebf", 0, "eplinebf", {"FrmLines", "10"}},
        {Element::trou, "coultrou", 5, "linetrou", 0, "eplinetrou", {"FrmLines", "11"}},
        {Element::rep, "coulrep", 12, "linerep", 0, "eplinerep", {"FrmLines", "12"}},
        {Element::bloc, "coulbloc", 1, "linebloc", 0, "eplinebloc", {"FrmLines", "13"}},
        {Element::profil1, "coulprofil1", 5, "lineprofil1", 0, nullptr, {"FrmLines", "15"}},
        {Element::profil2, "coulprofil2", 9, "lineprofil2", 0, nullptr, {"FrmLines", "16"}},
    }};
    return elements;
}

void ValeursDefautTraits(AppSettings &settings) {
    for (const DrawingElement &row : DrawingElements()) {
        settings.TraitDe(row.element) = {static_cast<std::int16_t>(row.colour),
                                         static_cast<std::int16_t>(row.style), 1};
    }
}

void PrendStyle(PlotDevice &device, const AppSettings &settings, Element element) {
    PrendStyleSeul(device, settings, element);
    device.DrawWidth = settings.TraitDe(element).epaisseur;
}

void PrendStyleSeul(PlotDevice &device, const AppSettings &settings, Element element) {
    device.DrawStyle = settings.TraitDe(element).style;
}

void RendStyle(PlotDevice &device) {
    device.DrawStyle = 0;
    device.DrawWidth = 1;
}

Colour CouleurDe(const AppSettings &settings, Element element) {
    return PaletteColour(settings.TraitDe(element).couleur);
}

} // namespace loftwing
