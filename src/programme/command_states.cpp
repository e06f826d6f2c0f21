#include "programme/command_states.h"

#include "base/failure.h"

#include <algorithm>
#include <vector>

namespace loftwing {

namespace {

/// What the commands of a group do from a state on.
struct Change {
    CommandGroup group;
    bool alive;
};

/// In their order: a later one overrules those before it.
const std::vector<Change> &ChangesOf(EtatCommandes state) {
    static const std::vector<Change> depart = {{kWithRib, false}, {kDiesOnClear, false}};
    static const std::vector<Change> rib = {{kWithRib, true}};
    static const std::vector<Change> sans = {{kDiesOnClear, false}};
    static const std::vector<Change> vide = {{kDiesOnClear, false}, {kAliveAfterClear, true}};
    static const std::vector<Change> vue = {{kNotInView, false}, {kAliveInView, true}};
    static const std::vector<Change> couple = {
        {kNotInView, false}, {kAliveInView, true}, {kAliveInSimplePlot, true}};
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
        return vue;
    case EtatCommandes::couple:
        break;
    }
    return couple;
}

} // namespace

std::optional<bool> Vivante(EtatCommandes state, unsigned groups) {
    std::optional<bool> alive;
    for (const Change &change : ChangesOf(state)) {
        if ((groups & change.group) != 0) {
            alive = change.alive;
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
