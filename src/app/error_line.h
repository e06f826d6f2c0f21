/// What the program says of itself on standard error.
#pragma once

#include <iosfwd>
#include <string>

namespace loftwing {

/// Writes "loftwing: TEXT" on standard error as one line: line ends in a file's name are shown as
/// blanks, so that whoever reads line by line has one message in each.
void TellOnError(const std::string &text);
/// The same on `err`, which stands for standard error.
void TellOnError(std::ostream &err, const std::string &text);

} // namespace loftwing
