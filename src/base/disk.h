/// What every system does in its own way for a file on its way to the disk. Calls that only some
/// systems have stand in this unit and nowhere else below platform/.
#pragma once

#include <cstdio>
#include <filesystem>

namespace loftwing {

/// Sends what was written to an open file to the disk itself, past all that is kept in memory.
/// False when that fails; errno then says why. A file system that has no such thing is no failure.
bool FlushToDisk(std::FILE *file);

/// Sends the names of a folder's files to the disk, so that one that was just given is there after
/// a power cut. Where that can't be done the older name is there, which is no failure.
void FlushFolder(const std::filesystem::path &folder);

/// Whose a file is.
enum class Claim {
    made,   ///< this process's, as long as its FileClaim lives
    lost,   ///< another one's, or the file has no name any more
    unknown ///< neither system nor file system can tell
};

/// Says to other processes, and to other threads of this one, that a file is being worked on. It
/// ends with the process, however that ends.
class FileClaim {
  public:
    FileClaim() = default;
    FileClaim(const FileClaim &) = delete;
    FileClaim &operator=(const FileClaim &) = delete;
    FileClaim(FileClaim &&other) noexcept;
    FileClaim &operator=(FileClaim &&) = delete;
    ~FileClaim() { Release(); }

    /// Claims an open file; the claim outlives its closing. It never waits.
    Claim Make(std::FILE *file);
    void Release();

  private:
    static constexpr int kNone = -1;
    int held_ = kNone;
};

} // namespace loftwing
