#include "programme/qt_cut_forms.h"

#include "base/text_encoding.h"
#include "output/qt_cut_pdf.h"
#include "output/view_screen.h"

#include <algorithm>

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
    const std::string lower = LowerAscii(extension);
    const auto &forms = FormesDecoupe();
    const auto form = std::find_if(forms.begin(), forms.end(), [&](const FormeDecoupe &each) {
        return each.extension == lower;
    });
    return form == forms.end() ? nullptr : &*form;
}

std::string EcritDecoupe(const Programme &programme, const FormeDecoupe &forme,
                         const std::vector<Piece> &pieces, AnneauxDxf anneaux) {
    return forme.Ecrit({EnDessous(pieces), NomDuDessin(programme.rib, programme.compare)},
                       {CouleursDe(programme.settings), programme.settings.Unite, anneaux});
}

} // namespace loftwing
