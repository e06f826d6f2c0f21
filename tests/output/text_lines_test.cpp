#include "output/text_lines.h"

#include "output/recording.h"

#include <gtest/gtest.h>

namespace loftwing {
namespace {

TEST(TextLines, ALineIsALittleHigherThanItsFont) {
    EXPECT_DOUBLE_EQ(LineHeight({"Arial", 10}), 230.0);
    EXPECT_DOUBLE_EQ(LineHeight({"Arial", 20}), 460.0);
}

TEST(TextLines, PrintingALineMovesToTheStartOfTheNext) {
    Recording device;
    device.CurrentX = 283.5;
    device.CurrentY = 1000;
    PrintLine(device, "one");
    EXPECT_EQ(device.CurrentX, 0);
    EXPECT_DOUBLE_EQ(device.CurrentY, 1230.0);
    PrintLine(device, "");
    EXPECT_DOUBLE_EQ(device.CurrentY, 1460.0);
    ASSERT_EQ(device.Operations().size(), 1U);
    const auto &text = std::get<DrawnText>(device.Operations().front());
    EXPECT_EQ(text.text, "one");
    EXPECT_EQ(text.x, 283.5);
    EXPECT_EQ(text.y, 1000);
}

TEST(TextLines, PrintZonesBeginAtEveryFourteenthCharacter) {
    EXPECT_EQ(UpToNextZone("Name : "), "Name : " + std::string(7, ' '));
    EXPECT_EQ(UpToNextZone("1234567890123"), "1234567890123 ");
    // A text that ends where a zone begins goes on to the one after it.
    EXPECT_EQ(UpToNextZone("12345678901234"), "12345678901234" + std::string(14, ' '));
    EXPECT_EQ(UpToNextZone(""), std::string(14, ' '));
    // Characters count, not bytes.
    EXPECT_EQ(UpToNextZone("Écart"), "Écart" + std::string(9, ' '));
}

} // namespace
} // namespace loftwing
