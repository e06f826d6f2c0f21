// What only systems with users, permissions and processes that fork let be tried.

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

int FailureOfSaving(const std::string &path, const std::string &bytes = "new") {
    return FailureOf([&] { WriteWholeFile(path, bytes); });
}

TEST(ReadWholeFile, FailsWith75ForADevice) {
    EXPECT_EQ(FailureOf([] { ReadWholeFile("/dev/zero"); }), kPathFileAccess);
}

TEST(WriteWholeFile, FailsWith75ForADevice) {
    EXPECT_EQ(FailureOfSaving("/dev/full"), kPathFileAccess);
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

TEST(WriteWholeFile, FailsWith70WhereTheFileOrTheFolderIsProtected) {
    const TempFolder folder;
    fs::permissions(folder.Path(), fs::perms::all);
    const std::string file = folder.File("x", "old");
    fs::permissions(file, fs::perms::owner_read | fs::perms::others_read);
    EXPECT_EQ(AsOrdinaryUser([&] { return FailureOfSaving(file); }), kPermissionDenied);
    fs::permissions(file, fs::perms::all);
    fs::permissions(folder.Path(),
                    fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
    if (geteuid() == 0) {
        EXPECT_EQ(AsOrdinaryUser([&] { return FailureOfSaving(file); }), kPermissionDenied);
    }
    fs::permissions(folder.Path(), fs::perms::owner_all);
    EXPECT_EQ(folder.Bytes("x"), "old");
    EXPECT_EQ(folder.Entries(), 1);
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
        const bool full = FailureOfSaving(file, std::string(60000, 'n')) == kDiskFull &&
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
            FailureOfSaving(file) == kPermissionDenied && ReadWholeFile(file) == fits;
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

TEST(FileClaim, IsLostWithTheName) {
    using Handle = std::unique_ptr<std::FILE, int (*)(std::FILE *)>;
    const TempFolder folder;
    const std::string path = folder.File("x", "");
    const Handle nameless(std::fopen(path.c_str(), "r+b"), std::fclose);
    fs::remove(path);
    FileClaim claim;
    EXPECT_EQ(claim.Make(nameless.get()), Claim::lost);
}

} // namespace
} // namespace loftwing
