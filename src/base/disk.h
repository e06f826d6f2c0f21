/// What every system does in its own way for files and their ways to the disk. Calls that only some
/// systems have stand in this unit and nowhere else below platform/.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace loftwing {

/// How a file is opened.
enum class Opening {
    read,   ///< to be read
    change, ///< to be read and written; it must be there
    make    ///< to be written; it must not be there
};

/// Opens a file whose bytes pass as they are. Null where it doesn't open; errno then says why. What
/// others do with the file meanwhile, to rename it and take it away too, is left to them.
std::FILE *OpenFile(const std::filesystem::path &path, Opening opening);

/// The errno number of a reason that the library gives. A file that another program keeps to itself
/// is one that may not be used.
int ReasonOf(const std::error_code &error);

/// Gives a file another name in its folder, over a file that bears it. With `lasting` the disk has
/// it before this returns, where the system can say so of a name; FlushFolder() does it elsewhere.
void RenameOver(const std::filesystem::path &from, const std::filesystem::path &to, bool lasting,
                std::error_code &error);

/// Sends what was written to an open file to the disk itself, past all that is kept in memory.
/// False when that fails; errno then says why. A file system that has no such thing is no failure.
bool FlushToDisk(std::FILE *file);

/// Sends the names of a folder's files to the disk, so that one that was just given is there after
/// a power cut. Where that can't be done the older name is there, which is no failure.
void FlushFolder(const std::filesystem::path &folder);

/// What is at a path, as std::filesystem::status says it, whatever separator the path ends in.
std::filesystem::file_status StateOf(const std::filesystem::path &path, std::error_code &error);

/// Whether two paths lead to one place that is there.
bool SamePlace(const std::filesystem::path &one, const std::filesystem::path &other);

/// The place itself that a path leads to: from the root on, without links, and in the letters that
/// the disk has. `error` is set where there is nothing.
std::filesystem::path RealPath(const std::filesystem::path &path, std::error_code &error);
/// The same for a path whose end needn't be there.
std::filesystem::path RealPlace(const std::filesystem::path &path, std::error_code &error);

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
    static constexpr std::intptr_t kNone = -1;
    std::intptr_t held_ = kNone; ///< the system's number of the file
};

} // namespace loftwing
