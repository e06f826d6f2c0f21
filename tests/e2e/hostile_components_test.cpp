// Rib components files that nobody should have written.

#include "base/whole_file.h"
#include "e2e/laden_files.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <filesystem>

#include <sys/stat.h>

namespace loftwing {
namespace {

namespace fs = std::filesystem;
using testing::MatchesRegex;
using testing::StartsWith;

using Lines = ComponentsText::Lines;

constexpr long kMillion = 1000000;

class HostileComponents : public testing::Test {
  protected:
    struct Answer {
        int status;
        std::vector<std::string> lines; ///< on standard error
        double seconds;
    };

    HostileComponents() {
        folder.File("naca2412.dat", ReadWholeFile(Sample("naca2412.dat")));
        fs::create_directory(folder.Path("out"));
    }

    /// Draws the file `name` of the folder in one of the forms that take another way.
    Answer Draw(const std::string &name, const std::string &form, const std::string &unit = "mm") {
        const auto start = std::chrono::steady_clock::now();
        const Ran ran = RunShell("timeout 60 " + ShellWord(ProgramTried()) + " draw " +
                                 ShellWord(folder.Path(name)) + " --unit " + unit + " -o " +
                                 ShellWord(folder.Path("out/rib." + form)));
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        Answer answer{ran.status, {}, taken.count()};
        for (std::size_t at = 0; at < ran.err.size();) {
            const std::size_t end = ran.err.find('\n', at);
            answer.lines.push_back(ran.err.substr(at, end - at));
            at = std::min(end, ran.err.size() - 1) + 1;
        }
        EXPECT_EQ(ran.out, "");
        return answer;
    }

    /// The file is refused in every form, with one line, at once, and nothing is written.
    void ExpectRefused(const std::string &name, const std::string &description = ".*") {
        for (const char *form : {"svg", "dxf", "lfw"}) {
            SCOPED_TRACE(name + " to " + form);
            const Answer answer = Draw(name, form);
            EXPECT_EQ(answer.status, 1);
            EXPECT_THAT(answer.lines,
                        testing::ElementsAre(MatchesRegex(
                            "Error LireEcrire/newLfw: Error # [0-9]+ in Loftwing " + description)));
            EXPECT_LT(answer.seconds, 10.0);
            EXPECT_TRUE(fs::is_empty(folder.Path("out")));
        }
    }
    void ExpectRefusedBytes(const std::string &name, const std::string &bytes,
                            const std::string &description = ".*") {
        folder.File(name, bytes);
        ExpectRefused(name, description);
        EXPECT_TRUE(folder.Bytes(name) == bytes) << name;
    }

