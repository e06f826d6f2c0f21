#include "base/whole_file.h"

#include "base/disk.h"
#include "support/failures.h"
#include "support/temp_folder.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <memory>

#ifdef __linux__
#include <sched.h>
#include <sys/mount.h>
#endif
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

/// Status of a process of its own in which `action` ran as a user without privileges: root may read
/// and write everything.
template <class Action>
int AsOrdinaryUser(Action action) {
    constexpr uid_t kNobody = 65534;
    const pid_t child = fork();
    if (child == 0) {
        const bool changed = geteuid() != 0 || seteuid(kNobody) == 0;
        _exit(changed ? action() : 255);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    return WEXITSTATUS(status);
}

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
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(FailureOf([&] { ReadWholeFile(pipe); }), kPathFileAccess);
}

TEST(ReadWholeFile, FailsWith75ForADevice) {
    EXPECT_EQ(FailureOf([] { ReadWholeFile("/dev/zero"); }), kPathFileAccess);
}

TEST(ReadWholeFile, FailsWith70WhenItMayNotBeRead) {
    const TempFolder folder;
    const std::string file = folder.File("x", "secret");
    fs::permissions(file, fs::perms::none);
    EXPECT_EQ(AsOrdinaryUser([&] { return FailureOf([&] { ReadWholeFile(file); }); }),
              kPermissionDenied);
}

TEST(ReadWholeFile, FailsWith70InAFolderThatMayNotBeEntered) {
    const TempFolder folder;
    fs::create_directory(folder.Path("sub"));
    const std::string file = folder.File("sub/x", "secret");
    fs::permissions(folder.Path("sub"), fs::perms::none);
    EXPECT_EQ(AsOrdinaryUser([&] { return FailureOf([&] { ReadWholeFile(file); }); }),
              kPermissionDenied);
    EXPECT_EQ(AsOrdinaryUser([&] { return FailureOf([&] { ReadWholeFileIfThere(file); }); }),
              kPermissionDenied);
    fs::permissions(folder.Path("sub"), fs::perms::owner_all);
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
    fs::create_symlink(file, folder.Path("link"));
    EXPECT_TRUE(ReplaceFile(folder.Path("link"), "new"));
    EXPECT_TRUE(fs::is_symlink(folder.Path("link")));
    EXPECT_EQ(folder.Bytes("file"), "new");
}

