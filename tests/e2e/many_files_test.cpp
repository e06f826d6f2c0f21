// Many files in one command: what comes of them is what comes of them one by one.

#include "base/whole_file.h"
#include "e2e/program.h"
#include "support/components_text.h"
#include "support/one_locale.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <locale>
#include <map>
#include <random>
#include <sstream>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

using testing::HasSubstr;
using testing::StartsWith;

/// What a command told and left behind.
struct Outcome {
    int status = 0;
    std::string out;
    std::string err;
    std::map<std::string, std::string> files;
};

std::map<std::string, std::string> FilesOf(const fs::path &folder) {
    std::map<std::string, std::string> files;
    std::error_code error;
    for (const auto &entry : fs::directory_iterator(folder, error)) {
        files[entry.path().filename().string()] = ReadWholeFile(entry.path().string());
    }
    return files;
}

/// Airfoils of many and of few points, ribs, and what can't be opened, in any order: who is done
/// early must wait for who is slow.
class ManyFilesOnTheCommandLine : public testing::Test {
  protected:
    TempFolder folder;
    std::vector<std::string> files_ = Files();

    Outcome Run(std::vector<std::string> words, const std::string &out,
                const std::vector<std::string> &files) const {
        if (!out.empty()) {
            words.insert(words.end(), {"-o", out});
        }
        words.insert(words.end(), files.begin(), files.end());
        const Ran ran = RunLoftwing(words);
        return {ran.status, ran.out, ran.err, FilesOf(out)};
    }
    /// The same with a command for each file.
    Outcome RunEach(const std::vector<std::string> &words, const std::string &out) const {
        Outcome all;
        for (const std::string &file : files_) {
            const Outcome one = Run(words, out, {file});
            all.status = std::max(all.status, one.status);
            all.out += one.out;
            all.err += one.err;
        }
        all.files = FilesOf(out);
        return all;
    }
    void ExpectTheSame(const std::vector<std::string> &words, bool writes = true) const {
        SCOPED_TRACE(words.front());
        const Outcome together = Run(words, writes ? folder.Path("together/") : "", files_);
        const Outcome one_by_one = RunEach(words, writes ? folder.Path("single/") : "");
        EXPECT_EQ(together.status, one_by_one.status);
        EXPECT_EQ(together.out, one_by_one.out);
        EXPECT_EQ(together.err, one_by_one.err);
        EXPECT_EQ(together.files == one_by_one.files, true) << "files differ";
        EXPECT_EQ(together.files.empty(), !writes);
    }

  private:
    std::vector<std::string> Files() const {
        std::vector<std::string> files;
        for (const char *name : {"naca0006.dat", "naca23112.dat", "naca2412.dat", "naca6412.dat"}) {
            files.push_back(Sample(name));
        }
        for (int i = 0; i < 4; ++i) {
            const std::string name = std::to_string(i);
            files.push_back(folder.File("dense" + name + ".dat", Dense(200 + 150 * i)));
            files.push_back(folder.File("bad" + name + ".dat", "Title\n0.5 0.1\n1.0 0.0\n"));
            files.push_back(folder.Path("none" + name + ".dat"));
            ComponentsText rib;
            rib.chord = std::to_string(90 + 10 * i);
            files.push_back(folder.File("rib" + name + ".lfw", rib.Current()));
        }
        folder.File("naca2412.dat", ReadWholeFile(Sample("naca2412.dat"))); // of the ribs
        const unsigned seed = std::random_device{}();
        std::cout << "seed " << seed << '\n';
        std::shuffle(files.begin(), files.end(), std::mt19937{seed});
        // Each of them is a program to start.
        files.resize(std::min<std::size_t>(files.size(), ManyInOneLocale(64)));
        return files;
    }
    /// A lens of `count` points, trailing edge to trailing edge.
    static std::string Dense(int count) {
        std::ostringstream text;
        text.imbue(std::locale::classic());
        text << "Lens of " << count << '\n';
        for (int i = 0; i <= count; ++i) {
            const double x = std::abs(1.0 - 2.0 * i / count);
            const double y = 0.2 * x * (1 - x) * (2 * i < count ? 1 : -1);
            text << x << ' ' << y << '\n';
        }
        return text.str();
    }
};

TEST_F(ManyFilesOnTheCommandLine, AreDrawnAsOneByOne) {
    for (const char *form : {"svg", "dxf", "lfw"}) {
        ExpectTheSame({"draw", "--to", form, "--chord", "123.5"});
    }
}

TEST_F(ManyFilesOnTheCommandLine, AreDrawnWithTheToolkitAsOneByOne) {
    ExpectTheSame({"draw", "--to", "png", "--invert"});
}

TEST_F(ManyFilesOnTheCommandLine, AreCutAsOneByOne) {
    ExpectTheSame({"cut", "--to", "svg", "--json", "--kerf", "0.3", "--chord", "60"});
}

TEST_F(ManyFilesOnTheCommandLine, ArePlottedAsOneByOne) {
    ExpectTheSame({"plot", "--to", "svg", "--language", "French"});
}

TEST_F(ManyFilesOnTheCommandLine, AreConvertedAsOneByOne) {
    ExpectTheSame({"convert", "--points", "120"});
}

