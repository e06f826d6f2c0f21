#include "app/info_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/json_line.h"
#include "base/number_text.h"
#include "core/contour.h"

#include <iostream>

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

void PrintList(const char *name, const double *values, std::size_t count) {
    std::cout << "  " << name << ":";
    for (std::size_t i = 0; i < count; ++i) {
        std::cout << ' ' << NumberText(values[i]);
    }
    std::cout << '\n';
}

void PrintReadable(const RibModel &rib, const Arguments &arguments, const std::string &file) {
    std::cout << file << '\n'
              << "  title: " << rib.EnteteProfil << '\n'
              << "  points: " << rib.NbPoints << '\n'
              << "  contour points: " << rib.NbContour << " (upper " << rib.NbExtrados << ", lower "
              << rib.NbIntrados << ")\n"
              << "  thickness: " << NumberText(rib.EpMaxi * 100.0) << " % (count "
              << NumberText(rib.PosEpMaxi) << ")\n"
              << "  camber: " << NumberText(rib.CambrureMaxi * 100.0) << " % (count "
              << rib.PosCambrure << ")\n"
              << "  top: " << NumberText(rib.ExtradosMaxi) << '\n'
              << "  bottom: " << NumberText(rib.IntradosMini) << '\n';
    if (arguments.Has("--stations")) {
        PrintList("upper heights", rib.TabExtrados.data(), rib.TabExtrados.size());
        PrintList("lower heights", rib.TabIntrados.data(), rib.TabIntrados.size());
    }
    if (arguments.Has("--contour")) {
        PrintList("contour x", rib.ContourX.Values().data(), rib.ContourX.Values().size());
        PrintList("contour y", rib.ContourY.Values().data(), rib.ContourY.Values().size());
    }
}

/// The facts of one file; false when anything about it was refused or failed.
bool InformOf(const Arguments &arguments, const std::string &file) {
    ConsoleProgram program(arguments);
    RibModel &rib = program.Owner().rib;
    Preparation prepared = Preparation::impossible;
    if (program.Ouvre(file)) {
        program.WarnOfDeviation();
        prepared = PrepareContour(rib, program.Owner().messages);
    }
    const bool json = arguments.Has("--json");
    if (prepared == Preparation::impossible) {
        if (json) {
            JsonLine line;
            line.Add("file", file);
            line.Add("refused", program.Platform().LastText());
            std::cout << line.Text() << '\n';
        } else if (arguments.Files().size() > 1) {
            NameRefused(file);
        }
        return false;
    }
    if (json) {
        std::cout << AsJson(rib, arguments, file) << '\n';
    } else {
        PrintReadable(rib, arguments, file);
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
    int status = kDone;
    for (const std::string &file : arguments.Files()) {
        if (!InformOf(arguments, file)) {
            status = kRefused;
        }
    }
    return status;
}

} // namespace loftwing
