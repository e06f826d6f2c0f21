// The pictures of the help, which the build makes from the windows.

#include "base/whole_file.h"
#include "e2e/program.h"
#include "support/temp_folder.h"

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

/// Asks the tool that takes the pictures for what it can't do, in an empty folder.
TEST(HelpPictures, TheToolTakesAnUnknownOptionForNoFolder) {
    const TempFolder folder;
    const std::string tool = ShellWord(LOFTWING_BINARY_DIR "/tools/window_pictures");
    for (const char *words :
         {"", "--help", "-h", "--help-pages", "--help-pages --help", "made --scale 2",
          "made --screen 0", "made --screen 9", "made --screen 1x", "made --screen",
          "made --display 800", "made --display 800x", "made --display 800x600x", "made --unit cm",
          "made twice"}) {
        const Ran ran = RunShell("cd " + ShellWord(folder.Path()) + " && " + tool + " " + words);
        EXPECT_EQ(ran.status, 2) << words;
        EXPECT_TRUE(ran.err.starts_with("window_pictures FOLDER")) << words << ": " << ran.err;
    }
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

} // namespace
} // namespace loftwing
