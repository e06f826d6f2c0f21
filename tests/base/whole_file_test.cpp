#include "base/whole_file.h"

#include "base/disk.h"
#include "base/file_name.h"
#include "support/failures.h"
#include "support/special_files.h"
#include "support/temp_folder.h"

#include <cstdio>
#include <memory>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

TEST(ReadWholeFile, GivesEveryByte) {
    const TempFolder folder;
    const std::string bytes("a\0b\r\n\xFF", 6);
    EXPECT_EQ(ReadWholeFile(folder.File("x", bytes)), bytes);
    EXPECT_EQ(ReadWholeFile(folder.File("empty", "")), "");
    const std::string long_one(200001, 'x');
    EXPECT_EQ(ReadWholeFile(folder.File("long", long_one)), long_one);
}

TEST(ReadWholeFile, FailsWith53WhenTheFileIsMissing) {
    const TempFolder folder;
    EXPECT_EQ(FailureOf([&] { ReadWholeFile(folder.Path("none.dat")); }), kFileNotFound);
    EXPECT_EQ(FailureOf([] { ReadWholeFile("surely-no-such-file.dat"); }), kFileNotFound);
    EXPECT_EQ(FailureOf([] { ReadWholeFile(""); }), kFileNotFound);
}

TEST(ReadWholeFile, FailsWith76WhenTheFolderIsMissing) {
    const TempFolder folder;
    EXPECT_EQ(FailureOf([&] { ReadWholeFile(folder.Path("none/x.dat")); }), kPathNotFound);
    const std::string file = folder.File("file", "");
    EXPECT_EQ(FailureOf([&] { ReadWholeFile(file + "/x.dat"); }), kPathNotFound);
}

TEST(ReadWholeFile, FailsWith75ForAFolder) {
    const TempFolder folder;
    EXPECT_EQ(FailureOf([&] { ReadWholeFile(folder.Path()); }), kPathFileAccess);
}

TEST(ReadWholeFile, FailsWith75ForAPipeAndDoesNotWaitForIt) {
    const TempFolder folder;
    const std::string pipe = folder.Path("pipe");
    if (!MakePipe(pipe)) {
        GTEST_SKIP() << "no pipes among the files of this system";
    }
    EXPECT_EQ(FailureOf([&] { ReadWholeFile(pipe); }), kPathFileAccess);
}

TEST(ReadWholeFile, FailsWith7AboveTheLargestFile) {
    const TempFolder folder;
    const std::string file = folder.File("x", "");
    fs::resize_file(file, kLargestFile); // without blocks on the disk
    EXPECT_EQ(ReadWholeFile(file).size(), kLargestFile);
    fs::resize_file(file, kLargestFile + 1);
    EXPECT_EQ(FailureOf([&] { ReadWholeFile(file); }), kOutOfMemory);
}

TEST(ReadWholeFileIfThere, IsEmptyOnlyWhereThereIsNoFile) {
    const TempFolder folder;
    EXPECT_EQ(ReadWholeFileIfThere(folder.Path("none")), "");
    EXPECT_EQ(ReadWholeFileIfThere(folder.Path("none/x")), "");
    EXPECT_EQ(ReadWholeFileIfThere(folder.File("x", "text")), "text");
    EXPECT_EQ(FailureOf([&] { ReadWholeFileIfThere(folder.Path()); }), kPathFileAccess);
}

