// Any bytes as a table of coordinates. It is refused for one of the reasons there are, or becomes
// an airfoil from x = 1 round to x = 1 whose file the program's own reader takes, with as many
// points. Wishes are chosen by the bytes behind the last NUL.

#include "core/airfoil_import.h"
#include "core/airfoil_reader.h"
#include "fuzz_world.h"

#include <algorithm>
#include <cmath>

namespace loftwing {
namespace {

bool OfNumbers(const std::vector<ImportPoint> &points) {
    return std::all_of(points.begin(), points.end(), [](const ImportPoint &point) {
        return std::isfinite(point.at.x) && std::isfinite(point.at.y);
    });
}

void CheckFile(const ImportedAirfoil &airfoil) {
    Require(!AirfoilTitle(airfoil, "name").empty(), "title");
    const std::string text = AirfoilFile(airfoil, "name");
    FuzzWorld world;
    RibModel &rib = world.programme.rib;
    const ResultatLecture read = EssaieLecture(rib, text, world.programme.messages);
    Require(read.issue == Lecture::lu, "file that can be read");
    Require(static_cast<std::size_t>(rib.NbPoints) == airfoil.points.size(), "all points read");
}

void Check(const ImportedAirfoil &airfoil, const ImportWishes &wishes) {
    Require(airfoil.points.size() >= 5, "enough points");
    Require(OfNumbers(airfoil.points), "points of numbers");
    Require(airfoil.points.front().at.x == 1 && airfoil.points.back().at.x == 1, "whole chord");
    Require(airfoil.dropped >= 0 && airfoil.added >= 0 && airfoil.laid >= 0, "counts");
    Require(std::isfinite(airfoil.turned) && std::isfinite(airfoil.after), "measures of numbers");
    Require(wishes.points == 0 || airfoil.laid > 0, "laid as wished");
    CheckFile(airfoil);
}

void Import(std::string_view bytes) {
    auto [file, choices] = Divide(bytes);
    ImportWishes wishes;
    wishes.level = choices.Yes();
    if (choices.Yes()) {
        wishes.points = kFewestLaid + choices.Below(256) * (choices.Yes() ? 1 : 9);
    }
    try {
        Check(ImportAirfoil(file, wishes), wishes);
    } catch (const ImportRefusal &refusal) {
        Require(refusal.line >= 0, "line of a refusal");
    }
}

} // namespace
} // namespace loftwing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    loftwing::Import(loftwing::BytesOf(data, size));
    return 0;
}
