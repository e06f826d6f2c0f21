#include "core/messages.h"

#include "support/words.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

constexpr const char *kMessageWords = "[Erreur]\n1=Error\n2=in\n3=Plot error\n";

TEST(Messages, ReportAFailureUnderTheLabelOfItsRoutine) {
    Words words(kMessageWords);
    words.platform.Expect(BoxAnswer::ok);
    words.messages.Report(MakeFailure(kOverflow), " Calcul/Alocate");
    EXPECT_EQ(words.LastBox().text, "Error # 6 in Loftwing\nOverflow");
    EXPECT_EQ(words.LastBox().title, " Calcul/Alocate");
    EXPECT_EQ(words.LastBox().icon, BoxIcon::information);
    EXPECT_EQ(words.LastBox().buttons, BoxButtons::ok);
}

TEST(Messages, ReportAFailureOfThePlotInItsOwnWords) {
    Words words(kMessageWords);
    words.platform.Expect(BoxAnswer::ok);
    words.messages.ReportPlot(MakeFailure(kDivisionByZero), " Main/PrintSubroutine");
    EXPECT_EQ(words.LastBox().text, "Plot error # 11 in Loftwing\nDivision by zero");
    EXPECT_EQ(words.LastBox().title, "Error Main/PrintSubroutine");
}

TEST(Messages, TakeYesOnlyForYes) {
    Words words(kMessageWords);
    words.platform.Expect(BoxAnswer::yes);
    words.platform.Expect(BoxAnswer::no);
    words.platform.Expect(BoxAnswer::cancel);
    EXPECT_TRUE(words.messages.Confirm("Sure ?", "Title"));
    EXPECT_FALSE(words.messages.Confirm("Sure ?", "Title"));
    EXPECT_FALSE(words.messages.Confirm("Sure ?", "Title"));
    EXPECT_EQ(words.LastBox().buttons, BoxButtons::yes_no);
    EXPECT_EQ(words.LastBox().fallback, BoxAnswer::no);
    EXPECT_EQ(words.LastBox().icon, BoxIcon::question);
}

} // namespace
} // namespace loftwing
