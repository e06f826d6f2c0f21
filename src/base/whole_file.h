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

/// Writes `bytes` beside `path` and renames that over it when it is whole, so that a crash, a full
/// disk or a refused write leaves what was there. Folders on the way are not made. False, and
/// nothing left behind, when any step is refused, `path` is no plain file or is write-protected.
bool ReplaceFile(const std::string &path, std::string_view bytes);

/// The same for a file that must be written: failure 75 instead of false.
void WriteWholeFile(const std::string &path, std::string_view bytes);

struct FileToWrite {
    std::string path;
    std::string bytes;
};
/// Files that belong together: all are written beside their places before the first one is renamed,
/// so that a refused one leaves everything as it was. Failure 75 names it.
void WriteWholeFiles(const std::vector<FileToWrite> &files);
std::vector<std::string> PathsOf(const std::vector<FileToWrite> &files);

} // namespace loftwing