TEST(ReplaceFile, KeepsThePermissions) {
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
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_FALSE(ReplaceFile(pipe, "text"));
    EXPECT_TRUE(fs::is_fifo(pipe));
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(ReplaceFile, IsRefusedOverAProtectedFile) {
    const TempFolder folder;
    const std::string file = folder.File("x", "old");
    fs::permissions(folder.Path(), fs::perms::all);
    fs::permissions(file, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    EXPECT_EQ(AsOrdinaryUser([&] { return ReplaceFile(file, "new") ? 1 : 0; }), 0);
    EXPECT_EQ(folder.Bytes("x"), "old");
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(ReplaceFile, IsRefusedInAProtectedFolder) {
    const TempFolder folder;
    const std::string file = folder.File("x", "old");
    fs::permissions(file, fs::perms::all);
    const fs::perms mode = fs::status(folder.Path()).permissions();
    fs::permissions(folder.Path(), fs::perms::owner_read | fs::perms::owner_exec |
                                       fs::perms::others_read | fs::perms::others_exec);
    EXPECT_EQ(AsOrdinaryUser([&] { return ReplaceFile(file, "new") ? 1 : 0; }), 0);
    fs::permissions(folder.Path(), mode);
    EXPECT_EQ(folder.Bytes("x"), "old");
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(ReplaceFile, LeavesTheOldFileWhenTheDiskIsFull) {
    const TempFolder folder;
    const std::string file = folder.File("x", "old");
    fs::permissions(folder.Path(), fs::perms::all);
    fs::permissions(file, fs::perms::all);
    EXPECT_EQ(AsOrdinaryUser([&] {
                  // A limit on the size of files stands for the disk's.
                  const rlimit limit{1000, 1000};
                  std::signal(SIGXFSZ, SIG_IGN);
                  const bool limited = setrlimit(RLIMIT_FSIZE, &limit) == 0;
                  return limited && !ReplaceFile(file, std::string(5000, 'x')) ? 7 : 1;
              }),
              7);
    EXPECT_EQ(folder.Bytes("x"), "old");
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
    EXPECT_EQ(FailureOfWriting("/dev/full"), kPathFileAccess);
    EXPECT_EQ(FailureOfWriting(""), kPathFileAccess);
    EXPECT_EQ(FailureOfWriting(folder.Path(std::string(256, 'n'))), kPathFileAccess);
    EXPECT_EQ(folder.Entries(), 1);
}

TEST(WriteWholeFile, FailsWith70WhereTheFileOrTheFolderIsProtected) {
    const TempFolder folder;
    fs::permissions(folder.Path(), fs::perms::all);
    const std::string file = folder.File("x", "old");
    fs::permissions(file, fs::perms::owner_read | fs::perms::others_read);
    EXPECT_EQ(AsOrdinaryUser([&] { return FailureOfWriting(file); }), kPermissionDenied);
    fs::permissions(file, fs::perms::all);
    fs::permissions(folder.Path(),
                    fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
    if (geteuid() == 0) {
        EXPECT_EQ(AsOrdinaryUser([&] { return FailureOfWriting(file); }), kPermissionDenied);
    }
    fs::permissions(folder.Path(), fs::perms::owner_all);
    EXPECT_EQ(folder.Bytes("x"), "old");
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

#ifdef __linux__
/// Status of a process of its own in which `action` ran with a disk of 64 kB at `place`; 254 where
/// the system gives none.
template <class Action>
int WithSmallDisk(const std::string &place, Action action) {
    constexpr int kNone = 254;
    const pid_t child = fork();
    if (child == 0) {
        const bool given =
            (unshare(CLONE_NEWNS) == 0 || unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0) &&
            mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
            mount("none", place.c_str(), "tmpfs", 0, "size=64k") == 0;
        _exit(given ? action() : kNone);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(WriteWholeFile, FailsWith61OnAFullDiskAndWith70OnAReadOnlyOne) {
    const TempFolder folder;
    const std::string place = folder.Path();
    const int seen = WithSmallDisk(place, [&] {
        const std::string file = place + "/x";
        const std::string old(30000, 'o');
        WriteWholeFile(file, old, Flush::yes);
        const bool full = FailureOfWriting(file, std::string(60000, 'n')) == kDiskFull &&
                          ReadWholeFile(file) == old && folder.Entries() == 1;
        // What a killed save has left is what fills a disk.
        std::unique_ptr<std::FILE, int (*)(std::FILE *)> part(
            std::fopen((place + "/loftwing-7.part").c_str(), "wb"), std::fclose);
        std::fputs(std::string(25000, 'p').c_str(), part.get());
        part.reset();
        const std::string fits(25000, 'n');
        WriteWholeFile(file, fits, Flush::yes);
        const bool cleared = ReadWholeFile(file) == fits && folder.Entries() == 1;
        const bool protects =
            mount("none", place.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0 &&
            FailureOfWriting(file) == kPermissionDenied && ReadWholeFile(file) == fits;
        return (full ? 1 : 0) + (cleared ? 2 : 0) + (protects ? 4 : 0);
    });
    if (seen == 254) {
        GTEST_SKIP() << "no disk of one's own here";
    }
    EXPECT_EQ(seen, 7);
}
#endif

TEST(FlushToDisk, SaysThatTheDiskIsFull) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(std::fopen("/dev/full", "wb"),
                                                                std::fclose);
    ASSERT_TRUE(file);
    std::fputs("text", file.get());
    errno = 0;
    EXPECT_FALSE(FlushToDisk(file.get()));
    EXPECT_EQ(errno, ENOSPC);
}

TEST(FileClaim, IsOnePartysAlone) {
    using Handle = std::unique_ptr<std::FILE, int (*)(std::FILE *)>;
    const TempFolder folder;
    const std::string path = folder.File("x", "");
    const auto open = [&path] { return Handle(std::fopen(path.c_str(), "r+b"), std::fclose); };
    FileClaim one;
    FileClaim other;
    {
        const Handle file = open();
        ASSERT_EQ(one.Make(file.get()), Claim::made);
    } // it outlives the closing
    EXPECT_EQ(other.Make(open().get()), Claim::lost);
    one.Release();
    EXPECT_EQ(other.Make(open().get()), Claim::made);
    other.Release();
    const Handle nameless = open();
    fs::remove(path);
    EXPECT_EQ(one.Make(nameless.get()), Claim::lost);
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
        const std::unique_ptr<std::FILE, int (*)(std::FILE *)> file(std::fopen(path.c_str(), "r+b"),
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
    fs::create_directory(folder.Path("loftwing-12.part"));
    fs::create_symlink(folder.Path("x.part"), folder.Path("loftwing-13.part"));
    ASSERT_EQ(mkfifo(folder.Path("loftwing-14.part").c_str(), 0600), 0);
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
