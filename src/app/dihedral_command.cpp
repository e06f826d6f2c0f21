#include "app/dihedral_command.h"

#include "app/command_line.h"
#include "app/console_program.h"
#include "app/typed_value.h"
#include "utilities/diedre.h"

#include <iostream>

namespace loftwing {

namespace {

/// The options in the order of the window's fields.
constexpr std::array<const char *, kChampsDiedre> kValues = {"--angle", "--length", "--height"};

/// The one that is wanted.
int WantedField(const Arguments &arguments) {
    int wanted = -1;
    int given = 0;
    for (int field = 0; field < kChampsDiedre; ++field) {
        if (arguments.Has(At(kValues, field))) {
            ++given;
        } else {
            wanted = field;
        }
    }
    if (given != kChampsDiedre - 1 || !arguments.Files().empty()) {
        throw UsageError("dihedral wants two of --angle, --length and --height, and no FILE");
    }
    return wanted;
}

} // namespace

std::vector<OptionRule> DihedralOptions() {
    std::vector<OptionRule> rules = {{"--angle", "ANGLE", "dihedral in degrees"},
                                     {"--length", "LENGTH", "length of the panel on the ground"},
                                     {"--height", "LENGTH", "height of its tip"}};
    const std::vector<OptionRule> common = CommonOptions();
    rules.insert(rules.end(), common.begin(), common.end());
    return rules;
}

int RunDihedral(const Arguments &arguments) {
    const int wanted = WantedField(arguments);
    ConsoleProgram program(arguments);
    Programme &programme = program.Owner();
    TextesDiedre texts;
    if (arguments.Has("--angle")) {
        texts[kDiedreAngle] = Typed(arguments, "--angle", kTouchesPositif);
    }
    texts[kDiedreLongueur] = TypedLength(arguments, "--length", programme);
    texts[kDiedreHauteur] = TypedLength(arguments, "--height", programme);
    const std::string title = programme.Text({"FrmDiedre", "1"}) + " " + programme.settings.Unite;
    if (!CalculeDiedre(texts, wanted, programme.SaisieEnCours(), title)) {
        std::cerr << "loftwing: a value of 0 gives no " << At(kValues, wanted) + 2 << '\n';
        return kRefused;
    }
    std::cout << At(texts, wanted) << '\n';
    return kDone;
}

} // namespace loftwing
