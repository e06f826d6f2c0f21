// Files that say that a process lives.

#include "platform/qt_lock.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <QSysInfo>

#include <chrono>
#include <filesystem>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

TEST(HeldFiles, OneIsHeldOnceAndGoesWithItsHolder) {
    const TempFolder folder;
    const std::string path = folder.Path("1.lock");
    auto held = HoldFile(path);
    ASSERT_TRUE(held);
    EXPECT_TRUE(fs::exists(path));
    EXPECT_FALSE(HoldFile(path));
    held.reset();
    EXPECT_FALSE(fs::exists(path));
    EXPECT_TRUE(HoldFile(path));
}

TEST(HeldFiles, OneThatIsHeldForWeeksIsHeld) {
    const TempFolder folder;
    const std::string path = folder.Path("1.lock");
    const auto held = HoldFile(path);
    fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(24 * 30));
    EXPECT_FALSE(HoldFile(path));
}

TEST(HeldFiles, OneOfAProcessThatIsNoMoreIsFree) {
    const TempFolder folder;
    // No process can have that number.
    const std::string path =
        folder.File("1.lock", "2147483646\nloftwing\n" + QSysInfo::machineHostName().toStdString() +
                                  "\n" + QSysInfo::machineUniqueId().toStdString() + "\n" +
                                  QSysInfo::bootUniqueId().toStdString() + "\n");
    EXPECT_TRUE(HoldFile(path));
}

TEST(HeldFiles, WithoutItsFolderNoneIsHeld) {
    const TempFolder folder;
    EXPECT_FALSE(HoldFile(folder.Path("none/1.lock")));
}

} // namespace
} // namespace loftwing
