#include "app/panel_outputs.h"

#include "app/cut_pieces.h"
#include "app/cut_sheets.h"
#include "app/sheet_options.h"
#include "app/toolkit.h"
#include "app/typed_value.h"
#include "base/file_name.h"
#include "base/text_encoding.h"
#include "programme/panel_drawings.h"
#include "programme/panel_sheets.h"
#include "programme/qt_stack_pdf.h"

namespace loftwing {

namespace {

constexpr const char *kDrawings = "--drawings";

std::variant<Imbrication, RefusPlanche> Nested(const PanneauFait &made, const SheetWish &wish) {
    const auto pieces = PiecesALaPlanche(made, wish.copies, wish.mirror);
    if (const auto *why = std::get_if<RefusPlanche>(&pieces)) {
        return *why;
    }
    return Imbrique(std::get<std::vector<PieceNommee>>(pieces), wish.reglage);
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
    demand.piece.saignee = ToolWidthMm(arguments, "--kerf", programme);
    const bool marks = !arguments.Has("--no-marks");
    demand.piece.reference = demand.piece.stations = demand.piece.axes = marks;
    demand.piece.etiquette = demand.piece.talon = marks;
    demand.deux_ailes = arguments.Has("--mirror");
    return demand;
}

std::optional<PanelFiles> PanelSheets(const Arguments &arguments, const Programme &programme,
                                      const PanneauFait &made, FeuillesPieces &laid) {
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
                              made.jeu.dossier + "sheet." + form.extension);
    for (std::size_t i = 0; i < sheets->size(); ++i) {
        out.lines.push_back(LineOfSheet((*sheets)[i], i + 1, programme.settings.Unite));
    }
    laid = {*sheets, wish.mirror ? 2 : 1};
    return out;
}

std::optional<PanelFiles> PanelDrawings(const Arguments &arguments, Programme &programme,
                                        const PanneauFait &made, int premier) {
    if (!arguments.Has(kDrawings)) {
        return PanelFiles{};
    }
    const std::string path = arguments.Value(kDrawings);
    const Toolkit toolkit(true);
    DessinsPanneau drawings(programme, made, premier, PageAsTyped(programme), ToUtf8(StemOf(path)));
    const auto bytes = PdfDePile(drawings.EnPile());
    if (!bytes) {
        return std::nullopt;
    }
    return PanelFiles{{{path, *bytes}}, {}};
}

} // namespace loftwing
