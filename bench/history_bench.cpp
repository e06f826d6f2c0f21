// How long a step of the rib's history takes: one is taken in after every command and redraw.

#include "programme/rib_history.h"

#include "core/units.h"

#include <benchmark/benchmark.h>

#include <string>

namespace loftwing {
namespace {

/// A rib of 5,000 points and as many of its contour, with all slots taken.
struct HistoryBench {
    std::string unite{kUniteMm};

    HistoryBench() {
        constexpr int kPoints = 5000;
        for (int i = 0; i < kPoints; ++i) {
            rib.ProfilX.Append(i);
            rib.ProfilY.Append(i);
            rib.ContourX.Append(i);
            rib.ContourY.Append(i);
        }
        rib.ProfilCharge = true;
        for (Longeron &spar : rib.longeron) {
            spar.PosLongAfich = "a place with many letters";
        }
        history.Note(rib, compare, unite);
    }

    RibModel rib;
    Comparaison compare;
    RibHistory history;
};

void NoteWithoutAChange(benchmark::State &state) {
    HistoryBench bench;
    for (auto _ : state) {
        bench.history.Note(bench.rib, bench.compare, bench.unite);
    }
}
BENCHMARK(NoteWithoutAChange);

void NoteAStep(benchmark::State &state) {
    HistoryBench bench;
    int step = 0;
    for (auto _ : state) {
        bench.rib.longeron[5].HautLongAfich = std::to_string(++step);
        bench.history.Note(bench.rib, bench.compare, bench.unite);
    }
}
BENCHMARK(NoteAStep);

} // namespace
} // namespace loftwing
