#include "programme/qt_cut_forms.h"

#include "output/qt_cut_pdf.h"

#include <algorithm>
#include <cctype>

namespace loftwing {

const std::vector<FormeDecoupe> &FormesDecoupe() {
    static const std::vector<FormeDecoupe> forms = {
        {"svg", "SVG", false,
         [](const DessinDecoupe &decoupe, const ReglageDecoupe &reglage) {
             return EcritDecoupeSvg(decoupe, reglage.couleurs);
         }},
        {"dxf", "DXF", false,
         [](const DessinDecoupe &decoupe, const ReglageDecoupe &reglage) {
             return EcritDecoupeDxf(decoupe, reglage.Unite, reglage.anneaux);
         }},
        {"pdf", "PDF", true, [](const DessinDecoupe &decoupe, const ReglageDecoupe &reglage) {
             return EcritDecoupePdf(decoupe, reglage.couleurs);
         }}};
    return forms;
}

const FormeDecoupe *TrouveFormeDecoupe(const std::string &extension) {
    std::string lower = extension;
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    const auto &forms = FormesDecoupe();
    const auto form = std::find_if(forms.begin(), forms.end(), [&](const FormeDecoupe &each) {
        return each.extension == lower;
    });
    return form == forms.end() ? nullptr : &*form;
}

} // namespace loftwing
