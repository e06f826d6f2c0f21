#include "programme/page_decidee.h"

#include "output/page_entry.h"
#include "output/print_run.h"
#include "output/sheeting.h"
#include "output/view_plots.h"
#include "programme/console_platform.h"

#include <sstream>

namespace loftwing {

namespace {

/// Settings of its own, on which a run is prepared whose boxes nobody sees.
class RunMuet {
  public:
    RunMuet(Programme &programme, const MiseEnPage &page)
        : rib_(programme.rib), compare_(programme.compare), settings_(programme.settings),
          silent_(unseen_, true), messages_{silent_, programme.language} {
        settings_.page = page;
    }

    std::optional<MiseEnPage> Decide() {
        ReprendLongueur(rib_);
        PlotState plot = EtatAmorce(rib_);
        const Impression run{
            rib_,
            settings_,
            plot,
            messages_,
            [this, &plot](PlotDevice &device) {
                return TraceVue({device, rib_, settings_, plot, messages_}, compare_);
            },
            ""};
        if (!PrepareFeuilles(run, [this] { return RegleCommeLaFenetre(); }) || PrepareDessin(run)) {
            return std::nullopt;
        }
        return settings_.page;
    }

  private:
    RibModel &rib_;
    const Comparaison &compare_;
    AppSettings settings_;
    std::ostringstream unseen_;
    ConsolePlatform silent_;
    Messages messages_;

    /// What the page dialog's OK brings when nothing is changed in it.
    bool RegleCommeLaFenetre() {
        ReprendTextes(settings_.page, {settings_.Unite, messages_});
        return true;
    }
};

} // namespace

std::optional<MiseEnPage> PageDecidee(Programme &programme, const MiseEnPage &page) {
    // A plot at scale 1, and the template's length made anew.
    const PartieGardee<Vue> view(programme.rib);
    const PartieGardee<Ajouts> added(programme.rib);
    try {
        return RunMuet(programme, page).Decide();
    } catch (const Failure &) {
        return std::nullopt;
    }
}

} // namespace loftwing
