// How the cost of a step grows with what it works on. Each is meant to grow as its last lines say.

#include "base/number_text.h"
#include "base/picture.h"
#include "bench_rib.h"
#include "core/airfoil_reader.h"
#include "output/cut_forms.h"
#include "output/dxf.h"
#include "output/svg_writer.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <random>

namespace loftwing {
namespace {

/// Folder with files of airfoils, which goes when it is no longer needed.
class AirfoilFolder {
  public:
    AirfoilFolder(int files, int points)
        : path_(std::filesystem::temp_directory_path() /
                ("loftwing-bench-" + std::to_string(std::random_device{}()))) {
        std::filesystem::create_directory(path_);
        const DrawnRib drawn(points);
        std::string text = "bench\n";
        for (long i = 1; i <= drawn.rib.NbPoints; ++i) {
            text += NumberText(static_cast<float>(drawn.rib.ProfilX(i))) + "  " +
                    NumberText(static_cast<float>(drawn.rib.ProfilY(i))) + "\n";
        }
        for (int i = 0; i < files; ++i) {
            names_.push_back((path_ / (std::to_string(i) + ".dat")).string());
            std::ofstream(names_.back()) << text;
        }
    }
    AirfoilFolder(const AirfoilFolder &) = delete;
    AirfoilFolder &operator=(const AirfoilFolder &) = delete;
    ~AirfoilFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    const std::vector<std::string> &Names() const { return names_; }

  private:
    std::filesystem::path path_;
    std::vector<std::string> names_;
};

void ReadAndPrepareFiles(benchmark::State &state, int files, int points) {
    const AirfoilFolder folder(files, points);
    DrawnRib world;
    for (auto step : state) {
        for (const std::string &name : folder.Names()) {
            NommeProfil(world.rib, name);
            if (FichierLecture(world.rib, world.messages, {}).issue != Lecture::lu ||
                !world.Prepare()) {
                state.SkipWithError("the airfoil was refused");
                return;
            }
        }
    }
    state.SetComplexityN(state.range(0));
}

void PointsReadAndPrepared(benchmark::State &state) {
    ReadAndPrepareFiles(state, 1, static_cast<int>(state.range(0)));
}
BENCHMARK(PointsReadAndPrepared)
    ->RangeMultiplier(2)
    ->Range(50, 3000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

void FilesReadAndPrepared(benchmark::State &state) {
    ReadAndPrepareFiles(state, static_cast<int>(state.range(0)), 60);
}
BENCHMARK(FilesReadAndPrepared)
    ->RangeMultiplier(4)
    ->Range(4, 1024)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

void PointsPlotted(benchmark::State &state) {
    DrawnRib world(static_cast<int>(state.range(0)));
    for (auto step : state) {
        if (!world.Plot()) {
            state.SkipWithError("the plot failed");
            return;
        }
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(PointsPlotted)
    ->RangeMultiplier(2)
    ->Range(50, 3000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

void PointsWrittenAsDxf(benchmark::State &state) {
    DrawnRib world(static_cast<int>(state.range(0)));
    for (auto step : state) {
        std::string out;
        EcritDxf({world.rib, world.plot, world.unite}, out);
        benchmark::DoNotOptimize(out.data());
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(PointsWrittenAsDxf)
    ->RangeMultiplier(2)
    ->Range(50, 3000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

void PointsWrittenAsSvg(benchmark::State &state) {
    const DrawnRib world(static_cast<int>(state.range(0)));
    for (auto step : state) {
        benchmark::DoNotOptimize(WriteSvg(world.device, "bench"));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(PointsWrittenAsSvg)
    ->RangeMultiplier(2)
    ->Range(50, 3000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

/// The piece of a rib so many times, each below the one before.
std::vector<Piece> PiecesOfARib(int count) {
    const DrawnRib world;
    const auto made = FaitPieces(world.rib, {}, {world.unite, world.messages});
    const auto *pieces = std::get_if<std::vector<Piece>>(&made);
    return pieces == nullptr ? std::vector<Piece>()
                             : std::vector<Piece>(static_cast<std::size_t>(count), pieces->front());
}

void PiecesLaidAndWritten(benchmark::State &state) {
    const std::vector<Piece> pieces = PiecesOfARib(static_cast<int>(state.range(0)));
    for (auto step : state) {
        const DessinDecoupe cut{EnDessous(pieces), "bench"};
        benchmark::DoNotOptimize(EcritDecoupeSvg(cut, {}));
        benchmark::DoNotOptimize(EcritDecoupeDxf(cut, "", AnneauxDxf::lignes));
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(PiecesLaidAndWritten)
    ->RangeMultiplier(2)
    ->Range(2, 128)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

/// Numbers as drawings have them.
std::vector<double> Numbers(std::size_t count) {
    std::mt19937 dice(7);
    std::vector<double> numbers(count);
    for (double &number : numbers) {
        number = static_cast<double>(dice()) / 1e7;
    }
    return numbers;
}

template <class Append>
void AppendNumbers(benchmark::State &state, Append append) {
    const std::vector<double> numbers = Numbers(static_cast<std::size_t>(state.range(0)));
    std::string text;
    for (auto step : state) {
        text.clear();
        for (const double number : numbers) {
            append(text, number);
        }
        benchmark::DoNotOptimize(text.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

constexpr Picture kPicture("##0.0#####");

void NumbersUnderAPicture(benchmark::State &state) {
    AppendNumbers(state,
                  [](std::string &text, double number) { AppendFormat(text, number, kPicture); });
}
BENCHMARK(NumbersUnderAPicture)->RangeMultiplier(8)->Range(64, 32768)->Complexity(benchmark::oN);

void NumbersWithFourDecimals(benchmark::State &state) {
    AppendNumbers(state, [](std::string &text, double number) { AppendFixed(text, number, 4); });
}
BENCHMARK(NumbersWithFourDecimals)->RangeMultiplier(8)->Range(64, 32768)->Complexity(benchmark::oN);

void NumbersAsText(benchmark::State &state) {
    AppendNumbers(state, [](std::string &text, double number) { text += NumberText(number); });
}
BENCHMARK(NumbersAsText)->RangeMultiplier(8)->Range(64, 32768)->Complexity(benchmark::oN);

void NumbersRead(benchmark::State &state) {
    std::vector<std::string> texts;
    for (const double number : Numbers(static_cast<std::size_t>(state.range(0)))) {
        texts.push_back(NumberText(number));
    }
    for (auto step : state) {
        double sum = 0;
        for (const std::string &text : texts) {
            sum += LeadingNumber(text);
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(NumbersRead)->RangeMultiplier(8)->Range(64, 32768)->Complexity(benchmark::oN);

} // namespace
} // namespace loftwing
