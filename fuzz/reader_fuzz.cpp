// Any bytes as an airfoil file: read or refused, and what was read prepared and drawn with the
// features that the bytes behind the last NUL choose.
//
// What was read is finite and counted rightly. The contour of sane coordinates is that of the
// tests' second computation. A picture has finite coordinates only, depends on nothing but the rib,
// and is an SVG or refused.

#include "core/airfoil_reader.h"
#include "core/contour.h"
#include "fuzz_world.h"
#include "output/svg_writer.h"
#include "support/naive_contour.h"

#include <algorithm>
#include <cmath>

namespace loftwing {
namespace {

bool IsSane(const PointList &list) {
    return std::all_of(list.Values().begin(), list.Values().end(),
                       [](double value) { return std::abs(value) < 1e6; });
}

bool OfNumbers(const PointList &list) {
    return std::all_of(list.Values().begin(), list.Values().end(),
                       [](double value) { return std::isfinite(value); });
}

bool OfNumbers(const TableStation &table) {
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

bool Prepare(RibModel &rib, const Messages &messages) {
    const Preparation preparation = PrepareContour(rib, messages);
    Require(rib.NbContour == rib.ContourX.Count(), "count of the contour's x");
    Require(rib.NbContour == rib.ContourY.Count(), "count of the contour's y");
    Require(OfNumbers(rib.ContourX) && OfNumbers(rib.ContourY), "contour of numbers");
    if (preparation != Preparation::impossible) {
        Require(OfNumbers(rib.TabExtrados) && OfNumbers(rib.TabIntrados), "heights of numbers");
    }
    if (IsSane(rib.ProfilX) && IsSane(rib.ProfilY)) {
        Compare(rib, preparation);
    }
    return preparation != Preparation::impossible;
}

void Draw(FuzzWorld &world) {
    const auto drawing = world.Draw();
    const auto again = world.Draw();
    Require((drawing == nullptr) == (again == nullptr), "drawn again as before");
    if (drawing == nullptr) {
        return;
    }
    Require(AllFinite(*drawing), "picture of numbers");
    Require(drawing->Operations() == again->Operations(), "same picture again");
    try {
        const std::string svg = WriteSvg(*drawing, "title");
        Require(svg.ends_with("</svg>\n"), "whole SVG");
        Require(svg.find("nan") == std::string::npos && svg.find("inf") == std::string::npos,
                "SVG of numbers");
    } catch (const Failure &failure) {
        Require(failure.number == kOverflow, "refused for its size only");
    }
}

void ReadAndDraw(std::string_view bytes) {
    auto [file, choices] = Divide(bytes);
    FuzzWorld world(choices.Yes());
    RibModel &rib = world.programme.rib;
    const Messages &messages = world.programme.messages;
    const bool carries = world.TakeComponents(ChosenRib(choices).Current());
    const ResultatLecture result = EssaieLecture(rib, std::string(file), messages);
    Require((result.issue == Lecture::lu) == (rib.NbPoints > 0), "points when it was read");
    if (result.issue != Lecture::lu) {
        return;
    }
    Require(rib.NbPoints == rib.ProfilX.Count(), "count of x");
    Require(rib.NbPoints == rib.ProfilY.Count(), "count of y");
    Require(OfNumbers(rib.ProfilX) && OfNumbers(rib.ProfilY), "points of numbers");
    rib.ProfilCharge = true;
    if (Prepare(rib, messages) && carries && rib.NbPoints >= kPointsMini) {
        Draw(world);
    }
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    loftwing::ReadAndDraw(loftwing::BytesOf(data, size));
    return 0;
}
