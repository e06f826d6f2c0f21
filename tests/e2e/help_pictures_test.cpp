// The pictures of the help, which the build makes from the windows.

#include "base/whole_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

namespace loftwing {
namespace {

namespace fs = std::filesystem;

const fs::path kBuiltHelp = LOFTWING_BINARY_DIR "/help";

TEST(HelpPictures, EveryPageHasOneAndEachIsThere) {
    const std::regex image("<img src=\"([^\"]+)\"");
    int pages = 0;
    for (const auto &entry : fs::recursive_directory_iterator(kBuiltHelp)) {
        if (entry.path().extension() != ".html") {
            continue;
        }
        ++pages;
        const std::string page = ReadWholeFile(entry.path().string());
        EXPECT_TRUE(std::regex_search(page, image)) << entry.path() << " shows nothing";
        for (std::sregex_iterator each(page.begin(), page.end(), image), end; each != end; ++each) {
            const fs::path picture = entry.path().parent_path() / (*each)[1].str();
            ASSERT_TRUE(fs::exists(picture)) << entry.path() << ": " << picture;
            EXPECT_GT(fs::file_size(picture), 200U) << picture;
        }
    }
    EXPECT_GE(pages, 88);
}

} // namespace
} // namespace loftwing
