#include "app/info_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/json_line.h"
#include "app/many_files.h"
#include "base/number_text.h"
#include "core/contour.h"

#include <ostream>

namespace loftwing {

namespace {

std::string AsJson(const RibModel &rib, const Arguments &arguments, const std::string &file) {
    JsonLine json;
    json.Add("file", file);
    json.Add("title", rib.EnteteProfil);
    json.Add("points", static_cast<long>(rib.NbPoints));
    json.Add("contour", static_cast<long>(rib.NbContour));
    json.Add("upper", static_cast<long>(rib.NbExtrados));
    json.Add("lower", static_cast<long>(rib.NbIntrados));
    json.Add("thickness", rib.EpMaxi);
    json.Add("thicknessCount", static_cast<long>(rib.PosEpMaxi));
    json.Add("camber", rib.CambrureMaxi);
    json.Add("camberCount", static_cast<long>(rib.PosCambrure));
    json.Add("top", rib.ExtradosMaxi);
    json.Add("bottom", rib.IntradosMini);
    if (arguments.Has("--stations")) {
        json.Add("upperHeights", rib.TabExtrados);
        json.Add("lowerHeights", rib.TabIntrados);
    }
    if (arguments.Has("--contour")) {
        json.Add("contourX", rib.ContourX.Values());
        json.Add("contourY", rib.ContourY.Values());
    }
    return json.Text();
}

void PrintList(std::ostream &out, const char *name, const double *values, std::size_t count) {
    out << "  " << name << ":";
    for (std::size_t i = 0; i < count; ++i) {
        out << ' ' << NumberText(values[i]);
    }
    out << '\n';
}

void PrintReadable(std::ostream &out, const RibModel &rib, const Arguments &arguments,
                   const std::string &file) {
    out << file << '\n'
        << "  title: " << rib.EnteteProfil << '\n'
        << "  points: " << rib.NbPoints << '\n'
        << "  contour points: " << rib.NbContour << " (upper " << rib.NbExtrados << ", lower "
        << rib.NbIntrados << ")\n"
        << "  thickness: " << NumberText(rib.EpMaxi * 100.0) << " % (count "
        << NumberText(rib.PosEpMaxi) << ")\n"
        << "  camber: " << NumberText(rib.CambrureMaxi * 100.0) << " % (count " << rib.PosCambrure
        << ")\n"
        << "  top: " << NumberText(rib.ExtradosMaxi) << '\n'
        << "  bottom: " << NumberText(rib.IntradosMini) << '\n';
    if (arguments.Has("--stations")) {
        PrintList(out, "upper heights", rib.TabExtrados.data(), rib.TabExtrados.size());
        PrintList(out, "lower heights", rib.TabIntrados.data(), rib.TabIntrados.size());
    }
    if (arguments.Has("--contour")) {
        PrintList(out, "contour x", rib.ContourX.Values().data(), rib.ContourX.Values().size());
        PrintList(out, "contour y", rib.ContourY.Values().data(), rib.ContourY.Values().size());
    }
}

/// The facts of one file; false when anything about it was refused or failed.
bool InformOf(const Arguments &arguments, const FileRun &run, const std::string &file) {
    ConsoleProgram program(run);
    RibModel &rib = program.Owner().rib;
    Preparation prepared = Preparation::impossible;
    if (program.Ouvre(file)) {
        prepared = PrepareContour(rib, program.Owner().messages);
        program.WarnOfDeviation(prepared);
    }
    const bool json = arguments.Has("--json");
    if (prepared == Preparation::impossible) {
        if (json) {
            JsonLine line;
            line.Add("file", file);
            line.Add("refused", program.Platform().LastText());
            run.console.out << line.Text() << '\n';
        } else if (arguments.Files().size() > 1) {
            NameRefused(run.console, file);
        }
        return false;
    }
    if (json) {
        run.console.out << AsJson(rib, arguments, file) << '\n';
    } else {
        PrintReadable(run.console.out, rib, arguments, file);
    }
    return prepared == Preparation::complete;
}

} // namespace

std::vector<OptionRule> InfoOptions() {
    std::vector<OptionRule> rules = {
        {"--json", nullptr, "one JSON object a line for each FILE"},
        {"--stations", nullptr, "with the 401 heights of both surfaces"},
        {"--contour", nullptr, "with the points of the dense contour"}};
    const std::vector<OptionRule> common = ReadingOptions();
    rules.insert(rules.end(), common.begin(), common.end());
    return rules;
}

int RunInfo(const Arguments &arguments) {
    if (arguments.Files().empty()) {
        throw UsageError("info wants a FILE");
    }
    const ConsoleStart start(arguments);
    const std::vector<std::string> &files = arguments.Files();
    const bool all = WorkOnFiles(
        files.size(), AtATime::many, [&](std::size_t index, const Console &console) -> FileTurn {
            const bool whole = InformOf(arguments, {start, console}, files[index]);
            return {[whole] { return whole; }};
        });
    return all ? kDone : kRefused;
}

} // namespace loftwing
