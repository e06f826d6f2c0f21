// Paths as a system of drives and wide letters has them.

#include "base/disk.h"
#include "base/failure.h"
#include "base/file_name.h"
#include "base/whole_file.h"
#include "support/failures.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

std::string Whole(const std::string &path) {
    std::error_code error;
    const std::string whole = TextOf(WholePath(PathOf(path), error));
    EXPECT_FALSE(error) << path;
    return whole;
}

TEST(WidePaths, AreTakenWithBothSeparators) {
    EXPECT_EQ(NameIn("C:\\airfoils\\e205.dat"), "e205.dat");
    EXPECT_EQ(NameIn("C:/airfoils\\e205.dat"), "e205.dat");
    EXPECT_EQ(NameIn("C:e205.dat"), "e205.dat");
    EXPECT_EQ(FolderOf("C:\\airfoils\\e205.dat"), "C:\\airfoils");
    EXPECT_EQ(FolderOf("C:\\e205.dat"), "C:\\");
    EXPECT_EQ(FolderOf("\\\\pc\\wings\\e205.dat"), "\\\\pc\\wings");
    EXPECT_EQ(StemOf("C:\\a.b\\e205.dat"), "e205");
    EXPECT_EQ(ExtensionOf("\\\\pc\\wings\\rib.lfw"), ".lfw");
}

TEST(WidePaths, AreWholeFromDriveOrComputerOn) {
    EXPECT_EQ(Whole("C:/a/./b/../c.dat"), "C:\\a\\c.dat");
    EXPECT_EQ(Whole("\\\\pc\\wings\\a\\..\\b.dat"), "\\\\pc\\wings\\b.dat");
    EXPECT_EQ(Whole("//pc/wings/../../b.dat"), "\\\\pc\\wings\\b.dat"); // nothing is above it
    EXPECT_EQ(Whole("//pc/wings"), "\\\\pc\\wings");
    EXPECT_EQ(Whole("x.dat"), TextOf(fs::current_path()) + "\\x.dat");
}

TEST(WidePaths, OnTheNetworkAreSeenFromNowhereElse) {
    EXPECT_EQ(TextOf(SeenFrom("C:\\wing", "\\\\pc\\ribs\\a.lfw")), "\\\\pc\\ribs\\a.lfw");
    EXPECT_EQ(TextOf(SeenFrom("C:\\wing", "D:\\a.lfw")), "D:\\a.lfw");
    EXPECT_EQ(TextOf(SeenFrom("\\\\pc\\wing", "ribs/a.lfw")), "\\\\pc\\wing\\ribs\\a.lfw");
}

TEST(WidePaths, HaveNoneAboveDriveOrComputersFolder) {
    EXPECT_EQ(Above("C:\\a"), "C:\\");
    EXPECT_EQ(Above("C:\\"), "");
    EXPECT_EQ(Above("\\\\pc\\wings\\a"), "\\\\pc\\wings");
    EXPECT_EQ(Above("\\\\pc\\wings"), "");
    EXPECT_EQ(Above("\\\\pc\\wings\\"), "\\\\pc\\wings");
}

TEST(RealPath, HasTheLettersOfTheDisk) {
    const TempFolder folder;
    fs::create_directory(folder.Path("Wings"));
    folder.File("Wings/E205.dat", "");
    std::error_code error;
    const std::string real = TextOf(RealPath(PathOf(folder.Path("wINGS/e205.DAT")), error));
    EXPECT_FALSE(error);
    EXPECT_TRUE(real.ends_with("\\Wings\\E205.dat")) << real;
    EXPECT_FALSE(real.starts_with("\\\\")) << real;
    const std::string place = TextOf(RealPlace(PathOf(folder.Path("wINGS/new/x.dat")), error));
    EXPECT_FALSE(error);
    EXPECT_TRUE(place.ends_with("\\Wings\\new\\x.dat")) << place;
    RealPath(PathOf(folder.Path("none")), error);
    EXPECT_TRUE(error);
}

