// Files of every name that the system allows, in and out of every verb.

#include "base/text_encoding.h"
#include "base/whole_file.h"
#include "e2e/program.h"
#include "support/one_locale.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

namespace loftwing {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// Runs the program in a folder, so that names stand for themselves.
Ran RunIn(const TempFolder &folder, const std::vector<std::string> &words) {
    std::string line = "cd " + ShellWord(folder.Path()) + " && " + ShellWord(ProgramTried());
    for (const std::string &word : words) {
        line += " " + ShellWord(word);
    }
    return RunShell(line);
}

/// Whether each line of what was said is whole: it ends, and none is empty.
void ExpectLines(const std::string &err, std::ptrdiff_t count) {
    EXPECT_EQ(std::count(err.begin(), err.end(), '\n'), count) << err;
    EXPECT_EQ(err.find('\r'), std::string::npos) << err;
}

class FileNames : public testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        if (IsForeign() &&
            (!IsUtf8(GetParam()) || GetParam().find_first_of("\r\n\\\"*?") != std::string::npos)) {
            GTEST_SKIP() << "no file is named so there";
        }
        folder.File(Name("dat"), ReadWholeFile(Sample("naca2412.dat")));
    }
    static std::string Name(const std::string &extension) { return GetParam() + "." + extension; }
    /// A verb with options in front, and behind them its FILEs, whatever they begin with.
    Ran Run(std::vector<std::string> words, const std::vector<std::string> &files) const {
        words.emplace_back("--");
        words.insert(words.end(), files.begin(), files.end());
        return RunIn(folder, words);
    }
    /// The same where OUT bears the name too.
    void Makes(std::vector<std::string> words, const std::string &extension) const {
        const std::string out = Name(extension);
        words.insert(words.end(), {"-o", "./" + out});
        const bool of_itself = extension == "dat";
        const std::string before = folder.Bytes(Name("dat"));
        const Ran ran = Run(words, {Name("dat")});
        EXPECT_EQ(ran.status, 0) << words[0] << " " << ran.err;
        EXPECT_TRUE(fs::exists(folder.Path(out))) << words[0];
        if (of_itself) {
            folder.File(out, before);
        }
    }

    TempFolder folder;
};

TEST_P(FileNames, AreTakenByEveryVerb) {
    constexpr unsigned kAll = 8;
    const bool odd = !IsUtf8(GetParam()) || GetParam().find('\n') != std::string::npos;
    if (ManyInOneLocale(kAll) < kAll && !odd) {
        GTEST_SKIP() << "all names are tried in one locale";
    }
    for (const char *form : {"svg", "png", "pdf", "dxf", "lfw"}) {
        Makes({"draw"}, form);
    }
    Makes({"plot"}, "svg");
    Makes({"cut"}, "svg");
    Makes({"cut"}, "dxf");
    Makes({"modify", "--thickness", "9"}, "dat");
    Makes({"oblique", "--template-chord", "200", "--angle", "30"}, "dat");
    Makes({"incline", "--angle", "5"}, "dat");
    Makes({"convert"}, "dat");
    const std::string airfoil = Name("dat");
    EXPECT_EQ(Run({"info"}, {airfoil}).status, 0);
    EXPECT_EQ(Run({"compare", "-o", "./" + Name("svg")}, {airfoil, airfoil}).status, 0);
    fs::create_directory(folder.Path("drawings"));
    EXPECT_EQ(Run({"draw", "--to", "svg", "-o", "drawings/"}, {airfoil}).status, 0);
    EXPECT_TRUE(fs::exists(folder.Path("drawings/" + Name("svg"))));
}

TEST_P(FileNames, OfARibFileFindTheirAirfoilAgain) {
    ASSERT_EQ(Run({"draw", "-o", "./" + Name("lfw")}, {Name("dat")}).status, 0);
    const Ran drawn = Run({"draw", "-o", "./" + Name("svg")}, {Name("lfw")});
    EXPECT_EQ(drawn.status, 0) << drawn.err;
    fs::create_directory(folder.Path("panel"));
    const Ran panel = Run({"panel", "--count", "1", "--thickness", "2", "--length", "100",
                           "--dry-run", "-o", "panel/"},
                          {Name("lfw"), Name("lfw")});
    EXPECT_EQ(panel.status, 0) << panel.err;
}

