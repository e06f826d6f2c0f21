#include "support/rib_world.h"

#include "core/airfoil_reader.h"
#include "core/contour.h"
#include "output/styles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>

namespace loftwing {

namespace {

/// The keys that plots, prints and settings ask for.
std::string Words() {
    const std::vector<std::pair<std::string, std::vector<std::string>>> keys = {
        {"Erreur", {"1", "2", "3"}},
        {"TextButton", {"14"}},
        {"MainTolbar", {"11", "13", "15", "21"}},
        {"FrmMainMessage", {"2", "3", "13", "14", "15", "16", "17"}},
        {"FrmLines", {"5", "6", "7", "8", "9", "10", "11", "12", "13", "24"}},
        {"FrmPrint",
         {"22", "230", "231", "232", "233", "234", "235", "236", "237", "238", "239", "241", "242",
          "250", "252", "253", "264", "270", "271", "272", "273", "274", "280", "281", "282", "284",
          "10", "tailleFeuille(8)",
          // the list has the one, the comparison asks for the other
          "tailleFeuille(8) "}},
        {"FrmEpCourb", {"1", "10", "11", "12", "17", "18"}},
        {"OutilCompare", {"5", "6"}},
        {"Message", {"20"}}};
    std::string text;
    for (const auto &[section, names] : keys) {
        text += "[" + section + "]\n";
        for (const std::string &name : names) {
            text += name + "=" + Word(section, name) + "\n";
        }
    }
    return text;
}

} // namespace

BoxAnswer WorldPlatform::Show(const MessageBox &box) {
    if (lenient) {
        boxes.push_back(box);
        return box.fallback;
    }
    return ScriptedPlatform::Show(box);
}

void WorldPlatform::SetPointer(Pointer shape) {
    pointers.push_back(shape);
    ScriptedPlatform::SetPointer(shape);
}

std::string Word(const std::string &section, const std::string &key) {
    return "<" + section + " " + key + ">";
}

RibWorld::RibWorld() {
    const TempFolder folder;
    folder.File("Words.lng", Words());
    language.Charge(folder.Path(), "Words");
    ValeursDefautTraits(settings);
    rib.ProfilCharge = true;
    rib.NomProfil = "test";
    rib.EnteteProfil = "1.0 0.0";
}

Impression RibWorld::Run() {
    return {rib,
            settings,
            plot,
            messages,
            [this](PlotDevice &device) { return PrintSubroutine(On(device), 1.0); },
            rib.NomProfil};
}

void RibWorld::Place(float x, float y) {
    const double corde = static_cast<double>(rib.corde);
    plot.CordeEchelle = static_cast<float>(corde * 56.7 * static_cast<double>(rib.Zoom));
    plot.OrigineX = x;
    plot.OrigineY = y;
}

Points Naca(int digits, int count, bool open_trailing_edge) {
    const double m = digits / 1000 / 100.0;
    const double p = digits / 100 % 10 / 10.0;
    const double t = digits % 100 / 100.0;
    const double last = open_trailing_edge ? -0.1015 : -0.1036;
    const auto place = [&](double x, double sign) -> std::pair<double, double> {
        const double half = 5 * t *
                            (0.2969 * std::sqrt(x) - 0.1260 * x - 0.3516 * x * x +
                             0.2843 * x * x * x + last * x * x * x * x);
        double camber = 0;
        if (p > 0) {
            camber = x < p ? m / (p * p) * (2 * p * x - x * x)
                           : m / ((1 - p) * (1 - p)) * (1 - 2 * p + 2 * p * x - x * x);
        }
        return {x, camber + sign * half};
    };
    const auto abscissa = [&](int i) { return 0.5 * (1 + std::cos(std::acos(-1.0) * i / count)); };
    Points points;
    for (int i = 0; i <= count; ++i) {
        points.push_back(place(i == count ? 0.0 : abscissa(i), 1.0));
    }
    for (int i = count - 1; i >= 0; --i) {
        points.push_back(place(abscissa(i), -1.0));
    }
    return points;
}

void TakeAirfoil(RibWorld &world, const Points &points) {
    RibModel &rib = world.rib;
    rib.ProfilX.Clear();
    rib.ProfilY.Clear();
    for (const auto &[x, y] : points) {
        rib.ProfilX.Append(x);
        rib.ProfilY.Append(y);
    }
    rib.NbPoints = static_cast<std::int16_t>(points.size());
    rib.ProfilCharge = true;
    ASSERT_EQ(PrepareContour(rib, world.messages), Preparation::complete);
}

bool TakeAirfoilFile(RibWorld &world, const std::string &path) {
    const bool before = world.platform.lenient;
    world.platform.lenient = true;
    NommeProfil(world.rib, path);
    bool taken = FichierLecture(world.rib, world.messages, "test").issue == Lecture::lu;
    taken = taken && world.rib.NbPoints >= kPointsMini &&
            PrepareContour(world.rib, world.messages) == Preparation::complete;
    world.platform.lenient = before;
    return taken;
}

std::vector<std::string> AirfoilFiles() {
    namespace fs = std::filesystem;
    std::vector<std::string> folders = {std::string(LOFTWING_SOURCE_DIR) + "/resources/airfoils"};
    if (const char *more = std::getenv("LOFTWING_AIRFOILS")) {
        folders.emplace_back(more);
    }
    std::vector<std::string> files;
    for (const std::string &folder : folders) {
        std::error_code error;
        for (const fs::directory_entry &entry : fs::directory_iterator(folder, error)) {
            const std::string extension = entry.path().extension().string();
            if (extension == ".dat" || extension == ".cor") {
                files.push_back(entry.path().string());
            }
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

void FlatSurfaces(RibModel &rib, double upper, double lower) {
    rib.TabExtrados.fill(upper);
    rib.TabIntrados.fill(lower);
    rib.TabExtrados[0] = 0;
    rib.TabIntrados[0] = 0;
}

} // namespace loftwing
