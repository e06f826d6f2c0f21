#include "programme/essai_rib.h"

#include "output/screen_plot.h"
#include "output/view_screen.h"
#include "programme/console_platform.h"

#include <sstream>

namespace loftwing {

namespace {

Affichage Dessine(const Trace &trace, const Comparaison &compare) {
    switch (VueDe(trace.rib, compare)) {
    case VueMontree::rib:
        return afficheRib(trace);
    case VueMontree::compare:
        return afficheCompare(trace, compare);
    case VueMontree::epcourb:
        return afficheEpcourb(trace);
    case VueMontree::couple:
        return afficheCouple(trace);
    case VueMontree::vide:
        break;
    }
    return Affichage::rien;
}

} // namespace

bool DessineEssai(const Programme &programme, const EssaiDuRib &essai, Recording &drawing) {
    std::ostringstream unread;
    ConsolePlatform mute(unread, false);
    const Messages messages{mute, programme.language};
    RibModel trial;
    trial.Partie<PartiesRib>() = programme.rib.Partie<PartiesRib>();
    try {
        if (!essai(trial, {programme.settings.Unite, messages}) || !mute.LastText().empty()) {
            return false;
        }
        PlotState apart = programme.plot;
        return Dessine({drawing, trial, programme.settings, apart, messages}, programme.compare) ==
                   Affichage::dessine &&
               mute.LastText().empty();
    } catch (const Failure &) {
        return false; // half a number, as it is while one is typed
    }
}

} // namespace loftwing