TEST_F(ManyFilesOnTheCommandLine, AreToldOfAsOneByOne) {
    ExpectTheSame({"info", "--json", "--stations", "--unit", "in"}, false);
}

TEST_F(ManyFilesOnTheCommandLine, AreToldOfInReadableLinesInTheirOrder) {
    const Outcome together = Run({"info"}, "", files_);
    const Outcome one_by_one = RunEach({"info"}, "");
    EXPECT_EQ(together.out, one_by_one.out);
    EXPECT_EQ(together.status, one_by_one.status);
    std::string refused;
    std::istringstream lines(together.err);
    for (std::string line; std::getline(lines, line);) {
        refused += line.ends_with(" was refused") ? line + '\n' : "";
    }
    std::string wanted;
    for (const std::string &file : files_) {
        const std::string name = fs::path(file).filename().string();
        if (name.starts_with("bad") || name.starts_with("none")) {
            wanted += "loftwing: " + file + " was refused\n";
        }
    }
    EXPECT_EQ(refused, wanted);
}

TEST_F(ManyFilesOnTheCommandLine, TellWhatTheyDoOnBothStreamsInOneOrder) {
    std::string line = ShellWord(ProgramTried()) + " info --json";
    std::string one_by_one;
    for (const std::string &file : files_) {
        one_by_one += RunShell(line + " " + ShellWord(file) + " 2>&1").out;
    }
    for (const std::string &file : files_) {
        line += " " + ShellWord(file);
    }
    EXPECT_EQ(RunShell(line + " 2>&1").out, one_by_one);
}

TEST_F(ManyFilesOnTheCommandLine, OfOneNameLeaveTheLastOne) {
    fs::create_directory(folder.Path("other"));
    const std::string first = folder.File("wing.dat", ReadWholeFile(Sample("naca0006.dat")));
    const std::string last = folder.File("other/wing.dat", ReadWholeFile(Sample("naca4415.dat")));
    const Outcome last_alone = Run({"draw", "--to", "svg"}, folder.Path("alone/"), {last});
    std::vector<std::string> files(20, first);
    files.push_back(last);
    const Outcome all = Run({"draw", "--to", "svg"}, folder.Path("all/"), files);
    EXPECT_EQ(all.status, 0) << all.err;
    EXPECT_EQ(all.files == last_alone.files, true);
}

TEST_F(ManyFilesOnTheCommandLine, ThatAreMadeByTheSameCommandAreReadAsItMadeThem) {
    fs::create_directory(folder.Path("lib"));
    std::vector<std::string> files;
    for (int i = 0; i < 10; ++i) {
        // What comes of the table is the file that is read behind it.
        const std::string name = "lib/wing" + std::to_string(i);
        files.push_back(folder.File(name + ".txt", ReadWholeFile(Sample("naca0006.dat"))));
        files.push_back(folder.File(name + ".dat", ReadWholeFile(Sample("naca4415.dat"))));
    }
    const Outcome ran = Run({"convert"}, folder.Path("lib/"), files);
    EXPECT_EQ(ran.status, 0) << ran.err;
    for (int i = 0; i < 10; ++i) {
        EXPECT_THAT(ran.files.at("wing" + std::to_string(i) + ".dat"), StartsWith("NACA 0006"));
    }
}

TEST_F(ManyFilesOnTheCommandLine, FailEachWhereTheSettingsAreMissing) {
    const std::vector<std::string> three(files_.begin(), files_.begin() + 3);
    const Outcome ran = Run({"draw", "--to", "svg", "--settings", folder.Path("none.ini")},
                            folder.Path("out/"), three);
    std::string wanted;
    for (const std::string &file : three) {
        wanted += "loftwing: " + file + ": File not found: " + folder.Path("none.ini") + "\n";
    }
    EXPECT_EQ(ran.status, 1);
    EXPECT_EQ(ran.err, wanted);
}

TEST_F(ManyFilesOnTheCommandLine, AreNotBegunWhereTheWordsAreWrong) {
    const Outcome ran =
        Run({"draw", "--to", "svg", "--paper", "none"}, folder.Path("out/"), files_);
    EXPECT_EQ(ran.status, 2);
    EXPECT_THAT(ran.err, StartsWith("loftwing: no paper none; there are "));
    EXPECT_EQ(std::count(ran.err.begin(), ran.err.end(), '\n'), 1);
    EXPECT_TRUE(ran.files.empty());
}

TEST_F(ManyFilesOnTheCommandLine, LeaveWholeFilesWhereNobodyListens) {
    std::string line =
        ShellWord(ProgramTried()) + " cut --json --to svg -o " + ShellWord(folder.Path("out/"));
    for (int i = 0; i < 40; ++i) {
        line += " " + ShellWord(Sample("naca2412.dat"));
    }
    const Ran ran = RunShell("{ " + line + " 2>&1; echo $? > " + ShellWord(folder.Path("status")) +
                             "; } | true");
    if (!IsForeign()) { // this system ends whom nobody listens to
        EXPECT_EQ(folder.Bytes("status"), "141\n") << "ended by the pipe";
    }
    for (const auto &[name, bytes] : FilesOf(folder.Path("out"))) {
        EXPECT_EQ(name, "naca2412.svg");
        EXPECT_THAT(bytes, HasSubstr("</svg>"));
    }
}

} // namespace
} // namespace loftwing