    TempFolder folder;
};

std::string Repeated(const std::string &part, long times) {
    std::string all;
    for (long i = 0; i < times; ++i) {
        all += part;
    }
    return all;
}

TEST_F(HostileComponents, CountsOfTwoHundredAreBeyondTheSlots) {
    Lines spars = ComponentsText{}.CurrentLines();
    spars.at(17) = " 200 ";
    spars.insert(spars.begin() + 18, 300 * 9, "1");
    ExpectRefusedBytes("spars.lfw", ComponentsText::Bytes(spars), "Subscript out of range");
    Lines holes = ComponentsText{}.CurrentLines();
    holes.at(28) = "200";
    holes.insert(holes.begin() + 29, 300 * 8, "1");
    ExpectRefusedBytes("holes.lfw", ComponentsText::Bytes(holes), "Subscript out of range");
    Lines older = ComponentsText{}.OlderLines();
    older.at(12) = "200";
    older.insert(older.begin() + 13, 300 * 6, "1");
    ExpectRefusedBytes("older.lfw", ComponentsText::Bytes(older), "Subscript out of range");
    for (const char *count : {"256", "-1", "1e30"}) {
        spars.at(17) = count;
        ExpectRefusedBytes("count.lfw", ComponentsText::Bytes(spars), "Overflow");
    }
}

TEST_F(HostileComponents, AMillionLinesAreReadOrRefusedAtOnce) {
    ExpectRefusedBytes("numbers.lfw", Repeated("1\r\n", kMillion));
    ExpectRefusedBytes("empty.lfw", Repeated("\n", kMillion));
    // Three letters leave the older format's text line alone, so this one is read as records.
    ExpectRefusedBytes("words.lfw", Repeated("abc\n", kMillion), "Input past end of file");
    ExpectRefusedBytes("behind.lfw", ComponentsText{}.Current() + Repeated("0\r\n", kMillion));
    ExpectRefusedBytes("magic.lfw", Repeated("LFW V3.0\r\n", kMillion));
}

TEST_F(HostileComponents, OfAMillionLinesOfGoodRecordsTheLastOneCounts) {
    ComponentsText last;
    last.chord = "123";
    const long records = kMillion / static_cast<long>(last.CurrentLines().size());
    folder.File("many.lfw", Repeated(ComponentsText{}.Current(), records) + last.Current());
    const Answer answer = Draw("many.lfw", "lfw");
    EXPECT_EQ(answer.status, 0);
    EXPECT_LT(answer.seconds, 10.0);
    EXPECT_EQ(folder.Bytes("out/rib.lfw"), last.Current());
}

TEST_F(HostileComponents, WhatIsNoTextIsRefused) {
    ExpectRefusedBytes("zeros.lfw", std::string(kMillion, '\0'));
    ExpectRefusedBytes("one.lfw", std::string(1, '\0'));
    ExpectRefusedBytes("line.lfw", std::string(10 * kMillion, 'x'));
    std::string binary;
    for (long i = 0; i < kMillion; ++i) {
        binary += static_cast<char>(i * i * 7919 >> 7);
    }
    ExpectRefusedBytes("binary.lfw", binary);
    ExpectRefusedBytes("disguised.lfw", "LFW V3.0" + binary);
    // Lines ended as no system of today ends them are one line.
    std::string bare = ComponentsText{}.Current();
    std::erase(bare, '\n');
    ExpectRefusedBytes("bare.lfw", bare, "Input past end of file");
    std::string joined = ComponentsText{}.Current();
    std::erase(joined, '\r');
    std::erase(joined, '\n');
    ExpectRefusedBytes("joined.lfw", joined, "Input past end of file");
}

TEST_F(HostileComponents, EndlessNumbersAreRefused) {
    for (const char *digit : {"9", ".", "-", "0"}) {
        ComponentsText file;
        file.chord = Repeated(digit, kMillion) + "1e999";
        folder.File("number.lfw", file.Current());
        for (const char *unit : {"mm", "in"}) {
            const Answer answer = Draw("number.lfw", "dxf", unit);
            EXPECT_EQ(answer.status, 1) << digit;
            EXPECT_GE(answer.lines.size(), 1U) << digit;
            EXPECT_LE(answer.lines.size(), 2U) << digit;
            EXPECT_LT(answer.seconds, 10.0) << digit;
            EXPECT_TRUE(fs::is_empty(folder.Path("out"))) << digit;
        }
    }
}

TEST_F(HostileComponents, AStrayCarriageReturnReadsTheSameBeforeAndAfterWriting) {
    ComponentsText file;
    file.chord = "15\r0";
    folder.File("stray.lfw", file.Current());
    EXPECT_EQ(Draw("stray.lfw", "lfw").status, 0);
    fs::copy(folder.Path("out/rib.lfw"), folder.Path("written.lfw"));
    EXPECT_EQ(Draw("stray.lfw", "dxf").status, 0);
    const std::string before = folder.Bytes("out/rib.dxf");
    EXPECT_EQ(Draw("written.lfw", "dxf").status, 0);
    EXPECT_TRUE(folder.Bytes("out/rib.dxf") == before);
}

TEST_F(HostileComponents, LengthsThatAreNoneAreToldOnce) {
    // In inches a point must have digits behind it. Of many records the last one counts.
    Lines older = ComponentsText{}.OlderLines();
    for (const std::size_t length : {5U, 6U, 7U, 8U, 9U, 10U}) {
        older.at(length) = "2./8";
    }
    folder.File("many.lfw", Repeated(ComponentsText::Bytes(older), 30000));
    const Answer answer = Draw("many.lfw", "dxf", "in");
    EXPECT_LT(answer.seconds, 10.0);
    EXPECT_THAT(answer.lines, testing::ElementsAre(StartsWith("Enter error: ")));
    EXPECT_EQ(answer.status, 0); // each of them counts as 0
}

TEST_F(HostileComponents, WhatIsNoFileIsRefused) {
    fs::create_directory(folder.Path("folder.lfw"));
    ExpectRefused("folder.lfw", "Path/file access error: .*");
    ASSERT_EQ(mkfifo(folder.Path("pipe.lfw").c_str(), 0600), 0);
    ExpectRefused("pipe.lfw", "Path/file access error: .*");
    fs::create_symlink("/dev/zero", folder.Path("zero.lfw"));
    ExpectRefused("zero.lfw", "Path/file access error: .*");
    fs::create_symlink(folder.Path("circle.lfw"), folder.Path("circle.lfw"));
    ExpectRefused("circle.lfw", ".*");
    ExpectRefused("missing.lfw", "File not found: .*");
}

TEST_F(HostileComponents, AnEmptyFileNamesNoAirfoil) {
    folder.File("empty.lfw", "");
    const Answer answer = Draw("empty.lfw", "svg");
    EXPECT_EQ(answer.status, 1);
    ASSERT_EQ(answer.lines.size(), 2U); // where was searched, and the report
    EXPECT_THAT(answer.lines[0], StartsWith("Open rib components: The airfoil of this rib"));
    EXPECT_THAT(answer.lines[1], StartsWith("Error LireEcrire/newLfw: Error # 0 in Loftwing"));
    EXPECT_TRUE(fs::is_empty(folder.Path("out")));
}

TEST_F(HostileComponents, FoldersThatLeadInACircleAreSearchedOnce) {
    fs::create_directories(folder.Path("a/b"));
    fs::create_directory_symlink("../..", folder.Path("a/b/up"));
    ComponentsText file;
    file.airfoil = "unknown.dat";
    folder.File("rib.lfw", file.Current());
    const Answer answer = Draw("rib.lfw", "svg");
    EXPECT_EQ(answer.status, 1);
    EXPECT_EQ(answer.lines.size(), 2U);
    EXPECT_LT(answer.seconds, 10.0);
}

TEST_F(HostileComponents, AGoodFileBesideARefusedOneIsDrawn) {
    folder.File("bad.lfw", "LFW V3.0\r\n");
    folder.File("good.LFW", ComponentsText{}.Current());
    const Ran ran = RunLoftwing({"draw", folder.Path("bad.lfw"), folder.Path("good.LFW"), "--to",
                                 "dxf", "-o", folder.Path("out")});
    EXPECT_EQ(ran.status, 1);
    EXPECT_FALSE(fs::exists(folder.Path("out/bad.dxf")));
    EXPECT_TRUE(fs::exists(folder.Path("out/good.dxf")));
}

} // namespace
} // namespace loftwing
