#include "lang/ini_index.h"

#include "base/text_encoding.h"
#include "lang/ini_line.h"

#include <algorithm>
#include <bit>

namespace loftwing {

namespace {

constexpr std::uint64_t kStart = 0xCBF29CE484222325U;

/// Names that differ in case only have the same.
std::uint64_t HashOf(std::string_view name, std::uint64_t hash = kStart) {
    for (const char letter : name) {
        hash = (hash ^ static_cast<unsigned char>(LowerAscii(letter))) * 0x100000001B3U;
    }
    return hash ^ hash >> 32U;
}

std::size_t PlacesFor(std::size_t entries) {
    return std::bit_ceil(2 * entries + 1);
}

/// The place in `table` of what `same` tells to be looked for, or the free one where it would be.
template <class Table, class Same>
auto &PlaceIn(Table &table, std::uint64_t hash, const Same &same) {
    const std::size_t mask = table.size() - 1;
    std::size_t at = hash & mask;
    while (table[at].line != 0 && !same(table[at])) {
        at = (at + 1) & mask;
    }
    return table[at];
}

const std::string &LineAt(const IniIndex::Lines &lines, std::uint32_t number) {
    return lines[number - 1];
}

/// Tells a section of that name.
auto IsNamed(const IniIndex::Lines &lines, std::string_view name) {
    return [&lines, name](const auto &place) {
        return SameIniName(IniSectionName(LineAt(lines, place.line)), name);
    };
}

/// Tells an entry of a section by its key, blanks left off or not.
auto IsTrimmed(const IniIndex::Lines &lines, std::uint32_t section, std::string_view key) {
    return [&lines, section, key](const auto &place) {
        return place.section == section &&
               SameIniName(WithoutIniBlanks(IniKeyOf(LineAt(lines, place.line))), key);
    };
}
auto IsAsFound(const IniIndex::Lines &lines, std::uint32_t section, std::string_view key) {
    return [&lines, section, key](const auto &place) {
        return place.section == section && SameIniName(IniKeyOf(LineAt(lines, place.line)), key);
    };
}

} // namespace

IniIndex::IniIndex(const Lines &lines) {
    std::size_t sections = 0;
    std::size_t entries = 0;
    bool blanks = false;
    for (const std::string &line : lines) {
        const bool begins = IsIniSection(line);
        const std::string_view key = begins ? std::string_view() : IniKeyOf(line);
        sections += begins ? 1U : 0U;
        entries += key.empty() ? 0U : 1U;
        blanks = blanks || WithoutIniBlanks(key).size() != key.size();
    }
    sections_.resize(PlacesFor(sections));
    trimmed_.resize(PlacesFor(entries));
    as_found_.resize(PlacesFor(blanks ? entries : 0));
    std::uint32_t section = 0; // none that counts
    std::uint32_t number = 0;
    for (const std::string &line : lines) {
        ++number;
        if (IsIniSection(line)) {
            const std::string_view name = IniSectionName(line);
            Place &place = PlaceIn(sections_, HashOf(name), IsNamed(lines, name));
            section = place.line == 0 ? number : 0;
            place = place.line == 0 ? Place{number, number} : place;
        } else if (section != 0 && !IniKeyOf(line).empty()) {
            Add(lines, number, section);
        }
    }
}

void IniIndex::Add(const Lines &lines, std::uint32_t line, std::uint32_t section) {
    const std::string_view key = IniKeyOf(LineAt(lines, line));
    const std::string_view bare = WithoutIniBlanks(key);
    Place &first = PlaceIn(trimmed_, HashOf(bare, section), IsTrimmed(lines, section, bare));
    if (first.line == 0) {
        first = {line, section};
        return;
    }
    if (SameIniName(IniKeyOf(LineAt(lines, first.line)), key)) {
        return;
    }
    Place &place = PlaceIn(as_found_, HashOf(key, section), IsAsFound(lines, section, key));
    place = place.line == 0 ? Place{line, section} : place;
}

std::optional<std::size_t> IniIndex::Find(const Lines &lines, std::string_view section,
                                          std::string_view key) const {
    const std::uint32_t begins = PlaceIn(sections_, HashOf(section), IsNamed(lines, section)).line;
    const std::string_view bare = WithoutIniBlanks(key);
    const std::uint32_t nearly =
        begins == 0 ? 0
                    : PlaceIn(trimmed_, HashOf(bare, begins), IsTrimmed(lines, begins, bare)).line;
    if (nearly == 0) {
        return std::nullopt;
    }
    const std::uint32_t found =
        SameIniName(IniKeyOf(LineAt(lines, nearly)), key)
            ? nearly
            : PlaceIn(as_found_, HashOf(key, begins), IsAsFound(lines, begins, key)).line;
    return (found == 0 ? nearly : found) - 1;
}

} // namespace loftwing
