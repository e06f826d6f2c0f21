#include "base/file_name.h"

#include "base/text_encoding.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

constexpr NameRules kBytes = NameRules::bytes;
constexpr NameRules kLetters = NameRules::letters;

TEST(WideName, WritesLettersBeyondSixteenBitsAsPairs) {
    // U+1F600: 0x1F600 - 0x10000 = 0xF600 = 0x3D * 0x400 + 0x200.
    EXPECT_EQ(WideName("aé€\xF0\x9F\x98\x80"), u"a\u00E9\u20AC\xD83D\xDE00");
    EXPECT_EQ(WideName(""), u"");
    EXPECT_EQ(WideName(std::string_view("a\0b", 3)), std::u16string(u"a\0b", 3));
}

TEST(WideName, TakesAnyBytesAndGivesThoseOfNoTextLettersThatNoNameHas) {
    EXPECT_EQ(WideName("\xE9t\xE9"), u"\xDCE9t\xDCE9");                   // one byte a letter
    EXPECT_EQ(WideName("\xC3"), u"\xDCC3");                               // cut off
    EXPECT_EQ(WideName("\x80"), u"\xDC80");                               // begins nothing
    EXPECT_EQ(WideName("\xC0\xAF"), u"\xDCC0\xDCAF");                     // "/" in two bytes
    EXPECT_EQ(WideName("\xF4\x90\x80\x80"), u"\xDCF4\xDC90\xDC80\xDC80"); // behind the last letter
    EXPECT_EQ(WideName("\xFF/"), u"\xDCFF/");
}

TEST(NarrowName, IsTheTextAgain) {
    for (const std::string text :
         {"", "e205.dat", "Flügel €", "\xF0\x9F\x98\x80", "\xEF\xBF\xBD"}) {
        EXPECT_EQ(NarrowName(WideName(text)), text);
    }
}

TEST(NarrowName, LosesNoHalfOfAPair) {
    for (const std::u16string &name :
         {std::u16string(u"a\xD83D"), std::u16string(u"\xDE00\xD83D"),
          std::u16string(u"\xDC80.dat"), std::u16string(u"\xD83D\xD83D\xDE00")}) {
        const std::string text = NarrowName(name);
        EXPECT_FALSE(IsUtf8(text));
        EXPECT_EQ(WideName(text), name);
    }
    // 0xD83D: 1101 100000 111101.
    EXPECT_EQ(NarrowName(u"\xD83D"), "\xED\xA0\xBD");
}

TEST(PathOf, TakesAnyTextAndFindsNoFileOfThatName) {
    const TempFolder folder;
    for (const std::string name : {"caf\xE9", "\xFF\xFE", "\xC3", "\xED\xA0\xBD"}) {
        EXPECT_FALSE(IsThere(folder.Path() + "/" + name));
        EXPECT_FALSE(IsFolder(folder.Path() + "/" + name));
        EXPECT_EQ(PathOf(TextOf(PathOf(name))), PathOf(name));
    }
}

TEST(PathOf, LeadsToTheFileThatAnyWriterMeans) {
    const TempFolder folder;
    for (const std::string name :
         {"Tragfl\xC3\xA4"
          "che.dat",
          "\xF0\x9F\x9B\xA9.dat", "\xE6\xA8\xA1\xE5\x9E\x8B.dat", "e\xCC\x81.dat"}) {
        const std::string path = folder.File(name, "x");
        EXPECT_TRUE(IsPlainFile(path));
        EXPECT_EQ(NameIn(path), name);
        EXPECT_EQ(TextOf(fs::directory_iterator(folder.Path())->path().filename()), name);
        fs::remove(PathOf(path));
    }
}

TEST(IsThere, KnowsFilesAndFoldersHoweverTheirPathEnds) {
    const TempFolder folder;
    fs::create_directory(folder.Path("sub"));
    const std::string file = folder.File("x", "");
    EXPECT_TRUE(IsThere(folder.Path("sub")) && IsThere(folder.Path("sub/")) && IsThere(file));
    EXPECT_TRUE(IsFolder(folder.Path("sub/")));
    EXPECT_FALSE(IsPlainFile(folder.Path("sub")));
    EXPECT_TRUE(IsPlainFile(file));
    EXPECT_FALSE(IsFolder(file));
    EXPECT_FALSE(IsThere(folder.Path("none")));
    EXPECT_FALSE(IsThere(file + "/x"));
    EXPECT_FALSE(IsThere(""));
    EXPECT_FALSE(IsThere("a*?.dat"));
}

TEST(Separators, AreTheSystems) {
    EXPECT_TRUE(EndsInSeparator("/a/", kBytes) && EndsInSeparator("/a/", kLetters));
    EXPECT_TRUE(EndsInSeparator("C:\\a\\", kLetters));
    EXPECT_FALSE(EndsInSeparator("a\\", kBytes)); // a letter as any other there
    EXPECT_FALSE(EndsInSeparator("", kLetters));
    EXPECT_EQ(WithSlashes("a\\b/c\\d", kLetters), "a/b/c/d");
    EXPECT_EQ(WithSlashes("a\\b/c", kBytes), "a\\b/c");
}

