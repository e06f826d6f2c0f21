#include "app/cut_sheets.h"

#include "app/command_line.h"
#include "app/cut_pieces.h"
#include "app/error_line.h"
#include "app/json_line.h"
#include "app/sheet_options.h"
#include "app/toolkit.h"
#include "base/file_name.h"
#include "base/number_text.h"
#include "programme/piece_words.h"
#include "programme/sheet_words.h"

#include <filesystem>
#include <iostream>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

/// Where sheets go: beside `path`, which their numbers come into, or to standard output.
struct SheetTarget {
    std::string extension;
    std::string path;
    std::string folder; ///< made where it isn't there; empty for that of `path`
    bool on_out = false;
};

SheetTarget TargetOfSheets(const Arguments &arguments) {
    const std::string out = arguments.Value("--output");
    if (arguments.Files().empty() || out.empty()) {
        throw UsageError("cut wants a FILE and -o OUT");
    }
    const std::string extension = arguments.Value("--to");
    if (out == "-" && extension.empty()) {
        throw UsageError("-o - wants --to EXT");
    }
    if (!extension.empty()) {
        const std::string name = "sheet." + CutFormOf(extension).extension;
        return out == "-" ? SheetTarget{extension, name, {}, true}
                          : SheetTarget{extension, TextOf(PathOf(out) / PathOf(name)), out};
    }
    const std::string ending = ExtensionOf(out);
    return {ending.empty() ? ending : ending.substr(1), out, {}};
}

/// The pieces of one FILE and their names.
struct PiecesOfOne {
    std::vector<PieceNommee> pieces;
    bool refused = false; ///< which was told
    bool complete = true;
};

std::vector<PieceNommee> Named(const Messages &messages, const std::vector<Piece> &pieces,
                               const std::string &file) {
    std::vector<PieceNommee> named;
    for (const Piece &piece : pieces) {
        const std::string kind = NomDePiece(messages, piece.genre);
        std::string name = file;
        if (!kind.empty()) {
            name.append(", ").append(kind);
        }
        named.push_back({std::move(name), piece});
    }
    return named;
}

PiecesOfOne PiecesOfFile(const Arguments &arguments, const FileRun &run, const CutReport &report,
                         const std::string &file) {
    ConsoleProgram program(run);
    PiecesOfOne made;
    const auto pieces = CutPiecesOf(arguments, program, file, made.complete);
    if (!pieces) {
        report.TellRefused(program.Platform().LastText());
        if (arguments.Files().size() > 1) {
            NameRefused(run.console, file);
        }
        made.refused = true;
        return made;
    }
    const Messages &messages = program.Owner().messages;
    for (const Piece &piece : *pieces) {
        report.Tell(messages, piece);
    }
    made.pieces = Named(messages, *pieces, file);
    return made;
}

/// The same, failures told with the FILE's name.
PiecesOfOne TryFile(const Arguments &arguments, const FileRun &run, const SheetTarget &target,
                    const std::string &file) {
    const CutReport report(arguments, run.console, target.on_out, file);
    try {
        return PiecesOfFile(arguments, run, report, file);
    } catch (const Failure &failure) {
        const std::string why = run.start.FailureText(failure);
        report.TellRefused(why);
        TellOnError(run.console.err, file + ": " + why);
        return {{}, true, true};
    }
}

/// The pieces of all FILEs in their order.
PiecesOfOne PiecesOfAll(const Arguments &arguments, const ConsoleStart &start,
                        const SheetTarget &target) {
    PiecesOfOne all;
    const std::vector<std::string> &files = arguments.Files();
    const auto work = [&](std::size_t index, const Console &console) -> FileTurn {
        PiecesOfOne one = TryFile(arguments, {start, console}, target, files[index]);
        return {[one = std::move(one), &all] {
            all.pieces.insert(all.pieces.end(), one.pieces.begin(), one.pieces.end());
            all.complete = all.complete && one.complete;
            return !one.refused;
        }};
    };
    // Nothing is written before all are read.
    all.refused = !WorkOnFiles(files.size(), AtATime::many, work);
    return all;
}

