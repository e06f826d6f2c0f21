// The largest set of ribs: 92 files of 200 points. What the disk takes is part of the second time.

#include "programme/console_platform.h"
#include "support/synthetic_airfoil.h"
#include "utilities/ribevol.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>

namespace loftwing {
namespace {

ProfilChoisi Airfoil(const std::string &name, double camber) {
    SyntheticAirfoil wanted;
    wanted.camber = camber;
    wanted.upper = 100;
    wanted.lower = 99;
    const NaiveAirfoil airfoil = MakeAirfoil(wanted);
    ProfilChoisi chosen;
    chosen.NomProfil = name;
    for (std::size_t i = 1; i < airfoil.x.size(); ++i) {
        chosen.ProfilX.Append(airfoil.x[i]);
        chosen.ProfilY.Append(airfoil.y[i]);
    }
    chosen.NbPoints = static_cast<std::int16_t>(chosen.ProfilX.Count());
    return chosen;
}

void WriteRibSet(benchmark::State &state) {
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        ("loftwing-bench-" + std::to_string(std::random_device{}()));
    std::filesystem::create_directory(folder);
    std::ostream nowhere{nullptr};
    ConsolePlatform platform{nowhere, false};
    LngIni language;
    const Messages messages{platform, language};
    const std::string Unite{kUniteMm};
    const Saisie saisie{Unite, messages};
    const std::array<ProfilJeu, 2> profils{ProfilMajeur(Airfoil("root", 0.02)),
                                           ProfilMineur(Airfoil("tip", 0.0))};
    for (auto _ : state) {
        Ribevol set;
        if (VerifieRibevol({{"root", "tip"}, {"300", "100"}, "90"}, saisie, set)) {
            state.SkipWithError("the values were refused");
            break;
        }
        const JeuDeNervures jeu = ComposeRibevol(set, profils, folder.string() + "/", saisie);
        SaveProfil(jeu, messages);
        EcritResume(jeu);
    }
    std::filesystem::remove_all(folder);
}
BENCHMARK(WriteRibSet)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace loftwing
