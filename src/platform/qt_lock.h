/// Files that say that a process lives.
#pragma once

#include "platform/platform.h"

namespace loftwing {

/// As Platform::LockFile has it. Whether the process that made a file still lives is asked of the
/// system, however old the file is.
std::unique_ptr<FileLock> HoldFile(const std::string &path);

} // namespace loftwing
