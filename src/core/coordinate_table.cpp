#include "core/coordinate_table.h"

#include "base/text_encoding.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

namespace loftwing {

namespace {

constexpr std::string_view kBlanks = " \t\v\f";
constexpr std::string_view kComments = "#%!*/;\"'";
constexpr std::string_view kDigits = "0123456789";

/// Numbers of a line that are looked at; points have three or four.
constexpr std::size_t kMostColumns = 100;

/// What a comma means in a file.
enum class Comma { separator, point, pairs };

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view Stripped(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// A file's text, every line ended by a line feed, CR alone too.
std::string TextOfBytes(std::string_view bytes) {
    std::string text = AnyToUtf8(bytes);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n')) {
            text[i] = '\n';
        }
    }
    return text;
}

/// Hands over the lines without their ends as long as `take` wants more. There is no list of them:
/// that of a large file of line ends would take hundreds of megabytes.
template <class Take>
void ForEachLine(std::string_view text, Take take) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        if (!take(line)) {
            return;
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

/// The first `most` parts of a text.
std::vector<std::string_view> Split(std::string_view text, std::string_view separators,
                                    std::size_t most = std::string_view::npos) {
    std::vector<std::string_view> parts;
    std::size_t at = text.find_first_not_of(separators);
    while (at != std::string_view::npos && parts.size() < most) {
        const std::size_t end = std::min(text.find_first_of(separators, at), text.size());
        parts.push_back(text.substr(at, end - at));
        at = text.find_first_not_of(separators, end);
    }
    return parts;
}

/// The number that `text` is as a whole, with a point for its decimals; nothing for other texts.
std::optional<double> NumberOf(std::string text) {
    if (!text.empty() && text.front() == '+') {
        text.erase(0, 1);
    }
    if (text.find_first_of(kDigits) == std::string::npos ||
        text.find_first_not_of("0123456789.-+eEdD") != std::string::npos) {
        return std::nullopt;
    }
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == 'd' || c == 'D'; }, 'e');
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

/// Whether a line could be one of numbers: nothing but what numbers and separators are made of.
bool LooksNumeric(std::string_view line) {
    return line.find_first_of(kDigits) != std::string_view::npos &&
           line.find_first_not_of("0123456789.,;-+eEdD \t\v\f") == std::string_view::npos;
}

/// "0,5 0,1": every part between the blanks or semicolons has one comma within it, or none.
bool HasDecimalCommas(std::string_view line) {
    const std::vector<std::string_view> parts = Split(line, " \t\v\f;");
    bool comma = false;
    for (const std::string_view part : parts) {
        const std::size_t at = part.find(',');
        if (at == std::string_view::npos) {
            continue;
        }
        if (at + 1 == part.size() || part.find(',', at + 1) != std::string_view::npos) {
            return false;
        }
        comma = true;
    }
    return comma && parts.size() >= 2;
}

Comma CommaOf(std::string_view text) {
    std::size_t decimal = 0;
    std::size_t pairs = 0;
    std::size_t commas = 0;
    bool point = false;
    ForEachLine(text, [&](std::string_view line) {
        if (line.find(',') == std::string_view::npos || !LooksNumeric(line)) {
            return true;
        }
        point = line.find('.') != std::string_view::npos;
        ++commas;
        decimal += HasDecimalCommas(line) ? 1U : 0U;
        pairs += std::count(line.begin(), line.end(), ',') == 3 ? 1U : 0U;
        return !point;
    });
    if (point) {
        return Comma::separator;
    }
    if (2 * decimal > commas) {
        return Comma::point;
    }
    return 2 * pairs > commas ? Comma::pairs : Comma::separator;
}

/// The first parts of a line between its separators, decimals with a point.
std::vector<std::string> Parts(std::string_view line, Comma comma) {
    const bool separates = comma != Comma::point;
    std::vector<std::string> parts;
    for (const std::string_view part :
         Split(line, separates ? " \t\v\f;," : " \t\v\f;", kMostColumns)) {
        parts.emplace_back(part);
        std::replace(parts.back().begin(), parts.back().end(), ',', '.');
    }
    if (comma == Comma::pairs && parts.size() == 4) {
        return {parts[0] + "." + parts[1], parts[2] + "." + parts[3]};
    }
    return parts;
}

/// The numbers that a line begins with.
TableRow RowOf(std::string_view line, Comma comma) {
    TableRow row;
    for (std::string &part : Parts(line, comma)) {
        const std::optional<double> value = NumberOf(part);
        if (!value) {
            break;
        }
        row.values.push_back(*value);
        std::replace_if(
            part.begin(), part.end(), [](char c) { return c == 'd' || c == 'D'; }, 'e');
        row.texts.push_back(std::move(part));
    }
    return row;
}

/// A name has a word or a number in it; "x/c  y/c" heads the columns.
bool IsTitle(std::string_view text) {
    std::size_t word = 0;
    for (const char c : text) {
        const bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
                            (static_cast<unsigned char>(c) & 0x80U) != 0;
        word = letter ? word + 1 : 0;
        if (word == 3 || IsDigit(c)) {
            return true;
        }
    }
    return false;
}

std::string TitleOf(std::string_view line) {
    const std::size_t first = line.find_first_not_of(kComments);
    const std::string_view text =
        first == std::string_view::npos ? std::string_view() : Stripped(line.substr(first));
    return IsTitle(text) ? std::string(text) : std::string();
}

/// "64 2 15 by ..." is the name of a section, "400,000 and more" a remark: whole numbers, and then
/// words.
bool IsProse(const TableRow &row, std::string_view line) {
    const bool whole = std::all_of(row.texts.begin(), row.texts.end(), [](const std::string &text) {
        return text.find_first_not_of(kDigits) == std::string::npos;
    });
    return whole && !LooksNumeric(line);
}

} // namespace

CoordinateTable ReadCoordinateTable(std::string_view bytes) {
    const std::string text = TextOfBytes(bytes);
    const Comma comma = CommaOf(text);
    CoordinateTable table;
    int number = 0;
    ForEachLine(text, [&](std::string_view whole) {
        ++number;
        const std::string_view line = Stripped(whole);
        if (line.empty()) {
            return true;
        }
        TableRow row = RowOf(line, comma);
        if (row.values.size() >= 2 && !IsProse(row, line)) {
            row.line = number;
            table.rows.push_back(std::move(row));
        } else if (table.rows.empty() && table.title.empty()) {
            table.title = TitleOf(line);
        }
        return table.rows.size() <= kMostRows;
    });
    return table;
}

} // namespace loftwing
