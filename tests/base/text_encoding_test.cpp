#include "base/text_encoding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(IsUtf8, LooksAtEveryByteWhereverItStands) {
    for (std::size_t at = 0; at < 24; ++at) {
        std::string text(24, 'a');
        text[at] = '\xE9'; // é in Windows-1252
        EXPECT_FALSE(IsUtf8(text)) << at;
        text.replace(at, 1, "é");
        EXPECT_TRUE(IsUtf8(text)) << at;
        text.resize(at + 1); // half of it
        EXPECT_FALSE(IsUtf8(text)) << at;
    }
}

TEST(IsUtf8, TakesSequencesOfOneToFourBytes) {
    EXPECT_TRUE(IsUtf8(""));
    EXPECT_TRUE(IsUtf8("plain"));
    EXPECT_TRUE(IsUtf8("\xC3\xA9"));         // e with acute accent
    EXPECT_TRUE(IsUtf8("\xE2\x82\xAC"));     // euro sign
    EXPECT_TRUE(IsUtf8("\xF0\x9F\x9B\xA9")); // a small aeroplane
    EXPECT_TRUE(IsUtf8("\xF4\x8F\xBF\xBF")); // the last code point
}

TEST(IsUtf8, RefusesWhatIsCutOrStray) {
    EXPECT_FALSE(IsUtf8("\xC3"));
    EXPECT_FALSE(IsUtf8("\xC3 "));
    EXPECT_FALSE(IsUtf8("\xE2\x82"));
    EXPECT_FALSE(IsUtf8("\xF0\x9F\x9B"));
    EXPECT_FALSE(IsUtf8("\xA9"));
    EXPECT_FALSE(IsUtf8("caf\xE9"));
    EXPECT_FALSE(IsUtf8("\xFF"));
}

TEST(IsUtf8, RefusesOverlongFormsSurrogatesAndWhatLiesBeyond) {
    EXPECT_FALSE(IsUtf8("\xC0\xAF"));
    EXPECT_FALSE(IsUtf8("\xC1\xBF"));
    EXPECT_FALSE(IsUtf8("\xE0\x9F\xBF"));
    EXPECT_FALSE(IsUtf8("\xF0\x8F\xBF\xBF"));
    EXPECT_FALSE(IsUtf8("\xED\xA0\x80"));
    EXPECT_FALSE(IsUtf8("\xF4\x90\x80\x80"));
    EXPECT_FALSE(IsUtf8("\xF5\x80\x80\x80"));
}

TEST(ToUtf8, LeavesValidUtf8AsItIs) {
    EXPECT_EQ(ToUtf8("profil \xC3\xA9pais"), "profil \xC3\xA9pais");
}

TEST(ToUtf8, ReadsAllElseAsWindows1252) {
    EXPECT_EQ(ToUtf8("\xE9pais"), "\xC3\xA9pais");
    EXPECT_EQ(ToUtf8("10\x80"), "10\xE2\x82\xAC");
    EXPECT_EQ(ToUtf8("\x93x\x94"), "\xE2\x80\x9Cx\xE2\x80\x9D");
    EXPECT_EQ(ToUtf8("\xB0"), "\xC2\xB0");
    EXPECT_EQ(ToUtf8("\x9F\xFF"), "\xC5\xB8\xC3\xBF");
    EXPECT_EQ(ToUtf8("\x81"), "\xC2\x81") << "a byte that stands for nothing stands for itself";
}

TEST(ToUtf8, ReadsTheWholeFileOneWay) {
    EXPECT_EQ(ToUtf8("\xC3\xA9 \xE9"), "\xC3\x83\xC2\xA9 \xC3\xA9");
}

TEST(ToUtf8, SkipsAByteOrderMark) {
    EXPECT_EQ(ToUtf8("\xEF\xBB\xBF"
                     "1.0 0.0"),
              "1.0 0.0");
    EXPECT_EQ(ToUtf8("\xEF\xBB\xBF"), "");
    EXPECT_EQ(ToUtf8("\xEF\xBB\xBF\xE9"), "\xC3\xA9");
    EXPECT_EQ(ToUtf8("x\xEF\xBB\xBF"), "x\xEF\xBB\xBF") << "only in front";
}

