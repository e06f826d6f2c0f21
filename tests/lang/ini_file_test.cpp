#include "lang/ini_file.h"

#include "support/failures.h"
#include "support/temp_folder.h"

#include <gmock/gmock.h>

#include <chrono>

namespace loftwing {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::Pair;

std::string Value(std::string_view text, std::string_view section, std::string_view key) {
    return IniFile::Parse(text).Value(section, key);
}

std::string Changed(std::string_view text, std::string_view section, std::string_view key,
                    std::string_view value) {
    IniFile file = IniFile::Parse(text);
    file.SetValue(section, key, value);
    return file.Text();
}

TEST(IniFile, FindsAValueBySectionAndKey) {
    const char *text = "[One]\r\na=1\r\nb=2\r\n[Two]\r\na=3\r\n";
    EXPECT_EQ(Value(text, "One", "a"), "1");
    EXPECT_EQ(Value(text, "One", "b"), "2");
    EXPECT_EQ(Value(text, "Two", "a"), "3");
}

/// A path on its way through a file; "refused" where the file doesn't take it.
std::string PathThroughAFile(const std::string &path) {
    IniFile file;
    if (!file.SetPath("One", "a", path)) {
        EXPECT_EQ(file.Text(), "");
        return "refused";
    }
    return IniFile::Parse(file.Text()).Path("One", "a");
}

TEST(IniFile, GivesAPathBackWhateverItsLengthAndLetters) {
    for (const std::string &path :
         {std::string(250, 'x') + ".lfw", std::string("a=b[c];d#e.lfw"), std::string("[x].lfw"),
          std::string("; x"), std::string("%1 & <b>.lfw"), std::string("\xF0\x9F\x98\x80.lfw"),
          std::string("back\\slash"), std::string("\"x.lfw")}) {
        EXPECT_EQ(PathThroughAFile(path), path);
    }
    EXPECT_EQ(PathThroughAFile(" x.lfw"), "./ x.lfw");
    EXPECT_EQ(PathThroughAFile("\tx.lfw"), "./\tx.lfw");
    EXPECT_EQ(PathThroughAFile("'x'"), "./'x'");
    EXPECT_EQ(PathThroughAFile("\"x\""), "./\"x\"");
}

TEST(IniFile, TakesNoPathThatALineCannotHold) {
    for (const char *path : {"a\nb.lfw", "a\rb.lfw", "\n", "x\xFF.lfw", "x ", "x\t"}) {
        EXPECT_EQ(PathThroughAFile(path), "refused") << path;
    }
}

TEST(IniFile, KnowsWhatItKeeps) {
    for (const std::string &value : {std::string(199, 'x'), std::string("/a/b c.dat"),
                                     std::string("/a'"), std::string("/\xC3\xBC"), std::string()}) {
        EXPECT_TRUE(IniFile::Keeps(value)) << value;
    }
    for (const std::string &value :
         {std::string(200, 'x'), std::string(" a"), std::string("a "), std::string("a\nb"),
          std::string("'a'"), std::string("/\xFF")}) {
        EXPECT_FALSE(IniFile::Keeps(value)) << value;
    }
}

TEST(IniFile, BytesThatAreNoUtf8SpoilNoOtherValue) {
    const std::string text = Changed("[One]\r\na=\xC3\xBC\r\n", "One", "b", "\xFF");
    EXPECT_EQ(Value(text, "One", "a"), "\xC3\xBC");
    EXPECT_EQ(Value(text, "One", "b"), "\xC3\xBF"); // as Windows-1252
}

TEST(IniFile, IsEmptyWhereSectionOrKeyIsMissing) {
    const char *text = "stray=0\n[One]\na=1\n[Two]\nb=2\n";
    EXPECT_EQ(Value(text, "One", "b"), "");
    EXPECT_EQ(Value(text, "Three", "a"), "");
    EXPECT_EQ(Value(text, "", "stray"), "");
    EXPECT_EQ(Value(text, "One", ""), "");
    EXPECT_EQ(Value("", "One", "a"), "");
}

TEST(IniFile, IgnoresTheCaseOfSectionsAndKeys) {
    const char *text = "[FrmPrint]\nTailleFont=9\n";
    EXPECT_EQ(Value(text, "FRMPRINT", "taillefont"), "9");
    EXPECT_EQ(Value(text, "frmprint", "TAILLEFONT"), "9");
    EXPECT_EQ(Value("[a]\n16T=tip\n", "A", "16t"), "tip");
}

TEST(IniFile, TellsKeysApartByATrailingBlankAlone) {
    const char *text = "[FrmPrint]\ntailleFeuille(8)=with size\ntailleFeuille(8) =bare\n";
    EXPECT_EQ(Value(text, "FrmPrint", "tailleFeuille(8)"), "with size");
    EXPECT_EQ(Value(text, "FrmPrint", "tailleFeuille(8) "), "bare");
    const char *turned = "[FrmPrint]\ntailleFeuille(8) =bare\ntailleFeuille(8)=with size\n";
    EXPECT_EQ(Value(turned, "FrmPrint", "tailleFeuille(8)"), "with size");
    EXPECT_EQ(Value(turned, "FrmPrint", "tailleFeuille(8) "), "bare");
}

TEST(IniFile, TrimsKeysWhereNoneAgreesAsItStands) {
    EXPECT_EQ(Value("[s]\n  a = 1\n", "s", "a"), "1");
    EXPECT_EQ(Value("[s]\na=1\n", "s", "a "), "1");
    EXPECT_EQ(Value("[s]\na =1\na  =2\n", "s", "a"), "1");
}

TEST(IniFile, TrimsValuesAndTakesOnePairOfQuotes) {
    EXPECT_EQ(Value("[s]\na=  x y \t\n", "s", "a"), "x y");
    EXPECT_EQ(Value("[s]\na=\" mm\"\n", "s", "a"), " mm");
    EXPECT_EQ(Value("[s]\na=' mm '\n", "s", "a"), " mm ");
    EXPECT_EQ(Value("[s]\na=\"\"x\"\"\n", "s", "a"), "\"x\"");
    EXPECT_EQ(Value("[s]\na=\"x\n", "s", "a"), "\"x");
    EXPECT_EQ(Value("[s]\na=\"x'\n", "s", "a"), "\"x'");
    EXPECT_EQ(Value("[s]\na=\"\n", "s", "a"), "\"");
    EXPECT_EQ(Value("[s]\na=\"\"\n", "s", "a"), "");
    EXPECT_EQ(Value("[s]\na=\n", "s", "a"), "");
}

TEST(IniFile, SplitsAtTheFirstEqualsSign) {
    EXPECT_EQ(Value("[s]\na=b=c\n", "s", "a"), "b=c");
    EXPECT_EQ(Value("[s]\nno sign\na=1\n", "s", "no sign"), "");
}

TEST(IniFile, GivesAtMost199Characters) {
    const std::string accented = "\xC3\xA9";
    std::string value;
    for (int i = 0; i < 199; ++i) {
        value += accented;
    }
    EXPECT_EQ(Value("[s]\na=" + value + "\n", "s", "a"), value);
    EXPECT_EQ(Value("[s]\na=" + value + "x\n", "s", "a"), value);
}

TEST(IniFile, StopsAtTheLineBreak) {
    EXPECT_EQ(Value("[s]\r\na=one\r\ntwo\r\n", "s", "a"), "one");
    EXPECT_EQ(Value("[s]\na=last", "s", "a"), "last");
}

TEST(IniFile, PassesOverComments) {
    EXPECT_EQ(Value("[s]\n;a=1\n ; a=2\na=3\n", "s", "a"), "3");
    EXPECT_EQ(Value("[s]\n;a=1\n", "s", ";a"), "");
}

TEST(IniFile, TakesTheFirstOfTwoLikeSectionsOrKeys) {
    EXPECT_EQ(Value("[s]\na=1\na=2\n", "s", "a"), "1");
    EXPECT_EQ(Value("[s]\na=1\n[S]\na=2\nb=3\n", "s", "a"), "1");
}

TEST(IniFile, ReadsSectionLinesWithBlanksAndWithoutTheirBracket) {
    EXPECT_EQ(Value(" [ s ] trailing\na=1\n", "s", "a"), "1");
    EXPECT_EQ(Value("[s\na=1\n", "s", "a"), "1");
    EXPECT_EQ(Value("[]\na=1\n", "", "a"), "1");
}

TEST(IniFile, ReadsWindows1252AndByteOrderMarks) {
    EXPECT_EQ(Value("[s]\na=\xE9paisseur\n", "s", "a"), "\xC3\xA9paisseur");
    EXPECT_EQ(Value("\xEF\xBB\xBF[s]\na=1\n", "s", "a"), "1");
}

TEST(IniFile, ReplacesAValueAndNothingElse) {
    EXPECT_EQ(Changed("; note\n[s]\n\na = 1\nb=2\n\n[t]\na=3\n", "S", "A", "9"),
              "; note\r\n[s]\r\n\r\nA=9\r\nb=2\r\n\r\n[t]\r\na=3\r\n");
}

TEST(IniFile, AddsAKeyAtTheEndOfItsSection) {
    EXPECT_EQ(Changed("[s]\na=1\n\n[t]\nc=3\n", "s", "b", "2"),
              "[s]\r\na=1\r\nb=2\r\n\r\n[t]\r\nc=3\r\n");
    EXPECT_EQ(Changed("[s]\n\n\n", "s", "b", "2"), "[s]\r\nb=2\r\n\r\n\r\n");
}

TEST(IniFile, AddsAMissingSection) {
    EXPECT_EQ(Changed("", "s", "a", "1"), "[s]\r\na=1\r\n");
    EXPECT_EQ(Changed("[t]\nx=1", "s", "a", "1"), "[t]\r\nx=1\r\n[s]\r\na=1\r\n");
}

TEST(IniFile, LetsTheLastWriteWin) {
    IniFile file = IniFile::Parse("");
    file.SetValue("Defaut", "unit", " mm");
    file.SetValue("DEFAUT", "UNIT", " in");
    EXPECT_EQ(file.Value("Defaut", "unit"), "in");
    EXPECT_EQ(file.Text(), "[Defaut]\r\nUNIT= in\r\n");
}

TEST(IniFile, WritesNoSecondLineOutOfAValue) {
    IniFile file = IniFile::Parse("[s]\nb=1\n");
    file.SetValue("s", "a", "x\r\n[t]\r\nb=2");
    EXPECT_EQ(file.Text(), "[s]\r\nb=1\r\na=x\r\n");
    file.SetValue("s", "a", "y\nb=3");
    EXPECT_EQ(file.Value("s", "a"), "y");
    EXPECT_EQ(file.Value("s", "b"), "1");
}

TEST(IniFile, FindsWhatMovedDownForANewKey) {
    IniFile file = IniFile::Parse("[s]\na=1\n[t]\nc=5\nd=6\n");
    file.SetValue("s", "b", "3");
    EXPECT_EQ(file.Value("t", "c"), "5");
    EXPECT_EQ(file.Value("t", "d"), "6");
    EXPECT_EQ(file.Value("s", "b"), "3");
}

TEST(IniFile, FindsTheNextKeyOfANameThatAnotherLost) {
    IniFile file = IniFile::Parse("[s]\na =1\na =2\n");
    file.SetValue("s", "a", "9"); // written over the first, which was meant but for its blank
    EXPECT_EQ(file.Value("s", "a"), "9");
    EXPECT_EQ(file.Value("s", "a "), "2");
}

TEST(IniFile, FindsThousandsOfKeysInTheirSections) {
    constexpr int kKeys = 3000;
    std::string text;
    for (const char *section : {"one", "two", "ONE"}) {
        text += "[" + std::string(section) + "]\n";
        for (int i = 0; i < kKeys; ++i) {
            text += "key" + std::to_string(i) + "=" + section + std::to_string(i) + "\n";
        }
    }
    const IniFile file = IniFile::Parse(text);
    for (int i = 0; i < kKeys; ++i) {
        const std::string number = std::to_string(i);
        EXPECT_EQ(file.Value("One", "KEY" + number), "one" + number);
        EXPECT_EQ(file.Value("two", "key" + number), "two" + number);
    }
    EXPECT_EQ(file.Value("two", "key3000"), "");
    EXPECT_EQ(file.Value("three", "key1"), "");
}

TEST(IniFile, ListsKeysAsTheyStandInFileOrder) {
    const IniFile file = IniFile::Parse("[One]\n2=b\n;3=c\n1 =a\nplain\n[Two]\nx=\n");
    EXPECT_THAT(file.Keys(), ElementsAre(Pair("One", "2"), Pair("One", "1 "), Pair("Two", "x")));
}

TEST(GetINIFile, ReadsAFileAndTakesAMissingOneForEmpty) {
    const TempFolder folder;
    EXPECT_EQ(GetINIFile("s", "a", folder.File("x.ini", "[s]\r\na=1\r\n")), "1");
    EXPECT_EQ(GetINIFile("s", "a", folder.Path("none.ini")), "");
    EXPECT_EQ(GetINIFile("s", "a", folder.Path("none/x.ini")), "");
}

TEST(GetINIFile, FailsWhereTheFileCannotBeRead) {
    const TempFolder folder;
    EXPECT_EQ(FailureOf([&] { GetINIFile("s", "a", folder.Path()); }), kPathFileAccess);
}

TEST(WriteINIFile, MakesTheFileAndKeepsTheOtherKeys) {
    const TempFolder folder;
    const std::string path = folder.Path("x.ini");
    EXPECT_TRUE(WriteINIFile("s", "a", "1", path));
    EXPECT_TRUE(WriteINIFile("s", "b", "2", path));
    EXPECT_TRUE(WriteINIFile("S", "A", "3", path));
    EXPECT_EQ(GetINIFile("s", "a", path), "3");
    EXPECT_EQ(GetINIFile("s", "b", path), "2");
    EXPECT_EQ(folder.Entries(), 1) << "nothing is left beside the file";
}

TEST(WriteINIFile, ReplacesTheFileAsAWhole) {
    const TempFolder folder;
    const std::string path = folder.File("x.ini", "[s]\r\na=1\r\n");
    // A second name of the old file still shows the old bytes: nobody wrote into them.
    fs::create_hard_link(path, folder.Path("old"));
    EXPECT_TRUE(WriteINIFile("s", "a", "2", path));
    EXPECT_EQ(folder.Bytes("old"), "[s]\r\na=1\r\n");
    EXPECT_EQ(folder.Bytes("x.ini"), "[s]\r\na=2\r\n");
}

TEST(WriteINIFile, LeavesAFileAloneThatSaysSoAlready) {
    const TempFolder folder;
    const std::string path = folder.File("x.ini", "[s]\r\na=1\r\n");
    // Not every library tells parts of a second.
    const auto long_ago = std::chrono::floor<std::chrono::seconds>(
        fs::file_time_type::clock::now() - std::chrono::hours(1));
    fs::last_write_time(path, long_ago);
    EXPECT_TRUE(WriteINIFile("s", "a", "1", path));
    EXPECT_EQ(fs::last_write_time(path), long_ago);
    EXPECT_TRUE(WriteINIFile("s", "a", "2", path));
    EXPECT_NE(fs::last_write_time(path), long_ago);
    EXPECT_EQ(folder.Bytes("x.ini"), "[s]\r\na=2\r\n");
}

TEST(StoreINIFile, SaysWhyItCannotWrite) {
    const TempFolder folder;
    EXPECT_EQ(FailureOf([&] { StoreINIFile("s", "a", "1", folder.Path("none/x.ini")); }),
              kPathNotFound);
    EXPECT_EQ(FailureOf([&] { StoreINIFile("s", "a", "1", folder.Path()); }), kPathFileAccess);
}

TEST(WriteINIFile, IsFalseWhereItCannotWrite) {
    const TempFolder folder;
    EXPECT_FALSE(WriteINIFile("s", "a", "1", folder.Path("none/x.ini")));
    EXPECT_FALSE(WriteINIFile("s", "a", "1", folder.Path()));
    EXPECT_EQ(folder.Entries(), 0);
}

} // namespace
} // namespace loftwing
