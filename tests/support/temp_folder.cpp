#include "support/temp_folder.h"

#include "base/file_name.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

namespace loftwing {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
    static std::mt19937 dice{std::random_device{}()};
    do {
        folder_ = fs::temp_directory_path() / ("loftwing-test-" + std::to_string(dice()));
    } while (!fs::create_directory(folder_));
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

std::string TempFolder::Path(std::string_view name) const {
    return TextOf((folder_ / PathOf(name)).make_preferred());
}

std::string TempFolder::Path() const {
    return TextOf(folder_);
}

std::string TempFolder::File(std::string_view name, std::string_view bytes) const {
    std::ofstream file(folder_ / PathOf(name), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(file.good()) << name;
    return Path(name);
}

std::string TempFolder::Bytes(std::string_view name) const {
    std::ifstream file(folder_ / PathOf(name), std::ios::binary);
    EXPECT_TRUE(file.good()) << name;
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

std::ptrdiff_t TempFolder::Entries() const {
    return std::distance(fs::directory_iterator(folder_), fs::directory_iterator());
}

} // namespace loftwing
