#include "base/text_encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace loftwing {

namespace {

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Length of the valid UTF-8 sequence at `at`, 0 when there is none.
std::size_t SequenceLength(std::string_view bytes, std::size_t at) {
    const auto lead = static_cast<unsigned char>(bytes[at]);
    if (lead < 0x80U) {
        return 1;
    }
    const std::size_t length = lead >= 0xF0U ? 4 : lead >= 0xE0U ? 3 : 2;
    if (lead < 0xC2U || lead > 0xF4U || at + length > bytes.size()) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if (!IsContinuation(bytes[at + i])) {
            return 0;
        }
    }
    const auto second = static_cast<unsigned char>(bytes[at + 1]);
    const bool overlong = (lead == 0xE0U && second < 0xA0U) || (lead == 0xF0U && second < 0x90U);
    const bool surrogate = lead == 0xEDU && second >= 0xA0U;
    const bool beyond = lead == 0xF4U && second >= 0x90U;
    return overlong || surrogate || beyond ? 0 : length;
}

/// Past the ASCII characters at `at`, or most of them: nearly all bytes of most files are such, and
/// eight are as quickly looked at as one.
std::size_t SkipAscii(std::string_view bytes, std::size_t at) {
    constexpr std::uint64_t kBeyondAscii = 0x8080808080808080;
    std::uint64_t eight = 0;
    for (; at + sizeof eight <= bytes.size(); at += sizeof eight) {
        std::memcpy(&eight, bytes.data() + at, sizeof eight);
        if ((eight & kBeyondAscii) != 0) {
            break;
        }
    }
    return at;
}

/// Code points of the Windows-1252 bytes 0x80 to 0x9F; unused ones stand for themselves.
constexpr std::array<std::uint16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendCodePoint(std::string &text, unsigned code) {
    if (code < 0x80U) {
        text += static_cast<char>(code);
    } else if (code < 0x800U) {
        text += static_cast<char>(0xC0U | (code >> 6U));
        text += static_cast<char>(0x80U | (code & 0x3FU));
    } else {
        if (code < 0x10000U) {
            text += static_cast<char>(0xE0U | (code >> 12U));
        } else {
            text += static_cast<char>(0xF0U | (code >> 18U));
            text += static_cast<char>(0x80U | ((code >> 12U) & 0x3FU));
        }
        text += static_cast<char>(0x80U | ((code >> 6U) & 0x3FU));
        text += static_cast<char>(0x80U | (code & 0x3FU));
    }
}

std::string FromWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        AppendCodePoint(text, code >= 0x80U && code < 0xA0U ? kWindows1252[code - 0x80U] : code);
    }
    return text;
}

/// Byte position of character number `count`, the size when there are fewer.
std::size_t PositionOf(std::string_view text, std::size_t count) {
    std::size_t at = 0;
    while (at < text.size()) {
        if (!IsContinuation(text[at])) {
            if (count == 0) {
                return at;
            }
            --count;
        }
        ++at;
    }
    return text.size();
}

enum class ByteOrder { none, little, big };

bool IsControl(char byte) {
    constexpr std::string_view kOfTexts = "\t\n\v\f\r";
    return static_cast<unsigned char>(byte) < 0x20U &&
           kOfTexts.find(byte) == std::string_view::npos;
}

/// The order of a UTF-16 text without a mark. Numbers and western letters have a zero in each pair
/// of bytes, always on the same side, and no text of single bytes has any. On the side of the
/// letters controls have no place: what has them is no text at all.
ByteOrder OrderOfZeros(std::string_view bytes) {
    constexpr std::size_t kEnough = 512;
    const std::string_view head = bytes.substr(0, std::min(kEnough, bytes.size() / 2 * 2));
    std::array<std::size_t, 2> zeros{};    // at even places, at odd ones
    std::array<std::size_t, 2> controls{}; // zeros too
    for (std::size_t at = 0; at < head.size(); ++at) {
        zeros[at % 2] += head[at] == 0 ? 1U : 0U;
        controls[at % 2] += IsControl(head[at]) ? 1U : 0U;
    }
    const auto tell = [&](std::size_t high) {
        return controls[1 - high] == 0 && zeros[high] > 0 && zeros[high] >= head.size() / 4;
    };
    return tell(1) ? ByteOrder::little : tell(0) ? ByteOrder::big : ByteOrder::none;
}

