/// The same done with each of many files, on all cores. What is told and what is written comes in
/// the order of the files, as if one had been worked on after another.
#pragma once

#include "app/console.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace loftwing {

/// What is left to do for a file when those before it are done.
struct FileTurn {
    /// Writes what was made and tells of it; false when anything was refused. Runs in the caller's
    /// thread, after what the work on the file told has been shown.
    std::function<bool()> finish;
    std::size_t bytes = 0; ///< about how many it keeps until then
};

/// Works on one file while others are worked on: reads, computes and tells on `console`, but writes
/// nothing, so that a command that is broken off leaves no more than one that works on them one by
/// one.
using WorkOnFile = std::function<FileTurn(std::size_t index, const Console &console)>;

/// How many files of a command may be worked on at a time.
enum class AtATime {
    many,
    one ///< for what isn't safe in several threads, and for files that are read and written
};

/// Works on files 0 to `count` - 1 and shows on the standard streams what is told. What the work on
/// one throws ends the command at its turn. False when anything was refused.
bool WorkOnFiles(std::size_t count, AtATime at_a_time, const WorkOnFile &work);

/// `one` where any of `files` is written before its turn to be read: it is the file that one of
/// those before it makes, `written` having the paths of these in the order of `files`. It must then
/// be read as it is at its turn.
AtATime AtATimeOf(const std::vector<std::string> &files, const std::vector<std::string> &written);

} // namespace loftwing
