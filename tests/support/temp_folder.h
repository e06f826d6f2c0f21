/// A folder that lives as long as its test.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace loftwing {

class TempFolder {
  public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder &) = delete;
    TempFolder &operator=(const TempFolder &) = delete;

    /// Path of `name` in the folder, whether there is such a file or not.
    std::string Path(std::string_view name) const;
    std::string Path() const;
    /// Writes a file and gives its path.
    std::string File(std::string_view name, std::string_view bytes) const;
    /// Bytes of a file of the folder; fails the test when there is none.
    std::string Bytes(std::string_view name) const;
    /// Number of entries in the folder.
    std::ptrdiff_t Entries() const;

  private:
    std::filesystem::path folder_;
};

} // namespace loftwing
