// Any bytes as an airfoil file: read or refused, and what was read prepared. The contour of sane
// coordinates is compared with the tests' second computation.

#include "core/airfoil_reader.h"
#include "core/contour.h"
#include "programme/console_platform.h"
#include "support/naive_contour.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

namespace loftwing {
namespace {

void Require(bool holds, const char *what) {
    if (!holds) {
        std::fprintf(stderr, "Not so: %s\n", what);
        std::abort();
    }
}

/// One file for all inputs of this process.
struct InputFile {
    const std::string path = (std::filesystem::temp_directory_path() /
                              ("loftwing-fuzz-" + std::to_string(std::random_device{}()) + ".dat"))
                                 .string();

    ~InputFile() { std::remove(path.c_str()); }
};

const std::string &InputPath() {
    static const InputFile input;
    return input.path;
}

bool IsSane(const PointList &list) {
    return std::all_of(list.Values().begin(), list.Values().end(),
                       [](double value) { return std::abs(value) < 1e6; });
}

bool AllFinite(const PointList &list) {
    return std::all_of(list.Values().begin(), list.Values().end(),
                       [](double value) { return std::isfinite(value); });
}

bool AllFinite(const TableStation &table) {
    return std::all_of(table.begin(), table.end(),
                       [](double value) { return std::isfinite(value); });
}

void Compare(const RibModel &rib, Preparation preparation) {
    NaiveAirfoil airfoil;
    for (long i = 1; i <= rib.ProfilX.Count(); ++i) {
        airfoil.Add(rib.ProfilX(i), rib.ProfilY(i));
    }
    const NaiveContour naive = ComputeNaively(airfoil);
    Require(rib.NbContour == naive.contour.Count(), "contour as long as that of the second way");
    Require((preparation == Preparation::impossible) == naive.minix_failed, "same end");
    if (!naive.minix_failed) {
        Require(
            std::equal(rib.TabExtrados.begin(), rib.TabExtrados.end(), naive.TabExtrados.begin()),
            "same upper surface");
        Require(
            std::equal(rib.TabIntrados.begin(), rib.TabIntrados.end(), naive.TabIntrados.begin()),
            "same lower surface");
    }
}

void Prepare(RibModel &rib, const Messages &messages) {
    const Preparation preparation = PrepareContour(rib, messages);
    Require(rib.NbContour == rib.ContourX.Count(), "count of the contour's x");
    Require(rib.NbContour == rib.ContourY.Count(), "count of the contour's y");
    Require(AllFinite(rib.ContourX) && AllFinite(rib.ContourY), "contour of numbers");
    if (preparation != Preparation::impossible) {
        Require(AllFinite(rib.TabExtrados) && AllFinite(rib.TabIntrados), "heights of numbers");
    }
    if (IsSane(rib.ProfilX) && IsSane(rib.ProfilY)) {
        Compare(rib, preparation);
    }
}

void ReadAndPrepare(const std::uint8_t *data, std::size_t size) {
    std::ofstream(InputPath(), std::ios::binary)
        .write(reinterpret_cast<const char *>(data), static_cast<std::streamsize>(size));
    static std::ostream nowhere(nullptr);
    static ConsolePlatform platform(nowhere, false);
    static const LngIni language;
    const Messages messages{platform, language};
    RibModel rib;
    NommeProfil(rib, InputPath());
    const ResultatLecture result = FichierLecture(rib, messages, {});
    Require((result.issue == Lecture::lu) == (rib.NbPoints > 0), "points when it was read");
    Require((result.issue == Lecture::lu) == rib.LectureEnCours, "mark of a good file");
    if (result.issue == Lecture::lu) {
        Require(rib.NbPoints == rib.ProfilX.Count(), "count of x");
        Require(rib.NbPoints == rib.ProfilY.Count(), "count of y");
        Require(AllFinite(rib.ProfilX) && AllFinite(rib.ProfilY), "points of numbers");
        Prepare(rib, messages);
    }
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    loftwing::ReadAndPrepare(data, size);
    return 0;
}
