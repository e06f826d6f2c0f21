/// Where in an ini-style file its entries stand. A language file is asked for hundreds of texts,
/// and a file may have hundreds of thousands of keys: searching the lines for each would take their
/// product.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace loftwing {

/// Holds for the lines it was made of, as long as each stays in its place and keeps its name. All
/// questions are asked with these lines.
class IniIndex {
  public:
    using Lines = std::vector<std::string>;

    explicit IniIndex(const Lines &lines);

    /// The line of a key: in the first section of that name the first that is written alike, else
    /// the first that is but for the blanks around it. Nothing where there is none.
    std::optional<std::size_t> Find(const Lines &lines, std::string_view section,
                                    std::string_view key) const;

  private:
    /// An entry and the line that begins its section, both counted from 1; 0 is a free place. A
    /// section has its own line for both.
    struct Place {
        std::uint32_t line = 0;
        std::uint32_t section = 0;
    };
    /// Open addressing in twice the places that can be taken.
    using Table = std::vector<Place>;

    Table sections_; ///< the first of each name
    Table trimmed_;  ///< the first entry of each section and name, blanks left off
    Table as_found_; ///< the first of each name as it stands, where that isn't the one before

    void Add(const Lines &lines, std::uint32_t line, std::uint32_t section);
};

} // namespace loftwing
