// How long the piece of a rib takes: it is made anew whenever the rib changes.

#include "core/contour.h"
#include "output/piece.h"
#include "programme/console_platform.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <iostream>

namespace loftwing {
namespace {

/// A 12 % symmetrical airfoil of 200 points with sheeting and stocks.
struct PieceBench {
    PieceBench() {
        constexpr int kPoints = 200;
        for (int i = 0; i < kPoints; ++i) {
            const double angle = 2.0 * std::acos(-1.0) * i / (kPoints - 1);
            const double x = 0.5 * (1.0 + std::cos(angle));
            const double half = 0.6 * (0.2969 * std::sqrt(x) - 0.1260 * x - 0.3516 * x * x +
                                       0.2843 * x * x * x - 0.1015 * x * x * x * x);
            rib.ProfilX.Append(x);
            rib.ProfilY.Append(2 * i < kPoints ? half : -half);
        }
        rib.NbPoints = kPoints;
        rib.NomProfil = "bench";
        rib.EpBA = 8;
        rib.EpBF = 20;
        rib.NbRep = 9;
        PrepareContour(rib, messages);
    }

    ConsolePlatform platform{std::cerr, false};
    LngIni language;
    Messages messages{platform, language};
    std::string Unite{kUniteMm};
    RibModel rib;
};

/// The same with so many spars and holes, and a heel.
template <int Count>
struct LoadedPieceBench : PieceBench {
    LoadedPieceBench() {
        rib.NbLongeron = rib.NbTrou = Count - 1;
        for (int slot = 0; slot < Count; ++slot) {
            constexpr int kStep = 72 / Count; // percent of the chord
            Longeron &spar = At(rib.longeron, slot);
            spar.PosLongAfich = std::to_string(10 + kStep * slot) + "%";
            spar.LargLong = 4;
            spar.HautLong = 2;
            spar.DistLong = 1;
            spar.TypeLong = static_cast<std::uint8_t>(slot % 4);
            spar.OptLongExt = spar.OptLongInt = 1;
            Trou &hole = At(rib.trou, slot);
            hole.PosTrouAfich = std::to_string(10 + kStep / 2 + kStep * slot) + "%";
            hole.DiaTrou = 5;
            hole.HautTrou = 4;
            hole.ChkCentre = 1;
            hole.TypeTrou = static_cast<std::uint8_t>(slot % 2);
        }
        rib.TypeGabarit = kGabaritTalon;
        rib.talon.TalonIntra = 20;
        rib.talon.TalonBAAfich = "50%";
        rib.talon.TalonBFAfich = "40";
    }
};

template <class World>
void PieceOfARib(benchmark::State &state) {
    World bench;
    for (auto step : state) {
        const auto made = FaitPieces(bench.rib, {}, {bench.Unite, bench.messages});
        if (std::holds_alternative<RefusPiece>(made)) {
            state.SkipWithError("the rib was refused");
            break;
        }
        benchmark::DoNotOptimize(made);
    }
}
BENCHMARK_TEMPLATE(PieceOfARib, PieceBench)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(PieceOfARib, LoadedPieceBench<3>)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(PieceOfARib, LoadedPieceBench<12>)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace loftwing