TEST(ToUtf8, GivesValidUtf8ForEveryByte) {
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_TRUE(IsUtf8(ToUtf8(std::string(1, static_cast<char>(byte))))) << byte;
    }
}

TEST(OnOneLine, PutsABlankInPlaceOfEachLineEnd) {
    EXPECT_EQ(OnOneLine("a\nb\r\nc\rd"), "a b c d");
    EXPECT_EQ(OnOneLine("\r\n\n\r"), "   ");
    EXPECT_EQ(OnOneLine("a b"), "a b");
    EXPECT_EQ(OnOneLine(""), "");
}

TEST(AnyToUtf8, TellsUtf16WithoutAMarkByTheZerosBetweenItsLetters) {
    using namespace std::string_view_literals;
    EXPECT_EQ(AnyToUtf8("W\0\xFC\0\n\0"sv), "W\xC3\xBC\n");
    EXPECT_EQ(AnyToUtf8("\0W\0\xFC\0\n"sv), "W\xC3\xBC\n");
    // Half of the letters have another script's byte in place of the zero.
    EXPECT_EQ(AnyToUtf8("1\0 \0\x42\x30\x44\x30"sv), "1 \xE3\x81\x82\xE3\x81\x84");
    // The half of a pair at the very end is no letter.
    EXPECT_EQ(AnyToUtf8("1\0002\0003"sv), "12");
}

TEST(AnyToUtf8, TakesBytesWithOtherZerosForNoUtf16) {
    using namespace std::string_view_literals;
    for (const std::string_view bytes : {"\0\0\0\0"sv, "1 0\0 0.5"sv, "\0"sv, "1\0\0002"sv,
                                         "NACA 2412\n1 0\n\0\n"sv, "\0\1\2"sv, "\1\0\2\0"sv}) {
        EXPECT_EQ(AnyToUtf8(bytes), bytes);
    }
}

TEST(SplitLines, EndsLinesAtLfAndCrLf) {
    EXPECT_THAT(SplitLines("a\nb\r\nc\n"), ElementsAre("a", "b", "c"));
}

TEST(SplitLines, NeedsNoEndOfTheLastLine) {
    EXPECT_THAT(SplitLines("a\nb"), ElementsAre("a", "b"));
    EXPECT_THAT(SplitLines(""), IsEmpty());
}

TEST(SplitLines, KeepsEmptyLines) {
    EXPECT_THAT(SplitLines("\n\r\nx\n\n"), ElementsAre("", "", "x", ""));
}

TEST(SplitLines, KeepsACarriageReturnWithinALine) {
    EXPECT_THAT(SplitLines("a\rb\nc"), ElementsAre("a\rb", "c"));
}

TEST(Characters, AreCountedAndNotBytes) {
    const std::string text = "\xC3\xA9t\xC3\xA9\xE2\x82\xAC"; // four characters in eight bytes
    EXPECT_EQ(CharacterCount(text), 4U);
    EXPECT_EQ(FirstCharacters(text, 1), "\xC3\xA9");
    EXPECT_EQ(FirstCharacters(text, 3), "\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(LastCharacters(text, 1), "\xE2\x82\xAC");
    EXPECT_EQ(LastCharacters(text, 2), "\xC3\xA9\xE2\x82\xAC");
}

TEST(Characters, AreAllThereAreWhereMoreAreWanted) {
    EXPECT_EQ(FirstCharacters("abc", 5), "abc");
    EXPECT_EQ(LastCharacters("abc", 5), "abc");
    EXPECT_EQ(FirstCharacters("abc", 0), "");
    EXPECT_EQ(LastCharacters("abc", 0), "");
    EXPECT_EQ(FirstCharacters("", 2), "");
    EXPECT_EQ(LastCharacters("", 2), "");
}

} // namespace
} // namespace loftwing