ByteOrder OrderOf(std::string_view bytes) {
    return bytes.starts_with("\xFE\xFF")   ? ByteOrder::big
           : bytes.starts_with("\xFF\xFE") ? ByteOrder::little
                                           : OrderOfZeros(bytes);
}

} // namespace

bool IsUtf8(std::string_view bytes) {
    std::size_t at = 0;
    while ((at = SkipAscii(bytes, at)) < bytes.size()) {
        const std::size_t length = SequenceLength(bytes, at);
        if (length == 0) {
            return false;
        }
        at += length;
    }
    return true;
}

std::string ToUtf8(std::string_view bytes) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(kMark)) {
        bytes.remove_prefix(kMark.size());
    }
    return IsUtf8(bytes) ? std::string(bytes) : FromWindows1252(bytes);
}

std::string AnyToUtf8(std::string_view bytes) {
    const ByteOrder order = OrderOf(bytes);
    if (order == ByteOrder::none) {
        return ToUtf8(bytes);
    }
    const bool big = order == ByteOrder::big;
    const auto unit = [&bytes, big](std::size_t at) {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        return big ? first * 0x100U + second : second * 0x100U + first;
    };
    constexpr unsigned kMark = 0xFEFF;
    std::string text;
    for (std::size_t at = unit(0) == kMark ? 2 : 0; at + 1 < bytes.size(); at += 2) {
        const unsigned high = unit(at);
        if (high < 0xD800U || high > 0xDFFFU) {
            AppendCodePoint(text, high);
            continue;
        }
        const unsigned low = at + 3 < bytes.size() ? unit(at + 2) : 0U;
        const bool pair = high < 0xDC00U && low >= 0xDC00U && low <= 0xDFFFU;
        AppendCodePoint(text,
                        pair ? 0x10000U + (high - 0xD800U) * 0x400U + (low - 0xDC00U) : 0xFFFDU);
        at += pair ? 2U : 0U;
    }
    return text;
}

std::u32string CodePoints(std::string_view text) {
    std::u32string points;
    for (std::size_t at = 0; at < text.size();) {
        // A byte that begins no sequence stands for itself, so that the walk always goes on.
        const std::size_t length = std::max<std::size_t>(SequenceLength(text, at), 1);
        const auto lead = static_cast<unsigned char>(text[at]);
        char32_t code = length == 1 ? lead : lead & (0xFFU >> (length + 1));
        for (std::size_t i = 1; i < length; ++i) {
            code = code << 6U | (static_cast<unsigned char>(text[at + i]) & 0x3FU);
        }
        points += code;
        at += length;
    }
    return points;
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    lines.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1);
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        lines.emplace_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::string OnOneLine(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool one_of_two = text.substr(at).starts_with("\r\n");
        line += text[at] == '\r' || text[at] == '\n' ? ' ' : text[at];
        at += one_of_two ? 1U : 0U;
    }
    return line;
}

char LowerAscii(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string LowerAscii(std::string text) {
    for (char &letter : text) {
        letter = LowerAscii(letter);
    }
    return text;
}

std::string FirstCharacters(const std::string &text, std::size_t count) {
    return text.substr(0, PositionOf(text, count));
}

std::string LastCharacters(const std::string &text, std::size_t count) {
    const std::size_t all = CharacterCount(text);
    return count >= all ? text : text.substr(PositionOf(text, all - count));
}

std::size_t CharacterCount(std::string_view text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return !IsContinuation(byte); }));
}

} // namespace loftwing
