#include "programme/rib_trial.h"

#include "output/recording.h"
#include "output/rib_plot.h"
#include "output/screen_plot.h"

namespace loftwing {

std::function<void()> RetourDuRib(RibModel &rib) {
    struct Dimensions {
        float corde, EpCoffrage, EpBA, vrillage;
        std::string cordeAfich, EpCoffrageAfich, EpBAAfich;
        Talon talon;
        Bloc bloc;
        TexteInsere texte;
        bool Modifie;
    };
    return [&rib, before = Dimensions{rib.corde, rib.EpCoffrage, rib.EpBA, rib.vrillage,
                                      rib.cordeAfich, rib.EpCoffrageAfich, rib.EpBAAfich, rib.talon,
                                      rib.bloc, rib.texte, rib.Modifie}] {
        rib.corde = before.corde;
        rib.EpCoffrage = before.EpCoffrage;
        rib.EpBA = before.EpBA;
        rib.vrillage = before.vrillage;
        rib.cordeAfich = before.cordeAfich;
        rib.EpCoffrageAfich = before.EpCoffrageAfich;
        rib.EpBAAfich = before.EpBAAfich;
        rib.talon = before.talon;
        rib.bloc = before.bloc;
        rib.texte = before.texte;
        rib.Modifie = before.Modifie;
    };
}

bool RibTracable(Programme &programme, const std::string &titre) {
    const RibModel &rib = programme.rib;
    if (!RibVisible(rib) || rib.NbContour == 0) {
        return true;
    }
    try {
        Recording nowhere;
        PlotState apart = programme.plot;
        apart.CordeEchelle = ToSingle(static_cast<double>(rib.corde) * kUnitsPerMm);
        DrawRib({nowhere, programme.rib, programme.settings, apart, programme.messages});
    } catch (const Failure &failure) {
        programme.messages.Inform(
            programme.Text({"FrmMainMessage", "18"}) + "\n" + failure.description, titre);
        return false;
    }
    return true;
}

} // namespace loftwing
