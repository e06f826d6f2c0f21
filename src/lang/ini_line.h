/// One line of an ini-style file: what it is, and the names on it.
#pragma once

#include <string_view>

namespace loftwing {

/// Whether two names are the same but for the case of plain letters.
bool SameIniName(std::string_view one, std::string_view other);

std::string_view WithoutIniBlanks(std::string_view text);

/// Whether the line begins a section, and the name of one that does.
bool IsIniSection(std::string_view line);
std::string_view IniSectionName(std::string_view line);

/// The key of a line as it stands; empty for a line that is no entry.
std::string_view IniKeyOf(std::string_view line);

/// The value of an entry without blanks and one pair of quotes around it.
std::string_view IniValueOf(std::string_view line);

} // namespace loftwing