std::string Json(const Planche &sheet, std::size_t number, const std::string &path) {
    JsonLine line;
    line.Add("sheet", static_cast<long>(number));
    line.Add("width", sheet.format.largeur);
    line.Add("height", sheet.format.hauteur);
    line.Add("pieces", static_cast<long>(sheet.pieces.size()));
    line.Add("area", sheet.aire);
    line.Add("length", sheet.longueur);
    line.Add("use", sheet.Taux());
    line.Add("out", path);
    return line.Text();
}

void TellSheets(const Arguments &arguments, const SheetTarget &target, const Imbrication &sheets,
                const std::vector<FileToWrite> &files, const std::string &Unite) {
    std::ostream &out = target.on_out ? std::cerr : std::cout;
    for (std::size_t i = 0; i < sheets.size(); ++i) {
        const std::string &path = files.size() == sheets.size() ? files[i].path : files[0].path;
        out << (arguments.Has("--json") ? Json(sheets[i], i + 1, target.on_out ? "-" : path)
                                        : LineOfSheet(sheets[i], i + 1, Unite))
            << '\n';
    }
}

std::variant<Imbrication, RefusPlanche> Nested(const std::vector<PieceNommee> &pieces,
                                               const SheetWish &wish) {
    if (pieces.size() * static_cast<std::size_t>(wish.copies) > kPiecesMaxi) {
        return RefusPlanche{RefusDePlanche::trop_de_pieces}; // before there are so many
    }
    return Imbrique(EnCopies(pieces, wish.copies, wish.mirror), wish.reglage);
}

/// False when standard output refuses.
bool Write(const SheetTarget &target, const std::vector<FileToWrite> &files) {
    if (target.on_out) {
        std::cout << files.front().bytes << std::flush;
        return static_cast<bool>(std::cout);
    }
    if (!target.folder.empty()) {
        std::error_code error;
        fs::create_directories(target.folder, error);
    }
    WriteWholeFiles(files);
    return true;
}

} // namespace

std::optional<Imbrication> ToldIfRefused(const Programme &programme,
                                         std::variant<Imbrication, RefusPlanche> made) {
    if (const auto *why = std::get_if<RefusPlanche>(&made)) {
        programme.messages.Inform(
            TexteRefusPlanche(programme.messages, *why, programme.settings.Unite),
            why->nom.empty() ? "--sheet" : why->nom);
        return std::nullopt;
    }
    return std::move(std::get<Imbrication>(made));
}

std::string LineOfSheet(const Planche &sheet, std::size_t number, const std::string &Unite) {
    const std::size_t count = sheet.pieces.size();
    return "sheet " + std::to_string(number) + ": " + DepuisMm(sheet.format.largeur, Unite) +
           " x " + DepuisMm(sheet.format.hauteur, Unite) + Unite + ", " + std::to_string(count) +
           (count == 1 ? " piece, " : " pieces, ") + Format(sheet.Taux(), "##0.0") + " %";
}

int CutOnSheets(const Arguments &arguments) {
    const SheetTarget target = TargetOfSheets(arguments);
    const FormeDecoupe &form = CutFormOf(target.extension);
    const Toolkit toolkit(form.needs_toolkit);
    const ConsoleStart start(arguments);
    ConsoleProgram program({start, StandardConsole()});
    const Programme &programme = program.Owner();
    const SheetWish wish = SheetWishOf(arguments, programme);
    const PiecesOfOne made = PiecesOfAll(arguments, start, target);
    if (made.refused) {
        return kRefused;
    }
    const auto sheets = ToldIfRefused(programme, Nested(made.pieces, wish));
    if (!sheets) {
        return kRefused;
    }
    const auto files = EcritPlanches(programme, form, *sheets, RingsOf(arguments), target.path);
    if (target.on_out && files.size() != 1) {
        throw UsageError("-o - takes one sheet, and there are " + std::to_string(files.size()));
    }
    const bool written = Write(target, files);
    TellSheets(arguments, target, *sheets, files, programme.settings.Unite);
    return written && made.complete ? kDone : kRefused;
}

} // namespace loftwing