/// A program that has a file open and leaves others as much of it as is said.
class OpenElsewhere {
  public:
    OpenElsewhere(const std::string &path, DWORD left)
        : file_(CreateFileW(PathOf(path).c_str(), GENERIC_READ, left, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {
        EXPECT_NE(file_, INVALID_HANDLE_VALUE);
    }
    OpenElsewhere(const OpenElsewhere &) = delete;
    OpenElsewhere &operator=(const OpenElsewhere &) = delete;
    ~OpenElsewhere() { CloseHandle(file_); }

  private:
    HANDLE file_;
};

int FailureOfReplacing(const std::string &path) {
    return FailureOf([&] { WriteWholeFile(path, "new", Flush::yes); });
}

TEST(OpenElsewhereTest, AFileThatAnotherProgramKeepsStaysAndIsRefusedWith70) {
    const TempFolder folder;
    const std::string file = folder.File("x", "old");
    for (const DWORD left :
         {DWORD{0}, DWORD{FILE_SHARE_READ}, DWORD{FILE_SHARE_READ | FILE_SHARE_WRITE}}) {
        const OpenElsewhere other(file, left);
        EXPECT_EQ(FailureOfReplacing(file), kPermissionDenied) << left;
        EXPECT_EQ(folder.Entries(), 1) << left;
    }
    EXPECT_EQ(folder.Bytes("x"), "old");
    EXPECT_EQ(FailureOfReplacing(file), 0);
    EXPECT_EQ(folder.Bytes("x"), "new");
}

TEST(OpenElsewhereTest, AFileThatMayNotBeReadNowIsRefusedWith70) {
    const TempFolder folder;
    const std::string file = folder.File("x", "old");
    const OpenElsewhere other(file, 0);
    EXPECT_EQ(FailureOf([&] { ReadWholeFile(file); }), kPermissionDenied);
}

TEST(OpenElsewhereTest, AReaderThatLeavesAllDoesNotHinder) {
    const TempFolder folder;
    const std::string file = folder.File("x", "old");
    const OpenElsewhere other(file, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE);
    EXPECT_EQ(ReadWholeFile(file), "old");
}

TEST(ReadOnlyFile, StaysAndIsRefusedWith70) {
    const TempFolder folder;
    const std::string file = folder.File("x", "old");
    ASSERT_NE(SetFileAttributesW(PathOf(file).c_str(), FILE_ATTRIBUTE_READONLY), 0);
    EXPECT_EQ(FailureOfReplacing(file), kPermissionDenied);
    EXPECT_EQ(folder.Bytes("x"), "old");
    EXPECT_EQ(folder.Entries(), 1);
    SetFileAttributesW(PathOf(file).c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST(OpenFile, MakesOnlyWhatIsNotThere) {
    const TempFolder folder;
    const fs::path path = PathOf(folder.File("x", "old"));
    EXPECT_EQ(OpenFile(path, Opening::make), nullptr);
    EXPECT_EQ(errno, EEXIST);
    EXPECT_EQ(folder.Bytes("x"), "old");
}

TEST(WriteWholeFile, LeavesNothingUnderANameThatNoFileCanHave) {
    const TempFolder folder;
    for (const std::string name : {"a?b", "a*b", "a<b", "a|b", "a\"b"}) {
        EXPECT_NE(FailureOfReplacing(folder.Path(name)), 0) << name;
    }
    EXPECT_EQ(folder.Entries(), 0);
}

TEST(WriteWholeFile, PassesBytesAsTheyAre) {
    const TempFolder folder;
    const std::string bytes("a\r\nb\nc\x1A"
                            "d\0e",
                            10);
    WriteWholeFile(folder.Path("x"), bytes, Flush::yes);
    EXPECT_EQ(ReadWholeFile(folder.Path("x")), bytes);
    EXPECT_EQ(fs::file_size(folder.Path("x")), bytes.size());
}

TEST(ReadWholeFile, TakesNoDeviceForAFile) {
    const TempFolder folder;
    for (const std::string name : {"NUL", "nul.dat", "CON"}) {
        EXPECT_NE(FailureOf([&] { ReadWholeFile(folder.Path(name)); }), 0) << name;
    }
    EXPECT_NE(FailureOf([&] { ReadWholeFile("NUL"); }), 0);
}

} // namespace
} // namespace loftwing
