#include "programme/qt_cut_forms.h"

#include "base/file_name.h"
#include "base/text_encoding.h"
#include "output/qt_cut_pdf.h"
#include "output/view_screen.h"

#include <algorithm>

namespace loftwing {

namespace {

ReglageDecoupe ReglageDe(const Programme &programme, AnneauxDxf anneaux) {
    return {CouleursDe(programme.settings), programme.settings.Unite, anneaux};
}

/// "rib" of the first sheet is "rib-1"; sheet 0 is all of them.
std::string TitreDe(const std::string &path, std::size_t sheet) {
    return StemOf(path) + (sheet == 0 ? "" : "-" + std::to_string(sheet));
}

std::string Numerote(const std::string &path, std::size_t sheet) {
    return TextOf(PathOf(path).parent_path() / PathOf(TitreDe(path, sheet) + ExtensionOf(path)));
}

DessinDecoupe DessinDe(const Planche &planche, const std::string &titre) {
    DessinDecoupe page{{}, titre, PointMm{planche.format.Longueur(), planche.format.Travers()}};
    for (const PiecePlacee &placee : planche.pieces) {
        page.pieces.push_back(placee.piece);
    }
    return page;
}

} // namespace

const std::vector<FormeDecoupe> &FormesDecoupe() {
    static const std::vector<FormeDecoupe> forms = {
        {"svg", "SVG", false, false,
         [](const std::vector<DessinDecoupe> &pages, const ReglageDecoupe &reglage) {
             return EcritDecoupeSvg(pages.front(), reglage.couleurs);
         }},
        {"dxf", "DXF", false, false,
         [](const std::vector<DessinDecoupe> &pages, const ReglageDecoupe &reglage) {
             return EcritDecoupeDxf(pages.front(), reglage.Unite, reglage.anneaux);
         }},
        {"pdf", "PDF", true, true,
         [](const std::vector<DessinDecoupe> &pages, const ReglageDecoupe &reglage) {
             return EcritDecoupePdf(pages, reglage.couleurs);
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
    return forme.Ecrit({{EnDessous(pieces), NomDuDessin(programme.rib, programme.compare)}},
                       ReglageDe(programme, anneaux));
}

std::vector<FileToWrite> EcritPlanches(const Programme &programme, const FormeDecoupe &forme,
                                       const Imbrication &planches, AnneauxDxf anneaux,
                                       const std::string &path) {
    const ReglageDecoupe reglage = ReglageDe(programme, anneaux);
    std::vector<DessinDecoupe> pages;
    for (std::size_t i = 0; i < planches.size(); ++i) {
        pages.push_back(DessinDe(planches[i], TitreDe(path, forme.several_pages ? 0 : i + 1)));
    }
    if (forme.several_pages) {
        return {{path, forme.Ecrit(pages, reglage)}};
    }
    std::vector<FileToWrite> files;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        files.push_back({Numerote(path, i + 1), forme.Ecrit({pages[i]}, reglage)});
    }
    return files;
}

} // namespace loftwing
