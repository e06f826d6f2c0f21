#include "app/cut_pieces.h"

#include "app/json_line.h"
#include "app/rib_options.h"
#include "app/typed_value.h"
#include "base/text_encoding.h"
#include "core/contour.h"
#include "output/sheeting.h"
#include "programme/export.h"
#include "programme/piece_words.h"

#include <array>

namespace loftwing {

namespace {

DemandePiece DemandOf(const Arguments &arguments, const Programme &programme) {
    DemandePiece demand;
    demand.saignee = ToolWidthMm(arguments, "--kerf", programme);
    demand.fil = ToolWidthMm(arguments, "--wire", programme);
    demand.texte = ToUtf8(arguments.Value("--label"));
    const bool marks = !arguments.Has("--no-marks");
    demand.reference = marks && programme.rib.AffLignRef;
    demand.stations = demand.axes = demand.talon = marks;
    demand.etiquette = marks && !(arguments.Has("--label") && demand.texte.empty());
    return demand;
}

/// The piece as a word of a script; the words of the user's language are for reading.
const char *KindOf(GenrePiece kind) {
    switch (kind) {
    case GenrePiece::nervure:
        return "rib";
    case GenrePiece::gabarit_extrados:
        return "upper";
    case GenrePiece::gabarit_intrados:
        return "lower";
    }
    return "";
}

/// Opens a FILE with the options' values. A rib of which no plot can be made is refused as a
/// drawing of it is; the plot itself has nothing to do with the piece.
Preparation Prepare(const Arguments &arguments, ConsoleProgram &program, const std::string &file) {
    Programme &programme = program.Owner();
    if (!program.Ouvre(file, arguments.Values("--airfoils")) ||
        !ApplyRibOptions(arguments, programme, HeelMargins::in_force)) {
        return Preparation::impossible;
    }
    const Preparation prepared = PrepareContour(programme.rib, programme.messages);
    if (prepared == Preparation::impossible) {
        return prepared;
    }
    program.WarnOfDeviation(prepared);
    PlotState plot = EtatAmorce(programme.rib);
    bool failed = false;
    return DessineVue(programme, plot, failed) ? prepared : Preparation::impossible;
}

} // namespace

std::vector<std::string> CutExtensions() {
    std::vector<std::string> extensions;
    for (const FormeDecoupe &form : FormesDecoupe()) {
        extensions.push_back(form.extension);
    }
    return extensions;
}

const FormeDecoupe &CutFormOf(const std::string &extension) {
    const FormeDecoupe *form = TrouveFormeDecoupe(extension);
    if (form == nullptr) {
        throw UsageError("no form \"" + extension + "\"; there are " + Listed(CutExtensions()));
    }
    return *form;
}

AnneauxDxf RingsOf(const Arguments &arguments) {
    return arguments.Has("--polylines") ? AnneauxDxf::polylignes : AnneauxDxf::lignes;
}

void CutReport::Tell(const Messages &messages, const Piece &piece) const {
    const std::vector<std::string> warnings = TextesAvis(messages, piece);
    if (json_) {
        const BoitePiece box = BoiteDe(piece);
        JsonLine line;
        line.Add("file", file_);
        line.Add("piece", std::string_view(KindOf(piece.genre)));
        line.Add("area", AirePiece(piece));
        line.Add("cut", LongueurCoupe(piece));
        line.Add("box", std::array{box.bas_gauche.x, box.bas_gauche.y, box.haut_droite.x,
                                   box.haut_droite.y});
        line.Add("parts", static_cast<long>(piece.parties.size()));
        line.Add("warnings", warnings);
        Print(line);
        if (drawing_on_out_) {
            return; // a script reads objects there
        }
    }
    for (const std::string &warning : warnings) {
        messages.Inform(warning, file_);
    }
}

void CutReport::TellRefused(const std::string &why) const {
    if (json_) {
        JsonLine line;
        line.Add("file", file_);
        line.Add("refused", why);
        Print(line);
    }
}

void CutReport::Print(const JsonLine &line) const {
    (drawing_on_out_ ? console_.err : console_.out) << line.Text() << '\n';
}

std::optional<std::vector<Piece>> CutPiecesOf(const Arguments &arguments, ConsoleProgram &program,
                                              const std::string &file, bool &complete) {
    const Preparation prepared = Prepare(arguments, program, file);
    if (prepared == Preparation::impossible) {
        return std::nullopt;
    }
    complete = prepared == Preparation::complete;
    Programme &programme = program.Owner();
    auto made =
        FaitPieces(programme.rib, AvecNoms(programme.messages, DemandOf(arguments, programme)),
                   programme.SaisieEnCours());
    if (const auto *refusal = std::get_if<RefusPiece>(&made)) {
        programme.messages.Inform(TexteRefus(programme.messages, *refusal), file);
        return std::nullopt;
    }
    return std::move(std::get<std::vector<Piece>>(made));
}

} // namespace loftwing
