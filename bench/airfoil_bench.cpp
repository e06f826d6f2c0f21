// From a file of 200 points to contour and station tables, the work of opening an airfoil.

#include "base/number_text.h"
#include "core/airfoil_reader.h"
#include "core/contour.h"
#include "programme/console_platform.h"
#include "support/synthetic_airfoil.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>

namespace loftwing {
namespace {

/// A file of an airfoil with 200 points, which goes when the program ends.
struct AirfoilFile {
    const std::string path = (std::filesystem::temp_directory_path() /
                              ("loftwing-bench-" + std::to_string(std::random_device{}()) + ".dat"))
                                 .string();

    AirfoilFile() {
        SyntheticAirfoil wanted;
        wanted.camber = 0.02;
        wanted.upper = 100;
        wanted.lower = 99;
        const NaiveAirfoil airfoil = MakeAirfoil(wanted);
        std::ofstream file(path);
        file << "Bench 2412\n";
        for (std::size_t i = 1; i < airfoil.x.size(); ++i) {
            file << NumberText(static_cast<float>(airfoil.x[i])) << "  "
                 << NumberText(static_cast<float>(airfoil.y[i])) << '\n';
        }
    }
    ~AirfoilFile() { std::remove(path.c_str()); }
};

const std::string &FilePath() {
    static const AirfoilFile file;
    return file.path;
}

struct Bench {
    std::ostream nowhere{nullptr};
    ConsolePlatform platform{nowhere, false};
    LngIni language;
    Messages messages{platform, language};
    RibModel rib;

    Bench() { NommeProfil(rib, FilePath()); }

    bool Read() { return FichierLecture(rib, messages, {}).issue == Lecture::lu; }
    bool Prepare() { return PrepareContour(rib, messages) == Preparation::complete; }
};

void ReadAirfoil(benchmark::State &state) {
    Bench bench;
    for (auto _ : state) {
        if (!bench.Read()) {
            state.SkipWithError("the airfoil was refused");
            break;
        }
    }
    state.counters["points"] = bench.rib.NbPoints;
}
BENCHMARK(ReadAirfoil)->Unit(benchmark::kMicrosecond);

void PrepareAirfoil(benchmark::State &state) {
    Bench bench;
    bench.Read();
    for (auto _ : state) {
        if (!bench.Prepare()) {
            state.SkipWithError("the contour failed");
            break;
        }
    }
    state.counters["contour"] = bench.rib.NbContour;
}
BENCHMARK(PrepareAirfoil)->Unit(benchmark::kMicrosecond);

void ReadAndPrepareAirfoil(benchmark::State &state) {
    Bench bench;
    for (auto _ : state) {
        if (!bench.Read() || !bench.Prepare()) {
            state.SkipWithError("reading or preparing failed");
            break;
        }
    }
}
BENCHMARK(ReadAndPrepareAirfoil)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace loftwing