TEST(WithSeparator, SetsOneOfThePathsOwnKind) {
    EXPECT_EQ(WithSeparator("/a/b", kBytes), "/a/b/");
    EXPECT_EQ(WithSeparator("/a/b/", kBytes), "/a/b/");
    EXPECT_EQ(WithSeparator("a\\b", kBytes), "a\\b/");
    EXPECT_EQ(WithSeparator("", kBytes), "/");
    EXPECT_EQ(WithSeparator("C:\\a", kLetters), "C:\\a\\");
    EXPECT_EQ(WithSeparator("C:\\a\\", kLetters), "C:\\a\\");
    EXPECT_EQ(WithSeparator("C:/a", kLetters), "C:/a/");
    EXPECT_EQ(WithSeparator("C:\\a/b", kLetters), "C:\\a/b\\");
    EXPECT_EQ(WithSeparator("ribs", kLetters), "ribs\\");
}

TEST(AsFileName, StaysAsItIsWhereNothingIsForbidden) {
    for (const std::string name : {"a:b*c?.dat", "CON", "x. ", "a\\b", "\x01"}) {
        EXPECT_EQ(AsFileName(name, kBytes), name);
    }
    for (const std::string name : {"E 205 (Flügel) 12,5%.dat", "conduit", "com", "com10", "lpt",
                                   "nullpunkt.dat", "a.con", "-", ".dat", ""}) {
        EXPECT_EQ(AsFileName(name, kLetters), name);
    }
}

TEST(AsFileName, HasDashesForForbiddenLetters) {
    EXPECT_EQ(AsFileName("a\\b/c:d*e?f\"g<h>i|j", kLetters), "a-b-c-d-e-f-g-h-i-j");
    EXPECT_EQ(AsFileName("tab\there\x1F", kLetters), "tab-here-");
}

TEST(AsFileName, EndsInNoBlankAndNoPoint) {
    EXPECT_EQ(AsFileName("rib.", kLetters), "rib-");
    EXPECT_EQ(AsFileName("rib ", kLetters), "rib-");
    EXPECT_EQ(AsFileName("..", kLetters), ".-");
    EXPECT_EQ(AsFileName("rib .dat", kLetters), "rib .dat");
}

TEST(AsFileName, IsNoDevice) {
    EXPECT_EQ(AsFileName("CON", kLetters), "CON-");
    EXPECT_EQ(AsFileName("nul.dat", kLetters), "nul-.dat");
    EXPECT_EQ(AsFileName("Aux.a.dat", kLetters), "Aux-.a.dat");
    EXPECT_EQ(AsFileName("com1.txt", kLetters), "com1-.txt");
    EXPECT_EQ(AsFileName("LPT9", kLetters), "LPT9-");
    EXPECT_EQ(AsFileName("COM\xC2\xB2", kLetters), "COM\xC2\xB2-");
    EXPECT_EQ(AsFileName("prn .dat", kLetters), "prn -.dat"); // the blank doesn't count there
}

TEST(Network, PathsLeadToAComputersFolder) {
    EXPECT_TRUE(IsOnNetwork("\\\\pc\\wings", kLetters));
    EXPECT_TRUE(IsOnNetwork("//pc/wings/x.dat", kLetters));
    EXPECT_FALSE(IsOnNetwork("//pc/wings", kBytes));
    EXPECT_FALSE(IsOnNetwork("\\wings", kLetters));
    EXPECT_FALSE(IsOnNetwork("C:\\wings", kLetters));
    EXPECT_FALSE(IsOnNetwork("///x", kLetters));
    EXPECT_FALSE(IsOnNetwork("\\\\", kLetters));
}

TEST(Plain, GoesByTheText) {
    EXPECT_EQ(WithSlashes(TextOf(Plain("/a/./b/../c"))), "/a/c");
    EXPECT_EQ(WithSlashes(TextOf(Plain("a/../../c"))), "../c");
}

TEST(SeenFrom, IsBelowTheFolderOrAWholePath) {
    EXPECT_EQ(WithSlashes(TextOf(SeenFrom("/wing", "ribs/a.lfw"))), "/wing/ribs/a.lfw");
    EXPECT_EQ(WithSlashes(TextOf(SeenFrom("wing", "/ribs/a.lfw"))), "/ribs/a.lfw");
}

TEST(Above, EndsAtTheTop) {
    EXPECT_EQ(Above("/a/b"), "/a");
    EXPECT_EQ(Above("/a"), "/");
    EXPECT_EQ(Above("/"), "");
    EXPECT_EQ(Above(""), "");
}

} // namespace
} // namespace loftwing
