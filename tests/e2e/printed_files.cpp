#include "e2e/printed_files.h"

#include "base/whole_file.h"

#include <algorithm>
#include <filesystem>
#include <locale>
#include <sstream>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

constexpr double kDotsPerMm = 10;
constexpr int kDotsPerInch = 254;

/// The ink in a picture of grey bytes.
Ink InkOf(const std::string &pgm) {
    std::istringstream head(pgm);
    head.imbue(std::locale::classic());
    std::string magic;
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t white = 0;
    head >> magic >> width >> height >> white;
    const std::size_t start = static_cast<std::size_t>(head.tellg()) + 1;
    if (magic != "P5" || white != 255 || pgm.size() != start + width * height) {
        ADD_FAILURE() << "no grey picture";
        return {};
    }
    std::size_t left = width;
    std::size_t right = 0;
    std::size_t top = height;
    std::size_t bottom = 0;
    for (std::size_t i = start; i < pgm.size(); ++i) {
        if (static_cast<unsigned char>(pgm[i]) == white) {
            continue;
        }
        const std::size_t x = (i - start) % width;
        const std::size_t y = (i - start) / width;
        left = std::min(left, x);
        right = std::max(right, x + 1);
        top = std::min(top, y);
        bottom = std::max(bottom, y + 1);
    }
    return right == 0 ? Ink{}
                      : Ink{static_cast<double>(right - left) / kDotsPerMm,
                            static_cast<double>(bottom - top) / kDotsPerMm};
}

} // namespace

void PrintedFiles::NeedsPrograms(const std::vector<const char *> &programs) {
    for (const char *program : programs) {
        if (RunShell(std::string("command -v ") + program).status != 0) {
            GTEST_SKIP() << "no " << program;
        }
    }
    fs::permissions(folder.Path(), fs::perms::owner_all); // what a runtime folder must be
}

std::string PrintedFiles::Printed(const std::string &dxf) {
    const std::string home = ShellWord(folder.Path());
    const Ran ran =
        RunShell("env -u DISPLAY HOME=" + home + " XDG_RUNTIME_DIR=" + home +
                 " XDG_CONFIG_HOME=" + home + " QT_QPA_PLATFORM=offscreen" +
                 " timeout 60 librecad dxf2pdf -m -c -s 1 -t " + home + " " + ShellWord(dxf));
    EXPECT_EQ(ran.status, 0) << ran.err;
    return fs::path(dxf).replace_extension(".pdf").string();
}

Ink PrintedFiles::InkOn(const std::string &pdf) {
    const auto [width, height] = PageOf(pdf);
    const long half_width = 1100;
    const long half_height = 700;
    const auto corner = [](double mm, long half) {
        return std::to_string(std::max(0L, static_cast<long>(mm / 2 * kDotsPerMm) - half));
    };
    const std::string picture = folder.Path("sheet");
    const Ran ran =
        RunShell("pdftoppm -gray -singlefile -r " + std::to_string(kDotsPerInch) + " -x " +
                 corner(width, half_width) + " -y " + corner(height, half_height) + " -W " +
                 std::to_string(2 * half_width) + " -H " + std::to_string(2 * half_height) + " " +
                 ShellWord(pdf) + " " + ShellWord(picture));
    EXPECT_EQ(ran.status, 0) << ran.err;
    return InkOf(ReadWholeFile(picture + ".pgm"));
}

std::pair<double, double> PrintedFiles::PageOf(const std::string &pdf) {
    const Ran ran = RunShell("LC_ALL=C pdfinfo " + ShellWord(pdf));
    const std::string label = "Page size:";
    const std::size_t at = ran.out.find(label);
    const std::size_t by = at == std::string::npos ? at : ran.out.find(" x ", at);
    if (by == std::string::npos) {
        ADD_FAILURE() << "no page in " << pdf << ": " << ran.out;
        return {0, 0};
    }
    constexpr double kMmPerPoint = 25.4 / 72;
    return {std::stoi(ran.out.substr(at + label.size())) * kMmPerPoint,
            std::stoi(ran.out.substr(by + 3)) * kMmPerPoint};
}

} // namespace loftwing
