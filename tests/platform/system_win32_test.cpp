#include "platform/system.h"

#include "base/file_name.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <string>

namespace loftwing {
namespace {

/// A variable of the process, as it was before at the end.
class WideVariable {
  public:
    WideVariable(std::wstring name, const std::wstring &value) : name_(std::move(name)) {
        if (const wchar_t *before = _wgetenv(name_.c_str())) {
            before_ = before;
        }
        Set(value);
    }
    WideVariable(const WideVariable &) = delete;
    WideVariable &operator=(const WideVariable &) = delete;
    ~WideVariable() { Set(before_); }

  private:
    std::wstring name_;
    std::wstring before_;

    void Set(const std::wstring &value) const {
        EXPECT_EQ(_wputenv((name_ + L"=" + value).c_str()), 0);
    }
};

TEST(UserFolders, HaveTheLettersOfAllWriters) {
    const WideVariable roaming(L"APPDATA", L"C:\\Users\\J\x00FCrgen \x6A21\x578B\\Roaming");
    const WideVariable local(L"LOCALAPPDATA", L"C:\\Users\\J\x00FCrgen \x6A21\x578B\\Local");
    EXPECT_EQ(TextOf(ConfigFolder()), "C:\\Users\\J\xC3\xBCrgen \xE6\xA8\xA1\xE5\x9E\x8B\\Roaming");
    EXPECT_EQ(TextOf(DataFolder()), "C:\\Users\\J\xC3\xBCrgen \xE6\xA8\xA1\xE5\x9E\x8B\\Local");
}

TEST(UserFolders, AreThoseOfTheProfileWithoutAVariableOfTheirOwn) {
    const WideVariable roaming(L"APPDATA", L"");
    const WideVariable local(L"LOCALAPPDATA", L"");
    const WideVariable profile(L"USERPROFILE", L"C:\\Users\\\x0416");
    EXPECT_EQ(TextOf(HomeFolder()), "C:\\Users\\\xD0\x96");
    EXPECT_EQ(TextOf(ConfigFolder()), "C:\\Users\\\xD0\x96\\AppData\\Roaming");
    EXPECT_EQ(TextOf(DataFolder()), "C:\\Users\\\xD0\x96\\AppData\\Local");
}

TEST(ProgramFile, IsThisProgram) {
    EXPECT_EQ(TextOf(ProgramFile().filename()), "core_tests.exe");
    EXPECT_TRUE(IsPlainFile(TextOf(ProgramFile())));
}

TEST(LocalTime, IsTheUsersClock) {
    const std::time_t evening = 1700000000; // 2023-11-14 22:13:20 in Greenwich
    const std::tm local = LocalTime(evening);
    EXPECT_EQ(local.tm_year, 123);
    EXPECT_EQ(local.tm_mon, 10);
    EXPECT_EQ(local.tm_sec, 20);
}

} // namespace
} // namespace loftwing
