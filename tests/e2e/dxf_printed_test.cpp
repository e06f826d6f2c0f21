// Our DXF files on the paper of a CAD program that knows nothing of this one.

#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "e2e/laden_files.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

constexpr double kDotsPerMm = 10;
constexpr int kDotsPerInch = 254;

/// The rectangle of what isn't white on a page, mm.
struct Ink {
    double width = 0;
    double height = 0;
    bool operator==(const Ink &) const = default;
};

/// The same in a picture of grey bytes.
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

class DxfPrinted : public LadenFiles {
  protected:
    void SetUp() override {
        for (const char *program : {"librecad", "pdftoppm", "pdfinfo"}) {
            if (RunShell(std::string("command -v ") + program).status != 0) {
                GTEST_SKIP() << "no " << program;
            }
        }
        fs::permissions(folder.Path(), fs::perms::owner_all); // what a runtime folder must be
    }

    /// Prints a drawing at true scale in the middle of a sheet and gives the sheet.
    std::string Printed(const std::string &dxf) {
        const std::string home = ShellWord(folder.Path());
        const Ran ran =
            RunShell("env -u DISPLAY HOME=" + home + " XDG_RUNTIME_DIR=" + home +
                     " XDG_CONFIG_HOME=" + home + " QT_QPA_PLATFORM=offscreen" +
                     " timeout 60 librecad dxf2pdf -m -c -s 1 -t " + home + " " + ShellWord(dxf));
        EXPECT_EQ(ran.status, 0) << ran.err;
        return fs::path(dxf).replace_extension(".pdf").string();
    }

    /// Ink in the middle of a sheet, which for a drawing in inches is many times as large as A4.
    Ink InkOn(const std::string &pdf) {
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
                     std::to_string(2 * half_width) + " -H " + std::to_string(2 * half_height) +
                     " " + ShellWord(pdf) + " " + ShellWord(picture));
        EXPECT_EQ(ran.status, 0) << ran.err;
        return InkOf(ReadWholeFile(picture + ".pgm"));
    }

    /// Width and height of a sheet, mm.
    static std::pair<double, double> PageOf(const std::string &pdf) {
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

    /// What a drawing claims as its extent, mm.
    static Ink Claimed(const std::string &dxf, bool inches) {
        const std::vector<std::string> lines = SplitLines(ReadWholeFile(dxf));
        const auto value = [&](const char *variable, std::ptrdiff_t behind) {
            std::istringstream number(*(std::find(lines.begin(), lines.end(), variable) + behind));
            number.imbue(std::locale::classic());
            double read = 0;
            number >> read;
            return read * (inches ? 25.4 : 1.0);
        };
        // The name, then a code and a value for each axis.
        return {value("$EXTMAX", 2) - value("$EXTMIN", 2),
                value("$EXTMAX", 4) - value("$EXTMIN", 4)};
    }
};

TEST_F(DxfPrinted, ThePlainFormIsAsLargeAsTheRib) {
    for (const char *kind : {"0", "1", "11"}) {
        for (const bool inches : {false, true}) {
            for (const bool inverted : {false, true}) {
                SCOPED_TRACE(std::string(kind) + (inches ? " in" : " mm") +
                             (inverted ? " inverted" : ""));
                const std::string dxf = Draw({kind, inches, inverted}, true);
                const Ink claimed = Claimed(dxf, inches);
                const Ink ink = InkOn(Printed(dxf));
                EXPECT_NEAR(ink.width, claimed.width, 1.0);
                EXPECT_NEAR(ink.height, claimed.height, 1.0);
                EXPECT_GT(ink.width, 160.0); // the chord, less what hides in dashes
            }
        }
    }
}

TEST_F(DxfPrinted, TheInterchangeFormIsAsLargeAsTheRib) {
    for (const char *kind : {"0", "1", "11"}) {
        SCOPED_TRACE(kind);
        ComponentsText rib = LadenRib(kind, false);
        rib.stations = "0"; // only the plain form has them
        const Ink claimed = Claimed(Draw(rib, false, true), false);
        const Ink ink = InkOn(Printed(Draw(rib, false, false)));
        EXPECT_NEAR(ink.width, claimed.width, 1.0);
        EXPECT_NEAR(ink.height, claimed.height, 1.0);
    }
}

TEST_F(DxfPrinted, TheInterchangeFormInInchesHasNoUnitButIsDrawn) {
    const Ink ink = InkOn(Printed(Draw({"11", true}, false)));
    EXPECT_NEAR(ink.width, 6.5, 0.5); // of whatever the reader takes for its unit
}

TEST_F(DxfPrinted, TheWordsAreThere) {
    ComponentsText rib = LadenRib("0", false);
    rib.text = "RIB";
    rib.text_y = "40";
    const Ink ink = InkOn(Printed(Draw(rib, false, true)));
    rib.text = "";
    const Ink without = InkOn(Printed(Draw(rib, false, true)));
    // Nine points of Arial hang down from 3 mm above their place: their capitals reach from 0.905
    // to 0.905 - 0.716 of that below. The rib's own top is at 0.0792 of the chord.
    const double top = 40 + 3 - 9 * 25.4 / 72 * (0.905 - 0.716);
    EXPECT_NEAR(ink.height - without.height, top - 0.0792 * 170, 1.0);
}

} // namespace
} // namespace loftwing
