/// Files and paths that differ from system to system.
#pragma once

#include <string>
#include <string_view>

namespace loftwing {

/// A path from the root of the file system on, as the system writes it.
std::string FromRoot(std::string_view path);

/// Makes a pipe among the files; false where the system has none there.
bool MakePipe(const std::string &path);

/// Makes a link at `path` that leads to a file or a folder; false where the system has none or
/// gives nobody leave.
bool MakeLink(const std::string &to, const std::string &path);

/// Whether the user is one whom a folder can be closed to.
bool FoldersCanBeClosed();

} // namespace loftwing
