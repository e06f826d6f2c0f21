#include "app/draw_command.h"

#include "app/console_program.h"
#include "app/drawing_target.h"
#include "app/rib_options.h"
#include "core/contour.h"

namespace loftwing {

namespace {

const DrawingVerb kDraw = {"draw", kVueRib, 1, "a FILE"};

std::optional<std::string> DrawRib(const Arguments &arguments, const DrawingTarget &target,
                                   const std::string &file, bool &complete) {
    ConsoleProgram program(arguments);
    Programme &programme = program.Owner();
    ApplyPageOptions(arguments, programme);
    if (!program.Ouvre(file, arguments.Values("--airfoils")) ||
        !ApplyRibOptions(arguments, programme)) {
        return std::nullopt;
    }
    program.WarnOfDeviation();
    const Preparation prepared = PrepareContour(programme.rib, programme.messages);
    if (prepared == Preparation::impossible) {
        return std::nullopt;
    }
    complete = prepared == Preparation::complete;
    return Dessine(programme, target);
}

} // namespace

std::vector<OptionRule> DrawOptions() {
    std::vector<OptionRule> rules = DrawingOptions(kDraw);
    for (const auto &more : {RibOptions(), PageOptions(), ReadingOptions()}) {
        rules.insert(rules.end(), more.begin(), more.end());
    }
    return rules;
}

int RunDraw(const Arguments &arguments) {
    return DrawAll(arguments, kDraw,
                   [&arguments](const DrawingTarget &target, const std::vector<std::string> &files,
                                bool &complete) {
                       return DrawRib(arguments, target, files.front(), complete);
                   });
}

} // namespace loftwing
