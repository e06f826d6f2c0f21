// The floors of the house: a file includes what lies on its own floor or below.

#include "base/whole_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::IsEmpty;

/// From the top. The two kinds of names are floors of their own, whatever folder they lie in, but
/// for the two folders on top.
const std::vector<std::string> kFloors = {
    "app",    "mainwindow", "frm*", "qt_*", "programme", "utilities", "persist",
    "output", "features",   "core", "lang", "platform",  "base"};
const std::string kLastWithToolkit = "qt_*";

/// What CONTRIBUTING.md says, with the line below which there is no toolkit as "-".
std::vector<std::string> WrittenFloors() {
    std::istringstream text(ReadWholeFile(LOFTWING_SOURCE_DIR "/CONTRIBUTING.md"));
    std::vector<std::string> floors;
    std::string line;
    while (std::getline(text, line) && line != "## Floors") {
    }
    while (std::getline(text, line) && (floors.empty() || line.starts_with("    "))) {
        if (line.starts_with("    ---")) {
            floors.emplace_back("-");
        } else if (line.starts_with("    ") && line.size() > 4 && line[4] != ' ') {
            const std::string name = line.substr(4, line.find(' ', 4) - 4);
            floors.push_back(name.substr(0, name.find('/')));
        }
    }
    return floors;
}

/// The floor of a file as it is included ("features/frmtrou.h"); empty when it lies on none.
std::string FloorOf(const std::string &file) {
    const fs::path path(file);
    const std::string folder = path.parent_path().string();
    const std::string name = path.filename().string();
    if (folder != "app" && folder != "mainwindow") {
        for (const std::string &kind : {std::string("frm*"), std::string("qt_*")}) {
            if (!folder.empty() && name.starts_with(kind.substr(0, kind.size() - 1))) {
                return kind;
            }
        }
    }
    return std::count(kFloors.begin(), kFloors.end(), folder) > 0 ? folder : "";
}

/// Counted from the ground.
std::ptrdiff_t Height(const std::string &floor) {
    return kFloors.end() - std::find(kFloors.begin(), kFloors.end(), floor);
}

bool OfStandardLibrary(const std::string &header) {
    return std::all_of(header.begin(), header.end(), [](unsigned char letter) {
        return std::islower(letter) != 0 || std::isdigit(letter) != 0 || letter == '_';
    });
}

bool OfToolkit(const std::string &header) {
    return header.size() > 1 && header[0] == 'Q' &&
           std::isalpha(static_cast<unsigned char>(header[1])) != 0 &&
           header.find_first_of("/.") == std::string::npos;
}

/// The units that ask the system itself, and what they may include for that.
const std::map<std::string, std::vector<std::string>> kSystemUnits = {
    {"platform/system.cpp", {"fcntl.h", "io.h", "mach-o/dyld.h", "shellapi.h", "windows.h"}},
    {"base/disk.cpp", {"fcntl.h", "io.h", "sys/file.h", "sys/stat.h", "unistd.h", "windows.h"}}};

bool OfSystem(const std::string &file, const std::string &header) {
    const auto unit = kSystemUnits.find(file);
    return unit != kSystemUnits.end() &&
           std::count(unit->second.begin(), unit->second.end(), header) > 0;
}

struct Include {
    std::string name;
    bool ours = false; ///< "name", not <name>
};

std::vector<Include> IncludesOf(const std::string &source) {
    std::vector<Include> includes;
    std::istringstream text(source);
    std::string line;
    while (std::getline(text, line)) {
        std::string word;
        std::string rest;
        for (const char letter : line) { // blanks may stand anywhere
            word += letter == ' ' || letter == '\t' || letter == '\r' ? "" : std::string(1, letter);
        }
        constexpr std::string_view kMark = "#include";
        if (!word.starts_with(kMark) || word.size() < kMark.size() + 3) {
            continue;
        }
        const char open = word[kMark.size()];
        const std::size_t start = kMark.size() + 1;
        const std::size_t end = word.find(open == '<' ? '>' : '"', start);
        includes.push_back({word.substr(start, end - start), open == '"'});
    }
    return includes;
}

