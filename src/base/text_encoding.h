/// Bytes of text files to UTF-8, and their lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace loftwing {

/// Whether `bytes` are valid UTF-8 (no overlong forms, no surrogates).
bool IsUtf8(std::string_view bytes);

/// `bytes` as UTF-8: unchanged when they are valid, otherwise read as Windows-1252. A byte order
/// mark is skipped.
std::string ToUtf8(std::string_view bytes);

/// The same for the bytes of a whole file, which may be UTF-16 too: where its byte order mark
/// stands in front, or where the zeros between the letters of a western text tell it. A half of a
/// pair that lacks the other becomes U+FFFD.
std::string AnyToUtf8(std::string_view bytes);

/// The code points of a valid UTF-8 text.
std::u32string CodePoints(std::string_view text);

/// The lines of `text`. CR LF and LF both end a line; a last line needs no end.
std::vector<std::string> SplitLines(std::string_view text);

/// `text` with a blank for each of its line ends, CR LF being one.
std::string OnOneLine(std::string_view text);

/// Small letters for the capitals of the plain alphabet; all else stays, whatever the locale.
char LowerAscii(char letter);
std::string LowerAscii(std::string text);

/// The first `count` characters of a UTF-8 text.
std::string FirstCharacters(const std::string &text, std::size_t count);
/// The last `count` characters of a UTF-8 text; all of it when it is shorter.
std::string LastCharacters(const std::string &text, std::size_t count);
/// Number of characters of a UTF-8 text.
std::size_t CharacterCount(std::string_view text);

} // namespace loftwing
