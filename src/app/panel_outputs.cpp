#include "app/panel_outputs.h"

#include "app/cut_pieces.h"
#include "app/cut_sheets.h"
#include "app/sheet_options.h"
#include "app/toolkit.h"
#include "app/typed_value.h"
#include "base/text_encoding.h"
#include "features/talon.h"
#include "programme/export.h"
#include "programme/qt_stack_pdf.h"

#include <filesystem>
#include <memory>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

constexpr const char *kDrawings = "--drawings";

std::variant<Imbrication, RefusPlanche> Nested(const PanneauFait &made, const SheetWish &wish) {
    std::size_t count = 0;
    for (const NervureFaite &nervure : made.nervures) {
        count += nervure.pieces.size();
    }
    if (count * static_cast<std::size_t>(wish.copies) > kPiecesMaxi) {
        return RefusPlanche{RefusDePlanche::trop_de_pieces}; // before there are so many
    }
    return Imbrique(PiecesDuPanneau(made, wish.copies, wish.mirror), wish.reglage);
}

} // namespace

std::vector<OptionRule> PanelOutputOptions() {
    std::vector<OptionRule> rules = SheetOptions();
    const std::vector<OptionRule> own = {
        {"--to", "EXT", "form of the sheets: svg (default), dxf or pdf", false, 1, CutExtensions()},
        {"--kerf", "LENGTH", "width of the cut: outlines move outward, holes inward by half of it"},
        {"--no-marks", nullptr, "leave out all that is drawn on the wood"},
        {"--polylines", nullptr, "DXF with closed polylines instead of lines"},
        {kDrawings, "FILE.pdf", "drawings of all ribs on as few pages as they need"}};
    rules.insert(rules.end(), own.begin(), own.end());
    return rules;
}

DemandePanneau PanelDemandOf(const Arguments &arguments, const Programme &programme) {
    DemandePanneau demand;
    if (arguments.Has("--kerf")) {
        demand.piece.saignee = LengthMm(arguments.Value("--kerf"), "--kerf", programme);
    }
    const bool marks = !arguments.Has("--no-marks");
    demand.piece.reference = demand.piece.stations = demand.piece.axes = marks;
    demand.piece.etiquette = demand.piece.talon = marks;
    demand.deux_ailes = arguments.Has("--mirror");
    return demand;
}

std::optional<PanelFiles> PanelSheets(const Arguments &arguments, const Programme &programme,
                                      const PanneauFait &made, const std::string &folder) {
    if (!WantsSheets(arguments)) {
        return PanelFiles{};
    }
    const FormeDecoupe &form = CutFormOf(arguments.Value("--to", "svg"));
    const Toolkit toolkit(form.needs_toolkit);
    const SheetWish wish = SheetWishOf(arguments, programme);
    const auto sheets = ToldIfRefused(programme, Nested(made, wish));
    if (!sheets) {
        return std::nullopt;
    }
    PanelFiles out;
    out.files = EcritPlanches(programme, form, *sheets, RingsOf(arguments),
                              folder + "sheet." + form.extension);
    for (std::size_t i = 0; i < sheets->size(); ++i) {
        out.lines.push_back(LineOfSheet((*sheets)[i], i + 1, programme.settings.Unite));
    }
    return out;
}

std::optional<PanelFiles> PanelDrawings(const Arguments &arguments, Programme &programme,
                                        const PanneauFait &made, int premier) {
    if (!arguments.Has(kDrawings)) {
        return PanelFiles{};
    }
    const std::string path = arguments.Value(kDrawings);
    const Toolkit toolkit(true);
    const ReglagePage page = PageAsTyped(programme);
    DemandePile demand{{},
                       programme.settings,
                       programme.messages,
                       ToUtf8(fs::path(path).stem().string()),
                       DateDuJour(),
                       page.regle,
                       page.noms};
    std::vector<std::unique_ptr<RibModel>> ribs;
    for (const NervureFaite &nervure : made.nervures) {
        ribs.push_back(std::make_unique<RibModel>());
        ribs.back()->Partie<PartiesRib>() = nervure.rib;
        PrendMarges(*ribs.back(), programme.SaisieEnCours());
        demand.nervures.push_back(
            {*ribs.back(), EtiquetteNumerotee(*ribs.back(), premier++, programme.settings.Unite)});
    }
    Pile pile(demand);
    const auto bytes = PdfDePile(pile);
    if (!bytes) {
        return std::nullopt;
    }
    return PanelFiles{{{path, *bytes}}, {}};
}

} // namespace loftwing
