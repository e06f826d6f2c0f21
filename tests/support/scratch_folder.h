/// A folder that lives as long as a test.
#pragma once

#include <filesystem>
#include <string>

namespace loftwing {

class ScratchFolder {
  public:
    ScratchFolder();
    ScratchFolder(const ScratchFolder &) = delete;
    ScratchFolder &operator=(const ScratchFolder &) = delete;
    ~ScratchFolder();

    std::string Path() const { return path_.string(); }
    /// Path of a file or folder in it.
    std::string operator/(const std::string &name) const { return (path_ / name).string(); }
    /// Writes a file into it and gives its path.
    std::string Write(const std::string &name, const std::string &bytes) const;

  private:
    std::filesystem::path path_;
};

} // namespace loftwing