TEST_P(FileNames, StandOnOneLineOfWhatIsSaid) {
    // A folder that isn't there, a file that isn't there, and one that is refused.
    const Ran nowhere = Run({"draw", "-o", "nowhere/" + Name("svg")}, {Name("dat")});
    EXPECT_EQ(nowhere.status, 1);
    ExpectLines(nowhere.err, 1);
    const Ran missing = Run({"draw", "-o", "./" + Name("svg")}, {"no" + Name("dat")});
    EXPECT_EQ(missing.status, 1);
    ExpectLines(missing.err, 1);
    folder.File("r" + Name("dat"), "T\n1 0\n");
    const Ran refused = Run({"info"}, {"r" + Name("dat"), Name("dat")});
    EXPECT_EQ(refused.status, 1);
    ExpectLines(refused.err, 2); // why, and which of the two
    const Ran unknown = Run({"draw", "-o", "./" + Name("xyz")}, {Name("dat")});
    EXPECT_EQ(unknown.status, 2);
    ExpectLines(unknown.err, 1);
}

TEST_P(FileNames, StandInJsonAsUtf8) {
    for (const char *verb : {"info", "cut"}) {
        const Ran ran =
            Run(verb == std::string("cut")
                    ? std::vector<std::string>{"cut", "--json", "-o", "./" + Name("svg")}
                    : std::vector<std::string>{"info", "--json"},
                {Name("dat")});
        EXPECT_EQ(ran.status, 0) << ran.err;
        EXPECT_TRUE(IsUtf8(ran.out)) << ran.out;
        ExpectLines(ran.out, 1);
        for (const char byte : ran.out.substr(0, ran.out.find('\n'))) {
            EXPECT_GE(static_cast<unsigned char>(byte), 0x20U);
        }
    }
}

/// Names for the tests' own names.
std::string Kind(const testing::TestParamInfo<std::string> &each) {
    static const char *const kinds[] = {"Blanks",     "Umlauts", "Emoji",  "Dash",
                                        "LineEnds",   "Longest", "NoUtf8", "Punctuation",
                                        "OuterBlank", "Script"};
    return kinds[each.index];
}

INSTANTIATE_TEST_SUITE_P(All, FileNames,
                         testing::Values("a b  c", "Fl\xC3\xBCgel \xC3\xA9", "\xF0\x9F\x98\x80",
                                         "-o", "line\nend\r\nx", std::string(200, 'x'), "b\xFF\xFE",
                                         "a=b[c];\"d\"'e'\\f&%1 $HOME*?", " lead",
                                         "\xE6\x97\xA5\xE6\x9C\xAC"),
                         Kind);

TEST(LongNames, ANameAsLongAsTheSystemAllowsIsWritten) {
    const TempFolder folder;
    const std::string out =
        std::string(251, 'x') + ".svg"; // 255 bytes, with which most systems end
    const Ran ran = RunIn(folder, {"draw", Sample("naca2412.dat"), "-o", out});
    EXPECT_EQ(ran.status, 0) << ran.err;
    EXPECT_TRUE(fs::exists(folder.Path(out)));
    EXPECT_EQ(folder.Entries(), 1);
    const Ran longer = RunIn(folder, {"draw", Sample("naca2412.dat"), "-o", "x" + out});
    EXPECT_EQ(longer.status, 1);
    ExpectLines(longer.err, 1);
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(LeadingDash, AFolderInFrontMakesAFileOfIt) {
    const TempFolder folder;
    folder.File("-o.dat", ReadWholeFile(Sample("naca2412.dat")));
    EXPECT_EQ(RunIn(folder, {"info", "./-o.dat"}).status, 0);
    const Ran option = RunIn(folder, {"info", "-o.dat"});
    EXPECT_EQ(option.status, 2);
    EXPECT_THAT(option.err, HasSubstr("-o.dat"));
}

} // namespace
} // namespace loftwing
