#include "programme/rib_trial.h"

#include "output/recording.h"
#include "output/rib_plot.h"
#include "output/screen_plot.h"

namespace loftwing {

std::function<void()> RetourDuRib(RibModel &rib) {
    return [&rib, dimensions = rib.Partie<Dimensions>(), ajouts = rib.Partie<Ajouts>(),
            modifie = rib.Modifie] {
        rib.Partie<Dimensions>() = dimensions;
        rib.Partie<Ajouts>() = ajouts;
        rib.Modifie = modifie;
    };
}

std::optional<Failure> EchecDuTrace(Programme &programme) {
    try {
        Recording nowhere;
        PlotState apart = programme.plot;
        apart.CordeEchelle = ToSingle(Wide(programme.rib.corde) * kUnitsPerMm);
        DrawRib({nowhere, programme.rib, programme.settings, apart, programme.messages});
    } catch (const Failure &failure) {
        return failure;
    }
    return std::nullopt;
}

bool RibTracable(Programme &programme, const std::string &titre) {
    const RibModel &rib = programme.rib;
    if (!RibVisible(rib) || rib.NbContour == 0) {
        return true;
    }
    const auto failure = EchecDuTrace(programme);
    if (failure) {
        programme.messages.Inform(programme.Text({"FrmMainMessage", "18"}) + "\n" +
                                      programme.messages.Description(*failure),
                                  titre);
    }
    return !failure;
}

} // namespace loftwing
