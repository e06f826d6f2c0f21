// How long the ribs of a tapered panel take to be laid on sheets, and how much of the sheets they
// use.

#include "core/contour.h"
#include "output/nesting.h"
#include "programme/console_platform.h"
#include "support/synthetic_airfoil.h"

#include <benchmark/benchmark.h>

#include <iostream>

namespace loftwing {
namespace {

/// Ribs between chords of 220 and 120 mm, with sheeting, stocks, two spars and three holes.
class Panel {
  public:
    std::vector<PieceNommee> Ribs(int count) {
        std::vector<PieceNommee> pieces;
        for (int i = 0; i < count; ++i) {
            const double chord = 220 - 100.0 * i / (count - 1);
            auto made = FaitPieces(Rib(chord), {}, {unite_, messages_});
            if (auto *ribs = std::get_if<std::vector<Piece>>(&made)) {
                pieces.push_back({"rib " + std::to_string(i + 1), ribs->front()});
            }
        }
        return pieces;
    }

  private:
    ConsolePlatform platform_{std::cerr, false};
    LngIni language_;
    Messages messages_{platform_, language_};
    std::string unite_{kUniteMm};
    RibModel rib_;

    RibModel &Rib(double chord) {
        rib_.NbPoints = 0;
        rib_.ProfilX.Clear();
        rib_.ProfilY.Clear();
        const NaiveAirfoil airfoil = MakeAirfoil({0.12, 0.02, 0.4, 60, 60});
        for (std::size_t i = 1; i < airfoil.x.size(); ++i) { // they count from 1
            rib_.ProfilX.Append(airfoil.x[i]);
            rib_.ProfilY.Append(airfoil.y[i]);
        }
        rib_.NbPoints = static_cast<std::int16_t>(airfoil.Count());
        rib_.NomProfil = "bench";
        rib_.corde = static_cast<float>(chord);
        rib_.cordeAfich = std::to_string(static_cast<int>(chord));
        rib_.EpCoffrage = 1.5F;
        rib_.EpBA = 6;
        rib_.EpBF = 20;
        rib_.NbRep = 9;
        rib_.NbLongeron = 1;
        for (int slot = 0; slot < 2; ++slot) {
            Longeron &spar = At(rib_.longeron, slot);
            spar.PosLongAfich = slot == 0 ? "30%" : "65%";
            spar.LargLong = 5;
            spar.HautLong = 3;
            spar.OptLongExt = spar.OptLongInt = 1;
        }
        rib_.NbTrou = 2;
        for (int slot = 0; slot < 3; ++slot) {
            Trou &hole = At(rib_.trou, slot);
            hole.PosTrouAfich = std::to_string(20 + 15 * slot) + "%";
            hole.DiaTrou = 5;
            hole.ChkCentre = 1;
        }
        PrepareContour(rib_, messages_);
        return rib_;
    }
};

/// Percent of the stock that becomes wood, over all sheets.
double Use(const Imbrication &sheets) {
    double wood = 0;
    double stock = 0;
    for (const Planche &sheet : sheets) {
        wood += sheet.aire;
        stock += sheet.longueur * sheet.format.Travers();
    }
    return 100 * wood / stock;
}

void NestPanel(benchmark::State &state) {
    Panel panel;
    const std::vector<PieceNommee> ribs = panel.Ribs(40);
    ReglageImbrication wanted;
    wanted.formats = {{100, 1000}};
    wanted.demi_tour = state.range(0) != 0;
    for (auto step : state) {
        const auto made = Imbrique(ribs, wanted);
        const auto *sheets = std::get_if<Imbrication>(&made);
        if (sheets == nullptr || ribs.size() != 40) {
            state.SkipWithError("the ribs were refused");
            break;
        }
        state.counters["sheets"] = static_cast<double>(sheets->size());
        state.counters["use"] = Use(*sheets);
    }
}
BENCHMARK(NestPanel)->ArgName("turn")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// Every piece is tried in the places that those on the sheet leave it.
void NestSoManyRibs(benchmark::State &state) {
    Panel panel;
    const std::vector<PieceNommee> ribs = panel.Ribs(static_cast<int>(state.range(0)));
    ReglageImbrication wanted;
    wanted.formats = {{100, 1000}};
    for (auto step : state) {
        benchmark::DoNotOptimize(Imbrique(ribs, wanted));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(NestSoManyRibs)
    ->RangeMultiplier(2)
    ->Range(10, 160)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

} // namespace
} // namespace loftwing
