#include "programme/command_states.h"

#include "base/failure.h"

#include <algorithm>
#include <vector>

namespace loftwing {

namespace {

/// One step into a state: what the commands of a group do from then on.
struct Etape {
    CommandGroup group;
    bool alive;
};

// A later step overrules an earlier one.
const std::vector<Etape> &Etapes(EtatCommandes state) {
    static const std::vector<Etape> depart = {{kWithRib, false}, {kDiesOnClear, false}};
    static const std::vector<Etape> rib = {{kWithRib, true}};
    static const std::vector<Etape> sans = {{kDiesOnClear, false}};
    static const std::vector<Etape> vide = {{kDiesOnClear, false}, {kAliveAfterClear, true}};
    static const std::vector<Etape> vue = {{kNotInView, false}, {kAliveInView, true}};
    switch (state) {
    case EtatCommandes::depart:
        return depart;
    case EtatCommandes::rib:
        return rib;
    case EtatCommandes::sans:
        return sans;
    case EtatCommandes::vide:
        return vide;
    case EtatCommandes::vue:
    case EtatCommandes::couple:
        break;
    }
    return vue;
}

/// Bare points can be inverted, labelled and written as lines.
constexpr std::array<std::string_view, 3> kVivantesEnCouple = {"mnu_affinver", "mnu_affInstxt",
                                                               "mnu_filedxf"};

} // namespace

std::optional<bool> Vivante(EtatCommandes state, std::string_view name, unsigned groups) {
    if (state == EtatCommandes::couple &&
        std::find(kVivantesEnCouple.begin(), kVivantesEnCouple.end(), name) !=
            kVivantesEnCouple.end()) {
        return true;
    }
    std::optional<bool> alive;
    for (const Etape &step : Etapes(state)) {
        if ((groups & step.group) != 0) {
            alive = step.alive;
        }
    }
    return alive;
}

bool &Coche(RibModel &rib, std::string_view name) {
    const auto *const entry = std::find_if(kCochesVue.begin(), kCochesVue.end(),
                                           [&](const CocheVue &each) { return each.name == name; });
    if (entry == kCochesVue.end()) {
        throw MakeFailure(kInvalidProcedureCall);
    }
    return rib.*entry->shown;
}

} // namespace loftwing
