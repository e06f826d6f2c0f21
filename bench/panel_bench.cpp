// How long a wing panel takes: after a value was changed in its window, and as a whole with all
// that its ribs can carry, laid on sheets.

#include "core/contour.h"
#include "output/nesting.h"
#include "programme/console_platform.h"
#include "programme/panel_plan.h"
#include "programme/panel_steps.h"
#include "support/synthetic_airfoil.h"

#include <benchmark/benchmark.h>

#include <iostream>

namespace loftwing {
namespace {

/// A panel between chords of 300 and 160 mm.
class BenchPanel {
  public:
    BenchPanel(int inter, int spars, int holes) {
        programme_.settings.Unite = kUniteMm;
        // A rib's title has its words, without which its file would have none.
        programme_.language.Charge(LOFTWING_SOURCE_DIR "/resources/lng", "English");
        for (const std::size_t end : {0U, 1U}) {
            panel_.bouts[end] = End(end == 0 ? 300 : 160, spars, holes);
        }
        panel_.jeu.nombre = std::to_string(inter);
        panel_.jeu.cordes = CordesDesBouts(panel_, programme_.settings.Unite);
    }

    PanneauFait Made() { return FaitPanneau(programme_, panel_, {}); }
    PlanPanneau Plan(const PanneauFait &made) {
        return FaitPlan(panel_, made, 900, 1, programme_.SaisieEnCours());
    }
    void Chord(int mm) {
        Length(std::to_string(mm), panel_.bouts[1].cordeAfich, panel_.bouts[1].corde);
    }

  private:
    ConsolePlatform platform_{std::cerr, false};
    Programme programme_{Paths{}, platform_};
    Panneau panel_;

    void Length(const std::string &text, std::string &afich, float &mm) {
        StockeLongueur(text, programme_.SaisieEnCours(), afich, mm);
    }
    PartiesRib End(int chord, int spars, int holes) {
        RibModel &rib = programme_.rib;
        rib.Partie<PartiesRib>() = {};
        const NaiveAirfoil airfoil = MakeAirfoil({0.14, 0.02, 0.4, 60, 60});
        for (std::size_t i = 1; i < airfoil.x.size(); ++i) { // they count from 1
            rib.ProfilX.Append(airfoil.x[i]);
            rib.ProfilY.Append(airfoil.y[i]);
        }
        rib.NbPoints = static_cast<std::int16_t>(airfoil.Count());
        rib.NomProfil = rib.EnteteProfil = "bench";
        rib.CheminProfil = "bench.dat";
        rib.ExtProfil = "dat";
        rib.ProfilCharge = true;
        Length(std::to_string(chord), rib.cordeAfich, rib.corde);
        Length("1.5", rib.EpCoffrageAfich, rib.EpCoffrage);
        Length("6", rib.EpBAAfich, rib.EpBA);
        rib.TypeBA = 1;
        for (int slot = 0; slot < spars; ++slot) {
            Longeron &spar = At(rib.longeron, slot);
            spar.PosLongAfich = std::to_string(10 + 6 * slot) + "%";
            Length("2", spar.LargLongAfich, spar.LargLong);
            Length("1.5", spar.HautLongAfich, spar.HautLong);
            spar.OptLongExt = spar.OptLongInt = 1;
        }
        rib.NbLongeron = static_cast<std::uint8_t>(spars == 0 ? 0 : spars - 1);
        for (int slot = 0; slot < holes; ++slot) {
            Trou &hole = At(rib.trou, slot);
            hole.PosTrouAfich = std::to_string(13 + 6 * slot) + "%";
            Length("3", hole.DiaTrouAfich, hole.DiaTrou);
            hole.ChkCentre = 1;
        }
        rib.NbTrou = static_cast<std::uint8_t>(holes == 0 ? 0 : holes - 1);
        PrepareContour(rib, programme_.messages);
        return rib.Partie<PartiesRib>();
    }
};

bool Refused(benchmark::State &state, const PanneauFait &made, std::size_t ribs) {
    const bool refused = made.nervures.size() != ribs || !made.refus.empty();
    if (refused) {
        const std::string why = made.refus.empty() ? "" : made.refus.front().texte;
        state.SkipWithError(("the panel was refused: " + why).c_str());
    }
    return refused;
}

void ChangeOneValue(benchmark::State &state) {
    BenchPanel panel(14, 2, 3);
    int chord = 160;
    for (auto step : state) {
        panel.Chord(chord = chord == 160 ? 161 : 160);
        const PanneauFait made = panel.Made();
        if (Refused(state, made, 16)) {
            break;
        }
        benchmark::DoNotOptimize(panel.Plan(made));
    }
}
BENCHMARK(ChangeOneValue)->Unit(benchmark::kMillisecond);

void RibsOfAPanel(benchmark::State &state) {
    const auto inter = static_cast<int>(state.range(0));
    BenchPanel panel(inter, 2, 3);
    for (auto step : state) {
        if (Refused(state, panel.Made(), static_cast<std::size_t>(inter) + 2)) {
            break;
        }
    }
    state.SetComplexityN(inter);
}
BENCHMARK(RibsOfAPanel)
    ->RangeMultiplier(2)
    ->Range(5, 80)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

void MakeAndNestAll(benchmark::State &state) {
    BenchPanel panel(90, 12, 12);
    ReglageImbrication wanted;
    wanted.formats = {{100, 1000}};
    for (auto step : state) {
        const PanneauFait made = panel.Made();
        if (Refused(state, made, 92)) {
            break;
        }
        const auto sheets = Imbrique(PiecesDuPanneau(made, 1, false), wanted);
        if (!std::holds_alternative<Imbrication>(sheets)) {
            state.SkipWithError("the pieces were refused");
            break;
        }
        state.counters["sheets"] = static_cast<double>(std::get<Imbrication>(sheets).size());
    }
}
BENCHMARK(MakeAndNestAll)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace loftwing
