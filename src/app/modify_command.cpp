#include "app/modify_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/typed_value.h"
#include "core/contour.h"
#include "utilities/EpCourb.h"

#include <iostream>

namespace loftwing {

namespace {

/// Computes the new airfoil; false when a value was refused.
bool Modifie(const Arguments &arguments, Programme &programme, ChampsEpCourb &champs) {
    RibModel &rib = programme.rib;
    const Messages &messages = programme.messages;
    OuvreEpCourb(rib, programme.settings.Unite);
    const std::string title = TitreEpCourb(rib, messages);
    return arguments.Has("--camber") ? AppliqueEpCourb(rib, champs, messages, title)
                                     : AppliqueEpaisseur(rib, champs, messages, title);
}

} // namespace

std::vector<OptionRule> ModifyOptions() {
    std::vector<OptionRule> rules = {
        {"--output", "OUT.dat", "file to write, also -o; - is standard output"},
        {"--thickness", "PERCENT", "greatest thickness in percent of the chord"},
        {"--camber", "PERCENT", "greatest camber in percent of the chord (default: as it is)"}};
    const std::vector<OptionRule> common = ReadingOptions();
    rules.insert(rules.end(), common.begin(), common.end());
    return rules;
}

int RunModify(const Arguments &arguments) {
    if (arguments.Files().size() != 1 || !arguments.Has("--thickness") ||
        arguments.Value("--output").empty()) {
        throw UsageError("modify wants a FILE, --thickness PERCENT and -o OUT.dat");
    }
    ChampsEpCourb champs;
    champs.txtEpR = Typed(arguments, "--thickness", kTouchesPositif);
    if (arguments.Has("--camber")) {
        champs.txtCourbure = Typed(arguments, "--camber", kTouchesPositif);
    }
    ConsoleProgram program(arguments);
    Programme &programme = program.Owner();
    if (!program.Ouvre(arguments.Files().front())) {
        return kRefused;
    }
    const Preparation prepared = PrepareContour(programme.rib, programme.messages);
    if (prepared == Preparation::impossible || !Modifie(arguments, programme, champs)) {
        return kRefused;
    }
    Deliver(arguments.Value("--output"), TexteEpCourb(programme.rib, champs, programme.messages));
    return prepared == Preparation::complete && std::cout ? kDone : kRefused;
}

} // namespace loftwing