/// A library is named in one file, behind an interface of ours.
bool OfItsLibrary(const std::string &file, const std::string &header) {
    return file == "output/surface.cpp" && header == "polyclipping/clipper.hpp";
}

/// What is wrong with this include in that file; empty when it holds the floors.
std::string Wrong(const std::string &file, const Include &include) {
    const std::string floor = FloorOf(file);
    if (floor.empty()) {
        return file + " lies on no floor";
    }
    const bool toolkit = Height(floor) >= Height(kLastWithToolkit);
    if (include.ours) {
        const std::string other = FloorOf(include.name);
        if (other.empty()) {
            return file + " includes " + include.name + ", which lies on no floor";
        }
        return Height(other) > Height(floor)
                   ? file + " (" + floor + ") includes " + include.name + " of a floor above"
                   : "";
    }
    if (OfToolkit(include.name)) {
        return toolkit ? "" : file + " lies below the toolkit's line and includes " + include.name;
    }
    return OfStandardLibrary(include.name) || OfSystem(file, include.name) ||
                   OfItsLibrary(file, include.name)
               ? ""
               : file + " includes " + include.name + ", which is not of the standard library";
}

std::vector<std::string> WrongIn(const std::string &file, const std::string &source) {
    std::vector<std::string> all;
    for (const Include &include : IncludesOf(source)) {
        std::string wrong = Wrong(file, include);
        if (!wrong.empty()) {
            all.push_back(std::move(wrong));
        }
    }
    return all;
}

TEST(Floors, AreThoseThatAreWritten) {
    std::vector<std::string> floors = kFloors;
    floors.insert(std::find(floors.begin(), floors.end(), kLastWithToolkit) + 1, "-");
    EXPECT_EQ(WrittenFloors(), floors);
}

TEST(Floors, EveryFileIncludesItsOwnFloorOrOnesBelow) {
    const fs::path sources = LOFTWING_SOURCE_DIR "/src";
    std::size_t files = 0;
    std::size_t includes = 0;
    for (const auto &entry : fs::recursive_directory_iterator(sources)) {
        if (!entry.is_regular_file()) {
            continue;
        }
        const std::string source = ReadWholeFile(entry.path().string());
        EXPECT_THAT(WrongIn(fs::relative(entry.path(), sources).generic_string(), source),
                    IsEmpty());
        includes += IncludesOf(source).size();
        ++files;
    }
    EXPECT_GT(files, 200U);
    EXPECT_GT(includes, 1000U);
}

TEST(Floors, AFileMayIncludeItsOwnFloorAndThoseBelow) {
    EXPECT_THAT(WrongIn("features/trou.cpp", "#include \"features/trou.h\"\n"
                                             "#include \"features/longeron.h\"\n"
                                             "#include \"core/units.h\"\n"
                                             "#include \"base/failure.h\"\n"
                                             "#include <vector>\n"
                                             "#include <cstdint>\n"),
                IsEmpty());
    EXPECT_THAT(WrongIn("lang/frmlang.cpp", "#include \"utilities/frmangle.h\"\n"
                                            "#include \"output/qt_export.h\"\n"
                                            "#include \"programme/programme.h\"\n"
                                            "#include <QDialog>\n"
                                            "#include <string>\n"),
                IsEmpty());
    EXPECT_THAT(WrongIn("mainwindow/frmopen.h", "#include \"features/frmtrou.h\"\n"), IsEmpty());
    EXPECT_THAT(WrongIn("app/main.cpp", "#include \"mainwindow/frmmain.h\"\n"), IsEmpty());
}