TEST(ReplaceFile, MakesAndReplacesFilesAndLeavesNothingElse) {
    const TempFolder folder;
    EXPECT_TRUE(ReplaceFile(folder.Path("x"), "first, and longer"));
    EXPECT_EQ(folder.Bytes("x"), "first, and longer");
    EXPECT_TRUE(ReplaceFile(folder.Path("x"), "second"));
    EXPECT_EQ(folder.Bytes("x"), "second");
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(ReplaceFile, TakesNamesOfAnyLengthThatAFileMayHave) {
    const TempFolder folder;
    const std::string name(255, 'n');
    EXPECT_TRUE(ReplaceFile(folder.Path(name), "text"));
    EXPECT_EQ(folder.Bytes(name), "text");
}

TEST(ReplaceFile, ReplacesTheFileBehindALink) {
    const TempFolder folder;
    const std::string file = folder.File("file", "old");
    if (!MakeLink(file, folder.Path("link"))) {
        GTEST_SKIP() << "this system has no links for everybody";
    }
    EXPECT_TRUE(ReplaceFile(folder.Path("link"), "new"));
    EXPECT_TRUE(fs::is_symlink(folder.Path("link")));
    EXPECT_EQ(folder.Bytes("file"), "new");
}

TEST(ReplaceFile, KeepsThePermissions) {
    if (RulesHere() == NameRules::letters) {
        GTEST_SKIP() << "a file has the rights that its folder gives here";
    }
    const TempFolder folder;
    const std::string file = folder.File("x", "old");
    const fs::perms mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(file, mode);
    EXPECT_TRUE(ReplaceFile(file, "new"));
    EXPECT_EQ(fs::status(file).permissions(), mode);
}

TEST(ReplaceFile, IsRefusedWithoutAFolder) {
    const TempFolder folder;
    EXPECT_FALSE(ReplaceFile(folder.Path("none/x"), "text"));
    EXPECT_EQ(folder.Entries(), 0);
}

TEST(ReplaceFile, IsRefusedOverAFolder) {
    const TempFolder folder;
    fs::create_directory(folder.Path("sub"));
    EXPECT_FALSE(ReplaceFile(folder.Path("sub"), "text"));
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(ReplaceFile, IsRefusedOverAPipe) {
    const TempFolder folder;
    const std::string pipe = folder.Path("pipe");
    if (!MakePipe(pipe)) {
        GTEST_SKIP() << "no pipes among the files of this system";
    }
    EXPECT_FALSE(ReplaceFile(pipe, "text"));
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_EQ(folder.Entries(), 1);
}

int FailureOfWriting(const std::string &path, const std::string &bytes = "new") {
    return FailureOf([&] { WriteWholeFile(path, bytes); });
}

TEST(WriteWholeFile, FailsWith76WithoutAFolder) {
    const TempFolder folder;
    EXPECT_EQ(FailureOfWriting(folder.Path("none/x")), kPathNotFound);
    folder.File("file", "");
    EXPECT_EQ(FailureOfWriting(folder.Path("file/x")), kPathNotFound);
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(WriteWholeFile, FailsWith75ForWhatIsNoFile) {
    const TempFolder folder;
    fs::create_directory(folder.Path("sub"));
    EXPECT_EQ(FailureOfWriting(folder.Path("sub")), kPathFileAccess);
    EXPECT_EQ(FailureOfWriting(""), kPathFileAccess);
    EXPECT_EQ(FailureOfWriting(folder.Path(std::string(256, 'n'))), kPathFileAccess);
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(WriteWholeFile, SaysInTheDetailWhichFileItIs) {
    const TempFolder folder;
    try {
        WriteWholeFile(folder.Path("none/x"), "new");
        ADD_FAILURE();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.detail, folder.Path("none/x"));
    }
}

TEST(FileClaim, IsOnePartysAlone) {
    using Handle = std::unique_ptr<std::FILE, int (*)(std::FILE *)>;
    const TempFolder folder;
    const std::string path = folder.File("x", "");
    const auto open = [&path] { return Handle(OpenFile(path, Opening::change), std::fclose); };
    FileClaim one;
    FileClaim other;
    {
        const Handle file = open();
        ASSERT_EQ(one.Make(file.get()), Claim::made);
    } // it outlives the closing
    EXPECT_EQ(other.Make(open().get()), Claim::lost);
    one.Release();
    EXPECT_EQ(other.Make(open().get()), Claim::made);
}

TEST(RemoveAbandonedParts, TakesWhatNoProcessIsAtWorkOn) {
    const TempFolder folder;
    folder.File("loftwing-1.part", "half");
    folder.File("loftwing-4294967295.part", "");
    RemoveAbandonedParts(folder.Path());
    EXPECT_EQ(folder.Entries(), 0);
    RemoveAbandonedParts(folder.Path("none")); // is no failure
}

TEST(RemoveAbandonedParts, LeavesWhatIsBeingWritten) {
    const TempFolder folder;
    const std::string path = folder.File("loftwing-1.part", "half");
    FileClaim claim;
    {
        const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(OpenFile(path, Opening::change),
                                                                    std::fclose);
        ASSERT_EQ(claim.Make(file.get()), Claim::made);
    }
    WriteWholeFile(folder.Path("x"), "text", Flush::yes);
    EXPECT_TRUE(fs::exists(path));
    claim.Release();
    WriteWholeFile(folder.Path("x"), "text", Flush::yes);
    EXPECT_FALSE(fs::exists(path));
}

TEST(RemoveAbandonedParts, LeavesAllThatIsCalledOtherwise) {
    const TempFolder folder;
    for (const char *name :
         {"loftwing-.part", "loftwing-12.part.txt", "loftwing-1a.part", "my loftwing-12.part",
          "loftwing-12.PART", "loftwing.part", "x.part"}) {
        folder.File(name, "mine");
    }
    fs::create_directory(folder.Path("loftwing-11.part")); // no other writing of a name above
    MakeLink(folder.Path("x.part"), folder.Path("loftwing-13.part"));
    MakePipe(folder.Path("loftwing-14.part"));
    const auto before = folder.Entries();
    RemoveAbandonedParts(folder.Path());
    EXPECT_EQ(folder.Entries(), before);
}

TEST(WriteWholeFile, ClearsAFolderAtTheFirstOfARowOfFiles) {
    const TempFolder folder;
    folder.File("loftwing-1.part", "half");
    WriteWholeFile(folder.Path("x"), "text");
    EXPECT_EQ(folder.Entries(), 1);
    folder.File("loftwing-2.part", "half");
    WriteWholeFile(folder.Path("y"), "text");
    EXPECT_EQ(folder.Entries(), 3); // not listed for each
    WriteWholeFile(folder.Path("y"), "text", Flush::yes);
    EXPECT_EQ(folder.Entries(), 2);
}

TEST(WriteWholeFiles, WritesAllAndReplacesWhatWasThere) {
    const TempFolder folder;
    folder.File("a", "old");
    WriteWholeFiles({{folder.Path("a"), "new"}, {folder.Path("b"), "other"}});
    EXPECT_EQ(folder.Bytes("a"), "new");
    EXPECT_EQ(folder.Bytes("b"), "other");
    EXPECT_EQ(folder.Entries(), 2);
}

TEST(WriteWholeFiles, LeavesAllAsItWasWhereOneIsRefused) {
    const TempFolder folder;
    folder.File("a", "old");
    fs::create_directory(folder.Path("c"));
    const auto write = [&] {
        WriteWholeFiles(
            {{folder.Path("a"), "new"}, {folder.Path("b"), "other"}, {folder.Path("c"), "third"}});
    };
    EXPECT_EQ(FailureOf(write), kPathFileAccess);
    EXPECT_EQ(folder.Bytes("a"), "old");
    EXPECT_EQ(folder.Entries(), 2);
}

} // namespace
} // namespace loftwing
