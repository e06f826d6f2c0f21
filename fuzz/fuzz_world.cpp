#include "fuzz_world.h"

#include "core/airfoil_reader.h"
#include "core/contour.h"
#include "output/sheeting.h"
#include "persist/LireEcrire.h"
#include "persist/settings.h"
#include "programme/export.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <numbers>
#include <ostream>
#include <random>

namespace loftwing {

namespace {

std::ostream &Nowhere() {
    static std::ostream nowhere(nullptr);
    return nowhere;
}

Paths PathsWith(const std::string &settings) {
    return {ScratchFolder(), ScratchFolder(), settings, {}, {}};
}

std::string Point(double x, double y) {
    std::array<char, 64> line{};
    const int length = std::snprintf(line.data(), line.size(), "%.5f %.5f\r\n", x, y);
    return {line.data(), static_cast<std::size_t>(length)};
}

} // namespace

void Require(bool holds, const char *what) {
    if (!holds) {
        std::fprintf(stderr, "Not so: %s\n", what);
        std::abort();
    }
}

unsigned Choices::Byte() {
    if (rest_.empty()) {
        return 0;
    }
    const auto byte = static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(1);
    return byte;
}

double Choices::Number() {
    std::uint64_t bits = 0;
    for (int i = 0; i < 8; ++i) {
        bits = bits << 8 | Byte();
    }
    return std::bit_cast<double>(bits);
}

std::string Choices::Spoiled() {
    constexpr std::array<const char *, 32> kTexts = {
        "",      "-5",    "1e-40", "1e9",  "1e38",  "1e39",  "1e300", "1e999",
        "abc",   "2./8",  "1/0",   "/8",   "2.3/8", "1/64",  "-0",    "0.001",
        "7.1.2", "99999", "%",     "-50%", "33 %",  "1e40%", "200%",  "100%",
        "400",   "200.1", "199.9", "2000", "#1",    "1#2",   ".",     "-"};
    return kTexts[static_cast<std::size_t>(Below(static_cast<int>(kTexts.size())))];
}

std::string Choices::Length() {
    const unsigned kind = Byte();
    if (kind >= 0xE0) {
        return Spoiled();
    }
    // Quarters of a millimetre up to 64 mm, mostly small ones.
    const int quarters = kind < 0xA0 ? static_cast<int>(kind) % 48 : Below(256);
    std::string text = std::to_string(quarters / 4);
    constexpr std::array<const char *, 4> kParts = {"", ".25", ".5", ".75"};
    return text += kParts[static_cast<std::size_t>(quarters % 4)];
}

std::string Choices::Place() {
    const unsigned kind = Byte();
    if (kind >= 0xE0) {
        return Spoiled();
    }
    return kind < 0x80 ? std::to_string(kind) + "%" : std::to_string(2 * (kind - 0x80));
}

FileAndChoices Divide(std::string_view bytes) {
    const std::size_t end = bytes.rfind('\0');
    if (end == std::string_view::npos) {
        return {bytes, Choices({})};
    }
    return {bytes.substr(0, end), Choices(bytes.substr(end + 1))};
}

ComponentsText ChosenRib(Choices &choices) {
    ComponentsText rib;
    const unsigned parts = choices.Byte();
    rib.chord = (parts & 1U) != 0 ? choices.Length() : "200";
    rib.sheeting = (parts & 2U) != 0 ? choices.Length() : "1.5";
    if ((parts & 4U) != 0) {
        rib.edge = choices.Length();
        rib.trailing = choices.Length();
        rib.stations = choices.Figure(30);
        rib.inverted = choices.Figure(2);
    }
    if ((parts & 8U) != 0) {
        rib.stock = "0";
        rib.notch = choices.Length();
        rib.notch_x = choices.Length();
        rib.notch_y = choices.Length();
    }
    if ((parts & 16U) != 0) {
        rib.kind = choices.Yes() ? "11" : "1";
        rib.heel_front = choices.Length();
        rib.heel_back = choices.Length();
        rib.intra = choices.Length();
        rib.extra = choices.Figure(3) + "#-" + choices.Length();
        rib.washout = choices.Yes() ? "-" + choices.Figure(25) : choices.Figure(25);
        rib.below = choices.Length();
        rib.total = choices.Length();
        rib.ramp = choices.Length();
        rib.tail_ramp = choices.Length();
        rib.cut = choices.Length();
        rib.tail = choices.Figure(3);
    }
    if ((parts & 32U) != 0) {
        rib.text = std::string(choices.Byte() % 40, 'W') + "\xC3\xA9<&\">";
        rib.text_x = choices.Length();
        rib.text_y = choices.Length();
    }
    // The record that is being edited stands behind those in use.
    rib.spars.clear();
    for (int i = (parts & 64U) != 0 ? choices.Below(13) : 0; i > 0; --i) {
        rib.spars.push_back({choices.Place(), choices.Length(), choices.Length(), choices.Figure(4),
                             choices.Figure(4), choices.Figure(5), choices.Length(),
                             choices.Figure(3), ""});
    }
    rib.spars.push_back(ComponentsText::BlankSpar());
    rib.holes.clear();
    for (int i = (parts & 128U) != 0 ? choices.Below(13) : 0; i > 0; --i) {
        rib.holes.push_back({choices.Place(), choices.Length(), choices.Figure(2), choices.Length(),
                             choices.Length(), choices.Figure(3), choices.Figure(3), ""});
    }
    rib.holes.push_back(ComponentsText::BlankHole());
    return rib;
}

FuzzWorld::FuzzWorld(bool inches, const std::string &settings)
    : platform(Nowhere(), false), programme(PathsWith(settings), platform) {
    ValeursDefaut(programme.ReglagesEnCours(), programme.paths.programme);
    programme.settings.Unite = inches ? kUniteIn : kUniteMm;
}

bool FuzzWorld::TakeComponents(const std::string &bytes) {
    try {
        std::string airfoil;
        LitComposants(bytes, programme.rib, programme.SaisieEnCours(), airfoil);
        return true;
    } catch (const Failure &failure) {
        Require(!programme.messages.Description(failure).empty(), "failure with a description");
        return false;
    }
}

bool FuzzWorld::TakeAirfoil(const std::string &bytes) {
    RibModel &rib = programme.rib;
    NommeProfil(rib, ScratchFolder() + "rib.dat");
    if (EssaieLecture(rib, bytes, programme.messages).issue != Lecture::lu ||
        rib.NbPoints < kPointsMini) {
        return false;
    }
    rib.ProfilCharge = true;
    return PrepareContour(rib, programme.messages) != Preparation::impossible;
}

std::unique_ptr<Recording> FuzzWorld::Draw() {
    programme.plot = EtatAmorce(programme.rib);
    bool failed = false;
    return DessineVue(programme, programme.plot, failed);
}

const std::string &UsualAirfoil() {
    static const std::string text = [] {
        constexpr int kSegments = 40;
        std::string points = "Usual 2412\r\n";
        for (int i = -kSegments; i <= kSegments; ++i) {
            const double x = 0.5 * (1 - std::cos(std::numbers::pi * std::abs(i) / kSegments));
            const double half = 0.6 * (0.2969 * std::sqrt(x) - 0.1260 * x - 0.3516 * x * x +
                                       0.2843 * x * x * x - 0.1036 * x * x * x * x);
            const double camber =
                x < 0.4 ? 0.125 * (0.8 * x - x * x) : 0.02 / 0.36 * (0.2 + 0.8 * x - x * x);
            points += Point(x, i < 0 ? camber + half : camber - half);
        }
        return points;
    }();
    return text;
}

namespace {

/// Lives as long as the process.
struct Scratch {
    const std::string path = (std::filesystem::temp_directory_path() /
                              ("loftwing-fuzz-" + std::to_string(std::random_device{}())))
                                 .string();

    Scratch() { std::filesystem::create_directory(path); }
    ~Scratch() {
        std::error_code unknown;
        std::filesystem::remove_all(path, unknown);
    }
};

} // namespace

const std::string &ScratchFolder() {
    static const Scratch scratch;
    static const std::string folder = scratch.path + "/";
    return folder;
}

bool AllFinite(const Recording &drawing) {
    const auto finite = [](std::initializer_list<double> values) {
        for (const double value : values) {
            if (!std::isfinite(value)) {
                return false;
            }
        }
        return true;
    };
    for (const Operation &operation : drawing.Operations()) {
        bool good = true;
        if (const auto *line = std::get_if<DrawnSegment>(&operation)) {
            good = finite({line->x1, line->y1, line->x2, line->y2});
        } else if (const auto *circle = std::get_if<DrawnCircle>(&operation)) {
            good = finite({circle->x, circle->y, circle->radius});
        } else if (const auto *text = std::get_if<DrawnText>(&operation)) {
            good = finite({text->x, text->y, text->advance});
        }
        if (!good) {
            return false;
        }
    }
    return true;
}

} // namespace loftwing
