#include "support/monkey_files.h"

#include "base/whole_file.h"
#include "support/components_text.h"
#include "support/rib_world.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

namespace loftwing {

namespace {

namespace fs = std::filesystem;

constexpr const char *kSettings = "Loftwing.ini";

std::string ExtensionIn(const std::string &name) {
    const std::size_t point = name.rfind('.');
    return point == std::string::npos ? std::string() : name.substr(point + 1);
}

/// A number of the text, from the place on where it is searched for, becomes another one.
void ReplaceNumber(std::string &bytes, std::size_t from, const std::string &other) {
    const std::size_t begin = bytes.find_first_of("0123456789", from);
    if (begin == std::string::npos) {
        return;
    }
    const std::size_t end = bytes.find_first_not_of("0123456789.", begin);
    bytes.replace(begin, (end == std::string::npos ? bytes.size() : end) - begin, other);
}

} // namespace

MonkeyFiles::MonkeyFiles(Dice &dice) : dice_(dice) {
    for (const char *name : {"airfoils", "airfoils/more", "sets", "out", "closed", "cwd"}) {
        fs::create_directories(folder_.Path(name));
    }
    KeepAirfoils();
    KeepRibs();
    KeepPanels();
    fs::create_directories(folder_.Path("airfoils/folder.dat"));
    fs::permissions(folder_.Path("closed"), fs::perms::owner_read | fs::perms::owner_exec);
}

void MonkeyFiles::Keep(const std::string &name, const std::string &bytes) {
    files_.push_back({name, bytes});
    folder_.File(name, bytes);
}

void MonkeyFiles::KeepAirfoils() {
    const std::vector<std::string> all = AirfoilFiles();
    constexpr int kGood = 16;
    for (int i = 0; i < kGood; ++i) {
        const fs::path source = dice_.Of(all);
        const std::string bytes = ReadWholeFile(source.string());
        const std::string name = source.filename().string();
        Keep("airfoils/" + name, bytes);
        Keep("airfoils/more/hurt " + name, Damaged(bytes));
    }
    Keep("airfoils/naca2412.dat",
         ReadWholeFile(LOFTWING_SOURCE_DIR "/resources/airfoils/naca2412.dat"));
    Keep("airfoils/-fl\xC3\xBCgel \xF0\x9F\x9B\xA9 50%.dat", files_.front().bytes);
    Keep("airfoils/empty.dat", "");
    Keep("airfoils/percent.dat",
         "Wing 12\n100 0\n95 1.2\n80 3.9\n60 6.9\n40 8.8\n25 9\n15 7.9\n7.5 5.9\n2.5 3.4\n0 0\n"
         "2.5 -1.6\n10 -2.5\n30 -2.6\n60 -1.4\n85 -.5\n100 0\n");
    const std::string closed = "airfoils/closed.dat";
    Keep(closed, files_.front().bytes);
    fs::permissions(folder_.Path(closed), fs::perms::owner_read);
}

void MonkeyFiles::KeepRibs() {
    for (const char *kind : {"0", "1", "11"}) {
        const std::string name = std::string("sets/laden") + kind;
        const std::string bytes = LadenRib(kind, false).Current();
        Keep(name + ".lfw", bytes);
        Keep(name + "in.lfw", LadenRib(kind, true).Current());
        Keep(name + "old.lfw", LadenRib(kind, false).Older());
        for (const char *hurt : {"a", "b", "c"}) {
            Keep(name + "hurt" + hurt + ".lfw", Damaged(bytes));
        }
    }
}

void MonkeyFiles::KeepPanels() {
    const fs::path samples = LOFTWING_SOURCE_DIR "/resources/samples/wing";
    for (const char *name : {"root.lfw", "tip.lfw", "naca2412.dat", "wing.lfp"}) {
        Keep(std::string("sets/") + name, ReadWholeFile((samples / name).string()));
    }
    const std::string panel = ReadWholeFile((samples / "wing.lfp").string());
    Keep("sets/hurt.lfp", Damaged(panel));
    Keep("sets/short.lfp", "[Panel]\nRoot=root.lfw\nTip=tip.lfw\nUnit=mm\nCount=3\nLength=240\n");
    Keep("sets/wing.lfa", "[Wing]\nPanel1=wing.lfp\nPanel2=short.lfp\n");
    Keep("sets/hurt.lfa", "[Wing]\nPanel1=hurt.lfp\nPanel2=nowhere.lfp\nPanel3=wing.lfa\n");
}

std::string MonkeyFiles::Damaged(std::string bytes) {
    static const std::array<const char *, 8> kNumbers = {"1e308",  "-0",    "nan", "99999999999",
                                                         "1e-300", "40000", "-1",  ""};
    for (int hits = dice_.Between(1, 4); hits > 0 && !bytes.empty(); --hits) {
        const auto place = static_cast<std::size_t>(dice_.Below(static_cast<int>(bytes.size())));
        switch (dice_.Below(6)) {
        case 0:
            bytes.resize(place);
            break;
        case 1:
            bytes[place] = static_cast<char>(dice_.Below(256));
            break;
        case 2:
        case 3:
            ReplaceNumber(bytes, place, dice_.Of(kNumbers));
            break;
        case 4:
            bytes.erase(place, 1 + static_cast<std::size_t>(dice_.Below(40)));
            break;
        default:
            bytes.insert(place, bytes.substr(0, place));
            break;
        }
    }
    return bytes;
}

const MonkeyFiles::Known &MonkeyFiles::OfKind(const std::string &extension) {
    std::vector<const Known *> fitting;
    for (const Known &file : files_) {
        if (ExtensionIn(file.name) == extension) {
            fitting.push_back(&file);
        }
    }
    return fitting.empty() ? dice_.Of(files_) : *dice_.Of(fitting);
}

std::string MonkeyFiles::Settings(const std::string &language, const std::string &unit) const {
    return "[Language]\r\nLangue=" + language + "\r\n[Defaut]\r\nunit= " + unit +
           "\r\ncordeAfich=" + (unit == "in" ? "8" : "200") +
           "\r\nEpCoffrageAfich=" + (unit == "in" ? "1/16" : "1.5") +
           "\r\n[Repertoires]\r\nInstall=1\r\nRepProfil=" + folder_.Path("airfoils") +
           "\r\nRepProfilevol=" + folder_.Path("sets") +
           "\r\nLastOpenProfil=" + folder_.Path("airfoils") + "\r\n";
}

void MonkeyFiles::Settle(const std::string &language, const std::string &unit) {
    folder_.File(kSettings, Settings(language, unit));
}

void MonkeyFiles::SettleBadly(const std::string &language, const std::string &unit) {
    folder_.File(kSettings, Damaged(Settings(language, unit)));
}

void MonkeyFiles::Unsettle() {
    fs::remove(folder_.Path(kSettings));
}

std::string MonkeyFiles::ToOpen(const std::string &extension) {
    switch (dice_.Below(12)) {
    case 0:
        return folder_.Path(dice_.Of(files_).name);
    case 1:
        return dice_.OneIn(2) ? folder_.Path("airfoils/folder.dat")
                              : folder_.Path("nowhere/none." + extension);
    case 2:
        return folder_.Path("out/" + std::to_string(dice_.Below(4)) + "." + extension);
    default:
        return folder_.Path(OfKind(extension).name);
    }
}

std::string MonkeyFiles::ToSave(const std::string &extension) {
    constexpr std::size_t kTooLong = 300;
    switch (dice_.Below(14)) {
    case 0:
        return folder_.Path("closed/new." + extension);
    case 1:
        return folder_.Path("nowhere/new." + extension);
    case 2:
        return folder_.Path("airfoils/folder.dat");
    case 3:
        return folder_.Path("out/" + std::string(kTooLong, 'l') + "." + extension);
    case 4:
        return folder_.Path(OfKind(extension).name);
    case 5:
        return folder_.Path("out/no extension");
    default:
        return folder_.Path("out/" + std::to_string(dice_.Below(4)) + "." + extension);
    }
}

std::string MonkeyFiles::AnyFolder() {
    static const std::array<const char *, 5> kFolders = {"airfoils", "sets", "out", "closed",
                                                         "nowhere"};
    return folder_.Path(dice_.Of(kFolders));
}

std::string MonkeyFiles::Meddle() {
    const Known &file = dice_.Of(files_);
    const std::string path = folder_.Path(file.name);
    std::error_code ignored;
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write, ignored);
    switch (dice_.Below(4)) {
    case 0:
        fs::remove(path, ignored);
        return "removes " + file.name;
    case 1:
        folder_.File(file.name, Damaged(file.bytes));
        return "damages " + file.name;
    default:
        folder_.File(file.name, file.bytes);
        return "puts back " + file.name;
    }
}

std::vector<std::string> MonkeyFiles::Unfinished() const {
    std::vector<std::string> left;
    std::error_code error;
    for (fs::recursive_directory_iterator it(folder_.Path(), error), end; !error && it != end;
         it.increment(error)) {
        if (it->path().extension() == ".part") {
            left.push_back(it->path().string());
        }
    }
    return left;
}

} // namespace loftwing
