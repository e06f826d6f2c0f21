// How long an airfoil of 200 points takes from its file to the drawing. A redraw by a change in a
// dialog is the plot alone.

#include "core/airfoil_reader.h"
#include "core/contour.h"
#include "output/recording.h"
#include "output/screen_plot.h"
#include "output/styles.h"
#include "output/svg_writer.h"
#include "programme/console_platform.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace loftwing {
namespace {

/// A 12 % symmetrical airfoil of 200 points behind a title line, as a file that goes when it is no
/// longer needed.
class AirfoilFile {
  public:
    AirfoilFile() : path_(std::filesystem::temp_directory_path() / "loftwing-bench.dat") {
        constexpr int kPoints = 200;
        std::ofstream file(path_);
        file.precision(8);
        file << std::fixed << "Bench 12 percent\n";
        for (int i = 0; i < kPoints; ++i) {
            // Even steps of the angle, upper surface first; no point lies on the nose itself.
            const double angle = 2.0 * std::acos(-1.0) * i / (kPoints - 1);
            const double x = 0.5 * (1.0 + std::cos(angle));
            const double half = 0.6 * (0.2969 * std::sqrt(x) - 0.1260 * x - 0.3516 * x * x +
                                       0.2843 * x * x * x - 0.1015 * x * x * x * x);
            file << x << ' ' << (2 * i < kPoints ? half : -half) << '\n';
        }
    }
    AirfoilFile(const AirfoilFile &) = delete;
    AirfoilFile &operator=(const AirfoilFile &) = delete;
    ~AirfoilFile() {
        std::error_code error;
        std::filesystem::remove(path_, error);
    }
    std::string Path() const { return path_.string(); }

  private:
    std::filesystem::path path_;
};

/// A rib with stocks, sheeting, stations and all texts.
struct Bench {
    Bench() {
        ValeursDefautTraits(settings);
        rib.EpBA = 8;
        rib.EpBF = 20;
        rib.NbRep = 9;
        rib.AffEpr = rib.AffHautBA = rib.AffHautBF = true;
        NommeProfil(rib, file.Path());
    }

    bool Read() {
        rib.ProfilCharge = FichierLecture(rib, messages, "bench").issue == Lecture::lu;
        return rib.ProfilCharge && rib.NbPoints == 200;
    }
    bool Prepare() { return PrepareContour(rib, messages) == Preparation::complete; }
    bool Plot() {
        device.Clear();
        return afficheRib({device, rib, settings, plot, messages}) == Affichage::dessine;
    }

    AirfoilFile file;
    ConsolePlatform platform{std::cerr, false};
    LngIni language;
    Messages messages{platform, language};
    RibModel rib;
    AppSettings settings;
    PlotState plot;
    Recording device;
};

/// The same rib with all that one can carry: twelve spars, twelve holes, a line of text.
struct LoadedBench : Bench {
    LoadedBench() {
        rib.NbLongeron = rib.NbTrou = 11;
        for (int slot = 0; slot < kSlots; ++slot) {
            const std::string place = std::to_string(10 + 6 * slot) + "%";
            Longeron &spar = At(rib.longeron, slot);
            spar.PosLongAfich = place;
            spar.LargLong = 5;
            spar.HautLong = 3;
            spar.TypeLong = static_cast<std::uint8_t>(slot % 4);
            spar.OptLongExt = spar.OptLongInt = 1;
            Trou &hole = At(rib.trou, slot);
            hole.PosTrouAfich = place;
            hole.DiaTrou = 6;
            hole.HautTrou = 4;
            hole.TypeTrou = static_cast<std::uint8_t>(slot % 2);
        }
        rib.texte.InsTexte = "bench Chord : 200";
        rib.texte.InsTextX = 50;
    }
};

template <class World>
void ReadPrepareAndPlot(benchmark::State &state) {
    World bench;
    for (auto step : state) {
        if (!bench.Read() || !bench.Prepare() || !bench.Plot()) {
            state.SkipWithError("the airfoil was refused");
            break;
        }
        benchmark::DoNotOptimize(bench.device.Operations().data());
    }
}
BENCHMARK_TEMPLATE(ReadPrepareAndPlot, Bench)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(ReadPrepareAndPlot, LoadedBench)->Unit(benchmark::kMicrosecond);

template <class World>
void PlotAlone(benchmark::State &state) {
    World bench;
    if (!bench.Read() || !bench.Prepare()) {
        state.SkipWithError("the airfoil was refused");
        return;
    }
    for (auto step : state) {
        if (!bench.Plot()) {
            state.SkipWithError("the plot failed");
            break;
        }
        benchmark::DoNotOptimize(bench.device.Operations().data());
    }
}
BENCHMARK_TEMPLATE(PlotAlone, Bench)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(PlotAlone, LoadedBench)->Unit(benchmark::kMicrosecond);

void SvgOfAPlot(benchmark::State &state) {
    Bench bench;
    if (!bench.Read() || !bench.Prepare() || !bench.Plot()) {
        state.SkipWithError("the airfoil was refused");
        return;
    }
    for (auto step : state) {
        benchmark::DoNotOptimize(WriteSvg(bench.device, "bench"));
    }
}
BENCHMARK(SvgOfAPlot)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace loftwing
