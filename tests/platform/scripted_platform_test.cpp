// The boxes of a scripted world: one that isn't as expected must fail its test.

#include "support/scripted_platform.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace loftwing {
namespace {

const MessageBox kBox = {"the text", "the title", BoxIcon::warning, BoxButtons::yes_no,
                         BoxAnswer::no};

TEST(ExpectedBox, IsAnsweredAsItsUserWould) {
    ScriptedPlatform platform;
    platform.Expect(BoxAnswer::yes, {.text = "the text",
                                     .title = testing::EndsWith("title"),
                                     .icon = BoxIcon::warning,
                                     .buttons = BoxButtons::yes_no});
    platform.ExpectBoxes(2);
    EXPECT_EQ(platform.Show(kBox), BoxAnswer::yes);
    EXPECT_EQ(platform.Show(kBox), BoxAnswer::ok);
    EXPECT_EQ(platform.Show(kBox), BoxAnswer::ok);
    EXPECT_EQ(platform.boxes.size(), 3U);
    EXPECT_EQ(platform.LastBox(), "the text");
}

TEST(ExpectedBox, FailsTheTestWhereItIsAnotherOne) {
    ScriptedPlatform platform;
    const std::pair<BoxLook, const char *> looks[] = {
        {{.text = "another text"}, "the text of the box expected here"},
        {{.title = testing::StartsWith("title")}, "the title of the box expected here"},
        {{.icon = BoxIcon::stop}, "another icon"},
        {{.buttons = BoxButtons::ok}, "other buttons"}};
    for (const auto &[look, words] : looks) {
        platform.Expect(BoxAnswer::no, look);
        EXPECT_NONFATAL_FAILURE(platform.Show(kBox), words);
    }
}

TEST(ExpectedBox, FailsTheTestWhenItDoesNotCome) {
    const auto forget_it = [] {
        ScriptedPlatform platform;
        platform.Expect(BoxAnswer::ok);
    };
    EXPECT_NONFATAL_FAILURE(forget_it(), "did not appear");
}

TEST(ExpectedBox, MayBeForgotten) {
    ScriptedPlatform platform;
    platform.ExpectBoxes(2);
    platform.Show(kBox);
    EXPECT_EQ(platform.ForgetExpected(), 1U);
    EXPECT_EQ(platform.ForgetExpected(), 0U);
}

TEST(ExpectedBox, LetsSomethingHappenWhileItIsOpen) {
    ScriptedPlatform platform;
    std::size_t open = 0;
    platform.Expect(BoxAnswer::ok, {.meanwhile = [&] { open = platform.boxes.size(); }});
    platform.Show(kBox);
    EXPECT_EQ(open, 1U);
}

TEST(UnexpectedBox, FailsTheTestAndGetsItsFallback) {
    ScriptedPlatform platform;
    BoxAnswer answer = BoxAnswer::yes;
    EXPECT_NONFATAL_FAILURE(answer = platform.Show(kBox), "unexpected box \"the title\": the text");
    EXPECT_EQ(answer, BoxAnswer::no);
}

} // namespace
} // namespace loftwing