TEST(Floors, AnIncludeOfAFloorAboveIsFound) {
    const std::vector<std::pair<std::string, std::string>> upward = {
        {"base/failure.h", "platform/platform.h"},
        {"platform/platform.h", "lang/LngIni.h"},
        {"lang/ini_file.cpp", "core/units.h"},
        {"core/contour.cpp", "features/trou.h"},
        {"features/trou.cpp", "output/dxf.h"},
        {"output/dxf.cpp", "persist/settings.h"},
        {"persist/settings.cpp", "utilities/coord.h"},
        {"utilities/coord.cpp", "programme/load.h"},
        {"programme/load.cpp", "programme/qt_export_forms.h"},
        {"platform/qt_form.cpp", "lang/frmlang.h"},
        {"utilities/frmangle.cpp", "mainwindow/pic_view.h"},
        {"utilities/frmangle.cpp", "mainwindow/frmopen.h"},
        {"mainwindow/frmmain.cpp", "app/arguments.h"}};
    for (const auto &[file, included] : upward) {
        EXPECT_THAT(WrongIn(file, "#pragma once\n\n  # include\t\"" + included + "\" // why\n"),
                    testing::ElementsAre(HasSubstr(included + " of a floor above")));
    }
}

TEST(Floors, BelowTheLineThereIsNoToolkit) {
    EXPECT_THAT(WrongIn("programme/load.cpp", "#include <QString>\n"),
                testing::ElementsAre(HasSubstr("includes QString")));
    EXPECT_THAT(WrongIn("core/units.h", "#include <Qt>\n#include \"platform/qt_text.h\"\n"
                                        "#include \"features/frmtrou.h\"\n"),
                testing::SizeIs(3));
}

TEST(Floors, NothingButStandardLibraryAndToolkitIsUsed) {
    for (const char *header : {"unistd.h", "sys/stat.h", "fcntl.h", "math.h", "boost/any.hpp"}) {
        for (const char *file :
             {"base/whole_file.cpp", "platform/qt_printer.cpp", "app/main.cpp"}) {
            EXPECT_THAT(WrongIn(file, std::string("#include <") + header + ">\n"),
                        testing::ElementsAre(HasSubstr("not of the standard library")))
                << file << header;
        }
    }
}

TEST(Floors, TwoUnitsAskTheSystem) {
    const std::string source = "#include <windows.h>\n#include <mach-o/dyld.h>\n";
    EXPECT_THAT(WrongIn("platform/system.cpp", source), IsEmpty());
    EXPECT_THAT(WrongIn("platform/system.h", source), testing::SizeIs(2));
    EXPECT_THAT(WrongIn("base/whole_file.cpp", source), testing::SizeIs(2));
    EXPECT_THAT(WrongIn("platform/system.cpp", "#include <unistd.h>\n"), testing::SizeIs(1));
    EXPECT_THAT(WrongIn("base/disk.cpp", "#include <unistd.h>\n#include <sys/file.h>\n"),
                IsEmpty());
    EXPECT_THAT(WrongIn("base/disk.cpp", source), testing::SizeIs(1));
    EXPECT_THAT(WrongIn("base/disk.h", "#include <unistd.h>\n"), testing::SizeIs(1));
}

TEST(Floors, ALibraryIsNamedInOneFile) {
    const std::string clipper = "#include <polyclipping/clipper.hpp>\n";
    EXPECT_THAT(WrongIn("output/surface.cpp", clipper), IsEmpty());
    EXPECT_THAT(WrongIn("output/surface_parallel.cpp", clipper), testing::SizeIs(1));
    EXPECT_THAT(WrongIn("output/surface.cpp", "#include <polyclipping/other.hpp>\n"),
                testing::SizeIs(1));
}

TEST(Floors, AFileThatLiesNowhereIsFound) {
    EXPECT_THAT(WrongIn("attic/old.cpp", "#include <vector>\n"),
                testing::ElementsAre(HasSubstr("lies on no floor")));
    // Without its folder a header doesn't say where it lies.
    EXPECT_THAT(WrongIn("core/units.cpp", "#include \"units.h\"\n#include \"frmtrou.h\"\n"),
                testing::SizeIs(2));
}

TEST(Floors, CommentsAreNoIncludes) {
    EXPECT_THAT(IncludesOf("// #include \"app/main.h\"\nint include = 0; // \"x\"\n"), IsEmpty());
}

} // namespace
} // namespace loftwing
