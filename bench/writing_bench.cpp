// How long the bytes of a file take to be made, and beside each how long the same bytes take to be
// copied: into a text, and into a file. A writer that does little but copy is near the first.

#include "bench_rib.h"
#include "core/units.h"
#include "output/cut_forms.h"
#include "output/dxf.h"
#include "output/plan_formes.h"
#include "output/svg_writer.h"
#include "persist/LireEcrire.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>

namespace loftwing {
namespace {

/// All that the forms are made of.
struct WritingWorld {
    DrawnRib drawn;
    DessinDecoupe cut;
    DessinPlan plan;
    CouleursPlan couleurs{};

    WritingWorld() {
        const auto pieces = FaitPieces(drawn.rib, {}, {drawn.unite, drawn.messages});
        if (const auto *made = std::get_if<std::vector<Piece>>(&pieces)) {
            cut.pieces = *made;
        }
        cut.titre = plan.titre = "bench";
        couleurs = CouleursDuPlan(drawn.settings);
        for (int i = 0; i < 40; ++i) {
            plan.traits.push_back({CouchePlan::nervure, Rib(50.0 * i), true});
            plan.textes.push_back({CouchePlan::cote, {50.0 * i, -20}, 3, std::to_string(i)});
        }
    }

  private:
    static std::vector<PointMm> Rib(double x) {
        constexpr int kPoints = 60;
        std::vector<PointMm> points;
        for (int i = 0; i < kPoints; ++i) {
            points.push_back({x + std::sin(0.1 * i), 200.0 * i / kPoints});
        }
        return points;
    }
};

WritingWorld &World() {
    static WritingWorld world;
    return world;
}

DxfSource Source() {
    DrawnRib &drawn = World().drawn;
    return {drawn.rib, drawn.plot, drawn.unite};
}

std::string InterchangeDxf() {
    std::string out;
    EcritDxf(Source(), out);
    return out;
}
std::string CleanDxf() {
    return EcritDxfSimple(Source());
}
std::string Svg() {
    return WriteSvg(World().drawn.device, "bench");
}
std::string Components() {
    return EcritComposants(World().drawn.rib, World().drawn.unite);
}
std::string CutSvg() {
    return EcritDecoupeSvg(World().cut, {});
}
std::string CutDxf() {
    return EcritDecoupeDxf(World().cut, World().drawn.unite, AnneauxDxf::lignes);
}
std::string PlanSvg() {
    return EcritPlanSvg(World().plan, World().couleurs);
}
std::string PlanDxf() {
    return EcritPlanDxf(World().plan, World().drawn.unite);
}

using MakeBytes = std::string (*)();

void Count(benchmark::State &state, const std::string &bytes) {
    if (!World().drawn.drawn || bytes.empty()) {
        state.SkipWithError("nothing was written");
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
    state.counters["bytes"] = static_cast<double>(bytes.size());
}

void Write(benchmark::State &state, MakeBytes make) {
    for (auto step : state) {
        benchmark::DoNotOptimize(make());
    }
    Count(state, make());
}

void CopyToText(benchmark::State &state, MakeBytes make) {
    const std::string bytes = make();
    for (auto step : state) {
        std::string copy = bytes;
        benchmark::DoNotOptimize(copy.data());
    }
    Count(state, bytes);
}

void CopyToFile(benchmark::State &state, MakeBytes make) {
    const std::string bytes = make();
    const auto path = std::filesystem::temp_directory_path() /
                      ("loftwing-bench-" + std::to_string(std::random_device{}()));
    for (auto step : state) {
        std::ofstream file(path, std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    std::filesystem::remove(path);
    Count(state, bytes);
}

struct WrittenForm {
    const char *name;
    MakeBytes make;
};
constexpr std::array<WrittenForm, 8> kForms = {{{"interchange DXF", InterchangeDxf},
                                                {"clean DXF", CleanDxf},
                                                {"SVG", Svg},
                                                {"rib components", Components},
                                                {"cut SVG", CutSvg},
                                                {"cut DXF", CutDxf},
                                                {"plan SVG", PlanSvg},
                                                {"plan DXF", PlanDxf}}};

[[maybe_unused]] const bool kRegistered = [] {
    for (const WrittenForm &form : kForms) {
        const std::string of = std::string("/") + form.name;
        for (auto *bench :
             {benchmark::RegisterBenchmark(("Write" + of).c_str(), Write, form.make),
              benchmark::RegisterBenchmark(("CopyToText" + of).c_str(), CopyToText, form.make),
              benchmark::RegisterBenchmark(("CopyToFile" + of).c_str(), CopyToFile, form.make)}) {
            bench->Unit(benchmark::kMicrosecond);
        }
    }
    return true;
}();

} // namespace
} // namespace loftwing
