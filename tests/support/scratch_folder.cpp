#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

namespace loftwing {

ScratchFolder::ScratchFolder() {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "loftwing-test-XXXXXX").string();
    EXPECT_NE(mkdtemp(pattern.data()), nullptr);
    path_ = pattern;
}

ScratchFolder::~ScratchFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
}

std::string ScratchFolder::Write(const std::string &name, const std::string &bytes) const {
    std::ofstream file(path_ / name, std::ios::binary);
    file << bytes;
    EXPECT_TRUE(file.good()) << name;
    return (path_ / name).string();
}

} // namespace loftwing
