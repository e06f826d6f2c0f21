/// A picture of Format taken apart once, for writers of many numbers.
#pragma once

#include <string>
#include <string_view>

namespace loftwing {

/// What a picture says. Its text must outlive it.
struct Picture {
    std::string_view before; ///< its parts on both sides of the point
    std::string_view behind;
    bool pointed = false;
    int places = 0; ///< digits behind the point at most
    int forced = 0; ///< characters of `behind` up to the last forced digit
    /// Whether it has a point and no more on either side than places, those of forced digits next
    /// to each other as in "##0.0##": counts then say all of it.
    bool plain = false;
    int forced_before = 0; ///< digits before the point at least, if it is plain

    constexpr explicit Picture(std::string_view text)
        : before(text.substr(0, text.find('.'))), pointed(before.size() < text.size()) {
        if (pointed) {
            behind = text.substr(before.size() + 1);
        }
        places = CountPlaces(behind);
        forced = static_cast<int>(behind.find_last_of('0') + 1);
        const std::size_t first = before.find('0');
        const std::string_view zeros = first < before.size() ? before.substr(first) : "";
        forced_before = static_cast<int>(zeros.size());
        plain = pointed && HasPlacesAlone(before) && HasPlacesAlone(behind) &&
                zeros.find('#') == std::string_view::npos;
    }

    static constexpr bool IsPlace(char character) { return character == '#' || character == '0'; }
    static constexpr int CountPlaces(std::string_view part) {
        int count = 0;
        for (const char character : part) {
            count += IsPlace(character) ? 1 : 0;
        }
        return count;
    }

  private:
    /// And no more of them than the digits that a value has.
    static constexpr bool HasPlacesAlone(std::string_view part) {
        constexpr std::size_t kMost = 15;
        return part.size() <= kMost && CountPlaces(part) == static_cast<int>(part.size());
    }
};

/// As the one of base/number_text.h.
void AppendFormat(std::string &out, double value, const Picture &picture);

} // namespace loftwing
