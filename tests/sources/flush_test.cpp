// What windows save outlasts a power cut: whoever writes a file says whether it must.

#include "base/whole_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace loftwing {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr std::array kWriters = {"WriteWholeFile(", "WriteWholeFiles(", "EcritFichier(",
                                 "EnregistrePanneau(", "ReplaceFile("};

/// The calls of writers that don't say whether the file must outlast a power cut.
std::vector<std::string> Undecided(const std::string &source) {
    std::vector<std::string> calls;
    for (const std::string writer : kWriters) {
        for (std::size_t at = source.find(writer); at != std::string::npos;
             at = source.find(writer, at + 1)) {
            const std::string call = source.substr(at, source.find(';', at) - at);
            const bool defines = source.rfind("void ", at) == at - 5; // isn't a call
            if (!defines && call.find("lush") == std::string::npos) {
                calls.push_back(writer.substr(0, writer.size() - 1));
            }
        }
    }
    return calls;
}

TEST(Flushed, IsWhatWindowsSave) {
    std::vector<std::string> files;
    for (const auto &entry : fs::recursive_directory_iterator(LOFTWING_SOURCE_DIR "/src")) {
        const std::string file =
            fs::relative(entry.path(), LOFTWING_SOURCE_DIR "/src").generic_string();
        // The command line writes for speed; whoever wants to be sure of its files can wait.
        if (entry.path().extension() == ".cpp" && !file.starts_with("app/") &&
            !Undecided(ReadWholeFile(entry.path().string())).empty()) {
            files.push_back(file);
        }
    }
    // Sets of ribs, and snapshots, which are written every few seconds.
    EXPECT_THAT(files, UnorderedElementsAre("utilities/rib_set.cpp", "programme/panel_steps.cpp",
                                            "programme/secours.cpp"));
}

TEST(Flushed, ACallThatDoesNotDecideIsFound) {
    EXPECT_THAT(Undecided("{ WriteWholeFile(path,\n  bytes); }"), ElementsAre("WriteWholeFile"));
    EXPECT_THAT(Undecided("{ WriteWholeFile(path,\n  bytes, Flush::yes); }"), IsEmpty());
    EXPECT_THAT(Undecided("void EcritFichier(const std::string &path);"), IsEmpty());
}

} // namespace
} // namespace loftwing
