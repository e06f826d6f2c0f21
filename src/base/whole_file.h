/// Files read and written whole.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace loftwing {

/// Largest file that the program takes for a text; anything longer is no text of its trade.
inline constexpr std::size_t kLargestFile = std::size_t{64} * 1024 * 1024;

/// The bytes of a file. Failure 53 or 76 when file or folder isn't there, 75 when it is no plain
/// file, 70 when it may not be read, 7 above kLargestFile, 57 when reading breaks off.
std::string ReadWholeFile(const std::string &path);

/// The bytes of a file, none when it isn't there. Other failures as ReadWholeFile.
std::string ReadWholeFileIfThere(const std::string &path);

/// Whether a file must outlast a power cut: what a user saves in a window must. It costs some
/// thousandths of a second each, too much for a library's drawings.
enum class Flush { no, yes };

/// Writes `bytes` beside `path` and renames that over it when it is whole, so that a crash, a full
/// disk or a refused write leaves what was there. With Flush::yes it is on the disk before it gets
/// its name, and the name is before this returns. Folders on the way are not made. What saves that
/// were killed have left in the folder goes.
///
/// Failure 61 when the disk is full, 70 when folder or file may not be written, 76 when there is no
/// such folder, 57 when the disk fails, 75 when `path` is no plain file or is refused otherwise;
/// nothing of it is left behind then.
void WriteWholeFile(const std::string &path, std::string_view bytes, Flush flush = Flush::no);

/// The same for a file that the program can do without: false instead of the failure.
bool ReplaceFile(const std::string &path, std::string_view bytes, Flush flush = Flush::no);

struct FileToWrite {
    std::string path;
    std::string bytes;
};
/// Files that belong together: all are written beside their places before the first one is renamed,
/// so that one that isn't taken leaves everything as it was. Failures as WriteWholeFile, with the
/// one that it concerns.
void WriteWholeFiles(const std::vector<FileToWrite> &files, Flush flush = Flush::no);

/// Takes away what saves that were killed have left in a folder: files that are called as this unit
/// calls them on their way, and that no process is at work on. At most the folder's first 100,000
/// entries are looked at.
void RemoveAbandonedParts(const std::string &folder);

std::vector<std::string> PathsOf(const std::vector<FileToWrite> &files);

} // namespace loftwing
