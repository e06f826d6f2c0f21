#include "app/cut_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/drawing_target.h"
#include "app/json_line.h"
#include "app/rib_options.h"
#include "app/toolkit.h"
#include "app/typed_value.h"
#include "base/text_encoding.h"
#include "core/contour.h"
#include "output/sheeting.h"
#include "programme/export.h"
#include "programme/piece_words.h"
#include "programme/qt_cut_forms.h"

#include <algorithm>
#include <array>
#include <iostream>

namespace loftwing {

namespace {

const DrawingVerb kCut = {"cut", kVueRib, 1, "a FILE"};

std::vector<std::string> Extensions() {
    std::vector<std::string> extensions;
    for (const FormeDecoupe &form : FormesDecoupe()) {
        extensions.push_back(form.extension);
    }
    return extensions;
}

const FormeDecoupe &FormOf(const Destination &destination) {
    const FormeDecoupe *form = TrouveFormeDecoupe(destination.extension);
    if (form == nullptr) {
        throw UsageError("no form \"" + destination.extension + "\"; there are " +
                         Listed(Extensions()));
    }
    return *form;
}

double LengthOf(const Arguments &arguments, const char *option, const Programme &programme) {
    const std::string typed = TypedLength(arguments, option, programme);
    return typed.empty() ? 0.0 : NombreMm(typed, programme.SaisieEnCours());
}

DemandePiece DemandOf(const Arguments &arguments, const Programme &programme) {
    DemandePiece demand;
    demand.saignee = LengthOf(arguments, "--kerf", programme);
    demand.fil = LengthOf(arguments, "--wire", programme);
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

/// What is told of the pieces of one FILE beside their drawing.
class Report {
  public:
    Report(const Arguments &arguments, const Destination &destination, std::string file)
        : json_(arguments.Has("--json")), drawing_on_out_(destination.IsStandardOutput()),
          file_(std::move(file)) {}

    void Tell(const Messages &messages, const Piece &piece) const;
    void TellRefused(const std::string &why) const;

  private:
    bool json_;
    bool drawing_on_out_; ///< standard output has it, so that nothing else may come there
    std::string file_;

    void Print(const JsonLine &line) const {
        (drawing_on_out_ ? std::cerr : std::cout) << line.Text() << '\n';
    }
};

void Report::Tell(const Messages &messages, const Piece &piece) const {
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

void Report::TellRefused(const std::string &why) const {
    if (json_) {
        JsonLine line;
        line.Add("file", file_);
        line.Add("refused", why);
        Print(line);
    }
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
    program.WarnOfDeviation();
    PlotState plot = EtatAmorce(programme.rib);
    bool failed = false;
    return DessineVue(programme, plot, failed) ? prepared : Preparation::impossible;
}

std::optional<std::vector<Piece>> PiecesOf(const Arguments &arguments, ConsoleProgram &program,
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

std::optional<std::string> Cut(const Arguments &arguments, const FormeDecoupe &form,
                               const Report &report, const std::string &file, bool &complete) {
    ConsoleProgram program(arguments);
    const auto pieces = PiecesOf(arguments, program, file, complete);
    if (!pieces) {
        report.TellRefused(program.Platform().LastText());
        return std::nullopt;
    }
    const Programme &programme = program.Owner();
    const bool polylines = arguments.Has("--polylines");
    std::string bytes = EcritDecoupe(programme, form, *pieces,
                                     polylines ? AnneauxDxf::polylignes : AnneauxDxf::lignes);
    for (const Piece &piece : *pieces) {
        report.Tell(programme.messages, piece);
    }
    return bytes;
}

/// The rib's options; those of them that only a drawing shows are taken too, so that a script has
/// one list for both.
std::vector<OptionRule> RibOptionsOfPiece() {
    std::vector<OptionRule> rules = RibOptions();
    constexpr std::array<std::string_view, 5> kOfDrawing = {
        "--no-contour", "--chord-thickness", "--le-thickness", "--te-thickness", "--heel"};
    for (OptionRule &rule : rules) {
        if (std::find(kOfDrawing.begin(), kOfDrawing.end(), rule.name) != kOfDrawing.end()) {
            rule.help += rule.name == std::string_view("--heel") ? "; a piece always has them"
                                                                 : "; changes no piece";
        }
    }
    return rules;
}

} // namespace

std::vector<OptionRule> CutOptions() {
    std::vector<OptionRule> rules = TargetOptions(kCut, Extensions());
    const std::vector<OptionRule> own = {
        {"--kerf", "LENGTH", "width of the cut: outlines move outward, holes inward by half of it"},
        {"--no-marks", nullptr, "leave out all that is drawn on the wood"},
        {"--label", "TEXT", "label on the wood instead of the rib's own; none where it is empty"},
        {"--polylines", nullptr, "DXF with closed polylines instead of lines"},
        {"--wire", "LENGTH", "what a hot wire melts: a template's path lies lower by half of it"},
        {"--json", nullptr,
         "one JSON object a line for each piece on standard output (with -o - on standard "
         "error)"}};
    for (const auto &more : {own, RibOptionsOfPiece(), ReadingOptions()}) {
        rules.insert(rules.end(), more.begin(), more.end());
    }
    return rules;
}

int RunCut(const Arguments &arguments) {
    Destination destination = DestinationOf(arguments, kCut, arguments.Files());
    const FormeDecoupe &form = FormOf(destination);
    destination.extension = form.extension;
    const Toolkit toolkit(form.needs_toolkit);
    return DeliverAll(arguments, kCut, arguments.Files(), destination,
                      [&](const std::vector<std::string> &files, bool &complete) {
                          const Report report(arguments, destination, files.front());
                          try {
                              return Cut(arguments, form, report, files.front(), complete);
                          } catch (const Failure &failure) {
                              report.TellRefused(FailureText(arguments, failure));
                              throw;
                          }
                      });
}

} // namespace loftwing
