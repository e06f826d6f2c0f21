// A program starts in the C locale whatever the user has set. The tests run in the user's, as the
// windows do, so that a number that follows the locale shows.

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <locale>
#include <stdexcept>

namespace {

class UserLocale : public testing::Environment {
  public:
    void SetUp() override {
        const char *name = std::setlocale(LC_ALL, "");
        try {
            std::locale::global(std::locale(""));
        } catch (const std::runtime_error &) {
            name = nullptr;
        }
        std::printf("Locale: %s\n", name != nullptr ? name : "C, the wanted one is not installed");
    }
};

[[maybe_unused]] testing::Environment *const kUserLocale =
    testing::AddGlobalTestEnvironment(new UserLocale); // the test library owns it

} // namespace
