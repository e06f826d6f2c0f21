#include "app/cut_command.h"

#include "app/cut_pieces.h"
#include "app/cut_sheets.h"
#include "app/rib_options.h"
#include "app/sheet_options.h"
#include "app/toolkit.h"

#include <algorithm>
#include <array>

namespace loftwing {

namespace {

const DrawingVerb kCut = {"cut", kVueRib, 1, "a FILE"};

std::optional<std::string> Cut(const Arguments &arguments, const FileRun &run,
                               const FormeDecoupe &form, const CutReport &report,
                               const std::string &file, bool &complete) {
    ConsoleProgram program(run);
    const auto pieces = CutPiecesOf(arguments, program, file, complete);
    if (!pieces) {
        report.TellRefused(program.Platform().LastText());
        return std::nullopt;
    }
    const Programme &programme = program.Owner();
    std::string bytes = EcritDecoupe(programme, form, *pieces, RingsOf(arguments));
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
    std::vector<OptionRule> rules = TargetOptions(kCut, CutExtensions());
    const std::vector<OptionRule> own = {
        {"--kerf", "LENGTH", "width of the cut: outlines move outward, holes inward by half of it"},
        {"--no-marks", nullptr, "leave out all that is drawn on the wood"},
        {"--label", "TEXT", "label on the wood instead of the rib's own; none where it is empty"},
        {"--polylines", nullptr, "DXF with closed polylines instead of lines"},
        {"--wire", "LENGTH", "what a hot wire melts: a template's path lies lower by half of it"},
        {"--json", nullptr,
         "one JSON object a line for each piece on standard output (with -o - on standard "
         "error)"}};
    for (const auto &more : {own, SheetOptions(), RibOptionsOfPiece(), ReadingOptions()}) {
        rules.insert(rules.end(), more.begin(), more.end());
    }
    return rules;
}

int RunCut(const Arguments &arguments) {
    if (WantsSheets(arguments)) {
        return CutOnSheets(arguments);
    }
    Destination destination = DestinationOf(arguments, kCut, arguments.Files());
    const FormeDecoupe &form = CutFormOf(destination.extension);
    destination.extension = form.extension;
    const Toolkit toolkit(form.needs_toolkit);
    return DeliverAll(
        arguments, kCut, arguments.Files(), destination,
        [&](const FileRun &run, const std::vector<std::string> &files, bool &complete) {
            const CutReport report(arguments, run.console, destination.IsStandardOutput(),
                                   files.front());
            try {
                return Cut(arguments, run, form, report, files.front(), complete);
            } catch (const Failure &failure) {
                report.TellRefused(run.start.FailureText(failure));
                throw;
            }
        });
}

} // namespace loftwing
