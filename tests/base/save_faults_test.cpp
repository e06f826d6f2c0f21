// A save that is killed, or refused something, at each of its system calls: the user's file is the
// old one or the new one, whole.

#include "base/whole_file.h"

#include "base/failure.h"
#include "support/system_calls.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <map>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

constexpr int kMostCalls = 200; // a save has a few dozens

/// What the failure of a call is called that is refused so.
const std::map<int, int> kRefusals = {
    {ENOSPC, kDiskFull}, {EIO, kDeviceError}, {EROFS, kPermissionDenied}, {EBUSY, kPathFileAccess}};

class SaveFaults : public testing::TestWithParam<Flush> {
  protected:
    void SetUp() override {
        if (!CanWatchCalls()) {
            GTEST_SKIP() << "this system lets no process be watched";
        }
    }

    /// One save with that fault; its process ends with the number of its failure.
    WatchedRun Save(std::optional<CallFault> fault) const {
        return WatchCalls(
            [this] {
                try {
                    WriteWholeFile(folder.Path("x"), new_one, GetParam());
                    return 0;
                } catch (const Failure &failure) {
                    return failure.number;
                }
            },
            folder.Path(), fault);
    }
    /// The file of before, or none.
    void Start(bool there) const {
        fs::remove(folder.Path("x"));
        if (there) {
            folder.File("x", old);
        }
    }
    bool Old(bool there) const {
        return there ? folder.Bytes("x") == old : !fs::exists(folder.Path("x"));
    }
    bool New() const { return fs::exists(folder.Path("x")) && folder.Bytes("x") == new_one; }
    void ExpectNothingElse() const { EXPECT_EQ(folder.Entries(), fs::exists(folder.Path("x"))); }

    TempFolder folder;
    std::string old = std::string(30000, 'o'); // more than a block
    std::string new_one = std::string(70000, 'n');
};

TEST_P(SaveFaults, KilledAtEachCallTheFileIsOldOrNewAndTheNextSaveClearsUp) {
    for (const bool there : {false, true}) {
        int olds = 0;
        int news = 0;
        int parts = 0;
        bool through = false;
        for (int call = 1; !through && call < kMostCalls; ++call) {
            SCOPED_TRACE("call " + std::to_string(call));
            Start(there);
            const WatchedRun run = Save(CallFault{call, 0});
            through = !run.faulted;
            EXPECT_TRUE(through ? run.Exited(0) : run.Killed());
            ASSERT_TRUE(Old(there) || New());
            (New() ? news : olds) += 1;
            const auto left = folder.Entries() - (fs::exists(folder.Path("x")) ? 1 : 0);
            EXPECT_LE(left, 1);
            parts += static_cast<int>(left);
            WriteWholeFile(folder.Path("y"), "another", Flush::yes);
            fs::remove(folder.Path("y"));
            ExpectNothingElse();
        }
        EXPECT_TRUE(through);
        EXPECT_GT(olds, 5); // so that the kills come before, between and after
        EXPECT_GT(news, 1);
        EXPECT_GT(parts, 1);
    }
}

TEST_P(SaveFaults, WhatOnlyItsOwnerMayReadIsNobodyElsesMeanwhile) {
    constexpr fs::perms kOwner = fs::perms::owner_read | fs::perms::owner_write;
    bool through = false;
    int seen = 0;
    for (int call = 1; !through && call < kMostCalls; ++call) {
        SCOPED_TRACE("call " + std::to_string(call));
        Start(true);
        fs::permissions(folder.Path("x"), kOwner);
        through = !Save(CallFault{call, 0}).faulted;
        for (const auto &entry : fs::directory_iterator(folder.Path())) {
            if (entry.file_size() > 0) {
                EXPECT_EQ(entry.status().permissions(), kOwner) << entry.path();
                seen += entry.path().filename() == "x" ? 0 : 1;
            }
        }
        RemoveAbandonedParts(folder.Path());
    }
    EXPECT_GT(seen, 0);
}

TEST_P(SaveFaults, RefusedAtEachCallTheFileIsOldAndItSaysWhyOrItIsNew) {
    for (const auto &[error, number] : kRefusals) {
        int refused = 0;
        bool through = false;
        for (int call = 1; !through && call < kMostCalls; ++call) {
            SCOPED_TRACE("error " + std::to_string(error) + " at call " + std::to_string(call));
            Start(true);
            const WatchedRun run = Save(CallFault{call, error});
            through = !run.faulted;
            if (run.Exited(0)) {
                EXPECT_TRUE(New());
            } else {
                ++refused;
                EXPECT_TRUE(run.Exited(number)) << run.status;
                EXPECT_TRUE(Old(true));
            }
            ExpectNothingElse();
        }
        EXPECT_TRUE(through);
        EXPECT_GE(refused, GetParam() == Flush::yes ? 6 : 5);
    }
}

TEST_P(SaveFaults, TheDiskHasTheBytesBeforeTheNameAndThenTheNameWhereThatIsAskedFor) {
    const WatchedRun run = Save(std::nullopt);
    ASSERT_TRUE(run.Exited(0));
    const long renamed = run.Place(RenameCalls());
    ASSERT_GE(renamed, 0);
    const long first = run.Place(FlushCalls());
    if (GetParam() == Flush::no) {
        EXPECT_EQ(first, -1);
        return;
    }
    EXPECT_GE(first, 0);
    EXPECT_LT(first, renamed);
    EXPECT_GT(run.Place(FlushCalls(), renamed), renamed);
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutFlush, SaveFaults, testing::Values(Flush::no, Flush::yes));

TEST(SetFaults, RefusedAtEachCallEveryFileOfASetIsWhole) {
    if (!CanWatchCalls()) {
        GTEST_SKIP() << "this system lets no process be watched";
    }
    const TempFolder folder;
    bool through = false;
    for (int call = 1; !through && call < 2 * kMostCalls; ++call) {
        SCOPED_TRACE("call " + std::to_string(call));
        folder.File("a", "old");
        folder.File("b", "old");
        const WatchedRun run = WatchCalls(
            [&folder] {
                try {
                    WriteWholeFiles({{folder.Path("a"), "new a"}, {folder.Path("b"), "new b"}});
                    return 0;
                } catch (const Failure &failure) {
                    return failure.number;
                }
            },
            folder.Path(), CallFault{call, ENOSPC});
        through = !run.faulted;
        EXPECT_TRUE(run.Exited(0) || run.Exited(kDiskFull)) << run.status;
        for (const std::string name : {"a", "b"}) {
            const std::string now = folder.Bytes(name);
            EXPECT_TRUE(now == "new " + name || (now == "old" && !run.Exited(0))) << now;
        }
        EXPECT_EQ(folder.Entries(), 2);
    }
    EXPECT_TRUE(through);
}

} // namespace
} // namespace loftwing
